import QtQuick
import QtQuick.Shapes
import Meridax
import "overlayGeometry.mjs" as Geometry

/// The slice from the centre towards the next measuring position of a calibration. It fills the
/// rectangle in which the picture is shown and is clipped to it.
Item {
    id: sector

    required property real displayZoom
    /// Overlay centre in frame pixels.
    required property point frameCenter

    readonly property real nominalDeg: Geometry.guideDegrees(ViewModel.currentGuideIndex,
                                                            ViewModel.totalGuidePositions)
    readonly property real halfWidth: 12
    readonly property real radius: Math.max(width, height) * 1.4
    readonly property real heightScale: height / Math.max(1, ViewModel.resolutionY)
    readonly property real pxScale: displayZoom * heightScale
    readonly property real sectorCx: width / 2
                                     + (frameCenter.x - ViewModel.resolutionX / 2) * pxScale
    readonly property real sectorCy: height / 2
                                     + (frameCenter.y - ViewModel.resolutionY / 2) * pxScale
    readonly property point firstEdge: Geometry.pointTowards(sectorCx, sectorCy,
                                                             nominalDeg - halfWidth, radius)
    readonly property point secondEdge: Geometry.pointTowards(sectorCx, sectorCy,
                                                              nominalDeg + halfWidth, radius)
    readonly property real alignment: Math.max(0, Math.min(1, ViewModel.blobSectorAlignment))
    /// Red outside, yellow halfway, green on the middle line.
    readonly property color alignmentColor: Qt.hsla(alignment * 120 / 360, 0.85, 0.50, 1.0)
    readonly property color clearColor: Qt.alpha(alignmentColor, 0)
    readonly property color softColor: Qt.alpha(alignmentColor, 0.22)

    clip: true

    Shape {
        anchors.fill: parent
        preferredRendererType: Shape.CurveRenderer

        ShapePath {
            strokeWidth: 0
            strokeColor: "transparent"
            startX: sector.sectorCx
            startY: sector.sectorCy

            fillGradient: LinearGradient {
                x1: sector.firstEdge.x
                y1: sector.firstEdge.y
                x2: sector.secondEdge.x
                y2: sector.secondEdge.y

                GradientStop {
                    position: 0
                    color: sector.clearColor
                }
                GradientStop {
                    position: 0.18
                    color: sector.softColor
                }
                GradientStop {
                    position: 0.82
                    color: sector.softColor
                }
                GradientStop {
                    position: 1
                    color: sector.clearColor
                }
            }

            PathLine {
                x: sector.firstEdge.x
                y: sector.firstEdge.y
            }
            PathArc {
                x: sector.secondEdge.x
                y: sector.secondEdge.y
                radiusX: sector.radius
                radiusY: sector.radius
                direction: PathArc.Clockwise
            }
            PathLine {
                x: sector.sectorCx
                y: sector.sectorCy
            }
        }
    }
}
