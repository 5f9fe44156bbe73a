import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// The chosen project: name and description edit in place; status, team and delete in its menu.
Rectangle {
    id: header
    readonly property var workspace: Shell.workspace
    readonly property var project: workspace.project
    readonly property bool isProject: project.id !== undefined
    readonly property bool canEdit: isProject && project.canEdit
    implicitHeight: column.implicitHeight + 2 * Theme.space3
    color: Theme.background

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: Theme.space3
        anchors.leftMargin: Theme.space4
        anchors.rightMargin: Theme.space4
        spacing: Theme.space1

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space2
            InlineField {
                id: nameField
                objectName: "projectNameField"
                Layout.fillWidth: true
                //% "All projects"
                value: header.isProject ? header.project.name : qsTrId("ui.sidebar.overview")
                readOnly: !header.canEdit
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                //% "Project name"
                placeholderText: qsTrId("ui.projects.name")
                onCommit: (text) => header.workspace.renameProject(header.project.id, text)
            }
            Chip {
                visible: header.isProject && header.project.status !== "active"
                text: header.isProject ? header.statusText(header.project.status) : ""
            }
            Chip {
                visible: header.isProject && header.project.teamName !== ""
                tone: "primary"
                text: header.isProject ? header.project.teamName : ""
            }
            Chip {
                visible: header.isProject && !header.canEdit
                //% "View only"
                text: qsTrId("ui.projects.viewOnly")
            }
            FlatButton {
                id: menuButton
                visible: header.canEdit
                text: "⋯"
                //% "Project actions"
                Accessible.name: qsTrId("ui.projects.actions")
                onClicked: menu.open()
                Menu {
                    id: menu
                    y: menuButton.height
                    MenuItem {
                        //% "Price…"
                        text: qsTrId("ui.prices.project")
                        onTriggered: { header.workspace.editProjectPrice(); projectPrice.open() }
                    }
                    MenuItem {
                        //% "Create invoice…"
                        text: qsTrId("ui.projects.invoice")
                        onTriggered: header.workspace.composer.open([header.project.id])
                    }
                    MenuItem {
                        //% "Mark as active"
                        text: qsTrId("ui.projects.markActive")
                        visible: header.isProject && header.project.status !== "active"
                        height: visible ? implicitHeight : 0
                        onTriggered: header.workspace.setProjectStatus(header.project.id, "active")
                    }
                    MenuItem {
                        //% "Mark as completed"
                        text: qsTrId("ui.projects.markCompleted")
                        visible: header.isProject && header.project.status !== "completed"
                        height: visible ? implicitHeight : 0
                        onTriggered: header.workspace.setProjectStatus(header.project.id, "completed")
                    }
                    MenuItem {
                        //% "Archive"
                        text: qsTrId("ui.projects.archive")
                        visible: header.isProject && header.project.status !== "archived"
                        height: visible ? implicitHeight : 0
                        onTriggered: header.workspace.setProjectStatus(header.project.id, "archived")
                    }
                    Menu {
                        //% "Share with a team"
                        title: qsTrId("ui.projects.share")
                        enabled: header.isProject && header.project.isOwner
                        Repeater {
                            model: header.workspace.teams
                            MenuItem {
                                required property var modelData
                                text: modelData.name
                                checkable: true
                                checked: header.isProject && header.project.teamId === modelData.id
                                onTriggered: header.workspace.shareProject(header.project.id, modelData.id)
                            }
                        }
                        MenuItem {
                            //% "Not shared"
                            text: qsTrId("ui.projects.notShared")
                            checkable: true
                            checked: header.isProject && header.project.teamId === ""
                            onTriggered: header.workspace.shareProject(header.project.id, "")
                        }
                    }
                    MenuSeparator {}
                    MenuItem {
                        //% "Delete project…"
                        text: qsTrId("ui.projects.delete")
                        enabled: header.isProject && header.project.isOwner
                        onTriggered: confirmDelete.open()
                    }
                }
            }
        }
        InlineField {
            Layout.fillWidth: true
            visible: header.isProject
            value: header.isProject ? header.project.description : ""
            readOnly: !header.canEdit
            color: Theme.muted
            //% "Add a description"
            placeholderText: header.canEdit ? qsTrId("ui.projects.describe") : ""
            onCommit: (text) => header.workspace.describeProject(header.project.id, text)
        }
    }

    function statusText(status) {
        return status === "completed" ? qsTrId("ui.projects.status.completed")
             : status === "archived" ? qsTrId("ui.projects.status.archived")
             : qsTrId("ui.projects.status.active")
    }

    PriceEditor {
        id: projectPrice
        parent: Overlay.overlay
        editor: header.workspace.projectPriceEditor
        heading: header.isProject ? header.project.name : ""
        onSaveRequested: header.workspace.saveProjectPrice()
    }

    ConfirmDialog {
        id: confirmDelete
        //% "Delete %1?"
        title: qsTrId("ui.projects.deleteTitle").arg(header.isProject ? header.project.name : "")
        //% "Its tasks and their time entries are deleted too. This cannot be undone."
        body: qsTrId("ui.projects.deleteBody")
        //% "Delete"
        confirmText: qsTrId("ui.common.delete")
        onConfirmed: header.workspace.deleteProject(header.project.id)
    }
}
