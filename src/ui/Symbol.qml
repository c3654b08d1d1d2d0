import QtQuick

// A monochrome drawing in a colour of the theme.
Image {
    property string name
    property color color: Theme.label
    property int size: 24

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    source: name === "" ? "" : Theme.symbol(name, color)
    Accessible.ignored: true
}
