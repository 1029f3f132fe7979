import QtQuick.Layouts
import Meridax

/// The parameters of the blob detector.
ColumnLayout {
    spacing: 4

    SettingsSlider {
        objectName: "minThreshold"
        Layout.fillWidth: true
        label: qsTr("Min Threshold")
        tooltipText: qsTr("Untere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darunter werden ignoriert.")
        from: 1
        to: 254
        editable: true
        value: ViewModel.blobMinThreshold
        onMoved: newValue => { ViewModel.blobMinThreshold = newValue; }
    }

    SettingsSlider {
        objectName: "maxThreshold"
        Layout.fillWidth: true
        label: qsTr("Max Threshold")
        tooltipText: qsTr("Obere Helligkeits-Grenze für die Punkt-Erkennung. Pixel darüber werden ignoriert.")
        from: 2
        to: 255
        editable: true
        value: ViewModel.blobMaxThreshold
        onMoved: newValue => { ViewModel.blobMaxThreshold = newValue; }
    }

    HelpSwitch {
        objectName: "filterArea"
        label: qsTr("Filter Area")
        tooltipText: qsTr("Filtert erkannte Punkte nach Größe. Schließt zu kleine oder zu große Flecken aus.")
        checked: ViewModel.blobFilterArea
        onChosen: checked => { ViewModel.blobFilterArea = checked; }
    }

    SettingsSlider {
        objectName: "minArea"
        Layout.fillWidth: true
        label: qsTr("Min Area")
        tooltipText: qsTr("Kleinste bzw. größte erlaubte Pixelfläche eines erkannten Punkts.")
        from: 1
        to: 100000
        editable: true
        enabled: ViewModel.blobFilterArea
        value: ViewModel.blobMinArea
        onMoved: newValue => { ViewModel.blobMinArea = newValue; }
    }

    SettingsSlider {
        objectName: "maxArea"
        Layout.fillWidth: true
        label: qsTr("Max Area")
        tooltipText: qsTr("Kleinste bzw. größte erlaubte Pixelfläche eines erkannten Punkts.")
        from: 2
        to: 1000000
        editable: true
        enabled: ViewModel.blobFilterArea
        value: ViewModel.blobMaxArea
        onMoved: newValue => { ViewModel.blobMaxArea = newValue; }
    }

    HelpSwitch {
        objectName: "filterCircularity"
        label: qsTr("Filter Circularity")
        tooltipText: qsTr("Filtert nach Rundheit. Verhindert dass kantige oder unförmige Flecken erkannt werden.")
        checked: ViewModel.blobFilterCircularity
        onChosen: checked => { ViewModel.blobFilterCircularity = checked; }
    }

    SettingsSlider {
        objectName: "minCircularity"
        Layout.fillWidth: true
        label: qsTr("Min Circularity")
        tooltipText: qsTr("Wie rund ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt rund. Falls keine Zentriermarken erkannt werden, kann dieser Regler etwas verkleinert werden — z.B. auf 85.")
        editable: true
        enabled: ViewModel.blobFilterCircularity
        value: ViewModel.blobMinCircularity * 100
        onMoved: newValue => { ViewModel.blobMinCircularity = newValue / 100.0; }
    }

    HelpSwitch {
        objectName: "filterInertia"
        label: qsTr("Filter Inertia")
        tooltipText: qsTr("Filtert nach Form-Symmetrie. Schließt langgestreckte oder elliptische Flecken aus.")
        checked: ViewModel.blobFilterInertia
        onChosen: checked => { ViewModel.blobFilterInertia = checked; }
    }

    SettingsSlider {
        objectName: "minInertia"
        Layout.fillWidth: true
        label: qsTr("Min Inertia")
        tooltipText: qsTr("Wie symmetrisch ein Punkt mindestens sein muss. 0 = beliebig, 100 = perfekt symmetrisch.")
        editable: true
        enabled: ViewModel.blobFilterInertia
        value: ViewModel.blobMinInertiaRatio * 100
        onMoved: newValue => { ViewModel.blobMinInertiaRatio = newValue / 100.0; }
    }
}
