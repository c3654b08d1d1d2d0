import QtQuick

// Turns while something is under way.
Item {
    id: indicator

    property bool running: true

    implicitWidth: 22
    implicitHeight: 22
    visible: running
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTranslate("vidora", "Loading")

    Repeater {
        model: 8
        Rectangle {
            required property int index
            x: indicator.width / 2 - width / 2
            y: 1
            width: 2.4
            height: indicator.height * 0.27
            radius: 1.2
            color: Theme.secondaryLabel
            opacity: 0.2 + 0.1 * ((index - turn.step + 8) % 8)
            transform: Rotation {
                origin.x: 1.2
                origin.y: indicator.height / 2 - 1
                angle: index * 45
            }
        }
    }
    Timer {
        id: turn
        property int step: 0
        interval: 110
        repeat: true
        running: indicator.running && indicator.visible && Qt.application.state === Qt.ApplicationActive
        onTriggered: step = (step + 7) % 8
    }
}
