import QtQuick
import QtTest
import "qrc:/qt/qml/Meridax/src/qml/overlayGeometry.mjs" as Geometry

TestCase {
    name: "OverlayGeometry"

    // Centre at (400, 300), two screen pixels a frame pixel.
    readonly property var view: ({ cx: 400, cy: 300, scale: 2 })
    readonly property var fourArms: ({ enabled: true, type: 1, angle: 0 })

    function circle(number: int, radius: real, enabled: bool): var {
        return { number: number, radius: radius, enabled: enabled };
    }

    function init() {
        failOnWarning(/.?/);
    }

    function test_circleAtEdge_data() {
        const all = [circle(1, 100, true), circle(2, 50, true), circle(3, 45, true)];
        return [
            { tag: "on the edge", circles: all, x: 600, y: 300, hit: 1 },
            { tag: "just inside the tolerance", circles: all, x: 588.1, y: 300, hit: 1 },
            { tag: "tolerance is exclusive", circles: all, x: 588, y: 300, hit: 0 },
            { tag: "nearer of two edges", circles: all, x: 400, y: 394, hit: 3 },
            { tag: "equally near: lower number", circles: all, x: 400, y: 395, hit: 2 },
            {
                tag: "disabled", circles: [circle(1, 100, false), circle(2, 97, true)],
                x: 600, y: 300, hit: 2
            },
            { tag: "none", circles: [circle(1, 100, false)], x: 600, y: 300, hit: 0 }
        ];
    }
    function test_circleAtEdge(data) {
        compare(Geometry.circleAtEdge(data.x, data.y, view, data.circles), data.hit);
    }

    function test_crossBaseAt_data() {
        const turned = { enabled: true, type: 1, angle: 30 };
        const threeArms = { enabled: true, type: 0, angle: 0 };
        const off = { enabled: false, type: 1, angle: 0 };
        return [
            { tag: "up", cross: fourArms, x: 400, y: 100, base: 0 },
            { tag: "left", cross: fourArms, x: 200, y: 300, base: 90 },
            { tag: "down", cross: fourArms, x: 400, y: 500, base: 180 },
            { tag: "right", cross: fourArms, x: 600, y: 300, base: 270 },
            { tag: "6.8 degrees off", cross: fourArms, x: 423.85, y: 100, base: 0 },
            { tag: "7.2 degrees off", cross: fourArms, x: 425.3, y: 100, base: NaN },
            { tag: "between the arms", cross: fourArms, x: 500, y: 200, base: NaN },
            { tag: "too near to the centre", cross: fourArms, x: 400, y: 276.1, base: NaN },
            { tag: "out of the dead zone", cross: fourArms, x: 400, y: 276, base: 0 },
            { tag: "30 degrees clockwise", cross: turned, x: 500, y: 126.8, base: 0 },
            { tag: "three arms, lower left", cross: threeArms, x: 226.8, y: 400, base: 120 },
            { tag: "three arms, none to the left", cross: threeArms, x: 200, y: 300, base: NaN },
            { tag: "off", cross: off, x: 400, y: 100, base: NaN }
        ];
    }
    function test_crossBaseAt(data) {
        const base = Geometry.crossBaseAt(data.x, data.y, view, data.cross);
        if (isNaN(data.base))
            verify(isNaN(base), `hit ${base}`);
        else
            compare(base, data.base);
    }

    // Whatever is painted can be taken hold of at the same place.
    function test_paintedArmIsHit() {
        for (const type of [0, 1]) {
            for (let angle = 0; angle < 360; angle += 7.5) {
                for (const base of Geometry.crossBases(type)) {
                    const point = Geometry.pointOnArm(base, angle, view, 150);
                    compare(Geometry.crossBaseAt(point.x, point.y, view,
                                                 { enabled: true, type: type, angle: angle }), base);
                }
            }
        }
    }

    function test_draggedArmFollowsThePointer() {
        for (let direction = 0; direction < 360; direction += 11.25) {
            const px = view.cx + 120 * Math.sin(direction * Math.PI / 180);
            const py = view.cy + 120 * Math.cos(direction * Math.PI / 180);
            for (const base of [0, 90, 120, 180, 240, 270]) {
                const angle = Geometry.draggedCrossAngle(px, py, view, base);
                verify(angle >= 0 && angle < 360, `angle ${angle}`);
                const arm = Geometry.pointOnArm(base, angle, view, 120);
                fuzzyCompare(arm.x, px, 1e-6);
                fuzzyCompare(arm.y, py, 1e-6);
            }
        }
    }

    function test_draggedRadius_data() {
        return [
            { tag: "distance in frame pixels", x: 520, y: 300, radius: 60 },
            { tag: "on the centre", x: 400, y: 300, radius: 10 },
            { tag: "far out", x: 99999, y: 300, radius: 5000 }
        ];
    }
    function test_draggedRadius(data) {
        compare(Geometry.draggedRadius(data.x, data.y, view), data.radius);
    }

    function test_dashPattern() {
        compare(Geometry.dashPattern(0, 2), []);
        compare(Geometry.dashPattern(1, 2), [12, 6]);
        compare(Geometry.dashPattern(2, 2), [2, 8]);
        compare(Geometry.dashPattern(3, 2), [12, 6, 2, 6]);
        compare(Geometry.dashPattern(99, 2), []);
    }

    function test_guideDegrees() {
        compare(Geometry.guideDegrees(0, 8), -45);
        compare(Geometry.guideDegrees(3, 8), -180);
        compare(Geometry.guideDegrees(1, 2), -165); // never less than three positions
        const first = Geometry.pointTowards(0, 0, Geometry.guideDegrees(0, 8), 100);
        verify(first.x > 0 && first.y < 0, "the first position lies to the upper right");
    }
}
