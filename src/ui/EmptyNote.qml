import QtQuick

// What stands where there is nothing to list.
Column {
    property alias text: words.text
    property alias symbol: drawing.name

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
}
