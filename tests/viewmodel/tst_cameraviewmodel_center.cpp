#include "ViewModelFixture.h"

#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace meridax;

namespace {

const QStringList kSizes{"640 x 480", "1280 x 720", "1920 x 1080"};

/// Plays whatever a user can do with centre, camera and profile, and keeps account of what was
/// really measured.
class Player
{
public:
    explicit Player(quint32 seed)
        : m_random(seed)
        , m_viewModel(fixture::firstStart())
    {
    }

    /// Does one thing at random; its name.
    QString step()
    {
        using Act = QString (Player::*)();
        static constexpr Act acts[] = {
            &Player::chooseSize, &Player::chooseSize, &Player::chooseCamera, &Player::start,
            &Player::start,      &Player::stop,       &Player::measure,      &Player::calibrate,
            &Player::calibrate,  &Player::decide,     &Player::setByHand,    &Player::tick,
            &Player::save,       &Player::clear,      &Player::writeSize,    &Player::replug,
            &Player::restart,    &Player::giveUp,
        };
        const QString done = (this->*acts[m_random.bounded(int(std::size(acts)))])();
        QCoreApplication::processEvents();
        if (!m_viewModel->selectedCameraName().isEmpty())
            m_camera = m_viewModel->selectedCameraName();
        return done;
    }

    /// "Calibrated" stands over nothing that was not measured, now and in the profiles.
    bool isTrue() const
    {
        return !m_viewModel->calibrated() || m_measured.contains(present(center()));
    }

    /// After the end of the program.
    bool profilesAreTrue()
    {
        m_viewModel.reset();
        const AppSettings settings = loadSettings();
        for (const CameraProfile &profile : settings.cameraProfiles) {
            for (const auto &[key, entry] : profile.perResolution.asKeyValueRange()) {
                const QString end = key + text({entry.centerX, entry.centerY});
                const bool known =
                    std::any_of(m_measured.begin(), m_measured.end(),
                                [&end](const QString &measured) { return measured.endsWith(end); });
                if (entry.calibrated && !known)
                    return false;
            }
        }
        m_viewModel = fixture::startWith(settings);
        return true;
    }

    bool calibrated() const { return m_viewModel->calibrated(); }
    QString state() const { return present(center()); }

private:
    static QString text(const QPointF &point)
    {
        return QStringLiteral(" %1/%2").arg(point.x()).arg(point.y());
    }

    QPointF center() const { return {m_viewModel->centerX(), m_viewModel->centerY()}; }

    QString present(const QPointF &center) const
    {
        const QSize size(m_viewModel->resolutionX(), m_viewModel->resolutionY());
        return m_camera + QLatin1Char('@') + resolutionKey(size) + text(center);
    }

    /// No two are equal, so that a centre tells where it comes from.
    QPointF anyPoint() { return {100.0 + ++m_points, 100.0 + m_random.bounded(200)}; }

    bool heads() { return m_random.bounded(2) == 0; }

    QString chooseSize()
    {
        const QString size = kSizes.at(m_random.bounded(int(kSizes.size())));
        fixture::choose(*m_viewModel, size);
        return size;
    }

    QString chooseCamera()
    {
        const int index = m_random.bounded(2);
        m_viewModel->setSelectedCameraIndex(index);
        return QStringLiteral("camera %1").arg(index);
    }

    QString start()
    {
        m_viewModel->startCamera();
        const bool waits = m_random.bounded(4) != 0;
        if (waits && !m_viewModel->selectedCameraName().isEmpty())
            (void)QTest::qWaitFor([this] { return m_viewModel->running(); }, 10000);
        return waits ? "start" : "start without waiting";
    }

    QString stop()
    {
        m_viewModel->stopCamera();
        return "stop";
    }

    QString measure()
    {
        const QPointF center = anyPoint();
        m_pending = present(center);
        if (heads())
            m_viewModel->startCalibration();
        emit m_viewModel->controller()->calibrationCompleted(center);
        return m_viewModel->hasPendingCenter() ? "measured" : "measured in vain";
    }

    QString calibrate()
    {
        m_viewModel->startCalibration();
        const QString measured = measure();
        return measured + QLatin1Char(' ') + decide();
    }

    QString decide()
    {
        if (!m_viewModel->hasPendingCenter())
            return "nothing to decide";
        const bool intoProfile = heads();
        m_viewModel->acceptPendingCenter(intoProfile);
        m_measured.insert(m_pending);
        return intoProfile ? "accepted into the profile" : "accepted";
    }

    QString setByHand()
    {
        const QPointF center = anyPoint();
        m_viewModel->setCenterX(center.x());
        if (heads())
            m_viewModel->setCenterY(center.y());
        return "set by hand";
    }

    QString tick()
    {
        const bool onConnect = heads();
        const bool calibration = heads();
        m_viewModel->setProfileRestoreOnConnect(onConnect);
        m_viewModel->setProfileRestoreCalibration(calibration);
        return QStringLiteral("tick %1 %2").arg(onConnect).arg(calibration);
    }

    QString save()
    {
        m_viewModel->saveCameraProfile();
        return "save";
    }

    QString clear()
    {
        m_viewModel->clearCameraProfile();
        return "clear";
    }

    QString writeSize()
    {
        m_viewModel->setResolutionX(heads() ? 640 : 1280);
        return "width written";
    }

    QString replug()
    {
        const bool unplug = QMediaDevices::videoInputs().size() > 1;
        const QString node = QStringLiteral("video40");
        fixture::simcam(unplug ? QStringList{"unplug", "--node", node}
                               : QStringList{"plug", "--node", node, "--name", "Zweite"});
        (void)QTest::qWaitFor(
            [this, unplug] { return (m_viewModel->cameraNames().size() > 1) != unplug; });
        return unplug ? "unplug" : "plug";
    }

    QString restart()
    {
        m_viewModel.reset();
        m_viewModel = fixture::startWith(loadSettings());
        return "restart";
    }

    QString giveUp()
    {
        m_viewModel->startCalibration();
        if (heads())
            m_viewModel->cancelCalibration();
        return "calibration without an end";
    }

    QRandomGenerator m_random;
    fixture::ViewModel m_viewModel;
    QString m_camera;
    QString m_pending;
    QSet<QString> m_measured;
    int m_points = 0;
};

} // namespace

/// With two simulated cameras: what is measured is not lost and nothing else passes for it.
class TestCameraViewModelCenter : public QObject
{
    Q_OBJECT

    static QPointF centerOf(const CameraViewModel &viewModel)
    {
        return {viewModel.centerX(), viewModel.centerY()};
    }

    static void measure(CameraViewModel &viewModel, const QPointF &center)
    {
        emit viewModel.controller()->calibrationCompleted(center);
    }

    static void plugSecond()
    {
        fixture::simcam({"plug", "--node", "video40", "--name", "Zweite"});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 2);
    }

    static void unplugSecond()
    {
        fixture::simcam({"unplug", "--node", "video40"});
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 1);
    }

private slots:
    void initTestCase()
    {
        fixture::prepareProcess();
        fixture::simcam({"plug", "--new", "--node", "video40", "--name", "Zweite"});
    }
    void cleanupTestCase() { fixture::simcam({"unplug", "--node", "video40"}); }

    void init()
    {
        // A test that failed may have left it unplugged.
        if (QMediaDevices::videoInputs().size() < 2)
            plugSecond();
        QTRY_COMPARE(QMediaDevices::videoInputs().size(), 2);
    }

    void nothingElsePassesForMeasured_data()
    {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1U, 2U, 3U})
            QTest::addRow("seed %u", seed) << seed;
    }

    void nothingElsePassesForMeasured()
    {
        QFETCH(quint32, seed);
        Player player(seed);
        QStringList story;
        int calibrated = 0;
        for (int i = 0; i < 400; ++i) {
            story << player.step();
            const QByteArray told = (story.join(", ") + " -> " + player.state()).toUtf8();
            QVERIFY2(player.isTrue(), told);
            calibrated += player.calibrated() ? 1 : 0;
            if (i % 40 == 39)
                QVERIFY2(player.profilesAreTrue(), told);
        }
        QVERIFY2(calibrated > 20, "the story had hardly a calibration");
    }

    /// The camera drops off the bus while its result waits for Yes or No.
    void aWaitingCenterOutlivesItsCamera_data()
    {
        QTest::addColumn<bool>("back");
        QTest::addColumn<bool>("intoProfile");
        QTest::newRow("it comes back") << true << false;
        QTest::newRow("it stays away, into the profile") << false << true;
        QTest::newRow("it stays away") << false << false;
    }

    void aWaitingCenterOutlivesItsCamera()
    {
        QFETCH(bool, back);
        QFETCH(bool, intoProfile);
        const auto viewModel = fixture::firstStart();
        const int second = int(viewModel->cameraNames().indexOf("Zweite"));
        const QString first = viewModel->cameraNames().at(1 - second);
        viewModel->setSelectedCameraIndex(second);
        fixture::choose(*viewModel, "1280 x 720");
        viewModel->setBrightness(9);
        measure(*viewModel, {411, 293});
        const QSignalSpy lost(viewModel.get(), &CameraViewModel::pendingCenterLost);
        unplugSecond();
        QTRY_COMPARE(viewModel->selectedCameraName(), first);
        QVERIFY(viewModel->hasPendingCenter());
        QVERIFY(viewModel->pendingCenterElsewhere());
        QCOMPARE(viewModel->pendingCenterCamera(), "Zweite (1280 x 720)");
        if (back) {
            plugSecond();
            QTRY_COMPARE(viewModel->selectedCameraName(), "Zweite");
            QVERIFY(!viewModel->pendingCenterElsewhere());
        }
        viewModel->acceptPendingCenter(intoProfile);
        QCOMPARE(viewModel->calibrated(), back);
        if (!back) {
            QVERIFY2(centerOf(*viewModel) != QPointF(411, 293), "it is none of this camera's");
            QVERIFY(!viewModel->profileExists());
            plugSecond();
            QTRY_COMPARE(viewModel->cameraNames().size(), 2);
            viewModel->setSelectedCameraIndex(int(viewModel->cameraNames().indexOf("Zweite")));
            QCOMPARE(viewModel->profileExists(), intoProfile);
            fixture::choose(*viewModel, "1280 x 720");
        }
        QCOMPARE(centerOf(*viewModel), QPointF(411, 293));
        viewModel->startCamera();
        QTRY_VERIFY(viewModel->running());
        QTRY_VERIFY(viewModel->calibrated());
        QCOMPARE(centerOf(*viewModel), QPointF(411, 293));
        if (intoProfile)
            QCOMPARE(viewModel->brightness(), 9);
        QCOMPARE(lost.size(), 0);
    }

    /// Only what the user chooses takes it away, and that is told.
    void aWaitingCenterGoesByChoice()
    {
        const auto viewModel = fixture::firstStart();
        const QSignalSpy lost(viewModel.get(), &CameraViewModel::pendingCenterLost);
        const int camera = viewModel->selectedCameraIndex();
        measure(*viewModel, {411, 293});
        viewModel->setSelectedCameraIndex(camera);
        viewModel->setSelectedResolutionIndex(viewModel->selectedResolutionIndex());
        viewModel->refreshCameras();
        QVERIFY(viewModel->hasPendingCenter());
        fixture::choose(*viewModel, "640 x 480");
        QVERIFY(!viewModel->hasPendingCenter());
        QCOMPARE(lost.size(), 1);
        measure(*viewModel, {311, 243});
        viewModel->setSelectedCameraIndex(1 - camera);
        QVERIFY(!viewModel->hasPendingCenter());
        QCOMPARE(lost.size(), 2);
    }
};

QTEST_MAIN(TestCameraViewModelCenter)
#include "tst_cameraviewmodel_center.moc"
