// How long an invoice takes from HTML to PDF through the application's renderer: the first render
// (which starts the web engine), a warm one-page invoice and a warm 500-line invoice, against
// Chromium's own `--print-to-pdf` of the same HTML in the same run. Prints the figures; asserts
// nothing. The baseline is skipped, with a note, when the `chromium` program is not installed.
#include "backend/runblocking.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/pdf/invoicepdfrenderer.h"
#include "invoicing/sampleinvoice.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <QCoroTask>

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace InvoiceHTMLRenderer;

namespace {

constexpr int warmRuns = 15;
constexpr int longRuns = 5;
constexpr int baselineRuns = 5;
constexpr double targetOnePageMs = 150;
constexpr double targetLongMs = 2000;

QString invoiceHtml(int lines)
{
    const InvoiceDraft draft = SampleInvoice::draft(lines);
    const InvoiceStyle style = SampleInvoice::style();
    return buildHTML(draft, style, brandProfile(style, Template::LightMinimalAccent), Template::LightMinimalAccent,
                     SampleInvoice::metadata(draft));
}

double median(std::vector<double> values)
{
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double msSince(const QElapsedTimer &clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

struct Measured
{
    double medianMs = 0;
    int pages = 0;
    qsizetype bytes = 0;
};

Measured measureRenderer(InvoicePdfRenderer &renderer, const QString &html, int runs)
{
    std::vector<double> times;
    Measured result;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer clock;
        clock.start();
        const RenderedPdf rendered = runBlocking(renderer.render(html));
        times.push_back(msSince(clock));
        result.pages = rendered.pages;
        result.bytes = rendered.pdf.size();
    }
    result.medianMs = median(times);
    return result;
}

// Chromium's own printing of the same document: one headless browser process per PDF, which is
// how the program is used from a command line.
std::optional<Measured> measureChromium(const QString &chromium, const QString &htmlFile, const QString &scratch,
                                        int runs)
{
    std::vector<double> times;
    Measured result;
    for (int i = 0; i < runs; ++i) {
        const QString pdf = scratch + u"/chromium-%1.pdf"_s.arg(i);
        QStringList arguments{u"--headless"_s,
                              u"--disable-gpu"_s,
                              u"--no-pdf-header-footer"_s,
                              u"--no-first-run"_s,
                              u"--disable-extensions"_s,
                              u"--user-data-dir="_s + scratch + u"/chromium-profile"_s,
                              u"--print-to-pdf="_s + pdf,
                              QUrl::fromLocalFile(htmlFile).toString()};
        if (::geteuid() == 0) {
            arguments.prepend(u"--no-sandbox"_s);
        }
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        QElapsedTimer clock;
        clock.start();
        process.start(chromium, arguments);
        if (!process.waitForFinished(60000) || process.exitCode() != 0 || !QFile::exists(pdf)) {
            std::printf("  chromium failed: %s\n", process.readAll().constData());
            return std::nullopt;
        }
        times.push_back(msSince(clock));
        result.bytes = QFile(pdf).size();
    }
    result.medianMs = median(times);
    return result;
}

void verdict(const char *what, bool met)
{
    std::printf("  %-58s %s\n", what, met ? "met" : "MISSED");
}

} // namespace

int main(int argc, char *argv[])
{
    InvoicePdfRenderer::prepareEnvironment();
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules(u"qt.webenginecontext.info=false\nmorvane.*.debug=false"_s);
    QTemporaryDir scratch;

    const QString onePage = invoiceHtml(6);
    const QString longInvoice = invoiceHtml(500);

    std::printf("bench_invoice_render: HTML to PDF through the application's renderer\n");
    QElapsedTimer build;
    build.start();
    for (int i = 0; i < 20; ++i) {
        (void)invoiceHtml(6);
    }
    std::printf("  building the HTML of a one-page invoice        %8.2f ms\n", msSince(build) / 20);
    build.restart();
    (void)invoiceHtml(500);
    std::printf("  building the HTML of a 500-line invoice        %8.2f ms\n", msSince(build));

    QElapsedTimer cold;
    cold.start();
    InvoicePdfRenderer renderer;
    const RenderedPdf first = runBlocking(renderer.render(onePage));
    const double coldMs = msSince(cold);
    std::printf("  cold first render (starts the web engine)      %8.1f ms  %d page, %lld bytes\n", coldMs, first.pages,
                qlonglong(first.pdf.size()));

    const Measured warm = measureRenderer(renderer, onePage, warmRuns);
    std::printf("  warm one-page render, median of %2d            %8.1f ms  %d page, %lld bytes\n", warmRuns,
                warm.medianMs, warm.pages, qlonglong(warm.bytes));
    const Measured longOne = measureRenderer(renderer, longInvoice, longRuns);
    std::printf("  warm 500-line render, median of %2d            %8.1f ms  %d pages, %lld bytes\n", longRuns,
                longOne.medianMs, longOne.pages, qlonglong(longOne.bytes));

    const QString chromium = QStandardPaths::findExecutable(u"chromium"_s);
    std::optional<Measured> baselineOne;
    std::optional<Measured> baselineLong;
    if (chromium.isEmpty()) {
        std::printf("baseline skipped: the chromium program is not installed (Debian package \"chromium\")\n");
    } else {
        std::printf("baseline: %s --headless --print-to-pdf of the same HTML, one process per PDF\n",
                    qPrintable(chromium));
        for (const auto &[name, html] : {std::pair{u"one-page"_s, onePage}, std::pair{u"500-line"_s, longInvoice}}) {
            QFile file(scratch.filePath(name + u".html"_s));
            if (!file.open(QIODevice::WriteOnly)) {
                std::printf("  cannot write %s\n", qPrintable(file.fileName()));
                return 1;
            }
            file.write(html.toUtf8());
        }
        baselineOne = measureChromium(chromium, scratch.filePath(u"one-page.html"_s), scratch.path(), baselineRuns);
        if (baselineOne) {
            std::printf("  chromium one-page, median of %2d               %8.1f ms  %lld bytes\n", baselineRuns,
                        baselineOne->medianMs, qlonglong(baselineOne->bytes));
        }
        baselineLong = measureChromium(chromium, scratch.filePath(u"500-line.html"_s), scratch.path(), 3);
        if (baselineLong) {
            std::printf("  chromium 500-line, median of  3               %8.1f ms  %lld bytes\n",
                        baselineLong->medianMs, qlonglong(baselineLong->bytes));
        }
    }

    std::printf("targets:\n");
    verdict("warm one-page render under 150 ms", warm.medianMs < targetOnePageMs);
    if (baselineOne) {
        std::printf("  warm one-page render / chromium one-page        %8.2f\n", warm.medianMs / baselineOne->medianMs);
        verdict("warm one-page render no slower than chromium's", warm.medianMs <= baselineOne->medianMs);
    }
    verdict("500-line render under 2 s", longOne.medianMs < targetLongMs);
    return 0;
}
