#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// What a person hands the invoice style from outside (a logo file, a custom template, colours
// and font names typed in) and whether it may go in. Files are hostile until checked: a logo is
// stored as our own re-encoded PNG, never as the bytes that arrived.
namespace InvoiceStyleInput {

constexpr qint64 maxLogoBytes = 1024 * 1024;
constexpr int maxLogoWidth = 600;
constexpr qint64 maxTemplateBytes = 512 * 1024;

// Either the accepted value or a sentence saying why not.
struct Intake
{
    std::optional<QString> value;
    QString problem;
};

// Nothing when the renderer draws the custom template; else why it falls back to a built-in design.
[[nodiscard]] std::optional<QString> templateProblem(const QString &templateHtml);

// A PNG or JPEG of at most 1 MB that decodes becomes a PNG data URI, scaled down to at most
// 600 px wide. SVG and every other kind of file are refused.
[[nodiscard]] Intake logo(const QByteArray &bytes);
[[nodiscard]] Intake logoFile(const QString &path);
// The text of a template file: UTF-8 and at most 512 KB. Whether the renderer can use it is
// templateProblem's answer; a broken template is still kept, so the person can see why.
[[nodiscard]] Intake templateFile(const QString &path);

// Nothing for "#rgb", "#rrggbb" or an empty field (no colour); else why the colour is refused.
[[nodiscard]] std::optional<QString> colourProblem(const QString &text);
// Font names end up in the style sheet: letters, digits, blanks and hyphens only.
[[nodiscard]] std::optional<QString> fontProblem(const QString &family);

} // namespace InvoiceStyleInput
