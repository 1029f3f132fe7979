pragma ComponentBehavior: Bound

import QtQuick

/// Five stars, filled up to `rating`. A user's choice goes out by `chosen` alone.
FocusScope {
    id: root

    required property int rating
    readonly property list<string> _names: [
        qsTr("Sehr unzufrieden"), qsTr("Unzufrieden"), qsTr("OK"), qsTr("Gut"), qsTr("Begeistert")
    ]

    signal chosen(rating: int)

    function _lead(distance: int) {
        const next = Math.max(1, Math.min(_names.length, rating + distance));
        // First the focus: the star that is left ceases to be a stop of the tab key.
        stars.itemAt(next - 1).forceActiveFocus(Qt.TabFocusReason);
        chosen(next);
    }

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        spacing: 4

        Keys.onLeftPressed: root._lead(-1)
        Keys.onRightPressed: root._lead(1)

        Repeater {
            id: stars

            model: root._names

            StarButton {
                required property int index
                required property string modelData

                objectName: "star" + (index + 1)
                name: modelData
                filled: index < root.rating
                chosen: index + 1 === root.rating
                tabStop: index === Math.max(0, root.rating - 1)
                focus: index === 0
                onClicked: root.chosen(index + 1)
            }
        }
    }
}
