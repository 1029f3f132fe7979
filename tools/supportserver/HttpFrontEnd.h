#pragma once

#include "Fault.h"
#include "SupportService.h"

#include <QAbstractHttpServer>

namespace supportserver {

/// Carries the service over HTTP, with the faults that a request asks for. Prints one line for each
/// request.
class HttpFrontEnd : public QAbstractHttpServer
{
public:
    /// The bodies of submissions are kept in `recordFolder`, unless it is empty, as files
    /// "1-report-bug.json" and so on, numbered in the order of arrival.
    HttpFrontEnd(SupportService service, QString recordFolder);

private:
    bool handleRequest(const QHttpServerRequest &request, QHttpServerResponder &responder) override;
    void missingHandler(const QHttpServerRequest &request,
                        QHttpServerResponder &responder) override;

    void record(const Request &request);
    void deliver(const Fault &fault, Answer answer, const QHttpServerRequest &request,
                 QHttpServerResponder &responder);
    void hangUp(const Answer &answer, const QHttpServerRequest &request,
                QHttpServerResponder &responder);
    void redirect(const QString &path, QHttpServerResponder &responder);
    void hold(QHttpServerResponder &responder);

    SupportService m_service;
    QString m_recordFolder;
    int m_recorded = 0;
};

} // namespace supportserver
