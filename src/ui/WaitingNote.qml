import QtQuick
import QtQuick.Controls

// What a start shows that waits for its turn; the window opens in its place.
ApplicationWindow {
    id: window

    required property string text
    property bool dark: false

    title: "Vidora"
    width: 360
    height: 220
    visible: true
    color: Theme.groupedBackground

    Column {
        anchors.centerIn: parent
        width: parent.width - 48
        spacing: 18
        ActivityIndicator { anchors.horizontalCenter: parent.horizontalCenter }
        Text {
            width: parent.width
            text: window.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.body
            color: Theme.label
        }
    }
    Binding {
        target: Theme
        property: "dark"
        value: window.dark
    }
}
