#pragma once

#include "settings/AppSettings.h"

namespace meridax {

/// Full path of "appsettings.json" in the user's data folder of the application.
QString settingsFilePath();

/// The settings of the file. Never fails and tells nobody: a file that is missing, unreadable or
/// damaged gives the defaults.
AppSettings loadSettings();

/// Writes the whole record directly over the file, creating its folder where needed. Returns false
/// when that did not succeed. A write that is cut short leaves a damaged file, which the next load
/// treats as absent.
bool saveSettings(const AppSettings &settings);

} // namespace meridax
