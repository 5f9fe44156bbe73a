import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// The answers a new account starts with: they wait on this computer until the account exists.
ColumnLayout {
    id: form
    spacing: Theme.space2
    property alias displayName: nameField.text
    property string language: Shell.language
    property alias currency: currencyBox.value
    property alias rate: rateField.text
    property alias timeZone: zoneBox.value
    signal done()

    FieldLabel {
        //% "Your name"
        text: qsTrId("ui.onboarding.name")
    }
    Field {
        id: nameField
        Layout.fillWidth: true
        Accessible.name: qsTrId("ui.onboarding.name")
    }
    FieldLabel {
        //% "Language"
        text: qsTrId("ui.onboarding.language")
    }
    Choice {
        id: languageBox
        Layout.fillWidth: true
        model: Shell.languages.map(code => ({ value: code, label: Shell.languageName(code) }))
        value: form.language
        Accessible.name: qsTrId("ui.onboarding.language")
        onChosen: (code) => { form.language = code; Shell.setLanguage(code) }
    }
    FieldLabel {
        //% "Currency"
        text: qsTrId("ui.onboarding.currency")
    }
    Choice {
        id: currencyBox
        Layout.fillWidth: true
        model: Shell.currencies.map(code => ({ value: code, label: code }))
        value: "EUR"
        onChosen: (code) => value = code
        Accessible.name: qsTrId("ui.onboarding.currency")
    }
    FieldLabel {
        //% "Default hourly rate"
        text: qsTrId("ui.onboarding.rate")
    }
    Field {
        id: rateField
        Layout.fillWidth: true
        placeholderText: "85"
        invalid: !Shell.isRate(text)
        Accessible.name: qsTrId("ui.onboarding.rate")
        inputMethodHints: Qt.ImhFormattedNumbersOnly
    }
    Text {
        textFormat: Text.PlainText
        visible: rateField.invalid
        color: Theme.danger
        font.pixelSize: Theme.fontSmall
        //% "Enter an amount, such as 85 or 72.50."
        text: qsTrId("ui.onboarding.rateInvalid")
    }
    FieldLabel {
        //% "Time zone"
        text: qsTrId("ui.onboarding.timeZone")
    }
    Choice {
        id: zoneBox
        Layout.fillWidth: true
        model: Shell.timeZones.map(zone => ({ value: zone, label: zone.replace(/_/g, " ") }))
        value: Shell.systemTimeZone
        onChosen: (zone) => value = zone
        Accessible.name: qsTrId("ui.onboarding.timeZone")
    }
    PrimaryButton {
        Layout.fillWidth: true
        Layout.topMargin: Theme.space2
        enabled: !rateField.invalid
        //% "Continue"
        text: qsTrId("ui.common.continue")
        onClicked: form.done()
    }
}
