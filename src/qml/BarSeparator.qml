import QtQuick
import QtQuick.Layouts

/// A thin upright line between two groups of the top bar.
Rectangle {
    implicitWidth: 1
    implicitHeight: 28
    Layout.alignment: Qt.AlignVCenter
}
