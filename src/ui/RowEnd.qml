import QtQuick

// What stands at the end of a row: a mark, or a button of its own. The table is one stop of Tab, so that its buttons are
// none; keys reach them by the row's menu.
Loader {
    id: end

    required property var row
    readonly property string accessory: row.model.accessory

    width: active ? implicitWidth : 0
    active: accessory !== "none"
    sourceComponent: ({play: play, retry: retry, activity: busy})[accessory] ?? mark

    Component {
        id: mark
        Symbol {
            name: ["checkmark", "disclosure"].includes(end.accessory) ? end.accessory : ""
            size: name === "checkmark" ? 22 : 16
            color: name === "checkmark" ? Theme.accent : Theme.lightGrey
            mirror: name === "disclosure" && LayoutMirroring.enabled
        }
    }
    Component {
        id: play
        SymbolButton {
            symbol: "play"
            symbolSize: 18
            round: true
            text: qsTranslate("vidora", "Play %1").arg(end.row.plain)
            focusPolicy: Qt.NoFocus
            onClicked: end.row.accessoryPressed()
        }
    }
    Component {
        id: retry
        TextButton {
            text: qsTranslate("vidora", "Try again")
            focusPolicy: Qt.NoFocus
            onClicked: end.row.accessoryPressed()
        }
    }
    Component {
        id: busy
        ActivityIndicator { }
    }
}
