#include "calendarfetcher.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QTimer>
#include <QXmlStreamReader>

#include <QCoroNetworkReply>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcCalendar, "morvane.calendar")

namespace {

constexpr int maxRedirects = 5;

QString fileStem(const CalendarSource &source)
{
    // The id is ours, but a hand-edited settings file could make it a path.
    return QString::fromLatin1(QCryptographicHash::hash(source.id.toUtf8(), QCryptographicHash::Sha256).toHex().left(32));
}

// The calendar-data of every response in a CalDAV multistatus, one VCALENDAR after another.
QByteArray calendarData(const QByteArray &multistatus)
{
    QXmlStreamReader xml(multistatus);
    QByteArray joined;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "calendar-data"_L1) {
            joined += xml.readElementText().toUtf8();
            joined += "\r\n";
        }
    }
    return xml.hasError() ? QByteArray() : joined;
}

// The collection's change tag from a PROPFIND answer: its ctag where the server keeps one, else
// its ETag.
QByteArray collectionTag(const QByteArray &multistatus)
{
    QXmlStreamReader xml(multistatus);
    QByteArray etag;
    QByteArray ctag;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == "getctag"_L1) {
            ctag = xml.readElementText().toUtf8();
        } else if (xml.name() == "getetag"_L1 || xml.name() == "sync-token"_L1) {
            etag += xml.readElementText().toUtf8();
        }
    }
    return ctag.isEmpty() ? etag : ctag;
}

} // namespace

struct CalendarFetcher::Response
{
    int status = 0;
    QByteArray body;
    QByteArray etag;
    QString error;
};

CalendarFetcher::CalendarFetcher(QString cacheFolder)
    : m_cacheFolder(std::move(cacheFolder))
    , m_network(std::make_unique<QNetworkAccessManager>())
{
    m_network->setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
}

CalendarFetcher::~CalendarFetcher() = default;

QCoro::Task<CalendarText> CalendarFetcher::fetch(CalendarSource source, std::optional<QString> password)
{
    if (source.kind == CalendarSourceKind::File) {
        QFile file(source.address);
        if (!file.open(QIODevice::ReadOnly)) {
            co_return CalendarText{{}, false, false, u"cannot read %1"_s.arg(source.address)};
        }
        if (file.size() > CalendarSources::maxBytes) {
            co_return CalendarText{{}, false, false, u"%1 is larger than 10 MB"_s.arg(source.address)};
        }
        co_return CalendarText{file.readAll(), false, false, {}};
    }
    if (source.kind == CalendarSourceKind::CalDAV) {
        co_return co_await fetchCalDAV(source, password.value_or(QString()));
    }
    co_return co_await fetchSubscription(source);
}

QCoro::Task<CalendarFetcher::Response> CalendarFetcher::send(QByteArray verb, QUrl url,
                                                             QList<std::pair<QByteArray, QByteArray>> headers,
                                                             QByteArray body)
{
    const QString startHost = url.host();
    for (int hop = 0; hop <= maxRedirects; ++hop) {
        if (!CalendarSources::allowed(url)) {
            co_return Response{0, {}, {}, u"refused address %1"_s.arg(url.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery))};
        }
        QNetworkRequest request(url);
        request.setTransferTimeout(int(m_timeout.count()));
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
        for (const auto &[name, value] : std::as_const(headers)) {
            // Credentials never follow a redirect to another host.
            if (name == "Authorization" && url.host() != startHost) {
                continue;
            }
            request.setRawHeader(name, value);
        }
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(body);
        buffer->open(QIODevice::ReadOnly);
        QNetworkReply *reply = m_network->sendCustomRequest(request, verb, buffer.get());
        bool tooLarge = false;
        QObject::connect(reply, &QNetworkReply::downloadProgress, reply, [reply, &tooLarge](qint64 received, qint64 total) {
            if (received > CalendarSources::maxBytes || total > CalendarSources::maxBytes) {
                tooLarge = true;
                reply->abort();
            }
        });
        // The transfer time-out resets on every byte; a server trickling bytes meets this one.
        QTimer deadline;
        deadline.setSingleShot(true);
        QObject::connect(&deadline, &QTimer::timeout, reply, &QNetworkReply::abort);
        deadline.start(m_timeout * 3);
        co_await qCoro(reply).waitForFinished();
        const std::unique_ptr<QNetworkReply, void (*)(QNetworkReply *)> owned(reply, [](QNetworkReply *r) { r->deleteLater(); });
        Response response;
        response.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (tooLarge) {
            co_return Response{0, {}, {}, u"the calendar is larger than 10 MB"_s};
        }
        if (response.status >= 300 && response.status < 400 && response.status != 304) {
            const QUrl target = url.resolved(reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl());
            if (target.scheme() != url.scheme() && target.scheme() != "https"_L1) {
                co_return Response{0, {}, {}, u"refused a redirect to %1"_s.arg(target.scheme())};
            }
            url = target;
            continue;
        }
        if (reply->error() != QNetworkReply::NoError && response.status == 0) {
            co_return Response{0, {}, {}, reply->errorString()};
        }
        response.body = reply->readAll();
        response.etag = reply->rawHeader("ETag");
        co_return response;
    }
    co_return Response{0, {}, {}, u"too many redirects"_s};
}

QCoro::Task<CalendarText> CalendarFetcher::fetchSubscription(const CalendarSource &source)
{
    const std::optional<QUrl> url = CalendarSources::fetchUrl(source.address);
    if (!url) {
        co_return CalendarText{{}, false, false, u"refused address"_s};
    }
    QList<std::pair<QByteArray, QByteArray>> headers{{QByteArray("Accept"), QByteArray("text/calendar")}};
    const QByteArray tag = keptTag(source);
    if (!tag.isEmpty() && cached(source)) {
        headers.append({QByteArray("If-None-Match"), tag});
    }
    const Response response = co_await send(QByteArray("GET"), *url, headers, QByteArray());
    if (response.status == 304) {
        CalendarText kept{cached(source).value_or(QByteArray()), true, false, {}};
        co_return kept;
    }
    if (response.status != 200) {
        co_return fallback(source, response.error.isEmpty() ? u"HTTP %1"_s.arg(response.status) : response.error);
    }
    keep(source, response.body, response.etag);
    co_return CalendarText{response.body, false, false, {}};
}

QCoro::Task<CalendarText> CalendarFetcher::fetchCalDAV(const CalendarSource &source, const QString &password)
{
    const std::optional<QUrl> url = CalendarSources::fetchUrl(source.address);
    if (!url) {
        co_return CalendarText{{}, false, false, u"refused address"_s};
    }
    const QByteArray authorization = "Basic " + (source.user + u':' + password).toUtf8().toBase64();
    using Headers = QList<std::pair<QByteArray, QByteArray>>;
    const QByteArray xmlType("application/xml; charset=utf-8");
    const Headers propfindHeaders{{QByteArray("Authorization"), authorization},
                                  {QByteArray("Depth"), QByteArray("0")},
                                  {QByteArray("Content-Type"), xmlType}};
    const QByteArray propfind(R"(<?xml version="1.0" encoding="utf-8"?>
<d:propfind xmlns:d="DAV:" xmlns:cs="http://calendarserver.org/ns/"><d:prop><d:getetag/><cs:getctag/><d:sync-token/></d:prop></d:propfind>)");
    const Response props = co_await send(QByteArray("PROPFIND"), *url, propfindHeaders, propfind);
    if (props.status == 401 || props.status == 403) {
        co_return fallback(source, u"the CalDAV server refused the user name or password"_s);
    }
    if (props.status != 207) {
        co_return fallback(source, props.error.isEmpty() ? u"HTTP %1"_s.arg(props.status) : props.error);
    }
    const QByteArray tag = collectionTag(props.body);
    if (!tag.isEmpty() && tag == keptTag(source)) {
        if (const std::optional<QByteArray> kept = cached(source)) {
            co_return CalendarText{*kept, true, false, {}};
        }
    }
    const Headers reportHeaders{{QByteArray("Authorization"), authorization},
                                {QByteArray("Depth"), QByteArray("1")},
                                {QByteArray("Content-Type"), xmlType}};
    const QByteArray query(R"(<?xml version="1.0" encoding="utf-8"?>
<c:calendar-query xmlns:d="DAV:" xmlns:c="urn:ietf:params:xml:ns:caldav"><d:prop><d:getetag/><c:calendar-data/></d:prop><c:filter><c:comp-filter name="VCALENDAR"><c:comp-filter name="VEVENT"/></c:comp-filter></c:filter></c:calendar-query>)");
    const Response report = co_await send(QByteArray("REPORT"), *url, reportHeaders, query);
    if (report.status != 207) {
        co_return fallback(source, report.error.isEmpty() ? u"HTTP %1"_s.arg(report.status) : report.error);
    }
    const QByteArray ics = calendarData(report.body);
    keep(source, ics, tag);
    co_return CalendarText{ics, false, false, {}};
}

CalendarText CalendarFetcher::fallback(const CalendarSource &source, const QString &error) const
{
    qCWarning(lcCalendar).noquote() << u"Calendar fetch failed:"_s << source.name << error;
    return CalendarText{cached(source).value_or(QByteArray()), false, true, error};
}

void CalendarFetcher::keep(const CalendarSource &source, const QByteArray &ics, const QByteArray &tag) const
{
    if (!QDir().mkpath(m_cacheFolder)) {
        return;
    }
    QFile::setPermissions(m_cacheFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString stem = m_cacheFolder + u'/' + fileStem(source);
    const auto write = [](const QString &path, const QByteArray &data) {
        QSaveFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
            file.write(data);
            file.commit();
        }
    };
    write(stem + u".ics"_s, ics);
    write(stem + u".tag"_s, tag);
}

QByteArray CalendarFetcher::keptTag(const CalendarSource &source) const
{
    QFile file(m_cacheFolder + u'/' + fileStem(source) + u".tag"_s);
    return file.open(QIODevice::ReadOnly) ? file.read(1024) : QByteArray();
}

std::optional<QByteArray> CalendarFetcher::cached(const CalendarSource &source) const
{
    if (source.kind == CalendarSourceKind::File) {
        return std::nullopt;
    }
    QFile file(m_cacheFolder + u'/' + fileStem(source) + u".ics"_s);
    if (!file.open(QIODevice::ReadOnly) || file.size() > CalendarSources::maxBytes) {
        return std::nullopt;
    }
    return file.readAll();
}

void CalendarFetcher::drop(const CalendarSource &source) const
{
    const QString stem = m_cacheFolder + u'/' + fileStem(source);
    QFile::remove(stem + u".ics"_s);
    QFile::remove(stem + u".tag"_s);
}
