// Bug reports, feature requests and feedback, which share one state.

#include "viewmodel/CameraViewModel.h"

#include "BuildInfo.h"
#include "server/ServerErrors.h"
#include "viewmodel/ScreenshotFile.h"

#include <QDebug>
#include <QSysInfo>

namespace meridax {

namespace {

constexpr int kReportedLogLines = 200;
constexpr int kLowestRating = 1;
constexpr int kHighestRating = 5;

} // namespace

RequestSender CameraViewModel::sender() const
{
    return {m_machineGuid, build::version(), build::platform(), QSysInfo::prettyProductName()};
}

ReportRequest CameraViewModel::report(const QString &title, const QString &description,
                                      const QString &screenshotBase64,
                                      const QString &screenshotMime, const QString &category) const
{
    return {sender(), title, description, category, screenshotBase64, screenshotMime};
}

void CameraViewModel::resetSubmission(bool pending)
{
    m_bugReportPending = pending;
    m_bugReportSuccess = false;
    m_bugReportError.clear();
    m_bugReportMessage.clear();
    emit bugReportStateChanged();
}

void CameraViewModel::awaitSubmission(int number)
{
    m_awaitedSubmission = number;
    resetSubmission(true);
}

// A reply still to come belongs to a form that is closed: it must not end the next one.
void CameraViewModel::clearBugReportState()
{
    m_awaitedSubmission = 0;
    resetSubmission(false);
}

void CameraViewModel::submitBugReport(const QString &title, const QString &description,
                                      const QString &screenshotBase64,
                                      const QString &screenshotMime, const QString &category)
{
    submitBugReportWithLogs(title, description, screenshotBase64, screenshotMime, false, category);
}

void CameraViewModel::submitBugReportWithLogs(const QString &title, const QString &description,
                                              const QString &screenshotBase64,
                                              const QString &screenshotMime, bool includeLogs,
                                              const QString &category)
{
    if (m_bugReportPending)
        return;
    sendBugReport(report(title, description, screenshotBase64, screenshotMime, category),
                  includeLogs);
}

void CameraViewModel::sendBugReport(const ReportRequest &request, bool includeLogs)
{
    // Before the state changes, lest what the interface says of it gets into the excerpt.
    const QString logs = includeLogs ? getLogTail(kReportedLogLines) : QString();
    const int number = m_supportClient.submitBugReport({request, logs});
    m_bugReportsUnderWay.insert(number);
    awaitSubmission(number);
}

void CameraViewModel::submitFeatureRequest(const QString &title, const QString &description,
                                           const QString &screenshotBase64,
                                           const QString &screenshotMime, const QString &category)
{
    if (m_bugReportPending)
        return;
    awaitSubmission(m_supportClient.submitFeatureRequest(
        {report(title, description, screenshotBase64, screenshotMime, category)}));
}

void CameraViewModel::submitFeedback(int rating, const QString &comment)
{
    if (m_bugReportPending)
        return;
    if (rating < kLowestRating || rating > kHighestRating) {
        qWarning() << "[Feedback] ungültiges Rating:" << rating;
        return;
    }
    awaitSubmission(m_supportClient.submitFeedback({sender(), rating, comment}));
}

void CameraViewModel::storeSubmissionResult(int number, bool success, const QString &message,
                                            const QString &errorCode)
{
    if (number != m_awaitedSubmission)
        return;
    m_awaitedSubmission = 0;
    m_bugReportPending = false;
    m_bugReportSuccess = success;
    m_bugReportMessage = message;
    m_bugReportError = success ? QString() : submissionErrorText(errorCode, message);
}

void CameraViewModel::onBugReport(bool success, const QString &bugId, const QString &message,
                                  const QString &errorCode, int number)
{
    m_bugReportsUnderWay.remove(number);
    storeSubmissionResult(number, success, message, errorCode);
    if (success) {
        qDebug() << "[BugReport] erfolgreich, bugId=" << bugId;
        // Whichever way it was sent: the crash may have gone out by the bug dialog.
        if (hasUnsentCrash())
            dismissCrashReport();
    }
    emit bugReportStateChanged();
}

void CameraViewModel::onFeatureRequest(bool success, const QString &requestId,
                                       const QString &message, const QString &errorCode, int number)
{
    storeSubmissionResult(number, success, message, errorCode);
    if (success)
        qDebug() << "[FeatureRequest] erfolgreich, requestId=" << requestId;
    emit bugReportStateChanged();
}

void CameraViewModel::onFeedback(bool success, const QString &feedbackId, const QString &message,
                                 const QString &errorCode, int number)
{
    storeSubmissionResult(number, success, message, errorCode);
    if (success)
        qDebug() << "[Feedback] erfolgreich, feedbackId=" << feedbackId;
    emit bugReportStateChanged();
}

QVariantMap CameraViewModel::loadScreenshotFile(const QString &path) const
{
    const ScreenshotFile file = readScreenshotFile(path);
    if (!file.error.isEmpty())
        return {{QStringLiteral("success"), false}, {QStringLiteral("error"), file.error}};
    return {{QStringLiteral("success"), true},
            {QStringLiteral("base64"), QString::fromLatin1(file.bytes.toBase64())},
            {QStringLiteral("mime"), file.mime},
            {QStringLiteral("sizeBytes"), static_cast<int>(file.bytes.size())}};
}

} // namespace meridax
