import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// Asked once per route, before the first text leaves the machine by it; the answer is kept.
Popup {
    id: dialog
    objectName: "consentDialog"
    readonly property var question: Shell.assistant.consentQuestion
    modal: true
    focus: true
    visible: Object.keys(question).length > 0
    anchors.centerIn: Overlay.overlay
    width: Math.min(480, parent ? parent.width - 2 * Theme.space5 : 480)
    padding: Theme.space5
    closePolicy: Popup.CloseOnEscape
    onClosed: if (Object.keys(question).length > 0) Shell.assistant.answerConsent(false)
    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }
    contentItem: ColumnLayout {
        spacing: Theme.space3
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "Send your text to %1?"
            text: qsTrId("ui.assistant.consentTitle").arg(dialog.question.route || "")
            color: Theme.text
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            text: dialog.question.destination || ""
            color: Theme.muted
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "Morvane asks once for this route and remembers your answer. You can change it in the settings."
            text: qsTrId("ui.assistant.consentOnce")
            color: Theme.muted
            font.pixelSize: Theme.fontSmall
            wrapMode: Text.Wrap
        }
        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: Theme.space2
            FlatButton {
                //% "Don't send"
                text: qsTrId("ui.assistant.consentNo")
                onClicked: Shell.assistant.answerConsent(false)
            }
            PrimaryButton {
                objectName: "consentYes"
                //% "Send"
                text: qsTrId("ui.assistant.consentYes")
                onClicked: Shell.assistant.answerConsent(true)
            }
        }
    }
}
