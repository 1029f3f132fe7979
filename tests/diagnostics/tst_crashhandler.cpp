#include "BuildInfo.h"
#include "diagnostics/CrashHandler.h"
#include "diagnostics/CrashReport.h"
#include "diagnostics/DataFolder.h"

#ifdef Q_OS_LINUX
#include "diagnostics/CrashSignals.h"
#endif

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace meridax;

namespace {

constexpr int kDeadlineMs = 30000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isForTheOwnerOnly(const QString &path)
{
    return !(QFile::permissions(path) &
             (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther));
}

/// The crasher, with a data folder of its own.
class Crasher
{
public:
    explicit Crasher(const QString &dataHome = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"),
                           dataHome.isEmpty() ? m_folder.path() : dataHome);
        process.setProcessEnvironment(environment);
        QDir().mkpath(dataFolder());
    }
    ~Crasher()
    {
        process.kill();
        process.waitForFinished();
    }

    void start(const QStringList &arguments)
    {
        process.start(qEnvironmentVariable("CRASHER"), arguments);
    }
    bool endsBy(int signal)
    {
        return process.waitForFinished(kDeadlineMs) &&
               process.exitStatus() == QProcess::CrashExit && process.exitCode() == signal;
    }

    QString dataFolder() const
    {
        return m_folder.filePath(QStringLiteral("Tarnwick Optics/Meridax"));
    }
    QString reportPath() const { return dataFolder() + QStringLiteral("/crash.txt"); }
    /// What the log section has to be: the last 50 lines of the file.
    QByteArray endOfLog() const
    {
        const QByteArray log =
            contentOf(dataFolder() + QStringLiteral("/logs/meridax.log")).trimmed();
        const QByteArrayList lines = log.split('\n');
        return lines.last(qMin(lines.size(), 50)).join('\n') + "\r\n";
    }

    QProcess process;

private:
    QTemporaryDir m_folder;
};

/// Lines 1 to 10 of a report as a pattern; "code" and "module" are patterns themselves.
QString reportPattern(const QString &code, const QString &module)
{
    const QStringList lines = {
        QStringLiteral("=== Meridax Crash Report ==="),
        QStringLiteral("Timestamp:     (\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z)"),
        QStringLiteral("ExceptionCode: ") + code,
        QStringLiteral("ExceptionAddr: 0x[0-9A-F]{16}"),
        QStringLiteral("Module:        ") + module,
        QStringLiteral("AppVersion:    ") + QRegularExpression::escape(build::version()),
        QStringLiteral("AppCommit:     ") + build::commit(),
        QStringLiteral("BuildTime:     ") + build::buildTime(),
        QString(),
        QStringLiteral("--- Last 50 log lines ---"),
    };
    return QStringLiteral("^") + lines.join(QStringLiteral("\\r\\n")) + QStringLiteral("\\r\\n");
}

void append(std::intptr_t target, const char *data, std::size_t size)
{
    reinterpret_cast<QByteArray *>(target)->append(data, static_cast<qsizetype>(size));
}

} // namespace

class TestCrashHandler : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
        QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    }

    void theReportIsExact()
    {
        using namespace std::chrono;
        QByteArray bytes;
        const crash::ReportFile file{reinterpret_cast<std::intptr_t>(&bytes), append};
        const auto time = sys_days(year(2028) / 2 / 29) + 23h + 5min + 9s + 7ms;
        crash::writeOrigin(file, time, 0xC0000005, 0x7FF6A1B2);
        crash::writeModule(file, "meridax.exe", 0x1'0000'00AB);
        crash::writeModule(file, nullptr, 0);
        crash::writeModule(file, QByteArray(600, 'x').constData(), 0); // no room: left out
        crash::writeBuild(file, "1.0.6", "b1d5b6d", "2026-08-20T22:34:18Z");
        crash::writeLog(file, [](const crash::ReportFile &) { return false; });
        crash::writeLog(file, [](const crash::ReportFile &to) {
            to.write(to.handle, "a\nb", 3);
            return true;
        });
        QCOMPARE(bytes, QByteArray("=== Meridax Crash Report ===\r\n"
                                   "Timestamp:     2028-02-29T23:05:09.007Z\r\n"
                                   "ExceptionCode: 0xC0000005 (ACCESS_VIOLATION)\r\n"
                                   "ExceptionAddr: 0x000000007FF6A1B2\r\n"
                                   "Module:        meridax.exe+0xAB\r\n"
                                   "Module:        <unbekannt>\r\n"
                                   "AppVersion:    1.0.6\r\n"
                                   "AppCommit:     b1d5b6d\r\n"
                                   "BuildTime:     2026-08-20T22:34:18Z\r\n"
                                   "\r\n"
                                   "--- Last 50 log lines ---\r\n"
                                   "a\nb\r\n"));
        QCOMPARE(crash::exceptionName(0x80000003), "UNKNOWN");
        QCOMPARE(crash::exceptionName(0xE06D7363), "C++_EXCEPTION");
    }

    void everyWayToCrashLeavesAReport_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("module");
        QTest::addColumn<bool>("hasLog");
        const QString own = QStringLiteral("crasher\\+0x[0-9A-F]+");
        const QString library = QStringLiteral("libc\\.so\\.6\\+0x[0-9A-F]+");
        const QString access = QStringLiteral("0xC0000005 \\(ACCESS_VIOLATION\\)");
        const QString overflow = QStringLiteral("0xC00000FD \\(STACK_OVERFLOW\\)");
        const QString exception = QStringLiteral("0xE06D7363 \\(C\\+\\+_EXCEPTION\\)");
        const QString aborted = QStringLiteral("0x00000006 \\(UNKNOWN\\)");
        const auto row = [](const char *way, int signal, const QString &code, const QString &module,
                            bool hasLog = true) {
            QTest::newRow(way) << QStringList(QString::fromLatin1(way)) << signal << code << module
                               << hasLog;
        };
        row("null-write", SIGSEGV, access, own);
        row("jump", SIGSEGV, access, QStringLiteral("<unbekannt>"));
        row("abort", SIGABRT, aborted, library);
        row("fatal-message", SIGABRT, aborted, library);
        row("terminate", SIGABRT, aborted, library);
        row("exception", SIGABRT, exception, own);
        row("noexcept", SIGABRT, exception, own);
        row("thread-exception", SIGABRT, exception, own);
        row("bus", SIGBUS, QStringLiteral("0xC0000006 \\(IN_PAGE_ERROR\\)"), own);
        row("illegal", SIGILL, QStringLiteral("0xC000001D \\(ILLEGAL_INSTRUCTION\\)"), library);
        row("trap", SIGTRAP, QStringLiteral("0x00000005 \\(UNKNOWN\\)"), library);
#ifdef Q_PROCESSOR_X86
        row("division", SIGFPE, QStringLiteral("0xC0000094 \\(INT_DIVIDE_BY_ZERO\\)"), own);
        row("float-division", SIGFPE, QStringLiteral("0xC000008E \\(FLT_DIVIDE_BY_ZERO\\)"), own);
#endif
        row("stack-overflow", SIGSEGV, overflow, own);
        row("thread", SIGSEGV, access, own);
        row("thread-stack-overflow", SIGSEGV, overflow, own);
        row("uncovered-thread", SIGSEGV, access, own);
        row("two-threads", SIGSEGV, access, own);
        // The logger cannot be asked: nothing but the log is missing.
        row("in-logger", SIGSEGV, access, own, false);
        row("logger-stuck", SIGSEGV, access, own, false);
        // The report fails when all is written.
        row("in-handler", SIGSEGV, aborted, library);
        row("abort-in-handler", SIGABRT, access, own);
        row("hanging-handler", SIGSEGV, access, own);
        QTest::newRow("no log") << QStringList{QStringLiteral("null-write"),
                                               QStringLiteral("--no-log")}
                                << SIGSEGV << access << own << false;
    }

    void everyWayToCrashLeavesAReport()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, signal);
        QFETCH(QString, code);
        QFETCH(QString, module);
        QFETCH(bool, hasLog);
        Crasher crasher;
        const QDateTime before = QDateTime::currentDateTimeUtc();
        crasher.start(arguments);
        QVERIFY2(crasher.endsBy(signal), crasher.process.readAllStandardError());
        const QByteArray report = contentOf(crasher.reportPath());
        const QRegularExpression pattern(reportPattern(code, module));
        const QRegularExpressionMatch match = pattern.match(QString::fromUtf8(report));
        QVERIFY2(match.hasMatch(), report);
        const QDateTime time = QDateTime::fromString(match.captured(1), Qt::ISODateWithMs);
        QVERIFY(time >= before && time <= QDateTime::currentDateTimeUtc());
        const QByteArray log = report.mid(match.captured(0).toUtf8().size());
        QCOMPARE(log, hasLog ? crasher.endOfLog() : QByteArray());
        QVERIFY(isForTheOwnerOnly(crasher.reportPath()));
    }

    void aFloodIsCountedToTheEnd()
    {
        const QByteArray count("[WRN] [LogManager] 999-mal wiederholt: frame 0 is damaged");
        Crasher crashing;
        crashing.start({QStringLiteral("flood")});
        QVERIFY(crashing.endsBy(SIGSEGV));
        const QByteArray report = contentOf(crashing.reportPath());
        QVERIFY2(report.endsWith(count + "\r\n"), report);
        QVERIFY(report.contains("[WRN] frame 0 is damaged"));
        QVERIFY(!report.contains("frame 1 is damaged"));

        Crasher ending;
        ending.start({QStringLiteral("end-in-flood")});
        QVERIFY(ending.process.waitForFinished(kDeadlineMs));
        const QByteArray log = ending.endOfLog();
        QVERIFY2(log.endsWith(count + "\r\n"), log);
    }

    void aSignalFromOutsideReplacesTheReportBefore()
    {
        Crasher crasher;
        QFile earlier(crasher.reportPath());
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        earlier.write(QByteArray(100'000, 'x'));
        earlier.close();
        earlier.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
        crasher.start({QStringLiteral("wait")});
        QVERIFY(crasher.process.waitForReadyRead(kDeadlineMs));
        ::kill(static_cast<pid_t>(crasher.process.processId()), SIGFPE);
        QVERIFY(crasher.endsBy(SIGFPE));
        const QByteArray report = contentOf(crasher.reportPath());
        QVERIFY2(report.contains("\r\nExceptionCode: 0x00000008 (UNKNOWN)\r\n"), report);
        QVERIFY(report.endsWith(crasher.endOfLog()) && !report.contains("xxx"));
        QVERIFY(isForTheOwnerOnly(crasher.reportPath()));
    }

    void withoutADataFolderTheProgramDiesAsItWould()
    {
        Crasher crasher(QStringLiteral("/dev/null/nowhere"));
        crasher.start({QStringLiteral("null-write")});
        QVERIFY(crasher.endsBy(SIGSEGV));
        QVERIFY(crasher.process.readAllStandardError().contains(
            "[LogManager] Logging gestartet — Datei: <keine>  Ringbuffer: 500 Zeilen"));
    }

#ifdef Q_OS_LINUX
    void signalsBecomeCodes_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("reason");
        QTest::addColumn<quint32>("code");
        // What the crasher cannot bring about on every processor.
        QTest::newRow("misaligned") << SIGBUS << int(BUS_ADRALN) << 0x80000002U;
        QTest::newRow("integer overflow") << SIGFPE << int(FPE_INTOVF) << 0xC0000095U;
        QTest::newRow("overflow") << SIGFPE << int(FPE_FLTOVF) << 0xC0000091U;
        QTest::newRow("underflow") << SIGFPE << int(FPE_FLTUND) << 0xC0000093U;
        QTest::newRow("invalid") << SIGFPE << int(FPE_FLTINV) << 0xC0000090U;
        QTest::newRow("bounds") << SIGFPE << int(FPE_FLTSUB) << 0xC000008CU;
        QTest::newRow("inexact") << SIGFPE << int(FPE_FLTRES) << 8U;
    }

    void signalsBecomeCodes()
    {
        QFETCH(int, signal);
        QFETCH(int, reason);
        QTEST(crash::exceptionCode(signal, reason, false), "code");
    }
#endif

    void theFileIsTheMarker()
    {
        CrashHandler::removeCrashFile(); // harmless without one
        QVERIFY(!CrashHandler::hasCrashFile());
        QCOMPARE(CrashHandler::readCrashFile(), QString());
        QVERIFY(makeDataFolder());
        QFile file(CrashHandler::crashFilePath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("Module:        x\r\n\r\nä\nb\r\n");
        file.close();
        QVERIFY(CrashHandler::hasCrashFile());
        QCOMPARE(CrashHandler::readCrashFile(), QStringLiteral("Module:        x\n\nä\nb\n"));
        CrashHandler::removeCrashFile();
        QVERIFY(!CrashHandler::hasCrashFile());
    }
};

QTEST_GUILESS_MAIN(TestCrashHandler)
#include "tst_crashhandler.moc"
