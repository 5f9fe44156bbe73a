#include "auth/jwt.h"
#include "backend/runblocking.h"
#include "backend/supabase.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "support/outsideprovider.h"
#include "support/testbackend.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QTest>
#include <QTimeZone>
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
    return backend.request("GET", QUrl(link).toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority));
}

QUrlQuery fragmentOf(const QByteArray &location)
{
    return QUrlQuery(QUrl::fromEncoded(location).fragment(QUrl::FullyEncoded));
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

} // namespace

class TestAuth : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::optional<Supabase> m_client;

    QString outbox() const { return m_backend.dataDir() + u"/outbox"_s; }

    AuthTokens signUp(const QString &email, const QString &password, const QString &name = {})
    {
        return *runBlocking(m_client->signUp(email, password, name)).session;
    }

    AuthTokens signIn(const QString &email, const QString &password)
    {
        return runBlocking(m_client->signInPassword(email, password));
    }

    bool refreshes(const AuthTokens &tokens) { return failureCode(m_client->refresh(tokens.refreshToken)).isEmpty(); }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_client.emplace(m_backend.url(), QString::fromLatin1(m_backend.anonKey()));
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
        QTest::newRow("a NUL in the address")
            << u"pim\u0000@example.nl"_s << u"s3cret-pim"_s << u"validation_failed"_s << 400;
        // One account whether the letters come composed (NFC) or decomposed (NFD).
        QTest::newRow("the address decomposed") << u"zoe\u0308@example.nl"_s << u"s3cret-zoe"_s << QString() << 0;
    }

    void signInAndItsRefusals()
    {
        static const bool made =
            runBlocking(m_client->signUp(u"pim@example.nl"_s, u"s3cret-pim"_s, u"Pim"_s)).session.has_value() &&
            runBlocking(m_client->signUp(u"zo\u00eb@example.nl"_s, u"s3cret-zoe"_s, {})).session.has_value() &&
            runBlocking(m_client->signUp(u"ZOE\u0308@example.nl"_s, u"s3cret-two"_s, {})).kind ==
                SignUpOutcome::Kind::EmailExists;
        QVERIFY(made);
        QFETCH(QString, email);
        QFETCH(QString, password);
        int status = 0;
        QTEST(failureCode(m_client->signInPassword(email, password), &status), "code");
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
        const AuthTokens first = signUp(u"rota@example.nl"_s, u"rotation!"_s);
        const RefreshResponse second = runBlocking(m_client->refresh(first.refreshToken));
        // An answer that got lost: the old token gives the active one again.
        QCOMPARE(runBlocking(m_client->refresh(first.refreshToken)).refreshToken, second.refreshToken);
        const RefreshResponse third = runBlocking(m_client->refresh(second.refreshToken));
        // Only briefly: the same token ten seconds after it was replaced is someone else's copy,
        // and it takes the whole session with it.
        m_backend.database().exec("UPDATE auth.refresh_tokens SET updated_at = now() - interval '11 seconds'"
                                  " WHERE token = $1",
                                  {second.refreshToken.toUtf8()});
        QCOMPARE(failureCode(m_client->refresh(second.refreshToken)), u"refresh_token_already_used"_s);
        QVERIFY(!failureCode(m_client->refresh(third.refreshToken)).isEmpty());
        QCOMPARE(failureCode(m_client->refresh(u"never-issued"_s)), u"refresh_token_not_found"_s);
    }

    void aPasswordChangeEndsEveryOtherSession()
    {
        signUp(u"moved@example.nl"_s, u"first password"_s);
        const AuthTokens mine = signIn(u"moved@example.nl"_s, u"first password"_s);
        const AuthTokens stolen = signIn(u"moved@example.nl"_s, u"first password"_s);
        QCOMPARE(m_backend.request("PUT", "/auth/v1/user", mine.accessToken.toLatin1(), "{\"password\":\"second one\"}")
                     .status,
                 200);
        // The other session ends at once, its access token too, not an hour later.
        QCOMPARE(failureCode(m_client->refresh(stolen.refreshToken)), u"refresh_token_not_found"_s);
        QCOMPARE(m_backend.request("GET", "/rest/v1/projects", stolen.accessToken.toLatin1()).status, 401);
        QCOMPARE(m_backend.request("GET", "/rest/v1/projects", mine.accessToken.toLatin1()).status, 200);
        QVERIFY(refreshes(mine));
    }

    // Signing out one device is the JavaScript client's check; here, the wider scopes.
    void logoutScopes()
    {
        signUp(u"scopes@example.nl"_s, u"many devices"_s);
        const AuthTokens mine = signIn(u"scopes@example.nl"_s, u"many devices"_s);
        const AuthTokens other = signIn(u"scopes@example.nl"_s, u"many devices"_s);
        auto logout = [&](const QByteArray &scope) {
            return m_backend.request("POST", "/auth/v1/logout?scope=" + scope, mine.accessToken.toLatin1()).status;
        };
        QCOMPARE(logout("others"), 204);
        QVERIFY(refreshes(mine));
        QVERIFY(!refreshes(other));
        QCOMPARE(logout("global"), 204);
        QVERIFY(!refreshes(mine));
        QCOMPARE(m_backend.request("POST", "/auth/v1/logout?scope=local").status, 401);
    }

    void currentUser()
    {
        // Signed up and in at once, under the address as the account keeps it, with a profile filled in.
        const QByteArray access = signUp(u"Me@Example.nl"_s, u"it is me"_s, u"Me"_s).accessToken.toLatin1();
        const QJsonObject user = m_backend.request("GET", "/auth/v1/user", access).json().object();
        QCOMPARE(user.value(u"email"_s).toString(), u"me@example.nl"_s);
        QVERIFY(!user.contains(u"encrypted_password"_s));
        QCOMPARE(m_backend.request("GET", "/rest/v1/profiles?select=display_name,timezone", access).json()[0].toObject(),
                 (QJsonObject{{u"display_name"_s, u"Me"_s},
                              {u"timezone"_s, QString::fromUtf8(QTimeZone::systemTimeZoneId())}}));

        // Metadata is limited as a whole: changes that are each small cannot add up.
        auto store = [&](const QString &key) {
            const QJsonObject data{{key, QString(10000, u'm')}};
            return m_backend
                .request("PUT", "/auth/v1/user", access, QJsonDocument(QJsonObject{{u"data"_s, data}}).toJson())
                .status;
        };
        QCOMPARE(store(u"notes"_s), 200);
        QCOMPARE(store(u"more_notes"_s), 400);
        const QByteArray foreign =
            Jwt::sign({{u"sub"_s, user.value(u"id"_s)}, {u"role"_s, u"authenticated"_s}}, "another project's secret");
        QCOMPARE(m_backend.request("GET", "/auth/v1/user", foreign).header("x-sb-error-code"), "bad_jwt");
    }

    void recoveryThroughTheMailedLink()
    {
        signUp(u"forgot@example.nl"_s, u"old password"_s);
        const int before = mailCount(outbox());
        runBlocking(m_client->recoverPassword(u"nobody-here@example.nl"_s));
        QCOMPARE(mailCount(outbox()), before);
        runBlocking(m_client->recoverPassword(u"forgot@example.nl"_s));
        const QString link = lastLink(outbox(), u"forgot@example.nl"_s);

        const HttpResult opened = openLink(m_backend, link);
        QCOMPARE(opened.status, 303);
        QVERIFY(opened.header("Location").startsWith("morvane://auth/reset-password#"));
        const QUrlQuery fragment = fragmentOf(opened.header("Location"));
        QCOMPARE(fragment.queryItemValue(u"type"_s), u"recovery"_s);
        const QByteArray access = fragment.queryItemValue(u"access_token"_s).toLatin1();
        QCOMPARE(m_backend.request("PUT", "/auth/v1/user", access, "{\"password\":\"new password\"}").status, 200);
        QCOMPARE(failureCode(m_client->signInPassword(u"forgot@example.nl"_s, u"old password"_s)),
                 u"invalid_credentials"_s);
        QVERIFY(failureCode(m_client->signInPassword(u"forgot@example.nl"_s, u"new password"_s)).isEmpty());

        // A link works once, and a second request within the minute is held back.
        QVERIFY(openLink(m_backend, link).header("Location").contains("error_code=otp_expired"));
        QCOMPARE(failureCode(m_client->recoverPassword(u"forgot@example.nl"_s)), u"over_email_send_rate_limit"_s);
    }

    void repeatedAttemptsAreLimitedPerClient()
    {
        signUp(u"target@example.nl"_s, u"the real one"_s);
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
        QCOMPARE(statusFrom(u"127.0.0.2"_s, m_backend, "/auth/v1/token?grant_type=password",
                            "{\"email\":\"target@example.nl\",\"password\":\"the real one\"}"),
                 200);

        auto signUpFrom = [&](const QString &client, int n) {
            return statusFrom(client, m_backend, "/auth/v1/signup",
                              "{\"email\":\"many" + QByteArray::number(n) + "@example.nl\",\"password\":\"123456\"}");
        };
        for (int n = 0; n < 30; ++n) {
            QCOMPARE(signUpFrom(u"127.0.0.3"_s, n), 200);
        }
        QCOMPARE(signUpFrom(u"127.0.0.3"_s, 30), 429);
        QCOMPARE(signUpFrom(u"127.0.0.4"_s, 30), 200);
    }

    // Which addresses are hostile is tst_redirectpolicy's; here, that a mailed link is judged without the
    // loopback leeway a native sign-in has, and a refused address lands on the server's own.
    void aMailedLinkLandsOnTheSiteNotOnALoopbackPort()
    {
        const HttpResult answer = m_backend.request(
            "GET", "/auth/v1/verify?token=no-such-token&type=recovery&redirect_to=http%3A%2F%2F127.0.0.1%3A9%2F");
        QCOMPARE(answer.status, 303);
        QVERIFY2(answer.header("Location").startsWith(QByteArray(m_backend.url().toEncoded() + '#')),
                 answer.header("Location").constData());
    }

    void confirmationByMailedLink()
    {
        TestBackend confirming({u"--confirm-email"_s});
        QVERIFY2(confirming.isReady(), qPrintable(confirming.startupLog()));
        const Supabase client(confirming.url(), QString::fromLatin1(confirming.anonKey()));
        const QString mails = confirming.dataDir() + u"/outbox"_s;
        auto signInCode = [&](const QString &password) {
            return failureCode(client.signInPassword(u"wait@example.nl"_s, password));
        };

        QCOMPARE(runBlocking(client.signUp(u"wait@example.nl"_s, u"patience"_s, u"Wim"_s)).kind,
                 SignUpOutcome::Kind::NeedsConfirmation);
        // The password is checked before the confirmation, so strangers learn nothing.
        QCOMPARE(signInCode(u"wrong one"_s), u"invalid_credentials"_s);
        QCOMPARE(signInCode(u"patience"_s), u"email_not_confirmed"_s);

        const QString link = lastLink(mails, u"wait@example.nl"_s);
        QVERIFY2(link.startsWith(confirming.url().toString() + u"/auth/v1/verify?"_s), qPrintable(link));
        const HttpResult opened = openLink(confirming, link);
        QCOMPARE(opened.status, 303);
        QVERIFY(opened.header("Location").startsWith("morvane://auth/confirm#"));
        const QUrlQuery fragment = fragmentOf(opened.header("Location"));
        QCOMPARE(fragment.queryItemValue(u"type"_s), u"signup"_s);
        QVERIFY(!fragment.queryItemValue(u"refresh_token"_s).isEmpty());
        QCOMPARE(signInCode(u"patience"_s), QString());

        // Registered and confirmed: a sign-up looks like any other but sends nothing.
        const int before = mailCount(mails);
        QCOMPARE(runBlocking(client.signUp(u"wait@example.nl"_s, u"other password"_s, {})).kind,
                 SignUpOutcome::Kind::EmailExists);
        QCOMPARE(mailCount(mails), before);
        QCOMPARE(signInCode(u"patience"_s), QString());
    }

    void signInThroughAnOutsideProvider()
    {
        OutsideProvider provider;
        provider.setProfile(R"({"sub":"idp-42","email":"Olive@Example.nl","email_verified":true,"name":"Olive"})");
        TestBackend backend(provider.backendArguments());
        QVERIFY2(backend.isReady(), qPrintable(backend.startupLog()));
        const Supabase client(backend.url(), QString::fromLatin1(backend.anonKey()));
        const QString verifier = u"a-verifier-of-the-right-length-"_s.repeated(2);
        const QByteArray authorize =
            backend.url().toEncoded() +
            "/auth/v1/authorize?redirect_to=morvane://auth-callback&code_challenge_method=s256&code_challenge=" +
            QCryptographicHash::hash(verifier.toLatin1(), QCryptographicHash::Sha256)
                .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
        QUrl landing;
        auto signIn = [&] {
            landing = OutsideProvider::landingOf(QUrl::fromEncoded(authorize + "&provider=idp"));
            return QUrlQuery(landing).queryItemValue(u"code"_s);
        };

        const QString code = signIn();
        QVERIFY2(!code.isEmpty(), qPrintable(landing.toString()));
        QCOMPARE(failureCode(client.exchangeCodeForSession(code, QString(verifier).replace(u'-', u'_'))),
                 u"bad_code_verifier"_s);
        const AuthTokens tokens = runBlocking(client.exchangeCodeForSession(code, verifier));
        QCOMPARE(tokens.user->email, u"olive@example.nl"_s);
        QCOMPARE(tokens.user->userMetadata->displayName, u"Olive"_s);
        // A code is good for one exchange.
        QCOMPARE(failureCode(client.exchangeCodeForSession(code, verifier)), u"flow_state_not_found"_s);
        // The next sign-in finds the same account through the provider's identity.
        QCOMPARE(runBlocking(client.exchangeCodeForSession(signIn(), verifier)).user->id, tokens.user->id);

        // An account made with a password joins a provider's sign-in only when the provider
        // vouches for the address; otherwise anyone could name it there and take the account over.
        runBlocking(client.signUp(u"owned@example.nl"_s, u"mine alone"_s, {}));
        auto identities = [&] {
            return backend.database()
                .exec("SELECT count(*) FROM auth.identities WHERE provider_id = 'idp-66'")
                .value(0, 0);
        };
        for (const QByteArray &vouch :
             {QByteArray(), QByteArray(",\"email_verified\":false"), QByteArray(",\"email_verified\":\"true\"")}) {
            provider.setProfile(R"({"sub":"idp-66","email":"owned@example.nl")" + vouch + '}');
            QVERIFY(signIn().isEmpty());
            QCOMPARE(identities(), "0");
        }
        provider.setProfile(R"({"sub":"idp-66","email":"owned@example.nl","email_verified":true})");
        QCOMPARE(runBlocking(client.exchangeCodeForSession(signIn(), verifier)).user->email, u"owned@example.nl"_s);
        QCOMPARE(identities(), "1");
    }
};

QTEST_GUILESS_MAIN(TestAuth)
#include "tst_auth.moc"
