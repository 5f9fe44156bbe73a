#pragma once

#include "store/writerecords.h"

#include <QSettings>

// Onboarding answers given before there was an account to store them in: the first-run screens
// ask for name, language, currency, rate and a few questions before the user signs up or signs in.
// They wait in the settings under `settingsKey` as one JSON object and go to the profile at the
// next sign-in (AppStore::applyPendingOnboarding), which then deletes them. Answers given for an
// address (the one typed on the sign-up screen) are kept for that account only, so someone who
// signs in to another account on the same machine does not hand them to the wrong profile.
struct PendingOnboarding
{
    std::optional<QString> email;
    OnboardingPatch answers;

    static constexpr const char *settingsKey = "pending_onboarding";

    // None when nothing waits; unreadable answers are dropped with a warning, as nobody could
    // apply them later either.
    static std::optional<PendingOnboarding> load(QSettings &settings);
    void save(QSettings &settings) const;
    static void clear(QSettings &settings);

    // Whether the account with this address may take the answers.
    [[nodiscard]] bool belongsTo(const QString &accountEmail) const;

    static constexpr std::string_view wireName = "PendingOnboarding";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("email", &PendingOnboarding::email), field("answers", &PendingOnboarding::answers)};
    }
    friend bool operator==(const PendingOnboarding &, const PendingOnboarding &) = default;
};
