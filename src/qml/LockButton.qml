import Meridax

/// The padlock of the image centre. The lock belongs to the calibration and not to the stream: a
/// locked centre shows its lock also without a camera, where it cannot be opened.
RoundIconButton {
    implicitWidth: 26
    implicitHeight: 26
    visible: ViewModel.running || ViewModel.locked
    enabled: ViewModel.running
    opacity: enabled ? 1 : 0.4
    toolTip: ViewModel.locked ? qsTr("Zentrum gesperrt – klicken zum Entsperren")
                              : qsTr("Zentrum entsperrt – klicken zum Sperren")
    icon.source: ViewModel.locked ? "qrc:/resources/icon_lock.svg"
                                  : "qrc:/resources/icon_lock_open.svg"
    icon.color: ViewModel.locked ? "#E53935" : "#888888"
    onClicked: ViewModel.locked ? ViewModel.unlockCalibration() : ViewModel.lockCalibration()
}
