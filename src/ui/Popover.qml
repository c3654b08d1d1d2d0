import QtQuick
import QtQuick.Controls

// A screen in a panel over the others, as a pad shows what is chosen from and left again.
Popup {
    id: popover

    required property var screen
    signal left()

    parent: Overlay.overlay
    x: mirrored ? 16 : parent.width - width - 16
    y: Theme.barHeight - 4
    width: 360
    height: Math.min(parent.height - y - 24, table.item ? table.item.wholeHeight + bottomPadding : 480)
    padding: 0
    bottomPadding: 8
    modal: true
    focus: true
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    onClosed: left()
    onOpened: table.forceActiveFocus(Qt.TabFocusReason)

    Overlay.modal: Rectangle { color: Theme.scrim; opacity: 0.6 }
    background: Item {
        Rectangle { // leads to the button that opened it
            x: popover.mirrored ? 34 : parent.width - 54
            y: -7
            width: 20
            height: 20
            rotation: 45
            color: Theme.groupedBackground
        }
        Rectangle {
            anchors.fill: parent
            radius: 14
            color: Theme.groupedBackground
        }
    }
    contentItem: Loader {
        id: table
        focus: true
        sourceComponent: TableScreen {
            screen: popover.screen
            focus: true
            closable: true
            onBack: popover.close()
        }
    }
}
