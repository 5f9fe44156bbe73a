#include "travel/travelservices.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QProcessEnvironment>
#include <QTimer>

#include <QCoroNetworkReply>
#include <QCoroSignal>
#include <QCoroTimer>

using namespace Qt::StringLiterals;

TravelServiceError::TravelServiceError(Kind kind, QString detail)
    : m_kind(kind)
    , m_detail(std::move(detail))
{}

QString TravelServiceError::message() const
{
    switch (m_kind) {
    case Kind::NotConfigured:
        //% "No routing or address service is set up."
        return qtTrId("tripErrNoService");
    case Kind::NotFound:
        //% "No place or route was found for this."
        return qtTrId("tripErrNotFound");
    default:
        //% "Searching did not work. Check your connection and try again."
        return qtTrId("tripSearchFailed");
    }
}

RequestGate::RequestGate(std::chrono::milliseconds spacing, QObject *parent)
    : QObject(parent)
    , m_spacing(spacing)
{}

QCoro::Task<> RequestGate::enter()
{
    while (m_busy) {
        co_await qCoro(this, &RequestGate::left);
    }
    m_busy = true;
    if (m_last.isValid()) {
        const qint64 waitMs = m_last.msecsTo(QDateTime::currentDateTimeUtc()) - qint64(m_spacing.count());
        if (waitMs < 0) {
            // A precise timer: a coarse one may fire a little early, and the services' usage
            // policies count the spacing strictly.
            QTimer timer;
            timer.setTimerType(Qt::PreciseTimer);
            timer.setSingleShot(true);
            timer.start(std::chrono::milliseconds(-waitMs));
            co_await qCoro(&timer, &QTimer::timeout);
        }
    }
    m_last = QDateTime::currentDateTimeUtc();
}

void RequestGate::leave()
{
    m_busy = false;
    emit left();
}

namespace {

QUrl serviceUrl(const char *environment, const QSettings &settings, const QString &key, const QString &fallback)
{
    QString text = QProcessEnvironment::systemEnvironment().value(QString::fromLatin1(environment));
    if (text.isEmpty()) {
        text = settings.value(key).toString();
    }
    if (text.isEmpty()) {
        text = fallback;
    }
    if (text.trimmed().compare(u"none"_s, Qt::CaseInsensitive) == 0) {
        return {};
    }
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    // Only a plain web address: a file or other scheme would let a setting read local files.
    if (!url.isValid() || (url.scheme() != u"http" && url.scheme() != u"https") || url.host().isEmpty()) {
        return {};
    }
    return url;
}

} // namespace

TravelServiceConfig TravelServiceConfig::load(const QSettings &settings)
{
    TravelServiceConfig config;
    config.osrm = serviceUrl("MORVANE_OSRM_URL", settings, u"travel/osrm_url"_s, u"https://router.project-osrm.org"_s);
    config.nominatim = serviceUrl("MORVANE_NOMINATIM_URL", settings, u"travel/nominatim_url"_s,
                                  u"https://nominatim.openstreetmap.org"_s);
    return config;
}

namespace TravelHttp {

QByteArray userAgent()
{
    const QString version = QCoreApplication::applicationVersion();
    return "Morvane-Linux/" + (version.isEmpty() ? QByteArray("0") : version.toUtf8());
}

QByteArray encodeComponent(const QString &text)
{
    static constexpr std::string_view kept = "-_.!~*'()";
    QByteArray out;
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
            kept.find(c) != std::string_view::npos) {
            out += c;
        } else {
            out += '%';
            out += QByteArray::number(byte >> 4, 16).toUpper();
            out += QByteArray::number(byte & 0xf, 16).toUpper();
        }
    }
    return out;
}

QCoro::Task<Answer> get(QNetworkAccessManager &network, RequestGate &gate, QUrl url, QByteArray acceptLanguage,
                            qint64 maxBytes)
{
    co_await gate.enter();
    struct Leave
    {
        RequestGate &gate;
        ~Leave() { gate.leave(); }
    } leave{gate};

    QNetworkRequest request(url);
    request.setRawHeader("User-Agent", userAgent());
    request.setRawHeader("Accept", "application/json");
    request.setRawHeader("Accept-Language", acceptLanguage);
    request.setTransferTimeout(int(std::chrono::milliseconds(timeout).count()));
    // A redirect could lead anywhere; the services answer where they are asked.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    std::unique_ptr<QNetworkReply> reply(network.get(request));
    bool tooLarge = false;
    QObject::connect(reply.get(), &QNetworkReply::downloadProgress, reply.get(),
                     [&tooLarge, maxBytes, raw = reply.get()](qint64 received, qint64 total) {
                         if (received > maxBytes || total > maxBytes) {
                             tooLarge = true;
                             raw->abort();
                         }
                     });
    co_await qCoro(reply.get()).waitForFinished();
    if (tooLarge) {
        throw TravelServiceError(TravelServiceError::Kind::BadAnswer, u"answer larger than allowed"_s);
    }
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply->error() == QNetworkReply::OperationCanceledError || reply->error() == QNetworkReply::TimeoutError) {
        throw TravelServiceError(TravelServiceError::Kind::TimedOut, u"no answer within 6 s"_s);
    }
    const QByteArray body = reply->read(maxBytes + 1);
    if (body.size() > maxBytes) {
        throw TravelServiceError(TravelServiceError::Kind::BadAnswer, u"answer larger than allowed"_s);
    }
    if (status == 0) {
        throw TravelServiceError(TravelServiceError::Kind::Network, reply->errorString());
    }
    if (status != 200 && status != 400) {
        throw TravelServiceError(status == 403 || status == 429 ? TravelServiceError::Kind::Refused
                                                                : TravelServiceError::Kind::Network,
                                 u"HTTP %1"_s.arg(status));
    }
    co_return Answer{status, body};
}

} // namespace TravelHttp
