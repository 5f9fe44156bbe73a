#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

using Items = QList<std::pair<QString, QString>>;
using Headers = QList<std::pair<QByteArray, QByteArray>>;

class TestRestRead : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QByteArray m_token;

    HttpResult get(const QString &table, const Items &query, const Headers &headers = {},
                   const QByteArray &method = "GET")
    {
        return m_backend.request(method, "/rest/v1/" + table.toUtf8() + '?' + queryString(query), m_token, {}, headers);
    }

    void seed()
    {
        PgConnection &db = m_backend.database();
        const QString anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_token = m_backend.tokenFor(anna);
        const QByteArray a = anna.toUtf8();
        db.exec("INSERT INTO projects (id, user_id, name, status, hourly_rate, description) VALUES"
                " ('00000000-0000-4000-8000-0000000000a1', $1, 'Alpha', 'active', 80, 'first'),"
                " ('00000000-0000-4000-8000-0000000000a2', $1, 'Beta', 'archived', NULL, NULL),"
                " ('00000000-0000-4000-8000-0000000000a3', $1, 'Gamma', 'completed', 120, NULL)",
                {a});
        db.exec(
            "INSERT INTO tasks (id, user_id, project_id, title, status, priority, time_spent_seconds, due_date)"
            " VALUES"
            " ('00000000-0000-4000-8000-0000000000b1', $1, '00000000-0000-4000-8000-0000000000a1', 'Photo retouch',"
            "  'in_progress', 'high', 27450, '2025-03-14'),"
            " ('00000000-0000-4000-8000-0000000000b2', $1, '00000000-0000-4000-8000-0000000000a1', 'Weekly sync',"
            "  'not_started', 'low', 0, NULL),"
            " ('00000000-0000-4000-8000-0000000000b3', $1, '00000000-0000-4000-8000-0000000000a1', 'Invoice, admin',"
            "  'completed', 'medium', 9000, '2025-02-01'),"
            " ('00000000-0000-4000-8000-0000000000b4', $1, '00000000-0000-4000-8000-0000000000a3', 'Logo (final)',"
            "  'completed', 'high', 3600, NULL),"
            " ('00000000-0000-4000-8000-0000000000b5', $1, '00000000-0000-4000-8000-0000000000a3', 'photo shoot',"
            "  'not_started', 'medium', 100, '2025-04-01')",
            {a});
        db.exec("INSERT INTO time_entries (id, user_id, task_id, project_id, started_at, ended_at, duration_seconds)"
                " VALUES"
                " ('00000000-0000-4000-8000-0000000000c1', $1, '00000000-0000-4000-8000-0000000000b1',"
                "  '00000000-0000-4000-8000-0000000000a1', '2025-03-01T08:00:00Z', '2025-03-01T09:00:00Z', 3600),"
                " ('00000000-0000-4000-8000-0000000000c2', $1, '00000000-0000-4000-8000-0000000000b1',"
                "  '00000000-0000-4000-8000-0000000000a1', '2025-03-01T09:00:00Z', '2025-03-01T09:30:00Z', 1800),"
                " ('00000000-0000-4000-8000-0000000000c3', $1, '00000000-0000-4000-8000-0000000000b4',"
                "  '00000000-0000-4000-8000-0000000000a3', '2025-03-02T10:00:00Z', '2025-03-02T11:00:00Z', 3600)",
                {a});
        db.exec(
            "INSERT INTO clients (user_id, name, archived) VALUES ($1, 'Open client', false), ($1, 'Old client', true)",
            {a});
        // Two keys between the same pair of tables, to prove that embedding asks which one.
        db.execScript("CREATE TABLE public.people (id int PRIMARY KEY, name text);"
                      "CREATE TABLE public.messages (id int PRIMARY KEY, body text,"
                      " sender_id int REFERENCES public.people, receiver_id int REFERENCES public.people);"
                      "GRANT ALL ON public.people, public.messages TO service_role;"
                      "INSERT INTO public.people VALUES (1, 'Ann'), (2, 'Bob');"
                      "INSERT INTO public.messages VALUES (1, 'hello', 1, 2);"
                      "NOTIFY pgrst, 'reload schema'");
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        seed();
        QTRY_COMPARE_WITH_TIMEOUT(
            m_backend.request("GET", "/rest/v1/messages?select=id", m_backend.serviceToken()).status, 200, 10000);
    }

    void filters_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<Items>("query");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("expected");

        const Items byTitle{{u"select"_s, u"title"_s}, {u"order"_s, u"title.asc"_s}};
        auto tasks = [&](const Items &filters) { return Items(byTitle) << filters; };
        QTest::newRow("eq") << u"tasks"_s << tasks({{u"status"_s, u"eq.completed"_s}}) << u"title"_s
                            << QStringList{u"Invoice, admin"_s, u"Logo (final)"_s};
        QTest::newRow("neq") << u"tasks"_s << tasks({{u"priority"_s, u"neq.high"_s}}) << u"title"_s
                             << QStringList{u"Invoice, admin"_s, u"Weekly sync"_s, u"photo shoot"_s};
        QTest::newRow("gt") << u"tasks"_s << tasks({{u"time_spent_seconds"_s, u"gt.3600"_s}}) << u"title"_s
                            << QStringList{u"Invoice, admin"_s, u"Photo retouch"_s};
        QTest::newRow("gte and lte together")
            << u"tasks"_s << tasks({{u"time_spent_seconds"_s, u"gte.100"_s}, {u"time_spent_seconds"_s, u"lte.3600"_s}})
            << u"title"_s << QStringList{u"Logo (final)"_s, u"photo shoot"_s};
        QTest::newRow("lt") << u"tasks"_s << tasks({{u"time_spent_seconds"_s, u"lt.100"_s}}) << u"title"_s
                            << QStringList{u"Weekly sync"_s};
        QTest::newRow("like with star") << u"tasks"_s << tasks({{u"title"_s, u"like.*oto*"_s}}) << u"title"_s
                                        << QStringList{u"Photo retouch"_s, u"photo shoot"_s};
        QTest::newRow("like is case-sensitive")
            << u"tasks"_s << tasks({{u"title"_s, u"like.Photo*"_s}}) << u"title"_s << QStringList{u"Photo retouch"_s};
        QTest::newRow("ilike") << u"tasks"_s << tasks({{u"title"_s, u"ilike.PHOTO*"_s}}) << u"title"_s
                               << QStringList{u"Photo retouch"_s, u"photo shoot"_s};
        QTest::newRow("match") << u"tasks"_s << tasks({{u"title"_s, u"match.^[A-Z][a-z]+ [a-z]+$"_s}}) << u"title"_s
                               << QStringList{u"Photo retouch"_s, u"Weekly sync"_s};
        QTest::newRow("in with a quoted comma")
            << u"tasks"_s << tasks({{u"title"_s, u"in.(\"Invoice, admin\",Weekly sync)"_s}}) << u"title"_s
            << QStringList{u"Invoice, admin"_s, u"Weekly sync"_s};
        QTest::newRow("in with parentheses in a quoted value")
            << u"tasks"_s << tasks({{u"title"_s, u"in.(\"Logo (final)\")"_s}}) << u"title"_s
            << QStringList{u"Logo (final)"_s};
        QTest::newRow("empty in matches nothing")
            << u"tasks"_s << tasks({{u"status"_s, u"in.()"_s}}) << u"title"_s << QStringList{};
        QTest::newRow("not.in") << u"tasks"_s << tasks({{u"status"_s, u"not.in.(completed,not_started)"_s}})
                                << u"title"_s << QStringList{u"Photo retouch"_s};
        QTest::newRow("is.null") << u"tasks"_s << tasks({{u"due_date"_s, u"is.null"_s}}) << u"title"_s
                                 << QStringList{u"Logo (final)"_s, u"Weekly sync"_s};
        QTest::newRow("not.is.null") << u"tasks"_s << tasks({{u"due_date"_s, u"not.is.null"_s}}) << u"title"_s
                                     << QStringList{u"Invoice, admin"_s, u"Photo retouch"_s, u"photo shoot"_s};
        QTest::newRow("is.true on a boolean")
            << u"clients"_s << Items{{u"select"_s, u"name"_s}, {u"archived"_s, u"is.true"_s}} << u"name"_s
            << QStringList{u"Old client"_s};
        QTest::newRow("isdistinct keeps nulls")
            << u"projects"_s
            << Items{{u"select"_s, u"name"_s}, {u"hourly_rate"_s, u"isdistinct.80"_s}, {u"order"_s, u"name"_s}}
            << u"name"_s << QStringList{u"Beta"_s, u"Gamma"_s};
        QTest::newRow("neq drops nulls") << u"projects"_s
                                         << Items{{u"select"_s, u"name"_s}, {u"hourly_rate"_s, u"neq.80"_s}}
                                         << u"name"_s << QStringList{u"Gamma"_s};
        QTest::newRow("time stamp with a plus offset")
            << u"time_entries"_s
            << Items{{u"select"_s, u"id"_s},
                     {u"started_at"_s, u"gte.2025-03-01T10:00:00+01:00"_s},
                     {u"order"_s, u"id"_s}}
            << u"id"_s
            << QStringList{u"00000000-0000-4000-8000-0000000000c2"_s, u"00000000-0000-4000-8000-0000000000c3"_s};
        QTest::newRow("uuid eq") << u"tasks"_s << tasks({{u"id"_s, u"eq.00000000-0000-4000-8000-0000000000b2"_s}})
                                 << u"title"_s << QStringList{u"Weekly sync"_s};
    }

    void filters()
    {
        QFETCH(QString, table);
        QFETCH(Items, query);
        QFETCH(QString, key);
        QFETCH(QStringList, expected);
        const HttpResult result = get(table, query);
        QCOMPARE(result.status, 200);
        QCOMPARE(jsonColumn(result.json().array(), key), expected);
    }

    void logicTrees_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("tree");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("or") << u"or"_s << u"(status.eq.completed,priority.eq.low)"_s
                            << QStringList{u"Invoice, admin"_s, u"Logo (final)"_s, u"Weekly sync"_s};
        QTest::newRow("and") << u"and"_s << u"(status.eq.completed,priority.eq.high)"_s
                             << QStringList{u"Logo (final)"_s};
        QTest::newRow("not.or") << u"not.or"_s << u"(status.eq.completed,priority.eq.low)"_s
                                << QStringList{u"Photo retouch"_s, u"photo shoot"_s};
        QTest::newRow("nested and inside or")
            << u"or"_s << u"(status.eq.not_started,and(priority.eq.high,time_spent_seconds.gt.10000))"_s
            << QStringList{u"Photo retouch"_s, u"Weekly sync"_s, u"photo shoot"_s};
        QTest::newRow("not.and inside or")
            << u"or"_s << u"(title.eq.Weekly sync,not.and(priority.neq.medium,status.neq.completed))"_s
            << QStringList{u"Invoice, admin"_s, u"Logo (final)"_s, u"Weekly sync"_s, u"photo shoot"_s};
        QTest::newRow("quoted value with comma and parentheses")
            << u"or"_s << u"(title.eq.\"Invoice, admin\",title.eq.\"Logo (final)\")"_s
            << QStringList{u"Invoice, admin"_s, u"Logo (final)"_s};
        QTest::newRow("in list inside a tree")
            << u"or"_s << u"(status.in.(in_progress,completed),title.ilike.week*)"_s
            << QStringList{u"Invoice, admin"_s, u"Logo (final)"_s, u"Photo retouch"_s, u"Weekly sync"_s};
        QTest::newRow("is null inside a tree") << u"or"_s << u"(due_date.is.null,time_spent_seconds.eq.100)"_s
                                               << QStringList{u"Logo (final)"_s, u"Weekly sync"_s, u"photo shoot"_s};
    }

    void logicTrees()
    {
        QFETCH(QString, key);
        QFETCH(QString, tree);
        QFETCH(QStringList, expected);
        const HttpResult result = get(u"tasks"_s, {{u"select"_s, u"title"_s}, {key, tree}, {u"order"_s, u"title"_s}});
        QCOMPARE(result.status, 200);
        QCOMPARE(jsonColumn(result.json().array(), u"title"_s), expected);
    }

    void logicTreesCombineWithOtherFilters()
    {
        // The tree is one condition among the others: "a AND (b OR c)", never "a AND b OR c".
        const HttpResult result = get(u"tasks"_s, {{u"select"_s, u"title"_s},
                                                   {u"title"_s, u"in.(Weekly sync,Photo retouch)"_s},
                                                   {u"or"_s, u"(status.neq.in_progress,started_at.is.null)"_s},
                                                   {u"order"_s, u"title"_s}});
        QCOMPARE(result.status, 200);
        QCOMPARE(jsonColumn(result.json().array(), u"title"_s), (QStringList{u"Photo retouch"_s, u"Weekly sync"_s}));
        const HttpResult negated = get(u"tasks"_s, {{u"select"_s, u"title"_s},
                                                    {u"priority"_s, u"eq.high"_s},
                                                    {u"not.or"_s, u"(status.eq.completed,title.eq.nothing)"_s}});
        QCOMPARE(jsonColumn(negated.json().array(), u"title"_s), QStringList{u"Photo retouch"_s});
    }

    void embedsToOneAndToMany()
    {
        HttpResult result = get(
            u"tasks"_s, {{u"select"_s, u"title,project:projects(name,status)"_s}, {u"title"_s, u"eq.Weekly sync"_s}});
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().array().first().toObject().value(u"project"_s).toObject(),
                 (QJsonObject{{u"name"_s, u"Alpha"_s}, {u"status"_s, u"active"_s}}));

        result =
            get(u"projects"_s,
                {{u"select"_s, u"name,tasks(title)"_s}, {u"order"_s, u"name"_s}, {u"tasks.order"_s, u"title.desc"_s}});
        QCOMPARE(result.status, 200);
        const QJsonArray projects = result.json().array();
        QCOMPARE(jsonColumn(projects, u"name"_s), (QStringList{u"Alpha"_s, u"Beta"_s, u"Gamma"_s}));
        QCOMPARE(jsonColumn(projects[0].toObject().value(u"tasks"_s).toArray(), u"title"_s),
                 (QStringList{u"Weekly sync"_s, u"Photo retouch"_s, u"Invoice, admin"_s}));
        // A project without tasks has an empty list, not null.
        QCOMPARE(projects[1].toObject().value(u"tasks"_s), QJsonValue(QJsonArray()));
    }

    void embedsNestAndFollowKeyNames()
    {
        const HttpResult nested =
            get(u"time_entries"_s, {{u"select"_s, u"id,task:tasks(title,project:projects(name))"_s},
                                    {u"id"_s, u"eq.00000000-0000-4000-8000-0000000000c3"_s}});
        QCOMPARE(nested.status, 200);
        const QJsonObject task = nested.json().array().first().toObject().value(u"task"_s).toObject();
        QCOMPARE(task.value(u"title"_s).toString(), u"Logo (final)"_s);
        QCOMPARE(task.value(u"project"_s).toObject().value(u"name"_s).toString(), u"Gamma"_s);

        // The foreign key column names the relationship too, and becomes the key.
        const HttpResult byColumn = get(u"time_entries"_s, {{u"select"_s, u"id,task_id(title)"_s},
                                                            {u"id"_s, u"eq.00000000-0000-4000-8000-0000000000c1"_s}});
        QCOMPARE(byColumn.status, 200);
        QCOMPARE(byColumn.json().array().first().toObject().value(u"task_id"_s).toObject().value(u"title"_s).toString(),
                 u"Photo retouch"_s);
    }

    void embeddedFiltersLimitsAndInner()
    {
        // Without !inner an embedded filter narrows the list; every project stays.
        HttpResult result = get(
            u"projects"_s,
            {{u"select"_s, u"name,tasks(title)"_s}, {u"tasks.status"_s, u"eq.completed"_s}, {u"order"_s, u"name"_s}});
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().array().size(), 3);
        QCOMPARE(jsonColumn(result.json().array()[2].toObject().value(u"tasks"_s).toArray(), u"title"_s),
                 QStringList{u"Logo (final)"_s});

        // With !inner only projects with a matching task remain.
        result = get(u"projects"_s, {{u"select"_s, u"name,tasks!inner(title)"_s},
                                     {u"tasks.priority"_s, u"eq.high"_s},
                                     {u"order"_s, u"name"_s}});
        QCOMPARE(result.status, 200);
        QCOMPARE(jsonColumn(result.json().array(), u"name"_s), (QStringList{u"Alpha"_s, u"Gamma"_s}));

        result = get(u"projects"_s, {{u"select"_s, u"name,tasks(title)"_s},
                                     {u"name"_s, u"eq.Alpha"_s},
                                     {u"tasks.order"_s, u"time_spent_seconds.desc"_s},
                                     {u"tasks.limit"_s, u"1"_s}});
        QCOMPARE(jsonColumn(result.json().array().first().toObject().value(u"tasks"_s).toArray(), u"title"_s),
                 QStringList{u"Photo retouch"_s});
    }

    void embeddingErrors_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("select");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        QTest::newRow("no relationship") << u"tasks"_s << u"*,clients(*)"_s << 400 << u"PGRST200"_s;
        QTest::newRow("not a table") << u"tasks"_s << u"*,nothing(*)"_s << 400 << u"PGRST200"_s;
        QTest::newRow("two keys to the same table") << u"messages"_s << u"*,people(*)"_s << 300 << u"PGRST201"_s;
        QTest::newRow("filter on a resource not embedded") << u"tasks"_s << u"title"_s << 400 << u"PGRST100"_s;
    }

    void embeddingErrors()
    {
        QFETCH(QString, table);
        QFETCH(QString, select);
        Items query{{u"select"_s, select}};
        if (QString::fromLatin1(QTest::currentDataTag()).startsWith(u"filter")) {
            query.append({u"project.name"_s, u"eq.Alpha"_s});
        }
        const HttpResult result = m_backend.request("GET", "/rest/v1/" + table.toUtf8() + '?' + queryString(query),
                                                    table == u"messages" ? m_backend.serviceToken() : m_token);
        QTEST(result.status, "status");
        QTEST(result.code(), "code");
    }

    void hintsChooseTheRelationship()
    {
        const HttpResult result = m_backend.request(
            "GET",
            "/rest/v1/messages?select=body,sender:people!sender_id(name),to:people!messages_receiver_id_fkey(name)",
            m_backend.serviceToken());
        QCOMPARE(result.status, 200);
        const QJsonObject message = result.json().array().first().toObject();
        QCOMPARE(message.value(u"sender"_s).toObject().value(u"name"_s).toString(), u"Ann"_s);
        QCOMPARE(message.value(u"to"_s).toObject().value(u"name"_s).toString(), u"Bob"_s);
    }

    void ordering_data()
    {
        QTest::addColumn<QString>("order");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("descending puts nulls first")
            << u"hourly_rate.desc"_s << QStringList{u"Beta"_s, u"Gamma"_s, u"Alpha"_s};
        QTest::newRow("descending, nulls last")
            << u"hourly_rate.desc.nullslast"_s << QStringList{u"Gamma"_s, u"Alpha"_s, u"Beta"_s};
        QTest::newRow("ascending puts nulls last")
            << u"hourly_rate.asc"_s << QStringList{u"Alpha"_s, u"Gamma"_s, u"Beta"_s};
        QTest::newRow("ascending, nulls first")
            << u"hourly_rate.nullsfirst"_s << QStringList{u"Beta"_s, u"Alpha"_s, u"Gamma"_s};
        QTest::newRow("two keys") << u"description.asc.nullslast,name.desc"_s
                                  << QStringList{u"Alpha"_s, u"Gamma"_s, u"Beta"_s};
    }

    void ordering()
    {
        QFETCH(QString, order);
        QFETCH(QStringList, expected);
        const HttpResult result = get(u"projects"_s, {{u"select"_s, u"name"_s}, {u"order"_s, order}});
        QCOMPARE(result.status, 200);
        QCOMPARE(jsonColumn(result.json().array(), u"name"_s), expected);
    }

    void paging_data()
    {
        QTest::addColumn<Items>("query");
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("contentRange");
        QTest::addColumn<int>("rows");

        const Items ordered{{u"select"_s, u"id"_s}, {u"order"_s, u"id"_s}};
        const Headers count{{"Prefer", "count=exact"}};
        QTest::newRow("everything, counted") << ordered << count << 200 << QByteArray("0-4/5") << 5;
        QTest::newRow("everything, not counted") << ordered << Headers{} << 200 << QByteArray("0-4/*") << 5;
        QTest::newRow("a page of a counted total is partial")
            << (Items(ordered) << std::pair{u"limit"_s, u"2"_s} << std::pair{u"offset"_s, u"1"_s}) << count << 206
            << QByteArray("1-2/5") << 2;
        QTest::newRow("range header") << ordered << Headers{{"Range", "0-1"}, {"Range-Unit", "items"}} << 200
                                      << QByteArray("0-1/*") << 2;
        QTest::newRow("open-ended range") << ordered << Headers{{"Range", "3-"}} << 200 << QByteArray("3-4/*") << 2;
        QTest::newRow("nothing matches, counted")
            << (Items(ordered) << std::pair{u"status"_s, u"eq.paused"_s}) << count << 200 << QByteArray("*/0") << 0;
        QTest::newRow("nothing matches, not counted")
            << (Items(ordered) << std::pair{u"status"_s, u"eq.paused"_s}) << Headers{} << 200 << QByteArray("*/*") << 0;
        QTest::newRow("offset past the total")
            << (Items(ordered) << std::pair{u"offset"_s, u"9"_s}) << count << 416 << QByteArray() << -1;
    }

    void paging()
    {
        QFETCH(Items, query);
        QFETCH(Headers, headers);
        QFETCH(int, rows);
        const HttpResult result = get(u"tasks"_s, query, headers);
        QTEST(result.status, "status");
        if (rows < 0) {
            QCOMPARE(result.code(), u"PGRST103"_s);
            return;
        }
        QTEST(result.header("Content-Range"), "contentRange");
        QCOMPARE(result.json().array().size(), rows);
    }

    void singleObject()
    {
        const Headers object{{"Accept", "application/vnd.pgrst.object+json"}};
        HttpResult result = get(u"projects"_s, {{u"select"_s, u"name"_s}, {u"name"_s, u"eq.Beta"_s}}, object);
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().object(), (QJsonObject{{u"name"_s, u"Beta"_s}}));
        QVERIFY(result.header("Content-Type").startsWith("application/vnd.pgrst.object+json"));

        result = get(u"projects"_s, {{u"select"_s, u"name"_s}, {u"status"_s, u"neq.archived"_s}}, object);
        QCOMPARE(result.status, 406);
        QCOMPARE(result.code(), u"PGRST116"_s);
        QCOMPARE(result.json().object().value(u"details"_s).toString(), u"The result contains 2 rows"_s);
    }

    void headAnswersHeadersOnly()
    {
        const HttpResult result = get(u"tasks"_s, {{u"select"_s, u"id"_s}}, {{"Prefer", "count=exact"}}, "HEAD");
        QCOMPARE(result.status, 200);
        QVERIFY(result.body.isEmpty());
        QCOMPARE(result.header("Content-Range"), "0-4/5");
        QCOMPARE(result.header("Preference-Applied"), "count=exact");
    }

    void aliasesAndCasts()
    {
        const HttpResult result = get(u"tasks"_s, {{u"select"_s, u"name:title,seconds:time_spent_seconds::text"_s},
                                                   {u"title"_s, u"eq.Weekly sync"_s}});
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().array().first().toObject(),
                 (QJsonObject{{u"name"_s, u"Weekly sync"_s}, {u"seconds"_s, u"0"_s}}));
    }
};

QTEST_GUILESS_MAIN(TestRestRead)
#include "tst_restread.moc"
