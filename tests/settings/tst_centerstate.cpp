#include "settings/CenterState.h"

#include <QTest>

#include <optional>

using namespace meridax;

namespace {

const QSize kSmall(640, 480);
const QSize kLarge(1280, 720);
const CenterPlace kHere{QStringLiteral("a"), kSmall};
const CenterPlace kLargeHere{QStringLiteral("a"), kLarge};
const CenterPlace kOther{QStringLiteral("b"), kSmall};
const QPointF kMiddle(320, 240);
const QPointF kHand(300, 200);
const QPointF kMeasured(311.5, 247.25);
const QPointF kOlder(305, 250);

const CenterEvent kAccept = CenterAccepted{kHere, kMeasured};
const CenterEvent kByHand = CenterSet{kHand};
const CenterEvent kStart = CenterStart{};
const CenterEvent kRun = CenterRun{};
const CenterEvent kStop = CenterStop{};

CenterEvent moved(const CenterPlace &place, bool cameraChosen = false)
{
    return CenterMoved{place, cameraChosen};
}

/// A start with a profile that says `stored` and restores the calibration if that is wanted.
CenterEvent restoring(const ResolutionCalibration &stored, bool calibration = true)
{
    return CenterStart{stored, calibration};
}

const ResolutionCalibration kNothing;
const ResolutionCalibration kStoredHand{290, 210, false};
const ResolutionCalibration kStoredMeasured{305, 250, true};
const QPointF kStoredHandPosition(290, 210);

} // namespace

Q_DECLARE_METATYPE(meridax::CenterEvent)

/// What becomes of centre, "calibrated" and lock at each event, and what a profile may take.
class TestCenterState : public QObject
{
    Q_OBJECT

private slots:
    void decisions_data()
    {
        QTest::addColumn<QList<CenterEvent>>("events");
        QTest::addColumn<QPointF>("position");
        QTest::addColumn<bool>("measured");
        QTest::addColumn<bool>("calibrated");
        QTest::addColumn<bool>("locked");
        enum : bool { no, yes };
        using Events = QList<CenterEvent>;
        const auto row = [](const char *name, const Events &events, const QPointF &position,
                            bool measured, bool calibrated, bool locked) {
            QTest::newRow(name) << events << position << measured << calibrated << locked;
        };
        row("accepted", {kAccept}, kMeasured, yes, yes, yes);
        row("set by hand: the lock is another matter", {kAccept, kByHand}, kHand, no, no, yes);

        // The start's restore.
        row("nothing stored", {kByHand, restoring(kNothing)}, kMiddle, no, no, no);
        row("nothing stored, measured stands", {kAccept, restoring(kNothing), kRun}, kMeasured, yes,
            yes, yes);
        row("stored by hand", {restoring(kStoredHand), kRun}, kStoredHandPosition, no, no, no);
        row("stored by hand, measured stands", {kAccept, restoring(kStoredHand)}, kMeasured, yes,
            yes, yes);
        row("half a centre stored", {kByHand, restoring({290, 0, false})}, kMiddle, no, no, no);
        row("stored measured", {restoring(kStoredMeasured)}, kOlder, yes, no, no);
        row("the camera runs", {restoring(kStoredMeasured), kRun}, kOlder, yes, yes, yes);
        row("calibration not to be restored", {restoring(kStoredMeasured, false), kRun}, kOlder,
            yes, no, no);
        row("measured replaces measured", {kAccept, restoring(kStoredMeasured)}, kOlder, yes, yes,
            yes);
        row("the camera does not start", {restoring(kStoredMeasured), kStop, kStart, kRun}, kOlder,
            yes, no, no);
        row("set by hand before it runs", {restoring(kStoredMeasured), kByHand, kRun}, kHand, no,
            no, no);
        row("once per resolution",
            {restoring(kStoredMeasured), kRun, kStop, kByHand, restoring(kStoredMeasured), kRun},
            kHand, no, no, yes);

        // Another resolution or camera, and back.
        row("another resolution", {kAccept, moved(kLargeHere)}, {640, 360}, no, no, no);
        row("a lock without calibration stays", {CenterLock{true}, moved(kLargeHere)}, {640, 360},
            no, no, yes);
        row("measured, back", {kAccept, moved(kLargeHere), moved(kHere)}, kMeasured, yes, no, no);
        row("measured, back and running", {kAccept, moved(kLargeHere), moved(kHere), kStart, kRun},
            kMeasured, yes, yes, yes);
        row("away while the camera starts",
            {kAccept, moved(kLargeHere), moved(kHere), kStart, moved(kLargeHere), kRun}, {640, 360},
            no, no, no);
        row("set by hand, back", {kByHand, moved(kLargeHere), moved(kHere)}, kHand, no, no, no);
        row("set by hand after a restore, back",
            {restoring(kStoredMeasured), kRun, kByHand, moved(kLargeHere), restoring(kNothing),
             kRun, moved(kHere), restoring(kStoredMeasured), kRun},
            kHand, no, no, yes);
        row("another camera", {kAccept, moved(kOther)}, kMiddle, no, no, no);
        row("another camera opens the lock", {CenterLock{true}, moved(kOther)}, kMiddle, no, no,
            no);
        row("a camera chosen again is restored again",
            {restoring(kStoredMeasured), kRun, kByHand, moved(kOther, true), moved(kHere, true),
             restoring(kStoredMeasured)},
            kOlder, yes, no, no);
        row("accepted for a place that is left", {moved(kOther), kAccept}, kMiddle, no, no, no);
        row("accepted for a place that comes back",
            {moved(kOther), kAccept, moved(kHere), kStart, kRun}, kMeasured, yes, yes, yes);
        row("known by another id",
            {kAccept, moved(kLargeHere), CenterRenamed{"c"}, moved({"c", kSmall}), kStart, kRun},
            kMeasured, yes, yes, yes);
        row("resolution written", {kAccept, CenterResized{kLarge}}, kMeasured, no, no, no);
        row("resolution written and back",
            {kAccept, CenterResized{kLarge}, CenterResized{kSmall}, kStart, kRun}, kMeasured, yes,
            yes, yes);
    }

    void decisions()
    {
        QFETCH(QList<CenterEvent>, events);
        CenterState state{.place = kHere, .center = {.position = kMiddle}};
        for (const CenterEvent &event : events)
            state = stateAfter(std::move(state), event);
        QTEST(state.center.position, "position");
        QTEST(state.center.origin == CenterOrigin::Measured, "measured");
        QTEST(state.calibrated, "calibrated");
        QTEST(state.locked, "locked");
    }

    void storable_data()
    {
        QTest::addColumn<QList<CenterEvent>>("events");
        QTest::addColumn<ResolutionCalibration>("before");
        QTest::addColumn<ResolutionCalibration>("after");
        using Events = QList<CenterEvent>;
        const ResolutionCalibration middle{320, 240, false};
        const ResolutionCalibration hand{300, 200, false};
        const ResolutionCalibration measured{311.5, 247.25, true};
        QTest::newRow("middle") << Events{} << kStoredHand << middle;
        QTest::newRow("a middle loses nothing measured")
            << Events{} << kStoredMeasured << kStoredMeasured;
        QTest::newRow("by hand") << Events{kAccept, kByHand} << kStoredMeasured << hand;
        QTest::newRow("measured") << Events{kAccept} << kNothing << measured;
        QTest::newRow("measured, but not shown as calibrated")
            << Events{restoring(kStoredMeasured, false)} << kStoredMeasured << kStoredMeasured;
        QTest::newRow("at a resolution that was only written")
            << Events{kAccept, CenterResized{kLarge}} << kNothing
            << ResolutionCalibration{311.5, 247.25, false};
    }

    void storable()
    {
        QFETCH(QList<CenterEvent>, events);
        QFETCH(ResolutionCalibration, before);
        CenterState state{.place = kHere, .center = {.position = kMiddle}};
        for (const CenterEvent &event : events)
            state = stateAfter(std::move(state), event);
        QTEST(storableCenter(state, before), "after");
    }
};

QTEST_APPLESS_MAIN(TestCenterState)
#include "tst_centerstate.moc"
