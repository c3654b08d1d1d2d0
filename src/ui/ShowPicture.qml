import QtQuick

// The picture of a show, 16:9 with round corners; a quiet field until it comes.
Rectangle {
    id: picture

    property string source

    radius: Theme.pictureRadius
    color: Theme.tertiaryFill
    Accessible.ignored: true

    Image {
        anchors.fill: parent
        source: picture.source
        asynchronous: true
        sourceSize: Qt.size(Theme.pictureWidth * Screen.devicePixelRatio, Theme.pictureHeight * Screen.devicePixelRatio)
        opacity: status === Image.Ready ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.duration(160) } }
    }
}
