#include "objectfiles.h"

#include "storage/storageerror.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QUuid>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(lcObjectFiles, "morvane.server.storage")

using namespace Qt::StringLiterals;

namespace {

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

bool writeAll(int fd, const QByteArray &content)
{
    const char *data = content.constData();
    qsizetype left = content.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, data, size_t(left));
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        data += written;
        left -= written;
    }
    return true;
}

// The rename is only durable once the folder's own entry list is on disk.
bool syncFolder(const QByteArray &folder)
{
    const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) {
        return false;
    }
    const bool synced = ::fsync(fd) == 0;
    ::close(fd);
    return synced;
}

} // namespace

ObjectFiles::ObjectFiles(QString root)
    : m_root(std::move(root))
{}

bool ObjectFiles::isSafeBucketId(const QString &bucket)
{
    static const QRegularExpression pattern(u"^[A-Za-z0-9_.-]{1,100}$"_s);
    return bucket != u"." && bucket != u".." && pattern.match(bucket).hasMatch();
}

bool ObjectFiles::isVersionId(const QString &version)
{
    static const QRegularExpression pattern(u"^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"_s);
    return pattern.match(version).hasMatch();
}

QString ObjectFiles::pathOf(const QString &bucket, const QString &version) const
{
    if (!isSafeBucketId(bucket) || !isVersionId(version)) {
        return {};
    }
    return QString(m_root + u'/' + bucket + u'/' + version);
}

QString ObjectFiles::write(const QString &bucket, const QByteArray &content) const
{
    if (!isSafeBucketId(bucket)) {
        throw StorageError::invalidBucketName(bucket);
    }
    const QString folder = QString(m_root + u'/' + bucket);
    if (!QDir().mkpath(folder)) {
        throw StorageError::internal(u"Cannot create the bucket's folder"_s);
    }
    const QString version = QUuid::createUuid().toString(QUuid::WithoutBraces);
    // Written under a name no reader looks for, so the version name only ever shows complete content.
    const QByteArray temporary = QFile::encodeName(QString(folder + u"/.tmp-"_s + version));
    const QByteArray final = QFile::encodeName(pathOf(bucket, version));

    const int fd = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd < 0) {
        throw StorageError::internal(u"Cannot store the object: "_s + systemError());
    }
    bool stored = writeAll(fd, content) && ::fsync(fd) == 0;
    QString failure = stored ? QString() : systemError();
    if (::close(fd) != 0 && stored) {
        stored = false;
        failure = systemError();
    }
    if (stored && ::rename(temporary.constData(), final.constData()) != 0) {
        stored = false;
        failure = systemError();
    }
    if (!stored) {
        ::unlink(temporary.constData());
        throw StorageError::internal(u"Cannot store the object: "_s + failure);
    }
    if (!syncFolder(QFile::encodeName(folder))) {
        ::unlink(final.constData());
        throw StorageError::internal(u"Cannot store the object: "_s + systemError());
    }
    return version;
}

std::optional<QByteArray> ObjectFiles::read(const QString &bucket, const QString &version) const
{
    const QString path = pathOf(bucket, version);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

bool ObjectFiles::remove(const QString &bucket, const QString &version) const
{
    const QString path = pathOf(bucket, version);
    if (path.isEmpty()) {
        qCWarning(lcObjectFiles) << "not removing a file for the unexpected version" << bucket << version;
        return false;
    }
    if (::unlink(QFile::encodeName(path).constData()) != 0 && errno != ENOENT) {
        // Only space is lost: no row points at this version any more.
        qCWarning(lcObjectFiles) << "cannot remove" << path << systemError();
        return false;
    }
    return true;
}
