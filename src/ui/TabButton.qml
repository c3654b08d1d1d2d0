import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// One tab: drawing, title, and a badge.
AbstractButton {
    id: button

    required property string symbol
    required property string badge
    required enabled
    property bool current: false
    property bool rail: false

    readonly property color tint: current ? Theme.accent : Theme.secondaryLabel

    implicitHeight: rail ? Math.max(72, Theme.tiny * 2 + 48) : Math.max(56, Theme.tiny + 45)
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.42
    Accessible.role: Accessible.PageTab
    Accessible.name: badge === "" ? text : text + ", " + badge
    Accessible.selectable: true
    Accessible.selected: current
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()

    background: Rectangle {
        radius: Theme.radius
        anchors.fill: parent
        anchors.margins: 3
        color: button.current && button.rail ? Theme.tertiaryFill
             : button.pressed || button.hovered ? Theme.pressed : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Theme.focus
    }
    contentItem: ColumnLayout {
        spacing: 2
        Item { Layout.fillHeight: true }
        Item {
            Layout.alignment: Qt.AlignHCenter
            implicitWidth: 26
            implicitHeight: 26
            Symbol {
                anchors.centerIn: parent
                name: button.symbol
                size: 26
                color: button.tint
            }
            Rectangle {
                visible: button.badge !== ""
                x: 16
                y: -4
                width: Math.max(height, badgeText.implicitWidth + 10)
                height: Math.max(18, badgeText.implicitHeight + 2)
                radius: height / 2
                color: Theme.destructive
                Text {
                    id: badgeText
                    anchors.centerIn: parent
                    text: button.badge
                    textFormat: Text.PlainText
                    color: Theme.destructiveText
                    font.pixelSize: Theme.tiny
                    font.bold: true
                }
            }
        }
        Text {
            Layout.fillWidth: true
            Layout.leftMargin: 2
            Layout.rightMargin: 2
            horizontalAlignment: Text.AlignHCenter
            text: button.text
            textFormat: Text.PlainText
            wrapMode: button.rail ? Text.WordWrap : Text.NoWrap
            maximumLineCount: 2
            lineHeight: 0.9
            elide: Text.ElideRight
            font.pixelSize: Theme.tiny
            font.weight: button.current ? Font.DemiBold : Font.Normal
            color: button.tint
        }
        Item { Layout.fillHeight: true }
    }
}
