import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// One team: its members with their roles, and inviting by e-mail; invitations waiting for me.
Rectangle {
    id: root
    property string teamId
    color: Theme.background
    readonly property var workspace: Shell.workspace
    readonly property var team: {
        for (const t of workspace.teams) if (t.id === teamId) return t
        return null
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.space4
        spacing: Theme.space3

        Text {
            text: root.team ? root.team.name : ""
            color: Theme.text
            font.pixelSize: Theme.fontTitle
            font.weight: Font.DemiBold
        }
        FieldLabel {
            //% "Members"
            text: qsTrId("ui.teams.members")
        }
        Repeater {
            model: root.team ? root.team.members : []
            RowLayout {
                required property var modelData
                Layout.fillWidth: true
                Text {
                    Layout.fillWidth: true
                    text: modelData.email
                    color: Theme.text
                    elide: Text.ElideRight
                }
                Chip {
                    tone: modelData.role === "owner" ? "primary" : "muted"
                    text: modelData.role === "owner" ? qsTrId("ui.teams.role.owner")
                        : modelData.role === "editor" ? qsTrId("ui.teams.role.editor")
                        : qsTrId("ui.teams.role.viewer")
                }
            }
        }

        FieldLabel {
            Layout.topMargin: Theme.space3
            visible: root.team && root.team.canInvite
            //% "Invite by e-mail"
            text: qsTrId("ui.teams.invite")
        }
        RowLayout {
            Layout.fillWidth: true
            visible: root.team && root.team.canInvite
            spacing: Theme.space2
            Field {
                id: inviteEmail
                Layout.fillWidth: true
                placeholderText: "name@example.com"
                Accessible.name: qsTrId("ui.teams.invite")
                onAccepted: inviteButton.clicked()
            }
            Choice {
                id: role
                Layout.preferredWidth: 130
                value: "editor"
                //% "Role"
                Accessible.name: qsTrId("ui.teams.role")
                model: [
                    //% "Editor"
                    { value: "editor", label: qsTrId("ui.teams.role.editor") },
                    //% "Viewer"
                    { value: "viewer", label: qsTrId("ui.teams.role.viewer") },
                    //% "Owner"
                    { value: "owner", label: qsTrId("ui.teams.role.owner") }
                ]
            }
            PrimaryButton {
                id: inviteButton
                //% "Invite"
                text: qsTrId("ui.teams.inviteButton")
                enabled: inviteEmail.text.length > 0
                onClicked: { root.workspace.invite(root.teamId, inviteEmail.text, role.currentValue); inviteEmail.text = "" }
            }
        }
        Text {
            Layout.fillWidth: true
            visible: root.team && !root.team.canInvite
            wrapMode: Text.Wrap
            color: Theme.muted
            //% "Only the team owner and editors can invite people."
            text: qsTrId("ui.teams.viewerNote")
        }

        FieldLabel {
            Layout.topMargin: Theme.space3
            visible: root.workspace.invitations.length > 0
            //% "Invitations for you"
            text: qsTrId("ui.teams.invitations")
        }
        Repeater {
            model: root.workspace.invitations
            RowLayout {
                required property var modelData
                Layout.fillWidth: true
                Text {
                    Layout.fillWidth: true
                    text: modelData.teamName + (modelData.invitedBy ? " · " + modelData.invitedBy : "")
                    color: Theme.text
                    elide: Text.ElideRight
                }
                FlatButton {
                    //% "Decline"
                    text: qsTrId("ui.teams.decline")
                    onClicked: root.workspace.answerInvitation(modelData.teamId, false)
                }
                PrimaryButton {
                    //% "Accept"
                    text: qsTrId("ui.teams.accept")
                    onClicked: root.workspace.answerInvitation(modelData.teamId, true)
                }
            }
        }
        Item { Layout.fillHeight: true }
    }
}
