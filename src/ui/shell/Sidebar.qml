import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// The overview, the projects by status with their open tasks, and the teams.
Rectangle {
    id: sidebar
    color: Theme.surface
    property bool compact: false
    property string chosenTeam: ""
    readonly property var workspace: Shell.workspace
    signal teamChosen(string id)
    signal projectChosen()
    signal settingsChosen()
    signal pageChosen(string id)
    property var links: []
    property string currentPage: ""

    function startNewProject() { newProject.visible = true; newProject.forceActiveFocus() }
    function startNewTeam() { newTeam.visible = true; newTeam.forceActiveFocus() }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.space2
        spacing: Theme.space1

        ListView {
            id: list
            objectName: "sidebarList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: sidebar.workspace.sidebar
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: true
            activeFocusOnTab: true
            Accessible.role: Accessible.List
            //% "Projects"
            Accessible.name: qsTrId("ui.sidebar.projects")
            delegate: ItemDelegate {
                id: row
                required property string kind
                required property string id
                required property string title
                required property int count
                required property bool running
                required property bool shared
                readonly property bool isCurrent: sidebar.currentPage !== "" ? false
                                                : kind === "team" ? sidebar.chosenTeam === id
                                                : kind === "overview" ? sidebar.chosenTeam === ""
                                                                        && sidebar.workspace.selectedProjectId === ""
                                                : kind === "project" && sidebar.chosenTeam === ""
                                                  && sidebar.workspace.selectedProjectId === id
                width: ListView.view.width
                height: kind === "header" ? (sidebar.compact ? 12 : 28) : Theme.rowHeight - 6
                enabled: kind !== "header"
                focusPolicy: Qt.NoFocus
                Accessible.name: title
                // Names are the person's own text, never markup.
                ToolTip {
                    visible: sidebar.compact && row.hovered && row.kind !== "header"
                    delay: 400
                    text: row.title
                    contentItem: Text {
                        textFormat: Text.PlainText
                        text: row.title
                        color: Theme.text
                        font.pixelSize: Theme.fontSmall
                    }
                    background: Rectangle { color: Theme.surface; border.color: Theme.border; radius: Theme.radiusControl }
                }
                onClicked: {
                    if (kind === "team") {
                        sidebar.chosenTeam = id
                        sidebar.teamChosen(id)
                    } else {
                        sidebar.chosenTeam = ""
                        sidebar.workspace.selectedProjectId = kind === "project" ? id : ""
                        sidebar.projectChosen()
                    }
                }
                background: Rectangle {
                    radius: Theme.radiusControl
                    color: row.isCurrent ? Theme.selected : (row.hovered && row.kind !== "header" ? Theme.hover : "transparent")
                }
                contentItem: RowLayout {
                    spacing: Theme.space2
                    Rectangle {
                        // The initial stands in for the name when the sidebar is folded.
                        visible: sidebar.compact && row.kind !== "header"
                        Layout.preferredWidth: 24
                        Layout.preferredHeight: 24
                        radius: Theme.radiusControl
                        color: row.isCurrent ? Theme.accent : Theme.hover
                        Text {
                            textFormat: Text.PlainText
                            anchors.centerIn: parent
                            text: row.kind === "overview" ? "∗" : row.title.charAt(0).toUpperCase()
                            color: row.isCurrent ? Theme.textOnAccent : Theme.text
                            font.pixelSize: Theme.fontSmall
                            font.weight: Font.DemiBold
                        }
                    }
                    Text {
                        textFormat: Text.PlainText
                        visible: !sidebar.compact
                        Layout.fillWidth: true
                        text: row.title
                        elide: Text.ElideRight
                        color: row.kind === "header" ? Theme.muted : Theme.text
                        font.pixelSize: row.kind === "header" ? Theme.fontSmall : Theme.fontBody
                        font.weight: row.kind === "header" || row.isCurrent ? Font.DemiBold : Font.Normal
                        font.capitalization: row.kind === "header" ? Font.AllUppercase : Font.MixedCase
                    }
                    Text {
                        textFormat: Text.PlainText
                        visible: !sidebar.compact && row.shared
                        text: "⇄"
                        color: Theme.muted
                        font.pixelSize: Theme.fontSmall
                        //% "Shared with a team"
                        Accessible.name: qsTrId("ui.sidebar.shared")
                    }
                    Rectangle {
                        // The project whose task is running.
                        visible: row.running && row.kind !== "header"
                        Layout.preferredWidth: 8
                        Layout.preferredHeight: 8
                        radius: 4
                        color: Theme.running
                        //% "Timer running"
                        Accessible.name: qsTrId("ui.sidebar.running")
                    }
                    Text {
                        textFormat: Text.PlainText
                        visible: !sidebar.compact && row.kind !== "header" && row.count > 0
                        text: row.count
                        color: Theme.muted
                        font.family: Theme.monoFamily
                        font.pixelSize: Theme.fontSmall
                    }
                }
            }
        }

        // Links to the screens beside the task lists.
        Repeater {
            model: sidebar.links
            ItemDelegate {
                id: link
                required property var modelData
                Layout.fillWidth: true
                implicitHeight: Theme.rowHeight - 6
                focusPolicy: Qt.NoFocus
                Accessible.name: modelData.title
                onClicked: sidebar.pageChosen(modelData.id)
                background: Rectangle {
                    radius: Theme.radiusControl
                    color: sidebar.currentPage === link.modelData.id ? Theme.selected
                         : link.hovered ? Theme.hover : "transparent"
                }
                contentItem: Text {
                    textFormat: Text.PlainText
                    text: sidebar.compact ? link.modelData.title.charAt(0) : link.modelData.title
                    color: Theme.text
                    font.pixelSize: Theme.fontBody
                    font.weight: sidebar.currentPage === link.modelData.id ? Font.DemiBold : Font.Normal
                    elide: Text.ElideRight
                    horizontalAlignment: sidebar.compact ? Text.AlignHCenter : Text.AlignLeft
                }
            }
        }

        Field {
            id: newProject
            objectName: "newProjectField"
            Layout.fillWidth: true
            visible: false
            //% "New project name"
            placeholderText: qsTrId("ui.sidebar.newProjectName")
            onAccepted: { sidebar.workspace.createProject(text); text = ""; visible = false }
            Keys.onEscapePressed: { text = ""; visible = false }
            onActiveFocusChanged: if (!activeFocus && text === "") visible = false
        }
        Field {
            id: newTeam
            Layout.fillWidth: true
            visible: false
            //% "New team name"
            placeholderText: qsTrId("ui.sidebar.newTeamName")
            onAccepted: { sidebar.workspace.createTeam(text); text = ""; visible = false }
            Keys.onEscapePressed: { text = ""; visible = false }
            onActiveFocusChanged: if (!activeFocus && text === "") visible = false
        }
        FlatButton {
            Layout.fillWidth: true
            visible: !sidebar.compact
            //% "New project"
            text: "+ " + qsTrId("ui.action.newProject")
            onClicked: sidebar.startNewProject()
        }
        FlatButton {
            Layout.fillWidth: true
            visible: !sidebar.compact
            text: "+ " + qsTrId("ui.action.newTeam")
            onClicked: sidebar.startNewTeam()
        }
        FlatButton {
            objectName: "settingsButton"
            Layout.fillWidth: true
            text: sidebar.compact ? "⚙" : qsTrId("ui.action.settings")
            Accessible.name: qsTrId("ui.action.settings")
            onClicked: sidebar.settingsChosen()
        }
    }
}
