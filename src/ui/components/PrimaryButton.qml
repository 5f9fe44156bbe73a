import QtQuick
import QtQuick.Controls.Basic
import Morvane.Ui

Button {
    id: control
    property bool danger: false
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    font.pixelSize: Theme.fontBody
    font.weight: Font.DemiBold
    Accessible.name: text
    contentItem: Text {
        textFormat: Text.PlainText
        text: control.text
        font: control.font
        color: Theme.textOnAccent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    background: Rectangle {
        radius: Theme.radiusControl
        color: control.danger ? Theme.danger : Theme.accent
        opacity: control.enabled ? (control.down ? 0.85 : 1) : 0.45
        border.width: control.visualFocus ? 2 : 0
        border.color: Theme.text
    }
}
