#pragma once

#include <QDate>
#include <QStringList>

#include <optional>

// What opens the composer: the projects to bill, optionally only some of their tasks, and
// optionally a period.
struct InvoiceContext
{
    QStringList projectIds;
    std::optional<QStringList> taskIds;
    std::optional<QDate> from;
    std::optional<QDate> to;
};
