#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDir>
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
const Headers text{{"Content-Type", "text/plain"}};
const Headers form{{"Content-Type", "multipart/form-data; boundary=b"}};

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

QByteArray filePart(const QByteArray &content, const QByteArray &headers = {})
{
    return "Content-Disposition: form-data; name=\"file\"; filename=\"x\"\r\n" + headers + "\r\n" + content;
}

// The storage dialect: client errors travel as HTTP 400 with the real status inside.
QString innerStatus(const HttpResult &result)
{
    return result.json().object().value(u"statusCode"_s).toString();
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

    static QByteArray objectTarget(const QString &name, const QByteArray &inBucket = bucket)
    {
        return "/storage/v1/object/" + inBucket + '/' + encodedName(name);
    }

    HttpResult upload(const QString &name, const QByteArray &content, const QByteArray &contentType = "text/plain",
                      bool upsert = false, const QByteArray &inBucket = bucket, const QByteArray &token = {})
    {
        return m_backend.request("POST", objectTarget(name, inBucket), token.isEmpty() ? m_annaToken : token, content,
                                 {{"Content-Type", contentType}, {"x-upsert", upsert ? "true" : "false"}});
    }

    HttpResult download(const QString &name, const QByteArray &token = {})
    {
        return m_backend.request("GET", "/storage/v1/object/authenticated/" + bucket + '/' + encodedName(name),
                                 token.isEmpty() ? m_annaToken : token);
    }

    HttpResult sign(const QString &name, const QByteArray &expiresIn, const QByteArray &token = {})
    {
        return m_backend.request("POST", "/storage/v1/object/sign/" + bucket + '/' + encodedName(name),
                                 token.isEmpty() ? m_annaToken : token, "{\"expiresIn\":" + expiresIn + '}');
    }

    // The address of a signed URL below the server, as a client builds it from the answer.
    static QByteArray signedTarget(const HttpResult &signature)
    {
        const QString path = signature.json().object().value(u"signedURL"_s).toString();
        return "/storage/v1" + QUrl(path, QUrl::TolerantMode).toEncoded();
    }

    // The request exactly as written: a client library would resolve "." and ".." segments itself.
    HttpResult sendVerbatim(const QByteArray &target, const QByteArray &token, const QByteArray &body,
                            const Headers &headers) const
    {
        QTcpSocket socket;
        socket.connectToHost(m_backend.url().host(), quint16(m_backend.url().port()));
        if (!socket.waitForConnected(10000)) {
            return {};
        }
        QByteArray request = "POST " + target + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\nContent-Length: " +
                             QByteArray::number(body.size()) + "\r\n";
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
        return {answer.mid(9, 3).toInt(), {}, answer.mid(answer.indexOf("\r\n\r\n") + 4)};
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

    // The invariant everything else rests on: every row's file exists and no file lacks its row.
    void verifyDiskMatchesRows()
    {
        const PgResult rows =
            m_backend.database().exec("SELECT version FROM storage.objects WHERE bucket_id = $1", {bucket});
        QSet<QString> versions;
        for (int row = 0; row < rows.rows(); ++row) {
            versions.insert(QString::fromUtf8(rows.value(row, 0)));
        }
        QCOMPARE(filesOnDisk(), versions);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_annaToken = m_backend.tokenFor(m_anna);
        m_bobToken = m_backend.tokenFor(m_bob);
        // A bucket with the limits the application's own bucket leaves open, and one of its own
        // for listings, which the other tests' objects would disturb.
        m_backend.database().execScript("INSERT INTO storage.buckets (id, name, file_size_limit, allowed_mime_types)"
                                        " VALUES ('tiny', 'tiny', 16, '{text/plain,image/*}');"
                                        "INSERT INTO storage.buckets (id, name) VALUES ('listing', 'listing')");
    }

    void usersReachOnlyTheirOwnFolder_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("statusCode");
        // Bob against Anna's folder: "$b" is the bucket and "$her" her id, in the address and body.
        auto row = [](const char *tag, const QByteArray &method, const QByteArray &target, const QString &statusCode,
                      const Headers &headers = {}, const QByteArray &body = {}) {
            QTest::newRow(tag) << method << target << headers << body << statusCode;
        };
        const Headers json{{"Content-Type", "application/json"}};
        row("upload into her folder", "POST", "object/$b/$her/planted.txt", u"403"_s, text, "bob's");
        row("upsert over her object", "POST", "object/$b/$her/private.txt", u"403"_s,
            {{"Content-Type", "text/plain"}, {"x-upsert", "true"}}, "bob's");
        row("replace her object", "PUT", "object/$b/$her/private.txt", u"404"_s, text, "bob's");
        row("download her object", "GET", "object/authenticated/$b/$her/private.txt", u"404"_s);
        row("sign her object", "POST", "object/sign/$b/$her/private.txt", u"404"_s, json, "{\"expiresIn\":60}");
        row("delete her object", "DELETE", "object/$b/$her/private.txt", u"404"_s);
        // Several at once answers what it removed: nothing.
        row("remove her object in a batch", "DELETE", "object/$b", QString(), json,
            "{\"prefixes\":[\"$her/private.txt\"]}");
    }

    void usersReachOnlyTheirOwnFolder()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(Headers, headers);
        QFETCH(QByteArray, body);
        QFETCH(QString, statusCode);
        const QString name = m_anna + u"/private.txt"_s;
        QCOMPARE(upload(name, "anna's own", "text/plain", true).status, 200);
        const QSet<QString> filesBefore = filesOnDisk();

        auto fill = [&](QByteArray text) { return text.replace("$b", bucket).replace("$her", m_anna.toUtf8()); };
        const HttpResult result =
            m_backend.request(method, "/storage/v1/" + fill(target), m_bobToken, fill(body), headers);
        QCOMPARE(innerStatus(result), statusCode);
        QCOMPARE(result.status, statusCode.isEmpty() ? 200 : 400);
        if (statusCode.isEmpty()) {
            QCOMPARE(result.json().array(), QJsonArray());
        }
        // Her object is as she left it, and nothing of Bob's reached the disk.
        QCOMPARE(download(name).body, QByteArray("anna's own"));
        QCOMPARE(filesOnDisk(), filesBefore);
        QCOMPARE(versionOf(m_anna + u"/planted.txt"_s), QString());
    }

    void listingShowsOnlyOnesOwnEntries_data()
    {
        QTest::addColumn<QJsonObject>("options");
        QTest::addColumn<QStringList>("names"); // folders end in "/"
        // Anna has list/a.txt, list/b.txt, list/sub/c.txt and list/sub/deeper/d.txt; Bob has his.txt.
        const QString list = u"$anna/list"_s;
        QTest::newRow("the bucket's top level shows only her folder, not Bob's")
            << QJsonObject{{u"prefix"_s, u""_s}} << QStringList{u"$anna/"_s};
        QTest::newRow("one level below a folder")
            << QJsonObject{{u"prefix"_s, list}} << QStringList{u"a.txt"_s, u"b.txt"_s, u"sub/"_s};
        QTest::newRow("a page") << QJsonObject{{u"prefix"_s, list}, {u"limit"_s, 1}, {u"offset"_s, 1}}
                                << QStringList{u"b.txt"_s};
        QTest::newRow("search matches the start of a name, ignoring case")
            << QJsonObject{{u"prefix"_s, list}, {u"search"_s, u"B"_s}} << QStringList{u"b.txt"_s};
        QTest::newRow("search characters are not patterns")
            << QJsonObject{{u"prefix"_s, list}, {u"search"_s, u"_"_s}} << QStringList{};
    }

    void listingShowsOnlyOnesOwnEntries()
    {
        QFETCH(QJsonObject, options);
        QFETCH(QStringList, names);
        for (const QString &file : {u"a.txt"_s, u"b.txt"_s, u"sub/c.txt"_s, u"sub/deeper/d.txt"_s}) {
            QCOMPARE(upload(m_anna + u"/list/"_s + file, "x", "text/plain", true, "listing").status, 200);
        }
        QCOMPARE(upload(m_bob + u"/his.txt"_s, "x", "text/plain", true, "listing", m_bobToken).status, 200);

        options.insert(u"prefix"_s, options.value(u"prefix"_s).toString().replace(u"$anna"_s, m_anna));
        const HttpResult result =
            m_backend.request("POST", "/storage/v1/object/list/listing", m_annaToken, QJsonDocument(options).toJson());
        QCOMPARE(result.status, 200);
        QStringList seen;
        for (const QJsonValue &entry : result.json().array()) {
            // Files carry what a file browser shows; folders carry nothing.
            const bool folder = entry[u"id"_s].isNull();
            QCOMPARE(entry[u"metadata"_s][u"size"_s].toInt(-1), folder ? -1 : 1);
            seen.append(entry[u"name"_s].toString() + (folder ? u"/"_s : QString()));
        }
        QCOMPARE(seen, names.replaceInStrings(u"$anna"_s, m_anna));
    }

    void uploadsRawAndMultipart_data()
    {
        QTest::addColumn<QByteArray>("contentType"); // of the request
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("storedType");
        QTest::addColumn<QByteArray>("cacheControl");
        QTest::addColumn<QByteArray>("disposition"); // how a browser is told to show it

        // A raw body with its type is the JavaScript client's check.
        const QByteArray cache = "Content-Disposition: form-data; name=\"cacheControl\"\r\n\r\n";
        // As the JavaScript client sends a Blob: an unnamed field, a made-up file name.
        QTest::newRow("form as the JavaScript client sends it")
            << QByteArray("multipart/form-data; boundary=----formdata-undici-0123")
            << multipartBody("----formdata-undici-0123",
                             {cache + "3600", "Content-Disposition: form-data; name=\"\"; filename=\"blob\"\r\n"
                                              "Content-Type: image/png\r\n\r\n\x89PNG\r\n\x1a\n"})
            << QByteArray("\x89PNG\r\n\x1a\n") << QByteArray("image/png") << QByteArray("max-age=3600") << QByteArray();
        QTest::newRow("quoted boundary, preamble, no type on the part")
            << QByteArray("multipart/form-data; boundary=\"a;b c\"")
            << multipartBody("a;b c", {filePart("body")}, "ignored preamble\r\n") << QByteArray("body")
            << QByteArray("application/octet-stream") << QByteArray("no-cache") << QByteArray("attachment");
        QTest::newRow("file content that looks like a delimiter")
            << form.first().second
            << multipartBody("b", {filePart("line\r\n--bx\r\n--", "Content-Type: text/plain\r\n")})
            << QByteArray("line\r\n--bx\r\n--") << QByteArray("text/plain") << QByteArray("no-cache") << QByteArray();
        // Anyone's upload, served from the API's own origin: never run as a page there.
        const QByteArray page = "<script>alert(1)</script>";
        QTest::newRow("a page") << QByteArray("text/html") << page << page << QByteArray("text/html")
                                << QByteArray("no-cache") << QByteArray("attachment");
    }

    void uploadsRawAndMultipart()
    {
        QFETCH(QByteArray, contentType);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, storedType);
        const QString name = m_anna + u"/uploads/"_s + QString::fromLatin1(QTest::currentDataTag());

        const HttpResult stored = upload(name, body, contentType);
        QCOMPARE(stored.status, 200);
        QCOMPARE(stored.json()[u"Key"].toString(), QString::fromLatin1(bucket) + u'/' + name);
        QVERIFY(!stored.json()[u"Id"].toString().isEmpty());

        const HttpResult fetched = download(name);
        QCOMPARE(fetched.body, content);
        QCOMPARE(fetched.header("Content-Type"), storedType);
        QTEST(fetched.header("Cache-Control"), "cacheControl");
        QTEST(fetched.header("Content-Disposition"), "disposition");
        QCOMPARE(fetched.header("X-Content-Type-Options"), QByteArray("nosniff"));
        QVERIFY(fetched.header("Content-Security-Policy").contains("sandbox"));
        verifyDiskMatchesRows();
    }

    void refusalsStoreNothing_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("statusCode");
        QTest::addColumn<QString>("code");
        // "$me" is the caller's folder; the caller is Anna unless the token says otherwise.
        auto row = [](const char *tag, const QByteArray &target, const QString &code,
                      const QString &statusCode = u"400"_s, const QByteArray &body = "x", const Headers &headers = text,
                      const QByteArray &token = "anna") {
            QTest::newRow(tag) << target << token << headers << body << statusCode << code;
        };
        const QList<std::pair<const char *, QByteArray>> badNames{
            {"an encoded parent segment", "$me/%2E%2E/%2e%2e/escape.txt"},
            {"a NUL byte", "$me/a%00b.txt"},
            {"a backslash", "$me/..%5C..%5Cx.txt"},
            {"an absurdly long name", "$me/" + QByteArray(1100, 'n')},
        };
        for (const auto &[tag, name] : badNames) {
            row(tag, "invoice-templates/" + name, u"InvalidKey"_s);
        }
        row("no name at all", "invoice-templates", u"InvalidKey"_s);
        row("a bucket name that is a parent", "../$me/x.txt", u"InvalidBucketName"_s);
        row("a bucket that does not exist", "no-such-bucket/$me/x.txt", u"NoSuchBucket"_s, u"404"_s);
        row("larger than the bucket allows", "tiny/$me/big.txt", u"EntityTooLarge"_s, u"413"_s, QByteArray(17, 'x'));
        row("a type the bucket does not take", "tiny/$me/x.pdf", u"InvalidMimeType"_s, u"415"_s, "x",
            {{"Content-Type", "application/pdf"}});
        const QByteArray target = "invoice-templates/$me/x.txt";
        row("a form without its closing delimiter", target, u"InvalidRequest"_s, u"400"_s, "--b\r\n" + filePart("abc"),
            form);
        row("a form without a file", target, u"InvalidRequest"_s, u"400"_s,
            multipartBody("b", {"Content-Disposition: form-data; name=\"cacheControl\"\r\n\r\n60"}), form);
        row("a form with two files", target, u"InvalidRequest"_s, u"400"_s,
            multipartBody("b", {filePart("1"), filePart("2")}), form);
        // Both come back as headers of every download.
        row("cache control that would split a header", target, u"InvalidRequest"_s, u"400"_s,
            multipartBody("b", {"Content-Disposition: form-data; name=\"cacheControl\"\r\n\r\n60\r\nSet-Cookie: a=b",
                                filePart("x")}),
            form);
        row("a content type beyond plain text", target, u"InvalidRequest"_s, u"400"_s,
            multipartBody("b", {filePart("x", "Content-Type: text/plain\x01\r\n")}), form);
        row("no token: the anonymous role stores nothing", target, u"AccessDenied"_s, u"403"_s, "x", text, "none");
        row("an expired token keeps its 401", target, u"InvalidJWT"_s, u"401"_s, "x", text, "expired");
    }

    void refusalsStoreNothing()
    {
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, token);
        QFETCH(Headers, headers);
        QFETCH(QByteArray, body);
        QFETCH(QString, statusCode);
        QByteArray bearer = m_annaToken;
        if (token == "none") {
            bearer.clear();
        } else if (token == "expired") {
            bearer = m_backend.tokenFor(m_anna, u"authenticated"_s, -10);
        }
        auto rows = [&] { return m_backend.database().exec("SELECT count(*) FROM storage.objects").value(0, 0); };
        const QByteArray rowsBefore = rows();
        const QSet<QString> filesBefore = filesOnDisk() + filesOnDisk("tiny");

        const HttpResult result =
            sendVerbatim("/storage/v1/object/" + target.replace("$me", m_anna.toUtf8()), bearer, body, headers);
        QCOMPARE(result.status, statusCode == u"401" ? 401 : 400);
        QCOMPARE(innerStatus(result), statusCode);
        QTEST(result.json()[u"code"].toString(), "code");

        QCOMPARE(rows(), rowsBefore);
        QCOMPARE(filesOnDisk() + filesOnDisk("tiny"), filesBefore);
        // Nothing escaped the bucket folders either.
        QVERIFY(!QFileInfo::exists(m_backend.dataDir() + u"/escape.txt"_s));
        QVERIFY(!QFileInfo::exists(m_backend.dataDir() + u"/storage/escape.txt"_s));
    }

    void onlyUpsertAndPutReplace()
    {
        const QString name = m_anna + u"/invoices/2025-0001.pdf"_s;
        const HttpResult first = upload(name, "first", "application/pdf");
        QCOMPARE(first.status, 200);
        const QString firstVersion = versionOf(name);
        const HttpResult again = upload(name, "second", "application/pdf");
        QCOMPARE(innerStatus(again), u"409"_s);
        QCOMPARE(download(name).body, QByteArray("first"));
        QCOMPARE(versionOf(name), firstVersion);

        // The same object, with new content and metadata, in a new file; the old file is gone.
        const HttpResult replaced = upload(name, "third", "text/plain", true);
        QCOMPARE(replaced.json()[u"Id"], first.json()[u"Id"]);
        QCOMPARE(download(name).header("Content-Type"), QByteArray("text/plain"));
        QVERIFY(!filesOnDisk().contains(firstVersion));
        const HttpResult put = m_backend.request("PUT", objectTarget(name), m_annaToken, "fourth", text);
        QCOMPARE(put.status, 200);
        QCOMPARE(download(name).body, QByteArray("fourth"));

        // Upserting a name that does not exist creates it; putting one does not.
        QCOMPARE(upload(m_anna + u"/invoices/new.pdf"_s, "new", "application/pdf", true).status, 200);
        const QString missing = m_anna + u"/invoices/none.pdf"_s;
        QCOMPARE(innerStatus(m_backend.request("PUT", objectTarget(missing), m_annaToken, "v1", text)), u"404"_s);
        QCOMPARE(versionOf(missing), QString());
        verifyDiskMatchesRows();
    }

    void signedUrlsServeOneObjectForAWhile()
    {
        const QString name = m_anna + u"/shared/Factuur 2025-0003.pdf"_s;
        const QString other = m_anna + u"/shared/other.pdf"_s;
        QCOMPARE(upload(name, "%PDF signed", "application/pdf").status, 200);
        QCOMPARE(upload(other, "%PDF other", "application/pdf").status, 200);

        const QByteArray target = signedTarget(sign(name, "600"));
        // Without any token or key: the signature is the permission.
        const HttpResult served = m_backend.request("GET", target, {}, {}, {{"apikey", {}}});
        QCOMPARE(served.status, 200);
        QCOMPARE(served.body, QByteArray("%PDF signed"));
        QCOMPARE(served.header("Content-Type"), QByteArray("application/pdf"));
        // Bob cannot read it himself (see usersReachOnlyTheirOwnFolder), yet the address he was given works for him.
        QCOMPARE(m_backend.request("GET", target, m_bobToken).body, QByteArray("%PDF signed"));

        const QByteArray token = target.mid(target.indexOf("token=") + 6);
        const QByteArray otherTarget = "/storage/v1/object/sign/" + bucket + '/' + encodedName(other);
        QByteArray tampered = token;
        const qsizetype payloadAt = tampered.indexOf('.') + 5;
        tampered[payloadAt] = tampered[payloadAt] == 'A' ? 'B' : 'A';
        for (const auto &[refused, code] : QList<std::pair<QByteArray, QString>>{
                 {otherTarget + "?token=" + token, u"InvalidSignature"_s},
                 {target.left(target.indexOf("token=") + 6) + tampered, u"InvalidSignature"_s},
                 {otherTarget + "?token=" + m_annaToken, u"InvalidSignature"_s},
                 {otherTarget, u"InvalidRequest"_s}}) {
            const HttpResult result = m_backend.request("GET", refused);
            QVERIFY2(result.status == 400 && result.code() == code, refused.constData());
        }

        // An expiry of at most a week (signing asks the caller's rights: usersReachOnlyTheirOwnFolder).
        for (const QByteArray &expiresIn : {"0", "-5", "1.5", "\"60\"", "604801"}) {
            QVERIFY2(innerStatus(sign(name, expiresIn)) == u"400", expiresIn.constData());
        }
        QCOMPARE(sign(name, "604800").status, 200);

        // A short-lived address stops working once it expires.
        const QByteArray brief = signedTarget(sign(other, "1"));
        QTRY_COMPARE_WITH_TIMEOUT(m_backend.request("GET", brief).code(), u"InvalidJWT"_s, 10000);
        // A deleted object is gone for its signed address too.
        QCOMPARE(m_backend.request("DELETE", objectTarget(name), m_annaToken).status, 200);
        QCOMPARE(innerStatus(m_backend.request("GET", target)), u"404"_s);
    }

    void deletingRemovesTheRowAndThenTheFile()
    {
        const QString name = m_anna + u"/old/one.txt"_s;
        QCOMPARE(upload(name, "one").status, 200);
        const QString version = versionOf(name);
        QVERIFY(filesOnDisk().contains(version));
        QCOMPARE(m_backend.request("DELETE", objectTarget(name), m_annaToken).status, 200);
        QCOMPARE(versionOf(name), QString());
        QVERIFY(!filesOnDisk().contains(version));
        const HttpResult again = m_backend.request("DELETE", objectTarget(name), m_annaToken);
        QCOMPARE(again.code(), u"NoSuchKey"_s);

        // Several at once (what the answer lists is the JavaScript client's check): their files go too.
        const QStringList batch{m_anna + u"/old/two.txt"_s, m_anna + u"/old/three.txt"_s};
        QSet<QString> versions;
        for (const QString &each : batch) {
            QCOMPARE(upload(each, "x").status, 200);
            versions.insert(versionOf(each));
        }
        const HttpResult gone =
            m_backend.request("DELETE", "/storage/v1/object/" + bucket, m_annaToken,
                              QJsonDocument(QJsonObject{{u"prefixes"_s, QJsonArray{batch[0], batch[1]}}}).toJson());
        QCOMPARE(gone.json().array().size(), 2);
        QVERIFY(!filesOnDisk().intersects(versions));
        verifyDiskMatchesRows();
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
        QVERIFY(download(name).body.startsWith("writer "));
        verifyDiskMatchesRows();
    }
};

QTEST_GUILESS_MAIN(TestStorage)
#include "tst_storage.moc"
