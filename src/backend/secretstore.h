#pragma once

#include <QString>

#include <QCoroTask>

#include <memory>
#include <optional>

// Small secrets by name (tokens, the user's own keys): in the system keyring where one runs,
// otherwise in a file only the user may read.
class SecretStore
{
public:
    virtual ~SecretStore() = default;

    virtual QCoro::Task<std::optional<QString>> read(QString name) = 0;
    virtual QCoro::Task<bool> write(QString name, QString value) = 0;
    virtual QCoro::Task<bool> remove(QString name) = 0;

    // The keyring (Secret Service or KWallet through QtKeychain) when it answers; otherwise the
    // file store under the XDG config folder, said once in the log.
    static QCoro::Task<std::shared_ptr<SecretStore>> system();
    // A file store at `path` (mode 0600), for tools and tests.
    static std::shared_ptr<SecretStore> file(const QString &path);
};
