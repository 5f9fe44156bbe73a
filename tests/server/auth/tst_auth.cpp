#include "auth/jwt.h"
#include "backend/runblocking.h"
#include "backend/supabase.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "support/scriptedhttpserver.h"
#include "support/testbackend.h"

#include <QCryptographicHash>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QTemporaryFile>
#include <QTest>
#include <QTimeZone>
#include <QTimer>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

// The error code of a failed call, or an empty string when it did not fail.
template<class T>
QString failureCode(QCoro::Task<T> task, int *status = nullptr)
{
    try {
        runBlocking(std::move(task));
    } catch (const SupabaseError &error) {
        if (status) {
            *status = error.status();
        }
        return error.errorCode().value_or(u"(no code)"_s);
    }
    return {};
}

// The link of the newest mail the server wrote for `email`.
QString lastLink(const QString &outbox, const QString &email)
{
    QDir dir(outbox);
    const QStringList mails = dir.entryList({u"*.eml"_s}, QDir::Files, QDir::Name);
    for (auto it = mails.crbegin(); it != mails.crend(); ++it) {
        QFile file(dir.filePath(*it));
        file.open(QIODevice::ReadOnly);
        const QString text = QString::fromUtf8(file.readAll());
        if (text.startsWith(u"To: "_s + email + u'\n')) {
            static const QRegularExpression link(u"https?://\\S+"_s);
            return link.match(text).captured();
        }
    }
    return {};
}

int mailCount(const QString &outbox)
{
    return int(QDir(outbox).entryList({u"*.eml"_s}, QDir::Files).size());
}

// Follows one link as a browser's address bar would, without following the redirect.
HttpResult openLink(const TestBackend &backend, const QString &link)
{
    const QByteArray target = QUrl(link).toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
    return backend.request("GET", target);
}

// The status of one request from another address of this machine, as a second client sends it.
int statusFrom(const QString &client, const TestBackend &backend, const QByteArray &target, const QByteArray &body)
{
    QTcpSocket socket;
    socket.bind(QHostAddress(client));
    socket.connectToHost(QHostAddress::LocalHost, quint16(backend.url().port()));
    if (!socket.waitForConnected(5000)) {
        return 0;
    }
    socket.write("POST " + target +
                 " HTTP/1.1\r\nHost: x\r\nContent-Type: application/json\r\napikey: " + backend.anonKey() +
                 "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
    QByteArray answer;
    while (socket.state() == QAbstractSocket::ConnectedState && socket.waitForReadyRead(10000)) {
        answer += socket.readAll();
    }
    return answer.split(' ').value(1).toInt();
}

QUrlQuery fragmentOf(const QByteArray &location)
{
    return QUrlQuery(QUrl::fromEncoded(location).fragment(QUrl::FullyEncoded));
}

} // namespace

class TestAuth : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::optional<Supabase> m_client;

    QString outbox() const { return m_backend.dataDir() + u"/outbox"_s; }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_client.emplace(m_backend.url(), QString::fromLatin1(m_backend.anonKey()));
    }

    void signUpSignsInAtOnceAndFillsTheProfile()
    {
        const SignUpOutcome outcome =
            runBlocking(m_client->signUp(u"Sara@Example.nl"_s, u"correct horse"_s, u"Sara"_s));
        QCOMPARE(outcome.kind, SignUpOutcome::Kind::Session);
        const AuthTokens &tokens = *outcome.session;
        QCOMPARE(tokens.user->email, u"sara@example.nl"_s);
        QCOMPARE(tokens.expiresIn, Q_INT64_C(3600));
        // The access token works for the data, and the profile took the name and time zone.
        const HttpResult profile = m_backend.request("GET", "/rest/v1/profiles?select=display_name,timezone,email",
                                                     tokens.accessToken.toLatin1());
        QCOMPARE(profile.status, 200);
        const QJsonObject row = profile.json().array().first().toObject();
        QCOMPARE(row.value(u"display_name"_s).toString(), u"Sara"_s);
        QCOMPARE(row.value(u"timezone"_s).toString(), QString::fromUtf8(QTimeZone::systemTimeZoneId()));

        // The same address again, in any case, is an existing account.
        QCOMPARE(runBlocking(m_client->signUp(u"sara@EXAMPLE.nl"_s, u"another one"_s, u"Sara"_s)).kind,
                 SignUpOutcome::Kind::EmailExists);
    }

    void signInAndItsRefusals_data()
    {
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("status");
        QTest::newRow("right password") << u"pim@example.nl"_s << u"s3cret-pim"_s << QString() << 0;
        QTest::newRow("wrong password") << u"pim@example.nl"_s << u"s3cret-pin"_s << u"invalid_credentials"_s << 400;
        QTest::newRow("unknown address") << u"nobody@example.nl"_s << u"s3cret-pim"_s << u"invalid_credentials"_s
                                         << 400;
        QTest::newRow("empty password") << u"pim@example.nl"_s << QString() << u"validation_failed"_s << 400;
        QTest::newRow("absurdly long address")
            << QString(20000, u'a') + u"@example.nl"_s << u"x"_s << u"validation_failed"_s << 400;
        QTest::newRow("a NUL in the address")
            << u"pim\u0000@example.nl"_s << u"s3cret-pim"_s << u"validation_failed"_s << 400;
        // One account whether the letters come composed (NFC) or decomposed (NFD).
        QTest::newRow("the address decomposed") << u"zoe\u0308@example.nl"_s << u"s3cret-zoe"_s << QString() << 0;
    }

    void signInAndItsRefusals()
    {
        static const bool made =
            runBlocking(m_client->signUp(u"pim@example.nl"_s, u"s3cret-pim"_s, u"Pim"_s)).session.has_value() &&
            runBlocking(m_client->signUp(u"zo\u00eb@example.nl"_s, u"s3cret-zoe"_s, u"Zo\u00eb"_s))
                .session.has_value() &&
            runBlocking(m_client->signUp(u"ZOE\u0308@example.nl"_s, u"s3cret-two"_s, {})).kind ==
                SignUpOutcome::Kind::EmailExists;
        QVERIFY(made);
        QFETCH(QString, email);
        QFETCH(QString, password);
        QFETCH(QString, code);
        int status = 0;
        QCOMPARE(failureCode(m_client->signInPassword(email, password), &status), code);
        QTEST(status, "status");
    }

    void signUpRefusals_data()
    {
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("code");
        QTest::newRow("short password") << u"ana@example.nl"_s << u"12345"_s << u"Ana"_s << u"weak_password"_s;
        QTest::newRow("password past what bcrypt reads")
            << u"ana@example.nl"_s << QString(73, u'p') << u"Ana"_s << u"weak_password"_s;
        QTest::newRow("no dot in the domain") << u"ana@example"_s << u"123456"_s << u"Ana"_s << u"validation_failed"_s;
        QTest::newRow("space in the address")
            << u"a na@example.nl"_s << u"123456"_s << u"Ana"_s << u"validation_failed"_s;
        QTest::newRow("absurdly long name")
            << u"ana@example.nl"_s << u"123456"_s << QString(40000, u'n') << u"validation_failed"_s;
    }

    void signUpRefusals()
    {
        QFETCH(QString, email);
        QFETCH(QString, password);
        QFETCH(QString, name);
        QTEST(failureCode(m_client->signUp(email, password, name)), "code");
        // Nothing of a refused sign-up stays behind.
        QCOMPARE(
            m_backend.database().exec("SELECT count(*) FROM auth.users WHERE email = 'ana@example.nl'").value(0, 0),
            "0");
    }

    void refreshTokensRotate()
    {
        const AuthTokens first = *runBlocking(m_client->signUp(u"rota@example.nl"_s, u"rotation!"_s, {})).session;
        const RefreshResponse second = runBlocking(m_client->refresh(first.refreshToken));
        QVERIFY(second.refreshToken != first.refreshToken);
        // An answer that got lost: the old token gives the active one again.
        QCOMPARE(runBlocking(m_client->refresh(first.refreshToken)).refreshToken, second.refreshToken);
        const RefreshResponse third = runBlocking(m_client->refresh(second.refreshToken));
        // Only briefly: the same token ten seconds after it was replaced is someone else's copy.
        m_backend.database().exec("UPDATE auth.refresh_tokens SET updated_at = now() - interval '11 seconds'"
                                  " WHERE token = $1",
                                  {second.refreshToken.toUtf8()});
        QCOMPARE(failureCode(m_client->refresh(second.refreshToken)), u"refresh_token_already_used"_s);
        // It takes the whole session with it.
        QVERIFY(!failureCode(m_client->refresh(third.refreshToken)).isEmpty());
        QCOMPARE(failureCode(m_client->refresh(u"never-issued"_s)), u"refresh_token_not_found"_s);
    }

    void aPasswordChangeEndsEveryOtherSession()
    {
        runBlocking(m_client->signUp(u"moved@example.nl"_s, u"first password"_s, {}));
        const AuthTokens mine = runBlocking(m_client->signInPassword(u"moved@example.nl"_s, u"first password"_s));
        const AuthTokens stolen = runBlocking(m_client->signInPassword(u"moved@example.nl"_s, u"first password"_s));
        QCOMPARE(m_backend.request("PUT", "/auth/v1/user", mine.accessToken.toLatin1(), "{\"password\":\"second one\"}")
                     .status,
                 200);
        // The other session ends at once, its access token too, not an hour later.
        QCOMPARE(failureCode(m_client->refresh(stolen.refreshToken)), u"refresh_token_not_found"_s);
        QCOMPARE(m_backend.request("GET", "/rest/v1/projects", stolen.accessToken.toLatin1()).status, 401);
        QCOMPARE(m_backend.request("GET", "/rest/v1/projects", mine.accessToken.toLatin1()).status, 200);
        QVERIFY(failureCode(m_client->refresh(mine.refreshToken)).isEmpty());
    }

    void logoutScopes()
    {
        runBlocking(m_client->signUp(u"scopes@example.nl"_s, u"many devices"_s, {}));
        QList<AuthTokens> devices;
        for (int i = 0; i < 4; ++i) {
            devices.append(runBlocking(m_client->signInPassword(u"scopes@example.nl"_s, u"many devices"_s)));
        }
        auto alive = [&](int device) { return failureCode(m_client->refresh(devices[device].refreshToken)).isEmpty(); };
        auto logout = [&](int device, const QByteArray &scope) {
            return m_backend.request("POST", "/auth/v1/logout?scope=" + scope, devices[device].accessToken.toLatin1());
        };

        // The application signs out with scope local: only that device.
        runBlocking(m_client->signOut(devices[0].accessToken));
        QVERIFY(!alive(0));
        QVERIFY(alive(1));
        QCOMPARE(m_backend.request("GET", "/auth/v1/user", devices[0].accessToken.toLatin1()).status, 403);

        devices[1] = runBlocking(m_client->signInPassword(u"scopes@example.nl"_s, u"many devices"_s));
        QCOMPARE(logout(1, "others").status, 204);
        QVERIFY(alive(1));
        QVERIFY(!alive(2));
        QVERIFY(!alive(3));
        QCOMPARE(logout(1, "everything").status, 400);
        QCOMPARE(logout(1, "global").status, 204);
        QVERIFY(!alive(1));
        QCOMPARE(m_backend.request("POST", "/auth/v1/logout?scope=local").status, 401);
    }

    void currentUser()
    {
        const AuthTokens tokens = *runBlocking(m_client->signUp(u"me@example.nl"_s, u"it is me"_s, u"Me"_s)).session;
        HttpResult result = m_backend.request("GET", "/auth/v1/user", tokens.accessToken.toLatin1());
        QCOMPARE(result.status, 200);
        const QJsonObject user = result.json().object();
        QCOMPARE(user.value(u"email"_s).toString(), u"me@example.nl"_s);
        QCOMPARE(user.value(u"user_metadata"_s).toObject().value(u"display_name"_s).toString(), u"Me"_s);
        QCOMPARE(user.value(u"identities"_s).toArray().first().toObject().value(u"provider"_s).toString(), u"email"_s);
        QVERIFY(!user.contains(u"encrypted_password"_s));

        // Metadata is limited as a whole: changes that are each small cannot add up.
        auto store = [&](const char *key) {
            const QJsonObject data{{QString::fromLatin1(key), QString(10000, u'm')}};
            return m_backend.request("PUT", "/auth/v1/user", tokens.accessToken.toLatin1(),
                                     QJsonDocument(QJsonObject{{u"data"_s, data}}).toJson());
        };
        QCOMPARE(store("notes").status, 200);
        QCOMPARE(store("more_notes").status, 400);

        // A token of another project's secret, and no token at all.
        result = m_backend.request(
            "GET", "/auth/v1/user",
            Jwt::sign({{u"sub"_s, user.value(u"id"_s)}, {u"role"_s, u"authenticated"_s}}, "another project's secret"));
        QCOMPARE(result.status, 403);
        QCOMPARE(result.header("x-sb-error-code"), "bad_jwt");
        QCOMPARE(m_backend.request("GET", "/auth/v1/user").header("x-sb-error-code"), "no_authorization");
    }

    void bothErrorDialects()
    {
        const QByteArray body = "{\"email\":\"pim@example.nl\",\"password\":\"nope-nope\"}";
        HttpResult old = m_backend.request("POST", "/auth/v1/token?grant_type=password", {}, body);
        QCOMPARE(old.status, 400);
        QCOMPARE(old.json().object(), (QJsonObject{{u"code"_s, 400},
                                                   {u"error_code"_s, u"invalid_credentials"_s},
                                                   {u"msg"_s, u"Invalid login credentials"_s}}));
        HttpResult versioned = m_backend.request("POST", "/auth/v1/token?grant_type=password", {}, body,
                                                 {{"X-Supabase-Api-Version", "2024-01-01"}});
        QCOMPARE(versioned.json().object(),
                 (QJsonObject{{u"code"_s, u"invalid_credentials"_s}, {u"message"_s, u"Invalid login credentials"_s}}));
        QCOMPARE(versioned.header("X-Supabase-Api-Version"), "2024-01-01");
        QCOMPARE(old.header("x-sb-error-code"), "invalid_credentials");

        const HttpResult broken = m_backend.request("POST", "/auth/v1/signup", {}, "{\"email\":");
        QCOMPARE(broken.status, 400);
        QCOMPARE(broken.header("x-sb-error-code"), "bad_json");
    }

    void recoveryThroughTheMailedLink()
    {
        runBlocking(m_client->signUp(u"forgot@example.nl"_s, u"old password"_s, {}));
        const int before = mailCount(outbox());
        runBlocking(m_client->recoverPassword(u"nobody-here@example.nl"_s));
        QCOMPARE(mailCount(outbox()), before);
        runBlocking(m_client->recoverPassword(u"forgot@example.nl"_s));
        const QString link = lastLink(outbox(), u"forgot@example.nl"_s);
        QVERIFY2(link.contains(u"type=recovery"_s), qPrintable(link));

        const HttpResult opened = openLink(m_backend, link);
        QCOMPARE(opened.status, 303);
        const QByteArray location = opened.header("Location");
        QVERIFY(location.startsWith("morvane://auth/reset-password#"));
        const QUrlQuery fragment = fragmentOf(location);
        QCOMPARE(fragment.queryItemValue(u"type"_s), u"recovery"_s);
        const QByteArray access = fragment.queryItemValue(u"access_token"_s).toLatin1();
        QCOMPARE(m_backend.request("PUT", "/auth/v1/user", access, "{\"password\":\"new password\"}").status, 200);
        QCOMPARE(failureCode(m_client->signInPassword(u"forgot@example.nl"_s, u"old password"_s)),
                 u"invalid_credentials"_s);
        QVERIFY(failureCode(m_client->signInPassword(u"forgot@example.nl"_s, u"new password"_s)).isEmpty());

        // A link works once.
        const QByteArray again = openLink(m_backend, link).header("Location");
        QVERIFY2(again.contains("error_code=otp_expired"), again.constData());
        // A second request within the minute is held back.
        QCOMPARE(failureCode(m_client->recoverPassword(u"forgot@example.nl"_s)), u"over_email_send_rate_limit"_s);
    }

    void repeatedPasswordFailuresAreLimited()
    {
        runBlocking(m_client->signUp(u"target@example.nl"_s, u"the real one"_s, {}));
        for (int i = 0; i < 10; ++i) {
            QCOMPARE(failureCode(m_client->signInPassword(u"target@example.nl"_s, u"guess %1"_s.arg(i))),
                     u"invalid_credentials"_s);
        }
        int status = 0;
        // Past the limit even the right password waits, from this client...
        QCOMPARE(failureCode(m_client->signInPassword(u"target@example.nl"_s, u"the real one"_s), &status),
                 u"over_request_rate_limit"_s);
        QCOMPARE(status, 429);
        // ...but a stranger's guesses do not lock the owner out elsewhere.
        const QByteArray right = "{\"email\":\"target@example.nl\",\"password\":\"the real one\"}";
        QCOMPARE(statusFrom(u"127.0.0.2"_s, m_backend, "/auth/v1/token?grant_type=password", right), 200);
    }

    void signUpsAreLimitedPerClient()
    {
        auto signUp = [&](const QString &client, int n) {
            return statusFrom(client, m_backend, "/auth/v1/signup",
                              "{\"email\":\"many" + QByteArray::number(n) + "@example.nl\",\"password\":\"123456\"}");
        };
        for (int n = 0; n < 30; ++n) {
            QCOMPARE(signUp(u"127.0.0.3"_s, n), 200);
        }
        QCOMPARE(signUp(u"127.0.0.3"_s, 30), 429);
        QCOMPARE(signUp(u"127.0.0.4"_s, 30), 200);
    }

    void hostileRedirectsLandOnTheSite_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("backslash before user-info") << u"http://evil.example\\@127.0.0.1/"_s;
        QTest::newRow("a stranger's site") << u"https://evil.example/"_s;
        QTest::newRow("a header of its own") << u"morvane://x\r\nSet-Cookie: a=b"_s;
        QTest::newRow("a loopback port, for an e-mail link") << u"http://127.0.0.1:9/"_s;
    }

    void hostileRedirectsLandOnTheSite()
    {
        QFETCH(QString, address);
        const HttpResult answer = m_backend.request(
            "GET", "/auth/v1/verify?token=no-such-token&type=recovery&redirect_to=" + QUrl::toPercentEncoding(address));
        QCOMPARE(answer.status, 303);
        QVERIFY2(answer.header("Location").startsWith(QByteArray(m_backend.url().toEncoded() + '#')),
                 answer.header("Location").constData());
        QVERIFY(!answer.header("Set-Cookie").size());
    }

    void confirmationByMailedLink()
    {
        TestBackend confirming({u"--confirm-email"_s});
        QVERIFY2(confirming.isReady(), qPrintable(confirming.startupLog()));
        const Supabase client(confirming.url(), QString::fromLatin1(confirming.anonKey()));
        const QString mails = confirming.dataDir() + u"/outbox"_s;

        QCOMPARE(runBlocking(client.signUp(u"wait@example.nl"_s, u"patience"_s, u"Wim"_s)).kind,
                 SignUpOutcome::Kind::NeedsConfirmation);
        // The password is checked before the confirmation, so strangers learn nothing.
        QCOMPARE(failureCode(client.signInPassword(u"wait@example.nl"_s, u"wrong one"_s)), u"invalid_credentials"_s);
        QCOMPARE(failureCode(client.signInPassword(u"wait@example.nl"_s, u"patience"_s)), u"email_not_confirmed"_s);
        QCOMPARE(failureCode(client.resendSignupConfirmation(u"wait@example.nl"_s)), u"over_email_send_rate_limit"_s);

        const QString link = lastLink(mails, u"wait@example.nl"_s);
        QVERIFY2(link.startsWith(confirming.url().toString() + u"/auth/v1/verify?"_s), qPrintable(link));
        const HttpResult opened = openLink(confirming, link);
        QCOMPARE(opened.status, 303);
        const QUrlQuery fragment = fragmentOf(opened.header("Location"));
        QVERIFY(opened.header("Location").startsWith("morvane://auth/confirm#"));
        QCOMPARE(fragment.queryItemValue(u"type"_s), u"signup"_s);
        QVERIFY(!fragment.queryItemValue(u"refresh_token"_s).isEmpty());
        QVERIFY(failureCode(client.signInPassword(u"wait@example.nl"_s, u"patience"_s)).isEmpty());

        // Registered and confirmed: a sign-up looks like any other but sends nothing.
        const int before = mailCount(mails);
        QCOMPARE(runBlocking(client.signUp(u"wait@example.nl"_s, u"other password"_s, {})).kind,
                 SignUpOutcome::Kind::EmailExists);
        QCOMPARE(mailCount(mails), before);
        QVERIFY(failureCode(client.signInPassword(u"wait@example.nl"_s, u"patience"_s)).isEmpty());
    }

    void signInThroughAnOutsideProvider()
    {
        // A small OpenID Connect provider: it signs in whoever asks, with the profile it is given.
        QByteArray profile = R"({"sub":"idp-42","email":"Olive@Example.nl","email_verified":true,"name":"Olive"})";
        ScriptedHttpServer provider([&profile](const RecordedRequest &request) {
            if (request.path() == "/authorize") {
                const QString back = request.queryValue(u"redirect_uri"_s) + u"?code=provider-code&state="_s +
                                     request.queryValue(u"state"_s);
                return ScriptedResponse{302, {}, {{"Location", back.toUtf8()}}, false};
            }
            if (request.path() == "/token") {
                const QUrlQuery form(QString::fromUtf8(request.body));
                if (form.queryItemValue(u"code"_s) != u"provider-code" ||
                    form.queryItemValue(u"client_secret"_s) != u"s3cret") {
                    return ScriptedHttpServer::json(400, "{\"error\":\"invalid_grant\"}");
                }
                return ScriptedHttpServer::json(200, "{\"access_token\":\"provider-token\",\"token_type\":\"Bearer\"}");
            }
            if (request.path() == "/userinfo" && request.header("Authorization") == "Bearer provider-token") {
                return ScriptedHttpServer::json(200, profile);
            }
            return ScriptedHttpServer::json(401, "{}");
        });
        QTemporaryFile config;
        QVERIFY(config.open());
        const QString base = provider.url().toString();
        config.write(
            QJsonDocument(
                QJsonObject{{u"testidp"_s, QJsonObject{{u"client_id"_s, u"morvane"_s},
                                                       {u"client_secret"_s, u"s3cret"_s},
                                                       {u"authorization_endpoint"_s, QString(base + u"/authorize"_s)},
                                                       {u"token_endpoint"_s, QString(base + u"/token"_s)},
                                                       {u"userinfo_endpoint"_s, QString(base + u"/userinfo"_s)}}}})
                .toJson());
        config.flush();
        TestBackend backend({u"--auth-providers"_s, config.fileName()});
        QVERIFY2(backend.isReady(), qPrintable(backend.startupLog()));
        const Supabase client(backend.url(), QString::fromLatin1(backend.anonKey()));

        const QByteArray verifier = QByteArray("a-verifier-of-the-right-length-").repeated(2);
        const QByteArray challenge = QCryptographicHash::hash(verifier, QCryptographicHash::Sha256)
                                         .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
        QUrl lastLanding;
        auto signIn = [&]() -> QString {
            const HttpResult authorize = backend.request(
                "GET", "/auth/v1/authorize?provider=testidp&redirect_to=morvane://auth-callback&code_challenge=" +
                           challenge + "&code_challenge_method=s256");
            if (authorize.status != 302) {
                return {};
            }
            // The browser: to the provider, back to the server's callback, on to the application.
            const QUrl atProvider = QUrl::fromEncoded(authorize.header("Location"));
            QNetworkAccessManager browser;
            QNetworkRequest step(atProvider);
            step.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
            QNetworkReply *reply = browser.get(step);
            QEventLoop wait;
            QObject::connect(reply, &QNetworkReply::finished, &wait, &QEventLoop::quit);
            QTimer::singleShot(10000, &wait, &QEventLoop::quit);
            wait.exec();
            const QUrl callback = QUrl::fromEncoded(reply->rawHeader("Location"));
            delete reply;
            const HttpResult back =
                backend.request("GET", callback.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority));
            const QUrl landing = QUrl::fromEncoded(back.header("Location"));
            lastLanding = landing;
            return landing.scheme() == u"morvane" ? QUrlQuery(landing).queryItemValue(u"code"_s) : QString();
        };

        const QString code = signIn();
        QVERIFY(!code.isEmpty());
        QCOMPARE(
            failureCode(client.exchangeCodeForSession(code, u"not-the-verifier-but-just-as-long-as-it-should-be"_s)),
            u"bad_code_verifier"_s);
        const AuthTokens tokens = runBlocking(client.exchangeCodeForSession(code, QString::fromLatin1(verifier)));
        QCOMPARE(tokens.user->email, u"olive@example.nl"_s);
        QCOMPARE(tokens.user->userMetadata->displayName, u"Olive"_s);
        // A code is good for one exchange.
        QCOMPARE(failureCode(client.exchangeCodeForSession(code, QString::fromLatin1(verifier))),
                 u"flow_state_not_found"_s);

        // The next sign-in finds the same account through the provider's identity.
        const AuthTokens again = runBlocking(client.exchangeCodeForSession(signIn(), QString::fromLatin1(verifier)));
        QCOMPARE(again.user->id, tokens.user->id);
        const HttpResult me = backend.request("GET", "/auth/v1/user", again.accessToken.toLatin1());
        QCOMPARE(me.json().object().value(u"identities"_s).toArray().first().toObject().value(u"provider"_s).toString(),
                 u"testidp"_s);

        // An account made with a password joins a provider's sign-in only when the provider
        // vouches for the address; otherwise anyone could name it there and take the account over.
        runBlocking(client.signUp(u"owned@example.nl"_s, u"mine alone"_s, {}));
        for (const QByteArray &vouch :
             {QByteArray(), QByteArray(",\"email_verified\":false"), QByteArray(",\"email_verified\":\"true\"")}) {
            profile = R"({"sub":"idp-66","email":"owned@example.nl")" + vouch + '}';
            QVERIFY(signIn().isEmpty());
            QVERIFY2(QUrlQuery(lastLanding)
                         .queryItemValue(u"error_description"_s, QUrl::FullyDecoded)
                         .contains(u"did not confirm"_s),
                     qPrintable(lastLanding.toString()));
            QCOMPARE(backend.database()
                         .exec("SELECT count(*) FROM auth.identities WHERE provider_id = 'idp-66'")
                         .value(0, 0),
                     "0");
        }
        profile = R"({"sub":"idp-66","email":"owned@example.nl","email_verified":true})";
        const AuthTokens joined = runBlocking(client.exchangeCodeForSession(signIn(), QString::fromLatin1(verifier)));
        QCOMPARE(joined.user->email, u"owned@example.nl"_s);
        QCOMPARE(backend.database()
                     .exec("SELECT count(*) FROM auth.identities WHERE user_id = $1", {joined.user->id.toUtf8()})
                     .value(0, 0),
                 "2");
    }

    void unknownProvider()
    {
        const HttpResult result = m_backend.request(
            "GET", "/auth/v1/authorize?provider=github&redirect_to=morvane://auth-callback&code_challenge=" +
                       QByteArray(43, 'a') + "&code_challenge_method=s256");
        QCOMPARE(result.status, 400);
        QCOMPARE(result.json().object().value(u"msg"_s).toString(), u"Unsupported provider: provider is not enabled"_s);
    }
};

QTEST_GUILESS_MAIN(TestAuth)
#include "tst_auth.moc"
