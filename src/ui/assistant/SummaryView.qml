import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// The weekly recap and the daily stand-up: generated on request, with progress while the model
// works, copied with one click, and marked when the text is the one written from the figures.
Rectangle {
    id: root
    objectName: "summaryView"
    color: Theme.background
    readonly property var assistant: Shell.assistant
    property string language: ""
    // "recap" or "standup": the screen shows one at a time.
    property string kind: "recap"
    readonly property bool showing: assistant.summaryKind === kind

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.space4
        spacing: Theme.space3

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space2
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                //% "Recap and stand-up"
                text: qsTrId("ui.summary.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Choice {
                objectName: "summaryLanguage"
                Layout.preferredWidth: 180
                //% "Language of the text"
                Accessible.name: qsTrId("ui.summary.language")
                //% "Interface language"
                model: [{ value: "", label: qsTrId("ui.summary.uiLanguage") }]
                       .concat(Shell.languages.map(code => ({ value: code, label: Shell.languageName(code) })))
                value: root.language
                onChosen: (code) => root.language = code
            }
            FlatButton {
                objectName: "recapTab"
                checked: root.kind === "recap"
                //% "Weekly recap"
                text: qsTrId("ui.summary.recap")
                onClicked: root.kind = "recap"
            }
            FlatButton {
                objectName: "standupTab"
                checked: root.kind === "standup"
                //% "Daily stand-up"
                text: qsTrId("ui.summary.standup")
                onClicked: root.kind = "standup"
            }
            PrimaryButton {
                objectName: "generateSummary"
                enabled: !root.assistant.summaryBusy
                //% "Generate"
                text: qsTrId("ui.summary.generate")
                onClicked: root.assistant.writeSummary(root.kind, root.language)
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: Theme.radiusCard
            color: Theme.surface
            border.color: Theme.border

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: Theme.space4
                spacing: Theme.space3
                visible: root.showing && !root.assistant.summaryBusy
                         && (root.assistant.summaryText !== "" || root.assistant.summaryNote !== "")
                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.space2
                    Chip {
                        objectName: "summaryFixedMark"
                        visible: root.assistant.summaryFixed
                        tone: "muted"
                        //% "Written from your figures"
                        text: qsTrId("ui.summary.fixed")
                    }
                    Chip {
                        visible: root.assistant.summaryText !== "" && !root.assistant.summaryFixed
                        tone: "primary"
                        //% "Written by the model, checked against your figures"
                        text: qsTrId("ui.summary.model")
                    }
                    Item { Layout.fillWidth: true }
                    FlatButton {
                        objectName: "copySummary"
                        enabled: root.assistant.summaryText !== ""
                        //% "Copy"
                        text: qsTrId("ui.summary.copy")
                        onClicked: root.assistant.copySummary()
                    }
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: root.assistant.summaryNote
                    color: Theme.muted
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }
                ScrollView {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    TextArea {
                        objectName: "summaryText"
                        readOnly: true
                        selectByMouse: true
                        textFormat: TextEdit.PlainText
                        text: root.assistant.summaryText
                        color: Theme.text
                        font.pixelSize: Theme.fontLarge
                        wrapMode: TextEdit.Wrap
                        background: null
                        //% "Recap or stand-up text"
                        Accessible.name: qsTrId("ui.summary.textName")
                    }
                }
            }
            ColumnLayout {
                anchors.centerIn: parent
                visible: root.assistant.summaryBusy
                spacing: Theme.space2
                BusyIndicator { Layout.alignment: Qt.AlignHCenter; running: root.assistant.summaryBusy }
                Text {
                    textFormat: Text.PlainText
                    text: root.assistant.summaryKind === "recap"
                          //% "Writing your recap…"
                          ? qsTrId("ui.summary.writingRecap")
                          //% "Drafting your stand-up…"
                          : qsTrId("ui.summary.draftingStandup")
                    color: Theme.muted
                    font.pixelSize: Theme.fontBody
                }
            }
            EmptyState {
                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * Theme.space5, 480)
                visible: !root.assistant.summaryBusy
                         && (!root.showing || (root.assistant.summaryText === "" && root.assistant.summaryNote === ""))
                title: root.kind === "recap" ? qsTrId("ui.summary.recap") : qsTrId("ui.summary.standup")
                hint: root.kind === "recap"
                      //% "Press Generate for a short recap of the time you tracked this week."
                      ? qsTrId("ui.summary.recapHint")
                      //% "Press Generate to draft your stand-up."
                      : qsTrId("ui.summary.standupHint")
            }
        }
    }
}
