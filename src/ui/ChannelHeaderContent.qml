import QtQuick

// A channel above its shows: icon and name, a button that plays it, or what is the matter with its list.
Item {
    id: header

    required property var row
    readonly property var model: row.model
    readonly property bool hasNotice: model.subtitle !== "" && (!model.selectable || model.accessory === "retry")
    readonly property string spoken: hasNotice ? row.plain + ", " + model.subtitle : row.plain

    implicitHeight: Math.max(Theme.touchTarget - 8, texts.implicitHeight)

    ChannelIcon {
        id: icon
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        source: header.model.icon
    }
    Column {
        id: texts
        anchors.left: icon.right
        anchors.leftMargin: icon.width > 0 ? 11 : 0
        anchors.right: end.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        Text {
            width: parent.width
            text: header.row.plain
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: Theme.leadingTitle
            font.weight: Font.Bold
            color: Theme.label
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            visible: header.hasNotice
            text: header.model.subtitle
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
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        row: header.row
    }
}
