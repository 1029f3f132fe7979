import QtQuick
import QtQuick.Controls.Material

/// The button that measures a position; while it does so it is the progress bar.
Rectangle {
    id: root

    required property bool busy
    /// One mark lies in the sector: the camera has really been turned to the position.
    required property bool canMeasure
    /// 0 to 1.
    required property real progress
    required property int framesDone
    required property int framesTotal

    readonly property bool armed: !busy && canMeasure

    signal clicked()

    function _activate() {
        if (armed)
            clicked();
    }

    implicitHeight: 40
    radius: 4
    color: !canMeasure ? "#2E3A2E" : busy ? "#1B5E20" : "#4CAF50"
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    // Not with the number of frames: each would be told.
    Accessible.name: qsTr("Position messen")
    Accessible.onPressAction: _activate()

    Keys.onPressed: event => {
        const key = event.key;
        if (key !== Qt.Key_Space && key !== Qt.Key_Return && key !== Qt.Key_Enter)
            return;
        event.accepted = true;
        if (!event.isAutoRepeat)
            _activate();
    }

    Behavior on color {
        ColorAnimation { duration: 150 }
    }

    Rectangle {
        objectName: "measureFill"
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: root.busy ? root.width * root.progress : 0
        radius: 4
        visible: root.busy
        color: "#81C784"

        Behavior on width {
            NumberAnimation { duration: 100 }
        }
    }

    Label {
        id: label
        anchors.centerIn: parent
        text: root.busy ? qsTr("Messe… %1 / %2").arg(root.framesDone).arg(root.framesTotal)
                        : qsTr("Position messen")
        font.pixelSize: 13
        font.bold: true
        color: "white"
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        enabled: root.armed
        cursorShape: root.armed ? Qt.PointingHandCursor : Qt.ArrowCursor
        onClicked: root.clicked()
    }

    FocusFrame { }
}
