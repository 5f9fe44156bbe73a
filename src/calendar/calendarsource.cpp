#include "calendarsource.h"

#include <QDir>
#include <QFileInfo>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QStandardPaths>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace CalendarSources {

namespace {

std::optional<CalendarSourceKind> kindFromName(const QString &name)
{
    if (name == "file"_L1) {
        return CalendarSourceKind::File;
    }
    if (name == "subscription"_L1) {
        return CalendarSourceKind::Subscription;
    }
    if (name == "caldav"_L1) {
        return CalendarSourceKind::CalDAV;
    }
    return std::nullopt;
}

bool loopback(const QString &host)
{
    if (host.compare("localhost"_L1, Qt::CaseInsensitive) == 0) {
        return true;
    }
    const QHostAddress address(host);
    return !address.isNull() && address.isLoopback();
}

} // namespace

QString kindName(CalendarSourceKind kind)
{
    switch (kind) {
    case CalendarSourceKind::File:
        return u"file"_s;
    case CalendarSourceKind::Subscription:
        return u"subscription"_s;
    case CalendarSourceKind::CalDAV:
        return u"caldav"_s;
    }
    return {};
}

QList<CalendarSource> load(const QSettings &settings)
{
    QList<CalendarSource> sources;
    const QJsonArray rows = QJsonDocument::fromJson(settings.value(QString::fromLatin1(settingsKey)).toByteArray()).array();
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        const std::optional<CalendarSourceKind> kind = kindFromName(row.value("kind"_L1).toString());
        CalendarSource source{row.value("id"_L1).toString(), kind.value_or(CalendarSourceKind::File),
                              row.value("address"_L1).toString(), row.value("user"_L1).toString(),
                              row.value("name"_L1).toString(), row.value("color"_L1).toString()};
        // A hand-edited settings file is read like any other input: a remote address that is not
        // allowed any more is dropped rather than fetched.
        if (!kind || source.id.isEmpty() || source.address.isEmpty()
            || (source.kind != CalendarSourceKind::File && !fetchUrl(source.address))) {
            continue;
        }
        sources.append(source);
    }
    return sources;
}

void save(QSettings &settings, const QList<CalendarSource> &sources)
{
    QJsonArray rows;
    for (const CalendarSource &source : sources) {
        QJsonObject row{{u"id"_s, source.id},
                        {u"kind"_s, kindName(source.kind)},
                        {u"address"_s, source.address},
                        {u"name"_s, source.name}};
        if (!source.user.isEmpty()) {
            row.insert(u"user"_s, source.user);
        }
        if (!source.colorHex.isEmpty()) {
            row.insert(u"color"_s, source.colorHex);
        }
        rows.append(row);
    }
    settings.setValue(QString::fromLatin1(settingsKey), QString::fromUtf8(QJsonDocument(rows).toJson(QJsonDocument::Compact)));
}

bool allowed(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty() || !url.userInfo().isEmpty()) {
        return false;
    }
    return url.scheme() == "https"_L1 || (url.scheme() == "http"_L1 && loopback(url.host()));
}

std::optional<QUrl> fetchUrl(const QString &address, QString *why)
{
    QUrl url(address.trimmed(), QUrl::StrictMode);
    if (url.scheme().compare("webcal"_L1, Qt::CaseInsensitive) == 0) {
        url.setScheme(u"https"_s);
    }
    url.setScheme(url.scheme().toLower());
    if (allowed(url)) {
        return url;
    }
    if (why) {
        *why = url.isValid() && !url.userInfo().isEmpty()
                   ? u"put the user name in --user, not in the address"_s
                   : u"only https:// and webcal:// addresses are read"_s;
    }
    return std::nullopt;
}

std::optional<CalendarSource> make(const QString &fileOrAddress, bool caldav, const QString &user, QString *why)
{
    CalendarSource source;
    source.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    source.user = user.trimmed();
    const QFileInfo file(fileOrAddress);
    if (!caldav && !fileOrAddress.contains("://"_L1)) {
        if (!file.isFile() || !file.isReadable()) {
            *why = u"no readable file at %1"_s.arg(fileOrAddress);
            return std::nullopt;
        }
        source.kind = CalendarSourceKind::File;
        source.address = file.canonicalFilePath();
        source.name = file.completeBaseName();
        return source;
    }
    const std::optional<QUrl> url = fetchUrl(fileOrAddress, why);
    if (!url) {
        return std::nullopt;
    }
    if (caldav && source.user.isEmpty()) {
        *why = u"a CalDAV account needs --user"_s;
        return std::nullopt;
    }
    source.kind = caldav ? CalendarSourceKind::CalDAV : CalendarSourceKind::Subscription;
    source.address = url->toString(QUrl::FullyEncoded);
    source.name = url->host();
    return source;
}

QString secretName(const QString &sourceId)
{
    return u"morvane.calendar."_s + sourceId + u".password"_s;
}

QString cacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/calendars"_s;
}

} // namespace CalendarSources
