import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Dialogs
import QtQuick.Layouts
import Morvane.Ui

// The sender's details and the look of every new invoice: details, logo, palette and fonts, the
// designs drawn by the real renderer with the style as it is typed, and a custom template.
Rectangle {
    id: root
    objectName: "invoiceStyleView"
    color: Theme.background
    readonly property var model: Shell.workspace.invoiceStyle
    property string design: ""
    property string logo: ""
    property string logoProblem: ""
    property string templateHtml: ""
    property string templateFileProblem: ""
    // Shell.trId is empty and changes with the language, so that the reason is said again in the new one.
    readonly property string templateProblem: templateHtml === "" ? "" : model.templateProblem(templateHtml) + Shell.trId
    // Set while the controls are filled from the store, so that filling is no edit.
    property bool loading: false
    property bool dirty: false

    function load(stored) {
        loading = true
        for (const field of textFields)
            field.text = stored[field.key] || ""
        addressField.text = stored.address || ""
        madeWith.checked = stored.morvaneFooter === true
        design = stored.htmlTemplate || ""
        logo = stored.logoDataUri || ""
        logoProblem = ""
        templateHtml = stored.customTemplateHtml || ""
        templateFileProblem = ""
        displayFont.value = stored.fontDisplay || ""
        bodyFont.value = stored.fontBody || ""
        loading = false
        dirty = false
        model.preview(values())
    }
    function values() {
        const form = {}
        for (const field of textFields)
            form[field.key] = field.text
        form.address = addressField.text
        form.morvaneFooter = madeWith.checked
        form.htmlTemplate = design
        form.logoDataUri = logo
        form.customTemplateHtml = templateHtml
        form.fontDisplay = displayFont.value
        form.fontBody = bodyFont.value
        return form
    }
    function edited() {
        if (loading)
            return
        dirty = true
        model.preview(values())
    }
    function save() { model.save(values()) }
    function useLogo(url) {
        const picked = model.pickLogo(url)
        logoProblem = picked.problem || ""
        if (picked.dataUri) {
            logo = picked.dataUri
            edited()
        }
    }
    function useTemplate(url) {
        const picked = model.pickTemplate(url)
        templateFileProblem = picked.html === "" ? picked.problem : ""
        if (picked.html !== "") {
            templateHtml = picked.html
            // An uploaded template is what the person wants to see used; the designs stay one click away.
            design = "aiCustom"
            edited()
        }
    }
    function chooseDesign(name) {
        design = name
        edited()
    }

    readonly property var textFields: [companyField, emailField, websiteField, phoneField, btwField, kvkField,
        ibanField, bankField, daysField, vatField, footerField, accentRow.field, inkRow.field, paperRow.field,
        mutedRow.field, borderRow.field, bannerRow.field]

    Component.onCompleted: load(model.saved)
    Connections {
        target: root.model
        // A change from elsewhere replaces the form unless the person is editing it.
        function onSavedChanged() { if (!root.dirty) root.load(root.model.saved) }
        function onStored() { root.dirty = false }
    }
    Shortcut {
        sequence: StandardKey.Save
        onActivated: root.save()
    }

    FileDialog {
        id: logoDialog
        //% "Choose a logo"
        title: qsTrId("ui.style.logoDialog")
        //% "Images (*.png *.jpg *.jpeg)"
        nameFilters: [qsTrId("ui.style.imageFilter")]
        onAccepted: root.useLogo(selectedFile)
    }
    FileDialog {
        id: templateDialog
        //% "Choose an HTML template"
        title: qsTrId("ui.style.templateDialog")
        //% "HTML files (*.html *.htm)"
        nameFilters: [qsTrId("ui.style.htmlFilter")]
        onAccepted: root.useTemplate(selectedFile)
    }

    component Card: Rectangle {
        default property alias content: inner.data
        property alias title: heading.text
        color: Theme.surface
        radius: Theme.radiusCard
        border.color: Theme.border
        implicitHeight: inner.implicitHeight + 2 * Theme.space4
        ColumnLayout {
            id: inner
            anchors.fill: parent
            anchors.margins: Theme.space4
            spacing: Theme.space2
            Text {
                id: heading
                textFormat: Text.PlainText
                Layout.fillWidth: true
                Layout.bottomMargin: Theme.space1
                color: Theme.text
                font.pixelSize: Theme.fontLarge
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
        }
    }
    component StyleField: Field {
        property string key
        Layout.fillWidth: true
        onTextEdited: root.edited()
    }
    component Labelled: ColumnLayout {
        property alias label: caption.text
        Layout.fillWidth: true
        spacing: Theme.space1
        FieldLabel { id: caption; Layout.fillWidth: true }
    }
    component ColourRow: RowLayout {
        property alias label: caption.text
        property alias field: hex
        property string key
        readonly property string problem: root.model.colourProblem(hex.text) + Shell.trId
        Layout.fillWidth: true
        spacing: Theme.space2
        FieldLabel { id: caption; Layout.preferredWidth: 96 }
        Rectangle {
            Layout.preferredWidth: Theme.controlHeight
            Layout.preferredHeight: Theme.controlHeight
            radius: Theme.radiusControl
            border.color: Theme.border
            color: hex.text !== "" && parent.problem === "" ? hex.text : "transparent"
            Text {
                textFormat: Text.PlainText
                anchors.centerIn: parent
                visible: hex.text === ""
                //: Shown in a colour swatch when the design's own colour is used.
                //% "auto"
                text: qsTrId("ui.style.colourAuto")
                color: Theme.muted
                font.pixelSize: Theme.fontSmall
            }
        }
        Field {
            id: hex
            property string key: parent.key
            objectName: "colour-" + key
            Layout.fillWidth: true
            font.family: Theme.monoFamily
            placeholderText: "#rrggbb"
            invalid: parent.problem !== ""
            Accessible.name: caption.text
            onTextEdited: root.edited()
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
                //% "Invoice style"
                text: qsTrId("ui.style.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Text {
                textFormat: Text.PlainText
                visible: root.dirty && !root.model.saving
                //% "Unsaved changes"
                text: qsTrId("ui.style.unsaved")
                color: Theme.muted
                font.pixelSize: Theme.fontSmall
            }
            FlatButton {
                objectName: "revertStyle"
                visible: root.dirty
                //% "Undo changes"
                text: qsTrId("ui.style.revert")
                onClicked: root.load(root.model.saved)
            }
            PrimaryButton {
                objectName: "saveStyle"
                text: root.model.saving
                      //% "Saving…"
                      ? qsTrId("ui.style.saving")
                      : qsTrId("ui.common.save")
                enabled: !root.model.saving
                onClicked: root.save()
            }
        }

        Banner {
            objectName: "styleError"
            Layout.fillWidth: true
            text: root.model.error
            onDismissed: root.model.error = ""
        }

        ScrollView {
            id: scroll
            objectName: "styleScroll"
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth
            clip: true

            ColumnLayout {
                width: scroll.availableWidth
                spacing: Theme.space4

                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.space4

                    Card {
                        //% "Sender"
                        title: qsTrId("ui.style.sender")
                        Layout.fillWidth: true
                        Layout.preferredWidth: 3
                        Layout.alignment: Qt.AlignTop

                        GridLayout {
                            Layout.fillWidth: true
                            columns: 2
                            columnSpacing: Theme.space3
                            rowSpacing: Theme.space2
                            Labelled {
                                //% "Company"
                                label: qsTrId("ui.style.company")
                                StyleField { id: companyField; key: "company"; objectName: "styleCompany"; Accessible.name: qsTrId("ui.style.company") }
                            }
                            Labelled {
                                //% "E-mail"
                                label: qsTrId("ui.style.email")
                                StyleField { id: emailField; key: "email"; objectName: "styleEmail"; placeholderText: "billing@example.com"; Accessible.name: qsTrId("ui.style.email") }
                            }
                            Labelled {
                                Layout.columnSpan: 2
                                //% "Address"
                                label: qsTrId("ui.style.address")
                                TextArea {
                                    id: addressField
                                    objectName: "styleAddress"
                                    Layout.fillWidth: true
                                    Layout.preferredHeight: Theme.controlHeight * 2
                                    wrapMode: TextEdit.Wrap
                                    textFormat: TextEdit.PlainText
                                    font.pixelSize: Theme.fontBody
                                    color: Theme.text
                                    selectionColor: Theme.accent
                                    selectedTextColor: Theme.textOnAccent
                                    Accessible.name: qsTrId("ui.style.address")
                                    onTextChanged: if (activeFocus) root.edited()
                                    background: Rectangle {
                                        radius: Theme.radiusControl
                                        color: Theme.surface
                                        border.width: addressField.activeFocus ? 2 : 1
                                        border.color: addressField.activeFocus ? Theme.accent : Theme.border
                                    }
                                }
                            }
                            Labelled {
                                //% "Website"
                                label: qsTrId("ui.style.website")
                                StyleField { id: websiteField; key: "website"; objectName: "styleWebsite"; Accessible.name: qsTrId("ui.style.website") }
                            }
                            Labelled {
                                //% "Phone"
                                label: qsTrId("ui.style.phone")
                                StyleField { id: phoneField; key: "phone"; objectName: "stylePhone"; Accessible.name: qsTrId("ui.style.phone") }
                            }
                            Labelled {
                                //% "VAT number"
                                label: qsTrId("ui.style.btw")
                                StyleField { id: btwField; key: "btw"; objectName: "styleBtw"; Accessible.name: qsTrId("ui.style.btw") }
                            }
                            Labelled {
                                //% "Chamber of commerce number"
                                label: qsTrId("ui.style.kvk")
                                StyleField { id: kvkField; key: "kvk"; objectName: "styleKvk"; Accessible.name: qsTrId("ui.style.kvk") }
                            }
                            Labelled {
                                //% "Bank account (IBAN)"
                                label: qsTrId("ui.style.iban")
                                StyleField { id: ibanField; key: "iban"; objectName: "styleIban"; font.family: Theme.monoFamily; Accessible.name: qsTrId("ui.style.iban") }
                            }
                            Labelled {
                                //% "Bank"
                                label: qsTrId("ui.style.bank")
                                StyleField { id: bankField; key: "bankName"; objectName: "styleBank"; Accessible.name: qsTrId("ui.style.bank") }
                            }
                            Labelled {
                                //% "Payment terms in days"
                                label: qsTrId("ui.style.days")
                                StyleField { id: daysField; key: "paymentTermsDays"; objectName: "styleDays"; placeholderText: "14"; inputMethodHints: Qt.ImhDigitsOnly; Accessible.name: qsTrId("ui.style.days") }
                            }
                            Labelled {
                                //% "Default VAT rate in %"
                                label: qsTrId("ui.style.vatRate")
                                StyleField { id: vatField; key: "vatRate"; objectName: "styleVatRate"; placeholderText: "21"; Accessible.name: qsTrId("ui.style.vatRate") }
                            }
                            Labelled {
                                Layout.columnSpan: 2
                                //% "Footer"
                                label: qsTrId("ui.style.footer")
                                StyleField {
                                    id: footerField
                                    key: "footer"
                                    objectName: "styleFooter"
                                    //% "Thank you for your business."
                                    placeholderText: qsTrId("ui.style.footerPlaceholder")
                                    Accessible.name: qsTrId("ui.style.footer")
                                }
                            }
                            Check {
                                id: madeWith
                                objectName: "styleMadeWith"
                                Layout.columnSpan: 2
                                //% "Show “Made with Morvane” in the footer"
                                text: qsTrId("ui.style.madeWith")
                                onToggled: root.edited()
                            }
                        }
                    }

                    Card {
                        //% "Look"
                        title: qsTrId("ui.style.look")
                        Layout.fillWidth: true
                        Layout.preferredWidth: 2
                        Layout.alignment: Qt.AlignTop

                        FieldLabel {
                            //% "Logo"
                            text: qsTrId("ui.style.logo")
                        }
                        RowLayout {
                            Layout.fillWidth: true
                            spacing: Theme.space2
                            Rectangle {
                                Layout.preferredWidth: 120
                                Layout.preferredHeight: 56
                                radius: Theme.radiusControl
                                color: Theme.background
                                border.color: Theme.border
                                Image {
                                    objectName: "styleLogo"
                                    anchors.fill: parent
                                    anchors.margins: Theme.space1
                                    fillMode: Image.PreserveAspectFit
                                    source: root.logo
                                    asynchronous: true
                                    Accessible.role: Accessible.Graphic
                                    Accessible.name: qsTrId("ui.style.logo")
                                }
                                Text {
                                    textFormat: Text.PlainText
                                    anchors.centerIn: parent
                                    visible: root.logo === ""
                                    //% "No logo"
                                    text: qsTrId("ui.style.noLogo")
                                    color: Theme.muted
                                    font.pixelSize: Theme.fontSmall
                                }
                            }
                            ColumnLayout {
                                Layout.fillWidth: true
                                spacing: Theme.space1
                                FlatButton {
                                    objectName: "chooseLogo"
                                    //% "Choose logo…"
                                    text: qsTrId("ui.style.chooseLogo")
                                    onClicked: logoDialog.open()
                                }
                                FlatButton {
                                    objectName: "removeLogo"
                                    visible: root.logo !== ""
                                    //% "Remove logo"
                                    text: qsTrId("ui.style.removeLogo")
                                    onClicked: { root.logo = ""; root.edited() }
                                }
                            }
                        }
                        Text {
                            objectName: "logoProblem"
                            textFormat: Text.PlainText
                            Layout.fillWidth: true
                            visible: text !== ""
                            text: root.logoProblem
                            color: Theme.danger
                            font.pixelSize: Theme.fontSmall
                            wrapMode: Text.Wrap
                        }
                        Text {
                            textFormat: Text.PlainText
                            Layout.fillWidth: true
                            visible: root.logoProblem === ""
                            //% "PNG or JPEG, at most 1 MB; wider than 600 px is scaled down."
                            text: qsTrId("ui.style.logoHint")
                            color: Theme.muted
                            font.pixelSize: Theme.fontSmall
                            wrapMode: Text.Wrap
                        }

                        FieldLabel {
                            Layout.topMargin: Theme.space2
                            //% "Palette"
                            text: qsTrId("ui.style.palette")
                        }
                        //% "Accent"
                        ColourRow { id: accentRow; key: "accentHex"; objectName: "styleAccent"; label: qsTrId("ui.style.accent") }
                        //% "Ink"
                        ColourRow { id: inkRow; key: "inkHex"; objectName: "styleInk"; label: qsTrId("ui.style.ink") }
                        //% "Paper"
                        ColourRow { id: paperRow; key: "palettePaper"; objectName: "stylePaper"; label: qsTrId("ui.style.paper") }
                        //% "Muted"
                        ColourRow { id: mutedRow; key: "paletteMuted"; objectName: "styleMuted"; label: qsTrId("ui.style.muted") }
                        //% "Border"
                        ColourRow { id: borderRow; key: "paletteBorder"; objectName: "styleBorder"; label: qsTrId("ui.style.border") }
                        //% "Banner"
                        ColourRow { id: bannerRow; key: "paletteBanner"; objectName: "styleBanner"; label: qsTrId("ui.style.banner") }
                        Text {
                            objectName: "colourProblem"
                            textFormat: Text.PlainText
                            Layout.fillWidth: true
                            readonly property string problem: [accentRow, inkRow, paperRow, mutedRow, borderRow, bannerRow]
                                .map(row => row.problem).filter(p => p !== "")[0] || ""
                            visible: problem !== ""
                            text: problem
                            color: Theme.danger
                            font.pixelSize: Theme.fontSmall
                            wrapMode: Text.Wrap
                        }

                        GridLayout {
                            Layout.fillWidth: true
                            Layout.topMargin: Theme.space2
                            columns: 2
                            columnSpacing: Theme.space3
                            rowSpacing: Theme.space1
                            //% "Headings font"
                            FieldLabel { Layout.fillWidth: true; text: qsTrId("ui.style.fontDisplay") }
                            //% "Text font"
                            FieldLabel { Layout.fillWidth: true; text: qsTrId("ui.style.fontBody") }
                            Choice {
                                id: displayFont
                                objectName: "styleFontDisplay"
                                Layout.fillWidth: true
                                model: root.fontChoices
                                Accessible.name: qsTrId("ui.style.fontDisplay")
                                onChosen: (v) => { value = v; root.edited() }
                            }
                            Choice {
                                id: bodyFont
                                objectName: "styleFontBody"
                                Layout.fillWidth: true
                                model: root.fontChoices
                                Accessible.name: qsTrId("ui.style.fontBody")
                                onChosen: (v) => { value = v; root.edited() }
                            }
                        }
                    }
                }

                Card {
                    Layout.fillWidth: true
                    //% "Design"
                    title: qsTrId("ui.style.designs")

                    RowLayout {
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        Text {
                            textFormat: Text.PlainText
                            Layout.fillWidth: true
                            //% "Every new invoice is drawn in the chosen design. The pictures show a sample invoice in your style."
                            text: qsTrId("ui.style.designsHint")
                            color: Theme.muted
                            font.pixelSize: Theme.fontSmall
                            wrapMode: Text.Wrap
                        }
                        BusyIndicator {
                            objectName: "thumbnailsBusy"
                            Layout.preferredWidth: Theme.controlHeight
                            Layout.preferredHeight: Theme.controlHeight
                            running: root.model.drawing
                            visible: running
                            //% "Drawing the designs"
                            Accessible.name: qsTrId("ui.style.drawing")
                        }
                    }
                    Flow {
                        Layout.fillWidth: true
                        spacing: Theme.space3
                        Repeater {
                            objectName: "designThumbnails"
                            model: root.model.designs
                            delegate: Rectangle {
                                id: card
                                required property var modelData
                                readonly property bool chosen: (root.design || "lightMinimalAccent") === modelData.name
                                objectName: "design-" + modelData.name
                                width: 176
                                height: 176 * 1123 / 794 + caption.height + 3 * Theme.space2
                                radius: Theme.radiusCard
                                color: chosen ? Theme.selected : (hover.hovered ? Theme.hover : "transparent")
                                border.width: chosen ? 2 : 1
                                border.color: chosen ? Theme.accent : Theme.border
                                activeFocusOnTab: true
                                Accessible.role: Accessible.RadioButton
                                Accessible.name: modelData.title
                                Accessible.checked: chosen
                                Keys.onSpacePressed: root.chooseDesign(modelData.name)
                                HoverHandler { id: hover }
                                TapHandler { onTapped: root.chooseDesign(card.modelData.name) }
                                Rectangle {
                                    id: page
                                    x: Theme.space2
                                    y: Theme.space2
                                    width: parent.width - 2 * Theme.space2
                                    height: width * 1123 / 794
                                    color: Theme.background
                                    border.color: Theme.border
                                    Image {
                                        objectName: "thumbnail"
                                        anchors.fill: parent
                                        anchors.margins: 1
                                        source: card.modelData.thumbnail
                                        fillMode: Image.PreserveAspectFit
                                        asynchronous: true
                                        smooth: true
                                        mipmap: true
                                    }
                                }
                                Text {
                                    id: caption
                                    textFormat: Text.PlainText
                                    anchors.top: page.bottom
                                    anchors.topMargin: Theme.space2
                                    anchors.left: page.left
                                    anchors.right: page.right
                                    text: card.chosen ? "✓ " + card.modelData.title : card.modelData.title
                                    color: card.chosen ? Theme.accent : Theme.text
                                    font.pixelSize: Theme.fontBody
                                    font.weight: card.chosen ? Font.DemiBold : Font.Normal
                                    horizontalAlignment: Text.AlignHCenter
                                    elide: Text.ElideRight
                                }
                                Rectangle {
                                    visible: card.focus
                                    anchors.fill: parent
                                    anchors.margins: -3
                                    radius: Theme.radiusCard + 2
                                    color: "transparent"
                                    border.width: 2
                                    border.color: Theme.accent
                                }
                            }
                        }
                    }
                }

                Card {
                    Layout.fillWidth: true
                    //% "Your own template"
                    title: qsTrId("ui.style.customTitle")

                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        //% "An HTML page with {{placeholders}}, a <header> and a <footer>, fixed at 794 × 1123 px. When it cannot be used, invoices are drawn in “Light minimal”."
                        text: qsTrId("ui.style.customHint")
                        color: Theme.muted
                        font.pixelSize: Theme.fontSmall
                        wrapMode: Text.Wrap
                    }
                    RowLayout {
                        Layout.fillWidth: true
                        spacing: Theme.space2
                        FlatButton {
                            objectName: "uploadTemplate"
                            //% "Upload template…"
                            text: qsTrId("ui.style.upload")
                            onClicked: templateDialog.open()
                        }
                        FlatButton {
                            objectName: "removeTemplate"
                            visible: root.templateHtml !== ""
                            //% "Remove template"
                            text: qsTrId("ui.style.removeTemplate")
                            onClicked: {
                                root.templateHtml = ""
                                if (root.design === "aiCustom")
                                    root.design = ""
                                root.edited()
                            }
                        }
                        Chip {
                            objectName: "templateState"
                            visible: root.templateHtml !== ""
                            text: root.templateProblem === ""
                                  //% "Used"
                                  ? qsTrId("ui.style.templateUsed")
                                  //% "Not used"
                                  : qsTrId("ui.style.templateNotUsed")
                            tone: root.templateProblem === "" ? "success" : "danger"
                        }
                        Item { Layout.fillWidth: true }
                    }
                    Text {
                        objectName: "templateProblem"
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        visible: text !== ""
                        text: root.templateFileProblem !== "" ? root.templateFileProblem
                              : root.templateProblem !== ""
                                //% "%1 Invoices fall back to “Light minimal” until it is fixed."
                                ? qsTrId("ui.style.fallsBack").arg(root.templateProblem)
                                : ""
                        color: Theme.danger
                        font.pixelSize: Theme.fontBody
                        wrapMode: Text.Wrap
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        visible: root.templateHtml === "" && root.templateFileProblem === ""
                        //% "No template uploaded: invoices use the design chosen above."
                        text: qsTrId("ui.style.noTemplate")
                        color: Theme.muted
                        font.pixelSize: Theme.fontBody
                        wrapMode: Text.Wrap
                    }
                }
            }
        }
    }

    readonly property var fontChoices: {
        //% "The design’s own"
        const rows = [{ value: "", label: qsTrId("ui.style.fontAuto") }]
        for (const family of model.fontFamilies)
            rows.push({ value: family, label: family })
        return rows
    }
}
