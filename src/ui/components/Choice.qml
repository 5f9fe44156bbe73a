import QtQuick
import QtQuick.Controls.Basic
import Morvane.Ui

// A drop-down over { value, label } rows that shows `value` and follows it when the rows are
// translated again; `chosen` tells a pick by the person.
ComboBox {
    id: control
    property string value
    signal chosen(string value)
    textRole: "label"
    valueRole: "value"
    implicitHeight: Theme.controlHeight
    font.pixelSize: Theme.fontBody
    onValueChanged: sync()
    onModelChanged: sync()
    onCountChanged: sync()
    Component.onCompleted: sync()
    onActivated: control.chosen(currentValue)
    function sync() { currentIndex = Math.max(0, indexOfValue(value)) }

    contentItem: Text {
        textFormat: Text.PlainText
        leftPadding: Theme.space2
        rightPadding: control.indicator.width
        text: control.displayText
        font: control.font
        color: control.enabled ? Theme.text : Theme.muted
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    indicator: Text {
        textFormat: Text.PlainText
        x: control.width - width - Theme.space2
        y: (control.height - height) / 2
        text: "▾"
        color: Theme.muted
        font.pixelSize: Theme.fontBody
        visible: control.enabled
    }
    background: Rectangle {
        radius: Theme.radiusControl
        color: control.enabled ? Theme.surface : "transparent"
        border.width: control.visualFocus ? 2 : (control.enabled ? 1 : 0)
        border.color: control.visualFocus ? Theme.accent : Theme.border
    }
    delegate: ItemDelegate {
        id: option
        required property var modelData
        required property int index
        width: control.width
        height: Theme.controlHeight
        highlighted: control.highlightedIndex === index
        contentItem: Text {
            textFormat: Text.PlainText
            text: option.modelData[control.textRole] !== undefined ? option.modelData[control.textRole]
                                                                      : option.modelData
            color: Theme.text
            font.pixelSize: Theme.fontBody
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }
        background: Rectangle { color: option.highlighted ? Theme.selected : Theme.surface }
    }
    popup.background: Rectangle { color: Theme.surface; border.color: Theme.border; radius: Theme.radiusControl }
}
