// How many authenticated REST reads the server answers per second, against the same transactions
// sent straight to PostgreSQL through libpq in the same run: the gap is what HTTP, token checks,
// query translation and JSON framing cost. Prints the figures; asserts nothing.
#include "http/httpmessage.h"
#include "pg/pgconnection.h"
#include "rest/catalog.h"
#include "rest/query.h"
#include "rest/sqlbuilder.h"
#include "support/testbackend.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <latch>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int connections = 2;
constexpr qint64 maxRequests = 20000;
constexpr qint64 maxMillis = 5000;
constexpr qint64 warmUpRequests = 500;
constexpr double targetRate = 1500.0;
constexpr double targetShareOfDirect = 1.0 / 3.0;

struct Figures
{
    qint64 done = 0;
    qint64 failed = 0;
    double seconds = 0;

    [[nodiscard]] double rate() const { return seconds > 0 ? double(done) / seconds : 0; }
};

// One keep-alive HTTP/1.1 connection that sends the next request as soon as an answer is complete.
// Parsing is the least that is correct for this server's answers (Content-Length framing), so the
// client costs little next to the server it measures.
struct Connection
{
    QTcpSocket socket;
    QByteArray buffer;
    QByteArray firstBody;
};

qsizetype contentLength(const QByteArray &head)
{
    static const QByteArray name = "\r\ncontent-length:";
    for (qsizetype at = head.indexOf("\r\n"); at >= 0; at = head.indexOf("\r\n", at + 2)) {
        if (head.size() - at >= name.size() && qstrnicmp(head.constData() + at, name.constData(), name.size()) == 0) {
            const qsizetype start = at + name.size();
            const qsizetype end = head.indexOf("\r\n", start);
            return head.mid(start, (end < 0 ? head.size() : end) - start).trimmed().toLongLong();
        }
    }
    return 0;
}

Figures runRest(const QUrl &url, const QByteArray &request, qint64 limit, qint64 millis, QByteArray *sample = nullptr)
{
    std::vector<std::unique_ptr<Connection>> pool;
    for (int i = 0; i < connections; ++i) {
        auto connection = std::make_unique<Connection>();
        connection->socket.connectToHost(url.host(), quint16(url.port()));
        if (!connection->socket.waitForConnected(5000)) {
            std::fprintf(stderr, "cannot connect: %s\n", qPrintable(connection->socket.errorString()));
            return {};
        }
        connection->socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        pool.push_back(std::move(connection));
    }

    Figures figures;
    qint64 issued = 0;
    int active = connections;
    QEventLoop loop;
    QElapsedTimer clock;
    auto finishOne = [&] {
        if (--active == 0) {
            loop.quit();
        }
    };
    auto issue = [&](Connection &connection) {
        if (issued >= limit || clock.elapsed() >= millis) {
            finishOne();
            return;
        }
        ++issued;
        connection.socket.write(request);
    };
    for (auto &owned : pool) {
        Connection &connection = *owned;
        QObject::connect(&connection.socket, &QTcpSocket::readyRead, &loop, [&] {
            connection.buffer += connection.socket.readAll();
            const qsizetype headEnd = connection.buffer.indexOf("\r\n\r\n");
            if (headEnd < 0) {
                return;
            }
            const QByteArray head = connection.buffer.left(headEnd);
            const qsizetype total = headEnd + 4 + contentLength(head);
            if (connection.buffer.size() < total) {
                return;
            }
            if (head.startsWith("HTTP/1.1 200 ")) {
                ++figures.done;
                if (sample && sample->isEmpty()) {
                    *sample = connection.buffer.mid(headEnd + 4, total - headEnd - 4);
                }
            } else {
                ++figures.failed;
                if (figures.failed == 1) {
                    std::fprintf(stderr, "unexpected answer:\n%s\n", connection.buffer.left(total).constData());
                }
            }
            connection.buffer.remove(0, total);
            issue(connection);
        });
        QObject::connect(&connection.socket, &QTcpSocket::disconnected, &loop, [&] {
            ++figures.failed;
            finishOne();
        });
    }
    // A server that stops answering must not hang the benchmark.
    QTimer::singleShot(millis + 30000, &loop, &QEventLoop::quit);
    clock.start();
    for (auto &connection : pool) {
        issue(*connection);
    }
    loop.exec();
    figures.seconds = double(clock.nsecsElapsed()) / 1e9;
    for (auto &connection : pool) {
        connection->socket.disconnect();
    }
    return figures;
}

// Per request exactly what the server's REST path sends to PostgreSQL for this read.
struct Transaction
{
    QByteArray setConfigSql;
    PgParams setConfigParams;
    SqlBuilder::Statement read;
};

Figures runDirect(const QByteArray &conninfo, const Transaction &work, qint64 limit, qint64 millis)
{
    std::atomic<qint64> issued{0};
    std::atomic<qint64> done{0};
    std::atomic<qint64> failed{0};
    std::latch ready(connections + 1);
    std::vector<std::thread> threads;
    for (int i = 0; i < connections; ++i) {
        threads.emplace_back([&] {
            std::unique_ptr<PgConnection> connection;
            try {
                connection = PgConnection::open(conninfo);
            } catch (const PgException &error) {
                std::fprintf(stderr, "direct connection failed: %s\n", error.what());
            }
            ready.arrive_and_wait();
            if (!connection) {
                return;
            }
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(millis);
            while (issued.fetch_add(1) < limit && std::chrono::steady_clock::now() < deadline) {
                try {
                    connection->execScript("BEGIN ISOLATION LEVEL READ COMMITTED READ ONLY");
                    connection->exec(work.setConfigSql, work.setConfigParams);
                    const PgResult rows = connection->exec(work.read.sql, work.read.params);
                    connection->execScript("COMMIT");
                    rows.value(0, 1) == "20" ? ++done : ++failed;
                } catch (const PgException &error) {
                    if (failed.fetch_add(1) == 0) {
                        std::fprintf(stderr, "direct transaction failed: %s\n", error.what());
                    }
                    if (connection->inTransaction()) {
                        connection->execScript("ROLLBACK");
                    }
                }
            }
        });
    }
    // The clock starts once every connection is open, as it does for the REST side.
    ready.arrive_and_wait();
    const auto began = std::chrono::steady_clock::now();
    for (std::thread &thread : threads) {
        thread.join();
    }
    const auto ended = std::chrono::steady_clock::now();
    return {done.load(), failed.load(), std::chrono::duration<double>(ended - began).count()};
}

QJsonObject claimsOf(const QByteArray &token)
{
    const QByteArray payload = token.split('.').value(1);
    return QJsonDocument::fromJson(QByteArray::fromBase64(payload, QByteArray::Base64UrlEncoding)).object();
}

const char *verdict(bool met)
{
    return met ? "PASS" : "MISS";
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    std::printf("bench_rest_reads: starting a server on a throw-away cluster...\n");
    std::fflush(stdout);
    TestBackend backend;
    if (!backend.isReady()) {
        std::fprintf(stderr, "the server did not start:\n%s\n", qPrintable(backend.startupLog()));
        return 1;
    }

    // One user, 200 tasks spread over four projects; created_at differs so the order is total.
    PgConnection &db = backend.database();
    const QString user = backend.createUser(u"bench@example.nl"_s, u"Bench"_s);
    const QByteArray project =
        db.exec("INSERT INTO projects (user_id, name) SELECT $1, 'Project ' || g FROM generate_series(1, 4) g"
                " RETURNING id",
                {user.toUtf8()})
            .value(0, 0);
    db.exec("INSERT INTO tasks (user_id, project_id, title, status, priority, time_spent_seconds, created_at)"
            " SELECT $1, p.id, 'Task ' || g, (ARRAY['not_started','in_progress','completed'])[1 + g % 3],"
            "  (ARRAY['low','medium','high'])[1 + g % 3], g * 60, now() - g * interval '1 minute'"
            " FROM generate_series(1, 50) g CROSS JOIN projects p WHERE p.user_id = $1",
            {user.toUtf8()});
    db.execScript("ANALYZE");
    const QByteArray token = backend.tokenFor(user, u"authenticated"_s, 3600);

    const QByteArray query = "select=*&project_id=eq." + project + "&order=created_at.desc&limit=20";
    const QByteArray path = "/rest/v1/tasks";
    const QByteArray hostHeader = backend.url().host().toUtf8() + ':' + QByteArray::number(backend.url().port());
    const QByteArray request = "GET " + path + '?' + query + " HTTP/1.1\r\nHost: " + hostHeader +
                               "\r\napikey: " + backend.anonKey() + "\r\nAuthorization: Bearer " + token +
                               "\r\nAccept: application/json\r\n\r\n";

    // The statement the server generates for this request, built by the server's own code.
    Transaction work;
    try {
        const Catalog catalog = Catalog::load(db);
        SqlBuilder builder(catalog);
        work.read = builder.read(*catalog.relation(u"tasks"_s), parseQuery(HttpRequest::parseQuery(query)), false);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "cannot build the statement: %s\n", error.what());
        return 1;
    }
    // What the server's transaction setup sends: the headers it forwards are those of the request
    // above less the credentials.
    const QJsonObject forwarded{{u"host"_s, QString::fromLatin1(hostHeader)}, {u"accept"_s, u"application/json"_s}};
    work.setConfigSql = "SELECT set_config('role', $1, true), set_config('request.jwt.claims', $2, true),"
                        " set_config('request.method', $3, true), set_config('request.path', $4, true),"
                        " set_config('request.headers', $5, true), set_config('statement_timeout', $6, true)";
    work.setConfigParams = {QByteArray("authenticated"),
                            QJsonDocument(claimsOf(token)).toJson(QJsonDocument::Compact),
                            QByteArray("GET"),
                            path,
                            QJsonDocument(forwarded).toJson(QJsonDocument::Compact),
                            QByteArray("30000")};
    std::printf("statement: %s\n  $1 = %s\n", work.read.sql.constData(),
                work.read.params.value(0).value_or("NULL").constData());

    const QByteArray conninfo = "host='" + backend.dataDir().toUtf8() + "/postgres' dbname=morvane user=morvane";

    // Warm both paths (connection pools, plan caches, page cache) and check the answers are real.
    QByteArray sample;
    const Figures restWarm = runRest(backend.url(), request, warmUpRequests, 10000, &sample);
    const Figures directWarm = runDirect(conninfo, work, warmUpRequests, 10000);
    const QJsonArray rows = QJsonDocument::fromJson(sample).array();
    const bool rowsMatch = rows.size() == 20 && std::all_of(rows.begin(), rows.end(), [&](const QJsonValue &row) {
                               return row.toObject().value(u"project_id"_s).toString().toUtf8() == project;
                           });
    if (restWarm.done == 0 || restWarm.failed > 0 || directWarm.done == 0 || directWarm.failed > 0 || !rowsMatch) {
        std::fprintf(stderr, "warm-up failed: rest %lld ok / %lld failed, direct %lld ok / %lld failed, sample %s\n",
                     restWarm.done, restWarm.failed, directWarm.done, directWarm.failed, sample.left(300).constData());
        return 1;
    }

    std::printf("measuring: up to %lld requests or %lld ms per side, %d connections, loopback\n", maxRequests,
                maxMillis, connections);
    std::fflush(stdout);
    const Figures rest = runRest(backend.url(), request, maxRequests, maxMillis);
    const Figures direct = runDirect(conninfo, work, maxRequests, maxMillis);

    const double ratio = direct.rate() > 0 ? rest.rate() / direct.rate() : 0;
    std::printf("REST   (HTTP/1.1 keep-alive, hand-written QTcpSocket client): %lld reads in %.2f s = %.0f/s"
                " (%lld failed)\n",
                rest.done, rest.seconds, rest.rate(), rest.failed);
    std::printf("direct (libpq, same transaction per read, 2 threads):        %lld reads in %.2f s = %.0f/s"
                " (%lld failed)\n",
                direct.done, direct.seconds, direct.rate(), direct.failed);
    std::printf("ratio REST/direct: %.2f\n", ratio);
    std::printf("target: at least %.0f REST reads/s ............ %s\n", targetRate,
                verdict(rest.rate() >= targetRate && rest.failed == 0));
    std::printf("target: REST at least 1/3 of the direct rate ... %s\n",
                verdict(ratio >= targetShareOfDirect && rest.failed == 0));
    return 0;
}
