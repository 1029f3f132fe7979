// The report that a crash of an earlier run left behind. All of its state is the file itself.

#include "viewmodel/CameraViewModel.h"

#include "diagnostics/CrashHandler.h"
#include "server/CrashSubmission.h"

#include <QDebug>

namespace meridax {

bool CameraViewModel::hasUnsentCrash() const
{
    return CrashHandler::hasCrashFile();
}

QString CameraViewModel::lastCrashReport() const
{
    return CrashHandler::readCrashFile();
}

QString CameraViewModel::crashReportTitle() const
{
    const QString crash = lastCrashReport();
    return crash.isEmpty() ? QString() : crashTitle(crash);
}

void CameraViewModel::dismissCrashReport()
{
    CrashHandler::removeCrashFile();
    emit crashStateChanged();
}

void CameraViewModel::sendCrashReport(const QString &additionalDescription)
{
    const QString crash = lastCrashReport();
    if (crash.isEmpty()) {
        qDebug() << "[Crash] sendCrashReport ohne vorhandene crash.txt — Abbruch";
        return;
    }
    // The crashed run's own last lines are in the description.
    sendBugReport(report(crashTitle(crash), crashDescription(additionalDescription, crash), {}, {},
                         QStringLiteral("Crash")),
                  true);
}

} // namespace meridax
