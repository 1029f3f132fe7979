#pragma once

#include "CachedLegalTexts.h"
#include "diagnostics/DataFolder.h"
#include "settings/SettingsFile.h"
#include "viewmodel/CameraViewModel.h"

#include <QCoreApplication>
#include <QFile>
#include <QMediaDevices>
#include <QProcess>
#include <QTest>

#include <memory>

/// What the tests of the view model share.
namespace fixture {

using ViewModel = std::unique_ptr<meridax::CameraViewModel>;

/// A view model as a start of the program would make it from `settings`.
inline ViewModel startWith(const meridax::AppSettings &settings = {})
{
    meridax::saveSettings(settings);
    return ViewModel(meridax::CameraViewModel::create(nullptr, nullptr));
}

/// A view model after a start without a settings file.
inline ViewModel firstStart()
{
    QFile::remove(meridax::settingsFilePath());
    return ViewModel(meridax::CameraViewModel::create(nullptr, nullptr));
}

inline bool fileExists()
{
    return QFile::exists(meridax::settingsFilePath());
}

/// Points the program at a server of this machine that does not answer: no test asks the world's.
inline void configureNoServer()
{
    QFile file(meridax::dataFilePath(QLatin1StringView("server.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        R"({ "apiBaseUrl": "http://127.0.0.1:9", "downloadsBaseUrl": "http://127.0.0.1:9" })");
}

/// To be called once, before the tests count warnings.
inline void prepareProcess()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
    QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
    cacheLegalTexts();
    configureNoServer();
    // Qt Multimedia warns at its first use on a machine without a sound server.
    const QMediaDevices devices;
}

/// Chooses the resolution whose text begins with `size`, such as "640 x 480".
inline void choose(meridax::CameraViewModel &viewModel, const QString &size)
{
    const QStringList options = viewModel.resolutionOptions();
    for (int i = 0; i < options.size(); ++i) {
        if (options.at(i).startsWith(size + QLatin1Char(' ')))
            viewModel.setSelectedResolutionIndex(i);
    }
}

/// Runs the command line tool of the simulated camera.
inline void simcam(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LD_PRELOAD"));
    process.setProcessEnvironment(environment);
    process.start(qEnvironmentVariable("SIMCAM_TOOL"), arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

} // namespace fixture
