#include "changedispatcher.h"

#include "pg/pgconnection.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QSet>

#include <chrono>

Q_LOGGING_CATEGORY(lcDispatch, "morvane.server.realtime")

using namespace Qt::StringLiterals;

namespace {

// Read in slices, so that a burst of many thousand changes neither sits in memory at once nor
// holds back the first deliveries.
constexpr int batchSize = 500;
constexpr qint64 batchBytes = 8 * 1024 * 1024;

QByteArray quoteIdentifier(const QString &name)
{
    QByteArray quoted = name.toUtf8();
    quoted.replace('"', "\"\"");
    return '"' + quoted + '"';
}

QJsonObject parseObject(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

struct ChangeDispatcher::Change
{
    QString schema;
    QString table;
    QString type;
    QJsonObject record;
    QJsonObject oldRecord;
    QString committedAt;

    // The row a filter and the read check look at: the old one for a delete.
    [[nodiscard]] const QJsonObject &row() const { return type == u"DELETE" ? oldRecord : record; }
};

ChangeDispatcher::ChangeDispatcher(QByteArray conninfo, Hooks hooks)
    : m_conninfo(std::move(conninfo))
    , m_hooks(std::move(hooks))
    , m_thread([this] { run(); })
{}

ChangeDispatcher::~ChangeDispatcher()
{
    {
        std::lock_guard lock(m_mutex);
        m_stop = true;
    }
    m_wakeup.notify_one();
    m_thread.join();
}

void ChangeDispatcher::wake()
{
    {
        std::lock_guard lock(m_mutex);
        m_pending = true;
    }
    m_wakeup.notify_one();
}

void ChangeDispatcher::forgetTables()
{
    m_tablesStale = true;
    wake();
}

void ChangeDispatcher::run()
{
    std::unique_ptr<PgConnection> connection;
    bool failing = false;
    for (;;) {
        {
            std::unique_lock lock(m_mutex);
            // Also look now and then without a notification: the listener misses those sent
            // while it reconnects.
            m_wakeup.wait_for(lock, std::chrono::seconds(1), [this] { return m_pending || m_stop; });
            if (m_stop) {
                return;
            }
            m_pending = false;
        }
        try {
            if (!connection || !connection->isHealthy()) {
                connection = PgConnection::open(m_conninfo);
                // Named, so that an administrator can tell it from the request connections.
                connection->execScript("SET application_name = 'morvane realtime'");
                m_tables.clear();
            }
            if (m_tablesStale.exchange(false)) {
                m_tables.clear();
            }
            while (drainOnce(*connection)) {
                std::lock_guard lock(m_mutex);
                if (m_stop) {
                    return;
                }
            }
            if (failing) {
                failing = false;
                qCInfo(lcDispatch) << "change queue readable again";
                m_hooks.recovered();
            }
        } catch (const PgException &error) {
            connection.reset();
            if (!failing) {
                failing = true;
                qCWarning(lcDispatch) << "cannot read the change queue:" << error.what();
                m_hooks.failed(QString::fromUtf8(error.what()));
            }
        }
    }
}

bool ChangeDispatcher::drainOnce(PgConnection &connection)
{
    // A slice holds at most batchSize changes and about batchBytes of rows (always one, however
    // large), so that a burst of big rows never sits in memory whole.
    const PgResult rows = connection.exec(
        "SELECT id, schema_name, table_name, type, record_text, old_text, committed FROM ("
        "  SELECT r.*, sum(coalesce(octet_length(r.record_text), 0) + coalesce(octet_length(r.old_text), 0))"
        "    OVER (ORDER BY r.id ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING) AS before"
        "  FROM (SELECT c.id, c.schema_name, c.table_name, c.type, c.record::text AS record_text,"
        "          c.old_record::text AS old_text,"
        "          to_char(c.committed_at AT TIME ZONE 'UTC', 'YYYY-MM-DD\"T\"HH24:MI:SS.MS\"Z\"') AS committed"
        "        FROM app.realtime_changes c ORDER BY c.id LIMIT " +
            QByteArray::number(batchSize) +
            ") r) q"
            " WHERE coalesce(q.before, 0) < $1 ORDER BY id",
        {QByteArray::number(batchBytes)});
    if (rows.rows() == 0) {
        return false;
    }
    QList<Change> changes;
    changes.reserve(rows.rows());
    QByteArray ids = "{";
    for (int i = 0; i < rows.rows(); ++i) {
        ids += (i ? "," : "") + rows.value(i, 0);
        Change change;
        change.schema = QString::fromUtf8(rows.value(i, 1));
        change.table = QString::fromUtf8(rows.value(i, 2));
        change.type = QString::fromUtf8(rows.value(i, 3));
        if (!rows.isNull(i, 4)) {
            change.record = parseObject(rows.value(i, 4));
        }
        if (!rows.isNull(i, 5)) {
            change.oldRecord = parseObject(rows.value(i, 5));
        }
        change.committedAt = QString::fromUtf8(rows.value(i, 6));
        changes.append(std::move(change));
    }
    ids += '}';
    QList<ChangeDelivery> deliveries = route(connection, changes);
    if (!deliveries.isEmpty()) {
        m_hooks.deliver(std::move(deliveries));
    }
    // By id, not by range: a transaction that took a lower id may commit after this read.
    connection.exec("DELETE FROM app.realtime_changes WHERE id = ANY($1::bigint[])", {ids});
    // A slice cut short by its size leaves more behind; an empty read ends the draining.
    return true;
}

ChangeDispatcher::TableInfo &ChangeDispatcher::tableInfo(PgConnection &connection, const QString &schema,
                                                         const QString &table)
{
    const QString key = schema + u'.' + table;
    auto it = m_tables.find(key);
    if (it != m_tables.end()) {
        return *it;
    }
    TableInfo info;
    const QByteArray relation = quoteIdentifier(schema) + '.' + quoteIdentifier(table);
    const PgResult columns = connection.exec("SELECT a.attname, t.typname FROM pg_attribute a"
                                             " JOIN pg_type t ON t.oid = a.atttypid"
                                             " WHERE a.attrelid = $1::regclass AND a.attnum > 0 AND NOT a.attisdropped"
                                             " ORDER BY a.attnum",
                                             {relation});
    for (int i = 0; i < columns.rows(); ++i) {
        info.columns.append(QJsonObject{{u"name"_s, QString::fromUtf8(columns.value(i, 0))},
                                        {u"type"_s, QString::fromUtf8(columns.value(i, 1))}});
    }
    const PgResult keys = connection.exec("SELECT a.attname FROM pg_index i"
                                          " JOIN pg_attribute a ON a.attrelid = i.indrelid AND a.attnum = ANY(i.indkey)"
                                          " WHERE i.indrelid = $1::regclass AND i.indisprimary ORDER BY a.attnum",
                                          {relation});
    for (int i = 0; i < keys.rows(); ++i) {
        info.keyColumns.append(QString::fromUtf8(keys.value(i, 0)));
    }
    const PgResult security =
        connection.exec("SELECT relrowsecurity FROM pg_class WHERE oid = $1::regclass", {relation});
    info.rowSecurity = security.rows() == 1 && security.value(0, 0) == "t";
    return *m_tables.insert(key, info);
}

QString ChangeDispatcher::visibilityCondition(PgConnection &connection, TableInfo &info, const QString &schema,
                                              const QString &table, const QString &role)
{
    const auto known = info.visibility.constFind(role);
    if (known != info.visibility.cend()) {
        return *known;
    }
    const QByteArray relation = quoteIdentifier(schema) + '.' + quoteIdentifier(table);
    const PgResult rights = connection.exec(
        "SELECT has_table_privilege($1, $2, 'SELECT'), (SELECT r.rolbypassrls FROM pg_roles r WHERE r.rolname = $1)",
        {role.toUtf8(), relation});
    QString condition;
    if (rights.value(0, 0) != "t") {
        condition.clear();
    } else if (!info.rowSecurity || rights.value(0, 1) == "t") {
        condition = u"true"_s;
    } else {
        // The table's read policies for this role, combined as PostgreSQL combines them:
        // permissive ones with OR, restrictive ones with AND. Without a permissive one nothing is
        // readable.
        const PgResult policies = connection.exec("SELECT permissive, qual FROM pg_policies"
                                                  " WHERE schemaname = $1 AND tablename = $2"
                                                  " AND cmd IN ('SELECT', 'ALL')"
                                                  " AND roles && ARRAY['public', $3]::name[]",
                                                  {schema.toUtf8(), table.toUtf8(), role.toUtf8()});
        QStringList permissive;
        QStringList restrictive;
        for (int i = 0; i < policies.rows(); ++i) {
            const QString qual = policies.isNull(i, 1) ? u"true"_s : QString::fromUtf8(policies.value(i, 1));
            (policies.value(i, 0) == "PERMISSIVE" ? permissive : restrictive).append(u'(' + qual + u')');
        }
        condition = permissive.isEmpty() ? u"false"_s : u'(' + permissive.join(u" OR "_s) + u')';
        for (const QString &qual : std::as_const(restrictive)) {
            condition += u" AND "_s + qual;
        }
    }
    info.visibility.insert(role, condition);
    return condition;
}

QList<ChangeDelivery> ChangeDispatcher::route(PgConnection &connection, const QList<Change> &changes)
{
    const SubscriptionSnapshot subscriptions = m_hooks.subscriptions();
    QList<ChangeDelivery> deliveries;
    if (!subscriptions || subscriptions->isEmpty()) {
        return deliveries;
    }
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    for (const ChannelSubscription &subscription : *subscriptions) {
        if (subscription.expiresAt != 0 && subscription.expiresAt <= now) {
            continue;
        }
        struct Candidate
        {
            qsizetype change;
            QJsonArray ids;
            QStringList filterColumns;
        };
        QList<Candidate> candidates;
        for (qsizetype i = 0; i < changes.size(); ++i) {
            const Change &change = changes.at(i);
            Candidate candidate{i, {}, {}};
            for (const ChangeBinding &binding : subscription.bindings) {
                if (binding.wants(change.schema, change.table, change.type) && binding.filter.matches(change.row())) {
                    candidate.ids.append(binding.id);
                    candidate.filterColumns += binding.filter.columns();
                }
            }
            if (!candidate.ids.isEmpty()) {
                candidates.append(std::move(candidate));
            }
        }
        if (candidates.isEmpty()) {
            continue;
        }

        // Which candidates this subscriber may read, one query per table in one transaction
        // that runs as the subscriber.
        QHash<QString, QList<qsizetype>> byTable; // "schema.table" -> positions in candidates
        for (qsizetype c = 0; c < candidates.size(); ++c) {
            const Change &change = changes.at(candidates.at(c).change);
            byTable[change.schema + u'.' + change.table].append(c);
        }
        QSet<qsizetype> readable;
        bool inTransaction = false;
        try {
            for (auto it = byTable.cbegin(); it != byTable.cend(); ++it) {
                const Change &first = changes.at(candidates.at(it->first()).change);
                TableInfo &info = tableInfo(connection, first.schema, first.table);
                const QString condition =
                    visibilityCondition(connection, info, first.schema, first.table, subscription.role);
                if (condition.isEmpty()) {
                    continue;
                }
                if (condition == u"true") {
                    for (qsizetype c : *it) {
                        readable.insert(c);
                    }
                    continue;
                }
                if (!inTransaction) {
                    connection.execScript("BEGIN ISOLATION LEVEL READ COMMITTED READ ONLY");
                    inTransaction = true;
                    connection.exec("SELECT set_config('role', $1, true), set_config('request.jwt.claims', $2, true),"
                                    " set_config('statement_timeout', '5000', true)",
                                    {subscription.role.toUtf8(),
                                     QJsonDocument(subscription.claims).toJson(QJsonDocument::Compact)});
                }
                QJsonArray rows;
                for (qsizetype c : *it) {
                    rows.append(changes.at(candidates.at(c).change).row());
                }
                const QByteArray sql =
                    "SELECT q.ord FROM jsonb_array_elements($1::jsonb) WITH ORDINALITY AS q(rec, ord)"
                    " CROSS JOIN LATERAL jsonb_populate_record(NULL::" +
                    quoteIdentifier(first.schema) + '.' + quoteIdentifier(first.table) + ", q.rec) AS " +
                    quoteIdentifier(first.table) + " WHERE " + condition.toUtf8();
                const PgResult visible = connection.exec(sql, {QJsonDocument(rows).toJson(QJsonDocument::Compact)});
                for (int r = 0; r < visible.rows(); ++r) {
                    readable.insert(it->at(visible.value(r, 0).toLongLong() - 1));
                }
            }
            if (inTransaction) {
                connection.execScript("COMMIT");
            }
        } catch (const PgException &error) {
            if (!connection.isHealthy()) {
                throw;
            }
            // A policy that fails for this subscriber hides the rows from them, as it would on a read.
            qCWarning(lcDispatch) << "read check failed for" << subscription.topic << error.what();
            if (connection.inTransaction()) {
                connection.execScript("ROLLBACK");
            }
            continue;
        }

        for (qsizetype c = 0; c < candidates.size(); ++c) {
            if (!readable.contains(c)) {
                continue;
            }
            const Candidate &candidate = candidates.at(c);
            const Change &change = changes.at(candidate.change);
            const TableInfo &info = tableInfo(connection, change.schema, change.table);
            QJsonObject data{{u"schema"_s, change.schema},
                             {u"table"_s, change.table},
                             {u"commit_timestamp"_s, change.committedAt},
                             {u"type"_s, change.type},
                             {u"columns"_s, info.columns},
                             {u"errors"_s, QJsonValue(QJsonValue::Null)}};
            if (change.type != u"DELETE") {
                data.insert(u"record"_s, change.record);
            }
            if (change.type != u"INSERT") {
                // Only what identifies the row and what the subscriber's filters need: the old
                // values of other columns are not the subscriber's to see.
                QJsonObject old;
                for (const QString &column : info.keyColumns + candidate.filterColumns) {
                    if (change.oldRecord.contains(column)) {
                        old.insert(column, change.oldRecord.value(column));
                    }
                }
                data.insert(u"old_record"_s, old);
            }
            deliveries.append({subscription.connection, subscription.serial, subscription.topic,
                               QJsonObject{{u"ids"_s, candidate.ids}, {u"data"_s, data}}});
        }
    }
    return deliveries;
}
