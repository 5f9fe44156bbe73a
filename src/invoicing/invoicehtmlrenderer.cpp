#include "invoicehtmlrenderer.h"

#include "invoicing/invoicelanguage.h"
#include "invoicing/invoicemoney.h"

#include <QDate>
#include <QFile>
#include <QRegularExpression>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace InvoiceHTMLRenderer {

namespace {

constexpr std::array<std::string_view, 9> templateNames{
    "aiCustom", "lightMinimalAccent", "editorialMono", "modernRibbon",   "signatureEditorial",
    "boldDark", "editorial",          "pastelModern",  "minimalistMono",
};

const QString productSite = u"https://morvane.app"_s;

// A design's own look where the style says nothing. Body text is Inter in every design; the
// display face carries each design's character.
struct DesignDefaults
{
    const char *accent;
    const char *ink;
    const char *paper;
    const char *muted;
    const char *border;
    const char *banner;
    const char *accent2;
    const char *display;
    const char *body;
};

const char *const sansStack = "\"Inter\", \"Helvetica Neue\", \"Nimbus Sans\", Arial, sans-serif";
const char *const monoStack = "\"JetBrains Mono\", \"DejaVu Sans Mono\", Menlo, monospace";

DesignDefaults defaultsOf(Template design)
{
    switch (design) {
    case Template::AiCustom:
    case Template::LightMinimalAccent:
        return {"#0F766E", "#111827", "#FFFFFF", "#6B7280",
                "#E5E7EB", "#0B3B37", "#CCFBF1", "\"Inter\", \"Helvetica Neue\", Arial, sans-serif",
                sansStack};
    case Template::EditorialMono:
        return {"#1D4ED8", "#1A1A1A", "#FAF8F3", "#6E6A60",
                "#D8D3C6", "#1A1A1A", "#E8E3D4", "\"JetBrains Mono\", \"DejaVu Sans Mono\", monospace",
                sansStack};
    case Template::ModernRibbon:
        return {"#4F46E5", "#1E1B4B", "#FFFFFF", "#64748B",
                "#E2E8F0", "#1E1B4B", "#A5B4FC", "\"League Spartan\", \"Inter\", Arial, sans-serif",
                sansStack};
    case Template::SignatureEditorial:
        return {"#9A3412", "#292524", "#FFFCF5", "#78716C",
                "#E7DFD0", "#292524", "#F4E8D6", "\"EB Garamond\", \"P052\", Georgia, \"DejaVu Serif\", serif",
                sansStack};
    case Template::BoldDark:
        return {"#F59E0B", "#0F172A", "#FFFFFF", "#64748B",
                "#E2E8F0", "#0F172A", "#FDE68A", "\"League Spartan\", \"Inter\", Arial, sans-serif",
                sansStack};
    case Template::Editorial:
        return {"#9F1239", "#1C1917", "#FFFFFF", "#71717A",
                "#E4E4E7", "#1C1917", "#FCE7F3", "\"EB Garamond\", \"C059\", Georgia, \"DejaVu Serif\", serif",
                sansStack};
    case Template::PastelModern:
        return {"#7C3AED", "#2E2A47", "#FFFFFF", "#7A7591",
                "#ECE8F6", "#2E2A47", "#E9E3FF", "\"Inter\", \"Helvetica Neue\", Arial, sans-serif",
                sansStack};
    case Template::MinimalistMono:
        return {"#000000", "#000000", "#FFFFFF", "#737373",
                "#D4D4D4", "#000000", "#F5F5F5", "\"Nimbus Sans\", \"Helvetica Neue\", Helvetica, Arial, sans-serif",
                sansStack};
    }
    return defaultsOf(Template::LightMinimalAccent);
}

std::optional<QString> validColour(const std::optional<QString> &value)
{
    static const QRegularExpression hex(u"^#(?:[0-9a-fA-F]{3}|[0-9a-fA-F]{6})$"_s);
    if (value && hex.match(value->trimmed()).hasMatch()) {
        return value->trimmed();
    }
    return std::nullopt;
}

// A family name a person would type; quotes, semicolons or braces would break out of the rule.
std::optional<QString> validFontFamily(const std::optional<QString> &value)
{
    static const QRegularExpression family(u"^[\\p{L}\\p{N} ._-]{1,64}$"_s);
    if (value && family.match(value->trimmed()).hasMatch()) {
        return value->trimmed();
    }
    return std::nullopt;
}

QString trimmed(const std::optional<QString> &value)
{
    return value ? value->trimmed() : QString();
}

QString multilineHtml(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.split(u'\n')) {
        const QString clean = line.trimmed();
        if (!clean.isEmpty()) {
            lines << escapeHtml(clean);
        }
    }
    return lines.join(u"<br>");
}

// Paragraphs at blank lines, line breaks within them.
QString proseHtml(const QString &text)
{
    QStringList paragraphs;
    static const QRegularExpression blank(u"\\n\\s*\\n"_s);
    for (const QString &paragraph : text.split(blank, Qt::SkipEmptyParts)) {
        const QString body = multilineHtml(paragraph);
        if (!body.isEmpty()) {
            paragraphs << u"<p>"_s + body + u"</p>"_s;
        }
    }
    return paragraphs.join(QString());
}

QString mimeOfBase64Image(const QString &base64)
{
    if (base64.startsWith(u"/9j/")) {
        return u"image/jpeg"_s;
    }
    if (base64.startsWith(u"R0lG")) {
        return u"image/gif"_s;
    }
    if (base64.startsWith(u"UklGR")) {
        return u"image/webp"_s;
    }
    if (base64.startsWith(u"PHN2") || base64.startsWith(u"PD94")) {
        return u"image/svg+xml"_s;
    }
    return u"image/png"_s;
}

QDate parseDay(const std::optional<QString> &text)
{
    if (!text || text->isEmpty()) {
        return {};
    }
    // A timestamp names its day in its first ten characters.
    return QDate::fromString(text->left(10), Qt::ISODate);
}

double round2(double value)
{
    if (!std::isfinite(value)) {
        return 0;
    }
    return std::round(value * 100.0) / 100.0;
}

QString percentText(double percent, const QLocale &locale)
{
    return InvoiceMoney::formatQuantity(percent, locale) + u'%';
}

// "2025-0007" prints as a small "2025-" and a large "0007": the running part is what people
// quote. A number without a separator is all large.
std::pair<QString, QString> splitNumber(const QString &number)
{
    static const QRegularExpression lastSeparator(u"^(.*[-/.\\s_#])([^-/.\\s_#]+)$"_s);
    const QRegularExpressionMatch match = lastSeparator.match(number);
    if (match.hasMatch()) {
        return {match.captured(2), match.captured(1)};
    }
    return {number, QString()};
}

QString initials(const QString &name)
{
    QString result;
    for (const QString &word : name.split(u' ', Qt::SkipEmptyParts)) {
        if (word.front().isLetterOrNumber()) {
            result += word.front().toUpper();
        }
        if (result.size() == 2) {
            break;
        }
    }
    return result;
}

QString pairRow(const QString &cssClass, const QString &key, const QString &valueHtml)
{
    return u"<div class=\""_s + cssClass + u"\"><span class=\"k\">"_s + escapeHtml(key) +
           u"</span><span class=\"v\">"_s + valueHtml + u"</span></div>"_s;
}

QString readDesign(Template design)
{
    QFile file(u":/invoicing/designs/"_s + templateName(design) + u".html"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("invoice design %s is missing from the resources", qPrintable(templateName(design)));
    }
    return QString::fromUtf8(file.readAll());
}

QString cssVariables(const BrandProfile &brand, Template design)
{
    const DesignDefaults defaults = defaultsOf(design);
    auto family = [](const std::optional<QString> &chosen, const char *stack) {
        return chosen ? u"\""_s + *chosen + u"\", "_s + QString::fromLatin1(stack) : QString::fromLatin1(stack);
    };
    const Palette &p = brand.palette;
    return u":root{--accent:"_s + p.accent + u";--ink:"_s + p.ink + u";--paper:"_s + p.paper + u";--muted:"_s +
           p.muted + u";--border:"_s + p.border + u";--banner:"_s + p.bannerBg.value_or(p.ink) + u";--accent2:"_s +
           p.accent2.value_or(p.border) + u";--font-display:"_s + family(brand.fonts.display, defaults.display) +
           u";--font-body:"_s + family(brand.fonts.body, defaults.body) + u";--font-mono:"_s +
           family(brand.fonts.mono, monoStack) + u"}"_s;
}

} // namespace

QString templateName(Template design)
{
    const std::string_view name = templateNames[std::size_t(design)];
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

std::optional<Template> templateFromName(QStringView name)
{
    for (std::size_t i = 0; i < templateNames.size(); ++i) {
        if (name == QLatin1StringView(templateNames[i].data(), qsizetype(templateNames[i].size()))) {
            return Template(i);
        }
    }
    return std::nullopt;
}

QList<Template> builtInDesigns()
{
    return {Template::LightMinimalAccent, Template::EditorialMono, Template::ModernRibbon, Template::SignatureEditorial,
            Template::BoldDark,           Template::Editorial,     Template::PastelModern, Template::MinimalistMono};
}

QString escapeHtml(QStringView text)
{
    QString out;
    out.reserve(text.size() + text.size() / 8);
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '&':
            out += u"&amp;";
            break;
        case '<':
            out += u"&lt;";
            break;
        case '>':
            out += u"&gt;";
            break;
        case '"':
            out += u"&quot;";
            break;
        case '\'':
            out += u"&#39;";
            break;
        default:
            // Control characters other than line breaks and tabs have no place in a document.
            if (c.unicode() < 0x20 && c != u'\n' && c != u'\t') {
                break;
            }
            out += c;
        }
    }
    return out;
}

BrandProfile brandProfile(const InvoiceStyle &style, Template design)
{
    const DesignDefaults defaults = defaultsOf(design);
    BrandProfile brand;
    Palette &p = brand.palette;
    p.accent = validColour(style.accentHex).value_or(QString::fromLatin1(defaults.accent));
    p.ink =
        validColour(style.paletteInk).value_or(validColour(style.inkHex).value_or(QString::fromLatin1(defaults.ink)));
    p.paper = validColour(style.palettePaper).value_or(QString::fromLatin1(defaults.paper));
    p.muted = validColour(style.paletteMuted).value_or(QString::fromLatin1(defaults.muted));
    p.border = validColour(style.paletteBorder).value_or(QString::fromLatin1(defaults.border));
    // A design's own dark band matches its own accent; with the brand's accent, the brand's ink
    // is the safer dark.
    const QString defaultBanner = validColour(style.accentHex) ? p.ink : QString::fromLatin1(defaults.banner);
    p.bannerBg = validColour(style.paletteBanner).value_or(defaultBanner);
    p.accent2 = QString::fromLatin1(defaults.accent2);
    brand.fonts.display = validFontFamily(style.fontDisplay);
    brand.fonts.body = validFontFamily(style.fontBody);

    static const QRegularExpression dataImage(u"^data:image/[a-z0-9.+-]+(;base64)?,[A-Za-z0-9+/=%._-]+$"_s);
    if (style.logoDataUri && dataImage.match(style.logoDataUri->trimmed()).hasMatch()) {
        brand.logoDataURI = style.logoDataUri->trimmed();
    } else if (style.logoDataB64 && !style.logoDataB64->trimmed().isEmpty()) {
        static const QRegularExpression base64(u"^[A-Za-z0-9+/=\\s]+$"_s);
        const QString data = style.logoDataB64->trimmed();
        if (base64.match(data).hasMatch()) {
            brand.logoDataURI = u"data:"_s + mimeOfBase64Image(data) + u";base64,"_s + QString(data).remove(u' ');
        }
    }
    return brand;
}

double subtotal(const InvoiceDraft &draft)
{
    double sum = 0;
    for (const DraftLine &line : draft.lines) {
        if (line.included) {
            sum += line.amount;
        }
    }
    return round2(sum);
}

QString lineRowsHtml(const InvoiceDraft &draft, const InvoiceLanguage &language, bool withRate)
{
    const QLocale locale = language.locale();
    QString rows;
    for (const DraftLine &line : draft.lines) {
        if (!line.included) {
            continue;
        }
        QString description = u"<div class=\"line-title\">"_s + escapeHtml(line.title) + u"</div>"_s;
        if (line.description && !line.description->trimmed().isEmpty()) {
            description += u"<div class=\"line-sub\">"_s + multilineHtml(*line.description) + u"</div>"_s;
        }
        // A fixed price or a discount has no quantity worth printing beyond "1".
        const double quantity = line.hours == 0 && line.unit.isEmpty() ? 1.0 : line.hours;
        QString qty = InvoiceMoney::formatQuantity(quantity, locale);
        if (!line.unit.trimmed().isEmpty()) {
            qty += u"\u00A0"_s + escapeHtml(line.unit.trimmed());
        }
        rows += u"<tr><td class=\"desc\">"_s + description + u"</td><td class=\"qty\">"_s + qty + u"</td>"_s;
        if (withRate) {
            const QString rate =
                line.rate != 0 ? escapeHtml(InvoiceMoney::format(line.rate, draft.currency, locale)) : QString();
            rows += u"<td class=\"rate\">"_s + rate + u"</td>"_s;
        }
        rows += u"<td class=\"amt\">"_s +
                escapeHtml(InvoiceMoney::format(round2(line.amount), draft.currency, locale)) + u"</td></tr>"_s;
    }
    return rows;
}

QHash<QString, QString> placeholderValues(const InvoiceDraft &draft, const InvoiceStyle &style,
                                          const BrandProfile &brand, const InvoiceMetadata &metadata)
{
    const InvoiceLanguage language(metadata.language.value_or(QString()));
    const QLocale locale = language.locale();
    const QString currency = draft.currency.trimmed().isEmpty() ? style.currency.value_or(u"EUR"_s) : draft.currency;
    auto money = [&](double amount) { return escapeHtml(InvoiceMoney::format(amount, currency, locale)); };
    auto t = [&](const char *id) { return language.text(id); };

    QHash<QString, QString> v;
    const QString company = trimmed(style.company).isEmpty() ? trimmed(metadata.senderName) : trimmed(style.company);
    v[u"company"_s] = escapeHtml(company);
    v[u"company_upper"_s] = escapeHtml(locale.toUpper(company));
    v[u"company_initials"_s] = escapeHtml(initials(company));
    v[u"tagline"_s] = escapeHtml(trimmed(style.tagline));
    v[u"address_html"_s] = multilineHtml(trimmed(style.address));
    v[u"email"_s] = escapeHtml(trimmed(style.email));
    v[u"website"_s] = escapeHtml(trimmed(style.website));
    v[u"phone"_s] = escapeHtml(trimmed(style.phone));
    v[u"kvk"_s] = escapeHtml(trimmed(style.kvk));
    v[u"btw"_s] = escapeHtml(trimmed(style.btw));
    v[u"iban"_s] = escapeHtml(trimmed(style.iban));
    v[u"bank_name"_s] = escapeHtml(trimmed(style.bankName));
    v[u"footer_text"_s] = escapeHtml(trimmed(style.footer));

    // Invoice
    const QDate issued = parseDay(metadata.issued);
    QDate due = parseDay(metadata.due);
    std::optional<int> termDays = style.paymentTermsDays;
    if (!due.isValid() && issued.isValid() && termDays && *termDays > 0) {
        due = issued.addDays(*termDays);
    }
    if (!termDays && due.isValid() && issued.isValid() && issued.daysTo(due) >= 0) {
        termDays = int(issued.daysTo(due));
    }
    const auto [major, minor] = splitNumber(metadata.number.trimmed());
    v[u"number"_s] = escapeHtml(metadata.number.trimmed());
    v[u"number_major"_s] = escapeHtml(major);
    v[u"number_minor"_s] = escapeHtml(minor);
    v[u"issued"_s] = escapeHtml(language.longDate(issued));
    v[u"due"_s] = escapeHtml(language.longDate(due));
    v[u"issued_short"_s] = escapeHtml(language.shortDate(issued));
    v[u"due_short"_s] = escapeHtml(language.shortDate(due));
    v[u"period_from"_s] = escapeHtml(language.shortDate(parseDay(draft.from)));
    v[u"period_to"_s] = escapeHtml(language.shortDate(parseDay(draft.to)));
    v[u"project_name"_s] = escapeHtml(draft.projectName.trimmed());
    v[u"year_short"_s] = issued.isValid() ? QString::number(issued.year() % 100).rightJustified(2, u'0') : QString();
    v[u"payment_terms_days"_s] = termDays ? QString::number(*termDays) : QString();

    // Client
    v[u"bill_to_name"_s] = escapeHtml(trimmed(metadata.clientName));
    v[u"bill_to_address_html"_s] = multilineHtml(trimmed(metadata.clientAddress));
    v[u"bill_to_email"_s] = escapeHtml(trimmed(metadata.clientEmail));

    // Lines and totals
    v[u"line_rows_html"_s] = lineRowsHtml(draft, language, false);
    v[u"line_rows_rate_html"_s] = lineRowsHtml(draft, language, true);
    const double net = subtotal(draft);
    const double vat = round2(metadata.vatAmount);
    const double grand = round2(net + vat);
    v[u"subtotal"_s] = money(net);
    v[u"vat_amount"_s] = money(vat);
    v[u"grand"_s] = money(grand);

    QList<InvoiceVatGroup> groups;
    for (const InvoiceVatGroup &group : metadata.vatGroups) {
        if (group.percent > 0) {
            groups << group;
        }
    }
    QStringList rates;
    for (const InvoiceVatGroup &group : groups) {
        rates << percentText(group.percent, locale);
    }
    if (rates.isEmpty() && metadata.vatRate && *metadata.vatRate > 0) {
        rates << percentText(*metadata.vatRate, locale);
    }
    v[u"vat_rate"_s] = escapeHtml(rates.isEmpty() ? percentText(0, locale) : rates.join(u" / "));

    QString totals = pairRow(u"t-row sub"_s, t(QT_TRID_NOOP("inv.doc.subtotal")), money(net));
    if (groups.size() > 1) {
        for (const InvoiceVatGroup &group : groups) {
            const QString label = t(QT_TRID_NOOP("inv.doc.vatRowOver"))
                                      .arg(InvoiceMoney::formatQuantity(group.percent, locale),
                                           InvoiceMoney::format(group.base, currency, locale));
            totals += pairRow(u"t-row vat"_s, label, money(group.amount));
        }
    } else if (!rates.isEmpty() || vat != 0) {
        const double percent = groups.size() == 1 ? groups.front().percent : metadata.vatRate.value_or(0);
        totals +=
            pairRow(u"t-row vat"_s,
                    t(QT_TRID_NOOP("inv.doc.vatRow")).arg(InvoiceMoney::formatQuantity(percent, locale)), money(vat));
    } else {
        totals += pairRow(u"t-row vat none"_s, t(QT_TRID_NOOP("inv.doc.noVat")), money(0));
    }
    totals += pairRow(u"t-row grand"_s, t(QT_TRID_NOOP("inv.doc.total")), money(grand));
    v[u"totals_rows_html"_s] = totals;

    // Misc
    v[u"logo_html"_s] = brand.logoDataURI ? u"<img class=\"logo\" src=\""_s + escapeHtml(*brand.logoDataURI) +
                                                u"\" alt=\""_s + escapeHtml(company) + u"\">"_s
                                          : QString();
    v[u"prose_html"_s] = proseHtml(draft.prose);
    v[u"notes_html"_s] = metadata.notes && !metadata.notes->trimmed().isEmpty()
                             ? u"<div class=\"notes-block\"><div class=\"label\">"_s +
                                   escapeHtml(t(QT_TRID_NOOP("inv.doc.notes"))) + u"</div>"_s +
                                   proseHtml(*metadata.notes) + u"</div>"_s
                             : QString();

    // Composite blocks the built-in designs share.
    QStringList contact;
    for (const QString &key : {u"email"_s, u"phone"_s, u"website"_s}) {
        if (!v[key].isEmpty()) {
            contact << u"<span>"_s + v[key] + u"</span>"_s;
        }
    }
    v[u"contact_html"_s] = contact.join(QString());
    QString registration;
    if (!v[u"kvk"_s].isEmpty()) {
        registration += pairRow(u"reg"_s, t(QT_TRID_NOOP("inv.doc.kvk")), v[u"kvk"_s]);
    }
    if (!v[u"btw"_s].isEmpty()) {
        registration += pairRow(u"reg"_s, t(QT_TRID_NOOP("inv.doc.vatId")), v[u"btw"_s]);
    }
    v[u"registration_html"_s] = registration;

    QString meta;
    meta += pairRow(u"meta-row"_s, t(QT_TRID_NOOP("inv.doc.issued")), v[u"issued"_s]);
    if (due.isValid()) {
        meta += pairRow(u"meta-row"_s, t(QT_TRID_NOOP("inv.doc.due")), v[u"due"_s]);
    }
    if (!v[u"period_from"_s].isEmpty() || !v[u"period_to"_s].isEmpty()) {
        meta += pairRow(u"meta-row"_s, t(QT_TRID_NOOP("inv.doc.period")),
                        v[u"period_from"_s] + u" – "_s + v[u"period_to"_s]);
    }
    if (!v[u"project_name"_s].isEmpty()) {
        meta += pairRow(u"meta-row"_s, t(QT_TRID_NOOP("inv.doc.project")), v[u"project_name"_s]);
    }
    v[u"meta_rows_html"_s] = meta;

    QString billTo;
    if (!v[u"bill_to_name"_s].isEmpty()) {
        billTo += u"<div class=\"party-name\">"_s + v[u"bill_to_name"_s] + u"</div>"_s;
    }
    if (!v[u"bill_to_address_html"_s].isEmpty()) {
        billTo += u"<div class=\"party-lines\">"_s + v[u"bill_to_address_html"_s] + u"</div>"_s;
    }
    if (!v[u"bill_to_email"_s].isEmpty()) {
        billTo += u"<div class=\"party-lines\">"_s + v[u"bill_to_email"_s] + u"</div>"_s;
    }
    v[u"bill_to_html"_s] = billTo;

    QString from = u"<div class=\"party-name\">"_s + v[u"company"_s] + u"</div>"_s;
    if (!v[u"address_html"_s].isEmpty()) {
        from += u"<div class=\"party-lines\">"_s + v[u"address_html"_s] + u"</div>"_s;
    }
    v[u"from_html"_s] = from;

    QString payment;
    if (!v[u"iban"_s].isEmpty()) {
        const QString note = termDays ? t(QT_TRID_NOOP("inv.doc.paymentTerms")).arg(*termDays)
                                      : t(QT_TRID_NOOP("inv.doc.paymentNoTerm"));
        payment += u"<p class=\"pay-note\">"_s + escapeHtml(note) + u"</p>"_s;
        payment += pairRow(u"pay-row"_s, t(QT_TRID_NOOP("inv.doc.iban")), v[u"iban"_s]);
        if (!v[u"bank_name"_s].isEmpty()) {
            payment += pairRow(u"pay-row"_s, t(QT_TRID_NOOP("inv.doc.bank")), v[u"bank_name"_s]);
        }
        payment += pairRow(u"pay-row"_s, t(QT_TRID_NOOP("inv.doc.reference")), v[u"number"_s]);
    }
    v[u"payment_html"_s] = payment;

    const bool productMark = style.morvaneFooter.value_or(false);
    const QString host = productSite.section(u"//"_s, 1);
    v[u"made_html"_s] = productMark ? u"<div class=\"mv-made\"><a href=\""_s + productSite + u"\">"_s +
                                          escapeHtml(t(QT_TRID_NOOP("invoiceFooter"))) + u" · "_s + escapeHtml(host) +
                                          u"</a></div>"_s
                                    : QString();

    // Words of the document in its own language.
    const std::pair<const char *, const char *> labels[] = {
        {"t_invoice", QT_TRID_NOOP("inv.doc.invoice")},
        {"t_number", QT_TRID_NOOP("inv.doc.number")},
        {"t_issued", QT_TRID_NOOP("inv.doc.issued")},
        {"t_due", QT_TRID_NOOP("inv.doc.due")},
        {"t_bill_to", QT_TRID_NOOP("inv.doc.billTo")},
        {"t_from", QT_TRID_NOOP("inv.doc.from")},
        {"t_period", QT_TRID_NOOP("inv.doc.period")},
        {"t_project", QT_TRID_NOOP("inv.doc.project")},
        {"t_description", QT_TRID_NOOP("inv.doc.description")},
        {"t_quantity", QT_TRID_NOOP("inv.doc.quantity")},
        {"t_rate", QT_TRID_NOOP("inv.doc.rate")},
        {"t_amount", QT_TRID_NOOP("inv.doc.amount")},
        {"t_subtotal", QT_TRID_NOOP("inv.doc.subtotal")},
        {"t_total", QT_TRID_NOOP("inv.doc.total")},
        {"t_amount_due", QT_TRID_NOOP("inv.doc.amountDue")},
        {"t_payment", QT_TRID_NOOP("inv.doc.payment")},
        {"t_notes", QT_TRID_NOOP("inv.doc.notes")},
        {"t_thanks", QT_TRID_NOOP("inv.doc.thanks")},
    };
    for (const auto &[name, id] : labels) {
        v[QString::fromLatin1(name)] = escapeHtml(t(id));
    }
    v[u"lang"_s] = language.code();
    v[u"body_class"_s] = style.headerDark.value_or(false) ? u"header-dark"_s : QString();
    v[u"density"_s] = escapeHtml(brand.density);
    return v;
}

QString fillPlaceholders(const QString &text, const QHash<QString, QString> &values)
{
    static const QRegularExpression placeholder(u"\\{\\{\\s*([A-Za-z0-9_]+)\\s*\\}\\}"_s);
    QString out;
    out.reserve(text.size() * 2);
    qsizetype last = 0;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(text)) {
        const auto found = values.constFind(match.captured(1));
        if (found == values.cend()) {
            continue;
        }
        out += QStringView(text).mid(last, match.capturedStart() - last);
        out += *found;
        last = match.capturedEnd();
    }
    out += QStringView(text).mid(last);
    return out;
}

TemplateFault templateFault(const QString &templateHtml)
{
    const QString text = templateHtml.trimmed();
    if (text.isEmpty()) {
        return TemplateFault::Empty;
    }
    if (!text.startsWith(u"<!doctype html>"_s, Qt::CaseInsensitive)) {
        return TemplateFault::NoDoctype;
    }
    static const QRegularExpression header(u"<header[\\s>/]"_s, QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression footer(u"<footer[\\s>/]"_s, QRegularExpression::CaseInsensitiveOption);
    if (!header.match(text).hasMatch()) {
        return TemplateFault::NoHeader;
    }
    if (!footer.match(text).hasMatch()) {
        return TemplateFault::NoFooter;
    }
    static const QRegularExpression width(u"\\b794(?:\\.0+)?px"_s);
    static const QRegularExpression height(u"\\b1123(?:\\.0+)?px"_s);
    if (!width.match(text).hasMatch() || !height.match(text).hasMatch()) {
        return TemplateFault::PageNotFixed;
    }
    return TemplateFault::None;
}

QString structuralProblem(const QString &templateHtml)
{
    switch (templateFault(templateHtml)) {
    case TemplateFault::None:
        return {};
    case TemplateFault::Empty:
        return u"the template is empty"_s;
    case TemplateFault::NoDoctype:
        return u"the template does not start with <!doctype html>"_s;
    case TemplateFault::NoHeader:
        return u"the template has no header element"_s;
    case TemplateFault::NoFooter:
        return u"the template has no footer element"_s;
    case TemplateFault::PageNotFixed:
        return u"the template does not fix the page at 794 × 1123 px"_s;
    }
    return {};
}

std::optional<QString> substituteCustom(const QString &templateHtml, const InvoiceDraft &draft,
                                        const InvoiceStyle &style, const BrandProfile &brand,
                                        const InvoiceMetadata &metadata)
{
    if (templateFault(templateHtml) != TemplateFault::None) {
        return std::nullopt;
    }
    const QHash<QString, QString> values = placeholderValues(draft, style, brand, metadata);
    QString html = fillPlaceholders(templateHtml.trimmed(), values);

    // The page geometry wins over whatever the template says, and the brand's colours are there
    // for a template that refers to them; the template's own rules may still override colours.
    const QString variables = u"<style>"_s + cssVariables(brand, Template::AiCustom) + u"</style>"_s;
    const QString geometry = u"<style>html, body { width: 794px !important; height: 1123px !important; "
                             u"overflow: hidden !important; } body { display: grid !important; "
                             u"grid-template-rows: auto 1fr auto !important; }</style>"_s;
    static const QRegularExpression headOpen(u"<head(?:\\s[^>]*)?>"_s, QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression headClose(u"</head\\s*>"_s, QRegularExpression::CaseInsensitiveOption);
    if (const auto open = headOpen.match(html); open.hasMatch()) {
        html.insert(open.capturedEnd(), variables);
        const auto close = headClose.match(html, open.capturedEnd());
        html.insert(close.hasMatch() ? close.capturedStart() : open.capturedEnd() + variables.size(), geometry);
    } else {
        // A document without a head still gets both, right after the doctype.
        const qsizetype afterDoctype = html.indexOf(u'>') + 1;
        html.insert(afterDoctype, u"<head>"_s + variables + geometry + u"</head>"_s);
    }

    // The product mark goes into the footer when the template did not place it itself.
    const QString mark = values.value(u"made_html"_s);
    if (!mark.isEmpty() && !templateHtml.contains(u"made_html"_s)) {
        const qsizetype footerEnd = html.lastIndexOf(u"</footer"_s, -1, Qt::CaseInsensitive);
        if (footerEnd >= 0) {
            html.insert(footerEnd, mark);
        }
    }
    return html;
}

QString buildHTML(const InvoiceDocument &document)
{
    const InvoiceStyle style = document.style.value_or(InvoiceStyle{});
    const Template design = templateFromName(document.design.value_or(QString())).value_or(fallbackDesign);
    return buildHTML(document.draft, style, brandProfile(style, design), design,
                     document.metadata.value_or(InvoiceMetadata{}));
}

QString buildHTML(const InvoiceDraft &draft, const InvoiceStyle &style, const BrandProfile &brand, Template design,
                  const InvoiceMetadata &metadata)
{
    if (design == Template::AiCustom) {
        if (std::optional<QString> custom =
                substituteCustom(style.customTemplateHtml.value_or(QString()), draft, style, brand, metadata)) {
            return *custom;
        }
        design = fallbackDesign;
    }
    QHash<QString, QString> values = placeholderValues(draft, style, brand, metadata);
    values[u"css_vars"_s] = cssVariables(brand, design);
    return fillPlaceholders(readDesign(design), values);
}

} // namespace InvoiceHTMLRenderer
