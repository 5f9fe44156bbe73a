#pragma once

#include "store/appstore.h"
#include "ui/clientlist.h"
#include "ui/composerview.h"
#include "ui/invoicelist.h"
#include "ui/invoicestyleview.h"
#include "ui/invoiceprinter.h"
#include "ui/rowsmodel.h"
#include "ui/taskinspector.h"
#include "ui/tripsview.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>


// What the main window shows of the signed-in user's data, and the operations it offers: the
// sidebar, the task list of the chosen project (or of all), the running timer, the palette and
// the projects and teams. Rows are rebuilt from the store after each of its changes; every
// operation goes through the store, which writes through to the backend.
class Workspace : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the shell")
    Q_PROPERTY(RowsModel *sidebar READ sidebar CONSTANT)
    Q_PROPERTY(RowsModel *tasks READ tasks CONSTANT)
    Q_PROPERTY(RowsModel *palette READ palette CONSTANT)
    Q_PROPERTY(TaskInspector *inspector READ inspector CONSTANT)
    Q_PROPERTY(ClientList *clients READ clients CONSTANT)
    Q_PROPERTY(InvoiceList *invoices READ invoices CONSTANT)
    Q_PROPERTY(InvoiceStyleView *invoiceStyle READ invoiceStyle CONSTANT)
    Q_PROPERTY(ComposerView *composer READ composer CONSTANT)
    Q_PROPERTY(TripsView *trips READ trips CONSTANT)
    Q_PROPERTY(BillingEditor *projectPriceEditor READ projectPriceEditor CONSTANT)
    Q_PROPERTY(bool hasStore READ hasStore NOTIFY storeChanged)
    Q_PROPERTY(QString selectedProjectId READ selectedProjectId WRITE selectProject NOTIFY selectionChanged)
    Q_PROPERTY(QString selectedTaskId READ selectedTaskId WRITE selectTask NOTIFY selectionChanged)
    Q_PROPERTY(QVariantMap project READ project NOTIFY projectChanged)
    Q_PROPERTY(QVariantList projectChoices READ projectChoices NOTIFY projectChanged)
    Q_PROPERTY(QVariantList teams READ teams NOTIFY teamsChanged)
    Q_PROPERTY(QVariantList invitations READ invitations NOTIFY teamsChanged)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY listOptionsChanged)
    Q_PROPERTY(QString sort READ sort WRITE setSort NOTIFY listOptionsChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY listOptionsChanged)
    Q_PROPERTY(QStringList checkedTaskIds READ checkedTaskIds NOTIFY checkedChanged)
    Q_PROPERTY(QString lastError READ lastError NOTIFY lastErrorChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    Q_PROPERTY(bool online READ isOnline NOTIFY onlineChanged)
    Q_PROPERTY(QString displayName READ displayName NOTIFY profileChanged)
    Q_PROPERTY(bool timerRunning READ timerRunning NOTIFY timerChanged)
    Q_PROPERTY(QString runningTaskId READ runningTaskId NOTIFY timerChanged)
    Q_PROPERTY(QString runningTaskTitle READ runningTaskTitle NOTIFY timerChanged)
    Q_PROPERTY(QString runningProjectId READ runningProjectId NOTIFY timerChanged)
    Q_PROPERTY(QString runningProjectName READ runningProjectName NOTIFY timerChanged)
    Q_PROPERTY(QString timerText READ timerText NOTIFY timerTextChanged)
    Q_PROPERTY(QVariantList recentTasks READ recentTasks NOTIFY timerChanged)
    Q_PROPERTY(QString lastTaskId READ lastTaskId NOTIFY timerChanged)

public:
    explicit Workspace(QObject *parent = nullptr);
    ~Workspace() override;

    void setStore(AppStore *store);
    // The interface language changed: rows built with texts are built again.
    void retranslate();
    [[nodiscard]] bool hasStore() const { return m_store != nullptr; }

    [[nodiscard]] RowsModel *sidebar() const { return m_sidebar; }
    [[nodiscard]] RowsModel *tasks() const { return m_tasks; }
    [[nodiscard]] RowsModel *palette() const { return m_palette; }
    [[nodiscard]] TaskInspector *inspector() const { return m_inspector; }
    [[nodiscard]] ClientList *clients() const { return m_clients; }
    [[nodiscard]] InvoiceList *invoices() const { return m_invoices; }
    [[nodiscard]] InvoiceStyleView *invoiceStyle() const { return m_invoiceStyle; }
    [[nodiscard]] ComposerView *composer() const { return m_composer; }
    [[nodiscard]] TripsView *trips() const { return m_trips; }
    [[nodiscard]] BillingEditor *projectPriceEditor() const { return m_projectPrice; }

    [[nodiscard]] QString selectedProjectId() const;
    void selectProject(const QString &projectId);
    [[nodiscard]] QString selectedTaskId() const;
    void selectTask(const QString &taskId);
    [[nodiscard]] QVariantMap project() const;
    [[nodiscard]] QVariantList projectChoices() const;
    [[nodiscard]] QVariantList teams() const;
    [[nodiscard]] QVariantList invitations() const;
    [[nodiscard]] QString filter() const;
    void setFilter(const QString &filter);
    [[nodiscard]] QString sort() const;
    void setSort(const QString &sort);
    [[nodiscard]] QString search() const;
    void setSearch(const QString &search);
    [[nodiscard]] QStringList checkedTaskIds() const;
    [[nodiscard]] QString lastError() const;
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] bool isOnline() const;
    [[nodiscard]] QString displayName() const;
    [[nodiscard]] bool timerRunning() const;
    [[nodiscard]] QString runningTaskId() const;
    [[nodiscard]] QString runningTaskTitle() const;
    [[nodiscard]] QString runningProjectId() const;
    [[nodiscard]] QString runningProjectName() const;
    [[nodiscard]] QString timerText() const;
    [[nodiscard]] QVariantList recentTasks() const;
    // The task a shortcut or the floating widget starts: the running one, else the last worked on.
    [[nodiscard]] QString lastTaskId() const;

    // Keyboard navigation in the visible list; answers the task now selected.
    Q_INVOKABLE QString selectNeighbor(bool next);
    // Ctrl+1..9: the n-th project of the sidebar (from 1).
    Q_INVOKABLE void selectProjectAt(int number);
    Q_INVOKABLE void toggleChecked(const QString &taskId);
    Q_INVOKABLE void checkRange(const QString &fromTaskId, const QString &toTaskId);
    Q_INVOKABLE void clearChecked();
    Q_INVOKABLE void dismissError();

    // Projects.
    Q_INVOKABLE void createProject(const QString &name);
    Q_INVOKABLE void renameProject(const QString &projectId, const QString &name);
    Q_INVOKABLE void describeProject(const QString &projectId, const QString &description);
    Q_INVOKABLE void setProjectStatus(const QString &projectId, const QString &status);
    Q_INVOKABLE void deleteProject(const QString &projectId);
    Q_INVOKABLE void shareProject(const QString &projectId, const QString &teamId);
    // The chosen project's price in the editor, and its save (nothing when unchanged or unreadable).
    Q_INVOKABLE void editProjectPrice();
    Q_INVOKABLE bool saveProjectPrice();

    // Tasks.
    Q_INVOKABLE void createTask(const QString &title);
    Q_INVOKABLE void setTaskStatus(const QString &taskId, const QString &status);
    Q_INVOKABLE void deleteTask(const QString &taskId);
    Q_INVOKABLE void bulkSetStatus(const QString &status);
    Q_INVOKABLE void bulkDelete();
    Q_INVOKABLE void bulkMove(const QString &projectId);
    // Drag and drop in manual order: the dragged task lands at `toRow` of the visible list.
    Q_INVOKABLE void moveTaskInList(const QString &taskId, int toRow);

    // The timer.
    Q_INVOKABLE void startTimer(const QString &taskId);
    Q_INVOKABLE void stopTimer();
    // Space on a task, the shortcut, the widget: stops the running timer or starts this task's.
    Q_INVOKABLE void toggleTimer(const QString &taskId);

    // Teams.
    Q_INVOKABLE void createTeam(const QString &name);
    Q_INVOKABLE void invite(const QString &teamId, const QString &email, const QString &role);
    Q_INVOKABLE void answerInvitation(const QString &teamId, bool accept);
    Q_INVOKABLE void setMemberRole(const QString &teamId, const QString &userId, const QString &role);
    Q_INVOKABLE void removeMember(const QString &teamId, const QString &userId);

    // The palette: ranks projects, tasks and actions against `query`.
    Q_INVOKABLE void searchPalette(const QString &query);

signals:
    void storeChanged();
    void selectionChanged();
    void projectChanged();
    void teamsChanged();
    void listOptionsChanged();
    void checkedChanged();
    void lastErrorChanged();
    void messageChanged();
    void loadingChanged();
    void onlineChanged();
    void profileChanged();
    void timerChanged();
    void timerTextChanged();
    // A created project or task, for the view to select and focus.
    void projectCreated(const QString &projectId);
    void taskCreated(const QString &taskId);

private:
    void rebuildSidebar();
    void rebuildTasks();
    void scheduleRebuild();
    void setMessage(const QString &message);
    [[nodiscard]] QList<TaskItem> visibleTasks() const;
    struct RowContext;
    [[nodiscard]] QVariantHash taskRow(const TaskItem &task, const RowContext &context) const;

    QPointer<AppStore> m_store;
    RowsModel *m_sidebar;
    RowsModel *m_tasks;
    RowsModel *m_palette;
    TaskInspector *m_inspector;
    ClientList *m_clients;
    InvoiceList *m_invoices;
    InvoiceStyleView *m_invoiceStyle;
    InvoicePrinter *m_printer;
    ComposerView *m_composer;
    TripsView *m_trips;
    BillingEditor *m_projectPrice;
    QString m_message;
    QString m_lastRunningTaskId;
    // Many store signals arrive together after a refresh; the rows are rebuilt once.
    QTimer m_rebuild;
    // Built task rows by id, kept while only the choice of rows changes: a keystroke in the search
    // then picks rows instead of building thousands again.
    QHash<QString, QVariantHash> m_rowCache;
    QDate m_rowCacheDay;
};
