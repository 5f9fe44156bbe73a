#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

#include <memory>

class QTranslator;

// The language an invoice is written in, which need not be the interface's: its printed words,
// dates and number conventions. Cheap to copy; translators are loaded once per language.
class InvoiceLanguage
{
public:
    // `code` as a profile stores it ("nl", "pt-BR"); empty or unknown falls back to the
    // interface language, then English.
    explicit InvoiceLanguage(const QString &code = {});

    [[nodiscard]] QString code() const { return m_code; }
    [[nodiscard]] QLocale locale() const { return m_locale; }

    // The invoice's text for a text id, e.g. "inv.doc.billTo"; English when the language lacks it.
    [[nodiscard]] QString text(const char *id) const;

    // "31 March 2025" / "31 maart 2025" / "2025年3月31日".
    [[nodiscard]] QString longDate(const QDate &date) const;
    // "31 Mar 2025" / "31-03-2025" / "31.03.2025".
    [[nodiscard]] QString shortDate(const QDate &date) const;

private:
    QString m_code;
    QLocale m_locale;
    std::shared_ptr<const QTranslator> m_translator;
    std::shared_ptr<const QTranslator> m_english;
};
