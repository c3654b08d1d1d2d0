import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// Title of a screen, the way back, how old the lists are, and the screen's buttons.
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
        anchors.rightMargin: 10
        spacing: 4
        SymbolButton {
            visible: bar.canGoBack
            symbol: "back"
            mirrors: true
            text: qsTranslate("vidora", "Back")
            onClicked: bar.back()
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.leftMargin: bar.canGoBack ? 0 : Theme.margin - 4
            spacing: 0
            Text {
                Layout.fillWidth: true
                text: bar.screen.title
                textFormat: Text.PlainText
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                maximumLineCount: 1
                font.pixelSize: Theme.points(19)
                font.weight: Font.Bold
                color: Theme.label
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                Layout.fillWidth: true
                visible: text !== ""
                text: bar.screen.subtitle
                textFormat: Text.PlainText
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                font.pixelSize: Theme.tiny
                color: Theme.lightGrey
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Text {
            Layout.maximumWidth: bar.width * 0.45
            visible: bar.screen.showsUpdateState && text !== ""
            text: Theme.updateState
            textFormat: Text.PlainText
            elide: Text.ElideRight
            font.pixelSize: Theme.tiny
            color: Theme.lightGrey
            Accessible.role: Accessible.StaticText
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
                        text: place.modelData.description || place.modelData.title
                        onClicked: bar.screen.pressBarButton(place.index)
                    }
                }
                Component {
                    id: written
                    TextButton {
                        text: place.modelData.title
                        description: place.modelData.description ?? ""
                        prominent: place.modelData.prominent ?? false
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
