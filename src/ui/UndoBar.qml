import QtQuick
import QtQuick.Controls

// Says what was done, with a button that undoes it, as long as there is a text.
Rectangle {
    id: bar

    property string text
    signal undone()

    property string lastText // stays while the bar goes
    onTextChanged: if (text !== "") lastText = text

    implicitHeight: Math.max(Theme.touchTarget, words.implicitHeight + 20)
    radius: Theme.radius
    color: Theme.label
    opacity: text === "" ? 0 : 1
    visible: opacity > 0
    enabled: text !== ""
    Behavior on opacity { NumberAnimation { duration: Theme.duration(160) } }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: lastText

    Text {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: button.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: bar.lastText
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: Theme.body
        color: Theme.secondaryGroupedBackground
        Accessible.ignored: true
    }
    TextButton {
        id: button
        anchors.right: parent.right
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        text: qsTranslate("vidora", "Undo")
        inverse: true
        onClicked: bar.undone()
    }
}
