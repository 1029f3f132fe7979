import QtQuick
import QtQuick.Layouts
import Meridax

/// The picture properties of the camera.
ColumnLayout {
    id: root

    // Read anew with the camera's settings: a newly detected range is announced with these.
    property int _focusMin: 0
    property int _focusMax: 0

    readonly property string _exposureTime: {
        const ms = ViewModel.exposureSupported ? ViewModel.exposureTimeMs : 0;
        return ms > 0 ? qsTr("Eingestellt: %1 ms.").arg(ms.toFixed(ms < 10 ? 1 : 0)) : "";
    }

    function _readFocusRange() {
        _focusMin = ViewModel.focusRangeMin;
        _focusMax = ViewModel.focusRangeMax;
    }

    spacing: 4

    Component.onCompleted: _readFocusRange()

    Connections {
        target: ViewModel

        function onCameraSettingsChanged() { root._readFocusRange(); }
        function onCameraListChanged() { root._readFocusRange(); }
    }

    CameraControlSlider {
        objectName: "exposureSlider"
        Layout.fillWidth: true
        label: qsTr("Belichtung")
        tooltipText: [
            qsTr("Wie lange der Sensor pro Frame Licht sammelt. Länger = heller, aber empfindlicher für Bewegung. AUTO = Treiber wählt selbst."),
            root._exposureTime
        ].filter(text => text !== "").join(" ")
        supported: ViewModel.exposureSupported
        canAuto: ViewModel.exposureCanAuto
        rangeMin: ViewModel.exposureRangeMin
        rangeMax: ViewModel.exposureRangeMax
        rangeStep: ViewModel.exposureRangeStep
        fallbackMin: -6
        fallbackMax: 6
        value: ViewModel.exposure
        onChosen: newValue => { ViewModel.exposure = newValue; }
    }

    CameraControlSlider {
        objectName: "brightnessSlider"
        Layout.fillWidth: true
        label: qsTr("Helligkeit")
        tooltipText: qsTr("Verschiebt das ganze Bild heller oder dunkler, ohne die Belichtung zu ändern. Praktisch um Schatten anzuheben.")
        supported: ViewModel.brightnessSupported
        canAuto: ViewModel.brightnessCanAuto
        rangeMin: ViewModel.brightnessRangeMin
        rangeMax: ViewModel.brightnessRangeMax
        rangeStep: ViewModel.brightnessRangeStep
        fallbackMin: -128
        fallbackMax: 128
        value: ViewModel.brightness
        onChosen: newValue => { ViewModel.brightness = newValue; }
    }

    CameraControlSlider {
        objectName: "contrastSlider"
        Layout.fillWidth: true
        label: qsTr("Kontrast")
        tooltipText: qsTr("Spreizt helle und dunkle Bereiche auseinander. Feine Strukturen werden sichtbarer, das Rauschen aber auch.")
        supported: ViewModel.contrastSupported
        canAuto: ViewModel.contrastCanAuto
        rangeMin: ViewModel.contrastRangeMin
        rangeMax: ViewModel.contrastRangeMax
        rangeStep: ViewModel.contrastRangeStep
        value: ViewModel.contrast
        onChosen: newValue => { ViewModel.contrast = newValue; }
    }

    CameraControlSlider {
        objectName: "saturationSlider"
        Layout.fillWidth: true
        label: qsTr("Sättigung")
        tooltipText: qsTr("Wie kräftig die Farben sind. 0 = Schwarz-Weiß, hoch = bunter. Hat keinen Effekt auf Mono-Kameras.")
        supported: ViewModel.saturationSupported
        canAuto: ViewModel.saturationCanAuto
        rangeMin: ViewModel.saturationRangeMin
        rangeMax: ViewModel.saturationRangeMax
        rangeStep: ViewModel.saturationRangeStep
        value: ViewModel.saturation
        onChosen: newValue => { ViewModel.saturation = newValue; }
    }

    CameraControlSlider {
        objectName: "gainSlider"
        Layout.fillWidth: true
        visible: supported
        label: qsTr("Gain")
        tooltipText: qsTr("Verstärkt das Sensorsignal nach der Belichtung. Heller bei kurzer Belichtung, dafür mehr Rauschen — entspricht 'ISO' bei Astrokameras.")
        supported: ViewModel.gainSupported
        canAuto: ViewModel.gainCanAuto
        rangeMin: ViewModel.gainRangeMin
        rangeMax: ViewModel.gainRangeMax
        rangeStep: ViewModel.gainRangeStep
        value: ViewModel.gain
        onChosen: newValue => { ViewModel.gain = newValue; }
    }

    SettingsSlider {
        readonly property string _automatic: qsTr("AF")

        objectName: "focusSlider"
        Layout.fillWidth: true
        label: qsTr("Fokus")
        tooltipText: qsTr("Stellt die Linse manuell ein. Bei den meisten USB-Webcams: Wert 0 = Autofokus.")
        editable: true
        from: root._focusMin
        // A cap of this slider alone, for cameras that tell no maximum.
        to: root._focusMax > 0 ? root._focusMax : 1000
        // Which values are automatic is known of a camera that tells of its focus.
        zeroLabel: ViewModel.focusSupported && !ViewModel.focusCanAuto ? "" : _automatic
        atMinLabel: ViewModel.focusSupported && ViewModel.focusCanAuto ? _automatic : ""
        value: ViewModel.focusValue
        onMoved: newValue => { ViewModel.focusValue = Math.round(newValue); }
    }
}
