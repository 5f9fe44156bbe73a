#pragma once

#include "model/error.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QObject>
#include <QVariant>

#include <QCoroTask>

#include <chrono>
#include <optional>

class QWebEnginePage;
class QWebEngineProfile;
class QWebEngineUrlRequestInterceptor;
class QWebEngineView;

// Why an invoice could not be turned into a PDF.
class InvoicePdfError : public MorvaneError
{
public:
    explicit InvoicePdfError(QString message)
        : m_message(std::move(message))
    {}
    [[nodiscard]] QString message() const override { return m_message; }

private:
    QString m_message;
};

struct RenderedPdf
{
    QByteArray pdf;
    int pages = 0;
};

// Turns invoice HTML into A4 pages: loads it into an off-screen web page of 794 px width, moves
// rows and blocks that would be cut by a page edge, and prints one PDF page per 1123-px slice.
// Starting the web engine is the slow part, so one renderer lives for the whole session and
// reuses its page for every invoice; renders queue behind each other. Main thread of a
// QApplication only (the page's viewport is an off-screen widget).
class InvoicePdfRenderer : public QObject
{
    Q_OBJECT

public:
    static constexpr int pageWidth = 794;
    static constexpr int pageHeight = 1123;

    // Before the QApplication exists: off screen unless a platform was chosen, no GPU, and no
    // sandbox for root (Chromium refuses to start as root with one).
    static void prepareEnvironment();
    // The same for a process with a window of its own: everything but the off-screen platform.
    static void prepareEngine();

    explicit InvoicePdfRenderer(QObject *parent = nullptr);
    ~InvoicePdfRenderer() override;

    // The whole path: load, lay out in pages, print.
    QCoro::Task<RenderedPdf> render(QString html);

    // Loads the document and runs the paging script; answers the page count. The laid-out page
    // stays loaded for evaluate() and printPdf().
    QCoro::Task<int> layOut(QString html);
    // A PDF of the loaded page, `pages` slices of 1123 px.
    QCoro::Task<QByteArray> printPdf(int pages);
    // Runs a script against the loaded page (in a world of its own, so page scripts cannot
    // interfere) and answers its value.
    QCoro::Task<QVariant> evaluate(QString script);

    // Images of the PDF's pages for previews, `width` pixels wide.
    static QList<QImage> snapshots(const QByteArray &pdf, int width = pageWidth);

    void setLoadTimeout(std::chrono::milliseconds timeout) { m_loadTimeout = timeout; }

Q_SIGNALS:
    void idle();

private:
    QCoro::Task<void> acquire();
    void release();
    QCoro::Task<std::optional<bool>> waitForLoad();
    QCoro::Task<void> waitForFontsAndImages();
    void createPage();
    void discardPage();

    QWebEngineProfile *m_profile = nullptr;
    QWebEngineUrlRequestInterceptor *m_interceptor = nullptr;
    QWebEnginePage *m_page = nullptr;
    QWebEngineView *m_view = nullptr; // a widget: owned here, not by the QObject tree
    bool m_busy = false;
    bool m_pageSpent = false; // a load or script was given up on: the next invoice gets a new page
    std::chrono::milliseconds m_loadTimeout{30000};
    std::chrono::milliseconds m_scriptTimeout{10000};
};
