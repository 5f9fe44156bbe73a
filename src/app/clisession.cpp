#include "clisession.h"

#include "backend/runblocking.h"
#include "store/storetext.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Shortest id start accepted as a reference: shorter ones would match by accident.
constexpr qsizetype minimumIdPrefix = 4;

template<typename T, typename NameOf, typename IdOf>
std::optional<T> pick(const QList<T> &items, const QString &reference, NameOf nameOf, IdOf idOf, QTextStream &err,
                      const QString &noMatch)
{
    const QString wanted = reference.trimmed();
    QList<T> byPrefix;
    QList<T> byName;
    for (const T &item : items) {
        const QString id = idOf(item);
        if (id == wanted) {
            return item;
        }
        if (wanted.size() >= minimumIdPrefix && id.startsWith(wanted, Qt::CaseInsensitive)) {
            byPrefix.append(item);
        }
        if (nameOf(item).compare(wanted, Qt::CaseInsensitive) == 0) {
            byName.append(item);
        }
    }
    const QList<T> &matches = byName.isEmpty() ? byPrefix : byName;
    if (matches.size() == 1) {
        return matches.first();
    }
    if (matches.isEmpty()) {
        err << noMatch.arg(wanted) << Qt::endl;
        return std::nullopt;
    }
    QStringList names;
    for (const T &item : matches) {
        names << Cli::shortId(idOf(item)) + u' ' + nameOf(item);
    }
    //% "\"%1\" matches several: %2. Use the id."
    err << qtTrId("cli.ref.ambiguous").arg(wanted, names.join(u", "_s)) << Qt::endl;
    return std::nullopt;
}

} // namespace

CliSession::CliSession()
    : m_secrets(runBlocking(SecretStore::system()))
    , m_auth(std::make_unique<AuthStore>(Supabase::shared(), m_secrets, std::make_shared<QSettings>()))
    , m_store(std::make_unique<AppStore>(*m_auth, std::make_shared<QSettings>()))
    , m_sequence(std::make_unique<SessionSequence>(*m_auth, *m_store))
{
    m_store->setRealtimeEnabled(false);
}

CliSession::~CliSession()
{
    // The sequence follows the auth store's signals; it goes first.
    m_sequence.reset();
    m_store.reset();
}

bool CliSession::open(QTextStream &err)
{
    runBlocking(m_auth->restore());
    if (!m_auth->isSignedIn()) {
        //% "Not signed in. Sign in with: morvane auth signin <e-mail>"
        err << qtTrId("cli.err.notSignedIn") << Qt::endl;
        return false;
    }
    if (!runBlocking(m_sequence->run())) {
        const QString message = m_store->lastError().isEmpty() ? StoreText::loadFailed() : m_store->lastError();
        err << message << Qt::endl;
        return false;
    }
    m_store->stopSync();
    return true;
}

int CliSession::failed(QTextStream &err) const
{
    err << (m_store->lastError().isEmpty() ? StoreText::writeFailed() : m_store->lastError()) << Qt::endl;
    return 1;
}

std::optional<Project> CliSession::project(const QString &reference, QTextStream &err) const
{
    //% "No project matches \"%1\"."
    return pick(
        m_store->projects(), reference, [](const Project &p) { return p.name; }, [](const Project &p) { return p.id; },
        err, qtTrId("cli.ref.noProject"));
}

std::optional<TaskItem> CliSession::task(const QString &reference, QTextStream &err) const
{
    QList<TaskItem> all;
    for (const Project &project : m_store->projects()) {
        all += m_store->tasks(project.id);
    }
    //% "No task matches \"%1\"."
    return pick(
        all, reference, [](const TaskItem &t) { return t.title; }, [](const TaskItem &t) { return t.id; }, err,
        qtTrId("cli.ref.noTask"));
}

std::optional<Team> CliSession::team(const QString &reference, QTextStream &err) const
{
    //% "No team matches \"%1\"."
    return pick(
        m_store->teams(), reference, [](const Team &t) { return t.name; }, [](const Team &t) { return t.id; }, err,
        qtTrId("cli.ref.noTeam"));
}

std::optional<TeamInvitation> CliSession::invitation(const QString &reference, QTextStream &err) const
{
    //% "No invitation to a team matches \"%1\". See them with: morvane teams invitations"
    return pick(
        m_store->invitations(), reference, [](const TeamInvitation &i) { return i.teamName; },
        [](const TeamInvitation &i) { return i.teamId; }, err, qtTrId("cli.ref.noInvitation"));
}

namespace Cli {

QString shortId(const QString &id)
{
    return id.left(8);
}

void printJson(QTextStream &out, const QJsonValue &value)
{
    const QJsonDocument document = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    out << document.toJson(QJsonDocument::Indented);
    out.flush();
}

bool parse(QCommandLineParser &parser, const QStringList &arguments, QTextStream &err)
{
    parser.addOption(QCommandLineOption(u"json"_s, qtTrId("cli.option.json")));
    if (!parser.parse(arguments)) {
        err << parser.errorText() << Qt::endl;
        return false;
    }
    return true;
}

bool wantsJson(const QCommandLineParser &parser)
{
    return parser.isSet(u"json"_s);
}

int usage(QTextStream &err, const QString &text)
{
    err << text << Qt::endl;
    return 2;
}

QString hoursMinutes(qint64 seconds)
{
    const qint64 minutes = qMax<qint64>(0, seconds) / 60;
    return QString::number(minutes / 60) + u':' + QString::number(minutes % 60).rightJustified(2, u'0');
}

} // namespace Cli

QCommandLineOption Cli::yesOption()
{
    //% "Agree to sending your text to the chosen AI service without being asked."
    return QCommandLineOption(u"yes"_s, qtTrId("cli.ai.yes"));
}

void Cli::connectAI(ClaudeBridge &bridge, CliSession &session, bool assumeYes, QTextStream &err)
{
    AuthStore *auth = &session.auth();
    bridge.setAccess({session.secrets(), auth->client().baseUrl(), auth->client().anonKey(),
                      [auth]() -> QCoro::Task<std::optional<QString>> { co_return co_await auth->validToken(); }});
    if (assumeYes) {
        bridge.setConsentHook([](ClaudeBridge::Route) -> QCoro::Task<bool> { co_return true; });
        return;
    }
    // A script has no one to answer; it fails with the message that names --yes.
    if (!::isatty(STDIN_FILENO)) {
        return;
    }
    bridge.setConsentHook([&err](ClaudeBridge::Route route) -> QCoro::Task<bool> {
        //% "%1\nSend your text to %2 now and from now on? [y/N] "
        co_return Cli::confirm(
            qtTrId("cli.ai.question").arg(ClaudeBridge::routeDestination(route), ClaudeBridge::routeName(route)), err);
    });
}

QString Cli::readSecret(QTextStream &in, const QString &prompt, QTextStream &err)
{
    const bool terminal = ::isatty(STDIN_FILENO) != 0;
    termios saved{};
    if (terminal) {
        err << prompt << Qt::flush;
        ::tcgetattr(STDIN_FILENO, &saved);
        termios quiet = saved;
        quiet.c_lflag &= ~tcflag_t(ECHO);
        ::tcsetattr(STDIN_FILENO, TCSANOW, &quiet);
    }
    const QString line = in.readLine();
    if (terminal) {
        ::tcsetattr(STDIN_FILENO, TCSANOW, &saved);
        err << Qt::endl;
    }
    return line;
}

QString Cli::printable(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control) {
            c = u' ';
        }
    }
    return text.simplified();
}

bool Cli::confirm(const QString &question, QTextStream &err)
{
    err << question << Qt::flush;
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return false;
    }
    const QString answer = QString::fromLocal8Bit(input.readLine(64)).trimmed().toLower();
    //: The answers accepted to a yes/no question, separated by '|'; the English ones are accepted too.
    //% "y|yes"
    const QStringList yes = qtTrId("cli.clients.yesAnswers").split(u'|') + QStringList{u"y"_s, u"yes"_s};
    return !answer.isEmpty() && yes.contains(answer);
}
