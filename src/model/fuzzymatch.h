#pragma once

#include <QString>

#include <optional>

// How well a typed query matches a name, for the command palette: the query's characters must
// appear in the name in order, ignoring case and accents. Higher is better; none when they don't.
// The obvious hit ranks first: the whole name, then a name that starts with the query, then one
// whose words start with the query's characters ("wr" for "Website redesign"), then runs of
// consecutive characters; gaps and long names cost a little.
namespace FuzzyMatch {

[[nodiscard]] std::optional<int> score(const QString &query, const QString &text);

} // namespace FuzzyMatch
