#include "billedchip.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace BilledChip {

Chip classify(std::optional<double> fraction, bool compact)
{
    // A share of 0 ÷ 0 is nothing tracked as well.
    if (!fraction || std::isnan(*fraction)) {
        return {u"GEEN TIJD"_s, Tone::Muted, 0.8};
    }
    if (*fraction <= 0) {
        return {u"OPEN"_s, Tone::DeepPrimary};
    }
    if (*fraction >= 0.999) {
        return {u"GEFACTUREERD"_s, Tone::Success};
    }
    const QString percent = QString::number(qint64(std::round(*fraction * 100))) + u'%';
    return {compact ? percent : percent + u" GEFACTUREERD"_s, Tone::Primary};
}

} // namespace BilledChip
