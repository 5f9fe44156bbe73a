#include "support/noderunner.h"
#include "support/testbackend.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

// The official JavaScript authentication client (tests/js/auth-client.test.js) against a real
// server; afterwards the server's own records must show what the script did.
class TestJsAuth : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;

private slots:
    void initTestCase() { QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog())); }

    void officialAuthClient()
    {
        const QString problem = runNodeTests(m_backend, u"auth-client.test.js"_s, u"@supabase/auth-js"_s, {}, {}, 7);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        // One recovery mail went out: for the account, not for the unknown address.
        QCOMPARE(QDir(m_backend.dataDir() + u"/outbox"_s).entryList({u"*.eml"_s}, QDir::Files).size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestJsAuth)
#include "tst_jsauth.moc"
