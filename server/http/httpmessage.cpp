#include "httpmessage.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

QByteArray HttpRequest::header(const QByteArray &lowerCaseName) const
{
    for (const auto &[name, value] : headers) {
        if (name == lowerCaseName) {
            return value;
        }
    }
    return {};
}

QList<QByteArray> HttpRequest::headerValues(const QByteArray &lowerCaseName) const
{
    QList<QByteArray> values;
    for (const auto &[name, value] : headers) {
        if (name == lowerCaseName) {
            values.append(value);
        }
    }
    return values;
}

QString HttpRequest::queryValue(const QString &key) const
{
    QString found;
    for (const auto &[name, value] : query) {
        if (name == key) {
            found = value;
        }
    }
    return found;
}

QList<std::pair<QString, QString>> HttpRequest::parseQuery(const QByteArray &raw)
{
    QList<std::pair<QString, QString>> items;
    if (raw.isEmpty()) {
        return items;
    }
    auto decode = [](QByteArray part) {
        part.replace('+', ' ');
        return QString::fromUtf8(QByteArray::fromPercentEncoding(part));
    };
    for (const QByteArray &pair : raw.split('&')) {
        if (pair.isEmpty()) {
            continue;
        }
        const qsizetype equals = pair.indexOf('=');
        items.append(equals < 0 ? std::pair{decode(pair), QString()}
                                : std::pair{decode(pair.left(equals)), decode(pair.mid(equals + 1))});
    }
    return items;
}

HttpResponse HttpResponse::json(int status, QByteArray body, HttpHeaders headers)
{
    headers.prepend({"Content-Type", "application/json; charset=utf-8"});
    return {status, std::move(headers), std::move(body)};
}

HttpResponse HttpResponse::error(int status, const QString &code, const QString &message, const QString &details)
{
    const QJsonObject object{
        {u"code"_s, code},
        {u"details"_s, details.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(details)},
        {u"hint"_s, QJsonValue::Null},
        {u"message"_s, message},
    };
    return json(status, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QByteArray HttpResponse::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return {};
}
