import QtQuick
import QtQuick.Layouts
import Meridax

/// The line between two columns of the settings.
Rectangle {
    implicitWidth: 1
    color: Theme.divider
    Layout.fillHeight: true
}
