import QtQuick
import QtQuick.Controls

// One row of a table: the card it lies on, what happens on a touch, and inside what its kind shows. Rows of one section form
// a card, so the first and the last have round corners.
ItemDelegate {
    id: delegate

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

    readonly property string plain: model.text
    readonly property color tint: down || (hovered && model.selectable) ? Theme.pressed : Theme.secondaryGroupedBackground

    implicitHeight: Math.max(Theme.touchTarget, content.implicitHeight + topPadding + bottomPadding)
    topPadding: 9
    bottomPadding: 9
    leftPadding: 14
    rightPadding: 14
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: content.item?.spoken ?? plain
    Accessible.description: model.subtitle
    Accessible.selectable: model.selectable
    Accessible.focusable: true
    Accessible.focused: highlightedByKeys
    Accessible.checkable: model.kind === "channel" && model.selectable && ["none", "checkmark"].includes(model.accessory)
    Accessible.checked: model.accessory === "checkmark"
    Accessible.onPressAction: chosen()
    onClicked: if (model.selectable) chosen()
    onPressAndHold: menuWanted(pressX, pressY)

    scale: reordering ? 1.02 : 1
    Behavior on scale { NumberAnimation { duration: Theme.duration(Theme.movement) } }

    background: Item {
        Rectangle { // a row that is moved lies over the others
            visible: delegate.reordering
            anchors.fill: parent
            anchors.margins: -3
            radius: Theme.cardRadius + 3
            color: "#30000000"
        }
        Rectangle {
            anchors.fill: parent
            radius: delegate.first || delegate.last ? Theme.cardRadius : 0
            color: body.color
        }
        Rectangle {
            id: body
            anchors.fill: parent
            anchors.topMargin: delegate.first ? Theme.cardRadius : 0
            anchors.bottomMargin: delegate.last ? Theme.cardRadius : 0
            color: delegate.tint
        }
        Rectangle {
            visible: !delegate.last
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.separator
        }
        Loader {
            anchors.fill: parent
            anchors.margins: 1
            active: delegate.highlightedByKeys
            sourceComponent: Rectangle {
                color: "transparent"
                radius: Theme.radius
                border.width: 2
                border.color: Theme.focus
            }
        }
    }

    readonly property var kinds: ({header: channelHeader, show: show, channel: channel, text: words})
    contentItem: Loader {
        id: content
        sourceComponent: delegate.kinds[delegate.model.kind] ?? words
    }
    Component { id: show; ShowContent { row: delegate } }
    Component { id: channelHeader; ChannelHeaderContent { row: delegate } }
    Component { id: channel; ChannelContent { row: delegate } }
    Component { id: words; TextContent { row: delegate } }
}
