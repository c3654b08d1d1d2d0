import QtQuick

// How far the pass has come, by a thin line and in words; without a connection it says so until a list comes.
Item {
    id: bar

    required property var progress
    readonly property bool running: progress.running
    readonly property bool shown: running || progress.offline

    implicitHeight: shown ? words.implicitHeight + (running ? 9 : 12) : 0
    clip: true
    Behavior on implicitHeight { NumberAnimation { duration: Theme.duration(180); easing.type: Easing.OutCubic } }
    Accessible.role: running ? Accessible.ProgressBar : Accessible.AlertMessage
    Accessible.name: words.text
    Accessible.ignored: !shown

    Rectangle {
        anchors.fill: parent
        color: bar.running ? Theme.barBackground : Theme.tertiaryFill
    }
    Text {
        id: words
        anchors.horizontalCenter: parent.horizontalCenter
        y: bar.running ? 3 : 6
        width: Math.min(implicitWidth, parent.width - 2 * Theme.margin)
        text: bar.running ? qsTranslate("vidora", "%1 of %2 channels").arg(bar.progress.done).arg(bar.progress.wanted)
                          : [qsTranslate("vidora", "No connection."), bar.progress.state].filter(part => part).join(" ")
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.pixelSize: Theme.tiny
        color: bar.running ? Theme.secondaryLabel : Theme.label
        Accessible.ignored: true
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 3
        visible: bar.running
        color: Theme.tertiaryFill
        Rectangle {
            anchors.left: parent.left
            height: parent.height
            radius: 1.5
            width: parent.width * Math.max(0.02, bar.progress.wanted > 0 ? bar.progress.done / bar.progress.wanted : 0)
            color: Theme.accent
            Behavior on width { NumberAnimation { duration: Theme.duration(250); easing.type: Easing.OutCubic } }
        }
    }
}
