#include "auth/jwt.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTest>
#include <QUuid>

#include <functional>

using namespace Qt::StringLiterals;

using Headers = QList<std::pair<QByteArray, QByteArray>>;

namespace {

const Headers representation{{"Prefer", "return=representation"}};

// Bodies are written "key=value ...": "$name" is a fixture's id, "$marker" a text unique to the
// test row, "$time" a second of the row's own; digits alone are numbers.
const char *const entryRow = "task_id=$privateTask started_at=$time ended_at=$time duration_seconds=0 "
                             "logged_by_email=$marker";
const char *const stamp = "created_at=2001-02-03T04:05:06Z";

// The row every write test starts from, per table: whose row a PATCH or DELETE aims at, what a POST
// writes and the harmless change a PATCH makes.
struct TableDefaults
{
    const char *target; // "<user>/<private|team|self>"
    const char *insert;
    const char *patch;
};

// clang-format off
const QHash<QString, TableDefaults> tableDefaults{
    {u"profiles"_s, {"owner/self", "display_name=$marker", "display_name=$marker"}},
    {u"projects"_s, {"owner/private", "name=$marker", "description=$marker"}},
    {u"tasks"_s, {"owner/private", "project_id=$privateProject title=$marker", "description=$marker"}},
    {u"time_entries"_s, {"owner/private", entryRow, "logged_by_email=$marker"}},
    {u"clients"_s, {"owner/private", "name=$marker", "notes=$marker"}},
    {u"teams"_s, {"owner/team", "name=$marker", "name=$marker"}},
    {u"team_members"_s, {"owner/team", "team_id=$team user_id=$extra email=eve@example.nl role=viewer", "role=editor"}},
    {u"invoice_lines"_s, {"owner/private",
     "invoice_id=$privateInvoice title=$marker quantity=1 unit_price=1 amount=1", "description=$marker"}},
    {u"invoice_entries"_s, {"owner/private", "invoice_id=$privateInvoice time_entry_id=$privateUnbilled", stamp}},
    {u"invoice_trips"_s, {"owner/private", "invoice_id=$privateInvoice trip_id=$spareTrip", stamp}},
    {u"trips"_s, {"owner/private", "started_at=$time purpose=$marker", "purpose=$marker"}},
    {u"unbilled_time_entries"_s, {"owner/private", entryRow, "logged_by_email=$marker"}},
};
// clang-format on

QJsonObject parseBody(const QString &fields)
{
    QJsonObject body;
    for (const QString &pair : fields.split(u' ', Qt::SkipEmptyParts)) {
        const QString key = pair.section(u'=', 0, 0);
        const QString value = pair.section(u'=', 1);
        bool number = false;
        const int n = value.toInt(&number);
        body.insert(key, number ? QJsonValue(n) : QJsonValue(value));
    }
    return body;
}

// "" is the table's default for the method, "+..." the default with these keys on top.
QJsonObject bodyFor(const QString &table, const QByteArray &method, QString fields)
{
    const TableDefaults d = tableDefaults.value(table);
    QJsonObject body;
    if (fields.isEmpty() || fields.startsWith(u'+')) {
        body = parseBody(QString::fromLatin1(method == "POST" ? d.insert : method == "PATCH" ? d.patch : ""));
        fields = fields.mid(1);
    }
    const QJsonObject extra = parseBody(fields);
    for (auto it = extra.begin(); it != extra.end(); ++it) {
        body.insert(it.key(), it.value());
    }
    return body;
}

// What a scratch row of each table is made of: "$who" is the row's owner, "*" the scope ("private",
// "team", ...) whose project, task or invoice it hangs under, "[team]" the team when that scope is "team".
// clang-format off
const QHash<QByteArray, const char *> scratchRows{
    {"projects", "user_id=$who name=scratch [team]"},
    {"invoices", "user_id=$who number=$time issued_at=2025-04-01 currency=EUR [team]"},
    {"trips", "user_id=$who started_at=$time"},
    {"tasks", "user_id=$who project_id=$*Project title=scratch"},
    {"time_entries", "user_id=$who task_id=$*Task project_id=$*Project started_at=$time ended_at=$time duration_seconds=0"},
    {"invoice_lines", "invoice_id=$*Invoice title=x quantity=1 unit_price=1 amount=1"},
    {"invoice_entries", "invoice_id=$*Invoice time_entry_id=$parent"},
    {"teams", "owner_id=$who name=scratch"},
};
// clang-format on

QString scopedFields(QString fields, const QString &who, const QString &scope)
{
    return fields.replace(u"[team]"_s, scope == u"team" ? u"team_id=$team"_s : QString())
        .replace(u'*', scope)
        .replace(u"$who"_s, u'$' + who);
}

QString scoped(const QByteArray &table, const QString &who, const QString &scope)
{
    return scopedFields(QString::fromLatin1(scratchRows.value(table)), who, scope);
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

class TestSecurity : public QObject
{
    Q_OBJECT

private:
    // A row a PATCH or DELETE aims at, made for one test and removed (or restored) after it.
    struct Target
    {
        QByteArray where;  // SQL condition on the stored table
        QByteArray filter; // the same condition as REST filters
        std::function<void()> undo;
    };

    TestBackend m_backend;
    QHash<QString, QByteArray> m_ids;   // fixture name → id
    QHash<QByteArray, QString> m_names; // id → fixture name, so that failures print names
    int m_clock = 0;
    int m_newUsers = 0;

    PgConnection &db() { return m_backend.database(); }

    QByteArray id(const QString &name) const
    {
        if (!m_ids.contains(name)) {
            qFatal("no fixture named %s", qPrintable(name));
        }
        return m_ids.value(name);
    }

    void remember(const QString &name, const QByteArray &value)
    {
        m_ids.insert(name, value);
        m_names.insert(value, name);
    }

    // Everyone's address is their name at example.nl.
    void addUser(const QString &name) { remember(name, m_backend.createUser(name + u"@example.nl"_s, name).toUtf8()); }

    QString newUser()
    {
        const QString name = u"new%1"_s.arg(++m_newUsers);
        addUser(name);
        return name;
    }

    QByteArray tokenOf(const QString &caller) const
    {
        if (caller == u"anon") {
            return {};
        }
        return caller == u"service" ? m_backend.serviceToken() : m_backend.tokenFor(QString::fromLatin1(id(caller)));
    }

    HttpResult send(const QString &caller, const QByteArray &method, const QByteArray &target,
                    const QJsonObject &body = {}, const Headers &headers = representation) const
    {
        const QByteArray payload = method == "GET" || method == "DELETE" ? QByteArray() : compact(body);
        return m_backend.request(method, "/rest/v1/" + target, tokenOf(caller), payload, headers);
    }

    HttpResult call(const QString &caller, const QByteArray &procedure, const QJsonObject &arguments = {}) const
    {
        return send(caller, "POST", "rpc/" + procedure, arguments, {});
    }

    HttpResult invite(const QString &caller, const QByteArray &team, const QString &email, const QJsonValue &role)
    {
        return call(
            caller, "invite_team_member_by_email",
            {{u"team_id_param"_s, QString::fromLatin1(team)}, {u"invitee_email"_s, email}, {u"member_role"_s, role}});
    }

    HttpResult answer(const QString &invitee, const QByteArray &procedure, const QByteArray &team)
    {
        return call(invitee, procedure, {{u"team_id_param"_s, QString::fromLatin1(team)}});
    }

    static QString status(const HttpResult &result) { return result.json().object().value(u"status"_s).toString(); }

    // A team of `owner`, joined as in the application: invitations its invitees accept.
    QByteArray makeTeam(const QString &owner, const QString &name, const QList<std::pair<QString, QString>> &members)
    {
        const QByteArray team =
            send(owner, "POST", "teams", {{u"name"_s, name}}).json()[0][u"id"_s].toString().toUtf8();
        for (const auto &[member, role] : members) {
            if (status(invite(owner, team, member + u"@example.nl"_s, role)) != u"invited" ||
                status(answer(member, "accept_team_invitation", team)) != u"accepted") {
                qFatal("could not make %s a member of %s", qPrintable(member), qPrintable(name));
            }
        }
        return team;
    }

    // A row written directly, "key=value ..." as for request bodies.
    QByteArray add(const QByteArray &table, const QString &fields)
    {
        const QJsonObject values = resolve(parseBody(fields));
        QByteArrayList placeholders;
        PgParams params;
        for (const QJsonValue &value : values) {
            params.append(value.toVariant().toString().toUtf8());
            placeholders.append('$' + QByteArray::number(params.size()));
        }
        return db()
            .exec("INSERT INTO public." + table + " (" + values.keys().join(u", "_s).toUtf8() + ") VALUES (" +
                      placeholders.join(", ") + ") RETURNING id",
                  params)
            .value(0, 0);
    }

    int count(const QByteArray &sql, const PgParams &params = {}) { return db().exec(sql, params).value(0, 0).toInt(); }

    QJsonObject resolve(const QJsonObject &body)
    {
        QJsonObject values;
        // Time entries are unique per task and period; every row a test writes gets its own second.
        const QByteArray time =
            QDateTime(QDate(2031, 1, 1), QTime(0, 0), Qt::UTC).addSecs(++m_clock).toString(Qt::ISODate).toUtf8();
        for (auto it = body.begin(); it != body.end(); ++it) {
            const QString text = it.value().toString();
            if (!it.value().isString() || !text.startsWith(u'$')) {
                values.insert(it.key(), it.value());
            } else if (text == u"$marker") {
                values.insert(it.key(), QString::fromUtf8(QTest::currentDataTag()));
            } else {
                values.insert(it.key(), QString::fromLatin1(text == u"$time" ? time : id(text.mid(1))));
            }
        }
        return values;
    }

    // "col = $n AND ..." over the values, for counting the rows a request should have written.
    static std::pair<QByteArray, PgParams> matching(const QJsonObject &values)
    {
        QByteArrayList conditions;
        PgParams params;
        for (auto it = values.begin(); it != values.end(); ++it) {
            params.append(it.value().toVariant().toString().toUtf8());
            conditions.append(it.key().toUtf8() + " = $" + QByteArray::number(params.size()));
        }
        return {conditions.isEmpty() ? QByteArray("true") : conditions.join(" AND "), params};
    }

    Target makeTarget(const QByteArray &table, const QString &whose)
    {
        const QString who = whose.section(u'/', 0, 0);
        const QString scope = whose.section(u'/', 1, 1);
        Target target;

        if (scope == u"self" || table == "team_members") {
            // Rows that belong to a person rather than being made: restore exactly what was there.
            const QByteArray user = id(scope == u"self" ? who : u"extra"_s);
            if (table == "profiles") {
                target.where = "id = '" + user + "'";
                target.filter = "id=eq." + user;
            } else {
                target.where = "team_id = '" + id(u"team"_s) + "' AND user_id = '" + user + "'";
                target.filter = "team_id=eq." + id(u"team"_s) + "&user_id=eq." + user;
            }
            if (scope != u"self") {
                db().exec("INSERT INTO public.team_members (team_id, user_id, email, role)"
                          " VALUES ($1, $2, 'eve@example.nl', 'viewer')",
                          {id(u"team"_s), user});
            }
            const QByteArray saved =
                db().exec("SELECT to_jsonb(t)::text FROM public." + table + " t WHERE " + target.where).value(0, 0);
            target.undo = [this, table, where = target.where, saved, scope] {
                db().exec("DELETE FROM public." + table + " WHERE " + where);
                if (scope == u"self") {
                    db().exec("INSERT INTO public." + table + " SELECT * FROM jsonb_populate_record(NULL::public." +
                                  table + ", $1::jsonb)",
                              {saved});
                }
            };
            return target;
        }

        // A link is made to a row of its own, and goes when that row is removed.
        const QByteArray parentTable = table == "invoice_entries" ? "time_entries"
                                       : table == "invoice_trips" ? "trips"
                                                                  : "";
        const QByteArray parent =
            parentTable.isEmpty() ? QByteArray() : add(parentTable, scoped(parentTable, who, scope));
        const QByteArray row = add(table, scoped(table, who, scope).replace(u"$parent"_s, QString::fromLatin1(parent)));
        if (table == "teams") {
            // Same members as the fixture's team, so that roles and not membership decide.
            db().exec("INSERT INTO public.team_members (team_id, user_id, email, role, accepted_at)"
                      " VALUES ($1, $2, 'e', 'editor', now()), ($1, $3, 'v', 'viewer', now())",
                      {row, id(u"editor"_s), id(u"viewer"_s)});
        }
        target.where = "id = '" + row + "'";
        target.filter = "id=eq." + row;
        target.undo = [this, table, row, parent, parentTable] {
            db().exec("DELETE FROM public." + table + " WHERE id = $1", {row});
            if (!parent.isEmpty()) {
                db().exec("DELETE FROM public." + parentTable + " WHERE id = $1", {parent});
            }
        };
        return target;
    }

    QStringList names(const QStringList &ids) const
    {
        QStringList found;
        for (const QString &value : ids) {
            found.append(m_names.value(value.toUtf8(), value));
        }
        found.sort();
        return found;
    }

    void seed()
    {
        for (const QString &name :
             {u"owner"_s, u"stranger"_s, u"editor"_s, u"viewer"_s, u"extra"_s, u"olga"_s, u"eddy"_s, u"vera"_s}) {
            addUser(name);
        }
        remember(u"team"_s,
                 makeTeam(u"owner"_s, u"Studio"_s, {{u"editor"_s, u"editor"_s}, {u"viewer"_s, u"viewer"_s}}));
        remember(u"strangerTeam"_s, makeTeam(u"stranger"_s, u"Solo"_s, {}));
        // A second team for the invitation rules, apart from the one the matrix reads.
        remember(u"inviteTeam"_s,
                 makeTeam(u"olga"_s, u"Invites"_s, {{u"eddy"_s, u"editor"_s}, {u"vera"_s, u"viewer"_s}}));

        // The owner's private and team rows, and the stranger's, each billed on an invoice of its kind.
        for (const QString &prefix : {u"private"_s, u"team"_s, u"stranger"_s}) {
            const QString who = prefix == u"stranger" ? u"stranger"_s : u"owner"_s;
            auto named = [&](const QString &suffix, const QByteArray &table, const QString &fields) {
                remember(prefix + suffix, add(table, scopedFields(fields, who, prefix)));
            };
            named(u"Project"_s, "projects", u"user_id=$who name=Project [team]"_s);
            named(u"Task"_s, "tasks", u"user_id=$who project_id=$*Project title=Task"_s);
            named(u"Billed"_s, "time_entries", QString::fromLatin1(scratchRows.value("time_entries")));
            named(u"Unbilled"_s, "time_entries", QString::fromLatin1(scratchRows.value("time_entries")));
            named(u"Invoice"_s, "invoices", u"user_id=$who [team] number=F-* issued_at=2025-03-01 currency=EUR"_s);
            named(u"Trip"_s, "trips", u"user_id=$who started_at=$time"_s);
            add("invoice_entries", scopedFields(u"invoice_id=$*Invoice time_entry_id=$*Billed"_s, who, prefix));
            add("invoice_trips", scopedFields(u"invoice_id=$*Invoice trip_id=$*Trip"_s, who, prefix));
        }
        remember(u"spareTrip"_s, add("trips", u"user_id=$owner started_at=$time"_s));
        for (const QString &user : {u"editor"_s, u"viewer"_s}) {
            remember(user + u"Trip", add("trips", u"user_id=$%1 started_at=$time"_s.arg(user)));
            remember(user + u"Invoice",
                     add("invoices", u"user_id=$%1 number=P-1 issued_at=2025-03-01 currency=EUR"_s.arg(user)));
        }
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        seed();
    }

    void readMatrix_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QStringList>("expected");

        // What each caller reads, as fixture prefixes times suffixes: "private team" and "Task" are
        // privateTask and teamTask.
        struct Visible
        {
            const char *table, *key, *suffixes, *owner, *stranger, *editor, *viewer;
        };
        // clang-format off
        const Visible visible[]{
            {"profiles", "id", "", "owner editor viewer", "stranger", "owner editor viewer", "owner editor viewer"},
            {"projects", "id", "Project", "private team", "stranger", "team", "team"},
            {"tasks", "id", "Task", "private team", "stranger", "team", "team"},
            {"teams", "id", "", "team", "strangerTeam", "team", "team"},
            {"team_members", "user_id", "", "owner editor viewer", "stranger", "owner editor viewer",
             "owner editor viewer"},
            {"invoices", "id", "Invoice", "private team", "stranger", "team editor", "team viewer"},
            {"invoice_entries", "time_entry_id", "Billed", "private team", "stranger", "team", "team"},
            // Members see the team invoice's trip links, though not the owner's trips themselves.
            {"invoice_trips", "trip_id", "Trip", "private team", "stranger", "team", "team"},
            {"trips", "id", "Trip", "private team spare", "stranger", "editor", "viewer"},
            // Only one's own time, even where a team's time is readable.
            {"unbilled_time_entries", "id", "Unbilled", "private team", "stranger", "", ""},
        };
        // clang-format on
        for (const Visible &v : visible) {
            const QStringList suffixes = QString::fromLatin1(v.suffixes).split(u' ');
            auto expand = [&](const char *prefixes) {
                QStringList names;
                for (const QString &prefix : QString::fromLatin1(prefixes).split(u' ', Qt::SkipEmptyParts)) {
                    for (const QString &suffix : suffixes) {
                        names.append(prefix + suffix);
                    }
                }
                names.sort();
                return names;
            };
            // Anonymous and service callers are the tokens test's: they pass or fail before any policy.
            for (const auto &[caller, prefixes] : {std::pair{"owner", v.owner}, {"stranger", v.stranger},
                                                   {"editor", v.editor}, {"viewer", v.viewer}}) {
                QTest::addRow("%s: %s", v.table, caller) << QString::fromLatin1(v.table) << QString::fromLatin1(v.key)
                                                         << QString::fromLatin1(caller) << expand(prefixes);
            }
        }
    }

    void readMatrix()
    {
        QFETCH(QString, table);
        QFETCH(QString, key);
        QFETCH(QString, caller);
        QFETCH(QStringList, expected);

        const HttpResult result = send(caller, "GET", table.toUtf8() + "?select=" + key.toUtf8(), {}, {});
        QCOMPARE(result.status, 200);
        QCOMPARE(names(jsonColumn(result.json().array(), key)), expected);
    }

    void writeMatrix_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("body");
        // "done"; "hidden": answered 200, but the row is out of the caller's reach; else the status.
        QTest::addColumn<QString>("expected");

        auto row = [](const QString &table, const QString &name, const QByteArray &method, const QString &target,
                      const QString &body, const QString &expected) {
            QTest::addRow("%s: %s", qPrintable(table), qPrintable(name))
                << table << name.section(u' ', 0, 0) << method << target << body << expected;
        };
        auto verb = [](const QByteArray &method) { return method == "PATCH" ? u"change"_s : u"delete"_s; };
        auto can = [](bool effect) { return effect ? u"can"_s : u"cannot"_s; };

        // Tables whose rows are owned by a user and shared through a team: projects, clients,
        // templates and invoices directly; tasks, time and invoice contents through their parent.
        const std::tuple<QString, QString, bool> reach[]{
            {u"owner"_s, u"private"_s, true},     {u"owner"_s, u"team"_s, true},     {u"editor"_s, u"team"_s, true},
            {u"editor"_s, u"private"_s, false},   {u"viewer"_s, u"team"_s, false},   {u"viewer"_s, u"private"_s, false},
            {u"stranger"_s, u"private"_s, false}, {u"stranger"_s, u"team"_s, false}, {u"service"_s, u"private"_s, true},
        };
        // One table per helper that decides: editable teams, writable projects, writable invoices.
        for (const char *table : {"projects", "tasks", "invoice_lines"}) {
            for (const QByteArray method : {"PATCH", "DELETE"}) {
                for (const auto &[caller, scope, effect] : reach) {
                    row(QString::fromLatin1(table),
                        u"%1 %2 %3 the owner's %4 row"_s.arg(caller, can(effect), verb(method), scope), method,
                        u"owner/"_s + scope, {}, effect ? u"done"_s : u"hidden"_s);
                }
            }
        }

        // Only the owner governs the team itself, and nobody but the traveller sees a trip.
        const QString onlyOwner[]{u"owner"_s, u"editor"_s, u"viewer"_s, u"stranger"_s};
        for (const QString &caller : onlyOwner) {
            const bool effect = caller == u"owner";
            for (const QString &table : {u"teams"_s, u"team_members"_s, u"trips"_s}) {
                for (const QByteArray method : {"PATCH", "DELETE"}) {
                    row(table, u"%1 %2 %3 the owner's row"_s.arg(caller, can(effect), verb(method)), method,
                        QString::fromLatin1(tableDefaults.value(table).target), {}, effect ? u"done"_s : u"hidden"_s);
                }
            }
            row(u"profiles"_s, u"%1 %2 change the owner's profile"_s.arg(caller, can(effect)), "PATCH", u"owner/self"_s,
                {}, effect ? u"done"_s : u"hidden"_s);
            // Profiles go with the account, never through the interface.
            row(u"profiles"_s, u"%1 cannot delete the owner's profile"_s.arg(caller), "DELETE", u"owner/self"_s, {},
                u"hidden"_s);
        }

        // The rows users own directly share one set of rules for inserting.
        // clang-format off
        const std::array<const char *, 3> direct[]{
            {"editor creates a team row", "+team_id=$team", "done"},
            {"viewer cannot create a team row", "+team_id=$team", "403"},
            {"viewer creates a private row", "", "done"},
            {"stranger cannot create a row in the owner's name", "+user_id=$owner", "403"},
            {"owner cannot create a row in a team they are not in", "+team_id=$strangerTeam", "403"},
        };
        // clang-format on
        for (const char *table : {"projects", "clients"}) {
            for (const auto &[name, body, expected] : direct) {
                row(QString::fromLatin1(table), QString::fromUtf8(name), "POST", {}, QString::fromLatin1(body),
                    QString::fromLatin1(expected));
            }
        }

        // The caller is the first word of the name. WITH CHECK: a row may be changed, but not into
        // one the caller could not have written.
        struct Rule
        {
            const char *table, *name, *method, *body, *expected;
        };
        // clang-format off
        const Rule rules[]{
            {"projects", "owner cannot hand a project to someone else", "PATCH owner/private", "user_id=$stranger", "403"},
            // The editor still sees the row afterwards, so only the policy's owner check refuses this.
            {"projects", "editor cannot take over a team project", "PATCH owner/team", "user_id=$editor", "403"},
            {"projects", "viewer cannot move a project into the team", "PATCH viewer/private", "team_id=$team", "403"},
            {"projects", "editor can move a project into the team", "PATCH editor/private", "team_id=$team", "done"},
            {"tasks", "editor cannot move a team task into the owner's private project", "PATCH owner/team",
             "project_id=$privateProject", "403"},
            {"teams", "owner cannot hand the team to someone else", "PATCH owner/team", "owner_id=$stranger", "403"},
            {"invoice_entries", "editor cannot point a link at time they cannot see", "PATCH owner/team",
             "time_entry_id=$privateUnbilled", "403"},

            {"tasks", "editor adds a task to a team project", "POST", "+project_id=$teamProject", "done"},
            {"tasks", "viewer cannot add a task to a team project", "POST", "+project_id=$teamProject", "403"},
            {"tasks", "editor cannot add a task to the owner's private project", "POST", "", "403"},

            {"time_entries", "owner logs time", "POST", "", "done"},
            {"time_entries", "editor logs time for the owner", "POST",
             "+task_id=$teamTask user_id=$owner logged_by_user_id=$editor", "done"},
            // Never a third person's time: rows planted in another account could not be removed by its owner.
            {"time_entries", "editor cannot log time for the viewer", "POST",
             "+task_id=$teamTask user_id=$viewer logged_by_user_id=$editor", "403"},
            {"time_entries", "editor cannot log time in the viewer's name", "POST",
             "+task_id=$teamTask logged_by_user_id=$viewer", "403"},
            {"time_entries", "viewer cannot log time on a team task", "POST", "+task_id=$teamTask", "403"},
            {"time_entries", "editor cannot log time on the owner's private task", "POST", "", "403"},
            // The project comes from the task, so naming one's own project does not open someone else's task.
            {"time_entries", "stranger cannot steer the check with their own project", "POST",
             "+project_id=$strangerProject", "403"},

            {"invoice_lines", "editor adds a line to the team invoice", "POST", "+invoice_id=$teamInvoice", "done"},
            {"invoice_lines", "viewer cannot add a line to the team invoice", "POST", "+invoice_id=$teamInvoice", "403"},

            {"invoice_entries", "owner bills own time", "POST", "", "done"},
            {"invoice_entries", "editor bills team time on an invoice of their own", "POST",
             "invoice_id=$editorInvoice time_entry_id=$teamUnbilled", "done"},
            // Reading team time is not the right to bill it: the owner could neither see nor remove the link.
            {"invoice_entries", "viewer cannot bill team time on an invoice of their own", "POST",
             "invoice_id=$viewerInvoice time_entry_id=$teamUnbilled", "403"},
            {"invoice_entries", "editor cannot bill time they cannot see", "POST", "+invoice_id=$teamInvoice", "403"},
            {"invoice_entries", "owner cannot bill time already on a live invoice", "POST",
             "invoice_id=$teamInvoice time_entry_id=$privateBilled", "409"},

            {"invoice_trips", "editor bills own trip on the team invoice", "POST",
             "invoice_id=$teamInvoice trip_id=$editorTrip", "done"},
            {"invoice_trips", "editor cannot bill the owner's trip", "POST", "+invoice_id=$teamInvoice", "403"},

            {"teams", "stranger cannot create a team in the owner's name", "POST", "+owner_id=$owner", "403"},
            {"trips", "stranger cannot record a trip in the owner's name", "POST", "+user_id=$owner", "403"},

            // Members come only through an invitation that its invitee accepts: nobody writes the row.
            {"team_members", "owner cannot add a member directly", "POST", "+accepted_at=$time", "403"},
            {"team_members", "owner cannot accept for the invitee", "PATCH owner/team", "accepted_at=$time", "403"},
            {"team_members", "viewer cannot promote themselves", "PATCH viewer/self", "role=owner", "hidden"},
            {"team_members", "viewer can leave the team", "DELETE viewer/self", "", "done"},
            {"team_members", "editor cannot remove the owner", "DELETE owner/self", "", "hidden"},

            {"profiles", "stranger cannot create the owner's profile", "POST", "id=$owner display_name=$marker", "403"},

            // The view is for reading only, even of one's own time.
            {"unbilled_time_entries", "owner cannot insert through the view", "POST", "", "403"},
            {"unbilled_time_entries", "owner cannot change through the view", "PATCH owner/private", "", "403"},
        };
        // clang-format on
        for (const Rule &r : rules) {
            const QString method = QString::fromLatin1(r.method);
            row(QString::fromLatin1(r.table), QString::fromUtf8(r.name), method.section(u' ', 0, 0).toLatin1(),
                method.section(u' ', 1), QString::fromLatin1(r.body), QString::fromLatin1(r.expected));
        }

        // Anonymous callers are turned away before any policy is asked.
        for (const QByteArray method : {"POST", "PATCH", "DELETE"}) {
            row(u"projects"_s, u"anon cannot "_s + QString::fromLatin1(method), method,
                method == "POST" ? QString() : u"owner/private"_s, {}, u"401"_s);
        }
    }

    void writeMatrix()
    {
        QFETCH(QString, table);
        QFETCH(QString, caller);
        QFETCH(QByteArray, method);
        QFETCH(QString, target);
        QFETCH(QString, body);
        QFETCH(QString, expected);
        const bool effect = expected == u"done";
        const int status = effect || expected == u"hidden" ? (method == "POST" ? 201 : 200) : expected.toInt();

        // The view is written through the table it shows; what a refused write did not change is checked there.
        const QByteArray stored = table == u"unbilled_time_entries" ? "time_entries" : table.toUtf8();
        const QJsonObject values = method == "DELETE" ? QJsonObject() : resolve(bodyFor(table, method, body));
        const auto [condition, params] = matching(values);
        Target row;
        if (method != "POST") {
            row = makeTarget(stored, target);
        }
        const auto cleanUp = qScopeGuard([&] {
            if (row.undo) {
                row.undo();
            } else if (!values.isEmpty()) {
                db().exec("DELETE FROM public." + stored + " WHERE " + condition, params);
            }
        });
        const QByteArray written = method == "POST"    ? condition
                                   : method == "PATCH" ? row.where + " AND " + condition
                                                       : row.where;
        if (method != "POST") {
            QCOMPARE(count("SELECT count(*) FROM public." + stored + " WHERE " + row.where), 1);
        }
        // Before the request the body's values are not yet written (or, for a DELETE, the row is there).
        const QByteArray countWritten = "SELECT count(*) FROM public." + stored + " WHERE " + written;
        QCOMPARE(count(countWritten, params), method == "DELETE" ? 1 : 0);

        const HttpResult result =
            send(caller, method, table.toUtf8() + (method == "POST" ? QByteArray() : '?' + row.filter), values);
        QCOMPARE(result.status, status);
        if (status >= 400) {
            QCOMPARE(result.code(), status == 409 ? u"23505"_s : u"42501"_s);
            QCOMPARE(!result.header("WWW-Authenticate").isEmpty(), status == 401);
        } else {
            // A row the caller may not touch is not an error, just not among the rows written.
            QCOMPARE(result.json().array().size(), effect ? 1 : 0);
        }
        QCOMPARE(count(countWritten, params), (method == "DELETE") != effect ? 1 : 0);
    }

    void tokens_data()
    {
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<QByteArray>("scheme");
        QTest::addColumn<QString>("code"); // empty when the token is accepted
        QTest::addColumn<bool>("readsAll");

        const QString owner = QString::fromLatin1(id(u"owner"_s));
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        const QJsonObject claims{{u"sub"_s, owner},
                                 {u"role"_s, u"authenticated"_s},
                                 {u"aud"_s, u"authenticated"_s},
                                 {u"iat"_s, now},
                                 {u"exp"_s, now + 3600}};
        auto with = [&](const QString &key, const QJsonValue &value) {
            QJsonObject changed = claims;
            changed.insert(key, value);
            return changed;
        };
        QJsonObject noRole = claims;
        noRole.remove(u"role"_s);
        const QByteArray good = m_backend.tokenFor(owner);
        const QList<QByteArray> parts = good.split('.');
        QFile secretFile(m_backend.dataDir() + u"/jwt-secret"_s);
        secretFile.open(QIODevice::ReadOnly);
        const QByteArray secret = secretFile.readAll().trimmed();
        const QString fresh = QUuid::createUuid().toString(QUuid::WithoutBraces);
        auto row = [](const char *name, const QByteArray &token, const char *code, const QByteArray &scheme = "Bearer",
                      bool readsAll = false) {
            QTest::newRow(name) << token << scheme << QString::fromLatin1(code) << readsAll;
        };

        row("signed for the owner", good, "");
        row("signed with another secret", Jwt::sign(claims, "a-secret-that-is-not-the-servers-but-long-enough"),
            "PGRST301");
        row("signature of another payload",
            parts[0] + '.' + Jwt::base64Url(compact(with(u"role"_s, u"service_role"_s))) + '.' + parts[2], "PGRST301");
        row("unsigned", Jwt::base64Url(compact({{u"alg"_s, u"none"_s}, {u"typ"_s, u"JWT"_s}})) + '.' + parts[1] + '.',
            "PGRST301");
        row("expired", m_backend.tokenFor(owner, u"authenticated"_s, -60), "PGRST303");
        row("expiring this second", m_backend.tokenFor(owner, u"authenticated"_s, 0), "PGRST303");
        row("two parts", parts[0] + '.' + parts[1], "PGRST301");
        row("role of the database owner", m_backend.tokenFor(owner, u"morvane"_s), "PGRST301");
        row("not a bearer token", good, "PGRST301", "Basic");
        row("service role minted with the secret",
            Jwt::sign({{u"role"_s, u"service_role"_s}, {u"exp"_s, now + 600}}, secret), "", "Bearer", true);
        row("anon key as bearer", m_backend.anonKey(), "42501");
        row("signed without a role acts as anon", Jwt::sign(noRole, secret), "42501");
        row("signed without a user speaks for nobody",
            Jwt::sign({{u"role"_s, u"authenticated"_s}, {u"exp"_s, now + 600}}, secret), "PGRST301");
        row("signed for an account that does not exist", Jwt::sign(with(u"sub"_s, fresh), secret), "PGRST301");
        row("signed for a session that ended", Jwt::sign(with(u"session_id"_s, fresh), secret), "PGRST301");
    }

    void tokens()
    {
        QFETCH(QByteArray, token);
        QFETCH(QByteArray, scheme);
        QFETCH(QString, code);
        QFETCH(bool, readsAll);

        const Headers authorization = token.isEmpty() ? Headers{} : Headers{{"Authorization", scheme + ' ' + token}};
        const HttpResult read = m_backend.request("GET", "/rest/v1/projects?select=id", {}, {}, authorization);
        QCOMPARE(read.status, code.isEmpty() ? 200 : 401);
        QCOMPARE(read.code(), code);
        QCOMPARE(read.header("WWW-Authenticate").isEmpty(), code.isEmpty());
        if (!code.isEmpty()) {
            return;
        }
        const QStringList seen = names(jsonColumn(read.json().array(), u"id"_s));
        if (readsAll) { // everyone's projects, the stranger's too
            QVERIFY(seen.contains(u"strangerProject"_s));
            QCOMPARE(int(seen.size()), count("SELECT count(*) FROM projects"));
        } else {
            QCOMPARE(seen, QStringList({u"privateProject"_s, u"teamProject"_s}));
        }
    }

    void invitations_data()
    {
        QTest::addColumn<QString>("caller");
        QTest::addColumn<bool>("account"); // whether the address has an account
        QTest::addColumn<QString>("role");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");

        auto row = [](const char *name, const char *caller, bool account, const char *role, int status,
                      const char *code) {
            QTest::newRow(name) << QString::fromLatin1(caller) << account << QString::fromLatin1(role) << status
                                << QString::fromLatin1(code);
        };
        row("owner invites an owner", "olga", true, "owner", 200, "");
        row("editor cannot make an owner", "eddy", true, "owner", 403, "42501");
        // Rights come first, so an outsider cannot probe which addresses have accounts.
        row("outsider learns nothing about an address", "stranger", false, "viewer", 403, "42501");
        row("viewer with an unknown role is still refused for rights", "vera", true, "admin", 403, "42501");
        row("unknown role", "olga", true, "admin", 400, "22023");
        row("anonymous caller", "anon", true, "viewer", 401, "42501");
    }

    void invitations()
    {
        QFETCH(QString, caller);
        QFETCH(bool, account);
        QFETCH(QString, role);
        QFETCH(int, status);

        const QByteArray team = id(u"inviteTeam"_s);
        const QString invitee = account ? newUser() : u"nobody-%1"_s.arg(++m_newUsers);
        const int membersBefore = count("SELECT count(*) FROM team_members WHERE team_id = $1", {team});

        const HttpResult result = invite(caller, team, invitee + u"@example.nl"_s, role);
        QCOMPARE(result.status, status);
        QTEST(result.code(), "code");
        QCOMPARE(!result.header("WWW-Authenticate").isEmpty(), status == 401);
        const bool invited = status == 200;
        if (invited) {
            QCOMPARE(TestSecurity::status(result), u"invited"_s);
            QCOMPARE(result.json().object().value(u"user_id"_s).toString().toUtf8(), id(invitee));
            QCOMPARE(db().exec("SELECT role FROM team_members WHERE team_id = $1 AND user_id = $2"
                               " AND accepted_at IS NULL",
                               {team, id(invitee)})
                         .value(0, 0),
                     role.toUtf8());
        }
        QCOMPARE(count("SELECT count(*) FROM team_members WHERE team_id = $1", {team}), membersBefore + int(invited));
    }

    void anInvitationGrantsNothingUntilAccepted()
    {
        const QString invitee = newUser();
        const QByteArray team = makeTeam(u"olga"_s, u"Pending"_s, {});
        const QByteArray project = add("projects", u"user_id=$olga name=Work team_id="_s + QString::fromLatin1(team));
        QCOMPARE(invite(u"olga"_s, team, invitee + u"@example.nl"_s, u"editor"_s).status, 200);

        auto rows = [&](const QString &caller, const QByteArray &target) {
            return send(caller, "GET", target, {}, {}).json().array().size();
        };
        auto sees = [&](bool member) {
            QCOMPARE(rows(invitee, "teams?id=eq." + team), member ? 1 : 0);
            QCOMPARE(rows(invitee, "projects?id=eq." + project), member ? 1 : 0);
            QCOMPARE(rows(u"olga"_s, "profiles?id=eq." + id(invitee)), member ? 1 : 0);
            QCOMPARE(
                send(invitee, "PATCH", "projects?id=eq." + project, {{u"description"_s, u"x"_s}}).json().array().size(),
                member ? 1 : 0);
        };
        sees(false);
        const QJsonArray waiting = call(invitee, "my_team_invitations").json().array();
        QCOMPARE(waiting.size(), 1);
        QCOMPARE(waiting.first()[u"team_name"_s].toString(), u"Pending"_s);
        QCOMPARE(waiting.first()[u"invited_by_email"_s].toString(), u"olga@example.nl"_s);

        // Nobody answers for the invitee, and the invitation is the invitee's to accept.
        QCOMPARE(answer(u"stranger"_s, "accept_team_invitation", team).status, 400);
        QCOMPARE(answer(u"olga"_s, "decline_team_invitation", team).status, 400);
        QCOMPARE(status(answer(invitee, "accept_team_invitation", team)), u"accepted"_s);
        sees(true);
        QCOMPARE(status(answer(invitee, "accept_team_invitation", team)), u"already_member"_s);
        QCOMPARE(answer(invitee, "decline_team_invitation", team).status, 400);

        // Declining removes the invitation and nothing else.
        const QString other = newUser();
        QCOMPARE(invite(u"olga"_s, team, other + u"@example.nl"_s, u"viewer"_s).status, 200);
        QCOMPARE(status(answer(other, "decline_team_invitation", team)), u"declined"_s);
        QCOMPARE(count("SELECT count(*) FROM team_members WHERE team_id = $1 AND user_id = $2", {team, id(other)}), 0);
        QCOMPARE(call(other, "my_team_invitations").json().array().size(), 0);
    }

    void invitationsAreLimitedPerInviter()
    {
        const QString inviter = newUser();
        const QByteArray team = makeTeam(inviter, u"Busy"_s, {});
        // Every answer counts, also "no account": the answers tell which addresses have one.
        for (int i = 0; i < 30; ++i) {
            QCOMPARE(invite(inviter, team, u"probe-%1@example.nl"_s.arg(i), u"viewer"_s).status, 200);
        }
        const HttpResult limited = invite(inviter, team, u"probe-31@example.nl"_s, u"viewer"_s);
        QCOMPARE(limited.status, 400);
        QVERIFY(limited.json().object()[u"message"_s].toString().contains(u"invitation_rate_limit"_s));
        // Another inviter is not held back by this one.
        QCOMPARE(invite(u"olga"_s, id(u"inviteTeam"_s), u"probe-31@example.nl"_s, u"viewer"_s).status, 200);
    }

    void invoiceNumbersPerUser()
    {
        const QString year = QString::number(QDateTime::currentDateTimeUtc().date().year());
        // Without a user there is no counter to count with.
        QCOMPARE(call(u"service"_s, "next_invoice_number").status, 403);

        // "typed": the owner types a number in by hand; it is skipped, not handed out twice.
        const std::pair<QString, int> steps[]{{u"owner"_s, 1},    {u"stranger"_s, 1}, {u"owner"_s, 2},
                                              {u"stranger"_s, 2}, {u"typed"_s, 3},    {u"owner"_s, 4},
                                              {u"stranger"_s, 3}};
        auto number = [&](int n) { return u"%1-%2"_s.arg(year).arg(n, 4, 10, QLatin1Char('0')); };
        for (const auto &[caller, n] : steps) {
            if (caller == u"typed") {
                QCOMPARE(send(u"owner"_s, "POST", "invoices",
                              {{u"number"_s, number(n)}, {u"issued_at"_s, u"2025-05-01"_s}, {u"currency"_s, u"EUR"_s}})
                             .status,
                         201);
                continue;
            }
            const HttpResult result = call(caller, "next_invoice_number");
            QCOMPARE(result.status, 200);
            QCOMPARE(QString::fromUtf8(result.body), u'"' + number(n) + u'"');
        }
        // Deleting an invoice does not give its number back.
        db().exec("DELETE FROM invoices WHERE user_id = $1 AND number = $2", {id(u"owner"_s), number(3).toUtf8()});
        QCOMPARE(QString::fromUtf8(call(u"owner"_s, "next_invoice_number").body), u'"' + number(5) + u'"');
    }

    void voidingNeedsTheRightToChange_data()
    {
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QString>("invoice");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("viewer of the team invoice")
            << u"viewer"_s << u"teamInvoice"_s << 403 << u"42501"_s << u"invoice_not_permitted"_s;
        QTest::newRow("stranger") << u"stranger"_s << u"privateInvoice"_s << 400 << u"P0001"_s
                                  << u"invoice_not_found"_s;
    }

    void voidingNeedsTheRightToChange()
    {
        QFETCH(QString, caller);
        QFETCH(QString, invoice);
        QFETCH(QString, message);

        const QByteArray invoiceId = id(invoice);
        const QByteArray state = "SELECT (SELECT to_jsonb(i) FROM invoices i WHERE id = $1)::text,"
                                 " (SELECT count(*) FROM invoice_entries WHERE invoice_id = $1 AND live)";
        const PgResult before = db().exec(state, {invoiceId});
        QCOMPARE(before.value(0, 1), "1");
        const HttpResult result = call(caller, "void_invoice", {{u"p_invoice_id"_s, QString::fromLatin1(invoiceId)}});
        QTEST(result.status, "status");
        QTEST(result.code(), "code");
        QVERIFY(result.json().object().value(u"message"_s).toString().contains(message));
        const PgResult after = db().exec(state, {invoiceId});
        QCOMPARE(after.value(0, 0), before.value(0, 0));
        QCOMPARE(after.value(0, 1), before.value(0, 1));
    }

    // That voiding releases the invoice's time and that a void invoice cannot go back is tst_invoices'.
    void aVoidInvoiceStaysVoid()
    {
        const QByteArray client = add("clients", u"user_id=$owner name=Gone"_s);
        const QByteArray invoice =
            add("invoices", scoped("invoices", u"owner"_s, u"team"_s) + u" client_id="_s + QString::fromLatin1(client));
        const auto cleanUp = qScopeGuard([&] {
            db().exec("DELETE FROM invoices WHERE id = $1", {invoice});
            db().exec("DELETE FROM clients WHERE id = $1", {client});
        });
        auto state = [&] { return db().exec("SELECT status FROM invoices WHERE id = $1", {invoice}).value(0, 0); };

        // An editor of the team may void the team's invoice; voiding again changes nothing.
        const QJsonObject voiding{{u"p_invoice_id"_s, QString::fromLatin1(invoice)}};
        QCOMPARE(call(u"editor"_s, "void_invoice", voiding).status, 204);
        QCOMPARE(state(), "void");
        QCOMPARE(call(u"owner"_s, "void_invoice", voiding).status, 204);

        // A void invoice that names a client does not stop the client from being deleted.
        QCOMPARE(send(u"owner"_s, "DELETE", "clients?id=eq." + client).json().array().size(), 1);
        QCOMPARE(count("SELECT count(*) FROM invoices WHERE id = $1 AND status = 'void' AND client_id IS NULL",
                       {invoice}),
                 1);
    }
};

QTEST_GUILESS_MAIN(TestSecurity)
#include "tst_security.moc"