#include "ui/assistantview.h"

#include "backend/authstore.h"
#include "capture/applyairesult.h"
#include "capture/capturetext.h"
#include "store/appstore.h"

#include <QCoroSignal>

using namespace Qt::StringLiterals;

namespace {

// A sentence is a few lines at most; more is a pasted document the model would only guess at.
constexpr qsizetype maxSentenceLength = 4000;
// The history of one run: enough to look back over a day without growing without end.
constexpr qsizetype historyLength = 50;

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
