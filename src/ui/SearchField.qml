import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// The field above a table that can be searched.
Rectangle {
    id: search

    property alias text: field.text
    property alias placeholder: field.placeholderText
    signal finished()

    function focusField() {
        field.forceActiveFocus(Qt.ShortcutFocusReason)
        field.selectAll()
    }

    implicitHeight: Math.max(Theme.touchTarget, Theme.body + 24)
    radius: Theme.radius
    color: Theme.tertiaryFill
    border.width: field.activeFocus ? 2 : 0
    border.color: Theme.focus

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        spacing: 4
        Symbol {
            name: "search"
            size: 18
            color: Theme.secondaryLabel
        }
        TextField {
            id: field
            Layout.fillWidth: true
            Layout.fillHeight: true
            placeholderText: qsTranslate("vidora", "Search")
            placeholderTextColor: Theme.secondaryLabel
            color: Theme.label
            selectionColor: Theme.accent
            selectedTextColor: Theme.accentText
            font.pixelSize: Theme.body
            maximumLength: 200
            background: null
            Accessible.role: Accessible.EditableText
            Accessible.name: placeholderText
            Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape // else it leads back
            Keys.onEscapePressed: event => {
                if (text === "")
                    search.finished()
                text = ""
            }
            Keys.onDownPressed: search.finished()
            Keys.onReturnPressed: search.finished()
        }
        SymbolButton {
            visible: field.text !== ""
            symbol: "close"
            symbolSize: 16
            color: Theme.secondaryLabel
            text: qsTranslate("vidora", "Cancel")
            onClicked: field.text = ""
        }
    }
}
