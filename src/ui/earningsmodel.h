#pragma once

#include "billing/earningsreport.h"
#include "model/clock.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantList>

#include <QtQml/qqmlregistration.h>

class AppStore;
class AuthStore;

// The earnings view's figures: bars for the last twelve weeks, or by month or project over the last
// twelve months, each with its figures as text, and the entries behind the chosen bar. Every amount
// comes from EarningsReport; the view only draws them.
class EarningsModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the shell")
    // "week", "month" or "project".
    Q_PROPERTY(QString grouping READ grouping WRITE setGrouping NOTIFY changed)
    // Each row: key, label, earned, billed, unbilled (numbers), earnedText, billedText, unbilledText,
    // hoursText, rateText, earnedShare and billedShare (of the largest earned, 0..1), entryCount, empty.
    Q_PROPERTY(QVariantList rows READ rows NOTIFY changed)
    // earnedText, billedText, unbilledText, hoursText, rateText over the whole coverage.
    Q_PROPERTY(QVariantMap totals READ totals NOTIFY changed)
    Q_PROPERTY(QString coverage READ coverage NOTIFY changed)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    Q_PROPERTY(QString error READ error NOTIFY loadingChanged)
    Q_PROPERTY(QString selectedKey READ selectedKey NOTIFY changed)
    Q_PROPERTY(QString selectedLabel READ selectedLabel NOTIFY changed)
    // Each: id, date, task, project, duration, amount, note (the part charged once, when any).
    Q_PROPERTY(QVariantList selectedEntries READ selectedEntries NOTIFY changed)

public:
    static constexpr int monthsCovered = 12;
    static constexpr int weeksShown = 12;

    explicit EarningsModel(Clock clock = systemClock(), QObject *parent = nullptr);

    void setStores(AppStore *store, AuthStore *auth);
    void retranslate() { rebuild(); }

    [[nodiscard]] QString grouping() const;
    void setGrouping(const QString &grouping);
    [[nodiscard]] QVariantList rows() const { return m_rows; }
    [[nodiscard]] QVariantMap totals() const { return m_totals; }
    [[nodiscard]] QString coverage() const { return m_coverage; }
    [[nodiscard]] bool isEmpty() const { return m_empty; }
    [[nodiscard]] bool isLoading() const { return m_loading; }
    [[nodiscard]] QString error() const { return m_error; }
    [[nodiscard]] QString selectedKey() const { return m_selectedKey; }
    [[nodiscard]] QString selectedLabel() const;
    [[nodiscard]] QVariantList selectedEntries() const;

    // Reads the covered period's entries and the billed set again; the view calls it when shown.
    Q_INVOKABLE void reload();
    // Chooses a bar by its key; the same key again lets go of it.
    Q_INVOKABLE void select(const QString &key);

signals:
    void changed();
    void loadingChanged();

private:
    enum class By { Week, Month, Project };
    void rebuild();
    void setLoading(bool loading, const QString &error = {});
    [[nodiscard]] QDate coverageStart() const;
    [[nodiscard]] QList<TimeEntry> mergedEntries() const;

    Clock m_clock;
    QPointer<AppStore> m_store;
    QPointer<AuthStore> m_auth;
    By m_by = By::Week;
    bool m_active = false;
    quint64 m_loadGeneration = 0;
    QList<TimeEntry> m_periodEntries;
    QList<EarningsReport::PricedEntry> m_priced;
    QList<EarningsReport::Row> m_reportRows;
    QVariantList m_rows;
    QVariantMap m_totals;
    QString m_coverage;
    bool m_empty = true;
    bool m_loading = false;
    QString m_error;
    QString m_selectedKey;
    QTimer m_rebuild;
    QTimer m_reload;
};
