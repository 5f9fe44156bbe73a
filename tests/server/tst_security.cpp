#include "auth/jwt.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTest>
#include <QUuid>

#include <functional>

using namespace Qt::StringLiterals;

using Headers = QList<std::pair<QByteArray, QByteArray>>;
using Columns = QList<std::pair<QByteArray, std::optional<QByteArray>>>;

namespace {

const Headers representation{{"Prefer", "return=representation"}};

// The row every write test starts from, per table: whose row, and the harmless change a PATCH makes.
struct TableDefaults
{
    QString table;
    QString target; // "<user>/<private|team|self>"
    QJsonObject insert;
    QJsonObject patch;
};

const QList<TableDefaults> &tableDefaults()
{
    static const QJsonObject stamp{{u"created_at"_s, u"2001-02-03T04:05:06Z"_s}};
    static const QJsonObject entry{{u"task_id"_s, u"$privateTask"_s},
                                   {u"started_at"_s, u"$time"_s},
                                   {u"ended_at"_s, u"$time"_s},
                                   {u"duration_seconds"_s, 0},
                                   {u"logged_by_email"_s, u"$marker"_s}};
    static const QList<TableDefaults> list{
        {u"profiles"_s, u"owner/self"_s, {{u"display_name"_s, u"$marker"_s}}, {{u"display_name"_s, u"$marker"_s}}},
        {u"projects"_s, u"owner/private"_s, {{u"name"_s, u"$marker"_s}}, {{u"description"_s, u"$marker"_s}}},
        {u"tasks"_s,
         u"owner/private"_s,
         {{u"project_id"_s, u"$privateProject"_s}, {u"title"_s, u"$marker"_s}},
         {{u"description"_s, u"$marker"_s}}},
        {u"time_entries"_s, u"owner/private"_s, entry, {{u"logged_by_email"_s, u"$marker"_s}}},
        {u"clients"_s, u"owner/private"_s, {{u"name"_s, u"$marker"_s}}, {{u"notes"_s, u"$marker"_s}}},
        {u"teams"_s, u"owner/team"_s, {{u"name"_s, u"$marker"_s}}, {{u"name"_s, u"$marker"_s}}},
        {u"team_members"_s,
         u"owner/team"_s,
         {{u"team_id"_s, u"$team"_s},
          {u"user_id"_s, u"$extra"_s},
          {u"email"_s, u"eve@example.nl"_s},
          {u"role"_s, u"viewer"_s}},
         {{u"role"_s, u"editor"_s}}},
        {u"invoices"_s,
         u"owner/private"_s,
         {{u"number"_s, u"$marker"_s}, {u"issued_at"_s, u"2025-05-01"_s}, {u"currency"_s, u"EUR"_s}},
         {{u"notes"_s, u"$marker"_s}}},
        {u"invoice_lines"_s,
         u"owner/private"_s,
         {{u"invoice_id"_s, u"$privateInvoice"_s},
          {u"title"_s, u"$marker"_s},
          {u"quantity"_s, 1},
          {u"unit_price"_s, 1},
          {u"amount"_s, 1}},
         {{u"description"_s, u"$marker"_s}}},
        {u"invoice_entries"_s,
         u"owner/private"_s,
         {{u"invoice_id"_s, u"$privateInvoice"_s}, {u"time_entry_id"_s, u"$privateUnbilled"_s}},
         stamp},
        {u"invoice_trips"_s,
         u"owner/private"_s,
         {{u"invoice_id"_s, u"$privateInvoice"_s}, {u"trip_id"_s, u"$spareTrip"_s}},
         stamp},
        {u"invoice_templates"_s, u"owner/private"_s, {{u"name"_s, u"$marker"_s}}, {{u"name"_s, u"$marker"_s}}},
        {u"trips"_s,
         u"owner/private"_s,
         {{u"started_at"_s, u"$time"_s}, {u"purpose"_s, u"$marker"_s}},
         {{u"purpose"_s, u"$marker"_s}}},
        {u"unbilled_time_entries"_s, u"owner/private"_s, entry, {{u"logged_by_email"_s, u"$marker"_s}}},
    };
    return list;
}

QJsonObject merged(QJsonObject base, const QJsonObject &extra)
{
    for (auto it = extra.begin(); it != extra.end(); ++it) {
        base.insert(it.key(), it.value());
    }
    return base;
}

// The view is written through the table it shows; what a refused write did not change is checked there.
QByteArray storageTable(const QString &table)
{
    return table == u"unbilled_time_entries" ? QByteArray("time_entries") : table.toUtf8();
}

QString expectedCode(int status)
{
    switch (status) {
    case 401:
    case 403:
        return u"42501"_s;
    case 409:
        return u"23505"_s;
    default:
        return {};
    }
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

int currentInvoiceYear()
{
    // The numbering procedure counts per calendar year in UTC.
    return QDateTime::currentDateTimeUtc().date().year();
}

void addWrite(const QString &name, const QString &table, const QString &caller, const QByteArray &method,
              const QString &target, const QJsonObject &body, int status, bool effect)
{
    QTest::addRow("%s", qPrintable(name)) << table << caller << method << target << body << status << effect;
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
    QStringList m_users;
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

    QString nameOf(const QByteArray &value) const { return m_names.value(value, QString::fromUtf8(value)); }

    QString addUser(const QString &name, const QString &email)
    {
        const QString user = m_backend.createUser(email, name);
        remember(name, user.toUtf8());
        m_users.append(name);
        return user;
    }

    QByteArray tokenOf(const QString &caller) const
    {
        if (caller == u"anon") {
            return {};
        }
        if (caller == u"service") {
            return m_backend.serviceToken();
        }
        return m_backend.tokenFor(QString::fromLatin1(id(caller)));
    }

    HttpResult send(const QString &caller, const QByteArray &method, const QByteArray &target,
                    const QJsonObject &body = {}, const Headers &headers = representation) const
    {
        const QByteArray payload = method == "GET" || method == "DELETE" ? QByteArray() : compact(body);
        return m_backend.request(method, "/rest/v1/" + target, tokenOf(caller), payload, headers);
    }

    HttpResult invite(const QString &caller, const QByteArray &team, const QString &email, const QJsonValue &role)
    {
        return send(
            caller, "POST", "rpc/invite_team_member_by_email",
            {{u"team_id_param"_s, QString::fromLatin1(team)}, {u"invitee_email"_s, email}, {u"member_role"_s, role}},
            {});
    }

    void accept(const QString &invitee, const QByteArray &team)
    {
        const HttpResult accepted =
            send(invitee, "POST", "rpc/accept_team_invitation", {{u"team_id_param"_s, QString::fromLatin1(team)}}, {});
        QCOMPARE(accepted.status, 200);
        QCOMPARE(accepted.json().object().value(u"status"_s).toString(), u"accepted"_s);
    }

    QByteArray add(const QByteArray &table, const Columns &columns)
    {
        QByteArrayList names;
        QByteArrayList placeholders;
        PgParams params;
        for (const auto &[column, value] : columns) {
            names.append(column);
            placeholders.append('$' + QByteArray::number(placeholders.size() + 1));
            params.append(value);
        }
        return db()
            .exec("INSERT INTO public." + table + " (" + names.join(", ") + ") VALUES (" + placeholders.join(", ") +
                      ") RETURNING id",
                  params)
            .value(0, 0);
    }

    int count(const QByteArray &sql, const PgParams &params = {}) { return db().exec(sql, params).value(0, 0).toInt(); }

    QByteArray nextTime()
    {
        // Time entries are unique per task and period; every row a test writes gets its own second.
        return QDateTime(QDate(2031, 1, 1), QTime(0, 0), Qt::UTC).addSecs(++m_clock).toString(Qt::ISODate).toUtf8();
    }

    // Replaces "$name" by the fixture's id, "$marker" by a text unique to the running test row.
    QJsonObject resolve(const QJsonObject &body)
    {
        QJsonObject values;
        const QByteArray time = nextTime();
        for (auto it = body.begin(); it != body.end(); ++it) {
            const QString text = it.value().toString();
            if (!it.value().isString() || !text.startsWith(u'$')) {
                values.insert(it.key(), it.value());
            } else if (text == u"$marker") {
                values.insert(it.key(), QString::fromUtf8(QTest::currentDataTag()));
            } else if (text == u"$time") {
                values.insert(it.key(), QString::fromLatin1(time));
            } else {
                values.insert(it.key(), QString::fromLatin1(id(text.mid(1))));
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
            if (it.value().isNull()) {
                conditions.append(it.key().toUtf8() + " IS NULL");
            } else {
                params.append(it.value().toVariant().toString().toUtf8());
                conditions.append(it.key().toUtf8() + " = $" + QByteArray::number(params.size()));
            }
        }
        return {conditions.isEmpty() ? QByteArray("true") : conditions.join(" AND "), params};
    }

    QByteArray scratchEntry(bool inTeam)
    {
        const QByteArray time = nextTime();
        return add("time_entries", {{"user_id", id(u"owner"_s)},
                                    {"task_id", id(inTeam ? u"teamTask"_s : u"privateTask"_s)},
                                    {"project_id", id(inTeam ? u"teamProject"_s : u"privateProject"_s)},
                                    {"started_at", time},
                                    {"ended_at", time},
                                    {"duration_seconds", "0"}});
    }

    QByteArray scratchInvoice(const QString &owner, const std::optional<QByteArray> &team)
    {
        return add("invoices", {{"user_id", id(owner)},
                                {"team_id", team},
                                {"number", "S-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces)},
                                {"issued_at", "2025-04-01"},
                                {"currency", "EUR"}});
    }

    Target makeTarget(const QByteArray &table, const QString &whose)
    {
        const QString who = whose.section(u'/', 0, 0);
        const QString scope = whose.section(u'/', 1, 1);
        const bool inTeam = scope == u"team";
        const std::optional<QByteArray> team = inTeam ? std::optional(id(u"team"_s)) : std::nullopt;
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

        QByteArray row;
        QByteArray parent; // a row made only to be linked; removing it removes the link
        QByteArray parentTable;
        if (table == "projects" || table == "clients" || table == "invoice_templates") {
            row = add(table, {{"user_id", id(who)}, {"team_id", team}, {"name", "scratch"}});
        } else if (table == "invoices") {
            row = scratchInvoice(who, team);
        } else if (table == "trips") {
            row = add(table, {{"user_id", id(who)}, {"started_at", nextTime()}});
        } else if (table == "tasks") {
            row = add(table, {{"user_id", id(who)},
                              {"project_id", id(inTeam ? u"teamProject"_s : u"privateProject"_s)},
                              {"title", "scratch"}});
        } else if (table == "time_entries") {
            row = scratchEntry(inTeam);
        } else if (table == "invoice_lines") {
            row = add(table, {{"invoice_id", id(inTeam ? u"teamInvoice"_s : u"privateInvoice"_s)},
                              {"title", "scratch"},
                              {"quantity", "1"},
                              {"unit_price", "1"},
                              {"amount", "1"}});
        } else if (table == "invoice_entries") {
            parent = scratchEntry(inTeam);
            parentTable = "time_entries";
            row = add(table,
                      {{"invoice_id", id(inTeam ? u"teamInvoice"_s : u"privateInvoice"_s)}, {"time_entry_id", parent}});
        } else if (table == "invoice_trips") {
            parent = add("trips", {{"user_id", id(who)}, {"started_at", nextTime()}});
            parentTable = "trips";
            row =
                add(table, {{"invoice_id", id(inTeam ? u"teamInvoice"_s : u"privateInvoice"_s)}, {"trip_id", parent}});
        } else if (table == "teams") {
            // Same members as the fixture's team, so that roles and not membership decide.
            row = add(table, {{"owner_id", id(who)}, {"name", "scratch"}});
            db().exec("INSERT INTO public.team_members (team_id, user_id, email, role, accepted_at)"
                      " VALUES ($1, $2, 'e', 'editor', now()), ($1, $3, 'v', 'viewer', now())",
                      {row, id(u"editor"_s), id(u"viewer"_s)});
        } else {
            qFatal("no target for %s", table.constData());
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

    QByteArray rowSnapshot(const QByteArray &table, const QByteArray &where)
    {
        const PgResult row = db().exec("SELECT to_jsonb(t)::text FROM public." + table + " t WHERE " + where);
        return row.rows() == 1 ? row.value(0, 0) : QByteArray();
    }

    QStringList keyNames(const QJsonArray &rows, const QString &key) const
    {
        QStringList names;
        for (const QJsonValue &row : rows) {
            names.append(nameOf(row.toObject().value(key).toString().toUtf8()));
        }
        names.sort();
        return names;
    }

    void seed()
    {
        addUser(u"owner"_s, u"ada@example.nl"_s);
        addUser(u"stranger"_s, u"ben@example.nl"_s);
        addUser(u"editor"_s, u"cleo@example.nl"_s);
        addUser(u"viewer"_s, u"dirk@example.nl"_s);
        addUser(u"extra"_s, u"eve@example.nl"_s);

        // Teams and memberships come about as in the application: a team row, then invitations.
        HttpResult created = send(u"owner"_s, "POST", "teams", {{u"name"_s, u"Studio"_s}});
        QCOMPARE(created.status, 201);
        remember(u"team"_s, created.json().array().first().toObject().value(u"id"_s).toString().toUtf8());
        const QList<std::pair<QString, QString>> invitations{{u"cleo@example.nl"_s, u"editor"_s},
                                                             {u"dirk@example.nl"_s, u"viewer"_s}};
        for (const auto &[email, role] : invitations) {
            const HttpResult invited = invite(u"owner"_s, id(u"team"_s), email, role);
            QCOMPARE(invited.status, 200);
            QCOMPARE(invited.json().object().value(u"status"_s).toString(), u"invited"_s);
        }
        accept(u"editor"_s, id(u"team"_s));
        accept(u"viewer"_s, id(u"team"_s));
        created = send(u"stranger"_s, "POST", "teams", {{u"name"_s, u"Solo"_s}});
        QCOMPARE(created.status, 201);
        remember(u"strangerTeam"_s, created.json().array().first().toObject().value(u"id"_s).toString().toUtf8());

        const QByteArray owner = id(u"owner"_s);
        const QByteArray stranger = id(u"stranger"_s);
        const QByteArray team = id(u"team"_s);
        auto project = [&](const QByteArray &user, const std::optional<QByteArray> &teamId) {
            return add("projects", {{"user_id", user}, {"team_id", teamId}, {"name", "Project"}});
        };
        remember(u"privateProject"_s, project(owner, std::nullopt));
        remember(u"teamProject"_s, project(owner, team));
        remember(u"strangerProject"_s, project(stranger, std::nullopt));

        for (const QString &prefix : {u"private"_s, u"team"_s, u"stranger"_s}) {
            const QByteArray user = prefix == u"stranger" ? stranger : owner;
            const QByteArray projectId = id(prefix + u"Project");
            remember(prefix + u"Task", add("tasks", {{"user_id", user}, {"project_id", projectId}, {"title", "Task"}}));
            for (const QString &state : {u"Billed"_s, u"Unbilled"_s}) {
                const QByteArray time = nextTime();
                remember(prefix + state, add("time_entries", {{"user_id", user},
                                                              {"task_id", id(prefix + u"Task")},
                                                              {"project_id", projectId},
                                                              {"started_at", time},
                                                              {"ended_at", time},
                                                              {"duration_seconds", "0"}}));
            }
            const std::optional<QByteArray> teamId =
                prefix == u"team" ? std::optional(team) : std::optional<QByteArray>();
            remember(prefix + u"Client", add("clients", {{"user_id", user}, {"team_id", teamId}, {"name", "Client"}}));
            remember(prefix + u"Template",
                     add("invoice_templates", {{"user_id", user}, {"team_id", teamId}, {"name", "Template"}}));
            remember(prefix + u"Invoice", add("invoices", {{"user_id", user},
                                                           {"team_id", teamId},
                                                           {"client_id", id(prefix + u"Client")},
                                                           {"template_id", id(prefix + u"Template")},
                                                           {"number", "F-" + prefix.toUtf8()},
                                                           {"issued_at", "2025-03-01"},
                                                           {"currency", "EUR"}}));
            remember(prefix + u"Line", add("invoice_lines", {{"invoice_id", id(prefix + u"Invoice")},
                                                             {"title", "Work"},
                                                             {"quantity", "1"},
                                                             {"unit_price", "80"},
                                                             {"amount", "80"}}));
            add("invoice_entries",
                {{"invoice_id", id(prefix + u"Invoice")}, {"time_entry_id", id(prefix + u"Billed")}});
            remember(prefix + u"Trip", add("trips", {{"user_id", user}, {"started_at", nextTime()}}));
            add("invoice_trips", {{"invoice_id", id(prefix + u"Invoice")}, {"trip_id", id(prefix + u"Trip")}});
        }
        remember(u"spareTrip"_s, add("trips", {{"user_id", owner}, {"started_at", nextTime()}}));
        remember(u"editorTrip"_s, add("trips", {{"user_id", id(u"editor"_s)}, {"started_at", nextTime()}}));
        remember(u"viewerTrip"_s, add("trips", {{"user_id", id(u"viewer"_s)}, {"started_at", nextTime()}}));
        for (const QString &user : {u"editor"_s, u"viewer"_s}) {
            remember(user + u"Invoice",
                     add("invoices",
                         {{"user_id", id(user)}, {"number", "P-1"}, {"issued_at", "2025-03-01"}, {"currency", "EUR"}}));
        }

        // A second team for the invitation rules, apart from the one the matrix reads.
        addUser(u"olga"_s, u"olga@example.nl"_s);
        addUser(u"eddy"_s, u"eddy@example.nl"_s);
        addUser(u"vera"_s, u"vera@example.nl"_s);
        created = send(u"olga"_s, "POST", "teams", {{u"name"_s, u"Invites"_s}});
        QCOMPARE(created.status, 201);
        remember(u"inviteTeam"_s, created.json().array().first().toObject().value(u"id"_s).toString().toUtf8());
        QCOMPARE(invite(u"olga"_s, id(u"inviteTeam"_s), u"eddy@example.nl"_s, u"editor"_s).status, 200);
        QCOMPARE(invite(u"olga"_s, id(u"inviteTeam"_s), u"vera@example.nl"_s, u"viewer"_s).status, 200);
        accept(u"eddy"_s, id(u"inviteTeam"_s));
        accept(u"vera"_s, id(u"inviteTeam"_s));
    }

    QString newUser()
    {
        const QString name = u"new%1"_s.arg(++m_newUsers);
        addUser(name, name + u"@example.nl"_s);
        return name;
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

        struct Visible
        {
            QString table;
            QString key;
            QStringList owner, stranger, editor, viewer;
        };
        const QStringList team{u"owner"_s, u"editor"_s, u"viewer"_s};
        auto of = [](const QString &suffix, const QStringList &prefixes) {
            QStringList names;
            for (const QString &prefix : prefixes) {
                names.append(prefix + suffix);
            }
            return names;
        };
        const QStringList both{u"private"_s, u"team"_s};
        const QStringList stranger{u"stranger"_s};
        const QStringList inTeam{u"team"_s};
        const QList<Visible> visible{
            {u"profiles"_s, u"id"_s, team, {u"stranger"_s}, team, team},
            {u"projects"_s, u"id"_s, of(u"Project"_s, both), of(u"Project"_s, stranger), of(u"Project"_s, inTeam),
             of(u"Project"_s, inTeam)},
            {u"tasks"_s, u"id"_s, of(u"Task"_s, both), of(u"Task"_s, stranger), of(u"Task"_s, inTeam),
             of(u"Task"_s, inTeam)},
            {u"time_entries"_s, u"id"_s, of(u"Billed"_s, both) + of(u"Unbilled"_s, both),
             of(u"Billed"_s, stranger) + of(u"Unbilled"_s, stranger),
             of(u"Billed"_s, inTeam) + of(u"Unbilled"_s, inTeam), of(u"Billed"_s, inTeam) + of(u"Unbilled"_s, inTeam)},
            {u"clients"_s, u"id"_s, of(u"Client"_s, both), of(u"Client"_s, stranger), of(u"Client"_s, inTeam),
             of(u"Client"_s, inTeam)},
            {u"teams"_s, u"id"_s, {u"team"_s}, {u"strangerTeam"_s}, {u"team"_s}, {u"team"_s}},
            {u"team_members"_s, u"user_id"_s, team, {u"stranger"_s}, team, team},
            {u"invoices"_s, u"id"_s, of(u"Invoice"_s, both), of(u"Invoice"_s, stranger),
             of(u"Invoice"_s, {u"team"_s, u"editor"_s}), of(u"Invoice"_s, {u"team"_s, u"viewer"_s})},
            {u"invoice_lines"_s, u"id"_s, of(u"Line"_s, both), of(u"Line"_s, stranger), of(u"Line"_s, inTeam),
             of(u"Line"_s, inTeam)},
            {u"invoice_entries"_s, u"time_entry_id"_s, of(u"Billed"_s, both), of(u"Billed"_s, stranger),
             of(u"Billed"_s, inTeam), of(u"Billed"_s, inTeam)},
            // Members see the team invoice's trip links, though not the owner's trips themselves.
            {u"invoice_trips"_s, u"trip_id"_s, of(u"Trip"_s, both), of(u"Trip"_s, stranger), of(u"Trip"_s, inTeam),
             of(u"Trip"_s, inTeam)},
            {u"invoice_templates"_s, u"id"_s, of(u"Template"_s, both), of(u"Template"_s, stranger),
             of(u"Template"_s, inTeam), of(u"Template"_s, inTeam)},
            {u"trips"_s,
             u"id"_s,
             of(u"Trip"_s, {u"private"_s, u"team"_s, u"spare"_s}),
             of(u"Trip"_s, stranger),
             {u"editorTrip"_s},
             {u"viewerTrip"_s}},
            // Only one's own time, even where a team's time is readable.
            {u"unbilled_time_entries"_s, u"id"_s, of(u"Unbilled"_s, both), of(u"Unbilled"_s, stranger), {}, {}},
        };
        for (const Visible &v : visible) {
            const QList<std::pair<QString, QStringList>> callers{
                {u"owner"_s, v.owner}, {u"stranger"_s, v.stranger}, {u"editor"_s, v.editor}, {u"viewer"_s, v.viewer}};
            for (const auto &[caller, names] : callers) {
                QStringList sorted = names;
                sorted.sort();
                QTest::addRow("%s: %s", qPrintable(v.table), qPrintable(caller))
                    << v.table << v.key << caller << sorted;
            }
            QTest::addRow("%s: anon is refused", qPrintable(v.table)) << v.table << v.key << u"anon"_s << QStringList();
            QTest::addRow("%s: service role reads everything", qPrintable(v.table))
                << v.table << v.key << u"service"_s << QStringList();
        }
    }

    void readMatrix()
    {
        QFETCH(QString, table);
        QFETCH(QString, key);
        QFETCH(QString, caller);
        QFETCH(QStringList, expected);

        const HttpResult result = send(caller, "GET", table.toUtf8() + "?select=" + key.toUtf8(), {}, {});
        if (caller == u"anon") {
            QCOMPARE(result.status, 401);
            QCOMPARE(result.code(), u"42501"_s);
            QVERIFY(!result.header("WWW-Authenticate").isEmpty());
            return;
        }
        QCOMPARE(result.status, 200);
        if (caller == u"service") {
            const PgResult all = db().exec("SELECT " + key.toUtf8() + "::text FROM public." + table.toUtf8());
            expected.clear();
            for (int row = 0; row < all.rows(); ++row) {
                expected.append(nameOf(all.value(row, 0)));
            }
            expected.sort();
            // Proves the bypass only if there is someone else's row to bypass to.
            if (table != u"unbilled_time_entries") {
                QVERIFY(std::any_of(expected.cbegin(), expected.cend(),
                                    [](const QString &name) { return name.startsWith(u"stranger"); }));
            }
        }
        QCOMPARE(keyNames(result.json().array(), key), expected);
    }

    void writeMatrix_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QJsonObject>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("effect");

        QHash<QString, TableDefaults> defaults;
        for (const TableDefaults &d : tableDefaults()) {
            defaults.insert(d.table, d);
        }
        auto verb = [](const QByteArray &method) { return method == "PATCH" ? u"change"_s : u"delete"_s; };

        // Tables whose rows are owned by a user and shared through a team: projects, clients,
        // templates and invoices directly; tasks, time and invoice contents through their parent.
        struct Reach
        {
            QString caller;
            QString scope;
            bool effect;
        };
        const QList<Reach> reach{
            {u"owner"_s, u"private"_s, true},     {u"owner"_s, u"team"_s, true},     {u"editor"_s, u"team"_s, true},
            {u"editor"_s, u"private"_s, false},   {u"viewer"_s, u"team"_s, false},   {u"viewer"_s, u"private"_s, false},
            {u"stranger"_s, u"private"_s, false}, {u"stranger"_s, u"team"_s, false}, {u"service"_s, u"private"_s, true},
        };
        const QStringList shared{u"projects"_s, u"clients"_s,      u"invoice_templates"_s, u"invoices"_s,
                                 u"tasks"_s,    u"time_entries"_s, u"invoice_lines"_s,     u"invoice_entries"_s};
        for (const QString &table : shared) {
            for (const QByteArray &method : {QByteArray("PATCH"), QByteArray("DELETE")}) {
                for (const Reach &r : reach) {
                    addWrite(u"%1: %2 %3 %4 the owner's %5 row"_s.arg(
                                 table, r.caller, r.effect ? u"can"_s : u"cannot"_s, verb(method), r.scope),
                             table, r.caller, method, u"owner/"_s + r.scope, defaults[table].patch, 200, r.effect);
                }
            }
        }

        // Only the owner governs the team itself, and nobody but the traveller sees a trip.
        const QList<std::pair<QString, bool>> ownerOnly{
            {u"owner"_s, true}, {u"editor"_s, false}, {u"viewer"_s, false}, {u"stranger"_s, false}};
        for (const QString &table : {u"teams"_s, u"team_members"_s, u"trips"_s}) {
            for (const QByteArray &method : {QByteArray("PATCH"), QByteArray("DELETE")}) {
                for (const auto &[caller, effect] : ownerOnly) {
                    addWrite(u"%1: %2 %3 %4 the owner's row"_s.arg(table, caller, effect ? u"can"_s : u"cannot"_s,
                                                                   verb(method)),
                             table, caller, method, defaults[table].target, defaults[table].patch, 200, effect);
                }
            }
        }
        addWrite(u"team_members: viewer cannot promote themselves"_s, u"team_members"_s, u"viewer"_s, "PATCH",
                 u"viewer/self"_s, {{u"role"_s, u"owner"_s}}, 200, false);
        addWrite(u"team_members: viewer can leave the team"_s, u"team_members"_s, u"viewer"_s, "DELETE",
                 u"viewer/self"_s, {}, 200, true);
        addWrite(u"team_members: editor cannot remove the owner"_s, u"team_members"_s, u"editor"_s, "DELETE",
                 u"owner/self"_s, {}, 200, false);

        for (const auto &[caller, effect] : ownerOnly) {
            addWrite(u"profiles: %1 %2 change the owner's profile"_s.arg(caller, effect ? u"can"_s : u"cannot"_s),
                     u"profiles"_s, caller, "PATCH", u"owner/self"_s, defaults[u"profiles"_s].patch, 200, effect);
            // Profiles go with the account, never through the interface.
            addWrite(u"profiles: %1 cannot delete the owner's profile"_s.arg(caller), u"profiles"_s, caller, "DELETE",
                     u"owner/self"_s, {}, 200, false);
        }

        // WITH CHECK: a row may be changed, but not into one the caller could not have written.
        const QJsonObject intoTeam{{u"team_id"_s, u"$team"_s}};
        addWrite(u"projects: owner cannot hand a project to someone else"_s, u"projects"_s, u"owner"_s, "PATCH",
                 u"owner/private"_s, {{u"user_id"_s, u"$stranger"_s}}, 403, false);
        addWrite(u"projects: editor cannot take over a team project"_s, u"projects"_s, u"editor"_s, "PATCH",
                 u"owner/team"_s, {{u"user_id"_s, u"$editor"_s}}, 403, false);
        addWrite(u"projects: stranger cannot move a project into the team"_s, u"projects"_s, u"stranger"_s, "PATCH",
                 u"stranger/private"_s, intoTeam, 403, false);
        addWrite(u"projects: viewer cannot move a project into the team"_s, u"projects"_s, u"viewer"_s, "PATCH",
                 u"viewer/private"_s, intoTeam, 403, false);
        addWrite(u"projects: editor can move a project into the team"_s, u"projects"_s, u"editor"_s, "PATCH",
                 u"editor/private"_s, intoTeam, 200, true);
        addWrite(u"projects: owner cannot move a project into a team they are not in"_s, u"projects"_s, u"owner"_s,
                 "PATCH", u"owner/private"_s, {{u"team_id"_s, u"$strangerTeam"_s}}, 403, false);
        addWrite(u"clients: viewer cannot move a client into the team"_s, u"clients"_s, u"viewer"_s, "PATCH",
                 u"viewer/private"_s, intoTeam, 403, false);
        addWrite(u"invoice_templates: viewer cannot move a template into the team"_s, u"invoice_templates"_s,
                 u"viewer"_s, "PATCH", u"viewer/private"_s, intoTeam, 403, false);
        addWrite(u"invoices: editor cannot take over a team invoice"_s, u"invoices"_s, u"editor"_s, "PATCH",
                 u"owner/team"_s, {{u"user_id"_s, u"$editor"_s}}, 403, false);
        addWrite(u"tasks: owner cannot move a task into a stranger's project"_s, u"tasks"_s, u"owner"_s, "PATCH",
                 u"owner/private"_s, {{u"project_id"_s, u"$strangerProject"_s}}, 403, false);
        addWrite(u"tasks: editor cannot move a team task into the owner's private project"_s, u"tasks"_s, u"editor"_s,
                 "PATCH", u"owner/team"_s, {{u"project_id"_s, u"$privateProject"_s}}, 403, false);
        addWrite(u"time_entries: editor cannot take over the owner's time"_s, u"time_entries"_s, u"editor"_s, "PATCH",
                 u"owner/team"_s, {{u"user_id"_s, u"$editor"_s}}, 403, false);
        addWrite(u"teams: owner cannot hand the team to someone else"_s, u"teams"_s, u"owner"_s, "PATCH",
                 u"owner/team"_s, {{u"owner_id"_s, u"$stranger"_s}}, 403, false);
        addWrite(u"invoice_entries: editor cannot point a link at time they cannot see"_s, u"invoice_entries"_s,
                 u"editor"_s, "PATCH", u"owner/team"_s, {{u"time_entry_id"_s, u"$privateUnbilled"_s}}, 403, false);

        // Inserts. The rows users own directly share one set of rules.
        for (const QString &table : {u"projects"_s, u"clients"_s, u"invoice_templates"_s, u"invoices"_s}) {
            const QJsonObject base = defaults[table].insert;
            const QJsonObject team = merged(base, intoTeam);
            addWrite(table + u": owner creates a private row", table, u"owner"_s, "POST", {}, base, 201, true);
            addWrite(table + u": owner creates a team row", table, u"owner"_s, "POST", {}, team, 201, true);
            addWrite(table + u": editor creates a team row", table, u"editor"_s, "POST", {}, team, 201, true);
            addWrite(table + u": viewer cannot create a team row", table, u"viewer"_s, "POST", {}, team, 403, false);
            addWrite(table + u": viewer creates a private row", table, u"viewer"_s, "POST", {}, base, 201, true);
            addWrite(table + u": stranger cannot create a row in the team", table, u"stranger"_s, "POST", {}, team, 403,
                     false);
            addWrite(table + u": stranger cannot create a row in the owner's name", table, u"stranger"_s, "POST", {},
                     merged(base, {{u"user_id"_s, u"$owner"_s}}), 403, false);
            addWrite(table + u": owner cannot create a row in a team they are not in", table, u"owner"_s, "POST", {},
                     merged(base, {{u"team_id"_s, u"$strangerTeam"_s}}), 403, false);
        }
        const QJsonObject task = defaults[u"tasks"_s].insert;
        const QJsonObject teamTask = merged(task, {{u"project_id"_s, u"$teamProject"_s}});
        addWrite(u"tasks: owner adds a task"_s, u"tasks"_s, u"owner"_s, "POST", {}, task, 201, true);
        addWrite(u"tasks: editor adds a task to a team project"_s, u"tasks"_s, u"editor"_s, "POST", {}, teamTask, 201,
                 true);
        addWrite(u"tasks: viewer cannot add a task to a team project"_s, u"tasks"_s, u"viewer"_s, "POST", {}, teamTask,
                 403, false);
        addWrite(u"tasks: editor cannot add a task to the owner's private project"_s, u"tasks"_s, u"editor"_s, "POST",
                 {}, task, 403, false);
        addWrite(u"tasks: stranger cannot add a task to the owner's project"_s, u"tasks"_s, u"stranger"_s, "POST", {},
                 task, 403, false);

        const QJsonObject entry = defaults[u"time_entries"_s].insert;
        const QJsonObject teamEntry = merged(entry, {{u"task_id"_s, u"$teamTask"_s}});
        addWrite(u"time_entries: owner logs time"_s, u"time_entries"_s, u"owner"_s, "POST", {}, entry, 201, true);
        addWrite(u"time_entries: editor logs time on a team task"_s, u"time_entries"_s, u"editor"_s, "POST", {},
                 teamEntry, 201, true);
        addWrite(u"time_entries: editor logs time for the owner"_s, u"time_entries"_s, u"editor"_s, "POST", {},
                 merged(teamEntry, {{u"user_id"_s, u"$owner"_s}, {u"logged_by_user_id"_s, u"$editor"_s}}), 201, true);
        // Never a third person's time: rows planted in another account could not be removed by its owner.
        addWrite(u"time_entries: editor cannot log time for the viewer"_s, u"time_entries"_s, u"editor"_s, "POST", {},
                 merged(teamEntry, {{u"user_id"_s, u"$viewer"_s}}), 403, false);
        addWrite(u"time_entries: editor cannot log time in the viewer's name"_s, u"time_entries"_s, u"editor"_s, "POST",
                 {}, merged(teamEntry, {{u"logged_by_user_id"_s, u"$viewer"_s}}), 403, false);
        addWrite(u"time_entries: owner cannot log time for a stranger"_s, u"time_entries"_s, u"owner"_s, "POST", {},
                 merged(entry, {{u"user_id"_s, u"$stranger"_s}}), 403, false);
        addWrite(u"time_entries: viewer cannot log time on a team task"_s, u"time_entries"_s, u"viewer"_s, "POST", {},
                 teamEntry, 403, false);
        addWrite(u"time_entries: editor cannot log time on the owner's private task"_s, u"time_entries"_s, u"editor"_s,
                 "POST", {}, entry, 403, false);
        addWrite(u"time_entries: stranger cannot log time on the owner's task"_s, u"time_entries"_s, u"stranger"_s,
                 "POST", {}, entry, 403, false);
        // The project comes from the task, so naming one's own project does not open someone else's task.
        addWrite(u"time_entries: stranger cannot steer the check with their own project"_s, u"time_entries"_s,
                 u"stranger"_s, "POST", {}, merged(entry, {{u"project_id"_s, u"$strangerProject"_s}}), 403, false);

        const QJsonObject line = defaults[u"invoice_lines"_s].insert;
        const QJsonObject teamLine = merged(line, {{u"invoice_id"_s, u"$teamInvoice"_s}});
        addWrite(u"invoice_lines: owner adds a line"_s, u"invoice_lines"_s, u"owner"_s, "POST", {}, line, 201, true);
        addWrite(u"invoice_lines: editor adds a line to the team invoice"_s, u"invoice_lines"_s, u"editor"_s, "POST",
                 {}, teamLine, 201, true);
        addWrite(u"invoice_lines: viewer cannot add a line to the team invoice"_s, u"invoice_lines"_s, u"viewer"_s,
                 "POST", {}, teamLine, 403, false);
        addWrite(u"invoice_lines: editor cannot add a line to a private invoice"_s, u"invoice_lines"_s, u"editor"_s,
                 "POST", {}, line, 403, false);
        addWrite(u"invoice_lines: stranger cannot add a line"_s, u"invoice_lines"_s, u"stranger"_s, "POST", {}, line,
                 403, false);

        auto link = [](const char *invoice, const char *entry) {
            return QJsonObject{{u"invoice_id"_s, QString::fromLatin1(invoice)},
                               {u"time_entry_id"_s, QString::fromLatin1(entry)}};
        };
        addWrite(u"invoice_entries: owner bills own time"_s, u"invoice_entries"_s, u"owner"_s, "POST", {},
                 link("$privateInvoice", "$privateUnbilled"), 201, true);
        addWrite(u"invoice_entries: editor bills team time on the team invoice"_s, u"invoice_entries"_s, u"editor"_s,
                 "POST", {}, link("$teamInvoice", "$teamUnbilled"), 201, true);
        addWrite(u"invoice_entries: editor bills team time on an invoice of their own"_s, u"invoice_entries"_s,
                 u"editor"_s, "POST", {}, link("$editorInvoice", "$teamUnbilled"), 201, true);
        addWrite(u"invoice_entries: viewer cannot bill on the team invoice"_s, u"invoice_entries"_s, u"viewer"_s,
                 "POST", {}, link("$teamInvoice", "$teamUnbilled"), 403, false);
        // Reading team time is not the right to bill it: the owner could neither see nor remove the link.
        addWrite(u"invoice_entries: viewer cannot bill team time on an invoice of their own"_s, u"invoice_entries"_s,
                 u"viewer"_s, "POST", {}, link("$viewerInvoice", "$teamUnbilled"), 403, false);
        addWrite(u"invoice_entries: editor cannot bill time they cannot see"_s, u"invoice_entries"_s, u"editor"_s,
                 "POST", {}, link("$teamInvoice", "$privateUnbilled"), 403, false);
        addWrite(u"invoice_entries: stranger cannot block the owner's time"_s, u"invoice_entries"_s, u"stranger"_s,
                 "POST", {}, link("$strangerInvoice", "$privateUnbilled"), 403, false);
        addWrite(u"invoice_entries: time already on a live invoice"_s, u"invoice_entries"_s, u"owner"_s, "POST", {},
                 link("$teamInvoice", "$privateBilled"), 409, false);

        auto trip = [](const char *invoice, const char *tripName) {
            return QJsonObject{{u"invoice_id"_s, QString::fromLatin1(invoice)},
                               {u"trip_id"_s, QString::fromLatin1(tripName)}};
        };
        addWrite(u"invoice_trips: owner bills a trip"_s, u"invoice_trips"_s, u"owner"_s, "POST", {},
                 trip("$privateInvoice", "$spareTrip"), 201, true);
        addWrite(u"invoice_trips: editor bills own trip on the team invoice"_s, u"invoice_trips"_s, u"editor"_s, "POST",
                 {}, trip("$teamInvoice", "$editorTrip"), 201, true);
        addWrite(u"invoice_trips: editor cannot bill the owner's trip"_s, u"invoice_trips"_s, u"editor"_s, "POST", {},
                 trip("$teamInvoice", "$spareTrip"), 403, false);
        addWrite(u"invoice_trips: viewer cannot bill on the team invoice"_s, u"invoice_trips"_s, u"viewer"_s, "POST",
                 {}, trip("$teamInvoice", "$viewerTrip"), 403, false);
        addWrite(u"invoice_trips: stranger cannot block the owner's trip"_s, u"invoice_trips"_s, u"stranger"_s, "POST",
                 {}, trip("$strangerInvoice", "$spareTrip"), 403, false);
        addWrite(u"invoice_trips: trip already on a live invoice"_s, u"invoice_trips"_s, u"owner"_s, "POST", {},
                 trip("$privateInvoice", "$teamTrip"), 409, false);

        addWrite(u"teams: stranger creates a team of their own"_s, u"teams"_s, u"stranger"_s, "POST", {},
                 defaults[u"teams"_s].insert, 201, true);
        addWrite(u"teams: stranger cannot create a team in the owner's name"_s, u"teams"_s, u"stranger"_s, "POST", {},
                 merged(defaults[u"teams"_s].insert, {{u"owner_id"_s, u"$owner"_s}}), 403, false);

        // Members come only through an invitation that its invitee accepts: nobody writes the row.
        const QJsonObject member = defaults[u"team_members"_s].insert;
        const QJsonObject accepted = merged(member, {{u"accepted_at"_s, u"$time"_s}});
        for (const QString &caller : {u"owner"_s, u"editor"_s, u"viewer"_s}) {
            addWrite(u"team_members: %1 cannot add a member directly"_s.arg(caller), u"team_members"_s, caller, "POST",
                     {}, accepted, 403, false);
        }
        addWrite(u"team_members: stranger cannot join the team"_s, u"team_members"_s, u"stranger"_s, "POST", {},
                 merged(accepted, {{u"user_id"_s, u"$stranger"_s}, {u"email"_s, u"ben@example.nl"_s}}), 403, false);
        addWrite(u"team_members: owner cannot accept for the invitee"_s, u"team_members"_s, u"owner"_s, "PATCH",
                 u"owner/team"_s, {{u"accepted_at"_s, u"$time"_s}}, 403, false);
        addWrite(u"team_members: owner cannot swap the member"_s, u"team_members"_s, u"owner"_s, "PATCH",
                 u"owner/team"_s, {{u"user_id"_s, u"$stranger"_s}}, 403, false);

        addWrite(u"trips: owner records a trip"_s, u"trips"_s, u"owner"_s, "POST", {}, defaults[u"trips"_s].insert, 201,
                 true);
        addWrite(u"trips: stranger cannot record a trip in the owner's name"_s, u"trips"_s, u"stranger"_s, "POST", {},
                 merged(defaults[u"trips"_s].insert, {{u"user_id"_s, u"$owner"_s}}), 403, false);

        addWrite(u"profiles: a second profile for oneself is a duplicate"_s, u"profiles"_s, u"stranger"_s, "POST", {},
                 {{u"id"_s, u"$stranger"_s}, {u"display_name"_s, u"$marker"_s}}, 409, false);
        // Row security answers before the duplicate key would.
        addWrite(u"profiles: stranger cannot create the owner's profile"_s, u"profiles"_s, u"stranger"_s, "POST", {},
                 {{u"id"_s, u"$owner"_s}, {u"display_name"_s, u"$marker"_s}}, 403, false);

        // The view is for reading only, even of one's own time.
        for (const QByteArray &method : {QByteArray("POST"), QByteArray("PATCH"), QByteArray("DELETE")}) {
            const TableDefaults &view = defaults[u"unbilled_time_entries"_s];
            addWrite(u"unbilled_time_entries: owner cannot %1 through the view"_s.arg(QString::fromLatin1(method)),
                     view.table, u"owner"_s, method, method == "POST" ? QString() : view.target,
                     method == "POST" ? view.insert : (method == "PATCH" ? view.patch : QJsonObject()), 403, false);
        }

        for (const TableDefaults &d : tableDefaults()) {
            for (const QByteArray &method : {QByteArray("POST"), QByteArray("PATCH"), QByteArray("DELETE")}) {
                addWrite(u"%1: anon cannot %2"_s.arg(d.table, QString::fromLatin1(method)), d.table, u"anon"_s, method,
                         method == "POST" ? QString() : d.target,
                         method == "POST" ? d.insert : (method == "PATCH" ? d.patch : QJsonObject()), 401, false);
            }
        }
    }

    void writeMatrix()
    {
        QFETCH(QString, table);
        QFETCH(QString, caller);
        QFETCH(QByteArray, method);
        QFETCH(QString, target);
        QFETCH(QJsonObject, body);
        QFETCH(int, status);
        QFETCH(bool, effect);

        const QByteArray stored = storageTable(table);
        const QJsonObject values = method == "DELETE" ? QJsonObject() : resolve(body);
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
        const QByteArray before = method == "POST" ? QByteArray() : rowSnapshot(stored, row.where);
        QVERIFY2(method == "POST" || !before.isEmpty(), "the target row was not made");
        QCOMPARE(count("SELECT count(*) FROM public." + stored + " WHERE " + written, params),
                 method == "DELETE" ? 1 : 0);

        const QByteArray path = table.toUtf8() + (method == "POST" ? QByteArray() : '?' + row.filter);
        const HttpResult result = send(caller, method, path, values);
        QCOMPARE(result.status, status);
        if (status >= 400) {
            QCOMPARE(result.code(), expectedCode(status));
            QCOMPARE(!result.header("WWW-Authenticate").isEmpty(), status == 401);
        } else {
            // A row the caller may not touch is not an error, just not among the rows written.
            QCOMPARE(result.json().array().size(), effect ? 1 : 0);
        }

        const int after = count("SELECT count(*) FROM public." + stored + " WHERE " + written, params);
        if (method == "DELETE") {
            QCOMPARE(after, effect ? 0 : 1);
        } else {
            QCOMPARE(after, effect ? 1 : 0);
        }
        if (!effect && method != "POST") {
            QCOMPARE(rowSnapshot(stored, row.where), before);
        }
    }

    void tokens_data()
    {
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QStringList>("visible"); // the projects read; {"*"} for all of them

        const QByteArray owner = id(u"owner"_s);
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        const QJsonObject claims{{u"sub"_s, QString::fromLatin1(owner)},
                                 {u"role"_s, u"authenticated"_s},
                                 {u"aud"_s, u"authenticated"_s},
                                 {u"iat"_s, now},
                                 {u"exp"_s, now + 3600}};
        const QByteArray good = m_backend.tokenFor(QString::fromLatin1(owner));
        const QList<QByteArray> parts = good.split('.');
        const QByteArray unsignedHeader = Jwt::base64Url(compact({{u"alg"_s, u"none"_s}, {u"typ"_s, u"JWT"_s}}));
        QJsonObject noRole = claims;
        noRole.remove(u"role"_s);
        const QByteArray secret = [this] {
            QFile file(m_backend.dataDir() + u"/jwt-secret"_s);
            file.open(QIODevice::ReadOnly);
            return file.readAll().trimmed();
        }();
        const QStringList own{u"privateProject"_s, u"teamProject"_s};
        const QString badToken = u"PGRST301"_s;

        QTest::newRow("signed for the owner") << good << Headers{} << 200 << QString() << own;
        QTest::newRow("signed with another secret")
            << Jwt::sign(claims, "a-secret-that-is-not-the-servers-but-long-enough") << Headers{} << 401 << badToken
            << QStringList();
        QTest::newRow("signature of another payload")
            << QByteArray(parts[0] + '.' + Jwt::base64Url(compact(merged(claims, {{u"role"_s, u"service_role"_s}}))) +
                          '.' + parts[2])
            << Headers{} << 401 << badToken << QStringList();
        QTest::newRow("unsigned") << QByteArray(unsignedHeader + '.' + parts[1] + '.') << Headers{} << 401 << badToken
                                  << QStringList();
        QTest::newRow("expired") << m_backend.tokenFor(QString::fromLatin1(owner), u"authenticated"_s, -60) << Headers{}
                                 << 401 << u"PGRST303"_s << QStringList();
        QTest::newRow("expiring this second") << m_backend.tokenFor(QString::fromLatin1(owner), u"authenticated"_s, 0)
                                              << Headers{} << 401 << u"PGRST303"_s << QStringList();
        QTest::newRow("two parts") << QByteArray(parts[0] + '.' + parts[1]) << Headers{} << 401 << badToken
                                   << QStringList();
        QTest::newRow("four parts") << QByteArray(good + ".x") << Headers{} << 401 << badToken << QStringList();
        QTest::newRow("not a token") << QByteArray("not-a-token") << Headers{} << 401 << badToken << QStringList();
        QTest::newRow("role postgres") << m_backend.tokenFor(QString::fromLatin1(owner), u"postgres"_s) << Headers{}
                                       << 401 << badToken << QStringList();
        QTest::newRow("role of the database owner") << m_backend.tokenFor(QString::fromLatin1(owner), u"morvane"_s)
                                                    << Headers{} << 401 << badToken << QStringList();
        QTest::newRow("not a bearer token")
            << QByteArray() << Headers{{"Authorization", "Basic " + good}} << 401 << badToken << QStringList();
        QTest::newRow("service role minted with the secret")
            << Jwt::sign({{u"role"_s, u"service_role"_s}, {u"exp"_s, now + 600}}, secret) << Headers{} << 200
            << QString() << QStringList{u"*"_s};
        QTest::newRow("anon key as bearer") << m_backend.anonKey() << Headers{} << 401 << u"42501"_s << QStringList();
        QTest::newRow("no token at all") << QByteArray() << Headers{} << 401 << u"42501"_s << QStringList();
        QTest::newRow("signed without a role acts as anon")
            << Jwt::sign(noRole, secret) << Headers{} << 401 << u"42501"_s << QStringList();
        QTest::newRow("signed without a user speaks for nobody")
            << Jwt::sign({{u"role"_s, u"authenticated"_s}, {u"exp"_s, now + 600}}, secret) << Headers{} << 401
            << badToken << QStringList();
        QTest::newRow("signed for an account that does not exist")
            << Jwt::sign(merged(claims, {{u"sub"_s, QUuid::createUuid().toString(QUuid::WithoutBraces)}}), secret)
            << Headers{} << 401 << badToken << QStringList();
        QTest::newRow("signed for a session that ended")
            << Jwt::sign(merged(claims, {{u"session_id"_s, QUuid::createUuid().toString(QUuid::WithoutBraces)}}),
                         secret)
            << Headers{} << 401 << badToken << QStringList();
    }

    void tokens()
    {
        QFETCH(QByteArray, token);
        QFETCH(Headers, headers);
        QFETCH(int, status);
        QFETCH(QString, code);
        QFETCH(QStringList, visible);

        const HttpResult read = m_backend.request("GET", "/rest/v1/projects?select=id", token, {}, headers);
        QCOMPARE(read.status, status);
        QCOMPARE(read.code(), code);
        QCOMPARE(!read.header("WWW-Authenticate").isEmpty(), status == 401);
        if (status != 200) {
            // Refused means refused for writing too: the owner's project survives a delete with it.
            const HttpResult removal =
                m_backend.request("DELETE", "/rest/v1/projects?id=eq." + id(u"privateProject"_s), token, {}, headers);
            QCOMPARE(removal.status, 401);
            QCOMPARE(count("SELECT count(*) FROM projects WHERE id = $1", {id(u"privateProject"_s)}), 1);
            return;
        }
        if (visible == QStringList{u"*"_s}) {
            visible.clear();
            const PgResult all = db().exec("SELECT id::text FROM projects");
            for (int row = 0; row < all.rows(); ++row) {
                visible.append(nameOf(all.value(row, 0)));
            }
            visible.sort();
            QVERIFY(visible.contains(u"strangerProject"_s));
        }
        QCOMPARE(keyNames(read.json().array(), u"id"_s), visible);
    }

    void invitations_data()
    {
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QString>("email"); // "$new": a fresh account; "$unknown": an address without one
        QTest::addColumn<QJsonValue>("role");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<QString>("invitee"); // who the address belongs to, when not a fresh account

        const QJsonValue viewer(u"viewer"_s);
        QTest::newRow("owner invites a viewer")
            << u"olga"_s << u"$new"_s << viewer << 200 << QString() << u"invited"_s << QString();
        QTest::newRow("owner invites an owner")
            << u"olga"_s << u"$new"_s << QJsonValue(u"owner"_s) << 200 << QString() << u"invited"_s << QString();
        QTest::newRow("editor invites an editor")
            << u"eddy"_s << u"$new"_s << QJsonValue(u"editor"_s) << 200 << QString() << u"invited"_s << QString();
        QTest::newRow("a member again, whatever the case and spaces")
            << u"olga"_s << u"  EDDY@Example.NL "_s << viewer << 200 << QString() << u"already_member"_s << u"eddy"_s;
        QTest::newRow("an address without an account")
            << u"olga"_s << u"$unknown"_s << viewer << 200 << QString() << u"no_account"_s << QString();
        QTest::newRow("editor cannot make an owner")
            << u"eddy"_s << u"$new"_s << QJsonValue(u"owner"_s) << 403 << u"42501"_s << QString() << QString();
        QTest::newRow("viewer cannot invite")
            << u"vera"_s << u"$new"_s << viewer << 403 << u"42501"_s << QString() << QString();
        QTest::newRow("outsider cannot invite")
            << u"stranger"_s << u"$new"_s << viewer << 403 << u"42501"_s << QString() << QString();
        // Rights come first, so an outsider cannot probe which addresses have accounts.
        QTest::newRow("outsider learns nothing about an address")
            << u"stranger"_s << u"$unknown"_s << viewer << 403 << u"42501"_s << QString() << QString();
        QTest::newRow("viewer with an unknown role is still refused for rights")
            << u"vera"_s << u"$new"_s << QJsonValue(u"admin"_s) << 403 << u"42501"_s << QString() << QString();
        QTest::newRow("unknown role") << u"olga"_s << u"$new"_s << QJsonValue(u"admin"_s) << 400 << u"22023"_s
                                      << QString() << QString();
        QTest::newRow("no role") << u"olga"_s << u"$new"_s << QJsonValue(QJsonValue::Null) << 400 << u"22023"_s
                                 << QString() << QString();
        QTest::newRow("anonymous caller")
            << u"anon"_s << u"$new"_s << viewer << 401 << u"42501"_s << QString() << QString();
    }

    void invitations()
    {
        QFETCH(QString, caller);
        QFETCH(QString, email);
        QFETCH(QJsonValue, role);
        QFETCH(int, status);
        QFETCH(QString, code);
        QFETCH(QString, outcome);
        QFETCH(QString, invitee);

        const QByteArray team = id(u"inviteTeam"_s);
        QByteArray user;
        if (email == u"$new") {
            invitee = newUser();
            email = invitee + u"@example.nl"_s;
        } else if (email == u"$unknown") {
            email = u"nobody-%1@example.nl"_s.arg(++m_newUsers);
        }
        if (!invitee.isEmpty()) {
            user = id(invitee);
        }
        auto memberRole = [&]() -> QByteArray {
            if (user.isEmpty()) {
                return {};
            }
            const PgResult row =
                db().exec("SELECT role FROM team_members WHERE team_id = $1 AND user_id = $2", {team, user});
            return row.rows() == 1 ? row.value(0, 0) : QByteArray();
        };
        const QByteArray roleBefore = memberRole();
        const int membersBefore = count("SELECT count(*) FROM team_members WHERE team_id = $1", {team});

        const HttpResult result = invite(caller, team, email, role);
        QCOMPARE(result.status, status);
        QCOMPARE(result.code(), code);
        QCOMPARE(!result.header("WWW-Authenticate").isEmpty(), status == 401);
        const QJsonObject answer = result.json().object();
        if (!outcome.isEmpty()) {
            QCOMPARE(answer.value(u"status"_s).toString(), outcome);
            QCOMPARE(answer.value(u"user_id"_s).toString().toUtf8(), user);
        }

        const int membersAfter = count("SELECT count(*) FROM team_members WHERE team_id = $1", {team});
        QCOMPARE(membersAfter, membersBefore + (outcome == u"invited" ? 1 : 0));
        if (outcome == u"invited") {
            const PgResult row = db().exec(
                "SELECT role, accepted_at IS NULL FROM team_members WHERE team_id = $1 AND user_id = $2", {team, user});
            QCOMPARE(row.value(0, 0), role.toString().toUtf8());
            QCOMPARE(row.value(0, 1), "t");
        } else {
            QCOMPARE(memberRole(), roleBefore);
        }
    }

    void anInvitationGrantsNothingUntilAccepted()
    {
        const QString invitee = newUser();
        const HttpResult created = send(u"olga"_s, "POST", "teams", {{u"name"_s, u"Pending"_s}});
        QCOMPARE(created.status, 201);
        const QByteArray team = created.json().array().first().toObject().value(u"id"_s).toString().toUtf8();
        const QByteArray project = add("projects", {{"user_id", id(u"olga"_s)}, {"team_id", team}, {"name", "Work"}});
        QCOMPARE(invite(u"olga"_s, team, invitee + u"@example.nl"_s, u"editor"_s).status, 200);

        auto rows = [&](const QString &caller, const QByteArray &target) {
            return send(caller, "GET", target, {}, {}).json().array().size();
        };
        auto sees = [&](bool member) {
            QCOMPARE(rows(invitee, "teams?id=eq." + team), member ? 1 : 0);
            QCOMPARE(rows(invitee, "projects?id=eq." + project), member ? 1 : 0);
            QCOMPARE(rows(invitee, "profiles?id=eq." + id(u"olga"_s)), member ? 1 : 0);
            QCOMPARE(rows(u"olga"_s, "profiles?id=eq." + id(invitee)), member ? 1 : 0);
            QCOMPARE(
                send(invitee, "PATCH", "projects?id=eq." + project, {{u"description"_s, u"x"_s}}).json().array().size(),
                member ? 1 : 0);
        };
        sees(false);
        const QJsonArray waiting = send(invitee, "POST", "rpc/my_team_invitations", {}, {}).json().array();
        QCOMPARE(waiting.size(), 1);
        QCOMPARE(waiting.first()[u"team_name"_s].toString(), u"Pending"_s);
        QCOMPARE(waiting.first()[u"role"_s].toString(), u"editor"_s);
        QCOMPARE(waiting.first()[u"invited_by_email"_s].toString(), u"olga@example.nl"_s);

        // Nobody answers for the invitee, and the invitation is the invitee's to accept.
        auto answer = [&](const QString &caller, const char *procedure) {
            return send(caller, "POST", QByteArray("rpc/") + procedure,
                        {{u"team_id_param"_s, QString::fromLatin1(team)}}, {});
        };
        QCOMPARE(answer(u"stranger"_s, "accept_team_invitation").status, 400);
        QCOMPARE(answer(u"olga"_s, "decline_team_invitation").status, 400);
        accept(invitee, team);
        sees(true);
        QCOMPARE(answer(invitee, "accept_team_invitation").json().object()[u"status"_s].toString(),
                 u"already_member"_s);
        QCOMPARE(answer(invitee, "decline_team_invitation").status, 400);

        // Declining removes the invitation and nothing else.
        const QString other = newUser();
        QCOMPARE(invite(u"olga"_s, team, other + u"@example.nl"_s, u"viewer"_s).status, 200);
        QCOMPARE(answer(other, "decline_team_invitation").json().object()[u"status"_s].toString(), u"declined"_s);
        QCOMPARE(count("SELECT count(*) FROM team_members WHERE team_id = $1 AND user_id = $2", {team, id(other)}), 0);
        QCOMPARE(send(other, "POST", "rpc/my_team_invitations", {}, {}).json().array().size(), 0);
    }

    void invitationsAreLimitedPerInviter()
    {
        const QString inviter = newUser();
        const HttpResult created = send(inviter, "POST", "teams", {{u"name"_s, u"Busy"_s}});
        const QByteArray team = created.json().array().first().toObject().value(u"id"_s).toString().toUtf8();
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

    void teamHoldsAtMostTenMembers()
    {
        const HttpResult created = send(u"olga"_s, "POST", "teams", {{u"name"_s, u"Full house"_s}});
        QCOMPARE(created.status, 201);
        const QByteArray team = created.json().array().first().toObject().value(u"id"_s).toString().toUtf8();
        auto members = [&] { return count("SELECT count(*) FROM team_members WHERE team_id = $1", {team}); };

        // The owner is the first of the ten.
        QCOMPARE(members(), 1);
        QString first;
        for (int i = 0; i < 9; ++i) {
            const QString user = newUser();
            first = first.isEmpty() ? user : first;
            const HttpResult invited = invite(u"olga"_s, team, user + u"@example.nl"_s, u"viewer"_s);
            QCOMPARE(invited.status, 200);
            QCOMPARE(invited.json().object().value(u"status"_s).toString(), u"invited"_s);
        }
        QCOMPARE(members(), 10);

        const QString eleventh = newUser();
        const HttpResult refused = invite(u"olga"_s, team, eleventh + u"@example.nl"_s, u"viewer"_s);
        QCOMPARE(refused.status, 400);
        QCOMPARE(refused.code(), u"23514"_s);
        QCOMPARE(members(), 10);

        // The limit is the table's, not just the procedure's: even its owner cannot go past it.
        QByteArray state;
        try {
            db().exec("INSERT INTO team_members (team_id, user_id, email, role) VALUES ($1, $2, 'x', 'viewer')",
                      {team, id(eleventh)});
        } catch (const PgException &error) {
            state = error.error().sqlstate;
        }
        QCOMPARE(state, QByteArray("23514"));
        QCOMPARE(members(), 10);

        // Someone already in a full team is told so, not that the team is full.
        const HttpResult again = invite(u"olga"_s, team, first + u"@example.nl"_s, u"viewer"_s);
        QCOMPARE(again.status, 200);
        QCOMPARE(again.json().object().value(u"status"_s).toString(), u"already_member"_s);
    }

    void invoiceNumbersPerUser()
    {
        const QString year = QString::number(currentInvoiceYear());
        auto number = [&](const QString &caller) { return send(caller, "POST", "rpc/next_invoice_number", {}, {}); };

        const HttpResult anonymous = number(u"anon"_s);
        QCOMPARE(anonymous.status, 401);
        QCOMPARE(anonymous.code(), u"42501"_s);
        // Without a user there is no counter to count with.
        QCOMPARE(number(u"service"_s).status, 403);

        struct Step
        {
            QString caller;
            QString expected;
        };
        const QList<Step> steps{
            {u"owner"_s, year + u"-0001"_s},
            {u"stranger"_s, year + u"-0001"_s},
            {u"owner"_s, year + u"-0002"_s},
            {u"stranger"_s, year + u"-0002"_s},
            // A number typed in by hand is skipped, not handed out twice.
            {u"$typed"_s, year + u"-0003"_s},
            {u"owner"_s, year + u"-0004"_s},
            {u"stranger"_s, year + u"-0003"_s},
        };
        for (const Step &step : steps) {
            if (step.caller == u"$typed") {
                const QJsonObject typed{
                    {u"number"_s, step.expected}, {u"issued_at"_s, u"2025-05-01"_s}, {u"currency"_s, u"EUR"_s}};
                QCOMPARE(send(u"owner"_s, "POST", "invoices", typed).status, 201);
                continue;
            }
            const HttpResult result = number(step.caller);
            QCOMPARE(result.status, 200);
            QCOMPARE(QString::fromUtf8(result.body), u'"' + step.expected + u'"');
        }
        db().exec("DELETE FROM invoices WHERE user_id = $1 AND number = $2",
                  {id(u"owner"_s), (year + u"-0003"_s).toUtf8()});
        // Deleting an invoice does not give its number back.
        const HttpResult after = number(u"owner"_s);
        QCOMPARE(QString::fromUtf8(after.body), u"\"%1-0005\""_s.arg(year));
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
        QTest::newRow("editor on a private invoice")
            << u"editor"_s << u"privateInvoice"_s << 400 << u"P0001"_s << u"invoice_not_found"_s;
        QTest::newRow("anonymous") << u"anon"_s << u"teamInvoice"_s << 401 << u"42501"_s << QString();
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

        const HttpResult result =
            send(caller, "POST", "rpc/void_invoice", {{u"p_invoice_id"_s, QString::fromLatin1(invoiceId)}}, {});
        QTEST(result.status, "status");
        QTEST(result.code(), "code");
        QVERIFY2(result.json().object().value(u"message"_s).toString().contains(message), result.body.constData());

        const PgResult after = db().exec(state, {invoiceId});
        QCOMPARE(after.value(0, 0), before.value(0, 0));
        QCOMPARE(after.value(0, 1), before.value(0, 1));
    }

    void voidInvoiceReleasesItsTimeAndStaysVoid()
    {
        const QByteArray client = add("clients", {{"user_id", id(u"owner"_s)}, {"name", "Gone soon"}});
        const QByteArray invoice = add("invoices", {{"user_id", id(u"owner"_s)},
                                                    {"team_id", id(u"team"_s)},
                                                    {"client_id", client},
                                                    {"number", "V-1"},
                                                    {"issued_at", "2025-06-01"},
                                                    {"currency", "EUR"}});
        const QByteArray entry = scratchEntry(true);
        const QByteArray second = scratchInvoice(u"owner"_s, std::nullopt);
        const QByteArray third = scratchInvoice(u"owner"_s, std::nullopt);
        const auto cleanUp = qScopeGuard([&] {
            db().exec("DELETE FROM time_entries WHERE id = $1", {entry});
            db().exec("DELETE FROM invoices WHERE id IN ($1, $2, $3)", {invoice, second, third});
            db().exec("DELETE FROM clients WHERE id = $1", {client});
        });
        auto linkTo = [&](const QByteArray &invoiceId) {
            return send(
                u"owner"_s, "POST", "invoice_entries",
                {{u"invoice_id"_s, QString::fromLatin1(invoiceId)}, {u"time_entry_id"_s, QString::fromLatin1(entry)}});
        };
        auto unbilled = [&] {
            return send(u"owner"_s, "GET", "unbilled_time_entries?select=id&id=eq." + entry, {}, {})
                .json()
                .array()
                .size();
        };
        auto liveLinks = [&] {
            return count("SELECT count(*) FROM invoice_entries WHERE time_entry_id = $1 AND live", {entry});
        };

        QCOMPARE(unbilled(), 1);
        QCOMPARE(linkTo(invoice).status, 201);
        QCOMPARE(unbilled(), 0);

        // An editor of the team may void the team's invoice.
        const QJsonObject voiding{{u"p_invoice_id"_s, QString::fromLatin1(invoice)}};
        QCOMPARE(send(u"editor"_s, "POST", "rpc/void_invoice", voiding, {}).status, 204);
        QCOMPARE(db().exec("SELECT status FROM invoices WHERE id = $1", {invoice}).value(0, 0), "void");
        QCOMPARE(liveLinks(), 0);
        QCOMPARE(count("SELECT count(*) FROM invoice_entries WHERE invoice_id = $1", {invoice}), 1);
        QCOMPARE(unbilled(), 1);
        QCOMPARE(send(u"owner"_s, "POST", "rpc/void_invoice", voiding, {}).status, 204);

        const QByteArray frozen = rowSnapshot("invoices", "id = '" + invoice + "'");
        const QList<QJsonObject> changes{{{u"status"_s, u"draft"_s}},
                                         {{u"status"_s, u"paid"_s}},
                                         {{u"status"_s, u"void"_s}},
                                         {{u"notes"_s, u"late remark"_s}},
                                         {{u"total"_s, 0}}};
        for (const QJsonObject &change : changes) {
            const HttpResult refused = send(u"owner"_s, "PATCH", "invoices?id=eq." + invoice, change);
            QCOMPARE(refused.status, 400);
            QCOMPARE(refused.code(), u"P0001"_s);
            QVERIFY2(refused.json().object().value(u"message"_s).toString().contains(u"invoice_void_final"),
                     refused.body.constData());
            QCOMPARE(rowSnapshot("invoices", "id = '" + invoice + "'"), frozen);
        }

        // Released time can be billed again, once.
        QCOMPARE(linkTo(second).status, 201);
        const HttpResult twice = linkTo(third);
        QCOMPARE(twice.status, 409);
        QCOMPARE(twice.code(), u"23505"_s);
        QCOMPARE(liveLinks(), 1);
        QCOMPARE(count("SELECT count(*) FROM invoice_entries WHERE invoice_id = $1 AND live", {second}), 1);

        // A void invoice that names a client does not stop the client from being deleted.
        HttpResult removed = send(u"owner"_s, "DELETE", "clients?id=eq." + client);
        QCOMPARE(removed.status, 200);
        QCOMPARE(removed.json().array().size(), 1);
        const PgResult named = db().exec("SELECT status, client_id IS NULL FROM invoices WHERE id = $1", {invoice});
        QCOMPARE(named.value(0, 0), "void");
        QCOMPARE(named.value(0, 1), "t");

        removed = send(u"owner"_s, "DELETE", "invoices?id=eq." + invoice);
        QCOMPARE(removed.status, 200);
        QCOMPARE(removed.json().array().size(), 1);
        QCOMPARE(count("SELECT count(*) FROM invoice_entries WHERE invoice_id = $1", {invoice}), 0);
    }
};

QTEST_GUILESS_MAIN(TestSecurity)
#include "tst_security.moc"
