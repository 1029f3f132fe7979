#include "ScreenshotStory.h"

#include <QCoreApplication>
#include <QGenericPlugin>
#include <QTimer>

/// Starts the story in the program that loaded the plugin, once its event loop runs.
class ScreenshotPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ScreenshotPlugin.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        auto *const start = new QTimer(this);
        start->setSingleShot(true);
        connect(start, &QTimer::timeout, this, [] {
            const bool passed = takeScreenshots(screenshotOptionsFromEnvironment());
            QCoreApplication::exit(passed ? 0 : 1);
        });
        start->start();
        return start;
    }
};

#include "ScreenshotPlugin.moc"
