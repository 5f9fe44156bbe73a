#include "backend/autostart.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestAutostart : public QObject
{
    Q_OBJECT

    QTemporaryDir m_home;

    static QString read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private slots:
    void init()
    {
        QVERIFY(m_home.isValid());
        qputenv("XDG_CONFIG_HOME", m_home.filePath(u"config"_s).toUtf8());
        QFile::remove(Autostart::entryPath());
    }

    void entryRunsThisProgramAtLogin()
    {
        Autostart autostart(u"/opt/my tools/mor$vane"_s);
        QSignalSpy changed(&autostart, &Autostart::enabledChanged);
        QCOMPARE(Autostart::entryPath(), m_home.filePath(u"config/autostart/morvane.desktop"_s));
        QVERIFY(!autostart.isEnabled());

        autostart.setEnabled(true);
        autostart.setEnabled(true);
        QVERIFY(autostart.isEnabled());
        QCOMPARE(changed.size(), 1);
        const QString entry = read(Autostart::entryPath());
        QVERIFY2(entry.contains(u"\nExec=\"/opt/my tools/mor\\$vane\" %u\n"_s), qPrintable(entry));
        QVERIFY(entry.contains(u"\nExec=\"/opt/my tools/mor\\$vane\" timer toggle\n"_s));
        // In the main group, where the desktop looks for it, not in the action's.
        QVERIFY(entry.indexOf(u"X-GNOME-Autostart-enabled=true"_s) < entry.indexOf(u"[Desktop Action"_s));

        // A desktop's settings tool may switch the entry off by hiding it; switched on again, it is rewritten.
        QFile hidden(Autostart::entryPath());
        QVERIFY(hidden.open(QIODevice::Append));
        hidden.write("Hidden=true\n");
        hidden.close();
        QVERIFY(!autostart.isEnabled());
        autostart.setEnabled(true);
        QVERIFY(autostart.isEnabled());

        autostart.setEnabled(false);
        QVERIFY(!QFile::exists(Autostart::entryPath()));
        QCOMPARE(changed.size(), 3);
    }

    void failedWriteKeepsTheTruth()
    {
        // A configuration "folder" that is a file cannot hold the entry.
        const QString blocked = m_home.filePath(u"blocked"_s);
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        qputenv("XDG_CONFIG_HOME", blocked.toUtf8());
        Autostart autostart(u"/usr/bin/morvane"_s);
        QSignalSpy changed(&autostart, &Autostart::enabledChanged);
        autostart.setEnabled(true);
        QVERIFY(!autostart.isEnabled());
        QCOMPARE(changed.size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestAutostart)
#include "tst_autostart.moc"
