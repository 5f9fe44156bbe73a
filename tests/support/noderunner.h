#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

class TestBackend;

// Runs one node:test script of tests/js against a backend, which the script finds in
// MORVANE_URL and MORVANE_ANON_KEY, acting with MORVANE_TOKEN, with its ids in MORVANE_FIXTURE.
// Answers what went wrong, or an empty string. `package` must be installed in tests/js;
// `minimumPassed` catches a script that loads but registers fewer tests than it holds.
QString runNodeTests(const TestBackend &backend, const QString &script, const QString &package, const QByteArray &token,
                     const QJsonObject &fixture, int minimumPassed);
