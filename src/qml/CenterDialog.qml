import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Asks whether a measured centre becomes the centre of the overlay. Only Yes and No close it: a
/// whole calibration is too much to lose by a stray click.
Dialog {
    id: dialog

    /// The user wants the centre in the profile of the camera.
    property alias updateProfile: profileCheckBox.checked
    readonly property var verdicts: [
        { text: qsTr("Zentrum exzellent bestimmt"), color: "#4CAF50" },
        { text: qsTr("Zentrum gut bestimmt"), color: "#8BC34A" },
        { text: qsTr("Zentrum brauchbar — mehr Positionen empfohlen"), color: "#F57F17" },
        { text: qsTr("Zentrum ungenau — bitte neu messen"), color: "#E53935" }
    ]
    readonly property var verdict: ViewModel.qualityAssessable
                                   ? verdicts[ViewModel.qualityLevel]
                                   : { text: qsTr("Güte nicht bewertbar"), color: Theme.textMuted }

    parent: Overlay.overlay
    // Centred on whole pixels: on half ones text blurs and thin lines vanish.
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    width: 440
    height: Math.min(implicitHeight, parent.height - 32)
    modal: true
    focus: true
    closePolicy: Popup.NoAutoClose
    visible: ViewModel.hasPendingCenter
    title: qsTr("Kalibrierung abgeschlossen")
    Material.background: Theme.settingsPanelBg
    Overlay.modal: ModalDim {}
    standardButtons: Dialog.Yes | Dialog.No

    contentItem: Flickable {
        id: flickable

        objectName: "centerDialogContent"
        implicitHeight: column.implicitHeight
        contentWidth: width
        contentHeight: column.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        focus: true
        activeFocusOnTab: true

        Accessible.role: Accessible.Pane
        Accessible.name: dialog.title

        Keys.onUpPressed: scrollBar.decrease()
        Keys.onDownPressed: scrollBar.increase()

        // Beside the content: the width of the content must not depend on whether it scrolls.
        ScrollBar.vertical: ScrollBar {
            id: scrollBar

            parent: flickable.parent
            anchors {
                top: flickable.top
                bottom: flickable.bottom
                left: flickable.right
                leftMargin: 6
            }
            policy: flickable.contentHeight > flickable.height ? ScrollBar.AlwaysOn
                                                               : ScrollBar.AlwaysOff
            background: Item {}
            Accessible.ignored: true
            // Also tells whether the arrow keys scroll.
            contentItem: Rectangle {
                implicitWidth: 6
                radius: 3
                color: flickable.activeFocus ? scrollBar.Material.accentColor : Theme.textMuted
            }
        }

        ColumnLayout {
            id: column

            width: flickable.width
            spacing: 10

            Label {
                text: qsTr("Gemessenes Zentrum übernehmen?")
                font.pixelSize: 13
                wrapMode: Text.WordWrap
                Layout.fillWidth: true
            }

            Label {
                objectName: "elsewhereNote"
                visible: ViewModel.pendingCenterElsewhere
                text: qsTr("Gemessen mit %1. Das Zentrum gilt, sobald diese Kamera mit dieser "
                           + "Auflösung wieder gewählt ist.").arg(ViewModel.pendingCenterCamera)
                textFormat: Text.PlainText
                font.pixelSize: 13
                wrapMode: Text.WordWrap
                Layout.fillWidth: true
            }

            CenterFigures {
                visible: ViewModel.fitResultValid
                qualityColor: dialog.verdict.color
                Layout.fillWidth: true
            }

            LiveLabel {
                objectName: "verdictLabel"
                visible: ViewModel.fitResultValid
                text: dialog.verdict.text
                font {
                    pixelSize: 16
                    bold: true
                }
                color: dialog.verdict.color
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                Layout.fillWidth: true
            }

            Label {
                objectName: "fewPointsNote"
                visible: ViewModel.fitResultValid && ViewModel.fitPointCount <= 4
                text: qsTr("Mit drei oder vier Messpunkten schmiegt sich der Kreis so eng an die "
                           + "Punkte, dass Streuung und Genauigkeit nicht mehr aussagekräftig "
                           + "sind — eine Formabweichung verschiebt den Mittelpunkt dann "
                           + "unbemerkt. Das Zentrum ist als Näherung verwendbar. Für eine "
                           + "belastbare Bewertung bitte mit mindestens sechs Positionen messen.")
                font.pixelSize: 11
                wrapMode: Text.WordWrap
                Layout.fillWidth: true
            }

            ColumnLayout {
                visible: ViewModel.fitResultValid && ViewModel.measurements.length >= 3
                spacing: 10
                Layout.fillWidth: true

                Rectangle {
                    implicitHeight: 1
                    color: Theme.dividerMid
                    Layout.fillWidth: true
                }

                ResidualPlot {
                    Layout.fillWidth: true
                }

                Rectangle {
                    implicitHeight: 1
                    color: Theme.dividerMid
                    Layout.fillWidth: true
                }
            }

            ColumnLayout {
                spacing: 0
                Layout.fillWidth: true

                CheckBox {
                    id: profileCheckBox

                    objectName: "profileCheckBox"
                    leftPadding: 0
                    text: qsTr("Profil aktualisieren")
                    font.pixelSize: 13
                    enabled: ViewModel.pendingCenterCamera !== ""
                    Accessible.role: Accessible.CheckBox
                    Accessible.name: text
                    Accessible.description: profileNote.text

                    Keys.onReturnPressed: event => event.isAutoRepeat || click()
                    Keys.onEnterPressed: event => event.isAutoRepeat || click()

                    FocusFrame {
                        visible: profileCheckBox.visualFocus
                    }
                }

                Label {
                    id: profileNote

                    text: qsTr("Bildmitte ins Kamera-Profil speichern und beim nächsten Verbinden "
                               + "wiederherstellen.")
                    font.pixelSize: 11
                    color: Theme.textMuted
                    wrapMode: Text.WordWrap
                    Layout.fillWidth: true
                }
            }
        }
    }

    footer: DialogButtonBox {
        delegate: DialogButton { }
    }

    // The library takes its own texts from its own catalogue, which need not be there.
    Component.onCompleted: {
        standardButton(Dialog.Yes).text = Qt.binding(() => qsTr("Ja"));
        standardButton(Dialog.No).text = Qt.binding(() => qsTr("Nein"));
    }
    onAboutToShow: {
        flickable.contentY = 0;
        profileCheckBox.checked = true;
    }
    onRejected: ViewModel.discardPendingCenter()
}
