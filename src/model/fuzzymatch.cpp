#include "fuzzymatch.h"

#include <QList>

namespace FuzzyMatch {

namespace {

// Lower case without accents, so "cafe" finds "Café".
QString folded(const QString &text)
{
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    QString out;
    out.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (c.category() != QChar::Mark_NonSpacing) {
            out.append(c.toCaseFolded());
        }
    }
    return out;
}

bool isWordStart(const QString &text, qsizetype i)
{
    if (i == 0) {
        return true;
    }
    const QChar before = text.at(i - 1);
    const QChar here = text.at(i);
    return !before.isLetterOrNumber() || (before.isLower() && here.isUpper());
}

} // namespace

std::optional<int> score(const QString &query, const QString &text)
{
    const QString q = folded(query.simplified());
    if (q.isEmpty()) {
        return 0;
    }
    const QString original = text.normalized(QString::NormalizationForm_KD);
    const QString t = folded(text);
    if (t == q) {
        return 10000;
    }
    if (t.startsWith(q)) {
        return 8000 - int(t.size());
    }
    // A query that appears whole after a word break ("design" in "Website redesign" does not,
    // "redesign" does).
    for (qsizetype at = t.indexOf(q); at >= 0; at = t.indexOf(q, at + 1)) {
        if (original.size() == t.size() && isWordStart(original, at)) {
            return 6000 - int(t.size());
        }
    }

    // In order, greedily preferring word starts: each matched character earns points, more at a
    // word start and right after the previous match; skipped characters cost one each.
    int total = 0;
    qsizetype from = 0;
    qsizetype previous = -2;
    const bool aligned = original.size() == t.size();
    for (const QChar c : q) {
        if (c.isSpace()) {
            continue;
        }
        qsizetype found = -1;
        for (qsizetype i = from; i < t.size(); ++i) {
            if (t.at(i) != c) {
                continue;
            }
            if (found < 0) {
                found = i;
            }
            if (i == previous + 1 || (aligned && isWordStart(original, i))) {
                found = i;
                break;
            }
        }
        if (found < 0) {
            return std::nullopt;
        }
        int points = 10;
        if (found == previous + 1) {
            points += 15;
        }
        if (aligned && isWordStart(original, found)) {
            points += 20;
        }
        total += points - int(found - from);
        previous = found;
        from = found + 1;
    }
    return total + 1000 - int(t.size());
}

} // namespace FuzzyMatch
