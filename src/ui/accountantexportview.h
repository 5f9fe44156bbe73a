#pragma once

#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

class AppStore;

// The export dialog's side in C++: checks the period the person typed, writes the CSV file through
// the store and answers one sentence, so that QML only shows what it is told.
class AccountantExportView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    // The shell's store (Shell.store); without one nothing is saved.
    Q_PROPERTY(QObject *store READ storeObject WRITE setStore NOTIFY storeChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY stateChanged)
    Q_PROPERTY(QString message READ message NOTIFY stateChanged)
    Q_PROPERTY(bool failed READ failed NOTIFY stateChanged)

public:
    explicit AccountantExportView(QObject *parent = nullptr);

    [[nodiscard]] QObject *storeObject() const;
    void setStore(QObject *store);
    [[nodiscard]] bool busy() const { return m_busy; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] bool failed() const { return m_failed; }

    // The calendar month before `today`'s, the period an accountant asks for most.
    Q_INVOKABLE [[nodiscard]] static QString previousMonthStart();
    Q_INVOKABLE [[nodiscard]] static QString previousMonthEnd();
    // Both dates in yyyy-MM-dd, the first not after the second.
    Q_INVOKABLE [[nodiscard]] static bool isPeriod(const QString &from, const QString &to);
    // A file in the documents folder whose name says what and when:
    // "invoices-2026-03-01-2026-03-31.csv".
    Q_INVOKABLE [[nodiscard]] static QUrl suggestedFile(const QString &kind, const QString &from, const QString &to);
    // Writes the file of `kind` ("entries" or "invoices"); `finished` follows with the outcome in
    // `message`.
    Q_INVOKABLE void save(const QString &kind, const QString &from, const QString &to, const QUrl &file);
    Q_INVOKABLE void clear();

signals:
    void storeChanged();
    void stateChanged();
    void finished(bool ok);

private:
    void setState(bool busy, const QString &message, bool failed);

    QPointer<AppStore> m_store;
    bool m_busy = false;
    QString m_message;
    bool m_failed = false;
};
