#include "auth/jwt.h"
#include "backend/runblocking.h"
#include "backend/supabase.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDir>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSet>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;

using Headers = QList<std::pair<QByteArray, QByteArray>>;

namespace {

const QByteArray bucket = "invoice-templates";

QByteArray encodedName(const QString &name)
{
    return QUrl::toPercentEncoding(name, "/");
}

QByteArray multipartBody(const QByteArray &boundary, const QList<QByteArray> &parts, const QByteArray &preamble = {})
{
    QByteArray body = preamble;
    for (const QByteArray &part : parts) {
        body += "--" + boundary + "\r\n" + part + "\r\n";
    }
    return body + "--" + boundary + "--\r\n";
}

} // namespace

// The storage service against a real server: who reaches which object, what arrives on disk, and
// that the data folder holds exactly the files the rows point at.
class TestStorage : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;
    QByteArray m_annaToken;
    QByteArray m_bobToken;

    QByteArray objectTarget(const QString &name, const QByteArray &inBucket = bucket) const
    {
        return "/storage/v1/object/" + inBucket + '/' + encodedName(name);
    }

    HttpResult upload(const QByteArray &token, const QString &name, const QByteArray &content,
                      const QByteArray &contentType = "text/plain", bool upsert = false)
    {
        return m_backend.request("POST", objectTarget(name), token, content,
                                 {{"Content-Type", contentType}, {"x-upsert", upsert ? "true" : "false"}});
    }

    HttpResult download(const QByteArray &token, const QString &name)
    {
        return m_backend.request("GET", "/storage/v1/object/authenticated/" + bucket + '/' + encodedName(name), token);
    }

    HttpResult sign(const QByteArray &token, const QString &name, int expiresIn)
    {
        return m_backend.request("POST", "/storage/v1/object/sign/" + bucket + '/' + encodedName(name), token,
                                 "{\"expiresIn\":" + QByteArray::number(expiresIn) + '}');
    }

    // The address of a signed URL below the server, as a client builds it from the answer.
    static QByteArray signedTarget(const HttpResult &signature)
    {
        const QString path = signature.json().object().value(u"signedURL"_s).toString();
        return "/storage/v1" + QUrl(path, QUrl::TolerantMode).toEncoded();
    }

    // The request exactly as written: a client library would resolve "." and ".." segments itself.
    HttpResult sendVerbatim(const QByteArray &method, const QByteArray &target, const QByteArray &token,
                            const QByteArray &body, const Headers &headers) const
    {
        QTcpSocket socket;
        socket.connectToHost(m_backend.url().host(), quint16(m_backend.url().port()));
        if (!socket.waitForConnected(10000)) {
            return {};
        }
        QByteArray request = method + ' ' + target + " HTTP/1.1\r\nHost: " + m_backend.url().host().toLatin1() +
                             "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n";
        if (!token.isEmpty()) {
            request += "Authorization: Bearer " + token + "\r\n";
        }
        for (const auto &[name, value] : headers) {
            request += name + ": " + value + "\r\n";
        }
        socket.write(request + "\r\n" + body);
        QByteArray answer;
        while (socket.state() == QAbstractSocket::ConnectedState && socket.waitForReadyRead(30000)) {
            answer += socket.readAll();
        }
        answer += socket.readAll();
        HttpResult result;
        result.status = answer.mid(9, 3).toInt();
        result.body = answer.mid(answer.indexOf("\r\n\r\n") + 4);
        return result;
    }

    // The storage dialect: client errors travel as HTTP 400 with the real status inside.
    static QString innerStatus(const HttpResult &result)
    {
        return result.json().object().value(u"statusCode"_s).toString();
    }

    QString versionOf(const QString &name)
    {
        const PgResult row = m_backend.database().exec(
            "SELECT version FROM storage.objects WHERE bucket_id = $1 AND name = $2", {bucket, name.toUtf8()});
        return row.rows() == 0 ? QString() : QString::fromUtf8(row.value(0, 0));
    }

    QSet<QString> filesOnDisk(const QByteArray &inBucket = bucket) const
    {
        const QStringList names = QDir(m_backend.dataDir() + u"/storage/"_s + QString::fromLatin1(inBucket))
                                      .entryList(QDir::Files | QDir::Hidden | QDir::System);
        return {names.begin(), names.end()};
    }

    QSet<QString> versionsInDatabase(const QByteArray &inBucket = bucket)
    {
        const PgResult rows =
            m_backend.database().exec("SELECT version FROM storage.objects WHERE bucket_id = $1", {inBucket});
        QSet<QString> versions;
        for (int row = 0; row < rows.rows(); ++row) {
            versions.insert(QString::fromUtf8(rows.value(row, 0)));
        }
        return versions;
    }

    // The invariant everything else rests on: every row's file exists and no file lacks its row.
    void verifyDiskMatchesRows(const QByteArray &inBucket = bucket)
    {
        QCOMPARE(filesOnDisk(inBucket), versionsInDatabase(inBucket));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_annaToken = m_backend.tokenFor(m_anna);
        m_bobToken = m_backend.tokenFor(m_bob);
        // A bucket with the limits the application's own bucket leaves open.
        m_backend.database().exec("INSERT INTO storage.buckets (id, name, file_size_limit, allowed_mime_types)"
                                  " VALUES ('tiny', 'tiny', 16, '{text/plain,image/*}')");
    }

    void usersReachOnlyTheirOwnFolder_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("statusCode");

        // Bob against Anna's folder: "$b" is the bucket and "$her" her id, in the address and body.
        const Headers text{{"Content-Type", "text/plain"}};
        const Headers json{{"Content-Type", "application/json"}};
        QTest::newRow("upload into her folder") << QByteArray("POST") << QByteArray("object/$b/$her/planted.txt")
                                                << text << QByteArray("bob's") << 400 << u"403"_s;
        QTest::newRow("upsert over her object")
            << QByteArray("POST") << QByteArray("object/$b/$her/private.txt")
            << Headers{{"Content-Type", "text/plain"}, {"x-upsert", "true"}} << QByteArray("bob's") << 400 << u"403"_s;
        QTest::newRow("replace her object") << QByteArray("PUT") << QByteArray("object/$b/$her/private.txt") << text
                                            << QByteArray("bob's") << 400 << u"404"_s;
        QTest::newRow("download her object")
            << QByteArray("GET") << QByteArray("object/authenticated/$b/$her/private.txt") << Headers{} << QByteArray()
            << 400 << u"404"_s;
        QTest::newRow("download by the older address") << QByteArray("GET") << QByteArray("object/$b/$her/private.txt")
                                                       << Headers{} << QByteArray() << 400 << u"404"_s;
        QTest::newRow("sign her object") << QByteArray("POST") << QByteArray("object/sign/$b/$her/private.txt") << json
                                         << QByteArray("{\"expiresIn\":60}") << 400 << u"404"_s;
        QTest::newRow("delete her object") << QByteArray("DELETE") << QByteArray("object/$b/$her/private.txt")
                                           << Headers{} << QByteArray() << 400 << u"404"_s;
        // Several at once answers what it removed: nothing.
        QTest::newRow("remove her object in a batch")
            << QByteArray("DELETE") << QByteArray("object/$b") << json
            << QByteArray("{\"prefixes\":[\"$her/private.txt\"]}") << 200 << QString();
    }

    void usersReachOnlyTheirOwnFolder()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(Headers, headers);
        QFETCH(QByteArray, body);
        QFETCH(int, status);
        QFETCH(QString, statusCode);
        const QString name = m_anna + u"/private.txt"_s;
        QCOMPARE(upload(m_annaToken, name, "anna's own", "text/plain", true).status, 200);
        const QSet<QString> filesBefore = filesOnDisk();

        auto fill = [&](QByteArray text) { return text.replace("$b", bucket).replace("$her", m_anna.toUtf8()); };
        const HttpResult result =
            m_backend.request(method, "/storage/v1/" + fill(target), m_bobToken, fill(body), headers);
        QCOMPARE(result.status, status);
        QCOMPARE(innerStatus(result), statusCode);
        if (status == 200) {
            QCOMPARE(result.json().array(), QJsonArray());
        }

        // Her object is as she left it, and nothing of Bob's reached the disk.
        const HttpResult hers = download(m_annaToken, name);
        QCOMPARE(hers.status, 200);
        QCOMPARE(hers.body, QByteArray("anna's own"));
        QCOMPARE(filesOnDisk(), filesBefore);
        QCOMPARE(versionOf(m_anna + u"/planted.txt"_s), QString());
        verifyDiskMatchesRows();
    }

    void listingShowsOnlyOnesOwnEntries_data()
    {
        QTest::addColumn<QByteArray>("who");
        QTest::addColumn<QJsonObject>("options");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QList<bool>>("folders");

        // Anna has list/a.txt, list/b.txt, list/sub/c.txt and list/sub/deeper/d.txt; Bob has one file
        // in his own folder.
        QTest::newRow("the bucket's top level shows only her folder")
            << QByteArray("anna") << QJsonObject{{u"prefix"_s, u""_s}} << QStringList{u"$anna"_s} << QList<bool>{true};
        QTest::newRow("one level below a folder")
            << QByteArray("anna") << QJsonObject{{u"prefix"_s, u"$anna/list"_s}}
            << QStringList{u"a.txt"_s, u"b.txt"_s, u"sub"_s} << QList<bool>{false, false, true};
        QTest::newRow("a trailing slash names the same folder")
            << QByteArray("anna") << QJsonObject{{u"prefix"_s, u"$anna/list/sub/"_s}}
            << QStringList{u"c.txt"_s, u"deeper"_s} << QList<bool>{false, true};
        QTest::newRow("by name, descending")
            << QByteArray("anna")
            << QJsonObject{{u"prefix"_s, u"$anna/list"_s},
                           {u"sortBy"_s, QJsonObject{{u"column"_s, u"name"_s}, {u"order"_s, u"desc"_s}}}}
            << QStringList{u"sub"_s, u"b.txt"_s, u"a.txt"_s} << QList<bool>{true, false, false};
        QTest::newRow("a page") << QByteArray("anna")
                                << QJsonObject{{u"prefix"_s, u"$anna/list"_s}, {u"limit"_s, 1}, {u"offset"_s, 1}}
                                << QStringList{u"b.txt"_s} << QList<bool>{false};
        QTest::newRow("search matches the start of a name, ignoring case")
            << QByteArray("anna") << QJsonObject{{u"prefix"_s, u"$anna/list"_s}, {u"search"_s, u"B"_s}}
            << QStringList{u"b.txt"_s} << QList<bool>{false};
        QTest::newRow("search characters are not patterns")
            << QByteArray("anna") << QJsonObject{{u"prefix"_s, u"$anna/list"_s}, {u"search"_s, u"_"_s}} << QStringList{}
            << QList<bool>{};
        QTest::newRow("her folder is empty to him")
            << QByteArray("bob") << QJsonObject{{u"prefix"_s, u"$anna/list"_s}} << QStringList{} << QList<bool>{};
        QTest::newRow("he sees only his folder at the top")
            << QByteArray("bob") << QJsonObject{{u"prefix"_s, u""_s}} << QStringList{u"$bob"_s} << QList<bool>{true};
    }

    void listingShowsOnlyOnesOwnEntries()
    {
        QFETCH(QByteArray, who);
        QFETCH(QJsonObject, options);
        QFETCH(QStringList, names);
        QFETCH(QList<bool>, folders);
        // A bucket of their own keeps the other tests' objects out of the listing.
        m_backend.database().exec("INSERT INTO storage.buckets (id, name) VALUES ('listing', 'listing')"
                                  " ON CONFLICT DO NOTHING");
        for (const QString &file :
             {u"list/a.txt"_s, u"list/b.txt"_s, u"list/sub/c.txt"_s, u"list/sub/deeper/d.txt"_s}) {
            QCOMPARE(m_backend
                         .request("POST", objectTarget(m_anna + u'/' + file, "listing"), m_annaToken, "x",
                                  {{"Content-Type", "text/plain"}, {"x-upsert", "true"}})
                         .status,
                     200);
        }
        QCOMPARE(m_backend
                     .request("POST", objectTarget(m_bob + u"/his.txt"_s, "listing"), m_bobToken, "x",
                              {{"Content-Type", "text/plain"}, {"x-upsert", "true"}})
                     .status,
                 200);

        QString prefix = options.value(u"prefix"_s).toString();
        options.insert(u"prefix"_s, prefix.replace(u"$anna"_s, m_anna).replace(u"$bob"_s, m_bob));
        const HttpResult result =
            m_backend.request("POST", "/storage/v1/object/list/listing", who == "anna" ? m_annaToken : m_bobToken,
                              QJsonDocument(options).toJson(QJsonDocument::Compact));
        QCOMPARE(result.status, 200);
        const QJsonArray entries = result.json().array();
        QStringList expected = names;
        expected.replaceInStrings(u"$anna"_s, m_anna).replaceInStrings(u"$bob"_s, m_bob);
        QCOMPARE(jsonColumn(entries, u"name"_s), expected);
        QList<bool> seenFolders;
        for (const QJsonValue &entry : entries) {
            const QJsonObject object = entry.toObject();
            seenFolders.append(object.value(u"id"_s).isNull());
            // Files carry what a file browser shows; folders carry nothing.
            QCOMPARE(object.value(u"metadata"_s).toObject().value(u"size"_s).toInt(-1), seenFolders.last() ? -1 : 1);
        }
        QCOMPARE(seenFolders, folders);
    }

    void uploadsRawAndMultipart_data()
    {
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("contentType");
        QTest::addColumn<QByteArray>("cacheControl");
        QTest::addColumn<QByteArray>("disposition"); // how a browser is told to show it

        const QByteArray pdf = QByteArray("%PDF-1.7\n") + QByteArray(3000, '\0') + "\r\n--not-a-boundary\r\n%%EOF";
        QTest::newRow("raw body with its type")
            << Headers{{"Content-Type", "application/pdf"}} << pdf << pdf << QByteArray("application/pdf")
            << QByteArray("no-cache") << QByteArray();
        QTest::newRow("raw body with cache control")
            << Headers{{"Content-Type", "text/plain;charset=UTF-8"}, {"Cache-Control", "max-age=3600"}}
            << QByteArray("hello") << QByteArray("hello") << QByteArray("text/plain;charset=UTF-8")
            << QByteArray("max-age=3600") << QByteArray();
        QTest::newRow("empty raw body") << Headers{{"Content-Type", "text/plain"}} << QByteArray() << QByteArray()
                                        << QByteArray("text/plain") << QByteArray("no-cache") << QByteArray();
        QTest::newRow("form with a named file and cache control")
            << Headers{{"Content-Type", "multipart/form-data; boundary=XyZ"}}
            << multipartBody("XyZ", {"Content-Disposition: form-data; name=\"cacheControl\"\r\n\r\n600",
                                     "Content-Disposition: form-data; name=\"file\"; filename=\"a.pdf\"\r\n"
                                     "Content-Type: application/pdf\r\n\r\n" +
                                         pdf})
            << pdf << QByteArray("application/pdf") << QByteArray("max-age=600") << QByteArray();
        // As the JavaScript client sends a Blob: an unnamed field, a made-up file name.
        QTest::newRow("form as the JavaScript client sends it")
            << Headers{{"Content-Type", "multipart/form-data; boundary=----formdata-undici-0123"}}
            << multipartBody("----formdata-undici-0123",
                             {"Content-Disposition: form-data; name=\"cacheControl\"\r\n\r\n3600",
                              "Content-Disposition: form-data; name=\"\"; filename=\"blob\"\r\n"
                              "Content-Type: image/png\r\n\r\n\x89PNG\r\n\x1a\n"})
            << QByteArray("\x89PNG\r\n\x1a\n") << QByteArray("image/png") << QByteArray("max-age=3600") << QByteArray();
        QTest::newRow("quoted boundary, preamble, no type on the part")
            << Headers{{"Content-Type", "multipart/form-data; boundary=\"a;b c\""}}
            << multipartBody("a;b c", {"Content-Disposition: form-data; name=\"file\"; filename=\"x\"\r\n\r\nbody"},
                             "ignored preamble\r\n")
            << QByteArray("body") << QByteArray("application/octet-stream") << QByteArray("no-cache")
            << QByteArray("attachment");
        QTest::newRow("file content that looks like a delimiter")
            << Headers{{"Content-Type", "multipart/form-data; boundary=b"}}
            << multipartBody("b", {"Content-Disposition: form-data; name=\"file\"; filename=\"x\"\r\n"
                                   "Content-Type: text/plain\r\n\r\nline\r\n--bx\r\n--"})
            << QByteArray("line\r\n--bx\r\n--") << QByteArray("text/plain") << QByteArray("no-cache") << QByteArray();
        // Anyone's upload, served from the API's own origin: never run as a page there.
        for (const QByteArray &active : {QByteArray("text/html"), QByteArray("image/svg+xml")}) {
            QTest::newRow(active.constData())
                << Headers{{"Content-Type", active}} << QByteArray("<script>alert(1)</script>")
                << QByteArray("<script>alert(1)</script>") << active << QByteArray("no-cache")
                << QByteArray("attachment");
        }
    }

    void uploadsRawAndMultipart()
    {
        QFETCH(Headers, headers);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, contentType);
        QFETCH(QByteArray, cacheControl);
        const QString name = m_anna + u"/uploads/"_s + QString::fromLatin1(QTest::currentDataTag());

        const HttpResult stored = m_backend.request("POST", objectTarget(name), m_annaToken, body, headers);
        QCOMPARE(stored.status, 200);
        const QJsonObject answer = stored.json().object();
        QCOMPARE(answer.value(u"Key"_s).toString(), QString::fromLatin1(bucket) + u'/' + name);
        QVERIFY(!answer.value(u"Id"_s).toString().isEmpty());
        QCOMPARE(answer.value(u"id"_s), answer.value(u"Id"_s));

        const HttpResult fetched = download(m_annaToken, name);
        QCOMPARE(fetched.status, 200);
        QCOMPARE(fetched.body, content);
        QCOMPARE(fetched.header("Content-Type"), contentType);
        QCOMPARE(fetched.header("Cache-Control"), cacheControl);
        QTEST(fetched.header("Content-Disposition"), "disposition");
        QCOMPARE(fetched.header("X-Content-Type-Options"), QByteArray("nosniff"));
        QVERIFY(fetched.header("Content-Security-Policy").contains("sandbox"));
        // The file on disk holds exactly the content, under the row's version.
        QFile file(m_backend.dataDir() + u"/storage/"_s + QString::fromLatin1(bucket) + u'/' + versionOf(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content);
        const QJsonObject metadata = QJsonDocument::fromJson(m_backend.database()
                                                                 .exec("SELECT metadata FROM storage.objects"
                                                                       " WHERE bucket_id = $1 AND name = $2",
                                                                       {bucket, name.toUtf8()})
                                                                 .value(0, 0))
                                         .object();
        QCOMPARE(metadata.value(u"size"_s).toInteger(), content.size());
        QCOMPARE(metadata.value(u"mimetype"_s).toString(), QString::fromLatin1(contentType));
        QCOMPARE(metadata.value(u"eTag"_s).toString(),
                 u'"' + QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex()) + u'"');
        verifyDiskMatchesRows();
    }

    void refusalsStoreNothing_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("statusCode");
        QTest::addColumn<QString>("code");

        // "$me" is the caller's folder; the caller is Anna unless the token says otherwise.
        const Headers text{{"Content-Type", "text/plain"}};
        auto row = [&](const char *tag, const QByteArray &target, const QByteArray &body, int status,
                       const QString &statusCode, const QString &code,
                       const Headers &headers = {{"Content-Type", "text/plain"}}, const QByteArray &token = "anna") {
            QTest::newRow(tag) << target << token << headers << body << status << statusCode << code;
        };
        row("a parent segment", "invoice-templates/$me/../escape.txt", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("an encoded parent segment", "invoice-templates/$me/%2E%2E/%2e%2e/escape.txt", "x", 400, u"400"_s,
            u"InvalidKey"_s);
        row("a current-folder segment", "invoice-templates/$me/./x.txt", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("an empty segment", "invoice-templates/$me//x.txt", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("a trailing slash", "invoice-templates/$me/folder/", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("a NUL byte", "invoice-templates/$me/a%00b.txt", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("a control character", "invoice-templates/$me/a%0Ab.txt", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("a backslash", "invoice-templates/$me/..%5C..%5Cx.txt", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("no name at all", "invoice-templates", "x", 400, u"400"_s, u"InvalidKey"_s);
        row("an absurdly long name", "invoice-templates/$me/" + QByteArray(1100, 'n'), "x", 400, u"400"_s,
            u"InvalidKey"_s);
        row("a bucket name that is a parent", "../$me/x.txt", "x", 400, u"400"_s, u"InvalidBucketName"_s);
        row("a bucket name that is the current folder", "./$me/x.txt", "x", 400, u"400"_s, u"InvalidBucketName"_s);
        row("a bucket that does not exist", "no-such-bucket/$me/x.txt", "x", 400, u"404"_s, u"NoSuchBucket"_s);
        row("larger than the bucket allows", "tiny/$me/big.txt", QByteArray(17, 'x'), 400, u"413"_s,
            u"EntityTooLarge"_s);
        row("a type the bucket does not take", "tiny/$me/x.pdf", "x", 400, u"415"_s, u"InvalidMimeType"_s,
            {{"Content-Type", "application/pdf"}});
        row("a form without its closing delimiter", "invoice-templates/$me/x.txt",
            "--b\r\nContent-Disposition: form-data; name=\"file\"; filename=\"x\"\r\n\r\nabc", 400, u"400"_s,
            u"InvalidRequest"_s, {{"Content-Type", "multipart/form-data; boundary=b"}});
        row("a form without a file", "invoice-templates/$me/x.txt",
            multipartBody("b", {"Content-Disposition: form-data; name=\"cacheControl\"\r\n\r\n60"}), 400, u"400"_s,
            u"InvalidRequest"_s, {{"Content-Type", "multipart/form-data; boundary=b"}});
        row("a form without a boundary", "invoice-templates/$me/x.txt", "x", 400, u"400"_s, u"InvalidRequest"_s,
            {{"Content-Type", "multipart/form-data"}});
        row("a form with two files", "invoice-templates/$me/x.txt",
            multipartBody("b", {"Content-Disposition: form-data; name=\"a\"; filename=\"a\"\r\n\r\n1",
                                "Content-Disposition: form-data; name=\"b\"; filename=\"b\"\r\n\r\n2"}),
            400, u"400"_s, u"InvalidRequest"_s, {{"Content-Type", "multipart/form-data; boundary=b"}});
        // Both come back as headers of every download.
        row("cache control that would split a header", "invoice-templates/$me/x.txt",
            multipartBody("b", {"Content-Disposition: form-data; name=\"cacheControl\"\r\n\r\n60\r\nSet-Cookie: a=b",
                                "Content-Disposition: form-data; name=\"file\"; filename=\"x\"\r\n\r\nx"}),
            400, u"400"_s, u"InvalidRequest"_s, {{"Content-Type", "multipart/form-data; boundary=b"}});
        row("a content type beyond plain text", "invoice-templates/$me/x.txt",
            multipartBody("b", {"Content-Disposition: form-data; name=\"file\"; filename=\"x\"\r\n"
                                "Content-Type: text/plain\x01\r\n\r\nx"}),
            400, u"400"_s, u"InvalidRequest"_s, {{"Content-Type", "multipart/form-data; boundary=b"}});
        row("no token: the anonymous role stores nothing", "invoice-templates/$me/x.txt", "x", 400, u"403"_s,
            u"AccessDenied"_s, text, "none");
        row("an expired token keeps its 401", "invoice-templates/$me/x.txt", "x", 401, u"401"_s, u"InvalidJWT"_s, text,
            "expired");
        row("a token with a foreign signature", "invoice-templates/$me/x.txt", "x", 401, u"401"_s, u"InvalidJWT"_s,
            text, "forged");
    }

    void refusalsStoreNothing()
    {
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, token);
        QFETCH(Headers, headers);
        QFETCH(QByteArray, body);
        QFETCH(QString, statusCode);
        QFETCH(QString, code);
        QByteArray bearer = m_annaToken;
        if (token == "none") {
            bearer.clear();
        } else if (token == "expired") {
            bearer = m_backend.tokenFor(m_anna, u"authenticated"_s, -10);
        } else if (token == "forged") {
            bearer = Jwt::sign({{u"sub"_s, m_anna}, {u"role"_s, u"authenticated"_s}}, "not the server's secret at all");
        }
        const qint64 rowsBefore =
            m_backend.database().exec("SELECT count(*) FROM storage.objects").value(0, 0).toLongLong();
        const QSet<QString> filesBefore = filesOnDisk() + filesOnDisk("tiny");

        const HttpResult result =
            sendVerbatim("POST", "/storage/v1/object/" + target.replace("$me", m_anna.toUtf8()), bearer, body, headers);
        QTEST(result.status, "status");
        QCOMPARE(innerStatus(result), statusCode);
        QCOMPARE(result.json().object().value(u"code"_s).toString(), code);
        QVERIFY(!result.json().object().value(u"message"_s).toString().isEmpty());

        QCOMPARE(m_backend.database().exec("SELECT count(*) FROM storage.objects").value(0, 0).toLongLong(),
                 rowsBefore);
        QCOMPARE(filesOnDisk() + filesOnDisk("tiny"), filesBefore);
        // Nothing escaped the bucket folders either.
        QVERIFY(!QFileInfo::exists(m_backend.dataDir() + u"/escape.txt"_s));
        QVERIFY(!QFileInfo::exists(m_backend.dataDir() + u"/storage/escape.txt"_s));
    }

    void requestsOverTheServerLimitAreRefusedWhileArriving()
    {
        const QSet<QString> filesBefore = filesOnDisk();
        const HttpResult result = upload(m_annaToken, m_anna + u"/huge.bin"_s, QByteArray(10 * 1024 * 1024 + 1, 'x'),
                                         "application/octet-stream");
        QCOMPARE(result.status, 413);
        QCOMPARE(versionOf(m_anna + u"/huge.bin"_s), QString());
        QCOMPARE(filesOnDisk(), filesBefore);
    }

    void duplicateIsRefusedUnlessUpserted()
    {
        const QString name = m_anna + u"/invoices/2025-0001.pdf"_s;
        const HttpResult first = upload(m_annaToken, name, "first", "application/pdf");
        QCOMPARE(first.status, 200);
        const QString firstVersion = versionOf(name);

        const HttpResult again = upload(m_annaToken, name, "second", "application/pdf");
        QCOMPARE(again.status, 400);
        QCOMPARE(innerStatus(again), u"409"_s);
        QCOMPARE(again.json().object().value(u"message"_s).toString(), u"The resource already exists"_s);
        QCOMPARE(download(m_annaToken, name).body, QByteArray("first"));
        QCOMPARE(versionOf(name), firstVersion);

        const HttpResult replaced = upload(m_annaToken, name, "<html>third</html>", "text/html", true);
        QCOMPARE(replaced.status, 200);
        // The same object, with new content and metadata, in a new file; the old file is gone.
        QCOMPARE(replaced.json().object().value(u"Id"_s), first.json().object().value(u"Id"_s));
        const HttpResult fetched = download(m_annaToken, name);
        QCOMPARE(fetched.body, QByteArray("<html>third</html>"));
        QCOMPARE(fetched.header("Content-Type"), QByteArray("text/html"));
        QVERIFY(versionOf(name) != firstVersion);
        QVERIFY(!filesOnDisk().contains(firstVersion));
        verifyDiskMatchesRows();

        // Upserting a name that does not exist yet creates it.
        QCOMPARE(upload(m_annaToken, m_anna + u"/invoices/2025-0002.pdf"_s, "new", "application/pdf", true).status,
                 200);
        QCOMPARE(download(m_annaToken, m_anna + u"/invoices/2025-0002.pdf"_s).body, QByteArray("new"));
    }

    void putReplacesOnlyWhatExists()
    {
        const QString name = m_anna + u"/templates/classic.pdf"_s;
        QCOMPARE(upload(m_annaToken, name, "v1", "application/pdf").status, 200);
        const QString before = versionOf(name);

        const HttpResult updated = m_backend.request("PUT", objectTarget(name), m_annaToken, "v2 is longer",
                                                     {{"Content-Type", "application/x-pdf"}});
        QCOMPARE(updated.status, 200);
        const HttpResult fetched = download(m_annaToken, name);
        QCOMPARE(fetched.body, QByteArray("v2 is longer"));
        QCOMPARE(fetched.header("Content-Type"), QByteArray("application/x-pdf"));
        QVERIFY(!filesOnDisk().contains(before));

        const HttpResult missing = m_backend.request("PUT", objectTarget(m_anna + u"/templates/none.pdf"_s),
                                                     m_annaToken, "v1", {{"Content-Type", "application/pdf"}});
        QCOMPARE(missing.status, 400);
        QCOMPARE(innerStatus(missing), u"404"_s);
        QCOMPARE(versionOf(m_anna + u"/templates/none.pdf"_s), QString());
        verifyDiskMatchesRows();
    }

    void signedUrlsServeOneObjectForAWhile()
    {
        const QString name = m_anna + u"/shared/Factuur 2025-0003.pdf"_s;
        const QString other = m_anna + u"/shared/other.pdf"_s;
        QCOMPARE(upload(m_annaToken, name, "%PDF signed", "application/pdf").status, 200);
        QCOMPARE(upload(m_annaToken, other, "%PDF other", "application/pdf").status, 200);

        const HttpResult signature = sign(m_annaToken, name, 600);
        QCOMPARE(signature.status, 200);
        const QByteArray target = signedTarget(signature);
        QVERIFY2(target.startsWith(QByteArray("/storage/v1/object/sign/" + bucket + '/')), target.constData());

        // Without any token or key: the signature is the permission.
        const HttpResult served = m_backend.request("GET", target, {}, {}, {{"apikey", {}}});
        QCOMPARE(served.status, 200);
        QCOMPARE(served.body, QByteArray("%PDF signed"));
        QCOMPARE(served.header("Content-Type"), QByteArray("application/pdf"));
        // Bob cannot read it himself, yet the address he was given works for him.
        QCOMPARE(download(m_bobToken, name).status, 400);
        QCOMPARE(m_backend.request("GET", target, m_bobToken).body, QByteArray("%PDF signed"));

        const QByteArray token = target.mid(target.indexOf("token=") + 6);
        const QByteArray otherTarget = "/storage/v1/object/sign/" + bucket + '/' + encodedName(other);
        struct Case
        {
            const char *what;
            QByteArray target;
            QString code;
        };
        QByteArray tampered = token;
        const qsizetype payloadAt = tampered.indexOf('.') + 5;
        tampered[payloadAt] = tampered[payloadAt] == 'A' ? 'B' : 'A';
        const QList<Case> refused{
            {"the token on another object", otherTarget + "?token=" + token, u"InvalidSignature"_s},
            {"a tampered token", target.left(target.indexOf("token=") + 6) + tampered, u"InvalidSignature"_s},
            {"a user's access token", otherTarget + "?token=" + m_annaToken, u"InvalidSignature"_s},
            {"no token", otherTarget, u"InvalidRequest"_s},
        };
        for (const Case &c : refused) {
            const HttpResult result = m_backend.request("GET", c.target);
            QVERIFY2(result.status == 400, c.what);
            QVERIFY2(result.json().object().value(u"code"_s).toString() == c.code, c.what);
            QVERIFY2(!result.body.contains("%PDF"), c.what);
        }

        // Signing asks the caller's rights; an invalid expiry is refused.
        QCOMPARE(innerStatus(sign(m_bobToken, name, 60)), u"404"_s);
        for (const QByteArray &expiresIn :
             {QByteArray("0"), QByteArray("-5"), QByteArray("1.5"), QByteArray("\"60\""), QByteArray("604801")}) {
            const HttpResult invalid =
                m_backend.request("POST", "/storage/v1/object/sign/" + bucket + '/' + encodedName(name), m_annaToken,
                                  "{\"expiresIn\":" + expiresIn + '}');
            QVERIFY2(innerStatus(invalid) == u"400", expiresIn.constData());
        }

        QCOMPARE(sign(m_annaToken, name, 7 * 24 * 3600).status, 200);

        // A short-lived address stops working once it expires.
        const QByteArray brief = signedTarget(sign(m_annaToken, other, 1));
        QTRY_COMPARE_WITH_TIMEOUT(m_backend.request("GET", brief).json().object().value(u"code"_s).toString(),
                                  u"InvalidJWT"_s, 10000);
        QVERIFY(m_backend.request("GET", brief).json().object().value(u"message"_s).toString().contains(u"expired"));

        // A deleted object is gone for its signed address too.
        QCOMPARE(m_backend.request("DELETE", objectTarget(name), m_annaToken).status, 200);
        QCOMPARE(innerStatus(m_backend.request("GET", target)), u"404"_s);
    }

    void deletingRemovesTheRowAndThenTheFile()
    {
        const QString name = m_anna + u"/old/one.txt"_s;
        QCOMPARE(upload(m_annaToken, name, "one").status, 200);
        const QString version = versionOf(name);
        QVERIFY(filesOnDisk().contains(version));

        const HttpResult removed = m_backend.request("DELETE", objectTarget(name), m_annaToken);
        QCOMPARE(removed.status, 200);
        QCOMPARE(versionOf(name), QString());
        QVERIFY(!filesOnDisk().contains(version));
        QCOMPARE(innerStatus(download(m_annaToken, name)), u"404"_s);
        const HttpResult again = m_backend.request("DELETE", objectTarget(name), m_annaToken);
        QCOMPARE(again.status, 400);
        QCOMPARE(again.json().object().value(u"code"_s).toString(), u"NoSuchKey"_s);
        QCOMPARE(again.json().object().value(u"message"_s).toString(), u"Object not found"_s);

        // Several at once: the answer lists what went, names that did not exist are skipped.
        const QStringList batch{m_anna + u"/old/two.txt"_s, m_anna + u"/old/three.txt"_s};
        QSet<QString> versions;
        for (const QString &each : batch) {
            QCOMPARE(upload(m_annaToken, each, "x").status, 200);
            versions.insert(versionOf(each));
        }
        const QJsonArray prefixes{batch[0], batch[1], QString(m_anna + u"/old/never.txt"_s)};
        const HttpResult gone = m_backend.request("DELETE", "/storage/v1/object/" + bucket, m_annaToken,
                                                  QJsonDocument(QJsonObject{{u"prefixes"_s, prefixes}}).toJson());
        QCOMPARE(gone.status, 200);
        QCOMPARE(jsonColumn(gone.json().array(), u"name"_s), QStringList({batch[1], batch[0]}));
        QVERIFY(!filesOnDisk().intersects(versions));
        verifyDiskMatchesRows();

        const HttpResult noList =
            m_backend.request("DELETE", "/storage/v1/object/" + bucket, m_annaToken, "{\"prefixes\":[]}");
        QCOMPARE(innerStatus(noList), u"400"_s);
    }

    void concurrentUpsertsLeaveOneFile()
    {
        const QString name = m_anna + u"/busy.txt"_s;
        QNetworkAccessManager manager;
        QList<QNetworkReply *> replies;
        for (int i = 0; i < 12; ++i) {
            QNetworkRequest request(QUrl::fromEncoded(m_backend.url().toEncoded() + objectTarget(name)));
            request.setRawHeader("Authorization", "Bearer " + m_annaToken);
            request.setRawHeader("Content-Type", "text/plain");
            request.setRawHeader("x-upsert", "true");
            replies.append(manager.post(request, "writer " + QByteArray::number(i)));
        }
        QTRY_VERIFY_WITH_TIMEOUT(std::all_of(replies.begin(), replies.end(), [](auto *r) { return r->isFinished(); }),
                                 60000);
        for (QNetworkReply *reply : std::as_const(replies)) {
            QCOMPARE(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), 200);
            reply->deleteLater();
        }
        // One writer won; every other writer's file went once it was replaced.
        QVERIFY(download(m_annaToken, name).body.startsWith("writer "));
        verifyDiskMatchesRows();
    }

    void bucketsAreListed()
    {
        const HttpResult all = m_backend.request("GET", "/storage/v1/bucket", m_annaToken);
        QCOMPARE(all.status, 200);
        QVERIFY(jsonColumn(all.json().array(), u"id"_s).contains(u"invoice-templates"_s));
        const QJsonObject tiny = m_backend.request("GET", "/storage/v1/bucket/tiny", m_annaToken).json().object();
        QCOMPARE(tiny.value(u"file_size_limit"_s).toInt(), 16);
        QCOMPARE(tiny.value(u"allowed_mime_types"_s).toArray(), QJsonArray({u"text/plain"_s, u"image/*"_s}));
        QCOMPARE(tiny.value(u"public"_s), QJsonValue(false));
        const HttpResult missing = m_backend.request("GET", "/storage/v1/bucket/nope", m_annaToken);
        QCOMPARE(missing.status, 400);
        QCOMPARE(innerStatus(missing), u"404"_s);
        QCOMPARE(missing.json().object().value(u"message"_s).toString(), u"Bucket not found"_s);
    }

    void theApplicationsClientUploadsAndSigns()
    {
        const Supabase client(m_backend.url(), QString::fromLatin1(m_backend.anonKey()));
        const QString token = QString::fromLatin1(m_annaToken);
        const QString path = m_anna + u"/invoices/Factuur 2025-0009.pdf"_s;
        const QByteArray pdf = "%PDF-1.4\n1 0 obj <<>> endobj\n%%EOF\n";

        const QString key =
            runBlocking(client.uploadObject(QString::fromLatin1(bucket), path, pdf, "application/pdf", true, token));
        QCOMPARE(key, QString::fromLatin1(bucket) + u'/' + path);
        // The same call again replaces the stored PDF, as re-issuing an invoice does.
        const QByteArray reissued = pdf + "% reissued\n";
        runBlocking(client.uploadObject(QString::fromLatin1(bucket), path, reissued, "application/pdf", true, token));

        const QUrl url = runBlocking(client.signedURL(QString::fromLatin1(bucket), path, 600, token));
        QVERIFY2(url.toString().startsWith(m_backend.url().toString(QUrl::StripTrailingSlash) +
                                           u"/storage/v1/object/sign/"_s),
                 qPrintable(url.toString()));
        QNetworkAccessManager manager;
        QNetworkReply *reply = manager.get(QNetworkRequest(url));
        QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 30000);
        QCOMPARE(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), 200);
        QCOMPARE(reply->header(QNetworkRequest::ContentTypeHeader).toString(), u"application/pdf"_s);
        QCOMPARE(reply->readAll(), reissued);
        reply->deleteLater();
        verifyDiskMatchesRows();
    }
};

QTEST_GUILESS_MAIN(TestStorage)
#include "tst_storage.moc"
