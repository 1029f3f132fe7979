import QtQuick
import QtQuick.Controls.Material
import QtQuick.Shapes

/// A dashed outline in the picture, with a few words beside it.
Item {
    id: root

    /// Points of the outline, frame pixels.
    required property var points
    required property point center
    /// Frame pixels.
    required property real markRadius
    required property string words
    required property rect source
    required property rect dest
    property color lineColor: "#FFD54F"

    readonly property real pxScale: source.height > 0 ? dest.height / source.height : 0
    readonly property var _path: points.length > 0
                                 ? points.concat([points[0]]).map(point => toItem(point)) : []

    /// Position in this item of a point of the frame.
    function toItem(point: point): point {
        return Qt.point(dest.x + (point.x - source.x) * pxScale,
                        dest.y + (point.y - source.y) * pxScale);
    }

    Shape {
        anchors.fill: parent

        // Beneath the dashes, so that they show on light ground, too.
        ShapePath {
            strokeWidth: 3
            strokeColor: "#C0000000"
            fillColor: "transparent"

            PathPolyline {
                path: root._path
            }
        }

        ShapePath {
            strokeWidth: 2
            strokeColor: root.lineColor
            strokeStyle: ShapePath.DashLine
            dashPattern: [3, 2]
            fillColor: "transparent"

            PathPolyline {
                path: root._path
            }
        }
    }

    Rectangle {
        id: label

        readonly property point place: root.toItem(root.center)
        readonly property real gap: root.markRadius * root.pxScale + 10

        objectName: "blobTagLabel"
        x: Math.max(root.dest.x + 4,
                    Math.min(place.x - width / 2, root.dest.x + root.dest.width - width - 4))
        // Below the mark, or above it at the lower edge of the picture.
        y: place.y + gap + height < root.dest.y + root.dest.height
           ? place.y + gap : place.y - gap - height
        width: text.width + 14
        height: text.height + 6
        radius: 4
        color: "#D0000000"
        border.width: 1
        border.color: root.lineColor

        Label {
            id: text

            anchors.centerIn: parent
            width: Math.min(implicitWidth, 260)
            text: root.words
            color: "#FFFFFF"
            font.pixelSize: 11
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            // The line beside the hint says the same to a screen reader.
            Accessible.ignored: true
        }
    }
}
