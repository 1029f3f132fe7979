#include "ProgramRun.h"
#include "X11Desktop.h"

#include <QTest>

namespace {

constexpr std::chrono::seconds kLimit(30);
const QByteArray kTitle = "Meridax";
const QRect kScreen(0, 0, 1920, 1080);
const QRect kNormal(140, 90, 1200, 800);

} // namespace

/// The program's window under a window manager, seen and moved from outside.
class TestWindowRules : public QObject
{
    Q_OBJECT

private:
    X11Desktop m_desktop;
    X11Desktop::Window m_window = 0;

    bool appears()
    {
        return QTest::qWaitFor(
            [this] {
                const auto found = m_desktop.find(kTitle);
                m_window = found.value_or(0);
                return found.has_value();
            },
            QDeadlineTimer(kLimit));
    }

    bool closes(ProgramRun &program)
    {
        m_desktop.close(m_window);
        return program.endsWell();
    }

private slots:
    void initTestCase() { QVERIFY(m_desktop.isConnected()); }

    void firstStartIsCentred()
    {
        ProgramRun::writeSettings({});
        ProgramRun program;
        QVERIFY(appears());
        QTRY_COMPARE(m_desktop.geometry(m_window), QRect(160, 65, 1600, 950));
        QVERIFY(!m_desktop.isMaximized(m_window));
        QCOMPARE(m_desktop.minimumSize(m_window), QSize(800, 600));
        QVERIFY(closes(program));
        QCOMPARE(program.complaints(), QByteArray());
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()), QRect(160, 65, 1600, 950));
    }

    void savedPlaceIsTaken_data()
    {
        QTest::addColumn<QRect>("saved");
        QTest::addColumn<QPoint>("expected");
        const QSize size = kNormal.size();
        QTest::newRow("as saved") << kNormal << kNormal.topLeft();
        QTest::newRow("partly off") << QRect({-700, 900}, size) << QPoint(-700, 900);
        QTest::newRow("beyond lower right") << QRect({5000, 4000}, size) << QPoint(1800, 1000);
        QTest::newRow("beyond upper left") << QRect({-5000, -4000}, size) << QPoint(-1080, 40);
    }

    void savedPlaceIsTaken()
    {
        QFETCH(QRect, saved);
        QFETCH(QPoint, expected);
        ProgramRun::writeSettings(ProgramRun::windowSettings(saved));
        ProgramRun program;
        QVERIFY(appears());
        // A manager may keep a pixel of its border on the screen.
        QTRY_VERIFY((m_desktop.geometry(m_window).topLeft() - expected).manhattanLength() <= 2);
        QCOMPARE(m_desktop.geometry(m_window).size(), saved.size());
        const QRect shown = m_desktop.geometry(m_window);
        QVERIFY(closes(program));
        QCOMPARE(program.complaints(), QByteArray());
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()), shown);
    }

    void maximizedOpensMaximizedAndRestores()
    {
        ProgramRun::writeSettings(ProgramRun::windowSettings(kNormal, true));
        ProgramRun program;
        QVERIFY(appears());
        // From the first moment, not by a change that one could see.
        QVERIFY(m_desktop.isMaximized(m_window));
        QTRY_COMPARE(m_desktop.geometry(m_window).width(), kScreen.width());
        QVERIFY(kScreen.contains(m_desktop.frame(m_window)));
        m_desktop.maximize(m_window, false);
        QTRY_COMPARE(m_desktop.geometry(m_window), kNormal);
        QVERIFY(closes(program));
        QCOMPARE(program.complaints(), QByteArray());
        QCOMPARE(ProgramRun::readSettings()["windowMaximized"], false);
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()), kNormal);
    }

    void maximizingKeepsTheNormalSize()
    {
        ProgramRun::writeSettings(ProgramRun::windowSettings(kNormal));
        ProgramRun program;
        QVERIFY(appears());
        QTRY_COMPARE(m_desktop.geometry(m_window), kNormal);
        m_desktop.maximize(m_window, true);
        QTRY_COMPARE(m_desktop.geometry(m_window).width(), kScreen.width());
        QVERIFY(closes(program));
        QCOMPARE(program.complaints(), QByteArray());
        QCOMPARE(ProgramRun::readSettings()["windowMaximized"], true);
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()), kNormal);
    }

    void closedWhileMinimized_data()
    {
        QTest::addColumn<bool>("maximized");
        QTest::newRow("from its normal size") << false;
        QTest::newRow("from maximized") << true;
    }

    void closedWhileMinimized()
    {
        QFETCH(bool, maximized);
        ProgramRun::writeSettings(ProgramRun::windowSettings(kNormal));
        ProgramRun program;
        QVERIFY(appears());
        QTRY_COMPARE(m_desktop.geometry(m_window), kNormal);
        if (maximized) {
            m_desktop.maximize(m_window, true);
            QTRY_COMPARE(m_desktop.geometry(m_window).width(), kScreen.width());
        }
        m_desktop.minimize(m_window);
        QTRY_VERIFY(m_desktop.isMinimized(m_window));
        QVERIFY(closes(program));
        QCOMPARE(program.complaints(), QByteArray());
        QCOMPARE(ProgramRun::readSettings()["windowMaximized"], maximized);
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()), kNormal);
    }

    // 1920x1080 at 150 %: lower than the window wants to be.
    void firstStartOnALowScreen()
    {
        ProgramRun::writeSettings({});
        qputenv("QT_SCALE_FACTOR", "1.5");
        ProgramRun program;
        qunsetenv("QT_SCALE_FACTOR");
        QVERIFY(appears());
        QTRY_COMPARE(m_desktop.geometry(m_window).size(), QSize(1896, 1008));
        QTRY_VERIFY(kScreen.contains(m_desktop.frame(m_window)));
        QVERIFY(closes(program));
        QCOMPARE(program.complaints(), QByteArray());
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()).size(), QSize(1264, 672));
    }

    void closingAtOnceSavesTheLatestSize()
    {
        ProgramRun::writeSettings(ProgramRun::windowSettings(kNormal));
        ProgramRun program;
        QVERIFY(appears());
        QTRY_COMPARE(m_desktop.geometry(m_window), kNormal);
        const QRect latest(60, 70, 900, 650);
        m_desktop.moveResize(m_window, latest);
        QVERIFY(closes(program));
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()), latest);
    }

    void neverSmallerThanItsMinimum()
    {
        ProgramRun::writeSettings(ProgramRun::windowSettings({100, 100, 300, 200}));
        ProgramRun program;
        QVERIFY(appears());
        QTRY_COMPARE(m_desktop.geometry(m_window).size(), QSize(800, 600));
        m_desktop.moveResize(m_window, {100, 100, 500, 400});
        QVERIFY(closes(program));
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()).size(), QSize(800, 600));
    }

    void secondStartBringsTheWindowBack()
    {
        ProgramRun::writeSettings(ProgramRun::windowSettings(kNormal));
        ProgramRun first;
        QVERIFY(appears());
        QTRY_VERIFY(m_desktop.isActive(m_window));
        QTRY_VERIFY(ProgramRun::isListening());

        m_desktop.minimize(m_window);
        QTRY_VERIFY(m_desktop.isMinimized(m_window));
        QVERIFY(ProgramRun().endsWell());
        QTRY_VERIFY(!m_desktop.isMinimized(m_window));
        QTRY_COMPARE(m_desktop.geometry(m_window), kNormal);

        const X11Desktop::Window other = m_desktop.makeWindow("other");
        m_desktop.activate(other);
        QTRY_VERIFY(m_desktop.isOnTop(other) && m_desktop.isActive(other));
        QVERIFY(ProgramRun().endsWell());
        QTRY_VERIFY(m_desktop.isOnTop(m_window));
        QTRY_VERIFY(m_desktop.isActive(m_window));

        QVERIFY(first.isRunning());
        QVERIFY(closes(first));
        QCOMPARE(first.complaints(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestWindowRules)
#include "tst_windowrules.moc"
