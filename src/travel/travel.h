#pragma once

#include "billing/invoicelines.h"
#include "model/billing.h"
#include "model/trip.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

// Travel billing: which trips a project's invoice charges and the one line that charges them.
// Pure: the store hands in its trips, the billed set and the settings.
namespace Travel {

// How a project charges its trips (the `travel` map of its price setting).
enum class Mode { None, PerKm, PerTrip };

constexpr auto wireNames(Mode)
{
    return std::array<std::string_view, 3>{"none", "per_km", "per_trip"};
}

struct Setting
{
    Mode mode = Mode::None;
    std::optional<double> rate;
    std::optional<QString> label;
    friend bool operator==(const Setting &, const Setting &) = default;
};

// The project's travel setting; no price setting, no map, no or an unknown mode charge nothing.
[[nodiscard]] Setting of(const std::optional<Billing> &billing);
// The `travel` map that holds `setting`, for writing it back into a price setting.
[[nodiscard]] JSONValue toJson(const Setting &setting);

// The trips a project's invoice charges, in their given order: the project's, business,
// billable and finished, and on no live invoice yet.
[[nodiscard]] QList<Trip> tripsToBill(const QList<Trip> &trips, const QString &projectId,
                                      const QSet<QString> &billedTripIds);

// Metres as billed kilometres: half up to the metre, then to the hundred metres, one decimal.
// Negative sums count as nothing.
[[nodiscard]] double billedKm(double metres);

// The words of the line in one language.
struct Labels
{
    QString title;
    QString km;
    QString trip;
    // "12.3 km in 2 trips"
    QString describeOne; // %1 kilometres
    QString describeMany; // %1 kilometres, %2 trips

    [[nodiscard]] QString describe(double km, qsizetype trips) const;
};

// The words of the interface language.
[[nodiscard]] Labels labels();

struct Line
{
    QString title;
    QString description;
    double quantity = 0;
    QString unit;
    double unitPrice = 0;
    double amount = 0;
    QStringList tripIds;
    friend bool operator==(const Line &, const Line &) = default;
};

// The travel line of `trips` (already the trips to bill) under `setting`; none for mode none or
// no trips. Per kilometre the rate is the setting's, else the user's, else 0.23; per trip the
// setting's, else 0.
[[nodiscard]] std::optional<Line> line(const QList<Trip> &trips, const Setting &setting,
                                       std::optional<double> userRatePerKm, const Labels &words);

// The line as the invoice composer builds lines, with the trips it bills.
struct InvoiceLine
{
    Earnings::BuiltLine line;
    QStringList tripIds;
};

[[nodiscard]] InvoiceLine invoiceLine(const Line &line, const QString &projectId, std::optional<double> vatRate);

} // namespace Travel
