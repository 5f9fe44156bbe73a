#include "backend/runblocking.h"
#include "backend/supabase.h"
#include "i18n/language.h"
#include "model/project.h"
#include "model/taskitem.h"
#include "model/team.h"
#include "support/scriptedhttpserver.h"
#include "support/testdata.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QThread>
#include <QTimeZone>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(SupabaseError::Kind)
Q_DECLARE_METATYPE(SignUpOutcome::Kind)
Q_DECLARE_METATYPE(TransportError::Kind)

namespace {

const QString token = u"user-access-token"_s;
const QString anonKey = u"anon-key-208"_s;

QJsonObject bodyOf(const RecordedRequest &request)
{
    return QJsonDocument::fromJson(request.body).object();
}

template<class E, class T>
std::optional<E> errorOf(QCoro::Task<T> task)
{
    try {
        runBlocking(std::move(task));
    } catch (const E &error) {
        return error;
    }
    return std::nullopt;
}

// A table of `count` team rows served the way PostgREST pages them.
ScriptedResponse servePages(const RecordedRequest &request, int count)
{
    const int limit = request.queryValue(u"limit"_s).toInt();
    const int offset = request.queryValue(u"offset"_s).toInt();
    QJsonArray rows;
    for (int i = offset; i < std::min(count, offset + limit); ++i) {
        rows.append(QJsonObject{{u"id"_s, QString::number(i)}, {u"owner_id"_s, u"o"_s}, {u"name"_s, u"T"_s}});
    }
    return ScriptedHttpServer::json(200, QJsonDocument(rows).toJson(QJsonDocument::Compact));
}

enum class Trouble { ClosedPort, SilentData, SilentInteractive, OfflineInteractive, OfflineDataAtLimit };

} // namespace

Q_DECLARE_METATYPE(Trouble)

class TestSupabase : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Language::apply(u"en"_s); }

    void queryReachesTheServerUnchanged_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("plus in a time-zone offset") << u"started_at"_s << u"gte.2025-03-01T09:30:00+01:00"_s;
        QTest::newRow("separators, hash, question mark, non-ASCII") << u"title"_s << u"eq.R&D = Zoë's 東京 #1?"_s;
        QTest::newRow("key needing encoding") << u"odd key&"_s << u"eq.1"_s;
    }

    void queryReachesTheServerUnchanged()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "[]"); });
        const Supabase client(server.url(), anonKey);
        const QueryItems query{{u"select"_s, u"*"_s}, {key, value}, {u"or"_s, u"(status.eq.in_progress,id.in.(a,b))"_s}};
        runBlocking(client.select<Team>(u"teams"_s, token, query));
        QCOMPARE(server.requests().first().queryItems(), query);
    }

    void eachCallSendsItsRequest()
    {
        ScriptedHttpServer server([](const RecordedRequest &request) {
            const QByteArray path = request.path();
            if (request.method == "GET") {
                return ScriptedHttpServer::json(200, readTestData(u"records/tasks.json"_s));
            }
            if (path.endsWith("/next_invoice_number")) {
                return ScriptedHttpServer::json(200, "42");
            }
            if (path.contains("/object/sign/")) {
                return ScriptedHttpServer::json(200, R"({"signedURL":"/object/sign/bills/u1/INV-7.pdf?token=eyJ.abc"})");
            }
            if (path.contains("/storage/")) {
                return ScriptedHttpServer::json(200, R"({"Key":"bills/u1/INV-7.pdf","Id":"x"})");
            }
            return ScriptedHttpServer::json(201, request.body.startsWith('[') ? request.body : '[' + request.body + ']');
        });
        // A base address under a path keeps that path in front of every call.
        const QString base = server.url().toString() + u"/backend/"_s;
        const Supabase client{QUrl(base), anonKey};

        const QList<TaskItem> tasks = runBlocking(client.select<TaskItem>(
            u"tasks"_s, token, {{u"select"_s, u"*"_s}, {u"project_id"_s, u"eq.1a2b"_s}, {u"order"_s, u"created_at.desc"_s}}));
        QCOMPARE(tasks.size(), 3);
        QCOMPARE(tasks[0].title, u"Product photo retouching"_s);
        Project draft;
        draft.userId = u"u1"_s;
        draft.name = u"New"_s;
        QCOMPARE(runBlocking(client.insert<Project>(u"projects"_s, token, draft)).first().name, u"New"_s);
        QCOMPARE(runBlocking(client.callRPCReturning<qint64>(u"next_invoice_number"_s, token, QJsonObject{{u"p_year"_s, 2025}})), 42);
        QCOMPARE(runBlocking(client.signedURL(u"bills"_s, u"u1/INV-7.pdf"_s, 600, token)).toString(),
                 base + u"storage/v1/object/sign/bills/u1/INV-7.pdf?token=eyJ.abc"_s);
        const QByteArray pdf("%PDF-1.7\n\x00\x01binary", 18);
        QCOMPARE(runBlocking(client.uploadObject(u"bills"_s, u"u1/INV 7 €.pdf"_s, pdf, "application/pdf", true, token)),
                 u"bills/u1/INV-7.pdf"_s);

        struct Expected
        {
            QByteArray method;
            QByteArray target;
            QByteArray body;
            QByteArray prefer;
        };
        const QList<Expected> expected{
            {"GET", "/rest/v1/tasks?select=*&project_id=eq.1a2b&order=created_at.desc", {}, {}},
            // Absent optionals stay out of the body.
            {"POST", "/rest/v1/projects", R"({"id":"","user_id":"u1","name":"New","status":"active"})",
             "return=representation"},
            {"POST", "/rest/v1/rpc/next_invoice_number", R"({"p_year":2025})", {}},
            {"POST", "/storage/v1/object/sign/bills/u1/INV-7.pdf", R"({"expiresIn":600})", {}},
            {"POST", "/storage/v1/object/bills/u1/INV%207%20%E2%82%AC.pdf", {}, {}},
        };
        QCOMPARE(server.requests().size(), expected.size());
        for (qsizetype i = 0; i < expected.size(); ++i) {
            const RecordedRequest &request = server.requests()[i];
            QCOMPARE(request.method, expected[i].method);
            QCOMPARE(request.target, "/backend" + expected[i].target);
            if (!expected[i].body.isEmpty()) {
                QCOMPARE(QJsonDocument::fromJson(request.body), QJsonDocument::fromJson(expected[i].body));
            }
            QCOMPARE(request.header("Prefer"), expected[i].prefer);
            QCOMPARE(request.header("Authorization"), "Bearer " + token.toUtf8());
            QCOMPARE(request.header("apikey"), anonKey.toUtf8());
        }
        QCOMPARE(server.requests()[0].header("Accept"), "application/json");
        const RecordedRequest &upload = server.requests()[4];
        QCOMPARE(upload.body, pdf);
        QCOMPARE(upload.header("Content-Type"), "application/pdf");
        QCOMPARE(upload.header("x-upsert"), "true");
    }

    void selectAllReadsInPages_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("requests");
        QTest::newRow("empty table") << 0 << 1;
        QTest::newRow("one short page") << 999 << 1;
        QTest::newRow("exactly one full page") << 1000 << 2;
        QTest::newRow("several pages") << 2500 << 3;
    }

    void selectAllReadsInPages()
    {
        QFETCH(int, rows);
        QFETCH(int, requests);
        ScriptedHttpServer server([rows](const RecordedRequest &request) { return servePages(request, rows); });
        const Supabase client(server.url(), anonKey);
        // The caller's own limit and offset give way to the pages.
        const QList<Team> teams = runBlocking(client.selectAll<Team>(
            u"teams"_s, token,
            {{u"select"_s, u"*"_s}, {u"limit"_s, u"5"_s}, {u"order"_s, u"id"_s}, {u"offset"_s, u"7"_s}}));
        QCOMPARE(teams.size(), rows);
        for (int i = 0; i < rows; ++i) {
            QCOMPARE(teams[i].id, QString::number(i));
        }
        QCOMPARE(server.requests().size(), requests);
        for (int page = 0; page < requests; ++page) {
            const QueryItems expected{{u"select"_s, u"*"_s},
                                      {u"order"_s, u"id"_s},
                                      {u"limit"_s, u"1000"_s},
                                      {u"offset"_s, QString::number(page * 1000)}};
            QCOMPARE(server.requests()[page].queryItems(), expected);
        }
    }

    void aFailingPageFailsTheWholeRead()
    {
        ScriptedHttpServer server([](const RecordedRequest &request) {
            return request.queryValue(u"offset"_s) == u"1000" ? ScriptedHttpServer::json(500, R"({"code":"XX000"})")
                                                            : servePages(request, 5000);
        });
        const Supabase client(server.url(), anonKey);
        const std::optional<SupabaseError> error = errorOf<SupabaseError>(client.selectAll<Team>(u"teams"_s, token));
        QCOMPARE(error ? error->status() : 0, 500);
        QCOMPARE(server.requests().size(), 2);
    }

    void errorsCarryStatusAndBody_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<SupabaseError::Kind>("kind");
        QTest::addColumn<int>("expectedStatus");
        QTest::addColumn<QString>("expectedBody");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("message");
        const auto http = SupabaseError::Kind::HttpStatus;
        const auto decoding = SupabaseError::Kind::Decoding;
        auto row = [&](const char *name, int status, const QByteArray &body, const QString &code) {
            QTest::newRow(name) << status << body << http << status << QString::fromUtf8(body) << code
                                << u"HTTP %1: "_s.arg(status) + QString::fromUtf8(body);
        };
        row("401 is handed back", 401, R"({"code":"PGRST303","details":null,"hint":null,"message":"JWT expired"})",
            u"PGRST303"_s);
        row("authentication error, older form", 422, R"({"code":422,"error_code":"weak_password","msg":"short"})",
            u"weak_password"_s);
        QTest::newRow("body that is not UTF-8") << 502 << QByteArray("\xff\xfe\xfd bad gateway") << http << 502
                                                << QString() << QString() << u"HTTP 502: "_s;
        QTest::newRow("row that does not decode")
            << 200 << QByteArray(R"([{"id":"a","owner_id":"o","name":"A"},{"id":"b","owner_id":"o"}])") << decoding
            << 0 << u"Team[1].name: required key is missing"_s << QString()
            << u"Decode: Team[1].name: required key is missing"_s;
        QTest::newRow("body that is not JSON") << 200 << QByteArray("<html>") << decoding << 0
                                               << u"invalid JSON at offset 0: illegal number"_s << QString()
                                               << u"Decode: invalid JSON at offset 0: illegal number"_s;
    }

    void errorsCarryStatusAndBody()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        ScriptedHttpServer server([&](const RecordedRequest &) { return ScriptedHttpServer::json(status, body); });
        const Supabase client(server.url(), anonKey);
        const std::optional<SupabaseError> error = errorOf<SupabaseError>(client.select<Team>(u"teams"_s, token));
        QVERIFY(error.has_value());
        QTEST(error->kind(), "kind");
        QTEST(error->status(), "expectedStatus");
        QTEST(error->body(), "expectedBody");
        QTEST(error->errorCode().value_or(QString()), "code");
        QTEST(error->message(), "message");
        // A body holding %1 is shown as it is, not filled in.
        QCOMPARE(SupabaseError::httpStatus(400, u"bad %1 %2"_s).message(), u"HTTP 400: bad %1 %2"_s);
    }

    void badAddressIsInvalidURL()
    {
        for (const QUrl &base : {QUrl(u"backend/"_s), QUrl(u"file:///tmp/x"_s)}) {
            const std::optional<SupabaseError> error = errorOf<SupabaseError>(Supabase(base, anonKey).select<Team>(u"teams"_s, token));
            QCOMPARE(error ? error->kind() : SupabaseError::Kind::HttpStatus, SupabaseError::Kind::InvalidURL);
        }
    }

    void transportFailuresAreClassified_data()
    {
        QTest::addColumn<Trouble>("trouble");
        QTest::addColumn<TransportError::Kind>("kind");
        QTest::newRow("closed port") << Trouble::ClosedPort << TransportError::Kind::Connection;
        QTest::newRow("silent server, data call's overall limit") << Trouble::SilentData << TransportError::Kind::TimedOut;
        QTest::newRow("silent server, interactive call's idle limit")
            << Trouble::SilentInteractive << TransportError::Kind::TimedOut;
        // Offline: an interactive call fails at once, a data call waits up to its limit; neither sends.
        QTest::newRow("offline, interactive call") << Trouble::OfflineInteractive << TransportError::Kind::Offline;
        QTest::newRow("offline, data call at its limit") << Trouble::OfflineDataAtLimit << TransportError::Kind::Offline;
    }

    void transportFailuresAreClassified()
    {
        QFETCH(Trouble, trouble);
        QFETCH(TransportError::Kind, kind);
        const bool silent = trouble == Trouble::SilentData || trouble == Trouble::SilentInteractive;
        auto server = std::make_unique<ScriptedHttpServer>([silent](const RecordedRequest &) {
            return silent ? ScriptedResponse{200, {}, {}, true} : ScriptedHttpServer::json(200, "{}");
        });
        const QUrl url = server->url();
        if (trouble == Trouble::ClosedPort) {
            server.reset();
        }
        Supabase::Options options;
        options.data = {5s, trouble == Trouble::SilentData ? 300ms : 400ms};
        options.restIdle = 5s;
        options.interactive = {300ms, 5s};
        if (trouble == Trouble::OfflineInteractive || trouble == Trouble::OfflineDataAtLimit) {
            options.connectivity = std::make_shared<ManualConnectivity>(Connectivity::State::Offline);
            options.loopbackIgnoresConnectivity = false;
        }
        const Supabase client(url, anonKey, options);
        const bool interactive = trouble == Trouble::SilentInteractive || trouble == Trouble::OfflineInteractive;
        const std::optional<TransportError> error = interactive
                                                         ? errorOf<TransportError>(client.signInPassword(u"a@b.nl"_s, u"pw"_s))
                                                         : errorOf<TransportError>(client.select<Team>(u"teams"_s, token));
        QCOMPARE(error ? std::optional(error->kind()) : std::nullopt, std::optional(kind));
        if (trouble == Trouble::OfflineInteractive || trouble == Trouble::OfflineDataAtLimit) {
            QVERIFY(server->requests().isEmpty());
        }
    }

    void offlineDataCallsWaitForTheNetwork()
    {
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "[]"); });
        auto network = std::make_shared<ManualConnectivity>(Connectivity::State::Offline);
        Supabase::Options options;
        options.connectivity = network;
        options.loopbackIgnoresConnectivity = false;
        options.data = {5s, 10s};
        const Supabase client(server.url(), anonKey, options);
        QTimer::singleShot(300ms, [&] {
            // Nothing may have been sent while the network was down.
            QVERIFY(server.requests().isEmpty());
            network->setState(Connectivity::State::Online);
        });
        QVERIFY(runBlocking(client.select<Team>(u"teams"_s, token)).isEmpty());
        QCOMPARE(network->state(), Connectivity::State::Online);
        QCOMPARE(server.requests().size(), 1);

        // A backend on this machine needs no network at all.
        network->setState(Connectivity::State::Offline);
        options.loopbackIgnoresConnectivity = true;
        QVERIFY(runBlocking(Supabase(server.url(), anonKey, options).select<Team>(u"teams"_s, token)).isEmpty());
        QCOMPARE(server.requests().size(), 2);
    }

    // The code exchange and sign-out run against the real backend in the auth server's tests.
    void mailedLinksLeadBackToTheApplication()
    {
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "{}"); });
        const Supabase client(server.url(), anonKey);
        runBlocking(client.recoverPassword(u"a@b.nl"_s));
        runBlocking(client.resendSignupConfirmation(u"a@b.nl"_s));
        const QList<RecordedRequest> &requests = server.requests();
        QCOMPARE(requests.size(), 2);
        QCOMPARE(requests[0].target, "/auth/v1/recover?redirect_to=morvane:%2F%2Fauth%2Freset-password");
        QCOMPARE(bodyOf(requests[0]), (QJsonObject{{u"email"_s, u"a@b.nl"_s}}));
        QCOMPARE(requests[1].target, "/auth/v1/resend?redirect_to=morvane:%2F%2Fauth%2Fconfirm");
        QCOMPARE(bodyOf(requests[1]), (QJsonObject{{u"type"_s, u"signup"_s}, {u"email"_s, u"a@b.nl"_s}}));
        for (const RecordedRequest &request : requests) {
            QCOMPARE(request.header("apikey"), anonKey.toUtf8());
            QCOMPARE(request.header("Authorization"), "");
        }
    }

    void signUpOutcomes_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<SignUpOutcome::Kind>("outcome");
        // A session and the code our own backend answers are read in the auth server's tests.
        QTest::newRow("confirmation needed: the bare user")
            << 200 << QByteArray(R"({"id":"u1","email":"a@b.nl","identities":[{"id":"i","provider":"email"}]})")
            << SignUpOutcome::Kind::NeedsConfirmation;
        QTest::newRow("look-alike user without identities")
            << 200 << QByteArray(R"({"id":"u2","email":"a@b.nl","identities":[]})") << SignUpOutcome::Kind::EmailExists;
        QTest::newRow("older form, text only")
            << 400 << QByteArray(R"({"code":400,"msg":"A user with this email address has already been registered"})")
            << SignUpOutcome::Kind::EmailExists;
    }

    void signUpOutcomes()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        ScriptedHttpServer server([&](const RecordedRequest &) { return ScriptedHttpServer::json(status, body); });
        const Supabase client(server.url(), anonKey);
        const SignUpOutcome outcome = runBlocking(client.signUp(u"a@b.nl"_s, u"secret"_s, u"Anna"_s));
        QTEST(outcome.kind, "outcome");
        QCOMPARE(outcome.session.has_value(), outcome.kind == SignUpOutcome::Kind::Session);
        const RecordedRequest &request = server.requests().first();
        QCOMPARE(request.target, "/auth/v1/signup?redirect_to=morvane:%2F%2Fauth%2Fconfirm");
        const QJsonObject data{{u"display_name"_s, u"Anna"_s},
                               {u"timezone"_s, QString::fromUtf8(QTimeZone::systemTimeZoneId())}};
        QCOMPARE(bodyOf(request), (QJsonObject{{u"email"_s, u"a@b.nl"_s}, {u"password"_s, u"secret"_s}, {u"data"_s, data}}));
    }

    void callableFromAnotherThread()
    {
        ScriptedHttpServer server([](const RecordedRequest &) {
            return ScriptedHttpServer::json(200, R"([{"id":"a","owner_id":"o","name":"A"}])");
        });
        const Supabase client(server.url(), anonKey);
        std::atomic<int> rows{-1};
        std::unique_ptr<QThread> worker(
            QThread::create([&] { rows = int(runBlocking(client.select<Team>(u"teams"_s, token)).size()); }));
        worker->start();
        // The server answers from this thread's event loop while the worker waits in its own.
        QTRY_VERIFY_WITH_TIMEOUT(worker->isFinished(), 10000);
        QCOMPARE(rows.load(), 1);
    }

    void uuidList_data()
    {
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QStringList>("kept");
        const QString valid = u"5c5c5c5c-aaaa-4bbb-8ccc-000000000001"_s;
        const QString last = u"ffffffff-ffff-4fff-8fff-ffffffffffff"_s;
        QTest::newRow("empty") << QStringList() << QStringList();
        QTest::newRow("malformed dropped, order kept") << QStringList{last, u"a"_s, valid} << QStringList{last, valid};
        QTest::newRow("filter syntax cannot sneak in")
            << QStringList{valid + u",x)"_s, u"0,1"_s, valid.toUpper()} << QStringList{valid.toUpper()};
    }

    void uuidList()
    {
        QFETCH(QStringList, ids);
        QTEST(Supabase::uuidList(ids), "kept");
    }
};

QTEST_GUILESS_MAIN(TestSupabase)
#include "tst_supabase.moc"
