import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// Sign in, create an account (the onboarding answers first), reset a password, confirm an address.
Rectangle {
    id: root
    objectName: "authView"
    color: Theme.background
    property string mode: Shell.auth && Shell.auth.accounts.length === 0 && !Shell.auth.unconfirmedEmail
                          ? "welcome" : "signIn"
    readonly property var auth: Shell.auth
    readonly property bool busy: auth ? auth.isWorking : false

    Connections {
        target: root.auth
        function onUnconfirmedEmailChanged() { if (root.auth.unconfirmedEmail) root.mode = "confirm" }
    }

    function show(next) { Shell.clearMessages(); mode = next }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.space5, 420)
        height: Math.min(parent.height - 2 * Theme.space5, column.implicitHeight + 2 * Theme.space6)
        radius: Theme.radiusCard
        color: Theme.surface
        border.color: Theme.border

        Flickable {
            anchors.fill: parent
            anchors.margins: Theme.space6
            contentHeight: column.implicitHeight
            clip: true
            boundsBehavior: Flickable.StopAtBounds

            ColumnLayout {
                id: column
                width: parent.width
                spacing: Theme.space3

                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    color: Theme.text
                    font.pixelSize: Theme.fontTitle
                    font.weight: Font.DemiBold
                    wrapMode: Text.Wrap
                    //% "Welcome to Morvane" / "A little about you" / "Create your account" /
                    //% "Reset your password" / "Confirm your e-mail" / "Sign in"
                    text: root.mode === "welcome" ? qsTrId("ui.auth.welcome")
                        : root.mode === "onboarding" ? qsTrId("ui.auth.aboutYou")
                        : root.mode === "signUp" ? qsTrId("ui.auth.createAccount")
                        : root.mode === "forgot" ? qsTrId("ui.auth.resetTitle")
                        : root.mode === "confirm" ? qsTrId("ui.auth.confirmTitle")
                        : qsTrId("ui.auth.signInTitle")
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    color: Theme.muted
                    font.pixelSize: Theme.fontBody
                    wrapMode: Text.Wrap
                    visible: root.mode === "welcome" || root.mode === "confirm"
                    text: root.mode === "welcome"
                          //% "Track your time on projects and tasks, and turn it into invoices. Your data stays on this computer unless you connect a shared server."
                          ? qsTrId("ui.auth.welcomeBody")
                          //% "We sent a confirmation link to %1. Open it, then sign in here."
                          : qsTrId("ui.auth.confirmBody").arg(root.auth ? root.auth.unconfirmedEmail : "")
                }

                Banner {
                    Layout.fillWidth: true
                    text: root.auth ? root.auth.lastError : ""
                    onDismissed: Shell.clearMessages()
                }
                Banner {
                    Layout.fillWidth: true
                    error: false
                    text: Shell.notice
                    onDismissed: Shell.clearMessages()
                }

                // Welcome.
                PrimaryButton {
                    Layout.fillWidth: true
                    visible: root.mode === "welcome"
                    //% "Get started"
                    text: qsTrId("ui.auth.getStarted")
                    onClicked: root.show("onboarding")
                }
                FlatButton {
                    Layout.fillWidth: true
                    visible: root.mode === "welcome"
                    //% "I already have an account"
                    text: qsTrId("ui.auth.haveAccount")
                    onClicked: root.show("signIn")
                }

                OnboardingForm {
                    id: onboarding
                    Layout.fillWidth: true
                    visible: root.mode === "onboarding"
                    onDone: root.show("signUp")
                }
                FlatButton {
                    Layout.fillWidth: true
                    visible: root.mode === "onboarding"
                    text: qsTrId("ui.auth.haveAccount")
                    onClicked: root.show("signIn")
                }

                // Remembered accounts: one click switches.
                Repeater {
                    model: root.mode === "signIn" && root.auth ? root.auth.accounts : []
                    delegate: FlatButton {
                        required property var modelData
                        Layout.fillWidth: true
                        //% "Continue as %1"
                        text: qsTrId("ui.auth.continueAs").arg(modelData.email)
                        enabled: !root.busy
                        onClicked: Shell.switchAccount(modelData.id)
                    }
                }

                FieldLabel {
                    visible: email.visible
                    //% "E-mail"
                    text: qsTrId("ui.auth.email")
                }
                Field {
                    id: email
                    objectName: "emailField"
                    Layout.fillWidth: true
                    visible: root.mode === "signIn" || root.mode === "signUp" || root.mode === "forgot"
                             || root.mode === "confirm"
                    placeholderText: "name@example.com"
                    Accessible.name: qsTrId("ui.auth.email")
                    inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
                    text: root.auth && root.auth.unconfirmedEmail ? root.auth.unconfirmedEmail : ""
                    onAccepted: password.visible ? password.forceActiveFocus() : submit.clicked()
                }
                FieldLabel {
                    visible: password.visible
                    //% "Password"
                    text: qsTrId("ui.auth.password")
                }
                Field {
                    id: password
                    objectName: "passwordField"
                    Layout.fillWidth: true
                    visible: root.mode === "signIn" || root.mode === "signUp" || root.mode === "confirm"
                    echoMode: TextInput.Password
                    Accessible.name: qsTrId("ui.auth.password")
                    onAccepted: submit.clicked()
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    visible: root.mode === "signUp"
                    color: Theme.muted
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                    //% "At least 8 characters."
                    text: qsTrId("ui.auth.passwordHint")
                }
                Check {
                    id: remember
                    visible: root.mode === "signIn" || root.mode === "confirm"
                    checked: root.auth ? root.auth.rememberMe : true
                    //% "Remember me on this computer"
                    text: qsTrId("ui.auth.rememberMe")
                    font.pixelSize: Theme.fontBody
                    onToggled: if (root.auth) root.auth.rememberMe = checked
                    contentItem: Text {
                        textFormat: Text.PlainText
                        leftPadding: remember.indicator.width + Theme.space2
                        text: remember.text
                        color: Theme.text
                        font: remember.font
                        verticalAlignment: Text.AlignVCenter
                    }
                }

                PrimaryButton {
                    id: submit
                    objectName: "submitButton"
                    Layout.fillWidth: true
                    visible: root.mode === "signIn" || root.mode === "signUp" || root.mode === "forgot"
                             || root.mode === "confirm"
                    enabled: !root.busy && email.text.length > 0
                             && (root.mode === "forgot" || password.text.length > 0)
                    text: root.mode === "signUp" ? qsTrId("ui.auth.createAccount")
                        //% "Send the reset link"
                        : root.mode === "forgot" ? qsTrId("ui.auth.sendReset")
                        : qsTrId("ui.auth.signInTitle")
                    onClicked: {
                        if (root.mode === "signUp")
                            Shell.signUp(email.text, password.text, onboarding.displayName, onboarding.language,
                                         onboarding.currency, onboarding.rate, onboarding.timeZone)
                        else if (root.mode === "forgot")
                            Shell.recoverPassword(email.text)
                        else
                            Shell.signIn(email.text, password.text)
                    }
                }
                BusyIndicator {
                    Layout.alignment: Qt.AlignHCenter
                    running: root.busy
                    visible: running
                    implicitWidth: 24
                    implicitHeight: 24
                }

                FlatButton {
                    Layout.fillWidth: true
                    visible: root.mode === "confirm"
                    //% "Send the link again"
                    text: qsTrId("ui.auth.resend")
                    enabled: !root.busy && email.text.length > 0
                    onClicked: Shell.resendConfirmation(email.text)
                }

                // Outside providers the backend offers.
                Repeater {
                    model: root.mode === "signIn" ? Shell.providers : []
                    delegate: FlatButton {
                        required property string modelData
                        Layout.fillWidth: true
                        //% "Continue with %1"
                        text: qsTrId("ui.auth.continueWith").arg(modelData.charAt(0).toUpperCase() + modelData.slice(1))
                        enabled: !root.busy
                        onClicked: Shell.signInWithProvider(modelData)
                    }
                }

                RowLayout {
                    Layout.fillWidth: true
                    visible: root.mode !== "welcome" && root.mode !== "onboarding"
                    spacing: Theme.space2
                    FlatButton {
                        compact: true
                        visible: root.mode === "signIn"
                        //% "Forgot password?"
                        text: qsTrId("ui.auth.forgot")
                        onClicked: root.show("forgot")
                    }
                    Item { Layout.fillWidth: true }
                    FlatButton {
                        compact: true
                        text: root.mode === "signIn"
                              //% "Create an account"
                              ? qsTrId("ui.auth.toSignUp")
                              //% "Back to sign in"
                              : qsTrId("ui.auth.toSignIn")
                        onClicked: root.show(root.mode === "signIn" ? "onboarding" : "signIn")
                    }
                }
            }
        }
    }
}
