import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax
import "contrast.mjs" as Contrast

/// The bar at the top of the window: maker, camera, state of the connection, start and stop.
Rectangle {
    id: topBar

    readonly property string cameraText: ViewModel.frameInfo === ""
                                         ? ViewModel.selectedCameraName
                                         : "%1  (%2)".arg(ViewModel.selectedCameraName)
                                                     .arg(ViewModel.frameInfo)
    readonly property string connectionText: {
        if (ViewModel.running && ViewModel.connected)
            return qsTr("Kamera verbunden");
        if (ViewModel.status !== "")
            return qsTranslate("meridax::CameraController", ViewModel.status);
        return qsTr("Kamera nicht verbunden");
    }

    /// The settings are to be shown.
    signal settingsRequested()

    implicitHeight: 90
    color: Theme.topBarBg

    InputShield {}

    RowLayout {
        anchors {
            fill: parent
            margins: 16
        }
        spacing: 10

        MakerLogo {
            id: makerLogo

            logoHeight: 56
        }

        BarSeparator {
            visible: makerLogo.visible
            color: Theme.separatorLine
        }

        Label {
            text: "Meridax"
            font {
                pixelSize: 18
                bold: true
            }
            color: Theme.text
        }

        Label {
            visible: cameraLabel.visible
            text: "|"
            color: Theme.dividerMid
            Accessible.ignored: true
        }

        Label {
            id: cameraLabel

            objectName: "cameraLabel"
            visible: ViewModel.selectedCameraName !== ""
            text: topBar.cameraText
            textFormat: Text.PlainText
            font.pixelSize: 13
            color: ViewModel.running ? Theme.text : Theme.textMuted
            elide: Text.ElideRight
            Layout.fillWidth: true
            Layout.maximumWidth: Math.min(380, Math.ceil(implicitWidth))
        }

        BarSeparator {
            visible: ViewModel.running
            color: Theme.dividerStrong
        }

        Rectangle {
            visible: ViewModel.running
            implicitWidth: 12
            implicitHeight: 12
            radius: 6
            color: ViewModel.calibrated ? "#4CAF50" : "#F44336"
        }

        LiveLabel {
            objectName: "calibrationLabel"
            visible: ViewModel.running
            text: ViewModel.calibrated ? qsTr("Kalibriert") : qsTr("Nicht kalibriert")
            font.pixelSize: 12
            color: ViewModel.calibrated ? "#4CAF50" : Theme.textMuted
        }

        Item {
            Layout.fillWidth: true
        }

        SettingsLink {
            objectName: "settingsButton"
            onClicked: topBar.settingsRequested()
        }

        BarSeparator {
            implicitHeight: 20
            color: Theme.dividerStrong
        }

        LiveLabel {
            objectName: "connectionLabel"
            text: topBar.connectionText
            textFormat: Text.PlainText
            font.pixelSize: 12
            color: ViewModel.running ? Theme.text : Theme.textMuted
            elide: Text.ElideRight
            Layout.fillWidth: true
            // Beside the pill a narrow window has less to give; nothing is wrong then.
            Layout.minimumWidth: Math.min(ViewModel.calibrationActive ? 60 : 130,
                                          Math.ceil(implicitWidth))
            Layout.maximumWidth: Math.min(260, Math.ceil(implicitWidth))
        }

        Rectangle {
            objectName: "blobPill"
            visible: ViewModel.calibrationActive
            implicitWidth: blobLabel.implicitWidth + 20
            implicitHeight: 26
            radius: 13
            color: ViewModel.blobCount === 1 ? "#388E3C" : "#B71C1C"

            Label {
                id: blobLabel

                objectName: "blobLabel"
                anchors.centerIn: parent
                text: ViewModel.blobCount === 1 ? qsTr("1 Blob ✓")
                                                : qsTr("%1 Blobs").arg(ViewModel.blobCount)
                font.pixelSize: 11
                color: "#FFFFFF"
            }
        }

        Button {
            id: startStopButton

            objectName: "startStopButton"
            text: ViewModel.running ? qsTr("Stop") : qsTr("Start")
            // The plain colours in both themes: the dark theme's own shades are pale.
            Material.background: Material.color(ViewModel.running ? Material.Red : Material.Green)
            Material.foreground: Contrast.textOn(Material.background)
            Accessible.role: Accessible.Button
            Accessible.name: text
            Keys.onReturnPressed: event => event.isAutoRepeat || click()
            Keys.onEnterPressed: event => event.isAutoRepeat || click()
            onClicked: ViewModel.running ? ViewModel.stopCamera() : ViewModel.startCamera()

            FocusFrame {
                anchors {
                    topMargin: startStopButton.topInset - 3
                    bottomMargin: startStopButton.bottomInset - 3
                    leftMargin: -3
                    rightMargin: -3
                }
                radius: height / 2
                visible: startStopButton.visualFocus
            }
        }
    }
}
