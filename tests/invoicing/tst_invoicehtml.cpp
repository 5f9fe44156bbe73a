#include "invoicing/invoicefiles.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/invoicelanguage.h"
#include "invoicing/invoicemoney.h"
#include "invoicing/sampleinvoice.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace InvoiceHTMLRenderer;

Q_DECLARE_METATYPE(InvoiceHTMLRenderer::Template)

namespace {

DraftLine line(const QString &title, double hours, double rate, const QString &unit, double amount)
{
    DraftLine l;
    l.title = title;
    l.hours = hours;
    l.rate = rate;
    l.unit = unit;
    l.amount = amount;
    return l;
}

InvoiceDraft sampleDraft()
{
    InvoiceDraft draft;
    draft.projectName = u"Town hall website"_s;
    draft.from = u"2025-03-01"_s;
    draft.to = u"2025-03-31"_s;
    draft.currency = u"EUR"_s;
    DraftLine design = line(u"Design & build"_s, 12.5, 85, u"h"_s, 1062.5);
    design.description = u"Home page\nNews section"_s;
    draft.lines << design << line(u"Project price"_s, 1, 800, QString(), 800)
                << line(u"Discount"_s, 0, 0, QString(), -32);
    DraftLine left = line(u"Left out of this invoice"_s, 3, 85, u"h"_s, 255);
    left.included = false;
    draft.lines << left;
    draft.prose = u"Thank you for the pleasant work.\n\nSecond paragraph."_s;
    return draft;
}

InvoiceMetadata sampleMetadata()
{
    InvoiceMetadata metadata;
    metadata.number = u"2025-0007"_s;
    metadata.issued = u"2025-03-31"_s;
    metadata.clientName = u"Gemeente Houten"_s;
    metadata.clientAddress = u"Onderdoor 25\n3995 DW Houten"_s;
    metadata.clientEmail = u"facturen@houten.nl"_s;
    metadata.vatRate = 21;
    metadata.vatAmount = 384.3;
    metadata.vatGroups = {{21, 1830.5, 384.41}};
    metadata.language = u"en"_s;
    return metadata;
}

QString render(Template design, const InvoiceDraft &draft = sampleDraft(),
               const InvoiceStyle &style = SampleInvoice::style(), const InvoiceMetadata &metadata = sampleMetadata())
{
    return buildHTML(draft, style, brandProfile(style, design), design, metadata);
}

// The placeholders whose value is worked out, not copied, and what they read for the sample in Dutch.
const QList<std::pair<QString, QString>> everyPlaceholder{
    {u"company"_s, u"Studio Vlinder"_s},
    {u"company_upper"_s, u"STUDIO VLINDER"_s},
    {u"address_html"_s, u"Oudegracht 112<br>3511 AX Utrecht"_s},
    {u"email"_s, u"hallo@studiovlinder.nl"_s},
    {u"btw"_s, u"NL004512345B01"_s},
    {u"iban"_s, u"NL91 ABNA 0417 1643 00"_s},
    {u"footer_text"_s, u"Thanks &amp; see you"_s},
    {u"number"_s, u"2025-0007"_s},
    {u"number_major"_s, u"0007"_s},
    {u"number_minor"_s, u"2025-"_s},
    {u"issued"_s, u"31 maart 2025"_s},
    {u"due"_s, u"14 april 2025"_s},
    {u"issued_short"_s, u"31-03-2025"_s},
    {u"period_from"_s, u"01-03-2025"_s},
    {u"project_name"_s, u"Town hall website"_s},
    {u"year_short"_s, u"25"_s},
    {u"payment_terms_days"_s, u"14"_s},
    {u"bill_to_address_html"_s, u"Onderdoor 25<br>3995 DW Houten"_s},
    {u"subtotal"_s, u"€\u00A01.830,50"_s},
    {u"vat_amount"_s, u"€\u00A0384,30"_s},
    {u"vat_rate"_s, u"21%"_s},
    {u"grand"_s, u"€\u00A02.214,80"_s},
    {u"logo_html"_s, u"<img class=\"logo\" src=\"data:image/png;base64,iVBORw0KGgo=\" alt=\"Studio Vlinder\">"_s},
    {u"prose_html"_s, u"<p>Thank you for the pleasant work.</p><p>Second paragraph.</p>"_s}};

} // namespace

class TestInvoiceHtml : public QObject
{
    Q_OBJECT

private slots:
    void escaping_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("escaped");
        QTest::newRow("markup") << u"<script>alert(1)</script>"_s << u"&lt;script&gt;alert(1)&lt;/script&gt;"_s;
        QTest::newRow("ampersand first, no double escaping")
            << u"Smith & Sons &amp; Co"_s << u"Smith &amp; Sons &amp;amp; Co"_s;
        QTest::newRow("both quotes, for attributes") << u"a\"b'c"_s << u"a&quot;b&#39;c"_s;
        QTest::newRow("control characters go, line breaks stay") << u"a\u0001b\nc\td"_s << u"ab\nc\td"_s;
    }

    void escaping()
    {
        QFETCH(QString, text);
        QTEST(escapeHtml(text), "escaped");
    }

    void money_data()
    {
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("currency");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("expected");
        QTest::newRow("yen has no cents") << 1500.4 << u"JPY"_s << u"ja"_s << u"¥1,500"_s;
        QTest::newRow("negative discount") << -32.0 << u"EUR"_s << u"en"_s << u"-€32.00"_s;
        QTest::newRow("minus zero prints as zero") << -0.001 << u"EUR"_s << u"en"_s << u"€0.00"_s;
    }

    void money()
    {
        QFETCH(double, amount);
        QFETCH(QString, currency);
        QFETCH(QString, language);
        QTEST(InvoiceMoney::format(amount, currency, InvoiceLanguage(language).locale()), "expected");
    }

    // A region variant of a known language takes that language's dates.
    void regionVariantDates()
    {
        QCOMPARE(InvoiceLanguage(u"pt-BR"_s).longDate(QDate(2025, 3, 31)), u"31 de março de 2025"_s);
        QCOMPARE(InvoiceLanguage(u"pt-BR"_s).shortDate(QDate(2025, 3, 31)), u"31/03/2025"_s);
    }

    void wordsFollowTheInvoiceLanguage()
    {
        InvoiceMetadata metadata = sampleMetadata();
        metadata.language = u"nl"_s;
        const QString html = render(Template::LightMinimalAccent, sampleDraft(), SampleInvoice::style(), metadata);
        QVERIFY(html.contains(u"<html lang=\"nl\">"_s));
        QVERIFY(html.contains(u">Factuur<"_s) && html.contains(u"Subtotaal"_s) && !html.contains(u"Subtotal<"_s));
        QVERIFY(html.contains(u"12,5\u00A0h"_s));
    }

    // Without the rate column (the templates' form) the custom template test counts the rows.
    void lineRows()
    {
        const QString rows = lineRowsHtml(sampleDraft(), InvoiceLanguage(u"en"_s), true);
        // Only the three included lines, each a row of its four cells.
        QCOMPARE(rows.count(u"<tr>"_s), 3);
        QCOMPARE(rows.count(u"<td "_s), 3 * 4);
        QVERIFY(rows.contains(u"Home page<br>News section"_s));
        QVERIFY(rows.contains(u"<td class=\"qty\">12.5\u00A0h</td>"_s));
        // A fixed price and a discount show a quantity of one and no unit.
        QCOMPARE(rows.count(u"<td class=\"qty\">1</td>"_s), 2);
        QVERIFY(rows.contains(u"<td class=\"amt\">-€32.00</td>"_s));
        QVERIFY(rows.contains(u"<td class=\"rate\">€85.00</td>"_s));
        QVERIFY(rows.contains(u"<td class=\"rate\"></td>"_s)); // the discount has no rate
    }

    void everyDesignHonoursPageAndStructure_data()
    {
        QTest::addColumn<Template>("design");
        for (const Template design : builtInDesigns()) {
            QTest::newRow(qPrintable(templateName(design))) << design;
        }
    }

    void everyDesignHonoursPageAndStructure()
    {
        QFETCH(Template, design);
        InvoiceStyle style = SampleInvoice::style();
        style.accentHex = u"#123456"_s;
        style.paletteBorder = u"red;} body{display:none"_s; // ignored: not a colour
        style.morvaneFooter = true;
        const QString html = render(design, sampleDraft(), style);

        QVERIFY(html.startsWith(u"<!doctype html>"_s));
        for (const QString &rule : {u"width: 794px"_s, u"height: 1123px"_s, u"box-sizing: border-box"_s,
                                    u"grid-template-rows: auto 1fr auto"_s}) {
            QVERIFY2(html.contains(rule), qPrintable(rule));
        }
        // The variables come first in the style sheet, brand colour in, bad colour out.
        const qsizetype styleStart = html.indexOf(u"<style>"_s);
        QCOMPARE(html.indexOf(u":root{--accent:#123456;"_s), styleStart + 8);
        QVERIFY(!html.contains(u"display:none"_s));
        QCOMPARE(html.count(u"<header"_s) + html.count(u"<main"_s) + html.count(u"<footer"_s), 3);
        QVERIFY2(!html.contains(u"{{"_s), qPrintable(html.mid(html.indexOf(u"{{"_s), 40)));

        // Content: the number, the client, the lines and the totals.
        QVERIFY(html.contains(u"2025-0007"_s) && html.contains(u"Gemeente Houten"_s));
        QCOMPARE(html.count(u"<tr><td class=\"desc\">"_s), 3);
        QVERIFY(html.contains(u"€1,830.50"_s) && html.contains(u"€2,214.80"_s)); // subtotal, and with VAT
        // The product mark sits inside the footer.
        const qsizetype mark = html.indexOf(u"class=\"mv-made\""_s);
        QVERIFY(mark > html.indexOf(u"<footer"_s) && mark < html.indexOf(u"</footer>"_s));
        QVERIFY(html.contains(u">Made with Morvane · morvane.app</a>"_s));
    }

    void designsDifferFromEachOther()
    {
        QSet<QString> styleSheets;
        for (const Template design : builtInDesigns()) {
            const QString html = render(design);
            styleSheets.insert(html.section(u"<style>"_s, 1).section(u"</style>"_s, 0, 0));
        }
        QCOMPARE(styleSheets.size(), builtInDesigns().size());
    }

    void hostileTextStaysText()
    {
        InvoiceDraft draft = sampleDraft();
        draft.lines[0].title = u"<img src=x onerror=alert(1)>"_s;
        draft.projectName = u"{{company}}"_s;
        InvoiceMetadata metadata = sampleMetadata();
        metadata.clientName = u"\"><script>steal()</script>"_s;
        metadata.notes = u"Pay <b>now</b>"_s;
        InvoiceStyle style = SampleInvoice::style();
        style.logoDataUri = u"javascript:alert(1)"_s;
        for (const Template design : builtInDesigns()) {
            const QString html = render(design, draft, style, metadata);
            for (const QString &hostile : {u"<img src=x"_s, u"<script>"_s, u"<b>now"_s, u"javascript:"_s}) {
                QVERIFY2(!html.contains(hostile), qPrintable(hostile));
            }
            QVERIFY(html.contains(u"&lt;img src=x onerror=alert(1)&gt;"_s));
        }
        // A value that looks like a placeholder is printed, not expanded.
        QVERIFY(render(Template::LightMinimalAccent, draft, style, metadata).contains(u">{{company}}<"_s));
    }

    void placeholdersAreFilledInOnePass()
    {
        const QHash<QString, QString> values{{u"a"_s, u"{{b}}"_s}, {u"b"_s, u"B"_s}};
        QCOMPARE(fillPlaceholders(u"[{{a}}][{{ b }}][{{unknown}}][{b}]"_s, values), u"[{{b}}][B][{{unknown}}][{b}]"_s);
    }

    void customTemplateFillsEveryPlaceholder()
    {
        InvoiceStyle style = SampleInvoice::style();
        style.footer = u"Thanks & see you"_s;
        style.logoDataB64 = u"iVBORw0KGgo="_s;
        InvoiceMetadata metadata = sampleMetadata();
        metadata.language = u"nl"_s;
        metadata.due = u"2025-04-14"_s;
        // Each placeholder between markers, so that its value can be read back.
        QString custom = u"<!DOCTYPE html><html><head><style>body{width:794px;height:1123px}</style></head><body>"
                         u"<header>head</header><main>"_s;
        for (const auto &[name, value] : everyPlaceholder) {
            custom += u"[" + name + u"={{" + name + u"}}]\n";
        }
        custom += u"<table><tbody>{{line_rows_html}}</tbody></table></main><footer>foot</footer></body></html>"_s;
        const std::optional<QString> html =
            substituteCustom(custom, sampleDraft(), style, brandProfile(style, Template::AiCustom), metadata);
        QVERIFY(html.has_value());
        QVERIFY2(!html->contains(u"{{"_s), qPrintable(html->mid(html->indexOf(u"{{"_s), 40)));
        for (const auto &[name, value] : everyPlaceholder) {
            QVERIFY2(html->contains(u"[" + name + u"=" + value + u"]\n"), qPrintable(name));
        }
        QCOMPARE(html->count(u"<tr><td class=\"desc\">"_s), 3);
        QCOMPARE(html->count(u"<td class=\"rate\">"_s), 0);
    }

    // A template without line rows (a fixed price) keeps its own parts; the page geometry and the
    // product mark are forced in.
    void customTemplateGetsGeometryAndMark()
    {
        InvoiceStyle style = SampleInvoice::style();
        style.morvaneFooter = true;
        style.customTemplateHtml = u"<!doctype html><html><head><style>body{width:794px;height:1123px}</style></head>"
                                   u"<body><header>{{company}}</header><main>Fixed price as agreed: {{grand}}</main>"
                                   u"<footer>{{iban}}</footer></body></html>"_s;
        const QString html = render(Template::AiCustom, sampleDraft(), style);
        QVERIFY(html.contains(u"<header>Studio Vlinder</header>"_s));
        QVERIFY(html.contains(u"Fixed price as agreed: €2,214.80"_s));
        QVERIFY(html.contains(u"<footer>NL91 ABNA 0417 1643 00<div class=\"mv-made\">"_s));
        QVERIFY(!html.contains(u"<tr>"_s));
        const qsizetype headEnd = html.indexOf(u"</head>"_s);
        for (const QString &rule :
             {u"html, body { width: 794px !important; height: 1123px !important; overflow: hidden !important; }"_s,
              u"body { display: grid !important; grid-template-rows: auto 1fr auto !important; }"_s,
              u":root{--accent:"_s}) {
            QVERIFY2(html.indexOf(rule) > 0 && html.indexOf(rule) < headEnd, qPrintable(rule));
        }
    }

    void brokenCustomTemplateFallsBack_data()
    {
        QTest::addColumn<QString>("custom");
        QTest::addColumn<QString>("problem");
        const QString good = u"<!doctype html><html><head><style>body{width:794px;height:1123px}</style></head>"
                             u"<body><header></header><main></main><footer></footer></body></html>"_s;
        QTest::newRow("empty") << QString() << u"empty"_s;
        QTest::newRow("no doctype") << QString(good).remove(u"<!doctype html>"_s) << u"doctype"_s;
        QTest::newRow("a header-ish class is no header element")
            << QString(good).replace(u"<header></header>"_s, u"<div class=\"header\"></div><headers></headers>"_s)
            << u"header"_s;
        QTest::newRow("letter size page") << QString(good).replace(u"1123px"_s, u"1056px"_s) << u"794 × 1123"_s;
    }

    void brokenCustomTemplateFallsBack()
    {
        QFETCH(QString, custom);
        QFETCH(QString, problem);
        QVERIFY2(structuralProblem(custom).contains(problem), qPrintable(structuralProblem(custom)));
        InvoiceStyle style = SampleInvoice::style();
        QVERIFY(
            !substituteCustom(custom, sampleDraft(), style, brandProfile(style, Template::AiCustom), sampleMetadata()));
        style.customTemplateHtml = custom;
        QCOMPARE(render(Template::AiCustom, sampleDraft(), style), render(fallbackDesign, sampleDraft(), style));
    }

    void vatRows_data()
    {
        QTest::addColumn<QList<InvoiceVatGroup>>("groups");
        QTest::addColumn<double>("vatAmount");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QString>("rateText");
        QTest::newRow("two rates, each on its base")
            << QList<InvoiceVatGroup>{{9, 800, 72}, {21, 1030.5, 216.41}} << 288.41
            << QStringList{u"VAT 9% on €800.00"_s, u"VAT 21% on €1,030.50"_s} << u"9% / 21%"_s;
        QTest::newRow("a zero group is no VAT row") << QList<InvoiceVatGroup>{{0, 800, 0}, {21, 1030.5, 216.41}}
                                                    << 216.41 << QStringList{u"VAT 21%"_s} << u"21%"_s;
        QTest::newRow("no VAT at all") << QList<InvoiceVatGroup>{{0, 1830.5, 0}} << 0.0
                                       << QStringList{u"No VAT on these lines"_s} << u"0%"_s;
    }

    void vatRows()
    {
        QFETCH(QList<InvoiceVatGroup>, groups);
        QFETCH(double, vatAmount);
        QFETCH(QStringList, rows);
        QFETCH(QString, rateText);
        InvoiceMetadata metadata = sampleMetadata();
        metadata.vatRate.reset();
        metadata.vatGroups = groups;
        metadata.vatAmount = vatAmount;
        const QHash<QString, QString> values = placeholderValues(
            sampleDraft(), SampleInvoice::style(), brandProfile(SampleInvoice::style(), fallbackDesign), metadata);
        const QString totals = values.value(u"totals_rows_html"_s);
        QCOMPARE(totals.count(u"t-row vat"_s), rows.size());
        for (const QString &row : rows) {
            QVERIFY2(totals.contains(u">" + row + u"<"), qPrintable(totals));
        }
        QCOMPARE(values.value(u"vat_rate"_s), rateText);
    }

    void numberSplit()
    {
        InvoiceMetadata metadata = sampleMetadata();
        for (const QString &number : {u"1042"_s, u"2025-"_s}) { // no digits after a separator: all major
            metadata.number = number;
            const auto values = placeholderValues(sampleDraft(), SampleInvoice::style(),
                                                  brandProfile(SampleInvoice::style(), fallbackDesign), metadata);
            QCOMPARE(values.value(u"number_major"_s) + u'|' + values.value(u"number_minor"_s), number + u'|');
        }
    }

    void brandProfileFallsBackInOrder()
    {
        InvoiceStyle style;
        style.inkHex = u"#222222"_s;
        QCOMPARE(brandProfile(style, Template::BoldDark).palette.ink, u"#222222"_s);
        style.paletteInk = u"#333333"_s;
        QCOMPARE(brandProfile(style, Template::BoldDark).palette.ink, u"#333333"_s);
        style.paletteInk = u"#33"_s; // not a colour: the next source decides
        QCOMPARE(brandProfile(style, Template::BoldDark).palette.ink, u"#222222"_s);

        // The design's dark band belongs to its own accent; with the brand's accent it takes the ink.
        QCOMPARE(brandProfile(InvoiceStyle{}, Template::LightMinimalAccent).palette.bannerBg, u"#0B3B37"_s);
        InvoiceStyle branded;
        branded.accentHex = u"#1D4ED8"_s;
        branded.inkHex = u"#0A0A0A"_s;
        QCOMPARE(brandProfile(branded, Template::LightMinimalAccent).palette.bannerBg, u"#0A0A0A"_s);
        branded.paletteBanner = u"#202020"_s;
        QCOMPARE(brandProfile(branded, Template::LightMinimalAccent).palette.bannerBg, u"#202020"_s);

        style.fontDisplay = u"Playfair Display"_s;
        style.fontBody = u"Inter\"; } body { color: red"_s;
        const BrandProfile brand = brandProfile(style, Template::Editorial);
        QCOMPARE(brand.fonts.display, u"Playfair Display"_s);
        QCOMPARE(brand.fonts.body, std::nullopt);
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("file");
        QTest::newRow("spaces and symbols") << u" INV #12 (copy) "_s << u"morvane-invoice-INV-12-copy.pdf"_s;
        QTest::newRow("no climbing out") << u"../../etc/passwd"_s << u"morvane-invoice-etc-passwd.pdf"_s;
        QTest::newRow("nothing usable") << u"///"_s << u"morvane-invoice.pdf"_s;
    }

    void fileNames()
    {
        QFETCH(QString, number);
        QTEST(InvoiceFiles::exportFileName(number), "file");
    }
};

QTEST_GUILESS_MAIN(TestInvoiceHtml)
#include "tst_invoicehtml.moc"
