#pragma once

#include "calendar/calendarsource.h"

#include <QByteArray>
#include <QString>

#include <QCoroTask>

#include <chrono>
#include <memory>
#include <optional>

class QNetworkAccessManager;

// The text of one calendar, fresh when the source answered, else what was kept from last time.
struct CalendarText
{
    QByteArray ics;
    // The server said nothing changed (304, or an unchanged collection tag).
    bool notModified = false;
    // Nothing could be fetched and `ics` is the copy kept for offline use (or empty without one).
    bool fromCache = false;
    // Why the fetch failed; empty when it did not.
    QString error;
};

// Reads files and fetches subscriptions and CalDAV collections, with conditional requests and a
// copy of each on disk for offline use. Everything that comes back is hostile: at most
// `CalendarSources::maxBytes`, redirects only to allowed addresses, a time-out on every request.
class CalendarFetcher
{
public:
    explicit CalendarFetcher(QString cacheFolder = CalendarSources::cacheFolder());
    ~CalendarFetcher();

    void setTimeout(std::chrono::milliseconds timeout) { m_timeout = timeout; }

    QCoro::Task<CalendarText> fetch(CalendarSource source, std::optional<QString> password = std::nullopt);
    // The copy kept of a fetched calendar, without asking the network.
    [[nodiscard]] std::optional<QByteArray> cached(const CalendarSource &source) const;
    // Forgets a removed calendar's copy.
    void drop(const CalendarSource &source) const;

private:
    struct Response;
    QCoro::Task<Response> send(QByteArray verb, QUrl url, QList<std::pair<QByteArray, QByteArray>> headers,
                               QByteArray body);
    QCoro::Task<CalendarText> fetchSubscription(const CalendarSource &source);
    QCoro::Task<CalendarText> fetchCalDAV(const CalendarSource &source, const QString &password);
    void keep(const CalendarSource &source, const QByteArray &ics, const QByteArray &tag) const;
    [[nodiscard]] QByteArray keptTag(const CalendarSource &source) const;
    [[nodiscard]] CalendarText fallback(const CalendarSource &source, const QString &error) const;

    QString m_cacheFolder;
    std::chrono::milliseconds m_timeout{20000};
    std::unique_ptr<QNetworkAccessManager> m_network;
};
