import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// Ctrl+K: type a few letters of a project, a task or an action; Enter takes the first hit.
Popup {
    id: palette
    objectName: "commandPalette"
    readonly property var workspace: Shell.workspace
    signal actionChosen(string name)
    signal captureChosen(string sentence)
    parent: Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round(parent.height * 0.15)
    width: Math.min(560, parent.width - 2 * Theme.space5)
    height: Math.min(440, column.implicitHeight + 2 * Theme.space2)
    padding: Theme.space2
    modal: true
    focus: true
    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }

    function openPalette() {
        query.text = ""
        workspace.searchPalette("")
        results.currentIndex = 0
        open()
        query.forceActiveFocus()
    }

    function choose(index) {
        const hit = workspace.palette.get(index)
        if (!hit.kind) return
        close()
        if (hit.kind === "project") {
            workspace.selectedProjectId = hit.id
        } else if (hit.kind === "task") {
            workspace.selectedProjectId = hit.projectId
            workspace.selectedTaskId = hit.id
        } else if (hit.kind === "capture") {
            palette.captureChosen(hit.id)
        } else {
            palette.actionChosen(hit.id)
        }
    }

    contentItem: ColumnLayout {
        id: column
        spacing: Theme.space2
        Field {
            id: query
            objectName: "paletteField"
            Layout.fillWidth: true
            //% "Search projects, tasks and actions"
            placeholderText: qsTrId("ui.palette.placeholder")
            onTextEdited: { palette.workspace.searchPalette(text); results.currentIndex = 0 }
            Keys.onDownPressed: results.incrementCurrentIndex()
            Keys.onUpPressed: results.decrementCurrentIndex()
            Keys.onReturnPressed: palette.choose(results.currentIndex)
            Keys.onEnterPressed: palette.choose(results.currentIndex)
        }
        ListView {
            id: results
            objectName: "paletteResults"
            Layout.fillWidth: true
            Layout.preferredHeight: Math.min(contentHeight, 360)
            clip: true
            model: palette.workspace.palette
            boundsBehavior: Flickable.StopAtBounds
            delegate: ItemDelegate {
                id: hit
                required property int index
                required property string kind
                required property string title
                required property string subtitle
                width: ListView.view.width
                height: 36
                highlighted: ListView.isCurrentItem
                Accessible.name: title
                onClicked: palette.choose(index)
                background: Rectangle {
                    radius: Theme.radiusControl
                    color: hit.highlighted ? Theme.selected : (hit.hovered ? Theme.hover : "transparent")
                }
                contentItem: RowLayout {
                    spacing: Theme.space2
                    Chip {
                        text: hit.kind === "project" ? qsTrId("ui.palette.project")
                            : hit.kind === "task" ? qsTrId("ui.palette.task")
                            //% "AI"
                            : hit.kind === "capture" ? qsTrId("ui.palette.ai")
                            : qsTrId("ui.palette.action")
                        //% "Project" / "Task" / "Action"
                        tone: hit.kind === "action" || hit.kind === "capture" ? "primary" : "muted"
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: hit.title
                        color: Theme.text
                        elide: Text.ElideRight
                    }
                    Text {
                        textFormat: Text.PlainText
                        text: hit.subtitle
                        color: Theme.muted
                        font.pixelSize: Theme.fontSmall
                        elide: Text.ElideRight
                        Layout.maximumWidth: 180
                    }
                }
            }
        }
        Text {
            textFormat: Text.PlainText
            visible: results.count === 0
            Layout.alignment: Qt.AlignHCenter
            color: Theme.muted
            //% "Nothing matches."
            text: qsTrId("ui.palette.none")
        }
    }
}
