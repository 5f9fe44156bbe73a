#include "support/morvanecli.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

int pdfPages(const QString &file)
{
    QProcess info;
    info.start(QStandardPaths::findExecutable(u"pdfinfo"_s), {file});
    info.waitForFinished(30000);
    static const QRegularExpression pages(u"^Pages:\\s+(\\d+)"_s, QRegularExpression::MultilineOption);
    return pages.match(QString::fromUtf8(info.readAllStandardOutput())).captured(1).toInt();
}

} // namespace

// `morvane --render-invoice` as a user runs it, from a home folder of its own.
class TestRenderInvoice : public QObject
{
    Q_OBJECT

private:
    MorvaneCli person;
    using Run = MorvaneCli::Run;

    [[nodiscard]] QString file(const QString &name) const { return person.homeFile(name); }

    // The reported size is the size of the file written.
    static void checkReport(const Run &run, const QString &file)
    {
        static const QRegularExpression report(u"^render-invoice bytes=(\\d+) pages=(\\d+) "_s);
        const QRegularExpressionMatch match = report.match(run.out);
        QVERIFY2(match.hasMatch(), qPrintable(run.out + run.err));
        QCOMPARE(match.captured(1).toLongLong(), QFile(file).size());
        QCOMPARE(pdfPages(file), match.captured(2).toInt());
    }

private slots:
    void sampleGoesToThePreviewFile()
    {
        const Run run = person(u"--render-invoice"_s);
        QCOMPARE(run.code, 0);
        checkReport(run, file(u"morvane-preview.pdf"_s));
        QVERIFY(run.out.contains(u"design=lightMinimalAccent"_s));
    }

    void longSampleInADesignWithPictures()
    {
        const Run run = person(u"--render-invoice --design pastelModern --lines 45 --out long.pdf --png pages"_s);
        checkReport(run, file(u"long.pdf"_s));
        const int pages = pdfPages(file(u"long.pdf"_s));
        QVERIFY(pages >= 3);
        QCOMPARE(QDir(file(u"pages"_s)).entryList({u"long-page*.png"_s}, QDir::Files).size(), pages);
    }

    // A draft names its invoice, so the file is named after the number.
    void draftIsNamedAfterItsNumber()
    {
        QFile draft(file(u"draft.json"_s));
        QVERIFY(draft.open(QIODevice::WriteOnly));
        draft.write(
            R"({"design": "editorial", "metadata": {"number": "2025/0099", "issued": "2025-05-02", "language": "nl"},
            "draft": {"currency": "EUR", "lines": [{"title": "Tiling", "hours": 14, "rate": 48, "amount": 672}]}})");
        draft.close();
        const Run run = person(u"--render-invoice --draft "_s + draft.fileName());
        QCOMPARE(run.code, 0);
        checkReport(run, file(u"morvane-invoice-2025-0099.pdf"_s));
        QVERIFY(run.out.contains(u"design=editorial"_s));
    }

    void mistakesAreExplained_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown design") << u"--design neon"_s << 2
                                        << u"Unknown design: neon. Choose one of: lightMinimalAccent"_s;
        QTest::newRow("negative lines") << u"--lines -3"_s << 2 << u"--lines takes a whole number from 0 to 5000."_s;
        QTest::newRow("missing draft") << u"--draft nowhere.json"_s << 2 << u"Cannot read the draft nowhere.json"_s;
        QTest::newRow("draft and lines") << u"--draft x.json --lines 3"_s << 2
                                         << u"--lines is for the sample invoice"_s;
        QTest::newRow("draft with a bad key")
            << u"--draft broken.json"_s << 2
            << u"InvoiceDocument.draft.lines[0].amount: expected a number, found a string"_s;
        QTest::newRow("unwritable output")
            << u"--out /proc/no/such/dir/x.pdf"_s << 1 << u"Cannot write /proc/no/such/dir/x.pdf"_s;
    }

    void mistakesAreExplained()
    {
        QFETCH(QString, arguments);
        QFETCH(int, code);
        QFETCH(QString, message);
        QFile broken(file(u"broken.json"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write(R"({"draft": {"lines": [{"title": "Tiling", "amount": "672"}]}})");
        broken.close();
        const QStringList written = QDir(person.home()).entryList({u"*.pdf"_s});
        const Run run = person(u"--render-invoice "_s + arguments);
        QCOMPARE(run.code, code);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QCOMPARE(QDir(person.home()).entryList({u"*.pdf"_s}), written);
    }
};

QTEST_GUILESS_MAIN(TestRenderInvoice)
#include "tst_renderinvoice.moc"
