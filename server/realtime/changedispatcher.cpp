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

QByteArray readerKey(const ChannelSubscription &subscription)
{
    return subscription.role.toUtf8() + '\n' + QJsonDocument(subscription.claims).toJson(QJsonDocument::Compact);
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

ChangeDispatcher::ChangeDispatcher(QByteArray queueConninfo, QByteArray checkConninfo, Hooks hooks)
    : m_conninfo(std::move(queueConninfo))
    , m_checkConninfo(std::move(checkConninfo))
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
    std::unique_ptr<PgConnection> checks;
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
            // The read checks run as the subscribers, through the login role that can become
            // nothing else, never as the queue's owner.
            if (!checks || !checks->isHealthy()) {
                checks = PgConnection::open(m_checkConninfo);
                checks->execScript("SET application_name = 'morvane realtime checks'");
            }
            if (m_tablesStale.exchange(false)) {
                m_tables.clear();
            }
            while (drainOnce(*connection, *checks)) {
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
            checks.reset();
            if (!failing) {
                failing = true;
                qCWarning(lcDispatch) << "cannot read the change queue:" << error.what();
                m_hooks.failed(QString::fromUtf8(error.what()));
            }
        }
    }
}

bool ChangeDispatcher::drainOnce(PgConnection &connection, PgConnection &checks)
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
    QList<ChangeDelivery> deliveries = route(connection, checks, changes);
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

QList<ChangeDelivery> ChangeDispatcher::route(PgConnection &queue, PgConnection &checks, const QList<Change> &changes)
{
    const SubscriptionSnapshot subscriptions = m_hooks.subscriptions();
    QList<ChangeDelivery> deliveries;
    if (!subscriptions || subscriptions->isEmpty()) {
        return deliveries;
    }
    struct Candidate
    {
        qsizetype change;
        QJsonArray ids;
        QStringList filterColumns;
    };
    // Channels that listen as the same identity (one person's windows and devices, or one socket
    // with many channels) see the same rows: whether they may is asked once per identity and
    // table, not once per channel.
    struct Reader
    {
        QString role;
        QJsonObject claims;
        QSet<qsizetype> wanted;
        QSet<qsizetype> readable;
    };
    QHash<QByteArray, Reader> readers;
    QList<std::pair<const ChannelSubscription *, QList<Candidate>>> listening;
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    for (const ChannelSubscription &subscription : *subscriptions) {
        if (subscription.expiresAt != 0 && subscription.expiresAt <= now) {
            continue;
        }
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
        Reader &reader = readers[readerKey(subscription)];
        reader.role = subscription.role;
        reader.claims = subscription.claims;
        for (const Candidate &candidate : std::as_const(candidates)) {
            reader.wanted.insert(candidate.change);
        }
        listening.append({&subscription, std::move(candidates)});
    }
    if (listening.isEmpty()) {
        return deliveries;
    }

    // One read-only transaction for the whole slice; each identity's claims are set in turn.
    bool inTransaction = false;
    for (Reader &reader : readers) {
        QHash<QString, QList<qsizetype>> byTable; // "schema.table" -> changes
        for (qsizetype c : std::as_const(reader.wanted)) {
            byTable[changes.at(c).schema + u'.' + changes.at(c).table].append(c);
        }
        try {
            bool claimsSet = false;
            for (auto it = byTable.cbegin(); it != byTable.cend(); ++it) {
                const Change &first = changes.at(it->first());
                TableInfo &info = tableInfo(queue, first.schema, first.table);
                const QString condition = visibilityCondition(queue, info, first.schema, first.table, reader.role);
                if (condition.isEmpty()) {
                    continue;
                }
                if (condition == u"true") {
                    for (qsizetype c : *it) {
                        reader.readable.insert(c);
                    }
                    continue;
                }
                if (!inTransaction) {
                    checks.execScript("BEGIN ISOLATION LEVEL READ COMMITTED READ ONLY");
                    checks.exec("SELECT set_config('statement_timeout', '5000', true)");
                    inTransaction = true;
                }
                if (!claimsSet) {
                    checks.exec("SELECT set_config('role', $1, true), set_config('request.jwt.claims', $2, true)",
                                {reader.role.toUtf8(), QJsonDocument(reader.claims).toJson(QJsonDocument::Compact)});
                    claimsSet = true;
                }
                QJsonArray rows;
                for (qsizetype c : *it) {
                    rows.append(changes.at(c).row());
                }
                // An account that was deleted, or a session that ended, reads nothing more.
                const QByteArray live = reader.role == u"authenticated" ? " AND (SELECT app.session_is_live())" : "";
                const QByteArray sql =
                    "SELECT q.ord FROM jsonb_array_elements($1::jsonb) WITH ORDINALITY AS q(rec, ord)"
                    " CROSS JOIN LATERAL jsonb_populate_record(NULL::" +
                    quoteIdentifier(first.schema) + '.' + quoteIdentifier(first.table) + ", q.rec) AS " +
                    quoteIdentifier(first.table) + " WHERE (" + condition.toUtf8() + ')' + live;
                const PgResult visible = checks.exec(sql, {QJsonDocument(rows).toJson(QJsonDocument::Compact)});
                for (int r = 0; r < visible.rows(); ++r) {
                    reader.readable.insert(it->at(visible.value(r, 0).toLongLong() - 1));
                }
            }
        } catch (const PgException &error) {
            if (!checks.isHealthy()) {
                throw;
            }
            // A policy that fails for this identity hides the rows from them, as it would on a
            // read; the transaction it broke is begun afresh for the others.
            qCWarning(lcDispatch) << "read check failed for" << reader.role << error.what();
            reader.readable.clear();
            if (checks.inTransaction()) {
                checks.execScript("ROLLBACK");
            }
            inTransaction = false;
        }
    }
    if (inTransaction) {
        checks.execScript("COMMIT");
    }

    for (const auto &[subscription, candidates] : std::as_const(listening)) {
        const Reader &reader = readers[readerKey(*subscription)];
        for (const Candidate &candidate : candidates) {
            if (!reader.readable.contains(candidate.change)) {
                continue;
            }
            const Change &change = changes.at(candidate.change);
            const TableInfo &info = tableInfo(queue, change.schema, change.table);
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
            deliveries.append({subscription->connection, subscription->serial, subscription->topic,
                               QJsonObject{{u"ids"_s, candidate.ids}, {u"data"_s, data}}});
        }
    }
    return deliveries;
}
