#pragma once

#include "invoicing/invoicehtmlrenderer.h"
#include "model/invoicestyle.h"
#include "store/appstore.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <memory>

class InvoicePdfRenderer;

// The invoice style screen: the house style as the form's values, the checks of what a person
// picks or types, and a thumbnail of the sample invoice in each design, drawn by the real
// renderer with the style as it is being edited. Thumbnails are PNG files in a folder of this
// object's own, so QML shows them as plain file addresses; a new drawing gets a new name.
class InvoiceStyleView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the workspace")
    Q_PROPERTY(QVariantMap saved READ saved NOTIFY savedChanged)
    Q_PROPERTY(QVariantList designs READ designs NOTIFY designsChanged)
    Q_PROPERTY(bool drawing READ drawing NOTIFY drawingChanged)
    Q_PROPERTY(bool saving READ saving NOTIFY savingChanged)
    Q_PROPERTY(QString error READ error WRITE setError NOTIFY errorChanged)
    Q_PROPERTY(QStringList fontFamilies READ fontFamilies CONSTANT)

public:
    explicit InvoiceStyleView(QObject *parent = nullptr);
    ~InvoiceStyleView() override;

    void setStore(AppStore *store);
    // The interface language changed: the designs' titles follow.
    void retranslate() { emit designsChanged(); }

    // The stored house style as form values: strings by InvoiceStyle's C++ names, numbers as
    // text, `morvaneFooter` a bool.
    [[nodiscard]] QVariantMap saved() const;
    // { name, title, thumbnail (file URL, empty until drawn), custom } per design, built-ins first.
    [[nodiscard]] QVariantList designs() const;
    [[nodiscard]] bool drawing() const { return m_drawing; }
    [[nodiscard]] bool saving() const { return m_saving; }
    [[nodiscard]] QString error() const { return m_error; }
    void setError(const QString &error);
    // The families an invoice may use that this machine has.
    [[nodiscard]] QStringList fontFamilies() const;

    // { dataUri } for a logo that may go in, else { problem }.
    Q_INVOKABLE QVariantMap pickLogo(const QUrl &file) const;
    // { html, problem }: the file's text (empty when it cannot be read, `problem` says why), and
    // otherwise why the renderer would not use it ("" when it does).
    Q_INVOKABLE QVariantMap pickTemplate(const QUrl &file) const;
    Q_INVOKABLE QString templateProblem(const QString &html) const;
    Q_INVOKABLE QString colourProblem(const QString &text) const;
    // Draws the thumbnails again with the form's style, shortly after the last change.
    Q_INVOKABLE void preview(const QVariantMap &form);
    // Writes the form through the store; a value that cannot be saved is said in `error`.
    Q_INVOKABLE void save(const QVariantMap &form);

    // The form's values over `base` (which keeps what the form does not show), or why not.
    [[nodiscard]] static std::optional<InvoiceStyle> styleOf(const QVariantMap &form, InvoiceStyle base,
                                                             QString *problem = nullptr);
    [[nodiscard]] static QVariantMap formOf(const InvoiceStyle &style);
    // A design's name as the person reads it, here and in the composer.
    [[nodiscard]] static QString designTitle(InvoiceHTMLRenderer::Template design);

signals:
    void savedChanged();
    void designsChanged();
    void drawingChanged();
    void savingChanged();
    void errorChanged();
    // A save went through.
    void stored();

private:
    void draw();
    [[nodiscard]] InvoiceStyle base() const;
    void setDrawing(bool drawing);
    void setSaving(bool saving);

    QPointer<AppStore> m_store;
    std::unique_ptr<InvoicePdfRenderer> m_renderer;
    QTemporaryDir m_dir;
    QHash<QString, QUrl> m_thumbnails;
    InvoiceStyle m_previewStyle;
    QTimer m_debounce;
    quint64 m_generation = 0;
    bool m_drawRunning = false;
    bool m_drawing = false;
    bool m_saving = false;
    QString m_error;
};
