#include "app/companycommand.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "billing/moneyinput.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/invoicestyleinput.h"

#include <QImage>
#include <QTextStream>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using TextField = std::optional<QString> InvoiceStyle::*;

// The free-text details, each an option of `company set` and a line of `company show`.
struct Detail
{
    QString option;
    std::function<QString()> label;
    TextField field;
    // Colours and font names end up in a style sheet and are checked first.
    std::function<std::optional<QString>(const QString &)> check;
};

QList<Detail> details()
{
    const auto colour = [](const QString &text) { return InvoiceStyleInput::colourProblem(text); };
    const auto font = [](const QString &text) { return InvoiceStyleInput::fontProblem(text); };
    return {
        //% "Company"
        {u"company"_s, [] { return qtTrId("cli.company.company"); }, &InvoiceStyle::company, {}},
        //% "Address"
        {u"address"_s, [] { return qtTrId("cli.company.address"); }, &InvoiceStyle::address, {}},
        //% "E-mail"
        {u"email"_s, [] { return qtTrId("cli.company.email"); }, &InvoiceStyle::email, {}},
        //% "Website"
        {u"website"_s, [] { return qtTrId("cli.company.website"); }, &InvoiceStyle::website, {}},
        //% "Phone"
        {u"phone"_s, [] { return qtTrId("cli.company.phone"); }, &InvoiceStyle::phone, {}},
        //% "VAT number"
        {u"vat-number"_s, [] { return qtTrId("cli.company.vatNumber"); }, &InvoiceStyle::btw, {}},
        //% "Chamber of commerce number"
        {u"coc-number"_s, [] { return qtTrId("cli.company.cocNumber"); }, &InvoiceStyle::kvk, {}},
        //% "Bank account (IBAN)"
        {u"iban"_s, [] { return qtTrId("cli.company.iban"); }, &InvoiceStyle::iban, {}},
        //% "Bank"
        {u"bank"_s, [] { return qtTrId("cli.company.bank"); }, &InvoiceStyle::bankName, {}},
        //% "Footer"
        {u"footer"_s, [] { return qtTrId("cli.company.footer"); }, &InvoiceStyle::footer, {}},
        //% "Accent colour"
        {u"accent"_s, [] { return qtTrId("cli.company.accent"); }, &InvoiceStyle::accentHex, colour},
        //% "Ink colour"
        {u"ink"_s, [] { return qtTrId("cli.company.ink"); }, &InvoiceStyle::inkHex, colour},
        //% "Display font"
        {u"font-display"_s, [] { return qtTrId("cli.company.fontDisplay"); }, &InvoiceStyle::fontDisplay, font},
        //% "Body font"
        {u"font-body"_s, [] { return qtTrId("cli.company.fontBody"); }, &InvoiceStyle::fontBody, font},
    };
}

QString logoText(const QString &dataUri)
{
    const qsizetype comma = dataUri.indexOf(u',');
    QImage image;
    if (comma < 0 || !image.loadFromData(QByteArray::fromBase64(dataUri.mid(comma + 1).toLatin1()))) {
        //% "set, but not readable"
        return qtTrId("cli.company.logoUnreadable");
    }
    //% "%1 × %2 px"
    return qtTrId("cli.company.logoSize").arg(image.width()).arg(image.height());
}

QString templateText(const InvoiceStyle &style)
{
    if (const std::optional<QString> problem =
            InvoiceStyleInput::templateProblem(style.customTemplateHtml.value_or(QString()))) {
        //% "not used, invoices fall back to %1: %2"
        return qtTrId("cli.company.templateFallsBack")
            .arg(InvoiceHTMLRenderer::templateName(InvoiceHTMLRenderer::fallbackDesign), *problem);
    }
    //% "used"
    return qtTrId("cli.company.templateUsed");
}

int show(const AppStore &store, bool json, QTextStream &out)
{
    const std::optional<InvoiceTemplate> house = store.defaultInvoiceTemplate();
    if (json) {
        Cli::printJson(out, house ? Wire::encode(house->style) : QJsonObject());
        return 0;
    }
    if (!house) {
        //% "No sender details yet. Set them with: morvane company set --company NAME --address TEXT ..."
        out << qtTrId("cli.company.none") << Qt::endl;
        return 0;
    }
    const InvoiceStyle &style = house->style;
    QList<std::pair<QString, QString>> lines;
    for (const Detail &detail : details()) {
        if (const std::optional<QString> &value = style.*detail.field) {
            lines.append({detail.label(), Cli::printable(QString(*value).replace(u'\n', u", "_s))});
        }
    }
    if (style.paymentTermsDays) {
        //% "Payment terms"
        const QString label = qtTrId("cli.company.paymentDays");
        //% "%1 days"
        lines.append({label, qtTrId("cli.company.days").arg(*style.paymentTermsDays)});
    }
    if (style.vatRate) {
        //% "Default VAT rate"
        lines.append({qtTrId("cli.company.vatRate"), QString::number(*style.vatRate) + u" %"_s});
    }
    //% "Design"
    lines.append({qtTrId("cli.company.design"),
                  style.htmlTemplate.value_or(InvoiceHTMLRenderer::templateName(InvoiceHTMLRenderer::fallbackDesign))});
    if (style.logoDataUri) {
        //% "Logo"
        lines.append({qtTrId("cli.company.logo"), logoText(*style.logoDataUri)});
    }
    if (style.customTemplateHtml) {
        //% "Custom template"
        lines.append({qtTrId("cli.company.template"), templateText(style)});
    }
    qsizetype width = 0;
    for (const auto &line : std::as_const(lines)) {
        width = std::max(width, line.first.size());
    }
    for (const auto &[label, value] : std::as_const(lines)) {
        out << QString(label + u':').leftJustified(width + 2) << value << u'\n';
    }
    out.flush();
    return 0;
}

} // namespace

namespace Cli {

bool knownDesign(const QString &name, QTextStream &err)
{
    if (InvoiceHTMLRenderer::templateFromName(name)) {
        return true;
    }
    QStringList names;
    for (const InvoiceHTMLRenderer::Template design : InvoiceHTMLRenderer::builtInDesigns()) {
        names << InvoiceHTMLRenderer::templateName(design);
    }
    names << InvoiceHTMLRenderer::templateName(InvoiceHTMLRenderer::Template::AiCustom);
    //% "Unknown design: %1. The designs are: %2 (aiCustom is your own template)."
    err << qtTrId("cli.company.unknownDesign").arg(Cli::printable(name), names.join(u", "_s)) << Qt::endl;
    return false;
}

} // namespace Cli

int runCompanyCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "Show this help."
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.company.option.help"));
    parser.addOption(help);
    const QList<Detail> fields = details();
    QList<QCommandLineOption> fieldOptions;
    for (const Detail &detail : fields) {
        //% "Sets: %1. An empty value clears it."
        fieldOptions.append(QCommandLineOption(detail.option, qtTrId("cli.company.option.field").arg(detail.label()),
                                               u"text"_s));
        parser.addOption(fieldOptions.last());
    }
    //% "Days the client has to pay."
    const QCommandLineOption days(u"payment-days"_s, qtTrId("cli.company.option.paymentDays"), u"N"_s);
    //% "VAT percentage of lines whose price has none."
    const QCommandLineOption vatRate(u"vat-rate"_s, qtTrId("cli.company.option.vatRate"), u"P"_s);
    //% "The design new invoices are drawn in."
    const QCommandLineOption design(u"design"_s, qtTrId("cli.company.option.design"), u"name"_s);
    //% "A PNG or JPEG of at most 1 MB; an empty value removes the logo."
    const QCommandLineOption logo(u"logo"_s, qtTrId("cli.company.option.logo"), u"file"_s);
    //% "Your own HTML template; new invoices use it unless --design says otherwise."
    const QCommandLineOption customTemplate(u"template"_s, qtTrId("cli.company.option.template"), u"file.html"_s);
    parser.addOptions({days, vatRate, design, logo, customTemplate});
    //% "show or set"
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.company.argument.action"), u"show|set"_s);
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    //% "Usage: morvane company show [--json] | set [--company C] [--address A] [--email E] [--website W] [--phone P] [--vat-number V] [--coc-number C] [--iban I] [--bank B] [--payment-days N] [--vat-rate P] [--footer F] [--accent #hex] [--ink #hex] [--font-display F] [--font-body F] [--design NAME] [--logo FILE] [--template FILE.html]"
    const QString usageText = qtTrId("cli.company.usage");
    if (parser.isSet(help)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    bool anyChange = parser.isSet(days) || parser.isSet(vatRate) || parser.isSet(design) || parser.isSet(logo) ||
                     parser.isSet(customTemplate);
    for (const QCommandLineOption &option : std::as_const(fieldOptions)) {
        anyChange = anyChange || parser.isSet(option);
    }
    if (positional.size() != 1 || !((action == u"show" && !anyChange) || (action == u"set" && anyChange))) {
        return Cli::usage(err, usageText);
    }

    // Every value is checked before anything is written, so a bad one changes nothing.
    struct Change
    {
        TextField field;
        std::optional<QString> value;
    };
    QList<Change> changes;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (!parser.isSet(fieldOptions.at(i))) {
            continue;
        }
        const QString value = parser.value(fieldOptions.at(i)).trimmed();
        if (fields.at(i).check) {
            if (const std::optional<QString> problem = fields.at(i).check(value)) {
                err << *problem << Qt::endl;
                return 2;
            }
        }
        changes.append({fields.at(i).field, value.isEmpty() ? std::nullopt : std::optional<QString>(value)});
    }
    std::optional<int> paymentDays;
    if (parser.isSet(days)) {
        bool ok = false;
        paymentDays = parser.value(days).toInt(&ok);
        if (!ok || *paymentDays < 0 || *paymentDays > 365) {
            //% "Payment terms are a whole number of days from 0 to 365."
            err << qtTrId("cli.company.err.days") << Qt::endl;
            return 2;
        }
    }
    std::optional<double> vatPercent;
    if (parser.isSet(vatRate)) {
        vatPercent = MoneyInput::parseDecimal(parser.value(vatRate));
        if (!vatPercent || *vatPercent < 0 || *vatPercent > 100) {
            //% "The VAT rate is a percentage from 0 to 100."
            err << qtTrId("cli.company.err.vatRate") << Qt::endl;
            return 2;
        }
    }
    if (parser.isSet(design) && !Cli::knownDesign(parser.value(design), err)) {
        return 2;
    }
    std::optional<QString> logoUri;
    if (parser.isSet(logo) && !parser.value(logo).isEmpty()) {
        const InvoiceStyleInput::Intake intake = InvoiceStyleInput::logoFile(parser.value(logo));
        if (!intake.value) {
            //% "%1: %2"
            err << qtTrId("cli.company.fileProblem").arg(parser.value(logo), intake.problem) << Qt::endl;
            return 2;
        }
        logoUri = intake.value;
    }
    std::optional<QString> templateHtml;
    if (parser.isSet(customTemplate)) {
        const InvoiceStyleInput::Intake intake = InvoiceStyleInput::templateFile(parser.value(customTemplate));
        if (!intake.value) {
            err << qtTrId("cli.company.fileProblem").arg(parser.value(customTemplate), intake.problem) << Qt::endl;
            return 2;
        }
        templateHtml = intake.value;
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);
    if (action == u"show") {
        return show(store, json, out);
    }

    InvoiceStyle style = store.defaultInvoiceTemplate().value_or(InvoiceTemplate{}).style;
    for (const Change &change : std::as_const(changes)) {
        style.*change.field = change.value;
        // The palette's ink would override the ink colour just given.
        if (change.field == &InvoiceStyle::inkHex) {
            style.paletteInk.reset();
        }
    }
    if (parser.isSet(days)) {
        style.paymentTermsDays = paymentDays;
    }
    if (parser.isSet(vatRate)) {
        style.vatRate = vatPercent;
    }
    if (parser.isSet(logo)) {
        // The stored logo is the re-encoded one; an older base64 copy would outlive a removal.
        style.logoDataUri = logoUri;
        style.logoDataB64.reset();
    }
    if (templateHtml) {
        style.customTemplateHtml = templateHtml;
        style.htmlTemplate = InvoiceHTMLRenderer::templateName(InvoiceHTMLRenderer::Template::AiCustom);
    }
    if (parser.isSet(design)) {
        style.htmlTemplate = parser.value(design);
    }
    if (!runBlocking(store.saveHouseStyle(style))) {
        return session.failed(err);
    }
    if (json) {
        Cli::printJson(out, Wire::encode(style));
        return 0;
    }
    //% "Sender details and invoice style saved."
    out << qtTrId("cli.company.saved") << Qt::endl;
    if (templateHtml) {
        //% "Custom template: %1"
        out << qtTrId("cli.company.templateStatus").arg(templateText(style)) << Qt::endl;
    }
    return 0;
}
