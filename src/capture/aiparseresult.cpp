#include "aiparseresult.h"

#include "sessions/claudebridgeerror.h"

#include <QDate>
#include <QJsonDocument>
#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using namespace CaptureLimits;

QString compact(const QJsonObject &answer)
{
    return QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
}

QString number(double value)
{
    return QLocale().toString(value, 'g', 12);
}

class Checker
{
public:
    QStringList adjustments;

    // One line without control characters (a name is shown in lists and sent back to the model).
    void name(QString &text)
    {
        text = text.simplified();
        text.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
        cut(text, maxNameLength);
    }

    void text(std::optional<QString> &value, qsizetype limit)
    {
        if (!value) {
            return;
        }
        QString &text = *value;
        text.removeIf([](QChar c) { return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t'; });
        text = text.trimmed();
        if (text.isEmpty()) {
            value.reset();
            return;
        }
        cut(text, limit);
    }

    void rate(std::optional<double> &value)
    {
        if (value && !(std::isfinite(*value) && *value >= 0 && *value <= maxHourlyRate)) {
            //% "The hourly rate %1 was left out: a rate lies between 0 and %2."
            adjustments << qtTrId("capture.fix.rate").arg(number(*value), number(maxHourlyRate));
            value.reset();
        }
    }

    void price(std::optional<double> &value)
    {
        if (value && !(std::isfinite(*value) && *value >= 0 && *value <= maxTotalPrice)) {
            //% "The fixed price %1 was left out: a price lies between 0 and %2."
            adjustments << qtTrId("capture.fix.price").arg(number(*value), number(maxTotalPrice));
            value.reset();
        }
    }

    void minutes(std::optional<double> &value)
    {
        if (value && !(std::isfinite(*value) && *value > 0 && *value <= maxMinutes)) {
            //% "%1 minutes were left out: time logged from one sentence is more than 0 and at most %2 minutes."
            adjustments << qtTrId("capture.fix.minutes").arg(number(*value), number(maxMinutes));
            value.reset();
        }
    }

    // A fixed price and a rate on one draft: the model read both, the person meant one price.
    void onePrice(const QString &what, std::optional<double> &rate, const std::optional<double> &total)
    {
        if (rate && total) {
            //% "\"%1\" has both a fixed price and an hourly rate; the fixed price is used."
            adjustments << qtTrId("capture.fix.bothPrices").arg(what);
            rate.reset();
        }
    }

    void task(AITaskDraft &draft)
    {
        name(draft.title);
        text(draft.description, maxTextLength);
        if (draft.priority) {
            const QString word = draft.priority->trimmed().toLower();
            if (word == u"low" || word == u"medium" || word == u"high") {
                draft.priority = word;
            } else {
                //% "The priority \"%1\" is unknown; the task gets the default, medium."
                adjustments << qtTrId("capture.fix.priority").arg(draft.priority->left(40));
                draft.priority.reset();
            }
        }
        if (draft.dueDate && !QDate::fromString(*draft.dueDate, Qt::ISODate).isValid()) {
            //% "The due date \"%1\" was left out: it is not a date of the form YYYY-MM-DD."
            adjustments << qtTrId("capture.fix.date").arg(draft.dueDate->left(40));
            draft.dueDate.reset();
        }
        rate(draft.hourlyRate);
        price(draft.totalPrice);
        onePrice(draft.title, draft.hourlyRate, draft.totalPrice);
        minutes(draft.minutes);
    }

    void tasks(std::optional<QList<AITaskDraft>> &list)
    {
        if (!list) {
            return;
        }
        for (AITaskDraft &draft : *list) {
            task(draft);
        }
        dropUnnamed(*list, [](const AITaskDraft &draft) { return draft.title; });
    }

    template<class T, class NameOf>
    void dropUnnamed(QList<T> &list, NameOf nameOf)
    {
        if (list.removeIf([&](const T &item) { return nameOf(item).isEmpty(); }) > 0) {
            //% "A project or task without a name was left out."
            adjustments << qtTrId("capture.fix.unnamed");
        }
    }

private:
    void cut(QString &text, qsizetype limit)
    {
        if (text.size() > limit) {
            text.truncate(limit);
            //% "\"%1…\" was cut to %2 characters."
            adjustments << qtTrId("capture.fix.cut").arg(text.left(30), QString::number(limit));
        }
    }
};

} // namespace

AIReading readParseResult(const QJsonObject &answer)
{
    const QString json = compact(answer);
    if (json.toUtf8().size() > maxAnswerBytes) {
        throw ClaudeBridgeError::malformedJSON(u"the answer is larger than %1 KB"_s.arg(maxAnswerBytes / 1024),
                                               json.left(200) + u"…"_s);
    }
    AIReading reading;
    try {
        reading.result = Wire::decode<AIParseResult>(answer);
    } catch (const DecodeError &error) {
        throw ClaudeBridgeError::malformedJSON(error.message(), json.left(2000));
    }
    AIParseResult &result = reading.result;
    qsizetype drafts = result.tasks.value_or(QList<AITaskDraft>()).size();
    for (const AIProjectDraft &project : result.projects.value_or(QList<AIProjectDraft>())) {
        drafts += 1 + project.tasks.value_or(QList<AITaskDraft>()).size();
    }
    if (drafts > maxDrafts) {
        throw ClaudeBridgeError::malformedJSON(u"more than %1 projects and tasks"_s.arg(maxDrafts), json.left(2000));
    }

    Checker check;
    for (std::optional<QString> *single : {&result.projectName, &result.taskTitle}) {
        if (*single) {
            check.name(**single);
            if ((*single)->isEmpty()) {
                single->reset();
            }
        }
    }
    check.rate(result.projectHourlyRate);
    check.minutes(result.minutes);
    check.text(result.notes, maxTextLength);
    check.tasks(result.tasks);
    if (result.projects) {
        for (AIProjectDraft &project : *result.projects) {
            check.name(project.name);
            check.text(project.description, maxTextLength);
            if (project.teamName) {
                check.name(*project.teamName);
            }
            check.rate(project.hourlyRate);
            check.price(project.totalPrice);
            check.onePrice(project.name, project.hourlyRate, project.totalPrice);
            check.tasks(project.tasks);
        }
        check.dropUnnamed(*result.projects, [](const AIProjectDraft &draft) { return draft.name; });
    }
    reading.adjustments = check.adjustments;
    return reading;
}
