#pragma once

#include "backend/authstore.h"
#include "backend/runblocking.h"
#include "pg/pgconnection.h"
#include "store/appstore.h"
#include "support/testbackend.h"

#include <QTemporaryDir>

#include <memory>

// One installation of the application against the test backend: its own secrets file, settings
// and clock, the authentication store, and the central store on top. Accounts are made through
// the real sign-up of the backend's authentication service.
struct StoreDevice
{
    QTemporaryDir dir;
    std::shared_ptr<SecretStore> secrets;
    std::shared_ptr<QSettings> settings;
    // The store's clock; tokens keep real time, as the backend checks them against its own.
    QDateTime now = QDateTime::currentDateTimeUtc();
    std::unique_ptr<AuthStore> auth;
    std::unique_ptr<AppStore> store;

    explicit StoreDevice(const TestBackend &backend)
    {
        secrets = SecretStore::file(dir.filePath(QStringLiteral("secrets.json")));
        settings = std::make_shared<QSettings>(dir.filePath(QStringLiteral("morvane.conf")), QSettings::IniFormat);
        auth = std::make_unique<AuthStore>(Supabase(backend.url(), QString::fromLatin1(backend.anonKey())), secrets,
                                           settings, systemClock());
        store = std::make_unique<AppStore>(*auth, settings, [this] { return now; });
    }

    ~StoreDevice()
    {
        // An operation still in flight (the poll's refresh) must end before its store does.
        store->stopSync();
        while (store->isLoading()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        }
    }

    static constexpr const char *password = "correct horse battery staple";

    // A new account, signed in on a new device.
    static std::unique_ptr<StoreDevice> signUp(const TestBackend &backend, const QString &email,
                                               const QString &displayName)
    {
        auto device = std::make_unique<StoreDevice>(backend);
        const auto result =
            runBlocking(device->auth->registerAccount(email, QString::fromLatin1(password), displayName));
        if (result != AuthStore::RegisterResult::SignedIn) {
            qWarning("sign-up of %s failed: %s", qPrintable(email), qPrintable(device->auth->lastError()));
            return nullptr;
        }
        return device;
    }

    // An existing account on a new device.
    static std::unique_ptr<StoreDevice> signIn(const TestBackend &backend, const QString &email)
    {
        auto device = std::make_unique<StoreDevice>(backend);
        if (!runBlocking(device->auth->signIn(email, QString::fromLatin1(password)))) {
            qWarning("sign-in of %s failed: %s", qPrintable(email), qPrintable(device->auth->lastError()));
            return nullptr;
        }
        return device;
    }

    // The application started again on this device: a new auth store restores the session from
    // the secrets, and a new store follows it.
    void restart(const TestBackend &backend)
    {
        store.reset();
        auth = std::make_unique<AuthStore>(Supabase(backend.url(), QString::fromLatin1(backend.anonKey())), secrets,
                                           settings, systemClock());
        runBlocking(auth->restore());
        store = std::make_unique<AppStore>(*auth, settings, [this] { return now; });
    }

    QString userId() const { return auth->userId(); }
    QByteArray userIdBytes() const { return auth->userId().toUtf8(); }
    bool refresh() { return runBlocking(store->refreshAll()); }
};

// A project at 95 an hour with a fixed-price task (1,200) and an hourly task, written straight into
// the database: what the invoice tests bill.
struct PricedProject
{
    QString project;
    QString fixedTask;
    QString hourlyTask;
};

inline PricedProject insertPricedProject(TestBackend &backend, const StoreDevice &owner, const QByteArray &name)
{
    const auto insert = [&](const QByteArray &sql, const PgParams &values) {
        return QString::fromUtf8(backend.database().exec(sql, values).value(0, 0));
    };
    const QByteArray user = owner.userIdBytes();
    PricedProject made;
    made.project = insert("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, $2, 95) RETURNING id",
                          {user, name});
    made.fixedTask = insert("INSERT INTO tasks (user_id, project_id, title, billing) VALUES ($1, $2, 'Logo', "
                            "'{\"model\":\"fixed\",\"amount\":1200}') RETURNING id",
                            {user, made.project.toUtf8()});
    made.hourlyTask = insert("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Support') RETURNING id",
                             {user, made.project.toUtf8()});
    return made;
}
