import QtQuick

// How far a broadcast is, and how much of it is left.
Item {
    id: line

    property real progress: 0
    property string timeLeft

    implicitHeight: words.implicitHeight + 4

    Rectangle {
        anchors.left: parent.left
        anchors.right: words.left
        anchors.rightMargin: 8
        anchors.verticalCenter: words.verticalCenter
        height: 4
        radius: 2
        color: Theme.tertiaryFill
        Rectangle {
            anchors.left: parent.left
            width: parent.width * Math.max(0, Math.min(1, line.progress))
            height: parent.height
            radius: 2
            color: Theme.accent
        }
    }
    Text {
        id: words
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        text: line.timeLeft
        textFormat: Text.PlainText
        font.pixelSize: Theme.tiny
        color: Theme.lightGrey
        Accessible.ignored: true
    }
}
