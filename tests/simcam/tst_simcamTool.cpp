// The command line of the simulated camera.

#include "SimcamTool.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <unistd.h>

class tst_simcamTool : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void wrongArguments_data();
    void wrongArguments();
    void plugsSeveralCameras();
    void runReturnsTheStatus_data();
    void runReturnsTheStatus();
    void runPassesSignalsOn();
    void runCleansUp();

private:
    QTemporaryDir m_temporary;
    QString m_dir;
};

void tst_simcamTool::init()
{
    m_dir = m_temporary.filePath(QTest::currentTestFunction());
    QDir(m_dir).removeRecursively();
    qputenv("SIMCAM_DIR", m_dir.toLocal8Bit());
}

void tst_simcamTool::wrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const QStringList &arguments, const char *message) {
        QTest::newRow(qPrintable(arguments.join(' '))) << arguments << QByteArray(message);
    };
    row({}, "no verb");
    row({"fly"}, "unknown verb: fly");
    row({"plug", "--node", "camera"}, "not a node name");
    row({"plug", "--name", QString(32, 'x')}, "longer than 31 bytes");
    row({"plug", "--radius", "wide"}, "radius: not a number");
    row({"plug", "video3"}, "unexpected argument: video3");
    row({"plug", "--node"}, "missing value after --node");
    row({"plug", "--node", "video0"}, "video0 is plugged in already");
    row({"set"}, "nothing to set");
    row({"set", "radius"}, "not of the form key=value");
    row({"set", "diameter=3"}, "unknown parameter: diameter");
    row({"set", "radius=2"}, "radius: 2 is not between 0 and 0.6");
    row({"set", "marks=1.5"}, "marks: not a whole number");
    row({"set", "noise=nan"}, "noise: not a number");
    row({"set", "dqbuf-errno=EWHAT"}, "dqbuf-errno: not a number");
    row({"get", "diameter"}, "unknown key: diameter");
    row({"truth", "--node", "video9"}, "no camera is plugged in at video9");
    row({"turn"}, "either --to DEG or --by DEG");
    row({"turn", "--to", "1", "--by", "2"}, "either --to DEG or --by DEG");
    row({"turn", "--to", "north"}, "--to: not a number");
    row({"auto-turn"}, "number of positions");
    row({"auto-turn", "-4"}, "turn-positions: -4 is not between");
    row({"play", "/nowhere"}, "no PNG or JPEG files in /nowhere");
    row({"run", "true"}, "give -- and the program");
    row({"run", "--fast", "--", "true"}, "unexpected argument: --fast");
}

void tst_simcamTool::wrongArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    QCOMPARE(simcam({"plug"}).exitCode, 0);
    const ToolResult result = simcam(arguments);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.startsWith("simcam: ") && result.errors.contains(message),
             result.errors.constData());
    QCOMPARE(result.errors.count('\n'), 1);
    QCOMPARE(result.output, QByteArray());
}

void tst_simcamTool::plugsSeveralCameras()
{
    QVERIFY(simcam({"unplug"}).errors.contains("no camera is plugged in"));
    QCOMPARE(simcam({"plug", "--name", "One"}).output, "video0\n");
    QCOMPARE(simcam({"plug", "--name=Two", "--radius=0.2"}).output, "video2\n");
    QCOMPARE(simcam({"list"}).output, "video0=One\nvideo2=Two\n");
    QVERIFY(simcam({"truth"}).errors.contains("several cameras"));
    QCOMPARE(simcam({"set", "--node", "video2", "marks=2"}).exitCode, 0);
    QCOMPARE(simcam({"get", "marks", "--node", "video0"}).output, "1\n");
    QCOMPARE(simcam({"unplug", "--node", "video2"}).exitCode, 0);
    QCOMPARE(simcam({"list"}).output, "video0=One\n");
}

void tst_simcamTool::runReturnsTheStatus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("success") << QStringList{"run", "--", "true"} << 0;
    QTest::newRow("failure") << QStringList{"run", "--", "sh", "-c", "exit 7"} << 7;
    QTest::newRow("signal") << QStringList{"run", "--", "sh", "-c", "kill -9 $$"} << 128 + SIGKILL;
    QTest::newRow("no program") << QStringList{"run", "--", "no-such-program"} << 127;
    QTest::newRow("camera") << QStringList{"run", "--", "test", "-c", "/dev/video0"} << 0;
    QTest::newRow("no camera") << QStringList{"run", "--unplugged", "--",
                                              "sh",  "-c",          "test ! -e /dev/video0"}
                               << 0;
}

void tst_simcamTool::runReturnsTheStatus()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QCOMPARE(simcam(arguments).exitCode, status);
}

void tst_simcamTool::runPassesSignalsOn()
{
    QProcess process;
    process.start(qEnvironmentVariable("SIMCAM_TOOL"),
                  {"run", "--", "sh", "-c",
                   "trap 'echo caught; exit 5' TERM; echo ready; while :; do sleep 0.05; done"});
    QVERIFY(process.waitForReadyRead(10000));
    QCOMPARE(process.readAllStandardOutput(), "ready\n");
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.readAllStandardOutput(), "caught\n");
    QCOMPARE(process.exitCode(), 5);
}

void tst_simcamTool::runCleansUp()
{
    const ToolResult fresh = simcam({"run", "--", "sh", "-c", "echo $SIMCAM_DIR"});
    const QString dir = QString::fromLocal8Bit(fresh.output).trimmed();
    QVERIFY(!dir.isEmpty());
    QVERIFY(dir != m_dir);
    QVERIFY(!QDir(dir).exists());

    // A directory that was given stays, without the camera that was plugged in for the program.
    QCOMPARE(simcam({"--dir", m_dir, "run", "--", "true"}).exitCode, 0);
    QVERIFY(QDir(m_dir).exists());
    QCOMPARE(simcam({"list"}).output, QByteArray());
}

QTEST_GUILESS_MAIN(tst_simcamTool)
#include "tst_simcamTool.moc"
