#include "backend/runblocking.h"
#include "i18n/language.h"
#include "sessions/claudebridge.h"
#include "summary/summarywriter.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace WorkSummary;

namespace {

const QString me = u"me"_s;
const QString mate = u"mate"_s;

TimeEntry entry(const QString &task, const QString &project, const QString &start, qint64 seconds,
                const QString &by = me)
{
    TimeEntry e;
    e.id = task + start;
    e.userId = me; // the row's owner; who logged it decides whose work it is
    e.loggedByUserId = by;
    e.taskId = task;
    e.projectId = project;
    e.startedAt = start;
    e.durationSeconds = seconds;
    return e;
}

TaskItem task(const QString &id, const QString &project, const QString &owner,
              TaskStatus status = TaskStatus::InProgress, std::optional<QString> due = {},
              TaskPriority priority = TaskPriority::Medium)
{
    TaskItem t;
    t.id = id;
    t.title = id;
    t.projectId = project;
    t.userId = owner;
    t.status = status;
    t.dueDate = due;
    t.priority = priority;
    t.updatedAt = u"2026-03-12T15:00:00Z"_s;
    return t;
}

// A week in Amsterdam (an hour ahead of UTC in March), seen on Friday 13 March 2026 at 11:00 there.
struct Week
{
    QDateTime now = QDateTime(QDate(2026, 3, 13), QTime(10, 0), QTimeZone::utc());
    QTimeZone zone{"Europe/Amsterdam"};
    QList<Project> projects;
    QList<TaskItem> tasks;
    QList<TimeEntry> entries;

    Week()
    {
        Project web;
        web.id = u"web"_s;
        web.name = u"Webshop"_s;
        web.hourlyRate = 80;
        Project brand;
        brand.id = u"brand"_s;
        brand.name = u"Brand"_s;
        projects = {web, brand};
        TaskItem checkout = task(u"Checkout"_s, u"web"_s, me);
        checkout.startedAt = u"2026-03-13T09:30:00Z"_s; // its timer runs
        tasks = {checkout,
                 task(u"Logo"_s, u"brand"_s, me),
                 task(u"Copy"_s, u"brand"_s, me, TaskStatus::Completed),
                 task(u"Mate's review"_s, u"web"_s, mate, TaskStatus::Completed),
                 task(u"Invoice run"_s, u"brand"_s, me, TaskStatus::NotStarted, u"2026-03-12"_s),
                 task(u"Launch"_s, u"web"_s, mate, TaskStatus::NotStarted, u"2026-03-13"_s),
                 task(u"Urgent fix"_s, u"web"_s, me, TaskStatus::NotStarted, {}, TaskPriority::High)};
        tasks[5].attachments = TaskAttachments{QList<TaskAssignee>{{me, u"me@example.nl"_s}}, {}, {}, {}, {}};
        entries = {
            entry(u"Checkout"_s, u"web"_s, u"2026-03-05T09:00:00Z"_s, 3600), // the week before
            entry(u"Copy"_s, u"brand"_s, u"2026-03-06T09:59:59Z"_s, 600),    // a second before the week
            entry(u"Checkout"_s, u"web"_s, u"2026-03-10T08:00:00Z"_s, 7200), // Tuesday
            entry(u"Checkout"_s, u"web"_s, u"2026-03-11T22:30:00Z"_s, 3600), // Wednesday 23:30 there
            entry(u"Checkout"_s, u"web"_s, u"2026-03-11T23:30:00Z"_s, 1800), // Thursday 00:30 there
            entry(u"Logo"_s, u"brand"_s, u"2026-03-12T09:00:00Z"_s, 2700),   // Thursday
            entry(u"Checkout"_s, u"web"_s, u"2026-03-13T07:00:00Z"_s, 1200), // this morning
            entry(u"Mate's review"_s, u"web"_s, u"2026-03-12T10:00:00Z"_s, 18000, mate),
        };
    }

    [[nodiscard]] OwnWork own() const { return ownWork(entries, tasks, me); }
};

RecapFacts sampleRecap()
{
    RecapFacts facts;
    facts.from = u"2026-03-06"_s;
    facts.to = u"2026-03-13"_s;
    facts.totalMinutes = 275;
    facts.previousTotalMinutes = 70;
    facts.daysWorked = 4;
    facts.earningsTotal = 306.67;
    facts.projects = {{u"Webshop"_s, 230, 306.67, 84}, {u"Brand"_s, 45, 0, 16}};
    facts.completedTasks = {u"Copy"_s};
    facts.overdueOpenTasks = 1;
    return facts;
}

} // namespace

class TestWorkSummary : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    std::shared_ptr<QSettings> m_settings;

    QString record() const { return m_dir.filePath(u"record"_s); }

    ClaudeBridge bridge(const QString &mode, const QString &text) const
    {
        QProcessEnvironment environment;
        environment.insert(u"CLAUDE_CLI_PATH"_s, QStringLiteral(FAKE_CLAUDE_PROGRAM));
        environment.insert(u"FAKE_CLAUDE_MODE"_s, mode);
        environment.insert(u"FAKE_CLAUDE_RECORD"_s, record());
        environment.insert(u"FAKE_CLAUDE_TEXT"_s, text);
        return ClaudeBridge(m_settings, environment, m_dir.path());
    }

private Q_SLOTS:
    void initTestCase()
    {
        Language::apply(u"en"_s);
        m_settings = std::make_shared<QSettings>(m_dir.filePath(u"settings.ini"_s), QSettings::IniFormat);
    }

    void init()
    {
        QDir(record()).removeRecursively();
        QDir().mkpath(record());
    }

    // The days are Amsterdam's: an entry at 23:30 UTC on Wednesday is Thursday's work there. The
    // team mate's time and the task they completed stay out; the task assigned to me is mine.
    void factsOfARealisticWeek()
    {
        const Week week;
        const OwnWork own = week.own();
        const RecapFacts recap = recapFacts(own.entries, own.tasks, week.projects, 0, {}, week.now, week.zone);
        RecapFacts expected;
        expected.from = u"2026-03-06"_s;
        expected.to = u"2026-03-13"_s;
        expected.totalMinutes = 275;        // 2 h + 1 h + 30 min + 45 min + 20 min
        expected.previousTotalMinutes = 70; // the hour before and the ten minutes a second too early
        expected.daysWorked = 4;            // Tuesday, Wednesday, Thursday, Friday
        expected.earningsTotal = 306.67;    // 3 h 50 min at 80
        expected.projects = {{u"Webshop"_s, 230, 306.67, 84}, {u"Brand"_s, 45, 0, 16}};
        expected.completedTasks = {u"Copy"_s};
        expected.overdueOpenTasks = 1;
        QCOMPARE(recap, expected);
        // In Tokyo, Wednesday's late work is Thursday morning's.
        QCOMPARE(recapFacts(own.entries, own.tasks, week.projects, 0, {}, week.now, QTimeZone("Asia/Tokyo")).daysWorked,
                 3);

        const StandupFacts standup = standupFacts(own.entries, own.tasks, week.projects, week.now, week.zone);
        StandupFacts day;
        day.today = u"2026-03-13"_s;
        day.lastWorkday =
            LastWorkday{u"2026-03-12"_s, true, 75, {{u"Logo"_s, u"Brand"_s, 45}, {u"Checkout"_s, u"Webshop"_s, 30}}};
        day.todayMinutes = 20;
        day.todayTasks = {{u"Checkout"_s, u"Webshop"_s, 20}};
        day.running = TaskLine{u"Checkout"_s, u"Webshop"_s, 30};
        day.planned = {{u"Invoice run"_s, u"Brand"_s, u"2026-03-12"_s, true, false},
                       {u"Launch"_s, u"Webshop"_s, u"2026-03-13"_s, false, false},
                       {u"Urgent fix"_s, u"Webshop"_s, std::nullopt, false, true}};
        QCOMPARE(standup, day);

        // A week later nothing is left within reach: no last workday, only the open work.
        const StandupFacts later = standupFacts(own.entries, own.tasks, week.projects, week.now.addDays(9), week.zone);
        QVERIFY(!later.lastWorkday);
        QCOMPARE(labels(u"en"_s, standup).first, u"Yesterday"_s);
        StandupFacts monday = standup;
        monday.lastWorkday->isYesterday = false;
        QCOMPARE(labels(u"de"_s, monday).first, u"Donnerstag"_s);
    }

    void durations_data()
    {
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("expected");
        QTest::newRow("59") << 59 << u"en"_s << u"59 min"_s;
        QTest::newRow("60") << 60 << u"en"_s << u"1 h"_s;
        QTest::newRow("61") << 61 << u"en"_s << u"1 h 1 min"_s;
        QTest::newRow("negative") << -5 << u"en"_s << u"0 min"_s;
        QTest::newRow("japanese without blanks") << 65 << u"ja"_s << u"1時間5分"_s;
        QTest::newRow("german units") << 125 << u"de"_s << u"2 Std. 5 Min."_s;
        QTest::newRow("korean is english") << 165 << u"ko"_s << u"2 h 45 min"_s;
    }

    void durations()
    {
        QFETCH(int, minutes);
        QFETCH(QString, lang);
        QTEST(formatDuration(minutes, lang), "expected");
    }

    void fixedTexts_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("recap");
        QTest::addColumn<QString>("standup");
        QTest::newRow("en")
            << u"en"_s
            << u"This week you tracked 4 h 35 min, 3 h 25 min more than the previous week. You worked on 4 days. Most time went to \"Webshop\" (3 h 50 min, €306.67 earned), followed by \"Brand\" (45 min). You completed \"Copy\". 1 open task is past its due date."_s
            << u"Yesterday: 1 h 15 min tracked, on \"Logo\" (Brand, 45 min) and \"Checkout\" (Webshop, 30 min).\nToday: 20 min tracked, on \"Checkout\" (Webshop, 20 min), the timer is running on \"Checkout\" (Webshop), planned: \"Launch\" (Webshop, due today) and \"Urgent fix\" (Webshop, high priority).\nBlockers: \"Invoice run\" (Brand) is overdue since 12 March."_s;
        QTest::newRow("nl")
            << u"nl"_s
            << u"Deze week heb je 4 u 35 min geregistreerd, 3 u 25 min meer dan de week ervoor. Je hebt op 4 dagen gewerkt. De meeste tijd ging naar \"Webshop\" (3 u 50 min, €\u00A0306,67 verdiend), gevolgd door \"Brand\" (45 min). Je hebt \"Copy\" afgerond. 1 openstaande taak is over de deadline."_s
            << u"Gisteren: 1 u 15 min geregistreerd, aan \"Logo\" (Brand, 45 min) en \"Checkout\" (Webshop, 30 min).\nVandaag: 20 min geregistreerd, aan \"Checkout\" (Webshop, 20 min), de timer loopt op \"Checkout\" (Webshop), gepland: \"Launch\" (Webshop, deadline vandaag) en \"Urgent fix\" (Webshop, hoge prioriteit).\nBlokkades: \"Invoice run\" (Brand) is over de deadline sinds 12 maart."_s;
        QTest::newRow("de")
            << u"de"_s
            << u"Diese Woche hast du 4 Std. 35 Min. erfasst, 3 Std. 25 Min. mehr als in der Vorwoche. Du hast an 4 Tagen gearbeitet. Die meiste Zeit ging an „Webshop“ (3 Std. 50 Min., 306,67\u00A0€ verdient), gefolgt von „Brand“ (45 Min.). Du hast „Copy“ abgeschlossen. 1 offene Aufgabe ist überfällig."_s
            << u"Gestern: 1 Std. 15 Min. erfasst, für „Logo“ (Brand, 45 Min.) und „Checkout“ (Webshop, 30 Min.).\nHeute: 20 Min. erfasst, für „Checkout“ (Webshop, 20 Min.), der Timer läuft für „Checkout“ (Webshop), geplant: „Launch“ (Webshop, heute fällig) und „Urgent fix“ (Webshop, hohe Priorität).\nBlocker: „Invoice run“ (Brand) ist seit dem 12. März überfällig."_s;
        QTest::newRow("fr")
            << u"fr"_s
            << u"Cette semaine, vous avez suivi 4 h 35 min, soit 3 h 25 min de plus que la semaine précédente. Vous avez travaillé 4 jours. L'essentiel du temps est allé à «\u00A0Webshop\u00A0» (3 h 50 min, 306,67\u00A0€ gagnés), puis à «\u00A0Brand\u00A0» (45 min). Vous avez terminé «\u00A0Copy\u00A0». 1 tâche ouverte a dépassé son échéance."_s
            << u"Hier\u00A0: 1 h 15 min de travail suivi, sur «\u00A0Logo\u00A0» (Brand, 45 min) et «\u00A0Checkout\u00A0» (Webshop, 30 min).\nAujourd'hui\u00A0: 20 min de travail suivi, sur «\u00A0Checkout\u00A0» (Webshop, 20 min), le minuteur tourne sur «\u00A0Checkout\u00A0» (Webshop), prévu\u00A0: «\u00A0Launch\u00A0» (Webshop, échéance aujourd'hui) et «\u00A0Urgent fix\u00A0» (Webshop, priorité haute).\nBlocages\u00A0: «\u00A0Invoice run\u00A0» (Brand) est en retard depuis le 12 mars."_s;
        QTest::newRow("es")
            << u"es"_s
            << u"Esta semana has registrado 4 h 35 min, 3 h 25 min más que la semana anterior. Has trabajado 4 días. La mayor parte del tiempo fue para «Webshop» (3 h 50 min, 306,67\u00A0€ ganados), seguido de «Brand» (45 min). Has completado «Copy». 1 tarea abierta ha superado su fecha límite."_s
            << u"Ayer: 1 h 15 min de trabajo registrado, en «Logo» (Brand, 45 min) y «Checkout» (Webshop, 30 min).\nHoy: 20 min de trabajo registrado, en «Checkout» (Webshop, 20 min), el temporizador está en marcha en «Checkout» (Webshop), planificado: «Launch» (Webshop, vence hoy) y «Urgent fix» (Webshop, prioridad alta).\nBloqueos: «Invoice run» (Brand) está vencida desde el 12 de marzo."_s;
        QTest::newRow("it")
            << u"it"_s
            << u"Questa settimana hai registrato 4 h 35 min, 3 h 25 min in più rispetto alla settimana precedente. Hai lavorato 4 giorni. La maggior parte del tempo è andata a «Webshop» (3 h 50 min, 306,67\u00A0€ guadagnati), seguito da «Brand» (45 min). Hai completato «Copy». 1 attività aperta ha superato la scadenza."_s
            << u"Ieri: 1 h 15 min di lavoro registrato, su «Logo» (Brand, 45 min) e «Checkout» (Webshop, 30 min).\nOggi: 20 min di lavoro registrato, su «Checkout» (Webshop, 20 min), il timer è in corso su «Checkout» (Webshop), in programma: «Launch» (Webshop, scade oggi) e «Urgent fix» (Webshop, priorità alta).\nBlocchi: «Invoice run» (Brand) è scaduta dal 12 marzo."_s;
        QTest::newRow("pt")
            << u"pt"_s
            << u"Esta semana registou 4 h 35 min, mais 3 h 25 min do que na semana anterior. Trabalhou em 4 dias. A maior parte do tempo foi para «Webshop» (3 h 50 min, 306,67\u00A0€ ganhos), seguido de «Brand» (45 min). Concluiu «Copy». 1 tarefa em aberto passou o prazo."_s
            << u"Ontem: 1 h 15 min de trabalho registado, em «Logo» (Brand, 45 min) e «Checkout» (Webshop, 30 min).\nHoje: 20 min de trabalho registado, em «Checkout» (Webshop, 20 min), o temporizador está a contar em «Checkout» (Webshop), planeado: «Launch» (Webshop, prazo hoje) e «Urgent fix» (Webshop, prioridade alta).\nBloqueios: «Invoice run» (Brand) está em atraso desde 12 de março."_s;
        QTest::newRow("ja")
            << u"ja"_s
            << u"今週は4時間35分を記録しました（前週より3時間25分多い）。4日間作業しました。最も時間を使ったのは「Webshop」（3時間50分、売上€306.67）で、次いで「Brand」（45分）でした。「Copy」を完了しました。期限を過ぎた未完了のタスクが1件あります。"_s
            << u"昨日：合計1時間15分を記録、内訳は「Logo」（Brand、45分）と「Checkout」（Webshop、30分）。\n今日：合計20分を記録、内訳は「Checkout」（Webshop、20分）、「Checkout」（Webshop）のタイマーが作動中、予定：「Launch」（Webshop、今日が期限）と「Urgent fix」（Webshop、優先度高）。\nブロッカー：「Invoice run」（Brand）は3月12日から期限切れ。"_s;
        QTest::newRow("th")
            << u"th"_s
            << u"สัปดาห์นี้คุณบันทึกเวลาไว้ 4 ชม. 35 นาที มากกว่าสัปดาห์ก่อน 3 ชม. 25 นาที คุณทำงานไป 4 วัน เวลาส่วนใหญ่ใช้ไปกับ \"Webshop\" (3 ชม. 50 นาที, รายได้ €306.67) รองลงมาคือ \"Brand\" (45 นาที) คุณทำงานเสร็จแล้ว ได้แก่ \"Copy\" มีงานค้างที่เลยกำหนดแล้ว 1 รายการ"_s
            << u"เมื่อวาน: บันทึกไว้ 1 ชม. 15 นาที กับ \"Logo\" (Brand, 45 นาที) และ \"Checkout\" (Webshop, 30 นาที)\nวันนี้: บันทึกไว้ 20 นาที กับ \"Checkout\" (Webshop, 20 นาที), ตัวจับเวลากำลังเดินอยู่ที่ \"Checkout\" (Webshop), งานที่วางแผนไว้: \"Launch\" (Webshop, ครบกำหนดวันนี้) และ \"Urgent fix\" (Webshop, ความสำคัญสูง)\nอุปสรรค: \"Invoice run\" (Brand) เลยกำหนดมาตั้งแต่ 12 มีนาคม"_s;
    }

    void fixedTexts()
    {
        QFETCH(QString, lang);
        const Week week;
        const OwnWork own = week.own();
        const StandupFacts standup = standupFacts(own.entries, own.tasks, week.projects, week.now, week.zone);
        QTEST(renderRecap(sampleRecap(), lang), "recap");
        QTEST(renderStandup(standup, lang).joined(phrases(lang)), "standup");
    }

    void unknownLanguageIsEnglish()
    {
        QCOMPARE(language(u"ko-KR"_s), u"en"_s);
        QCOMPARE(language(u"pt-BR"_s), u"pt"_s);
        QCOMPARE(renderRecap(sampleRecap(), u"ko"_s), renderRecap(sampleRecap(), u"en"_s));
    }

    void modelTextsAreChecked_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("problem"); // empty: the text may be shown
        const QString good = u"This week you tracked 4 h 35 min, 3 h 25 min more than the previous week. You worked "
                             "on 4 days. Most time went to \"Webshop\" (3 h 50 min, €306.67 earned), followed by "
                             "\"Brand\" (45 min). You completed \"Copy\". 1 open task is past its due date."_s;
        QTest::newRow("faithful") << u"en"_s << good << QString();
        QTest::newRow("empty") << u"en"_s << u" \n "_s << u"empty"_s;
        QTest::newRow("placeholder") << u"en"_s << u"You worked on <number> days."_s << u"placeholder"_s;
        QTest::newRow("bullets") << u"en"_s << u"Recap:\n- \"Webshop\" 3 h 50 min."_s << u"list"_s;
        QTest::newRow("numbered") << u"en"_s << u"1. You worked on 4 days."_s << u"list"_s;
        QTest::newRow("eight sentences") << u"en"_s << u"Good. Week. You worked. Hard. On 4 days. Yes. Well. Done."_s
                                         << u"sentences:8"_s;
        QTest::newRow("invented name") << u"en"_s << u"Most time went to \"Webshop Redesign\"."_s << u"unknown_name"_s;
        QTest::newRow("invented number") << u"en"_s << u"You worked on 5 days."_s << u"unknown_number"_s;
        QTest::newRow("english in german")
            << u"de"_s << u"Diese Woche hast du 4 Std. 35 Min. tracked."_s << u"english:tracked"_s;
        QTest::newRow("project in german")
            << u"de"_s << u"Die meiste Zeit ging an das project „Webshop“."_s << u"english:project"_s;
        QTest::newRow("project is dutch") << u"nl"_s << u"De meeste tijd ging naar project \"Webshop\"."_s << QString();
        QTest::newRow("german units are no sentence ends")
            << u"de"_s
            << u"Diese Woche hast du 4 Std. 35 Min. erfasst. A 3 Std. 50 Min. B 45 Min. C 4 Std. 35 Min. D 45 Min. "
               "E 3 Std. 25 Min. F."_s
            << QString();
    }

    void modelTextsAreChecked()
    {
        QFETCH(QString, lang);
        QFETCH(QString, text);
        QFETCH(QString, problem);
        const RecapFacts facts = sampleRecap();
        const std::optional<QString> found =
            recapProblem(cleanOutput(text), facts.names(), recapFactsText(facts, lang), facts, lang);
        QCOMPARE(found.value_or(QString()), problem);
    }

    void standupLinesAreChecked_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("problem");
        QTest::newRow("run together, bold labels")
            << u"en"_s
            << u"**Yesterday:** 1 h 15 min on \"Logo\". Today: 20 min on \"Checkout\". Blockers: \"Invoice run\" "
               "since 12 March."_s
            << QString();
        QTest::newRow("japanese full stops")
            << u"ja"_s << u"昨日：1時間15分。今日：20分。ブロッカー：ブロッカーなし"_s << QString();
        QTest::newRow("two lines") << u"en"_s << u"Yesterday: 1 h 15 min.\nBlockers: No blockers."_s << u"lines:2"_s;
        QTest::newRow("wrong order") << u"en"_s << u"Today: 20 min. Yesterday: 1 h 15 min. Blockers: No blockers."_s
                                     << u"labels"_s;
        QTest::newRow("invented task") << u"en"_s
                                       << u"Yesterday: 1 h 15 min. Today: \"Deploy\". Blockers: No blockers."_s
                                       << u"unknown_name"_s;
        QTest::newRow("english in french")
            << u"fr"_s << u"Hier : 1 h 15 min. Aujourd'hui : 20 min. Blocages : no blockers."_s
            << u"english:no blockers"_s;
    }

    void standupLinesAreChecked()
    {
        QFETCH(QString, lang);
        QFETCH(QString, text);
        QFETCH(QString, problem);
        const Week week;
        const OwnWork own = week.own();
        const StandupFacts facts = standupFacts(own.entries, own.tasks, week.projects, week.now, week.zone);
        const Labels words = labels(lang, facts);
        const QString lines = toThreeLines(cleanOutput(text), lang, words);
        const std::optional<QString> found =
            standupProblem(lines, words, facts.names(), standupFactsText(facts, lang), lang);
        QCOMPARE(found.value_or(QString()), problem);
    }

    // The fake program answers or fails; an empty week or day never reaches it.
    void modelCall_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("empty");
        QTest::addColumn<bool>("called");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty week") << u"result"_s << QString() << true << false << u"no_time"_s;
        QTest::newRow("faithful answer") << u"result"_s << u"This week you tracked 4 h 35 min. You worked on 4 days."_s
                                         << false << true << QString();
        QTest::newRow("invented name") << u"result"_s << u"You tracked 4 h 35 min on \"Secret\"."_s << false << true
                                       << u"unknown_name"_s;
        QTest::newRow("program fails") << u"fail"_s << QString() << false << true << u"call_failed"_s;
    }

    void modelCall()
    {
        QFETCH(QString, mode);
        QFETCH(QString, answer);
        QFETCH(bool, empty);
        QFETCH(QString, reason);
        ClaudeBridge claude = bridge(mode, answer);
        const RecapFacts facts = empty ? RecapFacts{} : sampleRecap();
        const Written written = runBlocking(writeRecap(claude, facts, u"en"_s));
        QCOMPARE(written.reason, reason);
        QCOMPARE(written.fromModel, reason.isEmpty());
        QCOMPARE(written.text, reason.isEmpty() ? answer : renderRecap(facts, u"en"_s));
        QTEST(QFile::exists(record() + u"/args"_s), "called");
        if (QFile::exists(record() + u"/args"_s)) {
            QFile input(record() + u"/stdin"_s);
            QVERIFY(input.open(QIODevice::ReadOnly));
            QVERIFY(input.readAll().startsWith("FACTS:\nPeriod: "));
        }
        if (empty) {
            const DailyStandup standup = runBlocking(writeStandup(claude, StandupFacts{}, u"en"_s));
            QCOMPARE(standup.reason, u"nothing_to_tell"_s);
            QVERIFY(!QFile::exists(record() + u"/args"_s));
        }
    }
};

QTEST_GUILESS_MAIN(TestWorkSummary)
#include "tst_worksummary.moc"
