#include "DemoScript.h"

#include "DemoReport.h"
#include "drive/Pointer.h"
#include "drive/Scene.h"
#include "drive/SimulatedCamera.h"

#include <QElapsedTimer>
#include <QTest>

#include <cstdio>
#include <exception>

namespace {

constexpr int kLiveMs = 3000;

/// Counts the frames that the program publishes.
class FrameCounter : public QObject
{
    Q_OBJECT

public:
    explicit FrameCounter(const QObject *controller)
    {
        connect(controller, SIGNAL(frameReady(QImage)), this, SLOT(count()));
    }
    int frames() const { return m_frames; }

public slots:
    void count() { ++m_frames; }

private:
    int m_frames = 0;
};

class Demo
{
public:
    explicit Demo(const DemoOptions &options)
        : m_options(options)
        , m_camera(options.cameraTool)
    {
    }

    /// Throws what a step throws, after a picture of where it stuck.
    DemoReport run()
    {
        try {
            return runSteps();
        } catch (...) {
            picture("failed");
            throw;
        }
    }

private:
    DemoReport runSteps()
    {
        picture("1-start");
        chooseResolution();
        startCamera();
        const double framesPerSecond = watchLive();
        picture("2-live");
        calibrate();
        DemoReport report = readDialog();
        report.mended = m_mended;
        report.maxError = m_options.mends ? 0.15 : report.maxError;
        report.framesPerSecond = framesPerSecond;
        accept(report);
        return report;
    }

    void picture(const char *stage)
    {
        // One more frame, so that what just changed is on the screen.
        QTest::qWait(250);
        m_scene.save(QStringLiteral("%1/%2-%3.png")
                         .arg(m_options.pictureFolder, m_options.name, QLatin1StringView(stage)));
    }

    void click(const char *objectName)
    {
        m_pointer.click(m_scene.item(QString::fromLatin1(objectName)));
    }

    void chooseResolution()
    {
        const QStringList offered = m_scene.value("resolutionOptions").toStringList();
        QStringList wanted;
        for (const QString &text : offered) {
            if (text.startsWith(m_options.resolution))
                wanted << text;
        }
        if (wanted.isEmpty())
            throw std::runtime_error("the camera does not offer the resolution");
        const int index = int(offered.indexOf(wanted.first()));
        if (m_scene.value("selectedResolutionIndex").toInt() == index)
            return;
        click("resolutionSelector");
        m_pointer.click(m_scene.itemWithText(wanted));
        waitFor(QStringLiteral("the resolution"),
                [&] { return m_scene.value("selectedResolutionIndex").toInt() == index; });
    }

    void startCamera()
    {
        click("startStopButton");
        waitFor(QStringLiteral("the camera"), [this] { return m_scene.value("running").toBool(); });
        waitFor(QStringLiteral("the first frame"),
                [this] { return !m_scene.value("frameInfo").toString().isEmpty(); });
    }

    double watchLive()
    {
        const FrameCounter counter(m_scene.value("controller").value<QObject *>());
        QElapsedTimer timer;
        timer.start();
        QTest::qWait(kLiveMs);
        return counter.frames() * 1000.0 / double(timer.elapsed());
    }

    void choosePositions()
    {
        const auto chosen = [this] { return m_scene.value("calibrationPositions").toInt(); };
        const QQuickItem &row =
            *m_scene.itemWithText({QStringLiteral("Messpositionen")}).parentItem();
        const QQuickItem &spinBox = *row.findChild<QQuickItem *>(QStringLiteral("spinBox"));
        while (chosen() != m_options.positions) {
            const int before = chosen();
            auto *const side =
                spinBox.property(before > m_options.positions ? "down" : "up").value<QObject *>();
            m_pointer.click(*side->property("indicator").value<QQuickItem *>());
            waitFor(QStringLiteral("the number of positions"), [&] { return chosen() != before; });
        }
    }

    void calibrate()
    {
        click("tabCalibration");
        choosePositions();
        click("calibrationStartButton");
        waitFor(QStringLiteral("the calibration"),
                [this] { return m_scene.value("calibrationActive").toBool(); });
        if (m_options.mends)
            mend();
        for (int i = 0; i < m_options.positions; ++i)
            measure(i);
    }

    /// Presses the button that offers other detector values.
    void mend()
    {
        turnTo(0);
        const auto offersValues = [this] {
            const QVariantMap advice = m_scene.value("blobAdvice").toMap();
            return !advice.value(QStringLiteral("changes")).toList().isEmpty();
        };
        waitFor(QStringLiteral("the offer of other values"), offersValues);
        if (m_scene.value("blobCount").toInt() == 1)
            throw std::runtime_error("the mark is found without the button");
        picture("3-offer");
        m_mended = m_scene.item(QStringLiteral("blobAdviceChanges")).property("text").toString();
        click("applyBlobAdvice");
        waitFor(QStringLiteral("the mark with the new values"),
                [this] { return m_scene.value("blobCount").toInt() == 1; });
        picture("3-mended");
    }

    /// Turns the mark to the middle of the sector of a position.
    void turnTo(int index)
    {
        const QPointF overlayCentre(m_scene.value("centerX").toDouble(),
                                    m_scene.value("centerY").toDouble());
        m_camera.turnTowards(-45.0 - index * 360.0 / m_options.positions, overlayCentre);
    }

    void measure(int index)
    {
        waitFor(QStringLiteral("the next position"),
                [&] { return m_scene.value("currentGuideIndex").toInt() == index; });
        if (index == 0)
            picture("3-sector");
        turnTo(index);
        waitFor(QStringLiteral("the mark in the sector"), [this] {
            return m_scene.value("blobCount").toInt() == 1 &&
                   m_scene.value("blobInSector").toBool() &&
                   m_scene.value("blobSectorAlignment").toDouble() > 0.9;
        });
        if (index == 1)
            picture("4-aligned");
        click("measureButton");
        if (index == 1) {
            waitFor(QStringLiteral("the measurement"),
                    [this] { return m_scene.value("measureInProgress").toBool(); });
            m_scene.save(QStringLiteral("%1/%2-5-measuring.png")
                             .arg(m_options.pictureFolder, m_options.name));
        }
        waitFor(QStringLiteral("the measured position"),
                [&] { return m_scene.value("measurements").toList().size() == index + 1; });
    }

    DemoReport readDialog()
    {
        DemoReport report;
        report.name = m_options.name;
        waitFor(QStringLiteral("the result"),
                [this] { return m_scene.value("hasPendingCenter").toBool(); });
        report.verdict = m_scene.item(QStringLiteral("verdictLabel")).property("text").toString();
        report.trueCentre = m_camera.centre();
        report.reportedSigma = m_scene.value("centerSigma").toDouble();
        report.sigmaAssessable = m_scene.value("qualityAssessable").toBool();
        QTest::qWait(500); // the dialog's own opening animation
        picture("6-result");
        return report;
    }

    void accept(DemoReport &report)
    {
        m_pointer.click(m_scene.itemWithText({QStringLiteral("Ja"), QStringLiteral("&Ja"),
                                              QStringLiteral("Yes"), QStringLiteral("&Yes")}));
        waitFor(QStringLiteral("the accepted centre"),
                [this] { return m_scene.value("calibrated").toBool(); });
        report.measuredCentre = {m_scene.value("centerX").toDouble(),
                                 m_scene.value("centerY").toDouble()};
        QTest::qWait(500);
        picture("7-accepted");
        click("tabCalibration");
        picture("8-figures");
    }

    DemoOptions m_options;
    Scene m_scene;
    Pointer m_pointer;
    SimulatedCamera m_camera;
    QString m_mended;
};

} // namespace

DemoOptions demoOptionsFromEnvironment()
{
    const auto text = [](const char *name) { return qEnvironmentVariable(name); };
    DemoOptions options;
    options.name = text("MERIDAX_DEMO_NAME");
    options.pictureFolder = text("MERIDAX_DEMO_PICTURES");
    options.cameraTool = text("MERIDAX_DEMO_CAMERA_TOOL");
    options.resolution = text("MERIDAX_DEMO_RESOLUTION");
    options.positions = qEnvironmentVariableIntValue("MERIDAX_DEMO_POSITIONS");
    options.mends = qEnvironmentVariableIntValue("MERIDAX_DEMO_MENDS") != 0;
    return options;
}

bool runDemoScript(const DemoOptions &options)
{
    try {
        const DemoReport report = Demo(options).run();
        std::puts(qPrintable(report.line()));
        std::fflush(stdout);
        return report.passed();
    } catch (const std::exception &error) {
        std::printf("%s: %s: FAIL\n", qPrintable(options.name), error.what());
        std::fflush(stdout);
        return false;
    }
}

#include "DemoScript.moc"
