#include "TestDesk.h"
#include "items/LinkColor.h"
#include "server/StubServer.h"

#include <QDir>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QStyleHints>
#include <QtQuickTest>

// The module is a static library: without this call the linker drops its registration.
void qml_register_types_Meridax();

/// Saves what a window shows, for the eye.
class TestPictures : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE static void save(QQuickWindow *window, const QString &name)
    {
        const QDir folder(QStringLiteral(MERIDAX_PICTURES));
        folder.mkpath(QStringLiteral("."));
        if (!window->grabWindow().save(folder.filePath(name + QLatin1StringView(".png"))))
            qFatal("The picture %s cannot be written", qPrintable(name));
    }
};

/// Runs the QML test cases of a folder with the program's style and module, and a server of their
/// own. Each file meets a view model of its own.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QQuickStyle::setStyle(QStringLiteral("Material"));
        qml_register_types_Meridax();
        meridax::setLinkColor();
        // As on a desktop; the offscreen platform says no.
        QGuiApplication::styleHints()->setUseHoverEffects(true);
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        auto *const server = new StubServer(engine);
        auto *const desk = new TestDesk(engine);
        server->answer(QStringLiteral("/api/license/update-info"), 200, {});
        for (const char *kind : {"eula", "privacy"}) {
            server->answer(QStringLiteral("/api/license/legal/%1").arg(QLatin1StringView(kind)),
                           200, {{"version", "1.0"}, {"contentMarkdown", "Text"}});
        }
        TestDesk::writeData(QStringLiteral("server.json"),
                            QStringLiteral("{\"apiBaseUrl\": \"%1\"}").arg(server->address()));
        // A camera that is away has left its profile.
        TestDesk::writeData(QStringLiteral("appsettings.json"),
                            QStringLiteral(R"({ "camera": { "cameraId": "away" },
                                "cameraProfiles": { "away": { "restoreOnConnect": true } } })"));
        engine->rootContext()->setContextProperty(QStringLiteral("testServer"), server);
        engine->rootContext()->setContextProperty(QStringLiteral("testDesk"), desk);
        engine->rootContext()->setContextProperty(QStringLiteral("testPictures"),
                                                  new TestPictures(engine));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(tst_qmldialogs, Setup)

#include "tst_qmldialogs.moc"
