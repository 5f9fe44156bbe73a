#include "renderinvoice.h"

#include "backend/runblocking.h"
#include "model/invoicedocument.h"
#include "invoicing/invoicefiles.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/pdf/invoicepdfrenderer.h"
#include "invoicing/sampleinvoice.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

#include <QCoroTask>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace InvoiceHTMLRenderer;

namespace {

constexpr int mostSampleLines = 5000;

QStringList designNames()
{
    QStringList names;
    for (const Template design : builtInDesigns()) {
        names << templateName(design);
    }
    return names;
}

bool writeFile(const QString &path, const QByteArray &bytes, QString *error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}

} // namespace

RenderInvoiceCommand::RenderInvoiceCommand()
    //% "Render an invoice to PDF through the application's own path and report its size."
    : m_render(u"render-invoice"_s, qtTrId("cli.renderInvoice.option"))
    //% "With --render-invoice: the design (%1)."
    , m_design(u"design"_s, qtTrId("cli.renderInvoice.design").arg(designNames().join(u", ")), u"name"_s)
    //% "With --render-invoice: the number of lines of the sample invoice."
    , m_lines(u"lines"_s, qtTrId("cli.renderInvoice.lines"), u"n"_s)
    //% "With --render-invoice: an invoice as JSON instead of the sample."
    , m_draft(u"draft"_s, qtTrId("cli.renderInvoice.draft"), u"file.json"_s)
    //% "With --render-invoice: where to write the PDF."
    , m_out(u"out"_s, qtTrId("cli.renderInvoice.out"), u"file.pdf"_s)
    //% "With --render-invoice: a folder for pictures of the pages as PNG."
    , m_png(u"png"_s, qtTrId("cli.renderInvoice.png"), u"dir"_s)
{}

bool RenderInvoiceCommand::requested(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--render-invoice") == 0 || std::strcmp(argv[i], "-render-invoice") == 0) {
            return true;
        }
    }
    // `morvane invoice create` and `replace-pdf` render the PDF they store.
    return argc > 2 && std::strcmp(argv[1], "invoice") == 0 &&
           (std::strcmp(argv[2], "create") == 0 || std::strcmp(argv[2], "replace-pdf") == 0);
}

std::unique_ptr<QCoreApplication> RenderInvoiceCommand::makeApplication(int &argc, char **argv)
{
    InvoicePdfRenderer::prepareEnvironment();
    return std::make_unique<QApplication>(argc, argv);
}

void RenderInvoiceCommand::addOptions(QCommandLineParser &parser) const
{
    parser.addOptions({m_render, m_design, m_lines, m_draft, m_out, m_png});
}

bool RenderInvoiceCommand::isSet(const QCommandLineParser &parser) const
{
    return parser.isSet(m_render);
}

int RenderInvoiceCommand::run(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) const
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        //% "Rendering an invoice needs the graphical libraries; run it as: morvane --render-invoice"
        err << qtTrId("cli.renderInvoice.err.noGui") << Qt::endl;
        return 1;
    }

    // What to draw: a draft from a file, or the sample.
    InvoiceDocument document;
    bool isSample = true;
    if (parser.isSet(m_draft)) {
        if (parser.isSet(m_lines)) {
            //% "--lines is for the sample invoice; a draft brings its own lines."
            err << qtTrId("cli.renderInvoice.err.both") << Qt::endl;
            return 2;
        }
        const QString path = parser.value(m_draft);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            //% "Cannot read the draft %1: %2"
            err << qtTrId("cli.renderInvoice.err.draft").arg(path, file.errorString()) << Qt::endl;
            return 2;
        }
        try {
            document = Wire::decodeJson<InvoiceDocument>(file.readAll());
        } catch (const DecodeError &error) {
            err << qtTrId("cli.renderInvoice.err.draft").arg(path, error.message()) << Qt::endl;
            return 2;
        }
        isSample = false;
    } else {
        int lines = 6;
        if (parser.isSet(m_lines)) {
            bool ok = false;
            lines = parser.value(m_lines).toInt(&ok);
            if (!ok || lines < 0 || lines > mostSampleLines) {
                //% "--lines takes a whole number from 0 to %1."
                err << qtTrId("cli.renderInvoice.err.lines").arg(mostSampleLines) << Qt::endl;
                return 2;
            }
        }
        document.draft = SampleInvoice::draft(lines);
        document.style = SampleInvoice::style();
        document.metadata = SampleInvoice::metadata(document.draft);
    }
    const InvoiceStyle style = document.style.value_or(InvoiceStyle{});
    InvoiceMetadata metadata;
    if (document.metadata) {
        metadata = *document.metadata;
    } else {
        metadata.number = u"DRAFT"_s;
        metadata.issued = QDate::currentDate().toString(Qt::ISODate);
    }

    QString designName = parser.isSet(m_design) ? parser.value(m_design)
                                                : document.design.value_or(style.htmlTemplate.value_or(QString()));
    if (designName.isEmpty()) {
        designName = templateName(Template::LightMinimalAccent);
    }
    const std::optional<Template> design = templateFromName(designName);
    if (!design) {
        //% "Unknown design: %1. Choose one of: %2."
        err << qtTrId("cli.renderInvoice.err.design").arg(designName, designNames().join(u", ")) << Qt::endl;
        return 2;
    }

    const QString outPath = parser.isSet(m_out) ? parser.value(m_out)
                                                : (isSample ? InvoiceFiles::previewFileName()
                                                            : InvoiceFiles::exportFileName(metadata.number));

    QElapsedTimer clock;
    clock.start();
    const QString html = buildHTML(document.draft, style, brandProfile(style, *design), *design, metadata);
    RenderedPdf rendered;
    try {
        InvoicePdfRenderer renderer;
        rendered = runBlocking(renderer.render(html));
    } catch (const InvoicePdfError &error) {
        //% "Rendering the invoice failed: %1"
        err << qtTrId("cli.renderInvoice.err.failed").arg(error.message()) << Qt::endl;
        return 1;
    }
    const qint64 elapsed = clock.elapsed();

    QString problem;
    if (!writeFile(outPath, rendered.pdf, &problem)) {
        //% "Cannot write %1: %2"
        err << qtTrId("cli.renderInvoice.err.write").arg(outPath, problem) << Qt::endl;
        return 1;
    }
    if (parser.isSet(m_png)) {
        const QString folder = parser.value(m_png);
        QDir().mkpath(folder);
        const QString base = QFileInfo(outPath).completeBaseName();
        const QList<QImage> pages = InvoicePdfRenderer::snapshots(rendered.pdf);
        for (qsizetype i = 0; i < pages.size(); ++i) {
            const QString png = QDir(folder).filePath(u"%1-page%2.png"_s.arg(base).arg(i + 1));
            if (!pages[i].save(png)) {
                err << qtTrId("cli.renderInvoice.err.write").arg(png, QString()) << Qt::endl;
                return 1;
            }
        }
    }
    // One line a script can read; the first key is what the option promises.
    out << "render-invoice bytes=" << rendered.pdf.size() << " pages=" << rendered.pages << " ms=" << elapsed
        << " design=" << templateName(*design) << " file=" << QFileInfo(outPath).absoluteFilePath() << Qt::endl;
    return 0;
}
