#include "ViewModelFixture.h"

#include "viewmodel/LanguageSwitch.h"

#include <QElapsedTimer>
#include <QMetaProperty>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace meridax;

extern void qml_register_types_Meridax();

namespace {

/// Writers that do more than store a value, or need a camera.
bool isPlain(const QMetaProperty &property)
{
    // The others need a camera or belong to the moment.
    static const QByteArrayList others{
        "objectName",         "selectedCameraIndex",     "selectedResolutionIndex",
        "focusTapModeActive", "profileRestoreOnConnect", "profileRestoreCalibration"};
    return property.isWritable() && !others.contains(property.name());
}

/// A value that is legal for every property of the type and differs from `value`.
QVariant changed(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() == 1 ? 0 : value.toInt() + 1;
    case QMetaType::Double:
        return value.toDouble() + 0.5;
    case QMetaType::QString:
        return QVariant(value.toString() + QLatin1Char('x'));
    default:
        return QColor(Qt::cyan);
    }
}

QVariantMap plainValues(const CameraViewModel &viewModel)
{
    QVariantMap values;
    const QMetaObject &meta = CameraViewModel::staticMetaObject;
    for (int i = 0; i < meta.propertyCount(); ++i) {
        if (isPlain(meta.property(i)))
            values.insert(meta.property(i).name(), meta.property(i).read(&viewModel));
    }
    return values;
}

} // namespace

/// The properties of the view model, its start and its end, without a camera.
class TestCameraViewModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        fixture::prepareProcess();
        qml_register_types_Meridax();
    }

    void init() { QTest::failOnWarning(); }

    void singletonOfTheModule()
    {
        {
            QQmlEngine engine;
            QQmlEngine later;
            const auto *viewModel =
                engine.singletonInstance<CameraViewModel *>("Meridax", "ViewModel");
            QVERIFY(viewModel);
            QVERIFY(!viewModel->parent());
            QCOMPARE(meridax::qmlEngine(), &engine);
            QVERIFY(later.singletonInstance<CameraViewModel *>("Meridax", "ViewModel"));
            QCOMPARE(meridax::qmlEngine(), &engine);
            QFile::remove(settingsFilePath());
        }
        QVERIFY(!meridax::qmlEngine());
        QVERIFY2(fixture::fileExists(), "the engine destroyed the view model");
    }

    void startTakesBackWhatTheFileMustNotDecide()
    {
        AppSettings settings;
        settings.camera.calibrated = true;
        settings.camera.locked = true;
        settings.camera.centerX = 5.0;
        settings.camera.centerY = 6.0;
        settings.camera.cameraResolutionX = 1001;
        settings.camera.cameraResolutionY = 750;
        auto viewModel = fixture::startWith(settings);
        QVERIFY(!viewModel->calibrated());
        QVERIFY(viewModel->locked());
        QCOMPARE(viewModel->centerX(), 500.5);
        QCOMPARE(viewModel->centerY(), 375.0);
        viewModel.reset();
        QVERIFY(!loadSettings().camera.calibrated);
        QVERIFY(loadSettings().camera.locked);

        settings.camera.cameraResolutionY = 0;
        QCOMPARE(fixture::startWith(settings)->centerX(), 5.0);
    }

    void withoutCamera()
    {
        AppSettings settings;
        settings.camera.cameraId = QStringLiteral("id");
        settings.camera.cameraName = QStringLiteral("Kamera");
        auto viewModel = fixture::startWith(settings);
        QCOMPARE(viewModel->cameraNames(), QStringList());
        QCOMPARE(viewModel->selectedCameraName(), QString());
        QCOMPARE(viewModel->selectedResolutionIndex(), -1);
        QCOMPARE(viewModel->resolutionOptions(), QStringList());
        QCOMPARE(viewModel->resolutionMinX(), 320);
        QCOMPARE(viewModel->resolutionMinY(), 240);
        QCOMPARE(viewModel->resolutionMaxX(), 8192);
        QCOMPARE(viewModel->resolutionMaxY(), 8192);
        viewModel->setSelectedCameraIndex(0);
        viewModel->setSelectedResolutionIndex(0);
        viewModel->refreshCameras();

        QSignalSpy running(viewModel.get(), &CameraViewModel::runningChanged);
        viewModel->startCamera();
        QCOMPARE(running.size(), 1);
        QVERIFY(!viewModel->running());
        QCOMPARE(viewModel->status(), "Keine passende Kamera gefunden.");
        viewModel.reset();
        QCOMPARE(loadSettings().camera.cameraId, "id");
        QCOMPARE(loadSettings().camera.cameraName, "Kamera");

        viewModel = fixture::firstStart();
        viewModel->setProfileRestoreOnConnect(true);
        viewModel->saveCameraProfile();
        QVERIFY(!viewModel->profileExists());
    }

    /// A value that is set can be read back, is notified once, and is no other property's.
    void everyWritablePropertyIsItsOwn()
    {
        const auto viewModel = fixture::firstStart();
        const QMetaObject &meta = CameraViewModel::staticMetaObject;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QMetaProperty property = meta.property(i);
            if (!isPlain(property))
                continue;
            QVariantMap expected = plainValues(*viewModel);
            QVariant &value = expected[property.name()];
            value = changed(value);
            QSignalSpy notified(viewModel.get(), property.notifySignal());
            QVERIFY2(property.write(viewModel.get(), value), property.name());
            QCOMPARE(plainValues(*viewModel), expected);
            QCOMPARE(notified.size(), 1);
        }
    }

    void everyWritablePropertyIsWritten()
    {
        auto viewModel = fixture::firstStart();
        const QVariantMap before = plainValues(*viewModel);
        for (auto it = before.begin(); it != before.end(); ++it)
            viewModel->setProperty(it.key().toLatin1(), changed(it.value()));
        QVariantMap expected = plainValues(*viewModel);
        QTRY_VERIFY(fixture::fileExists());
        viewModel.reset();

        viewModel.reset(CameraViewModel::create(nullptr, nullptr));
        expected["centerX"] = viewModel->resolutionX() * 0.5;
        expected["centerY"] = viewModel->resolutionY() * 0.5;
        QCOMPARE(plainValues(*viewModel), expected);
    }

    void setters_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("stored");
        const auto row = [](const char *property, const QVariant &value, const QVariant &stored) {
            QTest::addRow("%s %s", property, qPrintable(value.toString()))
                << QByteArray(property) << value << stored;
        };
        row("exposure", 100, 6);
        row("gain", -1, -1);
        row("calibrationPositions", 2, 3);
        row("calibrationPositions", 20, 15);
        row("calibrationMeasureFrames", 0, 1);
        row("calibrationMeasureFrames", 11, 10);
        row("zoom", -3.0, -3.0);
    }

    void setters()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        const auto viewModel = fixture::firstStart();
        QVERIFY(viewModel->setProperty(property, value));
        QTEST(viewModel->property(property), "stored");
    }

    void equalValues_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<bool>("skipped");
        const auto rows = [](const QByteArrayList &properties, bool skipped) {
            for (const QByteArray &property : properties)
                QTest::newRow(property) << property << skipped;
        };
        rows({"centerX", "centerY", "calibrationMeasureFrames", "language", "darkMode",
              "screenshotPath", "rememberCollapsedSections", "showZoomOverlay"},
             true);
        rows({"zoom", "offsetEnabled", "circle2Color", "crossType", "blobMinArea", "brightness",
              "exposure", "focusValue", "resolutionX", "calibrationPositions"},
             false);
    }

    /// Setting the present value again is skipped by some properties, and told and written by
    /// others.
    void equalValues()
    {
        QFETCH(QByteArray, property);
        QFETCH(bool, skipped);
        const auto viewModel = fixture::firstStart();
        const QMetaObject &meta = CameraViewModel::staticMetaObject;
        QSignalSpy notified(viewModel.get(),
                            meta.property(meta.indexOfProperty(property)).notifySignal());
        QVERIFY(viewModel->setProperty(property, viewModel->property(property)));
        QCOMPARE(notified.size(), skipped ? 0 : 1);
    }

    void burstOfChangesIsWrittenOnce()
    {
        const auto viewModel = fixture::firstStart();
        QSignalSpy notified(viewModel.get(), &CameraViewModel::overlaySettingsChanged);
        QElapsedTimer sinceLast;
        for (const double zoom : {1.5, 2.0, 2.5, 3.0, 3.5})
            viewModel->setZoom(zoom);
        sinceLast.start();
        QVERIFY(!fixture::fileExists());
        QCOMPARE(notified.size(), 5);
        QTRY_VERIFY_WITH_TIMEOUT(fixture::fileExists(), 5000);
        // Coarse timers may be early by a twentieth.
        QVERIFY2(sinceLast.elapsed() >= 375, qPrintable(QString::number(sinceLast.elapsed())));
        QCOMPARE(loadSettings().camera.zoom, 3.5);
    }

    void capabilitiesLimitValues()
    {
        const auto viewModel = fixture::firstStart();
        QCOMPARE(viewModel->brightnessRangeStep(), 1);
        QVERIFY(!viewModel->gainSupported());

        CameraCapabilities caps;
        caps.brightness = {-64, 64, 2, 0, true, false};
        caps.gain = {4, 128, 4, 16, true, true};
        QSignalSpy notified(viewModel.get(), &CameraViewModel::cameraCapabilitiesChanged);
        emit viewModel->controller()->cameraCapabilitiesDetected(caps);
        QCOMPARE(notified.size(), 1);
        QCOMPARE(viewModel->gainRangeMax(), 128);
        QVERIFY(viewModel->gainCanAuto());

        viewModel->setBrightness(1000);
        QCOMPARE(viewModel->brightness(), 64);
        viewModel->setBrightness(-1000);
        QCOMPARE(viewModel->brightness(), -64);
        viewModel->setGain(0);
        QCOMPARE(viewModel->gain(), 4);
        viewModel->setContrast(1000);
        QCOMPARE(viewModel->contrast(), 1000);
    }

    void stoppedCameraHasNoCapabilities()
    {
        const auto viewModel = fixture::firstStart();
        CameraCapabilities caps;
        caps.gain = {4, 128, 4, 16, true, true};
        emit viewModel->controller()->cameraCapabilitiesDetected(caps);
        emit viewModel->controller()->focusRangeDetected(1, 250);
        QCOMPARE(viewModel->focusRangeMin(), 1);
        QCOMPARE(viewModel->focusRangeMax(), 250);

        // The controller's state counts, not the signal's argument: no camera runs here.
        emit viewModel->controller()->runningChanged(true);
        QVERIFY(!viewModel->gainSupported());
        QCOMPARE(viewModel->gainRangeMax(), 0);
        QCOMPARE(viewModel->gainRangeStep(), 1);
        QCOMPARE(viewModel->focusRangeMin(), 0);
        QCOMPARE(viewModel->focusRangeMax(), 0);
    }

    void exposureMovesOntoTheHardwareRange()
    {
        AppSettings settings;
        settings.camera.captureTimeMs = -3;
        const auto viewModel = fixture::startWith(settings);
        QSignalSpy notified(viewModel.get(), &CameraViewModel::cameraSettingsChanged);
        CameraCapabilities caps;
        caps.exposure = {0, 1000, 1, 500, true, true};
        emit viewModel->controller()->cameraCapabilitiesDetected(caps);
        QCOMPARE(viewModel->exposure(), 250);
        QCOMPARE(notified.size(), 1);
        QTRY_COMPARE(loadSettings().camera.captureTimeMs, 250);

        emit viewModel->controller()->cameraCapabilitiesDetected(caps);
        QCOMPARE(viewModel->exposure(), 250);
        QCOMPARE(notified.size(), 1);
    }
};

QTEST_MAIN(TestCameraViewModel)
#include "tst_cameraviewmodel.moc"
