#include "store/idlewatcher.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Answers the watcher's question with whatever idle time the test set last, as a desktop's idle
// monitor does; answers nothing where none is set.
class FakeIdleSource : public IdleSource
{
public:
    std::optional<qint64> idleMilliseconds;
    void requestIdleTime() override
    {
        if (idleMilliseconds) {
            emit idleTime(*idleMilliseconds);
        }
    }
};

// Monday 2 March 2026, in UTC, the zone of the working day here.
const QDate monday(2026, 3, 2);

QString clockText(const QDateTime &instant)
{
    const QDateTime utc = instant.toUTC();
    const QString days = utc.date() == monday ? QString() : u"+%1d "_s.arg(monday.daysTo(utc.date()));
    return days + utc.time().toString(utc.time().second() ? u"HH:mm:ss"_s : u"HH:mm"_s);
}

QDateTime instantOf(const QString &text)
{
    static const QRegularExpression form(u"^(?:\\+(\\d+)d )?(\\d\\d:\\d\\d(?::\\d\\d)?)$"_s);
    const QRegularExpressionMatch match = form.match(text);
    Q_ASSERT(match.hasMatch());
    QTime time = QTime::fromString(match.captured(2), u"HH:mm:ss"_s);
    if (!time.isValid()) {
        time = QTime::fromString(match.captured(2), u"HH:mm"_s);
    }
    return QDateTime(monday.addDays(match.captured(1).toInt()), time, QTimeZone::utc());
}

} // namespace

// The rules of time that needs a decision, driven by an injected clock and idle source: each row
// is a morning of events ("09:45 idle 900" is an idle reading of 900 seconds at 09:45) and the
// questions, stops and nudges the watcher gave in answer.
class TestIdleWatcher : public QObject
{
    Q_OBJECT

private slots:
    void decisions_data()
    {
        QTest::addColumn<QVariantMap>("settings");
        QTest::addColumn<QStringList>("events");
        QTest::addColumn<QStringList>("expected");

        const QStringList away{u"09:00 run"_s, u"09:30 idle 0"_s, u"09:45 idle 900"_s, u"09:46 idle 5"_s};
        const QString asked = u"ask t 09:30-09:45:55"_s;
        QTest::newRow("keeping asks once and changes nothing")
            << QVariantMap() << away + QStringList{u"09:47 keep"_s, u"09:50 idle 2"_s} << QStringList{asked};
        QTest::newRow("discarding stops at the moment they left")
            << QVariantMap() << away + QStringList{u"09:47 discard"_s} << QStringList{asked, u"stop t 09:30"_s};
        QTest::newRow("discarding and going on starts the task again")
            << QVariantMap() << away + QStringList{u"09:47 continue"_s}
            << QStringList{asked, u"stop t 09:30 and start again"_s};
        QTest::newRow("an idle counter running on across the return asks nothing more")
            << QVariantMap() << away + QStringList{u"09:47 keep"_s, u"09:48 idle 1080"_s, u"09:49 idle 1"_s}
            << QStringList{asked};
        QTest::newRow("a stop elsewhere withdraws the question")
            << QVariantMap() << away + QStringList{u"09:47 stop"_s, u"09:48 discard"_s} << QStringList{asked};
        QTest::newRow("no timer, no question")
            << QVariantMap() << QStringList{u"09:30 idle 0"_s, u"09:45 idle 900"_s, u"09:46 idle 5"_s} << QStringList();
        QTest::newRow("a timer started while away is not asked about")
            << QVariantMap() << QStringList{u"09:45 idle 900"_s, u"09:45:30 run"_s, u"09:46 idle 5"_s} << QStringList();
        QTest::newRow("exactly the threshold is not longer than it")
            << QVariantMap() << QStringList{u"09:00 run"_s, u"09:40 idle 600"_s, u"09:41 idle 1"_s} << QStringList();
        QTest::newRow("a second past the threshold asks")
            << QVariantMap() << QStringList{u"09:00 run"_s, u"09:40:01 idle 601"_s, u"09:40:30 idle 2"_s}
            << QStringList{u"ask t 09:30-09:40:28"_s};
        QTest::newRow("a longer threshold waits longer")
            << QVariantMap{{u"idleThresholdMinutes"_s, 20}} << away << QStringList();
        QTest::newRow("locking while active leaves at the lock")
            << QVariantMap() << QStringList{u"09:00 run"_s, u"09:10 idle 0"_s, u"09:11 lock"_s, u"09:40 unlock"_s}
            << QStringList{u"ask t 09:11-09:40"_s};
        QTest::newRow("a screen that locked itself leaves at the last input")
            << QVariantMap() << QStringList{u"09:00 run"_s, u"09:15 idle 300"_s, u"09:17 lock"_s, u"09:30 unlock"_s}
            << QStringList{u"ask t 09:10-09:30"_s};
        QTest::newRow("a short lock is no absence")
            << QVariantMap() << QStringList{u"09:00 run"_s, u"09:11 lock"_s, u"09:21 unlock"_s} << QStringList();
        QTest::newRow("sleep counts as away")
            << QVariantMap() << QStringList{u"09:00 run"_s, u"12:00 idle 0"_s, u"12:00:05 sleep"_s, u"13:00 wake"_s}
            << QStringList{u"ask t 12:00:05-13:00"_s};
        QTest::newRow("waking to a locked screen waits for the unlock")
            << QVariantMap()
            << QStringList{u"09:00 run"_s, u"12:00 lock"_s, u"12:00 sleep"_s, u"13:00 wake"_s, u"13:00:30 idle 0"_s,
                           u"13:01 unlock"_s}
            << QStringList{u"ask t 12:00-13:01"_s};

        const QVariantMap endOfDay{{u"endOfDay"_s, u"18:00"_s}};
        QTest::newRow("forgot to stop: the end of the day stops the run there, once")
            << endOfDay << QStringList{u"17:00 run"_s, u"17:59 poll"_s, u"18:00 poll"_s, u"18:01 poll"_s}
            << QStringList{u"stop t 18:00"_s, u"limit end of day 18:00"_s};
        QTest::newRow("forgot to stop: a run started in the evening ends the next day")
            << endOfDay << QStringList{u"19:00 run"_s, u"23:00 poll"_s, u"+1d 18:30 poll"_s}
            << QStringList{u"stop t +1d 18:00"_s, u"limit end of day +1d 18:00"_s};
        QTest::newRow("forgot to stop: the longest run ends it first")
            << QVariantMap{{u"endOfDay"_s, u"18:00"_s}, {u"maxRunMinutes"_s, 600}}
            << QStringList{u"19:00 run"_s, u"+1d 04:59 poll"_s, u"+1d 08:00 poll"_s}
            << QStringList{u"stop t +1d 05:00"_s, u"limit longest run +1d 05:00"_s};
        QTest::newRow("forgot to stop: a run past its limit while away is stopped, not asked about")
            << endOfDay << QStringList{u"17:00 run"_s, u"17:30 idle 0"_s, u"17:45 idle 900"_s, u"+1d 09:00 idle 3"_s}
            << QStringList{u"stop t 18:00"_s, u"limit end of day 18:00"_s};

        const QVariantMap reminders{{u"remindersEnabled"_s, true}};
        QTest::newRow("reminders nudge every half hour within working hours")
            << reminders << QStringList{u"09:29 poll"_s, u"09:30 poll"_s, u"09:45 poll"_s, u"10:00 poll"_s, u"17:00 poll"_s}
            << QStringList{u"remind 09:30"_s, u"remind 10:00"_s};
        QTest::newRow("reminders count from the last stop and skip days off")
            << reminders << QStringList{u"09:00 run"_s, u"09:10 stop"_s, u"09:39 poll"_s, u"09:40 poll"_s, u"+5d 10:00 poll"_s}
            << QStringList{u"remind 09:40"_s};
        QTest::newRow("reminders leave an empty room alone")
            << reminders << QStringList{u"09:40 idle 900"_s} << QStringList();
    }

    void decisions()
    {
        QFETCH(QVariantMap, settings);
        QFETCH(QStringList, events);
        QFETCH(QStringList, expected);

        QTemporaryDir folder;
        auto stored = std::make_shared<QSettings>(folder.filePath(u"settings.ini"_s), QSettings::IniFormat);
        QDateTime now = instantOf(u"09:00"_s);
        IdleWatcher watcher(stored, [&] { return now; });
        watcher.setTimeZone(QTimeZone::utc());
        FakeIdleSource source;
        watcher.setSource(&source);
        for (auto it = settings.cbegin(); it != settings.cend(); ++it) {
            QVERIFY(watcher.setProperty(it.key().toUtf8().constData(), it.value()));
        }

        QStringList log;
        connect(&watcher, &IdleWatcher::questionChanged, this, [&] {
            if (watcher.isAsking()) {
                log.append(u"ask %1 %2-%3"_s.arg(watcher.questionTaskId(), clockText(watcher.leftAt()),
                                                   clockText(watcher.returnedAt())));
            }
        });
        connect(&watcher, &IdleWatcher::stopRequested, this, [&](const QString &taskId, const QDateTime &at, bool again) {
            log.append(u"stop %1 %2%3"_s.arg(taskId, clockText(at), again ? u" and start again"_s : QString()));
        });
        connect(&watcher, &IdleWatcher::limitReached, this,
                [&](const QString &, const QDateTime &at, IdleWatcher::Limit limit) {
                    log.append(u"limit %1 %2"_s.arg(limit == IdleWatcher::Limit::EndOfDay ? u"end of day"_s
                                                                                           : u"longest run"_s,
                                                    clockText(at)));
                });
        connect(&watcher, &IdleWatcher::reminderDue, this, [&] { log.append(u"remind "_s + clockText(now)); });

        for (const QString &event : events) {
            const qsizetype verbAt = event.indexOf(u' ', event.startsWith(u'+') ? event.indexOf(u' ') + 1 : 0);
            now = instantOf(event.left(verbAt));
            const QStringList words = event.mid(verbAt + 1).split(u' ');
            const QString &verb = words.first();
            if (verb == u"run") {
                watcher.setRunning(IdleWatcher::Run{u"t"_s, now});
            } else if (verb == u"stop") {
                watcher.setRunning(std::nullopt);
            } else if (verb == u"idle") {
                source.idleMilliseconds = words.at(1).toLongLong() * 1000;
                watcher.poll();
            } else if (verb == u"poll") {
                watcher.poll();
            } else if (verb == u"lock" || verb == u"unlock") {
                emit source.lockedChanged(verb == u"lock");
            } else if (verb == u"sleep" || verb == u"wake") {
                emit source.sleepingChanged(verb == u"sleep");
            } else if (verb == u"keep") {
                watcher.keep();
            } else if (verb == u"discard") {
                watcher.discard();
            } else if (verb == u"continue") {
                watcher.discardAndContinue();
            } else {
                QFAIL(qPrintable(u"unknown event "_s + event));
            }
        }
        QCOMPARE(log, expected);
    }

    void settingsPersistAndRefuseNonsense()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"settings.ini"_s);
        {
            IdleWatcher watcher(std::make_shared<QSettings>(path, QSettings::IniFormat));
            QCOMPARE(watcher.idleThresholdMinutes(), 10);
            QCOMPARE(watcher.endOfDayText(), QString());
            QCOMPARE(watcher.reminderDays(), (QList<int>{1, 2, 3, 4, 5}));
            watcher.setIdleThresholdMinutes(15);
            watcher.setIdleThresholdMinutes(0);
            watcher.setEndOfDay(u" 07:30 "_s);
            watcher.setEndOfDay(u"25:00"_s);
            watcher.setMaxRunMinutes(-5);
            watcher.setMaxRunMinutes(480);
            watcher.setReminderDays({7, 1, 1, 9});
            watcher.setReminderFrom(u"noon"_s);
        }
        IdleWatcher again(std::make_shared<QSettings>(path, QSettings::IniFormat));
        QCOMPARE(again.idleThresholdMinutes(), 15);
        QCOMPARE(again.endOfDayText(), u"07:30"_s);
        QCOMPARE(again.maxRunMinutes(), 480);
        QCOMPARE(again.reminderDays(), (QList<int>{1, 7}));
        QCOMPARE(again.reminderFromText(), u"09:00"_s);
        again.setEndOfDay(u"17:45"_s);
        QCOMPARE(again.endOfDayText(), u"17:45"_s);
        again.setEndOfDay(QString());
        QCOMPARE(again.endOfDay(), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TestIdleWatcher)
#include "tst_idlewatcher.moc"
