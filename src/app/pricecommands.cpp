#include "app/clisession.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"
#include "billing/billingeditor.h"
#include "billing/money.h"
#include "billing/moneyfield.h"
#include "billing/moneyinput.h"
#include "travel/travel.h"

#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

// An option that fills one money field of the editor, read by the same parser as the form.
struct FieldOption
{
    QCommandLineOption option;
    MoneyField *(BillingEditor::*field)() const;
};

QString currencyOf(const AppStore &store)
{
    return store.currency();
}

double defaultRateOf(const AppStore &store)
{
    return store.defaultHourlyRate();
}

// The resolved setting of a project or task and what its tracked time is worth under it.
int showPrice(const AppStore &store, const Project &project, const TaskItem *task, bool json, QTextStream &out)
{
    const QString currency = currencyOf(store);
    const double defaultRate = defaultRateOf(store);
    const QList<TaskItem> tasks = task ? QList<TaskItem>{*task} : store.tasks(project.id);
    const Billing setting = task ? Earnings::resolve(task, &project, defaultRate)
                                 : Earnings::editorBilling(project, defaultRate);
    const double legacy = Earnings::legacyRate(task, &project, defaultRate);
    qint64 seconds = 0;
    double worth = 0;
    for (const TaskItem &each : tasks) {
        seconds += each.timeSpentSeconds;
        worth += Earnings::amount(Earnings::resolve(&each, &project, defaultRate), each.timeSpentSeconds,
                                  Earnings::legacyRate(&each, &project, defaultRate));
    }
    worth = round2(worth);
    const bool inherited = task && !task->billing;
    const std::optional<QString> extras = Earnings::describeExtras(setting, currency);
    if (json) {
        QJsonObject object{{u"billing"_s, Wire::encode(setting)},
                           {u"inherited"_s, inherited},
                           {u"description"_s, Earnings::describe(setting, currency, legacy)},
                           {u"tracked_seconds"_s, seconds},
                           {u"amount"_s, worth},
                           {u"currency"_s, currency}};
        if (extras) {
            object.insert(u"extras"_s, *extras);
        }
        Cli::printJson(out, object);
        return 0;
    }
    out << (task ? task->title : project.name) << u": "_s << Earnings::describe(setting, currency, legacy);
    if (extras) {
        out << u"  "_s << *extras;
    }
    out << u'\n';
    if (inherited) {
        out << Earnings::inheritedFrom(project.name) << u'\n';
    }
    //% "Tracked %1, worth %2."
    out << qtTrId("cli.price.worth").arg(formatHM(seconds), formatMoney(worth, currency)) << Qt::endl;
    return 0;
}

} // namespace

int runPriceCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "The task whose own price to show or set, instead of a project's."
    const QCommandLineOption taskOption(u"task"_s, qtTrId("cli.price.option.task"), u"task"_s);
    //% "The billing model: hourly, fixed, per_unit or daily."
    const QCommandLineOption model(u"model"_s, qtTrId("cli.price.option.model"), u"model"_s);
    //% "Name of the unit of a per-unit price."
    const QCommandLineOption unitLabel(u"unit-label"_s, qtTrId("cli.price.option.unitLabel"), u"label"_s);
    //% "Label of the surcharge."
    const QCommandLineOption surchargeLabel(u"surcharge-label"_s, qtTrId("cli.price.option.surchargeLabel"),
                                            u"label"_s);
    //% "The discount is a percentage."
    const QCommandLineOption discountPct(u"discount-pct"_s, qtTrId("cli.price.option.discountPct"));
    //% "The discount is an amount."
    const QCommandLineOption discountAmount(u"discount-amount"_s, qtTrId("cli.price.option.discountAmount"));
    //% "The task bills at its project's price again."
    const QCommandLineOption inherit(u"inherit"_s, qtTrId("cli.price.option.inherit"));
    //% "How the project charges its trips: per_km, per_trip or none."
    const QCommandLineOption travel(u"travel"_s, qtTrId("cli.price.option.travel"), u"mode"_s);
    //% "The travel rate per kilometre or per trip; without it, per kilometre bills at your own rate."
    const QCommandLineOption travelRate(u"travel-rate"_s, qtTrId("cli.price.option.travelRate"), u"amount"_s);
    //% "A number as you write it (1250, 1.250,50, 12.5); empty clears it."
    const QString amountHelp = qtTrId("cli.price.option.amount");
    const QList<FieldOption> fields{
        {QCommandLineOption(u"rate"_s, amountHelp, u"amount"_s), &BillingEditor::unitPrice},
        {QCommandLineOption(u"unit-price"_s, amountHelp, u"amount"_s), &BillingEditor::unitPrice},
        {QCommandLineOption(u"amount"_s, amountHelp, u"amount"_s), &BillingEditor::amount},
        {QCommandLineOption(u"quantity"_s, amountHelp, u"number"_s), &BillingEditor::unitQuantity},
        {QCommandLineOption(u"day-rate"_s, amountHelp, u"amount"_s), &BillingEditor::dayRate},
        {QCommandLineOption(u"day-hours"_s, amountHelp, u"hours"_s), &BillingEditor::dayHours},
        {QCommandLineOption(u"min-charge"_s, amountHelp, u"amount"_s),
         &BillingEditor::minCharge},
        {QCommandLineOption(u"surcharge"_s, amountHelp, u"amount"_s), &BillingEditor::surcharge},
        {QCommandLineOption(u"materials"_s, amountHelp, u"amount"_s), &BillingEditor::materials},
        {QCommandLineOption(u"discount"_s, amountHelp, u"amount"_s), &BillingEditor::discount},
        {QCommandLineOption(u"vat"_s, amountHelp, u"percent"_s), &BillingEditor::vatPercent},
    };
    parser.addOptions({taskOption, model, unitLabel, surchargeLabel, discountPct, discountAmount, inherit, travel,
                       travelRate});
    for (const FieldOption &field : fields) {
        parser.addOption(field.option);
    }
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.price"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const bool forTask = parser.isSet(taskOption);
    //% "Usage: morvane price show|set <project> | price show|set --task <task> [--model M] [--rate X] [--amount X] [--quantity N] [--unit-label L] [--day-rate X] [--day-hours H] [--min-charge X] [--surcharge X] [--surcharge-label L] [--materials X] [--discount X] [--discount-pct|--discount-amount] [--vat P] [--inherit] [--json]"
    const QString usageText = qtTrId("cli.price.usage");
    const bool known = (action == u"show" || action == u"set") && positional.size() == (forTask ? 1 : 2);
    const bool badModel = parser.isSet(model) && !Wire::enumFromName<BillingModel>(parser.value(model));
    // Trips are charged per project; a task has no travel setting of its own.
    const bool travelSet = parser.isSet(travel) || parser.isSet(travelRate);
    const bool badTravel = (parser.isSet(travel) && !Wire::enumFromName<Travel::Mode>(parser.value(travel))) ||
                           (travelSet && (forTask || action != u"set"));
    std::optional<double> travelRateValue;
    if (parser.isSet(travelRate) && !parser.value(travelRate).trimmed().isEmpty()) {
        travelRateValue = MoneyInput::parseDecimal(parser.value(travelRate));
        if (!travelRateValue || !std::isfinite(*travelRateValue) || *travelRateValue < 0) {
            err << qtTrId("cli.price.invalid").arg(u"--travel-rate "_s + parser.value(travelRate)) << Qt::endl;
            return 2;
        }
    }
    if (!known || badModel || badTravel || (parser.isSet(inherit) && !forTask) ||
        (parser.isSet(discountPct) && parser.isSet(discountAmount))) {
        return Cli::usage(err, usageText);
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    std::optional<TaskItem> task;
    std::optional<Project> project;
    if (forTask) {
        task = session.task(parser.value(taskOption), err);
        if (!task) {
            return 1;
        }
        project = store.project(task->projectId);
    } else {
        project = session.project(positional.at(1), err);
    }
    if (!project) {
        return 1;
    }
    const bool json = Cli::wantsJson(parser);
    if (action == u"show") {
        return showPrice(store, *project, task ? &*task : nullptr, json, out);
    }

    // The form's own state, filled as a person would fill it.
    BillingEditor editor;
    editor.setCurrency(currencyOf(store));
    if (task) {
        editor.loadTask(*task, &*project, defaultRateOf(store));
    } else {
        editor.loadProject(*project, defaultRateOf(store));
    }
    if (parser.isSet(inherit)) {
        editor.useProjectPrice();
    } else {
        if (parser.isSet(model)) {
            editor.setModelName(parser.value(model));
        }
        if (parser.isSet(unitLabel)) {
            editor.setUnitLabel(parser.value(unitLabel));
        }
        if (parser.isSet(surchargeLabel)) {
            editor.setSurchargeLabel(parser.value(surchargeLabel));
        }
        if (parser.isSet(discountPct) || parser.isSet(discountAmount)) {
            editor.setDiscountIsPct(parser.isSet(discountPct));
        }
        for (const FieldOption &field : fields) {
            if (parser.isSet(field.option)) {
                (editor.*field.field)()->setText(parser.value(field.option));
            }
        }
    }
    if (editor.invalid()) {
        QStringList wrong;
        for (const FieldOption &field : fields) {
            if (parser.isSet(field.option) && (editor.*field.field)()->invalid()) {
                wrong << u"--"_s + field.option.names().constFirst() + u' ' + parser.value(field.option);
            }
        }
        //% "Not a valid amount, or a required one is missing: %1"
        err << qtTrId("cli.price.invalid").arg(wrong.isEmpty() ? editor.modelName() : wrong.join(u", "_s))
            << Qt::endl;
        return 2;
    }

    bool saved = false;
    if (task) {
        if (!editor.hasChanges()) {
            saved = true;
        } else if (!runBlocking(store.updateTaskPrice(task->id, editor.taskPrice()))) {
            return session.failed(err);
        }
        task = store.task(task->id);
    } else if (const std::optional<Earnings::ProjectBillingWrite> write = editor.projectWrite()) {
        if (!runBlocking(store.updateProjectBilling(project->id, *write))) {
            return session.failed(err);
        }
        project = store.project(project->id);
    } else {
        saved = !travelSet;
    }
    if (travelSet && project) {
        Billing billing = Earnings::editorBilling(*project, defaultRateOf(store));
        Travel::Setting setting = Travel::of(billing);
        if (parser.isSet(travel)) {
            setting.mode = *Wire::enumFromName<Travel::Mode>(parser.value(travel));
        }
        if (parser.isSet(travelRate)) {
            setting.rate = travelRateValue;
        }
        billing.travel = Travel::toJson(setting);
        Earnings::ProjectBillingWrite write{billing, std::nullopt};
        if (billing.model == BillingModel::Hourly) {
            write.hourlyRate = billing.unitPrice;
        }
        if (!runBlocking(store.updateProjectBilling(project->id, write))) {
            return session.failed(err);
        }
        project = store.project(project->id);
    }
    if (saved && !json) {
        //% "Nothing changed."
        out << qtTrId("cli.price.unchanged") << Qt::endl;
    }
    return showPrice(store, *project, task ? &*task : nullptr, json, out);
}
