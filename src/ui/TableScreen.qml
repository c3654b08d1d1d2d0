import QtQuick
import QtQuick.Controls

// A screen that is a table: its bar, a search field where it can be searched, the rows in cards by section.
FocusScope {
    id: table

    required property var screen
    readonly property bool canGoBack: !screen.root
    property bool closable: false
    signal back()

    /// As high as it must be to show all rows.
    readonly property real wholeHeight: Theme.barHeight + list.contentHeight + list.topMargin + list.bottomMargin

    readonly property int side: Math.max(width < 700 ? 10 : Theme.margin, (width - Theme.readableWidth) / 2)
    readonly property bool refreshPulled: list.dragging && list.contentY - list.originY < -76

    function refresh() {
        if (screen.refreshable)
            screen.refresh()
    }
    function find() {
        if (screen.searchable)
            field.focusField()
    }

    // The list is the first that Tab comes to, then what stands above it.
    Item {
        anchors.top: field.visible ? field.bottom : bar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom

        ActivityIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 14
            running: table.screen.refreshable && list.contentY - list.originY < -40
            scale: table.refreshPulled ? 1.25 : 1
        }
        ListView {
            id: list
            anchors.fill: parent
            anchors.rightMargin: letters.visible ? letters.width : 0
            focus: true
            activeFocusOnTab: true
            clip: true
            topMargin: 10
            bottomMargin: 16
            model: table.screen.rows
            reuseItems: true
            cacheBuffer: 400
            keyNavigationEnabled: true
            currentIndex: -1
            highlightFollowsCurrentItem: false
            boundsBehavior: table.screen.refreshable ? Flickable.DragOverBounds : Flickable.StopAtBounds
            Accessible.role: Accessible.List
            Accessible.name: table.screen.title
            ScrollBar.vertical: ScrollBar { visible: !letters.visible; Accessible.ignored: true }

            section.property: "section"
            move: Transition { NumberAnimation { property: "y"; duration: Theme.duration(Theme.movement); easing.type: Easing.OutCubic } }
            moveDisplaced: move

            delegate: Item {
                id: place
                required property int index
                required property var model
                readonly property bool first: ListView.previousSection !== ListView.section
                readonly property bool last: ListView.nextSection !== ListView.section
                z: row.reordering ? 1 : 0
                width: ListView.view.width
                height: heading.height + row.implicitHeight + (last ? 10 : 0)
                ListView.onPooled: pane.close()
                Loader {
                    id: heading
                    width: parent.width
                    height: active ? implicitHeight : 0
                    active: place.first && place.model.sectionTitle !== ""
                    sourceComponent: SectionHeader {
                        side: table.side
                        title: place.model.sectionTitle
                    }
                }
                SwipePane {
                    id: pane
                    x: table.side
                    y: heading.height
                    width: parent.width - 2 * table.side
                    height: row.implicitHeight
                    radius: place.first || place.last ? Theme.cardRadius : 0
                    swipeable: place.model.swipeable || place.model.deletable
                    onUncovering: {
                        if (list.openPane !== pane)
                            list.openPane?.close()
                        list.openPane = pane
                        actions = table.actionsOf(place.index)
                    }
                    onMenuWanted: (x, y) => table.openMenu(place.index, pane, x, y)
                    onPerformed: index => table.perform(place.index, index)
                    TableRow {
                        id: row
                        width: parent.width
                        height: implicitHeight
                        first: place.first
                        last: place.last
                        index: place.index
                        model: place.model
                        screen: table.screen
                        highlightedByKeys: place.ListView.isCurrentItem && list.activeFocus
                        view: list
                        onChosen: pane.isOpen ? pane.close() : table.choose(place.index)
                        onAccessoryPressed: table.screen.pressAccessory(place.index)
                        onDeletePressed: table.screen.removeRow(place.index)
                        onMoved: to => table.screen.moveRow(place.index, to)
                        onMenuWanted: (x, y) => table.openMenu(place.index, row, x, y)
                    }
                }
            }

            property SwipePane openPane: null
            onMovementStarted: openPane?.close()

            property bool wasPulled: false
            onDraggingChanged: {
                if (!dragging && wasPulled)
                    table.refresh()
                wasPulled = false
            }
            onContentYChanged: {
                if (table.refreshPulled)
                    wasPulled = true
                Qt.callLater(tellRowsInSight)
            }
            onHeightChanged: Qt.callLater(tellRowsInSight)
            onContentHeightChanged: Qt.callLater(tellRowsInSight)
            onCountChanged: Qt.callLater(tellRowsInSight)
            onVisibleChanged: Qt.callLater(tellRowsInSight)
            function tellRowsInSight() {
                if (!table.screen?.visible || count === 0)
                    return
                const rowAt = y => indexAt(width / 2, Math.max(originY, Math.min(originY + contentHeight - 1, y)))
                const first = Math.max(0, rowAt(contentY)), last = rowAt(contentY + height - 1)
                table.screen.rowsInSight(first, last < 0 ? first : last)
            }

            Keys.onReturnPressed: table.choose(currentIndex)
            Keys.onEnterPressed: table.choose(currentIndex)
            Keys.onSpacePressed: table.choose(currentIndex)
            // Keys may come faster than the list takes rows away: its index can then still be behind the last one.
            Keys.onDeletePressed: if (currentIndex >= 0) table.screen.removeRow(Math.min(currentIndex, count - 1))
            Keys.onMenuPressed: table.openMenu(currentIndex, currentItem, 40, Theme.touchTarget)
            Keys.onPressed: event => {
                const page = Math.max(1, Math.floor(height / 80))
                const moving = event.modifiers & Qt.AltModifier
                if (moving && event.key === Qt.Key_Up && currentIndex > 0)
                    table.screen.moveRow(currentIndex, currentIndex - 1)
                else if (moving && event.key === Qt.Key_Down && currentIndex >= 0 && currentIndex < count - 1)
                    table.screen.moveRow(currentIndex, currentIndex + 1)
                else if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)
                    table.openMenu(currentIndex, currentItem, 40, Theme.touchTarget)
                else if (event.key === Qt.Key_PageDown)
                    currentIndex = Math.min(count - 1, currentIndex + page)
                else if (event.key === Qt.Key_PageUp)
                    currentIndex = Math.max(0, currentIndex - page)
                else if (event.key === Qt.Key_Home)
                    currentIndex = 0
                else if (event.key === Qt.Key_End)
                    currentIndex = count - 1
                else if (!leadToLetter(event.text))
                    return
                event.accepted = true
            }
            /// What the letters at the edge are for a finger, their keys are for a hand.
            function leadToLetter(letter) {
                const section = letter === "" ? -1 : table.screen.sectionIndexTitles.indexOf(letter.toLocaleUpperCase())
                if (section < 0)
                    return false
                currentIndex = table.screen.rowOfSection(section)
                return true
            }
            onCurrentIndexChanged: if (currentIndex >= 0) showCurrent()
            function showCurrent() {
                positionViewAtIndex(currentIndex, ListView.Contain)
                forceLayout() // the rows on the way are as high as they are only now
                positionViewAtIndex(currentIndex, ListView.Contain)
            }
        }
        SectionIndex {
            id: letters
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.margins: 4
            titles: table.screen.sectionIndexTitles
            onChosen: section => {
                const at = table.screen.rowOfSection(section)
                if (at >= 0)
                    list.positionViewAtIndex(at, ListView.Beginning)
            }
        }
        EmptyNote {
            anchors.centerIn: parent
            width: Math.min(parent.width - 48, 420)
            visible: list.count === 0 && text !== ""
            text: table.screen.placeholder
            symbol: table.screen.searchable ? "search" : "currently"
            action: table.screen.barButtons[addButton]?.title ?? ""
            onActed: table.screen.pressBarButton(addButton)
            readonly property int addButton: table.screen.barButtons.findIndex(button => button.symbol === "add")
        }
    }
    SearchField {
        id: field
        anchors.top: bar.bottom
        anchors.topMargin: 10
        x: table.side
        width: parent.width - 2 * table.side
        visible: table.screen.searchable
        onTextChanged: table.screen.searchText = text
        onFinished: list.forceActiveFocus(Qt.TabFocusReason)
    }
    NavigationBar {
        id: bar
        width: parent.width
        screen: table.screen
        canGoBack: table.canGoBack
        closable: table.closable
        onBack: table.back()
    }
    UndoBar {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.margin
        width: Math.min(parent.width - 2 * Theme.margin, 420)
        text: table.screen.undoText
        onUndone: table.screen.undo()
    }

    readonly property RowMenu menu: RowMenu {
        id: rowMenu
        property int row: -1
        property int accessories: 0
        onChosen: index => index < accessories ? table.screen.pressAccessory(row) : table.perform(row, index - accessories)
    }

    /// What a swipe on the row offers.
    function actionsOf(index) {
        const row = list.itemAtIndex(index)?.model
        return row?.deletable ? [{title: qsTranslate("vidora", "Delete"), destructive: true}] : screen.swipeActions(index)
    }
    function perform(index, action) {
        if (list.itemAtIndex(index)?.model.deletable)
            screen.removeRow(index)
        else
            screen.performSwipe(index, action)
    }
    /// What the button at the row's end does, for those who can't point at it.
    function accessoryActionsOf(index) {
        const row = list.itemAtIndex(index)?.model
        if (row?.accessory === "play")
            return [{title: qsTranslate("vidora", "Play %1").arg(row.text)}]
        return row?.accessory === "retry" ? [{title: qsTranslate("vidora", "Try again")}] : []
    }
    function openMenu(index, item, x, y) {
        const accessories = index >= 0 ? accessoryActionsOf(index) : []
        const actions = index >= 0 ? accessories.concat(actionsOf(index)) : []
        if (actions.length === 0)
            return
        rowMenu.accessories = accessories.length
        list.currentIndex = index
        rowMenu.row = index
        rowMenu.actions = actions
        rowMenu.popup(item, x, y)
    }
    function choose(index) {
        if (index < 0)
            return
        list.currentIndex = index
        screen.select(index)
    }
}
