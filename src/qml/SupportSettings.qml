import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// The installed version and the ways to reach the support.
ColumnLayout {
    id: root

    signal bugRequested()
    signal featureRequested()
    signal feedbackRequested()

    spacing: 6

    RowLayout {
        spacing: 8

        SectionLabel {
            text: qsTr("Support & Feedback")
        }

        BetaTag {
            objectName: "betaTesterTag"
            visible: ViewModel.isBetaTester
            text: qsTr("BETA-TESTER")
        }
    }

    Label {
        objectName: "supportLabel"
        text: ViewModel.isBetaTester
              ? qsTr("Du bist als Beta-Tester freigeschaltet — danke fürs Testen!")
              : qsTr("Probleme? Feedback? Wir hören zu — schick uns einen Bug-Report.")
        font.pixelSize: 13
        color: Theme.text
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    Label {
        objectName: "versionLabel"
        text: (ViewModel.appVersion.includes("beta")
               ? qsTr("Aktuell installierte Version: %1 (Beta).")
               : qsTr("Aktuell installierte Version: %1.")).arg(ViewModel.appVersion)
        font.pixelSize: 11
        color: Theme.textMuted
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }

    RowLayout {
        spacing: 10
        Layout.topMargin: 4
        Layout.fillWidth: true

        SupportButton {
            objectName: "bugButton"
            text: qsTr("Bug")
            color: "#E53935"
            available: ViewModel.bugReportsEnabled
            pausedHint: qsTr("Bug-Reports sind serverseitig vorübergehend deaktiviert.")
            onClicked: root.bugRequested()
        }

        SupportButton {
            objectName: "featureButton"
            text: qsTr("Feature")
            color: "#757575"
            available: ViewModel.featureRequestsEnabled
            pausedHint: qsTr("Feature-Vorschläge sind serverseitig vorübergehend deaktiviert.")
            onClicked: root.featureRequested()
        }

        SupportButton {
            objectName: "feedbackButton"
            text: qsTr("Feedback")
            color: "#43A047"
            onClicked: root.feedbackRequested()
        }

        Item {
            Layout.fillWidth: true
        }
    }
}
