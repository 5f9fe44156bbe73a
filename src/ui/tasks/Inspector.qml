import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// The selected task: its fields edit in place, then its time entries and its price in words.
Rectangle {
    id: root
    color: Theme.surface
    readonly property var task: Shell.workspace.inspector
    readonly property bool editable: task.canEdit

    function editTitle() {
        if (editable) {
            titleField.forceActiveFocus()
            titleField.selectAll()
        }
    }

    PriceEditor {
        id: taskPrice
        parent: Overlay.overlay
        editor: root.task.priceEditor
        heading: root.task.title
        onSaveRequested: root.task.savePrice()
    }

    EmptyState {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.space5
        visible: !root.task.present
        //% "No task selected"
        title: qsTrId("ui.inspector.none")
        //% "Choose a task to see its details and time entries."
        hint: qsTrId("ui.inspector.noneHint")
    }

    Flickable {
        anchors.fill: parent
        visible: root.task.present
        contentHeight: column.implicitHeight + 2 * Theme.space4
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        ColumnLayout {
            id: column
            x: Theme.space4
            y: Theme.space4
            width: parent.width - 2 * Theme.space4
            spacing: Theme.space2

            RowLayout {
                Layout.fillWidth: true
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    text: root.task.projectName
                    color: Theme.muted
                    font.pixelSize: Theme.fontSmall
                    elide: Text.ElideRight
                }
                BusyIndicator {
                    running: root.task.saving
                    visible: running
                    implicitWidth: 16
                    implicitHeight: 16
                    Accessible.name: qsTrId("ui.common.saving")
                }
                Chip {
                    visible: !root.editable
                    text: qsTrId("ui.projects.viewOnly")
                }
            }
            InlineField {
                id: titleField
                objectName: "taskTitleField"
                Layout.fillWidth: true
                value: root.task.title
                readOnly: !root.editable
                font.pixelSize: Theme.fontLarge
                font.weight: Font.DemiBold
                //% "Task title"
                placeholderText: qsTrId("ui.inspector.title")
                onCommit: (text) => root.task.setTitle(text)
            }

            GridLayout {
                Layout.fillWidth: true
                columns: 2
                columnSpacing: Theme.space3
                rowSpacing: Theme.space2

                FieldLabel {
                    //% "Status"
                    text: qsTrId("ui.inspector.status")
                }
                Choice {
                    Layout.fillWidth: true
                    enabled: root.editable
                    Accessible.name: qsTrId("ui.inspector.status")
                    model: [
                        //% "Not started"
                        { value: "not_started", label: qsTrId("ui.status.not_started") },
                        //% "In progress"
                        { value: "in_progress", label: qsTrId("ui.status.in_progress") },
                        //% "Completed"
                        { value: "completed", label: qsTrId("ui.status.completed") }
                    ]
                    value: root.task.status
                    onChosen: (value) => root.task.setStatus(value)
                }
                FieldLabel {
                    //% "Priority"
                    text: qsTrId("ui.inspector.priority")
                }
                Choice {
                    Layout.fillWidth: true
                    enabled: root.editable
                    Accessible.name: qsTrId("ui.inspector.priority")
                    model: [
                        //% "Low"
                        { value: "low", label: qsTrId("ui.priority.low") },
                        //% "Medium"
                        { value: "medium", label: qsTrId("ui.priority.medium") },
                        //% "High"
                        { value: "high", label: qsTrId("ui.priority.high") }
                    ]
                    value: root.task.priority
                    onChosen: (value) => root.task.setPriority(value)
                }
                FieldLabel {
                    //% "Category"
                    text: qsTrId("ui.inspector.category")
                }
                Choice {
                    Layout.fillWidth: true
                    enabled: root.editable
                    Accessible.name: qsTrId("ui.inspector.category")
                    model: [
                        //% "None"
                        { value: "", label: qsTrId("ui.category.none") },
                        //% "Billable"
                        { value: "billable", label: qsTrId("ui.category.billable") },
                        //% "Internal work"
                        { value: "internal", label: qsTrId("ui.category.internal") },
                        //% "Admin"
                        { value: "admin", label: qsTrId("ui.category.admin") }
                    ]
                    value: root.task.category
                    onChosen: (value) => root.task.setCategory(value)
                }
                FieldLabel {
                    //% "Due"
                    text: qsTrId("ui.inspector.due")
                }
                InlineField {
                    id: dueField
                    Layout.fillWidth: true
                    value: root.task.dueDate
                    readOnly: !root.editable
                    placeholderText: root.editable ? "YYYY-MM-DD" : ""
                    //% "Due date"
                    Accessible.name: qsTrId("ui.inspector.dueDate")
                    property bool bad: false
                    color: bad ? Theme.danger : Theme.text
                    onCommit: (text) => bad = !root.task.setDueDate(text)
                    onValueChanged: bad = false
                }
            }

            FieldLabel {
                //% "Description"
                text: qsTrId("ui.inspector.description")
            }
            TextArea {
                id: description
                textFormat: TextEdit.PlainText
                Layout.fillWidth: true
                Layout.minimumHeight: 64
                readOnly: !root.editable
                text: root.task.description
                wrapMode: TextEdit.Wrap
                color: Theme.text
                font.pixelSize: Theme.fontBody
                //% "Notes for yourself or the client"
                placeholderText: root.editable ? qsTrId("ui.inspector.describe") : ""
                placeholderTextColor: Theme.muted
                Accessible.name: qsTrId("ui.inspector.description")
                background: Rectangle {
                    radius: Theme.radiusControl
                    color: Theme.background
                    border.color: description.activeFocus ? Theme.accent : Theme.border
                    border.width: description.activeFocus ? 2 : 1
                }
                onActiveFocusChanged: if (!activeFocus) root.task.setDescription(text)
                Connections {
                    target: root.task
                    function onChanged() { if (!description.activeFocus) description.text = root.task.description }
                }
            }

            // Price in words.
            FieldLabel {
                //% "Price"
                text: qsTrId("ui.inspector.price")
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                text: root.task.price
                color: Theme.text
                font.family: Theme.monoFamily
                font.pixelSize: Theme.fontBody
                wrapMode: Text.Wrap
            }
            FlatButton {
                objectName: "editPriceButton"
                compact: true
                visible: root.editable
                //% "Change the price…"
                text: qsTrId("ui.prices.edit")
                onClicked: { root.task.editPrice(); taskPrice.open() }
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                text: root.task.priceSource
                color: Theme.muted
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }

            // Checklist.
            FieldLabel {
                Layout.topMargin: Theme.space2
                //% "Subtasks"
                text: qsTrId("ui.inspector.subtasks")
            }
            Repeater {
                model: root.task.subtasks
                RowLayout {
                    required property var modelData
                    Layout.fillWidth: true
                    Check {
                        checked: modelData.done
                        enabled: root.editable
                        Accessible.name: modelData.title
                        onToggled: root.task.setSubtaskDone(modelData.id, checked)
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: modelData.title
                        color: modelData.done ? Theme.muted : Theme.text
                        font.strikeout: modelData.done
                        elide: Text.ElideRight
                    }
                    FlatButton {
                        compact: true
                        visible: root.editable
                        text: "×"
                        //% "Remove %1"
                        Accessible.name: qsTrId("ui.common.remove").arg(modelData.title)
                        onClicked: root.task.removeSubtask(modelData.id)
                    }
                }
            }
            Field {
                Layout.fillWidth: true
                visible: root.editable
                //% "Add a subtask"
                placeholderText: qsTrId("ui.inspector.addSubtask")
                onAccepted: { root.task.addSubtask(text); text = "" }
            }

            // Assignees, on team projects.
            FieldLabel {
                Layout.topMargin: Theme.space2
                visible: root.task.onTeam
                //% "Assigned to"
                text: qsTrId("ui.inspector.assignees")
            }
            Repeater {
                model: root.task.onTeam ? root.task.members : []
                Check {
                    required property var modelData
                    text: modelData.email
                    checked: modelData.assigned
                    enabled: root.editable
                    onToggled: root.task.setAssigned(modelData.userId, checked)
                }
            }

            // Notes thread.
            FieldLabel {
                Layout.topMargin: Theme.space2
                //% "Notes"
                text: qsTrId("ui.inspector.notes")
            }
            Repeater {
                model: root.task.notes
                ColumnLayout {
                    required property var modelData
                    Layout.fillWidth: true
                    spacing: 0
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: modelData.text
                        color: Theme.text
                        wrapMode: Text.Wrap
                    }
                    Text {
                        textFormat: Text.PlainText
                        text: [modelData.author, modelData.when].filter(s => s).join(" · ")
                        color: Theme.muted
                        font.pixelSize: Theme.fontSmall
                    }
                }
            }
            Field {
                Layout.fillWidth: true
                visible: root.editable
                //% "Add a note"
                placeholderText: qsTrId("ui.inspector.addNote")
                onAccepted: { root.task.addNote(text); text = "" }
            }

            EntryList {
                Layout.fillWidth: true
                Layout.topMargin: Theme.space3
                inspector: root.task
                editable: root.editable
            }
        }
    }
}
