import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// The saved clients: a searchable list beside a form that adds a new one or edits the chosen one.
Rectangle {
    id: root
    objectName: "clientsView"
    color: Theme.background
    readonly property var list: Shell.workspace.clients
    // The client in the form; empty with `creating` for a new one.
    property string selectedId: ""
    property bool creating: false
    readonly property bool formOpen: creating || selectedId !== ""

    function startNew() {
        selectedId = ""
        creating = true
        form.load({})
        nameField.forceActiveFocus()
    }
    function choose(id) {
        creating = false
        selectedId = id
        form.load(list.client(id))
    }
    function closeForm() { creating = false; selectedId = "" }
    function saveForm() {
        if (nameField.text.trim() === "")
            return
        const fields = form.fields()
        if (creating)
            list.add(fields)
        else
            list.save(selectedId, fields)
    }

    Shortcut {
        sequence: "Ctrl+N"
        onActivated: root.startNew()
    }
    Connections {
        target: root.list
        function onAdded(id) { root.choose(id) }
    }
    Connections {
        target: root.list.rows
        // A client deleted here or elsewhere leaves the form.
        function onCountChanged() {
            if (root.selectedId !== "" && Object.keys(root.list.client(root.selectedId)).length === 0)
                root.closeForm()
        }
    }

    ConfirmDialog {
        id: confirmDelete
        objectName: "confirmDeleteClient"
        //% "Delete %1?"
        title: qsTrId("ui.clients.deleteTitle").arg(nameField.text)
        //% "It leaves your list of clients. Invoices you already wrote for this client keep it."
        body: qsTrId("ui.clients.deleteBody")
        confirmText: qsTrId("ui.common.delete")
        onConfirmed: { root.list.remove(root.selectedId); root.closeForm() }
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
                //% "Clients"
                text: qsTrId("ui.clients.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Field {
                objectName: "clientSearch"
                Layout.preferredWidth: 240
                visible: root.list.total > 0
                //% "Search clients"
                placeholderText: qsTrId("ui.clients.search")
                text: root.list.search
                onTextEdited: root.list.search = text
            }
            PrimaryButton {
                objectName: "newClient"
                //% "New client"
                text: qsTrId("ui.clients.new")
                onClicked: root.startNew()
            }
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
                    visible: root.list.rows.count > 0

                    RowLayout {
                        Layout.fillWidth: true
                        Layout.margins: Theme.space3
                        spacing: Theme.space3
                        FieldLabel {
                            Layout.fillWidth: true
                            Layout.preferredWidth: 3
                            //% "Name"
                            text: qsTrId("ui.clients.name")
                        }
                        FieldLabel {
                            Layout.fillWidth: true
                            Layout.preferredWidth: 3
                            //% "E-mail"
                            text: qsTrId("ui.clients.email")
                        }
                        FieldLabel {
                            Layout.fillWidth: true
                            Layout.preferredWidth: 2
                            //% "VAT number"
                            text: qsTrId("ui.clients.vatId")
                        }
                    }
                    Rectangle { Layout.fillWidth: true; Layout.preferredHeight: 1; color: Theme.border }

                    ListView {
                        id: listView
                        objectName: "clientList"
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        clip: true
                        model: root.list.rows
                        boundsBehavior: Flickable.StopAtBounds
                        ScrollBar.vertical: ScrollBar {}
                        delegate: ItemDelegate {
                            id: row
                            required property string id
                            required property string name
                            required property string email
                            required property string vatId
                            width: ListView.view.width
                            implicitHeight: Theme.rowHeight
                            Accessible.name: name
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
                                    Layout.fillWidth: true
                                    Layout.preferredWidth: 3
                                    text: row.name
                                    color: Theme.text
                                    font.pixelSize: Theme.fontBody
                                    font.weight: Font.Medium
                                    elide: Text.ElideRight
                                }
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.fillWidth: true
                                    Layout.preferredWidth: 3
                                    text: row.email
                                    color: Theme.muted
                                    font.pixelSize: Theme.fontBody
                                    elide: Text.ElideRight
                                }
                                Text {
                                    textFormat: Text.PlainText
                                    Layout.fillWidth: true
                                    Layout.preferredWidth: 2
                                    text: row.vatId
                                    color: Theme.muted
                                    font.family: Theme.monoFamily
                                    font.pixelSize: Theme.fontSmall
                                    elide: Text.ElideRight
                                }
                            }
                        }
                    }
                }

                EmptyState {
                    objectName: "clientsEmpty"
                    anchors.centerIn: parent
                    width: Math.min(parent.width - 2 * Theme.space5, 420)
                    visible: root.list.rows.count === 0
                    title: root.list.total === 0
                           //% "No clients yet"
                           ? qsTrId("ui.clients.emptyTitle")
                           //% "No client matches “%1”"
                           : qsTrId("ui.clients.noMatch").arg(root.list.search)
                    hint: root.list.total === 0
                          //% "Add the people and companies you invoice, then choose them when you write an invoice. Press Ctrl+N or “New client” to add the first."
                          ? qsTrId("ui.clients.emptyHint")
                          : ""
                }
            }

            Rectangle {
                id: form
                objectName: "clientForm"
                Layout.preferredWidth: Theme.inspectorWidth
                Layout.fillHeight: true
                visible: root.formOpen
                color: Theme.surface
                radius: Theme.radiusCard
                border.color: Theme.border

                function load(client) {
                    nameField.text = client.name || ""
                    emailField.text = client.email || ""
                    addressField.text = client.address || ""
                    vatField.text = client.vatId || ""
                    kvkField.text = client.kvk || ""
                }
                function fields() {
                    return { name: nameField.text, email: emailField.text, address: addressField.text,
                             vatId: vatField.text, kvk: kvkField.text }
                }

                ColumnLayout {
                    anchors.fill: parent
                    anchors.margins: Theme.space4
                    spacing: Theme.space2

                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        Layout.bottomMargin: Theme.space2
                        text: root.creating
                              ? qsTrId("ui.clients.new")
                              //% "Edit client"
                              : qsTrId("ui.clients.edit")
                        color: Theme.text
                        font.pixelSize: Theme.fontLarge
                        font.weight: Font.DemiBold
                        elide: Text.ElideRight
                    }
                    FieldLabel { text: qsTrId("ui.clients.name") }
                    Field {
                        id: nameField
                        objectName: "clientName"
                        Layout.fillWidth: true
                        //% "Company or person"
                        placeholderText: qsTrId("ui.clients.namePlaceholder")
                        Accessible.name: qsTrId("ui.clients.name")
                        onAccepted: root.saveForm()
                    }
                    FieldLabel { Layout.topMargin: Theme.space2; text: qsTrId("ui.clients.email") }
                    Field {
                        id: emailField
                        objectName: "clientEmail"
                        Layout.fillWidth: true
                        placeholderText: "name@example.com"
                        Accessible.name: qsTrId("ui.clients.email")
                        onAccepted: root.saveForm()
                    }
                    FieldLabel {
                        Layout.topMargin: Theme.space2
                        //% "Address"
                        text: qsTrId("ui.clients.address")
                    }
                    TextArea {
                        id: addressField
                        objectName: "clientAddress"
                        Layout.fillWidth: true
                        Layout.preferredHeight: Theme.controlHeight * 2.5
                        wrapMode: TextEdit.Wrap
                        textFormat: TextEdit.PlainText
                        font.pixelSize: Theme.fontBody
                        color: Theme.text
                        selectionColor: Theme.accent
                        selectedTextColor: Theme.textOnAccent
                        Accessible.name: qsTrId("ui.clients.address")
                        background: Rectangle {
                            radius: Theme.radiusControl
                            color: Theme.surface
                            border.width: addressField.activeFocus ? 2 : 1
                            border.color: addressField.activeFocus ? Theme.accent : Theme.border
                        }
                    }
                    FieldLabel { Layout.topMargin: Theme.space2; text: qsTrId("ui.clients.vatId") }
                    Field {
                        id: vatField
                        objectName: "clientVat"
                        Layout.fillWidth: true
                        Accessible.name: qsTrId("ui.clients.vatId")
                        onAccepted: root.saveForm()
                    }
                    FieldLabel {
                        Layout.topMargin: Theme.space2
                        //% "Chamber of commerce number"
                        text: qsTrId("ui.clients.kvk")
                    }
                    Field {
                        id: kvkField
                        objectName: "clientKvk"
                        Layout.fillWidth: true
                        Accessible.name: qsTrId("ui.clients.kvk")
                        onAccepted: root.saveForm()
                    }
                    RowLayout {
                        Layout.fillWidth: true
                        Layout.topMargin: Theme.space3
                        spacing: Theme.space2
                        FlatButton {
                            objectName: "deleteClient"
                            danger: true
                            visible: !root.creating
                            text: qsTrId("ui.common.delete")
                            onClicked: confirmDelete.open()
                        }
                        Item { Layout.fillWidth: true }
                        FlatButton {
                            text: qsTrId("ui.common.cancel")
                            onClicked: root.closeForm()
                        }
                        PrimaryButton {
                            objectName: "saveClient"
                            text: qsTrId("ui.common.save")
                            enabled: nameField.text.trim() !== ""
                            onClicked: root.saveForm()
                        }
                    }
                    Item { Layout.fillHeight: true }
                }
            }
        }
    }
}
