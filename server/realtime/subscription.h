#pragma once

#include "realtime/changefilter.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <memory>

// One postgres_changes binding of a joined channel, as the client asked for it.
struct ChangeBinding
{
    int id = 0;
    QString event;  // "*", "INSERT", "UPDATE" or "DELETE"
    QString schema; // "*" for any
    QString table;  // "*" for any
    ChangeFilter filter;
    QJsonObject params; // as sent, echoed in the join reply with the id

    [[nodiscard]] bool wants(const QString &changeSchema, const QString &changeTable, const QString &type) const
    {
        return (event == u"*" || event == type) && (schema == u"*" || schema == changeSchema) &&
               (table == u"*" || table == changeTable);
    }
};

// A joined channel as the dispatcher sees it: who listens, as whom, for what.
struct ChannelSubscription
{
    quint64 connection = 0;
    quint64 serial = 0; // one per join, so that a delivery never reaches a later join of the topic
    QString topic;
    QString role;
    QJsonObject claims;
    qint64 expiresAt = 0; // seconds since the epoch; 0 for never
    QList<ChangeBinding> bindings;
};

using SubscriptionSnapshot = std::shared_ptr<const QList<ChannelSubscription>>;

// One change for one channel.
struct ChangeDelivery
{
    quint64 connection = 0;
    quint64 serial = 0;
    QString topic;
    QJsonObject payload;
};
