#include "backend/runblocking.h"
#include "i18n/language.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/pdf/invoicepdfrenderer.h"
#include "invoicing/sampleinvoice.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <QCoroTask>

using namespace Qt::StringLiterals;
using namespace InvoiceHTMLRenderer;

Q_DECLARE_METATYPE(InvoiceHTMLRenderer::Template)

namespace {

// A bare page of the given body, laid out the way the designs are: fixed width, no margins.
QString page(const QString &body)
{
    return u"<!doctype html><html><head><style>* { box-sizing: border-box; margin: 0; padding: 0; } "
           u"html, body { width: 794px; height: 1123px; } table { border-collapse: collapse; width: 100%; } "
           u"td { padding: 0; }</style></head><body><header></header><main>"_s +
           body + u"</main><footer></footer></body></html>"_s;
}

QString rows(int count, int height, int cells = 3)
{
    QString html;
    for (int i = 0; i < count; ++i) {
        html += u"<tr id=\"r%1\" style=\"height:%2px\">"_s.arg(i).arg(height);
        for (int c = 0; c < cells; ++c) {
            html += u"<td>row %1</td>"_s.arg(i);
        }
        html += u"</tr>"_s;
    }
    return html;
}

QString run(const QString &program, const QStringList &arguments)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        qFatal("%s is missing; scripts/test installs poppler-utils", qPrintable(program));
    }
    QProcess process;
    process.start(path, arguments);
    process.waitForFinished(60000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

int pdfPageCount(const QString &file)
{
    static const QRegularExpression pages(u"^Pages:\\s+(\\d+)"_s, QRegularExpression::MultilineOption);
    return pages.match(run(u"pdfinfo"_s, {file})).captured(1).toInt();
}

QString pdfPageText(const QString &file, int page)
{
    return run(u"pdftotext"_s,
               {u"-layout"_s, u"-f"_s, QString::number(page), u"-l"_s, QString::number(page), file, u"-"_s});
}

// How many different colours a page shows, in a coarse grid: a blank or broken render has one
// or two, a designed invoice dozens.
int distinctColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3) {
            colours.insert(image.pixel(x, y) & 0xF0F0F0);
        }
    }
    return int(colours.size());
}

} // namespace

class TestInvoicePdf : public QObject
{
    Q_OBJECT

private:
    InvoicePdfRenderer *renderer = nullptr;
    QTemporaryDir scratch;

    int layOut(const QString &html) { return runBlocking(renderer->layOut(html)); }
    QVariant evaluate(const QString &script) { return runBlocking(renderer->evaluate(script)); }
    double number(const QString &script) { return evaluate(script).toDouble(); }

    static QString invoiceHtml(const InvoiceDraft &draft, Template design,
                               const InvoiceStyle &style = SampleInvoice::style())
    {
        return buildHTML(draft, style, brandProfile(style, design), design, SampleInvoice::metadata(draft));
    }

    // Renders and writes the PDF under `name` for the poppler tools; answers its path.
    QString renderToFile(const QString &html, const QString &name, int *pages = nullptr)
    {
        const RenderedPdf rendered = runBlocking(renderer->render(html));
        QFile out(scratch.filePath(name));
        if (!out.open(QIODevice::WriteOnly) || out.write(rendered.pdf) != rendered.pdf.size()) {
            qFatal("cannot write %s", qPrintable(out.fileName()));
        }
        if (pages) {
            *pages = rendered.pages;
        }
        return out.fileName();
    }

private slots:
    void initTestCase() { renderer = new InvoicePdfRenderer(this); }

    // A row whose bottom would cross a page edge gets a spacer row before it, so that it starts
    // 6 px below the top of the next page; a row that ends exactly on the edge stays.
    void tableRowsArePushedPastThePageEdge_data()
    {
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("cells");
        QTest::addColumn<int>("spacer"); // 0: no spacer row
        QTest::newRow("row ending on the edge") << 1083 << 40 << 4 << 0;
        QTest::newRow("row one pixel over the edge") << 1084 << 40 << 4 << 45;
        QTest::newRow("row of a full page height") << 500 << 1123 << 4 << 629;
        QTest::newRow("row without cells: three columns") << 1100 << 40 << 0 << 29;
    }

    void tableRowsArePushedPastThePageEdge()
    {
        QFETCH(int, top);
        QFETCH(int, cells);
        QFETCH(int, spacer);
        QFETCH(int, height);
        layOut(
            page(u"<div style=\"height:%1px\"></div><table><tbody><tr id=\"r0\" style=\"height:%2px\">"_s.arg(top).arg(
                     height) +
                 QString(u"<td>a</td>"_s).repeated(cells) + u"</tr></tbody></table>"_s));
        QCOMPARE(number(u"document.querySelectorAll('tr.mv-page-spacer').length"_s), spacer ? 1.0 : 0.0);
        QCOMPARE(number(u"document.getElementById('r0').getBoundingClientRect().top + window.scrollY"_s),
                 double(top + spacer));
        if (spacer) {
            QCOMPARE(number(u"document.querySelector('tr.mv-page-spacer').getBoundingClientRect().height"_s),
                     double(spacer));
            // The spacer spans the row's cells and draws nothing.
            QCOMPARE(number(u"document.querySelector('tr.mv-page-spacer td').colSpan"_s), cells ? cells : 3.0);
            QCOMPARE(evaluate(u"getComputedStyle(document.querySelector('tr.mv-page-spacer td')).borderTopWidth"_s)
                         .toString(),
                     u"0px"_s);
        }
    }

    // Other blocks are pushed through their top margin, which keeps what margin they had; a block
    // taller than a page cannot be helped and stays.
    void blocksArePushedThroughTheirMargin_data()
    {
        QTest::addColumn<QString>("block");
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("margin");
        QTest::addColumn<double>("expectedMargin");
        QTest::addColumn<double>("expectedTop");
        QTest::newRow("totals at 1100") << u"totals"_s << 1100 << 40 << 0 << 29.0 << 1129.0;
        QTest::newRow("terms with a margin of their own") << u"terms"_s << 1080 << 40 << 20 << 49.0 << 1129.0;
        QTest::newRow("taller than a page") << u"terms"_s << 500 << 1500 << 0 << 0.0 << 500.0;
    }

    void blocksArePushedThroughTheirMargin()
    {
        QFETCH(QString, block);
        QFETCH(int, top);
        QFETCH(int, height);
        QFETCH(int, margin);
        layOut(page(u"<div style=\"height:%1px\"></div><div id=\"b\" class=\"%2\" style=\"height:%3px;"
                    u"margin-top:%4px\"></div>"_s.arg(top)
                        .arg(block)
                        .arg(height)
                        .arg(margin)));
        QTEST(number(u"parseFloat(getComputedStyle(document.getElementById('b')).marginTop)"_s), "expectedMargin");
        QTEST(number(u"document.getElementById('b').getBoundingClientRect().top + window.scrollY"_s), "expectedTop");
    }

    // A long invoice through the whole path: the PDF has the pages the layout counted, and the
    // title and description of every line land together on one page.
    void longInvoiceNeverCutsARow()
    {
        InvoiceDraft draft = SampleInvoice::draft(0);
        for (int i = 1; i <= 140; ++i) {
            DraftLine line;
            line.title = u"Task L%1T"_s.arg(i, 3, 10, QChar(u'0'));
            // Some lines wrap over several rows of text, so rows differ in height.
            line.description = u"L%1D "_s.arg(i, 3, 10, QChar(u'0')) +
                               (i % 7 == 0 ? u"a longer note that wraps over more than one line of text in the "
                                             u"description column of the table, to vary the row heights"_s
                                           : u"note"_s);
            line.hours = 1 + i % 5;
            line.rate = 80;
            line.unit = u"h"_s;
            line.amount = line.hours * line.rate;
            draft.lines << line;
        }
        int pages = 0;
        const QString file = renderToFile(invoiceHtml(draft, Template::LightMinimalAccent), u"long.pdf"_s, &pages);
        QVERIFY(pages >= 4);
        QCOMPARE(pdfPageCount(file), pages);

        QHash<QString, int> pageOf;
        for (int p = 1; p <= pages; ++p) {
            static const QRegularExpression token(u"L\\d{3}[TD]"_s);
            for (const QRegularExpressionMatch &match : token.globalMatch(pdfPageText(file, p))) {
                QVERIFY2(!pageOf.contains(match.captured()), qPrintable(match.captured() + u" on two pages"_s));
                pageOf.insert(match.captured(), p);
            }
        }
        for (int i = 1; i <= 140; ++i) {
            const QString title = u"L%1T"_s.arg(i, 3, 10, QChar(u'0'));
            const QString note = u"L%1D"_s.arg(i, 3, 10, QChar(u'0'));
            QVERIFY2(pageOf.contains(title) && pageOf.contains(note), qPrintable(title));
            QCOMPARE(pageOf.value(title), pageOf.value(note));
        }
        // The totals come after the last line, the footer on the last page.
        int totalsPage = 0;
        for (int p = 1; p <= pages && !totalsPage; ++p) {
            totalsPage = pdfPageText(file, p).contains(u"Subtotal"_s) ? p : 0;
        }
        QVERIFY(totalsPage >= pageOf.value(u"L140T"_s));
        QVERIFY(pdfPageText(file, pages).contains(u"Made with Morvane"_s));
    }

    // Every design and a custom template, rendered and written as PNG beside the test for people
    // to look at.
    void everyDesignRendersToAPicture_data()
    {
        QTest::addColumn<Template>("design");
        for (const Template design : builtInDesigns()) {
            QTest::newRow(qPrintable(templateName(design))) << design;
        }
        QTest::newRow("aiCustom") << Template::AiCustom;
    }

    void everyDesignRendersToAPicture()
    {
        QFETCH(Template, design);
        const InvoiceDraft draft = SampleInvoice::draft(6);
        InvoiceStyle style = SampleInvoice::style();
        if (design == Template::AiCustom) {
            QFile custom(QStringLiteral(MORVANE_TEST_DATA "/invoicing/custom-template.html"));
            QVERIFY(custom.open(QIODevice::ReadOnly));
            style.customTemplateHtml = QString::fromUtf8(custom.readAll());
            QVERIFY2(structuralProblem(*style.customTemplateHtml).isEmpty(),
                     qPrintable(structuralProblem(*style.customTemplateHtml)));
        }
        const RenderedPdf rendered = runBlocking(renderer->render(invoiceHtml(draft, design, style)));

        const QList<QImage> images = InvoicePdfRenderer::snapshots(rendered.pdf);
        QCOMPARE(images.size(), rendered.pages);
        QDir().mkpath(QCoreApplication::applicationDirPath() + u"/invoice-previews"_s);
        for (qsizetype i = 0; i < images.size(); ++i) {
            QCOMPARE(images[i].width(), 794);
            QVERIFY(qAbs(images[i].height() - 1123) <= 2);
            QVERIFY2(distinctColours(images[i]) > 12, "the page looks blank");
            QVERIFY(images[i].save(QCoreApplication::applicationDirPath() + u"/invoice-previews/"_s +
                                   templateName(design) + u".png"_s));
        }
        // Six lines fit on one page in every design.
        QCOMPARE(rendered.pages, 1);
    }

    // Templates come from outside: their scripts do not run and they fetch nothing.
    void customTemplateCannotRunScriptsOrFetch()
    {
        const QString html = u"<!doctype html><html><head><style>body{width:794px;height:1123px}</style></head>"
                             u"<body><header>Header</header><main>Original text"
                             u"<img src=\"http://127.0.0.1:9/logo.png\"></main><footer>Footer</footer>"
                             u"<script>document.querySelector('main').textContent = 'Replaced by a script';</script>"
                             u"</body></html>"_s;
        const QString text = pdfPageText(renderToFile(html, u"hostile.pdf"_s), 1);
        QVERIFY(text.contains(u"Original text"_s));
        QVERIFY(!text.contains(u"Replaced"_s));
    }

    // Templates written for screens narrow their layout below some width; the page is an A4 sheet.
    void viewportIsAnA4Sheet()
    {
        layOut(page(u"<style>@media (max-width: 600px) { .wide { display: none; } }</style>"
                    u"<p class=\"wide\" id=\"w\">Only on wide pages</p><div id=\"v\" style=\"width: 50vw\"></div>"_s));
        QCOMPARE(number(u"window.innerWidth"_s), 794.0);
        QCOMPARE(number(u"document.getElementById('w').getBoundingClientRect().height"_s) > 0, true);
        QCOMPARE(number(u"document.getElementById('v').getBoundingClientRect().width"_s), 397.0);
    }

    // Neither a small document nor a large one (which travels through a file) may show the
    // user's own files.
    void localFilesStayOut_data()
    {
        QTest::addColumn<int>("padding");
        QTest::newRow("inline document") << 0;
        QTest::newRow("document through a file") << 1'600'000;
    }

    void localFilesStayOut()
    {
        QFETCH(int, padding);
        QFile secret(scratch.filePath(u"secret.txt"_s));
        QVERIFY(secret.open(QIODevice::WriteOnly));
        secret.write("PRIVATEKEYMATERIAL");
        secret.close();
        const QString url = QUrl::fromLocalFile(secret.fileName()).toString();
        const QString html =
            page(u"<p>Visible text</p><iframe src=\""_s + url +
                 u"\" style=\"width:600px;height:200px\">"
                 u"</iframe><object data=\""_s +
                 url + u"\" type=\"text/plain\"></object><!-- "_s + QString(padding, u'x') + u" -->"_s);
        const QString text = pdfPageText(renderToFile(html, u"local.pdf"_s), 1);
        QVERIFY(text.contains(u"Visible text"_s));
        QVERIFY(!text.contains(u"PRIVATEKEYMATERIAL"_s));
    }

    // A load that runs out of time is reported, and the next invoice still comes out whole and
    // is not confused with the one given up on.
    void timedOutLoadLeavesTheRendererUsable()
    {
        renderer->setLoadTimeout(std::chrono::milliseconds(1));
        QString message;
        try {
            runBlocking(renderer->render(page(u"<p>Given up</p>"_s + QString(600000, u' '))));
        } catch (const InvoicePdfError &error) {
            message = error.message();
        }
        renderer->setLoadTimeout(std::chrono::seconds(30));
        QCOMPARE(message, u"The invoice page did not finish loading within 1 seconds."_s);

        int pages = 0;
        const QString file = renderToFile(
            page(u"<table><tbody>"_s + rows(80, 40) + u"</tbody></table><p>Second invoice</p>"_s), u"next.pdf"_s, &pages);
        QCOMPARE(pages, 3);
        QCOMPARE(pdfPageCount(file), 3);
        QVERIFY(pdfPageText(file, 3).contains(u"Second invoice"_s));
    }

    // One renderer serves renders that arrive together, one after the other.
    void concurrentRendersQueue()
    {
        QCoro::Task<RenderedPdf> first = renderer->render(invoiceHtml(SampleInvoice::draft(30), Template::Editorial));
        QCoro::Task<RenderedPdf> second = renderer->render(invoiceHtml(SampleInvoice::draft(2), Template::Editorial));
        const RenderedPdf a = runBlocking(std::move(first));
        const RenderedPdf b = runBlocking(std::move(second));
        QVERIFY(a.pages >= 2);
        QCOMPARE(b.pages, 1);
    }
};

int main(int argc, char *argv[])
{
    InvoicePdfRenderer::prepareEnvironment();
    QApplication app(argc, argv);
    Language::apply(u"en"_s);
    TestInvoicePdf test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_invoicepdf.moc"
