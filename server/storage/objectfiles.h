#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The bytes of stored objects: one file per written version, <root>/<bucket>/<version>. Only bucket
// ids and version ids reach the file system, both checked against a strict pattern, so no object
// name can steer a path. A file is complete before it gets its version name; what a crash can leave
// behind is an unreferenced file, never a referenced one that is missing or half written.
class ObjectFiles
{
public:
    explicit ObjectFiles(QString root);

    [[nodiscard]] const QString &root() const { return m_root; }

    // Writes `content` under a fresh version id, flushed to disk, and answers that id. Throws
    // StorageError when the bucket id is unsafe or the disk refuses.
    [[nodiscard]] QString write(const QString &bucket, const QByteArray &content) const;
    // The content of a version, or nothing when its file does not exist (any more).
    [[nodiscard]] std::optional<QByteArray> read(const QString &bucket, const QString &version) const;
    // Removes a version's file; a missing file is fine. Answers false when it could not be removed.
    bool remove(const QString &bucket, const QString &version) const;

    // Empty when the bucket or version is not a safe single path segment.
    [[nodiscard]] QString pathOf(const QString &bucket, const QString &version) const;

    [[nodiscard]] static bool isSafeBucketId(const QString &bucket);
    [[nodiscard]] static bool isVersionId(const QString &version);

private:
    QString m_root;
};
