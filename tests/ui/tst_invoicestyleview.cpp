#include "invoicing/pdf/invoicepdfrenderer.h"
#include "pg/pgconnection.h"
#include "support/desktopwindow.h"
#include "support/testbackend.h"
#include "ui/invoicestyleview.h"

#include <QCryptographicHash>
#include <QFile>
#include <QImage>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 20000;
// Eight renders through the web engine on a busy machine.
constexpr int drawing = 120000;
} // namespace

// The invoice style screen in the real window over a real backend: what is typed there is saved
// as the house style and comes back from the backend, the designs are drawn by the real renderer
// in that style, and a template the renderer cannot use says why.
class TestInvoiceStyleView : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<DesktopWindow> m_desktop;
    QTemporaryDir m_files;

    InvoiceStyleView *model() const { return m_desktop->workspace()->invoiceStyle(); }
    QQuickItem *item(const char *name) const { return m_desktop->item(QString::fromLatin1(name)); }
    QByteArray sql(const QByteArray &query) { return m_backend.database().exec(query).value(0, 0); }
    void type(const char *field, const QString &text) { QVERIFY(item(field)->setProperty("text", text)); }
    void call(const char *function, const QVariant &argument = {})
    {
        QVERIFY(argument.isValid()
                    ? QMetaObject::invokeMethod(item("invoiceStyleView"), function, Q_ARG(QVariant, argument))
                    : QMetaObject::invokeMethod(item("invoiceStyleView"), function));
    }
    // The drawn thumbnails by design name.
    QHash<QString, QUrl> thumbnails() const
    {
        QHash<QString, QUrl> drawn;
        for (const QVariant &row : model()->designs()) {
            const QVariantMap design = row.toMap();
            if (const QUrl url = design.value(u"thumbnail"_s).toUrl(); url.isValid()) {
                drawn.insert(design.value(u"name"_s).toString(), url);
            }
        }
        return drawn;
    }
    QUrl file(const QString &name, const QByteArray &bytes)
    {
        QFile out(m_files.filePath(name));
        out.open(QIODevice::WriteOnly);
        out.write(bytes);
        return QUrl::fromLocalFile(out.fileName());
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_desktop = std::make_unique<DesktopWindow>(m_backend);
        QVERIFY(m_desktop->open());
        QVERIFY(m_desktop->signUp(u"ada@example.com"_s, u"Ada Lovelace"_s, u"EUR"_s, u"90"_s, u"Europe/Amsterdam"_s));
    }

    void cleanupTestCase() { m_desktop.reset(); }

    void styleIsSavedDrawnAndReloaded()
    {
        m_desktop->showPage(u"style"_s);
        QTRY_VERIFY(item("invoiceStyleView"));

        // The eight designs, each a different A4 page from the renderer.
        QTRY_VERIFY_WITH_TIMEOUT(thumbnails().size() == 8 && !model()->drawing(), drawing);
        QSet<QByteArray> pictures;
        for (const QUrl &url : thumbnails()) {
            const QImage page(url.toLocalFile());
            QCOMPARE(page.width(), 320);
            QVERIFY2(qAbs(page.height() - 320 * 1123 / 794) <= 1, qPrintable(QString::number(page.height())));
            pictures.insert(QCryptographicHash::hash(
                QByteArrayView(page.constBits(), page.sizeInBytes()), QCryptographicHash::Sha1));
        }
        QCOMPARE(pictures.size(), 8);
        const QUrl firstBoldDark = thumbnails().value(u"boldDark"_s);

        type("styleCompany", u"Hoekstra Design"_s);
        type("styleAddress", u"Prinsengracht 263\n1016 GV Amsterdam"_s);
        type("styleIban", u"NL91ABNA0417164300"_s);
        type("styleDays", u"30"_s);
        type("colour-accentHex", u"#b91c1c"_s);
        QImage logo(900, 300, QImage::Format_RGB32);
        logo.fill(QColor(185, 28, 28));
        QVERIFY(logo.save(m_files.filePath(u"logo.png"_s)));
        call("useLogo", QUrl::fromLocalFile(m_files.filePath(u"logo.png"_s)));
        QVERIFY(item("styleLogo")->property("source").toString().startsWith(u"data:image/png;base64,"_s));
        call("chooseDesign", u"boldDark"_s);

        // A colour that is none keeps the whole form from being saved, and says why.
        type("colour-paletteMuted", u"grey"_s);
        QVERIFY(QMetaObject::invokeMethod(item("saveStyle"), "clicked"));
        QCOMPARE(model()->error(), u"“grey” is no colour: write it as #rgb or #rrggbb, for example #0f766e."_s);
        QVERIFY(item("styleError")->isVisible());
        QCOMPARE(sql("SELECT count(*) FROM invoice_templates"), "0");

        type("colour-paletteMuted", QString());
        QVERIFY(QMetaObject::invokeMethod(item("saveStyle"), "clicked"));
        QTRY_COMPARE_WITH_TIMEOUT(sql("SELECT coalesce((SELECT style->>'company' FROM invoice_templates WHERE is_default), '')"),
                                  "Hoekstra Design", patience);
        QCOMPARE(sql("SELECT concat_ws('|', style->>'html_template', style->>'accent_hex', "
                     "style->>'payment_terms_days', style->>'iban', style ? 'palette_muted', "
                     "left(style->>'logo_data_uri', 22)) FROM invoice_templates"),
                 "boldDark|#b91c1c|30|NL91ABNA0417164300|f|data:image/png;base64,");
        QVERIFY(model()->error().isEmpty());
        QVERIFY(!item("styleError")->isVisible());
        // The designs were drawn again in the new accent and logo.
        QTRY_VERIFY_WITH_TIMEOUT(thumbnails().value(u"boldDark"_s) != firstBoldDark && !model()->drawing(), drawing);

        // A change made elsewhere arrives with a refresh, and the screen opens with the stored style.
        m_desktop->showPage(QString());
        m_backend.database().exec(
            "UPDATE invoice_templates SET style = style || '{\"phone\": \"+31 20 555 0101\"}'::jsonb");
        m_desktop->store()->refreshAll();
        QTRY_COMPARE_WITH_TIMEOUT(
            m_desktop->store()->defaultInvoiceTemplate().value_or(InvoiceTemplate{}).style.phone.value_or(QString()),
            u"+31 20 555 0101"_s, patience);
        m_desktop->showPage(u"style"_s);
        QTRY_VERIFY(item("styleCompany"));
        QCOMPARE(item("styleCompany")->property("text").toString(), u"Hoekstra Design"_s);
        QCOMPARE(item("stylePhone")->property("text").toString(), u"+31 20 555 0101"_s);
        QCOMPARE(item("styleAddress")->property("text").toString(), u"Prinsengracht 263\n1016 GV Amsterdam"_s);
        QCOMPARE(item("colour-accentHex")->property("text").toString(), u"#b91c1c"_s);
        QCOMPARE(item("styleDays")->property("text").toString(), u"30"_s);
        QTRY_VERIFY(item("design-boldDark") && item("design-boldDark")->property("chosen").toBool());
        QTRY_VERIFY_WITH_TIMEOUT(!model()->drawing(), drawing);
        QVERIFY(m_desktop->shoot(u"invoice-style"_s));

        // A template without a footer: it is kept, the screen says why it is not used, and its
        // picture shows the design it falls back to.
        call("useTemplate", file(u"letter.html"_s, "<!doctype html><html><head><style>body{width:794px;"
                                                   "height:1123px}</style></head><body><header>{{company}}"
                                                   "</header><main>{{line_rows_html}}</main></body></html>"));
        QCOMPARE(item("templateProblem")->property("text").toString(),
                 u"The template has no <footer> element. Invoices fall back to “Light minimal” until it is fixed."_s);
        QCOMPARE(item("templateState")->property("text").toString(), u"Not used"_s);
        QTRY_VERIFY_WITH_TIMEOUT(thumbnails().contains(u"aiCustom"_s) && !model()->drawing(), drawing);
        QVERIFY(item("design-aiCustom")->property("chosen").toBool());
        QQuickItem *scroll = item("styleScroll");
        QVERIFY(scroll);
        auto *flickable = scroll->property("contentItem").value<QQuickItem *>();
        QVERIFY(flickable);
        // Scrolled to the template's verdict in each language, whose words make the page longer or shorter.
        const QString folder = QCoreApplication::applicationDirPath() + u"/screenshots/"_s;
        for (const QString &language : {u"en"_s, u"ja"_s}) {
            m_desktop->shell().setLanguage(language);
            for (const QString &scheme : {u"light"_s, u"dark"_s}) {
                m_desktop->shell().setColorScheme(scheme);
                QTest::qWait(50);
                flickable->setProperty("contentY", flickable->property("contentHeight").toReal() - flickable->height());
                QTest::qWait(50);
                QVERIFY(m_desktop->window()->grabWindow().save(
                    folder + u"invoice-style-designs-%1-%2.png"_s.arg(language, scheme)));
            }
        }
        m_desktop->shell().setLanguage(u"en"_s);
    }
};

int main(int argc, char *argv[])
{
    InvoicePdfRenderer::prepareEnvironment();
    return runDesktopTest(argc, argv, [](int count, char **arguments) {
        TestInvoiceStyleView test;
        return QTest::qExec(&test, count, arguments);
    });
}

#include "tst_invoicestyleview.moc"
