// Numbers with decimals, as messages print them.

#include <QTest>

#include "Encoder.h"

namespace
{

using V = KvMvcViewSettings;
using encoder::setBoth;

} // namespace

class TestEncoderNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ratesAreReadable_data();
    void ratesAreReadable();
    void frameRatesAreReadable_data();
    void frameRatesAreReadable();
    void secondsAreReadable_data();
    void secondsAreReadable();
};

void TestEncoderNumbers::ratesAreReadable_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<QByteArray>("error");
    const auto add = [](int rate, const char* shown,
                        const char* orLevel = ", or choose level 4.1.") {
        QTest::addRow("%d", rate) << rate
                                  << "Level 4.0 allows the base view at most 30.00 Mbit/s (now " +
                                         QByteArray(shown) + "): lower its bitrate" + orLevel;
    };
    add(30000001, "30.000001"); // no two numbers look equal
    add(30000100, "30.0001");
    add(30100000, "30.10");
    add(31234567, "31.234567");
    add(2147483647, "2147.483647", ".");
}

void TestEncoderNumbers::ratesAreReadable()
{
    QFETCH(const int, rate);
    QFETCH(const QByteArray, error);
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::level, 40);
    setBoth(record, &V::max_bitrate, rate);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.errors().contains(error), outcome.all().constData());
}

void TestEncoderNumbers::frameRatesAreReadable_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("30000/1001") << 30000.0 / 1001 << QByteArray("29.97");
    QTest::newRow("60000/1001") << 60000.0 / 1001 << QByteArray("59.94");
    QTest::newRow("25") << 25.0 << QByteArray("25.00");
    QTest::newRow("12.5") << 12.5 << QByteArray("12.50");
    QTest::newRow("29.9996") << 29.9996 << QByteArray("30.00");
    QTest::newRow("23.98, which the list has for another") << 23.98 << QByteArray("23.980");
    QTest::newRow("23.977") << 23.9774 << QByteArray("23.977");
    QTest::newRow("beyond all numbers of a message") << 1e300 << QByteArray("2147483647.00");
}

void TestEncoderNumbers::frameRatesAreReadable()
{
    QFETCH(const double, rate);
    QFETCH(const QByteArray, shown);
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::pulldown, int{KV_MVC_PULLDOWN_2_3});
    encoder::setFrameRate(record, rate);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(
        outcome.risks().contains(
            "Pulldown 2:3 and 3:2 are meant for 23.98 and 24.00 frames/s (now " + shown + ")."),
        outcome.all().constData());
}

void TestEncoderNumbers::secondsAreReadable_data()
{
    QTest::addColumn<int>("bytes"); // of a buffer that 30 Mbit/s fill
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("0.5 s") << 1875000 << QByteArray("0.50");
    QTest::newRow("0.125 s") << 468750 << QByteArray("0.125");
    QTest::newRow("0.0026 s") << 9750 << QByteArray("0.003");
    QTest::newRow("2.3 s") << 8625000 << QByteArray("2.30");
}

void TestEncoderNumbers::secondsAreReadable()
{
    QFETCH(const int, bytes);
    QFETCH(const QByteArray, shown);
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::bitrate_buffer, bytes);
    setBoth(record, &V::vbv_initial, 100);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.notes().contains("Base view: The bitrate buffer holds " + shown +
                                      " s; decoding starts after " + shown + " s."),
             outcome.all().constData());
}

QTEST_GUILESS_MAIN(TestEncoderNumbers)
#include "tst_encoder_numbers.moc"
