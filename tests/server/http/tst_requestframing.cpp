#include "http/requestframing.h"

#include <QTest>

using Verdict = RequestFraming::Verdict;

// The limits hold per request, wherever the bytes of a connection happen to be cut.
class TestRequestFraming : public QObject
{
    Q_OBJECT

private slots:
    void limitsHoldPerRequest_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<Verdict>("verdict");
        QTest::addColumn<bool>("awaitingHead"); // after the stream, when it was fine

        const QByteArray get = "GET / HTTP/1.1\r\nHost: x\r\n\r\n";
        const QByteArray post = "POST / HTTP/1.1\r\nContent-Length: 5\r\n\r\nhello";
        const QByteArray postHead = "POST / HTTP/1.1\r\n";
        const QByteArray chunked = postHead + "Transfer-Encoding: chunked\r\n\r\n";
        const QList<std::tuple<const char *, QByteArray, Verdict, bool>> rows{
            {"one request", get, Verdict::Ok, true},
            {"pipelined requests, each within the limits", get + post + get + post, Verdict::Ok, true},
            {"a body still to come", postHead + "Content-Length: 9\r\n\r\nhel", Verdict::Ok, false},
            {"empty lines before a request", "\r\n\r\n" + get, Verdict::Ok, true},
            {"a request line too long", "GET /" + QByteArray(80, 'a') + " HTTP/1.1\r\n\r\n",
             Verdict::RequestLineTooLong, false},
            {"a request line too long, no end yet", "GET /" + QByteArray(80, 'a'), Verdict::RequestLineTooLong, false},
            {"headers too large", "GET / HTTP/1.1\r\nX: " + QByteArray(200, 'a') + "\r\n\r\n", Verdict::HeadTooLarge,
             false},
            {"headers too large in a later request", get + post + "GET / HTTP/1.1\r\nX: " + QByteArray(200, 'a'),
             Verdict::HeadTooLarge, false},
            {"a body's bytes are no head", postHead + "Content-Length: 90\r\n\r\n" + QByteArray(90, 'a') + get,
             Verdict::Ok, true},
            {"a declared body too large, refused before it comes", postHead + "Content-Length: 101\r\n\r\n",
             Verdict::BodyTooLarge, false},
            {"two lengths that disagree", postHead + "Content-Length: 1\r\nContent-Length: 2\r\n\r\n",
             Verdict::Malformed, false},
            {"a folded header line", postHead + "X: a\r\n Content-Length: 5\r\n\r\n", Verdict::Malformed, false},
            // Each of these is read as another header, or none, by some reader on the way.
            {"white space before a colon", postHead + "Content-Length : 5\r\n\r\nhello", Verdict::Malformed, false},
            {"a header line without a name", "GET / HTTP/1.1\r\nno colon\r\n\r\n", Verdict::Malformed, false},
            {"a carriage return inside a value", "GET / HTTP/1.1\r\nX: a\rb\r\n\r\n", Verdict::Malformed, false},
            {"a NUL inside a value", QByteArray("GET / HTTP/1.1\r\nX: a\0b\r\n\r\n", 26), Verdict::Malformed, false},
            {"a length that is no number", postHead + "Content-Length: 1e3\r\n\r\n", Verdict::Malformed, false},
            {"an encoding that cannot be framed", postHead + "Transfer-Encoding: gzip\r\n\r\n", Verdict::Malformed,
             false},
            {"chunks, a trailer, then the next request",
             chunked + "5;ext=1\r\nhello\r\n3\r\nabc\r\n0\r\nX-Sum: 8\r\n\r\n" + get, Verdict::Ok, true},
            {"chunks adding up to too much", chunked + "3c\r\n" + QByteArray(60, 'a') + "\r\n3c\r\n",
             Verdict::BodyTooLarge, false},
            {"a chunk size that is no number", chunked + "zz\r\n", Verdict::Malformed, false},
            {"a chunk size line without end", chunked + QByteArray(2000, '1'), Verdict::Malformed, false},
            {"an upgrade leaves HTTP behind",
             "GET /ws HTTP/1.1\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n\r\n" + QByteArray(500, 'x'),
             Verdict::Ok, false},
        };
        for (const auto &[name, stream, verdict, awaitingHead] : rows) {
            QTest::newRow(name) << stream << verdict << awaitingHead;
        }
    }

    void limitsHoldPerRequest()
    {
        QFETCH(QByteArray, stream);
        QFETCH(Verdict, verdict);
        // Whole, and cut into single bytes: where a read happens to end changes nothing.
        for (const qsizetype piece : {stream.size(), qsizetype(1)}) {
            RequestFraming framing({.maxRequestLine = 64, .maxHead = 128, .maxBody = 100});
            Verdict seen = Verdict::Ok;
            for (qsizetype at = 0; at < stream.size() && seen == Verdict::Ok; at += piece) {
                seen = framing.feed(QByteArrayView(stream).sliced(at, std::min(piece, stream.size() - at)));
            }
            QCOMPARE(seen, verdict);
            if (verdict == Verdict::Ok) {
                QTEST(framing.awaitingHead(), "awaitingHead");
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestRequestFraming)
#include "tst_requestframing.moc"
