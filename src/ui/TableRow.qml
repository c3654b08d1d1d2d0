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
    readonly property color tint: down || (hovered && model.selectable) ? Theme.pressed
                                : Theme.colours[model.backgroundColour] ?? Theme.secondaryGroupedBackground
    /// No title of a provider may push all the others out of sight; what is read on a page of its own may be long.
    readonly property int mostHeight: Theme.body * (model.kind === "text" ? 400 : model.kind === "show" ? 16 : 6)

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
            color: row.tint
        }
        Rectangle {
            visible: !row.last
            anchors.bottom: parent.bottom
            anchors.left: parent.left
            anchors.leftMargin: row.isHeader ? 0 : row.leftPadding
            anchors.right: parent.right
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
            anchors.left: parent.left
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
                id: words
                width: parent.width
                height: Math.min(implicitHeight, row.mostHeight)
                clip: height < implicitHeight
                text: row.model.richText
                textFormat: Text.RichText
                wrapMode: Text.Wrap
                horizontalAlignment: row.mirrored ? Text.AlignLeft : undefined // beside the picture
                font.pixelSize: row.isHeader ? Theme.channel : Theme.body
                font.weight: row.isHeader ? Font.Bold : Font.Normal
                color: row.isHeader ? Theme.indigo : Theme.label
                Accessible.ignored: true
                Loader { // there is more
                    active: words.clip
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 2 * Theme.body
                    sourceComponent: Rectangle {
                        gradient: Gradient {
                            GradientStop { position: 0; color: Qt.rgba(row.tint.r, row.tint.g, row.tint.b, 0) }
                            GradientStop { position: 1; color: row.tint }
                        }
                    }
                }
            }
            Loader {
                width: parent.width
                active: row.model.subtitle !== ""
                visible: active
                sourceComponent: Text {
                    text: row.model.subtitle
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignLeft
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
