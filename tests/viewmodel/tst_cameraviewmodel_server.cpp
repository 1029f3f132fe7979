#include "ViewModelFixture.h"

#include "BuildInfo.h"
#include "MessageRecorder.h"
#include "diagnostics/DataFolder.h"
#include "diagnostics/LogManager.h"
#include "server/StubServer.h"
#include "server/SupportServerTool.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace meridax;
using namespace Qt::StringLiterals;

namespace {

const QByteArray kCrash = "=== Meridax Crash Report ===\r\n"
                          "ExceptionCode: 0xC0000005 (ACCESS_VIOLATION)\r\n"
                          "Module:        meridax+0x1F\r\n";

const QString kBugPath = u"/api/license/report-bug"_s;
const QString kFeaturePath = u"/api/license/feature-request"_s;
const QString kFeedbackPath = u"/api/license/feedback"_s;

void write(QLatin1StringView name, const QByteArray &content)
{
    QFile file(dataFilePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// Stands in for the browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser()
    {
        for (const QString &scheme : kSchemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Browser() override
    {
        for (const QString &scheme : kSchemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened << url; }

private:
    const QStringList kSchemes{u"http"_s, u"https"_s, u"ftp"_s, u"file"_s, u"javascript"_s};
};

} // namespace

/// What the view model has from the support server, and what it sends there.
class TestCameraViewModelServer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        fixture::prepareProcess();
        m_server =
            std::make_unique<SupportServerTool>(QStringList{u"--content"_s, m_content.path()});
        QVERIFY(m_server->isListening());
    }

    /// Each test is another installation with the legal texts in its cache.
    void init()
    {
        QTest::failOnWarning();
        const QString folder = QFileInfo(dataFilePath("x"_L1)).path();
        QVERIFY(QDir(folder).removeRecursively() && QDir().mkpath(folder));
        cacheLegalTexts();
        SupportServerTool::configure(m_server->http());
        publish("update-info", {{"latest", release(u"1.2.0"_s)}});
        publish("eula", {{"version", "5"}, {"contentMarkdown", "# Neu"}});
        publish("privacy", {{"version", ""}, {"contentMarkdown", "# Privat"}});
    }

    void updateIsAnnouncedUntilItIsDismissed()
    {
        auto viewModel = start();
        QVERIFY(viewModel->updateBannerVisible() && viewModel->updateAvailable());
        QCOMPARE(viewModel->updateVersion(), "1.2.0");
        QCOMPARE(viewModel->updateReleaseNotes(), "- neu");
        QVERIFY(viewModel->bugReportsEnabled() && viewModel->featureRequestsEnabled());
        QSignalSpy changed(viewModel.get(), &CameraViewModel::updateInfoChanged);
        viewModel->dismissUpdateBanner();
        viewModel->dismissUpdateBanner();
        QCOMPARE(changed.size(), 1);
        QVERIFY(!viewModel->updateBannerVisible() && viewModel->updateAvailable());

        QVERIFY2(!start()->updateBannerVisible(), "the same version after a restart");
        publish("update-info", {{"latest", release(u"1.2.1"_s)}});
        viewModel = start();
        QVERIFY2(viewModel->updateBannerVisible(), "a later one");
        viewModel->dismissUpdateBanner();
        QFile state(dataFilePath("update-state.ini"_L1));
        QVERIFY(state.open(QIODevice::ReadOnly));
        QVERIFY(state.readAll().contains("dismissedVersion=1.2.1"));
    }

    void whatTheServerSaysOfReleases()
    {
        QJsonObject beta = release(u"1.3.0-beta"_s);
        beta.insert("channel"_L1, u"beta"_s);
        publish("update-info",
                {{"latest", beta},
                 {"latestStable", release(u"1.2.9"_s)},
                 {"isBetaTester", true},
                 {"bugReportsEnabled", false},
                 {"server", QJsonObject{{"apiVersion", "2.1"}, {"commitSha", "abc"}}}});
        auto viewModel = start();
        QCOMPARE(viewModel->updateChannel(), "beta");
        QCOMPARE(viewModel->latestStableVersion(), "1.2.9");
        QVERIFY(viewModel->isBetaTester() && !viewModel->bugReportsEnabled());
        QCOMPARE(viewModel->serverApiVersion(), "2.1");
        QCOMPARE(viewModel->serverCommitSha(), "abc");
        QCOMPARE(viewModel->serverBuildTime(), QString());
        QCOMPARE(viewModel->serverHost(), m_server->http());

        QJsonObject nowhere = release(u"1.3.0"_s);
        nowhere.remove("downloadUrl"_L1);
        publish("update-info", {{"latest", nowhere}, {"updateAvailable", true}});
        viewModel = start();
        QVERIFY(!viewModel->updateAvailable() && !viewModel->updateBannerVisible());
        QCOMPARE(viewModel->updateVersion(), "1.3.0");
    }

    void downloads_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QUrl>("opened");
        QTest::newRow("https") << u"https://x/a b"_s << QUrl(u"https://x/a b"_s);
        QTest::newRow("upper case") << u"HTTP://x/"_s << QUrl(u"http://x/"_s);
        QTest::newRow("ftp") << u"ftp://x/"_s << QUrl();
        QTest::newRow("file") << u"file:///etc/passwd"_s << QUrl();
        QTest::newRow("script") << u"javascript:alert(1)"_s << QUrl();
        QTest::newRow("no scheme") << u"x.example"_s << QUrl();
        QTest::newRow("nonsense") << u"http://[/"_s << QUrl();
    }

    void downloads()
    {
        QFETCH(QString, address);
        QFETCH(QUrl, opened);
        QJsonObject latest = release(u"1.2.0"_s);
        latest.insert("downloadUrl"_L1, address);
        publish("update-info", {{"latest", latest}});
        const auto viewModel = start();
        const Browser browser;
        const MessageRecorder warnings(QtWarningMsg);
        viewModel->openUpdateDownload();
        viewModel->openLink(address);
        QCOMPARE(browser.opened, opened.isEmpty() ? QList<QUrl>() : QList<QUrl>(2, opened));
        QCOMPARE(warnings.lines().size(), opened.isEmpty() ? 2 : 0);
        QVERIFY(viewModel->updateBannerVisible());
        viewModel->openStableDownload();
        QCOMPARE(warnings.lines().constLast(), u"[UpdateBanner] downloadUrl ist leer — Abbruch."_s);
    }

    void withoutAServerNothingHappens_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("no such host") << u"https://api.tarnwick-optics.example"_s;
        QTest::newRow("nobody listens") << u"http://127.0.0.1:1"_s;
        QTest::newRow("web page") << m_server->faulty(u"html"_s);
    }

    void withoutAServerNothingHappens()
    {
        QFETCH(QString, address);
        SupportServerTool::configure(address);
        const MessageRecorder log(QtDebugMsg);
        const auto viewModel = fixture::firstStart();
        const QSignalSpy changed(viewModel.get(), &CameraViewModel::updateInfoChanged);
        QTRY_VERIFY(log.lines().constLast().startsWith("[UpdateCheck] fehlgeschlagen"_L1));
        QCOMPARE(changed.size(), 0);
        QVERIFY(!viewModel->updateBannerVisible() && viewModel->legalDocsReady());
        QVERIFY(viewModel->bugReportsEnabled() && !viewModel->bugReportPending());
    }

    void legalTextsAreFetchedOnce()
    {
        QVERIFY(QFile::remove(dataFilePath("legal-docs.json"_L1)));
        auto viewModel = fixture::firstStart();
        QVERIFY(!viewModel->legalDocsReady() && !viewModel->legalDocsLoading());
        QTRY_VERIFY(viewModel->legalDocsReady());
        QVERIFY(!viewModel->legalDocsLoading());
        QCOMPARE(viewModel->eulaMarkdown(), "# Neu");
        QCOMPARE(viewModel->eulaVersion(), "5");
        QCOMPARE(viewModel->privacyVersion(), QString());
        QTRY_VERIFY(m_server->output().contains("/eula?product=MERIDAX 200"));

        LegalDocsRecord cached;
        QVERIFY(LegalDocumentCache::load(cached));
        QCOMPARE(cached.privacyVersion, "1.0");
        SupportServerTool::configure(u"http://127.0.0.1:1"_s);
        viewModel = fixture::firstStart();
        QVERIFY2(viewModel->legalDocsReady(), "offline, from the cache");
        QCOMPARE(viewModel->privacyMarkdown(), "# Privat");
    }

    void legalCacheWithOldNames()
    {
        const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
        write("legal-docs.json"_L1, QJsonDocument(QJsonObject{{"agbVersion", "3"},
                                                              {"agbMarkdown", "# Alt"},
                                                              {"privacyMarkdown", "# P"},
                                                              {"fetchedAt", now}})
                                        .toJson());
        const auto viewModel = start();
        QVERIFY(viewModel->legalDocsReady());
        QCOMPARE(viewModel->eulaMarkdown(), u"# Alt"_s);
        viewModel->fetchLegalDocuments();
        QVERIFY(viewModel->legalDocsLoading() && !viewModel->legalDocsReady());
        QCOMPARE(viewModel->eulaMarkdown(), QString());
        QTRY_VERIFY(viewModel->legalDocsReady());
        QCOMPARE(viewModel->eulaMarkdown(), u"# Neu"_s);
        QCOMPARE(viewModel->eulaVersion(), "3"); // the first one of a run stays
    }

    void oldLegalTextsAreRenewed()
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const auto cacheOf = [](const QDateTime &time) {
            LegalDocumentCache::save({u"1"_s, u"# Alt"_s, u"1"_s, u"# P"_s, time});
        };
        const auto fetched = m_server->output().count("/eula");
        cacheOf(now.addDays(-6));
        start();
        QVERIFY2(m_server->output().count("/eula") == fetched, "still good");

        // Without the second text everything stays as it is, and nobody is told.
        cacheOf(now.addDays(-8));
        QVERIFY(QFile::remove(m_content.filePath(u"privacy.json"_s)));
        {
            const MessageRecorder warnings(QtWarningMsg);
            const auto viewModel = start();
            QTRY_COMPARE(warnings.lines().size(), 1); // of the client
            QCOMPARE(viewModel->eulaMarkdown(), u"# Alt"_s);
            QVERIFY(viewModel->legalDocsReady() && !viewModel->legalDocsLoading());
            QCOMPARE(viewModel->legalDocsError(), QString());
        }
        publish("privacy", {{"version", "6"}, {"contentMarkdown", "# Privat"}});
        for (const QDateTime &time : {now.addDays(-8), now.addDays(8)}) {
            cacheOf(time);
            const auto viewModel = start();
            QTRY_COMPARE(viewModel->eulaMarkdown(), u"# Neu"_s);
            QCOMPARE(viewModel->eulaVersion(), "5");
            LegalDocsRecord cached;
            QVERIFY(LegalDocumentCache::load(cached));
            QCOMPARE(cached.privacyMarkdown, "# Privat");
            QCOMPARE(cached.privacyVersion, "6");
            QVERIFY(qAbs(cached.fetchedAt.secsTo(now)) < 600);
        }
    }

    void aFailedFetchKeepsTheFile()
    {
        QVERIFY(QFile::remove(m_content.filePath(u"privacy.json"_s)));
        const auto viewModel = start();
        {
            const MessageRecorder warnings(QtWarningMsg);
            viewModel->fetchLegalDocuments();
            QTRY_VERIFY(!viewModel->legalDocsError().isEmpty());
            QTRY_VERIFY(!viewModel->eulaMarkdown().isEmpty());
            QCOMPARE(warnings.lines().constLast(),
                     u"[LegalDoc] Fehler bei \"privacy\" : \"HTTP 404\""_s);
        }
        QCOMPARE(viewModel->legalDocsError(),
                 u"Rechtstexte konnten nicht geladen werden. Bitte erneut versuchen."_s);
        QVERIFY(!viewModel->legalDocsLoading() && !viewModel->legalDocsReady());
        LegalDocsRecord cached;
        QVERIFY(LegalDocumentCache::load(cached));
        QCOMPARE(cached.eulaMarkdown, "# Bedingungen");

        publish("privacy", {{"contentMarkdown", "# Privat"}});
        viewModel->fetchLegalDocuments();
        QCOMPARE(viewModel->legalDocsError(), QString());
        QTRY_VERIFY(viewModel->legalDocsReady());
    }

    void oneSubmissionAtATime()
    {
        const auto viewModel = start();
        QSignalSpy changed(viewModel.get(), &CameraViewModel::bugReportStateChanged);
        QTest::ignoreMessage(QtWarningMsg, "[Feedback] ungültiges Rating: 0");
        viewModel->submitFeedback(0, u"x"_s);
        QTest::ignoreMessage(QtWarningMsg, "[Feedback] ungültiges Rating: 6");
        viewModel->submitFeedback(6, u"x"_s);
        QCOMPARE(changed.size(), 0);

        const auto before = m_server->received().size();
        viewModel->submitFeatureRequest(u"T"_s, u"D"_s, {}, {}, u"GUI"_s);
        viewModel->submitFeedback(3, u"x"_s);
        viewModel->submitBugReport(u"T"_s, u"D"_s, {}, {});
        QVERIFY(viewModel->bugReportPending());
        QTRY_VERIFY(viewModel->bugReportSuccess());
        QVERIFY(!viewModel->bugReportPending());
        QCOMPARE(viewModel->bugReportMessage(), "Danke!");
        QCOMPARE(viewModel->bugReportError(), QString());
        QCOMPARE(changed.size(), 2);
        QCOMPARE(m_server->received().size(), before + 1);
        const QJsonObject sent = newestRequest();
        QCOMPARE(sent["appVersion"].toString(), viewModel->appVersion());
        QCOMPARE(sent["category"].toString(), "GUI");
        QVERIFY(!sent.contains("logsExcerpt"));

        viewModel->clearBugReportState();
        QVERIFY(!viewModel->bugReportSuccess());
        QCOMPARE(viewModel->bugReportMessage(), QString());
        viewModel->submitFeedback(5, QString(4001, u'x'));
        QTRY_COMPARE(viewModel->bugReportError(), u"Kommentar zu lang (max. 4000 Zeichen)."_s);
        QVERIFY(!viewModel->bugReportSuccess() && !viewModel->bugReportPending());
    }

    void repliesMeetTheirForms_data()
    {
        QTest::addColumn<int>("answeredFirst");
        QTest::newRow("in order") << 0;
        QTest::newRow("the later form first") << 1;
    }

    // Two bug reports in flight, the first of a form that is closed.
    void repliesMeetTheirForms()
    {
        QFETCH(int, answeredFirst);
        StubServer server;
        const auto viewModel = startWith(server);
        write("crash.txt"_L1, kCrash);
        viewModel->submitBugReport(u"1"_s, u"D"_s, {}, {});
        QTRY_COMPARE(server.received(kBugPath).size(), 1);
        viewModel->clearBugReportState();
        QVERIFY(!viewModel->bugReportPending() && viewModel->bugReportUnderWay());
        viewModel->sendCrashReport();
        QVERIFY2(!viewModel->bugReportPending(), "it may be on its way already");
        viewModel->submitBugReport(u"2"_s, u"D"_s, {}, {});
        QTRY_COMPARE(server.received(kBugPath).size(), 2);
        QSignalSpy changed(viewModel.get(), &CameraViewModel::bugReportStateChanged);
        for (const int index : {answeredFirst, 1 - answeredFirst}) {
            server.release(kBugPath, index, {{u"success"_s, index == 0}, {u"errorCode"_s, u"X"_s}});
            const bool own = index == 1;
            QVERIFY(changed.wait());
            QCOMPARE(viewModel->bugReportUnderWay(), index == answeredFirst);
            QCOMPARE(viewModel->bugReportPending(), !own && answeredFirst == 0);
            QCOMPARE(viewModel->hasUnsentCrash(), own && answeredFirst == 1);
            QVERIFY(!viewModel->bugReportSuccess());
        }
        QCOMPARE(viewModel->bugReportError(), "X");
    }

    void crashIsSentOnce()
    {
        LogManager::install();
        const QByteArray homeBefore = qgetenv("HOME");
        qputenv("HOME", "/home/erika");
        write("crash.txt"_L1, kCrash + "[main] /home/erika/Bilder\n");
        const auto viewModel = start();
        QSignalSpy changed(viewModel.get(), &CameraViewModel::crashStateChanged);
        QVERIFY(viewModel->hasUnsentCrash());
        QCOMPARE(viewModel->crashReportTitle(), u"[Crash] ACCESS_VIOLATION in meridax+0x1F"_s);
        QTest::ignoreMessage(QtInfoMsg, "[test] /home/erika/Bilder, erika@example.org");
        qInfo("[test] /home/erika/Bilder, erika@example.org");
        viewModel->sendCrashReport(u"Beim Start"_s);
        QTRY_VERIFY(viewModel->bugReportSuccess());
        qputenv("HOME", homeBefore);
        QVERIFY(!viewModel->hasUnsentCrash());
        QCOMPARE(changed.size(), 1);
        const QJsonObject sent = newestRequest();
        QCOMPARE(sent["title"].toString(), u"[Crash] ACCESS_VIOLATION in meridax+0x1F"_s);
        QCOMPARE(sent["category"].toString(), "Crash");
        const QString description = sent["description"].toString();
        QVERIFY(description.startsWith(
            u"Beim Start\n\n=== Crash-Report ===\n=== Meridax Crash Report ===\n"_s));
        QVERIFY2(description.endsWith("[main] ~/Bilder\n"_L1), qPrintable(description));
        const QString excerpt = sent["logsExcerpt"].toString();
        QVERIFY2(excerpt.contains("[test] ~/Bilder, <user>@example.org"_L1), qPrintable(excerpt));
        QVERIFY(!excerpt.contains("erika"_L1));

        viewModel->sendCrashReport();
        QVERIFY2(!viewModel->bugReportPending(), "there is none any more");
    }

    // A full disk leaves an empty file, and what cannot be removed must not lie over the window for
    // ever.
    void aCrashThatCannotBeRead()
    {
        write("crash.txt"_L1, {});
        auto viewModel = start();
        QCOMPARE(viewModel->crashReportTitle(), u"[Crash]"_s);
        viewModel->sendCrashReport();
        QVERIFY(!viewModel->bugReportPending() && viewModel->hasUnsentCrash());
        viewModel->dismissCrashReport();
        QVERIFY(!viewModel->hasUnsentCrash());
        QCOMPARE(viewModel->crashReportTitle(), QString());

        QVERIFY(QDir().mkpath(dataFilePath("crash.txt"_L1)));
        viewModel = start();
        QVERIFY(viewModel->hasUnsentCrash());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"crash.txt lässt sich nicht"_s));
        viewModel->dismissCrashReport();
        QVERIFY(!viewModel->hasUnsentCrash());
    }

    // By its identifier the server knows an installation, whatever it sends.
    void everyRequestNamesTheInstallation()
    {
        StubServer server;
        const auto viewModel = startWith(server);
        server.answer(kBugPath, 200, {{u"success"_s, true}, {u"bugId"_s, u"B7"_s}});
        server.answer(kFeedbackPath, 200, {{u"success"_s, true}, {u"feedbackId"_s, u"R8"_s}});
        server.answer(kFeaturePath, 200, {{u"success"_s, true}, {u"requestId"_s, u"F9"_s}});
        server.setHolding(false);
        const MessageRecorder log(QtDebugMsg);
        viewModel->submitBugReportWithLogs(u"T"_s, u"D"_s, {}, {}, true);
        QTRY_VERIFY(viewModel->bugReportSuccess());
        viewModel->submitFeatureRequest(u"T"_s, u"D"_s, {}, {});
        QTRY_VERIFY(viewModel->bugReportSuccess());
        viewModel->submitFeedback(1, {});
        QTRY_VERIFY(viewModel->bugReportSuccess());
        QCOMPARE(log.lines(), (QStringList{u"[BugReport] erfolgreich, bugId= \"B7\""_s,
                                           u"[FeatureRequest] erfolgreich, requestId= \"F9\""_s,
                                           u"[Feedback] erfolgreich, feedbackId= \"R8\""_s}));
        for (const QString &path :
             {kBugPath, kFeaturePath, kFeedbackPath, u"/api/license/update-info"_s}) {
            const QVariantMap sent = server.received(path).constLast().toMap();
            QCOMPARE(sent["machineGuid"].toString(), machineGuid());
            QCOMPARE(sent["platform"].toString(), build::platform());
        }
    }

    void crashStaysUntilItIsSentOrDismissed()
    {
        write("crash.txt"_L1, kCrash);
        SupportServerTool::configure(m_server->faulty(u"code-NOT_BETA_TESTER"_s));
        const auto viewModel = start();
        viewModel->sendCrashReport();
        QTRY_COMPARE(viewModel->bugReportError(), "NOT_BETA_TESTER");
        QVERIFY(viewModel->hasUnsentCrash());
        QVERIFY(!viewModel->lastCrashReport().isEmpty());
        viewModel->dismissCrashReport();
        viewModel->dismissCrashReport();
        QVERIFY(!viewModel->hasUnsentCrash());
        QCOMPARE(viewModel->lastCrashReport(), QString());
    }

    void anyBugReportEndsTheOffer()
    {
        write("crash.txt"_L1, kCrash);
        const auto viewModel = start();
        viewModel->submitFeatureRequest(u"T"_s, u"D"_s, {}, {});
        QTRY_VERIFY(viewModel->bugReportSuccess());
        QVERIFY2(viewModel->hasUnsentCrash(), "not a bug report");
        viewModel->submitBugReportWithLogs(u"T"_s, u"D"_s, {}, {}, true, u"Crash"_s);
        QTRY_VERIFY(viewModel->bugReportSuccess());
        QVERIFY(!viewModel->hasUnsentCrash());
    }

    void screenshotFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<qint64>("size"); // what the file is filled up to; -1 is none
        QTest::addColumn<QString>("mime");
        QTest::addColumn<QString>("error");
        const QString png = u"image/png"_s;
        QTest::newRow("PNG") << u"ein bild%20.png"_s << 0LL << png << QString();
        QTest::newRow("JPEG") << u"a.jpeg"_s << 0LL << u"image/jpeg"_s << QString();
        QTest::newRow("largest") << u"a.png"_s << 5242880LL << png << QString();
        QTest::newRow("a byte too large")
            << u"a.png"_s << 5242881LL << QString() << u"Datei zu groß (max. 5 MB)."_s;
        QTest::newRow("BMP") << u"a.bmp"_s << 0LL << QString()
                             << u"Nur PNG / JPEG erlaubt (erkannt: bmp)."_s;
        QTest::newRow("no image") << u"a.txt"_s << 10LL << QString()
                                  << u"Nur PNG / JPEG erlaubt (erkannt: )."_s;
        QTest::newRow("missing") << u"a.png"_s << -1LL << QString()
                                 << u"Datei nicht gefunden: %1"_s;
    }

    void screenshotFiles()
    {
        QFETCH(QString, name);
        QFETCH(qint64, size);
        QFETCH(QString, error);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        if (size >= 0) {
            QImage(4, 4, QImage::Format_RGB32).save(path); // fails for text
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            if (size > 0)
                QVERIFY(file.resize(size));
        }
        QFile file(path);
        const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const auto viewModel = fixture::firstStart();
        for (const QString &given :
             {path, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}) {
            const QVariantMap loaded = viewModel->loadScreenshotFile(given);
            QCOMPARE(loaded["success"].toBool(), error.isEmpty());
            QCOMPARE(loaded["error"].toString(), error.contains(u'%') ? error.arg(path) : error);
            if (!error.isEmpty())
                continue;
            QTEST(loaded["mime"].toString(), "mime");
            QCOMPARE(loaded["sizeBytes"].toInt(), bytes.size());
            QVERIFY(QByteArray::fromBase64(loaded["base64"].toByteArray()) == bytes);
        }
    }

    void aPngNamedJpgIsAPng()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.jpg"_s);
        QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(path, "PNG"));
        QCOMPARE(fixture::firstStart()->loadScreenshotFile(path)["mime"].toString(), "image/png");
    }

    void releaseNotesOfThisVersion()
    {
        const QString notes = fixture::firstStart()->installedReleaseNotes();
        QVERIFY(notes.contains(u"\n## Version "_s + fixture::firstStart()->appVersion() + u'\n'));
    }

private:
    QJsonObject newestRequest() const
    {
        const QByteArray body = m_server->body(m_server->received().constLast());
        return QJsonDocument::fromJson(body).object();
    }

    /// A start of the program with a server that holds its answers back, but for that on updates.
    static fixture::ViewModel startWith(StubServer &server)
    {
        SupportServerTool::configure(server.address());
        server.answer(u"/api/license/update-info"_s, 200, {});
        auto viewModel = start();
        server.setHolding(true);
        return viewModel;
    }

    /// One release as the server would describe it.
    static QJsonObject release(const QString &version)
    {
        return {{"version"_L1, version},
                {"channel"_L1, u"stable"_s},
                {"downloadUrl"_L1, u"https://downloads.example/meridax"_s},
                {"releaseNotes"_L1, u"- neu"_s}};
    }

    /// What the server answers from now on.
    void publish(const char *name, const QJsonObject &json)
    {
        QFile file(m_content.filePath(QString::fromLatin1(name) + ".json"_L1));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QJsonDocument(json).toJson());
    }

    /// A start of the program, up to the server's word on updates.
    static fixture::ViewModel start()
    {
        auto viewModel = fixture::firstStart();
        QSignalSpy changed(viewModel.get(), &CameraViewModel::updateInfoChanged);
        if (!changed.wait(20000))
            QTest::qFail("no word of the server", __FILE__, __LINE__);
        return viewModel;
    }

    QTemporaryDir m_content;
    std::unique_ptr<SupportServerTool> m_server;
};

QTEST_MAIN(TestCameraViewModelServer)
#include "tst_cameraviewmodel_server.moc"
