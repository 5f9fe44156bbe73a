#include "model/client.h"
#include "model/invoice.h"
#include "model/invoicedraft.h"
#include "model/invoicestyle.h"
#include "model/project.h"
#include "model/taskitem.h"
#include "model/team.h"
#include "model/timeentry.h"
#include "support/testdata.h"

#include <QJsonArray>
#include <QSet>
#include <QTest>

#include <functional>

namespace {

template<class T>
QList<T> decodeRows(const QByteArray &json)
{
    return Wire::decodeJson<QList<T>>(json);
}

// Decodes the rows, encodes them back and decodes that again: the JSON must come back key for
// key and the records must compare equal, with equal hashes.
template<class T>
void checkRoundTrip(const QByteArray &json)
{
    const QJsonValue original = Wire::parseJson(json);
    const QList<T> rows = decodeRows<T>(json);
    QCOMPARE(rows.size(), original.toArray().size());
    const QJsonValue encoded = Wire::encode(rows);
    QCOMPARE(encoded, original);
    const auto again = Wire::decode<QList<T>>(encoded);
    QCOMPARE(again.size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        QVERIFY(again[i] == rows[i]);
        QCOMPARE(qHash(again[i], 0), qHash(rows[i], 0));
    }
}

QString decodeFailure(const std::function<void()> &decode)
{
    try {
        decode();
    } catch (const DecodeError &error) {
        return error.message();
    }
    return {};
}

} // namespace

using namespace Qt::StringLiterals;

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void fixturesRoundTrip_data()
    {
        using Check = std::function<void(const QByteArray &)>;
        QTest::addColumn<QString>("file");
        QTest::addColumn<Check>("check");
        QTest::newRow("projects with every billing model") << u"projects"_s << Check(checkRoundTrip<Project>);
        QTest::newRow("tasks with side data") << u"tasks"_s << Check(checkRoundTrip<TaskItem>);
        QTest::newRow("invoices, live and void") << u"invoices"_s << Check(checkRoundTrip<Invoice>);
        QTest::newRow("invoice templates with and without a style")
            << u"invoice_templates"_s << Check(checkRoundTrip<InvoiceTemplate>);
        QTest::newRow("billed entries with embedded invoice and task")
            << u"billed_entries"_s << Check(checkRoundTrip<BilledEntryRow>);
    }

    void fixturesRoundTrip()
    {
        QFETCH(QString, file);
        QFETCH(std::function<void(const QByteArray &)>, check);
        check(readTestData(u"records/"_s + file + u".json"_s));
    }

    // A key read into the wrong field still round-trips, so a few values are looked at where they land.
    void fixtureValuesLandInTheRightFields()
    {
        const QList<TaskItem> tasks = decodeRows<TaskItem>(readTestData(u"records/tasks.json"_s));
        QCOMPARE(tasks[0].status, TaskStatus::InProgress);
        QCOMPARE(tasks[0].priority, TaskPriority::High);
        QCOMPARE(tasks[0].attachments->assignees->at(0).email, u"joris@example.nl"_s);
        QCOMPARE(tasks[0].billing->unitPrice, 75.0);
        QCOMPARE(tasks[2].timeSpentSeconds, Q_INT64_C(9000000000)); // beyond 32 bits

        const QList<Project> projects = decodeRows<Project>(readTestData(u"records/projects.json"_s));
        QCOMPARE(projects[0].billing->travel->value(u"mode"_s).toString(), u"per_km"_s);

        const QList<Invoice> invoices = decodeRows<Invoice>(readTestData(u"records/invoices.json"_s));
        QCOMPARE(invoices[0].status, InvoiceStatus::Sent);
        QVERIFY(!invoices[1].isLive());
        const auto templates = decodeRows<InvoiceTemplate>(readTestData(u"records/invoice_templates.json"_s));
        QCOMPARE(templates[0].style.bankName, u"ABN AMRO"_s);
        QVERIFY(templates[1].style == InvoiceStyle{});
    }

    void nullsAndUnknownKeysAreDropped()
    {
        const QByteArray row = R"({"id":"p1","user_id":"u1","name":"Site","status":"active",
            "description":null,"team_id":null,"billing":null,"fts":"'site':1","owner_name":"Anna"})";
        const auto project = Wire::decodeJson<Project>(row);
        QCOMPARE(project.description, std::nullopt);
        QCOMPARE(project.billing, std::nullopt);
        const QJsonObject encoded = Wire::encode(project).toObject();
        QCOMPARE(encoded.keys(), (QStringList{u"id"_s, u"name"_s, u"status"_s, u"user_id"_s}));
    }

    void decodingFailures_data()
    {
        QTest::addColumn<std::function<void()>>("decode");
        QTest::addColumn<QByteArray>("message");

        auto task = [](const char *json) {
            return std::function<void()>([json] { Wire::decodeJson<TaskItem>(json); });
        };
        const char *base = R"("id":"t1","user_id":"u1","project_id":"p1","priority":"low","time_spent_seconds":0)";
        auto taskWith = [&](const QByteArray &extra) {
            const QByteArray json = "{" + QByteArray(base) + "," + extra + "}";
            return std::function<void()>([json] { Wire::decodeJson<TaskItem>(json); });
        };

        QTest::newRow("missing required key")
            << taskWith(R"("status":"not_started")") << QByteArray("TaskItem.title: required key is missing");
        QTest::newRow("status outside its list")
            << taskWith(R"("title":"x","status":"paused")")
            << QByteArray("TaskItem.status: \"paused\" is not one of not_started, in_progress, completed");
        QTest::newRow("number where text belongs") << taskWith(R"("title":42,"status":"completed")")
                                                   << QByteArray("TaskItem.title: expected a string, found a number");
        QTest::newRow("fractional seconds") << std::function<void()>([] {
            Wire::decodeJson<TimeEntry>(R"({"id":"e","user_id":"u","task_id":"t","project_id":"p",
                       "started_at":"a","ended_at":"b","duration_seconds":12.5})");
        }) << QByteArray("TimeEntry.duration_seconds: expected an integer, found 12.5");
        QTest::newRow("nested note without text")
            << taskWith(R"("title":"x","status":"completed","attachments":{"_notes":[{"id":"n","created_at":"c"}]})")
            << QByteArray("TaskItem.attachments._notes[0].text: required key is missing");
        QTest::newRow("row that is not an object")
            << task("[1,2]") << QByteArray("TaskItem: expected an object, found an array");
        QTest::newRow("third row of a list is broken") << std::function<void()>([] {
            Wire::decodeJson<QList<Team>>(
                R"([{"id":"a","owner_id":"o","name":"A"},{"id":"b","owner_id":"o","name":"B"},{"id":"c","owner_id":"o"}])");
        }) << QByteArray("Team[2].name: required key is missing");
        QTest::newRow("text that is not JSON")
            << task("{\"id\":") << QByteArray("invalid JSON at offset 6: unterminated object");
    }

    void decodingFailures()
    {
        QFETCH(std::function<void()>, decode);
        QFETCH(QByteArray, message);
        QCOMPARE(decodeFailure(decode).toUtf8(), message);
    }

    void attachmentForms_data()
    {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<TaskAttachments>("expected");

        TaskAttachments positioned;
        positioned.position = 3;
        TaskAttachments categorised;
        categorised.category = TaskCategory::Admin;
        categorised.subtasks = QList<Subtask>{{u"s1"_s, u"Call"_s, false}};

        QTest::newRow("older array of anything")
            << QByteArray(R"([1,"two",{"_position":9},null])") << TaskAttachments{};
        QTest::newRow("nulls count as absent") << QByteArray(R"({"_position":3,"_notes":null})") << positioned;
        QTest::newRow("category and checklist")
            << QByteArray(R"({"_category":"admin","_subtasks":[{"id":"s1","title":"Call","done":false}]})")
            << categorised;
    }

    void attachmentForms()
    {
        QFETCH(QByteArray, column);
        QFETCH(TaskAttachments, expected);
        const QByteArray row = R"({"id":"t","user_id":"u","project_id":"p","title":"x","status":"completed",
            "priority":"low","time_spent_seconds":0,"attachments":)" +
                               column + "}";
        const auto task = Wire::decodeJson<TaskItem>(row);
        QVERIFY(task.attachments.has_value());
        QVERIFY(*task.attachments == expected);
    }

    void attachmentsAreWrittenAsAnObject()
    {
        TaskAttachments attachments;
        attachments.position = 0;
        attachments.notes = QList<TaskNote>{};
        QCOMPARE(Wire::encode(attachments), QJsonValue(QJsonObject{{u"_position"_s, 0}, {u"_notes"_s, QJsonArray()}}));
    }

    void memberIdentityIsTeamAndUser()
    {
        const QList<TeamMember> members = decodeRows<TeamMember>(readTestData(u"records/team_members.json"_s));
        // Joris is a member of two teams: two identities.
        QCOMPARE(members[1].userId, members[2].userId);
        QVERIFY(members[1].id() != members[2].id());
        QCOMPARE(members[1].id(), u"7e7e7e7e-1111-4222-8333-444455556666:9b0e7a51-1c2d-4f3e-8a9b-7c6d5e4f3a21"_s);
        QVERIFY(members[3].isPending());
        QVERIFY(!members[0].isPending());

        QSet<TeamMember> set(members.cbegin(), members.cend());
        set.insert(members[0]);
        QCOMPARE(set.size(), members.size());
    }

    void equalityCoversEveryField()
    {
        const QList<TaskItem> tasks = decodeRows<TaskItem>(readTestData(u"records/tasks.json"_s));
        TaskItem changed = tasks[0];
        QVERIFY(changed == tasks[0]);
        (*changed.attachments->subtasks)[1].done = true;
        QVERIFY(!(changed == tasks[0]));
        changed = tasks[0];
        changed.billing->vatRate = 0.09;
        QVERIFY(!(changed == tasks[0]));
        QVERIFY(qHash(changed, 0) != qHash(tasks[0], 0));
    }

    // Only a void invoice releases what it billed; a status this client does not know still
    // holds its work, so nothing is billed twice because of a newer backend.
    void billedRowsKnowWhetherTheirInvoiceStands()
    {
        const auto entries = decodeRows<BilledEntryRow>(readTestData(u"records/billed_entries.json"_s));
        QVERIFY(entries[0].invoice->isLive());
        QVERIFY(!entries[1].invoice->isLive());
        QCOMPARE(entries[0].entry->task->billing->value(u"amount"_s).toDouble(), 1200.0);
        QCOMPARE(entries[2].invoice, std::nullopt);
        const auto lines = decodeRows<BilledLineRow>(readTestData(u"records/billed_lines.json"_s));
        QVERIFY(lines[2].invoice->isLive());
    }

    // Inserts name only the columns they fill; lines go in one bulk insert, where every object must
    // carry the same keys.
    void insertsNameTheirColumns()
    {
        ClientInsert client;
        client.userId = u"u1"_s;
        client.name = u"Gemeente Houten"_s;
        client.lat = 52.03;
        QCOMPARE(Wire::encode(client).toObject().keys(), (QStringList{u"lat"_s, u"name"_s, u"user_id"_s}));

        InvoiceInsert invoice;
        invoice.userId = u"u1"_s;
        invoice.clientId = u"c1"_s;
        invoice.number = u"2025-0001"_s;
        invoice.issuedAt = u"2025-03-01"_s;
        invoice.currency = u"EUR"_s;
        invoice.status = u"sent"_s;
        QCOMPARE(Wire::encode(invoice).toObject().keys(), (QStringList{u"client_id"_s, u"currency"_s, u"issued_at"_s, u"number"_s, u"status"_s,
                                              u"subtotal"_s, u"total"_s, u"user_id"_s, u"vat_amount"_s}));

        InvoiceLineInsert work;
        work.taskId = u"t1"_s;
        work.unit = u"h"_s;
        InvoiceLineInsert pool;
        pool.poolProjectId = u"p1"_s;
        const QJsonObject a = Wire::encode(work).toObject();
        const QJsonObject b = Wire::encode(pool).toObject();
        QCOMPARE(a.keys(), b.keys());
        QVERIFY(b.value(u"task_id"_s).isNull());
        QVERIFY(a.value(u"pool_project_id"_s).isNull());
    }

    // A draft written by hand may leave out what has an obvious default; what it gives is kept.
    void handWrittenDraftTakesDefaults()
    {
        const auto draft = Wire::decodeJson<InvoiceDraft>(R"({"currency":"GBP","lines":[
            {"title":"Design","amount":450},
            {"title":"Hosting","amount":20,"hours":2,"rate":10,"unit":"month","included":false}]})");
        QCOMPARE(draft.currency, u"GBP"_s);
        QCOMPARE(draft.lines[0].hours, 0.0);
        QVERIFY(draft.lines[0].included);
        QCOMPARE(draft.lines[1].unit, u"month"_s);
        QVERIFY(!draft.lines[1].included);
        QCOMPARE(Wire::decodeJson<InvoiceDraft>(R"({"lines":[]})").currency, u"EUR"_s);

        // Written back, the defaults are explicit, and the result reads back equal.
        const QJsonValue encoded = Wire::encode(draft);
        QCOMPARE(encoded[u"lines"_s][0][u"included"_s].toBool(), true);
        QVERIFY(Wire::decode<InvoiceDraft>(encoded) == draft);
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
