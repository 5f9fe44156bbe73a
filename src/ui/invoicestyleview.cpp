#include "ui/invoicestyleview.h"

#include "billing/moneyinput.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/invoicestyleinput.h"
#include "invoicing/pdf/invoicepdfrenderer.h"
#include "invoicing/sampleinvoice.h"

#include <QFile>
#include <QFontDatabase>
#include <QLoggingCategory>

#include <QCoroTask>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcStyleView, "morvane.ui.style")

namespace {

using TextField = std::optional<QString> InvoiceStyle::*;

enum class Kind { Text, Colour, Font };

struct Key
{
    QString name;
    TextField field;
    Kind kind;
};

// The form's text values by the style's C++ names. The ink colour is the one palette entry with
// two fields: the form edits `inkHex`, and saving drops `paletteInk`, which would override it.
const QList<Key> &keys()
{
    static const QList<Key> all{
        {u"company"_s, &InvoiceStyle::company, Kind::Text},
        {u"address"_s, &InvoiceStyle::address, Kind::Text},
        {u"email"_s, &InvoiceStyle::email, Kind::Text},
        {u"website"_s, &InvoiceStyle::website, Kind::Text},
        {u"phone"_s, &InvoiceStyle::phone, Kind::Text},
        {u"btw"_s, &InvoiceStyle::btw, Kind::Text},
        {u"kvk"_s, &InvoiceStyle::kvk, Kind::Text},
        {u"iban"_s, &InvoiceStyle::iban, Kind::Text},
        {u"bankName"_s, &InvoiceStyle::bankName, Kind::Text},
        {u"footer"_s, &InvoiceStyle::footer, Kind::Text},
        {u"logoDataUri"_s, &InvoiceStyle::logoDataUri, Kind::Text},
        {u"accentHex"_s, &InvoiceStyle::accentHex, Kind::Colour},
        {u"inkHex"_s, &InvoiceStyle::inkHex, Kind::Colour},
        {u"palettePaper"_s, &InvoiceStyle::palettePaper, Kind::Colour},
        {u"paletteMuted"_s, &InvoiceStyle::paletteMuted, Kind::Colour},
        {u"paletteBorder"_s, &InvoiceStyle::paletteBorder, Kind::Colour},
        {u"paletteBanner"_s, &InvoiceStyle::paletteBanner, Kind::Colour},
        {u"fontDisplay"_s, &InvoiceStyle::fontDisplay, Kind::Font},
        {u"fontBody"_s, &InvoiceStyle::fontBody, Kind::Font},
        {u"htmlTemplate"_s, &InvoiceStyle::htmlTemplate, Kind::Text},
        {u"customTemplateHtml"_s, &InvoiceStyle::customTemplateHtml, Kind::Text},
    };
    return all;
}


QList<InvoiceHTMLRenderer::Template> shownDesigns(const InvoiceStyle &style)
{
    QList<InvoiceHTMLRenderer::Template> designs = InvoiceHTMLRenderer::builtInDesigns();
    if (!style.customTemplateHtml.value_or(QString()).trimmed().isEmpty()) {
        designs.append(InvoiceHTMLRenderer::Template::AiCustom);
    }
    return designs;
}

// Thumbnails are shown at half this width, sharp on a screen of double density.
constexpr int thumbnailWidth = 320;

} // namespace

QString InvoiceStyleView::designTitle(InvoiceHTMLRenderer::Template design)
{
    using enum InvoiceHTMLRenderer::Template;
    switch (design) {
    case AiCustom:
        //% "Your template"
        return qtTrId("ui.style.design.aiCustom");
    case LightMinimalAccent:
        //% "Light minimal"
        return qtTrId("ui.style.design.lightMinimalAccent");
    case EditorialMono:
        //% "Editorial mono"
        return qtTrId("ui.style.design.editorialMono");
    case ModernRibbon:
        //% "Modern ribbon"
        return qtTrId("ui.style.design.modernRibbon");
    case SignatureEditorial:
        //% "Signature"
        return qtTrId("ui.style.design.signatureEditorial");
    case BoldDark:
        //% "Bold dark"
        return qtTrId("ui.style.design.boldDark");
    case Editorial:
        //% "Editorial"
        return qtTrId("ui.style.design.editorial");
    case PastelModern:
        //% "Pastel modern"
        return qtTrId("ui.style.design.pastelModern");
    case MinimalistMono:
        //% "Minimalist mono"
        return qtTrId("ui.style.design.minimalistMono");
    }
    return {};
}

InvoiceStyleView::InvoiceStyleView(QObject *parent)
    : QObject(parent)
{
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(400);
    connect(&m_debounce, &QTimer::timeout, this, [this] {
        ++m_generation;
        draw();
    });
}

InvoiceStyleView::~InvoiceStyleView() = default;

void InvoiceStyleView::setStore(AppStore *store)
{
    if (m_store == store) {
        return;
    }
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
    }
    m_store = store;
    if (store) {
        connect(store, &AppStore::invoiceTemplatesChanged, this, &InvoiceStyleView::savedChanged);
    }
    emit savedChanged();
}

InvoiceStyle InvoiceStyleView::base() const
{
    const std::optional<InvoiceTemplate> house = m_store ? m_store->defaultInvoiceTemplate() : std::nullopt;
    return house ? house->style : InvoiceStyle{};
}

QVariantMap InvoiceStyleView::saved() const
{
    return formOf(base());
}

QVariantMap InvoiceStyleView::formOf(const InvoiceStyle &style)
{
    QVariantMap form;
    for (const Key &key : keys()) {
        form.insert(key.name, (style.*key.field).value_or(QString()));
    }
    form.insert(u"inkHex"_s, style.paletteInk.value_or(style.inkHex.value_or(QString())));
    form.insert(u"paymentTermsDays"_s, style.paymentTermsDays ? QString::number(*style.paymentTermsDays) : QString());
    form.insert(u"vatRate"_s, style.vatRate ? QString::number(*style.vatRate) : QString());
    form.insert(u"morvaneFooter"_s, style.morvaneFooter.value_or(false));
    return form;
}

std::optional<InvoiceStyle> InvoiceStyleView::styleOf(const QVariantMap &form, InvoiceStyle base, QString *problem)
{
    QString first;
    const auto refuse = [&](const QString &why) {
        if (first.isEmpty()) {
            first = why;
        }
    };
    const std::optional<QString> oldLogo = base.logoDataUri;
    for (const Key &key : keys()) {
        if (!form.contains(key.name)) {
            continue;
        }
        const QString raw = form.value(key.name).toString();
        // A template is kept as written; anything else loses the blanks a person typed around it.
        const QString value = key.field == &InvoiceStyle::customTemplateHtml ? raw : raw.trimmed();
        if (key.kind == Kind::Colour) {
            if (const std::optional<QString> why = InvoiceStyleInput::colourProblem(value)) {
                refuse(*why);
                continue;
            }
        } else if (key.kind == Kind::Font) {
            if (const std::optional<QString> why = InvoiceStyleInput::fontProblem(value)) {
                refuse(*why);
                continue;
            }
        }
        base.*key.field = value.trimmed().isEmpty() ? std::nullopt : std::optional<QString>(value);
    }
    if (form.contains(u"inkHex"_s)) {
        base.paletteInk.reset();
    }
    if (base.logoDataUri != oldLogo) {
        base.logoDataB64.reset();
    }
    if (form.contains(u"paymentTermsDays"_s)) {
        const QString text = form.value(u"paymentTermsDays"_s).toString().trimmed();
        bool ok = false;
        const int days = text.toInt(&ok);
        if (text.isEmpty()) {
            base.paymentTermsDays.reset();
        } else if (ok && days >= 0 && days <= 365) {
            base.paymentTermsDays = days;
        } else {
            //% "Payment terms are a whole number of days from 0 to 365."
            refuse(qtTrId("ui.style.err.days"));
        }
    }
    if (form.contains(u"vatRate"_s)) {
        const QString text = form.value(u"vatRate"_s).toString().trimmed();
        const std::optional<double> rate = MoneyInput::parseDecimal(text);
        if (text.isEmpty()) {
            base.vatRate.reset();
        } else if (rate && *rate >= 0 && *rate <= 100) {
            base.vatRate = rate;
        } else {
            //% "The VAT rate is a percentage from 0 to 100."
            refuse(qtTrId("ui.style.err.vatRate"));
        }
    }
    if (form.contains(u"morvaneFooter"_s)) {
        base.morvaneFooter = form.value(u"morvaneFooter"_s).toBool();
    }
    if (problem) {
        *problem = first;
    }
    return first.isEmpty() ? std::optional<InvoiceStyle>(base) : std::nullopt;
}

QVariantList InvoiceStyleView::designs() const
{
    QVariantList rows;
    for (const InvoiceHTMLRenderer::Template design : shownDesigns(m_previewStyle)) {
        const QString name = InvoiceHTMLRenderer::templateName(design);
        rows.append(QVariantMap{{u"name"_s, name},
                                {u"title"_s, designTitle(design)},
                                {u"thumbnail"_s, m_thumbnails.value(name)},
                                {u"custom"_s, design == InvoiceHTMLRenderer::Template::AiCustom}});
    }
    return rows;
}

QStringList InvoiceStyleView::fontFamilies() const
{
    static const QStringList offered{u"Inter"_s,         u"EB Garamond"_s,   u"JetBrains Mono"_s, u"League Spartan"_s,
                                     u"C059"_s,          u"Nimbus Roman"_s,  u"Nimbus Sans"_s,    u"Nimbus Sans Narrow"_s,
                                     u"Nimbus Mono PS"_s, u"P052"_s,         u"URW Bookman"_s,    u"URW Gothic"_s,
                                     u"Z003"_s};
    const QStringList installed = QFontDatabase::families();
    QStringList families;
    for (const QString &family : offered) {
        if (installed.contains(family, Qt::CaseInsensitive)) {
            families << family;
        }
    }
    return families;
}

void InvoiceStyleView::setError(const QString &error)
{
    if (m_error == error) {
        return;
    }
    m_error = error;
    emit errorChanged();
}

void InvoiceStyleView::setDrawing(bool drawing)
{
    if (m_drawing != drawing) {
        m_drawing = drawing;
        emit drawingChanged();
    }
}

void InvoiceStyleView::setSaving(bool saving)
{
    if (m_saving != saving) {
        m_saving = saving;
        emit savingChanged();
    }
}

QVariantMap InvoiceStyleView::pickLogo(const QUrl &file) const
{
    const InvoiceStyleInput::Intake intake = InvoiceStyleInput::logoFile(file.toLocalFile());
    if (!intake.value) {
        return {{u"problem"_s, intake.problem}};
    }
    return {{u"dataUri"_s, *intake.value}};
}

QVariantMap InvoiceStyleView::pickTemplate(const QUrl &file) const
{
    const InvoiceStyleInput::Intake intake = InvoiceStyleInput::templateFile(file.toLocalFile());
    if (!intake.value) {
        return {{u"html"_s, QString()}, {u"problem"_s, intake.problem}};
    }
    return {{u"html"_s, *intake.value}, {u"problem"_s, templateProblem(*intake.value)}};
}

QString InvoiceStyleView::templateProblem(const QString &html) const
{
    return InvoiceStyleInput::templateProblem(html).value_or(QString());
}

QString InvoiceStyleView::colourProblem(const QString &text) const
{
    return InvoiceStyleInput::colourProblem(text).value_or(QString());
}

void InvoiceStyleView::preview(const QVariantMap &form)
{
    // Half-typed values are left out here: the renderer ignores colours it cannot use anyway.
    QVariantMap usable = form;
    for (const Key &key : keys()) {
        if ((key.kind == Kind::Colour && InvoiceStyleInput::colourProblem(form.value(key.name).toString())) ||
            (key.kind == Kind::Font && InvoiceStyleInput::fontProblem(form.value(key.name).toString()))) {
            usable.remove(key.name);
        }
    }
    usable.remove(u"paymentTermsDays"_s);
    usable.remove(u"vatRate"_s);
    const InvoiceStyle style = styleOf(usable, base()).value_or(base());
    const bool customShown = shownDesigns(style).size() != shownDesigns(m_previewStyle).size();
    if (style == m_previewStyle && !m_thumbnails.isEmpty()) {
        return;
    }
    m_previewStyle = style;
    if (customShown) {
        emit designsChanged();
    }
    setDrawing(true);
    m_debounce.start();
}

void InvoiceStyleView::draw()
{
    if (m_drawRunning) {
        // The running round sees the new generation and starts over with it.
        return;
    }
    m_drawRunning = true;
    setDrawing(true);
    if (!m_renderer) {
        m_renderer = std::make_unique<InvoicePdfRenderer>();
    }
    [](QPointer<InvoiceStyleView> self) -> QCoro::Task<> {
        quint64 generation = 0;
        do {
            generation = self->m_generation;
            const InvoiceStyle style = self->m_previewStyle;
            for (const InvoiceHTMLRenderer::Template design : shownDesigns(style)) {
                InvoiceDocument document;
                document.draft = SampleInvoice::draft(4);
                document.metadata = SampleInvoice::metadata(document.draft);
                document.style = style;
                const QString name = InvoiceHTMLRenderer::templateName(design);
                document.design = name;
                QByteArray pdf;
                try {
                    pdf = (co_await self->m_renderer->render(InvoiceHTMLRenderer::buildHTML(document))).pdf;
                } catch (const InvoicePdfError &error) {
                    qCWarning(lcStyleView) << "Thumbnail of" << name << "not drawn:" << error.message();
                }
                if (!self) {
                    co_return;
                }
                if (generation != self->m_generation) {
                    break;
                }
                const QImage page = InvoicePdfRenderer::snapshots(pdf, thumbnailWidth).value(0);
                const QString path = self->m_dir.filePath(name + u'-' + QString::number(generation) + u".png"_s);
                if (page.isNull() || !page.save(path, "PNG")) {
                    continue;
                }
                const QUrl old = self->m_thumbnails.value(name);
                if (old.isValid() && old.toLocalFile() != path) {
                    QFile::remove(old.toLocalFile());
                }
                self->m_thumbnails.insert(name, QUrl::fromLocalFile(path));
                emit self->designsChanged();
            }
        } while (generation != self->m_generation);
        self->m_drawRunning = false;
        self->setDrawing(self->m_debounce.isActive());
    }(this);
}

void InvoiceStyleView::save(const QVariantMap &form)
{
    if (!m_store || m_saving) {
        return;
    }
    QString problem;
    std::optional<InvoiceStyle> style = styleOf(form, base(), &problem);
    if (!style) {
        setError(problem);
        return;
    }
    setError({});
    setSaving(true);
    [](QPointer<InvoiceStyleView> self, QPointer<AppStore> store, InvoiceStyle style) -> QCoro::Task<> {
        const bool ok = co_await store->saveHouseStyle(std::move(style));
        if (!self) {
            co_return;
        }
        self->setSaving(false);
        if (ok) {
            emit self->stored();
        } else if (store) {
            // Said here, beside the form, rather than in the window's banner as well.
            self->setError(store->lastError());
            store->clearLastError();
        }
    }(this, m_store, std::move(*style));
}
