import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// The coding-agent sessions of the last 30 days by working folder, and the tracking settings that
// log them every minute. Everything comes from Shell.sessions.
Rectangle {
    id: root
    objectName: "sessionsView"
    color: Theme.background
    readonly property var view: Shell.sessions
    readonly property var projects: Shell.workspace.projectChoices
    property bool showTracking: false
    property var expanded: ({})

    Component.onCompleted: view.rescan()

    // Projects to link a folder (or a session) to, with a new one named after the folder last.
    function projectOptions(cwd, placeholder) {
        return [{ value: "", label: placeholder }]
            .concat(root.projects.map(p => ({ value: p.id, label: p.name })))
            //% "Create new project named \"%1\""
            .concat([{ value: "new", label: qsTrId("ui.sessions.newProject").arg(root.view.folderName(cwd)) }])
    }

    component Muted: Text {
        textFormat: Text.PlainText
        color: Theme.muted
        font.pixelSize: Theme.fontSmall
        elide: Text.ElideRight
    }

    ConfirmDialog {
        id: confirmReimportAll
        objectName: "confirmReimportAll"
        //% "Re-import all sessions?"
        title: qsTrId("ui.sessions.reimportAllTitle")
        //% "Every session is logged again at the next scan. Tasks made earlier stay; delete them yourself if you do not want them twice."
        body: qsTrId("ui.sessions.reimportAllBody")
        //% "Re-import all sessions"
        confirmText: qsTrId("ui.sessions.reimportAll")
        onConfirmed: root.view.reimportAll()
    }

    Popup {
        id: previewSheet
        objectName: "segmentPreviewSheet"
        modal: true
        focus: true
        visible: Object.keys(root.view.preview).length > 0
        anchors.centerIn: Overlay.overlay
        width: Math.min(620, root.width - 2 * Theme.space5)
        padding: Theme.space5
        closePolicy: Popup.CloseOnEscape
        onClosed: root.view.closePreview()
        Overlay.modal: Rectangle { color: Theme.scrim }
        background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }
        contentItem: ColumnLayout {
            spacing: Theme.space3
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                text: root.view.preview.title || ""
                color: Theme.text
                font.pixelSize: Theme.fontLarge
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
            }
            ListView {
                Layout.fillWidth: true
                Layout.preferredHeight: Math.min(contentHeight, 360)
                clip: true
                model: root.view.preview.rows || []
                spacing: Theme.space2
                delegate: ColumnLayout {
                    required property var modelData
                    width: ListView.view.width
                    spacing: 0
                    RowLayout {
                        Layout.fillWidth: true
                        Text {
                            textFormat: Text.PlainText
                            Layout.fillWidth: true
                            text: modelData.title
                            color: Theme.text
                            font.pixelSize: Theme.fontBody
                            elide: Text.ElideRight
                        }
                        Text {
                            textFormat: Text.PlainText
                            text: modelData.active
                            color: Theme.text
                            font.pixelSize: Theme.fontBody
                        }
                    }
                    Muted {
                        Layout.fillWidth: true
                        text: modelData.prompts === 1
                              //% "%1 · 1 prompt"
                              ? qsTrId("ui.sessions.burstLineOne").arg(modelData.when)
                              //% "%1 · %2 prompts"
                              : qsTrId("ui.sessions.burstLine").arg(modelData.when).arg(modelData.prompts)
                    }
                }
            }
            RowLayout {
                Layout.alignment: Qt.AlignRight
                spacing: Theme.space2
                FlatButton {
                    text: qsTrId("ui.common.cancel")
                    onClicked: previewSheet.close()
                }
                PrimaryButton {
                    objectName: "commitPreview"
                    //% "Log to project"
                    text: qsTrId("ui.sessions.commit")
                    onClicked: root.view.commitPreview()
                }
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.space4
        spacing: Theme.space3

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space2
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                //% "AI sessions"
                text: qsTrId("ui.sessions.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            FlatButton {
                objectName: "sessionsTab"
                //% "Sessions"
                text: qsTrId("ui.sessions.list")
                checked: !root.showTracking
                onClicked: root.showTracking = false
            }
            FlatButton {
                objectName: "trackingTab"
                //% "Tracking"
                text: qsTrId("ui.sessions.tracking")
                checked: root.showTracking
                onClicked: root.showTracking = true
            }
            FlatButton {
                objectName: "rescanSessions"
                visible: !root.showTracking
                enabled: !root.view.loading
                //% "Rescan"
                text: qsTrId("ui.sessions.rescan")
                onClicked: root.view.rescan()
            }
        }
        Banner {
            Layout.fillWidth: true
            text: root.view.message
            error: root.view.messageIsError
            onDismissed: root.view.dismissMessage()
        }

        // The sessions, folder by folder under their recency.
        ListView {
            id: groupList
            objectName: "sessionGroups"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !root.showTracking && count > 0
            clip: true
            spacing: Theme.space3
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            model: root.view.groups
            delegate: ColumnLayout {
                id: group
                required property var modelData
                readonly property bool open: root.expanded[modelData.cwd] === true
                width: groupList.width - Theme.space3
                spacing: Theme.space1
                Text {
                    textFormat: Text.PlainText
                    visible: group.modelData.bucket !== ""
                    text: group.modelData.bucket
                    color: Theme.muted
                    font.pixelSize: Theme.fontSmall
                    font.weight: Font.DemiBold
                    font.capitalization: Font.AllUppercase
                }
                Rectangle {
                    Layout.fillWidth: true
                    implicitHeight: groupColumn.implicitHeight + 2 * Theme.space3
                    radius: Theme.radiusCard
                    color: Theme.surface
                    border.color: Theme.border
                    ColumnLayout {
                        id: groupColumn
                        anchors.fill: parent
                        anchors.margins: Theme.space3
                        spacing: Theme.space2
                        RowLayout {
                            Layout.fillWidth: true
                            spacing: Theme.space2
                            ColumnLayout {
                                Layout.fillWidth: true
                                spacing: 0
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.fillWidth: true
                                    text: group.modelData.name
                                    color: Theme.text
                                    font.pixelSize: Theme.fontLarge
                                    font.weight: Font.DemiBold
                                    elide: Text.ElideRight
                                }
                                Muted {
                                    Layout.fillWidth: true
                                    text: group.modelData.cwd
                                    elide: Text.ElideMiddle
                                }
                            }
                            Chip {
                                visible: group.modelData.projectId === ""
                                tone: "muted"
                                //% "Not linked yet"
                                text: qsTrId("ui.sessions.notLinked")
                            }
                            Choice {
                                objectName: "linkFolder-" + group.modelData.name
                                Layout.preferredWidth: 240
                                //% "Link to a project…"
                                Accessible.name: qsTrId("ui.sessions.link")
                                model: root.projectOptions(group.modelData.cwd, qsTrId("ui.sessions.link"))
                                value: group.modelData.projectId
                                onChosen: (value) => {
                                    if (value === "new") root.view.createProjectForFolder(group.modelData.cwd)
                                    else if (value !== "") root.view.mapFolder(group.modelData.cwd, value)
                                }
                            }
                        }
                        Repeater {
                            model: group.open ? group.modelData.sessions
                                              : group.modelData.sessions.slice(0, 5)
                            RowLayout {
                                id: sessionRow
                                required property var modelData
                                Layout.fillWidth: true
                                spacing: Theme.space2
                                ColumnLayout {
                                    Layout.fillWidth: true
                                    spacing: 0
                                    Text {
                                        textFormat: Text.PlainText
                                        Layout.fillWidth: true
                                        text: sessionRow.modelData.title
                                        color: Theme.text
                                        font.pixelSize: Theme.fontBody
                                        elide: Text.ElideRight
                                    }
                                    Muted {
                                        Layout.fillWidth: true
                                        text: sessionRow.modelData.bursts === 1
                                              //% "%1 · %2 active"
                                              ? qsTrId("ui.sessions.sessionLineOne").arg(sessionRow.modelData.when)
                                                    .arg(sessionRow.modelData.active)
                                              //% "%1 · %2 active · %3 bursts"
                                              : qsTrId("ui.sessions.sessionLine").arg(sessionRow.modelData.when)
                                                    .arg(sessionRow.modelData.active).arg(sessionRow.modelData.bursts)
                                    }
                                }
                                Chip {
                                    visible: sessionRow.modelData.logged
                                    tone: "success"
                                    //% "Logged"
                                    text: qsTrId("ui.sessions.loggedChip")
                                }
                                FlatButton {
                                    visible: sessionRow.modelData.logged
                                    compact: true
                                    //% "Re-import"
                                    text: qsTrId("ui.sessions.reimport")
                                    //% "Re-import this session (forget previous log)"
                                    ToolTip.text: qsTrId("ui.sessions.reimportHelp")
                                    ToolTip.visible: hovered
                                    onClicked: root.view.reimportSession(sessionRow.modelData.id)
                                }
                                Choice {
                                    objectName: "logSession-" + sessionRow.modelData.id
                                    visible: !sessionRow.modelData.logged
                                    Layout.preferredWidth: 200
                                    //% "Log to…"
                                    Accessible.name: qsTrId("ui.sessions.logTo")
                                    //% "Log this session to a project, split into %1 tasks by natural breaks"
                                    ToolTip.text: qsTrId("ui.sessions.logHelp").arg(sessionRow.modelData.bursts)
                                    ToolTip.visible: hovered
                                    model: root.projectOptions(group.modelData.cwd, qsTrId("ui.sessions.logTo"))
                                    value: ""
                                    onChosen: (value) => {
                                        if (value === "new") root.view.createProjectForSession(sessionRow.modelData.id)
                                        else if (value !== "") root.view.previewSession(sessionRow.modelData.id, value)
                                        currentIndex = 0
                                    }
                                }
                            }
                        }
                        FlatButton {
                            visible: group.modelData.sessions.length > 5
                            compact: true
                            text: group.open
                                  //% "Show fewer"
                                  ? qsTrId("ui.sessions.fewer")
                                  //% "Show all %1 sessions"
                                  : qsTrId("ui.sessions.more").arg(group.modelData.sessions.length)
                            onClicked: {
                                const next = Object.assign({}, root.expanded)
                                next[group.modelData.cwd] = !group.open
                                root.expanded = next
                            }
                        }
                    }
                }
            }
        }
        EmptyState {
            Layout.alignment: Qt.AlignHCenter
            Layout.fillHeight: true
            Layout.preferredWidth: Math.min(root.width - 2 * Theme.space5, 520)
            visible: !root.showTracking && groupList.count === 0
            title: root.view.loading
                   //% "Reading your sessions…"
                   ? qsTrId("ui.sessions.loading")
                   //% "No Claude sessions parsed yet"
                   : qsTrId("ui.sessions.emptyTitle")
            //% "Run a claude session in any folder on this computer (Claude Code, the command line, anything that writes to ~/.claude/projects/). Then press Rescan. Sessions from the last 30 days are picked up."
            hint: root.view.loading ? "" : qsTrId("ui.sessions.emptyHint")
        }

        // Tracking: on or off, the folders that wait for a project, the scan and its figures.
        ScrollView {
            id: trackingScroll
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: root.showTracking
            contentWidth: availableWidth
            clip: true
            ColumnLayout {
                width: Math.min(trackingScroll.availableWidth, 720)
                spacing: Theme.space3
                Check {
                    objectName: "trackingSwitch"
                    //% "Auto-track Claude sessions"
                    text: qsTrId("ui.sessions.autoTrack")
                    checked: root.view.enabled
                    onToggled: root.view.enabled = checked
                }
                Repeater {
                    model: [
                        //% "Every minute Morvane scans your local Claude Code sessions (~/.claude/projects/) and turns each one into a billable time entry on the matching Morvane project."
                        qsTrId("ui.sessions.explainScan"),
                        //% "Sessions are tied to their working directory. You map each working dir to one of your projects once; from then on every new conversation in that repo logs automatically. Idle gaps longer than 5 minutes are excluded so an overnight pause does not bill 8 hours."
                        qsTrId("ui.sessions.explainMapping"),
                        //% "Resulting tasks are prefixed [AI] so you can tell a client exactly what part of the work was AI-assisted."
                        qsTrId("ui.sessions.explainPrefix")
                    ]
                    Text {
                        required property string modelData
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: modelData
                        color: Theme.muted
                        font.pixelSize: Theme.fontBody
                        wrapMode: Text.Wrap
                    }
                }
                RowLayout {
                    spacing: Theme.space2
                    FieldLabel {
                        //% "Idle gap (minutes)"
                        text: qsTrId("ui.sessions.idleGap")
                    }
                    Field {
                        objectName: "idleGapField"
                        Layout.preferredWidth: 80
                        horizontalAlignment: Text.AlignRight
                        text: String(root.view.idleGapMinutes)
                        Accessible.name: qsTrId("ui.sessions.idleGap")
                        validator: IntValidator { bottom: 1; top: 480 }
                        onEditingFinished: root.view.idleGapMinutes = Number(text)
                    }
                }
                Muted {
                    Layout.fillWidth: true
                    //% "Gaps longer than this between messages are treated as idle and excluded. 15 min covers most typing pauses."
                    text: qsTrId("ui.sessions.idleGapHelp")
                    wrapMode: Text.Wrap
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    Layout.topMargin: Theme.space3
                    visible: root.view.pending.length > 0
                    //% "These directories have Claude sessions waiting to be logged. Pick a Morvane project (or Ignore) for each."
                    text: qsTrId("ui.sessions.pendingIntro")
                    color: Theme.text
                    font.pixelSize: Theme.fontBody
                    wrapMode: Text.Wrap
                }
                Repeater {
                    model: root.view.pending
                    RowLayout {
                        id: pendingRow
                        required property var modelData
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        ColumnLayout {
                            Layout.fillWidth: true
                            spacing: 0
                            Text {
                                textFormat: Text.PlainText
                                Layout.fillWidth: true
                                text: pendingRow.modelData.name
                                color: Theme.text
                                font.pixelSize: Theme.fontBody
                                elide: Text.ElideRight
                            }
                            Muted {
                                Layout.fillWidth: true
                                //% "%1 · %2 sessions · %3 active"
                                text: qsTrId("ui.sessions.pendingLine").arg(pendingRow.modelData.cwd)
                                      .arg(pendingRow.modelData.sessions).arg(pendingRow.modelData.active)
                                elide: Text.ElideMiddle
                            }
                        }
                        Choice {
                            Layout.preferredWidth: 220
                            Accessible.name: qsTrId("ui.sessions.link")
                            model: root.projectOptions(pendingRow.modelData.cwd, qsTrId("ui.sessions.link"))
                            value: ""
                            onChosen: (value) => {
                                if (value === "new") root.view.createProjectForFolder(pendingRow.modelData.cwd)
                                else if (value !== "") root.view.mapFolder(pendingRow.modelData.cwd, value)
                            }
                        }
                        FlatButton {
                            //% "Ignore"
                            text: qsTrId("ui.sessions.ignore")
                            onClicked: root.view.ignoreFolder(pendingRow.modelData.cwd)
                        }
                    }
                }
                RowLayout {
                    Layout.topMargin: Theme.space3
                    spacing: Theme.space2
                    PrimaryButton {
                        objectName: "scanNow"
                        enabled: !root.view.scanning
                        //% "Scan now"
                        text: qsTrId("ui.sessions.scanNow")
                        onClicked: root.view.scanNow()
                    }
                    BusyIndicator {
                        running: root.view.scanning
                        visible: running
                        implicitWidth: 24
                        implicitHeight: 24
                    }
                    FlatButton {
                        text: qsTrId("ui.sessions.reimportAll")
                        onClicked: confirmReimportAll.open()
                    }
                }
                Text {
                    textFormat: Text.PlainText
                    objectName: "scanResult"
                    Layout.fillWidth: true
                    text: root.view.resultText
                    color: Theme.muted
                    font.pixelSize: Theme.fontBody
                    wrapMode: Text.Wrap
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    visible: root.view.scanError !== ""
                    text: root.view.scanError
                    color: Theme.danger
                    font.pixelSize: Theme.fontBody
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
