import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// Title of a screen, the way back, and the screen's buttons.
Rectangle {
    id: bar

    required property var screen
    property bool canGoBack: false
    /// Whether the way back is out of a panel.
    property bool closable: false
    signal back()

    implicitHeight: Theme.barHeight
    color: closable ? "transparent" : Theme.barBackground

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 4
        anchors.rightMargin: 8
        spacing: 2
        SymbolButton {
            visible: bar.canGoBack
            symbol: "back"
            mirrors: true
            text: qsTranslate("vidora", "Back")
            onClicked: bar.back()
        }
        Text {
            Layout.fillWidth: true
            Layout.leftMargin: bar.canGoBack ? 0 : Theme.margin - 4
            text: bar.screen.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            maximumLineCount: 1
            font.pixelSize: Theme.points(20)
            font.weight: Font.Bold
            color: Theme.label
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Repeater {
            model: bar.screen.barButtons
            Loader {
                id: place
                required property var modelData
                required property int index
                sourceComponent: modelData.busy ? busy : modelData.symbol !== "" ? drawn : written
                Component {
                    id: busy
                    Item {
                        implicitWidth: Theme.touchTarget
                        implicitHeight: Theme.touchTarget
                        ActivityIndicator { anchors.centerIn: parent }
                    }
                }
                Component {
                    id: drawn
                    SymbolButton {
                        symbol: place.modelData.symbol
                        text: place.modelData.title
                        onClicked: bar.screen.pressBarButton(place.index)
                    }
                }
                Component {
                    id: written
                    TextButton {
                        text: place.modelData.title
                        description: place.modelData.description ?? ""
                        symbol: "channels"
                        onClicked: bar.screen.pressBarButton(place.index)
                    }
                }
            }
        }
        SymbolButton {
            visible: bar.closable
            symbol: "close"
            text: qsTranslate("vidora", "Close")
            onClicked: bar.back()
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
