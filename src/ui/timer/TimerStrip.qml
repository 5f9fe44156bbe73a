import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// The running timer, always in view: task, project, clock and stop; idle it offers the last task.
Rectangle {
    id: strip
    readonly property var workspace: Shell.workspace
    signal floatingToggled()
    implicitHeight: Theme.stripHeight
    color: workspace.timerRunning ? Qt.rgba(Theme.running.r, Theme.running.g, Theme.running.b, 0.10) : Theme.surface
    Accessible.role: Accessible.StatusBar
    //% "Timer"
    Accessible.name: qsTrId("ui.timer.name")

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.space4
        anchors.rightMargin: Theme.space3
        spacing: Theme.space3

        Rectangle {
            Layout.preferredWidth: 10
            Layout.preferredHeight: 10
            radius: 5
            color: strip.workspace.timerRunning ? Theme.running : Theme.border
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            elide: Text.ElideRight
            color: strip.workspace.timerRunning ? Theme.text : Theme.muted
            font.pixelSize: Theme.fontBody
            font.weight: strip.workspace.timerRunning ? Font.DemiBold : Font.Normal
            text: strip.workspace.timerRunning
                  ? strip.workspace.runningTaskTitle + "  ·  " + strip.workspace.runningProjectName
                  //% "No timer running. Select a task and press Space."
                  : qsTrId("ui.timer.idle")
            MouseArea {
                anchors.fill: parent
                enabled: strip.workspace.timerRunning
                cursorShape: enabled ? Qt.PointingHandCursor : Qt.ArrowCursor
                onClicked: {
                    strip.workspace.selectedProjectId = strip.workspace.runningProjectId
                    strip.workspace.selectedTaskId = strip.workspace.runningTaskId
                }
            }
        }
        Text {
            textFormat: Text.PlainText
            objectName: "timerClock"
            visible: strip.workspace.timerRunning
            text: strip.workspace.timerText
            color: Theme.running
            font.family: Theme.monoFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
        }
        FlatButton {
            compact: true
            iconSource: "qrc:/Morvane/Ui/icons/floating.svg"
            //% "Show or hide the floating timer"
            text: qsTrId("ui.action.floatingTimer")
            ToolTip.text: Accessible.name
            ToolTip.visible: hovered
            ToolTip.delay: 500
            onClicked: strip.floatingToggled()
        }
        PrimaryButton {
            objectName: "timerButton"
            danger: strip.workspace.timerRunning
            enabled: strip.workspace.timerRunning
                     || (strip.workspace.selectedTaskId !== "" && strip.workspace.inspector.canEdit)
            text: strip.workspace.timerRunning
                  //% "Stop"
                  ? qsTrId("ui.timer.stop")
                  //% "Start"
                  : qsTrId("ui.timer.start")
            onClicked: strip.workspace.toggleTimer(strip.workspace.timerRunning ? "" : strip.workspace.selectedTaskId)
        }
        Text {
            textFormat: Text.PlainText
            visible: !strip.workspace.online && Shell.phase === Shell.Ready
            //% "Offline: changes from other devices arrive when the connection is back."
            ToolTip.text: qsTrId("ui.timer.offlineHint")
            ToolTip.visible: offlineMouse.containsMouse
            //% "Offline"
            text: qsTrId("ui.timer.offline")
            color: Theme.muted
            font.pixelSize: Theme.fontSmall
            MouseArea { id: offlineMouse; anchors.fill: parent; hoverEnabled: true }
        }
    }
    Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 1; color: Theme.border }
}
