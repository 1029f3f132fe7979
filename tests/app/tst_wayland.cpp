#include "ProgramRun.h"

#include <QTest>

/// The program on Wayland, where no window may place itself.
class TestWayland : public QObject
{
    Q_OBJECT

private slots:
    void streamsAndKeepsItsGeometry_data()
    {
        QTest::addColumn<bool>("maximized");
        QTest::newRow("normal") << false;
        QTest::newRow("maximized") << true;
    }

    void streamsAndKeepsItsGeometry()
    {
        QFETCH(bool, maximized);
        const QRect saved(140, 90, 1200, 800);
        ProgramRun::writeSettings(ProgramRun::windowSettings(saved, maximized));
        ProgramRun program(QStringLiteral("meridax-stream-and-close"));
        const bool well = program.endsWell();
        QCOMPARE(program.complaints(), QByteArray());
        QVERIFY(well);
        QCOMPARE(ProgramRun::savedGeometry(ProgramRun::readSettings()), saved);
        QCOMPARE(ProgramRun::readSettings()["windowMaximized"], maximized);
    }

    void endsWhileTheCameraHangs()
    {
        ProgramRun::writeSettings({});
        ProgramRun program(QStringLiteral("meridax-stream-and-close:hang"));
        QVERIFY(program.endsWell());
        QCOMPARE(program.complaints(), QByteArray());
        QCOMPARE(ProgramRun::readSettings()["camera"].toObject()["brightness"].toInt(), 30);
    }
};

QTEST_GUILESS_MAIN(TestWayland)
#include "tst_wayland.moc"
