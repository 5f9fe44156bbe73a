import QtQuick
import QtQuick.Controls.Basic
import Morvane.Ui

// A check box in the window's look; the label is optional.
CheckBox {
    id: control
    padding: 0
    spacing: Theme.space2
    font.pixelSize: Theme.fontBody
    Accessible.name: text
    indicator: Rectangle {
        implicitWidth: 16
        implicitHeight: 16
        x: control.leftPadding
        y: (control.height - height) / 2
        radius: 4
        color: control.checked ? Theme.accent : Theme.surface
        border.width: control.visualFocus ? 2 : 1
        border.color: control.checked || control.visualFocus ? Theme.accent : Theme.muted
        opacity: control.enabled ? 1 : 0.5
        Text {
            textFormat: Text.PlainText
            anchors.centerIn: parent
            text: "✓"
            visible: control.checked
            color: Theme.textOnAccent
            font.pixelSize: 12
            font.weight: Font.Bold
        }
    }
    contentItem: Text {
        textFormat: Text.PlainText
        leftPadding: control.text ? control.indicator.width + control.spacing : control.indicator.width
        text: control.text
        font: control.font
        color: Theme.text
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
