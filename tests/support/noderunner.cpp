#include "noderunner.h"

#include "support/testbackend.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString runNodeTests(const TestBackend &backend, const QString &script, const QString &package, const QByteArray &token,
                     const QJsonObject &fixture, int minimumPassed)
{
    const QString node = QStandardPaths::findExecutable(u"node"_s);
    if (node.isEmpty()) {
        return u"node is not on PATH; the JavaScript client tests need Node.js 20 or later"_s;
    }
    const QDir folder(QStringLiteral(MORVANE_JS_TESTS));
    if (!QFileInfo::exists(folder.filePath(u"node_modules/"_s + package + u"/package.json"_s))) {
        return u"%1 is not installed: run 'npm ci --no-audit --no-fund' in %2 (./scripts/test does this)"_s.arg(
            package, folder.path());
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"MORVANE_URL"_s, backend.url().toString(QUrl::StripTrailingSlash));
    environment.insert(u"MORVANE_ANON_KEY"_s, QString::fromLatin1(backend.anonKey()));
    environment.insert(u"MORVANE_TOKEN"_s, QString::fromLatin1(token));
    environment.insert(u"MORVANE_FIXTURE"_s, QString::fromUtf8(QJsonDocument(fixture).toJson(QJsonDocument::Compact)));
    environment.insert(u"NO_COLOR"_s, u"1"_s);

    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(node, {u"--test"_s, u"--test-reporter=tap"_s, folder.filePath(script)});
    if (!process.waitForStarted()) {
        return process.errorString();
    }
    const bool finished = process.waitForFinished(240000);
    if (!finished) {
        process.kill();
        process.waitForFinished();
    }
    const QString output = QString::fromUtf8(process.readAll());
    qInfo().noquote() << output;
    if (!finished) {
        return u"node did not finish in time:\n"_s + output;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return u"node --test failed:\n"_s + output;
    }
    const QRegularExpressionMatch passed = QRegularExpression(u"\\bpass (\\d+)"_s).match(output);
    if (!passed.hasMatch() || passed.captured(1).toInt() < minimumPassed) {
        return u"node ran fewer tests than the script holds:\n"_s + output;
    }
    return {};
}
