import QtQuick
import QtQuick.Controls

// A button with a text; `prominent` is the one that is meant to be pressed.
AbstractButton {
    id: button

    property bool prominent: false
    property bool destructive: false
    /// Whether it stands on a background of the text's colour.
    property bool inverse: false
    property string symbol
    property string description

    readonly property color tint: prominent ? Theme.accentText : inverse ? Theme.inverseAccent : destructive ? Theme.destructive : Theme.accent

    readonly property int symbolWidth: symbol === "" ? 0 : 26

    implicitWidth: Math.max(Theme.touchTarget, words.implicitWidth + symbolWidth + 28)
    implicitHeight: Math.max(Theme.touchTarget, words.implicitHeight + 16)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: description || text
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()

    background: Rectangle {
        anchors.fill: parent
        anchors.topMargin: 4
        anchors.bottomMargin: 4
        radius: Theme.radius
        color: button.prominent ? (button.pressed ? Qt.darker(Theme.accent, 1.15) : Theme.accent)
             : button.pressed || button.hovered ? (button.inverse ? Qt.tint(Theme.label, "#30808080") : Theme.pressed)
             : button.symbol !== "" ? Theme.tertiaryFill : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: button.prominent ? Theme.label : button.inverse ? Theme.inverseAccent : Theme.focus
    }
    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: 8
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: button.symbol !== ""
                name: button.symbol
                size: 18
                color: button.tint
            }
            Text {
                id: words
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, button.width - button.symbolWidth - 16)
                text: button.text
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Theme.body
                font.weight: Font.DemiBold
                color: button.tint
                Accessible.ignored: true
            }
        }
    }
}
