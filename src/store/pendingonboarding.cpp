#include "pendingonboarding.h"

#include "store/storelog.h"

using namespace Qt::StringLiterals;

namespace {

QString key()
{
    return QString::fromLatin1(PendingOnboarding::settingsKey);
}

} // namespace

std::optional<PendingOnboarding> PendingOnboarding::load(QSettings &settings)
{
    const QString text = settings.value(key()).toString();
    if (text.isEmpty()) {
        return std::nullopt;
    }
    try {
        return Wire::decodeJson<PendingOnboarding>(text.toUtf8());
    } catch (const DecodeError &error) {
        qCWarning(lcStore).noquote() << u"Dropping unreadable onboarding answers: "_s + error.message();
        clear(settings);
        return std::nullopt;
    }
}

void PendingOnboarding::save(QSettings &settings) const
{
    settings.setValue(key(), QString::fromUtf8(AnyEncodable(*this).toJson()));
    settings.sync();
}

void PendingOnboarding::clear(QSettings &settings)
{
    settings.remove(key());
    settings.sync();
}

bool PendingOnboarding::belongsTo(const QString &accountEmail) const
{
    return !email || email->trimmed().compare(accountEmail.trimmed(), Qt::CaseInsensitive) == 0;
}
