#include "invoicelanguage.h"

#include "i18n/language.h"

#include <QHash>
#include <QMutex>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<const QTranslator> translatorFor(const QString &code)
{
    static QMutex mutex;
    static QHash<QString, std::shared_ptr<const QTranslator>> loaded;
    QMutexLocker lock(&mutex);
    if (const auto found = loaded.constFind(code); found != loaded.cend()) {
        return *found;
    }
    auto translator = std::make_shared<QTranslator>();
    std::shared_ptr<const QTranslator> result;
    if (translator->load(u":/i18n/morvane_"_s + code)) {
        result = translator;
    }
    loaded.insert(code, result);
    return result;
}

QString supported(const QString &code)
{
    const QString language = code.section(u'-', 0, 0).section(u'_', 0, 0).toLower();
    return Language::available().contains(language) ? language : QString();
}

// Where each language writes its own countries' conventions; English follows British usage
// (day before month), the common choice on European invoices.
QLocale localeFor(const QString &code)
{
    static const QHash<QString, QString> names{
        {u"en"_s, u"en_GB"_s}, {u"nl"_s, u"nl_NL"_s}, {u"de"_s, u"de_DE"_s},
        {u"fr"_s, u"fr_FR"_s}, {u"es"_s, u"es_ES"_s}, {u"it"_s, u"it_IT"_s},
        {u"pt"_s, u"pt_PT"_s}, {u"ja"_s, u"ja_JP"_s}, {u"th"_s, u"th_TH"_s},
    };
    return QLocale(names.value(code, u"en_GB"_s));
}

} // namespace

InvoiceLanguage::InvoiceLanguage(const QString &code)
{
    m_code = supported(code);
    if (m_code.isEmpty()) {
        m_code = supported(Language::current());
    }
    if (m_code.isEmpty()) {
        m_code = u"en"_s;
    }
    m_locale = localeFor(m_code);
    m_translator = translatorFor(m_code);
    m_english = translatorFor(u"en"_s);
}

QString InvoiceLanguage::text(const char *id) const
{
    for (const auto &translator : {m_translator, m_english}) {
        if (translator) {
            const QString found = translator->translate(nullptr, id);
            if (!found.isEmpty()) {
                return found;
            }
        }
    }
    return QString::fromLatin1(id);
}

QString InvoiceLanguage::longDate(const QDate &date) const
{
    if (!date.isValid()) {
        return {};
    }
    static const QHash<QString, QString> patterns{
        {u"de"_s, u"d. MMMM yyyy"_s},
        {u"es"_s, u"d 'de' MMMM 'de' yyyy"_s},
        {u"pt"_s, u"d 'de' MMMM 'de' yyyy"_s},
        {u"ja"_s, u"yyyy年M月d日"_s},
    };
    return m_locale.toString(date, patterns.value(m_code, u"d MMMM yyyy"_s));
}

QString InvoiceLanguage::shortDate(const QDate &date) const
{
    if (!date.isValid()) {
        return {};
    }
    static const QHash<QString, QString> patterns{
        {u"en"_s, u"d MMM yyyy"_s},
        {u"nl"_s, u"dd-MM-yyyy"_s},
        {u"de"_s, u"dd.MM.yyyy"_s},
        {u"ja"_s, u"yyyy/MM/dd"_s},
    };
    return m_locale.toString(date, patterns.value(m_code, u"dd/MM/yyyy"_s));
}
