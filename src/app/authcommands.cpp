#include "authcommands.h"

#include "app/clisession.h"
#include "backend/authstore.h"
#include "backend/runblocking.h"
#include "backend/urlscheme.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTextStream>


using namespace Qt::StringLiterals;

namespace {

// Reads one line; on a terminal without echoing it.
QString readPassword(QTextStream &in, QTextStream &err)
{
    //% "Password: "
    return Cli::readSecret(in, qtTrId("cli.auth.password"), err);
}

QJsonObject statusJson(const AuthStore &auth)
{
    return {{u"signed_in"_s, auth.isSignedIn()}, {u"email"_s, auth.email()}, {u"user_id"_s, auth.userId()}};
}

int failed(const AuthStore &auth, QTextStream &err)
{
    err << auth.lastError() << Qt::endl;
    return 1;
}

// A desktop session can hand the application's own addresses back to it; elsewhere (a server,
// a terminal over ssh) the browser comes back to a loopback address instead.
bool desktopCanOpenAddresses()
{
    return !QStandardPaths::findExecutable(u"xdg-open"_s).isEmpty() &&
           (qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
}

bool signInThroughBrowser(AuthStore &auth, const QString &provider, QTextStream &err)
{
    const bool desktop = desktopCanOpenAddresses();
    CallbackRelay relay;
    std::optional<QUrl> appRedirect;
    // The entry names this very program, so the address reaches the build the user runs.
    if (desktop && UrlScheme::registerHandler(QCoreApplication::applicationFilePath()) && relay.listen()) {
        appRedirect = UrlScheme::callbackUrl();
        QObject::connect(&relay, &CallbackRelay::callbackReceived, &auth, &AuthStore::handleCallback);
    }
    const auto openBrowser = [&](const QUrl &address) {
        const QString text = QString::fromUtf8(address.toEncoded());
        //% "Continue in your browser. If no page opens, go to: %1"
        err << qtTrId("cli.auth.browser").arg(text) << Qt::endl;
        if (desktop) {
            QProcess::startDetached(u"xdg-open"_s, {text});
        }
        return true;
    };
    return runBlocking(auth.signInWithOAuth(provider, openBrowser, appRedirect));
}

} // namespace

int runAuthCommand(const QStringList &arguments, QTextStream &out, QTextStream &err, QTextStream &in)
{
    QCommandLineParser parser;
    //% "Print the answer as JSON."
    const QCommandLineOption json(u"json"_s, qtTrId("cli.option.json"));
    //% "The name shown on your profile and to your team."
    const QCommandLineOption name(u"name"_s, qtTrId("cli.auth.option.name"), u"name"_s);
    //% "Sign in through an outside provider in the browser instead of with a password."
    const QCommandLineOption provider(u"provider"_s, qtTrId("cli.auth.option.provider"), u"provider"_s);
    parser.addOptions({json, name, provider});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.auth"));
    if (!parser.parse(arguments)) {
        err << parser.errorText() << Qt::endl;
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    static const QStringList actions{u"signup"_s, u"signin"_s, u"signout"_s, u"status"_s, u"switch"_s, u"accounts"_s};
    const bool needsAddress =
        action == u"signup" || (action == u"signin" && !parser.isSet(provider)) || action == u"switch";
    if (!actions.contains(action) || (needsAddress && positional.size() < 2)) {
        //% "Usage: morvane auth signup|signin <e-mail> | signin --provider NAME | signout | status | switch <e-mail> | accounts [--json]"
        err << qtTrId("cli.auth.usage") << Qt::endl;
        return 2;
    }

    AuthStore auth(Supabase::shared(), runBlocking(SecretStore::system()), std::make_shared<QSettings>());
    runBlocking(auth.restore());
    const QString address = positional.value(1);
    //% "Signed in as %1."
    const auto signedInAs = [&] { return qtTrId("cli.auth.signedIn").arg(auth.email()); };

    if (action == u"signup") {
        const AuthStore::RegisterResult result =
            runBlocking(auth.registerAccount(address, readPassword(in, err), parser.value(name)));
        if (result == AuthStore::RegisterResult::SignedIn) {
            out << signedInAs() << Qt::endl;
            return 0;
        }
        if (result == AuthStore::RegisterResult::NeedsConfirmation) {
            //% "Check your inbox: confirm %1 with the link in the mail, then sign in."
            out << qtTrId("cli.auth.confirm").arg(auth.unconfirmedEmail()) << Qt::endl;
            return 0;
        }
        return failed(auth, err);
    }
    if (action == u"signin" && parser.isSet(provider)) {
        if (!signInThroughBrowser(auth, parser.value(provider), err)) {
            return failed(auth, err);
        }
        out << signedInAs() << Qt::endl;
        return 0;
    }
    if (action == u"signin") {
        if (!runBlocking(auth.signIn(address, readPassword(in, err)))) {
            return failed(auth, err);
        }
        out << signedInAs() << Qt::endl;
        return 0;
    }
    if (action == u"signout") {
        runBlocking(auth.signOut());
        //% "Signed out."
        out << qtTrId("cli.auth.signedOut") << Qt::endl;
        return 0;
    }
    if (action == u"switch") {
        const QList<RememberedAccount> accounts = auth.accounts();
        const auto found = std::find_if(accounts.cbegin(), accounts.cend(), [&](const RememberedAccount &account) {
            return account.email.compare(address, Qt::CaseInsensitive) == 0 || account.id == address;
        });
        if (found == accounts.cend()) {
            //% "No remembered account %1. Sign in to it first."
            err << qtTrId("cli.auth.unknownAccount").arg(address) << Qt::endl;
            return 1;
        }
        if (!runBlocking(auth.switchAccount(found->id))) {
            return failed(auth, err);
        }
        out << signedInAs() << Qt::endl;
        return 0;
    }
    if (action == u"accounts") {
        if (parser.isSet(json)) {
            QJsonArray list;
            for (const RememberedAccount &account : auth.accounts()) {
                list.append(QJsonObject{
                    {u"id"_s, account.id}, {u"email"_s, account.email}, {u"current"_s, account.id == auth.userId()}});
            }
            out << QJsonDocument(list).toJson(QJsonDocument::Indented);
            return 0;
        }
        if (auth.accounts().isEmpty()) {
            //% "No remembered accounts."
            out << qtTrId("cli.auth.noAccounts") << Qt::endl;
        }
        for (const RememberedAccount &account : auth.accounts()) {
            out << (account.id == auth.userId() ? u"* "_s : u"  "_s) << account.email << Qt::endl;
        }
        return 0;
    }
    // status: a session counts only when a token can still be had for it.
    if (auth.isSignedIn()) {
        runBlocking(auth.validToken(30));
    }
    if (parser.isSet(json)) {
        out << QJsonDocument(statusJson(auth)).toJson(QJsonDocument::Indented);
        return 0;
    }
    out << (auth.isSignedIn() ? signedInAs() : SupabaseError::noAuth().message()) << Qt::endl;
    return auth.isSignedIn() ? 0 : 1;
}
