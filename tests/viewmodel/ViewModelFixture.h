#pragma once

#include "settings/SettingsFile.h"
#include "viewmodel/CameraViewModel.h"

#include <QCoreApplication>
#include <QFile>

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

inline void setApplicationNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick Optics"));
    QCoreApplication::setApplicationName(QStringLiteral("Meridax"));
}

} // namespace fixture
