#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <exception>
#include <memory>
#include <optional>

struct pg_conn;
struct pg_result;

// What PostgreSQL said when a statement failed.
struct PgError
{
    QByteArray sqlstate; // "23505"; empty when the connection itself failed
    QString message;
    QString detail;
    QString hint;
};

class PgException : public std::exception
{
public:
    explicit PgException(PgError error);
    [[nodiscard]] const PgError &error() const { return m_error; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    PgError m_error;
    QByteArray m_what;
};

// The rows of one statement, read as text.
class PgResult
{
public:
    PgResult() = default;
    explicit PgResult(pg_result *result);

    [[nodiscard]] int rows() const;
    [[nodiscard]] int columns() const;
    [[nodiscard]] bool isNull(int row, int column) const;
    [[nodiscard]] QByteArray value(int row, int column) const;
    [[nodiscard]] QByteArray columnName(int column) const;
    // Rows a statement without a result changed ("UPDATE 3").
    [[nodiscard]] qint64 affectedRows() const;

private:
    std::shared_ptr<pg_result> m_result;
};

using PgParams = QList<std::optional<QByteArray>>;

// One libpq connection. Not thread-safe: one thread uses it at a time (the pool sees to that).
class PgConnection
{
public:
    // Throws PgException when the server cannot be reached.
    static std::unique_ptr<PgConnection> open(const QByteArray &conninfo);
    // The same connection string (key=value or URI form) for another login role; an empty
    // password keeps the one given, if any. Throws PgException when the string cannot be read.
    static QByteArray conninfoAs(const QByteArray &conninfo, const QByteArray &user, const QByteArray &password = {});
    ~PgConnection();

    // One statement with text parameters ($1, $2, ...; std::nullopt is NULL). Throws PgException.
    PgResult exec(const QByteArray &sql, const PgParams &params = {});
    // Several statements in one string, as a migration file holds them. Throws PgException.
    void execScript(const QByteArray &sql);

    [[nodiscard]] bool isHealthy() const;
    // Whether the connection sits inside a transaction (also a failed one).
    [[nodiscard]] bool inTransaction() const;
    bool reset();
    // Whether a statement sent or received more than a few megabytes. libpq keeps its buffers at
    // the largest message the connection has carried, so such a connection is best closed.
    [[nodiscard]] bool carriedLargeMessage() const { return m_carriedLargeMessage; }

private:
    explicit PgConnection(pg_conn *conn)
        : m_conn(conn)
    {}
    PgResult check(pg_result *result);

    pg_conn *m_conn;
    bool m_carriedLargeMessage = false;
};
