import QtQuick
import "plotGeometry.mjs" as PlotGeometry

/// The measured centre against the geometric centre of the sensor, oriented as the image is.
Canvas {
    id: root

    required property point center
    required property size resolution
    /// The centre is the result of a fit.
    required property bool valid
    required property color colScale
    required property color colCenter
    readonly property color colSensor: "#5f6b76"

    readonly property real shownScale: _plot.full
    readonly property real offX: _plot.x
    readonly property real offY: _plot.y
    readonly property real offTotal: _plot.total
    readonly property bool haveOffset: _plot.known

    readonly property var _plot: PlotGeometry.centerOffset(
        { x: center.x, y: center.y }, { width: resolution.width, height: resolution.height },
        valid, width, height)

    function _paintScale(ctx: var) {
        const outer = _plot.outer;
        ctx.strokeStyle = colScale;
        ctx.lineWidth = 1;
        ctx.setLineDash([2, 4]);
        for (const radius of [outer, outer / 2]) {
            ctx.beginPath();
            ctx.arc(0, 0, radius, 0, 2 * Math.PI);
            ctx.stroke();
        }
        ctx.setLineDash([]);
        ctx.strokeStyle = "#9aa7b4";
        ctx.globalAlpha = 0.6;
        _paintCross(ctx, outer);
        ctx.globalAlpha = 1;

        ctx.fillStyle = colScale;
        ctx.font = "9px sans-serif";
        ctx.textAlign = "right";
        ctx.fillText("%1 px".arg(_plot.full), outer, -4);
        ctx.fillText("%1 px".arg(_plot.full / 2), outer / 2, -4);
    }

    function _paintCross(ctx: var, arm: real) {
        ctx.beginPath();
        ctx.moveTo(-arm, 0);
        ctx.lineTo(arm, 0);
        ctx.moveTo(0, -arm);
        ctx.lineTo(0, arm);
        ctx.stroke();
    }

    function _paintCenters(ctx: var) {
        // The line makes the direction clear also where both marks are close together.
        ctx.strokeStyle = colCenter;
        ctx.globalAlpha = 0.5;
        ctx.lineWidth = 1;
        ctx.beginPath();
        ctx.moveTo(0, 0);
        ctx.lineTo(_plot.markX, _plot.markY);
        ctx.stroke();
        ctx.globalAlpha = 1;

        ctx.strokeStyle = colSensor;
        ctx.lineWidth = 1.5;
        _paintCross(ctx, 8);

        ctx.fillStyle = colCenter;
        ctx.beginPath();
        ctx.arc(_plot.markX, _plot.markY, 5, 0, 2 * Math.PI);
        ctx.fill();
    }

    on_PlotChanged: requestPaint()
    onPaint: {
        const ctx = getContext("2d");
        ctx.reset();
        if (!_plot.drawn)
            return;
        ctx.translate(width / 2, height / 2);
        _paintScale(ctx);
        _paintCenters(ctx);
    }
}
