#include "capturehistory.h"

#include "sessions/captureprompt.h"
#include "sessions/claudebridge.h"

#include <QUuid>

CaptureHistory::CaptureHistory(ClaudeBridge &bridge, QTimeZone zone, Clock clock)
    : m_bridge(bridge)
    , m_zone(std::move(zone))
    , m_clock(std::move(clock))
{}

QCoro::Task<AISession> CaptureHistory::understand(QString text, QStringList knownProjects)
{
    AISession session;
    session.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    session.prompt = text;
    session.at = m_clock();
    try {
        // Named before the wait: temporaries inside a co_await expression are not safe with every
        // compiler this builds on.
        ClaudeBridge::ParseInput input{text, knownProjects, ParseDates::todayISO(session.at, m_zone)};
        const QJsonObject answer = co_await m_bridge.parse(std::move(input), m_zone);
        AIReading reading = readParseResult(answer);
        session.result = std::move(reading.result);
        session.adjustments = std::move(reading.adjustments);
    } catch (const MorvaneError &error) {
        session.error = error.message();
    } catch (const std::exception &error) {
        session.error = QString::fromLocal8Bit(error.what());
    }
    m_sessions.append(session);
    co_return session;
}
