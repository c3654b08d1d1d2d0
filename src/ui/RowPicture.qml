import QtQuick

// The icon of a channel, or the picture of a show; over that of a show on air lies a bar that tells how far it is.
Item {
    id: picture

    property string source
    property bool icon: false
    property real progress: -1

    readonly property int side: 88

    implicitWidth: icon ? 50 : side
    implicitHeight: icon ? 36 : image.status === Image.Ready ? Math.min(side, image.implicitHeight) : side * 0.66
    Accessible.ignored: true

    Image {
        id: image
        anchors.fill: parent
        source: picture.source
        asynchronous: true
        fillMode: Image.PreserveAspectFit
        sourceSize: picture.icon ? Qt.size(100, 72) : undefined
    }
    Loader {
        active: !picture.icon && image.status === Image.Ready
        anchors.centerIn: parent
        width: image.paintedWidth
        height: image.paintedHeight
        sourceComponent: Item {
            Rectangle {
                anchors.fill: parent
                color: "transparent"
                border.width: 1
                border.color: Theme.separator
            }
            Rectangle {
                visible: picture.progress >= 0
                anchors.horizontalCenter: parent.horizontalCenter
                y: picture.height - (picture.height - parent.height) / 2 - 15
                width: parent.width * 0.85
                height: 9
                radius: 4.5
                color: "#f2ffffff"
                Rectangle {
                    width: Math.max(height, parent.width * Math.min(1, picture.progress))
                    height: parent.height
                    radius: parent.radius
                    color: "#4340b8"
                }
            }
        }
    }
}
