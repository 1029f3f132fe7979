import QtQuick
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Parts
import "qrc:/qt/qml/Meridax/src/qml/plotGeometry.mjs" as PlotGeometry

TestCase {
    id: testCase

    name: "ResidualPlot"
    when: windowShown
    width: 600
    height: 700
    visible: true

    Component {
        id: plotComponent

        ResidualPlot {
            width: 400
        }
    }

    Component {
        id: roundnessComponent

        Parts.RoundnessCanvas {
            width: 228
            height: 228
            points: testCase.pointsAt([10, 10, 15])
            fitCenter: Qt.point(0, 0)
            fitRadius: 10
            sigma: 0
            sigmaGood: true
            fixedFull: 0
            colIdeal: "#43A047"
            colScale: "#9aa7b4"
            colData: "#4A9ECA"
        }
    }

    Component {
        id: centerComponent

        Parts.CenterCanvas {
            width: 232
            height: 232
            center: Qt.point(340, 200)
            resolution: Qt.size(640, 480)
            valid: true
            colScale: "#9aa7b4"
            colCenter: "#E91E63"
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        ViewModel.startCalibration();
    }

    function cleanup() {
        ViewModel.cancelCalibration();
    }

    /// Points about (0, 0) at these distances, the first to the right, then clockwise.
    function pointsAt(distances): var {
        return distances.map((distance, i) => {
            const angle = 2 * Math.PI * i / distances.length;
            return { x: distance * Math.cos(angle), y: distance * Math.sin(angle) };
        });
    }

    function finish(distances, radius: real, sigma: real) {
        pointsAt(distances).forEach((point, i) => {
            ViewModel.controller.blobMeasurementCaptured(Qt.point(point.x + 300, point.y + 200), i);
        });
        ViewModel.controller.calibrationFitDetails(distances.length, radius, 1);
        ViewModel.controller.calibrationQualityDetails(sigma, 360 / distances.length, 0, 0);
        ViewModel.controller.calibrationCompleted(Qt.point(300, 200));
    }

    function roundness(distances, changes): var {
        const setup = Object.assign({ radius: 10, sigma: 0, size: 228, fixedFull: 0 }, changes);
        return PlotGeometry.roundness(pointsAt(distances),
                                      { x: 0, y: 0, radius: setup.radius, sigma: setup.sigma },
                                      setup.size, setup.size + 50, setup.fixedFull);
    }

    function test_niceScale_data() {
        return [{ v: 0.2, scale: 0.25 }, { v: 0.25, scale: 0.25 }, { v: 0.26, scale: 0.5 },
                { v: 3, scale: 5 }, { v: 500, scale: 500 }, { v: 600, scale: 500 }]
            .map(row => Object.assign(row, { tag: row.v }));
    }

    function test_niceScale(data) {
        compare(PlotGeometry.niceScale(data.v), data.scale);
    }

    function test_roundnessLayout() {
        // Half of 228 less 14 leaves a radius of 100.
        const plot = roundness([10, 12, 10, 8], {});
        compare([plot.outer, plot.base, plot.band], [100, 62, 30]);
        compare([plot.full, plot.autoFull, plot.clipped], [2, 2, false]);
        const byAngle = plot.marks.map(mark => [mark.angle / Math.PI, mark.radius]);
        const expected = [[-0.5, 32], [0, 62], [0.5, 92], [1, 62]];
        for (let i = 0; i < expected.length; ++i) {
            fuzzyCompare(byAngle[i][0], expected[i][0], 1e-9);
            fuzzyCompare(byAngle[i][1], expected[i][1], 1e-9);
        }
    }

    function test_roundnessLimits_data() {
        return [
            { tag: "outside the fixed scale", far: 17, fixedFull: 5, full: 5, autoFull: 10,
              radius: 99, clipped: true },
            { tag: "deep inside", far: 0, fixedFull: 1, full: 1, autoFull: 10, radius: 3,
              clipped: true },
            { tag: "just beyond the ring", far: 16, fixedFull: 5, full: 5, autoFull: 10,
              radius: 98, clipped: false },
            { tag: "automatic", far: 17, fixedFull: 0, full: 10, autoFull: 10, radius: 83,
              clipped: false },
            { tag: "beyond the largest scale", far: 640, fixedFull: 0, full: 500, autoFull: 500,
              radius: 99, clipped: true }
        ];
    }

    function test_roundnessLimits(data) {
        const plot = roundness([data.far, 10, 10], { fixedFull: data.fixedFull });
        compare([plot.full, plot.autoFull, plot.clipped],
                [data.full, data.autoFull, data.clipped]);
        const mark = plot.marks.find(candidate => candidate.angle === 0);
        fuzzyCompare(mark.radius, data.radius, 1e-9);
        compare(mark.clipped, data.clipped);
    }

    function test_nothingToDraw() {
        verify(roundness([10, 10, 10], { size: 69 }).drawn);
        verify(!roundness([10, 10, 10], { size: 68 }).drawn);
        verify(!roundness([10, 10], {}).drawn);
        verify(!roundness([10, 10, 10], { radius: 0 }).drawn);
    }

    function test_centerOffset_data() {
        return [
            { tag: "offset", x: 344, y: 208, full: 50, offset: [24, -32, 40] },
            { tag: "in the middle", x: 320, y: 240, full: 0.5, offset: [0, 0, 0] },
            { tag: "no room", x: 344, y: 240, size: 72, full: 50, offset: [24, 0, 24],
              drawn: false },
            { tag: "no resolution", x: 344, y: 240, width: 0, known: false, drawn: false },
            { tag: "no fit", x: 344, y: 240, valid: false, known: false, drawn: false }
        ];
    }

    function test_centerOffset(data) {
        const size = data.size ?? 232;
        const plot = PlotGeometry.centerOffset({ x: data.x, y: data.y },
                                               { width: data.width ?? 640, height: 480 },
                                               data.valid ?? true, size, size + 50);
        compare([plot.known, plot.drawn], [data.known ?? true, data.drawn ?? true]);
        if (plot.known)
            compare([plot.full, plot.x, plot.y, plot.total], [data.full, ...data.offset]);
        if (plot.drawn)
            compare([plot.markX, plot.markY],
                    data.offset.slice(0, 2).map(v => 100 / data.full * v));
    }

    function test_roundnessIsPainted() {
        const canvas = createTemporaryObject(roundnessComponent, testCase, { fixedFull: 1 });
        tryVerify(() => canvas.available);
        verify(waitForRendering(canvas));
        const image = grabImage(canvas);
        // The third point lies at 240 degrees, limited to 99 px; the first on the ideal circle.
        const radians = 240 * Math.PI / 180;
        compare(image.pixel(114 + 99 * Math.cos(radians), 114 + 99 * Math.sin(radians)),
                Qt.color("#e53935"));
        compare(image.pixel(114 + 62, 114), Qt.color("#4a9eca"));
    }

    // Of `count` points on a circle about `center` in `image` those that are not as the ground.
    function painted(image: var, center: point, radius: real, count: int): int {
        const ground = image.pixel(center.x - 90, center.y - 90);
        let found = 0;
        for (let i = 0; i < count; ++i) {
            const angle = 2 * Math.PI * (i + 0.5) / count;
            const color = image.pixel(center.x + radius * Math.cos(angle),
                                      center.y + radius * Math.sin(angle));
            found += Qt.colorEqual(color, ground) ? 0 : 1;
        }
        return found;
    }

    function test_scaleIsPainted() {
        const canvas = createTemporaryObject(roundnessComponent, testCase, {
            points: pointsAt(Array(12).fill(10)), fixedFull: 1
        });
        tryVerify(() => canvas.available);
        verify(waitForRendering(canvas));
        const image = grabImage(canvas);
        const center = Qt.point(114, 114);
        // Rings of dashes at the ends of the scale, and between them a spoke to each point.
        for (const ring of [62 - 30, 62 + 30]) {
            const count = painted(image, center, ring, 400);
            verify(count > 100 && count < 390, `${count} of 400 at ${ring}`);
        }
        const spokes = painted(image, center, 45, 12 * 60);
        verify(spokes >= 12 && spokes < 12 * 10, `${spokes} at the spokes`);
        // Over the outer ring: what it stands for.
        let label = 0;
        for (let x = 100; x < 128; ++x)
            label += Qt.colorEqual(image.pixel(x, 114 - 62 - 30 - 8), image.pixel(2, 2)) ? 0 : 1;
        verify(label > 3, "the label");
    }

    function test_uncertaintyIsPainted_data() {
        return [
            { tag: "good", count: 8, sigma: 0.1, shown: true, good: true },
            { tag: "level 2", count: 8, sigma: 0.6, shown: true, good: false },
            { tag: "not assessable", count: 4, sigma: 0.1 }
        ];
    }

    function test_uncertaintyIsPainted(data) {
        finish(Array(data.count).fill(100).map((r, i) => r + i % 2), 100, data.sigma);
        const plot = createTemporaryObject(plotComponent, testCase);
        const canvas = findChild(plot, "roundnessCanvas");
        tryVerify(() => canvas.available && canvas.width > 180);
        const { base, band, sigmaRadius } = canvas._plot;
        compare(sigmaRadius > 0, data.shown ?? false);
        let image = null;
        let center = null;
        tryVerify(() => {
            center = canvas.mapToItem(plot, canvas.width / 2, canvas.height / 2);
            image = grabImage(plot);
            return image.height > center.y + 97 && center.y > 97 && painted(image, center, base + band, 400) > 100;
        });
        // Away from the cross in the middle and from the spokes.
        const angle = Math.PI / 8;
        const distance = data.shown ? sigmaRadius : 5;
        const seen = image.pixel(center.x + distance * Math.cos(angle),
                                 center.y + distance * Math.sin(angle));
        if (data.shown)
            compare(seen.g > seen.r, data.good, seen);
        else
            verify(Qt.colorEqual(seen, image.pixel(center.x - 90, center.y - 90)));
    }

    function test_centerIsPainted() {
        const canvas = createTemporaryObject(centerComponent, testCase);
        tryVerify(() => canvas.available);
        verify(waitForRendering(canvas));
        // (20, -40) of the full scale 50 on 100 px.
        compare(grabImage(canvas).pixel(116 + 40, 116 - 80), Qt.color("#e91e63"));
    }

    function test_scaleSwitch_data() {
        return [{ tag: "click", act: button => mouseClick(button) },
                { tag: "space",
                  act: button => { button.forceActiveFocus(); keyClick(Qt.Key_Space); } }];
    }

    function test_scaleSwitch(data) {
        finish([107, 100, 100, 100, 100, 100], 100, 0.1);
        const plot = createTemporaryObject(plotComponent, testCase);
        const automatic = findChild(plot, "autoScaleButton");
        const fixed = findChild(plot, "fixedScaleButton");
        tryVerify(() => fixed.width > 0);
        compare([automatic.text, fixed.text], ["Auto (±10 px)", "fest ±5 px"]);
        compare([automatic.active, fixed.active], [true, false]);
        verify(!findChild(plot, "clipNote").visible);

        verify(waitForRendering(plot));
        data.act(fixed);
        verify(plot.fixedScale);
        compare([automatic.active, fixed.active], [false, true]);
        compare(automatic.text, "Auto (±10 px)");
        compare(findChild(plot, "roundnessCanvas").shownScale, 5);
        verify(findChild(plot, "clipNote").visible);

        data.act(automatic);
        verify(!plot.fixedScale);
        verify(!findChild(plot, "clipNote").visible);
    }

    function test_columns_data() {
        return [{ tag: "379", width: 379, columns: 1 }, { tag: "380", width: 380, columns: 2 }];
    }

    function test_columns(data) {
        const plot = createTemporaryObject(plotComponent, testCase, { width: data.width });
        verify(waitForRendering(plot));
        compare(findChild(plot, "diagramGrid").columns, data.columns);
        const [left, right] = [findChild(plot, "roundnessCanvas"), findChild(plot, "centerCanvas")];
        compare(left.width, right.width);
        compare(left.height, Math.min(left.width, 230));
        compare(left.mapToItem(plot, 0, 0).y === right.mapToItem(plot, 0, 0).y, data.columns === 2);
    }

    function test_texts_data() {
        return [{ tag: "assessable", count: 5, sigma: 0.126, legend: "Messunsicherheit ±0.13 px" },
                { tag: "not assessable", count: 4, sigma: 0, legend: "Messunsicherheit n. def." }];
    }

    function test_texts(data) {
        ViewModel.resolutionX = 604;
        ViewModel.resolutionY = 400;
        finish(Array(data.count).fill(100), 100, data.sigma);
        const plot = createTemporaryObject(plotComponent, testCase);
        compare(findChild(plot, "sigmaLegend").text, data.legend);
        compare(findChild(plot, "offsetText").text, "Versatz 2.0 px   (x -2.0 / y +0.0)");
        verify(findChild(plot, "plotHeader").visible);
        plot.showHeader = false;
        verify(!findChild(plot, "plotHeader").visible);
    }
}
