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

namespace {

const QString token = u"user-access-token"_s;
const QString anonKey = u"anon-key-208"_s;

QJsonObject bodyOf(const RecordedRequest &request)
{
    return QJsonDocument::fromJson(request.body).object();
}

template<class T>
std::optional<SupabaseError> supabaseErrorOf(QCoro::Task<T> task)
{
    try {
        runBlocking(std::move(task));
    } catch (const SupabaseError &error) {
        return error;
    }
    return std::nullopt;
}

template<class T>
std::optional<TransportError::Kind> transportErrorOf(QCoro::Task<T> task)
{
    try {
        runBlocking(std::move(task));
    } catch (const TransportError &error) {
        return error.kind();
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

} // namespace

class TestSupabase : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Language::apply(u"en"_s); }

    void selectSendsPathHeadersAndQuery()
    {
        ScriptedHttpServer server([](const RecordedRequest &) {
            return ScriptedHttpServer::json(200, readTestData(u"records/tasks.json"_s));
        });
        const Supabase client(server.url(), anonKey);
        const QList<TaskItem> tasks = runBlocking(client.select<TaskItem>(
            u"tasks"_s, token,
            {{u"select"_s, u"*"_s}, {u"project_id"_s, u"eq.1a2b"_s}, {u"order"_s, u"created_at.desc"_s}}));
        QCOMPARE(tasks.size(), 3);
        QCOMPARE(tasks[0].title, u"Product photo retouching"_s);

        QCOMPARE(server.requests().size(), 1);
        const RecordedRequest &request = server.requests().first();
        QCOMPARE(request.method, "GET");
        QCOMPARE(request.path(), "/rest/v1/tasks");
        QCOMPARE(request.target, "/rest/v1/tasks?select=*&project_id=eq.1a2b&order=created_at.desc");
        QCOMPARE(request.header("Content-Type"), "application/json");
        QCOMPARE(request.header("Accept"), "application/json");
        QCOMPARE(request.header("apikey"), anonKey.toUtf8());
        QCOMPARE(request.header("Authorization"), "Bearer " + token.toUtf8());
        QVERIFY(!request.hasHeader("Prefer"));

        const QList<QByteArray> names = request.headerNames();
        const qsizetype contentType = names.indexOf("content-type");
        QVERIFY(contentType >= 0);
        QVERIFY(contentType < names.indexOf("accept"));
        QVERIFY(names.indexOf("accept") < names.indexOf("apikey"));
        QVERIFY(names.indexOf("apikey") < names.indexOf("authorization"));
    }

    void queryReachesTheServerUnchanged_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("plus in a time-zone offset") << u"started_at"_s << u"gte.2025-03-01T09:30:00+01:00"_s;
        QTest::newRow("commas and parentheses") << u"id"_s << u"in.(a1,b2,c3)"_s;
        QTest::newRow("quoted value holding a comma") << u"name"_s << uR"(in.("Smith, J",Jones))"_s;
        QTest::newRow("or tree with dots") << u"or"_s << u"(status.eq.in_progress,started_at.is.null)"_s;
        QTest::newRow("ampersand and equals in a value") << u"title"_s << u"eq.R&D = fun"_s;
        QTest::newRow("percent and wildcard") << u"title"_s << u"like.*50%*"_s;
        QTest::newRow("non-ASCII text") << u"name"_s << u"eq.Zoë's café 東京"_s;
        QTest::newRow("hash and question mark") << u"notes"_s << u"eq.#1?"_s;
        QTest::newRow("key needing encoding") << u"odd key&"_s << u"eq.1"_s;
    }

    void queryReachesTheServerUnchanged()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "[]"); });
        const Supabase client(server.url(), anonKey);
        const QueryItems query{{u"select"_s, u"*"_s}, {key, value}, {u"order"_s, u"ended_at.desc,id.desc"_s}};
        runBlocking(client.select<Team>(u"teams"_s, token, query));
        QCOMPARE(server.requests().size(), 1);
        QCOMPARE(server.requests().first().queryItems(), query);
    }

    void insertAndUpdateAskForTheRows()
    {
        ScriptedHttpServer server([](const RecordedRequest &request) {
            if (request.method == "PATCH") {
                return ScriptedHttpServer::json(200, "[]");
            }
            return ScriptedHttpServer::json(
                201,
                R"([{"id":"p9","user_id":"u1","name":"New","status":"active","created_at":"2025-03-01T09:30:00Z"}])");
        });
        const Supabase client(server.url(), anonKey);

        Project draft;
        draft.userId = u"u1"_s;
        draft.name = u"New"_s;
        const QList<Project> inserted = runBlocking(client.insert<Project>(u"projects"_s, token, draft));
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(inserted.first().id, u"p9"_s);

        // A filter that matches nothing answers an empty list, not an error.
        const QList<Project> updated = runBlocking(
            client.update<Project>(u"projects"_s, token, {{u"id"_s, u"eq.p9"_s}, {u"user_id"_s, u"eq.someone-else"_s}},
                                   QJsonObject{{u"name"_s, u"Renamed"_s}, {u"description"_s, QJsonValue::Null}}));
        QVERIFY(updated.isEmpty());

        QCOMPARE(server.requests().size(), 2);
        const RecordedRequest &post = server.requests()[0];
        QCOMPARE(post.method, "POST");
        QCOMPARE(post.target, "/rest/v1/projects");
        QCOMPARE(post.header("Prefer"), "return=representation");
        QCOMPARE(post.headerNames().indexOf("prefer"), post.headerNames().indexOf("authorization") + 1);
        // Absent optionals stay out of the body.
        QCOMPARE(
            bodyOf(post),
            (QJsonObject{
                {u"id"_s, QString()}, {u"user_id"_s, u"u1"_s}, {u"name"_s, u"New"_s}, {u"status"_s, u"active"_s}}));

        const RecordedRequest &patch = server.requests()[1];
        QCOMPARE(patch.method, "PATCH");
        QCOMPARE(patch.target, "/rest/v1/projects?id=eq.p9&user_id=eq.someone-else");
        QCOMPARE(patch.header("Prefer"), "return=representation");
        QCOMPARE(bodyOf(patch), (QJsonObject{{u"name"_s, u"Renamed"_s}, {u"description"_s, QJsonValue::Null}}));
    }

    void insertTakesSeveralRowsAtOnce()
    {
        ScriptedHttpServer server(
            [](const RecordedRequest &request) { return ScriptedHttpServer::json(201, request.body); });
        const Supabase client(server.url(), anonKey);
        Team first{u"a"_s, u"o"_s, u"First"_s, std::nullopt};
        Team second{u"b"_s, u"o"_s, u"Second"_s, u"2025-01-01T00:00:00Z"_s};
        const QList<Team> rows = runBlocking(client.insert<Team>(u"teams"_s, token, QList<Team>{first, second}));
        QCOMPARE(rows, (QList<Team>{first, second}));
        QVERIFY(QJsonDocument::fromJson(server.requests().first().body).isArray());
    }

    void deleteSendsItsFilter()
    {
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedResponse{204, {}, {}, false}; });
        const Supabase client(server.url(), anonKey);
        runBlocking(client.deleteFrom(u"time_entries"_s, token, {{u"id"_s, u"eq.e1"_s}}));
        QCOMPARE(server.requests().first().method, "DELETE");
        QCOMPARE(server.requests().first().target, "/rest/v1/time_entries?id=eq.e1");
        QVERIFY(!server.requests().first().hasHeader("Prefer"));
    }

    void proceduresWithAndWithoutResult()
    {
        ScriptedHttpServer server([](const RecordedRequest &request) {
            if (request.path() == "/rest/v1/rpc/next_invoice_number") {
                return ScriptedHttpServer::json(200, "42");
            }
            if (request.path() == "/rest/v1/rpc/invoice_prefix") {
                return ScriptedHttpServer::json(200, "\"INV-2025-\"");
            }
            return ScriptedResponse{204, {}, {}, false};
        });
        const Supabase client(server.url(), anonKey);
        const QJsonObject arguments{{u"p_year"_s, 2025}};
        QCOMPARE(runBlocking(client.callRPCReturning<qint64>(u"next_invoice_number"_s, token, arguments)), 42);
        QCOMPARE(runBlocking(client.callRPCReturning<QString>(u"invoice_prefix"_s, token, arguments)), u"INV-2025-"_s);
        runBlocking(client.callRPC(u"void_invoice"_s, token, QJsonObject{{u"p_invoice_id"_s, u"i1"_s}}));

        QCOMPARE(server.requests().size(), 3);
        QCOMPARE(server.requests()[0].method, "POST");
        QCOMPARE(bodyOf(server.requests()[0]), arguments);
        QCOMPARE(server.requests()[2].path(), "/rest/v1/rpc/void_invoice");
        QCOMPARE(bodyOf(server.requests()[2]).value(u"p_invoice_id"_s).toString(), u"i1"_s);
        QCOMPARE(server.requests()[2].header("Authorization"), "Bearer " + token.toUtf8());
    }

    void selectAllReadsInPages_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("requests");
        QTest::newRow("empty table") << 0 << 1;
        QTest::newRow("one short page") << 999 << 1;
        QTest::newRow("exactly one full page") << 1000 << 2;
        QTest::newRow("one row more") << 1001 << 2;
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
            if (request.queryValue(u"offset"_s) == u"1000") {
                return ScriptedHttpServer::json(500, R"({"code":"XX000","message":"boom"})");
            }
            return servePages(request, 5000);
        });
        const Supabase client(server.url(), anonKey);
        const std::optional<SupabaseError> error = supabaseErrorOf(client.selectAll<Team>(u"teams"_s, token));
        QVERIFY(error.has_value());
        QCOMPARE(error->status(), 500);
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

        const QByteArray expired = R"({"code":"PGRST303","details":null,"hint":null,"message":"JWT expired"})";
        QTest::newRow("401 is handed back")
            << 401 << expired << SupabaseError::Kind::HttpStatus << 401 << QString::fromUtf8(expired) << u"PGRST303"_s
            << u"HTTP 401: "_s + QString::fromUtf8(expired);
        const QByteArray duplicate =
            R"({"code":"23505","details":"Key (entry_id)=(e1) already exists.","hint":null,"message":"duplicate key value"})";
        QTest::newRow("unique violation")
            << 409 << duplicate << SupabaseError::Kind::HttpStatus << 409 << QString::fromUtf8(duplicate) << u"23505"_s
            << u"HTTP 409: "_s + QString::fromUtf8(duplicate);
        QTest::newRow("authentication error, older form")
            << 422 << QByteArray(R"({"code":422,"error_code":"weak_password","msg":"Password is too short"})")
            << SupabaseError::Kind::HttpStatus << 422
            << uR"({"code":422,"error_code":"weak_password","msg":"Password is too short"})"_s << u"weak_password"_s
            << uR"(HTTP 422: {"code":422,"error_code":"weak_password","msg":"Password is too short"})"_s;
        QTest::newRow("body that is not UTF-8")
            << 502 << QByteArray("\xff\xfe\xfd bad gateway") << SupabaseError::Kind::HttpStatus << 502 << QString()
            << QString() << u"HTTP 502: "_s;
        QTest::newRow("HTML error page") << 503 << QByteArray("<html>down</html>") << SupabaseError::Kind::HttpStatus
                                         << 503 << u"<html>down</html>"_s << QString()
                                         << u"HTTP 503: <html>down</html>"_s;
        QTest::newRow("row that does not decode")
            << 200 << QByteArray(R"([{"id":"a","owner_id":"o","name":"A"},{"id":"b","owner_id":"o"}])")
            << SupabaseError::Kind::Decoding << 0 << u"Team[1].name: required key is missing"_s << QString()
            << u"Decode: Team[1].name: required key is missing"_s;
        QTest::newRow("body that is not JSON") << 200 << QByteArray("<html>") << SupabaseError::Kind::Decoding << 0
                                               << u"invalid JSON at offset 0: illegal number"_s << QString()
                                               << u"Decode: invalid JSON at offset 0: illegal number"_s;
    }

    void errorsCarryStatusAndBody()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        ScriptedHttpServer server([&](const RecordedRequest &) { return ScriptedHttpServer::json(status, body); });
        const Supabase client(server.url(), anonKey);
        const std::optional<SupabaseError> error = supabaseErrorOf(client.select<Team>(u"teams"_s, token));
        QVERIFY(error.has_value());
        QTEST(error->kind(), "kind");
        QTEST(error->status(), "expectedStatus");
        QTEST(error->body(), "expectedBody");
        QTEST(error->errorCode().value_or(QString()), "code");
        QTEST(error->message(), "message");
    }

    void fixedErrorTexts()
    {
        QCOMPARE(SupabaseError::noAuth().message(), u"Not signed in."_s);
        QCOMPARE(SupabaseError::invalidURL().message(), u"Invalid URL"_s);
        QCOMPARE(QString::fromUtf8(SupabaseError::httpStatus(404, u"{}"_s).what()), u"HTTP 404: {}"_s);
        // A body holding %1 is shown as it is, not filled in.
        QCOMPARE(SupabaseError::httpStatus(400, u"bad %1 %2"_s).message(), u"HTTP 400: bad %1 %2"_s);
    }

    void badAddressIsInvalidURL_data()
    {
        QTest::addColumn<QUrl>("base");
        QTest::newRow("empty") << QUrl();
        QTest::newRow("relative") << QUrl(u"backend/"_s);
        QTest::newRow("no host") << QUrl(u"file:///tmp/x"_s);
    }

    void badAddressIsInvalidURL()
    {
        QFETCH(QUrl, base);
        const Supabase client(base, anonKey);
        const std::optional<SupabaseError> error = supabaseErrorOf(client.select<Team>(u"teams"_s, token));
        QVERIFY(error.has_value());
        QCOMPARE(error->kind(), SupabaseError::Kind::InvalidURL);
    }

    void closedPortIsAConnectionFailure()
    {
        QUrl url;
        {
            ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "[]"); });
            url = server.url();
        }
        const Supabase client(url, anonKey);
        QCOMPARE(transportErrorOf(client.select<Team>(u"teams"_s, token)), TransportError::Kind::Connection);
    }

    void silentServerTimesOut_data()
    {
        QTest::addColumn<bool>("interactive");
        QTest::newRow("data call, overall limit") << false;
        QTest::newRow("interactive call, idle limit") << true;
    }

    void silentServerTimesOut()
    {
        QFETCH(bool, interactive);
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedResponse{200, {}, {}, true}; });
        Supabase::Options options;
        options.data = {5s, 300ms};
        options.restIdle = 5s;
        options.interactive = {300ms, 5s};
        const Supabase client(server.url(), anonKey, options);
        const std::optional<TransportError::Kind> error =
            interactive ? transportErrorOf(client.signInPassword(u"a@b.nl"_s, u"pw"_s))
                        : transportErrorOf(client.select<Team>(u"teams"_s, token));
        QCOMPARE(error, TransportError::Kind::TimedOut);
    }

    void offlineInteractiveCallsFailAtOnce()
    {
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "{}"); });
        auto network = std::make_shared<ManualConnectivity>(Connectivity::State::Offline);
        Supabase::Options options;
        options.connectivity = network;
        options.loopbackIgnoresConnectivity = false;
        const Supabase client(server.url(), anonKey, options);
        QCOMPARE(transportErrorOf(client.recoverPassword(u"a@b.nl"_s)), TransportError::Kind::Offline);
        QVERIFY(server.requests().isEmpty());
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
    }

    void offlineDataCallsGiveUpAtTheirLimit()
    {
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "[]"); });
        auto network = std::make_shared<ManualConnectivity>(Connectivity::State::Offline);
        Supabase::Options options;
        options.connectivity = network;
        options.loopbackIgnoresConnectivity = false;
        options.data = {5s, 400ms};
        const Supabase client(server.url(), anonKey, options);
        QCOMPARE(transportErrorOf(client.select<Team>(u"teams"_s, token)), TransportError::Kind::Offline);
        QVERIFY(server.requests().isEmpty());
    }

    void loopbackBackendNeedsNoNetwork()
    {
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "[]"); });
        Supabase::Options options;
        options.connectivity = std::make_shared<ManualConnectivity>(Connectivity::State::Offline);
        const Supabase client(server.url(), anonKey, options);
        QVERIFY(runBlocking(client.select<Team>(u"teams"_s, token)).isEmpty());
        QCOMPARE(server.requests().size(), 1);
    }

    void authenticationCalls()
    {
        const QByteArray tokens =
            R"({"access_token":"at","token_type":"bearer","expires_in":3600,"expires_at":1740000000,
            "refresh_token":"rt","user":{"id":"u1","aud":"authenticated","email":"a@b.nl","user_metadata":{"display_name":"Anna"},"identities":[]}})";
        ScriptedHttpServer server([&](const RecordedRequest &request) {
            if (request.path() == "/auth/v1/token") {
                return ScriptedHttpServer::json(200, tokens);
            }
            if (request.path() == "/auth/v1/logout") {
                return ScriptedResponse{204, {}, {}, false};
            }
            return ScriptedHttpServer::json(200, "{}");
        });
        const Supabase client(server.url(), anonKey);

        const AuthTokens signedIn = runBlocking(client.signInPassword(u"a@b.nl"_s, u"secret"_s));
        QCOMPARE(signedIn.accessToken, u"at"_s);
        QCOMPARE(signedIn.expiresIn, Q_INT64_C(3600));
        QCOMPARE(signedIn.user->userMetadata->displayName, u"Anna"_s);
        const RefreshResponse refreshed = runBlocking(client.refresh(u"old-rt"_s));
        QCOMPARE(refreshed.refreshToken, u"rt"_s);
        runBlocking(client.exchangeCodeForSession(u"code-1"_s, u"verifier-1"_s));
        runBlocking(client.recoverPassword(u"a@b.nl"_s));
        runBlocking(client.resendSignupConfirmation(u"a@b.nl"_s));
        runBlocking(client.signOut(u"at"_s));

        const QList<RecordedRequest> &requests = server.requests();
        QCOMPARE(requests.size(), 6);
        struct Expected
        {
            QByteArray target;
            QJsonObject body;
        };
        const QList<Expected> expected{
            {"/auth/v1/token?grant_type=password", {{u"email"_s, u"a@b.nl"_s}, {u"password"_s, u"secret"_s}}},
            {"/auth/v1/token?grant_type=refresh_token", {{u"refresh_token"_s, u"old-rt"_s}}},
            {"/auth/v1/token?grant_type=pkce", {{u"auth_code"_s, u"code-1"_s}, {u"code_verifier"_s, u"verifier-1"_s}}},
            {"/auth/v1/recover?redirect_to=morvane:%2F%2Fauth%2Freset-password", {{u"email"_s, u"a@b.nl"_s}}},
            {"/auth/v1/resend?redirect_to=morvane:%2F%2Fauth%2Fconfirm",
             {{u"type"_s, u"signup"_s}, {u"email"_s, u"a@b.nl"_s}}},
            {"/auth/v1/logout?scope=local", {}},
        };
        for (qsizetype i = 0; i < expected.size(); ++i) {
            QCOMPARE(requests[i].method, "POST");
            QCOMPARE(requests[i].target, expected[i].target);
            QCOMPARE(bodyOf(requests[i]), expected[i].body);
            QCOMPARE(requests[i].header("apikey"), anonKey.toUtf8());
            QCOMPARE(requests[i].header("Content-Type"), "application/json");
            // Only sign-out speaks for a signed-in user.
            QCOMPARE(requests[i].hasHeader("Authorization"), i == 5);
        }
        QCOMPARE(requests[5].header("Authorization"), "Bearer at");
        QVERIFY(requests[5].body.isEmpty());
    }

    void signUpOutcomes_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<SignUpOutcome::Kind>("outcome");

        QTest::newRow("auto-confirmed: a session")
            << 200
            << QByteArray(
                   R"({"access_token":"at","refresh_token":"rt","expires_in":3600,"user":{"id":"u1","identities":[{"id":"i"}]}})")
            << SignUpOutcome::Kind::Session;
        QTest::newRow("confirmation needed: the bare user")
            << 200
            << QByteArray(
                   R"({"id":"u1","email":"a@b.nl","identities":[{"id":"i","provider":"email"}],"confirmation_sent_at":"2025-03-01T09:30:00Z"})")
            << SignUpOutcome::Kind::NeedsConfirmation;
        QTest::newRow("look-alike user without identities")
            << 200 << QByteArray(R"({"id":"u2","email":"a@b.nl","identities":[]})") << SignUpOutcome::Kind::EmailExists;
        QTest::newRow("nested user without identities")
            << 200 << QByteArray(R"({"user":{"id":"u2","identities":[]}})") << SignUpOutcome::Kind::EmailExists;
        QTest::newRow("user_already_exists code")
            << 422 << QByteArray(R"({"code":"user_already_exists","message":"User already registered"})")
            << SignUpOutcome::Kind::EmailExists;
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
        QCOMPARE(request.path(), "/auth/v1/signup");
        QCOMPARE(request.queryValue(u"redirect_to"_s), u"morvane://auth/confirm"_s);
        const QJsonObject sent = bodyOf(request);
        QCOMPARE(sent.value(u"email"_s).toString(), u"a@b.nl"_s);
        QCOMPARE(sent.value(u"password"_s).toString(), u"secret"_s);
        QCOMPARE(sent.value(u"data"_s).toObject(),
                 (QJsonObject{{u"display_name"_s, u"Anna"_s},
                              {u"timezone"_s, QString::fromUtf8(QTimeZone::systemTimeZoneId())}}));
    }

    void signUpFailuresStillThrow()
    {
        ScriptedHttpServer server([](const RecordedRequest &) {
            return ScriptedHttpServer::json(
                422, R"({"code":"weak_password","message":"Password should be at least 6 characters."})");
        });
        const Supabase client(server.url(), anonKey);
        const std::optional<SupabaseError> error = supabaseErrorOf(client.signUp(u"a@b.nl"_s, u"123"_s, u"Anna"_s));
        QVERIFY(error.has_value());
        QCOMPARE(error->errorCode(), u"weak_password"_s);
    }

    void storage()
    {
        ScriptedHttpServer server([](const RecordedRequest &request) {
            if (request.path().startsWith("/storage/v1/object/sign/")) {
                return ScriptedHttpServer::json(
                    200, R"({"signedURL":"/object/sign/invoice-templates/u1/invoices/INV-7.pdf?token=eyJ.abc.def"})");
            }
            return ScriptedHttpServer::json(200, R"({"Key":"invoice-templates/u1/invoices/INV-7.pdf","Id":"x"})");
        });
        const Supabase client(server.url(), anonKey);

        const QUrl signedUrl =
            runBlocking(client.signedURL(u"invoice-templates"_s, u"u1/invoices/INV-7.pdf"_s, 600, token));
        QCOMPARE(signedUrl.toString(),
                 server.url().toString() +
                     u"/storage/v1/object/sign/invoice-templates/u1/invoices/INV-7.pdf?token=eyJ.abc.def"_s);
        const RecordedRequest &sign = server.requests()[0];
        QCOMPARE(sign.target, "/storage/v1/object/sign/invoice-templates/u1/invoices/INV-7.pdf");
        QCOMPARE(bodyOf(sign), (QJsonObject{{u"expiresIn"_s, 600}}));

        const QByteArray pdf("%PDF-1.7\n\x00\x01binary", 18);
        const QString key = runBlocking(client.uploadObject(u"invoice-templates"_s, u"u1/invoices/INV 7 €.pdf"_s, pdf,
                                                            "application/pdf", true, token));
        QCOMPARE(key, u"invoice-templates/u1/invoices/INV-7.pdf"_s);
        const RecordedRequest &upload = server.requests()[1];
        QCOMPARE(upload.method, "POST");
        QCOMPARE(upload.target, "/storage/v1/object/invoice-templates/u1/invoices/INV%207%20%E2%82%AC.pdf");
        QCOMPARE(upload.header("Content-Type"), "application/pdf");
        QCOMPARE(upload.header("x-upsert"), "true");
        QCOMPARE(upload.header("Authorization"), "Bearer " + token.toUtf8());
        QCOMPARE(upload.body, pdf);
        QCOMPARE(upload.headerNames().indexOf("x-upsert"), upload.headerNames().indexOf("authorization") + 1);
    }

    void serverFunctions()
    {
        ScriptedHttpServer server(
            [](const RecordedRequest &) { return ScriptedHttpServer::json(200, R"({"deleted":true})"); });
        const Supabase client(server.url(), anonKey);
        const QJsonValue answer =
            runBlocking(client.invokeFunction(u"delete-account"_s, token, QJsonObject{{u"confirm"_s, u"DELETE"_s}}));
        QCOMPARE(answer.toObject().value(u"deleted"_s).toBool(), true);
        const RecordedRequest &request = server.requests().first();
        QCOMPARE(request.target, "/functions/v1/delete-account");
        QCOMPARE(request.body, R"({"confirm":"DELETE"})");
        QCOMPARE(request.header("Authorization"), "Bearer " + token.toUtf8());
        QCOMPARE(request.header("apikey"), anonKey.toUtf8());
    }

    void baseAddressWithAPath()
    {
        ScriptedHttpServer server([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "[]"); });
        const Supabase client(QUrl(server.url().toString() + u"/backend/"_s), anonKey);
        runBlocking(client.select<Team>(u"teams"_s, token));
        QCOMPARE(server.requests().first().path(), "/backend/rest/v1/teams");
    }

    void callableFromAnotherThread()
    {
        ScriptedHttpServer server([](const RecordedRequest &) {
            return ScriptedHttpServer::json(200, R"([{"id":"a","owner_id":"o","name":"A"}])");
        });
        const Supabase client(server.url(), anonKey);
        std::atomic<int> rows{-1};
        QThread *worker =
            QThread::create([&] { rows = int(runBlocking(client.select<Team>(u"teams"_s, token)).size()); });
        worker->start();
        // The server answers from this thread's event loop while the worker waits in its own.
        QTRY_VERIFY_WITH_TIMEOUT(worker->isFinished(), 10000);
        delete worker;
        QCOMPARE(rows.load(), 1);
    }

    void uuidList_data()
    {
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QStringList>("kept");
        const QString valid = u"5c5c5c5c-aaaa-4bbb-8ccc-000000000001"_s;
        QTest::newRow("empty") << QStringList() << QStringList();
        QTest::newRow("malformed dropped") << QStringList{u"a"_s, valid} << QStringList{valid};
        QTest::newRow("filter syntax cannot sneak in")
            << QStringList{valid + u",x)"_s, u"0,1"_s, valid.toUpper()} << QStringList{valid.toUpper()};
        QTest::newRow("order kept") << QStringList{u"ffffffff-ffff-4fff-8fff-ffffffffffff"_s, valid}
                                    << QStringList{u"ffffffff-ffff-4fff-8fff-ffffffffffff"_s, valid};
    }

    void uuidList()
    {
        QFETCH(QStringList, ids);
        QTEST(Supabase::uuidList(ids), "kept");
    }
};

QTEST_GUILESS_MAIN(TestSupabase)
#include "tst_supabase.moc"
