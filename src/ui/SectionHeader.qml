import QtQuick

// The title above a card of rows.
Item {
    id: header

    property string title
    property int side: 0

    implicitHeight: words.implicitHeight + 14
    Accessible.role: Accessible.Heading
    Accessible.name: title

    Text {
        id: words
        x: header.side + 14
        y: 4
        width: parent.width - 2 * x
        text: header.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: Theme.body
        font.weight: Font.Bold
        color: Theme.sectionHeader
    }
}
