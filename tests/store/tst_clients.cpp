#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "store/appstore.h"
#include "store/storedevice.h"
#include "support/testbackend.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

// Saved clients through the store against a real backend: what a write sends and merges, that
// deleting keeps the invoices' link, and that one user's clients are out of another's reach.
class TestClients : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_owner;
    std::unique_ptr<StoreDevice> m_other;

    AppStore &store() { return *m_owner->store; }
    // One column of the client's row as the backend has it; "NULL" for none.
    QString column(const QString &clientId, const char *name)
    {
        const PgResult row = m_backend.database().exec(
            "SELECT coalesce(" + QByteArray(name) + "::text, 'NULL') FROM clients WHERE id = $1", {clientId.toUtf8()});
        return QString::fromUtf8(row.value(0, 0));
    }
    QString newClient(const QString &name)
    {
        ClientInsert draft;
        draft.name = name;
        draft.phone = u"+31 20 555 0100"_s;
        draft.address = u"Keizersgracht 1"_s;
        const std::optional<Client> client = runBlocking(store().createClient(draft));
        return client ? client->id : QString();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_owner = StoreDevice::signUp(m_backend, u"ada@example.nl"_s, u"Ada"_s);
        m_other = StoreDevice::signUp(m_backend, u"mallory@example.nl"_s, u"Mallory"_s);
        QVERIFY(m_owner && m_other);
        QVERIFY(m_owner->refresh() && m_other->refresh());
    }

    void createTrimsAndMerges()
    {
        ClientInsert draft;
        draft.name = u"  Zeta Works "_s;
        draft.email = u"   "_s;
        draft.vatId = u" NL123456789B01 "_s;
        const std::optional<Client> created = runBlocking(store().createClient(draft));
        QVERIFY(created);
        QCOMPARE(created->name, u"Zeta Works"_s);
        QCOMPARE(column(created->id, "email"), u"NULL"_s);
        QCOMPARE(column(created->id, "vat_id"), u"NL123456789B01"_s);
        QCOMPARE(column(created->id, "user_id"), m_owner->userId());
        QVERIFY(store().clients().contains(*created));

        draft.name = u" "_s;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Create client failed: no name"_s));
        QVERIFY(!runBlocking(store().createClient(draft)));
        QCOMPARE(store().lastError(), u"A client needs a name."_s);
    }

    void updateSendsWhatTheFormOwns_data()
    {
        QTest::addColumn<QString>("name"); // null: not given
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("saved");
        QTest::addColumn<QString>("savedName");
        QTest::addColumn<QString>("savedEmail");
        QTest::addColumn<QString>("savedAddress");
        QTest::newRow("absent name kept, emptied address cleared")
            << QString() << u" billing@acme.nl "_s << u""_s << true << u"Acme"_s << u"billing@acme.nl"_s << u"NULL"_s;
        QTest::newRow("renamed")
            << u" Acme BV "_s << QString() << u"Dam 2"_s << true << u"Acme BV"_s << u"NULL"_s << u"Dam 2"_s;
        QTest::newRow("blank name refused before any write")
            << u"  "_s << u"x@acme.nl"_s << QString() << false << u"Acme"_s << u"NULL"_s << u"Keizersgracht 1"_s;
    }

    void updateSendsWhatTheFormOwns()
    {
        QFETCH(QString, name);
        QFETCH(QString, email);
        QFETCH(QString, address);
        QFETCH(bool, saved);
        const QString id = newClient(u"Acme"_s);
        QVERIFY(!id.isEmpty());
        ClientPatch patch;
        if (!name.isNull()) {
            patch.name = name;
        }
        patch.email = email;
        patch.address = address;
        patch.vatId = u"NL0001"_s;
        if (!saved) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Update client failed: no name"_s));
        }
        QCOMPARE(runBlocking(store().updateClient(id, patch)), saved);
        QTEST(column(id, "name"), "savedName");
        QTEST(column(id, "email"), "savedEmail");
        QTEST(column(id, "address"), "savedAddress");
        // The phone is not the form's: no save touches it.
        QCOMPARE(column(id, "phone"), u"+31 20 555 0100"_s);
        const auto known = std::find_if(store().clients().begin(), store().clients().end(),
                                        [&](const Client &c) { return c.id == id; });
        QVERIFY(known != store().clients().end());
        QTEST(known->name, "savedName");
    }

    void deleteKeepsTheInvoicesClient()
    {
        const QString id = newClient(u"Old Client"_s);
        const PgResult invoice = m_backend.database().exec(
            "INSERT INTO invoices (user_id, client_id, number, issued_at, currency, client_name)"
            " VALUES ($1, $2, 'TEST-1', '2026-03-01', 'EUR', 'Old Client') RETURNING id",
            {m_owner->userIdBytes(), id.toUtf8()});
        const QByteArray invoiceId = invoice.value(0, 0);
        QVERIFY(runBlocking(store().deleteClient(id)));

        const auto has = [&](const QList<Client> &list) {
            return std::any_of(list.begin(), list.end(), [&](const Client &c) { return c.id == id; });
        };
        QVERIFY(!has(store().clients()));
        QVERIFY(has(store().allClients()));
        QCOMPARE(m_backend.database().exec("SELECT client_id FROM invoices WHERE id = $1", {invoiceId}).value(0, 0),
                 id.toUtf8());
        QVERIFY(runBlocking(store().loadClients()));
        QVERIFY(!has(store().clients()) && has(store().allClients()));
    }

    void anotherUserCannotSeeOrChange_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("log");
        QTest::newRow("edit") << u"edit"_s << u"^Update client failed: no row matched"_s;
        QTest::newRow("delete") << u"delete"_s << u"^Delete client failed: no row matched"_s;
    }

    void anotherUserCannotSeeOrChange()
    {
        QFETCH(QString, operation);
        QFETCH(QString, log);
        const QString id = newClient(u"Private Client"_s);
        AppStore &other = *m_other->store;
        QVERIFY(runBlocking(other.loadClients()));
        QVERIFY(other.allClients().isEmpty());

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(log));
        ClientPatch patch;
        patch.name = u"Taken"_s;
        const bool done = operation == u"edit" ? runBlocking(other.updateClient(id, patch))
                                               : runBlocking(other.deleteClient(id));
        QVERIFY(!done);
        QCOMPARE(other.lastError(), u"The client was not changed: you may not edit it, or it no longer exists."_s);
        QCOMPARE(column(id, "name"), u"Private Client"_s);
        QCOMPARE(column(id, "archived"), u"false"_s);
        QCOMPARE(column(id, "address"), u"Keizersgracht 1"_s);
    }
};

QTEST_GUILESS_MAIN(TestClients)
#include "tst_clients.moc"
