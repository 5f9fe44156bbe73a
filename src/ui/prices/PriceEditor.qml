import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls
import QtQuick.Layouts
import Morvane.Ui

// The price of a project or a task: the model and its fields, the folded extras, and net, VAT and
// gross as they are typed. A field that cannot be read blocks saving and says why.
Popup {
    id: popup
    objectName: "priceEditor"
    required property var editor
    property string heading
    signal saveRequested()
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: Math.min(480, parent ? parent.width - 2 * Theme.space5 : 480)
    height: Math.min(parent ? parent.height - 2 * Theme.space5 : 640, column.implicitHeight + 2 * Theme.space5)
    padding: Theme.space5
    closePolicy: Popup.CloseOnEscape
    Overlay.modal: Rectangle { color: Theme.scrim }
    background: Rectangle { color: Theme.surface; radius: Theme.radiusCard; border.color: Theme.border }

    component MoneyBox: ColumnLayout {
        property var field
        property string label
        Layout.fillWidth: true
        spacing: Theme.space1
        FieldLabel { text: label }
        Field {
            Layout.fillWidth: true
            text: field ? field.text : ""
            placeholderText: field ? field.placeholder : ""
            invalid: field ? field.invalid : false
            enabled: !popup.editor.isInheriting
            horizontalAlignment: Text.AlignRight
            font.family: Theme.monoFamily
            Accessible.name: label
            onTextEdited: field.text = text
        }
    }

    contentItem: Flickable {
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
                text: popup.heading
                color: Theme.text
                font.pixelSize: Theme.fontLarge
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }

            // A task follows its project's price until it gets its own.
            RowLayout {
                visible: popup.editor.allowInherit
                spacing: Theme.space2
                Radio {
                    checked: popup.editor.isInheriting
                    text: popup.editor.labels.useProject
                    onClicked: popup.editor.useProjectPrice()
                }
                Radio {
                    checked: !popup.editor.isInheriting
                    text: popup.editor.labels.custom
                    onClicked: popup.editor.clearInheritance()
                }
            }

            Choice {
                Layout.fillWidth: true
                enabled: !popup.editor.isInheriting
                model: popup.editor.modelOptions
                value: popup.editor.modelName
                Accessible.name: popup.editor.labels.title
                onChosen: (name) => popup.editor.modelName = name
            }

            Repeater {
                model: popup.editor.shownFields
                Loader {
                    required property var modelData
                    Layout.fillWidth: true
                    sourceComponent: modelData.money ? moneyField : textField
                    Component {
                        id: moneyField
                        MoneyBox { field: popup.editor[modelData.name]; label: modelData.label }
                    }
                    Component {
                        id: textField
                        ColumnLayout {
                            spacing: Theme.space1
                            FieldLabel { text: modelData.label }
                            Field {
                                Layout.fillWidth: true
                                text: popup.editor[modelData.name]
                                enabled: !popup.editor.isInheriting
                                Accessible.name: modelData.label
                                onTextEdited: popup.editor[modelData.name] = text
                            }
                        }
                    }
                }
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                visible: popup.editor.showsDayNote
                text: popup.editor.labels.dayNote
                color: Theme.muted
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }

            FlatButton {
                Layout.fillWidth: true
                text: (popup.editor.extrasOpen ? "▾ " : "▸ ") + popup.editor.labels.extras
                onClicked: popup.editor.extrasOpen = !popup.editor.extrasOpen
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                visible: !popup.editor.extrasOpen && popup.editor.extrasSummary !== ""
                text: popup.editor.extrasSummary
                color: Theme.muted
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }
            GridLayout {
                Layout.fillWidth: true
                visible: popup.editor.extrasOpen
                columns: 2
                columnSpacing: Theme.space3
                rowSpacing: Theme.space2
                MoneyBox { field: popup.editor.surcharge; label: popup.editor.labels.surcharge }
                MoneyBox { field: popup.editor.materials; label: popup.editor.labels.materials }
                MoneyBox { field: popup.editor.minCharge; label: popup.editor.labels.minCharge }
                ColumnLayout {
                    Layout.fillWidth: true
                    MoneyBox { field: popup.editor.discount; label: popup.editor.labels.discount }
                    Check {
                        text: "%"
                        checked: popup.editor.discountIsPct
                        enabled: !popup.editor.isInheriting
                        Accessible.name: popup.editor.labels.discount + " %"
                        onToggled: popup.editor.discountIsPct = checked
                    }
                }
                MoneyBox { field: popup.editor.vatPercent; label: popup.editor.labels.vat + " %" }
            }

            // The preview.
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: preview.implicitHeight + 2 * Theme.space3
                radius: Theme.radiusControl
                color: Theme.background
                border.color: Theme.border
                GridLayout {
                    id: preview
                    anchors.fill: parent
                    anchors.margins: Theme.space3
                    columns: 2
                    rowSpacing: Theme.space1
                    Repeater {
                        model: [
                            { label: popup.editor.labels.net, value: popup.editor.netText },
                            { label: popup.editor.labels.vatAmount, value: popup.editor.vatText },
                            { label: popup.editor.labels.gross, value: popup.editor.grossText }
                        ]
                        delegate: RowLayout {
                            required property var modelData
                            required property int index
                            Layout.columnSpan: 2
                            Layout.fillWidth: true
                            Text {
                                textFormat: Text.PlainText
                                Layout.fillWidth: true
                                text: modelData.label
                                color: index === 2 ? Theme.text : Theme.muted
                                font.weight: index === 2 ? Font.DemiBold : Font.Normal
                            }
                            Text {
                                textFormat: Text.PlainText
                                text: modelData.value
                                color: Theme.text
                                font.family: Theme.monoFamily
                                font.weight: index === 2 ? Font.DemiBold : Font.Normal
                                horizontalAlignment: Text.AlignRight
                            }
                        }
                    }
                }
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                visible: popup.editor.invalid
                color: Theme.danger
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
                //% "A field in red cannot be read as a number. Correct it to save."
                text: qsTrId("ui.prices.invalid")
            }
            RowLayout {
                Layout.alignment: Qt.AlignRight
                spacing: Theme.space2
                FlatButton {
                    text: qsTrId("ui.common.cancel")
                    onClicked: popup.close()
                }
                PrimaryButton {
                    objectName: "savePriceButton"
                    enabled: popup.editor.canSave
                    text: qsTrId("ui.common.save")
                    onClicked: { popup.saveRequested(); popup.close() }
                }
            }
        }
    }
}
