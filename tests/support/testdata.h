#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QString>
#include <QTest>

// Reads a fixture from tests/data; a missing fixture fails the calling test.
inline QByteArray readTestData(const QString &relativePath)
{
    QFile file(QStringLiteral(MORVANE_TEST_DATA "/") + relativePath);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("missing test fixture %s", qPrintable(file.fileName()));
    }
    return file.readAll();
}
