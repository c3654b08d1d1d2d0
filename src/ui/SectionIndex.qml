import QtQuick

// The letters beside a long table: a tap or a drag leads to the letter's first row.
Item {
    id: index

    required property var titles
    signal chosen(int section)

    readonly property real letterHeight: titles.length > 0 ? Math.min(18, height / titles.length) : 18

    implicitWidth: 26
    visible: titles.length > 1
    Accessible.role: Accessible.ScrollBar
    Accessible.name: qsTranslate("vidora", "Letters")

    Column {
        anchors.centerIn: parent
        Repeater {
            model: index.titles
            Text {
                required property string modelData
                width: index.width
                height: index.letterHeight
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                text: modelData
                textFormat: Text.PlainText
                font.pixelSize: Math.min(Theme.tiny, index.letterHeight)
                font.weight: Font.DemiBold
                color: Theme.accent
            }
        }
    }
    MouseArea {
        anchors.fill: parent
        preventStealing: true
        function choose(y) {
            const top = (height - index.letterHeight * index.titles.length) / 2
            const at = Math.floor((y - top) / index.letterHeight)
            index.chosen(Math.max(0, Math.min(index.titles.length - 1, at)))
        }
        onPressed: event => choose(event.y)
        onPositionChanged: event => choose(event.y)
    }
}
