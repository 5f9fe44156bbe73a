import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// A task's time entries: start, end and length edit in place; minutes can be logged by hand.
ColumnLayout {
    id: root
    property var inspector
    property bool editable: false
    spacing: Theme.space2

    RowLayout {
        Layout.fillWidth: true
        FieldLabel {
            Layout.fillWidth: true
            //% "Time entries"
            text: qsTrId("ui.entries.title")
        }
        Text {
            textFormat: Text.PlainText
            //% "Total %1"
            text: qsTrId("ui.entries.total").arg(root.inspector.tracked)
            color: Theme.muted
            font.family: Theme.monoFamily
            font.pixelSize: Theme.fontSmall
        }
    }

    RowLayout {
        Layout.fillWidth: true
        visible: root.editable
        spacing: Theme.space2
        Field {
            id: minutes
            objectName: "logMinutesField"
            Layout.fillWidth: true
            //% "Minutes worked"
            placeholderText: qsTrId("ui.entries.minutes")
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            property bool bad: false
            invalid: bad
            onTextEdited: bad = false
            onAccepted: logButton.clicked()
        }
        FlatButton {
            id: logButton
            //% "Log"
            text: qsTrId("ui.entries.log")
            enabled: minutes.text.length > 0
            onClicked: {
                if (root.inspector.logMinutes(minutes.text)) minutes.text = ""
                else minutes.bad = true
            }
        }
    }
    Text {
        textFormat: Text.PlainText
        visible: minutes.bad
        color: Theme.danger
        font.pixelSize: Theme.fontSmall
        //% "Enter the minutes as a number, such as 45 or 90."
        text: qsTrId("ui.entries.minutesInvalid")
    }

    Text {
        textFormat: Text.PlainText
        visible: root.inspector.entries.length === 0
        Layout.fillWidth: true
        wrapMode: Text.Wrap
        color: Theme.muted
        font.pixelSize: Theme.fontSmall
        //% "No time yet. Press Space to start the timer, or log minutes by hand."
        text: qsTrId("ui.entries.empty")
    }

    Repeater {
        model: root.inspector.entries
        Rectangle {
            id: entry
            required property var modelData
            property bool editing: false
            Layout.fillWidth: true
            implicitHeight: entryColumn.implicitHeight + 2 * Theme.space2
            radius: Theme.radiusControl
            color: Theme.background
            border.color: Theme.border
            Accessible.role: Accessible.ListItem
            Accessible.name: modelData.day + " " + modelData.span + " " + modelData.duration

            ColumnLayout {
                id: entryColumn
                anchors.fill: parent
                anchors.margins: Theme.space2
                spacing: Theme.space1
                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.space2
                    Text {
                        textFormat: Text.PlainText
                        text: entry.modelData.day
                        color: Theme.text
                        font.pixelSize: Theme.fontSmall
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: entry.modelData.span
                        color: Theme.muted
                        font.family: Theme.monoFamily
                        font.pixelSize: Theme.fontSmall
                    }
                    Chip {
                        visible: entry.modelData.billed
                        tone: "success"
                        //% "Billed"
                        text: qsTrId("ui.entries.billed")
                    }
                    Text {
                        textFormat: Text.PlainText
                        text: entry.modelData.duration
                        color: Theme.text
                        font.family: Theme.monoFamily
                        font.pixelSize: Theme.fontSmall
                        horizontalAlignment: Text.AlignRight
                    }
                    FlatButton {
                        compact: true
                        visible: root.editable && !entry.modelData.billed
                        //% "Edit"
                        text: qsTrId("ui.common.edit")
                        onClicked: entry.editing = !entry.editing
                    }
                    FlatButton {
                        compact: true
                        danger: true
                        visible: root.editable && !entry.modelData.billed
                        text: "×"
                        //% "Delete this entry"
                        Accessible.name: qsTrId("ui.entries.delete")
                        onClicked: { confirm.entryId = entry.modelData.id; confirm.open() }
                    }
                }
                GridLayout {
                    Layout.fillWidth: true
                    visible: entry.editing
                    columns: 2
                    columnSpacing: Theme.space2
                    FieldLabel {
                        //% "Start"
                        text: qsTrId("ui.entries.start")
                    }
                    Field {
                        id: startField
                        Layout.fillWidth: true
                        text: entry.modelData.start
                        Accessible.name: qsTrId("ui.entries.start")
                    }
                    FieldLabel {
                        //% "End"
                        text: qsTrId("ui.entries.end")
                    }
                    Field {
                        id: endField
                        Layout.fillWidth: true
                        text: entry.modelData.end
                        Accessible.name: qsTrId("ui.entries.end")
                    }
                    FieldLabel {
                        //% "Minutes"
                        text: qsTrId("ui.entries.length")
                    }
                    Field {
                        id: lengthField
                        Layout.fillWidth: true
                        text: entry.modelData.minutes
                        Accessible.name: qsTrId("ui.entries.length")
                    }
                    Text {
                        textFormat: Text.PlainText
                        id: problem
                        Layout.columnSpan: 2
                        visible: text !== ""
                        color: Theme.danger
                        font.pixelSize: Theme.fontSmall
                        wrapMode: Text.Wrap
                    }
                    PrimaryButton {
                        Layout.columnSpan: 2
                        Layout.alignment: Qt.AlignRight
                        //% "Save"
                        text: qsTrId("ui.common.save")
                        onClicked: {
                            const timesChanged = startField.text !== entry.modelData.start
                                                 || endField.text !== entry.modelData.end
                            const ok = timesChanged
                                ? root.inspector.editEntryTimes(entry.modelData.id, startField.text, endField.text)
                                : root.inspector.editEntryDuration(entry.modelData.id, lengthField.text)
                            //% "Use the form 2026-03-01 09:30, with the end after the start."
                            problem.text = ok ? "" : qsTrId("ui.entries.invalid")
                            if (ok) entry.editing = false
                        }
                    }
                }
            }
        }
    }

    ConfirmDialog {
        id: confirm
        property string entryId
        //% "Delete this time entry?"
        title: qsTrId("ui.entries.deleteTitle")
        //% "The task's total goes down by its length."
        body: qsTrId("ui.entries.deleteBody")
        confirmText: qsTrId("ui.common.delete")
        onConfirmed: root.inspector.deleteEntry(entryId)
    }
}
