import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import QtMultimedia

// A stream over the whole window. The controls leave when it plays and nobody has moved for a while.
FocusScope {
    id: screen

    required property var player
    required property string title
    signal closed()

    readonly property bool playing: player !== null && player.playing
    readonly property bool ready: player !== null && player.ready
    /// Drawing without a graphics card knows no video.
    readonly property bool canDraw: GraphicsInfo.api !== GraphicsInfo.Software && GraphicsInfo.api !== GraphicsInfo.Unknown
    property bool awake: true
    readonly property bool controlsShown: awake || !playing || !ready

    focus: true
    Component.onCompleted: {
        player.videoOutput = video
        forceActiveFocus()
    }
    Component.onDestruction: if (player) player.videoOutput = null
    Keys.onPressed: event => {
        wake()
        if (event.key === Qt.Key_Space || event.key === Qt.Key_MediaTogglePlayPause) {
            player.toggle()
            event.accepted = true
        }
    }
    Accessible.role: Accessible.Pane
    Accessible.name: title

    function wake() {
        awake = true
        rest.restart()
    }
    function clock(milliseconds) {
        const seconds = Math.floor(milliseconds / 1000)
        return Math.floor(seconds / 60) + ":" + String(seconds % 60).padStart(2, "0")
    }

    Timer {
        id: rest
        interval: 3000
        running: true
        onTriggered: screen.awake = false
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
        cursorShape: screen.controlsShown ? Qt.ArrowCursor : Qt.BlankCursor
        onPositionChanged: screen.wake()
        onClicked: screen.wake()
    }
    Text {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.readableWidth)
        visible: screen.ready && !screen.canDraw
        text: qsTranslate("vidora", "The pictures of this stream can't be drawn on this computer.")
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        color: "#ffffff"
        font.pixelSize: Theme.body
    }
    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.readableWidth)
        spacing: Theme.spacing
        visible: !screen.ready
        BusyIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            palette.dark: "#ffffff"
            running: parent.visible && screen.player !== null && !screen.player.failed
            visible: running
        }
        Text {
            width: parent.width
            text: screen.player && screen.player.failed ? qsTranslate("vidora", "The stream does not answer.")
                                                        : qsTranslate("vidora", "Connecting")
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: "#ffffff"
            font.pixelSize: Theme.body
        }
    }
    component Bar: Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        height: 60
        color: "#b3000000"
        visible: screen.controlsShown
    }
    Bar {
        anchors.top: parent.top
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: Theme.spacing
            spacing: Theme.spacing
            Text {
                Layout.fillWidth: true
                text: screen.title
                textFormat: Text.PlainText
                elide: Text.ElideRight
                color: "#ffffff"
                font.pixelSize: Theme.title
                font.bold: true
            }
            SymbolButton {
                symbol: "close"
                color: "#ffffff"
                text: qsTranslate("vidora", "Close")
                onClicked: screen.closed()
            }
        }
    }
    Bar {
        anchors.bottom: parent.bottom
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: Theme.margin
            spacing: Theme.spacing
            SymbolButton {
                symbol: screen.playing ? "pause" : "play"
                color: "#ffffff"
                text: screen.playing ? qsTranslate("vidora", "Pause") : qsTranslate("vidora", "Play")
                enabled: screen.ready
                onClicked: screen.player.toggle()
            }
            Text {
                text: screen.player ? screen.clock(screen.player.position) : ""
                visible: screen.ready
                textFormat: Text.PlainText
                color: "#ffffff"
                font.pixelSize: Theme.small
            }
            Item { Layout.fillWidth: true }
            Slider {
                Layout.preferredWidth: 140
                visible: screen.player !== null && screen.player.audible
                value: screen.player ? screen.player.volume : 1
                onMoved: screen.player.volume = value
                Accessible.name: qsTranslate("vidora", "Volume")
            }
        }
    }
}
