#pragma once

#include <QIODevice>
#include <QString>

class QFile;

/// The folder where the program keeps what it has of its user: settings, log, reports, small files.
/// Organisation and application name have to be set before its path is asked for.
namespace meridax {

/// Full path, without a slash at its end.
QString dataFolder();

/// Full path of the file `name` directly in the folder.
QString dataFilePath(QLatin1StringView name);

/// Makes the folder with all its parents and takes it from everybody but its owner, also where it
/// is there already. False if there is no such folder afterwards.
bool makeDataFolder();

/// Opens `file`, which only its owner can read and write from then on. False as QFile::open().
bool openForOwner(QFile &file, QIODevice::OpenMode mode);

} // namespace meridax
