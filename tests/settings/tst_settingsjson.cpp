#include "settings/SettingsJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <limits>

using namespace meridax;

/// Readers and writers of the settings records.
class TestSettingsJson : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip();
    void focusRangeIsNotWritten();
    void badValuesKeepTheFallback_data();
    void badValuesKeepTheFallback();
    void circle_data();
    void circle();
    void cross_data();
    void cross();
    void writtenNames();
    void limits_data();
    void limits();
    void formerNameOfCircularity_data();
    void formerNameOfCircularity();
    void collapsedSectionsAreReplaced();
};

namespace {

QJsonObject parse(const char *text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    return document.object();
}

/// A record in which every field of the file differs from its default.
AppSettings unusualSettings()
{
    AppSettings s;
    s.language = QStringLiteral("fr");
    s.darkMode = true;
    s.calibrationPositions = 12;
    s.calibrationMeasureFrames = 7;
    s.collapsedSections = {{QStringLiteral("camera"), true}, {QStringLiteral("blob"), false}};
    s.rememberCollapsedSections = false;
    s.screenshotPath = QStringLiteral("/tmp/Bilder für Jürgen");
    s.screenshotIncludeOverlays = false;
    s.focusPresetIncludeMarkers = false;
    s.focusPresetShowValue = true;
    s.cameraPanelExpandedAtStart = false;
    s.overlayPanelExpandedAtStart = false;
    s.showTooltips = false;
    s.showZoomOverlay = false;
    s.windowWidth = 1300;
    s.windowHeight = 820;
    s.windowX = -40;
    s.windowY = 17;
    s.windowMaximized = true;
    CameraSettings &c = s.camera;
    c.cameraName = QStringLiteral("Kamera \"A\"");
    c.cameraId = QStringLiteral("\\\\?\\usb#vid_1");
    c.cameraIndex = 2;
    c.cameraResolutionX = 1920;
    c.cameraResolutionY = 1080;
    c.centerX = 961.25;
    c.centerY = 539.1;
    c.centerOffsetX = -1.5;
    c.centerOffsetY = 2.75;
    c.centerOffsetEnabled = false;
    c.zoom = 2.5;
    c.focusValue = 321;
    c.captureTimeMs = -4;
    c.brightness = -12;
    c.saturation = 61;
    c.contrast = 44;
    c.gain = 9;
    c.locked = true;
    c.calibrated = true;
    c.circle1 = {QStringLiteral("außen"), 10.5, QColor("#010203"), 1.5, false, Dashed};
    c.circle2 = {QStringLiteral("mitte"), 20.5, QColor("#040506"), 2.5, true, Dotted};
    c.circle3 = {QStringLiteral("innen"), 30.5, QColor("#070809"), 3.5, true, DashDot};
    c.cross = {33.3, QColor("#0a0b0c"), 4.5, false, ThreeArms, Dotted};
    s.blob = {11.0, 222.0, false, 333.0, 44444.0, false, 0.55, false, 0.66};
    return s;
}

} // namespace

void TestSettingsJson::roundTrip()
{
    const AppSettings written = unusualSettings();
    const QByteArray text = QJsonDocument(toJson(written)).toJson();
    const AppSettings read = appSettingsFromJson(QJsonDocument::fromJson(text).object(), {});
    QCOMPARE(read, written);
}

void TestSettingsJson::focusRangeIsNotWritten()
{
    CameraSettings camera;
    camera.focusRangeMin = 1;
    camera.focusRangeMax = 1023;
    const CameraSettings read = cameraSettingsFromJson(toJson(camera), {});
    QCOMPARE(read.focusRangeMin, 0);
    QCOMPARE(read.focusRangeMax, 0);
}

void TestSettingsJson::badValuesKeepTheFallback_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("null") << QJsonValue(QJsonValue::Null);
    QTest::newRow("array") << QJsonValue(QJsonArray{1, 2});
    QTest::newRow("empty array") << QJsonValue(QJsonArray());
    QTest::newRow("object of nonsense") << QJsonValue(QJsonObject{{"x", 1}});
}

/// One value in place of every value of the file, nested ones included.
void TestSettingsJson::badValuesKeepTheFallback()
{
    QFETCH(QJsonValue, value);
    AppSettings fallback = unusualSettings();
    const auto spoilt = [&value](QJsonObject object, const QStringList &keep = {}) {
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (!keep.contains(it.key()))
                it.value() = value;
        }
        return object;
    };
    QJsonObject camera = toJson(fallback.camera);
    const QStringList nested{"circle1", "circle2", "circle3", "cross"};
    for (const QString &key : nested)
        camera[key] = spoilt(camera.value(key).toObject());
    QJsonObject json = toJson(fallback);
    json["camera"] = spoilt(camera, nested);
    json["blob"] = spoilt(json.value("blob").toObject());
    json = spoilt(json, {"camera", "blob", "cameraProfiles", "collapsedSections"});
    QCOMPARE(appSettingsFromJson(json, fallback), fallback);

    // The nested records themselves as the wrong type.
    fallback.collapsedSections.clear();
    const QVariantMap sections = value.toObject().toVariantMap();
    AppSettings read = appSettingsFromJson(spoilt(json), fallback);
    QCOMPARE(read.collapsedSections, sections);
    QCOMPARE(read.cameraProfiles.size(), sections.size()); // of defaults
    read.collapsedSections.clear();
    read.cameraProfiles.clear();
    QCOMPARE(read, fallback);
}

void TestSettingsJson::circle_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("lineStyle");
    QTest::addColumn<QColor>("color");
    const QColor kept("#ff00ff");
    QTest::newRow("solid") << QByteArray(R"({"lineStyle":"solid"})") << int(Solid) << kept;
    QTest::newRow("dashed") << QByteArray(R"({"lineStyle":"dashed"})") << int(Dashed) << kept;
    QTest::newRow("dotted") << QByteArray(R"({"lineStyle":"dotted"})") << int(Dotted) << kept;
    QTest::newRow("dashdot") << QByteArray(R"({"lineStyle":"dashdot"})") << int(DashDot) << kept;
    QTest::newRow("capital") << QByteArray(R"({"lineStyle":"Dashed"})") << int(Dotted) << kept;
    QTest::newRow("number") << QByteArray(R"({"lineStyle":1})") << int(Dotted) << kept;
    QTest::newRow("colour") << QByteArray(R"({"color":"#102030"})") << int(Dotted)
                            << QColor(0x10, 0x20, 0x30);
    QTest::newRow("no colour") << QByteArray(R"({"color":"#12"})") << int(Dotted) << kept;
    QTest::newRow("empty colour") << QByteArray(R"({"color":""})") << int(Dotted) << kept;
}

void TestSettingsJson::circle()
{
    QFETCH(QByteArray, text);
    CircleSettings fallback = AppSettings().camera.circle1;
    fallback.lineStyle = Dotted;
    const CircleSettings read = circleSettingsFromJson(parse(text), fallback);
    QTEST(read.lineStyle, "lineStyle");
    QTEST(read.color, "color");
    QCOMPARE(read.name, fallback.name);
    QCOMPARE(read.radius, fallback.radius);
}

void TestSettingsJson::cross_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("fallback");
    QTest::addColumn<int>("type");
    QTest::newRow("lines") << QByteArray(R"({"type":"lines"})") << int(FourArms) << int(ThreeArms);
    QTest::newRow("cross") << QByteArray(R"({"type":"cross"})") << int(ThreeArms) << int(FourArms);
    QTest::newRow("capital") << QByteArray(R"({"type":"Lines"})") << int(FourArms) << int(FourArms);
    QTest::newRow("missing") << QByteArray("{}") << int(ThreeArms) << int(ThreeArms);
}

void TestSettingsJson::cross()
{
    QFETCH(QByteArray, text);
    QFETCH(int, fallback);
    CrossSettings record;
    record.type = fallback;
    QTEST(crossSettingsFromJson(parse(text), record).type, "type");
}

/// Values in memory that have no name are written as the plain one.
void TestSettingsJson::writtenNames()
{
    CircleSettings circle;
    circle.lineStyle = 4;
    QCOMPARE(toJson(circle).value("lineStyle").toString(), "solid");
    circle.lineStyle = -1;
    QCOMPARE(toJson(circle).value("lineStyle").toString(), "solid");
    CrossSettings cross;
    cross.type = 7;
    QCOMPARE(toJson(cross).value("type").toString(), "cross");
    cross.color = QColor(255, 255, 0, 20);
    QCOMPARE(toJson(cross).value("color").toString(), "#ffff00");
}

void TestSettingsJson::limits_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("positions");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("focus");
    QTest::addColumn<double>("zoom");
    const AppSettings d;
    const auto row = [](const char *text, int positions, int frames, int focus, double zoom) {
        QTest::newRow(text) << QByteArray(text) << positions << frames << focus << zoom;
    };
    row(R"({"calibrationPositions":1})", 3, 3, 0, 1.0);
    row(R"({"calibrationPositions":99})", 15, 3, 0, 1.0);
    row(R"({"calibrationPositions":1e12})", 8, 3, 0, 1.0);
    row(R"({"calibrationPositions":4.5})", 8, 3, 0, 1.0);
    row(R"({"calibrationMeasureFrames":99})", 8, 99, 0, 1.0);
    row(R"({"calibrationMeasureFrames":-2147483649})", 8, 3, 0, 1.0);
    row(R"({"camera":{"focusValue":-5}})", 8, 3, 0, 1.0);
    row(R"({"camera":{"focusValue":2147483647,"zoom":4}})", 8, 3, std::numeric_limits<int>::max(),
        4.0);
    row(R"({"camera":{"focusValue":2147483648,"zoom":"4"}})", 8, 3, 0, 1.0);
}

void TestSettingsJson::limits()
{
    QFETCH(QByteArray, text);
    const AppSettings read = appSettingsFromJson(parse(text), {});
    QTEST(read.calibrationPositions, "positions");
    QTEST(read.calibrationMeasureFrames, "frames");
    QTEST(read.camera.focusValue, "focus");
    QTEST(read.camera.zoom, "zoom");
}

void TestSettingsJson::formerNameOfCircularity_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("circularity");
    QTest::newRow("former") << QByteArray(R"({"minConvexity":0.7})") << 0.7;
    QTest::newRow("both") << QByteArray(R"({"minConvexity":0.7,"minCircularity":0.8})") << 0.8;
    QTest::newRow("neither") << QByteArray("{}") << 0.9;
    QTest::newRow("former no number") << QByteArray(R"({"minConvexity":"0.7"})") << 0.9;
}

void TestSettingsJson::formerNameOfCircularity()
{
    QFETCH(QByteArray, text);
    QTEST(blobSettingsFromJson(parse(text), {}).minCircularity, "circularity");
}

void TestSettingsJson::collapsedSectionsAreReplaced()
{
    AppSettings fallback;
    fallback.collapsedSections = {{QStringLiteral("old"), true}};
    QVERIFY(appSettingsFromJson({}, fallback).collapsedSections.isEmpty());
    const QVariantMap read =
        appSettingsFromJson(parse(R"({"collapsedSections":{"new":true}})"), fallback)
            .collapsedSections;
    QCOMPARE(read, (QVariantMap{{QStringLiteral("new"), true}}));
}

QTEST_APPLESS_MAIN(TestSettingsJson)
#include "tst_settingsjson.moc"
