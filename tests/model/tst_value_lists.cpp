#include "SettingsLedger.h"

#include "model/ValueLists.h"
#include "model/Vocabulary.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

/// The item texts of the encoder family: their order, their codes, and the names' maps.
class TestValueLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listHasItsItemsInOrder_data();
    void listHasItsItemsInOrder();
    void unusedListHasItsItemsInOrder_data();
    void unusedListHasItsItemsInOrder();
    void aspectRatios();
    void frameRates();
    void namesComeInTheOrderOfTheirTexts_data();
    void namesComeInTheOrderOfTheirTexts();
    void high422IsAProfileOnlyWhenOffered();
    void codeHasTheFirstTextInOrder();
    void unknownTextHasNoCodeAndUnknownCodeNoText();
    void textsAreComparedExactly_data();
    void textsAreComparedExactly();
    void textsAreTranslatedWhenTheVocabularyIsMade();
    void translatedNamesComeInTheOrderOfTheTranslation();
};

namespace
{

using Coded = QVector<QPair<const char*, int>>;
using Plain = QVector<const char*>;

QStringList written(const ItemList& list)
{
    QStringList lines;
    for (const ItemList::Item& item : list.items()) {
        lines += QStringLiteral("%1=%2").arg(item.text).arg(item.code);
    }
    return lines;
}

QStringList written(const Coded& items)
{
    QStringList lines;
    for (const auto& item : items) {
        lines += QStringLiteral("%1=%2").arg(QLatin1String(item.first)).arg(item.second);
    }
    return lines;
}

/// What the ledger lists for the setting.
Coded itemsOf(const char* member)
{
    Coded items;
    for (const auto& value : ledger::listedValues(QString::fromLatin1(member))) {
        items += {value.text, value.code};
    }
    return items;
}

template <class Texts>
QStringList texts(const Texts& list)
{
    QStringList lines;
    for (const char* text : list) {
        lines += QLatin1String(text);
    }
    return lines;
}

/// Marks each text with its context.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(bool reversed = false) : m_reversed(reversed) {}
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        QString text = QLatin1String(source);
        if (m_reversed) {
            std::reverse(text.begin(), text.end());
        }
        return QLatin1String(context) + QLatin1Char('|') + text;
    }

private:
    bool m_reversed;
};

class Installed
{
public:
    explicit Installed(QTranslator& translator) : m_translator(translator)
    {
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Installed() { QCoreApplication::removeTranslator(&m_translator); }
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;

private:
    QTranslator& m_translator;
};

} // namespace

Q_DECLARE_METATYPE(ListName)
Q_DECLARE_METATYPE(Coded)

void TestValueLists::listHasItsItemsInOrder_data()
{
    QTest::addColumn<ListName>("list");
    QTest::addColumn<Coded>("items");
    const auto row = [](const char* name, ListName list, const Coded& items) {
        QTest::newRow(name) << list << items;
    };
    row("field orders", ListName::FieldOrders, itemsOf("field_order"));
    row("interlace modes", ListName::InterlaceModes, itemsOf("interlace_mode"));
    row("bit depths", ListName::BitDepths, itemsOf("bit_depth_luma"));
    row("pulldown modes", ListName::PulldownModes, itemsOf("pulldown"));
    row("chroma formats", ListName::ChromaFormats, itemsOf("chroma_format") + Coded{{"", 4}});
    row("bitrate modes", ListName::BitrateModes, itemsOf("bitrate_mode"));
    row("macroblock partitions", ListName::MacroblockPartitions, itemsOf("min_partition"));
    row("subpixel precisions", ListName::SubpixelPrecisions, itemsOf("subpixel_mode"));
    row("entropy coders", ListName::EntropyCoders, itemsOf("entropy_mode"));
    row("video types", ListName::VideoTypes, itemsOf("video_type"));
    row("profiles", ListName::Profiles, itemsOf("profile"));
    row("levels", ListName::Levels, itemsOf("level"));
}

void TestValueLists::listHasItsItemsInOrder()
{
    QFETCH(ListName, list);
    QFETCH(Coded, items);
    const Vocabulary vocabulary;
    QCOMPARE(written(vocabulary.list(list)), written(items));
}

void TestValueLists::unusedListHasItsItemsInOrder_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char* name, const QStringList& list, const Plain& items) {
        QTest::newRow(name) << list << texts(items);
    };
    row("scene detection", texts(value_lists::sceneDetectionModes),
        {"Off", "SCD Fast", "SCD Refined", "SCD Regular"});
    row("sample depths", texts(value_lists::sampleDepths), {"8 bit", "9 bit", "10 bit"});
    row("prediction bases", texts(value_lists::predictionBases), {"field based", "frame based"});
    row("quantizer scales", texts(value_lists::quantizerScales), {"linear", "non linear"});
    row("intra code tables", texts(value_lists::intraCodeTables), {"B.14", "B.15"});
    row("scan orders", texts(value_lists::scanOrders), {"zigzag", "alternate"});
    row("digits", texts(value_lists::digits),
        {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15"});
    row("occurrences", texts(value_lists::occurrences),
        {"Always", "Never", "Not at start", "Only at start"});
    row("scalability modes", texts(value_lists::scalabilityModes),
        {"Coarse-grain Scalability", "Medium-grain Scalability"});
}

void TestValueLists::unusedListHasItsItemsInOrder()
{
    QFETCH(QStringList, list);
    QTEST(list, "items");
}

void TestValueLists::aspectRatios()
{
    QStringList lines;
    const Vocabulary vocabulary;
    for (const auto& item : vocabulary.aspectRatios()) {
        lines += QStringLiteral("%1=%2,%3").arg(item.text).arg(item.x).arg(item.y);
    }
    QCOMPARE(lines, texts(Plain{"Custom=-1,-1", "1:1=1,1", "4:3=4,3", "16:9=16,9"}));
}

void TestValueLists::frameRates()
{
    const QVector<QPair<const char*, double>> expected = {
        {"7.60", 7.6},
        {"9.10", 9.1},
        {"10.00", 10},
        {"12.50", 12.5},
        {"12.80", 12.8},
        {"15.00", 15},
        {"23.98", 24000.0 / 1001},
        {"24.00", 24},
        {"25.00", 25},
        {"29.97", 30000.0 / 1001},
        {"30.00", 30},
        {"50.00", 50},
        {"59.94", 60000.0 / 1001},
        {"60.00", 60},
    };
    const Vocabulary vocabulary;
    QCOMPARE(vocabulary.frameRates().size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(vocabulary.frameRates()[i].text, QString::fromLatin1(expected[i].first));
        // Exactly, which QCOMPARE does not do with doubles.
        QVERIFY2(vocabulary.frameRates()[i].rate == expected[i].second, expected[i].first);
    }
}

void TestValueLists::namesComeInTheOrderOfTheirTexts_data()
{
    QTest::addColumn<NameMap>("map");
    QTest::addColumn<Coded>("names");
    const Vocabulary vocabulary;
    QTest::newRow("video types") << vocabulary.videoTypes() << itemsOf("video_type");
    QTest::newRow("profiles") << vocabulary.profiles() << itemsOf("profile");
    QTest::newRow("levels") << vocabulary.levels() << itemsOf("level");
}

void TestValueLists::namesComeInTheOrderOfTheirTexts()
{
    QFETCH(NameMap, map);
    QFETCH(Coded, names);
    QStringList lines;
    for (auto name = map.constBegin(); name != map.constEnd(); ++name) {
        lines += QStringLiteral("%1=%2").arg(name.key()).arg(name.value());
    }
    QCOMPARE(lines, written(names));
}

void TestValueLists::high422IsAProfileOnlyWhenOffered()
{
    QVERIFY(!Vocabulary().profiles().contains(QStringLiteral("High 422")));
    const Vocabulary offering(true);
    QCOMPARE(offering.profiles().keys(),
             texts(Plain{"Baseline", "High", "High 10", "High 422", "Main"}));
    QCOMPARE(offering.profiles().value(QStringLiteral("High 422")), 5);
    QCOMPARE(
        written(offering.list(ListName::Profiles)),
        written(Coded{{"Baseline", 0}, {"High", 3}, {"High 10", 4}, {"High 422", 5}, {"Main", 1}}));
}

void TestValueLists::codeHasTheFirstTextInOrder()
{
    ItemList list;
    list.append(QStringLiteral("first"), 7);
    list.append(QStringLiteral("second"), 7);
    QCOMPARE(list.textOf(7).value_or(QString()), QStringLiteral("first"));

    list.append(QStringLiteral("first"), 8);
    QCOMPARE(list.codeOf(QStringLiteral("first")).value_or(0), 7);
    QCOMPARE(list.codeOf(QStringLiteral("second")).value_or(0), 7);
}

void TestValueLists::unknownTextHasNoCodeAndUnknownCodeNoText()
{
    const Vocabulary vocabulary;
    const ItemList& modes = vocabulary.list(ListName::PulldownModes);
    QVERIFY(!modes.codeOf(QStringLiteral("4:4")));
    QVERIFY(!modes.codeOf(QString()));
    QVERIFY(!modes.textOf(3));
    QVERIFY(!modes.textOf(-1));
}

void TestValueLists::textsAreComparedExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("letter case") << QStringLiteral("mbaff");
    QTest::newRow("blank before") << QStringLiteral(" MBAFF");
    QTest::newRow("blank behind") << QStringLiteral("MBAFF ");
    QTest::newRow("beginning") << QStringLiteral("MBA");
}

void TestValueLists::textsAreComparedExactly()
{
    QFETCH(QString, text);
    const Vocabulary vocabulary;
    QVERIFY(!vocabulary.list(ListName::InterlaceModes).codeOf(text));
}

void TestValueLists::textsAreTranslatedWhenTheVocabularyIsMade()
{
    MarkingTranslator translator;
    const Vocabulary before;
    const Installed installed(translator);
    const Vocabulary vocabulary;

    QCOMPARE(written(before.list(ListName::InterlaceModes)),
             written(Coded{{"Progressive", 0}, {"Interlaced", 1}, {"MBAFF", 2}}));
    QCOMPARE(written(vocabulary.list(ListName::InterlaceModes)),
             written(Coded{
                 {"QObject|Progressive", 0}, {"QObject|Interlaced", 1}, {"QObject|MBAFF", 2}}));
    // The fourth item is the empty text in any language.
    QCOMPARE(
        written(vocabulary.list(ListName::ChromaFormats)),
        written(Coded{{"QObject|4:0:0", 1}, {"QObject|4:2:0", 2}, {"QObject|4:2:2", 3}, {"", 4}}));
    QCOMPARE(vocabulary.aspectRatios().first().text, QStringLiteral("QObject|Custom"));
    QCOMPARE(vocabulary.frameRates().first().text, QStringLiteral("QObject|7.60"));
    QCOMPARE(written(vocabulary.list(ListName::Profiles)),
             written(Coded{{"AVCVideoEncoderDlg|Baseline", 0},
                           {"AVCVideoEncoderDlg|High", 3},
                           {"AVCVideoEncoderDlg|High 10", 4},
                           {"AVCVideoEncoderDlg|Main", 1}}));
}

void TestValueLists::translatedNamesComeInTheOrderOfTheTranslation()
{
    MarkingTranslator translator(true);
    const Installed installed(translator);
    const Vocabulary vocabulary;
    QCOMPARE(vocabulary.videoTypes().keys(),
             texts(Plain{"AVCVideoEncoderDlg|D3 yar-ulB", "AVCVideoEncoderDlg|hgiH oeretS",
                         "AVCVideoEncoderDlg|hgiH wevitluM"}));
    QCOMPARE(written(vocabulary.list(ListName::VideoTypes)),
             written(Coded{{"AVCVideoEncoderDlg|D3 yar-ulB", 3},
                           {"AVCVideoEncoderDlg|hgiH oeretS", 2},
                           {"AVCVideoEncoderDlg|hgiH wevitluM", 1}}));
}

QTEST_GUILESS_MAIN(TestValueLists)
#include "tst_value_lists.moc"
