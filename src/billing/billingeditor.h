#pragma once

#include "billing/earnings.h"
#include "billing/moneyfield.h"

#include <QObject>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

// The state of a price editor that a form binds to: the model choice and the fields it shows,
// the folded extras, the money fields with their combined invalid flag, the live preview of net,
// VAT and gross, and what saving writes. The same editor serves a project's price and a task's,
// where the task may inherit its project's setting instead.
class BillingEditor : public QObject
{
    Q_OBJECT
    // The edited setting.
    Q_PROPERTY(QString modelName READ modelName WRITE setModelName NOTIFY billingChanged)
    Q_PROPERTY(QVariantList modelOptions READ modelOptions NOTIFY textsChanged)
    Q_PROPERTY(QVariantList shownFields READ shownFields NOTIFY shownFieldsChanged)
    Q_PROPERTY(bool showsDayNote READ showsDayNote NOTIFY shownFieldsChanged)
    Q_PROPERTY(MoneyField *unitPrice READ unitPrice CONSTANT)
    Q_PROPERTY(MoneyField *amount READ amount CONSTANT)
    Q_PROPERTY(MoneyField *unitQuantity READ unitQuantity CONSTANT)
    Q_PROPERTY(MoneyField *dayRate READ dayRate CONSTANT)
    Q_PROPERTY(MoneyField *dayHours READ dayHours CONSTANT)
    Q_PROPERTY(MoneyField *surcharge READ surcharge CONSTANT)
    Q_PROPERTY(MoneyField *materials READ materials CONSTANT)
    Q_PROPERTY(MoneyField *minCharge READ minCharge CONSTANT)
    Q_PROPERTY(MoneyField *discount READ discount CONSTANT)
    // The VAT rate as a percentage (21 for 0.21); empty is "No VAT".
    Q_PROPERTY(MoneyField *vatPercent READ vatPercent CONSTANT)
    Q_PROPERTY(QString unitLabel READ unitLabel WRITE setUnitLabel NOTIFY billingChanged)
    Q_PROPERTY(QString surchargeLabel READ surchargeLabel WRITE setSurchargeLabel NOTIFY billingChanged)
    Q_PROPERTY(bool discountIsPct READ discountIsPct WRITE setDiscountIsPct NOTIFY billingChanged)
    Q_PROPERTY(bool extrasOpen READ extrasOpen WRITE setExtrasOpen NOTIFY extrasOpenChanged)
    Q_PROPERTY(QString extrasSummary READ extrasSummary NOTIFY billingChanged)
    // What the form shows besides the fields.
    Q_PROPERTY(bool invalid READ invalid NOTIFY invalidChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY invalidChanged)
    Q_PROPERTY(bool hasChanges READ hasChanges NOTIFY hasChangesChanged)
    Q_PROPERTY(double net READ net NOTIFY previewChanged)
    Q_PROPERTY(double vat READ vat NOTIFY previewChanged)
    Q_PROPERTY(double gross READ gross NOTIFY previewChanged)
    Q_PROPERTY(QString netText READ netText NOTIFY previewChanged)
    Q_PROPERTY(QString vatText READ vatText NOTIFY previewChanged)
    Q_PROPERTY(QString grossText READ grossText NOTIFY previewChanged)
    Q_PROPERTY(QVariantMap labels READ labels NOTIFY textsChanged)
    // Inputs.
    Q_PROPERTY(QString currency READ currency WRITE setCurrency NOTIFY currencyChanged)
    Q_PROPERTY(bool allowInherit READ allowInherit WRITE setAllowInherit NOTIFY allowInheritChanged)
    Q_PROPERTY(bool isInheriting READ isInheriting NOTIFY isInheritingChanged)
    Q_PROPERTY(qint64 trackedSeconds READ trackedSeconds WRITE setTrackedSeconds NOTIFY trackedSecondsChanged)
    Q_PROPERTY(double legacyRate READ legacyRate WRITE setLegacyRate NOTIFY legacyRateChanged)
    Q_PROPERTY(bool showTravel READ showTravel WRITE setShowTravel NOTIFY showTravelChanged)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)

public:
    explicit BillingEditor(QObject *parent = nullptr);

    // A project's price: starts from editorBilling, keeps the project's own setting as the loaded
    // one for the no-change save.
    void loadProject(const Project &project, std::optional<double> defaultHourlyRate);
    // A task's price: its own setting, or its project's while it inherits (the form then offers
    // "Custom for this task"). `project` may be null.
    void loadTask(const TaskItem &task, const Project *project, double defaultHourlyRate);
    // Replaces the edited setting, keeping what was loaded.
    void setBilling(const Billing &billing);
    [[nodiscard]] const Billing &billing() const { return m_billing; }
    [[nodiscard]] const std::optional<Billing> &loadedBilling() const { return m_loaded; }

    // What saving the project's price writes: nothing when the setting did not change.
    [[nodiscard]] std::optional<Earnings::ProjectBillingWrite> projectWrite() const;
    // What saving the task's price writes: no columns at all (the task inherits again) while it
    // inherits, else its own cleaned setting and, for an hourly one, its rate.
    [[nodiscard]] Earnings::PriceColumns taskPrice() const;

    [[nodiscard]] QString modelName() const;
    void setModelName(const QString &name);
    void setModel(BillingModel model);
    // The picker's choices in their order: {value: wire name, label}.
    [[nodiscard]] QVariantList modelOptions() const;
    // "Per hour", "Fixed price", "Per unit", "Per day".
    [[nodiscard]] static QString modelLabel(BillingModel model);
    [[nodiscard]] QVariantList shownFields() const;
    [[nodiscard]] bool showsDayNote() const { return m_billing.model == BillingModel::Daily; }

    [[nodiscard]] MoneyField *unitPrice() const { return m_unitPrice; }
    [[nodiscard]] MoneyField *amount() const { return m_amount; }
    [[nodiscard]] MoneyField *unitQuantity() const { return m_unitQuantity; }
    [[nodiscard]] MoneyField *dayRate() const { return m_dayRate; }
    [[nodiscard]] MoneyField *dayHours() const { return m_dayHours; }
    [[nodiscard]] MoneyField *surcharge() const { return m_surcharge; }
    [[nodiscard]] MoneyField *materials() const { return m_materials; }
    [[nodiscard]] MoneyField *minCharge() const { return m_minCharge; }
    [[nodiscard]] MoneyField *discount() const { return m_discount; }
    [[nodiscard]] MoneyField *vatPercent() const { return m_vatPercent; }

    [[nodiscard]] QString unitLabel() const { return m_billing.unitLabel.value_or(QString()); }
    void setUnitLabel(const QString &label);
    [[nodiscard]] QString surchargeLabel() const { return m_billing.surchargeLabel.value_or(QString()); }
    void setSurchargeLabel(const QString &label);
    [[nodiscard]] bool discountIsPct() const { return m_billing.discountIsPct.value_or(false); }
    void setDiscountIsPct(bool percentage);
    [[nodiscard]] bool extrasOpen() const { return m_extrasOpen; }
    void setExtrasOpen(bool open);
    [[nodiscard]] QString extrasSummary() const;

    [[nodiscard]] bool invalid() const { return m_invalid; }
    [[nodiscard]] bool canSave() const { return !m_invalid; }
    [[nodiscard]] bool hasChanges() const { return m_hasChanges; }
    [[nodiscard]] double net() const { return m_net; }
    [[nodiscard]] double vat() const { return m_vat; }
    [[nodiscard]] double gross() const { return m_net + m_vat; }
    [[nodiscard]] QString netText() const { return formatMoney(net(), m_currency); }
    [[nodiscard]] QString vatText() const { return formatMoney(vat(), m_currency); }
    [[nodiscard]] QString grossText() const { return formatMoney(gross(), m_currency); }
    [[nodiscard]] QVariantMap labels() const;

    [[nodiscard]] QString currency() const { return m_currency; }
    void setCurrency(const QString &currency);
    [[nodiscard]] bool allowInherit() const { return m_allowInherit; }
    void setAllowInherit(bool allow);
    [[nodiscard]] bool isInheriting() const { return m_inheriting; }
    [[nodiscard]] qint64 trackedSeconds() const { return m_trackedSeconds; }
    void setTrackedSeconds(qint64 seconds);
    [[nodiscard]] double legacyRate() const { return m_legacyRate; }
    void setLegacyRate(double rate);
    [[nodiscard]] bool showTravel() const { return m_showTravel; }
    void setShowTravel(bool show);
    [[nodiscard]] QString language() const { return m_language; }
    void setLanguage(const QString &language);

    // "Use project price": the task follows its project's setting again.
    Q_INVOKABLE void useProjectPrice();
    // "Custom for this task": the task gets its own setting, seeded from the one it inherited.
    Q_INVOKABLE void clearInheritance();
    // The interface language changed: the texts are read again.
    Q_INVOKABLE void retranslate();

signals:
    void billingChanged();
    void shownFieldsChanged();
    void extrasOpenChanged();
    void invalidChanged();
    void hasChangesChanged();
    void previewChanged();
    void textsChanged();
    void currencyChanged();
    void allowInheritChanged();
    void isInheritingChanged();
    void trackedSecondsChanged();
    void legacyRateChanged();
    void showTravelChanged();
    void languageChanged();
    // The task stopped inheriting; its owner may want to know before the save.
    void inheritanceCleared();

private:
    using Member = std::optional<double> Billing::*;
    MoneyField *addField(Member member, MoneyInput::Kind kind, double scale = 1);
    void fieldEdited(Member member, double scale, MoneyField *field);
    // Shows the record in the fields; unusable text that was being typed there is dropped.
    void showBilling(bool modelFieldsOnly = false);
    void billingEdited();
    void setInheriting(bool inheriting);
    void updatePlaceholders();
    void updateInvalid();
    void updateDerived();

    struct BoundField
    {
        MoneyField *field;
        Member member;
        double scale; // shown value = stored value × scale
    };
    QList<BoundField> m_fields;
    MoneyField *m_unitPrice;
    MoneyField *m_amount;
    MoneyField *m_unitQuantity;
    MoneyField *m_dayRate;
    MoneyField *m_dayHours;
    MoneyField *m_surcharge;
    MoneyField *m_materials;
    MoneyField *m_minCharge;
    MoneyField *m_discount;
    MoneyField *m_vatPercent;

    Billing m_billing;
    std::optional<Billing> m_loaded;
    // What a task shows while it inherits, and what "Use project price" returns to.
    std::optional<Billing> m_inherited;
    bool m_extrasOpen = false;
    bool m_invalid = false;
    bool m_hasChanges = true;
    double m_net = 0;
    double m_vat = 0;
    QString m_currency;
    bool m_allowInherit = false;
    bool m_inheriting = false;
    qint64 m_trackedSeconds = 0;
    double m_legacyRate = 0;
    bool m_showTravel = false;
    QString m_language; // empty: the user's locale
};
