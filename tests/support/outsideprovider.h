#pragma once

#include "support/scriptedhttpserver.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTemporaryFile>
#include <QTimer>

// An identity provider outside the backend, as the backend's authorize flow talks to it: it sends
// the browser straight back with a code and answers the token and user-info calls with the
// profile it is given (Pia's unless told otherwise). A backend started with backendArguments()
// knows it as "idp".
class OutsideProvider
{
public:
    OutsideProvider()
        : m_server([this](const RecordedRequest &request) {
            using namespace Qt::StringLiterals;
            if (request.path() == "/authorize") {
                const QString back =
                    request.queryValue(u"redirect_uri"_s) + u"?code=c&state="_s + request.queryValue(u"state"_s);
                return ScriptedResponse{302, {}, {{"Location", back.toUtf8()}}, false};
            }
            if (request.path() == "/token") {
                return ScriptedHttpServer::json(200, "{\"access_token\":\"t\",\"token_type\":\"Bearer\"}");
            }
            return ScriptedHttpServer::json(200, m_profile);
        })
    {
        using namespace Qt::StringLiterals;
        m_config.open();
        const QString base = m_server.url().toString();
        QJsonObject idp{{u"client_id"_s, u"morvane"_s}, {u"client_secret"_s, u"s"_s}};
        idp.insert(u"authorization_endpoint"_s, QString(base + u"/authorize"_s));
        idp.insert(u"token_endpoint"_s, QString(base + u"/token"_s));
        idp.insert(u"userinfo_endpoint"_s, QString(base + u"/userinfo"_s));
        m_config.write(QJsonDocument(QJsonObject{{u"idp"_s, idp}}).toJson());
        m_config.flush();
    }

    void setProfile(const QByteArray &profile) { m_profile = profile; }

    [[nodiscard]] QStringList backendArguments() const
    {
        return {QStringLiteral("--auth-providers"), m_config.fileName()};
    }

    // One GET without following redirects; answers the body and, through `location`, where it
    // sends the browser next.
    static QByteArray get(const QUrl &url, QByteArray *location = nullptr)
    {
        QNetworkAccessManager network;
        QNetworkRequest request(url);
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
        QNetworkReply *reply = network.get(request);
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        QTimer::singleShot(15000, &loop, &QEventLoop::quit);
        loop.exec();
        if (location) {
            *location = reply->rawHeader("Location");
        }
        const QByteArray body = reply->readAll();
        delete reply;
        return body;
    }

    // What a browser does with the authorize address: to the backend, on to the provider, back to
    // the backend, which sends it to the application's address. Answers that last address without
    // visiting it.
    static QUrl landingOf(const QUrl &authorize)
    {
        QByteArray location;
        get(authorize, &location);
        get(QUrl::fromEncoded(location), &location);
        get(QUrl::fromEncoded(location), &location);
        return QUrl::fromEncoded(location);
    }

private:
    QByteArray m_profile = R"({"sub":"p-7","email":"pia@example.nl","name":"Pia"})";
    ScriptedHttpServer m_server;
    QTemporaryFile m_config;
};
