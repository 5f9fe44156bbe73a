#include "pgconnection.h"

#include <libpq-fe.h>

namespace {

PgError errorOf(const PGresult *result, PGconn *conn)
{
    PgError error;
    if (result) {
        error.sqlstate = PQresultErrorField(result, PG_DIAG_SQLSTATE);
        error.message = QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY));
        error.detail = QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_DETAIL));
        error.hint = QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_HINT));
    }
    if (error.message.isEmpty() && conn) {
        error.message = QString::fromUtf8(PQerrorMessage(conn)).trimmed();
    }
    return error;
}

} // namespace

PgException::PgException(PgError error)
    : m_error(std::move(error))
    , m_what((m_error.sqlstate.isEmpty() ? QByteArray() : m_error.sqlstate + ": ") + m_error.message.toUtf8())
{}

PgResult::PgResult(pg_result *result)
    : m_result(result, PQclear)
{}

int PgResult::rows() const
{
    return m_result ? PQntuples(m_result.get()) : 0;
}

int PgResult::columns() const
{
    return m_result ? PQnfields(m_result.get()) : 0;
}

bool PgResult::isNull(int row, int column) const
{
    return PQgetisnull(m_result.get(), row, column) != 0;
}

QByteArray PgResult::value(int row, int column) const
{
    return QByteArray(PQgetvalue(m_result.get(), row, column), PQgetlength(m_result.get(), row, column));
}

QByteArray PgResult::columnName(int column) const
{
    return PQfname(m_result.get(), column);
}

qint64 PgResult::affectedRows() const
{
    return m_result ? QByteArray(PQcmdTuples(m_result.get())).toLongLong() : 0;
}

std::unique_ptr<PgConnection> PgConnection::open(const QByteArray &conninfo)
{
    PGconn *conn = PQconnectdb(conninfo.constData());
    if (PQstatus(conn) != CONNECTION_OK) {
        PgError error = errorOf(nullptr, conn);
        PQfinish(conn);
        throw PgException(error);
    }
    auto connection = std::unique_ptr<PgConnection>(new PgConnection(conn));
    // Fixed session settings, so that every answer looks the same whatever the server's defaults:
    // UTC time stamps in ISO form and UTF-8 text.
    connection->execScript("SET client_encoding = 'UTF8'; SET timezone = 'UTC'; SET datestyle = 'ISO, YMD'; "
                           "SET intervalstyle = 'iso_8601'; SET extra_float_digits = 1");
    return connection;
}

QByteArray PgConnection::conninfoAs(const QByteArray &conninfo, const QByteArray &user, const QByteArray &password)
{
    char *error = nullptr;
    PQconninfoOption *options = PQconninfoParse(conninfo.constData(), &error);
    if (!options) {
        const QString message = error ? QString::fromUtf8(error).trimmed() : QStringLiteral("out of memory");
        PQfreemem(error);
        throw PgException({{}, message, {}, {}});
    }
    auto quote = [](QByteArray value) -> QByteArray {
        value.replace('\\', "\\\\").replace('\'', "\\'");
        return "'" + value + "'";
    };
    QByteArray rebuilt;
    for (PQconninfoOption *option = options; option->keyword; ++option) {
        QByteArray value = option->val ? QByteArray(option->val) : QByteArray();
        const QByteArray keyword = option->keyword;
        if (keyword == "user") {
            value = user;
        } else if (keyword == "password" && !password.isEmpty()) {
            value = password;
        }
        if (!value.isEmpty()) {
            rebuilt += keyword + '=' + quote(value) + ' ';
        }
    }
    PQconninfoFree(options);
    return rebuilt.trimmed();
}

PgConnection::~PgConnection()
{
    PQfinish(m_conn);
}

namespace {

constexpr qint64 largeMessageBytes = 4 * 1024 * 1024;

} // namespace

PgResult PgConnection::check(pg_result *result)
{
    const ExecStatusType status = result ? PQresultStatus(result) : PGRES_FATAL_ERROR;
    if (status == PGRES_TUPLES_OK && !m_carriedLargeMessage) {
        qint64 bytes = 0;
        const int rows = PQntuples(result);
        const int columns = PQnfields(result);
        for (int row = 0; row < rows && bytes <= largeMessageBytes; ++row) {
            for (int column = 0; column < columns; ++column) {
                bytes += PQgetlength(result, row, column);
            }
        }
        m_carriedLargeMessage = bytes > largeMessageBytes;
    }
    if (status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK) {
        return PgResult(result);
    }
    PgError error = errorOf(result, m_conn);
    PQclear(result);
    throw PgException(std::move(error));
}

PgResult PgConnection::exec(const QByteArray &sql, const PgParams &params)
{
    std::vector<const char *> values;
    std::vector<int> lengths;
    values.reserve(std::size_t(params.size()));
    lengths.reserve(std::size_t(params.size()));
    qint64 sent = 0;
    for (const auto &param : params) {
        // Text parameters end at the first NUL, so "a\0b" would arrive as "a": a filter could
        // match far more than was asked. PostgreSQL text cannot hold NUL, so refuse it as it would.
        if (param && param->contains('\0')) {
            throw PgException({"22021", QStringLiteral("invalid byte sequence for encoding \"UTF8\": 0x00"), {}, {}});
        }
        values.push_back(param ? param->constData() : nullptr);
        lengths.push_back(param ? int(param->size()) : 0);
        sent += lengths.back();
    }
    m_carriedLargeMessage = m_carriedLargeMessage || sent > largeMessageBytes;
    return check(
        PQexecParams(m_conn, sql.constData(), int(params.size()), nullptr, values.data(), lengths.data(), nullptr, 0));
}

void PgConnection::execScript(const QByteArray &sql)
{
    check(PQexec(m_conn, sql.constData()));
}

bool PgConnection::isHealthy() const
{
    return PQstatus(m_conn) == CONNECTION_OK;
}

bool PgConnection::inTransaction() const
{
    const PGTransactionStatusType status = PQtransactionStatus(m_conn);
    return status == PQTRANS_INTRANS || status == PQTRANS_INERROR;
}

bool PgConnection::reset()
{
    PQreset(m_conn);
    return isHealthy();
}
