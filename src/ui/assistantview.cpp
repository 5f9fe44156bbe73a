#include "ui/assistantview.h"

#include "backend/authstore.h"
#include "backend/secretstore.h"
#include "capture/applyairesult.h"
#include "capture/capturetext.h"
#include "sessions/aiwire.h"
#include "i18n/language.h"
#include "model/error.h"
#include "store/appstore.h"
#include "summary/summarysources.h"
#include "summary/summarywriter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSettings>

#include <QCoroSignal>

using namespace Qt::StringLiterals;

namespace {

// A sentence is a few lines at most; more is a pasted document the model would only guess at.
constexpr qsizetype maxSentenceLength = 4000;
// The history of one run: enough to look back over a day without growing without end.
constexpr qsizetype historyLength = 50;

const QList<std::pair<QString, ClaudeBridge::Route>> offMachineRoutes{{u"morvaneAI"_s, ClaudeBridge::Route::MorvaneAI},
                                                                    {u"anthropic"_s, ClaudeBridge::Route::Anthropic},
                                                                    {u"openAI"_s, ClaudeBridge::Route::OpenAI},
                                                                    {u"gemini"_s, ClaudeBridge::Route::Gemini}};
constexpr AIVendor vendors[] = {AIVendor::Anthropic, AIVendor::OpenAI, AIVendor::Gemini};

} // namespace

AssistantView::AssistantView(std::shared_ptr<QSettings> settings, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
    , m_bridge(m_settings)
    , m_captures(m_bridge)
{
    // The question waits for the person; the call it guards resumes with their answer.
    m_bridge.setConsentHook([this](ClaudeBridge::Route route) -> QCoro::Task<bool> {
        QPointer<AssistantView> self(this);
        m_consentQuestion = {{u"route"_s, ClaudeBridge::routeName(route)},
                             {u"destination"_s, ClaudeBridge::routeDestination(route)}};
        emit consentQuestionChanged();
        const std::optional<bool> allowed = co_await qCoro(this, &AssistantView::consentAnswered);
        co_return self && allowed.value_or(false);
    });
}

AssistantView::~AssistantView() = default;

void AssistantView::setStores(AppStore *store, AuthStore *auth, std::shared_ptr<SecretStore> secrets)
{
    m_store = store;
    m_auth = auth;
    m_secrets = secrets;
    refreshKeys();
    if (!auth) {
        m_bridge.setAccess({});
        return;
    }
    QPointer<AuthStore> session(auth);
    m_bridge.setAccess({std::move(secrets), auth->client().baseUrl(), auth->client().anonKey(),
                        [session]() -> QCoro::Task<std::optional<QString>> {
                            if (!session) {
                                co_return std::nullopt;
                            }
                            co_return co_await session->validToken();
                        }});
}

void AssistantView::answerConsent(bool allowed)
{
    if (m_consentQuestion.isEmpty()) {
        return;
    }
    m_consentQuestion.clear();
    emit consentQuestionChanged();
    emit consentAnswered(allowed);
}

void AssistantView::capture(const QString &text)
{
    const QString sentence = text.trimmed();
    if (sentence.isEmpty() || !m_store || m_busy) {
        return;
    }
    if (sentence.size() > maxSentenceLength) {
        //% "That is more than a sentence or two. Say what to add in a few lines."
        m_history.prepend(QVariantMap{{u"prompt"_s, QString(sentence.left(200) + u"…"_s)},
                                      {u"problem"_s, qtTrId("ui.assistant.tooLong")},
                                      {u"failed"_s, true}});
        emit historyChanged();
        return;
    }
    run(sentence);
}

QCoro::Task<> AssistantView::run(QString text)
{
    QPointer<AssistantView> self(this);
    QPointer<AppStore> store = m_store;
    m_busy = true;
    emit busyChanged();
    QStringList names;
    for (const Project &project : store->projects()) {
        names << project.name;
    }
    const AISession understood = co_await m_captures.understand(text, names);
    if (!self) {
        co_return;
    }
    QVariantMap entry{{u"prompt"_s, text}};
    QString problem;
    QStringList done;
    if (!understood.result) {
        //% "The sentence could not be read: %1"
        problem = qtTrId("ui.assistant.notUnderstood").arg(understood.error.value_or(QString()));
    } else if (store) {
        entry.insert(u"understood"_s, CaptureText::understood(understood, store->currency()).join(u'\n'));
        if (understood.result->intent == AIIntent::Unknown) {
            problem = qtTrId("cli.add.unknown");
        } else {
            CaptureJournal journal(*m_settings);
            const AIApplyOutcome outcome =
                co_await applyAIResult(*store, *understood.result, journal.doneSteps(text));
            if (!self || !store) {
                co_return;
            }
            journal.record(text, outcome);
            done = CaptureText::done(*store, outcome);
            if (outcome.error) {
                problem = CaptureText::stopped(outcome);
            } else if (outcome.needsTaskClarification) {
                //% "Which task? None of your tasks is called \"%1\", or several are. Say it as the task list shows it."
                problem = qtTrId("ui.assistant.clarify").arg(understood.result->taskTitle.value_or(u"?"_s));
            }
            if (outcome.focusProjectId || outcome.focusTaskId) {
                emit focusRequested(outcome.focusProjectId.value_or(QString()), outcome.focusTaskId.value_or(QString()));
            }
        }
    }
    entry.insert(u"done"_s, done.join(u'\n'));
    entry.insert(u"problem"_s, problem);
    entry.insert(u"failed"_s, !problem.isEmpty());
    m_history.prepend(entry);
    while (m_history.size() > historyLength) {
        m_history.removeLast();
    }
    m_busy = false;
    emit busyChanged();
    emit historyChanged();
}

QString AssistantView::provider() const
{
    return AIProviders::storedName(m_bridge.provider());
}

void AssistantView::setProvider(const QString &name)
{
    const AIProvider chosen = AIProviders::fromStoredName(name);
    if (AIProviders::storedName(chosen) != name || name == provider()) {
        return;
    }
    m_settings->setValue(u"ai.provider"_s, name);
    emit settingsChanged();
}

QVariantList AssistantView::providers()
{
    const auto row = [](AIProvider provider, const QString &label, const QString &help) {
        return QVariantMap{{u"value"_s, AIProviders::storedName(provider)}, {u"label"_s, label}, {u"help"_s, help}};
    };
    return {
        //% "Automatic (recommended)"
        row(AIProvider::Auto, qtTrId("ui.ai.auto"),
            //% "The Claude CLI first; without it, Morvane AI in the cloud."
            qtTrId("ui.ai.autoHelp")),
        //% "Claude CLI only"
        row(AIProvider::CliOnly, qtTrId("ui.ai.cli"),
            //% "Everything local through your own Claude subscription. No network."
            qtTrId("ui.ai.cliHelp")),
        //% "Morvane AI only"
        row(AIProvider::MorvaneAIOnly, qtTrId("ui.ai.relay"),
            //% "Always through the secured relay of your Morvane server. The CLI is ignored."
            qtTrId("ui.ai.relayHelp")),
        //% "Anthropic API with your key"
        row(AIProvider::AnthropicCustom, qtTrId("ui.ai.anthropic"),
            //% "Straight to Anthropic with the key you keep in your keyring."
            qtTrId("ui.ai.anthropicHelp")),
        //% "OpenAI API with your key"
        row(AIProvider::OpenAICustom, qtTrId("ui.ai.openai"),
            //% "Straight to OpenAI with the key you keep in your keyring."
            qtTrId("ui.ai.openaiHelp")),
        //% "Google Gemini API with your key"
        row(AIProvider::GeminiCustom, qtTrId("ui.ai.gemini"),
            //% "Straight to Google with the key you keep in your keyring."
            qtTrId("ui.ai.geminiHelp")),
    };
}

QVariantList AssistantView::consents() const
{
    QVariantList list;
    for (const auto &[key, route] : offMachineRoutes) {
        const std::optional<bool> answer = m_bridge.consent(route);
        list << QVariantMap{{u"route"_s, key},
                            {u"name"_s, ClaudeBridge::routeName(route)},
                            {u"state"_s, !answer ? u"ask"_s : (*answer ? u"allow"_s : u"deny"_s)}};
    }
    return list;
}

void AssistantView::setConsent(const QString &route, const QString &answer)
{
    for (const auto &[key, value] : offMachineRoutes) {
        if (key != route) {
            continue;
        }
        if (answer == u"ask") {
            m_bridge.clearConsent(value);
        } else if (answer == u"allow" || answer == u"deny") {
            m_bridge.setConsent(value, answer == u"allow");
        }
        emit settingsChanged();
    }
}

void AssistantView::refreshKeys()
{
    [](QPointer<AssistantView> self, std::shared_ptr<SecretStore> secrets) -> QCoro::Task<> {
        QVariantList keys;
        for (const AIVendor vendor : vendors) {
            std::optional<QString> stored;
            if (secrets) {
                stored = co_await secrets->read(ClaudeBridge::keyItem(vendor));
            }
            keys << QVariantMap{{u"vendor"_s, AIWire::vendorName(vendor)},
                                {u"name"_s, AIWire::displayName(vendor)},
                                {u"stored"_s, stored && !stored->isEmpty()}};
        }
        if (self) {
            self->m_keys = keys;
            emit self->keysChanged();
        }
    }(this, m_secrets);
}

void AssistantView::saveKey(const QString &vendor, const QString &key)
{
    const QString trimmed = key.trimmed();
    // A key is one token; anything with spaces or line breaks is a paste gone wrong.
    if (trimmed.isEmpty() || trimmed.size() > 512 || trimmed.contains(QRegularExpression(u"\\s"_s))) {
        //% "That does not look like an API key: paste the key alone, without spaces."
        m_keyMessage = qtTrId("ui.ai.keyInvalid");
        emit keysChanged();
        return;
    }
    changeKey(vendor, trimmed);
}

void AssistantView::removeKey(const QString &vendor)
{
    changeKey(vendor, std::nullopt);
}

QCoro::Task<> AssistantView::changeKey(QString vendor, std::optional<QString> key)
{
    QPointer<AssistantView> self(this);
    const std::optional<AIVendor> known = AIWire::vendorFromName(vendor);
    std::shared_ptr<SecretStore> secrets = m_secrets;
    if (!known || !secrets) {
        co_return;
    }
    const QString item = ClaudeBridge::keyItem(*known);
    const bool done = key ? co_await secrets->write(item, *key) : co_await secrets->remove(item);
    if (!self) {
        co_return;
    }
    self->m_keyMessage = done ? QString()
                              //% "The keyring did not take the change; nothing changed."
                              : qtTrId("ui.ai.keyFailed");
    self->refreshKeys();
}

namespace {

// Why the text shown is the one written from the figures; empty when there is nothing to explain.
QString fixedNote(const QString &reason, const QString &detail)
{
    if (reason.isEmpty()) {
        return {};
    }
    if (reason == u"no_time" || reason == u"nothing_to_tell") {
        //% "Nothing was tracked in this period, so there was nothing to put in words."
        return qtTrId("ui.summary.nothing");
    }
    if (reason == u"call_failed") {
        //% "The model could not be asked (%1). This text is written from your figures alone."
        return qtTrId("ui.summary.callFailed").arg(detail);
    }
    //% "The model's words did not hold up against your figures (%1). This text is written from your figures alone."
    return qtTrId("ui.summary.rejected").arg(reason);
}

} // namespace

void AssistantView::writeSummary(const QString &kind, const QString &language)
{
    if (m_summaryBusy || !m_store || !m_auth || (kind != u"recap" && kind != u"standup")) {
        return;
    }
    summarise(kind, WorkSummary::language(language.isEmpty() ? Language::current() : language));
}

QCoro::Task<> AssistantView::summarise(QString kind, QString lang)
{
    QPointer<AssistantView> self(this);
    QPointer<AppStore> store = m_store;
    QPointer<AuthStore> auth = m_auth;
    m_summaryBusy = true;
    m_summaryKind = kind;
    emit summaryChanged();
    const QDateTime now = QDateTime::currentDateTimeUtc();
    std::optional<WorkSummary::Sources> sources;
    QString failure;
    try {
        sources = co_await WorkSummary::loadSources(*auth, *store, now);
        if (!sources && store) {
            failure = store->lastError();
        }
    } catch (const MorvaneError &error) {
        failure = error.message();
    }
    if (!self) {
        co_return;
    }
    if (!sources) {
        m_summaryText.clear();
        m_summaryFixed = false;
        //% "Your time could not be read: %1"
        m_summaryNote = qtTrId("ui.summary.readFailed").arg(failure);
    } else if (kind == u"recap") {
        const WorkSummary::RecapFacts facts =
            WorkSummary::recapFacts(sources->entries, sources->tasks, sources->projects, sources->defaultHourlyRate,
                                    sources->currency, now, QTimeZone::systemTimeZone());
        const WorkSummary::Written written = co_await WorkSummary::writeRecap(m_bridge, facts, lang);
        if (!self) {
            co_return;
        }
        m_summaryText = written.text;
        m_summaryFixed = !written.fromModel;
        m_summaryNote = fixedNote(written.reason, written.detail);
    } else {
        const WorkSummary::StandupFacts facts = WorkSummary::standupFacts(
            sources->entries, sources->tasks, sources->projects, now, QTimeZone::systemTimeZone());
        const WorkSummary::DailyStandup standup = co_await WorkSummary::writeStandup(m_bridge, facts, lang);
        if (!self) {
            co_return;
        }
        m_summaryText = standup.fullMarkdown;
        m_summaryFixed = !standup.fromModel;
        m_summaryNote = fixedNote(standup.reason, standup.detail);
    }
    m_summaryBusy = false;
    emit summaryChanged();
}

void AssistantView::copySummary() const
{
    if (!m_summaryText.isEmpty()) {
        QGuiApplication::clipboard()->setText(m_summaryText);
    }
}
