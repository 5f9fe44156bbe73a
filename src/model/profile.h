#pragma once

#include "model/wire.h"

// The signed-in user's row in `profiles`; its id is the user's id.
struct Profile
{
    QString id;
    std::optional<QString> email;
    std::optional<QString> displayName;
    std::optional<double> defaultHourlyRate;
    std::optional<QString> currency;
    std::optional<QString> language;
    std::optional<JSONValue> travel;

    static constexpr std::string_view wireName = "Profile";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &Profile::id),
            field("email", &Profile::email),
            field("display_name", &Profile::displayName),
            field("default_hourly_rate", &Profile::defaultHourlyRate),
            field("currency", &Profile::currency),
            field("language", &Profile::language),
            field("travel", &Profile::travel),
        };
    }
    friend bool operator==(const Profile &, const Profile &) = default;
};
