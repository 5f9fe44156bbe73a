#pragma once

#include "billing/billingeditor.h"
#include "store/appstore.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>


// The selected task as the inspector edits it, with its time entries. Each setter writes at once
// through the store (the inspector saves on Enter or when focus leaves); what a person may not
// change is marked read-only (`canEdit`) rather than refused after the fact.
class TaskInspector : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the workspace")
    Q_PROPERTY(bool present READ present NOTIFY changed)
    Q_PROPERTY(QString taskId READ taskId NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString description READ description NOTIFY changed)
    Q_PROPERTY(QString dueDate READ dueDate NOTIFY changed)
    Q_PROPERTY(QString priority READ priority NOTIFY changed)
    Q_PROPERTY(QString category READ category NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QString projectName READ projectName NOTIFY changed)
    Q_PROPERTY(bool canEdit READ canEdit NOTIFY changed)
    Q_PROPERTY(bool saving READ saving NOTIFY changed)
    Q_PROPERTY(bool running READ running NOTIFY changed)
    Q_PROPERTY(bool onTeam READ onTeam NOTIFY changed)
    Q_PROPERTY(QString tracked READ tracked NOTIFY changed)
    Q_PROPERTY(QString price READ price NOTIFY changed)
    Q_PROPERTY(QString priceSource READ priceSource NOTIFY changed)
    Q_PROPERTY(QVariantList subtasks READ subtasks NOTIFY changed)
    Q_PROPERTY(QVariantList notes READ notes NOTIFY changed)
    Q_PROPERTY(QVariantList assignees READ assignees NOTIFY changed)
    Q_PROPERTY(QVariantList members READ members NOTIFY changed)
    Q_PROPERTY(QVariantList entries READ entries NOTIFY entriesChanged)
    Q_PROPERTY(BillingEditor *priceEditor READ priceEditor CONSTANT)

public:
    explicit TaskInspector(QObject *parent = nullptr);

    void setStore(AppStore *store);

    [[nodiscard]] bool present() const;
    [[nodiscard]] QString taskId() const { return m_taskId; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString description() const;
    [[nodiscard]] QString dueDate() const;
    [[nodiscard]] QString priority() const;
    [[nodiscard]] QString category() const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] QString projectName() const;
    [[nodiscard]] bool canEdit() const;
    [[nodiscard]] bool saving() const;
    [[nodiscard]] bool running() const;
    [[nodiscard]] bool onTeam() const;
    [[nodiscard]] QString tracked() const;
    [[nodiscard]] QString price() const;
    [[nodiscard]] QString priceSource() const;
    [[nodiscard]] QVariantList subtasks() const;
    [[nodiscard]] QVariantList notes() const;
    [[nodiscard]] QVariantList assignees() const;
    [[nodiscard]] QVariantList members() const;
    [[nodiscard]] QVariantList entries() const;
    [[nodiscard]] BillingEditor *priceEditor() const { return m_priceEditor; }

    Q_INVOKABLE void setTitle(const QString &title);
    Q_INVOKABLE void setDescription(const QString &description);
    // "yyyy-MM-dd", or empty to clear; answers false (and writes nothing) for text that is no day.
    Q_INVOKABLE bool setDueDate(const QString &day);
    Q_INVOKABLE void setPriority(const QString &priority);
    Q_INVOKABLE void setCategory(const QString &category);
    Q_INVOKABLE void setStatus(const QString &status);
    Q_INVOKABLE void addSubtask(const QString &title);
    Q_INVOKABLE void setSubtaskDone(const QString &subtaskId, bool done);
    Q_INVOKABLE void removeSubtask(const QString &subtaskId);
    Q_INVOKABLE void addNote(const QString &text);
    Q_INVOKABLE void removeNote(const QString &noteId);
    Q_INVOKABLE void setAssigned(const QString &userId, bool assigned);
    // Minutes as typed ("45", "1,5"); answers false for text that is no positive number.
    Q_INVOKABLE bool logMinutes(const QString &minutes);
    // Start and end as the entry list shows them (local "yyyy-MM-dd HH:mm"); the duration follows.
    // Answers false when they cannot be read or the end is not after the start.
    Q_INVOKABLE bool editEntryTimes(const QString &entryId, const QString &start, const QString &end);
    // A new length in minutes: the entry keeps its start and ends that much later.
    Q_INVOKABLE bool editEntryDuration(const QString &entryId, const QString &minutes);
    Q_INVOKABLE void deleteEntry(const QString &entryId);
    // The price editor starts from the task's price as it is now (its own, or its project's).
    Q_INVOKABLE void editPrice();
    // Writes what the editor holds; nothing when a field cannot be read.
    Q_INVOKABLE bool savePrice();

signals:
    void changed();
    void entriesChanged();

private:
    void follow();
    [[nodiscard]] std::optional<TaskItem> task() const;
    void writePatch(const TaskItem &task, std::optional<QString> title, std::optional<QString> description,
                    std::optional<QString> dueDate);

    QPointer<AppStore> m_store;
    QString m_taskId;
    BillingEditor *m_priceEditor;
};
