#include "ui/invoiceprinter.h"

#include "invoicing/invoicehtmlrenderer.h"

InvoicePrinter::InvoicePrinter(QObject *parent)
    : QObject(parent)
{}

InvoicePrinter::~InvoicePrinter() = default;

QCoro::Task<RenderedPdf> InvoicePrinter::print(InvoiceDocument document)
{
    if (!m_renderer) {
        m_renderer = std::make_unique<InvoicePdfRenderer>();
    }
    co_return co_await m_renderer->render(InvoiceHTMLRenderer::buildHTML(document));
}
