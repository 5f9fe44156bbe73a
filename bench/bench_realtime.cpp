// How fast a committed change reaches another device: the time from the writer's COMMIT returning
// to the application's realtime client handing the decoded change on (p50 and p99 over 1,000
// changes, one at a time), and the rate at which a burst of changes reaches 10 subscribers at once.
// The baselines are the commit alone: the same UPDATE, and the burst's one transaction, timed on
// the writer's side. Prints the figures; asserts nothing.
#include "backend/realtimeclient.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int latencyChanges = 1000;
constexpr int subscribers = 10;
constexpr int burstChanges = 2000;
constexpr double targetP99Ms = 50.0;

double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, std::size_t(p * double(values.size())))];
}

// The loop a wait runs; whatever may have made its condition true quits it, so that the condition
// is checked right after the event that matters (QTest::qWaitFor sleeps 10 ms between looks, which
// would show up in the latency, and a polling timer would take CPU from the server).
QEventLoop *waiting = nullptr;

void wakeWaiter()
{
    if (waiting) {
        waiting->quit();
    }
}

bool waitUntil(const std::function<bool()> &done, int timeoutMs)
{
    QEventLoop loop;
    bool timedOut = false;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &loop, [&] {
        timedOut = true;
        loop.quit();
    });
    limit.start(timeoutMs);
    waiting = &loop;
    while (!done() && !timedOut) {
        loop.exec();
    }
    waiting = nullptr;
    return done();
}

std::unique_ptr<RealtimeClient> subscribe(TestBackend &backend, const QString &user)
{
    auto client = std::make_unique<RealtimeClient>(backend.url(), QString::fromLatin1(backend.anonKey()));
    client->start(user, [&backend, user]() -> QCoro::Task<std::optional<QString>> {
        co_return std::optional<QString>(QString::fromLatin1(backend.tokenFor(user)));
    });
    QObject::connect(client.get(), &RealtimeClient::connectedChanged, &wakeWaiter);
    return client;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(u"morvane.*.info=false"_s);
    TestBackend backend;
    if (!backend.isReady()) {
        std::fprintf(stderr, "morvane-server did not start:\n%s\n", qPrintable(backend.startupLog()));
        return 1;
    }
    const QString user = backend.createUser(u"bench@example.nl"_s);
    PgConnection &db = backend.database();
    const QByteArray project =
        db.exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Bench') RETURNING id", {user.toUtf8()}).value(0, 0);
    const QByteArray task =
        db.exec("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Timer') RETURNING id",
                {user.toUtf8(), project})
            .value(0, 0);

    // Latency, one change at a time.
    std::vector<double> latencies;
    std::vector<double> commits;
    {
        auto device = subscribe(backend, user);
        if (!waitUntil([&] { return device->isConnected(); }, 10000)) {
            std::fprintf(stderr, "the realtime client did not connect\n");
            return 1;
        }
        qint64 wanted = -1;
        qint64 arrivedAt = 0;
        QElapsedTimer clock;
        clock.start();
        QObject::connect(device.get(), &RealtimeClient::changeReceived, [&](const RealtimeChange &change) {
            if (change.task() && change.task()->timeSpentSeconds == wanted) {
                arrivedAt = clock.nsecsElapsed();
                wakeWaiter();
            }
        });
        for (int i = 1; i <= latencyChanges; ++i) {
            wanted = i;
            arrivedAt = 0;
            const qint64 before = clock.nsecsElapsed();
            db.exec("UPDATE tasks SET time_spent_seconds = $2 WHERE id = $1", {task, QByteArray::number(i)});
            const qint64 committed = clock.nsecsElapsed();
            if (!waitUntil([&] { return arrivedAt != 0; }, 5000)) {
                std::fprintf(stderr, "change %d never arrived\n", i);
                return 1;
            }
            commits.push_back(double(committed - before) / 1e6);
            latencies.push_back(double(arrivedAt - committed) / 1e6);
        }
    }

    // Delivery rate to 10 subscribers of a burst written as fast as the database takes it.
    double burstSeconds = 0;
    double writeSeconds = 0;
    {
        std::vector<std::unique_ptr<RealtimeClient>> devices;
        std::vector<int> received(subscribers, 0);
        for (int s = 0; s < subscribers; ++s) {
            devices.push_back(subscribe(backend, user));
            QObject::connect(devices.back().get(), &RealtimeClient::changeReceived,
                             [&received, s](const RealtimeChange &) {
                                 ++received[std::size_t(s)];
                                 wakeWaiter();
                             });
        }
        if (!waitUntil(
                [&] { return std::all_of(devices.begin(), devices.end(), [](auto &d) { return d->isConnected(); }); },
                20000)) {
            std::fprintf(stderr, "not every subscriber connected\n");
            return 1;
        }
        // One transaction of many rows: its commit hands the server the whole burst at once, so
        // the time until every subscriber holds every row is the feed's own, not the writer's.
        QElapsedTimer clock;
        clock.start();
        db.exec("INSERT INTO tasks (user_id, project_id, title)"
                " SELECT $1, $2, 'Burst ' || n FROM generate_series(1, $3) AS n",
                {user.toUtf8(), project, QByteArray::number(burstChanges)});
        writeSeconds = double(clock.nsecsElapsed()) / 1e9;
        const bool all = waitUntil(
            [&] { return std::all_of(received.begin(), received.end(), [](int n) { return n >= burstChanges; }); },
            120000);
        burstSeconds = double(clock.nsecsElapsed()) / 1e9 - writeSeconds;
        if (!all) {
            std::fprintf(stderr, "not every change reached every subscriber\n");
            return 1;
        }
    }

    const double p50 = percentile(latencies, 0.50);
    const double p99 = percentile(latencies, 0.99);
    std::printf("commit to another device's client, %d changes one at a time:\n", latencyChanges);
    std::printf("  latency       p50 %7.2f ms   p99 %7.2f ms   (target p99 < %.0f ms: %s)\n", p50, p99, targetP99Ms,
                p99 < targetP99Ms ? "PASS" : "MISS");
    std::printf("  baseline: the commit alone  p50 %7.2f ms   p99 %7.2f ms\n", percentile(commits, 0.50),
                percentile(commits, 0.99));
    std::printf("burst of %d rows in one transaction, to %d subscribers:\n", burstChanges, subscribers);
    std::printf("  delivered     %9.0f changes/s to each subscriber, %.0f deliveries/s in all (%.2f s after the "
                "commit)\n",
                double(burstChanges) / burstSeconds, double(burstChanges) * subscribers / burstSeconds, burstSeconds);
    std::printf("  baseline: the commit alone %.3f s (%9.0f rows/s)\n", writeSeconds,
                double(burstChanges) / writeSeconds);
    return 0;
}
