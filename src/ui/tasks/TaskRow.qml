import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// One task: check box, title, project (in the overview), due day, tracked time, the billed chip
// and the price; a spinner while it saves, a red dot while its timer runs.
Rectangle {
    id: row
    required property string id
    required property string title
    required property string projectName
    required property string status
    required property string priority
    required property string due
    required property bool overdue
    required property string tracked
    required property string chipLabel
    required property string chipTone
    required property double chipOpacity
    required property string price
    required property bool saving
    required property bool checked
    required property bool running
    required property string subtasks
    required property bool editable
    property bool current: false
    property bool showProject: false
    property bool draggable: false
    signal chosen(int modifiers)
    signal dropped(real toY)

    implicitHeight: Theme.rowHeight + (showProject ? 10 : 0)
    color: current ? Theme.selected : (checked ? Theme.accentSoft : (mouse.containsMouse ? Theme.hover : "transparent"))
    Accessible.role: Accessible.ListItem
    Accessible.name: title

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        onClicked: (event) => row.chosen(event.modifiers)
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.space2
        anchors.rightMargin: Theme.space4
        spacing: Theme.space2

        Text {
            textFormat: Text.PlainText
            // Drag handle: only where the order is the person's own.
            visible: row.draggable && row.editable
            text: "⠿"
            color: Theme.muted
            font.pixelSize: Theme.fontLarge
            Layout.preferredWidth: 12
            //% "Drag to reorder"
            Accessible.name: qsTrId("ui.tasks.dragHandle")
            MouseArea {
                anchors.fill: parent
                cursorShape: Qt.SizeVerCursor
                property real startY: 0
                onPressed: (event) => startY = event.y
                onReleased: (event) => {
                    if (Math.abs(event.y - startY) > 4)
                        row.dropped(mapToItem(row, 0, event.y).y)
                }
            }
        }
        Check {
            checked: row.checked
            padding: 0
            //% "Select %1"
            Accessible.name: qsTrId("ui.tasks.check").arg(row.title)
            onClicked: row.chosen(Qt.ControlModifier)
        }
        Rectangle {
            Layout.preferredWidth: 8
            Layout.preferredHeight: 8
            radius: 4
            color: row.running ? Theme.running : (row.priority === "high" ? Theme.danger : "transparent")
            border.width: row.running || row.priority === "high" ? 0 : 1
            border.color: row.priority === "low" ? "transparent" : Theme.border
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                text: row.title
                elide: Text.ElideRight
                color: row.status === "completed" ? Theme.muted : Theme.text
                font.pixelSize: Theme.fontBody
                font.strikeout: row.status === "completed"
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                visible: row.showProject
                text: row.projectName
                elide: Text.ElideRight
                color: Theme.muted
                font.pixelSize: Theme.fontSmall
            }
        }
        BusyIndicator {
            running: row.saving
            visible: row.saving
            implicitWidth: 16
            implicitHeight: 16
            //% "Saving"
            Accessible.name: qsTrId("ui.common.saving")
        }
        Text {
            textFormat: Text.PlainText
            visible: row.subtasks !== ""
            text: "☑ " + row.subtasks
            color: Theme.muted
            font.pixelSize: Theme.fontSmall
        }
        Text {
            textFormat: Text.PlainText
            visible: row.due !== ""
            text: row.due
            color: row.overdue ? Theme.danger : Theme.muted
            font.pixelSize: Theme.fontSmall
        }
        Text {
            textFormat: Text.PlainText
            Layout.preferredWidth: 110
            horizontalAlignment: Text.AlignRight
            text: row.price
            elide: Text.ElideLeft
            color: Theme.muted
            font.family: Theme.monoFamily
            font.pixelSize: Theme.fontSmall
        }
        Text {
            textFormat: Text.PlainText
            Layout.preferredWidth: 64
            horizontalAlignment: Text.AlignRight
            text: row.tracked
            color: Theme.text
            font.family: Theme.monoFamily
            font.pixelSize: Theme.fontSmall
        }
        Item {
            Layout.preferredWidth: 96
            Layout.preferredHeight: 20
            Chip {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: row.chipLabel
                tone: row.chipTone
                opacity: row.chipOpacity
            }
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.border
        opacity: 0.6
    }
}
