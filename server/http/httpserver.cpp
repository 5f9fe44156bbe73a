#include "httpserver.h"

#include "http/guardedtcpserver.h"

#include <QHttpServerRequest>
#include <QLoggingCategory>
#include <QMetaMethod>
#include <QTcpSocket>

#include <algorithm>
#include <cctype>

Q_LOGGING_CATEGORY(lcHttp, "morvane.server.http")

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype largeMessageBytes = 1024 * 1024;

QByteArray methodName(QHttpServerRequest::Method method)
{
    switch (method) {
    case QHttpServerRequest::Method::Get:
        return "GET";
    case QHttpServerRequest::Method::Put:
        return "PUT";
    case QHttpServerRequest::Method::Delete:
        return "DELETE";
    case QHttpServerRequest::Method::Post:
        return "POST";
    case QHttpServerRequest::Method::Head:
        return "HEAD";
    case QHttpServerRequest::Method::Options:
        return "OPTIONS";
    case QHttpServerRequest::Method::Patch:
        return "PATCH";
    case QHttpServerRequest::Method::Connect:
        return "CONNECT";
    case QHttpServerRequest::Method::Trace:
        return "TRACE";
    default:
        return "UNKNOWN";
    }
}

QByteArray reasonPhrase(int status)
{
    static const QHash<int, QByteArray> phrases{{200, "OK"},
                                                {201, "Created"},
                                                {204, "No Content"},
                                                {206, "Partial Content"},
                                                {300, "Multiple Choices"},
                                                {302, "Found"},
                                                {303, "See Other"},
                                                {400, "Bad Request"},
                                                {401, "Unauthorized"},
                                                {403, "Forbidden"},
                                                {404, "Not Found"},
                                                {405, "Method Not Allowed"},
                                                {406, "Not Acceptable"},
                                                {408, "Request Timeout"},
                                                {409, "Conflict"},
                                                {413, "Payload Too Large"},
                                                {415, "Unsupported Media Type"},
                                                {416, "Range Not Satisfiable"},
                                                {422, "Unprocessable Entity"},
                                                {429, "Too Many Requests"},
                                                {500, "Internal Server Error"},
                                                {503, "Service Unavailable"}};
    return phrases.value(status, "Status");
}

// Browsers and the JavaScript clients call from other origins.
const HttpHeaders corsHeaders{
    {"Access-Control-Allow-Origin", "*"},
    {"Access-Control-Expose-Headers", "Content-Range, Content-Location, Location, Preference-Applied, x-sb-error-code"},
};

bool isWebSocketUpgrade(const QHttpServerRequest &request)
{
    for (const auto &[name, value] : request.headers()) {
        if (name.compare("upgrade", Qt::CaseInsensitive) == 0 && value.compare("websocket", Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

HttpServer::HttpServer(Limits limits, QObject *parent)
    : QAbstractHttpServer(parent)
    , m_limits(limits)
{
    m_pool.setMaxThreadCount(limits.workerThreads);
}

HttpServer::~HttpServer()
{
    m_pool.waitForDone();
}

quint16 HttpServer::listenGuarded(const QHostAddress &address, quint16 port)
{
    GuardedSocket::Limits limits;
    limits.framing.maxBody = m_limits.maxBodyBytes;
    limits.idle = m_limits.idleConnection;
    auto *server = new GuardedTcpServer(limits, m_limits.maxWaitingPerClient, this);
    if (!server->listen(address, port)) {
        delete server;
        return 0;
    }
    connect(server, &GuardedTcpServer::socketIdle, this, [this](QTcpSocket *socket) {
        const auto it = m_connections.constFind(socket);
        // A request still being worked on keeps its connection.
        if (it == m_connections.cend() || it->nextToWrite == it->nextSequence) {
            socket->disconnectFromHost();
        }
    });
    bind(server);
    return server->serverPort();
}

void HttpServer::addService(std::shared_ptr<HttpService> service)
{
    m_services.append(std::move(service));
    // The longest prefix wins, so that "/auth/v1/admin" can be served apart from "/auth/v1".
    std::sort(m_services.begin(), m_services.end(),
              [](const auto &a, const auto &b) { return a->prefix().size() > b->prefix().size(); });
}

bool HttpServer::handleRequest(const QHttpServerRequest &request, QTcpSocket *socket)
{
    // QAbstractHttpServer hands a WebSocket upgrade to its WebSocket server only when the request
    // counts as handled and nothing was written on the socket.
    if (isWebSocketUpgrade(request) &&
        isSignalConnected(QMetaMethod::fromSignal(&QAbstractHttpServer::newWebSocketConnection))) {
        return true;
    }
    if (!m_connections.contains(socket)) {
        m_connections.insert(socket, {});
        connect(socket, &QObject::destroyed, this, [this, socket] { m_connections.remove(socket); });
    }
    const quint64 sequence = m_connections[socket].nextSequence++;

    HttpRequest plain;
    plain.method = methodName(request.method());
    plain.path = request.url().path();
    plain.query = HttpRequest::parseQuery(request.url().query(QUrl::FullyEncoded).toUtf8());
    for (const auto &[name, value] : request.headers()) {
        plain.headers.append({name.toLower(), value});
    }
    plain.body = request.body();
    plain.remote = request.remoteAddress();
    const bool close = plain.header("connection").toLower() == "close";

    if (plain.method == "OPTIONS") {
        // Echoed only when it is a plain list of header names; anything else gets the wildcard.
        QByteArray asked = plain.header("access-control-request-headers");
        if (!std::all_of(asked.cbegin(), asked.cend(), [](char c) {
                return std::isalnum(static_cast<unsigned char>(c)) || QByteArrayView("-_, ").contains(c);
            })) {
            asked.clear();
        }
        HttpResponse preflight{204,
                               {{"Access-Control-Allow-Methods", "GET, HEAD, POST, PUT, PATCH, DELETE, OPTIONS"},
                                {"Access-Control-Allow-Headers", asked.isEmpty() ? QByteArray("*") : asked},
                                {"Access-Control-Max-Age", "86400"}},
                               {}};
        deliver(socket, sequence, preflight, close);
        return true;
    }
    if (plain.body.size() > m_limits.maxBodyBytes) {
        deliver(socket, sequence,
                HttpResponse::error(413, u"PGRST413"_s, u"Payload too large"_s,
                                    u"The body is larger than %1 bytes."_s.arg(m_limits.maxBodyBytes)),
                true);
        return true;
    }

    std::shared_ptr<HttpService> service;
    for (const auto &candidate : std::as_const(m_services)) {
        const QString prefix = candidate->prefix();
        if (plain.path == prefix || plain.path.startsWith(prefix + u'/')) {
            service = candidate;
            break;
        }
    }
    if (!service) {
        deliver(socket, sequence, HttpResponse::error(404, u"PGRST125"_s, u"Invalid path specified in request URL"_s),
                close);
        return true;
    }

    QPointer<QTcpSocket> guarded(socket);
    const bool largeRequest = plain.body.size() > largeMessageBytes;
    m_pool.start([this, service, plain = std::move(plain), guarded, sequence, close, largeRequest] {
        HttpResponse response;
        try {
            response = service->handle(plain);
        } catch (const std::exception &error) {
            qCWarning(lcHttp) << plain.method << plain.path << "failed:" << error.what();
            response = HttpResponse::error(500, u"PGRST000"_s, u"Internal server error"_s);
        }
        QMetaObject::invokeMethod(
            this,
            [this, guarded, sequence, response = std::move(response), close, largeRequest]() mutable {
                const bool large = largeRequest || response.body.size() > largeMessageBytes;
                if (guarded) {
                    deliver(guarded, sequence, std::move(response), close);
                }
                // The pool's threads each keep an arena; what a large request spread over them is
                // handed back once it is answered, so a burst of them does not leave the server large.
                if (large) {
                    returnFreedMemory();
                }
            },
            Qt::QueuedConnection);
    });
    return true;
}

void HttpServer::missingHandler(const QHttpServerRequest &, QTcpSocket *socket)
{
    write(socket, HttpResponse::error(404, u"PGRST125"_s, u"Invalid path specified in request URL"_s), false);
}

void HttpServer::deliver(QTcpSocket *socket, quint64 sequence, HttpResponse response, bool close)
{
    auto it = m_connections.find(socket);
    if (it == m_connections.end()) {
        return;
    }
    it->ready.insert(sequence, {std::move(response), close});
    while (!it->ready.isEmpty() && it->ready.firstKey() == it->nextToWrite) {
        const auto [answer, closeAfter] = it->ready.take(it->nextToWrite);
        ++it->nextToWrite;
        write(socket, answer, closeAfter);
        if (closeAfter) {
            break;
        }
    }
}

void HttpServer::write(QTcpSocket *socket, const HttpResponse &response, bool close)
{
    if (!socket->isOpen()) {
        return;
    }
    // A line break in a header would let whoever chose the value write headers or a body of
    // their own; every value is checked where it is made, and this is the last line of defence.
    const bool splits = std::any_of(response.headers.cbegin(), response.headers.cend(), [](const auto &header) {
        return header.first.contains('\r') || header.first.contains('\n') || header.second.contains('\r') ||
               header.second.contains('\n') || header.second.contains('\0');
    });
    if (splits) {
        qCWarning(lcHttp) << "refused to write an answer with a line break in a header";
        write(socket, HttpResponse::error(500, u"PGRST000"_s, u"Internal server error"_s), close);
        return;
    }
    QByteArray out = "HTTP/1.1 " + QByteArray::number(response.status) + ' ' + reasonPhrase(response.status) + "\r\n";
    for (const auto &[name, value] : response.headers) {
        out += name + ": " + value + "\r\n";
    }
    for (const auto &[name, value] : corsHeaders) {
        out += name + ": " + value + "\r\n";
    }
    if (response.status != 204 && response.status != 304) {
        out += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n";
    }
    if (close) {
        out += "Connection: close\r\n";
    }
    out += "\r\n";
    if (response.status != 204) {
        out += response.body;
    }
    socket->write(out);
    if (close) {
        socket->disconnectFromHost();
    }
}
