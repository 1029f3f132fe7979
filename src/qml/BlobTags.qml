pragma ComponentBehavior: Bound

import QtQuick
import Meridax

/// What may be the mark, outlined in the picture. Takes its geometry from the item that shows it.
Item {
    id: root

    required property VideoFrameItem video
    required property var advice

    readonly property bool found: advice.kind === "several"
    readonly property var shownTags: (advice.tags ?? []).concat(advice.inTheWay ? [advice.inTheWay]
                                                                                : [])

    clip: true

    Repeater {
        model: root.shownTags

        BlobTag {
            required property var modelData
            required property int index

            readonly property bool _inTheWay: index >= (root.advice.tags ?? []).length

            objectName: "blobTag"
            anchors.fill: parent
            points: modelData.points
            center: modelData.centre
            markRadius: modelData.radius
            source: root.video.viewSourceRect
            dest: root.video.viewDestRect
            lineColor: _inTheWay ? "#FF8A65" : "#FFD54F"
            words: _inTheWay ? qsTr("im Weg: %1").arg(texts.area(modelData.area))
                             : texts.tag(modelData, root.found)
        }
    }

    BlobWords {
        id: texts
    }
}
