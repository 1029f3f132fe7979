import QtQuick
import QtQuick.Controls.Material
import Meridax

/// The pill at the inner edge of a side panel that folds and unfolds it.
Rectangle {
    id: root

    required property bool expanded
    required property string symbol
    required property string name

    signal clicked()

    implicitWidth: 20
    implicitHeight: 60
    radius: 10
    color: Theme.handleBg
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.description: expanded ? qsTr("ausgeklappt") : qsTr("eingeklappt")
    Accessible.checkable: true
    Accessible.checked: expanded
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: event => event.isAutoRepeat || clicked()
    Keys.onEnterPressed: event => event.isAutoRepeat || clicked()

    Label {
        anchors.centerIn: parent
        text: root.symbol
        font.pixelSize: 16
        font.bold: true
        color: Theme.handleText
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()
    }

    FocusFrame {
        radius: 12
    }
}
