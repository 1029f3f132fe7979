#include "ViewModelFixture.h"

#include "diagnostics/LogManager.h"
#include "viewmodel/LanguageSwitch.h"

#include <QRect>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using namespace meridax;

namespace {

/// Translates every text to "?".
class QuestionMarks : public QTranslator
{
public:
    QString translate(const char *, const char *, const char *, int) const override
    {
        return QStringLiteral("?");
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// Settings of the application itself that are more than a stored value.
class TestCameraViewModelSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture::prepareProcess(); }

    void init()
    {
        QTest::failOnWarning();
        m_viewModel.reset();
        m_viewModel = fixture::firstStart();
    }

    void geometryIsWrittenAtOnce()
    {
        QSignalSpy notified(m_viewModel.get(), &CameraViewModel::appSettingsChanged);
        m_viewModel->saveWindowGeometry(1, 2, 399, 900, false);
        QVERIFY2(!fixture::fileExists(), "too small to be a normal window");
        m_viewModel->saveWindowGeometry(1, 2, 900, 399, true);
        QVERIFY(loadSettings().windowMaximized);
        QCOMPARE(loadSettings().windowWidth, 0);

        m_viewModel->saveWindowGeometry(-20, 30, 1400, 400, true);
        QCOMPARE(notified.size(), 0);
        const AppSettings stored = loadSettings();
        const QRect geometry(stored.windowX, stored.windowY, stored.windowWidth,
                             stored.windowHeight);
        QCOMPARE(geometry, QRect(-20, 30, 1400, 400));
        QVERIFY(stored.windowMaximized);

        QVERIFY(QFile::remove(settingsFilePath()));
        m_viewModel->saveWindowGeometry(-20, 30, 1400, 400, true);
        QVERIFY2(!fixture::fileExists(), "nothing changed");
        m_viewModel->saveWindowGeometry(-20, 31, 1400, 400, true);
        QVERIFY(fixture::fileExists());
    }

    void sections()
    {
        QVERIFY(m_viewModel->sectionCollapsed("blob", true));
        QVERIFY(!m_viewModel->sectionCollapsed("blob", false));
        // The first choice counts even where it is the default.
        m_viewModel->setSectionCollapsed("blob", true);
        QVERIFY(m_viewModel->sectionCollapsed("blob", false));
        m_viewModel->setSectionCollapsed("", false);
        QVERIFY(!m_viewModel->sectionCollapsed("", true));
        QTRY_VERIFY(fixture::fileExists());
        QCOMPARE(loadSettings().collapsedSections, (QVariantMap{{"blob", true}, {"", false}}));
    }

    void forgottenSections()
    {
        m_viewModel->setSectionCollapsed("blob", true);
        m_viewModel->setRememberCollapsedSections(false);
        QVERIFY(!m_viewModel->sectionCollapsed("blob", false));
        QTRY_VERIFY(fixture::fileExists());
        QVERIFY(loadSettings().collapsedSections.isEmpty());

        // Still kept while the program runs, and gone at the next start.
        m_viewModel->setSectionCollapsed("blob", true);
        QVERIFY(m_viewModel->sectionCollapsed("blob", false));
        m_viewModel.reset();
        m_viewModel.reset(CameraViewModel::create(nullptr, nullptr));
        QVERIFY(!m_viewModel->rememberCollapsedSections());
        QVERIFY(!m_viewModel->sectionCollapsed("blob", false));
    }

    void languageReplacesTheStartupTranslator()
    {
        QuestionMarks startup;
        QVERIFY(QCoreApplication::installTranslator(&startup));
        setStartupTranslator(&startup);
        QCOMPARE(QCoreApplication::translate("Main", "Kamera"), "?");

        m_viewModel->setLanguage("de");
        QVERIFY2(startupTranslator(), "the language was German already");
        QSignalSpy notified(m_viewModel.get(), &CameraViewModel::appSettingsChanged);
        m_viewModel->setLanguage("../no such catalogue");
        QCOMPARE(notified.size(), 1);
        QVERIFY(!startupTranslator());
        QCOMPARE(QCoreApplication::translate("Main", "Kamera"), "Kamera");
        m_viewModel->setLanguage("de");
        QCOMPARE(QCoreApplication::translate("Main", "Kamera"), "Kamera");
    }

    void languageTranslatesOurTextsAndQts_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("ours");
        QTest::addColumn<QString>("button");
        QTest::newRow("German") << "de" << "Abbrechen" << "Abbrechen";
        QTest::newRow("English") << "en" << "Cancel" << "Cancel";
        QTest::newRow("French") << "fr" << "Annuler" << "Annuler";
        QTest::newRow("Spanish") << "es" << "Cancelar" << "Cancelar";
        QTest::newRow("Italian") << "it" << "Annulla" << "Annulla";
        QTest::newRow("unknown") << "tlh" << "Abbrechen" << "Cancel";
    }

    void languageTranslatesOurTextsAndQts()
    {
        QFETCH(const QString, language);
        m_viewModel->setLanguage(language == "fr" ? "it" : "fr");
        m_viewModel->setLanguage(language);
        QTEST(QCoreApplication::translate("CalibrationPane", "Abbrechen"), "ours");
        QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "button");
        m_viewModel->setLanguage("de");
    }

    void theEndOfTheLogIsAtHand()
    {
        LogManager::install();
        for (int i = 0; i < 201; ++i)
            qInfo("line %d", i);
        QCOMPARE(m_viewModel->getLogTail(), LogManager::tail(200));
        QCOMPARE(m_viewModel->getLogTail(3).count(u'\n'), 2);
    }

private:
    fixture::ViewModel m_viewModel;
};

QTEST_MAIN(TestCameraViewModelSettings)
#include "tst_cameraviewmodel_settings.moc"
