#pragma once

#include <QString>

#include <optional>

// The chip that tells how much of a task's or project's tracked time is on an invoice. Its words
// are Dutch in every language.
namespace BilledChip {

// The theme colour of the chip; the theme decides what each looks like.
enum class Tone {
    Muted,       // grey, nothing tracked
    DeepPrimary, // nothing billed yet
    Primary,     // partly billed
    Success,     // all billed
};

struct Chip
{
    QString label;
    Tone tone = Tone::Muted;
    double opacity = 1;
    friend bool operator==(const Chip &, const Chip &) = default;
};

// `fraction` is the billed share of the tracked time, none when nothing is tracked. Shares from
// 0.999 up count as all billed; `compact` leaves the word out of a partial share ("40%").
[[nodiscard]] Chip classify(std::optional<double> fraction, bool compact);

} // namespace BilledChip
