#include "drive/Scene.h"

#include <QCoreApplication>
#include <QGenericPlugin>
#include <QTimer>

#include <cstdio>

namespace {

/// Starts the camera, waits until its picture is in the window, and closes that.
void streamAndClose()
{
    const Scene scene;
    QMetaObject::invokeMethod(&scene.viewModel(), "startCamera");
    waitFor(QStringLiteral("the picture"),
            [&] { return scene.window().property("hasFirstFrame").toBool(); });
    waitFor(QStringLiteral("a drawn window"),
            [&] { return !scene.window().grabWindow().isNull(); });
    scene.window().close();
}

} // namespace

/// For platforms where nobody can reach the window from outside.
class StreamAndClosePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "StreamAndClosePlugin.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        auto *const start = new QTimer(this);
        start->setSingleShot(true);
        connect(start, &QTimer::timeout, this, [] {
            try {
                streamAndClose();
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
