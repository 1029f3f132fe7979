#include "HttpFrontEnd.h"

#include <QFile>
#include <QHttpHeaders>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QJsonDocument>
#include <QTcpSocket>
#include <QTextStream>
#include <QTimer>

#include <chrono>
#include <memory>
#include <utility>

namespace supportserver {

namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using Status = QHttpServerResponder::StatusCode;

constexpr auto kPatience = 30s;

QByteArray header(const QHttpServerRequest &request, QHttpHeaders::WellKnownHeader name)
{
    return request.headers().value(name).toByteArray();
}

void print(const QHttpServerRequest &request, int status)
{
    QTextStream(stdout) << (request.method() == QHttpServerRequest::Method::Post ? "POST " : "GET ")
                        << request.url().toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority)
                        << ' ' << status << ' '
                        << header(request, QHttpHeaders::WellKnownHeader::UserAgent) << Qt::endl;
}

Answer codeAnswer(const QString &code)
{
    return {200, QJsonDocument(QJsonObject{{"success"_L1, false}, {"errorCode"_L1, code}})
                     .toJson(QJsonDocument::Compact)};
}

void write(const Answer &answer, QHttpServerResponder &responder)
{
    responder.write(answer.body, answer.contentType, static_cast<Status>(answer.status));
}

} // namespace

HttpFrontEnd::HttpFrontEnd(SupportService service, QString recordFolder)
    : m_service(std::move(service))
    , m_recordFolder(std::move(recordFolder))
{
}

bool HttpFrontEnd::handleRequest(const QHttpServerRequest &httpRequest,
                                 QHttpServerResponder &responder)
{
    const auto [fault, path] = splitFault(httpRequest.url().path());
    const Request request{httpRequest.method() == QHttpServerRequest::Method::Post, path,
                          header(httpRequest, QHttpHeaders::WellKnownHeader::ContentType),
                          httpRequest.body()};
    const Answer answer = m_service.answer(request);
    record(request);
    print(httpRequest, answer.status);
    deliver(fault, answer, httpRequest, responder);
    return true;
}

void HttpFrontEnd::missingHandler(const QHttpServerRequest & /*request*/,
                                  QHttpServerResponder &responder)
{
    responder.write(Status::NotFound);
}

void HttpFrontEnd::record(const Request &request)
{
    if (m_recordFolder.isEmpty() || !request.isPost)
        return;
    const QString name = request.path.sliced(request.path.lastIndexOf(u'/') + 1);
    QFile file(u"%1/%2-%3.json"_s.arg(m_recordFolder, QString::number(++m_recorded), name));
    if (!file.open(QIODevice::WriteOnly) || file.write(request.body) != request.body.size())
        qWarning("supportserver: cannot write %s", qPrintable(file.fileName()));
}

void HttpFrontEnd::deliver(const Fault &fault, Answer answer, const QHttpServerRequest &request,
                           QHttpServerResponder &responder)
{
    switch (fault.kind) {
    case Fault::None:
        return write(answer, responder);
    case Fault::Slow:
        return hold(responder);
    case Fault::HangUp:
        return hangUp(answer, request, responder);
    case Fault::Status:
        answer.status = fault.number;
        return write(answer, responder);
    case Fault::Empty:
        return write({fault.number, {}}, responder);
    case Fault::Code:
        return write(codeAnswer(fault.text), responder);
    case Fault::Html:
        return write({200, "<!DOCTYPE html><title>Wartung</title><p>Wartung", "text/html"},
                     responder);
    case Fault::Redirect:
        return redirect(splitFault(request.url().path()).path, responder);
    case Fault::Downgrade:
        return redirect(
            u"http://127.0.0.1:%1%2"_s.arg(fault.number).arg(splitFault(request.url().path()).path),
            responder);
    case Fault::Loop:
        return redirect(request.url().path(), responder);
    case Fault::Padded:
        answer.body.append(qMax<qsizetype>(0, fault.number - answer.body.size()), ' ');
        return write(answer, responder);
    case Fault::Huge:
        responder.writeBeginChunked(answer.contentType);
        responder.writeChunk(QByteArray(fault.number, ' '));
        return hold(responder);
    case Fault::Unknown:
        return write({404, "unknown fault", "text/plain"}, responder);
    }
}

void HttpFrontEnd::hangUp(const Answer &answer, const QHttpServerRequest &request,
                          QHttpServerResponder &responder)
{
    responder.writeBeginChunked(answer.contentType);
    responder.writeChunk(answer.body.first(answer.body.size() / 2));
    const auto sockets = findChildren<QTcpSocket *>();
    for (QTcpSocket *const socket : sockets) {
        if (socket->peerPort() == request.remotePort()) {
            socket->flush();
            socket->abort();
        }
    }
}

void HttpFrontEnd::redirect(const QString &path, QHttpServerResponder &responder)
{
    QHttpHeaders headers;
    headers.append(QHttpHeaders::WellKnownHeader::Location, path);
    responder.write(headers, Status::TemporaryRedirect);
}

void HttpFrontEnd::hold(QHttpServerResponder &responder)
{
    const auto held = std::make_shared<QHttpServerResponder>(std::move(responder));
    QTimer::singleShot(kPatience, this, [held] {});
}

} // namespace supportserver
