#include "billingeditor.h"

using namespace Qt::StringLiterals;

namespace {

QVariantMap fieldEntry(const QString &name, const QString &label, bool money = true)
{
    return {{u"name"_s, name}, {u"label"_s, label}, {u"money"_s, money}};
}

QString hourlyRateLabel()
{
    //% "Hourly rate"
    return qtTrId("billing.hourlyRate");
}

QString pricePerUnitLabel()
{
    //% "Price / unit"
    return qtTrId("billing.pricePerUnit");
}

} // namespace

BillingEditor::BillingEditor(QObject *parent)
    : QObject(parent)
    , m_unitPrice(addField(&Billing::unitPrice, MoneyInput::Kind::Rate))
    , m_amount(addField(&Billing::amount, MoneyInput::Kind::Amount))
    , m_unitQuantity(addField(&Billing::unitQuantity, MoneyInput::Kind::Number))
    , m_dayRate(addField(&Billing::dayRate, MoneyInput::Kind::Rate))
    , m_dayHours(addField(&Billing::dayHours, MoneyInput::Kind::Number))
    , m_surcharge(addField(&Billing::surcharge, MoneyInput::Kind::Amount))
    , m_materials(addField(&Billing::materials, MoneyInput::Kind::Amount))
    , m_minCharge(addField(&Billing::minCharge, MoneyInput::Kind::Amount))
    , m_discount(addField(&Billing::discount, MoneyInput::Kind::Amount))
    , m_vatPercent(addField(&Billing::vatRate, MoneyInput::Kind::Number, 100))
{
    showBilling();
    updateDerived();
}

MoneyField *BillingEditor::addField(Member member, MoneyInput::Kind kind, double scale)
{
    auto *field = new MoneyField(kind, this);
    m_fields.append({field, member, scale});
    connect(field, &MoneyField::edited, this, [this, member, scale, field] { fieldEdited(member, scale, field); });
    connect(field, &MoneyField::invalidChanged, this, &BillingEditor::updateInvalid);
    return field;
}

void BillingEditor::fieldEdited(Member member, double scale, MoneyField *field)
{
    const std::optional<double> shown = field->value();
    // Division keeps a typed 21 (%) exactly the 0.21 that the same text would be as a fraction.
    m_billing.*member = shown ? std::optional<double>(*shown / scale) : std::nullopt;
    billingEdited();
}

void BillingEditor::loadProject(const Project &project, std::optional<double> defaultHourlyRate)
{
    m_loaded = project.billing;
    m_inherited.reset();
    setAllowInherit(false);
    setInheriting(false);
    setLegacyRate(Earnings::legacyRate(nullptr, &project, defaultHourlyRate.value_or(0)));
    setBilling(Earnings::editorBilling(project, defaultHourlyRate));
}

void BillingEditor::loadTask(const TaskItem &task, const Project *project, double defaultHourlyRate)
{
    m_loaded = task.billing;
    m_inherited = Earnings::resolve(nullptr, project, defaultHourlyRate);
    setAllowInherit(true);
    setInheriting(!task.billing);
    setLegacyRate(Earnings::legacyRate(&task, project, defaultHourlyRate));
    setTrackedSeconds(task.timeSpentSeconds);
    setBilling(Earnings::resolve(&task, project, defaultHourlyRate));
}

void BillingEditor::setBilling(const Billing &billing)
{
    m_billing = billing;
    showBilling();
    emit shownFieldsChanged();
    emit billingChanged();
    updateDerived();
}

void BillingEditor::showBilling(bool modelFieldsOnly)
{
    const QList<MoneyField *> modelFields{m_unitPrice, m_amount, m_unitQuantity, m_dayRate, m_dayHours};
    for (const BoundField &bound : std::as_const(m_fields)) {
        if (modelFieldsOnly && !modelFields.contains(bound.field)) {
            continue;
        }
        const std::optional<double> stored = m_billing.*bound.member;
        bound.field->setValue(stored ? std::optional<double>(*stored * bound.scale) : std::nullopt);
    }
    m_unitPrice->setKind(m_billing.model == BillingModel::Hourly ? MoneyInput::Kind::Rate : MoneyInput::Kind::Amount);
    m_discount->setKind(discountIsPct() ? MoneyInput::Kind::Number : MoneyInput::Kind::Amount);
    updatePlaceholders();
}

void BillingEditor::billingEdited()
{
    // Editing an inherited price makes it the task's own, as "Custom for this task" would.
    if (m_inheriting) {
        clearInheritance();
    }
    emit billingChanged();
    updateDerived();
}

std::optional<Earnings::ProjectBillingWrite> BillingEditor::projectWrite() const
{
    return Earnings::projectBillingWrite(m_loaded, m_billing);
}

Earnings::PriceColumns BillingEditor::taskPrice() const
{
    Earnings::PriceColumns columns;
    if (m_inheriting) {
        return columns;
    }
    const Billing cleaned = Earnings::cleanBilling(m_billing);
    columns.billing = cleaned;
    if (cleaned.model == BillingModel::Hourly) {
        columns.hourlyRate = cleaned.unitPrice;
    }
    return columns;
}

QString BillingEditor::modelName() const
{
    return Wire::enumName(m_billing.model);
}

void BillingEditor::setModelName(const QString &name)
{
    if (const std::optional<BillingModel> model = Wire::enumFromName<BillingModel>(name)) {
        setModel(*model);
    }
}

void BillingEditor::setModel(BillingModel model)
{
    if (model == m_billing.model) {
        return;
    }
    m_billing.model = model;
    // Fields of the model left behind are hidden; what was typed there and could not be read goes
    // with them, so that nothing unseen keeps the form from saving.
    showBilling(true);
    emit shownFieldsChanged();
    billingEdited();
}

QString BillingEditor::modelLabel(BillingModel model)
{
    switch (model) {
    case BillingModel::Hourly:
        //% "Per hour"
        return qtTrId("billing.model.hour");
    case BillingModel::Fixed:
        //% "Fixed price"
        return qtTrId("billing.model.fixed");
    case BillingModel::PerUnit:
        //% "Per unit"
        return qtTrId("billing.model.unit");
    case BillingModel::Daily:
        //% "Per day"
        return qtTrId("billing.model.day");
    }
    return {};
}

QVariantList BillingEditor::modelOptions() const
{
    QVariantList options;
    for (const BillingModel model : Wire::allCases<BillingModel>()) {
        options.append(QVariantMap{{u"value"_s, Wire::enumName(model)}, {u"label"_s, modelLabel(model)}});
    }
    return options;
}

QVariantList BillingEditor::shownFields() const
{
    switch (m_billing.model) {
    case BillingModel::Hourly:
        return {fieldEntry(u"unitPrice"_s, hourlyRateLabel())};
    case BillingModel::Fixed:
        //% "Fixed total"
        return {fieldEntry(u"amount"_s, qtTrId("billing.fixedTotal"))};
    case BillingModel::PerUnit:
        return {
            //% "Unit"
            fieldEntry(u"unitLabel"_s, qtTrId("billing.unit"), false),
            fieldEntry(u"unitPrice"_s, pricePerUnitLabel()),
            //% "Quantity"
            fieldEntry(u"unitQuantity"_s, qtTrId("billing.quantity")),
        };
    case BillingModel::Daily:
        return {
            //% "Day rate"
            fieldEntry(u"dayRate"_s, qtTrId("billing.dayRate")),
            //% "Hours per day"
            fieldEntry(u"dayHours"_s, qtTrId("billing.hoursPerDay")),
        };
    }
    return {};
}

void BillingEditor::setUnitLabel(const QString &label)
{
    if (label == unitLabel()) {
        return;
    }
    m_billing.unitLabel = label.isEmpty() ? std::nullopt : std::optional<QString>(label);
    billingEdited();
}

void BillingEditor::setSurchargeLabel(const QString &label)
{
    if (label == surchargeLabel()) {
        return;
    }
    m_billing.surchargeLabel = label.isEmpty() ? std::nullopt : std::optional<QString>(label);
    billingEdited();
}

void BillingEditor::setDiscountIsPct(bool percentage)
{
    if (percentage == discountIsPct()) {
        return;
    }
    m_billing.discountIsPct = percentage;
    m_discount->setKind(percentage ? MoneyInput::Kind::Number : MoneyInput::Kind::Amount);
    billingEdited();
}

void BillingEditor::setExtrasOpen(bool open)
{
    if (open == m_extrasOpen) {
        return;
    }
    m_extrasOpen = open;
    emit extrasOpenChanged();
}

QString BillingEditor::extrasSummary() const
{
    return Earnings::describeExtras(m_billing, m_currency).value_or(QString());
}

QVariantMap BillingEditor::labels() const
{
    return {
        //% "Billing"
        {u"title"_s, qtTrId("billing.title")},
        {u"hourlyRate"_s, hourlyRateLabel()},
        {u"pricePerUnit"_s, pricePerUnitLabel()},
        //% "Tracked time ÷ hours-per-day = billable days."
        {u"dayNote"_s, qtTrId("billing.dayNote")},
        //% "Extras · call-out · materials · discount · VAT"
        {u"extras"_s, qtTrId("billing.extras")},
        //% "Call-out fee"
        {u"surcharge"_s, qtTrId("billing.surcharge")},
        //% "Materials"
        {u"materials"_s, qtTrId("billing.materials")},
        //% "Minimum charge"
        {u"minCharge"_s, qtTrId("billing.minCharge")},
        //% "Discount"
        {u"discount"_s, qtTrId("billing.discount")},
        //% "VAT"
        {u"vat"_s, qtTrId("billing.vat")},
        //% "No VAT"
        {u"vatNone"_s, qtTrId("billing.vatNone")},
        //% "Net (excl. VAT)"
        {u"net"_s, qtTrId("billing.net")},
        //: The VAT amount in the preview of a price
        //% "VAT"
        {u"vatAmount"_s, qtTrId("billing.vatAmount")},
        //% "Gross (incl.)"
        {u"gross"_s, qtTrId("billing.gross")},
        //% "Net per tracked time, plus the extras above."
        {u"netNote"_s, qtTrId("billing.netNote")},
        //% "Inheriting from project"
        {u"inheriting"_s, qtTrId("billing.inheriting")},
        //% "Reset to project default"
        {u"resetProject"_s, qtTrId("billing.resetProject")},
        //% "Use project price"
        {u"useProject"_s, qtTrId("task.useProject")},
        //% "Custom for this task"
        {u"custom"_s, qtTrId("task.custom")},
        //% "Save task price"
        {u"savePrice"_s, qtTrId("task.savePrice")},
    };
}

void BillingEditor::setCurrency(const QString &currency)
{
    if (currency == m_currency) {
        return;
    }
    m_currency = currency;
    emit currencyChanged();
    emit billingChanged(); // the extras summary names money
    emit previewChanged();
}

void BillingEditor::setAllowInherit(bool allow)
{
    if (allow == m_allowInherit) {
        return;
    }
    m_allowInherit = allow;
    emit allowInheritChanged();
    if (!allow) {
        setInheriting(false);
    }
}

void BillingEditor::setInheriting(bool inheriting)
{
    if (inheriting == m_inheriting) {
        return;
    }
    m_inheriting = inheriting;
    emit isInheritingChanged();
    updateDerived();
}

void BillingEditor::useProjectPrice()
{
    if (!m_allowInherit || m_inheriting) {
        return;
    }
    setInheriting(true);
    if (m_inherited) {
        setBilling(*m_inherited);
    }
}

void BillingEditor::clearInheritance()
{
    if (!m_inheriting) {
        return;
    }
    setInheriting(false);
    emit inheritanceCleared();
}

void BillingEditor::retranslate()
{
    updatePlaceholders();
    emit textsChanged();
    emit shownFieldsChanged();
}

void BillingEditor::setTrackedSeconds(qint64 seconds)
{
    if (seconds == m_trackedSeconds) {
        return;
    }
    m_trackedSeconds = seconds;
    emit trackedSecondsChanged();
    updateDerived();
}

void BillingEditor::setLegacyRate(double rate)
{
    if (rate == m_legacyRate) {
        return;
    }
    m_legacyRate = rate;
    emit legacyRateChanged();
    updatePlaceholders();
    updateDerived();
}

void BillingEditor::setShowTravel(bool show)
{
    if (show == m_showTravel) {
        return;
    }
    m_showTravel = show;
    emit showTravelChanged();
}

void BillingEditor::setLanguage(const QString &language)
{
    if (language == m_language) {
        return;
    }
    m_language = language;
    for (const BoundField &bound : std::as_const(m_fields)) {
        bound.field->setLanguage(language);
    }
    updatePlaceholders();
    emit languageChanged();
}

// An empty field stands for what applies without it, so that is what it shows greyed.
void BillingEditor::updatePlaceholders()
{
    const QString zero = MoneyInput::text(0.0, m_language);
    for (const BoundField &bound : std::as_const(m_fields)) {
        bound.field->setPlaceholder(zero);
    }
    if (m_billing.model == BillingModel::Hourly && m_legacyRate > 0) {
        m_unitPrice->setPlaceholder(MoneyInput::text(m_legacyRate, m_language, MoneyInput::Kind::Rate));
    }
    m_dayHours->setPlaceholder(MoneyInput::text(8.0, m_language, MoneyInput::Kind::Number));
    m_vatPercent->setPlaceholder(qtTrId("billing.vatNone"));
}

void BillingEditor::updateInvalid()
{
    const bool invalid =
        std::any_of(m_fields.cbegin(), m_fields.cend(), [](const BoundField &bound) { return bound.field->invalid(); });
    if (invalid == m_invalid) {
        return;
    }
    m_invalid = invalid;
    emit invalidChanged();
}

void BillingEditor::updateDerived()
{
    const double net = Earnings::amount(m_billing, m_trackedSeconds, m_legacyRate);
    const double vat = net * m_billing.vatRate.value_or(0);
    if (net != m_net || vat != m_vat) {
        m_net = net;
        m_vat = vat;
        emit previewChanged();
    }
    // A task that inherits and had no setting of its own has nothing to save.
    const bool changes = m_allowInherit && m_inheriting ? m_loaded.has_value() : projectWrite().has_value();
    if (changes != m_hasChanges) {
        m_hasChanges = changes;
        emit hasChangesChanged();
    }
}
