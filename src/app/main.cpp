#include "app/SingleInstance.h"
#include "app/TitleBar.h"
#include "camera/ControlThread.h"
#include "diagnostics/CrashHandler.h"
#include "diagnostics/DataFolder.h"
#include "diagnostics/LogManager.h"
#include "items/LinkColor.h"
#include "settings/SettingsFile.h"
#include "viewmodel/LanguageSwitch.h"

#include <QDebug>
#include <QGuiApplication>
#include <QIcon>
#include <QLockFile>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QTranslator>
#include <QWindow>

#include <cstdlib>

// The QML module lies in a static library: without this reference the linker would drop the
// registration of its types.
void qml_register_types_Meridax();
[[maybe_unused]] static const volatile auto keepModuleRegistration = &qml_register_types_Meridax;

using namespace meridax;

namespace {

constexpr int kLockTimeoutMs = 100;

void setApplicationIdentity()
{
    QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
}

/// Under this name the desktop finds the entry, and with it name and icon, that belong to a window.
/// X11 goes by the application's name instead, which is the entry's StartupWMClass.
void setDesktopIdentity()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tarnwick_optics.Meridax"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/resources/app_icon.svg")));
}

/// Without the lock: hands over to the instance that holds it, or says why nobody can have it.
/// Returns the exit code.
int endWithoutLock(QLockFile::LockError error)
{
    if (error == QLockFile::LockFailedError) {
        activateRunningInstance();
        return EXIT_SUCCESS;
    }
    qCritical().noquote() << "[main] Meridax kann nicht starten: im Ordner" << dataFolder()
                          << "lässt sich keine Datei anlegen. Ist der Datenträger voll oder "
                             "schreibgeschützt, oder gehört der Ordner jemand anderem?";
    return EXIT_FAILURE;
}

QWindow *rootWindow(const QQmlApplicationEngine &engine)
{
    return qobject_cast<QWindow *>(engine.rootObjects().value(0));
}

// The order is a requirement: each step depends on the ones before it, and everything is destroyed
// in the opposite order, the lock last.
int runProgram(int argc, char *argv[])
{
    // The data folder is derived from the names, and the lock lies in it.
    setApplicationIdentity();
    makeDataFolder();
    QLockFile lock(dataFilePath(QLatin1StringView("meridax.lock")));
    if (!lock.tryLock(kLockTimeoutMs))
        return endWithoutLock(lock.error());
    // After the lock, so that one process only writes the log; before the application, so that its
    // construction is covered.
    LogManager::install();
    CrashHandler::install();

    QGuiApplication app(argc, argv);
    setApplicationIdentity();
    setDesktopIdentity();
    QQuickStyle::setStyle(QStringLiteral("Material"));
    QTranslator translator;
    // Before any QML text exists, since the scene takes its texts from it.
    if (installLanguage(loadSettings().language, translator))
        setStartupTranslator(&translator);
    setLinkColor();

    QQmlApplicationEngine engine;
    setQmlEngine(&engine);
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreationFailed, &app,
        [] { QCoreApplication::exit(-1); }, Qt::QueuedConnection);
    engine.loadFromModule("Meridax", "Main");
    if (QWindow *const window = rootWindow(engine))
        darkenTitleBar(*window);

    const ActivationServer activationServer([&engine] {
        if (QWindow *const window = rootWindow(engine))
            raiseWindow(*window);
    });
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const int exitCode = runProgram(argc, argv);
    // A camera that hangs has kept its thread. All is saved and the lock is free, so the process
    // ends without taking the ground from under that thread.
    if (ControlThread::anyLeftBehind())
        std::_Exit(exitCode);
    return exitCode;
}
