pragma Singleton
import QtQuick

// Colours by role, sizes and fonts of the whole window. Each pair of text and background has a contrast of at least 4.5
// in both palettes (WCAG 2.1, 1.4.3).
QtObject {
    property bool dark: false

    readonly property color groupedBackground: dark ? "#101014" : "#f2f2f7"
    readonly property color secondaryGroupedBackground: dark ? "#1c1c20" : "#ffffff"
    readonly property color tertiaryFill: dark ? "#292930" : "#e6e6ef"
    readonly property color barBackground: dark ? "#18181c" : "#fafafc"
    readonly property color separator: dark ? "#35353c" : "#d9d9e0"
    readonly property color label: dark ? "#f4f4f7" : "#17171c"
    readonly property color secondaryLabel: dark ? "#b0b0ba" : "#565660"
    readonly property color lightGrey: dark ? "#a2a2ac" : "#63636d"
    readonly property color indigo: dark ? "#aaa8ff" : "#4340b8"
    readonly property color alarmRed: dark ? "#ff7a73" : "#c4001d"
    readonly property color onAirGreen: dark ? "#62d26c" : "#007a00"
    readonly property color favouriteOrange: dark ? "#ffa64d" : "#a35200"
    readonly property color sectionHeader: dark ? "#dfc15a" : "#776006"
    readonly property color accent: indigo
    readonly property color accentText: dark ? "#17171c" : "#ffffff"
    readonly property color pressed: dark ? "#2c2c34" : "#ececf3"
    readonly property color focus: accent
    readonly property color scrim: "#99000000"

    // Sizes are given for a body text of 17 and follow the font size of the system.
    property real scale: 1
    readonly property int body: Math.round(15 * scale)
    readonly property int title: Math.round(18 * scale)
    readonly property int channel: Math.round(18 * scale)
    readonly property int small: Math.round(13 * scale)
    readonly property int tiny: Math.round(11 * scale)

    readonly property int touchTarget: 44
    readonly property int margin: 16
    readonly property int spacing: 12
    readonly property int radius: 10
    readonly property int readableWidth: 860

    // By the names under which the screens know them.
    readonly property var colours: ({
        systemGroupedBackground: String(groupedBackground),
        secondaryGroupedBackground: String(secondaryGroupedBackground),
        tertiaryFill: String(tertiaryFill),
        label: String(label),
        secondaryLabel: String(secondaryLabel),
        indigo: String(indigo),
        alarmRed: String(alarmRed),
        onAirGreen: String(onAirGreen),
        favouriteOrange: String(favouriteOrange),
        lightGrey: String(lightGrey),
        dayHeading: String(sectionHeader)
    })

    function points(size) { return Math.round(size * scale) }
    function symbol(name, color) { return "image://symbols/" + name + "/" + String(color).replace("#", "") }
}
