import QtQuick
import Morvane.Ui

Text {
    color: Theme.muted
    font.pixelSize: Theme.fontSmall
    font.weight: Font.DemiBold
    elide: Text.ElideRight
}
