#include "diagnostics/CrashHandler.h"

#include "BuildInfo.h"
#include "diagnostics/CrashFilter.h"
#include "diagnostics/DataFolder.h"
#include "diagnostics/LogManager.h"

#include <QDebug>
#include <QFile>

namespace meridax {

namespace {

bool writeNewestLines(const crash::ReportFile &file)
{
    return LogManager::writeTail(crash::kLogLines, file.write, file.handle);
}

} // namespace

void CrashHandler::install()
{
    makeDataFolder();
    crash::installFilter({.file = std::filesystem::path(crashFilePath().toStdU16String()),
                          .version = build::version().toStdString(),
                          .commit = build::commit().toStdString(),
                          .buildTime = build::buildTime().toStdString(),
                          .logWriter = writeNewestLines});
    qInfo().noquote() << crash::filterInstalledText() << "Crash-Reports landen in"
                      << crashFilePath();
}

void CrashHandler::coverThread()
{
    crash::coverThread();
}

QString CrashHandler::crashFilePath()
{
    return dataFilePath(QLatin1StringView("crash.txt"));
}

bool CrashHandler::hasCrashFile()
{
    return QFile::exists(crashFilePath());
}

QString CrashHandler::readCrashFile()
{
    QFile file(crashFilePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll());
}

void CrashHandler::removeCrashFile()
{
    QFile::remove(crashFilePath());
}

} // namespace meridax
