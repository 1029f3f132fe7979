// The report that a crash of an earlier run left behind. All of its state is the file itself.

#include "viewmodel/CameraViewModel.h"

#include "diagnostics/CrashHandler.h"
#include "diagnostics/PersonalPaths.h"
#include "server/CrashSubmission.h"

#include <QDebug>

namespace meridax {

bool CameraViewModel::hasUnsentCrash() const
{
    return !m_crashIsDismissed && CrashHandler::hasCrashFile();
}

QString CameraViewModel::lastCrashReport() const
{
    return withoutPersonalPaths(CrashHandler::readCrashFile(), PersonalPaths::ofUser());
}

QString CameraViewModel::crashReportTitle() const
{
    return hasUnsentCrash() ? crashTitle(lastCrashReport()) : QString();
}

void CameraViewModel::dismissCrashReport()
{
    CrashHandler::removeCrashFile();
    if (CrashHandler::hasCrashFile()) {
        qWarning() << "[Crash] crash.txt lässt sich nicht löschen:"
                   << CrashHandler::crashFilePath();
        m_crashIsDismissed = true;
    }
    emit crashStateChanged();
}

void CameraViewModel::sendCrashReport(const QString &additionalDescription)
{
    if (bugReportUnderWay())
        return;
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
