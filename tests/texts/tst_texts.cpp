// The library as the dialog loads it: what it says of every message of the encoder.

#include "EncoderMessages.h"
#include "ToolkitWarnings.h"

#include <kv_config_gui_mvc/companions.h>

#include <QLibrary>
#include <QTest>

#include <cstring>

#include "languages.h"

namespace
{

constexpr int english = 9;

/// The conversions of a printf format with flags, width, precision and length, in order.
QStringList conversionsOf(const char* format)
{
    QStringList conversions;
    for (const char* at = std::strchr(format, '%'); at; at = std::strchr(at, '%')) {
        const char* const end = at + 1 + std::strspn(at + 1, "-+ #0123456789.*hlLqjzt$'");
        if (*end != '%') {
            conversions += QString::fromUtf8(at, int(end - at) + 1);
        }
        at = *end ? end + 1 : end;
    }
    return conversions;
}

} // namespace

class TestTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { failOnToolkitWarnings(); }
    void cleanup() { setLanguage(english); }

    void conversions_data();
    void conversions();
    void messageIsTranslated_data();
    void messageIsTranslated();
    void aFewTexts_data();
    void aFewTexts();
    void languages();
    void unknownFormats();

private:
    QLibrary m_library;
    KvMvcLocalizeSetLanguage setLanguage = nullptr;
    KvMvcLocalizeConvert convert = nullptr;
};

void TestTexts::initTestCase()
{
    m_library.setFileName(qEnvironmentVariable("KV_BIN_DIR") + QLatin1String("/mvc_gui_texts"));
    setLanguage =
        reinterpret_cast<KvMvcLocalizeSetLanguage>(m_library.resolve(KV_MVC_LOCALIZE_SET_LANGUAGE));
    convert = reinterpret_cast<KvMvcLocalizeConvert>(m_library.resolve(KV_MVC_LOCALIZE_CONVERT));
    QVERIFY2(setLanguage && convert, qPrintable(m_library.errorString()));
    QVERIFY2(!convert("Level %s is the lowest that fits."), "no language is set yet");
}

void TestTexts::conversions_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QStringList>("conversions");
    QTest::newRow("none") << QByteArray("P-frames") << QStringList();
    QTest::newRow("in order") << QByteArray("%d of %s")
                              << QStringList{QStringLiteral("%d"), QStringLiteral("%s")};
    QTest::newRow("with precision")
        << QByteArray("%.0f x %5.2lf")
        << QStringList{QStringLiteral("%.0f"), QStringLiteral("%5.2lf")};
    QTest::newRow("percent signs")
        << QByteArray("100 %%, %% %d%%") << QStringList{QStringLiteral("%d")};
    QTest::newRow("at the end") << QByteArray("%d %")
                                << QStringList{QStringLiteral("%d"), QStringLiteral("%")};
}

void TestTexts::conversions()
{
    QFETCH(QByteArray, format);
    QFETCH(QStringList, conversions);
    // A lone sign at the end reads as a conversion of nothing, which no source has.
    QStringList found = conversionsOf(format.constData());
    for (QString& conversion : found) {
        conversion.remove(QChar(0));
    }
    QCOMPARE(found, conversions);
}

void TestTexts::messageIsTranslated_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QByteArray>("format");
    for (const kv::texts::Language& language : kv::texts::languages()) {
        for (const Message& message : encoderMessages()) {
            QTest::addRow("%d, %s: %s", language.code, message.rule.constData(),
                          message.format.constData())
                << int(language.code) << message.format;
        }
    }
}

void TestTexts::messageIsTranslated()
{
    QFETCH(int, language);
    QFETCH(QByteArray, format);
    QCOMPARE(setLanguage(language), 0);
    const char* const text = convert(format.constData());
    QVERIFY(text);
    QVERIFY(QByteArray(text) != format || format == "Bitrate"); // which is German, too
    QCOMPARE(QString::fromUtf8(text).toUtf8(), QByteArray(text));
    QCOMPARE(conversionsOf(text), conversionsOf(format.constData()));
    QVERIFY(!QByteArray(text).endsWith('\n'));
}

void TestTexts::aFewTexts_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QString>("text");
    const QByteArray base = "Base view: The target bitrate has to be above 0.";
    const QByteArray other = "View %d: The target bitrate has to be above 0.";
    QTest::newRow("German, base view")
        << 7 << base << QStringLiteral("Basisansicht: Die Zielbitrate muss über 0 liegen.");
    QTest::newRow("German, view") << 7 << other
                                  << QStringLiteral(
                                         "Ansicht %d: Die Zielbitrate muss über 0 liegen.");
    QTest::newRow("Japanese, base view")
        << 17 << base
        << QStringLiteral("ベースビュー: 目標ビットレートは 0 より大きくしてください。");
    QTest::newRow("Japanese, view")
        << 17 << other
        << QStringLiteral("ビュー %d: 目標ビットレートは 0 より大きくしてください。");
    QTest::newRow("German, of all views")
        << 7 << QByteArray("The switch \"Deblocking filter\" was %d; it is now on (1).")
        << QStringLiteral("„Deblocking-Filter“ war %d und ist jetzt an (1).");
    QTest::newRow("German, of another view")
        << 7 << QByteArray("View %d: The switch \"Deblocking filter\" was %d; it is now on (1).")
        << QStringLiteral("Ansicht %d: „Deblocking-Filter“ war %d und ist jetzt an (1).");
}

void TestTexts::aFewTexts()
{
    QFETCH(int, language);
    QFETCH(QByteArray, format);
    QFETCH(QString, text);
    QCOMPARE(setLanguage(language), 0);
    QCOMPARE(QString::fromUtf8(convert(format.constData())), text);
}

void TestTexts::languages()
{
    const char* const format = "View %d: The target bitrate has to be above 0.";
    QCOMPARE(setLanguage(KV_MVC_LANGUAGE_GERMAN), 0);
    const QByteArray german = convert(format);
    QCOMPARE(setLanguage(KV_MVC_LANGUAGE_JAPANESE), 0);
    QVERIFY(QByteArray(convert(format)) != german);
    for (const int unknown : {english, 0, -1, 1031}) {
        QVERIFY(setLanguage(unknown) != 0);
        QVERIFY(!convert(format));
    }
}

void TestTexts::unknownFormats()
{
    QCOMPARE(setLanguage(KV_MVC_LANGUAGE_GERMAN), 0);
    QVERIFY(!convert("View %d"));
    QVERIFY(!convert(""));
    QVERIFY(!convert(nullptr));
}

QTEST_GUILESS_MAIN(TestTexts)
#include "tst_texts.moc"
