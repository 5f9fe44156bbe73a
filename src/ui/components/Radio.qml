import QtQuick
import QtQuick.Controls.Basic
import Morvane.Ui

// A radio button in the window's look.
RadioButton {
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
        radius: 8
        color: Theme.surface
        border.width: control.visualFocus ? 2 : 1
        border.color: control.checked || control.visualFocus ? Theme.accent : Theme.muted
        Rectangle {
            anchors.centerIn: parent
            width: 8
            height: 8
            radius: 4
            color: Theme.accent
            visible: control.checked
        }
    }
    contentItem: Text {
        textFormat: Text.PlainText
        leftPadding: control.indicator.width + control.spacing
        text: control.text
        font: control.font
        color: Theme.text
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
}
