#include "TestDesk.h"
#include "diagnostics/LogManager.h"
#include "server/SupportServerTool.h"

#include <QJsonDocument>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QVariantMap>
#include <QtQuickTest>

// The module is a static library: without this call the linker drops its registration.
void qml_register_types_Meridax();

/// A real support server and the real log for the QML test cases.
class TestSupport : public QObject
{
    Q_OBJECT

public:
    explicit TestSupport(QObject *parent)
        : QObject(parent)
    {
        SupportServerTool::configure(m_server.http());
    }

    /// Points the program at `address`; before the view model is made.
    Q_INVOKABLE static void configure(const QString &address)
    {
        SupportServerTool::configure(address);
    }

    /// The newest of what came in by the request `kind`, such as "report-bug"; empty if none did.
    Q_INVOKABLE QVariantMap newest(const QString &kind) const
    {
        const QStringList names = m_server.received().filter(kind);
        return names.isEmpty()
                   ? QVariantMap()
                   : QJsonDocument::fromJson(m_server.body(names.last())).toVariant().toMap();
    }

    /// From inside a test, so that the log passes the lines on to the test framework.
    Q_INVOKABLE static void installLog() { meridax::LogManager::install(); }

private:
    SupportServerTool m_server;
};

/// Runs the QML test cases of a folder with the program's style and module.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QQuickStyle::setStyle(QStringLiteral("Material"));
        qml_register_types_Meridax();
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->rootContext()->setContextProperty(QStringLiteral("testSupport"),
                                                  new TestSupport(engine));
        engine->rootContext()->setContextProperty(QStringLiteral("testDesk"), new TestDesk(engine));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(tst_endtoend, Setup)

#include "tst_endtoend.moc"
