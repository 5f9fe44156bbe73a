#pragma once

#include "model/invoicedocument.h"
#include "store/appstore.h"
#include "store/invoicecomposer.h"
#include "ui/rowsmodel.h"

#include <QDate>
#include <QObject>
#include <QPointer>
#include <QImage>
#include <QQuickImageProvider>
#include <QtQml/qqmlregistration.h>

#include <memory>

class InvoicePrinter;

// The invoice composer's screen: which projects and period, which tasks, VAT, the client, the
// design, and a PDF preview that follows every change. The figures come from InvoiceComposer; this
// class only words them and keeps the preview fresh. A change while the preview is drawn is not
// queued per keystroke: the preview redraws once more with the latest state when the current one
// is done, so typing never waits for the renderer and the renderer never works on stale input.
class ComposerView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the workspace")
    Q_PROPERTY(InvoiceComposer *composer READ composer NOTIFY storeChanged)
    Q_PROPERTY(QVariantList projects READ projects NOTIFY projectsChanged)
    Q_PROPERTY(QVariantList presets READ presets NOTIFY figuresChanged)
    Q_PROPERTY(QString fromText READ fromText NOTIFY periodChanged)
    Q_PROPERTY(QString toText READ toText NOTIFY periodChanged)
    Q_PROPERTY(RowsModel *tasks READ tasks CONSTANT)
    Q_PROPERTY(RowsModel *lines READ lines CONSTANT)
    Q_PROPERTY(QVariantList followUps READ followUps NOTIFY figuresChanged)
    Q_PROPERTY(QVariantList travel READ travel NOTIFY figuresChanged)
    Q_PROPERTY(QVariantList vatRows READ vatRows NOTIFY figuresChanged)
    Q_PROPERTY(QString subtotalText READ subtotalText NOTIFY figuresChanged)
    Q_PROPERTY(QString totalText READ totalText NOTIFY figuresChanged)
    Q_PROPERTY(QVariantMap words READ words NOTIFY figuresChanged)
    Q_PROPERTY(QString number READ number NOTIFY numberChanged)
    Q_PROPERTY(QString issuedText READ issuedText NOTIFY datesChanged)
    Q_PROPERTY(QString dueText READ dueText NOTIFY datesChanged)
    Q_PROPERTY(QString notes READ notes WRITE setNotes NOTIFY notesChanged)
    Q_PROPERTY(QVariantList clients READ clients NOTIFY clientsChanged)
    Q_PROPERTY(QVariantList designs READ designs NOTIFY figuresChanged)
    Q_PROPERTY(QString design READ design WRITE setDesign NOTIFY designChanged)
    Q_PROPERTY(QStringList previewPages READ previewPages NOTIFY previewChanged)
    Q_PROPERTY(double previewAspect READ previewAspect NOTIFY previewChanged)
    Q_PROPERTY(bool previewBusy READ previewBusy NOTIFY previewBusyChanged)
    Q_PROPERTY(QString previewError READ previewError NOTIFY previewChanged)
    Q_PROPERTY(bool saving READ saving NOTIFY savingChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool messageIsError READ messageIsError NOTIFY messageChanged)

public:
    explicit ComposerView(InvoicePrinter &printer, QObject *parent = nullptr);
    ~ComposerView() override;

    void setStore(AppStore *store);
    void retranslate();

    [[nodiscard]] InvoiceComposer *composer() const { return m_composer.get(); }
    [[nodiscard]] QVariantList projects() const;
    [[nodiscard]] static QVariantList presets();
    [[nodiscard]] QString fromText() const;
    [[nodiscard]] QString toText() const;
    [[nodiscard]] RowsModel *tasks() const { return m_tasks; }
    [[nodiscard]] RowsModel *lines() const { return m_lines; }
    [[nodiscard]] QVariantList followUps() const { return m_followUps; }
    // Projects whose unbilled trips in the period make a travel line: { projectId, text, charge }.
    [[nodiscard]] QVariantList travel() const;
    [[nodiscard]] QVariantList vatRows() const { return m_vatRows; }
    [[nodiscard]] QString subtotalText() const;
    [[nodiscard]] QString totalText() const;
    [[nodiscard]] static QVariantMap words();
    [[nodiscard]] QString number() const { return m_number; }
    [[nodiscard]] QString issuedText() const { return m_issued.toString(Qt::ISODate); }
    [[nodiscard]] QString dueText() const { return m_due.toString(Qt::ISODate); }
    [[nodiscard]] QString notes() const { return m_notes; }
    void setNotes(const QString &notes);
    [[nodiscard]] QVariantList clients() const;
    [[nodiscard]] static QVariantList designs();
    [[nodiscard]] QString design() const { return m_design; }
    void setDesign(const QString &design);
    // The preview's pages as image addresses of the engine's preview provider; each drawing gets
    // new addresses, so an Image never shows a cached page of an older state.
    [[nodiscard]] QStringList previewPages() const;
    // Height over width of a page.
    [[nodiscard]] double previewAspect() const;
    // The PDF the preview shows, as the client would receive it.
    [[nodiscard]] const QByteArray &previewPdf() const { return m_previewPdf; }
    static constexpr auto previewProviderId = "invoicepreview";
    // The engine's provider of the preview pages; it follows this view while both live.
    [[nodiscard]] QQuickImageProvider *makePreviewProvider();
    [[nodiscard]] QImage previewImage(qsizetype page) const { return m_previewImages.value(page); }
    [[nodiscard]] bool previewBusy() const { return m_previewBusy; }
    [[nodiscard]] QString previewError() const { return m_previewError; }
    [[nodiscard]] bool saving() const { return m_saving; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] bool messageIsError() const { return m_messageIsError; }

    // Starts a new invoice over these projects; the period starts at their earliest unbilled work.
    Q_INVOKABLE void open(const QStringList &projectIds);
    Q_INVOKABLE void toggleProject(const QString &projectId);
    Q_INVOKABLE void applyPreset(const QString &preset);
    // Days as "yyyy-MM-dd"; answers false and says why when they cannot be read or are reversed.
    Q_INVOKABLE bool setPeriod(const QString &from, const QString &to);
    Q_INVOKABLE bool setDates(const QString &issued, const QString &due);
    Q_INVOKABLE void chooseClient(const QString &clientId);
    // "draft" or "sent".
    Q_INVOKABLE void save(const QString &status);
    Q_INVOKABLE void dismissMessage() { say({}, false); }

signals:
    void storeChanged();
    void projectsChanged();
    void periodChanged();
    void figuresChanged();
    void numberChanged();
    void datesChanged();
    void notesChanged();
    void clientsChanged();
    void designChanged();
    void previewChanged();
    void previewBusyChanged();
    void savingChanged();
    void messageChanged();
    // The window shows the composer.
    void opened();
    // The invoice was written; the window goes on to the list.
    void saved(const QString &number);

private:
    void rebuild();
    void schedulePreview();
    QCoro::Task<> drawPreview();
    QCoro::Task<> allocateNumber();
    [[nodiscard]] InvoiceDocument document() const;
    void say(const QString &text, bool error);

    InvoicePrinter &m_printer;
    QPointer<AppStore> m_store;
    std::unique_ptr<InvoiceComposer> m_composer;
    RowsModel *m_tasks;
    RowsModel *m_lines;
    QVariantList m_followUps;
    QVariantList m_vatRows;
    QString m_number;
    QDate m_issued;
    QDate m_due;
    QString m_notes;
    QString m_design;
    QByteArray m_previewPdf;
    QList<QImage> m_previewImages;
    int m_previewGeneration = 0;
    bool m_previewBusy = false;
    bool m_previewStale = false;
    QString m_previewError;
    bool m_saving = false;
    QString m_message;
    bool m_messageIsError = false;
};
