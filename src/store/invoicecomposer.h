#pragma once

#include "billing/invoicelines.h"
#include "model/clock.h"
#include "store/appstore.h"
#include "store/invoicecontext.h"

#include <QDate>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <optional>

// The invoice composer's state, bound by its view: the period, the selected tasks, billing again,
// VAT and the client, and everything derived from them (lines, VAT groups, totals, covered
// entries). It reads the store's unbilled entries and prior billing and follows their changes, so
// the preview never offers time that another device billed meanwhile.
class InvoiceComposer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QStringList projectIds READ projectIds NOTIFY contextChanged)
    Q_PROPERTY(QDate from READ from WRITE setFrom NOTIFY periodChanged)
    Q_PROPERTY(QDate to READ to WRITE setTo NOTIFY periodChanged)
    Q_PROPERTY(QStringList availableTaskIds READ availableTaskIds NOTIFY resultChanged)
    Q_PROPERTY(QStringList selectedTaskIds READ selectedTaskIds NOTIFY resultChanged)
    Q_PROPERTY(QStringList rebillUnitKeys READ rebillUnitKeys NOTIFY resultChanged)
    Q_PROPERTY(bool manualVat READ manualVat WRITE setManualVat NOTIFY vatChanged)
    Q_PROPERTY(double manualVatPercent READ manualVatPercent WRITE setManualVatPercent NOTIFY vatChanged)
    Q_PROPERTY(double defaultVatPercent READ defaultVatPercent WRITE setDefaultVatPercent NOTIFY vatChanged)
    Q_PROPERTY(QString clientName READ clientName WRITE setClientName NOTIFY clientChanged)
    Q_PROPERTY(QString clientEmail READ clientEmail WRITE setClientEmail NOTIFY clientChanged)
    Q_PROPERTY(QString clientAddress READ clientAddress WRITE setClientAddress NOTIFY clientChanged)
    Q_PROPERTY(bool saveAsClient READ saveAsClient WRITE setSaveAsClient NOTIFY clientChanged)
    Q_PROPERTY(double subtotal READ subtotal NOTIFY resultChanged)
    Q_PROPERTY(double vatAmount READ vatAmount NOTIFY resultChanged)
    Q_PROPERTY(double total READ total NOTIFY resultChanged)
    Q_PROPERTY(QStringList coveredEntryIds READ coveredEntryIds NOTIFY resultChanged)
    Q_PROPERTY(QStringList tripIds READ tripIds NOTIFY resultChanged)
    Q_PROPERTY(QStringList travelProjectIds READ travelProjectIds NOTIFY resultChanged)
    Q_PROPERTY(QString leftOutMessage READ leftOutMessage NOTIFY leftOutMessageChanged)
    Q_PROPERTY(QString readinessError READ readinessError NOTIFY resultChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY resultChanged)

public:
    InvoiceComposer(AppStore &store, Clock clock = systemClock(), QObject *parent = nullptr);

    // Starts over for `context`. Without a period, a single project's composer starts at the day
    // of its earliest unbilled work and ends today.
    void open(const InvoiceContext &context);
    [[nodiscard]] QStringList projectIds() const { return m_context.projectIds; }

    // The preset keys the view offers; their texts are `periodText(key)`.
    [[nodiscard]] static QStringList periodPresets();
    [[nodiscard]] static QString periodText(const QString &preset);
    // Sets the period to the preset seen from today's local date; answers false for an unknown key.
    Q_INVOKABLE bool applyPeriodPreset(const QString &preset);
    [[nodiscard]] QDate from() const { return m_from; }
    [[nodiscard]] QDate to() const { return m_to; }
    void setFrom(const QDate &from);
    void setTo(const QDate &to);

    // The tasks with unbilled time in the period, in their projects' order, and those selected.
    [[nodiscard]] QStringList availableTaskIds() const { return m_availableTaskIds; }
    [[nodiscard]] QStringList selectedTaskIds() const;
    // A task's unbilled seconds in the period.
    [[nodiscard]] qint64 taskSeconds(const QString &taskId) const { return m_secondsByTask.value(taskId); }
    Q_INVOKABLE void toggleTask(const QString &taskId);

    // "Bill again": a follow-up unit bills its one-off parts once more.
    [[nodiscard]] QStringList rebillUnitKeys() const;
    Q_INVOKABLE void setRebill(const QString &unitKey, bool rebill);

    [[nodiscard]] bool manualVat() const { return m_manualVat; }
    void setManualVat(bool on);
    [[nodiscard]] double manualVatPercent() const { return m_manualVatPercent; }
    void setManualVatPercent(double percent);
    // The template's VAT percentage, for lines whose price setting names none.
    [[nodiscard]] double defaultVatPercent() const { return m_defaultVatPercent; }
    void setDefaultVatPercent(double percent);

    [[nodiscard]] QString clientName() const { return m_clientName; }
    void setClientName(const QString &name);
    [[nodiscard]] QString clientEmail() const { return m_clientEmail; }
    void setClientEmail(const QString &email);
    [[nodiscard]] QString clientAddress() const { return m_clientAddress; }
    void setClientAddress(const QString &address);
    [[nodiscard]] bool saveAsClient() const { return m_saveAsClient; }
    void setSaveAsClient(bool save);

    [[nodiscard]] const Earnings::BuildResult &built() const { return m_built; }
    [[nodiscard]] const Earnings::VatResult &vat() const { return m_vat; }
    [[nodiscard]] double subtotal() const { return m_built.subtotal; }
    [[nodiscard]] double vatAmount() const { return m_vat.vat; }
    [[nodiscard]] double total() const { return m_vat.total; }
    [[nodiscard]] QStringList coveredEntryIds() const { return m_coveredEntryIds; }

    // "Charge travel": each project whose unbilled trips in the period make a travel line, and
    // whether this invoice charges them (it does unless turned off). The line is added to the
    // lines and VAT; the trips it covers are linked to the invoice when it is saved.
    [[nodiscard]] QStringList travelProjectIds() const { return m_travelProjectIds; }
    [[nodiscard]] Q_INVOKABLE bool chargesTravel(const QString &projectId) const
    {
        return !m_noTravel.contains(projectId);
    }
    Q_INVOKABLE void setChargeTravel(const QString &projectId, bool charge);
    [[nodiscard]] static QString chargeTravelText();
    [[nodiscard]] QStringList tripIds() const { return m_tripIds; }
    [[nodiscard]] QString currency() const;

    // "n time entries already billed, left out": set when a refresh took selected entries away.
    [[nodiscard]] QString leftOutMessage() const { return m_leftOutMessage; }
    Q_INVOKABLE void clearLeftOutMessage();

    // Why saving is refused while what was billed before is unknown; empty when it is known.
    [[nodiscard]] QString readinessError() const;
    [[nodiscard]] bool canSave() const;

    // What the store's saveInvoice writes, without the PDF, which the caller renders from the same
    // state. Nothing while saving is refused.
    // The row a built line is saved as (order_index is set by the save).
    [[nodiscard]] static InvoiceLineInsert lineInsert(const Earnings::BuiltLine &built);
    [[nodiscard]] std::optional<InvoiceSaveRequest> saveRequest(const QString &number, const QDate &issued,
                                                                const QDate &due, const QString &status) const;

signals:
    void contextChanged();
    void periodChanged();
    void vatChanged();
    void clientChanged();
    void resultChanged();
    void leftOutMessageChanged();

private:
    void recompute();
    void addTravelLines();
    void storeRefreshed();
    [[nodiscard]] QDate today() const;

    AppStore &m_store;
    Clock m_clock;
    InvoiceContext m_context;
    QDate m_from;
    QDate m_to;
    std::optional<QSet<QString>> m_onlyTasks;
    QSet<QString> m_deselected;
    QSet<QString> m_rebill;
    bool m_manualVat = false;
    double m_manualVatPercent = 0;
    double m_defaultVatPercent = 0;
    QString m_clientName;
    QString m_clientEmail;
    QString m_clientAddress;
    bool m_saveAsClient = false;
    QStringList m_availableTaskIds;
    QHash<QString, qint64> m_secondsByTask;
    Earnings::BuildResult m_built;
    Earnings::VatResult m_vat;
    QStringList m_coveredEntryIds;
    QSet<QString> m_noTravel;
    QStringList m_travelProjectIds;
    QStringList m_tripIds;
    QString m_leftOutMessage;
};
