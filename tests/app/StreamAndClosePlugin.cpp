#include "drive/Scene.h"
#include "drive/SimulatedCamera.h"

#include <QCoreApplication>
#include <QGenericPlugin>
#include <QTimer>

#include <cstdio>

namespace {

/// Lets the camera hang, for longer than anyone waits, in a write of the program.
void hangInAWrite(const Scene &scene)
{
    const SimulatedCamera camera(qEnvironmentVariable("SIMCAM_TOOL"));
    camera.run({QStringLiteral("set"), QStringLiteral("control-hang=600")});
    const auto calls = [&] {
        return camera.run({QStringLiteral("get"), QStringLiteral("control-calls")});
    };
    const auto before = calls();
    scene.viewModel().setProperty("brightness", 30);
    waitFor(QStringLiteral("a write"), [&] { return calls() != before; });
}

/// Starts the camera, waits until its picture is in the window, and closes that.
void streamAndClose(bool whileHanging)
{
    const Scene scene;
    QMetaObject::invokeMethod(&scene.viewModel(), "startCamera");
    waitFor(QStringLiteral("the picture"),
            [&] { return scene.window().property("hasFirstFrame").toBool(); });
    waitFor(QStringLiteral("a drawn window"),
            [&] { return !scene.window().grabWindow().isNull(); });
    if (whileHanging)
        hangInAWrite(scene);
    scene.window().close();
}

} // namespace

/// For platforms where nobody can reach the window from outside.
class StreamAndClosePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "StreamAndClosePlugin.json")

public:
    QObject *create(const QString &, const QString &specification) override
    {
        auto *const start = new QTimer(this);
        start->setSingleShot(true);
        connect(start, &QTimer::timeout, this, [specification] {
            try {
                streamAndClose(specification == QLatin1String("hang"));
            } catch (const std::exception &error) {
                std::fprintf(stderr, "Warning: %s\n", error.what());
                QCoreApplication::exit(1);
            }
        });
        start->start();
        return start;
    }
};

#include "StreamAndClosePlugin.moc"
