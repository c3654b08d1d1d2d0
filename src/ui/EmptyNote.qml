import QtQuick

// What stands where there is nothing to list, and the button that mends it.
Column {
    id: note

    property alias text: words.text
    property alias symbol: drawing.name
    property alias action: button.text
    signal acted()

    spacing: 14
    Symbol {
        id: drawing
        anchors.horizontalCenter: parent.horizontalCenter
        name: "currently"
        size: 56
        color: Theme.lightGrey
    }
    Text {
        id: words
        width: parent.width
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Theme.body
        color: Theme.secondaryLabel
    }
    TextButton {
        id: button
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, parent.width)
        visible: text !== ""
        prominent: true
        onClicked: note.acted()
    }
}
