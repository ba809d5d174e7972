// Every message of the encoder has both translations, and each takes what its source takes.

#include "ToolkitWarnings.h"

#include <kv_config_gui_mvc/companions.h>

#include <QLibrary>
#include <QSet>
#include <QTest>

#include "rules.h"
#include "tables.h"

namespace
{

constexpr int english = 9;

/// The conversions of a printf format with flags, width, precision and length, in order.
QStringList conversionsOf(const char* format)
{
    QStringList conversions;
    for (const char* at = std::strchr(format, '%'); at; at = std::strchr(at, '%')) {
        const char* const end = at + 1 + std::strspn(at + 1, "-+ #0123456789.*hlLqjzt$'");
        if (*end != '%')
            conversions += QString::fromUtf8(at, int(end - at) + 1);
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
    void noTextIsStale();
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
    for (QString& conversion : found)
        conversion.remove(QChar(0));
    QCOMPARE(found, conversions);
}

void TestTexts::messageIsTranslated_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const kv::encoder::RuleGroup& group : kv::encoder::ruleGroups())
        for (const kv::encoder::RuleInfo* rule : group.rules)
            QTest::newRow(rule->id) << QByteArray(rule->format);
}

void TestTexts::messageIsTranslated()
{
    QFETCH(QByteArray, format);
    for (const int language : {KV_MVC_LANGUAGE_GERMAN, KV_MVC_LANGUAGE_JAPANESE}) {
        QCOMPARE(setLanguage(language), 0);
        const char* text = convert(format.constData());
        QVERIFY2(text, format.constData());
        QVERIFY(QByteArray(text) != format);
        QCOMPARE(QString::fromUtf8(text).toUtf8(), QByteArray(text));
        QCOMPARE(conversionsOf(text), conversionsOf(format.constData()));
        QVERIFY(!QByteArray(text).endsWith('\n'));
    }
}

void TestTexts::noTextIsStale()
{
    QSet<QByteArray> formats;
    for (const kv::encoder::RuleGroup& group : kv::encoder::ruleGroups())
        for (const kv::encoder::RuleInfo* rule : group.rules)
            formats += rule->format;
    QSet<QByteArray> seen;
    for (const kv::texts::Table& table : kv::texts::tables())
        for (const kv::texts::Text& text : table) {
            QVERIFY2(formats.contains(text.format), text.format);
            QVERIFY2(!seen.contains(text.format), text.format);
            seen += text.format;
        }
    QCOMPARE(seen.size(), formats.size());
}

void TestTexts::aFewTexts_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("German") << 7 << QStringLiteral("Ansicht %d braucht eine Zielbitrate über 0.");
    QTest::newRow("Japanese") << 17
                              << QStringLiteral(
                                     "ビュー %d には 0 より大きい目標ビットレートが必要です。");
}

void TestTexts::aFewTexts()
{
    QFETCH(int, language);
    QFETCH(QString, text);
    QCOMPARE(setLanguage(language), 0);
    QCOMPARE(QString::fromUtf8(convert("View %d needs a target bitrate above 0.")), text);
}

void TestTexts::languages()
{
    const char* const format = "View %d needs a target bitrate above 0.";
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
