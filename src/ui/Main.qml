import QtQuick
import QtQuick.Controls

// The window: the tabs beside or below the screens, and over them what needs the whole of it.
ApplicationWindow {
    id: window

    required property var app
    readonly property bool pad: width >= 700

    title: app.visibleScreen ? qsTranslate("vidora", "%1 - Vidora").arg(app.visibleScreen.title) : "Vidora"
    width: app.windowSize.width
    height: app.windowSize.height
    minimumWidth: 320
    minimumHeight: 400
    visible: true
    color: Theme.groupedBackground
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    palette {
        window: Theme.groupedBackground
        windowText: Theme.label
        base: Theme.secondaryGroupedBackground
        text: Theme.label
        mid: Theme.lightGrey
        dark: Theme.secondaryLabel
        highlight: Theme.accent
        highlightedText: Theme.accentText
        toolTipBase: Theme.label
        toolTipText: Theme.secondaryGroupedBackground
    }

    // Not within the change of a size: tabs and screens may go.
    function followWidth() { app.setPad(pad) }
    onPadChanged: Qt.callLater(followWidth)
    onClosing: app.keepWindowSize(width, height)
    Component.onCompleted: {
        Theme.scale = app.fontScale
        Theme.timeSample = app.timeSample
        app.setPad(pad)
        app.setColours(Theme.colours)
    }
    Binding {
        target: Theme
        property: "dark"
        value: window.app.dark
    }
    Binding {
        target: Theme
        property: "updateState"
        value: window.app.progress.state
    }
    Connections {
        target: Theme
        function onColoursChanged() { window.app.setColours(Theme.colours) }
    }
    Connections {
        target: window.app
        function onAlertPresented(alert) { alertPanel.show(alert) }
        function onPlayerChanged() {
            if (!window.app.player)
                window.visibleTable()?.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    Item {
        id: frame
        anchors.fill: parent
        readonly property real beside: window.pad ? tabs.implicitWidth : 0
        readonly property real below: window.pad ? 0 : tabs.implicitHeight

        Item {
            x: LayoutMirroring.enabled ? 0 : frame.beside
            width: parent.width - frame.beside
            height: parent.height - frame.below - update.height
            Repeater {
                id: screens
                model: window.app.screens
                ScreenSlot {
                    anchors.fill: parent
                    onBack: window.app.back()
                }
            }
            ActivityIndicator {
                objectName: "networkIndicator"
                anchors { right: parent.right; bottom: parent.bottom; margins: Theme.spacing / 2 }
                z: 1
                implicitWidth: Theme.small
                implicitHeight: Theme.small
                running: window.app.networkActive
                Accessible.ignored: true
            }
        }
        UpdateBar {
            id: update
            x: LayoutMirroring.enabled ? 0 : frame.beside
            y: parent.height - frame.below - height
            width: parent.width - frame.beside
            height: implicitHeight
            progress: window.app.progress
        }
        TabStrip {
            id: tabs
            app: window.app
            rail: window.pad
            x: window.pad && LayoutMirroring.enabled ? parent.width - width : 0
            y: parent.height - height
            width: window.pad ? implicitWidth : parent.width
            height: window.pad ? parent.height : implicitHeight
        }
    }

    Loader {
        anchors.fill: parent
        active: window.app.player !== null
        sourceComponent: PlayerScreen {
            player: window.app.player
            title: window.app.playerTitle
            onClosed: window.app.closePlayer()
        }
    }
    Loader {
        active: window.app.popover !== null
        sourceComponent: Popover {
            screen: window.app.popover
            visible: true
            onLeft: if (window.app.popover === screen) window.app.back()
        }
    }
    AlertPanel {
        id: alertPanel
        onAnswered: index => window.app.answerAlert(index)
    }

    // Keys of the whole window.
    function visibleTable() {
        for (let i = 0; i < screens.count; ++i) {
            const slot = screens.itemAt(i)
            if (slot && slot.screen.visible)
                return slot.table
        }
        return null
    }
    function goBack() {
        if (app.player)
            app.closePlayer()
        else
            app.back()
    }
    Shortcut { sequences: [StandardKey.Find]; onActivated: window.visibleTable()?.find() }
    Shortcut { sequences: ["F5", "Ctrl+R"]; onActivated: window.visibleTable()?.refresh() }
    Shortcut { sequences: ["Esc", StandardKey.Back, "Back"]; onActivated: window.goBack() }
    Shortcut { sequences: [StandardKey.Quit]; onActivated: window.close() }
    Repeater {
        model: 6
        Item {
            required property int index
            Shortcut {
                sequence: "Ctrl+" + (index + 1)
                onActivated: window.app.selectTab(index)
            }
        }
    }
}
