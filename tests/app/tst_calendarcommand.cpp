#include "pg/pgconnection.h"
#include "support/morvanecli.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

// `morvane calendar` end to end: a calendar file added, a day listed and imported twice.
class TestCalendarCommand : public QObject
{
    Q_OBJECT

    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    using Run = MorvaneCli::Run;

    // In UTC, so that the day's events are the fixture's UTC day.
    Run run(const QStringList &arguments) const
    {
        QProcessEnvironment environment = ann.environment();
        environment.insert(u"TZ"_s, u"UTC"_s);
        return MorvaneCli::finish(*ann.start(arguments, environment));
    }

    qint64 entries()
    {
        return m_backend.database().exec("SELECT count(*) FROM time_entries").value(0, 0).toLongLong();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        m_backend.database().exec("INSERT INTO projects (user_id, name) SELECT id, 'Client work' FROM auth.users "
                                  "WHERE email = 'ann@example.nl'");
    }

    void importsADayOnce()
    {
        const Run none = run({u"calendar"_s, u"events"_s, u"--day"_s, u"2025-03-10"_s});
        QCOMPARE(none.code, 1);
        QVERIFY(none.err.contains(u"No calendars yet"_s));

        const QString file = QStringLiteral(MORVANE_TEST_DATA "/calendar/mixed.ics");
        QCOMPARE(run({u"calendar"_s, u"add"_s, file}).code, 0);
        const Run listed = run({u"calendar"_s, u"events"_s, u"--day"_s, u"2025-03-10"_s, u"--json"_s});
        QCOMPARE(listed.code, 0);
        const QJsonArray events = listed.json().array();
        QCOMPARE(events.size(), 5);
        QCOMPARE(events.first()[u"title"_s].toString(), u"Floating standup"_s);
        QCOMPARE(events.first()[u"imported"_s].toBool(), false);

        const Run homeless = run({u"calendar"_s, u"import"_s, u"--day"_s, u"2025-03-10"_s, u"--all"_s});
        QCOMPARE(homeless.code, 2);
        QCOMPARE(entries(), 0);

        const QStringList import{u"calendar"_s, u"import"_s, u"--day"_s, u"2025-03-10"_s,
                                 u"--project"_s, u"Client work"_s, u"--all"_s};
        const Run first = run(import);
        QCOMPARE(first.code, 0);
        QVERIFY2(first.out.contains(u"Imported 5 events; 0 were imported before."_s), qPrintable(first.out + first.err));
        const Run second = run(import);
        QCOMPARE(second.code, 0);
        QVERIFY2(second.out.contains(u"Imported 0 events; 5 were imported before."_s), qPrintable(second.out));
        QCOMPARE(entries(), 5);

        const Run after = run({u"calendar"_s, u"events"_s, u"--day"_s, u"2025-03-10"_s, u"--json"_s});
        for (const QJsonValue &event : after.json().array()) {
            QVERIFY(event[u"imported"_s].toBool());
        }

        QCOMPARE(run({u"calendar"_s, u"rm"_s, u"mixed"_s}).code, 0);
        QVERIFY(run({u"calendar"_s, u"list"_s}).out.contains(u"No calendars yet"_s));
    }
};

QTEST_GUILESS_MAIN(TestCalendarCommand)
#include "tst_calendarcommand.moc"
