import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Window
import Qt.labs.settings
import Morvane.Ui

ApplicationWindow {
    id: window
    objectName: "mainWindow"
    width: 1280
    height: 800
    minimumWidth: 720
    minimumHeight: 480
    visible: true
    title: "Morvane"
    color: Theme.background
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody

    readonly property var workspace: Shell.workspace
    property alias floatingVisible: floating.visible

    Settings {
        category: "window"
        property alias x: window.x
        property alias y: window.y
        property alias width: window.width
        property alias height: window.height
        property alias floatingVisible: window.floatingVisible
    }

    Connections {
        target: Shell
        function onActivationRequested() {
            window.show()
            window.raise()
            window.requestActivate()
        }
    }

    Loader {
        id: page
        anchors.fill: parent
        sourceComponent: Shell.phase === Shell.Ready ? mainView
                       : Shell.phase === Shell.SignedOut ? authView
                       : startupView
    }
    Component { id: startupView; StartupView {} }
    Component { id: authView; AuthView {} }
    Component {
        id: mainView
        MainView {
            onPaletteRequested: palette.openPalette()
            onFloatingToggled: floating.visible = !floating.visible
        }
    }

    CommandPalette {
        id: palette
        onActionChosen: (name) => window.runAction(name)
        onCaptureChosen: (sentence) => { quickAdd.openWith(""); Shell.assistant.capture(sentence) }
    }

    FloatingTimer { id: floating }
    ExportDialog { id: exportDialog }
    QuickAdd { id: quickAdd }
    ConsentDialog {}
    Connections {
        target: Shell.assistant
        function onFocusRequested(projectId, taskId) {
            if (projectId) window.workspace.selectedProjectId = projectId
            if (taskId) window.workspace.selectedTaskId = taskId
        }
    }

    IdleDialog {
        id: idleDialog
        watcher: Shell.idle
        taskTitle: window.workspace.runningTaskTitle
    }
    Connections {
        target: Shell.idle
        function onQuestionChanged() {
            if (Shell.idle.asking) {
                idleDialog.open()
                Shell.activate()
            } else {
                idleDialog.close()
            }
        }
    }
    TrayIcon {
        onShowWindow: Shell.activate()
        onQuickAdd: { Shell.activate(); quickAdd.openWith("") }
        onToggleFloating: floating.visible = !floating.visible
    }

    // Actions the palette and the menus share with the keys.
    function runAction(name) {
        if (name === "toggleTimer") workspace.toggleTimer(workspace.selectedTaskId)
        else if (name === "floatingTimer") floating.visible = !floating.visible
        else if (name === "toggleTheme") Shell.colorScheme = Shell.dark ? "light" : "dark"
        else if (name === "signOut") Shell.signOut()
        else if (name === "accountantExport") exportDialog.open()
        else if (name === "quickAdd") quickAdd.openWith("")
        else if (page.item && page.item.runAction) page.item.runAction(name)
    }

    Shortcut {
        sequence: "Ctrl+K"
        enabled: Shell.phase === Shell.Ready
        onActivated: palette.openPalette()
    }
}
