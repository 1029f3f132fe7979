#include "diagnostics/DataFolder.h"
#include "server/CrashSubmission.h"
#include "server/LegalDocumentCache.h"
#include "server/MachineGuid.h"
#include "server/ServerConfig.h"
#include "server/SupportWire.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTest>
#include <QUuid>

#include <functional>

using namespace meridax;
using namespace Qt::StringLiterals;

namespace {

using Reader = std::function<bool(const QByteArray &)>;

constexpr int kRounds = 1500;

/// `sound` with one to four pieces of damage.
QByteArray mangled(const QByteArray &sound, QRandomGenerator &random)
{
    static const QByteArrayList pieces{
        "null",   "-1e999", "\"",   "{}", "[[[[", "\\ud800", QByteArray(1, '\0'),   "\xff\xfe",
        "\r\n\n", "()",     "true", ",",  ":",    "%1",      QByteArray(3000, '['), "\xf0\x9f"};
    QByteArray text = sound;
    for (int i = random.bounded(1, 5); i > 0; --i) {
        const auto at = random.bounded(text.size() + 1);
        const auto length = random.bounded(qMin<qsizetype>(text.size() - at, 40) + 1);
        switch (random.bounded(5)) {
        case 0:
            text.truncate(at);
            break;
        case 1:
            text.remove(at, length);
            break;
        case 2:
            text.insert(at, text.mid(random.bounded(text.size() + 1), 40));
            break;
        case 3:
            text.replace(at, length, pieces.at(random.bounded(pieces.size())));
            break;
        default:
            if (at < text.size())
                text[at] = static_cast<char>(random.bounded(256));
        }
    }
    return text;
}

Reader fromFile(QLatin1StringView name, const std::function<bool()> &read)
{
    return [name, read](const QByteArray &content) {
        QFile file(dataFilePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return false;
        file.close();
        return read();
    };
}

} // namespace

/// What comes from outside may hold anything: readers end with a record that keeps its promises.
class TestMangledInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(u"default=false"_s);
        QVERIFY(QDir().mkpath(QFileInfo(dataFilePath("x"_L1)).path()));
    }

    void readers_data()
    {
        QTest::addColumn<QByteArray>("sound");
        QTest::addColumn<Reader>("reader");
        const auto row = [](const char *name, const QByteArray &sound, const Reader &reader) {
            QTest::newRow(name) << sound << reader;
        };
        row("update info",
            R"({"latest":{"version":"1.1.0","channel":"beta","downloadUrl":"https://x/y",)"
            R"("fileSize":41943040,"releaseNotes":"**neu** ü"},"latestStable":{"version":"1.0"},)"
            R"("isBetaTester":true,"updateAvailable":true,"server":{"apiVersion":"1"}})",
            [](const QByteArray &body) {
                const auto reply = readUpdateInfoReply({200, false, {}, body});
                const UpdateRelease &latest = reply.info.latest;
                return (reply.success || !reply.error.isEmpty()) &&
                       latest.valid == !(latest.version.isEmpty() || latest.downloadUrl.isEmpty());
            });
        row("legal text", R"({"kind":"eula","version":"1.2","contentMarkdown":"# Titel ü"})",
            [](const QByteArray &body) {
                const auto reply = readLegalDocumentReply(u"eula"_s, {200, false, {}, body});
                return reply.success == !reply.info.contentMarkdown.isEmpty();
            });
        row("submission", R"({"success":true,"bugId":"BUG-1","message":"Danke","errorCode":""})",
            [](const QByteArray &body) {
                const auto reply =
                    readSubmissionReply(Submission::BugReport, {429, true, {}, body});
                return reply.success || !reply.errorCode.isEmpty();
            });
        row("crash",
            "=== Meridax Crash Report ===\r\nExceptionCode: 0xC0000005 (ACCESS_VIOLATION)\r\n"
            "ExceptionAddr: 0x7f00\r\nModule:        meridax+0x1F\r\n\r\n--- Last 50 log lines "
            "---\r\nü\n",
            [](const QByteArray &body) {
                const QString report = QString::fromUtf8(body);
                const QString title = crashTitle(report);
                return title.startsWith("[Crash]"_L1) && title.size() <= 200 &&
                       crashDescription(report, report).size() <= 8000;
            });
        row("server.json",
            R"({"apiBaseUrl":"https://a","downloadsBaseUrl":"https://d","productCode":"X"})",
            fromFile("server.json"_L1, [] {
                const ServerConfig config = ServerConfig::load();
                return !config.apiBaseUrl.isEmpty() && !config.downloadsBaseUrl.isEmpty() &&
                       !config.productCode.isEmpty();
            }));
        row("legal cache",
            R"({"eulaVersion":"1","eulaMarkdown":"# E","privacyVersion":"2",)"
            R"("privacyMarkdown":"# P","fetchedAt":"2026-10-01T08:00:00Z","agbMarkdown":"# A"})",
            fromFile("legal-docs.json"_L1, [] {
                LegalDocsRecord record;
                const bool usable = LegalDocumentCache::load(record);
                return !usable ||
                       !(record.eulaMarkdown.isEmpty() || record.privacyMarkdown.isEmpty());
            }));
        row("machine guid", "0f8fad5b-d9cb-469f-a165-70867728950e",
            fromFile("machine-guid"_L1, [] { return !QUuid::fromString(machineGuid()).isNull(); }));
    }

    void readers()
    {
        QFETCH(QByteArray, sound);
        QFETCH(Reader, reader);
        QVERIFY(reader(sound));
        QRandomGenerator random(20260820);
        for (int i = 0; i < kRounds; ++i) {
            const QByteArray content = mangled(sound, random);
            QVERIFY2(reader(content), content.toPercentEncoding(" {}\":,").constData());
        }
    }
};

QTEST_GUILESS_MAIN(TestMangledInput)
#include "tst_mangledinput.moc"
