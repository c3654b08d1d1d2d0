import QtQuick
import QtQuick.Layouts

// The tabs of the window: along the bottom of a phone, along the side of a wider window.
Rectangle {
    id: strip

    required property var app
    property bool rail: false

    implicitWidth: rail ? Math.max(92, Theme.tiny * 8) : 0
    implicitHeight: rail ? 0 : Math.max(57, Theme.tiny + 46)
    color: Theme.barBackground
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTranslate("vidora", "Tabs")

    GridLayout {
        anchors.fill: parent
        anchors.topMargin: strip.rail ? 8 : 1
        anchors.rightMargin: strip.rail ? 1 : 0
        columns: strip.rail ? 1 : strip.app.tabs.length
        rowSpacing: 0
        columnSpacing: 0
        Repeater {
            model: strip.app.tabs
            TabButton {
                required property var modelData
                required property int index
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                rail: strip.rail
                text: modelData.title
                symbol: modelData.symbol
                badge: modelData.badge
                enabled: modelData.enabled
                current: strip.app.selectedTab === index
                onClicked: strip.app.selectTab(index)
            }
        }
        Item {
            visible: strip.rail
            Layout.fillHeight: true
        }
    }
    Rectangle {
        color: Theme.separator
        x: strip.rail ? parent.width - 1 : 0
        width: strip.rail ? 1 : parent.width
        height: strip.rail ? parent.height : 1
    }
}
