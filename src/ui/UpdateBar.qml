import QtQuick

// How far the pass has come: a thin line, and in words how many channels.
Item {
    id: bar

    required property var progress

    implicitHeight: progress.running ? words.implicitHeight + 9 : 0
    clip: true
    Behavior on implicitHeight { NumberAnimation { duration: 180; easing.type: Easing.OutCubic } }
    Accessible.role: Accessible.ProgressBar
    Accessible.name: words.text
    Accessible.ignored: !progress.running

    Rectangle {
        anchors.fill: parent
        color: Theme.barBackground
    }
    Text {
        id: words
        anchors.horizontalCenter: parent.horizontalCenter
        y: 3
        text: qsTranslate("vidora", "%1 of %2 channels").arg(bar.progress.done).arg(bar.progress.wanted)
        textFormat: Text.PlainText
        font.pixelSize: Theme.tiny
        color: Theme.secondaryLabel
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 3
        color: Theme.tertiaryFill
        Rectangle {
            height: parent.height
            radius: 1.5
            width: parent.width * Math.max(0.02, bar.progress.wanted > 0 ? bar.progress.done / bar.progress.wanted : 0)
            color: Theme.accent
            Behavior on width { NumberAnimation { duration: 250; easing.type: Easing.OutCubic } }
        }
    }
}
