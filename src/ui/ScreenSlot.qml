import QtQuick

// The place of one screen of the tabs' stacks. A screen keeps its place and scrolling while it is out of sight; it is
// built when it is first seen.
FocusScope {
    id: slot

    required property var screen
    readonly property var table: content.item
    signal back()

    property bool wasSeen: screen.visible

    visible: screen.visible
    focus: screen.visible
    onVisibleChanged: {
        if (!visible)
            return
        wasSeen = true
        arrival.restart()
        content.forceActiveFocus()
    }

    NumberAnimation {
        id: arrival
        target: content
        property: "opacity"
        from: 0.35
        to: 1
        duration: 140
        easing.type: Easing.OutCubic
    }
    Loader {
        id: content
        anchors.fill: parent
        active: slot.wasSeen
        focus: true
        sourceComponent: TableScreen {
            screen: slot.screen
            focus: true
            onBack: slot.back()
        }
    }
}
