#include "ViewModelFixture.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace meridax;

/// Focus presets: what they keep, what they bring back, and when they count as changed.
class TestCameraViewModelPresets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture::prepareProcess(); }

    void init()
    {
        QTest::failOnWarning();
        m_viewModel.reset();
        m_viewModel = fixture::firstStart();
    }

    void names()
    {
        m_viewModel->addFocusPreset("  ");
        m_viewModel->addFocusPreset(" Preset 3 ");
        m_viewModel->addFocusPreset("");
        QCOMPARE(presetNames(), QStringList({"Preset 1", "Preset 3", "Preset 3"}));
        QSignalSpy changed(m_viewModel.get(), &CameraViewModel::focusPresetsChanged);
        m_viewModel->renameFocusPreset(0, "   ");
        m_viewModel->renameFocusPreset(0, " Preset 1");
        QCOMPARE(changed.size(), 0);
        m_viewModel->renameFocusPreset(0, " Spinne ");
        QCOMPARE(changed.size(), 1);
        QCOMPARE(presetNames().constFirst(), "Spinne");
    }

    void applyingBringsTheValuesBack_data()
    {
        QTest::addColumn<bool>("markers");
        QTest::newRow("with markers") << true;
        QTest::newRow("without markers") << false;
    }
    void applyingBringsTheValuesBack()
    {
        QFETCH(bool, markers);
        m_viewModel->setFocusPresetIncludeMarkers(markers);
        const QVariantList captured = fill(1);
        m_viewModel->addFocusPreset("eins");
        const QVariantMap entry = m_viewModel->focusPresets().constFirst().toMap();
        QCOMPARE(entry,
                 (QVariantMap{{"name", "eins"}, {"focusValue", 101}, {"hasMarkers", markers}}));

        const QVariantList other = fill(2);
        QSignalSpy camera(m_viewModel.get(), &CameraViewModel::cameraSettingsChanged);
        QSignalSpy overlay(m_viewModel.get(), &CameraViewModel::overlaySettingsChanged);
        QVERIFY(m_viewModel->activeFocusPresetDirty());
        m_viewModel->applyFocusPreset(0);
        QCOMPARE(camera.size(), 1);
        QCOMPARE(overlay.size(), 1);
        QVERIFY(!m_viewModel->activeFocusPresetDirty());
        const QVariantList now = values();
        QCOMPARE(now.mid(0, cameraValueCount), captured.mid(0, cameraValueCount));
        QCOMPARE(now.mid(cameraValueCount), (markers ? captured : other).mid(cameraValueCount));
        QTRY_COMPARE(loadSettings().camera.focusValue, 101);
    }

    void whatMakesDirty_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("isMarker");
        QTest::newRow("focus") << QByteArray("focusValue") << QVariant(77) << false;
        QTest::newRow("exposure") << QByteArray("exposure") << QVariant(-3) << false;
        QTest::newRow("brightness") << QByteArray("brightness") << QVariant(9) << false;
        QTest::newRow("contrast") << QByteArray("contrast") << QVariant(9) << false;
        QTest::newRow("saturation") << QByteArray("saturation") << QVariant(9) << false;
        QTest::newRow("gain") << QByteArray("gain") << QVariant(9) << false;
        QTest::newRow("zoom") << QByteArray("zoom") << QVariant(1.05) << false;
        QTest::newRow("circle") << QByteArray("circle2Radius") << QVariant(409.0) << true;
        QTest::newRow("colour") << QByteArray("circle3Color") << QVariant(QColor("#123456"))
                                << true;
        QTest::newRow("crosshair") << QByteArray("crossAngle") << QVariant(1.0) << true;
    }
    void whatMakesDirty()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        QFETCH(bool, isMarker);
        const QVariant before = m_viewModel->property(property.constData());
        for (const bool markers : {true, false}) {
            m_viewModel->setFocusPresetIncludeMarkers(markers);
            m_viewModel->addFocusPreset("p");
            QSignalSpy active(m_viewModel.get(), &CameraViewModel::focusPresetActiveChanged);
            m_viewModel->setProperty(property.constData(), value);
            const bool dirty = markers || !isMarker;
            QCOMPARE(m_viewModel->activeFocusPresetDirty(), dirty);
            QCOMPARE(active.size(), dirty ? 1 : 0);
            m_viewModel->setCenterX(m_viewModel->centerX() + 1); // no part of a preset
            m_viewModel->setProperty(property.constData(), before);
            QVERIFY(!m_viewModel->activeFocusPresetDirty());
            QCOMPARE(active.size(), dirty ? 2 : 0);
        }
    }

    void updatingTakesThePresentState()
    {
        fill(1);
        m_viewModel->addFocusPreset("eins");
        m_viewModel->addFocusPreset("zwei");
        fill(2);
        m_viewModel->setFocusPresetIncludeMarkers(false);
        m_viewModel->updateFocusPreset(0);
        QCOMPARE(m_viewModel->activeFocusPresetIndex(), 0);
        QVERIFY(!m_viewModel->activeFocusPresetDirty());
        const QVariantMap entry = m_viewModel->focusPresets().constFirst().toMap();
        QCOMPARE(entry,
                 (QVariantMap{{"name", "eins"}, {"focusValue", 102}, {"hasMarkers", false}}));
    }

    void removing_data()
    {
        QTest::addColumn<int>("active");
        QTest::addColumn<int>("removed");
        QTest::addColumn<int>("activeAfterwards");
        QTest::newRow("before the active one") << 2 << 0 << 1;
        QTest::newRow("the active one") << 1 << 1 << -1;
        QTest::newRow("behind the active one") << 0 << 2 << 0;
    }
    void removing()
    {
        QFETCH(int, active);
        QFETCH(int, removed);
        for (int i = 0; i < 3; ++i)
            m_viewModel->addFocusPreset({});
        m_viewModel->applyFocusPreset(active);
        m_viewModel->setZoom(2);
        m_viewModel->removeFocusPreset(removed);
        QTEST(m_viewModel->activeFocusPresetIndex(), "activeAfterwards");
        QCOMPARE(m_viewModel->activeFocusPresetDirty(), active != removed);
        QCOMPARE(m_viewModel->focusPresets().size(), 2);
    }

    void indexOutOfRange()
    {
        m_viewModel->addFocusPreset("p");
        m_viewModel->setZoom(2);
        QSignalSpy list(m_viewModel.get(), &CameraViewModel::focusPresetsChanged);
        QSignalSpy active(m_viewModel.get(), &CameraViewModel::focusPresetActiveChanged);
        for (const int index : {-1, 1}) {
            m_viewModel->applyFocusPreset(index);
            m_viewModel->updateFocusPreset(index);
            m_viewModel->renameFocusPreset(index, "q");
            m_viewModel->removeFocusPreset(index);
        }
        QCOMPARE(list.size() + active.size(), 0);
        QCOMPARE(m_viewModel->zoom(), 2.0);
    }

    void livesInMemoryOnly()
    {
        m_viewModel->addFocusPreset("Fangspiegel");
        m_viewModel->refreshCameras();
        m_viewModel->setZoom(2);
        QCOMPARE(m_viewModel->focusPresets().size(), 1);
        QTRY_VERIFY(fixture::fileExists());
        QFile file(settingsFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains("Fangspiegel"));
        QVERIFY(fixture::startWith(loadSettings())->focusPresets().isEmpty());
    }

private:
    static constexpr qsizetype cameraValueCount = 7;

    QStringList presetNames() const
    {
        QStringList names;
        for (const QVariant &preset : m_viewModel->focusPresets())
            names.append(preset.toMap().value("name").toString());
        return names;
    }

    /// The values that a preset keeps: of the camera first, then some of the markers.
    QVariantList values() const
    {
        const CameraViewModel &vm = *m_viewModel;
        return {vm.focusValue(),       vm.exposure(),   vm.brightness(),  vm.contrast(),
                vm.saturation(),       vm.gain(),       vm.zoom(),        vm.circle1Radius(),
                vm.circle2LineStyle(), vm.crossAngle(), vm.circle3Color()};
    }

    /// Sets all of these values to such as belong to `seed` alone.
    QVariantList fill(int seed)
    {
        CameraViewModel &vm = *m_viewModel;
        vm.setFocusValue(100 + seed);
        vm.setExposure(seed);
        vm.setBrightness(20 + seed);
        vm.setContrast(30 + seed);
        vm.setSaturation(40 + seed);
        vm.setGain(50 + seed);
        vm.setZoom(1 + seed);
        vm.setCircle1Radius(200 + seed);
        vm.setCircle2LineStyle(seed);
        vm.setCrossAngle(10 * seed);
        vm.setCircle3Color(QColor(seed, 0, 0));
        return values();
    }

    fixture::ViewModel m_viewModel;
};

QTEST_MAIN(TestCameraViewModelPresets)

#include "tst_cameraviewmodel_presets.moc"
