import QtQuick
import QtTest
import "qrc:/qt/qml/Meridax/src/qml/windowGeometry.mjs" as WindowGeometry

TestCase {
    name: "WindowGeometry"

    function screenOf(x: int, y: int, width: int, height: int, taskBar: int): var {
        return {
            x: x, y: y, width: width, height: height, availableWidth: width,
            availableHeight: height - taskBar
        };
    }

    function test_first_data() {
        return [
            { tag: "large", screen: screenOf(0, 0, 1920, 1080, 48), place: [160, 65, 1600, 950] },
            { tag: "1280x720", screen: screenOf(0, 0, 1280, 720, 48), place: [8, 48, 1264, 624] },
            { tag: "1366x768", screen: screenOf(0, 0, 1366, 768, 40), place: [8, 44, 1350, 680] },
            { tag: "as large as the window", screen: screenOf(0, 0, 1600, 950, 0),
              place: [8, 40, 1584, 902] },
            { tag: "second screen", screen: screenOf(-1280, 200, 1280, 720, 0),
              place: [-1272, 240, 1264, 672] },
            { tag: "too small for any window", screen: screenOf(0, 0, 640, 480, 0),
              place: [0, 40, 800, 600] }
        ];
    }
    function test_first(data) {
        const { x, y, width, height } = WindowGeometry.first(data.screen);
        compare([x, y, width, height], data.place);
    }

    // Once moved into reach, a window stays where it is at every further start.
    function test_reachable_data() {
        return [
            { tag: "as saved", x: 50, y: 60, expected: [50, 60] },
            { tag: "title bar at the upper edge", x: 50, y: 23, expected: [50, 23] },
            { tag: "title bar beyond it", x: 50, y: 0, expected: [50, 40] },
            { tag: "far above and left", x: -9000, y: -9000, expected: [-780, 40] },
            { tag: "far below and right", x: 9000, y: 9000, expected: [1800, 1000] }
        ];
    }
    function test_reachable(data) {
        const screen = screenOf(0, 0, 1920, 1080, 0);
        const saved = { x: data.x, y: data.y, width: 900, height: 700 };
        const placed = WindowGeometry.reachable(saved, screen);
        compare([placed.x, placed.y, placed.width, placed.height], [...data.expected, 900, 700]);
        compare(WindowGeometry.reachable(placed, screen), placed);
    }
}
