import QtQuick
import Meridax

/// The live picture with everything that lies over it. One item, so that a grab of it takes picture
/// and marks together.
Item {
    id: captureArea

    /// A frame has arrived since the camera started.
    property bool hasFirstFrame: false
    property real zoomMin: 1.0
    property real zoomMax: 5.0
    readonly property alias videoItem: videoItem

    /// The one source of the zoom for picture, marks and sector.
    readonly property real displayZoom: ViewModel.calibrationActive ? 1.0
                                                                    : Math.max(0.01, ViewModel.zoom)
    readonly property real frameOnScreenW: ViewModel.resolutionX > 0 && ViewModel.resolutionY > 0
                                           ? ViewModel.resolutionX * height / ViewModel.resolutionY
                                           : width
    readonly property real effectiveFrameW: frameOnScreenW * displayZoom
    readonly property real displayWidth: Math.min(width, effectiveFrameW)
    readonly property real displayHeight: height
    readonly property real displayX: (width - displayWidth) / 2
    readonly property real displayY: 0

    /// Overlay centre in frame pixels, with the offset if it applies.
    readonly property real cxFull: ViewModel.centerX
                                   + (ViewModel.offsetEnabled ? ViewModel.offsetX : 0)
    readonly property real cyFull: ViewModel.centerY
                                   + (ViewModel.offsetEnabled ? ViewModel.offsetY : 0)
    /// How far the view has moved from the middle of the frame towards the overlay centre.
    readonly property real alphaInterp: displayZoom > 1 ? 1 - 1 / displayZoom : 0

    function setZoom(zoom: real) {
        ViewModel.zoom = Math.max(zoomMin, Math.min(zoomMax, zoom));
    }

    VideoFrameItem {
        id: videoItem

        objectName: "videoItem"
        anchors.fill: parent
        zoom: captureArea.displayZoom
        anchorX: ViewModel.resolutionX / 2
                 + (captureArea.cxFull - ViewModel.resolutionX / 2) * captureArea.alphaInterp
        anchorY: ViewModel.resolutionY / 2
                 + (captureArea.cyFull - ViewModel.resolutionY / 2) * captureArea.alphaInterp

        PinchHandler {
            target: null
            onActiveScaleChanged: captureArea.setZoom(ViewModel.zoom * activeScale)
        }

        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            // Sideways, and at the end of a gesture, there is nothing to zoom by.
            onWheel: event => {
                if (event.angleDelta.y !== 0)
                    captureArea.setZoom(ViewModel.zoom + (event.angleDelta.y > 0 ? 0.05 : -0.05));
            }
        }
    }

    OverlayCanvas {
        id: overlayCanvas

        objectName: "overlayCanvas"
        anchors.fill: videoItem
        visible: ViewModel.running && captureArea.hasFirstFrame
        video: videoItem
        frameCenter: Qt.point(captureArea.cxFull, captureArea.cyFull)
    }

    BlobTags {
        objectName: "blobTags"
        anchors.fill: videoItem
        visible: overlayCanvas.visible && ViewModel.calibrationActive
        video: videoItem
        advice: ViewModel.blobAdvice
    }

    GuideSector {
        id: sectorClip

        objectName: "sectorClip"
        x: captureArea.displayX
        y: captureArea.displayY
        width: captureArea.displayWidth
        height: captureArea.displayHeight
        visible: ViewModel.running && ViewModel.calibrationActive
                 && ViewModel.totalGuidePositions > 0
                 && ViewModel.currentGuideIndex < ViewModel.totalGuidePositions
        displayZoom: captureArea.displayZoom
        frameCenter: Qt.point(captureArea.cxFull, captureArea.cyFull)
    }
}
