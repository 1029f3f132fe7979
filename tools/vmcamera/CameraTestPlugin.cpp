#include "CameraTest.h"

#include <QCoreApplication>
#include <QGenericPlugin>
#include <QTimer>

/// Starts the test in the program that loaded the plugin, once its event loop runs.
class CameraTestPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "CameraTestPlugin.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        auto *const start = new QTimer(this);
        start->setSingleShot(true);
        connect(start, &QTimer::timeout, this,
                [] { QCoreApplication::exit(runCameraTest() ? 0 : 1); });
        start->start();
        return start;
    }
};

#include "CameraTestPlugin.moc"
