#include "invoicepdfrenderer.h"

#include <QFile>
#include <QFuture>
#include <QLoggingCategory>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfDocument>
#include <QPromise>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <QCoroFuture>
#include <QCoroSignal>
#include <QCoroTimer>

#include <memory>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Q_LOGGING_CATEGORY(lcInvoicePdf, "morvane.invoicing.pdf")

namespace {

// An invoice needs nothing from the network: fonts are local and logos are data URIs. Custom
// templates come from outside (uploads, a model), so nothing they name may be fetched.
// The one local file allowed is the spilled document itself: a template must not pull the
// user's own files into a PDF that is sent to a client.
class LocalOnly : public QWebEngineUrlRequestInterceptor
{
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void setDocument(const QUrl &document) { m_document = document; }

    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        static const QStringList allowed{u"data"_s, u"qrc"_s, u"about"_s, u"blob"_s};
        const QUrl url = info.requestUrl();
        if (allowed.contains(url.scheme()) || (url.isLocalFile() && url == m_document)) {
            return;
        }
        qCDebug(lcInvoicePdf) << "blocked" << url.toDisplayString();
        info.block(true);
    }

private:
    QUrl m_document;
};

QString pagingScript()
{
    static const QString script = [] {
        QFile file(u":/invoicing/pdf/paging.js"_s);
        if (!file.open(QIODevice::ReadOnly)) {
            qFatal("the invoice paging script is missing from the resources");
        }
        return QString::fromUtf8(file.readAll());
    }();
    return script;
}

// setHtml() travels as a data URL, which Chromium caps at 2 MB; a long invoice with a large
// logo goes through a file instead.
constexpr qsizetype largestInlineDocument = 1'500'000;

} // namespace

void InvoicePdfRenderer::prepareEnvironment()
{
    // Before any QApplication, as QtWebEngine asks.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    prepareEngine();
}

void InvoicePdfRenderer::prepareEngine()
{
    if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS")) {
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
    }
    if (::geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX")) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

InvoicePdfRenderer::InvoicePdfRenderer(QObject *parent)
    : QObject(parent)
    // No storage name: off the record, nothing of an invoice is written to a browser cache.
    , m_profile(new QWebEngineProfile(this))
{
    m_interceptor = new LocalOnly(m_profile);
    m_profile->setUrlRequestInterceptor(m_interceptor);
    createPage();
}

void InvoicePdfRenderer::createPage()
{
    m_page = new QWebEnginePage(m_profile, this);
    QWebEngineSettings *settings = m_page->settings();
    // Page scripts stay off (a custom template is untrusted); ours run in a world of their own.
    settings->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    settings->setAttribute(QWebEngineSettings::PrintElementBackgrounds, true);
    settings->setAttribute(QWebEngineSettings::ShowScrollBars, false);

    // A page without a view has a viewport of width 0, where a template's "max-width" media
    // queries and "vw" lengths would lay out a phone page. A view of the page's size that is never
    // put on screen gives it the 794-px viewport of an A4 sheet.
    m_view = new QWebEngineView();
    m_view->setPage(m_page);
    // On a real display the web view still gets a native window of its own despite
    // WA_DontShowOnScreen, which would cover the application's window with a stale picture: it
    // lives far outside every screen, unmanaged, never focused and transparent for input.
    m_view->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                           Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput);
    m_view->setAttribute(Qt::WA_DontShowOnScreen);
    m_view->setAttribute(Qt::WA_ShowWithoutActivating);
    m_view->move(-30000, -30000);
    m_view->resize(pageWidth, pageHeight);
    m_view->show();
}

void InvoicePdfRenderer::discardPage()
{
    // The view goes before its page.
    delete m_view;
    m_view = nullptr;
    delete m_page;
    m_page = nullptr;
}

InvoicePdfRenderer::~InvoicePdfRenderer()
{
    // The page must go before its profile.
    discardPage();
}

QCoro::Task<void> InvoicePdfRenderer::acquire()
{
    while (m_busy) {
        co_await qCoro(this, &InvoicePdfRenderer::idle);
    }
    m_busy = true;
}

void InvoicePdfRenderer::release()
{
    m_busy = false;
    Q_EMIT idle();
}

QCoro::Task<RenderedPdf> InvoicePdfRenderer::render(QString html)
{
    co_await acquire();
    RenderedPdf result;
    // The next render in the queue may start whichever way this one ends.
    std::exception_ptr error;
    try {
        result.pages = co_await layOut(std::move(html));
        result.pdf = co_await printPdf(result.pages);
    } catch (...) {
        error = std::current_exception();
    }
    release();
    if (error) {
        std::rethrow_exception(error);
    }
    co_return result;
}

QCoro::Task<int> InvoicePdfRenderer::layOut(QString html)
{
    // A page given up on may still finish its old load or answer old scripts later; a fresh page
    // cannot mix that up with this invoice.
    if (m_pageSpent) {
        discardPage();
        createPage();
        m_pageSpent = false;
    }
    std::unique_ptr<QTemporaryDir> spill;
    if (html.size() > largestInlineDocument) {
        spill = std::make_unique<QTemporaryDir>();
        QFile file(spill->filePath(u"invoice.html"_s));
        if (!spill->isValid() || !file.open(QIODevice::WriteOnly) || file.write(html.toUtf8()) < 0) {
            //% "The invoice page could not be written to a temporary file: %1"
            throw InvoicePdfError(qtTrId("inv.pdf.err.spill").arg(file.errorString()));
        }
        file.close();
        const QUrl document = QUrl::fromLocalFile(file.fileName());
        static_cast<LocalOnly *>(m_interceptor)->setDocument(document);
        m_page->load(document);
    } else {
        static_cast<LocalOnly *>(m_interceptor)->setDocument({});
        m_page->setHtml(html);
    }

    const std::optional<bool> loaded = co_await waitForLoad();
    if (!loaded) {
        m_page->triggerAction(QWebEnginePage::Stop);
        m_pageSpent = true;
        //% "The invoice page did not finish loading within %1 seconds."
        throw InvoicePdfError(
            qtTrId("inv.pdf.err.timeout").arg(std::max<qint64>(1, (m_loadTimeout.count() + 999) / 1000)));
    }
    if (!*loaded) {
        m_pageSpent = true;
        //% "The invoice page could not be loaded."
        throw InvoicePdfError(qtTrId("inv.pdf.err.load"));
    }
    co_await waitForFontsAndImages();

    const QString script = pagingScript();
    const QVariant pages = co_await evaluate(script);
    bool isNumber = false;
    const int count = pages.toInt(&isNumber);
    if (!isNumber || count < 1) {
        //% "The invoice could not be laid out in pages."
        throw InvoicePdfError(qtTrId("inv.pdf.err.paging"));
    }
    co_return count;
}

QCoro::Task<std::optional<bool>> InvoicePdfRenderer::waitForLoad()
{
    // The load's end or the time-out, whichever comes first, settles one future; whatever comes
    // second is ignored, and the waiting coroutine resumes from the event loop.
    auto promise = std::make_shared<QPromise<std::optional<bool>>>();
    auto settled = std::make_shared<bool>(false);
    QFuture<std::optional<bool>> future = promise->future();
    promise->start();
    auto settle = [promise, settled](std::optional<bool> result) {
        if (*settled) {
            return;
        }
        *settled = true;
        promise->addResult(result);
        promise->finish();
    };
    const QMetaObject::Connection finished =
        connect(m_page, &QWebEnginePage::loadFinished, this, [settle](bool ok) { settle(ok); });
    QTimer::singleShot(m_loadTimeout, this, [settle] { settle(std::nullopt); });
    const std::optional<bool> loaded = co_await future;
    disconnect(finished);
    co_return loaded;
}

QCoro::Task<void> InvoicePdfRenderer::waitForFontsAndImages()
{
    // Measuring before a font or logo arrives would place the page breaks for the wrong heights.
    const QString ready = u"document.fonts.status === 'loaded' && "
                          u"Array.prototype.every.call(document.images, function (i) { return i.complete; })"_s;
    for (int attempt = 0; attempt < 500; ++attempt) {
        const QVariant done = co_await evaluate(ready);
        if (done.toBool() || !done.isValid()) {
            co_return;
        }
        co_await QCoro::sleepFor(10ms);
    }
    qCWarning(lcInvoicePdf) << "fonts or images still loading after 5 s; laying out anyway";
}

QCoro::Task<QVariant> InvoicePdfRenderer::evaluate(QString script)
{
    auto promise = std::make_shared<QPromise<QVariant>>();
    auto answered = std::make_shared<bool>(false);
    QFuture<QVariant> future = promise->future();
    promise->start();
    const std::function<void(const QVariant &)> done = [promise, answered](const QVariant &value) {
        if (*answered) {
            return;
        }
        *answered = true;
        promise->addResult(value);
        promise->finish();
    };
    m_page->runJavaScript(script, QWebEngineScript::ApplicationWorld, done);
    // A page that is navigating away drops its script callbacks; no answer in time is no answer,
    // and the page is not trusted again.
    QTimer::singleShot(m_scriptTimeout, this, [this, done, answered] {
        if (!*answered) {
            m_pageSpent = true;
            done(QVariant());
        }
    });
    const QVariant value = co_await future;
    co_return value;
}

QCoro::Task<QByteArray> InvoicePdfRenderer::printPdf(int pages)
{
    // Chromium cuts the document at the paper height; a paper of exactly 794 × 1123 px makes
    // every PDF page one slice of the laid-out page.
    const QPageSize paper(QSizeF(pageWidth * 0.75, pageHeight * 0.75), QPageSize::Point, u"Invoice"_s,
                          QPageSize::ExactMatch);
    const QPageLayout layout(paper, QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));

    auto promise = std::make_shared<QPromise<QByteArray>>();
    QFuture<QByteArray> future = promise->future();
    promise->start();
    const std::function<void(const QByteArray &)> done = [promise](const QByteArray &pdf) {
        promise->addResult(pdf);
        promise->finish();
    };
    m_page->printToPdf(done, layout);
    const QByteArray pdf = co_await future;
    if (pdf.isEmpty()) {
        //% "The PDF of the invoice could not be made."
        throw InvoicePdfError(qtTrId("inv.pdf.err.print"));
    }
    qCDebug(lcInvoicePdf) << "printed" << pages << "pages," << pdf.size() << "bytes";
    co_return pdf;
}

QList<QImage> InvoicePdfRenderer::snapshots(const QByteArray &pdf, int width)
{
    QList<QImage> images;
    QTemporaryFile file;
    if (!file.open() || file.write(pdf) != pdf.size() || !file.flush()) {
        return images;
    }
    QPdfDocument document;
    if (document.load(file.fileName()) != QPdfDocument::Error::None) {
        return images;
    }
    for (int page = 0; page < document.pageCount(); ++page) {
        const QSizeF points = document.pagePointSize(page);
        const QSize size(width, qRound(width * points.height() / points.width()));
        // The PDF's paper is transparent where nothing is drawn; a preview shows it white.
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.drawImage(0, 0, document.render(page, size));
        painter.end();
        images << image;
    }
    return images;
}
