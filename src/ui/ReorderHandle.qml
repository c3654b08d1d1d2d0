import QtQuick

// Moves a row of an editor: by drag, or with the keys Alt+Up and Alt+Down of the table.
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
        anchors.fill: parent
        cursorShape: Qt.SizeVerCursor
        preventStealing: true
        onPressed: handle.row.reordering = true
        onCanceled: handle.row.reordering = false
        onReleased: handle.row.reordering = false
        onPositionChanged: event => {
            const view = handle.row.view
            const at = handle.mapToItem(view.contentItem, event.x, event.y)
            const target = view.indexAt(view.width / 2, at.y)
            if (target >= 0 && target !== handle.row.index)
                handle.row.moved(target)
        }
    }
}
