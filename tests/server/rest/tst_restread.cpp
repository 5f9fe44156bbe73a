#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

using Headers = QList<std::pair<QByteArray, QByteArray>>;

namespace {

// "a=1&b=x y" as a client library would encode it.
QByteArray encoded(const QString &query)
{
    QList<std::pair<QString, QString>> items;
    for (const QString &item : query.split(u'&', Qt::SkipEmptyParts)) {
        items.append({item.section(u'=', 0, 0), item.section(u'=', 1)});
    }
    return queryString(items);
}

// "Name: value|Name: value"
Headers parseHeaders(const QString &text)
{
    Headers list;
    for (const QByteArray &header : text.toLatin1().split('|')) {
        if (!header.isEmpty()) {
            list.append({header.left(header.indexOf(':')), header.mid(header.indexOf(':') + 2)});
        }
    }
    return list;
}

} // namespace

class TestRestRead : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QByteArray m_token;

    HttpResult get(const QString &table, const QString &query, const Headers &headers = {},
                   const QByteArray &method = "GET")
    {
        // The two tables made for embedding are granted to the service role only.
        const QByteArray token = table == u"messages" ? m_backend.serviceToken() : m_token;
        return m_backend.request(method, "/rest/v1/" + table.toUtf8() + '?' + encoded(query), token, {}, headers);
    }

    void seed()
    {
        PgConnection &db = m_backend.database();
        const QString anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_token = m_backend.tokenFor(anna);
        db.exec("INSERT INTO projects (id, user_id, name, status, hourly_rate, description) VALUES"
                " ('00000000-0000-4000-8000-0000000000a1', $1, 'Alpha', 'active', 80, 'first'),"
                " ('00000000-0000-4000-8000-0000000000a2', $1, 'Beta', 'archived', NULL, NULL),"
                " ('00000000-0000-4000-8000-0000000000a3', $1, 'Gamma', 'completed', 120, NULL)",
                {anna.toUtf8()});
        db.exec("INSERT INTO tasks (id, user_id, project_id, title, status, priority, time_spent_seconds, due_date)"
                " SELECT ('00000000-0000-4000-8000-0000000000' || t.id)::uuid, $1,"
                " ('00000000-0000-4000-8000-0000000000' || t.project)::uuid, t.title, t.status, t.priority,"
                " t.seconds, t.due::date FROM (VALUES"
                " ('b1', 'a1', 'Photo retouch', 'in_progress', 'high', 27450, '2025-03-14'),"
                " ('b2', 'a1', 'Weekly sync', 'not_started', 'low', 0, NULL),"
                " ('b3', 'a1', 'Invoice, admin', 'completed', 'medium', 9000, '2025-02-01'),"
                " ('b4', 'a3', 'Logo (final)', 'completed', 'high', 3600, NULL),"
                " ('b5', 'a3', 'photo shoot', 'not_started', 'medium', 100, '2025-04-01'))"
                " t(id, project, title, status, priority, seconds, due)",
                {anna.toUtf8()});
        db.exec("INSERT INTO time_entries (id, user_id, task_id, project_id, started_at, ended_at, duration_seconds)"
                " SELECT ('00000000-0000-4000-8000-0000000000' || e.id)::uuid, $1, t.id, t.project_id, e.started,"
                " e.started + e.seconds * interval '1 second', e.seconds FROM (VALUES"
                " ('c1', 'b1', timestamptz '2025-03-01T08:00:00Z', 3600), ('c2', 'b1', '2025-03-01T09:00:00Z', 1800),"
                " ('c3', 'b4', '2025-03-02T10:00:00Z', 3600)) e(id, task, started, seconds)"
                " JOIN tasks t ON t.id = ('00000000-0000-4000-8000-0000000000' || e.task)::uuid",
                {anna.toUtf8()});
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
        QTRY_COMPARE_WITH_TIMEOUT(get(u"messages"_s, u"select=id"_s).status, 200, 10000);
    }

    void reads_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("query");
        // The first selected column of every row, "|"-separated; or the whole answer, as JSON with ' for ".
        QTest::addColumn<QString>("expected");

        // Tasks rows select and order by title unless they say otherwise.
        // clang-format off
        const std::array<const char *, 4> rows[]{
            {"eq", "tasks", "status=eq.completed", "Invoice, admin|Logo (final)"},
            {"gte and lte together", "tasks", "time_spent_seconds=gte.100&time_spent_seconds=lte.3600",
             "Logo (final)|photo shoot"},
            {"like is case-sensitive", "tasks", "title=like.Photo*", "Photo retouch"},
            {"ilike", "tasks", "title=ilike.PHOTO*", "Photo retouch|photo shoot"},
            {"in with a quoted comma", "tasks", "title=in.(\"Invoice, admin\",Weekly sync)", "Invoice, admin|Weekly sync"},
            {"empty in matches nothing", "tasks", "status=in.()", ""},
            {"not.in", "tasks", "status=not.in.(completed,not_started)", "Photo retouch"},
            {"is.null", "tasks", "due_date=is.null", "Logo (final)|Weekly sync"},
            {"isdistinct keeps nulls", "projects", "select=name&hourly_rate=isdistinct.80&order=name", "Beta|Gamma"},
            {"neq drops nulls", "projects", "select=name&hourly_rate=neq.80", "Gamma"},
            {"time stamp with a plus offset", "time_entries",
             "select=duration_seconds&started_at=gte.2025-03-01T10:00:00+01:00&order=id", "1800|3600"},

            {"or", "tasks", "or=(status.eq.completed,priority.eq.low)", "Invoice, admin|Logo (final)|Weekly sync"},
            {"nested and inside or", "tasks", "or=(status.eq.not_started,and(priority.eq.high,time_spent_seconds.gt.10000))",
             "Photo retouch|Weekly sync|photo shoot"},
            {"in list inside a tree", "tasks", "or=(status.in.(in_progress,completed),title.ilike.week*)",
             "Invoice, admin|Logo (final)|Photo retouch|Weekly sync"},
            // The tree is one condition among the others: "a AND (b OR c)", never "a AND b OR c".
            {"a tree ANDed with another filter", "tasks",
             "title=in.(Weekly sync,Photo retouch)&or=(status.neq.in_progress,started_at.is.null)",
             "Photo retouch|Weekly sync"},
            {"a negated tree ANDed with another filter", "tasks",
             "priority=eq.high&not.or=(status.eq.completed,title.eq.nothing)", "Photo retouch"},

            {"descending, nulls last", "projects", "select=name&order=hourly_rate.desc.nullslast", "Gamma|Alpha|Beta"},
            {"ascending, nulls first", "projects", "select=name&order=hourly_rate.nullsfirst", "Beta|Alpha|Gamma"},
            {"two order keys", "projects", "select=name&order=description.asc.nullslast,name.desc", "Alpha|Gamma|Beta"},

            {"to-one embed is an object", "tasks", "select=title,project:projects(name,status)&title=eq.Weekly sync",
             "[{'title':'Weekly sync','project':{'name':'Alpha','status':'active'}}]"},
            // A project without tasks has an empty list, not null.
            {"to-many embed is an ordered list", "projects", "select=name,tasks(title)&order=name&tasks.order=title.desc",
             "[{'name':'Alpha','tasks':[{'title':'Weekly sync'},{'title':'Photo retouch'},{'title':'Invoice, admin'}]},"
             "{'name':'Beta','tasks':[]},{'name':'Gamma','tasks':[{'title':'photo shoot'},{'title':'Logo (final)'}]}]"},
            // The foreign key column names the relationship too, and becomes the key.
            {"embed named by its key column", "time_entries",
             "select=task_id(title)&id=eq.00000000-0000-4000-8000-0000000000c1", "[{'task_id':{'title':'Photo retouch'}}]"},
            {"embedded filter narrows the list, not the parents", "projects",
             "select=name,tasks(title)&tasks.status=eq.completed&order=name",
             "[{'name':'Alpha','tasks':[{'title':'Invoice, admin'}]},{'name':'Beta','tasks':[]},"
             "{'name':'Gamma','tasks':[{'title':'Logo (final)'}]}]"},
            {"inner embed drops the parents without a match", "projects",
             "select=name,tasks!inner(title)&tasks.priority=eq.high&order=name",
             "[{'name':'Alpha','tasks':[{'title':'Photo retouch'}]},{'name':'Gamma','tasks':[{'title':'Logo (final)'}]}]"},
            {"embedded order and limit", "projects",
             "select=name,tasks(title)&name=eq.Alpha&tasks.order=time_spent_seconds.desc&tasks.limit=1",
             "[{'name':'Alpha','tasks':[{'title':'Photo retouch'}]}]"},
            {"hints choose the relationship", "messages",
             "select=body,sender:people!sender_id(name),to:people!messages_receiver_id_fkey(name)",
             "[{'body':'hello','sender':{'name':'Ann'},'to':{'name':'Bob'}}]"},
            {"aliases and casts", "tasks", "select=name:title,seconds:time_spent_seconds::text&title=eq.Weekly sync",
             "[{'name':'Weekly sync','seconds':'0'}]"},
        };
        // clang-format on
        for (const auto &[name, table, query, expected] : rows) {
            QString fullQuery = QString::fromUtf8(query);
            if (!fullQuery.contains(u"select="_s)) {
                fullQuery += u"&select=title&order=title"_s;
            }
            QTest::newRow(name) << QString::fromLatin1(table) << fullQuery << QString::fromUtf8(expected);
        }
    }

    void reads()
    {
        QFETCH(QString, table);
        QFETCH(QString, query);
        QFETCH(QString, expected);
        const HttpResult result = get(table, query);
        QCOMPARE(result.status, 200);
        if (expected.startsWith(u'[')) {
            QCOMPARE(result.json(), QJsonDocument::fromJson(expected.replace(u'\'', u'"').toUtf8()));
        } else {
            const QString key = query.section(u"select="_s, 1).section(u'&', 0, 0).section(u',', 0, 0);
            QCOMPARE(jsonColumn(result.json().array(), key), expected.split(u'|', Qt::SkipEmptyParts));
        }
    }

    void refused_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("query");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        QTest::newRow("no relationship") << u"tasks"_s << u"select=*,clients(*)"_s << 400 << u"PGRST200"_s;
        QTest::newRow("two keys to the same table") << u"messages"_s << u"select=*,people(*)"_s << 300 << u"PGRST201"_s;
        QTest::newRow("filter on a resource not embedded")
            << u"tasks"_s << u"select=title&project.name=eq.Alpha"_s << 400 << u"PGRST100"_s;
        QTest::newRow("offset past the total") << u"tasks"_s << u"offset=9"_s << 416 << u"PGRST103"_s;
    }

    void refused()
    {
        QFETCH(QString, table);
        QFETCH(QString, query);
        const HttpResult result = get(table, query, {{"Prefer", "count=exact"}});
        QTEST(result.status, "status");
        QTEST(result.code(), "code");
    }

    void paging_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("headers");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("contentRange");
        QTest::addColumn<int>("rows");

        struct Page
        {
            const char *name, *query, *headers;
            int status;
            const char *range;
            int rows;
        };
        // clang-format off
        const Page pages[]{
            {"everything, counted", "", "Prefer: count=exact", 200, "0-4/5", 5},
            {"everything, not counted", "", "", 200, "0-4/*", 5},
            {"a page of a counted total is partial", "limit=2&offset=1", "Prefer: count=exact", 206, "1-2/5", 2},
            {"range header", "", "Range: 0-1|Range-Unit: items", 200, "0-1/*", 2},
            {"nothing matches, counted", "status=eq.paused", "Prefer: count=exact", 200, "*/0", 0},
        };
        // clang-format on
        for (const Page &p : pages) {
            QTest::newRow(p.name) << QString::fromLatin1(p.query) << QString::fromLatin1(p.headers) << p.status
                                  << QByteArray(p.range) << p.rows;
        }
    }

    void paging()
    {
        QFETCH(QString, query);
        QFETCH(QString, headers);
        QFETCH(int, rows);
        const HttpResult result = get(u"tasks"_s, u"select=id&order=id&"_s + query, parseHeaders(headers));
        QTEST(result.status, "status");
        QTEST(result.header("Content-Range"), "contentRange");
        QCOMPARE(result.json().array().size(), rows);
    }

    void singleObject()
    {
        const Headers object{{"Accept", "application/vnd.pgrst.object+json"}};
        HttpResult result = get(u"projects"_s, u"select=name&name=eq.Beta"_s, object);
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().object(), (QJsonObject{{u"name"_s, u"Beta"_s}}));
        QVERIFY(result.header("Content-Type").startsWith("application/vnd.pgrst.object+json"));

        result = get(u"projects"_s, u"select=name&status=neq.archived"_s, object);
        QCOMPARE(result.status, 406);
        QCOMPARE(result.code(), u"PGRST116"_s);
        QCOMPARE(result.json().object().value(u"details"_s).toString(), u"The result contains 2 rows"_s);
    }

    void headAnswersHeadersOnly()
    {
        const HttpResult result = get(u"tasks"_s, u"select=id"_s, {{"Prefer", "count=exact"}}, "HEAD");
        QCOMPARE(result.status, 200);
        QVERIFY(result.body.isEmpty());
        QCOMPARE(result.header("Content-Range"), "0-4/5");
        QCOMPARE(result.header("Preference-Applied"), "count=exact");
    }
};

QTEST_GUILESS_MAIN(TestRestRead)
#include "tst_restread.moc"