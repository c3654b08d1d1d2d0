import QtQuick

// The icon of a channel, decoded at the size at which it is drawn; takes no room without one.
Item {
    id: icon

    property url source

    readonly property bool isThere: String(source) !== ""

    width: isThere ? 42 : 0
    height: isThere ? 30 : 0
    Accessible.ignored: true

    Image {
        anchors.fill: parent
        source: icon.isThere ? "image://icons/" + encodeURIComponent(icon.source) : ""
        asynchronous: true
        fillMode: Image.PreserveAspectFit
        sourceSize: Qt.size(2 * parent.width, 2 * parent.height)
    }
}
