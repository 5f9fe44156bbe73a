#include "sessionjson.h"

using namespace Qt::StringLiterals;

namespace SessionJson {

QString instant(const QDateTime &at)
{
    return at.toUTC().toString(Qt::ISODateWithMs);
}

QJsonObject toJson(const SessionSegment &segment)
{
    return QJsonObject{
        {u"index"_s, segment.index},
        {u"title"_s, segment.title},
        {u"startedAt"_s, instant(segment.startedAt)},
        {u"endedAt"_s, instant(segment.endedAt)},
        {u"activeSeconds"_s, segment.activeSeconds},
        {u"promptCount"_s, segment.promptCount},
    };
}

QJsonObject toJson(const ParsedSession &session)
{
    QJsonArray segments;
    for (const SessionSegment &segment : session.segments) {
        segments.append(toJson(segment));
    }
    return QJsonObject{
        {u"sessionId"_s, session.sessionId},
        {u"cwd"_s, session.cwd},
        {u"firstUserMessage"_s, session.firstUserMessage ? QJsonValue(*session.firstUserMessage) : QJsonValue()},
        {u"startedAt"_s, instant(session.startedAt)},
        {u"endedAt"_s, instant(session.endedAt)},
        {u"activeSeconds"_s, session.activeSeconds},
        {u"promptCount"_s, session.promptCount},
        {u"segments"_s, segments},
    };
}

QJsonArray toJson(const QList<ParsedSession> &sessions)
{
    QJsonArray array;
    for (const ParsedSession &session : sessions) {
        array.append(toJson(session));
    }
    return array;
}

} // namespace SessionJson
