// How long a signed-in store takes to fill itself (refreshAll) for a busy user: 200 projects,
// 10,000 tasks and 20,000 time entries in the recent window. The baseline is the same four reads
// sent straight to PostgreSQL through libpq in the same run, as the server's own statements
// (paged entries included), on four connections at once as the store issues them. A third figure,
// the same HTTP reads without decoding, shows how the store's time splits between the server and
// the client. Prints the figures; asserts nothing.
#include "backend/authstore.h"
#include "backend/runblocking.h"
#include "http/httpmessage.h"
#include "model/isodate.h"
#include "pg/pgconnection.h"
#include "rest/catalog.h"
#include "rest/query.h"
#include "rest/sqlbuilder.h"
#include "store/appstore.h"
#include "support/testbackend.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <latch>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int projectCount = 200;
constexpr int tasksPerProject = 50;
constexpr int entriesPerTask = 2;
constexpr int runs = 5;
constexpr double targetSeconds = 1.0;
constexpr double targetRatio = 3.0;

const char *verdict(bool met)
{
    return met ? "PASS" : "MISS";
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

QJsonObject claimsOf(const QString &token)
{
    const QByteArray payload = token.toLatin1().split('.').value(1);
    return QJsonDocument::fromJson(QByteArray::fromBase64(payload, QByteArray::Base64UrlEncoding)).object();
}

// One read as the server runs it: its own transaction with the caller's role and claims.
struct DirectRead
{
    QList<SqlBuilder::Statement> statements; // the pages of a paged read, in order
};

QByteArray percentEncoded(const QString &value)
{
    return QUrl::toPercentEncoding(value, ",().:*");
}

SqlBuilder::Statement statementFor(const Catalog &catalog, const QString &table, const QByteArray &query)
{
    SqlBuilder builder(catalog);
    return builder.read(*catalog.relation(table), parseQuery(HttpRequest::parseQuery(query)), false);
}

// Runs every read on its own connection at once; answers the wall time in seconds and the rows read.
std::pair<double, qint64> runDirect(const QByteArray &conninfo, const QList<DirectRead> &reads,
                                    const QByteArray &claims)
{
    std::vector<std::unique_ptr<PgConnection>> connections;
    for (qsizetype i = 0; i < reads.size(); ++i) {
        connections.push_back(PgConnection::open(conninfo));
    }
    std::atomic<qint64> rows{0};
    std::latch ready(reads.size() + 1);
    std::vector<std::thread> threads;
    for (qsizetype i = 0; i < reads.size(); ++i) {
        threads.emplace_back([&, i] {
            PgConnection &connection = *connections[std::size_t(i)];
            ready.arrive_and_wait();
            for (const SqlBuilder::Statement &statement : reads[i].statements) {
                connection.execScript("BEGIN ISOLATION LEVEL READ COMMITTED READ ONLY");
                connection.exec("SELECT set_config('role', $1, true), set_config('request.jwt.claims', $2, true),"
                                " set_config('request.method', 'GET', true)",
                                {QByteArray("authenticated"), claims});
                const PgResult result = connection.exec(statement.sql, statement.params);
                connection.execScript("COMMIT");
                rows += result.value(0, 1).toLongLong();
            }
        });
    }
    ready.arrive_and_wait();
    QElapsedTimer clock;
    clock.start();
    for (std::thread &thread : threads) {
        thread.join();
    }
    return {double(clock.nsecsElapsed()) / 1e9, rows.load()};
}

// The same HTTP requests as refreshAll's four reads, bodies collected but not decoded.
QCoro::Task<qint64> rawReads(Supabase client, QString token, QString windowStart)
{
    auto get = [&](const QString &table, const QueryItems &query) {
        return client.send(BackendRequest{"GET",
                                          u"rest/v1/"_s + table,
                                          query,
                                          {{"Accept", "application/json"},
                                           {"apikey", client.anonKey().toUtf8()},
                                           {"Authorization", QByteArray("Bearer " + token.toUtf8())}},
                                          {}},
                           Supabase::Channel::Data);
    };
    const QueryItems profiles{{u"select"_s, u"*"_s}};
    const QueryItems projects{{u"select"_s, u"*"_s}, {u"order"_s, u"updated_at.desc"_s}};
    const QueryItems tasks{{u"select"_s, u"*"_s}, {u"order"_s, u"created_at.desc"_s}};
    QCoro::Task<QByteArray> a = get(u"profiles"_s, profiles);
    QCoro::Task<QByteArray> b = get(u"projects"_s, projects);
    QCoro::Task<QByteArray> c = get(u"tasks"_s, tasks);
    auto entries = [&]() -> QCoro::Task<qint64> {
        qint64 bytes = 0;
        for (int offset = 0;; offset += Supabase::pageSize) {
            const QueryItems page = Supabase::pageQuery({{u"select"_s, u"*"_s},
                                                         {u"ended_at"_s, u"gte."_s + windowStart},
                                                         {u"order"_s, u"ended_at.desc,id.desc"_s}},
                                                        offset);
            const QByteArray body = co_await get(u"time_entries"_s, page);
            bytes += body.size();
            if (body.count("\"id\"") < Supabase::pageSize) {
                break;
            }
        }
        co_return bytes;
    };
    QCoro::Task<qint64> d = entries();
    qint64 bytes = (co_await a).size();
    bytes += (co_await b).size();
    bytes += (co_await c).size();
    bytes += co_await d;
    co_return bytes;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    // Every request's debug line would drown the figures.
    QLoggingCategory::setFilterRules(u"morvane.*.debug=false"_s);
    std::printf("bench_store_refresh: starting a server on a throw-away cluster...\n");
    std::fflush(stdout);
    TestBackend backend;
    if (!backend.isReady()) {
        std::fprintf(stderr, "the server did not start:\n%s\n", qPrintable(backend.startupLog()));
        return 1;
    }

    // A real sign-up, so the store runs exactly as it does for a user.
    QTemporaryDir dir;
    auto settings = std::make_shared<QSettings>(dir.filePath(u"morvane.conf"_s), QSettings::IniFormat);
    AuthStore auth(Supabase(backend.url(), QString::fromLatin1(backend.anonKey())),
                   SecretStore::file(dir.filePath(u"secrets.json"_s)), settings);
    if (runBlocking(auth.registerAccount(u"busy@example.nl"_s, u"correct horse battery staple"_s, u"Busy"_s)) !=
        AuthStore::RegisterResult::SignedIn) {
        std::fprintf(stderr, "sign-up failed: %s\n", qPrintable(auth.lastError()));
        return 1;
    }
    const QByteArray user = auth.userId().toUtf8();

    std::printf("seeding %d projects, %d tasks, %d time entries...\n", projectCount, projectCount * tasksPerProject,
                projectCount * tasksPerProject * entriesPerTask);
    std::fflush(stdout);
    PgConnection &db = backend.database();
    db.exec("INSERT INTO projects (user_id, name, hourly_rate, created_at, updated_at)"
            " SELECT $1, 'Project ' || g, 60 + g % 40, now() - g * interval '1 hour', now() - g * interval '1 minute'"
            " FROM generate_series(1, $2::int) g",
            {user, QByteArray::number(projectCount)});
    db.exec("INSERT INTO tasks (user_id, project_id, title, description, status, priority, due_date,"
            " time_spent_seconds, attachments, created_at)"
            " SELECT $1, p.id, 'Task ' || g || ' of ' || p.name, CASE WHEN g % 3 = 0 THEN 'Notes for task ' || g END,"
            "  (ARRAY['not_started','completed','not_started'])[1 + g % 3], (ARRAY['low','medium','high'])[1 + g % 3],"
            "  CASE WHEN g % 4 = 0 THEN '2025-03-01' END, g * 60,"
            "  jsonb_build_object('_position', g, '_category', 'billable'),"
            "  now() - (p.n * 100 + g) * interval '1 minute'"
            " FROM (SELECT id, name, row_number() OVER (ORDER BY created_at) AS n FROM projects WHERE user_id = $1) p"
            " CROSS JOIN generate_series(1, $2::int) g",
            {user, QByteArray::number(tasksPerProject)});
    db.exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds)"
            " SELECT $1, t.id, t.project_id, x.ended - interval '30 minutes', x.ended, 1800"
            " FROM (SELECT id, project_id, row_number() OVER (ORDER BY id) AS n FROM tasks WHERE user_id = $1) t"
            " CROSS JOIN generate_series(0, $2::int - 1) k,"
            " LATERAL (SELECT now() - ((t.n * $2::int + k) % 40000) * interval '1 minute' AS ended) x",
            {user, QByteArray::number(entriesPerTask)});
    db.execScript("ANALYZE");

    // The four reads as the server translates them, pages of the entries included.
    const std::optional<QString> token = runBlocking(auth.validToken(300));
    if (!token) {
        std::fprintf(stderr, "no token\n");
        return 1;
    }
    AppStore probe(auth, settings);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QString windowStart =
        isoString(QDateTime(now.toLocalTime().date().addDays(-AppStore::recentWindowDays), QTime(0, 0)).toUTC());
    QList<DirectRead> reads;
    try {
        const Catalog catalog = Catalog::load(db);
        reads.append({{statementFor(catalog, u"profiles"_s, "select=*")}});
        reads.append({{statementFor(catalog, u"projects"_s, "select=*&order=updated_at.desc")}});
        reads.append({{statementFor(catalog, u"tasks"_s, "select=*&order=created_at.desc")}});
        DirectRead entries;
        const int total = projectCount * tasksPerProject * entriesPerTask;
        // The paged read asks once more after a full last page and gets an empty one.
        for (int offset = 0; offset <= total; offset += Supabase::pageSize) {
            entries.statements.append(statementFor(
                catalog, u"time_entries"_s,
                "select=*&ended_at=gte." + percentEncoded(windowStart) + "&order=ended_at.desc,id.desc&limit=" +
                    QByteArray::number(Supabase::pageSize) + "&offset=" + QByteArray::number(offset)));
        }
        reads.append(entries);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "cannot build the statements: %s\n", error.what());
        return 1;
    }
    const QByteArray claims = QJsonDocument(claimsOf(*token)).toJson(QJsonDocument::Compact);
    const QByteArray conninfo = "host='" + backend.dataDir().toUtf8() + "/postgres' dbname=morvane user=morvane";

    // Warm both sides (pools, plans, page cache) once, and check the store fills completely.
    runDirect(conninfo, reads, claims);
    if (!runBlocking(probe.refreshAll())) {
        std::fprintf(stderr, "the warm-up refresh failed: %s\n", qPrintable(probe.lastError()));
        return 1;
    }
    qint64 tasks = 0;
    for (const QList<TaskItem> &list : probe.tasksByProject()) {
        tasks += list.size();
    }
    std::printf("store after refresh: %lld projects, %lld tasks, %lld recent entries\n",
                qint64(probe.projects().size()), tasks, qint64(probe.recentEntries().size()));
    if (probe.projects().size() != projectCount || tasks != projectCount * tasksPerProject ||
        probe.recentEntries().size() != projectCount * tasksPerProject * entriesPerTask) {
        std::fprintf(stderr, "the store did not fill completely\n");
        return 1;
    }

    std::vector<double> storeTimes;
    std::vector<double> directTimes;
    std::vector<double> rawTimes;
    qint64 directRows = 0;
    qint64 rawBytes = 0;
    for (int run = 0; run < runs; ++run) {
        // A new store each time: the refresh then builds every collection, as after a sign-in.
        AppStore store(auth, settings);
        QElapsedTimer clock;
        clock.start();
        const bool loaded = runBlocking(store.refreshAll());
        storeTimes.push_back(double(clock.nsecsElapsed()) / 1e9);
        if (!loaded) {
            std::fprintf(stderr, "refresh %d failed: %s\n", run, qPrintable(store.lastError()));
            return 1;
        }
        const auto [seconds, rows] = runDirect(conninfo, reads, claims);
        directTimes.push_back(seconds);
        directRows = rows;
        clock.restart();
        rawBytes = runBlocking(rawReads(auth.client(), *token, windowStart));
        rawTimes.push_back(double(clock.nsecsElapsed()) / 1e9);
    }

    const double storeSeconds = median(storeTimes);
    const double directSeconds = median(directTimes);
    const double rawSeconds = median(rawTimes);
    const double ratio = directSeconds > 0 ? storeSeconds / directSeconds : 0;
    std::printf("store refreshAll (fresh store, signed in), median of %d:     %7.1f ms\n", runs, storeSeconds * 1000);
    std::printf("  of which the same HTTP reads, bodies not decoded (%.1f MB): %7.1f ms\n", double(rawBytes) / 1e6,
                rawSeconds * 1000);
    std::printf("direct libpq, the server's statements, 4 connections (%lld rows): %7.1f ms\n", directRows,
                directSeconds * 1000);
    std::printf("ratio store/direct: %.2f\n", ratio);
    std::printf("target: refresh under %.0f s ........................ %s\n", targetSeconds,
                verdict(storeSeconds < targetSeconds));
    std::printf("target: refresh within %.0fx of the direct reads ...... %s\n", targetRatio,
                verdict(ratio <= targetRatio));
    return 0;
}
