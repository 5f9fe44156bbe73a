#include "ui/composerview.h"

#include "billing/money.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "store/invoicedocuments.h"
#include "ui/invoiceprinter.h"
#include "ui/invoicestyleview.h"

#include <QPointer>

#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// Sharp at the preview pane's width on a screen of twice the density.
constexpr int previewWidth = 1200;

QString hoursText(qint64 seconds)
{
    //% "%1 h"
    return qtTrId("ui.composer.hours").arg(Earnings::formatQty(double(seconds) / 3600));
}

} // namespace

ComposerView::ComposerView(InvoicePrinter &printer, QObject *parent)
    : QObject(parent)
    , m_printer(printer)
    , m_tasks(new RowsModel({u"key"_s, u"title"_s, u"project"_s, u"hours"_s, u"amount"_s, u"selected"_s}, this))
    , m_lines(new RowsModel({u"key"_s, u"title"_s, u"label"_s, u"detail"_s, u"description"_s, u"amount"_s}, this))
{}

ComposerView::~ComposerView() = default;

void ComposerView::setStore(AppStore *store)
{
    m_store = store;
    m_composer.reset();
    if (store) {
        m_composer = std::make_unique<InvoiceComposer>(*store);
        connect(m_composer.get(), &InvoiceComposer::resultChanged, this, &ComposerView::rebuild);
        connect(m_composer.get(), &InvoiceComposer::periodChanged, this, &ComposerView::periodChanged);
        connect(m_composer.get(), &InvoiceComposer::contextChanged, this, &ComposerView::projectsChanged);
        connect(m_composer.get(), &InvoiceComposer::clientChanged, this, &ComposerView::schedulePreview);
        connect(store, &AppStore::projectsChanged, this, &ComposerView::projectsChanged);
        connect(store, &AppStore::clientsChanged, this, &ComposerView::clientsChanged);
    }
    emit storeChanged();
    emit projectsChanged();
    emit clientsChanged();
    rebuild();
}

void ComposerView::retranslate()
{
    if (m_composer) {
        // The line words ("h", "fixed price", ...) are written by the builder in the interface language.
        m_composer->setFrom(m_composer->from());
        rebuild();
    }
}

QVariantList ComposerView::projects() const
{
    QVariantList list;
    if (!m_store) {
        return list;
    }
    const QStringList chosen = m_composer ? m_composer->projectIds() : QStringList();
    for (const Project &project : m_store->projects()) {
        if (project.status != ProjectStatus::Active && !chosen.contains(project.id)) {
            continue;
        }
        const double unbilled = m_store->unbilledTotal(project.id);
        list << QVariantMap{{u"id"_s, project.id},
                            {u"name"_s, project.name},
                            {u"chosen"_s, chosen.contains(project.id)},
                            {u"unbilled"_s, unbilled > 0 ? formatMoney(unbilled, m_store->currency()) : QString()}};
    }
    return list;
}

QVariantList ComposerView::presets()
{
    QVariantList list;
    for (const QString &key : InvoiceComposer::periodPresets()) {
        list << QVariantMap{{u"key"_s, key}, {u"text"_s, InvoiceComposer::periodText(key)}};
    }
    return list;
}

QString ComposerView::fromText() const
{
    return m_composer ? m_composer->from().toString(Qt::ISODate) : QString();
}

QString ComposerView::toText() const
{
    return m_composer ? m_composer->to().toString(Qt::ISODate) : QString();
}

QString ComposerView::subtotalText() const
{
    return m_composer ? formatMoney(m_composer->subtotal(), m_composer->currency()) : QString();
}

QString ComposerView::totalText() const
{
    return m_composer ? formatMoney(m_composer->total(), m_composer->currency()) : QString();
}

QVariantMap ComposerView::words()
{
    const Earnings::ComposerWords words = Earnings::composerWords();
    return {{u"subtotal"_s, words.subtotal}, {u"total"_s, words.total},          {u"rebill"_s, words.rebill},
            {u"rebillHelp"_s, words.rebillHelp}, {u"vatHint"_s, words.vatHint}, {u"vatOverride"_s, words.vatOverride}};
}

QVariantList ComposerView::travel() const
{
    QVariantList list;
    if (!m_composer || !m_store) {
        return list;
    }
    for (const QString &projectId : m_composer->travelProjectIds()) {
        const std::optional<Project> project = m_store->project(projectId);
        list << QVariantMap{{u"projectId"_s, projectId},
                            {u"text"_s, QString(InvoiceComposer::chargeTravelText() + u": "_s +
                                                    (project ? project->name : QString()))},
                            {u"charge"_s, m_composer->chargesTravel(projectId)}};
    }
    return list;
}

void ComposerView::setNotes(const QString &notes)
{
    if (notes != m_notes) {
        m_notes = notes;
        emit notesChanged();
        schedulePreview();
    }
}

QVariantList ComposerView::clients() const
{
    QVariantList list;
    if (m_store) {
        for (const Client &client : m_store->clients()) {
            if (!client.archived.value_or(false)) {
                list << QVariantMap{{u"id"_s, client.id}, {u"name"_s, client.name}};
            }
        }
    }
    return list;
}

QVariantList ComposerView::designs()
{
    using namespace InvoiceHTMLRenderer;
    QVariantList list{QVariantMap{{u"name"_s, QString()},
                                  //% "As in the invoice style"
                                  {u"title"_s, qtTrId("ui.composer.houseDesign")}}};
    for (const Template design : builtInDesigns()) {
        list << QVariantMap{{u"name"_s, templateName(design)}, {u"title"_s, InvoiceStyleView::designTitle(design)}};
    }
    return list;
}

void ComposerView::setDesign(const QString &design)
{
    if (design != m_design && (design.isEmpty() || InvoiceHTMLRenderer::templateFromName(design))) {
        m_design = design;
        emit designChanged();
        schedulePreview();
    }
}

void ComposerView::open(const QStringList &projectIds)
{
    if (!m_composer) {
        return;
    }
    m_composer->setClientName({});
    m_composer->setClientEmail({});
    m_composer->setClientAddress({});
    m_composer->setSaveAsClient(false);
    // The house style's terms and VAT rate, which the person may change for this invoice.
    const InvoiceDocuments::HouseTerms terms = InvoiceDocuments::houseTerms(*m_store);
    m_issued = QDate::currentDate();
    m_due = m_issued.addDays(terms.paymentDays);
    emit datesChanged();
    m_composer->setManualVat(false);
    m_composer->setDefaultVatPercent(terms.vatPercent);
    m_notes.clear();
    emit notesChanged();
    say({}, false);
    emit opened();
    // A fresh read first, so the composer never offers time another device billed meanwhile and
    // its period starts at the earliest work that is still unbilled.
    [](QPointer<ComposerView> self, QPointer<AppStore> store, QStringList projectIds) -> QCoro::Task<> {
        co_await store->loadUnbilledEntries();
        if (store) {
            co_await store->reloadBilledEntrySet();
        }
        // Trips become travel lines of the projects that charge them.
        if (store) {
            co_await store->loadTrips();
        }
        if (store) {
            co_await store->reloadBilledTrips();
        }
        if (!self || !self->m_composer) {
            co_return;
        }
        InvoiceContext context;
        context.projectIds = projectIds;
        self->m_composer->open(context);
    }(this, m_store, projectIds);
    allocateNumber();
}

void ComposerView::toggleProject(const QString &projectId)
{
    if (!m_composer) {
        return;
    }
    QStringList ids = m_composer->projectIds();
    if (ids.contains(projectId)) {
        ids.removeAll(projectId);
    } else {
        ids << projectId;
    }
    InvoiceContext context;
    context.projectIds = ids;
    // The period the person chose stays; only a first project suggests one.
    if (!m_composer->projectIds().isEmpty()) {
        context.from = m_composer->from();
        context.to = m_composer->to();
    }
    m_composer->open(context);
}

void ComposerView::applyPreset(const QString &preset)
{
    if (m_composer) {
        m_composer->applyPeriodPreset(preset);
    }
}

bool ComposerView::setPeriod(const QString &from, const QString &to)
{
    const QDate fromDay = QDate::fromString(from.trimmed(), Qt::ISODate);
    const QDate toDay = QDate::fromString(to.trimmed(), Qt::ISODate);
    if (!fromDay.isValid() || !toDay.isValid()) {
        //% "Write days as year-month-day, for example 2026-11-01."
        say(qtTrId("ui.composer.err.day"), true);
        return false;
    }
    if (fromDay > toDay) {
        //% "The period ends before it starts."
        say(qtTrId("ui.composer.err.period"), true);
        return false;
    }
    say({}, false);
    if (m_composer) {
        m_composer->setFrom(fromDay);
        m_composer->setTo(toDay);
    }
    return true;
}

bool ComposerView::setDates(const QString &issued, const QString &due)
{
    const QDate issuedDay = QDate::fromString(issued.trimmed(), Qt::ISODate);
    const QDate dueDay = QDate::fromString(due.trimmed(), Qt::ISODate);
    if (!issuedDay.isValid() || !dueDay.isValid()) {
        say(qtTrId("ui.composer.err.day"), true);
        return false;
    }
    if (dueDay < issuedDay) {
        //% "Payment cannot be due before the invoice is issued."
        say(qtTrId("ui.composer.err.due"), true);
        return false;
    }
    say({}, false);
    if (issuedDay != m_issued || dueDay != m_due) {
        m_issued = issuedDay;
        m_due = dueDay;
        emit datesChanged();
        schedulePreview();
    }
    return true;
}

void ComposerView::chooseClient(const QString &clientId)
{
    if (!m_store || !m_composer) {
        return;
    }
    for (const Client &client : m_store->clients()) {
        if (client.id == clientId) {
            m_composer->setClientName(client.name);
            m_composer->setClientEmail(client.email.value_or(QString()));
            m_composer->setClientAddress(client.address.value_or(QString()));
            m_composer->setSaveAsClient(false);
            return;
        }
    }
}

void ComposerView::rebuild()
{
    QList<QVariantHash> taskRows;
    QList<QVariantHash> lineRows;
    m_followUps.clear();
    m_vatRows.clear();
    if (m_composer && m_store) {
        const QString currency = m_composer->currency();
        const QStringList selected = m_composer->selectedTaskIds();
        const Earnings::BuildResult &built = m_composer->built();
        for (const QString &taskId : m_composer->availableTaskIds()) {
            const std::optional<TaskItem> task = m_store->task(taskId);
            const std::optional<Project> project = task ? m_store->project(task->projectId) : std::nullopt;
            const bool on = selected.contains(taskId);
            taskRows << QVariantHash{{u"key"_s, taskId},
                                     {u"title"_s, task ? task->title : QString()},
                                     {u"project"_s, project ? project->name : QString()},
                                     {u"hours"_s, hoursText(m_composer->taskSeconds(taskId))},
                                     {u"amount"_s, on ? formatMoney(built.byTask.value(taskId), currency) : QString()},
                                     {u"selected"_s, on}};
        }
        int index = 0;
        for (const Earnings::BuiltLine &line : built.lines) {
            QString detail = Earnings::formatQty(line.quantity);
            if (line.unit) {
                detail += u' ' + *line.unit;
            }
            detail += u" × "_s + formatMoney(line.unitPrice, currency);
            lineRows << QVariantHash{{u"key"_s, QString::number(index++)},
                                     {u"title"_s, line.title},
                                     {u"label"_s, line.label == line.title ? QString() : line.label},
                                     {u"detail"_s, detail},
                                     {u"description"_s, line.description.value_or(QString())},
                                     {u"amount"_s, formatMoney(line.amount, currency)}};
        }
        for (const Earnings::BuiltUnit &unit : built.units) {
            if (unit.billedBefore && unit.hasOneOffs) {
                QString name = unit.projectName;
                if (unit.kind != Earnings::UnitKind::Pool && !unit.taskIds.isEmpty()) {
                    if (const std::optional<TaskItem> task = m_store->task(unit.taskIds.first())) {
                        name = task->title;
                    }
                }
                m_followUps << QVariantMap{{u"key"_s, unit.key}, {u"name"_s, name}, {u"rebill"_s, !unit.followUp}};
            }
        }
        for (const Earnings::VatRow &row : Earnings::vatRows(m_composer->vat().groups, currency)) {
            m_vatRows << QVariantMap{{u"text"_s, row.text}, {u"amount"_s, formatMoney(row.amount, currency)}};
        }
    }
    m_tasks->setRows(taskRows);
    m_lines->setRows(lineRows);
    emit figuresChanged();
    schedulePreview();
}

InvoiceDocument ComposerView::document() const
{
    //% "Number follows"
    const QString number = m_number.isEmpty() ? qtTrId("ui.composer.numberPending") : m_number;
    InvoiceDocument document = InvoiceDocuments::composed(*m_store, *m_composer, number, m_issued, m_due, m_notes);
    if (!m_design.isEmpty()) {
        document.design = m_design;
    }
    return document;
}

QStringList ComposerView::previewPages() const
{
    QStringList pages;
    for (qsizetype page = 0; page < m_previewImages.size(); ++page) {
        pages << u"image://%1/%2/%3"_s.arg(QLatin1String(previewProviderId)).arg(m_previewGeneration).arg(page);
    }
    return pages;
}

double ComposerView::previewAspect() const
{
    return m_previewImages.isEmpty() ? double(InvoicePdfRenderer::pageHeight) / InvoicePdfRenderer::pageWidth
                                     : double(m_previewImages.first().height()) / m_previewImages.first().width();
}

namespace {

class PreviewProvider : public QQuickImageProvider
{
public:
    explicit PreviewProvider(ComposerView *view)
        : QQuickImageProvider(QQuickImageProvider::Image)
        , m_view(view)
    {}

    // "<generation>/<page>"; an older generation still answers with the current page, which is
    // what a person wants to see while the view catches up.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override
    {
        const QImage image = m_view ? m_view->previewImage(id.section(u'/', 1).toInt()) : QImage();
        if (size) {
            *size = image.size();
        }
        // The view asks for its width and leaves the height to the page.
        if (image.isNull() || requestedSize.width() <= 0 || requestedSize.width() >= image.width()) {
            return image;
        }
        return image.scaledToWidth(requestedSize.width(), Qt::SmoothTransformation);
    }

private:
    QPointer<ComposerView> m_view;
};

} // namespace

QQuickImageProvider *ComposerView::makePreviewProvider()
{
    return new PreviewProvider(this);
}

void ComposerView::schedulePreview()
{
    if (m_previewStale) {
        return;
    }
    m_previewStale = true;
    // After the events of this turn, so that a change of several fields draws once.
    QTimer::singleShot(0, this, [this] {
        if (!m_previewBusy) {
            drawPreview();
        }
    });
}

QCoro::Task<> ComposerView::drawPreview()
{
    QPointer<ComposerView> self(this);
    m_previewBusy = true;
    emit previewBusyChanged();
    while (self && m_previewStale) {
        m_previewStale = false;
        if (!m_store || !m_composer || m_composer->built().lines.isEmpty()) {
            m_previewPdf.clear();
            m_previewImages.clear();
            m_previewError.clear();
            emit previewChanged();
            continue;
        }
        const InvoiceDocument document = this->document();
        QString problem;
        RenderedPdf rendered;
        try {
            rendered = co_await m_printer.print(document);
        } catch (const InvoicePdfError &error) {
            problem = error.message();
        }
        if (!self) {
            co_return;
        }
        if (problem.isEmpty()) {
            m_previewPdf = rendered.pdf;
            m_previewImages = InvoicePdfRenderer::snapshots(rendered.pdf, previewWidth);
            ++m_previewGeneration;
        }
        //% "The preview could not be drawn: %1"
        m_previewError = problem.isEmpty() ? QString() : qtTrId("ui.composer.err.preview").arg(problem);
        emit previewChanged();
    }
    if (self) {
        m_previewBusy = false;
        emit previewBusyChanged();
    }
}

QCoro::Task<> ComposerView::allocateNumber()
{
    QPointer<ComposerView> self(this);
    QPointer<AppStore> store = m_store;
    m_number.clear();
    emit numberChanged();
    const std::optional<QString> number = co_await store->allocateInvoiceNumber();
    if (!self) {
        co_return;
    }
    if (number) {
        m_number = *number;
        emit numberChanged();
        schedulePreview();
    } else {
        say(store ? store->lastError() : QString(), true);
    }
}

void ComposerView::save(const QString &status)
{
    if (!m_store || !m_composer || m_saving) {
        return;
    }
    if (m_number.isEmpty()) {
        //% "The invoice has no number yet. Check the connection and open the composer again."
        say(qtTrId("ui.composer.err.noNumber"), true);
        return;
    }
    std::optional<InvoiceSaveRequest> request = m_composer->saveRequest(m_number, m_issued, m_due, status);
    if (!request) {
        const QString why = m_composer->readinessError();
        //% "Choose work with unbilled time first."
        say(why.isEmpty() ? qtTrId("ui.composer.err.empty") : why, true);
        return;
    }
    request->invoice.notes = m_notes.trimmed().isEmpty() ? std::nullopt : std::optional<QString>(m_notes.trimmed());
    m_saving = true;
    emit savingChanged();
    [](QPointer<ComposerView> self, QPointer<AppStore> store, InvoiceSaveRequest request,
       InvoiceDocument document) -> QCoro::Task<> {
        std::optional<Invoice> saved;
        QString problem;
        try {
            request.pdf = (co_await self->m_printer.print(document)).pdf;
        } catch (const InvoicePdfError &error) {
            problem = qtTrId("ui.composer.err.preview").arg(error.message());
        }
        if (self && store && problem.isEmpty()) {
            saved = co_await store->saveInvoice(request);
            problem = saved ? QString() : store->invoiceSaveMessage();
        }
        if (!self) {
            co_return;
        }
        self->m_saving = false;
        emit self->savingChanged();
        if (!saved) {
            self->say(problem, true);
            co_return;
        }
        self->say(store->invoiceSaveMessage(), false);
        emit self->saved(saved->number);
    }(this, m_store, *request, document());
}

void ComposerView::say(const QString &text, bool error)
{
    if (text != m_message || error != m_messageIsError) {
        m_message = text;
        m_messageIsError = error;
        emit messageChanged();
    }
}
