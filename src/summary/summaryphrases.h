#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace WorkSummary {

// The words of the recap and the stand-up in one language. Builders take values that are already
// formatted (durations, amounts, dates, quoted names), so the arithmetic stays out of the tables.
struct Phrases
{
    using Text = std::function<QString(const QString &)>;
    using Count = std::function<QString(int)>;

    QString listSep;
    QString andWord;
    Count more; // the tail of a cut list ("and 2 more"), with its own leading blank where one belongs
    Text quote;
    std::function<QString(const QString &, const QStringList &)> paren;
    QString sentenceSep;
    QString lineEnd;
    QString colon;
    QString noTime;
    Text tracked;
    std::function<QString(const QString &, const QString &)> trackedOn;
    QString nothingTracked;
    QString nothingToday;
    Text running;
    Text planned;
    QString dueToday;
    Text due;
    QString high;
    std::function<QString(const QString &, const std::optional<QString> &)> overdue;
    std::function<QString(const QString &, const QString &)> weekTracked;
    QString changeNone;
    Text changeMore;
    Text changeLess;
    QString changeSame;
    Count daysWorked;
    std::function<QString(const QString &, const std::optional<QString> &)> mostTime;
    Text earned;
    Text completed;
    QString noneCompleted; // a whole sentence, its full stop included
    Count overdueOpen;
    std::function<QString(const std::optional<QString> &)> noTimeWeek;
};

// The four words of the stand-up.
struct Labels
{
    QString first;
    QString today;
    QString blockers;
    QString noBlockers;
    friend bool operator==(const Labels &, const Labels &) = default;
};

struct Units
{
    QString hour;
    QString minute;
};

// en nl de fr es it pt ja th, in that order.
[[nodiscard]] const QStringList &languages();
// The first two letters of a UI language code, lower-cased; anything unsupported is "en".
[[nodiscard]] QString language(const QString &uiLanguage);
// The name the prompts' "Write in" sentence uses ("Portuguese (Portugal)").
[[nodiscard]] QString languageName(const QString &lang);
[[nodiscard]] const Phrases &phrases(const QString &lang);
// The stand-up words when the last workday was yesterday.
[[nodiscard]] Labels baseLabels(const QString &lang);
[[nodiscard]] Units units(const QString &lang);
[[nodiscard]] QLocale locale(const QString &lang);
// How a day is written in running text ("5 March", "5. März", "3月5日").
[[nodiscard]] QString dateTemplate(const QString &lang);

} // namespace WorkSummary
