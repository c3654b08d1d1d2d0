import QtQuick
import QtQuick.Controls

// One row of a table: picture, texts, accessory; in an editor also what deletes and moves it. Rows of one section form a
// card, so the first and the last have round corners.
ItemDelegate {
    id: row

    required property int index
    required property var model
    required property var screen
    required property bool first
    required property bool last
    required property ListView view
    property bool highlightedByKeys: false
    property bool reordering: false

    signal chosen()
    signal accessoryPressed()
    signal deletePressed()
    signal menuWanted(real x, real y)
    signal moved(int to)

    readonly property bool isHeader: model.kind === "header"
    readonly property string plain: model.text

    implicitHeight: Math.max(Theme.touchTarget, content.implicitHeight + topPadding + bottomPadding)
    topPadding: isHeader ? 8 : 9
    bottomPadding: topPadding
    leftPadding: 14
    rightPadding: 10
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: plain
    Accessible.description: model.subtitle
    Accessible.selectable: model.selectable
    Accessible.checked: model.accessory === "checkmark"
    Accessible.onPressAction: chosen()
    onClicked: if (model.selectable) chosen()
    onPressAndHold: menuWanted(pressX, pressY)

    background: Item {
        Rectangle {
            anchors.fill: parent
            radius: row.first || row.last ? Theme.radius : 0
            color: body.color
        }
        Rectangle {
            id: body
            anchors.fill: parent
            anchors.topMargin: row.first ? Theme.radius : 0
            anchors.bottomMargin: row.last ? Theme.radius : 0
            color: row.down || (row.hovered && row.model.selectable) ? Theme.pressed
                 : Theme.colours[row.model.backgroundColour] ?? Theme.secondaryGroupedBackground
        }
        Rectangle {
            visible: !row.last
            anchors.bottom: parent.bottom
            x: row.isHeader ? 0 : row.leftPadding
            width: parent.width - x
            height: 1
            color: Theme.separator
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            visible: row.highlightedByKeys
            color: "transparent"
            radius: Theme.radius
            border.width: 2
            border.color: Theme.focus
        }
    }

    contentItem: Item {
        id: content
        implicitHeight: Math.max(texts.height, picture.visible ? picture.height : 0,
                                 remove.visible || handle.visible || ending.item?.implicitHeight > 30 ? Theme.touchTarget : 0)

        SymbolButton {
            id: remove
            visible: row.model.deletable
            anchors.verticalCenter: parent.verticalCenter
            width: visible ? Theme.touchTarget : 0
            symbol: "delete"
            color: Theme.alarmRed
            text: qsTranslate("vidora", "Delete %1").arg(row.plain)
            onClicked: row.deletePressed()
        }
        RowPicture {
            id: picture
            visible: source !== ""
            anchors.left: remove.right
            y: icon ? (parent.height - height) / 2 : 0
            width: visible ? implicitWidth : 0
            height: implicitHeight
            icon: String(row.model.icon) !== ""
            source: icon ? "image://icons/" + encodeURIComponent(row.model.icon) : row.model.picture
            progress: row.model.progress
        }
        Column {
            id: texts
            anchors.left: picture.right
            anchors.leftMargin: picture.visible ? Theme.spacing : 0
            anchors.right: ending.left
            anchors.rightMargin: ending.active ? 8 : 0
            y: picture.visible && !picture.icon ? Math.max(0, Math.min(4, (parent.height - height) / 2))
                                                : (parent.height - height) / 2
            spacing: 2
            Text {
                width: parent.width
                height: Math.min(implicitHeight, 600)
                clip: implicitHeight > 600
                text: row.model.richText
                textFormat: Text.RichText
                wrapMode: Text.Wrap
                font.pixelSize: row.isHeader ? Theme.channel : Theme.body
                font.weight: row.isHeader ? Font.Bold : Font.Normal
                color: row.isHeader ? Theme.indigo : Theme.label
                Accessible.ignored: true
            }
            Text {
                width: parent.width
                visible: text !== ""
                text: row.model.subtitle
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 1
                font.pixelSize: Theme.small
                color: Theme.colours[row.model.subtitleColour] ?? Theme.secondaryLabel
                Accessible.ignored: true
            }
        }
        Loader {
            id: ending
            anchors.right: handle.left
            anchors.verticalCenter: parent.verticalCenter
            active: row.model.accessory !== "none"
            width: active && item ? item.implicitWidth : 0
            sourceComponent: row.model.accessory === "play" ? playButton
                           : row.model.accessory === "activity" ? busy : mark
            Component {
                id: playButton
                SymbolButton {
                    symbol: "play"
                    text: qsTranslate("vidora", "Play %1").arg(row.plain)
                    onClicked: row.accessoryPressed()
                }
            }
            Component {
                id: busy
                ActivityIndicator { }
            }
            Component {
                id: mark
                Symbol {
                    name: row.model.accessory === "checkmark" ? "checkmark" : "disclosure"
                    size: row.model.accessory === "checkmark" ? 22 : 16
                    color: row.model.accessory === "checkmark" ? Theme.accent : Theme.lightGrey
                    mirror: row.model.accessory !== "checkmark" && LayoutMirroring.enabled
                }
            }
        }
        ReorderHandle {
            id: handle
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: row.model.movable
            width: visible ? implicitWidth : 0
            height: implicitHeight
            row: row
        }
    }
}
