import QtQuick
import QtQuick.Controls.Material
import Meridax

/// Warns of a calibration whose accuracy looks better than it is; a click opens the manual.
ToolButton {
    id: root

    implicitWidth: 26
    implicitHeight: 26
    padding: 0
    icon.source: "qrc:/resources/icon_warning.svg"
    icon.width: 18
    icon.height: 18
    icon.color: "#F57F17"

    Accessible.role: Accessible.Button
    Accessible.name: tip.text
    Accessible.onPressAction: click()

    Keys.onReturnPressed: event => event.isAutoRepeat || click()
    Keys.onEnterPressed: event => event.isAutoRepeat || click()
    onClicked: Qt.openUrlExternally(ViewModel.docsUrl)

    FocusFrame {
        anchors.margins: 0
        visible: root.visualFocus
    }

    HelpTip {
        id: tip

        objectName: "toolTip"
        wanted: root.hovered || root.visualFocus
        text: qsTr("Weniger als 6 Messpunkte: Formabweichungen wie ein Dreikant sind dann nicht erkennbar und verschieben den berechneten Mittelpunkt. Die angezeigte Genauigkeit ist in diesem Fall zu optimistisch. Klicken für Details im Handbuch.")
    }
}
