import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// The trips: a filtered list beside an editor for a new or the chosen trip with its route drawn
// above it, the trip under way across the top, and the travel settings a click away.
Rectangle {
    id: root
    objectName: "tripsView"
    color: Theme.background
    readonly property var view: Shell.workspace.trips
    readonly property var problems: view.problems

    Component.onCompleted: view.reload()

    function askDelete(id) {
        confirmDelete.tripId = id
        confirmDelete.open()
    }

    Shortcut {
        sequence: "Ctrl+N"
        onActivated: { root.view.newTrip(); fromField.forceActiveFocus() }
    }
    Shortcut {
        sequence: "Esc"
        enabled: root.view.editorOpen
        onActivated: root.view.searchField !== "" ? root.view.dismissSearch() : root.view.closeEditor()
    }
    Shortcut {
        sequence: StandardKey.Delete
        enabled: root.view.editing !== "" && !fromField.activeFocus && !toField.activeFocus
                 && !kmField.activeFocus && !dateField.activeFocus && !purposeField.activeFocus
        onActivated: root.askDelete(root.view.editing)
    }

    ConfirmDialog {
        id: confirmDelete
        objectName: "confirmDeleteTrip"
        property string tripId
        title: qsTrId("tripDeleteConfirm")
        confirmText: qsTrId("ui.common.delete")
        onConfirmed: root.view.remove(tripId)
    }

    Popup {
        id: settingsPopup
        objectName: "travelSettings"
        modal: true
        focus: true
        anchors.centerIn: Overlay.overlay
        width: Math.min(400, root.width - 2 * Theme.space5)
        padding: Theme.space5
        Overlay.modal: Rectangle { color: Theme.scrim }
        background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }
        onOpened: { rateField.text = root.view.ratePerKm; usualMode.value = root.view.usualMode; rateField.forceActiveFocus() }
        function submit() { if (root.view.saveSettings(rateField.text, usualMode.value)) close() }
        contentItem: ColumnLayout {
            spacing: Theme.space2
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                Layout.bottomMargin: Theme.space2
                //% "Travel settings"
                text: qsTrId("ui.trips.settings")
                color: Theme.text
                font.pixelSize: Theme.fontLarge
                font.weight: Font.DemiBold
            }
            FieldLabel {
                //% "Rate per kilometre"
                text: qsTrId("ui.trips.rate")
            }
            Field {
                id: rateField
                objectName: "travelRate"
                Layout.fillWidth: true
                invalid: root.view.settingsProblem !== ""
                Accessible.name: qsTrId("ui.trips.rate")
                onAccepted: settingsPopup.submit()
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                //% "Used for projects that charge travel per kilometre and name no rate of their own."
                text: qsTrId("ui.trips.rateHint")
                color: Theme.muted
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }
            FieldLabel {
                Layout.topMargin: Theme.space2
                //% "Usually travel by"
                text: qsTrId("ui.trips.usualMode")
            }
            Choice {
                id: usualMode
                objectName: "travelMode"
                Layout.fillWidth: true
                model: root.view.modeChoices
                Accessible.name: qsTrId("ui.trips.usualMode")
                onChosen: (v) => value = v
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                text: root.view.settingsProblem
                visible: text !== ""
                color: Theme.danger
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }
            RowLayout {
                Layout.alignment: Qt.AlignRight
                Layout.topMargin: Theme.space3
                spacing: Theme.space2
                FlatButton { text: qsTrId("ui.common.cancel"); onClicked: settingsPopup.close() }
                PrimaryButton {
                    objectName: "saveTravelSettings"
                    text: qsTrId("ui.common.save")
                    onClicked: settingsPopup.submit()
                }
            }
        }
    }

    // The hits of the address search under the field being typed in.
    component Hits: ColumnLayout {
        id: hits
        property string field
        visible: root.view.searchField === field && (root.view.searchResults.length > 0 || root.view.searchNote !== ""
                                                     || root.view.searching)
        spacing: 0
        Repeater {
            model: hits.visible ? root.view.searchResults : []
            delegate: ItemDelegate {
                id: hit
                required property var modelData
                required property int index
                objectName: "placeHit" + index
                Layout.fillWidth: true
                implicitHeight: Theme.controlHeight
                Accessible.name: modelData.label
                onClicked: root.view.choosePlace(index)
                background: Rectangle {
                    color: hit.hovered || hit.visualFocus ? Theme.hover : "transparent"
                    radius: Theme.radiusControl
                }
                contentItem: RowLayout {
                    spacing: Theme.space2
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: hit.modelData.label
                        color: Theme.text
                        font.pixelSize: Theme.fontSmall
                        elide: Text.ElideRight
                    }
                    Chip {
                        //% "Client"
                        text: hit.modelData.clientId !== "" ? qsTrId("ui.trips.clientHit") : ""
                        tone: "primary"
                    }
                }
            }
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            Layout.topMargin: Theme.space1
            text: root.view.searching
                  //% "Searching…"
                  ? qsTrId("ui.trips.searching") : root.view.searchNote
            color: Theme.muted
            font.pixelSize: Theme.fontSmall - 1
            wrapMode: Text.Wrap
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
                //% "Trips"
                text: qsTrId("ui.trips.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            FlatButton {
                objectName: "openTravelSettings"
                text: qsTrId("ui.trips.settings")
                onClicked: settingsPopup.open()
            }
            FlatButton {
                objectName: "startTrip"
                visible: root.view.progressId === ""
                //% "Start a trip now"
                text: qsTrId("ui.trips.start")
                onClicked: root.view.startTrip()
            }
            PrimaryButton {
                objectName: "newTrip"
                //% "New trip"
                text: qsTrId("ui.trips.new")
                onClicked: { root.view.newTrip(); fromField.forceActiveFocus() }
            }
        }

        Rectangle {
            objectName: "tripProgress"
            Layout.fillWidth: true
            visible: root.view.progressId !== ""
            implicitHeight: progressRow.implicitHeight + 2 * Theme.space2
            radius: Theme.radiusControl
            color: Qt.rgba(Theme.running.r, Theme.running.g, Theme.running.b, 0.12)
            RowLayout {
                id: progressRow
                anchors.fill: parent
                anchors.leftMargin: Theme.space3
                anchors.rightMargin: Theme.space2
                spacing: Theme.space3
                Rectangle { width: 8; height: 8; radius: 4; color: Theme.running }
                Text {
                    textFormat: Text.PlainText
                    text: qsTrId("tripInProgress")
                    color: Theme.running
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.DemiBold
                }
                Text {
                    textFormat: Text.PlainText
                    Layout.fillWidth: true
                    text: root.view.progressText
                    color: Theme.text
                    font.family: Theme.monoFamily
                    font.pixelSize: Theme.fontBody
                    elide: Text.ElideRight
                }
                FlatButton {
                    objectName: "finishTrip"
                    //% "Finish trip"
                    text: qsTrId("ui.trips.finish")
                    onClicked: root.view.finishTrip()
                }
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space2
            Choice {
                objectName: "tripPeriod"
                Layout.preferredWidth: 150
                model: root.view.periodChoices
                value: root.view.period
                //% "Period"
                Accessible.name: qsTrId("ui.trips.periodFilter")
                onChosen: (v) => root.view.period = v
            }
            Choice {
                objectName: "tripProject"
                Layout.preferredWidth: 200
                model: root.view.projectChoices
                value: root.view.project
                //% "Project"
                Accessible.name: qsTrId("ui.trips.projectFilter")
                onChosen: (v) => root.view.project = v
            }
            Choice {
                objectName: "tripBillable"
                Layout.preferredWidth: 200
                model: root.view.billableChoices
                value: root.view.billable
                //% "Charging"
                Accessible.name: qsTrId("ui.trips.billableFilter")
                onChosen: (v) => root.view.billable = v
            }
            Item { Layout.fillWidth: true }
            Text {
                textFormat: Text.PlainText
                text: root.view.summary
                color: Theme.muted
                font.family: Theme.monoFamily
                font.pixelSize: Theme.fontSmall
            }
        }
        Text {
            textFormat: Text.PlainText
            objectName: "tripToInvoice"
            Layout.fillWidth: true
            visible: text !== ""
            text: root.view.toInvoice
            color: Theme.muted
            font.pixelSize: Theme.fontSmall
            wrapMode: Text.Wrap
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: Theme.space4

            Rectangle {
                Layout.fillWidth: true
                Layout.fillHeight: true
                color: Theme.surface
                radius: Theme.radiusCard
                border.color: Theme.border

                ColumnLayout {
                    anchors.fill: parent
                    anchors.margins: 1
                    spacing: 0
                    visible: root.view.rows.count > 0

                    RowLayout {
                        Layout.fillWidth: true
                        Layout.margins: Theme.space3
                        spacing: Theme.space3
                        FieldLabel {
                            Layout.preferredWidth: 96
                            //% "Date"
                            text: qsTrId("ui.trips.date")
                        }
                        FieldLabel {
                            Layout.fillWidth: true
                            //% "Trip"
                            text: qsTrId("ui.trips.trip")
                        }
                        FieldLabel {
                            Layout.preferredWidth: 64
                            horizontalAlignment: Text.AlignRight
                            //% "km"
                            text: qsTrId("ui.trips.kmColumn")
                        }
                    }
                    Rectangle { Layout.fillWidth: true; Layout.preferredHeight: 1; color: Theme.border }

                    ListView {
                        objectName: "tripList"
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        clip: true
                        model: root.view.rows
                        boundsBehavior: Flickable.StopAtBounds
                        ScrollBar.vertical: ScrollBar {}
                        delegate: ItemDelegate {
                            id: row
                            required property string id
                            required property string day
                            required property string from
                            required property string to
                            required property string km
                            required property string mode
                            required property string project
                            required property string purpose
                            required property string chipLabel
                            required property string chipTone
                            width: ListView.view.width
                            implicitHeight: Theme.rowHeight + Theme.space3
                            Accessible.name: from + " → " + to
                            onClicked: root.view.edit(id)
                            background: Rectangle {
                                color: root.view.editing === row.id ? Theme.selected
                                     : row.hovered ? Theme.hover : "transparent"
                                border.width: row.visualFocus ? 2 : 0
                                border.color: Theme.accent
                            }
                            contentItem: RowLayout {
                                spacing: Theme.space3
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.preferredWidth: 96
                                    text: row.day
                                    color: Theme.muted
                                    font.family: Theme.monoFamily
                                    font.pixelSize: Theme.fontSmall
                                    elide: Text.ElideRight
                                }
                                ColumnLayout {
                                    Layout.fillWidth: true
                                    spacing: 2
                                    Text {
                                        textFormat: Text.PlainText
                                        Layout.fillWidth: true
                                        text: (row.from || "?") + "  →  " + (row.to || "…")
                                        color: Theme.text
                                        font.pixelSize: Theme.fontBody
                                        font.weight: Font.Medium
                                        elide: Text.ElideRight
                                    }
                                    Text {
                                        textFormat: Text.PlainText
                                        Layout.fillWidth: true
                                        text: [row.mode, row.project, row.purpose].filter(t => t !== "").join(" · ")
                                        color: Theme.muted
                                        font.pixelSize: Theme.fontSmall
                                        elide: Text.ElideRight
                                    }
                                }
                                Chip { text: row.chipLabel; tone: row.chipTone }
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.preferredWidth: 64
                                    horizontalAlignment: Text.AlignRight
                                    text: row.km
                                    color: Theme.text
                                    font.family: Theme.monoFamily
                                    font.pixelSize: Theme.fontBody
                                }
                            }
                        }
                    }
                }

                EmptyState {
                    objectName: "tripsEmpty"
                    anchors.centerIn: parent
                    width: Math.min(parent.width - 2 * Theme.space5, 420)
                    visible: root.view.rows.count === 0
                    title: root.view.total === 0
                           //% "No trips yet"
                           ? qsTrId("ui.trips.emptyTitle")
                           //% "No trip matches these filters"
                           : qsTrId("ui.trips.noMatch")
                    hint: root.view.total === 0
                          //% "Trips your phone records while a timer runs show up here. Press Ctrl+N or “New trip” to add one by hand."
                          ? qsTrId("ui.trips.emptyHint") : ""
                }
            }

            Rectangle {
                objectName: "tripEditor"
                Layout.preferredWidth: Theme.inspectorWidth
                Layout.fillHeight: true
                visible: root.view.editorOpen
                color: Theme.surface
                radius: Theme.radiusCard
                border.color: Theme.border

                ScrollView {
                    id: editorScroll
                    anchors.fill: parent
                    anchors.margins: 1
                    contentWidth: availableWidth
                    clip: true

                    ColumnLayout {
                        width: editorScroll.availableWidth - 2 * Theme.space4
                        x: Theme.space4
                        y: Theme.space4
                        spacing: Theme.space2

                        Text {
                            textFormat: Text.PlainText
                            Layout.fillWidth: true
                            text: root.view.finishing ? qsTrId("ui.trips.finish")
                                  : root.view.editing === "" ? qsTrId("ui.trips.new")
                                  //% "Edit trip"
                                  : qsTrId("ui.trips.edit")
                            color: Theme.text
                            font.pixelSize: Theme.fontLarge
                            font.weight: Font.DemiBold
                            elide: Text.ElideRight
                        }

                        TripMap {
                            objectName: "tripMap"
                            Layout.fillWidth: true
                            Layout.preferredHeight: 128
                            visible: points.length >= 2
                            points: root.view.mapPoints
                            isRoute: root.view.mapIsRoute
                        }

                        FieldLabel {
                            Layout.topMargin: Theme.space1
                            //% "From"
                            text: qsTrId("ui.trips.from")
                        }
                        Field {
                            id: fromField
                            objectName: "tripFrom"
                            Layout.fillWidth: true
                            text: root.view.fromText
                            //% "Address, place or client"
                            placeholderText: qsTrId("ui.trips.placePlaceholder")
                            Accessible.name: qsTrId("ui.trips.from")
                            invalid: root.problems.from !== undefined
                            onTextEdited: root.view.typePlace("from", text)
                            Keys.onDownPressed: if (root.view.searchResults.length > 0) root.view.choosePlace(0)
                        }
                        Hits { field: "from"; Layout.fillWidth: true }

                        FieldLabel {
                            Layout.topMargin: Theme.space1
                            //% "To"
                            text: qsTrId("ui.trips.to")
                        }
                        Field {
                            id: toField
                            objectName: "tripTo"
                            Layout.fillWidth: true
                            text: root.view.toText
                            placeholderText: qsTrId("ui.trips.placePlaceholder")
                            Accessible.name: qsTrId("ui.trips.to")
                            invalid: root.problems.to !== undefined
                            onTextEdited: root.view.typePlace("to", text)
                            Keys.onDownPressed: if (root.view.searchResults.length > 0) root.view.choosePlace(0)
                        }
                        Hits { field: "to"; Layout.fillWidth: true }

                        GridLayout {
                            Layout.fillWidth: true
                            Layout.topMargin: Theme.space1
                            columns: 3
                            columnSpacing: Theme.space2
                            rowSpacing: Theme.space1
                            FieldLabel { text: qsTrId("ui.trips.date") }
                            FieldLabel {
                                //% "Kilometres"
                                text: qsTrId("ui.trips.km")
                            }
                            FieldLabel {
                                //% "Travelled by"
                                text: qsTrId("ui.trips.mode")
                            }
                            Field {
                                id: dateField
                                objectName: "tripDate"
                                Layout.preferredWidth: 104
                                text: root.view.date
                                placeholderText: "YYYY-MM-DD"
                                font.family: Theme.monoFamily
                                Accessible.name: qsTrId("ui.trips.date")
                                invalid: root.problems.date !== undefined
                                onTextEdited: root.view.date = text
                            }
                            Field {
                                id: kmField
                                objectName: "tripKm"
                                Layout.preferredWidth: 72
                                text: root.view.km
                                horizontalAlignment: TextInput.AlignRight
                                font.family: Theme.monoFamily
                                Accessible.name: qsTrId("ui.trips.km")
                                invalid: root.problems.km !== undefined
                                onTextEdited: root.view.km = text
                                onAccepted: root.view.save()
                            }
                            Choice {
                                objectName: "tripMode"
                                Layout.fillWidth: true
                                model: root.view.modeChoices
                                value: root.view.mode
                                Accessible.name: qsTrId("ui.trips.mode")
                                onChosen: (v) => root.view.mode = v
                            }
                        }
                        Text {
                            textFormat: Text.PlainText
                            objectName: "tripDistanceNote"
                            Layout.fillWidth: true
                            visible: text !== ""
                            text: root.view.routing
                                  //% "Finding the road route…"
                                  ? qsTrId("ui.trips.routing") : root.view.distanceNote
                            color: Theme.muted
                            font.pixelSize: Theme.fontSmall
                            wrapMode: Text.Wrap
                        }

                        FieldLabel {
                            Layout.topMargin: Theme.space1
                            //% "Project and task"
                            text: qsTrId("ui.trips.work")
                        }
                        Choice {
                            objectName: "tripWork"
                            Layout.fillWidth: true
                            model: root.view.workChoices
                            value: root.view.work
                            Accessible.name: qsTrId("ui.trips.work")
                            onChosen: (v) => root.view.work = v
                        }
                        Check {
                            objectName: "tripCharge"
                            Layout.topMargin: Theme.space1
                            //% "Charge to the client"
                            text: qsTrId("ui.trips.charge")
                            checked: root.view.charge && !root.view.privateTrip
                            enabled: !root.view.privateTrip
                            onToggled: root.view.charge = checked
                        }
                        Check {
                            objectName: "tripPrivate"
                            //% "Private trip"
                            text: qsTrId("ui.trips.private")
                            checked: root.view.privateTrip
                            onToggled: root.view.privateTrip = checked
                        }

                        FieldLabel {
                            Layout.topMargin: Theme.space1
                            //% "Purpose"
                            text: qsTrId("ui.trips.purpose")
                        }
                        Field {
                            id: purposeField
                            objectName: "tripPurpose"
                            Layout.fillWidth: true
                            text: root.view.purpose
                            //% "For example: meeting at the client, delivery"
                            placeholderText: qsTrId("ui.trips.purposePlaceholder")
                            Accessible.name: qsTrId("ui.trips.purpose")
                            onTextEdited: root.view.purpose = text
                            onAccepted: root.view.save()
                        }

                        Repeater {
                            model: Object.values(root.problems)
                            delegate: Text {
                                required property string modelData
                                textFormat: Text.PlainText
                                Layout.fillWidth: true
                                text: modelData
                                color: Theme.danger
                                font.pixelSize: Theme.fontSmall
                                wrapMode: Text.Wrap
                            }
                        }

                        RowLayout {
                            Layout.fillWidth: true
                            Layout.topMargin: Theme.space3
                            Layout.bottomMargin: Theme.space4
                            spacing: Theme.space2
                            FlatButton {
                                objectName: "deleteTrip"
                                danger: true
                                visible: root.view.editing !== ""
                                text: qsTrId("ui.common.delete")
                                onClicked: root.askDelete(root.view.editing)
                            }
                            Item { Layout.fillWidth: true }
                            FlatButton {
                                text: qsTrId("ui.common.cancel")
                                onClicked: root.view.closeEditor()
                            }
                            PrimaryButton {
                                objectName: "saveTrip"
                                text: root.view.saving ? qsTrId("ui.common.saving") : qsTrId("ui.common.save")
                                enabled: !root.view.saving
                                onClicked: root.view.save()
                            }
                        }
                    }
                }
            }
        }
    }
}
