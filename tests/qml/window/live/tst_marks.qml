import QtQuick
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Internal

// Marks and picture as drawn: a circle lies on the same frame pixels at any zoom.
Item {
    id: scene

    width: 800
    height: 600

    Rectangle {
        anchors.fill: parent
        color: "#000000"
    }

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

    SignalSpy {
        id: painted

        target: overlay
        signalName: "painted"
    }

    TestCase {
        name: "Marks"
        when: windowShown

        // Colour of the grabbed picture at a distance from the overlay centre.
        function colorAt(image: var, angle: real, distance: real): color {
            return image.pixel(Math.floor(overlay.ovlScx + distance * Math.cos(angle)),
                               Math.floor(overlay.ovlScy + distance * Math.sin(angle)));
        }

        // Mean distance from the centre of what `matches` among the pixels on a ray, or NaN.
        function meanDistance(image: var, angle: real, from: real, to: real, matches: var): real {
            let sum = 0;
            let count = 0;
            for (let distance = from; distance <= to; distance += 0.25) {
                if (matches(colorAt(image, angle, distance))) {
                    sum += distance;
                    ++count;
                }
            }
            return count > 0 ? sum / count : NaN;
        }

        function settle() {
            painted.clear();
            overlay.requestPaint();
            painted.wait();
        }

        function init() {
            failOnWarning(/.?/);
            ViewModel.circle1Enabled = true;
            ViewModel.circle1Color = "#ff0000";
            ViewModel.circle1LineWidth = 2;
            ViewModel.circle1LineStyle = 0;
            ViewModel.circle2Enabled = false;
            ViewModel.circle3Enabled = false;
            ViewModel.crossEnabled = false;
            ViewModel.zoom = 1;
        }

        // Nothing else asks for it: without it the marks would freeze on the screen.
        function test_everyChangePaints_data() {
            const changes = {
                circle1Radius: 222, circle1Color: "#00ff00", circle1LineWidth: 5,
                circle1LineStyle: 2, circle1Enabled: false, circle2Enabled: true,
                circle2Radius: 333, circle3Enabled: true, circle3Color: "#123456",
                crossEnabled: true, crossAngle: 12, crossType: 0, crossColor: "#00ffff",
                crossLineWidth: 7, crossLineStyle: 3, centerX: 700, centerY: 555, zoom: 2.5
            };
            const rows = Object.entries(changes).map(([property, value]) => ({
                tag: property, change: () => ViewModel[property] = value
            }));
            return [...rows,
                    { tag: "size", change: () => scene.width = 790 },
                    { tag: "camera stops", change: () => overlay.running = false }];
        }
        function test_everyChangePaints(data) {
            videoItem.setFrame(testFrames.ring(1600, 1200, 800, 600, 300, 4));
            ViewModel.centerX = 800;
            ViewModel.centerY = 600;
            ViewModel.crossType = 1;
            ViewModel.crossAngle = 0;
            tryVerify(() => overlay.ovlPxScale > 0);
            settle();
            painted.clear();
            data.change();
            painted.wait();
            scene.width = 800;
            overlay.running = true;
        }

        function test_circleLiesOnItsFramePixels_data() {
            return [
                { tag: "zoom 1", zoom: 1, cx: 812, cy: 590, radius: 400 },
                { tag: "zoom 1.6", zoom: 1.6, cx: 812, cy: 590, radius: 300 },
                { tag: "zoom 5", zoom: 5, cx: 900, cy: 500, radius: 90 },
                { tag: "zoom 5 at the frame's edge", zoom: 5, cx: 1590, cy: 30, radius: 100 }
            ];
        }
        function test_circleLiesOnItsFramePixels(data) {
            const lineWidth = 20;
            videoItem.setFrame(testFrames.ring(1600, 1200, data.cx, data.cy, data.radius,
                                               lineWidth));
            ViewModel.centerX = data.cx;
            ViewModel.centerY = data.cy;
            ViewModel.circle1Radius = data.radius;
            ViewModel.zoom = data.zoom;
            tryVerify(() => overlay.ovlPxScale > 0);
            settle();
            const image = grabImage(scene);

            const radius = data.radius * overlay.ovlPxScale;
            const reach = lineWidth * overlay.ovlPxScale;
            let compared = 0;
            for (let angle = 0; angle < 2 * Math.PI; angle += Math.PI / 16) {
                const x = overlay.ovlScx + (radius + reach) * Math.cos(angle);
                const y = overlay.ovlScy + (radius + reach) * Math.sin(angle);
                if (x < 0 || y < 0 || x >= scene.width || y >= scene.height)
                    continue;
                const ring = meanDistance(image, angle, radius - reach, radius + reach,
                                          color => color.r > 0.5);
                const mark = meanDistance(image, angle, radius - reach, radius + reach,
                                          color => color.r > 0.5 && color.g < 0.5);
                fuzzyCompare(mark, ring, 0.75, `at ${angle}`);
                ++compared;
            }
            verify(compared >= 6, `${compared} directions`);
        }

        // Lengths of dashes and gaps are screen pixels.
        function test_dashes() {
            videoItem.clearFrame();
            videoItem.setFrame(testFrames.ring(1600, 1200, 0, 0, 1, 1));
            tryVerify(() => overlay.ovlPxScale > 0);
            ViewModel.centerX = 800;
            ViewModel.centerY = 600;
            ViewModel.circle1Enabled = false;
            ViewModel.crossEnabled = true;
            ViewModel.crossType = 1;
            ViewModel.crossAngle = 0;
            ViewModel.crossColor = "#ff0000";
            ViewModel.crossLineWidth = 4;
            ViewModel.crossLineStyle = 1;
            settle();
            const image = grabImage(scene);
            // Along the upper arm: 24 px of dash and 12 px of gap, in turn.
            for (let step = 0; step < 6; ++step) {
                const start = 300 - 36 * step;
                verify(image.red(400, start - 12) > 200, `dash ${step}`);
                compare(image.red(400, start - 30), 0, `gap ${step}`);
            }
        }

        function test_nothingInTheStripsBesideThePicture() {
            videoItem.clearFrame();
            videoItem.setFrame(testFrames.ring(600, 1200, 300, 600, 250, 4));
            tryCompare(videoItem, "viewSourceRect", Qt.rect(0, 0, 600, 1200));
            ViewModel.centerX = 300;
            ViewModel.centerY = 600;
            ViewModel.circle1Radius = 500;
            settle();
            const image = grabImage(scene);
            compare(overlay.ovlDst, Qt.rect(250, 0, 300, 600));
            compare(image.red(150, 300), 0);
            compare(image.red(150 + 1, 300), 0);
            // The circle enters the picture above and below.
            const x = overlay.ovlScx + 100;
            const y = overlay.ovlScy - Math.sqrt(250 * 250 - 100 * 100);
            verify(image.red(Math.floor(x), Math.floor(y)) > 128);
        }
    }
}
