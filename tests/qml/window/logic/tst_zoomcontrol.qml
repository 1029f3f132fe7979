import QtQuick
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Internal

Item {
    id: scene

    width: 600
    height: 200

    Internal.ZoomControl {
        id: control

        anchors.centerIn: parent
    }

    Component {
        id: controlComponent

        Internal.ZoomControl {}
    }

    TestCase {
        name: "ZoomControl"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
            ViewModel.zoom = 1;
        }

        function test_scale_data() {
            return [
                { tag: "least", zoom: 1, value: 0, text: "0" },
                { tag: "middle", zoom: 3, value: 50, text: "50" },
                { tag: "between two steps", zoom: 1.05, value: 1.25, text: "1" },
                { tag: "most", zoom: 5, value: 100, text: "100" }
            ];
        }
        function test_scale(data) {
            ViewModel.zoom = data.zoom;
            fuzzyCompare(control.value, data.value, 1e-9);
            fuzzyCompare(findChild(control, "zoomSlider").value, data.value, 1e-9);
            compare(findChild(control, "zoomValueLabel").text, data.text);
        }

        function test_showingChangesNothing() {
            ViewModel.zoom = 0.5;
            const another = createTemporaryObject(controlComponent, scene);
            ViewModel.zoom = 6;
            compare(findChild(another, "zoomSlider").value, 100);
            compare(ViewModel.zoom, 6);
            findChild(another, "zoomSlider").value = 25; // assistive technology
            compare(ViewModel.zoom, 2);
        }

        function test_stepButtons() {
            ViewModel.zoom = 1.05; // 1.25 on the scale
            mouseClick(findChild(control, "zoomInButton"));
            fuzzyCompare(ViewModel.zoom, 1.08, 1e-9);
            mouseClick(findChild(control, "zoomOutButton"));
            mouseClick(findChild(control, "zoomOutButton"));
            mouseClick(findChild(control, "zoomOutButton"));
            compare(ViewModel.zoom, 1);
        }

        function test_keyboard() {
            const zoomIn = findChild(control, "zoomInButton");
            zoomIn.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            fuzzyCompare(ViewModel.zoom, 1.04, 1e-9);
            keyClick(Qt.Key_Backtab);
            const slider = findChild(control, "zoomSlider");
            verify(slider.activeFocus);
            keyClick(Qt.Key_Right);
            fuzzyCompare(ViewModel.zoom, 1.08, 1e-9);
        }

    }
}
