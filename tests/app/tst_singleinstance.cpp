#include "app/SingleInstance.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QWindow>

#include <csignal>
#include <memory>

#include <sys/stat.h>

using namespace meridax;

namespace {

const QString kServerName = QStringLiteral("TO-Meridax-SingleInstance");

/// The real program, with the data folder of this test.
class Instance
{
public:
    explicit Instance(
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(qEnvironmentVariable("MERIDAX_PROGRAM"), QStringList());
    }
    ~Instance()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// True once it answers on the raise channel, which opens after the QML is loaded.
    bool isListening()
    {
        return QTest::qWaitFor(
            [this] {
                if (m_process.state() == QProcess::NotRunning)
                    return false;
                QLocalSocket socket;
                socket.connectToServer(kServerName);
                return socket.waitForConnected(100);
            },
            20000);
    }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    QProcess &process() { return m_process; }

private:
    QProcess m_process;
};

} // namespace

class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void secondLaunchEndsWithSuccessAndTheFirstGoesOn()
    {
        Instance first;
        QVERIFY2(first.isListening(), first.process().readAll());
        Instance second;
        QVERIFY(second.process().waitForFinished());
        QCOMPARE(second.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.process().exitCode(), 0);
        QVERIFY(first.isRunning());
    }

    void aLockLeftByAKilledRunKeepsNobodyOut()
    {
        {
            Instance killed;
            QVERIFY(killed.isListening());
            ::kill(static_cast<pid_t>(killed.process().processId()), SIGKILL);
            QVERIFY(killed.process().waitForFinished());
        }
        Instance next;
        QVERIFY2(next.isListening(), next.process().readAll());
    }

    void aCrashLeavesTheLogAndAReport()
    {
        const QString folder =
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
            QStringLiteral("/Tarnwick Optics/Meridax/");
        QFile log(folder + QStringLiteral("logs/meridax.log"));
        QFile report(folder + QStringLiteral("crash.txt"));
        log.remove();
        Instance crashing;
        QVERIFY(crashing.isListening());
        QVERIFY(!report.exists());
        ::kill(static_cast<pid_t>(crashing.process().processId()), SIGSEGV);
        QVERIFY(crashing.process().waitForFinished());
        QCOMPARE(crashing.process().exitStatus(), QProcess::CrashExit);
        QCOMPARE(crashing.process().exitCode(), SIGSEGV);
        QVERIFY(report.open(QIODevice::ReadOnly) && log.open(QIODevice::ReadOnly));
        QVERIFY(log.readLine().contains("[INF] [LogManager] Logging gestartet"));
        QVERIFY(log.readLine().contains("[INF] [CrashHandler] installiert"));
        QVERIFY(report.readAll().endsWith(log.readAll().trimmed() + "\r\n"));
        report.remove();
    }

    void withoutADataFolderItSaysSo()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), QStringLiteral("/dev/null/nowhere"));
        Instance program(environment);
        QVERIFY(program.process().waitForFinished());
        QCOMPARE(program.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.process().exitCode(), 1);
        const QString words = QString::fromUtf8(program.process().readAll());
        QVERIFY2(
            words.contains(QStringLiteral("im Ordner /dev/null/nowhere/Tarnwick Optics/Meridax "
                                          "lässt sich keine Datei anlegen")),
            qPrintable(words));
    }

    // As where a distribution's qtlogging.ini has it for every program.
    void debugLinesAreLoggedWhateverTheSystemSays()
    {
        const QString config =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
        QVERIFY(QDir().mkpath(config + QStringLiteral("/QtProject")));
        QFile rules(config + QStringLiteral("/QtProject/qtlogging.ini"));
        QVERIFY(rules.open(QIODevice::WriteOnly));
        rules.write("[Rules]\n*.debug=false\n");
        rules.close();
        QFile log(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                  QStringLiteral("/Tarnwick Optics/Meridax/logs/meridax.log"));
        log.remove();
        Instance program;
        QVERIFY(program.isListening());
        rules.remove();
        QVERIFY(log.open(QIODevice::ReadOnly));
        QVERIFY(log.readAll().contains("[DBG] [ServerConfig]"));
    }

    void damagedSettingsDoNotKeepItFromRunning_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("truncated") << QByteArray(R"({ "darkMode": true, "camera": { "zoom")");
        QTest::newRow("array") << QByteArray("[1, 2, 3]");
        QTest::newRow("wrong types and out of range")
            << QByteArray(R"({ "language": 7, "windowWidth": -5, "calibrationPositions": 1e300,
                "camera": { "zoom": "x", "cameraResolutionX": -1, "cross": [] }, "blob": false })");
        QTest::newRow("language without catalogue") << QByteArray(R"({ "language": "tlh" })");
        QTest::newRow("5 MB of noise") << QByteArray(5 * 1024 * 1024, '\x9d');
    }

    void damagedSettingsDoNotKeepItFromRunning()
    {
        QFETCH(QByteArray, content);
        const QString folder =
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
            QStringLiteral("/Tarnwick Optics/Meridax");
        QVERIFY(QDir().mkpath(folder));
        QFile file(folder + QStringLiteral("/appsettings.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        Instance program;
        QVERIFY(program.isListening());
        // Nothing of Qt or QML has anything to complain about either.
        program.process().waitForReadyRead(300);
        const QByteArray output = program.process().readAll();
        QVERIFY2(!output.contains("qrc:"), output);
    }

    void anyConnectionActivates()
    {
        int activations = 0;
        const ActivationServer server([&activations] { ++activations; });
        QLocalSocket silent;
        silent.connectToServer(kServerName);
        QTRY_COMPARE(activations, 1);
        QLocalSocket chatty;
        chatty.connectToServer(kServerName);
        chatty.write("anything at all");
        QTRY_COMPARE(activations, 2);
    }

    void theChannelAdmitsTheSameUserOnly()
    {
        const mode_t before = ::umask(0);
        const ActivationServer server([] {});
        ::umask(before);
        const auto permissions = QFile::permissions(QDir::tempPath() + u'/' + kServerName);
        QVERIFY(permissions & QFile::WriteOwner);
        QVERIFY(!(permissions & (QFile::WriteGroup | QFile::WriteOther)));
    }

    void aChannelTakenByAnotherServerOnlyCostsTheRaising()
    {
        // A folder of the socket's name can neither be removed nor listened on.
        QVERIFY(QDir(QDir::tempPath()).mkpath(kServerName + QStringLiteral("/occupied")));
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression(QStringLiteral("^\\[main\\] QLocalServer konnte nicht starten: .+ — "
                                              "Activate-on-Second-Launch deaktiviert$")));
        const ActivationServer server([] {});
        QElapsedTimer timer;
        timer.start();
        activateRunningInstance(); // nobody answers, and nobody is told
        QVERIFY(timer.elapsed() < 5000);
        QDir(QDir::tempPath() + u'/' + kServerName).removeRecursively();
    }

    void raisingShowsAHiddenWindowAsNormal()
    {
        QWindow window;
        raiseWindow(window);
        QVERIFY(window.isVisible());
        window.showMinimized();
        raiseWindow(window);
        QTRY_COMPARE(window.visibility(), QWindow::Windowed);
    }
};

QTEST_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
