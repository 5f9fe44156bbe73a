import QtQuick
import QtQuick.Controls.Basic
import Morvane.Ui

// A text field in the window's look; `invalid` marks it red.
TextField {
    id: control
    property bool invalid: false
    implicitHeight: Theme.controlHeight
    font.pixelSize: Theme.fontBody
    color: Theme.text
    placeholderTextColor: Theme.muted
    selectionColor: Theme.accent
    selectedTextColor: Theme.textOnAccent
    leftPadding: Theme.space2
    rightPadding: Theme.space2
    Accessible.name: placeholderText
    background: Rectangle {
        radius: Theme.radiusControl
        color: Theme.surface
        border.width: control.activeFocus ? 2 : 1
        border.color: control.invalid ? Theme.danger : (control.activeFocus ? Theme.accent : Theme.border)
    }
}
