#include "i18n/language.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

struct Entry
{
    QString source;
    QString translation;
    bool unfinished = false;
};

QHash<QString, Entry> readTs(const QString &path)
{
    QHash<QString, Entry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return entries;
    }
    QXmlStreamReader xml(&file);
    QString id;
    Entry entry;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"message") {
            id = xml.attributes().value(u"id"_s).toString();
            entry = {};
        } else if (xml.isStartElement() && xml.name() == u"source") {
            entry.source = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"translation") {
            entry.unfinished = xml.attributes().value(u"type"_s) == u"unfinished";
            entry.translation = xml.readElementText();
        } else if (xml.isEndElement() && xml.name() == u"message") {
            entries.insert(id, entry);
        }
    }
    return entries;
}

// Every text id the code asks for, from C++ and QML alike.
QSet<QString> keysUsedInCode()
{
    static const QRegularExpression call(u"(?:qtTrId|qsTrId|QT_TRID_NOOP)\\(\\s*\"([^\"]+)\""_s);
    QSet<QString> keys;
    for (const char *folder : {"src", "server"}) {
        QDirIterator it(QStringLiteral(MORVANE_SOURCE_DIR "/") + QLatin1StringView(folder),
                        {u"*.cpp"_s, u"*.h"_s, u"*.qml"_s, u"*.js"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile file(it.next());
            if (!file.open(QIODevice::ReadOnly)) {
                continue;
            }
            const QString text = QString::fromUtf8(file.readAll());
            for (const QRegularExpressionMatch &match : call.globalMatch(text)) {
                keys.insert(match.captured(1));
            }
        }
    }
    return keys;
}

QSet<QString> placeholders(const QString &text)
{
    static const QRegularExpression marker(u"%\\d+"_s);
    QSet<QString> found;
    for (const QRegularExpressionMatch &match : marker.globalMatch(text)) {
        found.insert(match.captured());
    }
    return found;
}

QString tsPath(const QString &language)
{
    return QStringLiteral(MORVANE_SOURCE_DIR "/src/i18n/morvane_") + language + u".ts";
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_keys = keysUsedInCode();
        QVERIFY2(m_keys.size() > 10, "the source scan found almost no texts; is MORVANE_SOURCE_DIR right?");
        m_english = readTs(tsPath(u"en"_s));
        QVERIFY(!m_english.isEmpty());
    }

    void everyLanguageHasEveryText_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : Language::available()) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }

    void everyLanguageHasEveryText()
    {
        QFETCH(QString, language);
        const QHash<QString, Entry> entries = readTs(tsPath(language));
        QStringList problems;
        for (const QString &key : std::as_const(m_keys)) {
            const auto it = entries.constFind(key);
            if (it == entries.cend() || it->translation.trimmed().isEmpty() || it->unfinished) {
                problems << key + u": no translation";
                continue;
            }
            if (language == u"en" && it->translation != it->source) {
                problems << key + u": the English translation is not the text";
            }
            if (it->source != m_english.value(key).source) {
                problems << key + u": English source differs from the English file";
            }
            if (placeholders(it->translation) != placeholders(m_english.value(key).translation)) {
                problems << key + u": placeholders differ from English";
            }
        }
        for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
            if (!m_keys.contains(it.key())) {
                problems << it.key() + u": not used by the code";
            }
        }
        problems.sort();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    }

    void languageFollowsTheCode_data()
    {
        QTest::addColumn<QString>("requested");
        QTest::addColumn<QString>("applied");
        QTest::addColumn<QString>("text");
        QTest::newRow("Dutch") << u"nl"_s << u"nl"_s << u"Niet ingelogd."_s;
        QTest::newRow("region is ignored") << u"pt-BR"_s << u"pt"_s << u"Sessão não iniciada."_s;
        // The tests run under the C locale, so an unknown code ends in English.
        QTest::newRow("unknown code falls back") << u"xx"_s << u"en"_s << u"Not signed in."_s;
    }

    void languageFollowsTheCode()
    {
        QFETCH(QString, requested);
        QTEST(Language::apply(requested), "applied");
        QTEST(qtTrId("supabase.err.noAuth"), "text");
        QCOMPARE(Language::current(), Language::apply(requested));
    }

private:
    QSet<QString> m_keys;
    QHash<QString, Entry> m_english;
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
