import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// Quick add: a sentence becomes projects, tasks, time or a timer action. Shows what was understood
// and what was done, newest first, for this run of the application.
Popup {
    id: popup
    objectName: "quickAdd"
    readonly property var assistant: Shell.assistant
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: Math.min(640, parent ? parent.width - 2 * Theme.space5 : 640)
    height: Math.min(560, parent ? parent.height - 2 * Theme.space5 : 560)
    padding: Theme.space4
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }

    function openWith(text) {
        sentence.text = text || ""
        open()
    }
    onOpened: sentence.forceActiveFocus()

    contentItem: ColumnLayout {
        spacing: Theme.space3
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "Quick add"
            text: qsTrId("ui.assistant.title")
            color: Theme.text
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space2
            Field {
                id: sentence
                objectName: "quickAddField"
                Layout.fillWidth: true
                enabled: !popup.assistant.busy
                //% "Say what to add, e.g. “Logo design for Acme, 3 hours yesterday”"
                placeholderText: qsTrId("ui.assistant.placeholder")
                onAccepted: send.clicked()
            }
            PrimaryButton {
                id: send
                objectName: "quickAddSend"
                enabled: !popup.assistant.busy && sentence.text.trim() !== ""
                //% "Add"
                text: qsTrId("ui.assistant.add")
                onClicked: {
                    popup.assistant.capture(sentence.text)
                    sentence.text = ""
                }
            }
        }
        RowLayout {
            visible: popup.assistant.busy
            spacing: Theme.space2
            BusyIndicator { running: popup.assistant.busy; implicitWidth: 20; implicitHeight: 20 }
            Text {
                textFormat: Text.PlainText
                //% "Reading your sentence…"
                text: qsTrId("ui.assistant.reading")
                color: Theme.muted
                font.pixelSize: Theme.fontBody
            }
        }
        ListView {
            id: historyList
            objectName: "quickAddHistory"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            spacing: Theme.space3
            model: popup.assistant.history
            ScrollBar.vertical: ScrollBar {}
            delegate: ColumnLayout {
                required property var modelData
                width: historyList.width - Theme.space3
                spacing: Theme.space1
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    text: "“" + modelData.prompt + "”"
                    color: Theme.text
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Medium
                    wrapMode: Text.Wrap
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: modelData.understood || ""
                    color: Theme.muted
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: modelData.done || ""
                    color: Theme.success
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: modelData.problem || ""
                    color: Theme.danger
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }
            }
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            visible: historyList.count === 0 && !popup.assistant.busy
            //% "Type a sentence in your own words: new projects and tasks, time you spent, or start and stop the timer."
            text: qsTrId("ui.assistant.empty")
            color: Theme.muted
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
    }
}
