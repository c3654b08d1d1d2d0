import QtQuick

// A broadcast in columns: when, what, marks, picture. What is on air leads: in bold, with how much of it is left.
Item {
    id: show

    required property var row
    readonly property var model: row.model
    readonly property string spoken: [model.start + " " + model.title, model.details,
        model.onAir ? qsTranslate("vidora", "On air") + ", " + model.timeLeft : "",
        model.alarm ? qsTranslate("vidora", "Alarm") : "", model.favourite ? qsTranslate("vidora", "Favourite") : "",
        model.repeat ? qsTranslate("vidora", "Repeat") : "", model.popular ? qsTranslate("vidora", "Popular") : ""]
        .filter(part => part !== "").join(", ")

    implicitHeight: Math.max(texts.height, picture.height)

    Text {
        id: time
        width: Theme.timeWidth
        anchors.left: parent.left
        anchors.baseline: texts.top
        anchors.baselineOffset: title.baselineOffset
        text: show.model.start
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: Theme.body
        font.weight: show.model.onAir ? Font.Bold : Font.Normal
        color: show.model.onAir && show.model.timeColour === "secondaryLabel"
               ? Theme.label : Theme.colours[show.model.timeColour] ?? Theme.secondaryLabel
        Accessible.ignored: true
    }
    Column {
        id: texts
        anchors.left: time.right
        anchors.leftMargin: Theme.spacing
        anchors.right: marks.left
        anchors.rightMargin: marks.width > 0 || picture.active ? 10 : 0
        spacing: 2
        Text {
            id: title
            width: parent.width
            text: show.model.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            wrapMode: Text.Wrap
            maximumLineCount: 2
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: show.model.onAir ? Theme.leadingTitle : Theme.rowTitle
            font.weight: show.model.onAir ? Font.Bold : Font.Medium
            color: Theme.label
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: show.model.details
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 1
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: Theme.small
            color: Theme.secondaryLabel
            Accessible.ignored: true
        }
        Loader {
            width: parent.width
            active: show.model.onAir
            visible: active
            sourceComponent: OnAirLine {
                progress: show.model.progress
                timeLeft: show.model.timeLeft
            }
        }
    }
    Row {
        id: marks
        anchors.right: picture.left
        anchors.rightMargin: picture.active && width > 0 ? 10 : 0
        y: (title.height - height) / 2 / Math.max(1, title.lineCount)
        spacing: 4
        width: childrenRect.width
        Mark { name: "repeat"; shown: show.model.repeat; color: Theme.lightGrey }
        Mark { name: "heart"; shown: show.model.popular; color: Theme.lightGrey }
        Mark { name: "star"; shown: show.model.favourite; color: Theme.favouriteOrange }
        Mark { name: "bell"; shown: show.model.alarm; color: Theme.alarmRed }
    }
    component Mark: Loader {
        id: mark
        property string name
        property bool shown
        property color color
        active: shown
        visible: active
        width: active ? 16 : 0
        sourceComponent: Component { Symbol { name: mark.name; color: mark.color; size: 16 } }
    }
    Loader {
        id: picture
        active: show.model.hasPicture
        anchors.right: parent.right
        width: active ? Theme.pictureWidth : 0
        height: active ? Theme.pictureHeight : 0
        sourceComponent: ShowPicture { source: show.model.picture }
    }
}
