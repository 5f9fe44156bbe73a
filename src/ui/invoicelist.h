#pragma once

#include "store/appstore.h"
#include "ui/rowsmodel.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>

// The written invoices for the invoice list: the rows of the status and year filters, the money
// still open and overdue among them, and the status changes, deletions and PDFs the list offers.
// Every write goes through the store; a refusal (a void invoice stays void) comes back as `message`.
class InvoicePrinter;

class InvoiceList : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the workspace")
    Q_PROPERTY(RowsModel *rows READ rows CONSTANT)
    Q_PROPERTY(QString status READ status WRITE setStatus NOTIFY filterChanged)
    Q_PROPERTY(int year READ year WRITE setYear NOTIFY filterChanged)
    Q_PROPERTY(QVariantList years READ years NOTIFY figuresChanged)
    Q_PROPERTY(int total READ total NOTIFY figuresChanged)
    Q_PROPERTY(QString openText READ openText NOTIFY figuresChanged)
    Q_PROPERTY(QString overdueText READ overdueText NOTIFY figuresChanged)
    Q_PROPERTY(bool hasOverdue READ hasOverdue NOTIFY figuresChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool messageIsError READ messageIsError NOTIFY messageChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)

public:
    using UrlOpener = std::function<bool(const QUrl &)>;

    explicit InvoiceList(QObject *parent = nullptr);

    void setStore(AppStore *store);
    // Where the backend lives: only links to its host are opened or downloaded.
    void setBackend(const QUrl &baseUrl);
    void setPrinter(InvoicePrinter *printer) { m_printer = printer; }
    // The desktop's viewer by default; tests look at the link instead.
    void setUrlOpener(UrlOpener opener) { m_opener = std::move(opener); }
    // Status names, dates and money are written in the interface language.
    void retranslate() { rebuild(); }

    [[nodiscard]] RowsModel *rows() const { return m_rows; }
    // "" for every status, else draft, sent, paid or void.
    [[nodiscard]] QString status() const { return m_status; }
    void setStatus(const QString &status);
    // 0 for every year.
    [[nodiscard]] int year() const { return m_year; }
    void setYear(int year);
    [[nodiscard]] QVariantList years() const;
    // Invoices written, whatever the filters show.
    [[nodiscard]] int total() const { return m_total; }
    [[nodiscard]] QString openText() const { return m_openText; }
    [[nodiscard]] QString overdueText() const { return m_overdueText; }
    [[nodiscard]] bool hasOverdue() const { return m_hasOverdue; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] bool messageIsError() const { return m_messageIsError; }
    [[nodiscard]] bool busy() const { return m_busy > 0; }

    Q_INVOKABLE void reload();
    Q_INVOKABLE void dismissMessage() { say({}, false); }
    // draft, sent or paid; void goes through voidInvoice, which the view confirms first.
    Q_INVOKABLE void changeStatus(const QString &invoiceId, const QString &status);
    Q_INVOKABLE void voidInvoice(const QString &invoiceId);
    Q_INVOKABLE void remove(const QString &invoiceId);
    Q_INVOKABLE void openPdf(const QString &invoiceId);
    // Draws the invoice again from its stored lines and the sender's current details, and puts the
    // new PDF in place of the stored one (the view confirms first).
    Q_INVOKABLE void redraw(const QString &invoiceId);
    // `file` is the local file the person picked.
    Q_INVOKABLE void savePdf(const QString &invoiceId, const QUrl &file);
    // What a save dialog proposes: the invoice number as a file name among the documents.
    Q_INVOKABLE [[nodiscard]] QUrl suggestedFile(const QString &invoiceId) const;

    // Whether a link may be followed: http or https on the backend's own host.
    [[nodiscard]] static bool isBackendLink(const QUrl &link, const QUrl &backend);

signals:
    void filterChanged();
    void figuresChanged();
    void messageChanged();
    void busyChanged();

private:
    void rebuild();
    void say(const QString &text, bool error);
    void sayStoreError();
    void begin();
    void end();

    QPointer<AppStore> m_store;
    QPointer<InvoicePrinter> m_printer;
    RowsModel *m_rows;
    QUrl m_backend;
    UrlOpener m_opener;
    QNetworkAccessManager m_network;
    QString m_status;
    int m_year = 0;
    QList<int> m_years;
    int m_total = 0;
    QString m_openText;
    QString m_overdueText;
    bool m_hasOverdue = false;
    QString m_message;
    bool m_messageIsError = false;
    int m_busy = 0;
};
