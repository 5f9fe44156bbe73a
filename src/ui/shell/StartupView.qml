import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Morvane.Ui

// While the backend starts or the first load runs; says what failed and offers to try again.
Rectangle {
    color: Theme.background
    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.space6, 480)
        spacing: Theme.space4
        Image {
            Layout.alignment: Qt.AlignHCenter
            source: "qrc:/Morvane/Ui/icons/morvane.svg"
            sourceSize: Qt.size(56, 56)
            Accessible.ignored: true
        }
        BusyIndicator {
            Layout.alignment: Qt.AlignHCenter
            running: Shell.phase !== Shell.BackendFailed
            visible: running
            implicitWidth: 32
            implicitHeight: 32
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Shell.phase === Shell.BackendFailed ? Theme.danger : Theme.text
            font.pixelSize: Theme.fontLarge
            font.weight: Font.DemiBold
            text: Shell.phase === Shell.BackendFailed
                  //% "Your local backend could not start."
                  ? qsTrId("ui.startup.failed")
                  : Shell.phase === Shell.Loading
                    //% "Loading your projects…"
                    ? qsTrId("ui.startup.loading")
                    //% "Starting your local backend…"
                    : qsTrId("ui.startup.backend")
        }
        Text {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Theme.muted
            font.pixelSize: Theme.fontBody
            text: Shell.backendError
            visible: Shell.phase === Shell.BackendFailed
            textFormat: Text.PlainText
        }
        PrimaryButton {
            Layout.alignment: Qt.AlignHCenter
            visible: Shell.phase === Shell.BackendFailed
            //% "Try again"
            text: qsTrId("ui.common.retry")
            onClicked: Shell.start()
        }
    }
}
