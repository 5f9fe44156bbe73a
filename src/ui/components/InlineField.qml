import QtQuick
import QtQuick.Controls.Basic
import Morvane.Ui

// Text that edits in place: it saves on Enter or when focus leaves, and Esc puts it back.
TextField {
    id: field
    property string value
    property bool readOnlyLook: readOnly
    signal commit(string text)
    text: value
    color: Theme.text
    placeholderTextColor: Theme.muted
    selectionColor: Theme.accent
    selectedTextColor: Theme.textOnAccent
    leftPadding: Theme.space2
    rightPadding: Theme.space2
    implicitHeight: Math.max(Theme.controlHeight, contentHeight + 2 * Theme.space1)
    Accessible.name: placeholderText
    onValueChanged: if (!activeFocus) text = value
    onEditingFinished: if (!readOnly && text !== value) field.commit(text)
    Keys.onEscapePressed: (event) => { text = value; focus = false; event.accepted = true }
    background: Rectangle {
        radius: Theme.radiusControl
        color: field.activeFocus ? Theme.surface : (field.hovered && !field.readOnly ? Theme.hover : "transparent")
        border.width: field.activeFocus ? 2 : 0
        border.color: Theme.accent
    }
}
