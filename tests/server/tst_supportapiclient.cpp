#include "server/StubServer.h"
#include "server/SupportApiClient.h"
#include "server/SupportServerTool.h"
#include "server/SupportWire.h"

#include <QJsonDocument>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QTest>
#include <QUrl>
#include <QUuid>

#include <memory>

using namespace meridax;
using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeoutMs = 30000;
constexpr qsizetype kMaxScreenshot = 5 * 1024 * 1024;

/// A sender whom no limit has met yet.
RequestSender newSender()
{
    return {QUuid::createUuid().toString(QUuid::WithoutBraces), u"1.0.6"_s, u"linux-x64"_s,
            u"Debian GNU/Linux 13 (trixie)"_s};
}

ReportRequest soundReport()
{
    return {newSender(), u"Titel"_s, u"Beschreibung"_s, u"GUI"_s, {}, {}};
}

FeedbackRequest soundFeedback()
{
    return {newSender(), 4, u"Gut"_s};
}

/// `size` bytes that begin as a PNG file does.
QByteArray png(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(bytes.data()), size / 4);
    bytes.replace(0, 8, "\x89PNG\r\n\x1a\n");
    return bytes;
}

struct Outcome
{
    bool answered = false; ///< exactly one signal
    bool success = false;
    QString id;
    QString message;
    QString code;
};

Outcome outcome(QSignalSpy &finished)
{
    if (finished.isEmpty() && !finished.wait(kTimeoutMs))
        return {};
    const QVariantList last = finished.constLast();
    return {finished.size() == 1, last[0].toBool(), last[1].toString(), last[2].toString(),
            last[3].toString()};
}

Outcome send(SupportApiClient &client, const BugReportRequest &request)
{
    QSignalSpy finished(&client, &SupportApiClient::bugReportFinished);
    client.submitBugReport(request);
    return outcome(finished);
}

Outcome send(SupportApiClient &client, const FeatureRequestRequest &request)
{
    QSignalSpy finished(&client, &SupportApiClient::featureRequestFinished);
    client.submitFeatureRequest(request);
    return outcome(finished);
}

Outcome send(SupportApiClient &client, const FeedbackRequest &request)
{
    QSignalSpy finished(&client, &SupportApiClient::feedbackFinished);
    client.submitFeedback(request);
    return outcome(finished);
}

} // namespace

/// The real client with a real server.
class TestSupportApiClient : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_server = std::make_unique<SupportServerTool>(QStringList(), true);
        QVERIFY(m_server->isListening());
    }

    void init()
    {
        QTest::failOnWarning();
        m_client = std::make_unique<SupportApiClient>();
        m_client->setBaseUrl(m_server->http());
    }

    void submissionsArriveByteForByte()
    {
        SupportServerTool server;
        m_client->setBaseUrl(server.http());
        const QByteArray image = png(kMaxScreenshot);
        BugReportRequest bug{soundReport(), u"Zeile 1\nZeile \"2\" ü €"_s};
        bug.screenshotBase64 = QString::fromLatin1(image.toBase64());
        bug.screenshotMime = u"image/png"_s;
        const FeatureRequestRequest feature{soundReport()};
        const FeedbackRequest feedback = soundFeedback();
        QCOMPARE(send(*m_client, bug).id, "BUG-1");
        QCOMPARE(send(*m_client, feature).id, "FEATURE-2");
        const Outcome last = send(*m_client, feedback);
        QVERIFY(last.answered && last.success && last.code.isEmpty());
        QCOMPARE(last.id, "FEEDBACK-3");
        QCOMPARE(last.message, "Danke!");

        QCOMPARE(server.received(),
                 (QStringList{"1-report-bug.json", "2-feature-request.json", "3-feedback.json"}));
        const QByteArray arrived = server.body(u"1-report-bug.json"_s);
        QVERIFY(arrived == QJsonDocument(toJson(bug)).toJson(QJsonDocument::Compact));
        QVERIFY(QByteArray::fromBase64(
                    QJsonDocument::fromJson(arrived)["screenshotBase64"].toString().toLatin1()) ==
                image);
        QCOMPARE(server.body(u"2-feature-request.json"_s),
                 QJsonDocument(toJson(feature)).toJson(QJsonDocument::Compact));
        QCOMPARE(server.body(u"3-feedback.json"_s),
                 QJsonDocument(toJson(feedback)).toJson(QJsonDocument::Compact));
        QTRY_VERIFY(server.output().contains("POST /api/license/feedback 200 Meridax/"));
        QVERIFY(
            server.output().contains(" (Qt; " + QSysInfo::prettyProductName().toUtf8() + ")\n"));
    }

    void repliesBelongToTheirRequests()
    {
        const QString path = u"/api/license/report-bug"_s;
        StubServer server;
        server.setHolding(true);
        m_client->setBaseUrl(server.address());
        QSignalSpy bugs(m_client.get(), &SupportApiClient::bugReportFinished);
        QSignalSpy feedback(m_client.get(), &SupportApiClient::feedbackFinished);
        const int first = m_client->submitBugReport({soundReport(), {}});
        const int second = m_client->submitBugReport({soundReport(), {}});
        const int third = m_client->submitFeedback(soundFeedback());
        QVERIFY(first > 0 && second > first && third > second);
        QTRY_COMPARE(server.received(path).size(), 2);
        QTRY_COMPARE(server.received(u"/api/license/feedback"_s).size(), 1);
        // Each connection is a road of its own: which came first the server cannot know.
        const auto title = [&](int i) { return server.received(path)[i].toMap()["title"]; };
        QCOMPARE(title(0), title(1));
        server.release(u"/api/license/feedback"_s, 0, {{u"success"_s, true}});
        QVERIFY(feedback.wait(kTimeoutMs));
        QCOMPARE(feedback[0][4].toInt(), third);
        for (const int index : {1, 0}) {
            server.release(path, index, {{u"success"_s, true}, {u"bugId"_s, index}});
            QTRY_COMPARE(bugs.size(), 2 - index);
        }
        QCOMPARE((QSet{bugs[0][4].toInt(), bugs[1][4].toInt()}), (QSet{first, second}));
        // Qt would tell the languages of the system.
        QCOMPARE(server.header(path, "Accept-Language"), "*");
    }

    void faults_data()
    {
        QTest::addColumn<bool>("success");
        QTest::addColumn<QString>("code");
        QTest::newRow("status-500") << true << QString();
        QTest::newRow("empty-200") << false << QString();
        QTest::newRow("empty-500") << false << QString();
        QTest::newRow("empty-429") << false << u"FEATURE_REQUEST_RATE_LIMIT_EXCEEDED"_s;
        QTest::newRow("code-RATE_LIMITED") << false << u"RATE_LIMITED"_s;
        QTest::newRow("html") << false << QString();
        QTest::newRow("hang-up") << false << QString();
        QTest::newRow("redirect") << true << QString();
        QTest::newRow("loop") << false << QString();
        QTest::newRow("padded-20971520") << true << QString();
        QTest::newRow("padded-20971521") << false << QString();
        QTest::newRow("huge") << false << QString();
    }

    void faults()
    {
        QFETCH(bool, success);
        m_client->setBaseUrl(m_server->faulty(QString::fromLatin1(QTest::currentDataTag())));
        const Outcome result = send(*m_client, FeatureRequestRequest{soundReport()});
        QVERIFY(result.answered);
        QCOMPARE(result.success, success);
        QTEST(result.code, "code");
        // Refused while it comes in, not when the rest fails to come.
        if (QTest::currentDataTag() == "huge"_L1)
            QCOMPARE(result.message, u"Antwort zu groß"_s);
    }

    void updateInfo_data()
    {
        QTest::addColumn<bool>("success");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("error");
        const QString noJson = u"Ungültige JSON-Antwort von /update-info"_s;
        QTest::newRow("status-200") << true << u"1.1.0"_s << QString();
        QTest::newRow("status-503") << true << u"1.1.0"_s << QString();
        QTest::newRow("code-RATE_LIMITED") << true << QString() << QString();
        QTest::newRow("empty-500") << false << QString() << noJson;
        QTest::newRow("html") << false << QString() << noJson;
        QTest::newRow("hang-up") << false << QString() << noJson;
        QTest::newRow("huge") << false << QString() << u"Antwort zu groß"_s;
    }

    void updateInfo()
    {
        QFETCH(bool, success);
        m_client->setBaseUrl(m_server->faulty(QString::fromLatin1(QTest::currentDataTag())));
        QSignalSpy finished(m_client.get(), &SupportApiClient::updateInfoFinished);
        m_client->fetchUpdateInfo(newSender().machineGuid, u"MERIDAX"_s, u"1.0.6"_s,
                                  u"linux-x64"_s);
        QVERIFY(finished.wait(kTimeoutMs));
        QCOMPARE(finished.size(), 1);
        const auto info = finished[0][1].value<SupportApiClient::UpdateInfo>();
        QCOMPARE(finished[0][0].toBool(), success);
        QTEST(info.latest.version, "version");
        QCOMPARE(info.updateAvailable, !info.latest.version.isEmpty());
        QVERIFY(info.bugReportsEnabled && info.featureRequestsEnabled);
        QTEST(finished[0][2].toString(), "error");
    }

    void legalDocument_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("error");
        const QString legal = u"/api/license/legal/"_s;
        QTest::newRow("whole address")
            << legal + u"privacy?product=MERIDAX"_s << u"eula"_s << QString();
        QTest::newRow("by kind") << QString() << u"privacy"_s << QString();
        QTest::newRow("encoded kind") << QString() << u"e/ü"_s << u"HTTP 404"_s;
        QTest::newRow("no text") << u"/~empty-200"_s + legal + u"eula"_s << u"eula"_s
                                 << u"Leerer Markdown-Inhalt"_s;
        QTest::newRow("text with an error")
            << u"/~status-400"_s + legal + u"eula"_s << u"eula"_s << u"HTTP 400"_s;
        QTest::newRow("huge") << u"/~huge"_s + legal + u"eula"_s << u"eula"_s
                              << u"Antwort zu groß"_s;
    }

    void legalDocument()
    {
        QFETCH(QString, path);
        QFETCH(QString, kind);
        if (QTest::currentDataTag() == "encoded kind"_L1)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"HTTP 404"_s));
        if (QTest::currentDataTag() == "text with an error"_L1)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"HTTP 400"_s));
        QSignalSpy finished(m_client.get(), &SupportApiClient::legalDocumentFinished);
        m_client->fetchLegalDocument(kind, path.isEmpty() ? path : m_server->http() + path);
        QVERIFY(finished.wait(kTimeoutMs));
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished[0][1].toString(), kind);
        QTEST(finished[0][3].toString(), "error");
        QCOMPARE(finished[0][0].toBool(), finished[0][3].toString().isEmpty());
        const auto document = finished[0][2].value<SupportApiClient::LegalDocument>();
        QCOMPARE(document.valid, finished[0][0].toBool());
        if (document.valid)
            QCOMPARE(document.kind, "privacy");
        if (kind == u"e/ü"_s)
            QTRY_VERIFY(m_server->output().contains("GET /api/license/legal/e%2F%C3%BC 404"));
    }

    void noServer_data()
    {
        QTest::addColumn<QString>("address");
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        QTest::newRow("nobody listens") << u"http://127.0.0.1:%1"_s.arg(closed.serverPort());
        QTest::newRow("no such host") << u"https://api.tarnwick-optics.example"_s;
        QTest::newRow("no address") << QString();
        QTest::newRow("nonsense") << u"http://[::"_s;
        QTest::newRow("other scheme") << u"gopher://127.0.0.1"_s;
        QTest::newRow("self-signed certificate") << m_server->https();
    }

    void noServer()
    {
        QFETCH(QString, address);
        m_client->setBaseUrl(address);
        const Outcome result = send(*m_client, soundFeedback());
        QVERIFY(result.answered && !result.success);
        QVERIFY(!result.message.isEmpty());
        QCOMPARE(result.code, QString());
    }

    void trustedCertificate()
    {
        const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = before;
        QVERIFY(trusting.addCaCertificates(m_server->certificate()));
        QSslConfiguration::setDefaultConfiguration(trusting);
        m_client->setBaseUrl(m_server->https());
        const Outcome result = send(*m_client, soundFeedback());
        QSslConfiguration::setDefaultConfiguration(before);
        QVERIFY2(result.success, qPrintable(result.message));
    }

    void aRedirectMustNotEndTheEncryption()
    {
        const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = before;
        QVERIFY(trusting.addCaCertificates(m_server->certificate()));
        QSslConfiguration::setDefaultConfiguration(trusting);
        const auto sent = m_server->received().size();
        m_client->setBaseUrl(m_server->https() +
                             u"/~downgrade-%1"_s.arg(QUrl(m_server->http()).port()));
        const Outcome result = send(*m_client, soundFeedback());
        QSslConfiguration::setDefaultConfiguration(before);
        QVERIFY(result.answered && !result.success);
        QCOMPARE(m_server->received().size(), sent + 1);
    }

    /// All at once, since each waits for the transfer timeout.
    void slowServer()
    {
        m_client->setBaseUrl(m_server->faulty(u"slow"_s));
        QSignalSpy bug(m_client.get(), &SupportApiClient::bugReportFinished);
        QSignalSpy feedback(m_client.get(), &SupportApiClient::feedbackFinished);
        QSignalSpy update(m_client.get(), &SupportApiClient::updateInfoFinished);
        QSignalSpy legal(m_client.get(), &SupportApiClient::legalDocumentFinished);
        m_client->submitBugReport({soundReport(), {}});
        m_client->submitFeedback(soundFeedback());
        m_client->fetchUpdateInfo(u"guid"_s, {}, {}, {});
        m_client->fetchLegalDocument(u"eula"_s, {});
        // The server would take three times as long as the client waits.
        for (const QSignalSpy *spy : {&bug, &feedback, &update, &legal}) {
            QTRY_COMPARE_WITH_TIMEOUT(spy->size(), 1, 25000);
            QVERIFY(!spy->at(0)[0].toBool());
        }
        QCOMPARE(bug[0][3].toString(), QString());
    }

    void endInMidRequest()
    {
        m_client->setBaseUrl(m_server->faulty(u"slow"_s));
        m_client->submitFeatureRequest({soundReport()});
        QTRY_VERIFY(m_server->output().contains("/~slow/api/license/feature-request"));
        m_client.reset();
    }

private:
    std::unique_ptr<SupportServerTool> m_server;
    std::unique_ptr<SupportApiClient> m_client;
};

QTEST_GUILESS_MAIN(TestSupportApiClient)
#include "tst_supportapiclient.moc"
