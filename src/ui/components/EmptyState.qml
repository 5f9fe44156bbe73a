import QtQuick
import QtQuick.Layouts
import Morvane.Ui

// What an empty pane says: what is missing and what to do next.
ColumnLayout {
    property alias title: heading.text
    property alias hint: body.text
    spacing: Theme.space2
    Text {
        textFormat: Text.PlainText
        id: heading
        Layout.alignment: Qt.AlignHCenter
        Layout.maximumWidth: 420
        color: Theme.text
        font.pixelSize: Theme.fontLarge
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Text {
        textFormat: Text.PlainText
        id: body
        Layout.alignment: Qt.AlignHCenter
        Layout.maximumWidth: 420
        color: Theme.muted
        font.pixelSize: Theme.fontBody
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        visible: text.length > 0
    }
}
