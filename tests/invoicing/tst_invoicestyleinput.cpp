#include "i18n/language.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/invoicestyleinput.h"
#include "invoicing/sampleinvoice.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace InvoiceStyleInput;

namespace {

QByteArray encoded(const QImage &image, const char *format, int quality = -1)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return bytes;
}

QImage filled(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(QColor(15, 118, 110));
    return image;
}

// Noise does not compress: a picture of modest size makes a file of over a megabyte.
QImage noise(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            line[x] = random.generate() | 0xff000000u;
        }
    }
    return image;
}

QByteArray pngWithComment()
{
    QImage image = filled(40, 20);
    image.setText(u"Comment"_s, u"<script>alert(1)</script>"_s);
    return encoded(image, "PNG");
}

} // namespace

// What may go into an invoice style from outside, and the sentence a person reads when it may not.
class TestInvoiceStyleInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Language::apply(u"en"_s); }

    void customTemplateIsUsedOrSaysWhyNot_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("reason");
        const QString good = u"<!DOCTYPE html><html><head><style>html,body{width:794px;height:1123px}</style></head>"
                             u"<body><header>{{company}}</header><main></main><footer></footer></body></html>"_s;
        QTest::newRow("complete, doctype in capitals") << good << QString();
        QTest::newRow("blank") << u"  \n "_s << u"The template is empty."_s;
        QTest::newRow("a fragment") << QString(good).remove(u"<!DOCTYPE html>"_s)
                                    << u"The template must start with <!doctype html>."_s;
        QTest::newRow("a header class is no header element")
            << QString(good).replace(u"<header>"_s, u"<div class=\"header\">"_s).replace(u"</header>"_s, u"</div>"_s)
            << u"The template has no <header> element."_s;
        QTest::newRow("no footer") << QString(good).remove(u"<footer></footer>"_s)
                                   << u"The template has no <footer> element."_s;
        QTest::newRow("letter-size page") << QString(good).replace(u"1123px"_s, u"1056px"_s)
                                          << u"The template must fix the page at 794 × 1123 px (A4), with both "
                                             u"sizes in its style sheet."_s;
    }

    void customTemplateIsUsedOrSaysWhyNot()
    {
        QFETCH(QString, html);
        QFETCH(QString, reason);
        QCOMPARE(templateProblem(html).value_or(QString()), reason);
        // The answer is the renderer's: a template said to be used is drawn, any other falls back.
        const InvoiceStyle style = SampleInvoice::style();
        const InvoiceDraft draft = SampleInvoice::draft(2);
        const auto drawn = InvoiceHTMLRenderer::substituteCustom(
            html, draft, style, InvoiceHTMLRenderer::brandProfile(style, InvoiceHTMLRenderer::Template::AiCustom),
            SampleInvoice::metadata(draft));
        QCOMPARE(drawn.has_value(), reason.isEmpty());
    }

    void logoIntake_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QSize>("stored");
        QTest::addColumn<QString>("reason");
        QTest::newRow("PNG kept at its size") << encoded(filled(240, 80), "PNG") << QSize(240, 80) << QString();
        QTest::newRow("JPEG becomes PNG") << encoded(filled(300, 100), "JPEG", 90) << QSize(300, 100) << QString();
        QTest::newRow("600 px wide is not scaled") << encoded(filled(600, 10), "PNG") << QSize(600, 10) << QString();
        QTest::newRow("wider is scaled to 600 px") << encoded(filled(1200, 400), "PNG") << QSize(600, 200)
                                                   << QString();
        QTest::newRow("text chunks stay behind") << pngWithComment() << QSize(40, 20) << QString();
        QTest::newRow("SVG") << QByteArray("<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" "
                                           "width=\"10\" height=\"10\"><script>alert(1)</script></svg>")
                             << QSize()
                             << u"SVG logos are not accepted, since a drawing can carry scripts and links. Pick a "
                                u"PNG or JPEG."_s;
        const QByteArray large = encoded(noise(600, 600), "PNG");
        QTest::newRow("over 1 MB") << large << QSize() << u"The logo is larger than 1 MB. Pick a smaller PNG or JPEG."_s;
        QTest::newRow("text") << QByteArray("Hoekstra Design\n") << QSize() << u"The logo must be a PNG or JPEG image."_s;
        QTest::newRow("BMP") << encoded(filled(20, 20), "BMP") << QSize() << u"The logo must be a PNG or JPEG image."_s;
        QTest::newRow("PNG cut short") << encoded(noise(64, 64), "PNG").left(300) << QSize()
                                       << u"The image could not be read; the file may be damaged."_s;
        QTest::newRow("empty") << QByteArray() << QSize() << u"The file is empty."_s;
    }

    void logoIntake()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QSize, stored);
        QFETCH(QString, reason);
        // Through a file, as a person picks it.
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(bytes);
        file.close();
        const Intake intake = logoFile(file.fileName());
        QCOMPARE(intake.problem, reason);
        QCOMPARE(intake.value.has_value(), reason.isEmpty());
        if (!intake.value) {
            return;
        }
        const QString prefix = u"data:image/png;base64,"_s;
        QVERIFY(intake.value->startsWith(prefix));
        const QByteArray png = QByteArray::fromBase64(intake.value->mid(prefix.size()).toLatin1());
        QVERIFY(png != bytes);
        QVERIFY(!png.contains("script"));
        QImage image;
        QVERIFY(image.loadFromData(png, "PNG"));
        QCOMPARE(image.size(), stored);
    }

    void aMissingFileIsNoLogo()
    {
        QCOMPARE(logoFile(u"/nonexistent/logo.png"_s).problem, u"The file could not be opened."_s);
    }

    void templateFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("UTF-8 text") << QByteArray("<!doctype html><p>Café</p>") << QString();
        QTest::newRow("Latin-1 bytes") << QByteArray("<p>Caf\xe9</p>") << u"The template is not a text file in UTF-8."_s;
        QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0", 10) << u"The template is not a text file in UTF-8."_s;
        QTest::newRow("just over 512 KB") << QByteArray(maxTemplateBytes + 1, 'a')
                                          << u"The template is larger than 512 KB."_s;
        QTest::newRow("512 KB exactly") << QByteArray(maxTemplateBytes, 'a') << QString();
    }

    void templateFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(bytes);
        file.close();
        const Intake intake = templateFile(file.fileName());
        QCOMPARE(intake.problem, reason);
        QCOMPARE(intake.value.has_value(), reason.isEmpty());
        if (intake.value) {
            QCOMPARE(intake.value->toUtf8(), bytes);
        }
    }

    void colours_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("#rgb") << u"#0fa"_s << true;
        QTest::newRow("#RRGGBB with blanks around") << u" #0F766E "_s << true;
        QTest::newRow("empty: no colour") << QString() << true;
        QTest::newRow("without #") << u"0f766e"_s << false;
        QTest::newRow("four digits") << u"#0f76"_s << false;
        QTest::newRow("eight digits with alpha") << u"#0f766eff"_s << false;
        QTest::newRow("not hex") << u"#ggg"_s << false;
        QTest::newRow("a name") << u"teal"_s << false;
        QTest::newRow("style sheet escape") << u"#fff;}body{display:none"_s << false;
    }

    void colours()
    {
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        const std::optional<QString> problem = colourProblem(text);
        QCOMPARE(!problem.has_value(), accepted);
        if (problem) {
            QVERIFY2(problem->contains(text.trimmed()) && problem->contains(u"#rrggbb"_s), qPrintable(*problem));
        }
    }

    void fontNames_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("two words") << u"EB Garamond"_s << true;
        QTest::newRow("digits and hyphen") << u"Z003 Medium-Italic"_s << true;
        QTest::newRow("markup") << u"Inter</style><script>"_s << false;
        QTest::newRow("CSS list") << u"Inter, serif"_s << false;
    }

    void fontNames()
    {
        QFETCH(QString, family);
        QFETCH(bool, accepted);
        QCOMPARE(!fontProblem(family).has_value(), accepted);
    }
};

QTEST_GUILESS_MAIN(TestInvoiceStyleInput)

#include "tst_invoicestyleinput.moc"
