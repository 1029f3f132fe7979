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

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        spacing: 4

        Repeater {
            model: root._names

            StarButton {
                required property int index
                required property string modelData

                objectName: "star" + (index + 1)
                name: modelData
                filled: index < root.rating
                chosen: index + 1 === root.rating
                focus: index === 0
                onClicked: root.chosen(index + 1)
            }
        }
    }
}
