#include "backend/secretstore.h"
#include "billing/money.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"
#include "support/desktopwindow.h"
#include "ui/desktopshell.h"

#include <QApplication>
#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>

#include <QtQml/qqmlextensionplugin.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000;

// The figures of one bar, worked out by hand from the entries below.
struct Expected
{
    QString label;
    double earned;
    double billed;
    QString hours;
    std::optional<double> rate;
};

QVariantMap rowOf(const QVariantList &rows, const QString &key)
{
    for (const QVariant &row : rows) {
        if (row.toMap().value(u"key"_s).toString() == key) {
            return row.toMap();
        }
    }
    return {};
}

} // namespace

// The earnings screen over a real backend: a known week of entries, older than the store's recent
// window, priced on hourly, daily, legacy and fixed prices, part of it on an invoice.
class TestEarningsView : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<DesktopWindow> m_desktop;
    DesktopShell *m_shell = nullptr;
    QQuickWindow *m_window = nullptr;
    QByteArray m_user;

    PgConnection &db() { return m_backend.database(); }
    QByteArray sql(const QByteArray &query, const PgParams &parameters = {})
    {
        return db().exec(query, parameters).value(0, 0);
    }

    void shoot(const QString &name) { QVERIFY(m_desktop->shoot(name)); }

    // Returns the entry's id. `start` is local time on `day`.
    QByteArray addEntry(const QByteArray &task, const QByteArray &project, QDate day, QTime start, int seconds)
    {
        const QByteArray startedAt = QDateTime(day, start).toUTC().toString(Qt::ISODate).toUtf8();
        return sql("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                   "VALUES ($1, $2, $3, $4::timestamptz, $4::timestamptz + make_interval(secs => $5::int), $5::int) "
                   "RETURNING id",
                   {m_user, task, project, startedAt, QByteArray::number(seconds)});
    }

    QByteArray addProject(const QByteArray &name, const QByteArray &legacyRate, const QByteArray &billing)
    {
        return sql(
            "INSERT INTO projects (user_id, name, hourly_rate, billing) VALUES ($1, $2, NULLIF($3, '')::numeric, "
            "NULLIF($4, '')::jsonb) RETURNING id",
            {m_user, name, legacyRate, billing});
    }

    QByteArray addTask(const QByteArray &project, const QByteArray &title, const QByteArray &billing = {})
    {
        return sql("INSERT INTO tasks (user_id, project_id, title, billing) VALUES ($1, $2, $3, NULLIF($4, '')::jsonb) "
                   "RETURNING id",
                   {m_user, project, title, billing});
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_desktop = std::make_unique<DesktopWindow>(m_backend);
        m_shell = &m_desktop->shell();
        QVERIFY(m_desktop->open());
        m_window = m_desktop->window();
        QVERIFY(m_desktop->signUp(u"eve@example.com"_s, u"Eve"_s, u"EUR"_s, u"50"_s, u"UTC"_s));
        m_user = sql("SELECT id FROM auth.users WHERE email = 'eve@example.com'");
    }

    void cleanupTestCase()
    {
        m_desktop.reset();
    }

    void aKnownWeekMatchesItsFiguresAndABarListsItsEntries()
    {
        m_desktop->showPage(u"earnings"_s);
        EarningsModel *earnings = m_shell->earnings();
        QTRY_VERIFY_WITH_TIMEOUT(!earnings->isLoading(), patience);
        QVERIFY(earnings->isEmpty());
        shoot(u"earnings-empty"_s);

        // Five to six weeks back: older than the thirty days every refresh brings.
        const QDate today = QDate::currentDate();
        const QDate monday = today.addDays(-35).addDays(1 - today.addDays(-35).dayOfWeek());
        const QByteArray web = addProject("Web", {}, R"({"model":"hourly","unit_price":80})");
        const QByteArray brand = addProject("Brand", "60", {});
        const QByteArray shop = addProject("Shop", {}, R"({"model":"fixed","amount":1200})");
        const QByteArray design = addTask(web, "Design");
        const QByteArray build = addTask(web, "Build", R"({"model":"daily","day_rate":600,"day_hours":8})");
        const QByteArray logo = addTask(brand, "Logo");
        const QByteArray cart = addTask(shop, "Cart");
        const QByteArray pay = addTask(shop, "Payments");
        const QByteArray e1 = addEntry(design, web, monday, QTime(9, 0), 7200);             // 2 h × 80 = 160
        addEntry(design, web, monday.addDays(1), QTime(9, 0), 5400);                        // 1.5 h × 80 = 120
        addEntry(build, web, monday.addDays(2), QTime(8, 0), 14400);                        // half a day of 600 = 300
        addEntry(logo, brand, monday.addDays(3), QTime(10, 0), 3600);                       // 1 h × 60 = 60
        const QByteArray e5 = addEntry(cart, shop, monday.addDays(4), QTime(10, 0), 10800); // no time price
        addEntry(pay, shop, monday.addDays(6), QTime(12, 0), 3600);                         // Shop's 1,200 lands here
        addEntry(design, web, today.addMonths(-14), QTime(9, 0), 3600);                     // outside the year shown
        const QByteArray invoice = sql("INSERT INTO invoices (user_id, number, issued_at, currency, status) "
                                       "VALUES ($1, 'E-1', current_date, 'EUR', 'sent') RETURNING id",
                                       {m_user});
        for (const QByteArray &entry : {e1, e5}) {
            db().exec("INSERT INTO invoice_entries (invoice_id, time_entry_id) VALUES ($1, $2)", {invoice, entry});
        }

        const QString week = monday.toString(Qt::ISODate);
        // 12.5 h; billed: e1's time and, with e5 on the invoice, Shop's fixed price.
        const Expected weekRow{{}, 1840, 1360, u"12.5"_s, 147.2};
        earnings->reload();
        // The invoice arrives over the change feed too; the figures settle once the billed set is read.
        QTRY_VERIFY_WITH_TIMEOUT(rowOf(earnings->rows(), week).value(u"entryCount"_s).toInt() == 6 &&
                                     rowOf(earnings->rows(), week).value(u"billed"_s).toDouble() > 0,
                                 patience);
        const auto compareRow = [](const QVariantMap &row, const Expected &expected) {
            QCOMPARE(row.value(u"earned"_s).toDouble(), expected.earned);
            QCOMPARE(row.value(u"billed"_s).toDouble(), expected.billed);
            QCOMPARE(row.value(u"unbilled"_s).toDouble(), expected.earned - expected.billed);
            QCOMPARE(row.value(u"earnedText"_s).toString(), formatMoney(expected.earned, u"EUR"_s));
            QCOMPARE(row.value(u"unbilledText"_s).toString(), formatMoney(expected.earned - expected.billed, u"EUR"_s));
            QCOMPARE(row.value(u"hoursText"_s).toString(), expected.hours);
            QCOMPARE(row.value(u"rateText"_s).toString(), formatMoney(*expected.rate, u"EUR"_s));
            if (!expected.label.isEmpty()) {
                QCOMPARE(row.value(u"label"_s).toString(), expected.label);
            }
        };
        compareRow(rowOf(earnings->rows(), week), weekRow);
        QCOMPARE(earnings->totals().value(u"earnedText"_s).toString(), formatMoney(1840, u"EUR"_s));
        QCOMPARE(earnings->rows().size(), 12);

        // The bar of the week, clicked, lists its six entries, Shop's price on its last one.
        QQuickItem *bar = m_desktop->item(u"earningsBar_"_s + week);
        QVERIFY(bar);
        QTRY_VERIFY(bar->isVisible() && bar->width() > 0);
        QTest::mouseClick(m_window, Qt::LeftButton, {},
                          bar->mapToScene(QPointF(bar->width() / 2, bar->height() / 2)).toPoint());
        QTRY_COMPARE(earnings->selectedKey(), week);
        QQuickItem *list = m_desktop->item(u"earningsEntries"_s);
        QVERIFY(list);
        QTRY_COMPARE(list->property("count").toInt(), 6);
        const QVariantMap newest = earnings->selectedEntries().first().toMap();
        QCOMPARE(newest.value(u"task"_s).toString(), u"Payments"_s);
        QCOMPARE(newest.value(u"amount"_s).toString(), formatMoney(1200, u"EUR"_s));
        QVERIFY(newest.value(u"billed"_s).toBool());
        shoot(u"earnings-week"_s);

        earnings->setGrouping(u"project"_s);
        const QList<std::pair<QByteArray, Expected>> projects{
            {shop, {u"Shop"_s, 1200, 1200, u"4.0"_s, 300}},
            {web, {u"Web"_s, 580, 160, u"7.5"_s, 580 / 7.5}},
            {brand, {u"Brand"_s, 60, 0, u"1.0"_s, 60}},
        };
        QCOMPARE(earnings->rows().size(), int(projects.size()));
        for (qsizetype i = 0; i < projects.size(); ++i) {
            QCOMPARE(earnings->rows()[i].toMap().value(u"key"_s).toString(),
                     u"project:"_s + QString::fromLatin1(projects[i].first));
            compareRow(earnings->rows()[i].toMap(), projects[i].second);
        }
        earnings->select(u"project:"_s + QString::fromLatin1(web));
        QTRY_COMPARE(list->property("count").toInt(), 3);
        shoot(u"earnings-projects"_s);
    }
};

MORVANE_DESKTOP_TEST_MAIN(TestEarningsView)

#include "tst_earningsview.moc"
