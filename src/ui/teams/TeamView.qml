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

    readonly property var roles: [
        { value: "editor", label: qsTrId("ui.teams.role.editor") },
        { value: "viewer", label: qsTrId("ui.teams.role.viewer") },
        { value: "owner", label: qsTrId("ui.teams.role.owner") }
    ]
    function roleName(role) {
        return role === "owner" ? qsTrId("ui.teams.role.owner")
             : role === "editor" ? qsTrId("ui.teams.role.editor")
             : qsTrId("ui.teams.role.viewer")
    }

    ConfirmDialog {
        id: confirmRemove
        property string userId
        property bool isMe: false
        title: isMe
               //% "Leave %1?"
               ? qsTrId("ui.teams.leaveTitle").arg(root.team ? root.team.name : "")
               //% "Remove this member?"
               : qsTrId("ui.teams.removeTitle")
        //% "The team's projects are no longer shared with them. Their own time stays theirs."
        body: isMe ? "" : qsTrId("ui.teams.removeBody")
        confirmText: isMe ? qsTrId("ui.teams.leave") : qsTrId("ui.teams.remove")
        onConfirmed: root.workspace.removeMember(root.teamId, userId)
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.space4
        spacing: Theme.space3

        Text {
            textFormat: Text.PlainText
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
                id: member
                required property var modelData
                Layout.fillWidth: true
                spacing: Theme.space2
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    text: member.modelData.email
                    color: Theme.text
                    elide: Text.ElideRight
                }
                Chip {
                    visible: !root.team.canManage || member.modelData.isMe
                    tone: member.modelData.role === "owner" ? "primary" : "muted"
                    text: root.roleName(member.modelData.role)
                }
                Choice {
                    Layout.preferredWidth: 130
                    visible: root.team.canManage && !member.modelData.isMe
                    model: root.roles
                    value: member.modelData.role
                    Accessible.name: qsTrId("ui.teams.role") + " " + member.modelData.email
                    onChosen: (role) => root.workspace.setMemberRole(root.teamId, member.modelData.userId, role)
                }
                FlatButton {
                    compact: true
                    danger: true
                    visible: member.modelData.isMe ? member.modelData.role !== "owner" : root.team.canManage
                    text: member.modelData.isMe
                          //% "Leave the team"
                          ? qsTrId("ui.teams.leave")
                          //% "Remove"
                          : qsTrId("ui.teams.remove")
                    onClicked: {
                        confirmRemove.userId = member.modelData.userId
                        confirmRemove.isMe = member.modelData.isMe
                        confirmRemove.open()
                    }
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
                model: root.roles
                onChosen: (chosen) => value = chosen
            }
            PrimaryButton {
                id: inviteButton
                //% "Invite"
                text: qsTrId("ui.teams.inviteButton")
                enabled: inviteEmail.text.length > 0
                onClicked: { root.workspace.invite(root.teamId, inviteEmail.text, role.value); inviteEmail.text = "" }
            }
        }
        Text {
            textFormat: Text.PlainText
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
                    textFormat: Text.PlainText
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
