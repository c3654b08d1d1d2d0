import QtQuick
import QtQuick.Controls

// A button with a text; `prominent` is the one that is meant to be pressed.
AbstractButton {
    id: button

    property bool prominent: false

    implicitWidth: Math.max(Theme.touchTarget, label.implicitWidth + 28)
    implicitHeight: Theme.touchTarget
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    background: Rectangle {
        anchors.fill: parent
        anchors.topMargin: 2
        anchors.bottomMargin: 2
        radius: Theme.radius
        color: button.prominent ? (button.pressed ? Qt.darker(Theme.accent, 1.15) : Theme.accent)
             : button.pressed || button.hovered ? Theme.pressed : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: button.prominent ? Theme.label : Theme.focus
    }
    contentItem: Text {
        id: label
        text: button.text
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        font.pixelSize: Theme.body
        font.weight: Font.DemiBold
        color: button.prominent ? Theme.accentText : Theme.accent
    }
}
