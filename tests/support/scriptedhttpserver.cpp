#include "scriptedhttpserver.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

QByteArray RecordedRequest::path() const
{
    const qsizetype question = target.indexOf('?');
    return question < 0 ? target : target.left(question);
}

QByteArray RecordedRequest::header(const QByteArray &name) const
{
    const qsizetype at = headerNames().indexOf(name.toLower());
    return at < 0 ? QByteArray() : headers.at(at).second;
}

bool RecordedRequest::hasHeader(const QByteArray &name) const
{
    return headerNames().contains(name.toLower());
}

QList<QByteArray> RecordedRequest::headerNames() const
{
    QList<QByteArray> names;
    for (const auto &header : headers) {
        names.append(header.first.toLower());
    }
    return names;
}

QList<std::pair<QString, QString>> RecordedRequest::queryItems() const
{
    QList<std::pair<QString, QString>> items;
    const qsizetype question = target.indexOf('?');
    auto decode = [](QByteArray part) {
        part.replace('+', ' ');
        return QString::fromUtf8(QByteArray::fromPercentEncoding(part));
    };
    for (const QByteArray &pair : question < 0 ? QList<QByteArray>() : target.mid(question + 1).split('&')) {
        const qsizetype equals = pair.indexOf('=');
        items.append(equals < 0 ? std::pair{decode(pair), QString()}
                                : std::pair{decode(pair.left(equals)), decode(pair.mid(equals + 1))});
    }
    return items;
}

QString RecordedRequest::queryValue(const QString &key) const
{
    const QList<std::pair<QString, QString>> items = queryItems();
    const auto found = std::find_if(items.cbegin(), items.cend(), [&](const auto &item) { return item.first == key; });
    return found == items.cend() ? QString() : found->second;
}

ScriptedHttpServer::ScriptedHttpServer(Handler handler, QObject *parent)
    : QObject(parent)
    , m_server(new QTcpServer(this))
    , m_handler(std::move(handler))
{
    if (!m_server->listen(QHostAddress::LocalHost, 0)) {
        qFatal("cannot listen on loopback: %s", qPrintable(m_server->errorString()));
    }
    connect(m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server->nextPendingConnection()) {
            socket->setParent(this);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

ScriptedHttpServer::~ScriptedHttpServer() = default;

QUrl ScriptedHttpServer::url() const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(m_server->serverPort()));
}

ScriptedResponse ScriptedHttpServer::json(int status, const QByteArray &body)
{
    return {status, body, {{"Content-Type", "application/json"}}, false};
}

void ScriptedHttpServer::onReadyRead(QTcpSocket *socket)
{
    // Requests may arrive in pieces and several may share one kept-alive connection, so the
    // buffer is parsed for as many complete requests as it holds.
    QByteArray buffer = socket->property("buffer").toByteArray() + socket->readAll();
    for (;;) {
        const qsizetype headEnd = buffer.indexOf("\r\n\r\n");
        if (headEnd < 0) {
            break;
        }
        const QList<QByteArray> lines = buffer.left(headEnd).split('\n');
        RecordedRequest request;
        const QList<QByteArray> requestLine = lines.first().trimmed().split(' ');
        request.method = requestLine.value(0);
        request.target = requestLine.value(1);
        qsizetype contentLength = 0;
        for (qsizetype i = 1; i < lines.size(); ++i) {
            const QByteArray line = lines[i].trimmed();
            const qsizetype colon = line.indexOf(':');
            if (colon <= 0) {
                continue;
            }
            const QByteArray name = line.left(colon).trimmed();
            const QByteArray value = line.mid(colon + 1).trimmed();
            request.headers.append({name, value});
            if (name.compare("content-length", Qt::CaseInsensitive) == 0) {
                contentLength = value.toLongLong();
            }
        }
        if (buffer.size() < headEnd + 4 + contentLength) {
            break;
        }
        request.body = buffer.mid(headEnd + 4, contentLength);
        buffer.remove(0, headEnd + 4 + contentLength);
        m_requests.append(request);

        const ScriptedResponse response = m_handler(request);
        if (response.hang) {
            continue;
        }
        QByteArray out = "HTTP/1.1 " + QByteArray::number(response.status) + " Scripted\r\n";
        for (const auto &[name, value] : response.headers) {
            out += name + ": " + value + "\r\n";
        }
        out += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n\r\n" + response.body;
        socket->write(out);
    }
    socket->setProperty("buffer", buffer);
}
