#include "migrator.h"

#include "pg/pgconnection.h"

#include <QDir>
#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

// Any fixed number, shared by every server that migrates the same database.
constexpr auto lockKey = "7316240519";

} // namespace

QList<Migration> embeddedMigrations()
{
    return migrationsIn(u":/migrations"_s);
}

QList<Migration> migrationsIn(const QString &path)
{
    QList<Migration> migrations;
    const QDir dir(path);
    const QStringList names = dir.entryList({u"*.sql"_s}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(dir.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            migrations.append({name, file.readAll()});
        }
    }
    return migrations;
}

QStringList applyMigrations(PgConnection &connection, const QList<Migration> &migrations,
                            const std::function<void(const QString &)> &log)
{
    connection.exec("SELECT pg_advisory_lock(" + QByteArray(lockKey) + ")");
    struct Unlock
    {
        PgConnection &connection;
        ~Unlock()
        {
            try {
                connection.exec("SELECT pg_advisory_unlock(" + QByteArray(lockKey) + ")");
            } catch (const PgException &) {
            }
        }
    } unlock{connection};

    connection.execScript("CREATE SCHEMA IF NOT EXISTS morvane_meta; "
                          "CREATE TABLE IF NOT EXISTS morvane_meta.migrations ("
                          " name text PRIMARY KEY, applied_at timestamptz NOT NULL DEFAULT now())");
    const PgResult done = connection.exec("SELECT name FROM morvane_meta.migrations");
    QSet<QString> applied;
    for (int row = 0; row < done.rows(); ++row) {
        applied.insert(QString::fromUtf8(done.value(row, 0)));
    }

    QList<Migration> ordered = migrations;
    std::sort(ordered.begin(), ordered.end(), [](const Migration &a, const Migration &b) { return a.name < b.name; });
    QStringList names;
    for (const Migration &migration : std::as_const(ordered)) {
        if (applied.contains(migration.name)) {
            continue;
        }
        try {
            connection.execScript("BEGIN");
            connection.execScript(migration.sql);
            connection.exec("INSERT INTO morvane_meta.migrations (name) VALUES ($1)", {migration.name.toUtf8()});
            connection.execScript("COMMIT");
        } catch (const PgException &error) {
            try {
                connection.execScript("ROLLBACK");
            } catch (const PgException &) {
            }
            QString text = error.error().message;
            if (!error.error().detail.isEmpty()) {
                text += u" ("_s + error.error().detail + u')';
            }
            if (!error.error().sqlstate.isEmpty()) {
                text = QString::fromLatin1(error.error().sqlstate) + u": "_s + text;
            }
            throw MigrationError(migration.name, text);
        }
        log(u"applied migration "_s + migration.name);
        names.append(migration.name);
    }
    return names;
}
