#include "model/jsonvalue.h"
#include "model/wire.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

class TestJsonValue : public QObject
{
    Q_OBJECT

private slots:
    void decodesInOrder_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<JSONValue>("expected");
        QTest::addColumn<int>("kind");

        QTest::newRow("true is a boolean, not 1")
            << QByteArray("true") << JSONValue(true) << int(JSONValue::Kind::Bool);
        QTest::newRow("integer becomes a double") << QByteArray("1") << JSONValue(1.0) << int(JSONValue::Kind::Number);
        QTest::newRow("digits in quotes stay text")
            << QByteArray("\"1\"") << JSONValue(u"1"_s) << int(JSONValue::Kind::String);
        QTest::newRow("array of mixed values")
            << QByteArray(R"([1,"a",false,null])") << JSONValue(JSONValue::Array{1.0, u"a"_s, false, nullptr})
            << int(JSONValue::Kind::Array);
        QTest::newRow("nested object") << QByteArray(R"({"mode":"per_km","rate":0.23,"home":{"lat":52.1}})")
                                       << JSONValue(JSONValue::Object{{u"mode"_s, u"per_km"_s},
                                                                      {u"rate"_s, 0.23},
                                                                      {u"home"_s, JSONValue::Object{{u"lat"_s, 52.1}}}})
                                       << int(JSONValue::Kind::Object);
    }

    void decodesInOrder()
    {
        QFETCH(QByteArray, json);
        QFETCH(JSONValue, expected);
        QFETCH(int, kind);
        const auto value = Wire::decodeJson<JSONValue>(json);
        QCOMPARE(int(value.kind()), kind);
        QVERIFY(value == expected);
        QCOMPARE(qHash(value), qHash(expected));
        // Writing it out and reading it back gives the same value.
        QVERIFY(JSONValue::fromJson(value.toJson()) == value);
    }

    void differentValuesDiffer_data()
    {
        QTest::addColumn<JSONValue>("a");
        QTest::addColumn<JSONValue>("b");
        QTest::newRow("number and its text") << JSONValue(1.0) << JSONValue(u"1"_s);
        QTest::newRow("arrays in another order")
            << JSONValue(JSONValue::Array{1.0, 2.0}) << JSONValue(JSONValue::Array{2.0, 1.0});
        QTest::newRow("objects with another value")
            << JSONValue(JSONValue::Object{{u"a"_s, 1.0}}) << JSONValue(JSONValue::Object{{u"a"_s, 2.0}});
    }

    void differentValuesDiffer()
    {
        QFETCH(JSONValue, a);
        QFETCH(JSONValue, b);
        QVERIFY(!(a == b));
    }

    void lookupAndPlainJson()
    {
        const auto travel = Wire::decodeJson<JSONValue>(R"({"mode":"per_trip","rate":12})");
        QCOMPARE(travel.value(u"rate"_s).toDouble(), 12.0);
        QVERIFY(travel.value(u"label"_s).isNull());
        QVERIFY(JSONValue(u"text"_s).value(u"mode"_s).isNull());
        const JSONValue value(JSONValue::Object{{u"list"_s, JSONValue::Array{true, nullptr, 2.5}}});
        QCOMPARE(AnyEncodable(value).toJson(), QByteArray(R"({"list":[true,null,2.5]})"));
    }
};

QTEST_GUILESS_MAIN(TestJsonValue)
#include "tst_jsonvalue.moc"
