#include "diagnostics/LogManager.h"
#include "diagnostics/Utf8Stream.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <thread>
#include <vector>

using namespace meridax;

namespace {

QStringList console; ///< what reached the handler that was there before

void recordConsole(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1StringView("[thread")))
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
