import QtQuick
import QtQuick.Controls

// What can be done with a row, for a right click, a long press or the menu key.
Menu {
    id: menu

    /// Maps of "title", "description" and "destructive".
    property var actions: []
    signal chosen(int index)

    width: Math.max(200, Math.min(340, metrics.width + 60))
    padding: 6
    margins: 8
    modal: true
    dim: false

    TextMetrics {
        id: metrics
        font.pixelSize: Theme.body
        text: menu.actions.map(action => menu.textOf(action)).sort((a, b) => a.length - b.length).pop() ?? ""
    }
    function textOf(action) { return [action.title, action.description].filter(part => part).join("  ") }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.secondaryGroupedBackground
        border.width: 1
        border.color: Theme.separator
    }
    Instantiator {
        model: menu.actions
        onObjectAdded: (index, object) => menu.insertItem(index, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
        MenuItem {
            id: item
            required property var modelData
            required property int index
            implicitHeight: Math.max(Theme.touchTarget, label.implicitHeight + 16)
            text: menu.textOf(modelData)
            Accessible.role: Accessible.MenuItem
            Accessible.name: modelData.description || modelData.title
            onTriggered: menu.chosen(index)
            background: Rectangle {
                radius: Theme.radius - 4
                color: item.highlighted || item.down ? Theme.tertiaryFill : "transparent"
            }
            contentItem: Text {
                id: label
                leftPadding: 6
                text: item.text
                textFormat: Text.PlainText
                elide: Text.ElideRight
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: Theme.body
                color: item.modelData.destructive ? Theme.destructive : Theme.label
            }
        }
    }
}
