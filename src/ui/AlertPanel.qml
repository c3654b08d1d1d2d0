import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// A message that must be answered: by one of its buttons, never by a tap beside it.
Popup {
    id: panel

    property var alert: ({ title: "", message: "", actions: [] })
    signal answered(int index)

    function show(message) {
        alert = message
        open()
    }

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(360, parent ? parent.width - 48 : 360)
    padding: 20
    modal: true
    focus: true
    closePolicy: Popup.NoAutoClose
    onOpened: if (buttons.count > 0) buttons.itemAt(buttons.count - 1).forceActiveFocus(Qt.TabFocusReason)

    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle {
        radius: 14
        color: Theme.secondaryGroupedBackground
        border.width: 1
        border.color: Theme.separator
    }
    contentItem: ColumnLayout {
        spacing: 8
        Accessible.role: Accessible.AlertMessage
        Accessible.name: panel.alert.title + ". " + panel.alert.message
        Keys.onEscapePressed: panel.answer(0)
        Text {
            Layout.fillWidth: true
            text: panel.alert.title
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.title
            font.weight: Font.Bold
            color: Theme.label
        }
        Text {
            Layout.fillWidth: true
            text: panel.alert.message
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.body
            color: Theme.secondaryLabel
        }
        RowLayout {
            Layout.topMargin: 8
            spacing: 8
            Repeater {
                id: buttons
                model: panel.alert.actions
                TextButton {
                    required property string modelData
                    required property int index
                    Layout.fillWidth: true
                    text: modelData
                    prominent: index === buttons.count - 1
                    onClicked: panel.answer(index)
                }
            }
        }
    }

    function answer(index) {
        close()
        answered(index)
    }
}
