import QtQuick
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Internal

Item {
    id: scene

    width: 800
    height: 600

    VideoFrameItem {
        id: videoItem

        anchors.fill: parent
        zoom: ViewModel.zoom
        anchorX: ViewModel.centerX
        anchorY: ViewModel.centerY
    }

    Internal.OverlayCanvas {
        id: overlay

        anchors.fill: parent
        video: videoItem
        frameCenter: Qt.point(ViewModel.centerX, ViewModel.centerY)
        running: true
    }

    Internal.LiveView {
        id: live

        anchors.fill: parent
        visible: false
    }

    TestCase {
        name: "OverlayCanvas"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
            // 1600 x 1200 in 800 x 600: half a screen pixel a frame pixel at zoom 1.
            ViewModel.zoom = 1;
            videoItem.setFrame(testFrames.ring(1600, 1200, 800, 600, 300, 4));
            tryCompare(videoItem, "viewSourceRect", Qt.rect(0, 0, 1600, 1200));
            ViewModel.centerX = 800;
            ViewModel.centerY = 600;
            ViewModel.circle1Enabled = true;
            ViewModel.circle1Radius = 300;
            ViewModel.circle2Enabled = false;
            ViewModel.circle2Radius = 300;
            ViewModel.circle3Enabled = false;
            ViewModel.crossEnabled = true;
            ViewModel.crossType = 1;
            ViewModel.crossAngle = 0;
            mouseMove(overlay, 1, 1);
        }

        function handle(): Item {
            return findChild(overlay, "markHandle");
        }

        function drag(from: point, to: point) {
            mousePress(overlay, from.x, from.y);
            mouseMove(overlay, (from.x + to.x) / 2, (from.y + to.y) / 2);
            mouseMove(overlay, to.x, to.y);
        }

        function test_hoverShowsTheHandleOnTheEdge() {
            verify(!handle().visible);
            mouseMove(overlay, 400 + 96, 300 + 128); // 160 px from the centre, the edge is at 150
            tryCompare(overlay, "hoverCircle", 1);
            verify(handle().visible);
            fuzzyCompare(overlay.handleX, 400 + 90, 1e-6);
            fuzzyCompare(overlay.handleY, 300 + 120, 1e-6);
            mouseMove(overlay, 400 + 60, 300 + 60);
            tryCompare(overlay, "hoverCircle", 0);
            verify(!handle().visible);
        }

        function test_hoverShowsTheHandleOnTheArm() {
            mouseMove(overlay, 405, 220);
            tryVerify(() => overlay.crossActive);
            compare(overlay.hoverCrossBase, 0);
            fuzzyCompare(overlay.handleX, 400, 1e-6);
            fuzzyCompare(overlay.handleY, 300 - 600 * 0.32, 1e-6);
        }

        function test_edgeHasPriorityOverArm() {
            mouseMove(overlay, 402, 152); // on both
            tryCompare(overlay, "hoverCircle", 1);
            verify(isNaN(overlay.hoverCrossBase));
        }

        function test_dragCircle_data() {
            return [
                { tag: "zoom 1", zoom: 1, fromX: 550, toX: 600, radius: 400 },
                { tag: "zoom 2", zoom: 2, fromX: 700, toX: 600, radius: 200 },
                { tag: "to the centre", zoom: 1, fromX: 550, toX: 400, radius: 10 }
            ];
        }
        function test_dragCircle(data) {
            ViewModel.zoom = data.zoom;
            ViewModel.crossEnabled = false;
            drag(Qt.point(data.fromX, 300), Qt.point(data.toX, 300));
            compare(overlay.dragCircle, 1);
            fuzzyCompare(ViewModel.circle1Radius, data.radius, 1e-6);
            compare(handle().color, "#4a9eca");
            compare(handle().x + handle().width / 2, overlay.ovlScx + (data.toX > 400
                    ? data.toX - 400 : 0));
            mouseRelease(overlay, data.toX, 300);
            compare(overlay.dragCircle, 0);
            fuzzyCompare(ViewModel.circle1Radius, data.radius, 1e-6);
            compare(ViewModel.centerX, 800);
        }

        // The press decides, not where the pointer is when the drag begins.
        function test_dragTakesTheCircleThatWasPressed() {
            ViewModel.circle2Enabled = true;
            ViewModel.circle2Radius = 500;
            mousePress(overlay, 550, 300);
            mouseMove(overlay, 650, 300); // the edge of circle 2
            compare(overlay.dragCircle, 1);
            mouseRelease(overlay, 650, 300);
            compare(ViewModel.circle2Radius, 500);
        }

        function test_dragArm_data() {
            return [
                { tag: "zoom 1, to the right", zoom: 1, x: 500, y: 300, angle: 90 },
                { tag: "zoom 2, to the lower left", zoom: 2, x: 300, y: 400, angle: 225 },
                { tag: "zoom 1, to the upper left", zoom: 1, x: 300, y: 200, angle: 315 }
            ];
        }
        function test_dragArm(data) {
            ViewModel.zoom = data.zoom;
            drag(Qt.point(400, 230), Qt.point(data.x, data.y));
            compare(overlay.dragCrossBase, 0);
            fuzzyCompare(ViewModel.crossAngle, data.angle, 1e-6);
            mouseRelease(overlay, data.x, data.y);
            verify(isNaN(overlay.dragCrossBase));
            compare(ViewModel.circle1Radius, 300);
        }

        function test_pressesThatMoveNothing_data() {
            return [
                { tag: "near the centre", enabled: true, x: 415, y: 300 },
                { tag: "between the marks", enabled: true, x: 460, y: 340 },
                { tag: "on a disabled circle", enabled: false, x: 490, y: 420 }
            ];
        }
        function test_pressesThatMoveNothing(data) {
            ViewModel.circle1Enabled = data.enabled;
            drag(Qt.point(data.x, data.y), Qt.point(data.x + 60, data.y + 90));
            verify(!overlay.dragging);
            mouseRelease(overlay, data.x + 60, data.y + 90);
            compare(ViewModel.circle1Radius, 300);
            compare(ViewModel.crossAngle, 0);
            compare(ViewModel.centerX, 800);
        }

        // Zooming leaves the centre of the marks, offset included, in its place on the screen.
        function test_zoomAnchor_data() {
            const rows = [];
            for (const zoom of [1, 1.6, 5]) {
                for (const offset of [false, true])
                    rows.push({ tag: `zoom ${zoom}${offset ? " with offset" : ""}`, zoom: zoom,
                                offset: offset, x: offset ? 430 : 450, y: offset ? 280 : 250 });
            }
            return rows;
        }
        function test_zoomAnchor(data) {
            live.videoItem.setFrame(testFrames.ring(1600, 1200, 800, 600, 300, 4));
            tryCompare(live.videoItem.viewSourceRect, "height", 1200);
            ViewModel.resolutionX = 1600;
            ViewModel.resolutionY = 1200;
            ViewModel.centerX = 900;
            ViewModel.centerY = 500;
            ViewModel.offsetX = -40;
            ViewModel.offsetY = 60;
            ViewModel.offsetEnabled = data.offset;
            ViewModel.zoom = data.zoom;
            const marks = findChild(live, "overlayCanvas");
            tryVerify(() => Math.abs(marks.ovlPxScale - 0.5 * data.zoom) < 1e-6);
            fuzzyCompare(marks.ovlScx, data.x, 1e-6);
            fuzzyCompare(marks.ovlScy, data.y, 1e-6);
        }
    }
}
