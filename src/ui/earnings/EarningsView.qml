import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// Earned, billed and unbilled money by week, month or project, as bars with their figures beside
// them; a bar lists the entries behind it. Every figure comes from Shell.earnings.
Rectangle {
    id: root
    objectName: "earningsView"
    color: Theme.background
    readonly property var model: Shell.earnings
    readonly property int figureWidth: 104
    readonly property int labelWidth: 120

    Component.onCompleted: model.reload()

    component Figure: Text {
        textFormat: Text.PlainText
        Layout.preferredWidth: root.figureWidth
        horizontalAlignment: Text.AlignRight
        font.family: Theme.monoFamily
        font.pixelSize: Theme.fontBody
        color: Theme.text
        elide: Text.ElideLeft
    }
    component Heading: Text {
        textFormat: Text.PlainText
        Layout.preferredWidth: root.figureWidth
        horizontalAlignment: Text.AlignRight
        font.pixelSize: Theme.fontSmall
        color: Theme.muted
        elide: Text.ElideRight
    }
    component Total: ColumnLayout {
        property alias title: totalTitle.text
        property alias value: totalValue.text
        spacing: Theme.space1
        Accessible.role: Accessible.StaticText
        Accessible.name: title + " " + value
        Text {
            id: totalTitle
            textFormat: Text.PlainText
            font.pixelSize: Theme.fontSmall
            color: Theme.muted
        }
        Text {
            id: totalValue
            textFormat: Text.PlainText
            font.family: Theme.monoFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
            color: Theme.text
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.space4
        spacing: Theme.space3

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space3
            Text {
                textFormat: Text.PlainText
                //% "Earnings"
                text: qsTrId("ui.earnings.title")
                color: Theme.text
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
            }
            Text {
                textFormat: Text.PlainText
                objectName: "earningsCoverage"
                Layout.fillWidth: true
                text: root.model.coverage
                color: Theme.muted
                font.pixelSize: Theme.fontBody
                elide: Text.ElideRight
            }
            Rectangle {
                implicitWidth: switchRow.implicitWidth + 2
                implicitHeight: switchRow.implicitHeight + 2
                radius: Theme.radiusControl
                color: Theme.surface
                border.color: Theme.border
                Row {
                    id: switchRow
                    anchors.centerIn: parent
                    Repeater {
                        model: [
                            //% "Week"
                            { value: "week", label: qsTrId("ui.earnings.byWeek") },
                            //% "Month"
                            { value: "month", label: qsTrId("ui.earnings.byMonth") },
                            //% "Project"
                            { value: "project", label: qsTrId("ui.earnings.byProject") }
                        ]
                        FlatButton {
                            required property var modelData
                            objectName: "earningsBy_" + modelData.value
                            text: modelData.label
                            checkable: true
                            checked: root.model.grouping === modelData.value
                            onClicked: root.model.grouping = modelData.value
                        }
                    }
                }
            }
        }

        Banner {
            Layout.fillWidth: true
            text: root.model.error
            visible: text.length > 0
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.space6
            visible: !root.model.empty
            Total {
                //% "Earned"
                title: qsTrId("ui.earnings.earned")
                value: root.model.totals.earnedText || ""
            }
            Total {
                //% "Billed"
                title: qsTrId("ui.earnings.billed")
                value: root.model.totals.billedText || ""
            }
            Total {
                //% "Unbilled"
                title: qsTrId("ui.earnings.unbilled")
                value: root.model.totals.unbilledText || ""
            }
            Total {
                //% "Hours"
                title: qsTrId("ui.earnings.hours")
                value: root.model.totals.hoursText || ""
            }
            Total {
                //% "Per hour"
                title: qsTrId("ui.earnings.rate")
                value: root.model.totals.rateText || ""
            }
            Item { Layout.fillWidth: true }
        }

        EmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: root.model.empty && !root.model.loading
            //% "Nothing tracked in these months"
            title: qsTrId("ui.earnings.emptyTitle")
            //% "Start the timer on a task with Space, or log time in its inspector. What you earn shows up here by week, month and project."
            hint: qsTrId("ui.earnings.emptyHint")
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: chartColumn.implicitHeight + 2 * Theme.space3
            visible: !root.model.empty
            radius: Theme.radiusCard
            color: Theme.surface
            border.color: Theme.border

            ColumnLayout {
                id: chartColumn
                anchors.fill: parent
                anchors.margins: Theme.space3
                spacing: Theme.space1

                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.space2
                    Item { Layout.preferredWidth: root.labelWidth }
                    Row {
                        Layout.fillWidth: true
                        spacing: Theme.space3
                        Repeater {
                            model: [
                                { label: qsTrId("ui.earnings.billed"), color: Theme.accent },
                                { label: qsTrId("ui.earnings.unbilled"), color: Theme.accentSoft }
                            ]
                            Row {
                                required property var modelData
                                spacing: Theme.space1
                                Rectangle {
                                    width: 10
                                    height: 10
                                    radius: 2
                                    anchors.verticalCenter: parent.verticalCenter
                                    color: modelData.color
                                    border.color: Theme.accent
                                }
                                Text {
                                    textFormat: Text.PlainText
                                    text: modelData.label
                                    font.pixelSize: Theme.fontSmall
                                    color: Theme.muted
                                }
                            }
                        }
                    }
                    Heading { text: qsTrId("ui.earnings.earned") }
                    Heading { text: qsTrId("ui.earnings.billed") }
                    Heading { text: qsTrId("ui.earnings.unbilled") }
                    Heading { text: qsTrId("ui.earnings.hours"); Layout.preferredWidth: root.figureWidth * 2 / 3 }
                    Heading { text: qsTrId("ui.earnings.rate") }
                }

                Repeater {
                    model: root.model.rows
                    Button {
                        id: bar
                        required property var modelData
                        readonly property bool chosen: root.model.selectedKey === modelData.key
                        objectName: "earningsBar_" + modelData.key
                        Layout.fillWidth: true
                        implicitHeight: 24
                        padding: 0
                        //% "%1: earned %2, billed %3, unbilled %4"
                        Accessible.name: qsTrId("ui.earnings.barName").arg(modelData.label)
                                         .arg(modelData.earnedText).arg(modelData.billedText).arg(modelData.unbilledText)
                        onClicked: root.model.select(modelData.key)
                        background: Rectangle {
                            radius: Theme.radiusControl
                            color: bar.chosen ? Theme.selected : bar.hovered ? Theme.hover : "transparent"
                            border.width: bar.visualFocus ? 2 : 0
                            border.color: Theme.accent
                        }
                        contentItem: RowLayout {
                            spacing: Theme.space2
                            Text {
                                textFormat: Text.PlainText
                                Layout.preferredWidth: root.labelWidth
                                leftPadding: Theme.space2
                                text: bar.modelData.label
                                color: Theme.text
                                font.pixelSize: Theme.fontBody
                                elide: Text.ElideRight
                            }
                            Item {
                                id: track
                                Layout.fillWidth: true
                                Layout.fillHeight: true
                                Rectangle {
                                    objectName: "earnedBar"
                                    anchors.verticalCenter: parent.verticalCenter
                                    height: 14
                                    radius: 3
                                    width: Math.max(bar.modelData.earned > 0 ? 2 : 0,
                                                    track.width * bar.modelData.earnedShare)
                                    color: Theme.accentSoft
                                    border.color: Theme.accent
                                    border.width: width > 0 ? 1 : 0
                                    Rectangle {
                                        objectName: "billedBar"
                                        anchors.left: parent.left
                                        anchors.verticalCenter: parent.verticalCenter
                                        height: parent.height
                                        radius: 3
                                        width: Math.min(parent.width, track.width * bar.modelData.billedShare)
                                        color: Theme.accent
                                    }
                                }
                            }
                            Figure { text: bar.modelData.earnedText; color: bar.modelData.empty ? Theme.muted : Theme.text }
                            Figure { text: bar.modelData.billedText; color: Theme.muted }
                            Figure { text: bar.modelData.unbilledText; color: bar.modelData.empty ? Theme.muted : Theme.text }
                            Figure { text: bar.modelData.hoursText; Layout.preferredWidth: root.figureWidth * 2 / 3; color: bar.modelData.empty ? Theme.muted : Theme.text }
                            Figure { text: bar.modelData.rateText; rightPadding: Theme.space2 }
                        }
                    }
                }
            }
        }

        Text {
            textFormat: Text.PlainText
            objectName: "earningsEntriesTitle"
            Layout.fillWidth: true
            visible: !root.model.empty
            text: root.model.selectedKey === ""
                  //% "Click a bar to see the entries behind it."
                  ? qsTrId("ui.earnings.pickBar")
                  //% "Entries of %1"
                  : qsTrId("ui.earnings.entriesOf").arg(root.model.selectedLabel)
            color: root.model.selectedKey === "" ? Theme.muted : Theme.text
            font.pixelSize: root.model.selectedKey === "" ? Theme.fontBody : Theme.fontLarge
            font.weight: root.model.selectedKey === "" ? Font.Normal : Font.DemiBold
            elide: Text.ElideRight
        }

        ListView {
            id: entryList
            objectName: "earningsEntries"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !root.model.empty
            clip: true
            model: root.model.selectedEntries
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            Accessible.role: Accessible.List
            //% "Entries"
            Accessible.name: qsTrId("ui.earnings.entries")
            delegate: Rectangle {
                required property var modelData
                width: entryList.width
                height: 32
                color: "transparent"
                Accessible.role: Accessible.ListItem
                Accessible.name: modelData.date + " " + modelData.task + " " + modelData.amount
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 1
                    color: Theme.border
                }
                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: Theme.space2
                    anchors.rightMargin: Theme.space2
                    spacing: Theme.space3
                    Text {
                        textFormat: Text.PlainText
                        Layout.preferredWidth: root.labelWidth
                        text: modelData.date
                        color: Theme.muted
                        font.pixelSize: Theme.fontBody
                        elide: Text.ElideRight
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.fillWidth: true
                        text: modelData.task
                        color: Theme.text
                        font.pixelSize: Theme.fontBody
                        elide: Text.ElideRight
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.preferredWidth: 180
                        text: modelData.project
                        color: Theme.muted
                        font.pixelSize: Theme.fontBody
                        elide: Text.ElideRight
                    }
                    Text {
                        textFormat: Text.PlainText
                        Layout.preferredWidth: 200
                        horizontalAlignment: Text.AlignRight
                        text: modelData.note
                        color: Theme.muted
                        font.pixelSize: Theme.fontSmall
                        elide: Text.ElideRight
                    }
                    Figure { text: modelData.duration; Layout.preferredWidth: 72 }
                    Figure { text: modelData.amount; objectName: "entryAmount" }
                    Item {
                        Layout.preferredWidth: 64
                        Layout.fillHeight: true
                        Chip {
                            anchors.verticalCenter: parent.verticalCenter
                            anchors.right: parent.right
                            //% "billed"
                            text: modelData.billed ? qsTrId("ui.earnings.billedChip") : ""
                            tone: "success"
                        }
                    }
                }
            }
        }
    }
}
