#include "backend/authstore.h"
#include "backend/runblocking.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "support/scriptedhttpserver.h"
#include "support/testbackend.h"

#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// The sign-in state of the application against a real backend: sessions kept across restarts,
// tokens refreshed ahead of time and once for many callers, and what ends a session and what
// does not.
class TestAuthStore : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QTemporaryDir m_dir;
    int m_stores = 0;

    // One installation of the application: its secrets file, settings and clock, and a store on them.
    struct Device
    {
        std::shared_ptr<SecretStore> secrets;
        std::shared_ptr<QSettings> settings;
        QDateTime now = QDateTime::currentDateTimeUtc();
        std::unique_ptr<AuthStore> auth;
    };

    std::unique_ptr<AuthStore> storeOn(Device &device, const QUrl &backend = {})
    {
        return std::make_unique<AuthStore>(
            Supabase(backend.isEmpty() ? m_backend.url() : backend, QString::fromLatin1(m_backend.anonKey())),
            device.secrets, device.settings, [&device] { return device.now; });
    }

    std::unique_ptr<Device> device()
    {
        auto made = std::make_unique<Device>();
        const QString name = QString::number(m_stores++);
        made->secrets = SecretStore::file(m_dir.filePath(name + u"-secrets.json"_s));
        made->settings = std::make_shared<QSettings>(m_dir.filePath(name + u".conf"_s), QSettings::IniFormat);
        made->auth = storeOn(*made);
        return made;
    }

    std::unique_ptr<Device> signedIn(const QString &email, const QString &password)
    {
        auto made = device();
        const bool fresh = runBlocking(made->auth->registerAccount(email, password, {})) == AuthStore::RegisterResult::SignedIn;
        return fresh || runBlocking(made->auth->signIn(email, password)) ? std::move(made) : nullptr;
    }

    // The same installation started again: a new store on the same secrets and settings.
    std::unique_ptr<AuthStore> restart(Device &device, const QUrl &backend = {})
    {
        auto store = storeOn(device, backend);
        runBlocking(store->restore());
        return store;
    }

    int refreshTokenRows(const QString &userId)
    {
        return m_backend.database()
            .exec("SELECT count(*) FROM auth.refresh_tokens WHERE user_id = $1", {userId.toUtf8()})
            .value(0, 0)
            .toInt();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
    }

    void signUpThenRestart()
    {
        auto phone = device();
        QSignalSpy sessions(phone->auth.get(), &AuthStore::sessionChanged);
        QCOMPARE(runBlocking(phone->auth->registerAccount(u"Dana@Example.nl"_s, u"dana's secret"_s, u"Dana"_s)),
                 AuthStore::RegisterResult::SignedIn);
        QCOMPARE(sessions.count(), 1);

        const auto again = restart(*phone);
        QVERIFY(again->isSignedIn());
        QCOMPARE(again->email(), u"dana@example.nl"_s);
        const std::optional<QString> token = runBlocking(again->validToken(30));
        QCOMPARE(m_backend.request("GET", "/auth/v1/user", token.value_or(QString()).toLatin1()).status, 200);

        // A second sign-up of the address says so.
        auto laptop = device();
        QCOMPARE(runBlocking(laptop->auth->registerAccount(u"dana@example.nl"_s, u"whatever1"_s, {})),
                 AuthStore::RegisterResult::EmailExists);
        QCOMPARE(laptop->auth->lastError(), u"An account with this e-mail address exists already. Sign in instead."_s);
    }

    void signInRefusals_data()
    {
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("message");
        m_backend.createUser(u"gus@example.nl"_s);
        QTest::newRow("wrong password") << u"gus@example.nl"_s << u"The e-mail address or the password is not right."_s;
        QTest::newRow("no dot after the at sign") << u"gus@example"_s << u"Enter a valid e-mail address."_s;
    }

    void signInRefusals()
    {
        QFETCH(QString, email);
        auto laptop = device();
        QVERIFY(!runBlocking(laptop->auth->signIn(email, u"not his"_s)));
        QTEST(laptop->auth->lastError(), "message");
        QVERIFY(!laptop->auth->isSignedIn());
    }

    void tokensAreRefreshedAheadOfExpiry()
    {
        auto phone = signedIn(u"fay@example.nl"_s, u"fay's secret"_s);
        QVERIFY(phone);
        const QString first = *runBlocking(phone->auth->validToken(30));
        // Still valid for long: the same token.
        phone->now = phone->now.addSecs(1000);
        QCOMPARE(*runBlocking(phone->auth->validToken(30)), first);
        const int rows = refreshTokenRows(phone->auth->userId());

        // Twenty seconds left, thirty asked for: two callers at once make one refresh.
        phone->now = phone->now.addSecs(2580);
        QCoro::Task<std::optional<QString>> one = phone->auth->validToken(30);
        QCoro::Task<std::optional<QString>> two = phone->auth->validToken(30);
        const std::optional<QString> a = runBlocking(std::move(one));
        QCOMPARE(runBlocking(std::move(two)), a);
        QVERIFY(a && *a != first);
        QCOMPARE(refreshTokenRows(phone->auth->userId()), rows + 1);

        // The rotated refresh token replaced the remembered one.
        QCOMPARE(restart(*phone)->accounts().first().refreshToken,
                 QString::fromUtf8(m_backend.database()
                                       .exec("SELECT token FROM auth.refresh_tokens WHERE user_id = $1 AND NOT revoked"
                                             " ORDER BY id DESC LIMIT 1",
                                             {phone->auth->userId().toUtf8()})
                                       .value(0, 0)));
    }

    void aRejectedRefreshEndsTheSessionButNoAnswerDoesNot()
    {
        auto phone = signedIn(u"eve@example.nl"_s, u"eve's secret"_s);
        QVERIFY(phone);
        // The server cannot be reached: the session stays for later.
        QUrl dead;
        {
            ScriptedHttpServer gone([](const RecordedRequest &) { return ScriptedHttpServer::json(200, "{}"); });
            dead = gone.url();
        }
        const auto offline = restart(*phone, dead);
        phone->now = phone->now.addSecs(4000);
        QCOMPARE(runBlocking(offline->validToken(30)), std::nullopt);
        QVERIFY(offline->isSignedIn());

        // The server revoked the session: refreshing signs out here too.
        m_backend.database().exec("DELETE FROM auth.sessions WHERE user_id = $1", {phone->auth->userId().toUtf8()});
        const auto online = restart(*phone);
        QSignalSpy ended(online.get(), &AuthStore::sessionChanged);
        QCOMPARE(runBlocking(online->validToken(30)), std::nullopt);
        QVERIFY(!online->isSignedIn());
        QCOMPARE(ended.count(), 1);
        QVERIFY(!restart(*phone)->isSignedIn());
    }

    void unauthorizedCallersShareTheNewToken()
    {
        auto phone = signedIn(u"hal@example.nl"_s, u"hal's secret"_s);
        QVERIFY(phone);
        const QString old = *runBlocking(phone->auth->validToken(30));
        const std::optional<QString> fresh = runBlocking(phone->auth->tokenAfterUnauthorized(old));
        QVERIFY(fresh && *fresh != old);
        const int rows = refreshTokenRows(phone->auth->userId());
        // A caller still holding the old token gets the new one without another refresh.
        QCOMPARE(runBlocking(phone->auth->tokenAfterUnauthorized(old)), fresh);
        QCOMPARE(refreshTokenRows(phone->auth->userId()), rows);
    }

    void accountsSwitchAndExpire()
    {
        auto laptop = signedIn(u"work@example.nl"_s, u"work secret"_s);
        QVERIFY(laptop);
        const QString work = laptop->auth->userId();
        QVERIFY(runBlocking(laptop->auth->registerAccount(u"home@example.nl"_s, u"home secret"_s, {})) ==
                AuthStore::RegisterResult::SignedIn);
        QCOMPARE(laptop->auth->accounts().size(), 2);

        // Signing in to the second account left the first one's session alone.
        QVERIFY(runBlocking(laptop->auth->switchAccount(work)));
        QCOMPARE(laptop->auth->email(), u"work@example.nl"_s);
        const QByteArray token = runBlocking(laptop->auth->validToken(30)).value_or(QString()).toLatin1();
        QCOMPARE(m_backend.request("GET", "/auth/v1/user", token).json().object().value(u"email"_s).toString(),
                 u"work@example.nl"_s);

        const QString home = laptop->auth->accounts().at(1).id;
        m_backend.database().exec("DELETE FROM auth.sessions WHERE user_id = $1", {home.toUtf8()});
        QVERIFY(!runBlocking(laptop->auth->switchAccount(home)));
        QCOMPARE(laptop->auth->lastError(),
                 u"Couldn't switch to home@example.nl. That account's session expired - sign in to it again."_s);
        QCOMPARE(laptop->auth->accounts().size(), 2);
    }

    void signOutAndDeletionForgetTheSession()
    {
        auto phone = signedIn(u"ivy@example.nl"_s, u"ivy's secret"_s);
        QVERIFY(phone);
        const QString token = *runBlocking(phone->auth->validToken(30));
        runBlocking(phone->auth->signOut());
        // The server's session ended too, not only this device's memory of it.
        QCOMPARE(m_backend.request("GET", "/auth/v1/user", token.toLatin1()).status, 403);
        QVERIFY(!restart(*phone)->isSignedIn());

        QVERIFY(runBlocking(phone->auth->signIn(u"ivy@example.nl"_s, u"ivy's secret"_s)));
        const QString user = phone->auth->userId();
        QVERIFY(runBlocking(phone->auth->deleteAccount()));
        QVERIFY(!phone->auth->isSignedIn() && phone->auth->accounts().isEmpty());
        QCOMPARE(m_backend.database().exec("SELECT count(*) FROM auth.users WHERE id = $1", {user.toUtf8()}).value(0, 0),
                 "0");
    }

    void errorsAreClassified_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("body");
        QTest::addColumn<int>("kind");
        QTest::newRow("code invalid_credentials")
            << 400 << u"{\"code\":\"invalid_credentials\"}"_s << int(AuthErrorKind::InvalidCredentials);
        QTest::newRow("not confirmed") << 400 << u"{\"code\":400,\"error_code\":\"email_not_confirmed\"}"_s
                                       << int(AuthErrorKind::EmailNotConfirmed);
        QTest::newRow("mail limit by text") << 429 << u"{\"msg\":\"you can only request this after 42 seconds\"}"_s
                                            << int(AuthErrorKind::EmailRateLimit);
        QTest::newRow("too many requests text") << 429 << u"Too Many Requests"_s << int(AuthErrorKind::RateLimit);
        QTest::newRow("server failure") << 502 << u"<html>bad gateway</html>"_s << int(AuthErrorKind::Server);
        QTest::newRow("anything else") << 422 << u"{\"code\":\"weak_password\"}"_s << int(AuthErrorKind::Unknown);
    }

    void errorsAreClassified()
    {
        QFETCH(int, status);
        QFETCH(QString, body);
        QTEST(int(AuthStore::classify(SupabaseError::httpStatus(status, body))), "kind");
        QCOMPARE(AuthStore::classify(TransportError(TransportError::Kind::TimedOut)), AuthErrorKind::Network);
    }
};

QTEST_GUILESS_MAIN(TestAuthStore)
#include "tst_authstore.moc"
