#include "auth/redirectpolicy.h"
#include "serverapp.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <malloc.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

int signalPipe[2];

void onSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
}

} // namespace

int main(int argc, char *argv[])
{
    // Request bodies of several megabytes come and go. Left to itself the allocator raises its
    // threshold for mapping memory to the largest block freed, keeps later large blocks on the heap
    // and never gives them back; a fixed threshold returns each one when it is freed.
    mallopt(M_MMAP_THRESHOLD, 256 * 1024);

    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"morvane-server"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(u"The Morvane backend: a PostgreSQL database behind the REST, authentication, "
                                     u"storage and realtime interfaces the application speaks."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dataDir(u"data-dir"_s, u"Folder for the database, secrets and files."_s, u"dir"_s,
                                     ServerApp::defaultDataDir());
    const QCommandLineOption port(u"port"_s, u"Port to listen on (0 picks a free one)."_s, u"port"_s, u"54321"_s);
    const QCommandLineOption listen(u"listen"_s, u"Address to listen on."_s, u"address"_s, u"127.0.0.1"_s);
    const QCommandLineOption databaseUrl(
        u"database-url"_s, u"Use this PostgreSQL database instead of a private one (libpq form)."_s, u"url"_s);
    const QCommandLineOption migrations(u"migrations-dir"_s,
                                        u"Apply the migrations of this folder instead of those built in."_s, u"dir"_s);
    const QCommandLineOption idle(u"idle-timeout"_s, u"Close connections idle for this many seconds (default 60)."_s,
                                  u"seconds"_s, u"60"_s);
    const QCommandLineOption confirmEmail(
        u"confirm-email"_s,
        u"Send confirmation e-mails (to the outbox folder) instead of confirming sign-ups at once."_s);
    const QCommandLineOption providers(
        u"auth-providers"_s, u"OpenID Connect providers for sign-in (default: <data-dir>/auth-providers.json)."_s,
        u"file"_s);
    const QCommandLineOption realtimeBacklog(
        u"realtime-max-backlog"_s,
        u"Drop a realtime subscriber that leaves more than this many bytes unread (default 16 MiB)."_s, u"bytes"_s,
        QString::number(16 * 1024 * 1024));
    const QCommandLineOption redirectUrl(
        u"redirect-url"_s,
        u"Also allow e-mail links and sign-ins to lead to this address (its origin); may be repeated."_s, u"url"_s);
    const QCommandLineOption aiProvider(
        u"ai-provider"_s,
        u"Let signed-in users reach this AI service through the \"morvane-ai\" function: anthropic, openai or gemini."_s,
        u"name"_s);
    const QCommandLineOption aiKeyFile(
        u"ai-key-file"_s, u"The file holding the AI service's key; only its owner may read it (chmod 600)."_s,
        u"file"_s);
    const QCommandLineOption aiBaseUrl(
        u"ai-base-url"_s, u"Reach the AI service at this address instead of its public one (a gateway of your own)."_s,
        u"url"_s);
    const QCommandLineOption aiRate(
        u"ai-calls-per-hour"_s, u"How many AI calls each user may make per hour (default 60)."_s, u"count"_s, u"60"_s);
    parser.addOptions({dataDir, port, listen, databaseUrl, migrations, idle, confirmEmail, providers, realtimeBacklog,
                       redirectUrl, aiProvider, aiKeyFile, aiBaseUrl, aiRate});
    parser.process(app);

    bool portOk = false;
    const uint portNumber = parser.value(port).toUInt(&portOk);
    if (!portOk || portNumber > 65535) {
        std::fprintf(stderr, "morvane-server: --port needs a number from 0 to 65535\n");
        return 2;
    }

    bool idleOk = false;
    const int idleSeconds = parser.value(idle).toInt(&idleOk);
    if (!idleOk || idleSeconds < 1) {
        std::fprintf(stderr, "morvane-server: --idle-timeout needs a number of seconds, 1 or more\n");
        return 2;
    }
    bool backlogOk = false;
    const qint64 backlogBytes = parser.value(realtimeBacklog).toLongLong(&backlogOk);
    if (!backlogOk || backlogBytes < 1024) {
        std::fprintf(stderr, "morvane-server: --realtime-max-backlog needs a number of bytes, 1024 or more\n");
        return 2;
    }
    const QStringList redirectUrls = parser.values(redirectUrl);
    for (const QString &address : redirectUrls) {
        if (RedirectPolicy::strictOrigin(address).isEmpty()) {
            std::fprintf(stderr, "morvane-server: --redirect-url needs an http or https address, not %s\n",
                         qPrintable(address));
            return 2;
        }
    }
    std::optional<AIRelay::Config> relay;
    if (parser.isSet(aiProvider) || parser.isSet(aiKeyFile)) {
        const std::optional<AIVendor> vendor = AIWire::vendorFromName(parser.value(aiProvider));
        if (!vendor || !parser.isSet(aiKeyFile)) {
            std::fprintf(stderr, "morvane-server: the AI relay needs --ai-provider anthropic|openai|gemini and "
                                 "--ai-key-file FILE\n");
            return 2;
        }
        const auto key = AIRelay::readKeyFile(parser.value(aiKeyFile));
        if (const auto *problem = std::get_if<1>(&key)) {
            std::fprintf(stderr, "morvane-server: --ai-key-file: %s\n", qPrintable(*problem));
            return 2;
        }
        relay = AIRelay::Config{*vendor, std::get<0>(key)};
        if (parser.isSet(aiBaseUrl)) {
            const QUrl base(parser.value(aiBaseUrl));
            if (!base.isValid() || base.host().isEmpty() || (base.scheme() != u"https" && base.scheme() != u"http")) {
                std::fprintf(stderr, "morvane-server: --ai-base-url needs an http or https address\n");
                return 2;
            }
            relay->baseUrl = base;
        }
        bool rateOk = false;
        relay->callsPerHour = parser.value(aiRate).toInt(&rateOk);
        if (!rateOk || relay->callsPerHour < 1) {
            std::fprintf(stderr, "morvane-server: --ai-calls-per-hour needs a number, 1 or more\n");
            return 2;
        }
    }
    ServerApp server({parser.value(dataDir), quint16(portNumber), parser.value(listen), parser.value(databaseUrl),
                      parser.value(migrations), idleSeconds, parser.isSet(confirmEmail), parser.value(providers),
                      backlogBytes, redirectUrls, relay});

    // Signals arrive on any thread; a pipe turns them into an event of the main loop, where the
    // database can be stopped cleanly.
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) {
        return 1;
    }
    QSocketNotifier notifier(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &app, [&] {
        char byte = 0;
        [[maybe_unused]] const auto read = ::read(signalPipe[0], &byte, 1);
        QCoreApplication::quit();
    });
    struct sigaction action
    {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGHUP, &action, nullptr);

    if (!server.start()) {
        return 1;
    }
    const int code = QCoreApplication::exec();
    server.stop();
    return code;
}
