#include "summary/worksummary.h"

#include "billing/earningsreport.h"
#include "billing/money.h"
#include "model/daykey.h"
#include "model/isodate.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace WorkSummary {

namespace {

constexpr qint64 weekSeconds = 604800;
constexpr int listMax = 4;

int toMinutes(qint64 seconds)
{
    return int((std::max<qint64>(seconds, 0) + 30) / 60);
}

QString isoDay(const QDate &date)
{
    return date.toString(Qt::ISODate);
}

std::optional<QDate> dueDay(const TaskItem &task)
{
    if (!task.dueDate) {
        return std::nullopt;
    }
    const QDate day = QDate::fromString(task.dueDate->left(10), Qt::ISODate);
    return day.isValid() ? std::optional(day) : std::nullopt;
}

QString projectOf(const QHash<QString, QString> &projectNames, const QString &projectId)
{
    return projectNames.value(projectId);
}

QHash<QString, QString> projectNames(const QList<Project> &projects)
{
    QHash<QString, QString> names;
    for (const Project &project : projects) {
        names.insert(project.id, project.name);
    }
    return names;
}

// Task lines of a set of entries: per task, most time first, ties in the order first met.
QList<TaskLine> taskLines(const QList<TimeEntry> &entries, const QHash<QString, const TaskItem *> &tasks,
                          const QHash<QString, QString> &projects)
{
    QList<QString> order;
    QHash<QString, qint64> seconds;
    for (const TimeEntry &entry : entries) {
        if (!seconds.contains(entry.taskId)) {
            order << entry.taskId;
        }
        seconds[entry.taskId] += std::max<qint64>(entry.durationSeconds, 0);
    }
    QList<TaskLine> lines;
    for (const QString &taskId : order) {
        const TaskItem *task = tasks.value(taskId);
        if (!task) {
            continue;
        }
        lines << TaskLine{task->title, projectOf(projects, task->projectId), toMinutes(seconds.value(taskId))};
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const TaskLine &a, const TaskLine &b) { return a.minutes > b.minutes; });
    return lines;
}

QString quoted(const QString &name)
{
    return u'"' + name + u'"';
}

QStringList quotedAll(const QStringList &names)
{
    QStringList result;
    for (const QString &name : names) {
        result << quoted(name);
    }
    return result;
}

// The FACTS name the words the fixed text would use for a cut list, so that the model cuts alike.
QString moreHint(qsizetype count, const QString &lang)
{
    if (count <= listMax) {
        return {};
    }
    return u"If you name only the first four, end the list with: "_s +
           phrases(lang).more(int(count - listMax)).trimmed() + u'\n';
}

QString withEnd(const QString &sentence, const Phrases &p)
{
    return sentence.endsWith(p.lineEnd) ? sentence : sentence + p.lineEnd;
}

const QRegularExpression &quotePattern()
{
    static const QRegularExpression pattern(u"[\"“„«「]([^\"“”„«»「」\\n]{1,200})[\"”»“」]"_s);
    return pattern;
}

const QRegularExpression &placeholderPattern()
{
    static const QRegularExpression pattern(u"<[^<>\\n]{1,80}>"_s);
    return pattern;
}

std::optional<QString> unknownName(const QString &text, const QStringList &names)
{
    auto matches = quotePattern().globalMatch(text);
    while (matches.hasNext()) {
        const QString inside = matches.next().captured(1).trimmed();
        if (!names.contains(inside)) {
            return u"unknown_name"_s;
        }
    }
    return std::nullopt;
}

QSet<QString> digitRuns(const QString &text)
{
    static const QRegularExpression digits(u"\\d+"_s);
    QSet<QString> runs;
    auto matches = digits.globalMatch(text);
    while (matches.hasNext()) {
        runs.insert(matches.next().captured());
    }
    return runs;
}

std::optional<QString> unknownNumber(const QString &text, const QString &known)
{
    const QSet<QString> allowed = digitRuns(known);
    for (const QString &run : digitRuns(text)) {
        if (!allowed.contains(run)) {
            return u"unknown_number"_s;
        }
    }
    return std::nullopt;
}

// English words of the FACTS that a model writing another language copied by mistake. Quoted
// names are taken out first: a project may well be called "Tracked Hours".
std::optional<QString> englishLeft(const QString &text, const QString &lang)
{
    if (lang == u"en") {
        return std::nullopt;
    }
    QString outside = text;
    outside.replace(quotePattern(), u" "_s);
    static const QRegularExpression filler(
        u"(?<![A-Za-z0-9_])(tracked|mostly on|planned|nothing (?:tracked|yet)|overdue|due today|due on|high priority|"
        "no blockers|this week|previous week|last week|earned|completed|worked on|time went|followed by)"
        "(?![A-Za-z0-9_])"_s,
        QRegularExpression::CaseInsensitiveOption);
    if (const QRegularExpressionMatch match = filler.match(outside); match.hasMatch()) {
        return u"english:"_s + match.captured(1).toLower();
    }
    static const QRegularExpression word(u"[\\p{L}\\p{M}][\\p{L}\\p{M}'’-]*"_s);
    auto words = word.globalMatch(outside);
    while (words.hasNext()) {
        const QString found = words.next().captured().toLower();
        // "project" is also a Dutch word.
        if (found == u"projects" || (found == u"project" && lang != u"nl")) {
            return u"english:"_s + found;
        }
    }
    return std::nullopt;
}

std::optional<QString> sharedProblems(const QString &text, const QStringList &names, const QString &known,
                                      const QString &lang)
{
    if (placeholderPattern().match(text).hasMatch()) {
        return u"placeholder"_s;
    }
    if (auto problem = unknownName(text, names)) {
        return problem;
    }
    if (auto problem = unknownNumber(text, known)) {
        return problem;
    }
    return englishLeft(text, lang);
}

// The formatted values of a recap, as the model may copy them.
QStringList recapValues(const RecapFacts &facts, const QString &lang)
{
    QStringList values{
        formatDuration(facts.totalMinutes, lang),
        formatDuration(facts.previousTotalMinutes, lang),
        formatDuration(std::abs(facts.totalMinutes - facts.previousTotalMinutes), lang),
        formatMoney(facts.earningsTotal, facts.currency, lang),
        formatDate(facts.from, lang),
        formatDate(facts.to, lang),
    };
    for (const ProjectLine &line : facts.projects) {
        values << formatDuration(line.minutes, lang) << formatMoney(line.earnings, facts.currency, lang);
    }
    return values;
}

int sentenceCount(QString text, QStringList values)
{
    // Units such as "Std." and the points inside amounts and dates do not end a sentence.
    std::sort(values.begin(), values.end(), [](const QString &a, const QString &b) { return a.size() > b.size(); });
    for (const QString &value : std::as_const(values)) {
        if (!value.isEmpty()) {
            text.replace(value, u"0"_s);
        }
    }
    text.replace(quotePattern(), u"X"_s);
    static const QRegularExpression end(u"[.!?。！？]+(?=\\s|$)"_s);
    int count = 0;
    qsizetype after = 0;
    auto matches = end.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        ++count;
        after = match.capturedEnd();
    }
    if (!text.mid(after).trimmed().isEmpty()) {
        ++count;
    }
    return count;
}

QString recapExample(const QString &lang)
{
    if (lang == u"nl") {
        return u"Deze week heb je <duur> geregistreerd, <verschil> meer dan de week ervoor. Je hebt op <aantal> "
               "dagen gewerkt. De meeste tijd ging naar \"<project X>\" (<duur>, <bedrag> verdiend), gevolgd door "
               "\"<project Y>\" (<duur>). Je hebt \"<taak A>\" en \"<taak B>\" afgerond."_s;
    }
    return u"This week you tracked <duration>, <difference> more than the previous week. You worked on <number> "
           "days. Most time went to \"<project X>\" (<duration>, <amount> earned), followed by \"<project Y>\" "
           "(<duration>). You completed \"<task A>\" and \"<task B>\"."_s;
}

QString standupExample(const QString &lang, const Labels &l)
{
    if (lang == u"nl") {
        return l.first +
               u": <duur> geregistreerd, aan \"<taak A>\" (<project X>, <duur>) en \"<taak B>\" "
               "(<project X>, <duur>).\n"_s +
               l.today + u": nog niets geregistreerd, gepland: \"<taak C>\" (<project X>, deadline vandaag).\n"_s +
               l.blockers + u": \"<taak D>\" (<project Y>) is over de deadline sinds <datum>."_s;
    }
    return l.first +
           u": <duration> tracked, on \"<task A>\" (<project X>, <duration>) and \"<task B>\" "
           "(<project X>, <duration>).\n"_s +
           l.today + u": nothing tracked yet, planned: \"<task C>\" (<project X>, due today).\n"_s + l.blockers +
           u": \"<task D>\" (<project Y>) is overdue since <date>."_s;
}

QString exampleNote(const QString &lang)
{
    if (lang == u"en" || lang == u"nl") {
        return {};
    }
    return u" The example is in English; write your answer in "_s + languageName(lang) +
           u". The FACTS use English headings; never copy an English word into your answer."_s;
}

const QString noEmDashNoShould =
    u"Never use em dashes. Never use the word \"should\" or its translation in your language."_s;

QString plannedText(const PlannedItem &item, const StandupFacts &facts, const QString &lang)
{
    const Phrases &p = phrases(lang);
    QStringList parts;
    if (!item.project.isEmpty()) {
        parts << item.project;
    }
    if (item.dueDate) {
        parts << (*item.dueDate == facts.today ? p.dueToday : p.due(formatDate(*item.dueDate, lang)));
    }
    if (item.highPriority) {
        parts << p.high;
    }
    return parts.isEmpty() ? p.quote(item.title) : p.paren(p.quote(item.title), parts);
}

QString taskText(const TaskLine &line, const QString &lang)
{
    const Phrases &p = phrases(lang);
    QStringList parts;
    if (!line.project.isEmpty()) {
        parts << line.project;
    }
    parts << formatDuration(line.minutes, lang);
    return p.paren(p.quote(line.title), parts);
}

QStringList taskTexts(const QList<TaskLine> &lines, const QString &lang)
{
    QStringList texts;
    for (const TaskLine &line : lines) {
        texts << taskText(line, lang);
    }
    return texts;
}

QString factsTaskLines(const QList<TaskLine> &lines, const QString &lang)
{
    QString text;
    for (const TaskLine &line : lines) {
        text += u"- "_s + quoted(line.title) + (line.project.isEmpty() ? QString() : u" ("_s + line.project + u')') +
                u": "_s + formatDuration(line.minutes, lang) + u'\n';
    }
    return text + moreHint(lines.size(), lang);
}

} // namespace

// --- Facts -------------------------------------------------------------------------------------

QStringList RecapFacts::names() const
{
    QStringList result;
    for (const ProjectLine &line : projects) {
        result << line.name;
    }
    return result + completedTasks;
}

bool StandupFacts::isEmpty() const
{
    return !lastWorkday && todayMinutes == 0 && todayTasks.isEmpty() && !running && planned.isEmpty();
}

QStringList StandupFacts::names() const
{
    QStringList result;
    const auto add = [&](const QString &title, const QString &project) {
        result << title;
        if (!project.isEmpty()) {
            result << project;
        }
    };
    if (lastWorkday) {
        for (const TaskLine &line : lastWorkday->tasks) {
            add(line.title, line.project);
        }
    }
    for (const TaskLine &line : todayTasks) {
        add(line.title, line.project);
    }
    if (running) {
        add(running->title, running->project);
    }
    for (const PlannedItem &item : planned) {
        add(item.title, item.project);
    }
    result.removeDuplicates();
    return result;
}

QString StandupText::joined(const Phrases &phrases) const
{
    return labels.first + phrases.colon + first + u'\n' + labels.today + phrases.colon + today + u'\n' +
           labels.blockers + phrases.colon + blockers;
}

OwnWork ownWork(const QList<TimeEntry> &entries, const QList<TaskItem> &tasks, const QString &userId)
{
    if (userId.isEmpty()) {
        return {entries, tasks};
    }
    OwnWork own;
    QSet<QString> workedTasks;
    for (const TimeEntry &entry : entries) {
        if (entry.loggedByUserId.value_or(entry.userId) == userId) {
            own.entries << entry;
            workedTasks.insert(entry.taskId);
        }
    }
    for (const TaskItem &task : tasks) {
        bool mine = workedTasks.contains(task.id);
        if (!mine && task.status != TaskStatus::Completed) {
            mine = task.userId == userId;
            if (!mine && task.attachments && task.attachments->assignees) {
                for (const TaskAssignee &assignee : *task.attachments->assignees) {
                    mine = mine || assignee.userId == userId;
                }
            }
        }
        if (mine) {
            own.tasks << task;
        }
    }
    return own;
}

RecapFacts recapFacts(const QList<TimeEntry> &entries, const QList<TaskItem> &tasks, const QList<Project> &projects,
                      double defaultHourlyRate, const QString &currency, const QDateTime &now, const QTimeZone &zone)
{
    RecapFacts facts;
    const QDateTime start = now.addSecs(-weekSeconds);
    const QDateTime previousStart = start.addSecs(-weekSeconds);
    const DayKey dayKey(zone);
    facts.from = isoDay(start.toTimeZone(zone).date());
    facts.to = isoDay(now.toTimeZone(zone).date());
    facts.currency = currency.isEmpty() ? u"EUR"_s : currency;

    QList<TimeEntry> period;
    qint64 previousSeconds = 0;
    QSet<QString> days;
    for (const TimeEntry &entry : entries) {
        const std::optional<QDateTime> started = isoDate(entry.startedAt);
        if (!started) {
            continue;
        }
        if (*started >= start && *started <= now) {
            period << entry;
            days.insert(dayKey.key(*started));
        } else if (*started >= previousStart && *started < start) {
            previousSeconds += std::max<qint64>(entry.durationSeconds, 0);
        }
    }
    facts.previousTotalMinutes = toMinutes(previousSeconds);
    facts.daysWorked = int(days.size());

    EarningsReport::Sources sources;
    sources.entries = period;
    sources.tasks = tasks;
    sources.projects = projects;
    sources.defaultHourlyRate = defaultHourlyRate;
    sources.zone = zone;
    QList<QString> order;
    QHash<QString, qint64> seconds;
    QHash<QString, double> earned;
    qint64 totalSeconds = 0;
    for (const EarningsReport::PricedEntry &priced : EarningsReport::price(sources)) {
        if (!seconds.contains(priced.projectId)) {
            order << priced.projectId;
        }
        const qint64 duration = std::max<qint64>(priced.entry.durationSeconds, 0);
        seconds[priced.projectId] += duration;
        earned[priced.projectId] += priced.earned;
        totalSeconds += duration;
    }
    facts.totalMinutes = toMinutes(totalSeconds);
    const QHash<QString, QString> names = projectNames(projects);
    for (const QString &projectId : std::as_const(order)) {
        const double earnings = round2(earned.value(projectId));
        facts.earningsTotal += earnings;
        if (!names.contains(projectId)) {
            continue; // a project the user can no longer see has no name to give
        }
        const int minutes = toMinutes(seconds.value(projectId));
        const int share = facts.totalMinutes > 0 ? qRound(minutes * 100.0 / facts.totalMinutes) : 0;
        facts.projects << ProjectLine{names.value(projectId), minutes, earnings, share};
    }
    facts.earningsTotal = round2(facts.earningsTotal);
    std::stable_sort(facts.projects.begin(), facts.projects.end(),
                     [](const ProjectLine &a, const ProjectLine &b) { return a.minutes > b.minutes; });

    const QDate today = now.toTimeZone(zone).date();
    for (const TaskItem &task : tasks) {
        if (task.status == TaskStatus::Completed) {
            // Tasks keep no completion time; the last change is when they were marked done.
            const std::optional<QDateTime> changed = isoDate(task.updatedAt);
            if (changed && *changed >= start && *changed <= now) {
                facts.completedTasks << task.title;
            }
        } else if (const std::optional<QDate> due = dueDay(task); due && *due < today) {
            ++facts.overdueOpenTasks;
        }
    }
    return facts;
}

StandupFacts standupFacts(const QList<TimeEntry> &entries, const QList<TaskItem> &tasks, const QList<Project> &projects,
                          const QDateTime &now, const QTimeZone &zone)
{
    StandupFacts facts;
    const QDate today = now.toTimeZone(zone).date();
    facts.today = isoDay(today);
    const QHash<QString, QString> names = projectNames(projects);
    QHash<QString, const TaskItem *> taskById;
    for (const TaskItem &task : tasks) {
        taskById.insert(task.id, &task);
    }

    QHash<QDate, QList<TimeEntry>> byDay;
    for (const TimeEntry &entry : entries) {
        if (const std::optional<QDateTime> started = isoDate(entry.startedAt)) {
            byDay[started->toTimeZone(zone).date()] << entry;
        }
    }
    const auto totalMinutes = [](const QList<TimeEntry> &dayEntries) {
        qint64 seconds = 0;
        for (const TimeEntry &entry : dayEntries) {
            seconds += std::max<qint64>(entry.durationSeconds, 0);
        }
        return toMinutes(seconds);
    };
    for (int back = 1; back <= 7; ++back) {
        const QDate day = today.addDays(-back);
        if (byDay.contains(day)) {
            const QList<TimeEntry> &dayEntries = byDay[day];
            facts.lastWorkday =
                LastWorkday{isoDay(day), back == 1, totalMinutes(dayEntries), taskLines(dayEntries, taskById, names)};
            break;
        }
    }
    const QList<TimeEntry> todayEntries = byDay.value(today);
    facts.todayMinutes = totalMinutes(todayEntries);
    facts.todayTasks = taskLines(todayEntries, taskById, names);

    std::optional<QDateTime> runningSince;
    for (const TaskItem &task : tasks) {
        const std::optional<QDateTime> since = isoDate(task.startedAt);
        if (since && (!runningSince || *since > *runningSince)) {
            runningSince = since;
            facts.running = TaskLine{task.title, names.value(task.projectId), toMinutes(since->secsTo(now))};
        }
    }

    // Planned is what asks for attention today: due by today (overdue included) or marked high.
    for (const TaskItem &task : tasks) {
        if (task.status == TaskStatus::Completed) {
            continue;
        }
        const std::optional<QDate> due = dueDay(task);
        const bool high = task.priority == TaskPriority::High;
        if ((due && *due <= today) || high) {
            facts.planned << PlannedItem{task.title, names.value(task.projectId),
                                         due ? std::optional(isoDay(*due)) : std::nullopt, due && *due < today, high};
        }
    }
    std::stable_sort(facts.planned.begin(), facts.planned.end(), [](const PlannedItem &a, const PlannedItem &b) {
        const QString dueA = a.dueDate.value_or(u"9999-12-31"_s);
        const QString dueB = b.dueDate.value_or(u"9999-12-31"_s);
        return dueA != dueB ? dueA < dueB : a.highPriority && !b.highPriority;
    });
    return facts;
}

// --- FACTS and prompts ----------------------------------------------------------------------------

QString recapFactsText(const RecapFacts &facts, const QString &lang)
{
    const Phrases &p = phrases(lang);
    QString text = u"Period: "_s + formatDate(facts.from, lang) + u" to "_s + formatDate(facts.to, lang) + u" ("_s +
                   QString::number(facts.days) + u" days).\n"_s;
    text += u"Tracked this week: "_s + formatDuration(facts.totalMinutes, lang) + u".\n"_s;
    const int difference = facts.totalMinutes - facts.previousTotalMinutes;
    QString change;
    if (facts.previousTotalMinutes <= 0) {
        change = u"no tracked time the previous week"_s;
    } else if (difference == 0) {
        change = u"the same as the previous week"_s;
    } else {
        change = formatDuration(std::abs(difference), lang) +
                 (difference > 0 ? u" more than the previous week"_s : u" less than the previous week"_s);
    }
    text += u"Change: "_s + change + u".\n"_s;
    text += u"Tracked the previous week: "_s + formatDuration(facts.previousTotalMinutes, lang) + u".\n"_s;
    text += u"Days worked: "_s + QString::number(facts.daysWorked) + u".\n"_s;
    if (facts.projects.isEmpty()) {
        text += u"Projects: none.\n"_s;
    } else {
        text += u"Projects (most time first):\n"_s;
        for (const ProjectLine &line : facts.projects) {
            text +=
                u"- "_s + quoted(line.name) + u": "_s + formatDuration(line.minutes, lang) + u", "_s +
                QString::number(line.sharePct) + u"% of the time"_s +
                (line.earnings > 0 ? u", earned "_s + formatMoney(line.earnings, facts.currency, lang) : QString()) +
                u'\n';
        }
        text += moreHint(facts.projects.size(), lang);
    }
    if (facts.earningsTotal > 0) {
        text += u"Earned this week in total: "_s + formatMoney(facts.earningsTotal, facts.currency, lang) + u".\n"_s;
    }
    if (facts.completedTasks.isEmpty()) {
        text += u"Tasks completed this week: none.\n"_s;
    } else {
        text += u"Tasks completed this week: "_s + quotedAll(facts.completedTasks).join(u", "_s) + u".\n"_s;
        text += moreHint(facts.completedTasks.size(), lang);
    }
    if (facts.overdueOpenTasks > 0) {
        text += u"Open tasks past their due date: "_s + QString::number(facts.overdueOpenTasks) +
                u". Use this sentence for it: "_s + withEnd(p.overdueOpen(facts.overdueOpenTasks), p) + u'\n';
    }
    return text.trimmed();
}

QString standupFactsText(const StandupFacts &facts, const QString &lang)
{
    QString text = u"Today: "_s + formatDate(facts.today, lang) + u".\n"_s;
    if (!facts.lastWorkday) {
        text += u"Last workday: none in the past 7 days, so there is no tracked time to report.\n"_s;
    } else {
        const LastWorkday &day = *facts.lastWorkday;
        text += u"Last workday: "_s + formatDate(day.date, lang) + (day.isYesterday ? u" (yesterday)"_s : QString()) +
                u". Tracked that day: "_s + formatDuration(day.totalMinutes, lang) + u".\n"_s;
        text += day.tasks.isEmpty() ? u"Tasks that day: none listed.\n"_s
                                    : u"Tasks that day (most time first):\n"_s + factsTaskLines(day.tasks, lang);
    }
    if (facts.todayMinutes > 0) {
        text += u"Tracked today so far: "_s + formatDuration(facts.todayMinutes, lang) + u".\n"_s;
        if (!facts.todayTasks.isEmpty()) {
            text += u"Tasks today (most time first):\n"_s + factsTaskLines(facts.todayTasks, lang);
        }
    } else {
        text += u"Tracked today so far: nothing yet.\n"_s;
    }
    if (facts.running) {
        text += u"Timer running now: "_s + quoted(facts.running->title) +
                (facts.running->project.isEmpty() ? QString() : u" ("_s + facts.running->project + u')') + u".\n"_s;
    }
    QList<PlannedItem> open;
    QList<PlannedItem> overdue;
    for (const PlannedItem &item : facts.planned) {
        (item.overdue ? overdue : open) << item;
    }
    const auto itemLine = [&](const PlannedItem &item) -> QString {
        QString line =
            u"- "_s + quoted(item.title) + (item.project.isEmpty() ? QString() : u" ("_s + item.project + u')');
        if (item.dueDate) {
            line += *item.dueDate == facts.today ? u", due today"_s : u", due on "_s + formatDate(*item.dueDate, lang);
        }
        return line + (item.highPriority ? u", high priority"_s : QString()) + u'\n';
    };
    if (open.isEmpty()) {
        text += u"Planned (not overdue): none.\n"_s;
    } else {
        text += u"Planned (not overdue):\n"_s;
        for (const PlannedItem &item : std::as_const(open)) {
            text += itemLine(item);
        }
        text += moreHint(open.size(), lang);
    }
    if (overdue.isEmpty()) {
        text += u"Overdue (these are the blockers): none.\n"_s;
    } else {
        text += u"Overdue (these are the blockers):\n"_s;
        for (const PlannedItem &item : std::as_const(overdue)) {
            text += itemLine(item);
        }
        text += moreHint(overdue.size(), lang);
    }
    return text.trimmed();
}

QString recapSystemPrompt(const QString &lang)
{
    const QString l = language(lang);
    return u"You write a short weekly recap for a freelancer. You only rephrase the FACTS you are given.\n\n"
           "Rules:\n"
           "- Use only these FACTS. Never invent tasks, projects, clients, amounts, durations, percentages, reasons, "
           "advice or comparisons.\n"
           "- Write project names and task titles in double quotes, exactly as in the FACTS. Never translate, "
           "shorten or correct a name.\n"
           "- Copy durations, amounts, percentages and the change exactly as written in the FACTS. Never calculate "
           "anything yourself.\n"
           "- Write in "_s +
           languageName(l) +
           u".\n"
           "- One paragraph of 4 or 5 plain sentences. No markdown, no lists, no emoji, no greeting, no advice.\n"
           "- The sentences, in this order: 1. the time tracked this week and the change; 2. the number of days "
           "worked; 3. the projects with their time and, when given, the amount earned (at most four, in the given "
           "order); 4. the completed tasks, or that none were completed; 5. only when listed, the number of open "
           "tasks past their due date, in the sentence the FACTS give.\n"
           "- If nothing was tracked, write that no time was tracked this week, and add only the previous week's "
           "time (when above 0) and the overdue open tasks (when listed).\n- "_s +
           noEmDashNoShould +
           u"\n\nFormat example. Angle brackets are placeholders for values from the FACTS; never write angle "
           "brackets.\n"_s +
           recapExample(l) + exampleNote(l);
}

QString standupSystemPrompt(const QString &lang, const Labels &labels)
{
    const QString l = language(lang);
    return u"You write a short daily standup for a freelancer. You only rephrase the FACTS you are given.\n\n"
           "Rules:\n"
           "- Use only these FACTS. Never invent tasks, projects, clients, durations, dates, reasons or plans. If "
           "something is not in the FACTS, leave it out.\n"
           "- Write every task title in double quotes, exactly as in the FACTS. Copy project names exactly. Never "
           "translate, shorten or correct a name.\n"
           "- Copy durations and dates exactly as written in the FACTS. Never add up, round or convert them.\n"
           "- Write in "_s +
           languageName(l) +
           u".\n"
           "- Plain text: no markdown, no bullets, no emoji, no greeting, no advice.\n"
           "- Write exactly three lines, in this order, each starting with its label and a colon:\n"_s +
           labels.first +
           u": the last workday: its tracked total, then its tasks with their time. If there is no last workday, "
           "say that no time was tracked.\n"_s +
           labels.today +
           u": the time tracked today and the running timer, if any, then the planned items. If there is nothing "
           "at all, say that nothing is tracked or planned yet.\n"_s +
           labels.blockers + u": the overdue items with their due date. If there are none, write exactly: "_s +
           labels.noBlockers + u"\n- Name at most four tasks in a line; the FACTS give the words for the rest.\n- "_s +
           noEmDashNoShould +
           u"\n\nFormat example. Angle brackets are placeholders for values from the FACTS; never write angle "
           "brackets.\n"_s +
           standupExample(l, labels) + exampleNote(l);
}

// --- Fixed texts ------------------------------------------------------------------------------------

QString renderRecap(const RecapFacts &facts, const QString &lang)
{
    const QString l = language(lang);
    const Phrases &p = phrases(l);
    QStringList sentences;
    if (facts.totalMinutes <= 0) {
        sentences << withEnd(p.noTimeWeek(facts.previousTotalMinutes > 0
                                              ? std::optional(formatDuration(facts.previousTotalMinutes, l))
                                              : std::nullopt),
                             p);
    } else {
        const int difference = facts.totalMinutes - facts.previousTotalMinutes;
        const QString change = facts.previousTotalMinutes <= 0 ? p.changeNone
                               : difference > 0                ? p.changeMore(formatDuration(difference, l))
                               : difference < 0                ? p.changeLess(formatDuration(-difference, l))
                                                               : p.changeSame;
        sentences << withEnd(p.weekTracked(formatDuration(facts.totalMinutes, l), change), p);
        sentences << withEnd(p.daysWorked(facts.daysWorked), p);
        QStringList projects;
        for (const ProjectLine &line : facts.projects) {
            QStringList parts{formatDuration(line.minutes, l)};
            if (line.earnings > 0) {
                parts << p.earned(formatMoney(line.earnings, facts.currency, l));
            }
            projects << p.paren(p.quote(line.name), parts);
        }
        if (!projects.isEmpty()) {
            const QStringList rest = projects.mid(1);
            sentences << withEnd(p.mostTime(projects.first(), rest.isEmpty()
                                                                  ? std::nullopt
                                                                  : std::optional(joinNames(rest, p, listMax - 1))),
                                 p);
        }
        if (facts.completedTasks.isEmpty()) {
            sentences << p.noneCompleted;
        } else {
            QStringList titles;
            for (const QString &title : facts.completedTasks) {
                titles << p.quote(title);
            }
            sentences << withEnd(p.completed(joinNames(titles, p, listMax)), p);
        }
    }
    if (facts.overdueOpenTasks > 0) {
        sentences << withEnd(p.overdueOpen(facts.overdueOpenTasks), p);
    }
    return sentences.join(p.sentenceSep);
}

StandupText renderStandup(const StandupFacts &facts, const QString &lang)
{
    const QString l = language(lang);
    const Phrases &p = phrases(l);
    StandupText text{labels(l, facts), {}, {}, {}};

    if (facts.lastWorkday) {
        const QString total = formatDuration(facts.lastWorkday->totalMinutes, l);
        text.first = facts.lastWorkday->tasks.isEmpty()
                         ? p.tracked(total)
                         : p.trackedOn(total, joinNames(taskTexts(facts.lastWorkday->tasks, l), p, listMax));
    } else {
        text.first = p.noTime;
    }

    QStringList today;
    QStringList open;
    QStringList overdue;
    for (const PlannedItem &item : facts.planned) {
        if (item.overdue) {
            const QString name =
                item.project.isEmpty() ? p.quote(item.title) : p.paren(p.quote(item.title), {item.project});
            overdue << p.overdue(name, item.dueDate ? std::optional(formatDate(*item.dueDate, l)) : std::nullopt);
        } else {
            open << plannedText(item, facts, l);
        }
    }
    if (facts.todayMinutes > 0) {
        const QString total = formatDuration(facts.todayMinutes, l);
        today << (facts.todayTasks.isEmpty()
                      ? p.tracked(total)
                      : p.trackedOn(total, joinNames(taskTexts(facts.todayTasks, l), p, listMax)));
    } else if (facts.running || !open.isEmpty()) {
        today << p.nothingTracked;
    }
    if (facts.running) {
        const QString name = facts.running->project.isEmpty()
                                 ? p.quote(facts.running->title)
                                 : p.paren(p.quote(facts.running->title), {facts.running->project});
        today << p.running(name);
    }
    if (!open.isEmpty()) {
        today << p.planned(joinNames(open, p, listMax));
    }
    text.today = today.isEmpty() ? p.nothingToday : today.join(p.listSep);
    text.blockers = overdue.isEmpty() ? text.labels.noBlockers : joinNames(overdue, p, listMax);

    text.first = withEnd(text.first, p);
    text.today = withEnd(text.today, p);
    text.blockers = withEnd(text.blockers, p);
    return text;
}

// --- Cleaning and validation ---------------------------------------------------------------------------

QString cleanOutput(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    text.remove(u"**"_s);
    text.remove(u"__"_s);
    static const QRegularExpression heading(u"(?m)^#+\\s*"_s);
    static const QRegularExpression emDash(u"\\s*—\\s*"_s);
    static const QRegularExpression trailing(u"[ \\t]+\\n"_s);
    static const QRegularExpression blankLines(u"\\n{3,}"_s);
    text.remove(heading);
    text.replace(emDash, u", "_s);
    text.replace(trailing, u"\n"_s);
    text.replace(blankLines, u"\n\n"_s);
    return text.trimmed();
}

QString toThreeLines(const QString &text, const QString &lang, const Labels &labels)
{
    Q_UNUSED(lang)
    const QString alternatives = QRegularExpression::escape(labels.first) + u'|' +
                                 QRegularExpression::escape(labels.today) + u'|' +
                                 QRegularExpression::escape(labels.blockers);
    const QRegularExpression before(u"(?:[ \\t]+|(。)[ \\t]*)("_s + alternatives + u")(?=\\s*[:：])"_s);
    QString split = text;
    split.replace(before, u"\\1\n\\2"_s);
    QStringList lines;
    for (const QString &line : split.split(u'\n')) {
        if (!line.trimmed().isEmpty()) {
            lines << line.trimmed();
        }
    }
    return lines.join(u'\n');
}

std::optional<QString> recapProblem(const QString &text, const QStringList &names, const QString &factsText,
                                    const RecapFacts &facts, const QString &lang)
{
    const QString l = language(lang);
    if (text.trimmed().isEmpty()) {
        return u"empty"_s;
    }
    if (placeholderPattern().match(text).hasMatch()) {
        return u"placeholder"_s;
    }
    static const QRegularExpression listItem(u"(?m)^\\s*([-*•]|\\d+\\.)\\s"_s);
    if (listItem.match(text).hasMatch()) {
        return u"list"_s;
    }
    const QStringList values = recapValues(facts, l);
    const int sentences = sentenceCount(text, values);
    if (sentences == 0 || sentences > 7) {
        return u"sentences:"_s + QString::number(sentences);
    }
    return sharedProblems(text, names, factsText + u'\n' + values.join(u'\n'), l);
}

std::optional<QString> standupProblem(const QString &text, const Labels &labels, const QStringList &names,
                                      const QString &factsText, const QString &lang)
{
    const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    if (lines.size() != 3) {
        return u"lines:"_s + QString::number(lines.size());
    }
    const QStringList expected{labels.first, labels.today, labels.blockers};
    for (int i = 0; i < 3; ++i) {
        const QString line = lines.at(i).trimmed();
        const QString rest = line.mid(expected.at(i).size()).trimmed();
        if (!line.startsWith(expected.at(i)) || !(rest.startsWith(u':') || rest.startsWith(u'：'))) {
            return u"labels"_s;
        }
    }
    return sharedProblems(text, names, factsText, language(lang));
}

// --- Helpers -------------------------------------------------------------------------------------------

QString formatDuration(int minutes, const QString &lang)
{
    const QString l = language(lang);
    const Units unit = units(l);
    const QString sep = l == u"ja" ? QString() : u" "_s;
    minutes = std::max(minutes, 0);
    const int hours = minutes / 60;
    const int rest = minutes - 60 * hours;
    if (hours == 0) {
        return QString::number(minutes) + sep + unit.minute;
    }
    const QString hourText = QString::number(hours) + sep + unit.hour;
    return rest == 0 ? hourText : hourText + sep + QString::number(rest) + sep + unit.minute;
}

QString formatMoney(double amount, const QString &currency, const QString &lang)
{
    static const QHash<QString, QString> symbols{
        {u"EUR"_s, u"€"_s}, {u"USD"_s, u"$"_s}, {u"GBP"_s, u"£"_s}, {u"JPY"_s, u"¥"_s}, {u"THB"_s, u"฿"_s},
    };
    const QString code = currency.isEmpty() ? u"EUR"_s : currency.toUpper();
    const int decimals = code == u"JPY" ? 0 : 2;
    return locale(lang).toCurrencyString(round2(amount), symbols.value(code, code), decimals);
}

QString joinNames(const QStringList &names, const Phrases &phrases, int max)
{
    if (names.isEmpty()) {
        return {};
    }
    if (names.size() == 1) {
        return names.first();
    }
    if (names.size() > max) {
        return names.mid(0, max).join(phrases.listSep) + phrases.more(int(names.size() - max));
    }
    return names.mid(0, names.size() - 1).join(phrases.listSep) + phrases.andWord + names.last();
}

Labels labels(const QString &lang, const StandupFacts &facts)
{
    Labels result = baseLabels(lang);
    if (facts.lastWorkday && !facts.lastWorkday->isYesterday) {
        result.first = weekdayName(facts.lastWorkday->date, lang);
    }
    return result;
}

QString weekdayName(const QString &isoDate, const QString &lang)
{
    const QDate day = noonUTC(isoDate).date();
    const QString name = locale(lang).dayName(day.dayOfWeek(), QLocale::LongFormat);
    return name.isEmpty() ? name : name.at(0).toUpper() + name.mid(1);
}

QDateTime noonUTC(const QString &isoDate)
{
    return QDateTime(QDate::fromString(isoDate.left(10), Qt::ISODate), QTime(12, 0), QTimeZone::utc());
}

QString formatDate(const QString &isoDate, const QString &lang)
{
    return locale(lang).toString(noonUTC(isoDate).date(), dateTemplate(lang));
}

} // namespace WorkSummary
