import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Dialogs
import QtQuick.Layouts
import Morvane.Ui

// The written invoices with what is still open and overdue above them; the chosen invoice's status,
// PDF and deletion in the bar below. Every figure and filter comes from Shell.workspace.invoices.
Rectangle {
    id: root
    objectName: "invoicesView"
    color: Theme.background
    readonly property var list: Shell.workspace.invoices
    property string selectedId: ""
    readonly property var selected: {
        list.rows.count, list.total // figuresChanged comes with every rebuild, a status change too
        const at = list.rows.indexOf(selectedId)
        return at >= 0 ? list.rows.get(at) : null
    }
    readonly property int figureWidth: 104

    Component.onCompleted: list.reload()

    function choose(id) { selectedId = id }
    function askVoid() { if (selected) confirmVoid.open() }
    function askDelete() { if (selected) confirmDelete.open() }
    function chooseFile() {
        if (!selected)
            return
        fileDialog.invoiceId = selectedId
        fileDialog.selectedFile = list.suggestedFile(selectedId)
        fileDialog.open()
    }

    component Heading: Text {
        textFormat: Text.PlainText
        Layout.preferredWidth: root.figureWidth
        horizontalAlignment: Text.AlignRight
        font.pixelSize: Theme.fontSmall
        color: Theme.muted
        elide: Text.ElideRight
    }
    component Figure: Text {
        textFormat: Text.PlainText
        Layout.preferredWidth: root.figureWidth
        horizontalAlignment: Text.AlignRight
        font.family: Theme.monoFamily
        font.pixelSize: Theme.fontBody
        color: Theme.text
        elide: Text.ElideLeft
    }
    component Sum: ColumnLayout {
        property alias title: sumTitle.text
        property alias value: sumValue.text
        property color tone: Theme.text
        spacing: Theme.space1
        Accessible.role: Accessible.StaticText
        Accessible.name: title + " " + value
        Text {
            id: sumTitle
            textFormat: Text.PlainText
            color: Theme.muted
            font.pixelSize: Theme.fontSmall
        }
        Text {
            id: sumValue
            textFormat: Text.PlainText
            color: parent.tone
            font.family: Theme.monoFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
        }
    }

    ConfirmDialog {
        id: confirmVoid
        objectName: "confirmVoidInvoice"
        //% "Void invoice %1?"
        title: qsTrId("ui.invoices.voidTitle").arg(root.selected ? root.selected.number : "")
        //% "A void invoice stays void: it can never be sent, paid or changed again. Its hours become unbilled, so you can invoice them anew."
        body: qsTrId("ui.invoices.voidBody")
        //% "Void"
        confirmText: qsTrId("ui.invoices.voidConfirm")
        onConfirmed: root.list.voidInvoice(root.selectedId)
    }
    ConfirmDialog {
        id: confirmRedraw
        danger: false
        objectName: "confirmRedrawInvoice"
        //% "Draw invoice %1 again?"
        title: qsTrId("ui.invoices.redrawTitle").arg(root.selected ? root.selected.number : "")
        //% "This replaces the stored PDF of this invoice with a new one, built from the invoice lines and the current details of its template. Continue?"
        body: qsTrId("ui.invoices.redrawBody")
        //% "Replace PDF"
        confirmText: qsTrId("ui.invoices.redrawConfirm")
        onConfirmed: root.list.redraw(root.selectedId)
    }
    ConfirmDialog {
        id: confirmDelete
        objectName: "confirmDeleteInvoice"
        //% "Delete invoice %1?"
        title: qsTrId("ui.invoices.deleteTitle").arg(root.selected ? root.selected.number : "")
        //% "The invoice and its PDF leave your list for good, and its hours become unbilled again. To keep a record, void it instead."
        body: qsTrId("ui.invoices.deleteBody")
        confirmText: qsTrId("ui.common.delete")
        onConfirmed: { root.list.remove(root.selectedId); root.selectedId = "" }
    }
    FileDialog {
        id: fileDialog
        property string invoiceId
        //% "Save the invoice PDF"
        title: qsTrId("ui.invoices.fileTitle")
        fileMode: FileDialog.SaveFile
        defaultSuffix: "pdf"
        //% "PDF files (*.pdf)"
        nameFilters: [qsTrId("ui.invoices.pdfFilter")]
        onAccepted: root.list.savePdf(invoiceId, selectedFile)
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
                //% "Invoices"
                text: qsTrId("ui.invoices.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Choice {
                objectName: "invoiceStatusFilter"
                Layout.preferredWidth: 160
                visible: root.list.total > 0
                //% "Status"
                Accessible.name: qsTrId("ui.invoices.statusFilter")
                model: [
                    //% "Every status"
                    { value: "", label: qsTrId("ui.invoices.allStatuses") },
                    { value: "draft", label: qsTrId("ui.invoices.status.draft") },
                    { value: "sent", label: qsTrId("ui.invoices.status.sent") },
                    { value: "paid", label: qsTrId("ui.invoices.status.paid") },
                    { value: "void", label: qsTrId("ui.invoices.status.void") },
                ]
                value: root.list.status
                onChosen: (value) => root.list.status = value
            }
            Choice {
                objectName: "invoiceYearFilter"
                Layout.preferredWidth: 130
                visible: root.list.total > 0
                //% "Year"
                Accessible.name: qsTrId("ui.invoices.yearFilter")
                model: [
                    //% "Every year"
                    { value: "0", label: qsTrId("ui.invoices.allYears") }
                ].concat(root.list.years.map(y => ({ value: String(y), label: String(y) })))
                value: String(root.list.year)
                onChosen: (value) => root.list.year = Number(value)
            }
            PrimaryButton {
                objectName: "newInvoice"
                //% "New invoice"
                text: qsTrId("ui.composer.title")
                onClicked: Shell.workspace.composer.open(Shell.workspace.selectedProjectId
                                                         ? [Shell.workspace.selectedProjectId] : [])
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space6
            visible: root.list.total > 0
            Sum {
                objectName: "invoicesOpen"
                //% "Still open"
                title: qsTrId("ui.invoices.open")
                value: root.list.openText
            }
            Sum {
                objectName: "invoicesOverdue"
                //% "Overdue"
                title: qsTrId("ui.invoices.overdue")
                value: root.list.overdueText
                tone: root.list.hasOverdue ? Theme.danger : Theme.text
            }
            Item { Layout.fillWidth: true }
        }

        Banner {
            objectName: "invoicesMessage"
            Layout.fillWidth: true
            visible: text !== ""
            text: root.list.message
            error: root.list.messageIsError
            onDismissed: root.list.dismissMessage()
        }

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
                visible: root.list.rows.count > 0

                RowLayout {
                    Layout.fillWidth: true
                    Layout.margins: Theme.space3
                    spacing: Theme.space3
                    FieldLabel {
                        Layout.preferredWidth: 110
                        //% "Number"
                        text: qsTrId("ui.invoices.number")
                    }
                    FieldLabel {
                        Layout.fillWidth: true
                        //% "Client"
                        text: qsTrId("ui.invoices.client")
                    }
                    FieldLabel {
                        Layout.preferredWidth: 90
                        //% "Issued"
                        text: qsTrId("ui.invoices.issued")
                    }
                    FieldLabel {
                        Layout.preferredWidth: 90
                        //% "Due"
                        text: qsTrId("ui.invoices.due")
                    }
                    //% "Net"
                    Heading { text: qsTrId("ui.invoices.net") }
                    //% "VAT"
                    Heading { text: qsTrId("ui.invoices.vat") }
                    //% "Total"
                    Heading { text: qsTrId("ui.invoices.total") }
                    FieldLabel {
                        Layout.preferredWidth: 90
                        //% "Status"
                        text: qsTrId("ui.invoices.status")
                    }
                }
                Rectangle { Layout.fillWidth: true; Layout.preferredHeight: 1; color: Theme.border }

                ListView {
                    objectName: "invoiceList"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    model: root.list.rows
                    boundsBehavior: Flickable.StopAtBounds
                    ScrollBar.vertical: ScrollBar {}
                    delegate: ItemDelegate {
                        id: row
                        required property string id
                        required property string number
                        required property string client
                        required property string issued
                        required property string due
                        required property string net
                        required property string vat
                        required property string total
                        required property string status
                        required property string statusText
                        required property bool overdue
                        width: ListView.view.width
                        implicitHeight: Theme.rowHeight
                        Accessible.name: number + " " + client + " " + total + " " + statusText
                        onClicked: root.choose(id)
                        background: Rectangle {
                            color: root.selectedId === row.id ? Theme.selected
                                 : row.hovered ? Theme.hover : "transparent"
                            border.width: row.visualFocus ? 2 : 0
                            border.color: Theme.accent
                        }
                        contentItem: RowLayout {
                            spacing: Theme.space3
                            Text {
                                textFormat: Text.PlainText
                                Layout.preferredWidth: 110
                                text: row.number
                                color: Theme.text
                                font.family: Theme.monoFamily
                                font.pixelSize: Theme.fontBody
                                font.weight: Font.Medium
                                elide: Text.ElideRight
                            }
                            Text {
                                textFormat: Text.PlainText
                                Layout.fillWidth: true
                                text: row.client
                                color: Theme.text
                                font.pixelSize: Theme.fontBody
                                elide: Text.ElideRight
                            }
                            Text {
                                textFormat: Text.PlainText
                                Layout.preferredWidth: 90
                                text: row.issued
                                color: Theme.muted
                                font.pixelSize: Theme.fontBody
                                elide: Text.ElideRight
                            }
                            Text {
                                textFormat: Text.PlainText
                                Layout.preferredWidth: 90
                                text: row.due
                                color: row.overdue ? Theme.danger : Theme.muted
                                font.pixelSize: Theme.fontBody
                                font.weight: row.overdue ? Font.DemiBold : Font.Normal
                                elide: Text.ElideRight
                            }
                            Figure { text: row.net; color: Theme.muted }
                            Figure { text: row.vat; color: Theme.muted }
                            Figure { text: row.total; font.weight: Font.Medium }
                            Item {
                                Layout.preferredWidth: 90
                                Layout.fillHeight: true
                                Chip {
                                    anchors.verticalCenter: parent.verticalCenter
                                    text: row.overdue ? qsTrId("ui.invoices.overdue") : row.statusText
                                    tone: row.overdue ? "danger"
                                        : row.status === "paid" ? "success"
                                        : row.status === "sent" ? "primary" : "muted"
                                }
                            }
                        }
                    }
                }

                Rectangle { Layout.fillWidth: true; Layout.preferredHeight: 1; color: Theme.border; visible: root.selected !== null }

                RowLayout {
                    objectName: "invoiceActions"
                    Layout.fillWidth: true
                    Layout.margins: Theme.space3
                    spacing: Theme.space2
                    visible: root.selected !== null
                    readonly property bool isVoid: root.selected !== null && root.selected.status === "void"

                    Text {
                        textFormat: Text.PlainText
                        text: root.selected ? root.selected.number : ""
                        color: Theme.text
                        font.family: Theme.monoFamily
                        font.pixelSize: Theme.fontBody
                        font.weight: Font.DemiBold
                    }
                    Choice {
                        objectName: "invoiceStatus"
                        Layout.preferredWidth: 130
                        visible: !parent.isVoid
                        enabled: !root.list.busy
                        Accessible.name: qsTrId("ui.invoices.status")
                        model: [
                            { value: "draft", label: qsTrId("ui.invoices.status.draft") },
                            { value: "sent", label: qsTrId("ui.invoices.status.sent") },
                            { value: "paid", label: qsTrId("ui.invoices.status.paid") },
                        ]
                        value: root.selected ? root.selected.status : ""
                        onChosen: (value) => root.list.changeStatus(root.selectedId, value)
                    }
                    Text {
                        objectName: "invoiceVoidNote"
                        textFormat: Text.PlainText
                        visible: parent.isVoid
                        //% "Void — final, it cannot be changed again"
                        text: qsTrId("ui.invoices.voidFinal")
                        color: Theme.muted
                        font.pixelSize: Theme.fontBody
                    }
                    FlatButton {
                        objectName: "voidInvoice"
                        danger: true
                        visible: !parent.isVoid
                        enabled: !root.list.busy
                        //% "Void…"
                        text: qsTrId("ui.invoices.void")
                        onClicked: root.askVoid()
                    }
                    Item { Layout.fillWidth: true }
                    FlatButton {
                        objectName: "openInvoicePdf"
                        enabled: root.selected !== null && root.selected.hasPdf
                        //% "Open PDF"
                        text: qsTrId("ui.invoices.openPdf")
                        onClicked: root.list.openPdf(root.selectedId)
                    }
                    FlatButton {
                        objectName: "saveInvoicePdf"
                        enabled: root.selected !== null && root.selected.hasPdf
                        //% "Save PDF…"
                        text: qsTrId("ui.invoices.savePdf")
                        onClicked: root.chooseFile()
                    }
                    FlatButton {
                        objectName: "redrawInvoice"
                        visible: !parent.isVoid
                        enabled: root.selected !== null && !root.list.busy
                        //% "Draw again…"
                        text: qsTrId("ui.invoices.redraw")
                        onClicked: confirmRedraw.open()
                    }
                    FlatButton {
                        objectName: "deleteInvoice"
                        danger: true
                        enabled: !root.list.busy
                        text: qsTrId("ui.common.delete")
                        onClicked: root.askDelete()
                    }
                }
            }

            EmptyState {
                objectName: "invoicesEmpty"
                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * Theme.space5, 440)
                visible: root.list.rows.count === 0
                title: root.list.total === 0
                       //% "No invoices yet"
                       ? qsTrId("ui.invoices.emptyTitle")
                       //% "No invoice matches these filters"
                       : qsTrId("ui.invoices.noMatch")
                hint: root.list.total === 0
                      //% "Invoices you write from your tracked time appear here, with what is still open and what is overdue."
                      ? qsTrId("ui.invoices.emptyHint")
                      //% "Choose another status or year."
                      : qsTrId("ui.invoices.noMatchHint")
            }
        }
    }
}
