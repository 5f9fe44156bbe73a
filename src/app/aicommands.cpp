#include "aicommands.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "backend/secretstore.h"
#include "sessions/aiwire.h"
#include "sessions/claudebridge.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <QSettings>
#include <QTextStream>


using namespace Qt::StringLiterals;

namespace {

using Route = ClaudeBridge::Route;

const QList<std::pair<QString, Route>> routes{{u"claudeCLI"_s, Route::ClaudeCLI},
                                              {u"morvaneAI"_s, Route::MorvaneAI},
                                              {u"anthropic"_s, Route::Anthropic},
                                              {u"openAI"_s, Route::OpenAI},
                                              {u"gemini"_s, Route::Gemini}};

QString consentText(std::optional<bool> answer)
{
    if (!answer) {
        //% "not asked yet"
        return qtTrId("cli.ai.consentAsk");
    }
    if (*answer) {
        //% "allowed"
        return qtTrId("cli.ai.consentAllowed");
    }
    //% "declined"
    return qtTrId("cli.ai.consentDeclined");
}

int show(const ClaudeBridge &bridge, SecretStore &secrets, bool json, QTextStream &out)
{
    const Route now = bridge.currentRoute();
    QJsonObject keys;
    QStringList stored;
    for (AIVendor vendor : {AIVendor::Anthropic, AIVendor::OpenAI, AIVendor::Gemini}) {
        const std::optional<QString> key = runBlocking(secrets.read(ClaudeBridge::keyItem(vendor)));
        const bool present = key && !key->isEmpty();
        keys.insert(AIWire::vendorName(vendor), present);
        if (present) {
            stored << AIWire::displayName(vendor);
        }
    }
    QJsonObject consent;
    for (const auto &[name, route] : routes) {
        if (ClaudeBridge::needsConsent(route)) {
            const std::optional<bool> answer = bridge.consent(route);
            consent.insert(name, answer ? QJsonValue(*answer) : QJsonValue());
        }
    }
    if (json) {
        Cli::printJson(out, QJsonObject{{u"provider"_s, AIProviders::storedName(bridge.provider())},
                                        {u"route"_s, ClaudeBridge::routeName(now)},
                                        {u"destination"_s, ClaudeBridge::routeDestination(now)},
                                        {u"keys"_s, keys},
                                        {u"consent"_s, consent}});
        return 0;
    }
    //% "Provider setting: %1"
    out << qtTrId("cli.ai.provider").arg(AIProviders::storedName(bridge.provider())) << '\n';
    //% "Calls go to: %1"
    out << qtTrId("cli.ai.route").arg(ClaudeBridge::routeName(now)) << '\n'
        << ClaudeBridge::routeDestination(now) << '\n';
    //% "Your keys in the keyring: %1"
    out << qtTrId("cli.ai.keys").arg(stored.isEmpty() ? u"-"_s : stored.join(u", "_s)) << '\n';
    for (const auto &[name, route] : routes) {
        if (ClaudeBridge::needsConsent(route)) {
            out << u"  "_s << ClaudeBridge::routeName(route) << u": "_s << consentText(bridge.consent(route)) << '\n';
        }
    }
    out.flush();
    return 0;
}


} // namespace

int runAICommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "Remove the stored key instead of setting one."
    const QCommandLineOption remove(u"remove"_s, qtTrId("cli.ai.option.remove"));
    parser.addOptions({help, remove});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.ai"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    //% "Usage: morvane ai show [--json] | provider auto|cliOnly|morvaneAIOnly|anthropicCustom|openAICustom|geminiCustom
    // | key anthropic|openai|gemini [--remove] | consent morvaneAI|anthropic|openAI|gemini allow|deny|ask"
    const QString usage = qtTrId("cli.ai.usage");
    if (parser.isSet(help)) {
        out << usage << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0, u"show"_s);
    auto settings = std::make_shared<QSettings>();
    ClaudeBridge bridge(settings);
    const std::shared_ptr<SecretStore> secrets = runBlocking(SecretStore::system());

    if (action == u"show" && positional.size() <= 1 && !parser.isSet(remove)) {
        return show(bridge, *secrets, Cli::wantsJson(parser), out);
    }
    if (action == u"provider" && positional.size() == 2 && !parser.isSet(remove)) {
        const AIProvider provider = AIProviders::fromStoredName(positional[1]);
        // Unknown names read as auto; here a typing error must not silently choose for the user.
        if (AIProviders::storedName(provider) != positional[1]) {
            return Cli::usage(err, usage);
        }
        settings->setValue(u"ai.provider"_s, positional[1]);
        settings->sync();
        return show(bridge, *secrets, Cli::wantsJson(parser), out);
    }
    const std::optional<AIVendor> vendor = AIWire::vendorFromName(positional.value(1));
    if (action == u"key" && positional.size() == 2 && vendor) {
        const QString item = ClaudeBridge::keyItem(*vendor);
        const QString name = AIWire::displayName(*vendor);
        if (parser.isSet(remove)) {
            runBlocking(secrets->remove(item));
            //% "The %1 key is no longer in your keyring."
            out << qtTrId("cli.ai.keyRemoved").arg(name) << Qt::endl;
            return 0;
        }
        //% "Paste your %1 API key and press Enter: "
        QTextStream in(stdin);
        const QString key = Cli::readSecret(in, qtTrId("cli.ai.keyPrompt").arg(name), err).trimmed();
        if (key.isEmpty() || key.contains(u' ')) {
            //% "No key was given; nothing changed."
            err << qtTrId("cli.ai.keyMissing") << Qt::endl;
            return 2;
        }
        if (!runBlocking(secrets->write(item, key))) {
            //% "The keyring did not take the key; nothing changed."
            err << qtTrId("cli.ai.keyFailed") << Qt::endl;
            return 1;
        }
        //% "The %1 key is in your keyring."
        out << qtTrId("cli.ai.keySaved").arg(name) << Qt::endl;
        return 0;
    }
    const auto route = std::find_if(routes.cbegin(), routes.cend(),
                                    [&](const auto &entry) { return entry.first == positional.value(1); });
    const QString answer = positional.value(2);
    if (action == u"consent" && positional.size() == 3 && route != routes.cend() &&
        ClaudeBridge::needsConsent(route->second) && !parser.isSet(remove) &&
        (answer == u"allow" || answer == u"deny" || answer == u"ask")) {
        if (answer == u"ask") {
            bridge.clearConsent(route->second);
        } else {
            bridge.setConsent(route->second, answer == u"allow");
        }
        return show(bridge, *secrets, Cli::wantsJson(parser), out);
    }
    return Cli::usage(err, usage);
}
