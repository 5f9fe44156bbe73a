#pragma once

#include "capture/capturehistory.h"
#include "sessions/claudebridge.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <memory>

class AppStore;
class AuthStore;
class SecretStore;

// What a language model does for the person in the window: a sentence becomes work (quick add,
// from the window, the palette and the tray) with the history of this run, and the consent
// question each route asks once before text leaves the machine. Every call goes through the one
// bridge, which picks the route the person chose.
class AssistantView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the shell")
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
    Q_PROPERTY(QVariantList history READ history NOTIFY historyChanged)
    Q_PROPERTY(QVariantMap consentQuestion READ consentQuestion NOTIFY consentQuestionChanged)

public:
    explicit AssistantView(std::shared_ptr<QSettings> settings, QObject *parent = nullptr);
    ~AssistantView() override;

    void setStores(AppStore *store, AuthStore *auth, std::shared_ptr<SecretStore> secrets);
    [[nodiscard]] ClaudeBridge &bridge() { return m_bridge; }

    [[nodiscard]] bool busy() const { return m_busy; }
    // Newest first: { prompt, understood, done, problem, failed }.
    [[nodiscard]] QVariantList history() const { return m_history; }
    // { route, destination } while a route waits for the person's answer; empty otherwise.
    [[nodiscard]] QVariantMap consentQuestion() const { return m_consentQuestion; }

    // Understands the sentence and applies it; the outcome joins the history.
    Q_INVOKABLE void capture(const QString &text);
    Q_INVOKABLE void answerConsent(bool allowed);

signals:
    void busyChanged();
    void historyChanged();
    void consentQuestionChanged();
    void consentAnswered(bool allowed);
    // A capture made or matched this project or task: the window shows it.
    void focusRequested(const QString &projectId, const QString &taskId);

private:
    QCoro::Task<> run(QString text);

    std::shared_ptr<QSettings> m_settings;
    ClaudeBridge m_bridge;
    CaptureHistory m_captures;
    QPointer<AppStore> m_store;
    bool m_busy = false;
    QVariantList m_history;
    QVariantMap m_consentQuestion;
};
