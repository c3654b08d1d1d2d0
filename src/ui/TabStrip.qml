import QtQuick

// The tabs of the window: along the bottom of a phone, along the side of a wider window. Places are reckoned here rather
// than by a layout, which would still hold a tab that has just gone.
Rectangle {
    id: strip

    required property var app
    property bool rail: false

    readonly property real across: width / Math.max(1, buttons.count)

    implicitWidth: rail ? Math.max(76, Theme.tiny * 7) : 0
    implicitHeight: rail ? 0 : Math.max(60, Theme.tiny + 46)
    color: Theme.barBackground
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTranslate("vidora", "Tabs")

    Repeater {
        id: buttons
        model: strip.app.tabs
        TabButton {
            required property int index
            required property string title
            x: strip.rail ? 0 : strip.across * (strip.LayoutMirroring.enabled ? buttons.count - 1 - index : index)
            y: strip.rail ? 8 + index * implicitHeight : 1
            width: strip.rail ? strip.width - 1 : strip.across
            height: strip.rail ? implicitHeight : strip.height - 1
            rail: strip.rail
            text: title
            current: strip.app.selectedTab === index
            onClicked: strip.app.selectTab(index)
        }
    }
    Rectangle {
        anchors.right: strip.rail ? parent.right : undefined
        color: Theme.separator
        width: strip.rail ? 1 : parent.width
        height: strip.rail ? parent.height : 1
    }
}
