#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>

class QTcpServer;
class QTcpSocket;

// One request as it arrived on the wire.
struct RecordedRequest
{
    QByteArray method;
    QByteArray target;                                // path and query, exactly as sent
    QList<std::pair<QByteArray, QByteArray>> headers; // in the order sent
    QByteArray body;

    [[nodiscard]] QByteArray path() const;
    [[nodiscard]] QByteArray header(const QByteArray &name) const;
    [[nodiscard]] bool hasHeader(const QByteArray &name) const;
    // Header names lower-cased, in the order sent.
    [[nodiscard]] QList<QByteArray> headerNames() const;
    // The query items as PostgREST reads them back: split at "&" and the first "=",
    // percent-decoded, "+" read as a space.
    [[nodiscard]] QList<std::pair<QString, QString>> queryItems() const;
    [[nodiscard]] QString queryValue(const QString &key) const;
};

struct ScriptedResponse
{
    int status = 200;
    QByteArray body;
    QList<std::pair<QByteArray, QByteArray>> headers;
    bool hang = false; // never answer
};

// A small HTTP/1.1 server on loopback for tests that need answers the real backend would only
// give in rare states (time-outs, broken bodies). Every request is recorded; the handler picks
// the answer.
class ScriptedHttpServer : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<ScriptedResponse(const RecordedRequest &)>;

    explicit ScriptedHttpServer(Handler handler, QObject *parent = nullptr);
    ~ScriptedHttpServer() override;

    [[nodiscard]] QUrl url() const;
    [[nodiscard]] const QList<RecordedRequest> &requests() const { return m_requests; }
    void setHandler(Handler handler) { m_handler = std::move(handler); }

    static ScriptedResponse json(int status, const QByteArray &body);

private:
    void onReadyRead(QTcpSocket *socket);

    QTcpServer *m_server;
    Handler m_handler;
    QList<RecordedRequest> m_requests;
};
