import QtQuick

/// The veil over the window behind a modal dialog: dark in both themes, since at the telescope a
/// light one would dazzle.
Rectangle {
    color: Qt.rgba(0, 0, 0, 0.6)

    Behavior on opacity {
        NumberAnimation {
            duration: 150
        }
    }
}
