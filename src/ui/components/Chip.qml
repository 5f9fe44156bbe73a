import QtQuick
import Morvane.Ui

// A small label in a tone: muted, primary, deepPrimary, success, danger or running.
Rectangle {
    id: chip
    property string text
    property string tone: "muted"
    readonly property color toneColor: tone === "success" ? Theme.success
                                     : tone === "danger" ? Theme.danger
                                     : tone === "running" ? Theme.running
                                     : tone === "primary" || tone === "deepPrimary" ? Theme.accent
                                     : Theme.muted
    implicitWidth: label.implicitWidth + 2 * Theme.space2
    implicitHeight: 20
    radius: height / 2
    color: tone === "deepPrimary" ? Theme.accent : Qt.rgba(toneColor.r, toneColor.g, toneColor.b, 0.14)
    visible: text.length > 0
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Text {
        textFormat: Text.PlainText
        id: label
        anchors.centerIn: parent
        text: chip.text
        color: chip.tone === "deepPrimary" ? Theme.textOnAccent : chip.toneColor
        font.pixelSize: Theme.fontSmall - 1
        font.weight: Font.DemiBold
    }
}
