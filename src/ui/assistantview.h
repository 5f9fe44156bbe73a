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
    Q_PROPERTY(QString provider READ provider WRITE setProvider NOTIFY settingsChanged)
    Q_PROPERTY(QVariantList providers READ providers NOTIFY settingsChanged)
    Q_PROPERTY(QVariantList consents READ consents NOTIFY settingsChanged)
    Q_PROPERTY(QVariantList keys READ keys NOTIFY keysChanged)
    Q_PROPERTY(QString keyMessage READ keyMessage NOTIFY keysChanged)
    Q_PROPERTY(bool summaryBusy READ summaryBusy NOTIFY summaryChanged)
    Q_PROPERTY(QString summaryKind READ summaryKind NOTIFY summaryChanged)
    Q_PROPERTY(QString summaryText READ summaryText NOTIFY summaryChanged)
    Q_PROPERTY(bool summaryFixed READ summaryFixed NOTIFY summaryChanged)
    Q_PROPERTY(QString summaryNote READ summaryNote NOTIFY summaryChanged)

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

    // Where model calls go, by the stored provider name; the choices with what each means.
    [[nodiscard]] QString provider() const;
    void setProvider(const QString &name);
    [[nodiscard]] static QVariantList providers();
    // The routes that send text off the machine, with the answer given: { route, name, state }.
    [[nodiscard]] QVariantList consents() const;
    // "allow", "deny" or "ask" (forget the answer, so the question comes again).
    Q_INVOKABLE void setConsent(const QString &route, const QString &answer);
    // The person's own vendor keys, kept in the keyring: { vendor, name, stored }.
    [[nodiscard]] QVariantList keys() const { return m_keys; }
    [[nodiscard]] QString keyMessage() const { return m_keyMessage; }
    Q_INVOKABLE void saveKey(const QString &vendor, const QString &key);
    Q_INVOKABLE void removeKey(const QString &vendor);
    Q_INVOKABLE void refreshKeys();

    // The weekly recap or the daily stand-up in a language ("" for the interface's): the model's
    // words when they pass the checks against the figures, else the text written from the figures,
    // marked as such with the reason.
    Q_INVOKABLE void writeSummary(const QString &kind, const QString &language);
    Q_INVOKABLE void copySummary() const;
    [[nodiscard]] bool summaryBusy() const { return m_summaryBusy; }
    [[nodiscard]] QString summaryKind() const { return m_summaryKind; }
    [[nodiscard]] QString summaryText() const { return m_summaryText; }
    [[nodiscard]] bool summaryFixed() const { return m_summaryFixed; }
    [[nodiscard]] QString summaryNote() const { return m_summaryNote; }

signals:
    void busyChanged();
    void historyChanged();
    void consentQuestionChanged();
    void settingsChanged();
    void keysChanged();
    void summaryChanged();
    void consentAnswered(bool allowed);
    // A capture made or matched this project or task: the window shows it.
    void focusRequested(const QString &projectId, const QString &taskId);

private:
    QCoro::Task<> run(QString text);
    QCoro::Task<> changeKey(QString vendor, std::optional<QString> key);
    QCoro::Task<> summarise(QString kind, QString lang);

    std::shared_ptr<QSettings> m_settings;
    ClaudeBridge m_bridge;
    CaptureHistory m_captures;
    QPointer<AppStore> m_store;
    QPointer<AuthStore> m_auth;
    bool m_summaryBusy = false;
    QString m_summaryKind;
    QString m_summaryText;
    bool m_summaryFixed = false;
    QString m_summaryNote;
    bool m_busy = false;
    QVariantList m_history;
    QVariantMap m_consentQuestion;
    std::shared_ptr<SecretStore> m_secrets;
    QVariantList m_keys;
    QString m_keyMessage;
};
