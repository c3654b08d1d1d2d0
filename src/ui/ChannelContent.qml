import QtQuick

// A channel to be chosen or ordered: icon and name; in an editor also what deletes and moves it.
Item {
    id: channel

    required property var row
    readonly property var model: row.model

    implicitHeight: Math.max(texts.implicitHeight, 30, remove.height - 10, handle.height - 10)

    Loader {
        id: remove
        active: channel.model.deletable
        anchors.left: parent.left
        anchors.leftMargin: active ? -8 : 0
        anchors.verticalCenter: parent.verticalCenter
        width: active ? Theme.touchTarget : 0
        sourceComponent: SymbolButton {
            symbol: "delete"
            color: Theme.alarmRed
            text: qsTranslate("vidora", "Delete %1").arg(channel.row.plain)
            focusPolicy: Qt.NoFocus
            onClicked: channel.row.deletePressed()
        }
    }
    ChannelIcon {
        id: icon
        anchors.left: remove.right
        anchors.verticalCenter: parent.verticalCenter
        source: channel.model.icon
    }
    Column {
        id: texts
        anchors.left: icon.right
        anchors.leftMargin: icon.width > 0 ? 11 : 0
        anchors.right: end.left
        anchors.rightMargin: end.width > 0 ? 8 : 0
        anchors.verticalCenter: parent.verticalCenter
        Text {
            width: parent.width
            text: channel.row.plain
            textFormat: Text.PlainText
            elide: Text.ElideRight
            wrapMode: Text.Wrap
            maximumLineCount: 2
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: Theme.rowTitle
            font.weight: Font.Medium
            color: Theme.label
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: channel.model.subtitle
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: Theme.small
            color: Theme.secondaryLabel
            Accessible.ignored: true
        }
    }
    RowEnd {
        id: end
        anchors.right: handle.left
        anchors.verticalCenter: parent.verticalCenter
        row: channel.row
    }
    Loader {
        id: handle
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        active: channel.model.movable
        width: active ? Theme.touchTarget : 0
        sourceComponent: ReorderHandle { row: channel.row }
    }
}
