#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QString>

using HttpHeaders = QList<std::pair<QByteArray, QByteArray>>;

// A request as a service sees it: plain data, safe to hand to another thread.
struct HttpRequest
{
    QByteArray method;
    QString path; // decoded, without the query
    // Query items in the order sent, decoded the way PostgREST decodes them ("+" is a space).
    QList<std::pair<QString, QString>> query;
    HttpHeaders headers; // names in lower case
    QByteArray body;
    QHostAddress remote;

    [[nodiscard]] QByteArray header(const QByteArray &lowerCaseName) const;
    [[nodiscard]] QList<QByteArray> headerValues(const QByteArray &lowerCaseName) const;
    // The last value of a query item; empty when the item is absent.
    [[nodiscard]] QString queryValue(const QString &key) const;

    // Splits a raw query string into items.
    static QList<std::pair<QString, QString>> parseQuery(const QByteArray &raw);
};

struct HttpResponse
{
    int status = 200;
    HttpHeaders headers;
    QByteArray body;

    static HttpResponse json(int status, QByteArray body, HttpHeaders headers = {});
    // An error in the form every part of the backend shares: {"code","details","hint","message"}.
    static HttpResponse error(int status, const QString &code, const QString &message, const QString &details = {});

    [[nodiscard]] QByteArray header(const QByteArray &name) const;
};

// One part of the backend, answering the requests under its path prefix. handle() runs on a
// worker thread and may block on the database.
class HttpService
{
public:
    virtual ~HttpService() = default;
    [[nodiscard]] virtual QString prefix() const = 0;
    virtual HttpResponse handle(const HttpRequest &request) = 0;
};
