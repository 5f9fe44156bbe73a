#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <stdexcept>

class PgConnection;

// One file of db/migrations.
struct Migration
{
    QString name;
    QByteArray sql;
};

class MigrationError : public std::runtime_error
{
public:
    MigrationError(QString file, QString error)
        : std::runtime_error(
              QString(QStringLiteral("migration ") + file + QStringLiteral(" failed: ") + error).toStdString())
        , m_file(std::move(file))
    {}
    [[nodiscard]] const QString &file() const { return m_file; }

private:
    QString m_file;
};

// The migrations compiled into the server, in name order.
QList<Migration> embeddedMigrations();
// The *.sql files of a folder, in name order.
QList<Migration> migrationsIn(const QString &dir);

// Applies, in order, every migration not yet recorded, each in its own transaction, and records
// it. Several servers may share a database, so the whole run holds an advisory lock. Answers the
// names applied; throws MigrationError on the first failure, leaving that migration unapplied.
QStringList applyMigrations(PgConnection &connection, const QList<Migration> &migrations,
                            const std::function<void(const QString &)> &log);
