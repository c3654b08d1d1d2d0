import QtQuick

// Moves a row of an editor: by drag, or with the keys Alt+Up and Alt+Down of the table. At the table's edges a drag
// scrolls it.
Item {
    id: handle

    required property var row

    implicitWidth: Theme.touchTarget
    implicitHeight: Theme.touchTarget
    Accessible.role: Accessible.Grip
    Accessible.name: qsTranslate("vidora", "Move %1").arg(row.plain)

    Symbol {
        anchors.centerIn: parent
        name: "reorder"
        color: Theme.lightGrey
    }
    MouseArea {
        id: area
        anchors.fill: parent
        cursorShape: Qt.SizeVerCursor
        preventStealing: true
        onPressed: handle.row.reordering = true
        onCanceled: handle.row.reordering = false
        onReleased: handle.row.reordering = false
        onPositionChanged: moveRow()

        /// Beyond which edge of the table the finger is, and how far: below 0 above it.
        readonly property int edge: 36
        function beyond() {
            const y = handle.mapToItem(handle.row.view, mouseX, mouseY).y
            return y < edge ? y - edge : Math.max(0, y - handle.row.view.height + edge)
        }
        function moveRow() {
            const view = handle.row.view
            const at = handle.mapToItem(view.contentItem, mouseX, mouseY)
            const target = view.indexAt(view.width / 2, at.y)
            if (target < 0 || target === handle.row.index || settling.running)
                return
            settling.restart()
            handle.row.moved(target)
        }
        Timer { // while rows are on their way, another one lies under the finger than will
            id: settling
            interval: Theme.duration(Theme.movement)
        }
        Timer {
            interval: 16
            repeat: true
            running: handle.row.reordering
            onTriggered: {
                const by = area.beyond(), view = handle.row.view
                if (by === 0)
                    return
                const least = view.originY - view.topMargin
                const most = Math.max(least, view.originY + view.contentHeight + view.bottomMargin - view.height)
                view.contentY = Math.max(least, Math.min(most, view.contentY + Math.max(-12, Math.min(12, by / 3))))
                area.moveRow()
            }
        }
    }
}
