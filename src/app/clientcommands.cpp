#include "app/clisession.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"

#include <QFile>
#include <QJsonArray>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

// Shortest id start taken as a reference, as for projects and tasks: shorter ones match by accident.
constexpr qsizetype minimumIdPrefix = 4;

// Names are compared as a person types them: any case, blanks around and between words ignored.
QString nameKey(const QString &name)
{
    return name.simplified().toCaseFolded();
}

std::optional<Client> findClient(const QList<Client> &clients, const QString &reference, QTextStream &err)
{
    const QString wanted = reference.trimmed();
    QList<Client> byName;
    QList<Client> byPrefix;
    for (const Client &client : clients) {
        if (client.id.compare(wanted, Qt::CaseInsensitive) == 0) {
            return client;
        }
        if (nameKey(client.name) == nameKey(wanted)) {
            byName << client;
        } else if (wanted.size() >= minimumIdPrefix && client.id.startsWith(wanted, Qt::CaseInsensitive)) {
            byPrefix << client;
        }
    }
    const QList<Client> &matches = byName.isEmpty() ? byPrefix : byName;
    if (matches.size() == 1) {
        return matches.first();
    }
    if (matches.isEmpty()) {
        //% "No client matches \"%1\". See them with: morvane clients list"
        err << qtTrId("cli.clients.noMatch").arg(Cli::printable(wanted)) << Qt::endl;
        return std::nullopt;
    }
    QStringList names;
    for (const Client &client : matches) {
        names << Cli::shortId(client.id) + u' ' + Cli::printable(client.name);
    }
    err << qtTrId("cli.ref.ambiguous").arg(Cli::printable(wanted), names.join(u", "_s)) << Qt::endl;
    return std::nullopt;
}

int listClients(const QList<Client> &clients, bool json, QTextStream &out)
{
    if (json) {
        QJsonArray rows;
        for (const Client &client : clients) {
            rows.append(Wire::encode(client));
        }
        Cli::printJson(out, rows);
        return 0;
    }
    if (clients.isEmpty()) {
        //% "No clients yet. Add one with: morvane clients add <name>"
        out << qtTrId("cli.clients.none") << Qt::endl;
        return 0;
    }
    qsizetype width = 0;
    for (const Client &client : clients) {
        width = std::max(width, Cli::printable(client.name).size());
    }
    for (const Client &client : clients) {
        QStringList details;
        if (client.email) {
            details << Cli::printable(*client.email);
        }
        if (client.vatId) {
            //% "VAT %1"
            details << qtTrId("cli.clients.vat").arg(Cli::printable(*client.vatId));
        }
        if (client.kvk) {
            //% "CoC %1"
            details << qtTrId("cli.clients.coc").arg(Cli::printable(*client.kvk));
        }
        if (client.address) {
            details << Cli::printable(client.address->split(u'\n', Qt::SkipEmptyParts).join(u", "_s));
        }
        out << Cli::shortId(client.id) << u"  "_s << Cli::printable(client.name).leftJustified(width);
        if (!details.isEmpty()) {
            out << u"  "_s << details.join(u"  "_s);
        }
        out << u'\n';
    }
    out.flush();
    return 0;
}

} // namespace

int runClientsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "The client's e-mail address."
    const QCommandLineOption email(u"email"_s, qtTrId("cli.clients.option.email"), u"address"_s);
    //% "The client's postal address; it may span several lines."
    const QCommandLineOption address(u"address"_s, qtTrId("cli.clients.option.address"), u"text"_s);
    //% "The client's VAT number."
    const QCommandLineOption vat(u"vat-number"_s, qtTrId("cli.clients.option.vat"), u"number"_s);
    //% "The client's chamber-of-commerce number."
    const QCommandLineOption coc(u"coc-number"_s, qtTrId("cli.clients.option.coc"), u"number"_s);
    //% "A new name (edit only)."
    const QCommandLineOption name(u"name"_s, qtTrId("cli.clients.option.name"), u"name"_s);
    //% "Delete without asking first."
    const QCommandLineOption yes(u"yes"_s, qtTrId("cli.clients.option.yes"));
    parser.addOptions({help, email, address, vat, coc, name, yes});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.clients"), u"list|add|edit|rm"_s);
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    //% "Usage: morvane clients list | add <name> [--email E] [--address A] [--vat-number V] [--coc-number C] | edit
    //<client> [--name N] [--email E] [--address A] [--vat-number V] [--coc-number C] | rm <client> [--yes] [--json]"
    const QString usageText = qtTrId("cli.clients.usage");
    if (parser.isSet(help)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const bool anyField = parser.isSet(email) || parser.isSet(address) || parser.isSet(vat) || parser.isSet(coc);
    const bool known =
        (action == u"list" && positional.size() == 1 && !anyField && !parser.isSet(name)) ||
        (action == u"add" && positional.size() == 2 && !positional.at(1).trimmed().isEmpty() && !parser.isSet(name)) ||
        (action == u"edit" && positional.size() == 2 && (anyField || parser.isSet(name))) ||
        (action == u"rm" && positional.size() == 2 && !anyField && !parser.isSet(name));
    if (!known || (parser.isSet(yes) && action != u"rm")) {
        return Cli::usage(err, usageText);
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);
    const auto print = [&](const Client &client, const QString &text) {
        if (json) {
            Cli::printJson(out, Wire::encode(client));
        } else {
            out << text << Qt::endl;
        }
        return 0;
    };
    const auto valueOf = [&](const QCommandLineOption &option, const std::optional<QString> &current) {
        return parser.isSet(option) ? std::optional<QString>(parser.value(option)) : current;
    };

    if (action == u"list") {
        return listClients(store.clients(), json, out);
    }
    if (action == u"add") {
        ClientInsert draft;
        draft.name = positional.at(1);
        draft.email = valueOf(email, std::nullopt);
        draft.address = valueOf(address, std::nullopt);
        draft.vatId = valueOf(vat, std::nullopt);
        draft.kvk = valueOf(coc, std::nullopt);
        const std::optional<Client> created = runBlocking(store.createClient(draft));
        if (!created) {
            return session.failed(err);
        }
        //% "Added client %1 (%2)."
        return print(*created,
                     qtTrId("cli.clients.added").arg(Cli::printable(created->name), Cli::shortId(created->id)));
    }

    const std::optional<Client> client = findClient(store.clients(), positional.at(1), err);
    if (!client) {
        return 1;
    }
    if (action == u"edit") {
        // The patch clears what it leaves out, so the fields not named keep their current values.
        ClientPatch patch;
        patch.name = parser.isSet(name) ? parser.value(name) : client->name;
        patch.email = valueOf(email, client->email);
        patch.address = valueOf(address, client->address);
        patch.vatId = valueOf(vat, client->vatId);
        patch.kvk = valueOf(coc, client->kvk);
        if (patch.name->trimmed().isEmpty()) {
            return Cli::usage(err, usageText);
        }
        if (!runBlocking(store.updateClient(client->id, patch))) {
            return session.failed(err);
        }
        const auto saved = std::find_if(store.allClients().cbegin(), store.allClients().cend(),
                                        [&](const Client &c) { return c.id == client->id; });
        //% "Saved client %1."
        return print(saved != store.allClients().cend() ? *saved : *client,
                     qtTrId("cli.clients.saved").arg(Cli::printable(*patch.name)));
    }
    // rm
    if (!parser.isSet(yes) && !Cli::confirm(
                                  //% "Delete the client %1? Invoices that name it keep it. [y/N] "
                                  qtTrId("cli.clients.confirmDelete").arg(Cli::printable(client->name)), err)) {
        //% "Nothing deleted."
        err << qtTrId("cli.clients.kept") << Qt::endl;
        return 1;
    }
    if (!runBlocking(store.deleteClient(client->id))) {
        return session.failed(err);
    }
    Client archived = *client;
    archived.archived = true;
    //% "Deleted client %1."
    return print(archived, qtTrId("cli.clients.deleted").arg(Cli::printable(client->name)));
}
