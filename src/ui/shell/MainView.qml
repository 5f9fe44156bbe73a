import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Qt.labs.settings
import Morvane.Ui

// The three panes under the timer strip: sidebar, list, inspector.
Rectangle {
    id: main
    objectName: "mainView"
    color: Theme.background
    readonly property var workspace: Shell.workspace
    readonly property bool compactSidebar: width < Theme.sidebarFoldWidth
    readonly property bool showInspector: width >= Theme.inspectorFoldWidth
    property string teamId: ""
    property bool settingsOpen: false
    // A screen that takes the list and the inspector's place, by id; empty shows the tasks.
    property string page: ""
    // The screens reached from the sidebar's links, in the order it lists them: { id, title, source }.
    readonly property var pageLinks: [
        { id: "sessions", title: qsTrId("ui.sessions.title"), source: "qrc:/Morvane/Ui/sessions/SessionsView.qml" },
        { id: "summary", title: qsTrId("ui.summary.title"), source: "qrc:/Morvane/Ui/assistant/SummaryView.qml" },
        { id: "calendar", title: qsTrId("ui.calendar.link"), source: "qrc:/Morvane/Ui/calendar/CalendarView.qml" },
        { id: "invoices", title: qsTrId("ui.invoices.title"), source: "qrc:/Morvane/Ui/invoices/InvoicesView.qml" },
        { id: "earnings", title: qsTrId("ui.earnings.title"), source: "qrc:/Morvane/Ui/earnings/EarningsView.qml" },
        { id: "trips", title: qsTrId("ui.trips.title"), source: "qrc:/Morvane/Ui/trips/TripsView.qml" },
        { id: "clients", title: qsTrId("ui.clients.title"), source: "qrc:/Morvane/Ui/clients/ClientsView.qml" },
        { id: "style", title: qsTrId("ui.style.title"), source: "qrc:/Morvane/Ui/style/InvoiceStyleView.qml" }
    ]
    // Screens reached from inside others, not listed in the sidebar.
    readonly property var innerPages: [
        { id: "composer", source: "qrc:/Morvane/Ui/composer/ComposerView.qml" }
    ]
    property alias sidebarWidth: sidebar.preferredWidth
    property alias inspectorWidth: inspectorPane.preferredWidth
    signal paletteRequested()
    signal floatingToggled()

    Settings {
        category: "panes"
        property alias sidebarWidth: main.sidebarWidth
        property alias inspectorWidth: main.inspectorWidth
        property alias projectId: main.rememberedProject
    }
    property string rememberedProject: ""
    Component.onCompleted: if (rememberedProject) workspace.selectedProjectId = rememberedProject
    Connections {
        target: main.workspace.composer
        function onOpened() { main.settingsOpen = false; main.teamId = ""; main.page = "composer" }
        function onSaved() { main.page = "invoices" }
    }
    Connections {
        target: main.workspace
        function onSelectionChanged() { main.rememberedProject = main.workspace.selectedProjectId }
    }

    function runAction(name) {
        if (name === "newTask") taskList.startNewTask()
        else if (name === "newProject") sidebar.startNewProject()
        else if (name === "newTeam") sidebar.startNewTeam()
        else if (name === "settings") settingsOpen = true
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TimerStrip {
            Layout.fillWidth: true
            onFloatingToggled: main.floatingToggled()
        }

        Banner {
            Layout.fillWidth: true
            Layout.margins: visible ? Theme.space2 : 0
            text: workspace.lastError
            onDismissed: workspace.dismissError()
        }
        Banner {
            Layout.fillWidth: true
            Layout.margins: visible ? Theme.space2 : 0
            error: false
            text: workspace.message
            onDismissed: workspace.dismissError()
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            Sidebar {
                id: sidebar
                property int preferredWidth: Theme.sidebarWidth
                Layout.fillHeight: true
                Layout.preferredWidth: main.compactSidebar ? Theme.sidebarCompactWidth : preferredWidth
                compact: main.compactSidebar
                links: main.pageLinks
                currentPage: main.settingsOpen ? "settings" : (main.page === "composer" ? "invoices" : main.page)
                onTeamChosen: (id) => { main.teamId = id; main.settingsOpen = false; main.page = "" }
                onProjectChosen: { main.teamId = ""; main.settingsOpen = false; main.page = "" }
                onSettingsChosen: main.settingsOpen = true
                onPageChosen: (id) => { main.teamId = ""; main.settingsOpen = false; main.page = id }
            }
            Rectangle { Layout.fillHeight: true; Layout.preferredWidth: 1; color: Theme.border }

            ColumnLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: 0
                visible: !main.settingsOpen && main.page === ""
                ProjectHeader {
                    Layout.fillWidth: true
                    visible: main.teamId === ""
                }
                TaskList {
                    id: taskList
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    visible: main.teamId === ""
                    onEditRequested: inspectorPane.editTitle()
                }
                TeamView {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    visible: main.teamId !== ""
                    teamId: main.teamId
                }
            }
            Loader {
                objectName: "pageLoader"
                Layout.fillWidth: true
                Layout.fillHeight: true
                active: !main.settingsOpen && main.page !== ""
                visible: active
                source: {
                    const link = main.pageLinks.concat(main.innerPages).find(l => l.id === main.page)
                    return link ? link.source : ""
                }
            }
            Loader {
                Layout.fillWidth: true
                Layout.fillHeight: true
                active: main.settingsOpen
                visible: active
                sourceComponent: SettingsView {
                    Component.onCompleted: forceActiveFocus()
                    onClosed: main.settingsOpen = false
                }
            }

            Rectangle {
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                color: Theme.border
                visible: inspectorPane.visible
            }
            Inspector {
                id: inspectorPane
                property int preferredWidth: Theme.inspectorWidth
                Layout.fillHeight: true
                Layout.preferredWidth: preferredWidth
                visible: main.showInspector && main.teamId === "" && !main.settingsOpen && main.page === ""
            }
        }
    }

    // Keys of the main window; text fields keep their own keys while they have focus.
    Shortcut { sequence: "Ctrl+N"; onActivated: taskList.startNewTask() }
    Shortcut { sequence: "Ctrl+Shift+N"; onActivated: sidebar.startNewProject() }
    Shortcut { sequence: "Ctrl+F"; onActivated: taskList.focusFilter() }
    Shortcut { sequence: "Ctrl+,"; onActivated: main.settingsOpen = true }
    Repeater {
        model: 9
        Item {
            required property int index
            Shortcut {
                sequence: "Ctrl+" + (index + 1)
                onActivated: { main.teamId = ""; main.workspace.selectProjectAt(index + 1) }
            }
        }
    }
}
