import QtQuick
import QtQuick.Layouts
import Meridax

/// The image centre, the offset of the marks from it, and the zoom of the picture.
ColumnLayout {
    id: root

    // The user's scale of 0 to 100 maps linearly to these.
    property real zoomMin: 1.0
    property real zoomMax: 5.0

    spacing: 4

    SettingsSlider {
        objectName: "centerXSlider"
        Layout.fillWidth: true
        label: qsTr("Zentrum X")
        tooltipText: qsTr("X-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).")
        accentColor: "#E53935"
        decimals: 2
        editable: true
        enabled: !ViewModel.locked
        to: ViewModel.resolutionX > 0 ? ViewModel.resolutionX : 10000
        value: ViewModel.centerX
        onMoved: newValue => { ViewModel.centerX = newValue; }
    }

    SettingsSlider {
        objectName: "centerYSlider"
        Layout.fillWidth: true
        label: qsTr("Zentrum Y")
        tooltipText: qsTr("Y-Position des Bildmittelpunkts in Pixeln. Bezugspunkt für alle Overlay-Kreise und das Fadenkreuz. Hier können auch Zentrierwerte anderer Hersteller eingegeben werden (bspw. OCAL).")
        accentColor: "#E53935"
        decimals: 2
        editable: true
        enabled: !ViewModel.locked
        to: ViewModel.resolutionY > 0 ? ViewModel.resolutionY : 10000
        value: ViewModel.centerY
        onMoved: newValue => { ViewModel.centerY = newValue; }
    }

    HelpSwitch {
        objectName: "offsetSwitch"
        label: qsTr("Offset")
        tooltipText: qsTr("Verschiebt die Overlays relativ zum Bildmittelpunkt — z.B. wenn die Optik nicht zentriert auf dem Sensor sitzt. Nicht nötig wenn die Kamera mit Optik kalibriert wurde — dann sollten die Werte 0 sein.")
        checked: ViewModel.offsetEnabled
        onChosen: checked => { ViewModel.offsetEnabled = checked; }
    }

    SettingsSlider {
        objectName: "offsetXSlider"
        Layout.fillWidth: true
        label: qsTr("Offset X")
        tooltipText: qsTr("Horizontale bzw. vertikale Verschiebung der Overlays gegen das Zentrum, in Pixeln.")
        from: -1000
        to: 1000
        editable: true
        enabled: ViewModel.offsetEnabled
        value: ViewModel.offsetX
        onMoved: newValue => { ViewModel.offsetX = newValue; }
    }

    SettingsSlider {
        objectName: "offsetYSlider"
        Layout.fillWidth: true
        label: qsTr("Offset Y")
        tooltipText: qsTr("Horizontale bzw. vertikale Verschiebung der Overlays gegen das Zentrum, in Pixeln.")
        from: -1000
        to: 1000
        editable: true
        enabled: ViewModel.offsetEnabled
        value: ViewModel.offsetY
        onMoved: newValue => { ViewModel.offsetY = newValue; }
    }

    SettingsSlider {
        objectName: "zoomSlider"
        Layout.fillWidth: true
        label: qsTr("Zoom")
        tooltipText: qsTr("Bildvergrößerung in der Anzeige. 0 = volle Höhe ohne Beschneidung, 100 = maximaler Zoom. Mausrad und Pinch zoomen parallel.")
        editable: true
        value: (ViewModel.zoom - root.zoomMin) / (root.zoomMax - root.zoomMin) * 100
        onMoved: newValue => {
            ViewModel.zoom = root.zoomMin + newValue / 100 * (root.zoomMax - root.zoomMin);
        }
    }
}
