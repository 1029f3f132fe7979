import QtQuick
import QtQuick.Controls.Material
import QtTest
import Meridax
import "qrc:/qt/qml/Meridax/src/qml" as Parts

TestCase {
    id: testCase

    name: "CalibrationPane"
    when: windowShown
    width: 400
    height: 1400
    visible: true

    property Item pane: null

    Component {
        id: paneComponent

        CalibrationPane {
            width: 400
        }
    }

    Component {
        id: blobComponent

        Parts.BlobParameters {
            width: 368
        }
    }

    Component {
        id: stripComponent

        Parts.QualityStrip {
            width: 368
            assessable: true
            level: 0
            centerSigma: 0.184
            coverageGap: 45.4
            coveragePoor: false
            formOrder: 0
            formAmplitude: 0
        }
    }

    function initTestCase() {
        verify(!ViewModel.running);
    }

    function init() {
        failOnWarning(/.?/);
        ViewModel.calibrationPositions = 8;
        ViewModel.setSectionCollapsed("blobParams", false);
        blobs(0, false);
        pane = createTemporaryObject(paneComponent, testCase);
        verify(waitForRendering(pane));
    }

    function cleanup() {
        ViewModel.cancelCalibration();
        ViewModel.discardPendingCenter();
    }

    function part(name: string): Item {
        const found = findChild(pane, name);
        verify(found, `no part ${name}`);
        return found;
    }

    // What the engine reports comes as the controller's signals.
    function blobs(count: int, inSector: bool) {
        ViewModel.controller.blobsDetected(count);
        ViewModel.controller.blobInSectorChanged(inSector);
    }

    function capture(count: int) {
        for (let i = 0; i < count; ++i)
            ViewModel.controller.blobMeasurementCaptured(Qt.point(100.25 + i, 200), i);
    }

    function finish(count: int, stdDev: real, sigma: real) {
        capture(count);
        ViewModel.controller.calibrationFitDetails(count, 402.5, stdDev);
        ViewModel.controller.calibrationQualityDetails(sigma, 360 / count, 3, 0.8);
        ViewModel.controller.calibrationCompleted(Qt.point(1651.204, 1210.8));
    }

    function test_withoutCamera() {
        verify(!pane.controlsEnabled);
        for (const name of ["positionsRow", "framesRow", "calibrationStartButton", "filterArea"])
            verify(!part(name).enabled, name);
        for (const name of ["positionCounter", "measureButton", "calibrationHint",
                            "pointsSection", "fitSection", "qualityStrip"])
            verify(!part(name).visible, name);

        const chevron = findChild(part("blobSection"), "chevron");
        mouseClick(chevron);
        verify(!part("blobSection").expanded);
        mouseClick(chevron);
        verify(part("blobSection").expanded);
    }

    function test_contentHeightFollowsTheContent() {
        const folded = pane.implicitHeight;
        compare(pane.contentHeight + 2 * pane.padding, folded);
        finish(8, 0.4, 0.1);
        tryVerify(() => pane.implicitHeight > folded + 300);
        compare(pane.contentHeight + 2 * pane.padding, pane.implicitHeight);
    }

    function test_fewPositionsWarning() {
        verify(!part("fewPositionsWarning").visible);
        ViewModel.calibrationPositions = 6;
        verify(!part("fewPositionsWarning").visible);
        ViewModel.calibrationPositions = 5;
        verify(part("fewPositionsWarning").visible);
    }

    function test_positionCounterStaysAtTheLast() {
        ViewModel.calibrationPositions = 3;
        ViewModel.startCalibration();
        compare(part("calibrationStartButton").text, "Kalibrierung läuft…");
        compare(part("positionCounter").text, "Position 1 von 3");
        capture(2);
        compare(part("positionCounter").text, "Position 3 von 3");
        capture(1);
        compare(part("positionCounter").text, "Position 3 von 3");
    }

    function test_hint_data() {
        return [
            { tag: "ready", count: 1, inSector: true, color: "#4a9eca", ready: true,
              text: "✓ Blob im Sektor – bereit zum Messen" },
            { tag: "elsewhere", count: 1, inSector: false, text: "⟳ Kamera auf Sektor drehen" },
            { tag: "none", count: 0, inSector: false, text: "⚠ Kein Blob sichtbar" },
            { tag: "two", count: 2, inSector: true, text: "2 Blobs – bitte einen wählen" }
        ];
    }

    function test_hint(data) {
        pane.Material.accent = "#4A9ECA";
        ViewModel.startCalibration();
        blobs(data.count, data.inSector);
        compare(part("calibrationHint").text, data.text);
        compare(part("calibrationHint").color, data.color ?? "#f57f17");
        compare(part("measureButton").armed, data.ready ?? false);
        tryCompare(part("measureButton"), "color", data.ready ? "#4caf50" : "#2e3a2e");
    }

    Component {
        id: adviceLine

        Parts.BlobAdviceLine {
            property int clicks: 0

            applied: false
            onAccepted: ++clicks
        }
    }

    function test_advice_data() {
        const tag = (area, shortfalls) => ({ points: [], centre: Qt.point(0, 0), radius: 5,
                                             area: area, darkness: 14, shortfalls: shortfalls });
        const candidate = (...shortfalls) => ({ kind: "candidate", tags: [tag(132, shortfalls)] });
        return [
            { tag: "round", text: "Nächster Kandidat: Rundheit 84 % (mindestens 90 %)",
              advice: candidate({ filter: 2, value: 0.849, limit: 0.9 }) },
            { tag: "small and oblique", advice: candidate({ filter: 0, value: 132, limit: 500 },
                                                          { filter: 3, value: 0.67, limit: 0.95 }),
              text: "Nächster Kandidat: zu klein: 132 px² (mindestens 500), "
                    + "Symmetrie 67 % (mindestens 95 %)" },
            { tag: "faint", advice: candidate(),
              text: "Nächster Kandidat: zu schwacher Kontrast: 14 Stufen" },
            { tag: "two", text: "2 Blobs: 512 px² und 18\u202f400 px²",
              advice: { kind: "several", blobs: 2, tags: [tag(18400, []), tag(512, [])] } },
            { tag: "many", text: "1\u202f000 Blobs: 50 px² bis 60 px²",
              advice: { kind: "several", blobs: 1000, smallestArea: 50, largestArea: 60,
                        tags: [tag(50, []), tag(51, [])] } },
            { tag: "flicker", text: "Blob flackert: Rundheit 88–93 %",
              advice: { kind: "flicker", flickerLow: 0.881, flickerHigh: 0.932,
                        tags: [tag(700, [{ filter: 2, value: 0.88, limit: 0.9 }])] } },
            { tag: "fault", advice: { kind: "fault", fault: 0 }, text: "Das Bild ist zu dunkel." },
            { tag: "nothing", advice: {}, text: "" }
        ];
    }

    function test_advice(data) {
        const line = createTemporaryObject(adviceLine, testCase, { advice: data.advice });
        compare(findChild(line, "blobAdviceText").text, data.text);
        verify(!findChild(line, "applyBlobAdvice").visible);
    }

    function test_adviceOffersItsValues() {
        const line = createTemporaryObject(adviceLine, testCase, {
            advice: { kind: "fault", fault: 0,
                      changes: [{ filter: 2, value: 0.9, limit: 0.81 }] } });
        const button = findChild(line, "applyBlobAdvice");
        verify(button.visible);
        compare(findChild(line, "blobAdviceChanges").text, "Min Circularity 90 → 81");
        button.forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(line.clicks, 1);
    }

    function test_measuring_data() {
        return [
            { tag: "click", act: button => mouseClick(button) },
            { tag: "space", act: button => { button.forceActiveFocus(); keyClick(Qt.Key_Space); } },
            { tag: "return",
              act: button => { button.forceActiveFocus(); keyClick(Qt.Key_Return); } }
        ];
    }

    function test_measuring(data) {
        const button = part("measureButton");
        ViewModel.startCalibration();
        tryVerify(() => button.width > 100);
        data.act(button);
        verify(!ViewModel.measureInProgress);

        blobs(1, true);
        data.act(button);
        tryCompare(ViewModel, "measureInProgress", true);
        verify(!part("calibrationHint").visible);
        ViewModel.controller.measureProgressChanged(2, 4);
        compare(button.Accessible.name, "Position messen"); // no frame is told
        tryCompare(part("measureFill"), "width", button.width / 2);
        tryCompare(button, "color", "#1b5e20");

        mouseClick(part("cancelCalibrationButton"));
        verify(!ViewModel.calibrationActive);
        tryCompare(ViewModel, "measureInProgress", false);
    }

    function test_pointsTable() {
        capture(3);
        verify(part("pointsSection").visible);
        const table = findChild(part("pointsSection"), "pointsTable");
        compare(table.height, 3 * 24 + 36);
        const row = findChild(table, "pointRow2");
        tryVerify(() => row.visible);
        compare([row.stepText, row.xText, row.yText], ["2", "101.3", "200.0"]);
    }

    function test_fitFigures_data() {
        return [
            { tag: "few", count: 4, stdDev: 0, text: "n. def." },
            { tag: "very good", count: 8, stdDev: 0.4996, text: "0.500 px", color: "#4caf50" },
            { tag: "good", count: 8, stdDev: 0.5, text: "0.500 px", color: "#8bc34a" },
            { tag: "fair", count: 8, stdDev: 1, text: "1.000 px", color: "#f57f17" },
            { tag: "bad", count: 8, stdDev: 3, text: "3.000 px", color: "#e53935" }
        ];
    }

    function test_fitFigures(data) {
        finish(data.count, data.stdDev, 0.1);
        compare(part("fitSection").title, `Taubin-Fit (${data.count} Punkte)`);
        compare(part("centerValue").text, "1651.20  /  1210.80");
        compare(part("stdDevValue").text, data.text);
        compare(part("stdDevValue").color, data.color ?? Theme.textMuted);
        compare(part("sigmaValue").text, data.count > 4 ? "0.10 px  (exzellent)" : "n. def.");
    }

    function test_qualityFigures_data() {
        return [
            { tag: "excellent", properties: {}, sigma: "0.18 px  (exzellent)", color: "#4caf50",
              coverage: "größte Lücke 45°" },
            { tag: "poor coverage", properties: { level: 2, coveragePoor: true,
                                                  coverageGap: 180.6 },
              sigma: "0.18 px  (brauchbar)", color: "#f57f17", coverage: "größte Lücke 181°" },
            { tag: "not assessable", properties: { assessable: false, level: 3, coverageGap: 0,
                                                   formOrder: 3, formAmplitude: 0.804 },
              sigma: "n. def.", coverage: "—", form: "Dreikant  0.80 px" },
            { tag: "order 2", properties: { formOrder: 2 }, form: "oval  0.00 px" },
            { tag: "order 4", properties: { formOrder: 4 }, form: "Vierkant  0.00 px" },
            { tag: "order 7", properties: { formOrder: 7 }, form: "7-Kant  0.00 px" }
        ];
    }

    function test_qualityFigures(data) {
        const strip = createTemporaryObject(stripComponent, testCase, data.properties);
        if (data.sigma) {
            compare(findChild(strip, "sigmaValue").text, data.sigma);
            compare(findChild(strip, "sigmaValue").color, data.color ?? Theme.textMuted);
            compare(findChild(strip, "coverageValue").text, data.coverage);
            compare(findChild(strip, "coverageValue").color,
                    strip.coveragePoor ? "#e53935" : Theme.text);
        }
        compare(findChild(strip, "roundnessValue").visible, data.form !== undefined);
        compare(findChild(strip, "roundnessValue").text, data.form ?? "0-Kant  0.00 px");
    }

    function test_assessment_data() {
        return [
            { tag: "not assessable before all", properties: { assessable: false,
                                                              coveragePoor: true, formOrder: 3 },
              begins: "Mit weniger als fünf Messpunkten" },
            { tag: "coverage before form", properties: { coveragePoor: true, formOrder: 3 },
              begins: "Die Messpunkte decken den Umlauf" },
            { tag: "random", properties: {}, begins: "Die Streuung ist zufällig verteilt" },
            { tag: "order 2", properties: { formOrder: 2 }, begins: "Die Bahn ist oval (2." },
            { tag: "order 3", properties: { formOrder: 3 },
              begins: "Die Bahn zeigt einen Dreikant (3." },
            { tag: "order 4", properties: { formOrder: 4 },
              begins: "Die Bahn zeigt einen Vierkant (4." },
            { tag: "order 6", properties: { formOrder: 6 },
              begins: "Die Bahn zeigt einen 6-Kant (6. Ordnung) — meist von der "
                      + "Spannvorrichtung, etwa einer Spannzange mit 6 Schlitzen. Das ist Form" },
            { tag: "order 7", properties: { formOrder: 7 },
              begins: "Die Bahn zeigt eine Welligkeit 7. Ordnung" }
        ];
    }

    function test_assessment(data) {
        const strip = createTemporaryObject(stripComponent, testCase, data.properties);
        const text = findChild(strip, "assessmentText").text;
        verify(text.startsWith(data.begins), text);
        compare(text.endsWith(" und der Mittelpunkt bleibt davon unberührt."),
                data.tag.startsWith("order"));
    }

    function test_blobParameters_data() {
        const row = (name, property, from, to, unit, filter) => ({
            tag: name, property: property, from: from, to: to, unit: unit, filter: filter
        });
        return [
            row("minThreshold", "blobMinThreshold", 1, 254, 1),
            row("maxThreshold", "blobMaxThreshold", 2, 255, 1),
            row("minArea", "blobMinArea", 1, 100000, 1, "Area"),
            row("maxArea", "blobMaxArea", 2, 1000000, 1, "Area"),
            row("minCircularity", "blobMinCircularity", 0, 100, 0.01, "Circularity"),
            row("minInertia", "blobMinInertiaRatio", 0, 100, 0.01, "Inertia")
        ];
    }

    function test_blobParameters(data) {
        const parameters = createTemporaryObject(blobComponent, testCase);
        const slider = findChild(parameters, data.tag);
        compare([slider.from, slider.to, slider.stepSize], [data.from, data.to, 1]);
        const before = ViewModel[data.property];
        for (const shown of [77, 78]) {
            slider.moved(shown);
            fuzzyCompare(ViewModel[data.property], shown * data.unit, 1e-9);
            fuzzyCompare(slider.value, shown, 1e-9);
        }
        ViewModel[data.property] = before;
        for (const filter of ["Area", "Circularity", "Inertia"]) {
            mouseClick(findChild(findChild(parameters, `filter${filter}`), "switch"));
            verify(!ViewModel[`blobFilter${filter}`], filter);
            compare(slider.enabled, filter !== data.filter, filter);
            ViewModel[`blobFilter${filter}`] = true;
        }
    }

    function test_withCamera() {
        ViewModel.startCamera();
        tryCompare(ViewModel, "running", true, 20000);
        for (const name of ["positionsRow", "framesRow", "calibrationStartButton", "filterArea"])
            verify(part(name).enabled, name);

        const positions = findChild(part("positionsRow"), "spinBox");
        positions.forceActiveFocus();
        keyClick(Qt.Key_Up);
        compare(ViewModel.calibrationPositions, 9);

        mouseClick(part("calibrationStartButton"));
        verify(ViewModel.calibrationActive);
        verify(!part("calibrationStartButton").enabled);
        ViewModel.stopCamera();
        tryCompare(ViewModel, "running", false);
    }
}
