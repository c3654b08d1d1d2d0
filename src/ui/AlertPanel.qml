import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// A message that must be answered: by one of its buttons, never by a tap beside it. Escape means the one that leaves
// everything as it is, or the only one.
Popup {
    id: panel

    /// "title", "message" and "actions": maps of "title", "cancels" and "destructive".
    property var alert: ({ title: "", message: "", actions: [] })
    readonly property int cancelling: alert.actions.length === 1 ? 0 : alert.actions.findIndex(action => action.cancels)
    readonly property int usual: cancelling >= 0 ? cancelling : alert.actions.length - 1
    signal answered(int index)

    function show(message) {
        alert = message
        open()
        Qt.callLater(focusUsual) // also where it was open already: then nothing else tells of the new buttons
    }
    function focusUsual() {
        const button = buttons.itemAt(usual)
        if (!button)
            return
        button.forceActiveFocus(Qt.TabFocusReason)
        button.focusReason = Qt.TabFocusReason // it may have had the focus of the panel already, which shows no ring
    }
    function answer(index) {
        if (index < 0 || !opened)
            return
        close()
        answered(index)
    }

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(360, parent ? parent.width - 48 : 360)
    padding: 20
    modal: true
    focus: true
    closePolicy: Popup.NoAutoClose
    onOpened: focusUsual()

    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle {
        radius: 14
        color: Theme.secondaryGroupedBackground
        border.width: 1
        border.color: Theme.separator
    }
    contentItem: ColumnLayout {
        spacing: 12
        Accessible.role: Accessible.AlertMessage
        Accessible.name: panel.alert.title + ". " + panel.alert.message
        Keys.onEscapePressed: panel.answer(panel.cancelling)
        Flickable {
            Layout.fillWidth: true
            implicitHeight: Math.min(texts.height, panel.parent ? panel.parent.height / 2 : 400)
            contentHeight: texts.height
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            Column {
                id: texts
                width: parent.width
                spacing: 8
                Text {
                    width: parent.width
                    text: panel.alert.title
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    font.pixelSize: Theme.title
                    font.weight: Font.Bold
                    color: Theme.label
                }
                Text {
                    width: parent.width
                    text: panel.alert.message
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    font.pixelSize: Theme.body
                    color: Theme.secondaryLabel
                }
            }
        }
        GridLayout {
            id: line
            Layout.fillWidth: true
            columns: fits ? Math.max(1, buttons.count) : 1
            columnSpacing: 8
            rowSpacing: 4
            readonly property bool fits: {
                let wanted = 0
                for (let i = 0; i < buttons.count; ++i)
                    wanted += (buttons.itemAt(i)?.implicitWidth ?? 0) + columnSpacing
                return wanted <= panel.width - 2 * panel.padding + columnSpacing
            }
            Repeater {
                id: buttons
                model: panel.alert.actions
                TextButton {
                    required property var modelData
                    required property int index
                    Layout.fillWidth: true
                    Layout.minimumWidth: 0
                    text: modelData.title
                    destructive: modelData.destructive ?? false
                    prominent: !destructive && (!modelData.cancels || buttons.count === 1)
                    onClicked: panel.answer(index)
                }
            }
        }
    }
}
