#pragma once

#include "model/wire.h"

// The look and sender details of an invoice, stored as JSON in a template's `style` column.
// Every key is optional: a style made from a sample invoice knows only part of them.
struct InvoiceStyle
{
    std::optional<QString> company;
    std::optional<QString> address;
    std::optional<QString> email;
    std::optional<QString> website;
    std::optional<QString> phone;
    std::optional<QString> tagline;
    std::optional<QString> kvk;
    std::optional<QString> btw;
    std::optional<QString> iban;
    std::optional<QString> bankName;
    std::optional<QString> accentHex;
    std::optional<QString> inkHex;
    std::optional<bool> headerDark;
    std::optional<QString> logoDataB64;
    std::optional<QString> currency;
    std::optional<double> vatRate;
    std::optional<int> paymentTermsDays;
    std::optional<QString> footer;
    std::optional<bool> morvaneFooter;
    std::optional<QString> paletteInk;
    std::optional<QString> palettePaper;
    std::optional<QString> paletteMuted;
    std::optional<QString> paletteBorder;
    std::optional<QString> paletteBanner;
    std::optional<QString> fontDisplay;
    std::optional<QString> fontBody;
    std::optional<QString> htmlTemplate;
    std::optional<QString> logoDataUri;
    std::optional<QString> customTemplateHtml;
    std::optional<QString> sampleText;

    static constexpr std::string_view wireName = "InvoiceStyle";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("company", &InvoiceStyle::company),
            field("address", &InvoiceStyle::address),
            field("email", &InvoiceStyle::email),
            field("website", &InvoiceStyle::website),
            field("phone", &InvoiceStyle::phone),
            field("tagline", &InvoiceStyle::tagline),
            field("kvk", &InvoiceStyle::kvk),
            field("btw", &InvoiceStyle::btw),
            field("iban", &InvoiceStyle::iban),
            field("bank_name", &InvoiceStyle::bankName),
            field("accent_hex", &InvoiceStyle::accentHex),
            field("ink_hex", &InvoiceStyle::inkHex),
            field("header_dark", &InvoiceStyle::headerDark),
            field("logo_data_b64", &InvoiceStyle::logoDataB64),
            field("currency", &InvoiceStyle::currency),
            field("vat_rate", &InvoiceStyle::vatRate),
            field("payment_terms_days", &InvoiceStyle::paymentTermsDays),
            field("footer", &InvoiceStyle::footer),
            field("morvane_footer", &InvoiceStyle::morvaneFooter),
            field("palette_ink", &InvoiceStyle::paletteInk),
            field("palette_paper", &InvoiceStyle::palettePaper),
            field("palette_muted", &InvoiceStyle::paletteMuted),
            field("palette_border", &InvoiceStyle::paletteBorder),
            field("palette_banner", &InvoiceStyle::paletteBanner),
            field("font_display", &InvoiceStyle::fontDisplay),
            field("font_body", &InvoiceStyle::fontBody),
            field("html_template", &InvoiceStyle::htmlTemplate),
            field("logo_data_uri", &InvoiceStyle::logoDataUri),
            field("custom_template_html", &InvoiceStyle::customTemplateHtml),
            field("sample_text", &InvoiceStyle::sampleText),
        };
    }
    friend bool operator==(const InvoiceStyle &, const InvoiceStyle &) = default;
};

// A row of `invoice_templates`: a named style the user picks when invoicing.
struct InvoiceTemplate
{
    QString id;
    QString userId;
    std::optional<QString> teamId;
    QString name;
    InvoiceStyle style;
    std::optional<bool> isDefault;
    std::optional<QString> createdAt;
    std::optional<QString> updatedAt;

    static constexpr std::string_view wireName = "InvoiceTemplate";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &InvoiceTemplate::id),
            field("user_id", &InvoiceTemplate::userId),
            field("team_id", &InvoiceTemplate::teamId),
            field("name", &InvoiceTemplate::name),
            field("style", &InvoiceTemplate::style),
            field("is_default", &InvoiceTemplate::isDefault),
            field("created_at", &InvoiceTemplate::createdAt),
            field("updated_at", &InvoiceTemplate::updatedAt),
        };
    }
    friend bool operator==(const InvoiceTemplate &, const InvoiceTemplate &) = default;
};
