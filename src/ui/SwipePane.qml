import QtQuick

// Holds a row that can be drawn aside, towards its beginning, by mouse or finger; below it lies a tray of actions. A short
// drag springs back, one past half of the tray leaves it open until an action or a touch on the row.
Item {
    id: pane

    default property alias content: slider.data
    property bool swipeable: false
    property alias actions: tray.actions
    readonly property bool isOpen: pane.rest > 0
    readonly property bool isMoved: slider.x !== 0
    property real radius: 0

    /// A drag begins: whoever has the actions gives them now.
    signal uncovering()
    signal performed(int index)
    signal menuWanted(real x, real y)

    function close() { rest = 0 }

    property real rest: 0
    property real drawnAtRelease: 0
    readonly property int side: LayoutMirroring.enabled ? 1 : -1
    readonly property real drawn: handler.active ? rest + side * handler.activeTranslation.x : rest

    implicitHeight: slider.childrenRect.height
    clip: isMoved

    Rectangle {
        anchors.fill: parent
        visible: pane.isMoved
        radius: pane.radius
        color: Theme.pressed
    }
    SwipeTray {
        id: tray
        anchors.right: parent.right
        height: parent.height
        visible: pane.isMoved
        onChosen: index => {
            pane.close()
            pane.performed(index)
        }
    }
    Item {
        id: slider
        width: parent.width
        height: parent.height
        x: pane.side * Math.max(0, Math.min(tray.width, pane.drawn))
        Behavior on x {
            enabled: !handler.active
            NumberAnimation { duration: 160; easing.type: Easing.OutCubic }
        }
        TapHandler { // on the row itself a right button would also be a click
            acceptedButtons: Qt.RightButton
            onTapped: point => pane.menuWanted(point.position.x, point.position.y)
        }
        DragHandler {
            id: handler
            target: null
            enabled: pane.swipeable
            yAxis.enabled: false
            onActiveChanged: {
                if (active) {
                    pane.uncovering()
                    tray.forceLayout()
                } else {
                    pane.rest = pane.drawnAtRelease > tray.width / 2 ? tray.width : 0
                }
            }
            onActiveTranslationChanged: if (active) pane.drawnAtRelease = pane.drawn
        }
    }
}
