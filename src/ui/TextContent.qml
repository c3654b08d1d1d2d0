import QtQuick

// A text that may be long and of several types. No text of a provider may go on without end.
Item {
    id: content

    required property var row

    implicitHeight: words.height

    Text {
        id: words
        width: parent.width - end.width
        height: Math.min(implicitHeight, Theme.body * 400)
        clip: height < implicitHeight
        text: content.row.model.richText
        textFormat: Text.RichText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: Theme.body
        color: Theme.label
        Accessible.ignored: true
        Loader { // there is more
            active: words.clip
            anchors.bottom: parent.bottom
            width: parent.width
            height: 2 * Theme.body
            sourceComponent: Rectangle {
                gradient: Gradient {
                    GradientStop { position: 0; color: Qt.rgba(content.row.tint.r, content.row.tint.g, content.row.tint.b, 0) }
                    GradientStop { position: 1; color: content.row.tint }
                }
            }
        }
    }
    RowEnd {
        id: end
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        row: content.row
    }
}
