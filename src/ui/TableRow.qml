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
        Loader {
            anchors.fill: parent
            anchors.margins: 1
            active: row.highlightedByKeys
            sourceComponent: Rectangle {
                color: "transparent"
                radius: Theme.radius
                border.width: 2
                border.color: Theme.focus
            }
        }
    }

    contentItem: Item {
        id: content
        implicitHeight: Math.max(texts.height, picture.height,
                                 remove.active || handle.active || row.model.accessory === "play" ? Theme.touchTarget : 0)

        // Most rows are no more than texts; what few of them have is made for those few.
        Loader {
            id: remove
            active: row.model.deletable
            anchors.verticalCenter: parent.verticalCenter
            width: active ? Theme.touchTarget : 0
            sourceComponent: SymbolButton {
                symbol: "delete"
                color: Theme.alarmRed
                text: qsTranslate("vidora", "Delete %1").arg(row.plain)
                onClicked: row.deletePressed()
            }
        }
        Loader {
            id: picture
            readonly property bool icon: String(row.model.icon) !== ""
            active: icon || row.model.picture !== ""
            anchors.left: remove.right
            y: icon ? (parent.height - height) / 2 : 0
            width: active ? implicitWidth : 0
            height: active ? implicitHeight : 0
            sourceComponent: RowPicture {
                icon: picture.icon
                source: icon ? "image://icons/" + encodeURIComponent(row.model.icon) : row.model.picture
                progress: row.model.progress
            }
        }
        Column {
            id: texts
            anchors.left: picture.right
            anchors.leftMargin: picture.active ? Theme.spacing : 0
            anchors.right: end.left
            anchors.rightMargin: end.width > 0 ? 8 : 0
            y: picture.active && !picture.icon ? Math.max(0, Math.min(4, (parent.height - height) / 2))
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
            Loader {
                width: parent.width
                active: row.model.subtitle !== ""
                visible: active
                sourceComponent: Text {
                    text: row.model.subtitle
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    maximumLineCount: 1
                    font.pixelSize: Theme.small
                    color: Theme.colours[row.model.subtitleColour] ?? Theme.secondaryLabel
                    Accessible.ignored: true
                }
            }
        }
        Item {
            id: end
            anchors.right: handle.left
            width: ending.active ? ending.width : mark.visible ? mark.width : 0
            height: parent.height
            Symbol {
                id: mark
                anchors.verticalCenter: parent.verticalCenter
                visible: name !== ""
                name: ["checkmark", "disclosure"].includes(row.model.accessory) ? row.model.accessory : ""
                size: name === "checkmark" ? 22 : 16
                color: name === "checkmark" ? Theme.accent : Theme.lightGrey
                mirror: name === "disclosure" && LayoutMirroring.enabled
            }
            Loader {
                id: ending
                anchors.verticalCenter: parent.verticalCenter
                active: row.model.accessory === "play" || row.model.accessory === "activity"
                sourceComponent: row.model.accessory === "play" ? playButton : busy
            }
        }
        Loader {
            id: handle
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            active: row.model.movable
            width: active ? Theme.touchTarget : 0
            readonly property var owner: row
            sourceComponent: ReorderHandle { row: handle.owner }
        }
    }
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
}
