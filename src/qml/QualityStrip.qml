import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// How far the measured centre can be trusted, and what the form of the path says.
///
/// It does not rate the scatter of the radii: that is the roundness of the path and thus the form of
/// the part. What counts is the uncertainty of the centre, which the user goes on to use.
Rectangle {
    id: root

    required property bool assessable
    /// 0 (best) to 3.
    required property int level
    /// Uncertainty of the centre, px.
    required property real centerSigma
    /// Largest gap between neighbouring points, degrees; 0 or less when not known.
    required property real coverageGap
    required property bool coveragePoor
    /// Order of the strongest form component; 0 for none.
    required property int formOrder
    /// Its amplitude, px.
    required property real formAmplitude
    default property alias details: column.data

    readonly property var levelText: [qsTr("exzellent"), qsTr("gut"), qsTr("brauchbar"),
                                      qsTr("ungenau")]
    readonly property var levelColor: ["#4CAF50", "#8BC34A", "#F57F17", "#E53935"]

    function orderName(order: int): string {
        switch (order) {
        case 2: return qsTr("oval");
        case 3: return qsTr("Dreikant");
        case 4: return qsTr("Vierkant");
        default: return qsTr("%1-Kant").arg(order);
        }
    }

    function formCause(order: int): string {
        switch (order) {
        case 2:
            return qsTr("Die Bahn ist oval (2. Ordnung). Typische Ursachen: gekippte Rotationsachse oder unrunde Passung.");
        case 3:
            return qsTr("Die Bahn zeigt einen Dreikant (3. Ordnung) — die klassische Signatur eines Bauteils, das im Dreibacken-Futter gespannt und gedreht wurde.");
        case 4:
            return qsTr("Die Bahn zeigt einen Vierkant (4. Ordnung) — typisch für ein Vierbacken-Futter oder eine geschlitzte Spannzange.");
        case 5:
        case 6:
            return qsTr("Die Bahn zeigt einen %1-Kant (%1. Ordnung) — meist von der Spannvorrichtung, etwa einer Spannzange mit %1 Schlitzen.").arg(order);
        default:
            return qsTr("Die Bahn zeigt eine Welligkeit %1. Ordnung — bei so hohen Ordnungen meist Rattermarken aus der Bearbeitung.").arg(order);
        }
    }

    /// The first situation that applies decides.
    function assessment(isAssessable: bool, isCoveragePoor: bool, order: int): string {
        if (!isAssessable)
            return qsTr("Mit weniger als fünf Messpunkten lässt sich die Genauigkeit nicht beziffern: Formabweichungen sind nicht von Messrauschen zu trennen und verschieben den Mittelpunkt unbemerkt. Das Zentrum ist als Näherung verwendbar.");
        if (isCoveragePoor)
            return qsTr("Die Messpunkte decken den Umlauf nicht gleichmäßig ab — bitte über den vollen Kreis verteilen. Formfehler mitteln sich sonst nicht heraus.");
        if (order <= 0)
            return qsTr("Die Streuung ist zufällig verteilt — mehr Frames pro Position oder mehr Messpunkte verbessern das Ergebnis.");
        // True from the second order up: symmetric lobing cancels over a full turn.
        return formCause(order) + " " + qsTr("Das ist Form, kein Messfehler: neu messen ändert daran nichts, und der Mittelpunkt bleibt davon unberührt.");
    }

    implicitHeight: column.implicitHeight + 16
    radius: 4
    color: Theme.tableBg

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 8
        spacing: 6

        Label {
            text: qsTr("Messgüte")
            font.pixelSize: 12
            font.bold: true
            color: Theme.text
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        GridLayout {
            columns: 2
            columnSpacing: 16
            rowSpacing: 4

            FigureCaption { text: qsTr("Zentrum ±") }
            FigureValue {
                objectName: "sigmaValue"
                text: root.assessable
                      ? "%1 px  (%2)".arg(root.centerSigma.toFixed(2)).arg(root.levelText[root.level])
                      : qsTr("n. def.")
                color: root.assessable ? root.levelColor[root.level] : Theme.textMuted
            }

            FigureCaption { text: qsTr("Winkelabdeckung") }
            FigureValue {
                objectName: "coverageValue"
                text: root.coverageGap <= 0
                      ? "—" : qsTr("größte Lücke %1°").arg(root.coverageGap.toFixed(0))
                color: root.coveragePoor ? "#E53935" : Theme.text
            }

            FigureCaption {
                text: qsTr("Rundheit")
                visible: root.formOrder > 0
            }
            FigureValue {
                objectName: "roundnessValue"
                visible: root.formOrder > 0
                text: "%1  %2 px".arg(root.orderName(root.formOrder))
                                 .arg(root.formAmplitude.toFixed(2))
            }
        }

        Label {
            objectName: "assessmentText"
            Layout.fillWidth: true
            text: root.assessment(root.assessable, root.coveragePoor, root.formOrder)
            font.pixelSize: 11
            wrapMode: Text.WordWrap
            color: Theme.textMuted
        }
    }
}
