import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// Account, profile, language, appearance and backend, each saved where it belongs.
Rectangle {
    id: root
    color: Theme.background
    readonly property var prefs: Shell.preferences
    signal closed()

    Component.onCompleted: prefs.refreshLocal()
    Keys.onEscapePressed: root.closed()

    component Section: ColumnLayout {
        property alias title: heading.text
        default property alias content: body.data
        Layout.fillWidth: true
        spacing: Theme.space2
        Text {
            textFormat: Text.PlainText
            id: heading
            color: Theme.text
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
            Layout.topMargin: Theme.space4
        }
        Rectangle { Layout.fillWidth: true; Layout.preferredHeight: 1; color: Theme.border }
        ColumnLayout {
            id: body
            Layout.fillWidth: true
            spacing: Theme.space2
        }
    }

    Flickable {
        anchors.fill: parent
        contentHeight: column.implicitHeight + 2 * Theme.space5
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        ColumnLayout {
            id: column
            x: Theme.space5
            y: Theme.space4
            width: Math.min(parent.width - 2 * Theme.space5, 640)
            spacing: Theme.space2

            RowLayout {
                Layout.fillWidth: true
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    //% "Settings"
                    text: qsTrId("ui.action.settings")
                    color: Theme.text
                    font.pixelSize: Theme.fontTitle
                    font.weight: Font.DemiBold
                }
                FlatButton {
                    //% "Close"
                    text: qsTrId("ui.common.close")
                    onClicked: root.closed()
                }
            }
            Banner {
                Layout.fillWidth: true
                error: false
                text: root.prefs.message
                onDismissed: root.prefs.clearMessage()
            }

            Section {
                //% "Profile"
                title: qsTrId("ui.settings.profile")
                FieldLabel { text: qsTrId("ui.onboarding.name") }
                Field {
                    id: nameField
                    Layout.fillWidth: true
                    text: root.prefs.displayName
                    Accessible.name: qsTrId("ui.onboarding.name")
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.space3
                    ColumnLayout {
                        Layout.fillWidth: true
                        FieldLabel { text: qsTrId("ui.onboarding.rate") }
                        Field {
                            id: rateField
                            Layout.fillWidth: true
                            text: root.prefs.hourlyRate
                            invalid: !Shell.isRate(text)
                            Accessible.name: qsTrId("ui.onboarding.rate")
                        }
                    }
                    ColumnLayout {
                        Layout.preferredWidth: 160
                        FieldLabel { text: qsTrId("ui.onboarding.currency") }
                        Choice {
                            id: currencyBox
                            Layout.fillWidth: true
                            model: Shell.currencies.map(code => ({ value: code, label: code }))
                            value: root.prefs.currency
                            Accessible.name: qsTrId("ui.onboarding.currency")
                            onChosen: (code) => value = code
                        }
                    }
                }
                Text {
                    textFormat: Text.PlainText
                    visible: rateField.invalid
                    color: Theme.danger
                    font.pixelSize: Theme.fontSmall
                    text: qsTrId("ui.onboarding.rateInvalid")
                }
                PrimaryButton {
                    enabled: !rateField.invalid
                    text: qsTrId("ui.common.save")
                    onClicked: root.prefs.saveProfile(nameField.text, rateField.text, currencyBox.value)
                }
            }

            Section {
                //% "Language and appearance"
                title: qsTrId("ui.settings.looks")
                GridLayout {
                    Layout.fillWidth: true
                    columns: 2
                    columnSpacing: Theme.space3
                    FieldLabel { text: qsTrId("ui.onboarding.language") }
                    Choice {
                        Layout.fillWidth: true
                        model: Shell.languages.map(code => ({ value: code, label: Shell.languageName(code) }))
                        value: Shell.language
                        Accessible.name: qsTrId("ui.onboarding.language")
                        onChosen: (code) => root.prefs.setLanguage(code)
                    }
                    FieldLabel {
                        //% "Appearance"
                        text: qsTrId("ui.settings.appearance")
                    }
                    Choice {
                        Layout.fillWidth: true
                        Accessible.name: qsTrId("ui.settings.appearance")
                        model: [
                            //% "As the desktop"
                            { value: "system", label: qsTrId("ui.settings.scheme.system") },
                            //% "Light"
                            { value: "light", label: qsTrId("ui.settings.scheme.light") },
                            //% "Dark"
                            { value: "dark", label: qsTrId("ui.settings.scheme.dark") }
                        ]
                        value: Shell.colorScheme
                        onChosen: (scheme) => Shell.colorScheme = scheme
                    }
                }
            }

            Section {
                //% "Timer"
                title: qsTrId("ui.settings.timer")
                readonly property var idle: Shell.idle
                GridLayout {
                    Layout.fillWidth: true
                    columns: 2
                    columnSpacing: Theme.space3
                    FieldLabel {
                        //% "Ask about idle time after (minutes)"
                        text: qsTrId("ui.settings.idleAfter")
                    }
                    Field {
                        Layout.preferredWidth: 120
                        text: Shell.idle.idleThresholdMinutes
                        inputMethodHints: Qt.ImhDigitsOnly
                        validator: IntValidator { bottom: 1; top: 480 }
                        Accessible.name: qsTrId("ui.settings.idleAfter")
                        onEditingFinished: if (acceptableInput) Shell.idle.idleThresholdMinutes = parseInt(text)
                    }
                    FieldLabel {
                        //% "Stop the timer at the end of the day"
                        text: qsTrId("ui.settings.endOfDay")
                    }
                    Field {
                        Layout.preferredWidth: 120
                        text: Shell.idle.endOfDay
                        placeholderText: "18:00"
                        validator: RegularExpressionValidator { regularExpression: /^$|^([01]?\d|2[0-3]):[0-5]\d$/ }
                        Accessible.name: qsTrId("ui.settings.endOfDay")
                        onEditingFinished: if (acceptableInput) Shell.idle.endOfDay = text
                    }
                    FieldLabel {
                        //% "Longest run (minutes, 0 for none)"
                        text: qsTrId("ui.settings.longestRun")
                    }
                    Field {
                        Layout.preferredWidth: 120
                        text: Shell.idle.maxRunMinutes
                        inputMethodHints: Qt.ImhDigitsOnly
                        validator: IntValidator { bottom: 0; top: 1440 }
                        Accessible.name: qsTrId("ui.settings.longestRun")
                        onEditingFinished: if (acceptableInput) Shell.idle.maxRunMinutes = parseInt(text)
                    }
                }
                Check {
                    checked: root.prefs.autostart.enabled
                    //% "Start Morvane when I log in"
                    text: qsTrId("ui.settings.autostart")
                    onToggled: root.prefs.autostart.enabled = checked
                }
                Check {
                    checked: Shell.idle.remindersEnabled
                    //% "Remind me when no timer runs during working hours"
                    text: qsTrId("ui.settings.reminders")
                    onToggled: Shell.idle.remindersEnabled = checked
                }
                RowLayout {
                    visible: Shell.idle.remindersEnabled
                    Layout.leftMargin: Theme.space5
                    spacing: Theme.space2
                    Repeater {
                        model: 7
                        FlatButton {
                            required property int index
                            compact: true
                            checkable: true
                            checked: Shell.idle.reminderDays.indexOf(index + 1) >= 0
                            text: Qt.locale().dayName((index + 1) % 7, Locale.ShortFormat)
                            onToggled: {
                                const days = Shell.idle.reminderDays.filter(d => d !== index + 1)
                                if (checked) days.push(index + 1)
                                Shell.idle.reminderDays = days.sort()
                            }
                        }
                    }
                }
                RowLayout {
                    visible: Shell.idle.remindersEnabled
                    Layout.leftMargin: Theme.space5
                    spacing: Theme.space2
                    FieldLabel {
                        //% "From"
                        text: qsTrId("ui.settings.from")
                    }
                    Field {
                        Layout.preferredWidth: 80
                        text: Shell.idle.reminderFrom
                        validator: RegularExpressionValidator { regularExpression: /^([01]?\d|2[0-3]):[0-5]\d$/ }
                        Accessible.name: qsTrId("ui.settings.from")
                        onEditingFinished: if (acceptableInput) Shell.idle.reminderFrom = text
                    }
                    FieldLabel {
                        //% "to"
                        text: qsTrId("ui.settings.to")
                    }
                    Field {
                        Layout.preferredWidth: 80
                        text: Shell.idle.reminderTo
                        validator: RegularExpressionValidator { regularExpression: /^([01]?\d|2[0-3]):[0-5]\d$/ }
                        Accessible.name: qsTrId("ui.settings.to")
                        onEditingFinished: if (acceptableInput) Shell.idle.reminderTo = text
                    }
                    FieldLabel {
                        //% "every (minutes)"
                        text: qsTrId("ui.settings.every")
                    }
                    Field {
                        Layout.preferredWidth: 80
                        text: Shell.idle.reminderEveryMinutes
                        validator: IntValidator { bottom: 5; top: 480 }
                        Accessible.name: qsTrId("ui.settings.every")
                        onEditingFinished: if (acceptableInput) Shell.idle.reminderEveryMinutes = parseInt(text)
                    }
                }
            }

            Section {
                //% "Account"
                title: qsTrId("ui.settings.account")
                Text {
                    textFormat: Text.PlainText
                    //% "Signed in as %1"
                    text: qsTrId("ui.settings.signedInAs").arg(root.prefs.email)
                    color: Theme.text
                }
                Repeater {
                    model: Shell.auth ? Shell.auth.accounts.filter(a => a.email !== root.prefs.email) : []
                    FlatButton {
                        required property var modelData
                        //% "Switch to %1"
                        text: qsTrId("ui.settings.switchTo").arg(modelData.email)
                        onClicked: Shell.switchAccount(modelData.id)
                    }
                }
                FlatButton {
                    objectName: "signOutButton"
                    text: qsTrId("ui.action.signOut")
                    onClicked: Shell.signOut()
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    Layout.topMargin: Theme.space3
                    wrapMode: Text.Wrap
                    color: Theme.muted
                    //% "Deleting your account removes your projects, tasks, time and invoices from the server for good. Type your e-mail address to confirm."
                    text: qsTrId("ui.settings.deleteHint")
                }
                RowLayout {
                    Layout.fillWidth: true
                    Field {
                        id: confirmField
                        Layout.fillWidth: true
                        placeholderText: "name@example.com"
                        //% "Your e-mail address, to confirm"
                        Accessible.name: qsTrId("ui.settings.deleteConfirm")
                    }
                    PrimaryButton {
                        danger: true
                        enabled: confirmField.text.trim().toLowerCase() === root.prefs.email.toLowerCase()
                        //% "Delete my account"
                        text: qsTrId("ui.settings.deleteAccount")
                        onClicked: root.prefs.deleteAccount(confirmField.text)
                    }
                }
            }

            Section {
                id: aiSection
                readonly property var assistant: Shell.assistant
                readonly property var chosen: assistant.providers.find(p => p.value === assistant.provider)
                //% "AI"
                title: qsTrId("ui.settings.ai")
                FieldLabel {
                    //% "Where model calls go"
                    text: qsTrId("ui.ai.route")
                }
                Choice {
                    objectName: "aiProvider"
                    Layout.fillWidth: true
                    Accessible.name: qsTrId("ui.ai.route")
                    model: aiSection.assistant.providers
                    value: aiSection.assistant.provider
                    onChosen: (name) => aiSection.assistant.provider = name
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    text: aiSection.chosen ? aiSection.chosen.help : ""
                    color: Theme.muted
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }
                FieldLabel {
                    Layout.topMargin: Theme.space2
                    //% "Your own API keys (kept in the keyring)"
                    text: qsTrId("ui.ai.keys")
                }
                Repeater {
                    model: aiSection.assistant.keys
                    RowLayout {
                        id: keyRow
                        required property var modelData
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        Text {
                            textFormat: Text.PlainText
                            Layout.preferredWidth: 140
                            text: keyRow.modelData.name
                            color: Theme.text
                            font.pixelSize: Theme.fontBody
                            elide: Text.ElideRight
                        }
                        Field {
                            id: keyField
                            objectName: "aiKeyField-" + keyRow.modelData.vendor
                            Layout.fillWidth: true
                            echoMode: TextInput.Password
                            //% "API key for %1"
                            Accessible.name: qsTrId("ui.ai.keyName").arg(keyRow.modelData.name)
                            placeholderText: keyRow.modelData.stored
                                             //% "A key is stored; paste another to replace it"
                                             ? qsTrId("ui.ai.keyStored")
                                             //% "Paste your API key"
                                             : qsTrId("ui.ai.keyPaste")
                            onAccepted: { aiSection.assistant.saveKey(keyRow.modelData.vendor, text); text = "" }
                        }
                        FlatButton {
                            enabled: keyField.text !== ""
                            //% "Save key"
                            text: qsTrId("ui.ai.keySave")
                            onClicked: { aiSection.assistant.saveKey(keyRow.modelData.vendor, keyField.text); keyField.text = "" }
                        }
                        FlatButton {
                            visible: keyRow.modelData.stored
                            danger: true
                            //% "Remove"
                            text: qsTrId("ui.ai.keyRemove")
                            onClicked: aiSection.assistant.removeKey(keyRow.modelData.vendor)
                        }
                    }
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: aiSection.assistant.keyMessage
                    color: Theme.danger
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }
                FieldLabel {
                    Layout.topMargin: Theme.space2
                    //% "Sending text off this computer"
                    text: qsTrId("ui.ai.consents")
                }
                Repeater {
                    model: aiSection.assistant.consents
                    RowLayout {
                        id: consentRow
                        required property var modelData
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        Text {
                            textFormat: Text.PlainText
                            Layout.fillWidth: true
                            text: consentRow.modelData.name
                            color: Theme.text
                            font.pixelSize: Theme.fontBody
                            elide: Text.ElideRight
                        }
                        Choice {
                            Layout.preferredWidth: 200
                            Accessible.name: consentRow.modelData.name
                            model: [
                                //% "Ask first"
                                { value: "ask", label: qsTrId("ui.ai.consentAsk") },
                                //% "Allowed"
                                { value: "allow", label: qsTrId("ui.ai.consentAllow") },
                                //% "Never send"
                                { value: "deny", label: qsTrId("ui.ai.consentDeny") }
                            ]
                            value: consentRow.modelData.state
                            onChosen: (answer) => aiSection.assistant.setConsent(consentRow.modelData.route, answer)
                        }
                    }
                }
            }

            Section {
                //% "Backend"
                title: qsTrId("ui.settings.backend")
                Radio {
                    id: localChoice
                    checked: root.prefs.usesLocalBackend
                    //% "This computer (private, nothing to set up)"
                    text: qsTrId("ui.settings.backend.local")
                }
                GridLayout {
                    Layout.fillWidth: true
                    Layout.leftMargin: Theme.space5
                    visible: localChoice.checked
                    columns: 2
                    columnSpacing: Theme.space3
                    FieldLabel {
                        //% "State"
                        text: qsTrId("ui.settings.local.state")
                    }
                    RowLayout {
                        Chip {
                            tone: root.prefs.localState === "running" ? "success" : "muted"
                            text: root.prefs.localState === "running"
                                  //% "Running"
                                  ? qsTrId("ui.settings.local.running")
                                  : root.prefs.localState === "starting"
                                    //% "Starting"
                                    ? qsTrId("ui.settings.local.starting")
                                    //% "Stopped"
                                    : qsTrId("ui.settings.local.stopped")
                        }
                        FlatButton {
                            compact: true
                            enabled: !root.prefs.busy
                            text: root.prefs.localState === "running"
                                  //% "Stop"
                                  ? qsTrId("ui.settings.local.stop")
                                  //% "Start"
                                  : qsTrId("ui.settings.local.start")
                            onClicked: root.prefs.localState === "running" ? root.prefs.stopLocal() : root.prefs.startLocal()
                        }
                    }
                    FieldLabel {
                        //% "Data folder"
                        text: qsTrId("ui.settings.local.folder")
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: root.prefs.localDataDir
                        color: Theme.text
                        elide: Text.ElideMiddle
                        font.family: Theme.monoFamily
                        font.pixelSize: Theme.fontSmall
                    }
                    FieldLabel {
                        //% "Size"
                        text: qsTrId("ui.settings.local.size")
                    }
                    Text {
                        textFormat: Text.PlainText
                        text: root.prefs.localSize
                        color: Theme.text
                    }
                }
                Radio {
                    id: remoteChoice
                    checked: !root.prefs.usesLocalBackend
                    //% "A shared server (for teams and several computers)"
                    text: qsTrId("ui.settings.backend.remote")
                }
                GridLayout {
                    Layout.fillWidth: true
                    Layout.leftMargin: Theme.space5
                    visible: remoteChoice.checked
                    columns: 2
                    columnSpacing: Theme.space3
                    FieldLabel {
                        //% "Address"
                        text: qsTrId("ui.settings.remote.url")
                    }
                    Field {
                        id: urlField
                        Layout.fillWidth: true
                        text: root.prefs.backendUrl
                        placeholderText: "https://"
                        Accessible.name: qsTrId("ui.settings.remote.url")
                    }
                    FieldLabel {
                        //% "Public key"
                        text: qsTrId("ui.settings.remote.key")
                    }
                    Field {
                        id: keyField
                        Layout.fillWidth: true
                        text: root.prefs.backendKey
                        Accessible.name: qsTrId("ui.settings.remote.key")
                    }
                }
                Text {
                    textFormat: Text.PlainText
                    id: backendProblem
                    visible: text !== ""
                    color: Theme.danger
                    font.pixelSize: Theme.fontSmall
                }
                PrimaryButton {
                    enabled: localChoice.checked !== root.prefs.usesLocalBackend
                             || (remoteChoice.checked && (urlField.text !== root.prefs.backendUrl
                                                           || keyField.text !== root.prefs.backendKey))
                    //% "Use this backend"
                    text: qsTrId("ui.settings.backend.apply")
                    onClicked: {
                        const ok = localChoice.checked ? root.prefs.useBackend("", "")
                                                       : root.prefs.useBackend(urlField.text, keyField.text)
                        //% "Enter the server's https address and its public key."
                        backendProblem.text = ok ? "" : qsTrId("ui.settings.backend.invalid")
                    }
                }
            }
        }
    }
}
