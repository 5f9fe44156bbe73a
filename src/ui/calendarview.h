#pragma once

#include "ui/rowsmodel.h"

#include <QDate>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <QCoroTask>

#include <memory>

class AppStore;
class AuthStore;
class CalendarImporter;
class SecretStore;
struct CalendarDestination;

// Calendar import in the window: the calendars the person added (files, subscriptions, CalDAV),
// the chosen day's events with their calendar colours and where each goes, and the import of the
// ticked ones as time. Each event is imported once, here and on any other device.
class CalendarView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the shell")
    Q_PROPERTY(bool ready READ ready NOTIFY readyChanged)
    Q_PROPERTY(bool hasAccess READ hasAccess NOTIFY sourcesChanged)
    Q_PROPERTY(QVariantList sources READ sources NOTIFY sourcesChanged)
    Q_PROPERTY(QString dayText READ dayText NOTIFY eventsChanged)
    Q_PROPERTY(QString dayIso READ dayIso NOTIFY eventsChanged)
    Q_PROPERTY(RowsModel *events READ events CONSTANT)
    Q_PROPERTY(QVariantList destinations READ destinations NOTIFY destinationsChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY eventsChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY eventsChanged)
    Q_PROPERTY(bool loading READ loading NOTIFY busyChanged)
    Q_PROPERTY(bool importing READ importing NOTIFY busyChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool messageIsError READ messageIsError NOTIFY messageChanged)

public:
    CalendarView(QString cacheFolder, QObject *parent = nullptr);
    ~CalendarView() override;

    void setStores(AppStore *store, AuthStore *auth, std::shared_ptr<SecretStore> secrets);
    void retranslate() { rebuild(); }

    [[nodiscard]] bool ready() const { return m_importer != nullptr; }
    [[nodiscard]] bool hasAccess() const;
    [[nodiscard]] QVariantList sources() const;
    [[nodiscard]] QString dayText() const;
    [[nodiscard]] QString dayIso() const { return m_day.toString(Qt::ISODate); }
    [[nodiscard]] RowsModel *events() const { return m_events; }
    // What an event can become: a new task in a project, or time on an open task.
    [[nodiscard]] QVariantList destinations() const;
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] int selectedCount() const;
    [[nodiscard]] bool loading() const;
    [[nodiscard]] bool importing() const;
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] bool messageIsError() const { return m_messageIsError; }

    Q_INVOKABLE void reload();
    Q_INVOKABLE void moveDay(int days);
    Q_INVOKABLE bool setDay(const QString &iso);
    // A file the person picked, or an address they typed; a CalDAV collection with its user and
    // password, which goes to the keyring.
    Q_INVOKABLE void addFile(const QUrl &file);
    Q_INVOKABLE void addAddress(const QString &address, bool caldav, const QString &user, const QString &password);
    Q_INVOKABLE void removeSource(const QString &sourceId);
    Q_INVOKABLE void toggle(const QString &eventId);
    // "new:<project id>" or "task:<task id>"; empty for none.
    Q_INVOKABLE void setDestination(const QString &eventId, const QString &destination);
    Q_INVOKABLE void importSelected();
    Q_INVOKABLE void dismissMessage() { say({}, false); }

signals:
    void readyChanged();
    void sourcesChanged();
    void eventsChanged();
    void destinationsChanged();
    void busyChanged();
    void messageChanged();

private:
    void rebuild();
    void proposeDestinations();
    QCoro::Task<> addSource(QString text, bool caldav, QString user, std::optional<QString> password);
    void say(const QString &text, bool error);

    QString m_cacheFolder;
    std::unique_ptr<CalendarImporter> m_importer;
    QPointer<AppStore> m_store;
    RowsModel *m_events;
    QDate m_day = QDate::currentDate();
    QSet<QString> m_selected;
    QHash<QString, QString> m_destinations; // event id -> "new:<id>" / "task:<id>"
    QString m_message;
    bool m_messageIsError = false;
};
