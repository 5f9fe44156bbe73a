import QtQuick
import Morvane.Ui

// A trip's route as a line on a plain card, fitted to the card: the start a ring, the end a dot.
// Without a road route the two places are joined by a dashed straight line. No map tiles: the
// shape of the way is what a person checks here.
Rectangle {
    id: map
    // Points in the unit square (x east, y south), start first.
    property var points: []
    property bool isRoute: false
    color: Theme.background
    radius: Theme.radiusControl
    border.color: Theme.border
    Accessible.role: Accessible.Graphic
    Accessible.name: isRoute
                     //% "Road route of the trip"
                     ? qsTrId("ui.trips.map.route")
                     //% "Straight line between the places"
                     : qsTrId("ui.trips.map.straight")

    onPointsChanged: canvas.requestPaint()
    onIsRouteChanged: canvas.requestPaint()
    Connections {
        target: Theme
        function onDarkChanged() { canvas.requestPaint() }
    }

    Canvas {
        id: canvas
        anchors.fill: parent
        anchors.margins: Theme.space4
        onWidthChanged: requestPaint()
        onHeightChanged: requestPaint()
        onPaint: {
            const ctx = getContext("2d")
            ctx.reset()
            const pts = map.points
            if (!pts || pts.length < 2)
                return
            // Inset by the markers' size, so a start or end on the edge is drawn whole.
            const inset = 8
            const side = Math.min(width, height) - 2 * inset
            const ox = (width - side) / 2
            const oy = (height - side) / 2
            const at = p => ({ x: ox + p.x * side, y: oy + p.y * side })
            ctx.lineWidth = 3
            ctx.lineJoin = "round"
            ctx.lineCap = "round"
            ctx.strokeStyle = Theme.accent
            if (!map.isRoute)
                ctx.setLineDash([6, 5])
            ctx.beginPath()
            const first = at(pts[0])
            ctx.moveTo(first.x, first.y)
            for (let i = 1; i < pts.length; ++i) {
                const p = at(pts[i])
                ctx.lineTo(p.x, p.y)
            }
            ctx.stroke()
            ctx.setLineDash([])
            const last = at(pts[pts.length - 1])
            ctx.lineWidth = 2
            ctx.fillStyle = Theme.surface
            ctx.beginPath()
            ctx.arc(first.x, first.y, 6, 0, 2 * Math.PI)
            ctx.fill()
            ctx.stroke()
            ctx.fillStyle = Theme.accent
            ctx.beginPath()
            ctx.arc(last.x, last.y, 6, 0, 2 * Math.PI)
            ctx.fill()
        }
    }
}
