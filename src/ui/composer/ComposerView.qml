import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// A new invoice: the work and its period on the left, the invoice as it will be sent on the right.
// Every figure comes from Shell.workspace.composer; the preview follows each change on its own.
Rectangle {
    id: root
    objectName: "composerView"
    color: Theme.background
    readonly property var view: Shell.workspace.composer
    readonly property var composer: view.composer

    Shortcut {
        sequence: "Ctrl+S"
        onActivated: root.view.save("draft")
    }

    component SectionTitle: Text {
        textFormat: Text.PlainText
        Layout.fillWidth: true
        Layout.topMargin: Theme.space3
        color: Theme.text
        font.pixelSize: Theme.fontLarge
        font.weight: Font.DemiBold
        elide: Text.ElideRight
    }
    component Figure: RowLayout {
        property alias label: labelText.text
        property alias amount: amountText.text
        property bool strong: false
        Layout.fillWidth: true
        Text {
            id: labelText
            textFormat: Text.PlainText
            Layout.fillWidth: true
            color: parent.strong ? Theme.text : Theme.muted
            font.pixelSize: Theme.fontBody
            font.weight: parent.strong ? Font.DemiBold : Font.Normal
            elide: Text.ElideRight
        }
        Text {
            id: amountText
            textFormat: Text.PlainText
            color: Theme.text
            font.pixelSize: parent.strong ? Theme.fontLarge : Theme.fontBody
            font.weight: parent.strong ? Font.DemiBold : Font.Normal
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            Layout.margins: Theme.space4
            spacing: Theme.space2
            Text {
                textFormat: Text.PlainText
                //% "New invoice"
                text: qsTrId("ui.composer.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
            }
            Chip {
                objectName: "composerNumber"
                visible: root.view.number !== ""
                tone: "primary"
                //% "No. %1"
                text: qsTrId("ui.composer.number").arg(root.view.number)
            }
            Item { Layout.fillWidth: true }
            FlatButton {
                //% "Cancel"
                text: qsTrId("ui.composer.cancel")
                onClicked: mainViewOf(root).page = "invoices"
            }
            FlatButton {
                objectName: "saveDraftButton"
                //% "Save as draft"
                text: qsTrId("ui.composer.saveDraft")
                enabled: root.composer && root.composer.canSave && !root.view.saving
                onClicked: root.view.save("draft")
            }
            PrimaryButton {
                objectName: "saveSentButton"
                //% "Save as sent"
                text: qsTrId("ui.composer.saveSent")
                enabled: root.composer && root.composer.canSave && !root.view.saving
                onClicked: root.view.save("sent")
            }
        }
        Banner {
            objectName: "composerMessage"
            Layout.fillWidth: true
            Layout.leftMargin: Theme.space4
            Layout.rightMargin: Theme.space4
            text: root.view.message
            error: root.view.messageIsError
            onDismissed: root.view.dismissMessage()
        }
        Banner {
            Layout.fillWidth: true
            Layout.leftMargin: Theme.space4
            Layout.rightMargin: Theme.space4
            text: root.composer ? (root.composer.readinessError || root.composer.leftOutMessage) : ""
            onDismissed: if (root.composer) root.composer.clearLeftOutMessage()
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            ScrollView {
                id: formScroll
                Layout.preferredWidth: Math.min(460, root.width * 0.45)
                Layout.fillHeight: true
                contentWidth: availableWidth
                clip: true

                ColumnLayout {
                    width: formScroll.availableWidth - 2 * Theme.space4
                    x: Theme.space4
                    spacing: Theme.space2

                    SectionTitle {
                        Layout.topMargin: 0
                        //% "Projects"
                        text: qsTrId("ui.composer.projects")
                    }
                    Flow {
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        Repeater {
                            model: root.view.projects
                            Check {
                                required property var modelData
                                objectName: "composerProject-" + modelData.name
                                text: modelData.unbilled ? modelData.name + "  ·  " + modelData.unbilled : modelData.name
                                checked: modelData.chosen
                                onToggled: root.view.toggleProject(modelData.id)
                            }
                        }
                    }

                    SectionTitle {
                        //% "Period"
                        text: qsTrId("ui.composer.period")
                    }
                    Flow {
                        Layout.fillWidth: true
                        spacing: Theme.space1
                        Repeater {
                            model: root.view.presets
                            FlatButton {
                                required property var modelData
                                compact: true
                                text: modelData.text
                                onClicked: root.view.applyPreset(modelData.key)
                            }
                        }
                    }
                    RowLayout {
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        Field {
                            id: fromField
                            objectName: "composerFrom"
                            Layout.fillWidth: true
                            //% "From (year-month-day)"
                            placeholderText: qsTrId("ui.composer.from")
                            text: root.view.fromText
                            onEditingFinished: root.view.setPeriod(text, toField.text)
                        }
                        Text {
                            textFormat: Text.PlainText
                            text: "–"
                            color: Theme.muted
                        }
                        Field {
                            id: toField
                            objectName: "composerTo"
                            Layout.fillWidth: true
                            //% "To (year-month-day)"
                            placeholderText: qsTrId("ui.composer.to")
                            text: root.view.toText
                            onEditingFinished: root.view.setPeriod(fromField.text, text)
                        }
                    }

                    SectionTitle {
                        //% "Work"
                        text: qsTrId("ui.composer.work")
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        visible: root.view.tasks.count === 0
                        //% "No unbilled time in this period. Choose another period or project."
                        text: qsTrId("ui.composer.noWork")
                        color: Theme.muted
                        font.pixelSize: Theme.fontBody
                        wrapMode: Text.Wrap
                    }
                    Repeater {
                        model: root.view.tasks
                        RowLayout {
                            required property string key
                            required property string title
                            required property string project
                            required property string hours
                            required property string amount
                            required property bool selected
                            Layout.fillWidth: true
                            spacing: Theme.space2
                            Check {
                                objectName: "composerTask-" + parent.title
                                checked: parent.selected
                                Accessible.name: parent.title
                                onToggled: root.composer.toggleTask(parent.key)
                            }
                            ColumnLayout {
                                Layout.fillWidth: true
                                spacing: 0
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.fillWidth: true
                                    text: parent.parent.title
                                    color: Theme.text
                                    font.pixelSize: Theme.fontBody
                                    elide: Text.ElideRight
                                }
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.fillWidth: true
                                    text: parent.parent.project + "  ·  " + parent.parent.hours
                                    color: Theme.muted
                                    font.pixelSize: Theme.fontSmall
                                    elide: Text.ElideRight
                                }
                            }
                            Text {
                                textFormat: Text.PlainText
                                text: parent.amount
                                color: Theme.text
                                font.pixelSize: Theme.fontBody
                            }
                        }
                    }
                    Repeater {
                        model: root.view.followUps
                        Check {
                            required property var modelData
                            Layout.fillWidth: true
                            text: root.view.words.rebill + ": " + modelData.name
                            checked: modelData.rebill
                            ToolTip.visible: hovered
                            ToolTip.text: root.view.words.rebillHelp
                            onToggled: root.composer.setRebill(modelData.key, checked)
                        }
                    }
                    Repeater {
                        model: root.view.travel
                        Check {
                            required property var modelData
                            objectName: "chargeTravel-" + modelData.projectId
                            Layout.fillWidth: true
                            text: modelData.text
                            checked: modelData.charge
                            onToggled: root.composer.setChargeTravel(modelData.projectId, checked)
                        }
                    }

                    SectionTitle {
                        //% "Lines"
                        text: qsTrId("ui.composer.lines")
                        visible: root.view.lines.count > 0
                    }
                    Repeater {
                        model: root.view.lines
                        ColumnLayout {
                            required property string title
                            required property string label
                            required property string detail
                            required property string description
                            required property string amount
                            Layout.fillWidth: true
                            spacing: 0
                            Figure {
                                label: parent.label ? parent.title + "  ·  " + parent.label : parent.title
                                amount: parent.amount
                            }
                            Text {
                                textFormat: Text.PlainText
                                Layout.fillWidth: true
                                text: parent.description ? parent.detail + "  ·  " + parent.description : parent.detail
                                color: Theme.muted
                                font.pixelSize: Theme.fontSmall
                                elide: Text.ElideRight
                            }
                        }
                    }
                    Rectangle {
                        Layout.fillWidth: true
                        Layout.preferredHeight: 1
                        color: Theme.border
                        visible: root.view.lines.count > 0
                    }
                    Figure {
                        visible: root.view.lines.count > 0
                        label: root.view.words.subtotal
                        amount: root.view.subtotalText
                    }
                    Repeater {
                        model: root.view.lines.count > 0 ? root.view.vatRows : []
                        Figure {
                            required property var modelData
                            objectName: "composerVatRow"
                            label: modelData.text
                            amount: modelData.amount
                        }
                    }
                    Figure {
                        objectName: "composerTotal"
                        visible: root.view.lines.count > 0
                        strong: true
                        label: root.view.words.total
                        amount: root.view.totalText
                    }
                    RowLayout {
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        Check {
                            id: manualVat
                            objectName: "composerManualVat"
                            text: root.view.words.vatOverride
                            checked: root.composer ? root.composer.manualVat : false
                            onToggled: root.composer.manualVat = checked
                        }
                        Field {
                            objectName: "composerVatPercent"
                            Layout.preferredWidth: 72
                            visible: manualVat.checked
                            horizontalAlignment: Text.AlignRight
                            //% "VAT %"
                            placeholderText: qsTrId("ui.composer.vatPercent")
                            text: root.composer ? String(root.composer.manualVatPercent) : ""
                            validator: DoubleValidator { bottom: 0; top: 100; decimals: 2 }
                            onEditingFinished: root.composer.manualVatPercent = Number(text.replace(",", "."))
                        }
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: root.view.words.vatHint
                        color: Theme.muted
                        font.pixelSize: Theme.fontSmall
                        wrapMode: Text.Wrap
                    }

                    SectionTitle {
                        //% "Bill to"
                        text: qsTrId("ui.composer.billTo")
                    }
                    Choice {
                        objectName: "composerClientChoice"
                        Layout.fillWidth: true
                        visible: root.view.clients.length > 0
                        //% "Saved clients"
                        Accessible.name: qsTrId("ui.composer.savedClients")
                        model: [{ value: "", label: qsTrId("ui.composer.savedClients") }].concat(
                                   root.view.clients.map(c => ({ value: c.id, label: c.name })))
                        onChosen: (value) => { if (value) root.view.chooseClient(value) }
                    }
                    Field {
                        objectName: "composerClientName"
                        Layout.fillWidth: true
                        //% "Client name"
                        placeholderText: qsTrId("ui.composer.clientName")
                        text: root.composer ? root.composer.clientName : ""
                        onTextEdited: root.composer.clientName = text
                    }
                    Field {
                        Layout.fillWidth: true
                        //% "Client e-mail"
                        placeholderText: qsTrId("ui.composer.clientEmail")
                        text: root.composer ? root.composer.clientEmail : ""
                        onTextEdited: root.composer.clientEmail = text
                    }
                    TextArea {
                        Layout.fillWidth: true
                        Layout.preferredHeight: 64
                        //% "Client address"
                        placeholderText: qsTrId("ui.composer.clientAddress")
                        Accessible.name: placeholderText
                        text: root.composer ? root.composer.clientAddress : ""
                        color: Theme.text
                        placeholderTextColor: Theme.muted
                        font.pixelSize: Theme.fontBody
                        wrapMode: TextEdit.Wrap
                        background: Rectangle { radius: Theme.radiusControl; color: Theme.surface; border.color: Theme.border }
                        onTextChanged: if (root.composer && text !== root.composer.clientAddress) root.composer.clientAddress = text
                    }
                    Check {
                        //% "Save as client"
                        text: qsTrId("ui.composer.saveAsClient")
                        checked: root.composer ? root.composer.saveAsClient : false
                        onToggled: root.composer.saveAsClient = checked
                    }

                    SectionTitle {
                        //% "Invoice"
                        text: qsTrId("ui.composer.invoice")
                    }
                    GridLayout {
                        Layout.fillWidth: true
                        columns: 2
                        columnSpacing: Theme.space2
                        rowSpacing: Theme.space1
                        FieldLabel {
                            //% "Issued"
                            text: qsTrId("ui.composer.issued")
                        }
                        FieldLabel {
                            //% "Due"
                            text: qsTrId("ui.composer.due")
                        }
                        Field {
                            id: issuedField
                            Layout.fillWidth: true
                            placeholderText: qsTrId("ui.composer.issued")
                            text: root.view.issuedText
                            onEditingFinished: root.view.setDates(text, dueField.text)
                        }
                        Field {
                            id: dueField
                            Layout.fillWidth: true
                            placeholderText: qsTrId("ui.composer.due")
                            text: root.view.dueText
                            onEditingFinished: root.view.setDates(issuedField.text, text)
                        }
                    }
                    FieldLabel {
                        //% "Design"
                        text: qsTrId("ui.composer.design")
                    }
                    Choice {
                        objectName: "composerDesign"
                        Layout.fillWidth: true
                        Accessible.name: qsTrId("ui.composer.design")
                        model: root.view.designs.map(d => ({ value: d.name, label: d.title }))
                        value: root.view.design
                        onChosen: (value) => root.view.design = value
                    }
                    TextArea {
                        Layout.fillWidth: true
                        Layout.preferredHeight: 64
                        Layout.bottomMargin: Theme.space4
                        //% "Notes on the invoice"
                        placeholderText: qsTrId("ui.composer.notes")
                        Accessible.name: placeholderText
                        text: root.view.notes
                        color: Theme.text
                        placeholderTextColor: Theme.muted
                        font.pixelSize: Theme.fontBody
                        wrapMode: TextEdit.Wrap
                        background: Rectangle { radius: Theme.radiusControl; color: Theme.surface; border.color: Theme.border }
                        onTextChanged: if (text !== root.view.notes) root.view.notes = text
                    }
                }
            }

            Rectangle {
                Layout.fillWidth: true
                Layout.fillHeight: true
                color: Theme.dark ? "#292524" : "#E7E5E4"

                Flickable {
                    id: pages
                    objectName: "composerPreview"
                    anchors.fill: parent
                    visible: root.view.previewPages.length > 0
                    clip: true
                    contentWidth: width
                    contentHeight: pageColumn.height + 2 * Theme.space4
                    boundsBehavior: Flickable.StopAtBounds
                    ScrollBar.vertical: ScrollBar {}
                    Column {
                        id: pageColumn
                        x: Theme.space4
                        y: Theme.space4
                        spacing: Theme.space4
                        Repeater {
                            model: root.view.previewPages
                            Rectangle {
                                required property string modelData
                                // The whole page width in view: a person reads the invoice, not a corner of it.
                                width: pages.width - 2 * Theme.space4
                                height: width * root.view.previewAspect
                                color: "white"
                                border.color: Theme.border
                                Image {
                                    anchors.fill: parent
                                    anchors.margins: 1
                                    source: parent.modelData
                                    sourceSize.width: width
                                    smooth: true
                                    mipmap: true
                                    cache: false
                                }
                            }
                        }
                    }
                }
                EmptyState {
                    anchors.centerIn: parent
                    width: parent.width - 2 * Theme.space6
                    visible: root.view.previewPages.length === 0 && !root.view.previewBusy
                    //% "The invoice appears here"
                    title: qsTrId("ui.composer.previewEmpty")
                    //% "Choose a project with unbilled time and a period; the page follows every change."
                    hint: root.view.previewError || qsTrId("ui.composer.previewHint")
                }
                BusyIndicator {
                    anchors.right: parent.right
                    anchors.top: parent.top
                    anchors.margins: Theme.space3
                    width: 28
                    height: 28
                    running: root.view.previewBusy || root.view.saving
                    //% "Drawing the invoice"
                    Accessible.name: qsTrId("ui.composer.drawing")
                }
            }
        }
    }

    function mainViewOf(item) {
        for (let p = item.parent; p; p = p.parent)
            if (p.objectName === "mainView")
                return p
        return null
    }
}
