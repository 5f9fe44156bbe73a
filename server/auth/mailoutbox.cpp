#include "mailoutbox.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUuid>

using namespace Qt::StringLiterals;

MailOutbox::MailOutbox(QString dir)
    : m_dir(std::move(dir))
{}

QString MailOutbox::send(const QString &to, const QString &subject, const QString &body) const
{
    QDir().mkpath(m_dir);
    QFile::setPermissions(m_dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    static const QRegularExpression unsafe(u"[^A-Za-z0-9@._-]"_s);
    QString safeTo = to;
    safeTo.replace(unsafe, u"_"_s);
    // Names sort by time; the random tail keeps two messages of one millisecond apart.
    const QString name = QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-HHmmss-zzz"_s) + u'-' + safeTo.left(100) +
                         u'-' + QUuid::createUuid().toString(QUuid::Id128).left(8) + u".eml"_s;
    QFile file(QDir(m_dir).filePath(name));
    if (!file.open(QIODevice::WriteOnly)) {
        return {};
    }
    const QString message =
        u"To: "_s + to + u"\nSubject: "_s + subject + u"\nContent-Type: text/plain; charset=utf-8\n\n"_s + body + u'\n';
    file.write(message.toUtf8());
    return file.fileName();
}
