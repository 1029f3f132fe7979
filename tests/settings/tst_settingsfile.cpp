#include "settings/SettingsFile.h"
#include "settings/SettingsJson.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QTest>

using namespace meridax;

/// The settings file in the data folder that the test runner has set up.
class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void damagedFileGivesDefaults_data();
    void damagedFileGivesDefaults();
    void missingFileGivesDefaults();
    void directoryInPlaceOfTheFile();
    void roundTripThroughTheFile();
    void unknownKeysDisappear();
    void folderThatCannotBeMade();

private:
    static void write(const QByteArray &content);
    static QDir folder() { return QFileInfo(settingsFilePath()).dir(); }
};

void TestSettingsFile::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
    QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    QVERIFY(settingsFilePath().endsWith("/Tarnwick Optics/Meridax/appsettings.json"));
}

void TestSettingsFile::init()
{
    QDir().mkpath(folder().path());
    QFile::remove(settingsFilePath());
}

void TestSettingsFile::write(const QByteArray &content)
{
    QFile file(settingsFilePath());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
}

void TestSettingsFile::damagedFileGivesDefaults_data()
{
    QTest::addColumn<QByteArray>("content");
    AppSettings dark;
    dark.darkMode = true;
    const QByteArray whole = QJsonDocument(toJson(dark)).toJson();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("array") << QByteArray("[{\"darkMode\": true}]");
    QTest::newRow("truncated") << whole.chopped(3);
    QTest::newRow("trailing text") << whole + "x";
    QTest::newRow("number out of range") << QByteArray("{\"darkMode\": true, \"windowX\": 1e999}");
    QTest::newRow("not UTF-8") << QByteArray("{\"darkMode\": true, \"language\": \"\xff\xfe\"}");
    QByteArray noise(5 * 1024 * 1024, Qt::Uninitialized);
    QRandomGenerator random(1);
    for (char &byte : noise)
        byte = static_cast<char>(random.bounded(256));
    QTest::newRow("5 MB of noise") << noise;
    QTest::newRow("5 MB of brackets") << QByteArray(5 * 1024 * 1024, '[');
}

void TestSettingsFile::damagedFileGivesDefaults()
{
    QFETCH(QByteArray, content);
    write(content);
    QCOMPARE(loadSettings(), AppSettings());
}

void TestSettingsFile::missingFileGivesDefaults()
{
    QCOMPARE(loadSettings(), AppSettings());
    QVERIFY(folder().removeRecursively());
    QCOMPARE(loadSettings(), AppSettings());
}

void TestSettingsFile::directoryInPlaceOfTheFile()
{
    QVERIFY(QDir().mkdir(settingsFilePath()));
    QCOMPARE(loadSettings(), AppSettings());
    QVERIFY(!saveSettings({}));
    QVERIFY(QDir().rmdir(settingsFilePath()));
}

void TestSettingsFile::roundTripThroughTheFile()
{
    QVERIFY(folder().removeRecursively());
    AppSettings settings;
    settings.camera.cameraName = QStringLiteral("Küche");
    settings.camera.circle2.lineStyle = Dotted;
    QVERIFY(saveSettings(settings));
    QCOMPARE(loadSettings(), settings);

    // A shorter record leaves nothing of the longer one behind.
    QVERIFY(saveSettings({}));
    QCOMPARE(loadSettings(), AppSettings());
}

void TestSettingsFile::unknownKeysDisappear()
{
    write(R"({"language": "it", "colour": "red", "blob": {"minConvexity": 0.5}})");
    QVERIFY(saveSettings(loadSettings()));
    QFile file(settingsFilePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.contains("\"language\": \"it\""));
    QVERIFY(text.contains("\"minCircularity\": 0.5"));
    QVERIFY(!text.contains("colour"));
    QVERIFY(!text.contains("minConvexity"));
}

void TestSettingsFile::folderThatCannotBeMade()
{
    // A file where the folder should be: also keeps a privileged user out.
    const QString path = folder().path();
    QVERIFY(folder().removeRecursively());
    QFile obstacle(path);
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    obstacle.close();
    QVERIFY(!saveSettings({}));
    QCOMPARE(loadSettings(), AppSettings());
    QVERIFY(obstacle.remove());
}

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
