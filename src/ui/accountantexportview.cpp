#include "accountantexportview.h"

#include "store/accountantexport.h"
#include "store/appstore.h"

#include <QDir>
#include <QStandardPaths>

#include <QCoroTask>

using namespace Qt::StringLiterals;

namespace {

QDate day(const QString &text)
{
    return QDate::fromString(text.trimmed(), Qt::ISODate);
}

QDate previousMonthFirst()
{
    return QDate::currentDate().addMonths(-1).addDays(1 - QDate::currentDate().addMonths(-1).day());
}

} // namespace

AccountantExportView::AccountantExportView(QObject *parent)
    : QObject(parent)
{
}

QObject *AccountantExportView::storeObject() const
{
    return m_store;
}

void AccountantExportView::setStore(QObject *store)
{
    auto *appStore = qobject_cast<AppStore *>(store);
    if (appStore == m_store) {
        return;
    }
    m_store = appStore;
    emit storeChanged();
}

QString AccountantExportView::previousMonthStart()
{
    return previousMonthFirst().toString(Qt::ISODate);
}

QString AccountantExportView::previousMonthEnd()
{
    const QDate first = previousMonthFirst();
    return first.addDays(first.daysInMonth() - 1).toString(Qt::ISODate);
}

bool AccountantExportView::isPeriod(const QString &from, const QString &to)
{
    return AccountantExport::Period{day(from), day(to)}.isValid();
}

QUrl AccountantExportView::suggestedFile(const QString &kind, const QString &from, const QString &to)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (folder.isEmpty()) {
        folder = QDir::homePath();
    }
    const QString name = (kind == u"invoices" ? u"invoices"_s : u"entries"_s) + u'-' +
                         day(from).toString(Qt::ISODate) + u'-' + day(to).toString(Qt::ISODate) + u".csv"_s;
    return QUrl::fromLocalFile(QDir(folder).filePath(name));
}

void AccountantExportView::clear()
{
    if (!m_busy) {
        setState(false, {}, false);
    }
}

void AccountantExportView::setState(bool busy, const QString &message, bool failed)
{
    if (busy == m_busy && message == m_message && failed == m_failed) {
        return;
    }
    m_busy = busy;
    m_message = message;
    m_failed = failed;
    emit stateChanged();
}

void AccountantExportView::save(const QString &kind, const QString &from, const QString &to, const QUrl &file)
{
    const std::optional<AccountantExport::Kind> which = AccountantExport::kindFromName(kind);
    const AccountantExport::Period period{day(from), day(to)};
    // The dialog only offers Save for a good period and a chosen file; this guards the call itself.
    if (m_busy || !m_store || !which || !period.isValid() || !file.isLocalFile()) {
        //% "Choose a period and a file first."
        setState(false, qtTrId("ui.export.notReady"), true);
        emit finished(false);
        return;
    }
    //% "Saving…"
    setState(true, qtTrId("ui.export.saving"), false);
    [](QPointer<AccountantExportView> self, QPointer<AppStore> store, AccountantExport::Kind which,
       AccountantExport::Period period, QString path) -> QCoro::Task<> {
        const AccountantExport::Result result = co_await AccountantExport::build(*store, which, period);
        if (!self) {
            co_return;
        }
        QString failure = result.csv ? AccountantExport::writeFile(path, *result.csv) : result.error;
        if (!result.csv) {
            self->setState(false, failure, true);
        } else if (!failure.isEmpty()) {
            //% "Could not write %1: %2"
            self->setState(false, qtTrId("ui.export.writeFailed").arg(path, failure), true);
        } else {
            //% "Saved %1 (rows: %2)."
            self->setState(false, qtTrId("ui.export.saved").arg(path, QString::number(result.rows)), false);
        }
        emit self->finished(!self->m_failed);
    }(this, m_store, *which, period, file.toLocalFile());
}
