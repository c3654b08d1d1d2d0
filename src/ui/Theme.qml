pragma Singleton
import QtQuick

// Colours by role, sizes and fonts of the whole window. Each pair of text and background has the contrast of WCAG 2.1,
// 1.4.3, level AA, in both palettes: 4.5, and 3 for the times, which are large. An orange of (1, 0.6, 0.2) and headings of
// (165, 133, 9) would have 2.1 and 3.2 on light cards; the light palette has the same hues, darker.
QtObject {
    property bool dark: false

    readonly property color groupedBackground: dark ? "#101014" : "#f4f4f8"
    readonly property color secondaryGroupedBackground: dark ? "#1c1c20" : "#ffffff"
    readonly property color tertiaryFill: dark ? "#292930" : "#ececf4"
    readonly property color barBackground: dark ? "#18181c" : "#fafafc"
    readonly property color separator: dark ? "#35353c" : "#d9d9e0"
    readonly property color label: dark ? "#f4f4f7" : "#17171c"
    readonly property color secondaryLabel: dark ? "#b0b0ba" : "#565660"
    readonly property color lightGrey: dark ? "#a2a2ac" : "#63636d"
    readonly property color indigo: dark ? "#aaa8ff" : "#4340b8"
    readonly property color alarmRed: dark ? "#ff7a73" : "#c4001d"
    readonly property color onAirGreen: dark ? "#62d26c" : "#008000"
    readonly property color favouriteOrange: dark ? "#ffa64d" : "#b85c00"
    readonly property color sectionHeader: dark ? "#dfc15a" : "#776006"
    readonly property color accent: indigo
    readonly property color inverseAccent: dark ? "#4340b8" : "#b9b7ff"
    readonly property color accentText: dark ? "#17171c" : "#ffffff"
    readonly property color destructive: alarmRed
    readonly property color destructiveText: accentText
    readonly property color pressed: dark ? "#2c2c34" : "#ececf3"
    readonly property color focus: accent
    readonly property color scrim: "#99000000"

    // Sizes are given for a body text of 17 and follow the font size of the system.
    property real scale: 1
    readonly property int body: Math.round(15 * scale)
    readonly property int title: Math.round(18 * scale)
    readonly property int rowTitle: Math.round(15.5 * scale)
    readonly property int leadingTitle: Math.round(16.5 * scale)
    readonly property int small: Math.round(13 * scale)
    readonly property int tiny: Math.round(12 * scale)

    readonly property int touchTarget: 44
    readonly property int barHeight: Math.max(52, Math.round(20 * scale) + 26)
    readonly property int margin: 16
    readonly property int spacing: 12
    readonly property int radius: 10
    readonly property int cardRadius: 14
    readonly property int pictureRadius: 7
    readonly property int pictureWidth: 96
    readonly property int pictureHeight: 54
    readonly property color accentSoft: dark ? "#2a2946" : "#ecebfb"
    /// How old the lists are, in words.
    property string updateState
    /// As wide as any time of day; `timeSample` is one of them, as the reader writes it.
    property string timeSample: "20:00"
    readonly property real timeWidth: Math.ceil(timeMetrics.advanceWidth) + 2
    readonly property TextMetrics timeMetrics: TextMetrics {
        font.pixelSize: body
        font.weight: Font.Bold
        text: timeSample
    }
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

    // Black or white, whichever is easier to read on a colour (WCAG 2.1, relative luminance).
    function textOn(background) {
        const part = c => c <= 0.03928 ? c / 12.92 : Math.pow((c + 0.055) / 1.055, 2.4)
        const luminance = 0.2126 * part(background.r) + 0.7152 * part(background.g) + 0.0722 * part(background.b)
        return luminance > 0.179 ? "#17171c" : "#ffffff"
    }
    /// Milliseconds of a movement; none where the desktop asks for that.
    property bool reducedMotion: false
    readonly property int movement: 130
    function duration(milliseconds) { return reducedMotion ? 0 : milliseconds }
    function points(size) { return Math.round(size * scale) }
    function symbol(name, color) { return "image://symbols/" + name + "/" + String(color).replace("#", "") }
}
