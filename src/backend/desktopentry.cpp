#include "desktopentry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

// Quotes an Exec argument as the desktop entry format wants it.
QString execQuoted(const QString &program)
{
    QString quoted = program;
    quoted.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'`', u"\\`"_s).replace(u'$', u"\\$"_s);
    return u'"' + quoted + u'"';
}

} // namespace

namespace DesktopEntry {

QString text(const QString &program, const QStringList &extraLines)
{
    QFile file(u":/desktop/morvane.desktop"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("the desktop entry is not compiled into this program");
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    const QString command = u"Exec=morvane"_s;
    qsizetype mainGroupEnd = -1;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!program.isEmpty() && lines[i].startsWith(command) &&
            (lines[i].size() == command.size() || lines[i].at(command.size()) == u' ')) {
            lines[i] = u"Exec="_s + execQuoted(program) + lines[i].mid(command.size());
        }
        if (mainGroupEnd < 0 && i > 0 && lines[i].startsWith(u'[')) {
            mainGroupEnd = i;
        }
    }
    if (mainGroupEnd < 0) {
        mainGroupEnd = lines.size();
    }
    // Before the blank line that ends the group, so the added keys stay in it.
    while (mainGroupEnd > 0 && lines[mainGroupEnd - 1].isEmpty()) {
        --mainGroupEnd;
    }
    for (const QString &line : extraLines) {
        lines.insert(mainGroupEnd++, line);
    }
    return lines.join(u'\n');
}

bool write(const QString &path, const QString &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(content.toUtf8());
    return file.commit();
}

} // namespace DesktopEntry
