#include "invoicefiles.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace InvoiceFiles {

QString previewFileName()
{
    return u"morvane-preview.pdf"_s;
}

QString exportFileName(const QString &number)
{
    static const QRegularExpression unsafe(u"[^A-Za-z0-9._-]+"_s);
    QString safe = number.trimmed().replace(unsafe, u"-"_s);
    while (safe.startsWith(u'-') || safe.startsWith(u'.')) {
        safe.remove(0, 1);
    }
    while (safe.endsWith(u'-') || safe.endsWith(u'.')) {
        safe.chop(1);
    }
    return safe.isEmpty() ? u"morvane-invoice.pdf"_s : u"morvane-invoice-"_s + safe + u".pdf"_s;
}

} // namespace InvoiceFiles
