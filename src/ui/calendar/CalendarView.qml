import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Morvane.Ui

// Import from your calendar: the calendars you added on the left, the chosen day's events on the
// right, each ticked with where it goes, imported as time in one go. Everything from Shell.calendar.
Rectangle {
    id: root
    objectName: "calendarView"
    color: Theme.background
    readonly property var view: Shell.calendar

    Component.onCompleted: view.reload()

    FileDialog {
        id: fileDialog
        //% "Add a calendar file"
        title: qsTrId("ui.calendar.fileTitle")
        //% "Calendar files (*.ics)"
        nameFilters: [qsTrId("ui.calendar.fileFilter")]
        onAccepted: root.view.addFile(selectedFile)
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
                //% "Import from your calendar"
                text: qsTrId("ui.calendar.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            FlatButton {
                //% "Previous day"
                text: "‹"
                Accessible.name: qsTrId("ui.calendar.previous")
                onClicked: root.view.moveDay(-1)
            }
            Field {
                id: dayField
                objectName: "calendarDay"
                Layout.preferredWidth: 130
                text: root.view.dayIso
                //% "Day (year-month-day)"
                placeholderText: qsTrId("ui.calendar.day")
                onEditingFinished: root.view.setDay(text)
            }
            FlatButton {
                //% "Next day"
                text: "›"
                Accessible.name: qsTrId("ui.calendar.next")
                onClicked: root.view.moveDay(1)
            }
        }
        Banner {
            Layout.fillWidth: true
            text: root.view.message
            error: root.view.messageIsError
            onDismissed: root.view.dismissMessage()
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: Theme.space4

            // The calendars.
            ColumnLayout {
                Layout.preferredWidth: 300
                Layout.maximumWidth: 300
                Layout.fillHeight: true
                spacing: Theme.space2
                FieldLabel {
                    //% "Your calendars"
                    text: qsTrId("ui.calendar.sources")
                }
                Repeater {
                    model: root.view.sources
                    RowLayout {
                        id: sourceRow
                        required property var modelData
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        Rectangle {
                            implicitWidth: 10
                            implicitHeight: 10
                            radius: 5
                            color: sourceRow.modelData.color || Theme.accent
                        }
                        ColumnLayout {
                            Layout.fillWidth: true
                            spacing: 0
                            Text {
                                textFormat: Text.PlainText
                                Layout.fillWidth: true
                                text: sourceRow.modelData.name
                                color: Theme.text
                                font.pixelSize: Theme.fontBody
                                elide: Text.ElideRight
                            }
                            Text {
                                textFormat: Text.PlainText
                                Layout.fillWidth: true
                                text: sourceRow.modelData.address
                                color: Theme.muted
                                font.pixelSize: Theme.fontSmall
                                elide: Text.ElideMiddle
                            }
                        }
                        FlatButton {
                            compact: true
                            danger: true
                            //% "Remove"
                            text: qsTrId("ui.calendar.remove")
                            onClicked: root.view.removeSource(sourceRow.modelData.id)
                        }
                    }
                }
                FlatButton {
                    Layout.fillWidth: true
                    //% "Add a calendar file…"
                    text: qsTrId("ui.calendar.addFile")
                    onClicked: fileDialog.open()
                }
                Field {
                    id: addressField
                    objectName: "calendarAddress"
                    Layout.fillWidth: true
                    //% "Subscription or CalDAV address (https:// or webcal://)"
                    placeholderText: qsTrId("ui.calendar.address")
                }
                Check {
                    id: caldav
                    //% "CalDAV account"
                    text: qsTrId("ui.calendar.caldav")
                }
                Field {
                    id: userField
                    Layout.fillWidth: true
                    visible: caldav.checked
                    //% "User name"
                    placeholderText: qsTrId("ui.calendar.user")
                }
                Field {
                    id: passwordField
                    Layout.fillWidth: true
                    visible: caldav.checked
                    echoMode: TextInput.Password
                    //% "Password (kept in your keyring)"
                    placeholderText: qsTrId("ui.calendar.password")
                }
                PrimaryButton {
                    Layout.fillWidth: true
                    enabled: addressField.text.trim() !== ""
                    //% "Add calendar"
                    text: qsTrId("ui.calendar.add")
                    onClicked: {
                        root.view.addAddress(addressField.text, caldav.checked, userField.text, passwordField.text)
                        addressField.text = ""
                        passwordField.text = ""
                    }
                }
                Item { Layout.fillHeight: true }
            }

            // The day's events.
            ColumnLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: Theme.space2
                ListView {
                    id: eventList
                    objectName: "calendarEvents"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    visible: count > 0
                    clip: true
                    spacing: Theme.space1
                    model: root.view.events
                    section.property: "section"
                    section.delegate: Text {
                        required property string section
                        textFormat: Text.PlainText
                        topPadding: Theme.space2
                        bottomPadding: Theme.space1
                        text: section
                        color: Theme.muted
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.DemiBold
                        font.capitalization: Font.AllUppercase
                    }
                    ScrollBar.vertical: ScrollBar {}
                    delegate: Rectangle {
                        id: eventRow
                        required property string key
                        required property string title
                        required property string calendar
                        required property string calendarColor
                        required property string time
                        required property string duration
                        required property string location
                        required property bool selected
                        required property bool logged
                        required property string destination
                        width: eventList.width - Theme.space3
                        implicitHeight: eventColumn.implicitHeight + 2 * Theme.space2
                        radius: Theme.radiusControl
                        color: Theme.surface
                        border.color: Theme.border
                        RowLayout {
                            id: eventColumn
                            anchors.fill: parent
                            anchors.margins: Theme.space2
                            spacing: Theme.space2
                            Rectangle {
                                Layout.fillHeight: true
                                implicitWidth: 4
                                radius: 2
                                color: eventRow.calendarColor || Theme.accent
                            }
                            Check {
                                objectName: "calendarEvent-" + eventRow.title
                                enabled: !eventRow.logged
                                checked: eventRow.selected
                                Accessible.name: eventRow.title
                                onToggled: root.view.toggle(eventRow.key)
                            }
                            ColumnLayout {
                                Layout.fillWidth: true
                                spacing: 0
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.fillWidth: true
                                    text: eventRow.title
                                    color: eventRow.logged ? Theme.muted : Theme.text
                                    font.pixelSize: Theme.fontBody
                                    elide: Text.ElideRight
                                }
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.fillWidth: true
                                    text: [eventRow.time, eventRow.duration, eventRow.calendar, eventRow.location]
                                          .filter(t => t !== "").join("  ·  ")
                                    color: Theme.muted
                                    font.pixelSize: Theme.fontSmall
                                    elide: Text.ElideRight
                                }
                            }
                            Chip {
                                visible: eventRow.logged
                                tone: "success"
                                //% "Imported"
                                text: qsTrId("ui.calendar.importedChip")
                            }
                            Choice {
                                visible: !eventRow.logged
                                Layout.preferredWidth: 260
                                //% "Where it goes"
                                Accessible.name: qsTrId("ui.calendar.destination")
                                model: [{ value: "", label: qsTrId("ui.calendar.destination") }]
                                       .concat(root.view.destinations)
                                value: eventRow.destination
                                onChosen: (value) => root.view.setDestination(eventRow.key, value)
                            }
                        }
                    }
                }
                EmptyState {
                    Layout.alignment: Qt.AlignHCenter
                    Layout.fillHeight: true
                    Layout.preferredWidth: Math.min(parent.width, 460)
                    visible: eventList.count === 0
                    title: !root.view.hasAccess
                           //% "No calendars yet"
                           ? qsTrId("ui.calendar.noSourcesTitle")
                           : root.view.loading
                             //% "Loading calendar…"
                             ? qsTrId("ui.calendar.loading")
                             //% "No events on this day"
                             : qsTrId("ui.calendar.noEventsTitle")
                    hint: !root.view.hasAccess
                          //% "Add a calendar file, a subscription address (such as a hosted calendar's secret address) or a CalDAV account on the left. Morvane only reads them."
                          ? qsTrId("ui.calendar.noSourcesHint")
                          //% "Pick another day, or add the calendar that holds your meetings."
                          : root.view.loading ? "" : qsTrId("ui.calendar.noEventsHint")
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.space2
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: root.view.selectedText
                        color: Theme.muted
                        font.pixelSize: Theme.fontBody
                    }
                    BusyIndicator {
                        running: root.view.importing || root.view.loading
                        visible: running
                        implicitWidth: 24
                        implicitHeight: 24
                    }
                    PrimaryButton {
                        objectName: "importEvents"
                        enabled: root.view.selectedCount > 0 && !root.view.importing
                        //% "Import as time"
                        text: qsTrId("ui.calendar.import")
                        onClicked: root.view.importSelected()
                    }
                }
            }
        }
    }
}
