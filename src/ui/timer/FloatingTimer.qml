import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import QtQuick.Window
import Qt.labs.settings
import Morvane.Ui

// A small window that stays on top: the running task and its clock, start or stop with one click.
Window {
    id: floating
    objectName: "floatingTimer"
    readonly property var workspace: Shell.workspace
    width: 280
    height: 56
    // Until the person moves it: the top right corner, clear of panels.
    x: Screen.desktopAvailableWidth - width - Theme.space5
    y: Theme.space6 + Theme.space4
    visible: false
    color: "transparent"
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    //% "Morvane timer"
    title: qsTrId("ui.floating.title")

    Settings {
        category: "floatingTimer"
        property alias x: floating.x
        property alias y: floating.y
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusCard
        color: Theme.surface
        border.color: Theme.border

        DragHandler {
            // Moves the frameless window where the platform lets it.
            target: null
            onActiveChanged: if (active) floating.startSystemMove()
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.space3
            anchors.rightMargin: Theme.space2
            spacing: Theme.space2
            Rectangle {
                Layout.preferredWidth: 8
                Layout.preferredHeight: 8
                radius: 4
                color: floating.workspace.timerRunning ? Theme.running : Theme.border
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 0
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    elide: Text.ElideRight
                    color: Theme.text
                    font.pixelSize: Theme.fontSmall
                    font.weight: Font.DemiBold
                    text: floating.workspace.timerRunning ? floating.workspace.runningTaskTitle
                          : qsTrId("ui.timer.notRunning")
                    //% "Not running"
                }
                Text {
                    textFormat: Text.PlainText
                    text: floating.workspace.timerText
                    color: floating.workspace.timerRunning ? Theme.running : Theme.muted
                    font.family: Theme.monoFamily
                    font.pixelSize: Theme.fontLarge
                }
            }
            FlatButton {
                compact: true
                enabled: floating.workspace.lastTaskId !== ""
                text: floating.workspace.timerRunning ? "■" : "▶"
                Accessible.name: floating.workspace.timerRunning ? qsTrId("ui.timer.stop") : qsTrId("ui.timer.start")
                onClicked: floating.workspace.toggleTimer("")
            }
            FlatButton {
                compact: true
                text: "×"
                //% "Hide the floating timer"
                Accessible.name: qsTrId("ui.floating.hide")
                onClicked: floating.visible = false
            }
        }
    }
}
