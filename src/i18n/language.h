#pragma once

#include <QString>
#include <QStringList>

// The interface language: English underneath, the chosen language on top, so that a text not
// yet translated shows in English rather than as its key.
namespace Language {

// The languages the application ships, as two-letter codes.
QStringList available();

// Installs the translations of `code` (a profile's language such as "nl" or "pt-BR"); an empty
// or unknown code follows the system locale, and English is the last resort. Answers the code
// in use. Needs a QCoreApplication.
QString apply(const QString &code = {});

// The language in use since the last apply().
QString current();

} // namespace Language
