#include "SoakScript.h"

#include <QCoreApplication>
#include <QGenericPlugin>
#include <QTimer>

/// Starts the script in the program that loaded the plugin, once its event loop runs.
class SoakPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "SoakPlugin.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        auto *const start = new QTimer(this);
        start->setSingleShot(true);
        connect(start, &QTimer::timeout, this, [] {
            const bool passed = runSoakScript(soakOptionsFromEnvironment());
            QCoreApplication::exit(passed ? 0 : 1);
        });
        start->start();
        return start;
    }
};

#include "SoakPlugin.moc"
