import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import QtMultimedia

// A stream over the whole window. The controls leave when nobody has moved for a while.
FocusScope {
    id: screen

    required property var player
    signal closed()

    property bool controlsShown: true

    focus: true
    Component.onCompleted: {
        player.videoOutput = video
        forceActiveFocus()
    }
    Component.onDestruction: if (player) player.videoOutput = null
    Keys.onSpacePressed: player.toggle()
    Accessible.role: Accessible.Pane
    Accessible.name: qsTranslate("vidora", "Player")

    function wake() {
        controlsShown = true
        rest.restart()
    }

    Rectangle {
        anchors.fill: parent
        color: "#000000"
    }
    VideoOutput {
        id: video
        anchors.fill: parent
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onPositionChanged: screen.wake()
        onClicked: screen.wake()
    }
    Timer {
        id: rest
        interval: 3000
        running: true
        onTriggered: if (screen.player && screen.player.playing) screen.controlsShown = false
    }
    Column {
        anchors.centerIn: parent
        spacing: 12
        visible: screen.player && !screen.player.ready
        BusyIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            palette.dark: "#ffffff"
            running: parent.visible && !screen.player.failed
        }
        Text {
            text: screen.player && screen.player.failed ? qsTranslate("vidora", "The stream does not answer.")
                                                        : qsTranslate("vidora", "Connecting")
            textFormat: Text.PlainText
            color: "#ffffff"
            font.pixelSize: Theme.body
        }
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 72
        color: "#b3000000"
        visible: screen.controlsShown
        RowLayout {
            anchors.fill: parent
            anchors.margins: 12
            spacing: 8
            SymbolButton {
                symbol: screen.player && screen.player.playing ? "pause" : "play"
                color: "#ffffff"
                text: screen.player && screen.player.playing ? qsTranslate("vidora", "Pause") : qsTranslate("vidora", "Play")
                onClicked: screen.player.toggle()
            }
            Slider {
                Layout.preferredWidth: 140
                value: screen.player ? screen.player.volume : 1
                onMoved: screen.player.volume = value
                Accessible.name: qsTranslate("vidora", "Volume")
            }
            Item { Layout.fillWidth: true }
            SymbolButton {
                symbol: "close"
                color: "#ffffff"
                text: qsTranslate("vidora", "Close")
                onClicked: screen.closed()
            }
        }
    }
}
