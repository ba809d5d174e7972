// Every message of the encoder has both translations, and each takes what its source takes.

#include "ToolkitWarnings.h"

#include <kv_config_gui_mvc/companions.h>

#include <QFile>
#include <QLibrary>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

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
    void decimalsHaveASignOfTheLanguage();
    void viewsAreNamedInEachLanguage();
    void quotedNamesAreTheDialogs_data();
    void quotedNamesAreTheDialogs();
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
            for (const char* const format : {rule->format, rule->viewFormat})
                if (format)
                    QTest::addRow("%s%s", rule->id, format == rule->format ? "" : ", view")
                        << QByteArray(format);
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
            for (const char* const format : {rule->format, rule->viewFormat})
                if (format)
                    formats += format;
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

void TestTexts::decimalsHaveASignOfTheLanguage()
{
    int seen = 0;
    for (const kv::texts::Table& table : kv::texts::tables())
        for (const kv::texts::Text& text : table) {
            const int decimals = QByteArray(text.format).count("%d.%0*d");
            QCOMPARE(QByteArray(text.german).count("%d,%0*d"), decimals);
            QCOMPARE(QByteArray(text.japanese).count("%d.%0*d"), decimals);
            QVERIFY2(!QByteArray(text.german).contains("%d.%0*d"), text.german);
            seen += decimals;
        }
    QVERIFY(seen > 0);
}

void TestTexts::viewsAreNamedInEachLanguage()
{
    const struct {
        const char* english;
        const char* german;
        const char* japanese;
    } names[] = {{"Base view: ", "Basisansicht: ", "ベースビュー: "},
                 {"View %d: ", "Ansicht %d: ", "ビュー %d: "}};
    for (const kv::texts::Table& table : kv::texts::tables())
        for (const kv::texts::Text& text : table)
            for (const auto& name : names) {
                const bool named = QByteArray(text.format).startsWith(name.english);
                QCOMPARE(QByteArray(text.german).startsWith(name.german), named);
                QCOMPARE(QByteArray(text.japanese).startsWith(name.japanese), named);
            }
}

void TestTexts::quotedNamesAreTheDialogs_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("element");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("quoted");
    QTest::addColumn<QStringList>("others");
    const QString german = QStringLiteral("gui_mvc_de.ts");
    QTest::newRow("English") << german << QStringLiteral("source") << 0
                             << QStringLiteral("\"([^\"]+)\"") << QStringList();
    // What the dialog says in a group's title and a label, or on both sides of a control.
    const QStringList inParts = {QStringLiteral("Ein IDR-Bild je … I-Bilder"),
                                 QStringLiteral("Adaptive Quantisierung nach Helligkeit"),
                                 QStringLiteral("Adaptive Quantisierung nach Kontrast"),
                                 QStringLiteral("Adaptive Quantisierung nach Komplexität")};
    QTest::newRow("German") << german << QStringLiteral("translation") << 1
                            << QStringLiteral("„([^“]+)“") << inParts;
    QTest::newRow("Japanese") << QStringLiteral("gui_mvc_jp.ts") << QStringLiteral("translation")
                              << 2 << QStringLiteral("「([^」]+)」") << QStringList();
}

void TestTexts::quotedNamesAreTheDialogs()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, element);
    QFETCH(int, column);
    QFETCH(QString, quoted);
    QFETCH(QStringList, others);
    QFile file(QStringLiteral(KV_TRANSLATIONS "/") + catalogue);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    // Labels lose their unit: "Max bitrate (bps)".
    static const QRegularExpression unit(QStringLiteral(" \\([^)]*\\)$"));
    QSet<QString> names(others.cbegin(), others.cend());
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == element)
            names +=
                xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed().remove(unit);
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));

    const QRegularExpression expression(quoted);
    QStringList unknown;
    int seen = 0;
    for (const kv::texts::Table& table : kv::texts::tables())
        for (const kv::texts::Text& text : table) {
            const char* const columns[] = {text.format, text.german, text.japanese};
            auto match = expression.globalMatch(QString::fromUtf8(columns[column]));
            for (; match.hasNext(); ++seen)
                if (const QString name = match.next().captured(1); !names.contains(name))
                    unknown += name;
        }
    QVERIFY(seen > 0);
    QCOMPARE(unknown, QStringList());
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
