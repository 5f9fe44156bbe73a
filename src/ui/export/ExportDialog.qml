import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Morvane.Ui

// Time entries or invoices of a period as a CSV file for the accountant. The period starts as the
// month before this one; Save… asks where, and the outcome is said below the fields.
Popup {
    id: dialog
    objectName: "exportDialog"
    property string kind: "entries"
    readonly property bool periodOk: exporter.isPeriod(fromField.text, toField.text)
    // An outcome belongs to the choice it was made for.
    onKindChanged: exporter.clear()
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: Math.min(440, parent ? parent.width - 2 * Theme.space5 : 440)
    padding: Theme.space5
    closePolicy: exporter.busy ? Popup.NoAutoClose : Popup.CloseOnEscape | Popup.CloseOnPressOutside
    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }

    onAboutToShow: {
        exporter.clear()
        if (fromField.text === "" && toField.text === "") {
            fromField.text = exporter.previousMonthStart()
            toField.text = exporter.previousMonthEnd()
        }
    }
    onOpened: entriesChoice.forceActiveFocus()

    AccountantExportView {
        id: exporter
        store: Shell.store
    }

    FileDialog {
        id: fileDialog
        //% "Save the CSV file"
        title: qsTrId("ui.export.fileTitle")
        fileMode: FileDialog.SaveFile
        defaultSuffix: "csv"
        //% "CSV files (*.csv)"
        nameFilters: [qsTrId("ui.export.csvFilter")]
        onAccepted: exporter.save(dialog.kind, fromField.text, toField.text, selectedFile)
    }

    function chooseFile() {
        fileDialog.selectedFile = exporter.suggestedFile(dialog.kind, fromField.text, toField.text)
        fileDialog.open()
    }

    contentItem: ColumnLayout {
        spacing: Theme.space3
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "Export for the accountant"
            text: qsTrId("ui.export.title")
            color: Theme.text
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "A CSV file that spreadsheets and bookkeeping programs read: one row per time entry or invoice of the period."
            text: qsTrId("ui.export.body")
            color: Theme.muted
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
        RowLayout {
            Layout.topMargin: Theme.space1
            spacing: Theme.space5
            Radio {
                id: entriesChoice
                objectName: "exportEntries"
                //% "Time entries"
                text: qsTrId("ui.export.entries")
                checked: dialog.kind === "entries"
                onToggled: if (checked) dialog.kind = "entries"
            }
            Radio {
                objectName: "exportInvoices"
                //% "Invoices"
                text: qsTrId("ui.export.invoices")
                checked: dialog.kind === "invoices"
                onToggled: if (checked) dialog.kind = "invoices"
            }
        }
        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: Theme.space3
            rowSpacing: Theme.space1
            FieldLabel {
                //% "From"
                text: qsTrId("ui.export.from")
            }
            FieldLabel {
                //% "To"
                text: qsTrId("ui.export.to")
            }
            Field {
                id: fromField
                objectName: "exportFrom"
                Layout.fillWidth: true
                placeholderText: "YYYY-MM-DD"
                Accessible.name: qsTrId("ui.export.from")
                invalid: text !== "" && !dialog.periodOk
                inputMethodHints: Qt.ImhDate
                onTextChanged: exporter.clear()
                Keys.onReturnPressed: if (dialog.periodOk) dialog.chooseFile()
            }
            Field {
                id: toField
                objectName: "exportTo"
                Layout.fillWidth: true
                placeholderText: "YYYY-MM-DD"
                Accessible.name: qsTrId("ui.export.to")
                invalid: text !== "" && !dialog.periodOk
                inputMethodHints: Qt.ImhDate
                onTextChanged: exporter.clear()
                Keys.onReturnPressed: if (dialog.periodOk) dialog.chooseFile()
            }
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            //% "Enter both days as YYYY-MM-DD, the first not after the last."
            text: qsTrId("ui.export.badPeriod")
            visible: !dialog.periodOk
            color: Theme.danger
            font.pixelSize: Theme.fontSmall
            wrapMode: Text.Wrap
        }
        Text {
            objectName: "exportMessage"
            textFormat: Text.PlainText
            Layout.fillWidth: true
            text: exporter.message
            visible: text.length > 0
            color: exporter.failed ? Theme.danger : (exporter.busy ? Theme.muted : Theme.success)
            font.pixelSize: Theme.fontBody
            wrapMode: Text.WrapAnywhere
        }
        RowLayout {
            Layout.alignment: Qt.AlignRight
            Layout.topMargin: Theme.space2
            spacing: Theme.space2
            FlatButton {
                //% "Close"
                text: qsTrId("ui.export.close")
                enabled: !exporter.busy
                onClicked: dialog.close()
            }
            PrimaryButton {
                objectName: "exportSave"
                //% "Save…"
                text: qsTrId("ui.export.save")
                enabled: dialog.periodOk && !exporter.busy
                onClicked: dialog.chooseFile()
                Keys.onReturnPressed: clicked()
            }
        }
    }
}
