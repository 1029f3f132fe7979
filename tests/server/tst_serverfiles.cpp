#include "diagnostics/DataFolder.h"
#include "server/LegalDocumentCache.h"
#include "server/MachineGuid.h"
#include "server/ServerConfig.h"
#include "server/UpdateState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>
#include <QUuid>

using namespace meridax;
using namespace Qt::StringLiterals;

namespace {

void write(QLatin1StringView name, const QByteArray &content)
{
    QFile file(dataFilePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray read(QLatin1StringView name)
{
    QFile file(dataFilePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The small files of the data folder that have to do with the server.
class TestServerFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QTest::failOnWarning();
        const QString folder = QFileInfo(dataFilePath("x"_L1)).path();
        QVERIFY(QDir(folder).removeRecursively() && QDir().mkpath(folder));
    }

    void config_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("product");
        const QString address = ServerConfig().apiBaseUrl;
        const QString product = u"MERIDAX"_s;
        const QString broken = u"ist kein gültiges JSON-Objekt"_s;
        QTest::newRow("empty object") << "{}"_ba << QString() << address << product;
        QTest::newRow("number") << R"({"apiBaseUrl": 5})"_ba << QString() << address << product;
        QTest::newRow("empty texts")
            << R"({"apiBaseUrl": "", "productCode": ""})"_ba << QString() << address << product;
        QTest::newRow("product alone")
            << R"({"productCode": "X"})"_ba << QString() << address << u"X"_s;
        QTest::newRow("as it stands") << R"({"apiBaseUrl": " http://h/ ", "more": []})"_ba
                                      << QString() << u" http://h/ "_s << product;
        QTest::newRow("array") << "[]"_ba << broken << address << product;
        QTest::newRow("no content") << ""_ba << broken << address << product;
        QTest::newRow("cut short") << "{\"apiBaseUrl\": \"http:"_ba << broken << address << product;
    }

    void config()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, warning);
        write("server.json"_L1, content);
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        const ServerConfig config = ServerConfig::load();
        QTEST(config.apiBaseUrl, "address");
        QTEST(config.productCode, "product");
        QCOMPARE(config.downloadsBaseUrl, ServerConfig().downloadsBaseUrl);
        QCOMPARE(config.loadedFromFile, warning.isEmpty());
        QCOMPARE(read("server.json"_L1), content);
    }

    void configThatCannotBeRead()
    {
        QVERIFY(!ServerConfig::load().loadedFromFile);
        QVERIFY(!QFile::exists(dataFilePath("server.json"_L1)));
        QVERIFY(QDir().mkpath(dataFilePath("server.json"_L1)));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"existiert, ist aber nicht lesbar"_s));
        QVERIFY(!ServerConfig::load().loadedFromFile);
    }

    void guidIsMadeOnceForTheOwner()
    {
        const QString guid = machineGuid();
        QVERIFY(!QUuid::fromString(guid).isNull());
        QCOMPARE(machineGuid(), guid);
        const auto permissions = QFile::permissions(dataFilePath("machine-guid"_L1));
        QVERIFY(!(permissions & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup |
                                 QFile::WriteOther | QFile::ExeOwner)));

        write("machine-guid"_L1, "nonsense");
        const QString next = machineGuid();
        QVERIFY(!QUuid::fromString(next).isNull() && next != guid);
        QCOMPARE(machineGuid(), next);
    }

    void guidWithoutAFile()
    {
        QVERIFY(QDir().mkpath(dataFilePath("machine-guid"_L1)));
        QVERIFY(!QUuid::fromString(machineGuid()).isNull());
    }

    void legalCache_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("usable");
        QTest::addColumn<QString>("eula");
        QTest::newRow("complete") << R"({"eulaMarkdown":"e","privacyMarkdown":"p"})"_ba << true
                                  << u"e"_s;
        QTest::newRow("old names")
            << R"({"agbVersion":"3","agbMarkdown":"a","privacyMarkdown":"p"})"_ba << true << u"a"_s;
        QTest::newRow("new names first")
            << R"({"agbMarkdown":"a","eulaMarkdown":"e","privacyMarkdown":"p"})"_ba << true
            << u"e"_s;
        QTest::newRow("half") << R"({"eulaMarkdown":"e","privacyMarkdown":""})"_ba << false
                              << QString();
        QTest::newRow("array") << "[]"_ba << false << QString();
        QTest::newRow("noise") << QByteArray(100000, '\x9d') << false << QString();
    }

    void legalCache()
    {
        QFETCH(QByteArray, content);
        write("legal-docs.json"_L1, content);
        LegalDocsRecord record;
        const bool loaded = LegalDocumentCache::load(record);
        QTEST(loaded, "usable");
        if (!loaded)
            return;
        QTEST(record.eulaMarkdown, "eula");
        LegalDocumentCache::save(record);
        const QJsonObject json = QJsonDocument::fromJson(read("legal-docs.json"_L1)).object();
        QCOMPARE(json.keys(), (QStringList{u"eulaMarkdown"_s, u"eulaVersion"_s, u"fetchedAt"_s,
                                           u"privacyMarkdown"_s, u"privacyVersion"_s}));
        QVERIFY(json["fetchedAt"_L1].toString().endsWith(u'Z'));
        LegalDocsRecord again;
        QVERIFY(LegalDocumentCache::load(again));
        QCOMPARE(again.eulaVersion, record.eulaVersion);
        QVERIFY(again.fetchedAt.isValid());
    }

    void legalCacheThatCannotBeWritten()
    {
        QVERIFY(QDir().mkpath(dataFilePath("legal-docs.json"_L1)));
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression(u"\\[LegalDocumentCache\\] kann legal-docs.json nicht schreiben"_s));
        LegalDocumentCache::save({{}, u"e"_s, {}, u"p"_s, {}});
    }

    void dismissedVersion()
    {
        QCOMPARE(loadDismissedVersion(), QString());
        saveDismissedVersion(u"1.2.0, beta \"ü\""_s);
        QCOMPARE(loadDismissedVersion(), u"1.2.0, beta \"ü\""_s);
        saveDismissedVersion(u"1.2.0"_s);
        QCOMPARE(read("update-state.ini"_L1), "[General]\ndismissedVersion=1.2.0\n");

        UpdateInfo info;
        info.latest.version = u"1.2.0"_s;
        info.updateAvailable = true;
        QVERIFY2(!announcesUpdate(info, {}), "nowhere to get it");
        info.latest.valid = true;
        QVERIFY(announcesUpdate(info, {}));
        QVERIFY(!announcesUpdate(info, u"1.2.0"_s));
        QVERIFY(announcesUpdate(info, u"1.2"_s));
        info.updateAvailable = false;
        QVERIFY(!announcesUpdate(info, {}));
    }
};

QTEST_GUILESS_MAIN(TestServerFiles)
#include "tst_serverfiles.moc"
