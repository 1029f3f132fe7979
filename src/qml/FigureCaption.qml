import QtQuick.Controls.Material
import Meridax

/// Caption of a figure in a table of results.
Label {
    font.pixelSize: 12
    color: Theme.textMuted
}
