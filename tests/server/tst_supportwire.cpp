#include "MessageRecorder.h"
#include "diagnostics/LogManager.h"
#include "server/CrashSubmission.h"
#include "server/ServerErrors.h"
#include "server/SupportWire.h"

#include <QJsonDocument>
#include <QTest>

using namespace meridax;
using namespace Qt::StringLiterals;

namespace {

/// JSON with its quotation marks, for which single ones stand.
QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

const RequestSender kSender{u"guid"_s, u"1.0.6"_s, u"linux-x64"_s, u"Debian"_s};

} // namespace

/// Requests as bytes, replies as records, codes as texts.
class TestSupportWire : public QObject
{
    Q_OBJECT

private slots:
    void requests()
    {
        const ReportRequest full{kSender,  u"Titel ü"_s,  u"Zeile\n2"_s,
                                 u"GUI"_s, u"iVBORw=="_s, u"image/png"_s};
        const ReportRequest bare{kSender, u"t"_s, u"d"_s, {}, {}, u"image/png"_s};
        QCOMPARE(compact(toJson(BugReportRequest{full, u"log"_s})),
                 json("{'appVersion':'1.0.6','category':'GUI','description':"
                      "'Zeile\\n2',"
                      "'logsExcerpt':'log','machineGuid':'guid','operatingSystem':'Debian',"
                      "'platform':'linux-x64','screenshotBase64':'iVBORw==',"
                      "'screenshotMime':'image/png','title':'Titel ü'}"));
        QCOMPARE(compact(toJson(BugReportRequest{bare, {}})),
                 json("{'appVersion':'1.0.6','description':'d','machineGuid':'guid',"
                      "'operatingSystem':'Debian','platform':'linux-x64','title':'t'}"));
        QCOMPARE(compact(toJson(FeatureRequestRequest{bare})),
                 compact(toJson(BugReportRequest{bare, {}})));
        QCOMPARE(compact(toJson(FeedbackRequest{kSender, 5, {}})),
                 json("{'appVersion':'1.0.6','machineGuid':'guid','operatingSystem':'Debian',"
                      "'platform':'linux-x64','rating':5}"));
        QCOMPARE(toJson(FeedbackRequest{kSender, 1, u"c"_s}).value("comment"_L1), "c");
        QCOMPARE(compact(updateInfoRequest(u"guid"_s, u"MERIDAX"_s, u"1.0.6"_s, u"win-x64"_s)),
                 json("{'currentVersion':'1.0.6','machineGuid':'guid','platform':'win-x64',"
                      "'productCode':'MERIDAX'}"));
    }

    void submissions_data()
    {
        QTest::addColumn<Submission>("kind");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("success");
        QTest::addColumn<QString>("text");
        const auto bug = Submission::BugReport;
        const QString unreachable = u"Server nicht erreichbar. Bitte später erneut versuchen."_s;
        const auto row = [](const char *name, Submission kind, int status, const QByteArray &body,
                            bool success, const QString &text) {
            QTest::newRow(name) << kind << status << body << success << text;
        };
        row("success", bug, 200, json("{'success':true,'bugId':'7'}"), true, {});
        row("success in spite of the status", bug, 500, json("{'success':true}"), true, {});
        row("nothing said", bug, 200, "{}", false, unreachable);
        row("a word in place of true", bug, 200, json("{'success':'true'}"), false, unreachable);
        row("no JSON", bug, 200, "<html>", false, unreachable);
        row("array", bug, 200, "[true]", false, unreachable);
        row("500 without a body", bug, 500, "", false, unreachable);
        row("too many bug reports", bug, 429, "", false,
            u"Maximal 10 Bug-Reports pro 24h. Bitte später erneut."_s);
        row("too many features", Submission::FeatureRequest, 429, "{}", false,
            u"Max. 5 Feature-Vorschläge pro 24h. Bitte später erneut."_s);
        row("too much feedback", Submission::Feedback, 429, "", false,
            u"Du hast in den letzten 24h schon Feedback gesendet — danke! Bitte etwas warten."_s);
        row("no tester", bug, 403, "", false, u"NOT_BETA_TESTER"_s);
        row("no tester, with a word", bug, 403, json("{'message':'Nur für Tester'}"), false,
            u"Nur für Tester"_s);
        row("403 says nothing of features", Submission::FeatureRequest, 403, "", false,
            unreachable);
        row("the code goes before the status", bug, 429, json("{'errorCode':'INVALID_TITLE'}"),
            false, u"Titel ist ungültig (max. 200 Zeichen)."_s);
        row("unknown code", bug, 400, json("{'errorCode':'TEAPOT'}"), false, u"TEAPOT"_s);
        row("unknown code with a message", bug, 400,
            json("{'errorCode':'TEAPOT','message':'Heute nur Tee'}"), false, u"Heute nur Tee"_s);
        row("a message alone is not shown", bug, 400, json("{'message':'Heute nur Tee'}"), false,
            unreachable);
    }

    void submissions()
    {
        QFETCH(Submission, kind);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        const SubmissionReply reply =
            readSubmissionReply(kind, {status, status >= 400, u"error"_s, body});
        QTEST(reply.success, "success");
        if (!reply.success)
            QTEST(submissionErrorText(reply.errorCode, reply.message), "text");
    }

    void errorTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("RATE_LIMITED") << u"Zu viele Anfragen — bitte versuche es später erneut."_s;
        QTest::newRow("INVALID_DESCRIPTION") << u"Beschreibung ist ungültig (max. 8000 Zeichen)."_s;
        QTest::newRow("INVALID_RATING") << u"Bewertung muss zwischen 1 und 5 liegen."_s;
        QTest::newRow("INVALID_COMMENT") << u"Kommentar zu lang (max. 4000 Zeichen)."_s;
        QTest::newRow("SCREENSHOT_TOO_LARGE") << u"Screenshot zu groß (max. 5 MB)."_s;
        QTest::newRow("SCREENSHOT_INVALID_MIME") << u"Nur PNG / JPEG erlaubt."_s;
        QTest::newRow("SCREENSHOT_DECODE_FAILED") << u"Screenshot konnte nicht gelesen werden."_s;
    }

    void errorTexts()
    {
        QTEST(submissionErrorText(QString::fromLatin1(QTest::currentDataTag()), u"message"_s),
              "text");
    }

    void updateInfo()
    {
        const auto reply = readUpdateInfoReply(
            {200,
             false,
             {},
             json("{'latest': {'version': '1.1', 'downloadUrl': 'https://x/', 'fileSize': 41.9e9},"
                  "'latestStable': {'version': '1.0.9'}, 'isBetaTester': true,"
                  "'featureRequestsEnabled': false, 'server': {'apiVersion': '3'}}")});
        QVERIFY(reply.success);
        QVERIFY(reply.info.latest.valid);
        QCOMPARE(reply.info.latest.fileSize, 41900000000);
        QVERIFY2(!reply.info.latestStable.valid, "no address");
        QVERIFY(reply.info.bugReportsEnabled && !reply.info.featureRequestsEnabled);
        QCOMPARE(reply.info.server.apiVersion, "3");

        const auto error = readUpdateInfoReply({500, true, {}, json("{'error':'database'}")});
        QVERIFY2(error.success, "the status is not judged");
        QCOMPARE(error.info, UpdateInfo());
        QCOMPARE(readUpdateInfoReply({200, false, {}, "[]"}).error,
                 u"Ungültige JSON-Antwort von /update-info"_s);
        const auto none = readUpdateInfoReply({0, true, u"no route"_s, {}});
        QVERIFY(!none.success && none.info.bugReportsEnabled);
        QCOMPARE(none.error, "no route");
    }

    void legalDocument()
    {
        const auto reply = readLegalDocumentReply(
            u"eula"_s, {399, true, {}, json("{'kind':'x','version':'2','contentMarkdown':'# T'}")});
        QVERIFY2(reply.success, "an error begins at 400");
        QCOMPARE(reply.info.contentMarkdown, "# T");
        QCOMPARE(readLegalDocumentReply(u"eula"_s, {200, false, {}, json("{'version':'2'}")}).error,
                 u"Leerer Markdown-Inhalt"_s);
        QTest::ignoreMessage(QtWarningMsg, "[LegalDoc] eula HTTP 400 {\"a\":1}");
        QCOMPARE(readLegalDocumentReply(u"eula"_s, {400, true, {}, json("{'a':1}")}).error,
                 "HTTP 400");
    }

    // The log goes by lines, and a terminal by escape sequences: neither may be the server's.
    void bodiesAreLoggedOnOneLine()
    {
        const QByteArray body = "{\"a\":1}\r\n2026-01-01 00:00:00.000 [INF]\t[x]\x1b[2J\x07\xc2\x9b"
                                "\xe2\x80\xa8\xe2\x80\xae \xc3\xbc%1";
        QTest::ignoreMessage(
            QtWarningMsg,
            QString(u"[LegalDoc] eula HTTP 500 {\"a\":1}  2026-01-01 00:00:00.000 [INF] [x]"
                    "\\u001b[2J\\u0007\\u009b\\u2028\\u202e ü%1"_s)
                .toUtf8()
                .constData());
        QVERIFY(!readLegalDocumentReply(u"eula"_s, {500, true, {}, body}).success);
        // What the log's cleaning looks for it still finds.
        const MessageRecorder log(QtDebugMsg);
        readUpdateInfoReply({200, false, {}, "{\"emailConfirm\":\n \"a@b.de\"}"});
        QCOMPARE(LogManager::sanitize(log.lines().constLast()),
                 u"[UpdateInfo] HTTP 200 Antwort: {\"emailConfirm\":\"<redacted>\"}"_s);
    }

    void crash_data()
    {
        QTest::addColumn<QString>("report");
        QTest::addColumn<QString>("title");
        QTest::newRow("complete") << u"=== Meridax Crash Report ===\r\n"
                                     "ExceptionCode: 0xC0000005 (ACCESS_VIOLATION)\r\n"
                                     "ExceptionAddr: 0x1\r\nModule:        meridax+0x1F\r\n"
                                     "ExceptionCode: (a log line)"_s
                                  << u"[Crash] ACCESS_VIOLATION in meridax+0x1F"_s;
        QTest::newRow("no module")
            << u"ExceptionCode: 0x0 (UNKNOWN)\nrest"_s << u"[Crash] UNKNOWN"_s;
        QTest::newRow("reversed parentheses")
            << u"ExceptionCode: )(\nModule: m"_s << u"[Crash] in m"_s;
        QTest::newRow("other case") << u"exceptioncode: (x)\n module: y"_s << u"[Crash]"_s;
        QTest::newRow("long") << u"Module:"_s + QString(300, u'm')
                              << u"[Crash] in "_s + QString(189, u'm');
    }

    void crash()
    {
        QFETCH(QString, report);
        QTEST(crashTitle(report), "title");
        QCOMPARE(crashDescription({}, report), u"=== Crash-Report ===\n"_s + report);
        QCOMPARE(crashDescription(u"Klick"_s, report),
                 u"Klick\n\n=== Crash-Report ===\n"_s + report);
        QCOMPARE(crashDescription(report, QString(100000, u'x')).size(), 8000);
    }
};

QTEST_APPLESS_MAIN(TestSupportWire)
#include "tst_supportwire.moc"
