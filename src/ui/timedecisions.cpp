#include "timedecisions.h"

#include "store/appstore.h"
#include "store/idlewatcher.h"
#include "ui/desktopidlesource.h"
#include "ui/desktopshell.h"
#include "ui/notifier.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

QString taskTitle(const DesktopShell &shell, const QString &taskId)
{
    const std::optional<TaskItem> task = shell.store() ? shell.store()->task(taskId) : std::nullopt;
    return task ? task->title : QString();
}

QString clockTime(const QDateTime &instant)
{
    return QLocale().toString(instant.toLocalTime().time(), QLocale::ShortFormat);
}

} // namespace

IdleWatcher *createTimeDecisions(DesktopShell &shell, const Clock &clock)
{
    auto *watcher = new IdleWatcher(shell.settings(), clock, &shell);
    watcher->setSource(new DesktopIdleSource(watcher));
    auto *notifier = new Notifier(watcher);
    QObject::connect(&shell, &DesktopShell::storesChanged, watcher, [&shell, watcher] { watcher->attach(shell.store()); });
    watcher->attach(shell.store());

    QObject::connect(watcher, &IdleWatcher::limitReached, notifier,
                     [&shell, notifier](const QString &taskId, const QDateTime &endedAt, IdleWatcher::Limit limit) {
                         const QString title = limit == IdleWatcher::Limit::EndOfDay
                                                   //% "Timer stopped at the end of your day"
                                                   ? qtTrId("ui.timeLimit.endOfDay")
                                                   //% "Timer stopped after its longest run"
                                                   : qtTrId("ui.timeLimit.longestRun");
                         //% "“%1” was stopped at %2, and the time until then is logged."
                         const QString body = qtTrId("ui.timeLimit.body").arg(taskTitle(shell, taskId), clockTime(endedAt));
                         notifier->notify(u"timer-limit"_s, title, body);
                     });
    QObject::connect(watcher, &IdleWatcher::reminderDue, notifier, [notifier] {
        //% "No timer is running"
        const QString title = qtTrId("ui.reminder.title");
        //% "Start a timer so that the work you are doing now is counted."
        notifier->notify(u"timer-reminder"_s, title, qtTrId("ui.reminder.body"));
    });
    // The question waits in the window; a notification brings the person to it when the window
    // is hidden, and goes once it is answered.
    QObject::connect(watcher, &IdleWatcher::questionChanged, notifier, [&shell, watcher, notifier] {
        if (!watcher->isAsking()) {
            notifier->withdraw(u"idle"_s);
            return;
        }
        //% "You were away"
        const QString title = qtTrId("ui.idle.title");
        //% "The timer of “%1” ran while you were away from %2 to %3."
        const QString body = qtTrId("ui.idle.notification")
                                 .arg(taskTitle(shell, watcher->questionTaskId()), clockTime(watcher->leftAt()),
                                      clockTime(watcher->returnedAt()));
        // Where the service shows buttons the question can be answered from the notification too.
        notifier->notify(u"idle"_s, title, body,
                         {{u"discardAndContinue"_s, qtTrId("ui.idle.discardContinue")},
                          {u"discard"_s, qtTrId("ui.idle.discard")},
                          {u"keep"_s, qtTrId("ui.idle.keep")}});
    });
    QObject::connect(notifier, &Notifier::actionInvoked, watcher, [watcher](const QString &key, const QString &action) {
        static const QStringList answers{u"keep"_s, u"discard"_s, u"discardAndContinue"_s};
        if (key == u"idle" && watcher->isAsking() && answers.contains(action)) {
            QMetaObject::invokeMethod(watcher, action.toLatin1().constData());
        }
    });
    watcher->start();
    return watcher;
}
