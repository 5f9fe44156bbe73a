import QtQuick
import Morvane.Ui

Text {
    textFormat: Text.PlainText
    color: Theme.muted
    font.pixelSize: Theme.fontSmall
    font.weight: Font.DemiBold
    elide: Text.ElideRight
}
