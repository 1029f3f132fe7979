#include "TestWarnings.h"
#include "ViewModelFixture.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QVideoFrame>

#include <csignal>
#include <sys/resource.h>

using namespace meridax;

/// Screenshots without the overlay, and the writing of all.
class TestCameraViewModelScreenshot : public QObject
{
    Q_OBJECT

    static fixture::ViewModel withPath(const QString &path)
    {
        AppSettings settings;
        settings.screenshotPath = path;
        return fixture::startWith(settings);
    }

    /// Lets one frame pass through the pipeline.
    static bool feed(CameraViewModel &viewModel, const QImage &frame)
    {
        viewModel.startCamera(); // fails without a camera, but frames are taken
        viewModel.controller()->onVideoFrame(QVideoFrame(frame));
        return QTest::qWaitFor([&] { return !viewModel.controller()->latestFrame().isNull(); });
    }

private slots:
    void initTestCase() { fixture::prepareProcess(); }
    void init() { QTest::failOnWarning(unexpectedWarning()); }

    void savesTheWholeFrame()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Fotos für Jürgen/neu"));
        const auto viewModel = withPath(path);
        QCOMPARE(viewModel->captureScreenshot(), QString());
        QVERIFY2(!QDir(path).exists(), "without a frame no folder is made");

        QImage frame(641, 480, QImage::Format_RGB888);
        frame.fill(QColor(90, 120, 60));
        QVERIFY(feed(*viewModel, frame));
        const QString file = viewModel->captureScreenshot();
        QVERIFY(QRegularExpression(QStringLiteral("/neu/meridax_\\d{8}_\\d{6}_\\d{3}\\.png$"))
                    .match(file)
                    .hasMatch());
        const QImage saved(file);
        QCOMPARE(saved.size(), frame.size());
        QCOMPARE(saved.pixelColor(600, 400), QColor(90, 120, 60));
        QCOMPARE(saved.convertToFormat(QImage::Format_RGB888),
                 viewModel->controller()->latestFrame());
        QVERIFY2(saved.copy(0, 0, 120, 40).convertToFormat(QImage::Format_RGB888) !=
                     frame.copy(0, 0, 120, 40),
                 "the time stamp is in it");
    }

    void withoutAFolderThereIsNoFile()
    {
        const auto viewModel = withPath({});
        QVERIFY(feed(*viewModel, QImage(64, 48, QImage::Format_RGB888)));
        QCOMPARE(viewModel->nextScreenshotFilePath(), QString());
        QCOMPARE(viewModel->captureScreenshot(), QString());
    }

    void aFolderThatCannotBeMade()
    {
        const QTemporaryDir folder;
        QFile blocker(folder.filePath(QStringLiteral("datei")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        const auto viewModel = withPath(blocker.fileName() + QStringLiteral("/unter"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                               "Zielordner konnte nicht erzeugt werden:.*unter")));
        QCOMPARE(viewModel->nextScreenshotFilePath(), QString());
    }

    void aFullDiskLeavesNothingBehind_data()
    {
        QTest::addColumn<bool>("withMarks");
        QTest::newRow("bare") << false;
        QTest::newRow("grabbed by the window") << true;
    }

    void aFullDiskLeavesNothingBehind()
    {
        QFETCH(bool, withMarks);
        const QTemporaryDir folder;
        const auto viewModel = withPath(folder.path());
        QImage frame(320, 240, QImage::Format_RGB888);
        for (int i = 0; i < frame.sizeInBytes(); ++i)
            frame.bits()[i] = static_cast<uchar>(i * i % 251); // compresses badly
        QVERIFY(feed(*viewModel, frame));

        // The system refuses to let any file grow: writing fails as on a full disk.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit tight{2000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("Speichern fehlgeschlagen:")));
        const bool saved = withMarks ? viewModel->saveScreenshot(frame, folder.filePath("bild.png"))
                                     : !viewModel->captureScreenshot().isEmpty();
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(!saved);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
    }
};

QTEST_MAIN(TestCameraViewModelScreenshot)
#include "tst_cameraviewmodel_screenshot.moc"
