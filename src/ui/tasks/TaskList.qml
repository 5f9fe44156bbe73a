import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// The tasks of the chosen project (or of all): filter, sort, search, multi-selection and bulk
// actions, drag to reorder in manual order, and the keys that move and act on the selection.
Rectangle {
    id: root
    color: Theme.background
    readonly property var workspace: Shell.workspace
    readonly property var checked: workspace.checkedTaskIds
    readonly property bool manual: workspace.sort === "manual" && workspace.selectedProjectId !== ""
    // Without a project there is nothing to add a task to, search or sort.
    readonly property bool hasProjects: workspace.projectChoices.length > 0 || workspace.selectedProjectId !== ""
    property string anchorTaskId: ""

    // Enter on a task: its title in the inspector takes the keyboard.
    signal editRequested()

    function startNewTask() { newTask.forceActiveFocus() }
    function focusFilter() { search.forceActiveFocus(); search.selectAll() }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Field {
            id: newTask
            // A viewer of a team's project adds nothing to it.
            visible: root.hasProjects && (root.workspace.selectedProjectId === "" || root.workspace.project.canEdit === true)
            Layout.fillWidth: true
            Layout.leftMargin: Theme.space4
            Layout.rightMargin: Theme.space4
            Layout.bottomMargin: Theme.space2
            objectName: "newTaskField"
            //% "Add a task and press Enter"
            placeholderText: qsTrId("ui.tasks.add")
            onAccepted: { if (text.trim() !== "") root.workspace.createTask(text); text = "" }
            Keys.onEscapePressed: { text = ""; list.forceActiveFocus() }
        }
        RowLayout {
            visible: root.hasProjects
            Layout.fillWidth: true
            Layout.leftMargin: Theme.space4
            Layout.rightMargin: Theme.space4
            Layout.bottomMargin: Theme.space2
            spacing: Theme.space2
            Field {
                id: search
                objectName: "searchField"
                Layout.fillWidth: true
                //% "Search"
                placeholderText: qsTrId("ui.tasks.search")
                text: root.workspace.search
                onTextEdited: root.workspace.search = text
                Keys.onEscapePressed: { text = ""; root.workspace.search = ""; list.forceActiveFocus() }
            }
            Choice {
                id: filterBox
                Layout.preferredWidth: 120
                //% "Filter"
                Accessible.name: qsTrId("ui.tasks.filter")
                model: [
                    //% "All"
                    { value: "all", label: qsTrId("ui.tasks.filter.all") },
                    //% "Open"
                    { value: "active", label: qsTrId("ui.tasks.filter.active") },
                    //% "Done"
                    { value: "done", label: qsTrId("ui.tasks.filter.done") },
                    //% "Archived"
                    { value: "archived", label: qsTrId("ui.tasks.filter.archived") }
                ]
                value: root.workspace.filter
                onChosen: (value) => root.workspace.filter = value
            }
            Choice {
                id: sortBox
                Layout.preferredWidth: 160
                //% "Sort"
                Accessible.name: qsTrId("ui.tasks.sort")
                model: [
                    //% "Manual order"
                    { value: "manual", label: qsTrId("ui.tasks.sort.manual") },
                    //% "Newest first"
                    { value: "createdDesc", label: qsTrId("ui.tasks.sort.createdDesc") },
                    //% "Priority"
                    { value: "priorityDesc", label: qsTrId("ui.tasks.sort.priorityDesc") },
                    //% "Due date"
                    { value: "dueAsc", label: qsTrId("ui.tasks.sort.dueAsc") },
                    //% "Most tracked"
                    { value: "trackedDesc", label: qsTrId("ui.tasks.sort.trackedDesc") },
                    //% "Name"
                    { value: "alpha", label: qsTrId("ui.tasks.sort.alpha") }
                ]
                value: root.workspace.sort
                onChosen: (value) => root.workspace.sort = value
            }
        }

        // Bulk actions over the checked tasks.
        Rectangle {
            Layout.fillWidth: true
            Layout.leftMargin: Theme.space4
            Layout.rightMargin: Theme.space4
            Layout.bottomMargin: visible ? Theme.space2 : 0
            visible: root.checked.length > 0
            implicitHeight: visible ? bulkRow.implicitHeight + Theme.space2 : 0
            radius: Theme.radiusControl
            color: Theme.accentSoft
            RowLayout {
                id: bulkRow
                anchors.fill: parent
                anchors.leftMargin: Theme.space3
                anchors.rightMargin: Theme.space1
                spacing: Theme.space2
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    //% "%1 selected"
                    text: qsTrId("ui.tasks.selected").arg(root.checked.length)
                    color: Theme.text
                    font.weight: Font.DemiBold
                }
                FlatButton {
                    compact: true
                    //% "Mark done"
                    text: qsTrId("ui.tasks.markDone")
                    onClicked: root.workspace.bulkSetStatus("completed")
                }
                FlatButton {
                    compact: true
                    //% "Reopen"
                    text: qsTrId("ui.tasks.reopen")
                    onClicked: root.workspace.bulkSetStatus("not_started")
                }
                FlatButton {
                    id: moveButton
                    compact: true
                    //% "Move to…"
                    text: qsTrId("ui.tasks.moveTo")
                    onClicked: moveMenu.open()
                    Menu {
                        id: moveMenu
                        y: moveButton.height
                        Repeater {
                            // Built when the menu opens: hundreds of projects cost the list's start.
                            model: moveMenu.visible ? root.workspace.projectChoices : []
                            MenuItem {
                                required property var modelData
                                text: modelData.name
                                onTriggered: root.workspace.bulkMove(modelData.id)
                            }
                        }
                    }
                }
                FlatButton {
                    compact: true
                    danger: true
                    text: qsTrId("ui.common.delete")
                    onClicked: confirmBulkDelete.open()
                }
                FlatButton {
                    compact: true
                    //% "Clear"
                    text: qsTrId("ui.tasks.clearSelection")
                    onClicked: root.workspace.clearChecked()
                }
            }
        }

        Rectangle { Layout.fillWidth: true; Layout.preferredHeight: 1; color: Theme.border }

        ListView {
            id: list
            objectName: "taskList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: root.workspace.tasks
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            reuseItems: true
            cacheBuffer: 400
            currentIndex: root.workspace.tasks.indexOf(root.workspace.selectedTaskId)
            highlightFollowsCurrentItem: false
            Accessible.role: Accessible.List
            //% "Tasks"
            Accessible.name: qsTrId("ui.tasks.list")
            ScrollBar.vertical: ScrollBar {}
            onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

            delegate: TaskRow {
                width: ListView.view.width
                draggable: root.manual
                current: root.workspace.selectedTaskId === id
                showProject: root.workspace.selectedProjectId === ""
                onChosen: (modifiers) => {
                    if (modifiers & Qt.ShiftModifier && root.anchorTaskId !== "") {
                        root.workspace.checkRange(root.anchorTaskId, id)
                    } else if (modifiers & Qt.ControlModifier) {
                        root.workspace.toggleChecked(id)
                        root.anchorTaskId = id
                    } else {
                        root.workspace.selectedTaskId = id
                        root.anchorTaskId = id
                    }
                    list.forceActiveFocus()
                }
                onDropped: (toY) => {
                    const target = list.indexAt(0, list.contentY + list.mapFromItem(this, 0, toY).y)
                    root.workspace.moveTaskInList(id, target < 0 ? list.count - 1 : target)
                }
            }

            Keys.onUpPressed: root.workspace.selectNeighbor(false)
            Keys.onDownPressed: root.workspace.selectNeighbor(true)
            Keys.onSpacePressed: root.workspace.toggleTimer(root.workspace.selectedTaskId)
            Keys.onReturnPressed: root.editRequested()
            Keys.onEnterPressed: root.editRequested()
            Keys.onDeletePressed: if (root.workspace.selectedTaskId !== "") confirmDelete.open()
            Keys.onEscapePressed: root.workspace.clearChecked()

            EmptyState {
                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * Theme.space5, 420)
                visible: list.count === 0 && !root.workspace.loading
                title: root.workspace.search !== ""
                       //% "No task matches “%1”."
                       ? qsTrId("ui.tasks.noMatch").arg(root.workspace.search)
                       : root.workspace.projectChoices.length === 0 && root.workspace.selectedProjectId === ""
                         //% "No projects yet."
                         ? qsTrId("ui.tasks.noProjects")
                         //% "No tasks yet."
                         : qsTrId("ui.tasks.empty")
                hint: root.workspace.search !== ""
                      //% "Try fewer letters, or press Esc to clear the search."
                      ? qsTrId("ui.tasks.noMatchHint")
                      : root.workspace.projectChoices.length === 0 && root.workspace.selectedProjectId === ""
                        //% "Press Ctrl+Shift+N to create your first project."
                        ? qsTrId("ui.tasks.noProjectsHint")
                        //% "Press Ctrl+N to add one."
                        : qsTrId("ui.tasks.emptyHint")
            }
        }
    }

    ConfirmDialog {
        id: confirmDelete
        //% "Delete this task?"
        title: qsTrId("ui.tasks.deleteTitle")
        //% "Its time entries are deleted too."
        body: qsTrId("ui.tasks.deleteBody")
        confirmText: qsTrId("ui.common.delete")
        onConfirmed: root.workspace.deleteTask(root.workspace.selectedTaskId)
    }
    ConfirmDialog {
        id: confirmBulkDelete
        //% "Delete the selected tasks (%1)?"
        title: qsTrId("ui.tasks.bulkDeleteTitle").arg(root.checked.length)
        body: qsTrId("ui.tasks.deleteBody")
        confirmText: qsTrId("ui.common.delete")
        onConfirmed: root.workspace.bulkDelete()
    }
}
