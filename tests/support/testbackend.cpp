#include "testbackend.h"

#include "auth/jwt.h"
#include "pg/pgconnection.h"

#include <QDateTime>
#include <QEventLoop>
#include <QFile>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUuid>

#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

QByteArray HttpResult::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return {};
}

QString HttpResult::code() const
{
    return json().object().value(u"code"_s).toVariant().toString();
}

QStringList jsonColumn(const QJsonArray &rows, const QString &key)
{
    QStringList found;
    for (const QJsonValue &row : rows) {
        found.append(row.toObject().value(key).toVariant().toString());
    }
    return found;
}

QByteArray queryString(const QList<std::pair<QString, QString>> &items)
{
    QByteArray encoded;
    for (const auto &[key, value] : items) {
        if (!encoded.isEmpty()) {
            encoded += '&';
        }
        encoded += QUrl::toPercentEncoding(key, ",().:*") + '=' + QUrl::toPercentEncoding(value, ",().:*");
    }
    return encoded;
}

QString TestBackend::serverProgram()
{
    return QStringLiteral(MORVANE_SERVER_PROGRAM);
}

TestBackend::TestBackend(const QStringList &extraArguments, bool startNow)
    : m_extraArguments(extraArguments)
{
    // The cluster runs as 'postgres' when the tests run as root; it must reach the folder.
    QFile::setPermissions(m_dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                            QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    if (startNow) {
        launch(QStringList{u"--data-dir"_s, dataDir(), u"--port"_s, u"0"_s} + extraArguments);
    }
}

bool TestBackend::start()
{
    stop();
    const int port = m_url.isValid() ? m_url.port() : 0;
    m_url.clear();
    launch(QStringList{u"--data-dir"_s, dataDir(), u"--port"_s, QString::number(port)} + m_extraArguments);
    return isReady();
}

void TestBackend::stop()
{
    m_database.reset();
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        if (!m_process.waitForFinished(60000)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }
}

bool TestBackend::restart()
{
    stop();
    const QUrl previous = m_url;
    m_url.clear();
    launch(QStringList{u"--data-dir"_s, dataDir(), u"--port"_s, QString::number(previous.port())} + m_extraArguments);
    return m_url == previous;
}

void TestBackend::launch(const QStringList &arguments)
{
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    // A test that ends without its destructors (a crash, a kill, QtTest's -functions listing) must
    // not leave its server and database running: the server is told to stop when the test goes.
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.start(serverProgram(), arguments);
    QByteArray out;
    const qint64 deadline = QDateTime::currentMSecsSinceEpoch() + 120000;
    while (QDateTime::currentMSecsSinceEpoch() < deadline && m_process.state() != QProcess::NotRunning) {
        m_process.waitForReadyRead(200);
        out += m_process.readAllStandardOutput();
        m_log += QString::fromLocal8Bit(m_process.readAllStandardError());
        const qsizetype at = out.indexOf("morvane-server ready url=");
        if (at >= 0 && out.indexOf('\n', at) > at) {
            const QByteArray line = out.mid(at, out.indexOf('\n', at) - at);
            m_url = QUrl(QString::fromLatin1(line.mid(line.indexOf('=') + 1)));
            break;
        }
    }
    m_log += QString::fromLocal8Bit(m_process.readAllStandardError());
    if (!m_url.isValid()) {
        qWarning("morvane-server did not start:\n%s", qPrintable(m_log));
        return;
    }
    QFile info(dataDir() + u"/server.json"_s);
    info.open(QIODevice::ReadOnly);
    m_anonKey = QJsonDocument::fromJson(info.readAll()).object().value(u"anon_key"_s).toString().toLatin1();
    QFile secret(dataDir() + u"/jwt-secret"_s);
    secret.open(QIODevice::ReadOnly);
    m_secret = secret.readAll().trimmed();
}

TestBackend::~TestBackend()
{
    stop();
}

PgConnection &TestBackend::database()
{
    if (!m_database) {
        QString host = dataDir() + u"/postgres"_s;
        m_database = PgConnection::open("host='" + host.toUtf8() + "' dbname=morvane user=morvane");
    }
    return *m_database;
}

QString TestBackend::createUser(const QString &email, const QString &displayName)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    database().exec(
        "INSERT INTO auth.users (id, aud, role, email, email_confirmed_at, raw_user_meta_data)"
        " VALUES ($1, 'authenticated', 'authenticated', $2, now(), jsonb_build_object('display_name', $3::text))",
        {id.toUtf8(), email.toUtf8(), displayName.toUtf8()});
    return id;
}

QByteArray TestBackend::tokenFor(const QString &userId, const QString &role, qint64 validSeconds) const
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    return Jwt::sign({{u"sub"_s, userId},
                      {u"role"_s, role},
                      {u"aud"_s, u"authenticated"_s},
                      {u"iat"_s, now},
                      {u"exp"_s, now + validSeconds}},
                     m_secret);
}

QByteArray TestBackend::serviceToken() const
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    return Jwt::sign({{u"role"_s, u"service_role"_s}, {u"iat"_s, now}, {u"exp"_s, now + 3600}}, m_secret);
}

HttpResult TestBackend::request(const QByteArray &method, const QByteArray &target, const QByteArray &token,
                                const QByteArray &body, const QList<std::pair<QByteArray, QByteArray>> &headers) const
{
    static QNetworkAccessManager *manager = new QNetworkAccessManager;
    QNetworkRequest request(QUrl::fromEncoded(m_url.toEncoded() + target));
    // Redirects are answers to check, not to follow.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setRawHeader("Content-Type", "application/json");
    request.setRawHeader("apikey", m_anonKey);
    if (!token.isEmpty()) {
        request.setRawHeader("Authorization", "Bearer " + token);
    }
    for (const auto &[name, value] : headers) {
        request.setRawHeader(name, value);
    }
    QNetworkReply *reply = method == "GET" ? manager->get(request) : manager->sendCustomRequest(request, method, body);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    loop.exec();
    HttpResult result;
    result.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    for (const auto &[name, value] : reply->rawHeaderPairs()) {
        result.headers.append({name, value});
    }
    result.body = reply->readAll();
    reply->deleteLater();
    return result;
}
