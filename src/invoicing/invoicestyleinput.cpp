#include "invoicing/invoicestyleinput.h"

#include "invoicing/invoicehtmlrenderer.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace InvoiceStyleInput {

namespace {

// Reads at most `limit` + 1 bytes, so that a huge file is refused without reading it all.
std::optional<QByteArray> readCapped(const QString &path, qint64 limit)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.read(limit + 1);
}

Intake refused(QString problem)
{
    return {std::nullopt, std::move(problem)};
}

bool looksLikeSvg(const QByteArray &bytes, const QByteArray &format)
{
    if (format.startsWith("svg")) {
        return true;
    }
    const QByteArray head = bytes.left(1024).trimmed().toLower();
    return head.startsWith("<?xml") || head.startsWith("<svg") || head.contains("<svg");
}

} // namespace

std::optional<QString> templateProblem(const QString &templateHtml)
{
    using InvoiceHTMLRenderer::TemplateFault;
    switch (InvoiceHTMLRenderer::templateFault(templateHtml)) {
    case TemplateFault::None:
        return std::nullopt;
    case TemplateFault::Empty:
        //% "The template is empty."
        return qtTrId("inv.style.template.empty");
    case TemplateFault::NoDoctype:
        //% "The template must start with <!doctype html>."
        return qtTrId("inv.style.template.noDoctype");
    case TemplateFault::NoHeader:
        //% "The template has no <header> element."
        return qtTrId("inv.style.template.noHeader");
    case TemplateFault::NoFooter:
        //% "The template has no <footer> element."
        return qtTrId("inv.style.template.noFooter");
    case TemplateFault::PageNotFixed:
        //% "The template must fix the page at 794 × 1123 px (A4), with both sizes in its style sheet."
        return qtTrId("inv.style.template.pageSize");
    }
    return std::nullopt;
}

Intake logo(const QByteArray &bytes)
{
    if (bytes.isEmpty()) {
        //% "The file is empty."
        return refused(qtTrId("inv.style.logo.empty"));
    }
    if (bytes.size() > maxLogoBytes) {
        //% "The logo is larger than 1 MB. Pick a smaller PNG or JPEG."
        return refused(qtTrId("inv.style.logo.tooLarge"));
    }
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (looksLikeSvg(bytes, format)) {
        //% "SVG logos are not accepted, since a drawing can carry scripts and links. Pick a PNG or JPEG."
        return refused(qtTrId("inv.style.logo.svg"));
    }
    if (format != "png" && format != "jpeg") {
        //% "The logo must be a PNG or JPEG image."
        return refused(qtTrId("inv.style.logo.kind"));
    }
    // A small file may still claim a huge picture; decoding it must not take the memory.
    reader.setAllocationLimit(64);
    QImage image = reader.read();
    if (image.isNull()) {
        //% "The image could not be read; the file may be damaged."
        return refused(qtTrId("inv.style.logo.damaged"));
    }
    if (image.width() > maxLogoWidth) {
        image = image.scaledToWidth(maxLogoWidth, Qt::SmoothTransformation);
    }
    // Only the pixels go on: text chunks, colour profiles and the like stay behind with the file.
    image = image.convertToFormat(QImage::Format_ARGB32);
    image = QImage(image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format()).copy();
    QByteArray png;
    QBuffer out(&png);
    out.open(QIODevice::WriteOnly);
    image.save(&out, "PNG");
    return {u"data:image/png;base64,"_s + QString::fromLatin1(png.toBase64()), {}};
}

Intake logoFile(const QString &path)
{
    const std::optional<QByteArray> bytes = readCapped(path, maxLogoBytes);
    if (!bytes) {
        //% "The file could not be opened."
        return refused(qtTrId("inv.style.file.unreadable"));
    }
    return logo(*bytes);
}

Intake templateFile(const QString &path)
{
    const std::optional<QByteArray> bytes = readCapped(path, maxTemplateBytes);
    if (!bytes) {
        return refused(qtTrId("inv.style.file.unreadable"));
    }
    if (bytes->size() > maxTemplateBytes) {
        //% "The template is larger than 512 KB."
        return refused(qtTrId("inv.style.template.tooLarge"));
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(*bytes);
    if (decoder.hasError() || text.contains(QChar(0))) {
        //% "The template is not a text file in UTF-8."
        return refused(qtTrId("inv.style.template.notText"));
    }
    return {std::move(text), {}};
}

std::optional<QString> colourProblem(const QString &text)
{
    static const QRegularExpression hex(u"^#(?:[0-9a-fA-F]{3}|[0-9a-fA-F]{6})$"_s);
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || hex.match(trimmed).hasMatch()) {
        return std::nullopt;
    }
    //% "“%1” is no colour: write it as #rgb or #rrggbb, for example #0f766e."
    return qtTrId("inv.style.colour.invalid").arg(trimmed);
}

std::optional<QString> fontProblem(const QString &family)
{
    static const QRegularExpression plain(u"^[\\p{L}\\p{N} -]{0,64}$"_s);
    if (plain.match(family.trimmed()).hasMatch()) {
        return std::nullopt;
    }
    //% "A font name holds only letters, digits, blanks and hyphens."
    return qtTrId("inv.style.font.invalid");
}

} // namespace InvoiceStyleInput
