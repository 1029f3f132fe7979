import QtQuick
import Meridax

/// In tap mode the picture belongs to the tap: it starts a focus sweep at the place tapped, and the
/// marks there tell how the sweep goes.
Item {
    id: root

    /// The part of the frame that is shown (frame px) and where (px of this item).
    required property rect frameRect
    required property rect shownRect
    required property real pxScale
    property point tapPoint

    readonly property bool tapEnabled: ViewModel.running && ViewModel.focusTapModeActive
    /// By outcome; a sweep that was ended by the user needs no word.
    readonly property var messages: ({
        1: qsTr("Keine fokussierbare Struktur gefunden."),
        2: qsTr("Fokus dieser Kamera ist nicht steuerbar."),
        4: qsTr("Fokusbereich wird noch ermittelt — bitte kurz warten.")
    })

    function tapAt(position: point) {
        const inPicture = position.x >= shownRect.left && position.x <= shownRect.right
                          && position.y >= shownRect.top && position.y <= shownRect.bottom;
        // During a sweep the marks stay where it is focusing.
        if (!inPicture || pxScale <= 0 || ViewModel.focusSweepActive)
            return;
        tapPoint = position;
        ViewModel.requestFocusTap(frameRect.x + (position.x - shownRect.x) / pxScale,
                                  frameRect.y + (position.y - shownRect.y) / pxScale);
        tapMarker.flash();
    }

    function showOutcome(outcome: int) {
        if (outcome === 0) {
            successRing.flash();
            toast.Accessible.announce(qsTr("Schärfste Stelle gefunden."));
        } else if (messages[outcome] !== undefined) {
            toast.show(messages[outcome]);
        }
    }

    HoverHandler {
        enabled: root.tapEnabled
        cursorShape: Qt.CrossCursor
    }

    TapHandler {
        enabled: root.tapEnabled
        acceptedButtons: Qt.LeftButton
        gesturePolicy: TapHandler.WithinBounds
        onTapped: eventPoint => root.tapAt(eventPoint.position)
    }

    Connections {
        target: ViewModel

        function onFocusSweepFeedback(outcome) { root.showOutcome(outcome); }
    }

    // Everything about the tap is centred on this point.
    Item {
        x: root.tapPoint.x
        y: root.tapPoint.y

        FadingRing {
            id: tapMarker

            objectName: "tapMarker"
            anchors.centerIn: parent
            width: 46
            border.width: 2
        }

        SweepIndicator {
            objectName: "sweepIndicator"
            anchors.centerIn: parent
            visible: ViewModel.focusSweepActive
            fraction: ViewModel.focusSweepFraction
        }

        FadingRing {
            id: successRing

            objectName: "successRing"
            anchors.centerIn: parent
            width: 54
            border.width: 3
            duration: 900

            Text {
                anchors.centerIn: parent
                text: "✓"
                Accessible.ignored: true
                color: "#37D067"
                font {
                    pixelSize: 26
                    bold: true
                }
            }
        }
    }

    FadingToast {
        id: toast

        objectName: "focusToast"
        x: Math.max(0, Math.min(root.width - width, root.tapPoint.x - width / 2))
        // The status bar lies over the lower edge of the picture.
        y: root.tapPoint.y + 26 + height < root.height - 32 ? root.tapPoint.y + 26
                                                            : root.tapPoint.y - 26 - height
        color: Qt.rgba(0, 0, 0, 0.82)
        border {
            width: 1
            color: "#E0A030"
        }
        textColor: "#FFD9A0"
        font.bold: true
    }
}
