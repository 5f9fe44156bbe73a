#pragma once

#include "model/wire.h"

// A row of `clients`: someone the user invoices.
struct Client
{
    QString id;
    QString userId;
    std::optional<QString> teamId;
    QString name;
    std::optional<QString> email;
    std::optional<QString> phone;
    std::optional<QString> address;
    std::optional<QString> vatId;
    std::optional<QString> kvk;
    std::optional<QString> iban;
    std::optional<QString> notes;
    std::optional<QString> colorHex;
    std::optional<bool> archived;
    std::optional<QString> createdAt;
    std::optional<double> lat;
    std::optional<double> lng;
    std::optional<QString> placeLabel;

    [[nodiscard]] bool isArchived() const { return archived.value_or(false); }

    static constexpr std::string_view wireName = "Client";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &Client::id),
            field("user_id", &Client::userId),
            field("team_id", &Client::teamId),
            field("name", &Client::name),
            field("email", &Client::email),
            field("phone", &Client::phone),
            field("address", &Client::address),
            field("vat_id", &Client::vatId),
            field("kvk", &Client::kvk),
            field("iban", &Client::iban),
            field("notes", &Client::notes),
            field("color_hex", &Client::colorHex),
            field("archived", &Client::archived),
            field("created_at", &Client::createdAt),
            field("lat", &Client::lat),
            field("lng", &Client::lng),
            field("place_label", &Client::placeLabel),
        };
    }
    friend bool operator==(const Client &, const Client &) = default;
};

// The body of a new `clients` row; the backend fills the id, `archived` and `created_at`.
struct ClientInsert
{
    QString userId;
    std::optional<QString> teamId;
    QString name;
    std::optional<QString> email;
    std::optional<QString> phone;
    std::optional<QString> address;
    std::optional<QString> vatId;
    std::optional<QString> kvk;
    std::optional<QString> iban;
    std::optional<QString> notes;
    std::optional<QString> colorHex;
    std::optional<double> lat;
    std::optional<double> lng;
    std::optional<QString> placeLabel;

    static constexpr std::string_view wireName = "ClientInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("user_id", &ClientInsert::userId),
            field("team_id", &ClientInsert::teamId),
            field("name", &ClientInsert::name),
            field("email", &ClientInsert::email),
            field("phone", &ClientInsert::phone),
            field("address", &ClientInsert::address),
            field("vat_id", &ClientInsert::vatId),
            field("kvk", &ClientInsert::kvk),
            field("iban", &ClientInsert::iban),
            field("notes", &ClientInsert::notes),
            field("color_hex", &ClientInsert::colorHex),
            field("lat", &ClientInsert::lat),
            field("lng", &ClientInsert::lng),
            field("place_label", &ClientInsert::placeLabel),
        };
    }
    friend bool operator==(const ClientInsert &, const ClientInsert &) = default;
};
