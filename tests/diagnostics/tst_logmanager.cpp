#include "diagnostics/DataFolder.h"
#include "diagnostics/LogFlood.h"
#include "diagnostics/LogManager.h"
#include "diagnostics/PersonalPaths.h"
#include "diagnostics/Utf8Stream.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTest>

#include <thread>
#include <vector>

using namespace meridax;

namespace {

QStringList console; ///< what reached the handler that was there before

void recordConsole(QtMsgType, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1StringView("[thread")) && !LogFlood::mayRepeat(context.category))
        console << message;
}

QString backup(int index)
{
    return LogManager::logFilePath() + u'.' + QString::number(index);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The text of the newest line, without time, level and, in builds that have one, location.
QString newest()
{
    static const QRegularExpression location(QStringLiteral(" \\([^()]+\\.cpp:\\d+\\)$"));
    return LogManager::tail(1).mid(30).remove(location);
}

void append(std::intptr_t target, const char *utf8, std::size_t size)
{
    reinterpret_cast<QByteArray *>(target)->append(utf8, static_cast<qsizetype>(size));
}

bool isForTheOwnerOnly(const QString &path)
{
    return !(QFile::permissions(path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                         QFile::ReadOther | QFile::WriteOther | QFile::ExeOther));
}

/// How often `message` was written, by the lines that hold it and by those that count it.
qint64 occurrences(const QString &log, const QString &message)
{
    static const QRegularExpression counted(QStringLiteral("\\] \\[LogManager\\] (\\d+)-mal "));
    qint64 sum = 0;
    const QStringList lines = log.split(u'\n').filter(message);
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = counted.match(line);
        sum += match.hasMatch() ? match.captured(1).toLongLong() : 1;
    }
    return sum;
}

/// The tail as the crash handler gets it.
QByteArray crashTail(int lines)
{
    QByteArray bytes;
    LogManager::writeTail(lines, append, reinterpret_cast<std::intptr_t>(&bytes));
    return bytes;
}

/// How many lines each of the 8 threads of the load test logs: by default as many as the files
/// hold.
constexpr int kStoredLinesPerThread = 4000;
int linesPerThread()
{
    const int wanted = qEnvironmentVariableIntValue("MERIDAX_LOG_LINES");
    return wanted > 0 ? wanted : kStoredLinesPerThread;
}

} // namespace

/// One process has one log: the slots run in this order and build on each other.
class TestLogManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
        QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    }

    void beforeInstallationThereIsNothing()
    {
        QCOMPARE(LogManager::tail(0), QString());
        QCOMPARE(LogManager::tailFromFiles(0), QString());
        QCOMPARE(crashTail(50), QByteArray());
    }

    void inheritsAFullFileAndRotatesItOnTheFirstLine()
    {
        QVERIFY(QDir().mkpath(LogManager::logDirectory()));
        const QByteArray old(1'048'575, 'o');
        QVERIFY(writeFile(LogManager::logFilePath(), old));
        QVERIFY(writeFile(backup(3), "oldest"));
        QVERIFY(writeFile(backup(2), "middle"));
        for (const QString &path : {dataFolder(), LogManager::logFilePath()})
            QVERIFY(QFile::setPermissions(path, QFile::Permissions(0x7777)));
        qInstallMessageHandler(recordConsole);
        LogManager::install();
        QVERIFY(contentOf(backup(1)).startsWith(old + QByteArray("20")));
        QVERIFY(contentOf(backup(1)).contains("  Ringbuffer: 500 Zeilen"));
        QVERIFY(!QFile::exists(backup(2)));
        QCOMPARE(contentOf(backup(3)), "middle");
        QCOMPARE(contentOf(LogManager::logFilePath()), QByteArray());
        QCOMPARE(newest(), QStringLiteral("[LogManager] Logging gestartet — Datei: %1  Ringbuffer: "
                                          "500 Zeilen")
                               .arg(LogManager::logFilePath()));
        for (const QString &path : {dataFolder(), LogManager::logFilePath(), backup(1)})
            QVERIFY2(isForTheOwnerOnly(path), qPrintable(path));
        LogManager::install(); // a second time: neither a banner nor a handler that calls itself
        QCOMPARE(console.size(), 1);
        QCOMPARE(LogManager::tail(0).count(u'\n'), 0);
    }

    void linesAreFormattedByTypeAndContext_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("expected");
        const QByteArray path("/a b/%2/x.cpp");
        QTest::newRow("debug") << int(QtDebugMsg) << path << 7 << "[DBG] m (/a b/%2/x.cpp:7)";
        QTest::newRow("warning") << int(QtWarningMsg) << path << 0 << "[WRN] m";
        QTest::newRow("critical") << int(QtCriticalMsg) << QByteArray() << 7 << "[ERR] m";
        QTest::newRow("fatal") << int(QtFatalMsg) << path << -1 << "[FTL] m";
        QTest::newRow("info") << int(QtInfoMsg) << path << 1 << "[INF] m (/a b/%2/x.cpp:1)";
        QTest::newRow("unknown") << 99 << QByteArray() << 0 << "[???] m";
    }

    void linesAreFormattedByTypeAndContext()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, file);
        QFETCH(int, line);
        QFETCH(QString, expected);
        const QMessageLogContext context(file.isNull() ? nullptr : file.constData(), line, nullptr,
                                         nullptr);
        const QString composed =
            LogManager::compose(static_cast<QtMsgType>(type), context, QStringLiteral("m"));
        static const QRegularExpression time(
            QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "));
        const QRegularExpressionMatch match = time.match(composed);
        QVERIFY2(match.hasMatch(), qPrintable(composed));
        QCOMPARE(composed.mid(match.capturedLength()), expected);
    }

    void personalDataAreCleaned_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("cleaned");
        const auto row = [](const char *name, const char *text, const char *cleaned) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(cleaned);
        };
        row("address", "an Max.M+x%1@mail.example.org.", "an <user>@mail.example.org.");
        row("two in a row", "a@b.com_x@d.org", "<user>@b.com<user>@d.org");
        row("behind a long run", "=aaaa.bbb-c_d%@e.de@f.fr", "=<user>@e.de@f.fr");
        row("umlaut ends an address", "jörg@x.de", "jö<user>@x.de");
        row("no address", "a@b, @x.de, x@y.z, 5 @ 7", "a@b, @x.de, x@y.z, 5 @ 7");
        row("member", R"({"emailConfirm" : "geheim", "a": 1})",
            R"({"emailConfirm":"<redacted>", "a": 1})");
        row("members", R"("emailConfirm":"a@b.de"|"emailConfirm"  :  "")",
            R"("emailConfirm":"<redacted>"|"emailConfirm":"<redacted>")");
        row("other members", R"({"email": "a@b.de", "emailConfirm": 5, "EmailConfirm": "x"})",
            R"({"email": "<user>@b.de", "emailConfirm": 5, "EmailConfirm": "x"})");
        row("place marks", "%1 [%2] %3 \\1", "%1 [%2] %3 \\1");
    }

    void personalDataAreCleaned()
    {
        QFETCH(QString, text);
        QFETCH(QString, cleaned);
        QCOMPARE(LogManager::sanitize(text), cleaned);
        qInfo().noquote() << text;
        QCOMPARE(newest(), cleaned);
        QVERIFY(contentOf(LogManager::logFilePath()).endsWith(' ' + cleaned.toUtf8() + '\n'));
        QCOMPARE(console.last(), text); // the console is the user's own
    }

    void whatLeavesTheComputerNamesNoUser_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("cleaned");
        const auto row = [](const char *text, const char *cleaned) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(cleaned);
        };
        row("/home/max", "~");
        row("Datei: /home/max/a b.png, \"/home/max\".", "Datei: ~/a b.png, \"~\".");
        row("file:///home/max/x", "file://~/x");
        row("/data/homes/jörg müller/x", "~/x");
        row("file:///data/homes/j%C3%B6rg%20m%C3%BCller/x", "file://~/x");
        row("C:/Users/Max/x C:\\Users\\Max\\x \"c:\\\\users\\\\max\\\\x\"", "~/x ~\\x \"~\\\\x\"");
        row("/media/max/STICK /run/user/MAX.", "/media/<user>/STICK /run/user/<user>.");
        row("/mnt/home/max/x", "/mnt/home/<user>/x");
        row("/home/maximilian /home/max-2 /home/max.old /home/max_", "/home/maximilian "
                                                                     "/home/max-2 /home/max.old "
                                                                     "/home/max_");
        row("max. 30 Bilder, Kamera \"max\"", "max. 30 Bilder, Kamera \"max\"");
        row("[camera] /dev/video0 (x.cpp:7)", "[camera] /dev/video0 (x.cpp:7)");
    }

    void whatLeavesTheComputerNamesNoUser()
    {
        QFETCH(QString, text);
        const PersonalPaths paths{{QStringLiteral("/home/max"),
                                   QStringLiteral("/data/homes/jörg müller"),
                                   QStringLiteral("C:/Users/Max"), QStringLiteral("/"), QString()},
                                  {QStringLiteral("max"), QString()}};
        QTEST(withoutPersonalPaths(text, paths), "cleaned");
        QCOMPARE(withoutPersonalPaths(text, {{QStringLiteral("/"), QString()}, {QString()}}), text);
    }

    void longTextsAreCleanedInLinearTime()
    {
        // 2 MB of characters that an address may have: trying each of them would take hours.
        const QString run(2'000'000, u'a');
        QCOMPARE(LogManager::sanitize(run + u'@'), run + u'@');
        QCOMPARE(LogManager::sanitize(run + QStringLiteral("@b.de")),
                 QStringLiteral("<user>@b.de"));
        const QString dots = QStringLiteral("a@") + QString(200'000, u'.');
        QCOMPARE(LogManager::sanitize(dots), dots);
    }

    void theRingHoldsTheNewest500()
    {
        for (int i = 0; i < 501; ++i)
            qInfo() << "line" << i;
        QVERIFY(LogManager::tail(500).section(u'\n', 0, 0).endsWith(QLatin1StringView(" line 1")));
        for (const int all : {0, -1, 500, 1000})
            QCOMPARE(LogManager::tail(all), LogManager::tail(500));
        QCOMPARE(LogManager::tail(500).count(u'\n'), 499);
        QCOMPARE(LogManager::tail(3), LogManager::tail(0).section(u'\n', -3));
        QCOMPARE(LogManager::tailFromFiles(3), LogManager::tail(3));
    }

    void aTextOfSeveralLinesIsOneEntry()
    {
        qInfo("two\n\n lines ");
        QVERIFY(LogManager::tail(1).endsWith(QLatin1StringView("[INF] two\n\n lines ")));
        QVERIFY(LogManager::tailFromFiles(3).endsWith(QLatin1StringView("[INF] two\n\nlines")));
    }

    void theCrashHandlerGetsTheTailAsUtf8()
    {
        QString text = QStringLiteral("ä€😀 ");
        text += QChar(0xD83D); // halves of a pair, alone
        text += u'x';
        text += QChar(0xDE00);
        text += QChar(0xD83D);
        qInfo().noquote() << text << QString(1000, u'日');
        for (const int lines : {1, 50, 0})
            QCOMPARE(crashTail(lines), LogManager::tail(lines).toUtf8());
    }

    void messagesOfOneKind_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("same");
        const auto row = [](const char *message, bool same) {
            QTest::newRow(message) << QString::fromLatin1(message) << same;
        };
        row("Corrupt JPEG data: 13 extraneous bytes before marker 0xd9", true);
        row("Corrupt JPEG data: 4 extraneous bytes before marker 0xDA", true);
        row("Corrupt JPEG data: 4 extraneous bytes before marker 0x", true);
        row("Corrupt JPEG data: 4 extraneous bytes before marker d9", false);
        row("Corrupt JPEG data:  extraneous bytes before marker 0xd9", false);
        row("Corrupt JPEG data: 13 extraneous bytes before marker 0xd9.", false);
        row("Corrupt JPEG data: 13 extraneous bytes before marker ", false);
        row("Corrupt JPEG data: 13 extraneous bits before marker 0xd9", false);
        row("", false);
    }

    void messagesOfOneKind()
    {
        QFETCH(bool, same);
        const QString known =
            QStringLiteral("Corrupt JPEG data: 2 extraneous bytes before marker 0xd9");
        const QString other = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(differInNumbersOnly(known, other), same);
        QCOMPARE(differInNumbersOnly(other, known), same);
    }

    void aFloodIsToldInGrowingPauses()
    {
        using namespace std::chrono_literals;
        LogFlood flood;
        const LogFlood::Clock::time_point start(1000s);
        const auto count = [&](const char *text, std::chrono::seconds time) {
            return flood.count(QtWarningMsg, "jpeg", QString::fromLatin1(text), start + time);
        };
        const auto watch = [&](const char *text, std::chrono::seconds time) {
            const QString message = QString::fromLatin1(text);
            return flood.watch(QtWarningMsg, "jpeg", message, message, start + time);
        };
        QVERIFY(!count("a", 0s));
        QVERIFY(watch("a", 0s).empty());
        std::vector<qint64> told;
        for (std::chrono::seconds time = 1s; time < 2000s; ++time) {
            for (const LogFlood::Kind &kind : flood.takeDue(start + time))
                told.push_back(time.count() * 1'000'000 + kind.untold);
            QVERIFY(count("a", time));
        }
        QCOMPARE(told, (std::vector<qint64>{10'000'009, 70'000'060, 430'000'360, 1030'000'600,
                                            1630'000'600}));
        QVERIFY2(!flood.count(QtDebugMsg, "jpeg", u"a", start), "another level");
        QVERIFY2(!flood.count(QtWarningMsg, "png", u"a", start), "another library");
        QVERIFY(flood.takeDue(start + 2058s).empty());
        QCOMPARE(flood.takeDue(start + 2059s).at(0).untold, 370); // it has stopped
        QVERIFY(!count("a", 2059s));

        // The ninth kind takes the place of the one that is silent for longest.
        for (const char *text : {"a", "b", "c", "d", "e", "f", "g", "h"})
            QVERIFY(watch(text, 3000s).empty() && count(text, 3001s));
        QVERIFY(count("a", 3002s));
        QCOMPARE(watch("i", 3003s).at(0).message, "b");
        QVERIFY(!count("b", 3004s) && count("a", 3004s));
        QCOMPARE(flood.takeAll().size(), 7U);
        QVERIFY(flood.takeAll().empty() && !count("a", 3005s));
    }

    void floodsLeaveTheRestOfTheLog()
    {
        static const QLoggingCategory jpeg("qt.gui.imageio.jpeg");
        static const QLoggingCategory video("qt.multimedia.video");
        constexpr int kThreads = 4;
        constexpr int kRounds = 40'000;
        std::vector<std::thread> threads;
        for (int thread = 0; thread < kThreads; ++thread) {
            threads.emplace_back([thread] {
                for (int i = 0; i < kRounds; ++i) {
                    qCWarning(jpeg, "Corrupt JPEG data: %d extraneous bytes by a@b.de", i % 30);
                    qCWarning(video, "Packet lost");
                    if (i % 1000 == 0)
                        qInfo("[thread %d] the same own line", thread);
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        const QString crash = QString::fromUtf8(crashTail(50));
        QCOMPARE(crash.count(u'\n'), 49);
        QVERIFY2(crash.section(u'\n', -2).contains(QRegularExpression(
                     QStringLiteral(
                         "^[-0-9]{10} [:0-9.]{12} \\[WRN\\] \\[LogManager\\] \\d+-mal wiederholt: "
                         "Corrupt JPEG data: \\d+ extraneous bytes by <user>@b.de$"),
                     QRegularExpression::MultilineOption)),
                 qPrintable(crash));
        // Here a thread that was the first as well logs a line more, and tells are rare: all of it
        // fits in between the own lines.
        for (const QString &log :
             {QString::fromUtf8(crashTail(0)), LogManager::tail(0), LogManager::tailFromFiles(0)}) {
            QCOMPARE(occurrences(log, QStringLiteral("Corrupt JPEG data")), kThreads * kRounds);
            QCOMPARE(occurrences(log, QStringLiteral("Packet lost")), kThreads * kRounds);
            QVERIFY(log.count(QStringLiteral("Packet lost")) < 2 * kThreads);
            QCOMPARE(log.count(QStringLiteral("the same own line")), kThreads * kRounds / 1000);
        }
    }

    void atMostFourFilesExist()
    {
        for (int i = 1; i <= 6; ++i)
            qInfo().noquote() << i << QString(1'048'576, u'x'); // each fills a file by itself
        QCOMPARE(QDir(LogManager::logDirectory()).entryList(QDir::Files, QDir::Name),
                 QStringList({QStringLiteral("meridax.log"), QStringLiteral("meridax.log.1"),
                              QStringLiteral("meridax.log.2"), QStringLiteral("meridax.log.3")}));
        for (int index = 1; index <= 3; ++index)
            QVERIFY(contentOf(backup(index)).contains(QByteArray::number(7 - index) + " xxx"));
    }

    void eightThreadsLoseAndTearNoLine()
    {
        const int lines = linesPerThread();
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 8; ++thread) {
            threads.emplace_back([thread, lines] {
                for (int i = 1; i <= lines; ++i)
                    qInfo("[thread %d] %d of the lines that no other may tear", thread, i);
            });
        }
        for (std::thread &thread : threads)
            thread.join();

        // What the files still hold is the end of the whole, so each thread's numbers follow on.
        static const QRegularExpression form(
            QStringLiteral("^[-0-9]{10} [:0-9.]{12} \\[INF\\] \\[thread (\\d)\\] (\\d+) of the "
                           "lines that no other "
                           "may tear$"));
        const QStringList stored =
            LogManager::tailFromFiles(0).split(u'\n').filter(QStringLiteral("thread"));
        if (lines <= kStoredLinesPerThread)
            QCOMPARE(stored.size(), 8 * lines);
        std::vector<int> last(8, 0);
        for (const QString &line : stored) {
            const QRegularExpressionMatch match = form.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            int &number = last[match.captured(1).toUInt()];
            if (number > 0)
                QCOMPARE(match.captured(2).toInt(), number + 1);
            number = match.captured(2).toInt();
        }
        for (const int number : last)
            QVERIFY(number == lines || (number == 0 && lines > kStoredLinesPerThread));
        QCOMPARE(LogManager::tail(0), stored.last(500).join(u'\n'));
    }

    void withoutAFileTheRingGoesOn()
    {
        // The folder is gone when the file is to be opened anew, and stays gone.
        QDir(LogManager::logDirectory()).removeRecursively();
        qInfo().noquote() << QString(1'048'576, u'x');
        qInfo("after");
        QCOMPARE(newest(), QStringLiteral("after"));
        QVERIFY(!QFile::exists(LogManager::logDirectory()));
        QCOMPARE(console.last(), QStringLiteral("after"));
    }
};

QTEST_GUILESS_MAIN(TestLogManager)
#include "tst_logmanager.moc"
