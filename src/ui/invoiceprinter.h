#pragma once

#include "invoicing/pdf/invoicepdfrenderer.h"
#include "model/invoicedocument.h"

#include <QObject>

#include <memory>

// The window's one invoice renderer, shared by the composer's preview, its save and the list's
// "draw again". The web engine behind it starts on the first invoice, not with the window.
class InvoicePrinter : public QObject
{
    Q_OBJECT

public:
    explicit InvoicePrinter(QObject *parent = nullptr);
    ~InvoicePrinter() override;

    // Throws InvoicePdfError when the page cannot be drawn.
    QCoro::Task<RenderedPdf> print(InvoiceDocument document);

private:
    std::unique_ptr<InvoicePdfRenderer> m_renderer;
};
