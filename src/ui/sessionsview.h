#pragma once

#include "sessions/claudewatcher.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

class AppStore;
class AuthStore;
class StoreSessionLogSink;

// The coding-agent sessions in the window: the list of recent sessions grouped by working folder
// and recency, mapping folders to projects, logging one session after a preview of its bursts, and
// the tracking settings. The watcher scans every minute while the window's process runs and
// tracking is on; the bursts it logs arrive in the store like any other work.
class SessionsView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the shell")
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY trackingChanged)
    Q_PROPERTY(bool scanning READ scanning NOTIFY trackingChanged)
    Q_PROPERTY(QString scanError READ scanError NOTIFY trackingChanged)
    Q_PROPERTY(QString resultText READ resultText NOTIFY trackingChanged)
    Q_PROPERTY(int idleGapMinutes READ idleGapMinutes WRITE setIdleGapMinutes NOTIFY trackingChanged)
    Q_PROPERTY(QVariantList pending READ pending NOTIFY pendingChanged)
    Q_PROPERTY(QVariantList groups READ groups NOTIFY groupsChanged)
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)
    Q_PROPERTY(QVariantMap preview READ preview NOTIFY previewChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool messageIsError READ messageIsError NOTIFY messageChanged)

public:
    // Sessions a folder shows before it is expanded.
    static constexpr int sessionsPerCwdCap = 5;

    SessionsView(std::shared_ptr<QSettings> settings, QString projectsDir, QObject *parent = nullptr);
    ~SessionsView() override;

    // The signed-in store and session the bursts are logged through; nullptr while signed out.
    void setStores(AppStore *store, AuthStore *auth);
    void retranslate();
    [[nodiscard]] ClaudeWatcher *watcher() const { return m_watcher.get(); }

    [[nodiscard]] bool enabled() const { return m_watcher->enabled(); }
    void setEnabled(bool enabled) { m_watcher->setEnabled(enabled); }
    [[nodiscard]] bool scanning() const { return m_watcher->scanning(); }
    [[nodiscard]] QString scanError() const { return m_watcher->scanError(); }
    [[nodiscard]] QString resultText() const;
    [[nodiscard]] int idleGapMinutes() const;
    void setIdleGapMinutes(int minutes);
    [[nodiscard]] QVariantList pending() const;
    [[nodiscard]] QVariantList groups() const { return m_groups; }
    [[nodiscard]] bool loading() const { return m_loading; }
    [[nodiscard]] QVariantMap preview() const { return m_preview; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] bool messageIsError() const { return m_messageIsError; }

    Q_INVOKABLE void rescan();
    Q_INVOKABLE void scanNow();
    Q_INVOKABLE void reimportAll();
    Q_INVOKABLE void mapFolder(const QString &cwd, const QString &projectId);
    Q_INVOKABLE void ignoreFolder(const QString &cwd);
    // A project named after the folder's last part (or for one session), mapped or chosen at once.
    Q_INVOKABLE void createProjectForFolder(const QString &cwd);
    Q_INVOKABLE void createProjectForSession(const QString &sessionId);
    // The bursts one session would be logged as; `commitPreview` logs them.
    Q_INVOKABLE void previewSession(const QString &sessionId, const QString &projectId);
    Q_INVOKABLE void commitPreview();
    Q_INVOKABLE void closePreview();
    Q_INVOKABLE void reimportSession(const QString &sessionId);
    Q_INVOKABLE void dismissMessage() { say({}, false); }

    // "Create new project named "<name>"": the folder's last path component.
    Q_INVOKABLE [[nodiscard]] static QString folderName(const QString &cwd);

signals:
    void trackingChanged();
    void pendingChanged();
    void groupsChanged();
    void loadingChanged();
    void previewChanged();
    void messageChanged();

private:
    void rebuild();
    [[nodiscard]] std::optional<ParsedSession> session(const QString &sessionId) const;
    QCoro::Task<std::optional<QString>> createProject(QString name, QString description);
    void say(const QString &text, bool error);

    std::shared_ptr<QSettings> m_settings;
    std::unique_ptr<ClaudeWatcher> m_watcher;
    std::shared_ptr<StoreSessionLogSink> m_sink;
    QPointer<AppStore> m_store;
    QVariantList m_groups;
    bool m_loading = false;
    QVariantMap m_preview;
    QString m_message;
    bool m_messageIsError = false;
};
