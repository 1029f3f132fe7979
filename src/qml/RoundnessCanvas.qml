import QtQuick
import "plotGeometry.mjs" as PlotGeometry

/// The radial deviations of the measured points from the fitted circle, strongly exaggerated.
Canvas {
    id: root

    /// Measured points, each with x and y in frame pixels.
    required property var points
    required property point fitCenter
    required property real fitRadius
    /// Uncertainty of the centre in frame pixels; 0 when it is not known.
    required property real sigma
    required property bool sigmaGood
    /// Full scale in frame pixels; 0 for the automatic one.
    required property real fixedFull
    required property color colIdeal
    required property color colScale
    required property color colData

    readonly property real shownScale: _plot.full
    readonly property real autoScale: _plot.autoFull
    readonly property bool clipped: _plot.clipped
    /// The uncertainty is smaller than drawn: at its true size it would vanish.
    readonly property bool sigmaClamped: _plot.sigmaClamped
    readonly property color sigmaColor: sigmaGood ? colIdeal : "#E53935"

    readonly property var _plot: PlotGeometry.roundness(
        points, { x: fitCenter.x, y: fitCenter.y, radius: fitRadius, sigma: sigma },
        width, height, fixedFull)

    function _circle(ctx: var, radius: real) {
        ctx.beginPath();
        ctx.arc(0, 0, radius, 0, 2 * Math.PI);
    }

    // They show the angular coverage at a glance.
    function _paintSpokes(ctx: var) {
        ctx.strokeStyle = "#9aa7b4";
        ctx.globalAlpha = 0.35;
        ctx.lineWidth = 0.5;
        for (const mark of _plot.marks) {
            const [cos, sin] = [Math.cos(mark.angle), Math.sin(mark.angle)];
            ctx.beginPath();
            ctx.moveTo(0.10 * _plot.outer * cos, 0.10 * _plot.outer * sin);
            ctx.lineTo((_plot.base + _plot.band) * cos, (_plot.base + _plot.band) * sin);
            ctx.stroke();
        }
        ctx.globalAlpha = 1;
    }

    function _paintScale(ctx: var) {
        ctx.strokeStyle = colScale;
        ctx.lineWidth = 1;
        ctx.setLineDash([2, 4]);
        for (const side of [1, -1]) {
            _circle(ctx, _plot.base + side * _plot.band);
            ctx.stroke();
        }
        ctx.fillStyle = colScale;
        ctx.font = "9px sans-serif";
        ctx.textAlign = "center";
        ctx.fillText("±%1 px".arg(_plot.full), 0, -(_plot.base + _plot.band) - 5);

        ctx.strokeStyle = colIdeal;
        ctx.lineWidth = 1.5;
        ctx.setLineDash([6 / 1.5, 4 / 1.5]); // counted in line widths
        _circle(ctx, _plot.base);
        ctx.stroke();
        ctx.setLineDash([]);
    }

    function _paintPoints(ctx: var) {
        ctx.strokeStyle = colData;
        ctx.lineWidth = 1.5;
        ctx.beginPath();
        for (const mark of _plot.marks)
            ctx.lineTo(mark.radius * Math.cos(mark.angle), mark.radius * Math.sin(mark.angle));
        ctx.closePath();
        ctx.stroke();
        for (const mark of _plot.marks) {
            ctx.fillStyle = mark.clipped ? "#E53935" : colData;
            ctx.beginPath();
            ctx.arc(mark.radius * Math.cos(mark.angle), mark.radius * Math.sin(mark.angle), 3.5,
                    0, 2 * Math.PI);
            ctx.fill();
        }
    }

    // A circle and no cross: the uncertainty is the same in all directions. In the scale of the
    // deviations, so that it reads at once how small it is against the form.
    function _paintSigma(ctx: var) {
        if (_plot.sigmaRadius <= 0)
            return;
        _circle(ctx, _plot.sigmaRadius);
        ctx.fillStyle = sigmaColor;
        ctx.globalAlpha = 0.25;
        ctx.fill();
        ctx.globalAlpha = 1;
        ctx.strokeStyle = sigmaColor;
        ctx.lineWidth = 1.2;
        ctx.stroke();
    }

    function _paintMiddle(ctx: var) {
        ctx.strokeStyle = colScale;
        ctx.lineWidth = 1.2;
        ctx.beginPath();
        ctx.moveTo(-8, 0);
        ctx.lineTo(8, 0);
        ctx.moveTo(0, -8);
        ctx.lineTo(0, 8);
        ctx.stroke();
    }

    on_PlotChanged: requestPaint()
    onSigmaColorChanged: requestPaint()
    onPaint: {
        const ctx = getContext("2d");
        ctx.reset();
        if (!_plot.drawn)
            return;
        ctx.translate(width / 2, height / 2);
        _paintSpokes(ctx);
        _paintScale(ctx);
        _paintPoints(ctx);
        _paintSigma(ctx);
        _paintMiddle(ctx);
    }
}
