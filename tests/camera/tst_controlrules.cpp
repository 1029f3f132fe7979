#include "camera/ControlRules.h"

#include <QTest>

#include <climits>

using namespace meridax;

Q_DECLARE_METATYPE(std::optional<ControlRange>)
Q_DECLARE_METATYPE(std::optional<ControlWrite>)

namespace {

ControlRange range(int min, int max, int step, int defaultValue, bool canAuto)
{
    return supportedRange(min, max, step, defaultValue, canAuto);
}

ControlWrite manual(int value)
{
    return {value, false};
}

ControlWrite automatic(int value)
{
    return {value, true};
}

const std::wstring usbPath = L"\\\\?\\usb#vid_1234&pid_0001#6&1";

} // namespace

class TestControlRules : public QObject
{
    Q_OBJECT

private slots:
    void writes_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<std::optional<ControlRange>>("range");
        QTest::addColumn<std::optional<ControlWrite>>("exposure");
        QTest::addColumn<ControlWrite>("others");
        using Range = std::optional<ControlRange>;
        using Write = std::optional<ControlWrite>;
        const auto row = [](const char *name, int value, const Range &range, const Write &exposure,
                            const ControlWrite &others) {
            QTest::newRow(name) << value << range << exposure << others;
        };
        const Range withAuto = range(1, 20, 4, 5, true);
        const Range manualOnly = range(1, 20, 4, 5, false);
        row("off the step", 7, withAuto, manual(9), manual(7));
        row("on the step", 9, withAuto, manual(9), manual(9));
        row("lower end is automatic", 1, withAuto, automatic(5), automatic(5));
        row("below it too", -40, withAuto, automatic(5), automatic(5));
        row("just above", 2, withAuto, manual(1), manual(2));
        row("snaps beyond the end", 20, withAuto, manual(20), manual(20));
        row("above the end", 99, withAuto, manual(20), manual(20));
        row("lower end, no automatic mode", 1, manualOnly, manual(1), manual(1));
        row("below, no automatic mode", -40, manualOnly, manual(1), manual(1));
        row("logarithmic scale", -6, Range(range(-13, -1, 1, -6, true)), manual(-6), manual(-6));
        row("far outside", INT_MAX, Range(range(INT_MIN, INT_MAX, 1000, 0, false)),
            manual(INT_MAX - 295), manual(INT_MAX));
        row("range unknown", 7, {}, {}, manual(7));
    }

    void writes()
    {
        QFETCH(int, value);
        QFETCH(std::optional<ControlRange>, range);
        QFETCH(std::optional<ControlWrite>, exposure);
        QFETCH(ControlWrite, others);
        QCOMPARE(exposureWrite(value, range), exposure);
        QCOMPARE(controlWrite(value, range), others);
    }

    void rangesOfStrangeDevices()
    {
        QCOMPARE(range(0, 10, 0, 3, true).step, 1);
        QCOMPARE(range(0, 10, -4, 3, true).step, 1);
        const ControlRange wide =
            supportedRange(-(1LL << 40), 1LL << 40, 1LL << 33, 1LL << 39, false);
        QCOMPARE(wide, range(INT_MIN, INT_MAX, INT_MAX, INT_MAX, false));
        // Ends the wrong way round: any value, but no crash.
        QVERIFY(exposureWrite(7, range(10, 0, 3, 3, false)).has_value());
    }

    void logLine()
    {
        QCOMPARE(procAmpLogLine(3, manual(20), true, {20, 2}),
                 "[ProcAmp] prop=3 requested=20 flagsUsed=2 setHR=OK readBack=20 readBackFlags=2");
        QCOMPARE(procAmpLogLine(9, automatic(-5), false, {}),
                 "[ProcAmp] prop=9 requested=-5 flagsUsed=1 setHR=FAIL readBack=-1 "
                 "readBackFlags=-1");
    }

    void devices_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("id");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("byNameOrPath");
        const auto path = QString::fromStdWString(usbPath);
        // Of three: "a", "b", "b".
        QTest::newRow("name") << "b" << "" << 0 << 1;
        QTest::newRow("path beats index") << "" << path + "c" << 0 << 2;
        QTest::newRow("path behind a prefix") << "" << "@device:pnp:" + path + "c" << 0 << 2;
        QTest::newRow("part of the path") << "" << "0001#6&1c" << 0 << 2;
        QTest::newRow("first that fits either way") << "a" << path + "c" << 1 << 0;
        QTest::newRow("neither") << "x" << "y" << 1 << 1;
        QTest::newRow("no texts") << "" << "" << 2 << 2;
        QTest::newRow("index beyond the list") << "" << "" << 3 << -1;
        QTest::newRow("negative index") << "" << "" << -1 << -1;
    }

    void devices()
    {
        QFETCH(QString, name);
        QFETCH(QString, id);
        QFETCH(int, index);
        const WantedDevice wanted{name.toStdWString(), id.toStdWString(), index};
        const std::vector<DeviceNames> three{
            {L"a", usbPath + L"a"}, {L"b", usbPath + L"b"}, {L"b", usbPath + L"c"}};
        QTEST(chooseByNameOrPath(three, wanted), "byNameOrPath");
        QCOMPARE(chooseByNameOrPath({}, wanted), -1);
    }
};

QTEST_APPLESS_MAIN(TestControlRules)
#include "tst_controlrules.moc"
