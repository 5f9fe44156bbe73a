#include "http/requestframing.h"

#include <QTest>

using Verdict = RequestFraming::Verdict;

namespace {

RequestFraming::Limits smallLimits()
{
    RequestFraming::Limits limits;
    limits.maxRequestLine = 64;
    limits.maxHead = 128;
    limits.maxBody = 100;
    return limits;
}

} // namespace

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
        QTest::newRow("one request") << get << Verdict::Ok << true;
        QTest::newRow("pipelined requests, each within the limits") << get + post + get + post << Verdict::Ok << true;
        QTest::newRow("a body still to come")
            << QByteArray("POST / HTTP/1.1\r\nContent-Length: 9\r\n\r\nhel") << Verdict::Ok << false;
        QTest::newRow("empty lines before a request") << "\r\n\r\n" + get << Verdict::Ok << true;
        QTest::newRow("a request line too long") << "GET /" + QByteArray(80, 'a') + " HTTP/1.1\r\n\r\n"
                                                 << Verdict::RequestLineTooLong << false;
        QTest::newRow("a request line too long, no end yet")
            << "GET /" + QByteArray(80, 'a') << Verdict::RequestLineTooLong << false;
        QTest::newRow("headers too large") << "GET / HTTP/1.1\r\nX: " + QByteArray(200, 'a') + "\r\n\r\n"
                                           << Verdict::HeadTooLarge << false;
        QTest::newRow("headers too large in a later request")
            << get + post + "GET / HTTP/1.1\r\nX: " + QByteArray(200, 'a') << Verdict::HeadTooLarge << false;
        QTest::newRow("a body's bytes are no head")
            << "POST / HTTP/1.1\r\nContent-Length: 90\r\n\r\n" + QByteArray(90, 'a') + get << Verdict::Ok << true;
        QTest::newRow("a declared body too large, refused before it comes")
            << QByteArray("POST / HTTP/1.1\r\nContent-Length: 101\r\n\r\n") << Verdict::BodyTooLarge << false;
        QTest::newRow("two lengths that disagree")
            << QByteArray("POST / HTTP/1.1\r\nContent-Length: 1\r\nContent-Length: 2\r\n\r\n") << Verdict::Malformed
            << false;
        QTest::newRow("a folded header line")
            << QByteArray("POST / HTTP/1.1\r\nX: a\r\n Content-Length: 5\r\n\r\n") << Verdict::Malformed << false;
        QTest::newRow("a length that is no number")
            << QByteArray("POST / HTTP/1.1\r\nContent-Length: 1e3\r\n\r\n") << Verdict::Malformed << false;
        QTest::newRow("an encoding that cannot be framed")
            << QByteArray("POST / HTTP/1.1\r\nTransfer-Encoding: gzip\r\n\r\n") << Verdict::Malformed << false;
        const QByteArray chunked = "POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n";
        QTest::newRow("chunks, a trailer, then the next request")
            << chunked + "5;ext=1\r\nhello\r\n3\r\nabc\r\n0\r\nX-Sum: 8\r\n\r\n" + get << Verdict::Ok << true;
        QTest::newRow("chunks adding up to too much") << chunked + "3c\r\n" + QByteArray(60, 'a') + "\r\n3c\r\n"
                                                      << Verdict::BodyTooLarge << false;
        QTest::newRow("a chunk size that is no number") << chunked + "zz\r\n" << Verdict::Malformed << false;
        QTest::newRow("a chunk size line without end")
            << chunked + QByteArray(2000, '1') << Verdict::Malformed << false;
        QTest::newRow("an upgrade leaves HTTP behind")
            << "GET /ws HTTP/1.1\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n\r\n" + QByteArray(500, 'x')
            << Verdict::Ok << false;
    }

    void limitsHoldPerRequest()
    {
        QFETCH(QByteArray, stream);
        QFETCH(Verdict, verdict);
        QFETCH(bool, awaitingHead);
        // Whole, and cut into single bytes: where a read happens to end changes nothing.
        for (const qsizetype piece : {stream.size(), qsizetype(1)}) {
            RequestFraming framing(smallLimits());
            Verdict seen = Verdict::Ok;
            for (qsizetype at = 0; at < stream.size() && seen == Verdict::Ok; at += piece) {
                seen = framing.feed(QByteArrayView(stream).sliced(at, std::min(piece, stream.size() - at)));
            }
            QCOMPARE(seen, verdict);
            if (verdict == Verdict::Ok) {
                QCOMPARE(framing.awaitingHead(), awaitingHead);
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestRequestFraming)
#include "tst_requestframing.moc"
