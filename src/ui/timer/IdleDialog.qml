import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// Asks once, on return, what happens to the time the timer ran while the person was away.
// Enter discards the idle time and goes on; Esc keeps it.
Popup {
    id: dialog
    objectName: "idleDialog"
    required property var watcher
    property string taskTitle
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: Math.min(440, parent ? parent.width - 2 * Theme.space5 : 440)
    padding: Theme.space5
    closePolicy: Popup.CloseOnEscape
    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }
    onOpened: continueButton.forceActiveFocus()
    // Esc, or the question withdrawn because the timer stopped elsewhere: the time stays.
    onClosed: if (watcher.asking) watcher.keep()

    function clock(instant) { return instant.toLocaleTimeString(Qt.locale(), Locale.ShortFormat) }

    contentItem: ColumnLayout {
        spacing: Theme.space3
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "You were away"
            text: qsTrId("ui.idle.title")
            color: Theme.text
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "The timer of “%1” kept running while you were away from %2 to %3. What should happen to that time?"
            text: (qsTrId("ui.idle.body")).arg(dialog.taskTitle)
                  .arg(dialog.clock(dialog.watcher.leftAt)).arg(dialog.clock(dialog.watcher.returnedAt))
            color: Theme.muted
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.topMargin: Theme.space2
            spacing: Theme.space2
            PrimaryButton {
                id: continueButton
                Layout.fillWidth: true
                //% "Discard it and go on"
                text: qsTrId("ui.idle.discardContinue")
                onClicked: { dialog.watcher.discardAndContinue(); dialog.close() }
                Keys.onReturnPressed: clicked()
            }
            FlatButton {
                Layout.fillWidth: true
                //% "Discard it and stop the timer"
                text: qsTrId("ui.idle.discard")
                onClicked: { dialog.watcher.discard(); dialog.close() }
                Keys.onReturnPressed: clicked()
            }
            FlatButton {
                Layout.fillWidth: true
                //% "Keep the time"
                text: qsTrId("ui.idle.keep")
                onClicked: { dialog.watcher.keep(); dialog.close() }
                Keys.onReturnPressed: clicked()
            }
        }
    }
}
