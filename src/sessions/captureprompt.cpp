#include "captureprompt.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace ParseDates {

QString todayISO(const QDateTime &now, const QTimeZone &zone)
{
    return now.toTimeZone(zone).date().toString(Qt::ISODate);
}

QString dayLine(QDate day)
{
    return QLocale(QLocale::English).dayName(day.dayOfWeek()) + u' ' + day.toString(Qt::ISODate);
}

QString calendar(const QString &todayISO, const QTimeZone &zone)
{
    const QString zoneName = QString::fromUtf8(zone.id());
    const QDate today = QDate::fromString(todayISO, Qt::ISODate);
    if (!today.isValid()) {
        return u"TODAY: "_s + todayISO + u" (time zone "_s + zoneName + u")."_s;
    }
    // Whole days on the date itself: stepping by 24 hours would skip or repeat a day where the
    // clocks change.
    const auto week = [&](int weeksAhead) {
        const QDate monday = today.addDays(1 - today.dayOfWeek() + 7 * weeksAhead);
        QStringList days;
        for (int i = 0; i < 7; ++i) {
            days << dayLine(monday.addDays(i));
        }
        return days.join(u", "_s);
    };
    return QStringList{
        u"TODAY: "_s + dayLine(today) + u" (time zone "_s + zoneName + u")."_s,
        u"TOMORROW (morgen): "_s + dayLine(today.addDays(1)) + u". THE DAY AFTER TOMORROW (overmorgen): "_s +
            dayLine(today.addDays(2)) + u"."_s,
        u"CALENDAR (weeks start on Monday):"_s,
        u"- THIS WEEK: "_s + week(0),
        u"- NEXT WEEK: "_s + week(1),
        u"- THE WEEK AFTER: "_s + week(2),
    }
        .join(u'\n');
}

} // namespace ParseDates

namespace {

// A project name is the user's own text inside our prompt: one line, quoted, of a sane length,
// so that a name cannot pose as a rule of the prompt.
QString quotedName(const QString &name)
{
    QString line = name.simplified().left(120);
    return QString::fromUtf8(QJsonDocument(QJsonArray{line}).toJson(QJsonDocument::Compact)).mid(1).chopped(1);
}

} // namespace

namespace CapturePrompt {

QString systemPrompt(const QStringList &knownProjects, const QString &todayISO, const QTimeZone &zone)
{
    QStringList names;
    for (const QString &name : knownProjects) {
        if (!name.trimmed().isEmpty()) {
            names << quotedName(name);
        }
    }
    const QString rules =
        u"You are a strict JSON extractor for a time-tracking app called Morvane. Convert the user's freeform input "
        u"(Dutch or English) into ONE JSON object matching the schema. No markdown fences. No commentary.\n"
        u"\n"
        u"Return EXACTLY one JSON object with these top-level keys (use null when missing):\n"
        u"- \"intent\": one of \"create_project|create_projects|create_task|start_timer|stop_timer|log_time|unknown\"\n"
        u"- \"projects\": list of {\"name\", \"description\", \"hourly_rate\", \"total_price\", \"team_name\", "
        u"\"tasks\"}\n"
        u"- \"project_name\": the existing or new project a single-task intent refers to\n"
        u"- \"project_hourly_rate\": the rate for that project\n"
        u"- \"tasks\": list of tasks of a single-project intent\n"
        u"- \"task_title\": the task that log_time, start_timer or stop_timer refers to\n"
        u"- \"minutes\": minutes for log_time\n"
        u"- \"notes\": free remarks\n"
        u"Each task is {\"title\", \"description\", \"priority\", \"due_date\", \"hourly_rate\", \"total_price\", "
        u"\"minutes\"}.\n"
        u"No prose. No markdown fences. Output JSON only.\n"
        u"\n"
        u"Rules:\n"
        u"- If the user describes ONE OR MORE projects, set intent=create_projects and put each project in the "
        u"projects array with its tasks inside.\n"
        u"- Project fields: name, optional description, optional hourly_rate (a price per hour), optional "
        u"total_price (one fixed price for the whole project), optional team_name (the team to share it with).\n"
        u"- Task fields: title, optional description, optional priority (low|medium|high), optional due_date "
        u"YYYY-MM-DD, optional hourly_rate, optional total_price (one fixed price for the task, such as \"vaste "
        u"prijs 2500\" or \"voor 450 euro\"), optional minutes (time already spent).\n"
        u"- Default priority is medium.\n"
        u"- minutes is total minutes (\"2 hours\" = 120, \"half an hour\" = 30, \"5 kwartier\" = 75).\n"
        u"- Never invent prices or dates the user did not state or clearly imply.\n"
        u"- Other intents: create_task (a single task added to a known project, no projects array); log_time (time "
        u"already spent on existing task); start_timer; stop_timer; unknown last resort. Always prefer "
        u"create_projects when the user describes any structure. Be generous: split multi-step asks into multiple "
        u"tasks.\n"
        u"- Known existing project names: "_s +
        (names.isEmpty() ? u"(none yet)"_s : names.join(u", "_s));
    const QString dates =
        u"Dates: use the TODAY and CALENDAR lines below. Write every date as YYYY-MM-DD from that calendar; never "
        u"use another year or a date before today.\n"
        u"- \"vandaag\"/\"today\" = today; \"morgen\"/\"tomorrow\" = the day after today; \"overmorgen\"/\"the day "
        u"after tomorrow\" = two days after today.\n"
        u"- A weekday alone, or \"aanstaande\"/\"deze\"/\"this\"/\"this coming\" + weekday = the first such weekday "
        u"after today, never today itself.\n"
        u"- \"volgende\"/\"next\" + weekday, or weekday + \"volgende week\"/\"next week\" = that weekday in NEXT "
        u"WEEK.\n"
        u"- \"volgende week\"/\"next week\" without a weekday = the Monday of NEXT WEEK.\n"
        u"- \"over N dagen\"/\"in N days\" = today plus N days; \"over N weken\"/\"in N weeks\" = today plus N x 7 "
        u"days.\n"
        u"- No date mentioned: due_date null. Never guess a date."_s;
    return rules + u"\n\n"_s + dates + u"\n\n"_s + ParseDates::calendar(todayISO, zone) + u'\n';
}

QString jsonSchema()
{
    // Every key is required and may be null, the form strict structured output accepts. The task
    // shape is written out in both places: not every route resolves "$ref".
    const QString task =
        uR"({"type":"object","additionalProperties":false,)"
        uR"("required":["title","description","priority","due_date","hourly_rate","total_price","minutes"],)"
        uR"("properties":{"title":{"type":"string"},"description":{"type":["string","null"]},)"
        uR"("priority":{"type":["string","null"],"enum":["low","medium","high",null]},)"
        uR"("due_date":{"type":["string","null"],"pattern":"^[0-9]{4}-[0-9]{2}-[0-9]{2}$"},)"
        uR"("hourly_rate":{"type":["number","null"]},"total_price":{"type":["number","null"]},)"
        uR"("minutes":{"type":["number","null"]}}})"_s;
    const QString tasks = uR"({"type":["array","null"],"items":)"_s + task + u'}';
    return uR"({"type":"object","additionalProperties":false,)"
           uR"("required":["intent","projects","project_name","project_hourly_rate","tasks","task_title","minutes","notes"],)"
           uR"("properties":{)"
           uR"("intent":{"type":"string","enum":["create_project","create_projects","create_task","start_timer",)"
           uR"("stop_timer","log_time","unknown"]},)"
           uR"("projects":{"type":["array","null"],"items":{"type":"object","additionalProperties":false,)"
           uR"("required":["name","description","hourly_rate","total_price","team_name","tasks"],)"
           uR"("properties":{"name":{"type":"string"},"description":{"type":["string","null"]},)"
           uR"("hourly_rate":{"type":["number","null"]},"total_price":{"type":["number","null"]},)"
           uR"("team_name":{"type":["string","null"]},"tasks":)"_s +
           tasks +
           uR"(}}},"project_name":{"type":["string","null"]},"project_hourly_rate":{"type":["number","null"]},)"
           uR"("tasks":)"_s +
           tasks +
           uR"(,"task_title":{"type":["string","null"]},"minutes":{"type":["number","null"]},)"
           uR"("notes":{"type":["string","null"]}}})"_s;
}

} // namespace CapturePrompt
