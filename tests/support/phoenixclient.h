#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QWebSocket>

#include <functional>
#include <optional>

// A plain Phoenix channel client over QWebSocket, speaking either frame form, that keeps every
// message it receives so that a test can wait for the one it expects.
class PhoenixClient : public QObject
{
    Q_OBJECT

public:
    struct Message
    {
        QJsonValue joinRef;
        QJsonValue ref;
        QString topic;
        QString event;
        QJsonObject payload;
    };
    using Predicate = std::function<bool(const Message &)>;

    // `vsn` is "1.0.0" (objects) or "2.0.0" (arrays).
    PhoenixClient(const QUrl &backend, const QByteArray &apikey, const QString &vsn = QStringLiteral("1.0.0"));

    bool open(int timeoutMs = 5000);
    [[nodiscard]] bool isOpen() const;
    QWebSocket &socket() { return m_socket; }

    // Sends one message and answers its ref.
    QString send(const QString &topic, const QString &event, const QJsonObject &payload,
                 const QJsonValue &joinRef = QJsonValue::Null);
    // phx_join with these postgres_changes bindings; answers the reply's payload (empty on time-out).
    QJsonObject join(const QString &topic, const QJsonArray &bindings, const QByteArray &token);

    // The first received message that matches and was not taken before, waiting up to `timeoutMs`.
    std::optional<Message> take(const Predicate &predicate, int timeoutMs = 5000);
    // Whether such a message arrived already, without waiting (and without taking it).
    [[nodiscard]] bool has(const Predicate &predicate) const;
    QList<Message> &received() { return m_received; }

    static Predicate reply(const QString &ref);
    static Predicate event(const QString &topic, const QString &event);
    // A postgres_changes message of this type for the row with this id.
    static Predicate change(const QString &topic, const QString &type, const QString &rowId);

private:
    QUrl m_url;
    QString m_vsn;
    QWebSocket m_socket;
    int m_nextRef = 1;
    QList<Message> m_received;
};

// A binding for postgres_changes.
QJsonObject changesOf(const QString &table, const QString &filter = {}, const QString &event = QStringLiteral("*"));
