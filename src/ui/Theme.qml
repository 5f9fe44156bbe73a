pragma Singleton
import QtQuick
import Morvane.Ui

// Every colour, size and font of the window. Nothing outside this file names a colour or a size.
QtObject {
    readonly property bool dark: Shell.dark

    readonly property color background: dark ? "#0C0A09" : "#FAFAF9"
    readonly property color surface: dark ? "#1C1917" : "#FFFFFF"
    readonly property color border: dark ? "#292524" : "#E7E5E4"
    readonly property color text: dark ? "#F5F5F4" : "#1C1917"
    readonly property color muted: dark ? "#A8A29E" : "#78716C"
    readonly property color accent: dark ? "#2DD4BF" : "#0F766E"
    readonly property color textOnAccent: dark ? "#0C0A09" : "#FFFFFF"
    readonly property color danger: dark ? "#F87171" : "#B91C1C"
    readonly property color success: dark ? "#4ADE80" : "#15803D"
    readonly property color running: dark ? "#F87171" : "#DC2626"
    // Quiet fills derived from the tokens: hover, selection and chips.
    readonly property color hover: Qt.rgba(text.r, text.g, text.b, 0.05)
    readonly property color selected: Qt.rgba(accent.r, accent.g, accent.b, dark ? 0.22 : 0.12)
    readonly property color accentSoft: Qt.rgba(accent.r, accent.g, accent.b, 0.14)
    readonly property color dangerSoft: Qt.rgba(danger.r, danger.g, danger.b, 0.12)
    readonly property color successSoft: Qt.rgba(success.r, success.g, success.b, 0.14)
    readonly property color scrim: Qt.rgba(0, 0, 0, dark ? 0.6 : 0.35)

    readonly property int space1: 4
    readonly property int space2: 8
    readonly property int space3: 12
    readonly property int space4: 16
    readonly property int space5: 24
    readonly property int space6: 32

    readonly property int radiusControl: 6
    readonly property int radiusCard: 10

    readonly property int fontSmall: 12
    readonly property int fontBody: 13
    readonly property int fontLarge: 15
    readonly property int fontTitle: 20
    readonly property int fontDisplay: 28

    readonly property string fontFamily: "Inter"
    readonly property string monoFamily: "JetBrains Mono"

    readonly property int controlHeight: 32
    readonly property int rowHeight: 40
    readonly property int sidebarWidth: 240
    readonly property int sidebarCompactWidth: 56
    readonly property int inspectorWidth: 360
    readonly property int stripHeight: 44
    // Below these window widths the inspector folds away and the sidebar shows icons only.
    readonly property int inspectorFoldWidth: 1100
    readonly property int sidebarFoldWidth: 900
}
