import QtQuick

// A screen made up of data, which writes down what is asked of it.
QtObject {
    id: screen

    property string title: "Title"
    property ListModel rows: ListModel {}
    property var barButtons: []
    property string placeholder
    property bool refreshable: false
    property bool refreshing: false
    property bool searchable: false
    property string searchText
    property var sectionIndexTitles: []
    property bool root: true
    property bool visible: true

    property var actions: []
    property var calls: []
    function note(...call) { calls = calls.concat([call.join(" ")]) }

    function select(row) { note("select", row) }
    function pressAccessory(row) { note("accessory", row) }
    function removeRow(row) { note("remove", row); rows.remove(row) }
    function moveRow(from, to) { note("move", from, to); rows.move(from, to, 1) }
    function pressBarButton(index) { note("button", index) }
    function refresh() { note("refresh") }
    function rowOfSection(section) {
        for (let row = 0; row < rows.count; ++row) {
            if (rows.get(row).section === section)
                return row
        }
        return -1
    }
    property int lastInSight: -1
    function rowsInSight(first, last) { lastInSight = last }
    property string undoText
    property string subtitle
    property bool showsUpdateState: false
    function undo() { note("undo") }
    function swipeActions(row) { return actions }
    function performSwipe(row, action) { note("swipe", row, action) }

    // Adds rows of one section, each with these properties.
    function add(section, texts, properties = {}) {
        for (const text of texts)
            rows.append(Object.assign({
                kind: "show", section: section, row: 0, sectionTitle: "", text: text, richText: text, subtitle: "",
                subtitleColour: "secondaryLabel", backgroundColour: "secondaryGroupedBackground", icon: "", start: "20:00",
                end: "21:00", title: text, details: "", timeColour: "secondaryLabel", onAir: false, alarm: false,
                favourite: false, repeat: false, popular: false, progress: -1, timeLeft: "", picture: "", hasPicture: false,
                accessory: "none", selectable: true, swipeable: false, deletable: false, movable: false
            }, properties))
    }
}
