import QtQuick
import Qt.labs.platform as Platform
import Morvane.Ui

// The tray: the running task and its clock, stop, the five recent tasks, open and quit. Where the
// desktop has no tray, all of it is in the window too.
Platform.SystemTrayIcon {
    id: tray
    readonly property var workspace: Shell.workspace
    signal showWindow()
    signal toggleFloating()
    signal quickAdd()
    visible: available
    icon.source: "qrc:/Morvane/Ui/icons/morvane.svg"
    tooltip: workspace.timerRunning ? workspace.runningTaskTitle + " — " + workspace.timerText : "Morvane"
    onActivated: (reason) => { if (reason === Platform.SystemTrayIcon.Trigger) tray.showWindow() }

    menu: Platform.Menu {
        Platform.MenuItem {
            visible: tray.workspace.timerRunning
            enabled: false
            text: tray.workspace.runningTaskTitle + "  " + tray.workspace.timerText
        }
        Platform.MenuItem {
            visible: tray.workspace.timerRunning
            //% "Stop the timer"
            text: qsTrId("ui.tray.stop")
            onTriggered: tray.workspace.stopTimer()
        }
        Platform.MenuSeparator { visible: tray.workspace.timerRunning }
        Platform.Menu {
            id: recentMenu
            //% "Start"
            title: qsTrId("ui.tray.start")
            enabled: tray.workspace.recentTasks.length > 0
            Instantiator {
                model: tray.workspace.recentTasks
                delegate: Platform.MenuItem {
                    required property var modelData
                    text: modelData.title + " · " + modelData.projectName
                    onTriggered: tray.workspace.startTimer(modelData.id)
                }
                onObjectAdded: (index, object) => recentMenu.insertItem(index, object)
                onObjectRemoved: (index, object) => recentMenu.removeItem(object)
            }
        }
        Platform.MenuItem {
            //% "Floating timer"
            text: qsTrId("ui.tray.floating")
            onTriggered: tray.toggleFloating()
        }
        Platform.MenuItem {
            //% "Quick add…"
            text: qsTrId("ui.tray.quickAdd")
            onTriggered: tray.quickAdd()
        }
        Platform.MenuSeparator {}
        Platform.MenuItem {
            //% "Open Morvane"
            text: qsTrId("ui.tray.open")
            onTriggered: tray.showWindow()
        }
        Platform.MenuItem {
            //% "Quit"
            text: qsTrId("ui.tray.quit")
            onTriggered: Qt.quit()
        }
    }
}
