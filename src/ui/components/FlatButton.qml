import QtQuick
import QtQuick.Controls.Basic
import Morvane.Ui

Button {
    id: control
    property bool danger: false
    property bool compact: false
    // A picture instead of the text; the text stays as the accessible name.
    property url iconSource
    flat: true
    implicitHeight: compact ? 24 : Theme.controlHeight
    leftPadding: compact ? Theme.space2 : Theme.space3
    rightPadding: compact ? Theme.space2 : Theme.space3
    font.pixelSize: compact ? Theme.fontSmall : Theme.fontBody
    Accessible.name: text
    contentItem: Text {
        textFormat: Text.PlainText
        text: control.iconSource.toString() === "" ? control.text : ""
        Image {
            anchors.centerIn: parent
            source: control.iconSource
            sourceSize: Qt.size(16, 16)
            visible: control.iconSource.toString() !== ""
        }
        font: control.font
        color: control.danger ? Theme.danger : (control.checked ? Theme.accent : Theme.text)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        opacity: control.enabled ? 1 : 0.45
    }
    background: Rectangle {
        radius: Theme.radiusControl
        color: control.checked ? Theme.selected : (control.hovered || control.down ? Theme.hover : "transparent")
        border.width: control.visualFocus ? 2 : 1
        border.color: control.visualFocus ? Theme.accent : Theme.border
    }
}
