import QtQuick
import QtQuick.Controls

// What a swipe on a row uncovers: buttons beside each other at the row's end, as wide as they need.
Row {
    id: tray

    /// Maps of "title", "description", "destructive" and "colour", the name of a role or empty.
    property var actions: []
    signal chosen(int index)

    layoutDirection: LayoutMirroring.enabled ? Qt.RightToLeft : Qt.LeftToRight

    Repeater {
        model: tray.actions
        AbstractButton {
            id: button
            required property var modelData
            required property int index
            readonly property color tint: Theme.colours[modelData.colour]
                                          ?? (modelData.destructive ? Theme.destructive : Theme.accent)

            height: tray.height
            implicitWidth: Math.max(72, label.implicitWidth + 28)
            focusPolicy: Qt.NoFocus
            text: modelData.title
            Accessible.role: Accessible.Button
            Accessible.name: modelData.description || text
            onClicked: tray.chosen(index)

            background: Rectangle { color: button.pressed ? Qt.darker(button.tint, 1.2) : button.tint }
            contentItem: Text {
                id: label
                text: button.text
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: Theme.body
                font.weight: Font.DemiBold
                color: Theme.textOn(button.tint)
            }
        }
    }
}
