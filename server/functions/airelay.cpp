#include "airelay.h"

#include <QDateTime>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

#include <memory>

Q_LOGGING_CATEGORY(lcRelay, "morvane.server.ai")

using namespace Qt::StringLiterals;

namespace {

HttpResponse failure(int status, const QString &code, const QString &message, HttpHeaders headers = {})
{
    const QJsonObject body{{u"code"_s, code}, {u"error"_s, code}, {u"message"_s, message}};
    return HttpResponse::json(status, QJsonDocument(body).toJson(QJsonDocument::Compact), std::move(headers));
}

constexpr std::chrono::hours rateWindow{1};
constexpr int maxTokensCeiling = 8192;
constexpr qsizetype maxAnswerBytes = 8 * 1024 * 1024;

} // namespace

AIRelay::AIRelay(Config config)
    : m_config(std::move(config))
{
    if (!m_config.baseUrl.isValid() || m_config.baseUrl.isEmpty()) {
        m_config.baseUrl = AIWire::defaultBaseUrl(m_config.vendor);
    }
}

std::variant<QString, QString> AIRelay::readKeyFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return std::variant<QString, QString>(std::in_place_index<1>, u"%1 is not a file"_s.arg(path));
    }
    // Anyone else who can read the key can spend the operator's money.
    const auto others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                        QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    if (info.permissions() & others) {
        return std::variant<QString, QString>(
            std::in_place_index<1>, u"%1 may be read by others; allow its owner alone (chmod 600)"_s.arg(path));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::variant<QString, QString>(std::in_place_index<1>,
                                              u"%1 cannot be read: %2"_s.arg(path, file.errorString()));
    }
    const QString key = QString::fromUtf8(file.read(4096)).trimmed();
    if (key.isEmpty() || key.contains(u'\n')) {
        return std::variant<QString, QString>(std::in_place_index<1>,
                                              u"%1 must hold the key alone, on one line"_s.arg(path));
    }
    return std::variant<QString, QString>(std::in_place_index<0>, key);
}

HttpResponse AIRelay::forward(const QString &userId, const QByteArray &body)
{
    if (body.size() > m_config.maxRequestBytes) {
        return failure(413, u"ai_request_too_large"_s,
                       u"A request to the AI relay may hold at most %1 bytes."_s.arg(m_config.maxRequestBytes));
    }
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (m_limiter.count(userId, rateWindow, now) >= m_config.callsPerHour) {
        const qint64 wait = std::max<qint64>(1, m_limiter.secondsUntilFree(userId, rateWindow, now));
        return failure(429, u"ai_rate_limited"_s,
                       u"You have used the AI relay %1 times in the last hour. Try again in %2 minutes."_s.arg(
                           QString::number(m_config.callsPerHour), QString::number((wait + 59) / 60)),
                       {{"Retry-After", QByteArray::number(wait)}});
    }

    const QJsonObject request = QJsonDocument::fromJson(body).object();
    const QJsonValue system = request.value(u"system");
    const QJsonValue input = request.value(u"input");
    const QJsonValue schema = request.value(u"schema");
    const QJsonValue model = request.value(u"model");
    if (!input.isString() || input.toString().trimmed().isEmpty() || !(system.isString() || system.isUndefined()) ||
        !(schema.isObject() || schema.isUndefined() || schema.isNull()) || !(model.isString() || model.isUndefined())) {
        return failure(400, u"ai_bad_request"_s,
                       u"Send {\"system\": text, \"input\": text, \"schema\": object (optional), \"model\": "
                       u"\"sonnet\", \"haiku\" or \"opus\" (optional)}."_s);
    }
    // Only the aliases: a caller does not pick among the operator's most expensive models.
    const QString alias = model.toString();
    AIRequest call{system.toString(), input.toString(), schema.toObject(),
                   alias == u"haiku" || alias == u"opus" ? alias : u"sonnet"_s,
                   std::clamp(request.value(u"max_tokens").toInt(4096), 1, maxTokensCeiling)};
    m_limiter.record(userId, now);

    const AIHttpCall outgoing = AIWire::build(m_config.vendor, m_config.baseUrl, m_config.key, call);
    QNetworkAccessManager network;
    QNetworkRequest networkRequest(outgoing.url);
    for (const auto &[name, value] : outgoing.headers) {
        networkRequest.setRawHeader(name, value);
    }
    networkRequest.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    std::unique_ptr<QNetworkReply> reply(network.post(networkRequest, outgoing.body));
    // This worker thread has no loop of its own; a local one carries the call to its end.
    QEventLoop loop;
    QTimer overall;
    overall.setSingleShot(true);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QObject::connect(&overall, &QTimer::timeout, &loop, &QEventLoop::quit);
    overall.start(std::chrono::seconds(m_config.timeoutSeconds));
    loop.exec();

    const QString vendor = AIWire::displayName(m_config.vendor);
    if (!reply->isFinished()) {
        reply->abort();
        qCWarning(lcRelay) << "relay call for" << userId << "timed out";
        return failure(504, u"ai_timeout"_s,
                       u"%1 did not answer within %2 s."_s.arg(vendor, QString::number(m_config.timeoutSeconds)));
    }
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (!status.isValid()) {
        qCWarning(lcRelay) << "relay call for" << userId << "got no answer:" << reply->errorString();
        return failure(502, u"ai_unreachable"_s, u"%1 could not be reached."_s.arg(vendor));
    }
    const QByteArray answer = reply->read(maxAnswerBytes + 1);
    if (status.toInt() < 200 || status.toInt() > 299) {
        qCWarning(lcRelay) << "relay call for" << userId << "answered" << status.toInt();
        return failure(502, u"ai_provider_error"_s,
                       u"%1 answered %2: %3"_s.arg(vendor, status.toString(), AIWire::errorText(answer)));
    }
    const AIAnswer read = answer.size() > maxAnswerBytes ? AIAnswer{std::nullopt, u"the answer is too large"_s}
                                                         : AIWire::readAnswer(m_config.vendor, answer);
    if (!read.text) {
        return failure(502, u"ai_bad_answer"_s, u"%1 gave no usable answer: %2"_s.arg(vendor, read.problem));
    }
    return HttpResponse::json(200, QJsonDocument(QJsonObject{{u"text"_s, *read.text}}).toJson(QJsonDocument::Compact));
}
