#include "support/noderunner.h"
#include "support/testbackend.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// The official JavaScript storage client (tests/js/storage-client.test.js) against a real server.
// Two users: the script acts as the first and must not reach the second's object.
class TestJsStorage : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;
    QString m_bobsObject;

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_bobsObject = m_bob + u"/private/secret.txt"_s;
        const HttpResult stored =
            m_backend.request("POST", "/storage/v1/object/invoice-templates/" + m_bobsObject.toUtf8(),
                              m_backend.tokenFor(m_bob), "his", {{"Content-Type", "text/plain"}});
        QVERIFY2(stored.status == 200, stored.body.constData());
    }

    void officialStorageClient()
    {
        const QJsonObject fixture{{u"user"_s, m_anna}, {u"otherUser"_s, m_bob}, {u"otherUsersObject"_s, m_bobsObject}};
        const QString problem = runNodeTests(m_backend, u"storage-client.test.js"_s, u"@supabase/storage-js"_s,
                                             m_backend.tokenFor(m_anna), fixture, 8);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));

        // What the script left behind is still readable by its owner, and his object by him alone.
        const HttpResult his =
            m_backend.request("GET", "/storage/v1/object/authenticated/invoice-templates/" + m_bobsObject.toUtf8(),
                              m_backend.tokenFor(m_bob));
        QCOMPARE(his.body, QByteArray("his"));
    }
};

QTEST_GUILESS_MAIN(TestJsStorage)
#include "tst_jsstorage.moc"
