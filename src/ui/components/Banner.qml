import QtQuick
import QtQuick.Layouts
import Morvane.Ui

// One readable message across the top of a pane; closes on its button or Esc.
Rectangle {
    id: banner
    property string text
    property bool error: true
    signal dismissed()
    visible: text.length > 0
    implicitHeight: visible ? row.implicitHeight + 2 * Theme.space2 : 0
    color: error ? Theme.dangerSoft : Theme.accentSoft
    radius: Theme.radiusControl
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text
    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: Theme.space3
        anchors.rightMargin: Theme.space2
        spacing: Theme.space2
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            text: banner.text
            color: banner.error ? Theme.danger : Theme.text
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
        FlatButton {
            compact: true
            //% "Dismiss"
            text: qsTrId("ui.common.dismiss")
            onClicked: banner.dismissed()
        }
    }
}
