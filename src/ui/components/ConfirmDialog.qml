import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// Asks before something that cannot be undone; Enter confirms, Esc cancels.
Popup {
    id: dialog
    property string title
    property string body
    property string confirmText
    property bool danger: true
    signal confirmed()
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: Math.min(440, parent ? parent.width - 2 * Theme.space5 : 440)
    padding: Theme.space5
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }
    onOpened: confirmButton.forceActiveFocus()
    contentItem: ColumnLayout {
        spacing: Theme.space3
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            text: dialog.title
            color: Theme.text
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            text: dialog.body
            color: Theme.muted
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
            visible: text.length > 0
        }
        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: Theme.space2
            FlatButton {
                //% "Cancel"
                text: qsTrId("ui.common.cancel")
                onClicked: dialog.close()
            }
            PrimaryButton {
                id: confirmButton
                text: dialog.confirmText
                danger: dialog.danger
                onClicked: { dialog.close(); dialog.confirmed() }
                Keys.onReturnPressed: clicked()
            }
        }
    }
}
