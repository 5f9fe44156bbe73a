#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QTranslator> englishTranslator;
std::unique_ptr<QTranslator> chosenTranslator;
std::unique_ptr<QTranslator> qtTranslator; // Qt's own texts, such as the command-line parser's
QString currentCode;

QString supported(const QString &code)
{
    const QString language = code.section(u'-', 0, 0).section(u'_', 0, 0).toLower();
    return Language::available().contains(language) ? language : QString();
}

std::unique_ptr<QTranslator> load(const QString &code)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(u":/i18n/morvane_" + code)) {
        return nullptr;
    }
    return translator;
}

} // namespace

namespace Language {

QStringList available()
{
    return {u"en"_s, u"nl"_s, u"de"_s, u"fr"_s, u"es"_s, u"it"_s, u"pt"_s, u"ja"_s, u"th"_s};
}

QString apply(const QString &code)
{
    QString language = supported(code);
    if (language.isEmpty()) {
        language = supported(QLocale::system().name());
    }
    if (language.isEmpty()) {
        language = u"en"_s;
    }

    if (!englishTranslator) {
        englishTranslator = load(u"en"_s);
        if (englishTranslator) {
            QCoreApplication::installTranslator(englishTranslator.get());
        }
    }
    for (auto *translator : {&chosenTranslator, &qtTranslator}) {
        if (*translator) {
            QCoreApplication::removeTranslator(translator->get());
            translator->reset();
        }
    }
    // Translators installed later are asked first.
    if (language != u"en") {
        chosenTranslator = load(language);
        if (chosenTranslator) {
            QCoreApplication::installTranslator(chosenTranslator.get());
        }
        qtTranslator = std::make_unique<QTranslator>();
        if (qtTranslator->load(u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(qtTranslator.get());
        } else {
            qtTranslator.reset();
        }
    }
    currentCode = language;
    return currentCode;
}

QString current()
{
    return currentCode;
}

} // namespace Language
