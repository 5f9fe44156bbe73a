#include "accountantexport.h"

#include "billing/money.h"
#include "model/isodate.h"
#include "store/appstore.h"

#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Csv {

QString field(const QString &value)
{
    static const QList<QChar> special{u',', u'"', u'\r', u'\n'};
    const bool quoted = std::any_of(special.cbegin(), special.cend(), [&](QChar c) { return value.contains(c); });
    if (!quoted) {
        return value;
    }
    return u'"' + QString(value).replace(u'"', u"\"\""_s) + u'"';
}

QString text(const QString &value)
{
    // Tab and CR open a formula in some spreadsheets too.
    static const QString formulaStarts = u"=+-@\t\r"_s;
    return !value.isEmpty() && formulaStarts.contains(value.front()) ? u'\'' + value : value;
}

QByteArray document(const QList<QStringList> &rows)
{
    QString out;
    for (const QStringList &row : rows) {
        QStringList fields;
        fields.reserve(row.size());
        for (const QString &value : row) {
            fields << field(value);
        }
        out += fields.join(u',') + u"\r\n"_s;
    }
    return out.toUtf8();
}

} // namespace Csv

namespace AccountantExport {

namespace {

// Hundredths of an hour, halves up, in whole numbers: a double would round 0.125 h either way.
QString hours(qint64 seconds)
{
    const qint64 hundredths = (qMax<qint64>(0, seconds) * 100 + 1800) / 3600;
    return QString::number(hundredths / 100) + u'.' + QString::number(hundredths % 100).rightJustified(2, u'0');
}

QString minutes(qint64 seconds)
{
    return QString::number((qMax<qint64>(0, seconds) + 30) / 60);
}

// Always two decimals and a dot, whatever the user's locale writes.
QString amount(double value)
{
    return QString::number(round2(value), 'f', 2);
}

QString localInstant(const std::optional<QDateTime> &instant, const QTimeZone &zone)
{
    return instant ? instant->toTimeZone(zone).toString(Qt::ISODate) : QString();
}

const QStringList entryHeader{u"date"_s,    u"start"_s, u"end"_s,    u"hours"_s,   u"minutes"_s,
                              u"project"_s, u"task"_s,  u"billed"_s, u"invoice"_s, u"logged_by"_s};
const QStringList invoiceHeader{u"number"_s, u"issue_date"_s, u"due_date"_s, u"client"_s,  u"status"_s,
                                u"net"_s,    u"vat"_s,        u"total"_s,    u"currency"_s};

} // namespace

std::optional<Kind> kindFromName(QStringView name)
{
    if (name == u"entries") {
        return Kind::Entries;
    }
    if (name == u"invoices") {
        return Kind::Invoices;
    }
    return std::nullopt;
}

QDateTime Period::start() const
{
    return QDateTime(from, QTime(0, 0), zone);
}

QDateTime Period::end() const
{
    return QDateTime(to.addDays(1), QTime(0, 0), zone);
}

QList<QStringList> entryRows(QList<TimeEntry> entries, const EntryContext &context, const Period &period)
{
    struct Dated
    {
        TimeEntry entry;
        std::optional<QDateTime> started;
    };
    QList<Dated> dated;
    for (TimeEntry &entry : entries) {
        const std::optional<QDateTime> started = isoDate(entry.startedAt);
        // A day belongs to the period by where the work began, as the invoice composer counts it.
        const QDate day = started ? started->toTimeZone(period.zone).date() : QDate();
        if (day.isValid() && day >= period.from && day <= period.to) {
            dated << Dated{std::move(entry), started};
        }
    }
    std::stable_sort(dated.begin(), dated.end(), [](const Dated &a, const Dated &b) {
        return a.started != b.started ? *a.started < *b.started : a.entry.id < b.entry.id;
    });

    QList<QStringList> rows{entryHeader};
    for (const Dated &item : std::as_const(dated)) {
        const TimeEntry &entry = item.entry;
        const QString invoice = context.invoiceOfEntry.value(entry.id);
        const QString by = entry.loggedByEmail.value_or(context.emailOfUser.value(entry.userId));
        rows << QStringList{item.started->toTimeZone(period.zone).date().toString(Qt::ISODate),
                            localInstant(item.started, period.zone),
                            localInstant(isoDate(entry.endedAt), period.zone),
                            hours(entry.durationSeconds),
                            minutes(entry.durationSeconds),
                            Csv::text(context.projectNames.value(entry.projectId)),
                            Csv::text(context.taskTitles.value(entry.taskId)),
                            invoice.isEmpty() && !context.billedUnseen.contains(entry.id) ? u"no"_s : u"yes"_s,
                            Csv::text(invoice),
                            Csv::text(by)};
    }
    return rows;
}

QList<QStringList> invoiceRows(QList<Invoice> invoices, const Period &period)
{
    QList<std::pair<QDate, Invoice>> dated;
    for (Invoice &invoice : invoices) {
        const QDate issued = QDate::fromString(invoice.issuedAt.left(10), Qt::ISODate);
        if (issued.isValid() && issued >= period.from && issued <= period.to) {
            dated.append({issued, std::move(invoice)});
        }
    }
    std::stable_sort(dated.begin(), dated.end(), [](const auto &a, const auto &b) {
        return a.first != b.first ? a.first < b.first : a.second.number < b.second.number;
    });

    QList<QStringList> rows{invoiceHeader};
    for (const auto &[issued, invoice] : std::as_const(dated)) {
        const QDate due = QDate::fromString(invoice.dueAt.value_or(QString()).left(10), Qt::ISODate);
        rows << QStringList{Csv::text(invoice.number),
                            issued.toString(Qt::ISODate),
                            due.isValid() ? due.toString(Qt::ISODate) : QString(),
                            Csv::text(invoice.clientName.value_or(QString())),
                            Wire::enumName(invoice.status),
                            amount(invoice.subtotal),
                            amount(invoice.vatAmount),
                            amount(invoice.total),
                            Csv::text(invoice.currency)};
    }
    return rows;
}

QCoro::Task<Result> build(AppStore &store, Kind kind, Period period)
{
    // Both files need the invoices: one lists them, the other names the invoice of a billed entry.
    if (!co_await store.loadInvoices()) {
        co_return Result{std::nullopt, 0, store.lastError()};
    }
    if (kind == Kind::Invoices) {
        const QList<QStringList> rows = invoiceRows(store.invoices(), period);
        co_return Result{Csv::document(rows), int(rows.size() - 1), {}};
    }

    const std::optional<QList<TimeEntry>> entries = co_await store.readEntriesBetween(period.start(), period.end());
    if (!entries) {
        co_return Result{std::nullopt, 0, store.lastError()};
    }
    const std::optional<QList<InvoiceEntryLink>> links = co_await store.readEntryLinks();
    if (!links || !co_await store.loadUnbilledEntries()) {
        co_return Result{std::nullopt, 0, store.lastError()};
    }

    // Names come from the store's projects and tasks, which hold everything the user may read;
    // an entry's task is never gone while the entry stays (the entry is deleted with it).
    EntryContext context;
    for (const Project &project : store.projects()) {
        context.projectNames.insert(project.id, project.name);
        for (const TaskItem &task : store.tasks(project.id)) {
            context.taskTitles.insert(task.id, task.title);
        }
    }
    QHash<QString, QString> liveNumbers;
    for (const Invoice &invoice : store.invoices()) {
        if (invoice.isLive()) {
            liveNumbers.insert(invoice.id, invoice.number);
        }
    }
    for (const InvoiceEntryLink &link : *links) {
        if (const auto number = liveNumbers.constFind(link.invoiceId); number != liveNumbers.cend()) {
            context.invoiceOfEntry.insert(link.timeEntryId, *number);
        }
    }
    // The unbilled view holds the user's own entries only; a team mate's entry is billed when a
    // link says so.
    QSet<QString> unbilled;
    for (const TimeEntry &entry : store.unbilledEntries()) {
        unbilled.insert(entry.id);
    }
    for (const TimeEntry &entry : *entries) {
        if (entry.userId == store.currentUserId() && !unbilled.contains(entry.id)) {
            context.billedUnseen.insert(entry.id);
        }
    }
    for (const QList<TeamMember> &members : store.membersByTeam()) {
        for (const TeamMember &member : members) {
            context.emailOfUser.insert(member.userId, member.email);
        }
    }
    if (const std::optional<Profile> &profile = store.profile(); profile && profile->email) {
        context.emailOfUser.insert(store.currentUserId(), *profile->email);
    }
    const QList<QStringList> rows = entryRows(*entries, context, period);
    co_return Result{Csv::document(rows), int(rows.size() - 1), {}};
}

QString writeFile(const QString &path, const QByteArray &csv)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(csv) != csv.size() || !file.commit()) {
        return file.errorString();
    }
    return {};
}

} // namespace AccountantExport
