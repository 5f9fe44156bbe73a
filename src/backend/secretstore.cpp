#include "secretstore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QMutex>
#include <QSaveFile>
#include <QStandardPaths>

#include <QCoroSignal>

#include <qt6keychain/keychain.h>

Q_LOGGING_CATEGORY(lcSecrets, "morvane.backend.secrets")

using namespace Qt::StringLiterals;

namespace {

constexpr auto service = "morvane";

// One JSON object in a file that only its owner may read or write.
class FileSecretStore : public SecretStore
{
public:
    explicit FileSecretStore(QString path)
        : m_path(std::move(path))
    {}

    QCoro::Task<std::optional<QString>> read(QString name) override
    {
        QMutexLocker lock(&m_mutex);
        const QJsonValue value = load().value(name);
        co_return value.isString() ? std::optional<QString>(value.toString()) : std::nullopt;
    }

    QCoro::Task<bool> write(QString name, QString value) override
    {
        QMutexLocker lock(&m_mutex);
        QJsonObject all = load();
        all.insert(name, value);
        co_return save(all);
    }

    QCoro::Task<bool> remove(QString name) override
    {
        QMutexLocker lock(&m_mutex);
        QJsonObject all = load();
        all.remove(name);
        co_return save(all);
    }

private:
    QJsonObject load() const
    {
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly)) {
            return {};
        }
        return QJsonDocument::fromJson(file.readAll()).object();
    }

    bool save(const QJsonObject &all) const
    {
        QDir().mkpath(QFileInfo(m_path).absolutePath());
        QSaveFile file(m_path);
        // The permissions are set before a single byte is written.
        if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
            return false;
        }
        file.write(QJsonDocument(all).toJson(QJsonDocument::Compact));
        return file.commit();
    }

    QString m_path;
    QMutex m_mutex;
};

// Generic passwords of the "morvane" service in the desktop's keyring.
class KeyringSecretStore : public SecretStore
{
public:
    QCoro::Task<std::optional<QString>> read(QString name) override
    {
        auto *job = new QKeychain::ReadPasswordJob(QString::fromLatin1(service));
        job->setKey(name);
        job->start();
        co_await qCoro(job, &QKeychain::Job::finished);
        co_return job->error() == QKeychain::NoError ? std::optional<QString>(job->textData()) : std::nullopt;
    }

    QCoro::Task<bool> write(QString name, QString value) override
    {
        auto *job = new QKeychain::WritePasswordJob(QString::fromLatin1(service));
        job->setKey(name);
        job->setTextData(value);
        job->start();
        co_await qCoro(job, &QKeychain::Job::finished);
        co_return job->error() == QKeychain::NoError;
    }

    QCoro::Task<bool> remove(QString name) override
    {
        auto *job = new QKeychain::DeletePasswordJob(QString::fromLatin1(service));
        job->setKey(name);
        job->start();
        co_await qCoro(job, &QKeychain::Job::finished);
        co_return job->error() == QKeychain::NoError || job->error() == QKeychain::EntryNotFound;
    }
};

} // namespace

std::shared_ptr<SecretStore> SecretStore::file(const QString &path)
{
    return std::make_shared<FileSecretStore>(path);
}

QCoro::Task<std::shared_ptr<SecretStore>> SecretStore::system()
{
    // Asking for an item that is not there tells whether a keyring answers at all.
    auto *probe = new QKeychain::ReadPasswordJob(QString::fromLatin1(service));
    probe->setKey(u"morvane.probe"_s);
    probe->start();
    co_await qCoro(probe, &QKeychain::Job::finished);
    const QKeychain::Error error = probe->error();
    if (error == QKeychain::NoError || error == QKeychain::EntryNotFound) {
        co_return std::make_shared<KeyringSecretStore>();
    }
    const QString path =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/morvane/secrets.json"_s;
    static bool said = false;
    if (!said) {
        said = true;
        qCInfo(lcSecrets).noquote() << QString(u"no keyring service answers ("_s + probe->errorString() +
                                               u"); secrets are kept in "_s + path +
                                               u" (readable by this user only)"_s);
    }
    co_return file(path);
}
