import QtQuick
import QtQuick.Controls

// A button that is only a drawing. `text` is what it is called, shown as a hint and read out.
AbstractButton {
    id: button

    property string symbol
    property color color: Theme.accent
    property int symbolSize: 24
    /// Whether the drawing points in the direction of reading.
    property bool mirrors: false
    property bool round: false

    implicitWidth: Theme.touchTarget
    implicitHeight: Theme.touchTarget
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()

    ToolTip.visible: hovered && text !== ""
    ToolTip.delay: 700
    ToolTip.text: text

    background: Rectangle {
        anchors.fill: parent
        anchors.margins: button.round ? 4 : 0
        radius: button.round ? width / 2 : Theme.radius
        color: button.round ? (button.pressed || button.hovered ? Qt.darker(Theme.accentSoft, 1.06) : Theme.accentSoft)
             : button.pressed || button.hovered ? Theme.pressed : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Theme.focus
    }
    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: button.symbol
            size: button.symbolSize
            color: button.color
            mirror: button.mirrors && LayoutMirroring.enabled
        }
    }
}
