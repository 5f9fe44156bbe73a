#include "pg/pgconnection.h"
#include "support/noderunner.h"
#include "support/testbackend.h"

#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// The official JavaScript realtime client (tests/js/realtime-client.test.js) subscribes to a real
// server and receives changes that it makes itself through the REST client.
class TestJsRealtime : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;

private slots:
    void initTestCase() { QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog())); }

    void officialClientReceivesChanges()
    {
        PgConnection &db = m_backend.database();
        const QString anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        const QString bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        const QByteArray project =
            db.exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Live') RETURNING id", {anna.toUtf8()})
                .value(0, 0);
        const QByteArray strangerProject =
            db.exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Elsewhere') RETURNING id", {bob.toUtf8()})
                .value(0, 0);
        qputenv("MORVANE_STRANGER_TOKEN", m_backend.tokenFor(bob));
        const QJsonObject fixture{{u"user"_s, anna},
                                  {u"project"_s, QString::fromLatin1(project)},
                                  {u"stranger"_s, bob},
                                  {u"strangerProject"_s, QString::fromLatin1(strangerProject)}};
        const QString problem = runNodeTests(m_backend, u"realtime-client.test.js"_s, u"@supabase/realtime-js"_s,
                                             m_backend.tokenFor(anna), fixture, 3);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }
};

QTEST_GUILESS_MAIN(TestJsRealtime)
#include "tst_jsrealtime.moc"
