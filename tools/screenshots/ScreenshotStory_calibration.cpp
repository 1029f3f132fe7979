// Calibrations of a three-lobed sleeve, and what they find.

#include "ScreenshotStory.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kFew = 4;
constexpr int kMany = 8;

const QStringList kFewNames{u"few-positions"_s, u"calibration-result-few"_s,
                            u"calibration-result-few-end"_s};
const QStringList kResultNames{
    u"calibration-result"_s, u"calibration-result-end"_s, u"calibrated"_s, u"measured-points"_s,
    u"quality-strip"_s,      u"residual-plot"_s,          u"profiles"_s};
const QStringList kCourseNames{u"calibration-guide"_s, u"calibration-no-blob"_s,
                               u"calibration-several-blobs"_s, u"calibration-ready"_s,
                               u"calibration-measure"_s};

} // namespace

void ScreenshotStory::calibrationPane()
{
    click(u"tabCalibration"_s);
    m_pointer.leave();
    takeWhole(u"calibration-pane"_s, m_studio.scene().item(u"calibrationPage"_s),
              {.parts = {u"leftPanel"_s}});
}

void ScreenshotStory::fewPositions()
{
    if (!wants(kFewNames))
        return;
    set("calibrationPositions", kFew);
    if (wants({u"few-positions"_s})) {
        // The sign that warns of too few says why.
        takeHelp(u"few-positions"_s, m_studio.scene().item(u"fewPositionsWarning"_s));
    }
    if (wants({u"calibration-result-few"_s, u"calibration-result-few-end"_s})) {
        beginCalibration(kFew);
        finishCalibration(kFew);
        takeWhole(u"calibration-result-few"_s, m_studio.scene().item(u"centerDialogContent"_s));
        close(u"centerDialog"_s);
    }
    set("calibrationPositions", kMany);
}

void ScreenshotStory::fullCalibration()
{
    if (!wants(kCourseNames + kResultNames))
        return;
    beginCalibration(kMany);
    m_camera.run({u"turn"_s, u"--to"_s, u"-80"_s});
    waitFor(u"the mark beside the sector"_s,
            [this] { return value("blobCount").toInt() == 1 && !value("blobInSector").toBool(); });
    take(u"calibration-guide"_s);
    for (const auto &[marks, name] :
         {std::pair{0, u"calibration-no-blob"_s}, std::pair{2, u"calibration-several-blobs"_s}}) {
        camera({u"marks=%1"_s.arg(marks)});
        waitFor(u"%1 marks"_s.arg(marks), [&] { return value("blobCount").toInt() == marks; });
        take(name);
    }
    camera({u"marks=1"_s});
    toPosition(0);
    take(u"calibration-ready"_s);
    measure(0);
    measure(1);
    if (wants({u"calibration-measure"_s})) {
        set("calibrationMeasureFrames", 10);
        toPosition(2);
        click(u"measureButton"_s);
        waitFor(u"a few frames"_s, [this] { return value("measureFramesDone").toInt() >= 4; });
        // A frame every few seconds: the measurement outlasts the pictures.
        camera({u"frame-delay=3"_s});
        m_pointer.leave();
        take(u"calibration-measure"_s);
        camera({u"frame-delay=0"_s});
        waitFor(u"the measured position"_s,
                [this] { return value("measurements").toList().size() == 3; });
        set("calibrationMeasureFrames", 3);
        finishCalibration(kMany, 3);
    } else {
        finishCalibration(kMany, 2);
    }
    figures();
}

void ScreenshotStory::figures()
{
    Scene &scene = m_studio.scene();
    takeWhole(u"calibration-result"_s, scene.item(u"centerDialogContent"_s),
              {.parts = {u"centerDialog"_s}});
    QMetaObject::invokeMethod(&scene.object(u"centerDialog"_s), "accept");
    waitFor(u"the accepted centre"_s, [this] { return value("calibrated").toBool(); });
    take(u"calibrated"_s);
    if (!wants({u"measured-points"_s, u"quality-strip"_s, u"residual-plot"_s}))
        return;
    click(u"tabCalibration"_s);
    m_pointer.leave();
    for (const QString &section : {u"blobSection"_s, u"detailSection"_s})
        setSection(u"leftPanel"_s, section, false);
    QQuickItem &page = scene.item(u"calibrationPage"_s);
    const auto from = [&](const QString &item) {
        return [this, &page, item] {
            m_studio.scene().waitUntilStill();
            auto *const content = page.property("contentItem").value<QQuickItem *>();
            scroll(page, m_studio.scene().item(item).mapToItem(content, QPointF()).y() - 8);
        };
    };
    scroll(page, 0);
    take(u"measured-points"_s, {.before = from(u"pointsSection"_s), .parts = {u"pointsSection"_s}});
    take(u"quality-strip"_s, {.before = from(u"qualityStrip"_s), .parts = {u"qualityStrip"_s}});
    setSection(u"leftPanel"_s, u"detailSection"_s, true);
    take(u"residual-plot"_s, {.before = from(u"detailSection"_s), .parts = {u"detailSection"_s}});
    scroll(page, 0);
}

void ScreenshotStory::profile()
{
    if (!wants({u"profiles"_s}))
        return;
    set("profileRestoreOnConnect", true);
    set("profileRestoreCalibration", true);
    openSettings();
    click(u"saveProfileButton"_s);
    m_pointer.leave();
    waitFor(u"the profile"_s, [this] { return value("profileExists").toBool(); });
    take(u"profiles"_s, {.parts = {u"settingsPanel"_s}});
    close(u"settingsPanel"_s);
}

void ScreenshotStory::beginCalibration(int positions)
{
    camera({u"frame-delay=0"_s});
    set("calibrationPositions", positions);
    click(u"calibrationStartButton"_s);
    m_pointer.leave();
    waitFor(u"the calibration"_s, [this] { return value("calibrationActive").toBool(); });
}

void ScreenshotStory::toPosition(int index)
{
    waitFor(u"the next position"_s, [&] { return value("currentGuideIndex").toInt() == index; });
    const QPointF seenFrom(value("centerX").toDouble(), value("centerY").toDouble());
    m_camera.turnTowards(-45.0 - index * 360.0 / value("calibrationPositions").toInt(), seenFrom);
    waitFor(u"the mark in the sector"_s, [this] {
        return value("blobCount").toInt() == 1 && value("blobInSector").toBool() &&
               value("blobSectorAlignment").toDouble() > 0.9;
    });
}

void ScreenshotStory::measure(int index)
{
    toPosition(index);
    click(u"measureButton"_s);
    waitFor(u"the measured position"_s,
            [&] { return value("measurements").toList().size() == index + 1; });
    m_pointer.leave();
}

void ScreenshotStory::finishCalibration(int positions, int measured)
{
    for (int i = measured; i < positions; ++i)
        measure(i);
    waitFor(u"the result"_s, [this] { return value("hasPendingCenter").toBool(); });
    waitOpened(u"centerDialog"_s);
    camera({u"frame-delay=0.4"_s});
}
