#include "sampleinvoice.h"

#include "invoicing/invoicehtmlrenderer.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace SampleInvoice {

namespace {

struct Work
{
    const char *title;
    const char *description;
    double hours;
};

// What a small studio bills for a municipal web site.
constexpr Work work[] = {
    {"Discovery workshop with the communications team", "Stakeholder interviews, goals and content inventory", 6},
    {"Information architecture", "Site map, navigation and page types for 140 pages", 9.5},
    {"Visual design: home page and news", "Two rounds of revisions included", 14},
    {"Accessibility review (WCAG 2.1 AA)", "Contrast, keyboard paths and screen-reader labels", 5.25},
    {"Front-end build: components", "Header, footer, cards, forms and search results", 22},
    {"Content migration", "Import of 312 news items and 48 service pages", 11.5},
    {"Search integration", nullptr, 7},
    {"Performance tuning", "Images, caching and a 96 Lighthouse score on mobile", 4.5},
    {"Editor training", "Two sessions of two hours, with a written guide", 4},
    {"Launch support", "DNS switch, monitoring and fixes in the first week", 3.75},
};

} // namespace

InvoiceDraft draft(int lines)
{
    InvoiceDraft result;
    result.projectName = u"Website Gemeente Houten"_s;
    result.from = u"2025-03-01"_s;
    result.to = u"2025-03-31"_s;
    result.currency = u"EUR"_s;
    const int count = std::max(0, lines);
    for (int i = 0; i < count; ++i) {
        const Work &item = work[i % std::size(work)];
        DraftLine line;
        line.title = QString::fromUtf8(item.title);
        if (count > int(std::size(work))) {
            line.title += u" · part "_s + QString::number(i / int(std::size(work)) + 1);
        }
        if (item.description) {
            line.description = QString::fromUtf8(item.description);
        }
        line.hours = item.hours;
        line.rate = 95;
        line.unit = u"h"_s;
        line.amount = line.hours * line.rate;
        line.taskId = u"task-%1"_s.arg(i + 1);
        result.lines << line;
    }
    result.prose = u"Thank you for the pleasant collaboration on the new site. This invoice covers the work "
                   u"of March as agreed in the quotation of 12 February."_s;
    return result;
}

InvoiceStyle style()
{
    InvoiceStyle style;
    style.company = u"Studio Vlinder"_s;
    style.tagline = u"Websites for public services"_s;
    style.address = u"Oudegracht 112\n3511 AX Utrecht"_s;
    style.email = u"hallo@studiovlinder.nl"_s;
    style.website = u"studiovlinder.nl"_s;
    style.phone = u"+31 30 555 0101"_s;
    style.kvk = u"81234567"_s;
    style.btw = u"NL004512345B01"_s;
    style.iban = u"NL91 ABNA 0417 1643 00"_s;
    style.bankName = u"ABN AMRO"_s;
    style.vatRate = 21;
    style.paymentTermsDays = 14;
    style.morvaneFooter = true;
    return style;
}

InvoiceMetadata metadata(const InvoiceDraft &draft)
{
    InvoiceMetadata metadata;
    metadata.number = u"2025-0042"_s;
    metadata.issued = u"2025-04-01"_s;
    metadata.due = u"2025-04-15"_s;
    metadata.clientName = u"Gemeente Houten"_s;
    metadata.clientAddress = u"t.a.v. Afdeling Communicatie\nOnderdoor 25\n3995 DW Houten"_s;
    metadata.clientEmail = u"facturen@houten.nl"_s;
    metadata.notes = u"Purchase order PO-2025-118"_s;
    const double base = InvoiceHTMLRenderer::subtotal(draft);
    const double vat = std::round(base * 21.0) / 100.0;
    metadata.vatRate = 21;
    metadata.vatAmount = vat;
    metadata.vatGroups = {{21, base, vat}};
    metadata.senderName = u"Studio Vlinder"_s;
    metadata.language = u"en"_s;
    return metadata;
}

} // namespace SampleInvoice
