#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

class QSettings;

enum class CalendarSourceKind { File, Subscription, CalDAV };

// One calendar the person added. The list is kept in the settings; a CalDAV password only in the
// keyring, under `secretName(id)`.
struct CalendarSource
{
    QString id;
    CalendarSourceKind kind = CalendarSourceKind::File;
    // A file's absolute path, or the address as it is fetched (https, never webcal).
    QString address;
    QString user;
    // Given by the person, else what the calendar calls itself, else the file or host name.
    QString name;
    QString colorHex;

    bool operator==(const CalendarSource &) const = default;
};

namespace CalendarSources {

inline constexpr auto settingsKey = "calendar_sources";
// Downloads past this size are refused: no calendar a person bills from is that large.
inline constexpr qint64 maxBytes = 10 * 1024 * 1024;

[[nodiscard]] QList<CalendarSource> load(const QSettings &settings);
void save(QSettings &settings, const QList<CalendarSource> &sources);

// The address a subscription or CalDAV collection is fetched from: webcal is https; plain http
// only to this machine (a local server, a test); nothing else. None, with `why` set, otherwise.
[[nodiscard]] std::optional<QUrl> fetchUrl(const QString &address, QString *why = nullptr);
[[nodiscard]] bool allowed(const QUrl &url);

// A new source for what the person typed: a file that exists, or an address. `why` says what
// is wrong with it otherwise.
[[nodiscard]] std::optional<CalendarSource> make(const QString &fileOrAddress, bool caldav, const QString &user,
                                                 QString *why);

[[nodiscard]] QString secretName(const QString &sourceId);
// Where fetched calendars are kept for offline use: the application's data folder, user only.
[[nodiscard]] QString cacheFolder();

[[nodiscard]] QString kindName(CalendarSourceKind kind);

} // namespace CalendarSources
