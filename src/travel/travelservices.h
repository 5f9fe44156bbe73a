#pragma once

#include "model/error.h"
#include "travel/geo.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QSettings>
#include <QUrl>

#include <QCoroTask>

#include <chrono>
#include <memory>

class QNetworkAccessManager;

// Why a routing or address service gave no usable answer; the message is the user's.
class TravelServiceError : public MorvaneError
{
public:
    enum class Kind { NotConfigured, Network, TimedOut, Refused, BadAnswer, NotFound };
    TravelServiceError(Kind kind, QString detail);
    [[nodiscard]] Kind kind() const { return m_kind; }
    // The English detail for logs.
    [[nodiscard]] QString detail() const { return m_detail; }
    [[nodiscard]] QString message() const override;

private:
    Kind m_kind;
    QString m_detail;
};

// Lets requests to one service out one at a time, each at least `spacing` after the start of the
// one before: the public services ask for no more than one request per second from a client.
class RequestGate : public QObject
{
    Q_OBJECT

public:
    explicit RequestGate(std::chrono::milliseconds spacing, QObject *parent = nullptr);

    // Waits for the gate; the caller must call leave() when its request ended.
    QCoro::Task<> enter();
    void leave();
    [[nodiscard]] QDateTime last() const { return m_last; }

signals:
    void left();

private:
    std::chrono::milliseconds m_spacing;
    bool m_busy = false;
    QDateTime m_last;
};

// Where the services are and how they are asked. The addresses come from the environment
// (MORVANE_OSRM_URL, MORVANE_NOMINATIM_URL), else the settings ("travel/osrm_url",
// "travel/nominatim_url"), else the public OpenStreetMap services; "none" turns one off.
struct TravelServiceConfig
{
    QUrl osrm;
    QUrl nominatim;
    QString language = QStringLiteral("en");

    [[nodiscard]] static TravelServiceConfig load(const QSettings &settings);
};

namespace TravelHttp {

inline constexpr std::chrono::seconds timeout{6};

// "Morvane-Linux/<version>", the identification the public services require.
[[nodiscard]] QByteArray userAgent();

// Percent-encodes every byte of UTF-8 except letters, digits and "-_.!~*'()".
[[nodiscard]] QByteArray encodeComponent(const QString &text);

struct Answer
{
    int status = 0;
    QByteArray body;
};

// One GET through `gate` with the time-out, the headers and a cap on the answer's size; answers
// a 200 or a 400 (how OSRM refuses a query, with a body that says why). Anything else throws
// TravelServiceError.
QCoro::Task<Answer> get(QNetworkAccessManager &network, RequestGate &gate, QUrl url, QByteArray acceptLanguage,
                            qint64 maxBytes);

} // namespace TravelHttp
