#pragma once

#include "model/invoicedocument.h"
#include "model/invoicedraft.h"
#include "model/invoicestyle.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

class InvoiceLanguage;

// Draws an invoice as one HTML document of A4 width (794 × 1123 px at 96 px per inch): one of
// the built-in designs, or a custom template with {{placeholders}}. Pure: values in, text out.
namespace InvoiceHTMLRenderer {

// The design. Stored by its case name in the style's `html_template`; AiCustom draws the
// style's `custom_template_html`.
enum class Template {
    AiCustom,
    LightMinimalAccent,
    EditorialMono,
    ModernRibbon,
    SignatureEditorial,
    BoldDark,
    Editorial,
    PastelModern,
    MinimalistMono,
};

// "lightMinimalAccent" and so on; the names a style stores.
QString templateName(Template design);
std::optional<Template> templateFromName(QStringView name);
// The eight built-in designs in their order.
QList<Template> builtInDesigns();
// What a custom template falls back to when it cannot be used.
constexpr Template fallbackDesign = Template::LightMinimalAccent;

struct Palette
{
    QString accent;
    QString ink;
    QString paper;
    QString muted;
    QString border;
    std::optional<QString> accent2;
    std::optional<QString> bannerBg;
};

struct Fonts
{
    std::optional<QString> display;
    std::optional<QString> body;
    std::optional<QString> mono;
};

// The resolved look handed to a design.
struct BrandProfile
{
    Palette palette;
    Fonts fonts;
    std::optional<QString> logoDataURI;
    QString density = QStringLiteral("regular");
};

// The style's palette fields first, then its accent and ink colours, then the design's own
// defaults. Colours that are not "#rgb"/"#rrggbb" and font names with markup are ignored, since
// both end up inside the style sheet.
BrandProfile brandProfile(const InvoiceStyle &style, Template design);

// The complete document. AiCustom uses the style's custom template and, when that breaks the
// structural rules, the fallback design, so an invoice always renders.
QString buildHTML(const InvoiceDraft &draft, const InvoiceStyle &style, const BrandProfile &brand, Template design,
                  const InvoiceMetadata &metadata);

// The document in its own style and design; an unknown or missing design is the fallback design.
QString buildHTML(const InvoiceDocument &document);

// Fills a custom template. Nothing when it is empty or breaks a structural rule: no leading
// "<!doctype html>", no header or footer element, or no body fixed at 794 × 1123 px.
std::optional<QString> substituteCustom(const QString &templateHtml, const InvoiceDraft &draft,
                                        const InvoiceStyle &style, const BrandProfile &brand,
                                        const InvoiceMetadata &metadata);

// The first structural rule a custom template breaks, in the order they are checked.
enum class TemplateFault { None, Empty, NoDoctype, NoHeader, NoFooter, PageNotFixed };
TemplateFault templateFault(const QString &templateHtml);

// Why a custom template cannot be used, in English for logs; empty when it can.
QString structuralProblem(const QString &templateHtml);

// Every placeholder's value (names without braces); "_html" values are markup, the rest text
// already escaped for HTML.
QHash<QString, QString> placeholderValues(const InvoiceDraft &draft, const InvoiceStyle &style,
                                          const BrandProfile &brand, const InvoiceMetadata &metadata);

// Replaces each {{name}} that has a value, in one pass: a value that itself holds "{{...}}"
// stays as it is. Unknown names are left in place.
QString fillPlaceholders(const QString &text, const QHash<QString, QString> &values);

QString escapeHtml(QStringView text);

// The included lines as table rows: cells "desc", "qty" and "amt", and with `withRate` a "rate"
// cell before the amount.
QString lineRowsHtml(const InvoiceDraft &draft, const InvoiceLanguage &language, bool withRate);

// The sum of the included lines, rounded to cents.
double subtotal(const InvoiceDraft &draft);

} // namespace InvoiceHTMLRenderer
