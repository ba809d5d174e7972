// Settings files as text: every record comes back byte for byte, every error names its line.
#include "SettingsLedger.h"
#include "SettingsLibrary.h"

#include <settings_text.h>

#include <QFile>
#include <QTest>

#include <limits>
#include <random>

using kvtest::filledRecord;
using kvtest::same;

namespace
{

/// A whole file around lines of the first view; those begin in line 3.
QByteArray inViewZero(const QByteArray& lines)
{
    return "[record]\n[view 0]\n" + lines;
}

std::string firstProblem(const QByteArray& text)
{
    KvMvcSettings settings{};
    const auto problems = kv::parseSettings(text.toStdString(), settings);
    return problems.empty() ? std::string()
                            : std::to_string(problems[0].line) + ": " + problems[0].reason;
}

/// One field of the first view set to something by a line, then the record.
KvMvcSettings readLine(const QByteArray& line)
{
    KvMvcSettings settings = filledRecord(0x5A);
    const auto problems = kv::parseSettings(inViewZero(line).toStdString(), settings);
    return problems.empty() ? settings : filledRecord(0xEE);
}

/// Whether the setting has no other values than those with a name.
bool isCode(const ledger::Setting& setting)
{
    return setting.kind == ledger::Kind::Switch || setting.kind == ledger::Kind::List ||
           setting.kind == ledger::Kind::Radio;
}

class TestSettingsText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyRecordComesBackByteForByte();
    void everyBytePositionComesBack();
    void codesThatAFieldDoesNotHaveComeBack_data();
    void codesThatAFieldDoesNotHaveComeBack();
    void numbersGoToTheirOffset_data();
    void numbersGoToTheirOffset();
    void viewsAndRecordAreApart();
    void namesStandForTheirCodes_data();
    void namesStandForTheirCodes();
    void levels_data();
    void levels();
    void amounts_data();
    void amounts();
    void frameRates_data();
    void frameRates();
    void frameRatesKeepTheirBits_data();
    void frameRatesKeepTheirBits();
    void filesAreWrittenAsThePatternFile();
    void linesAreReadInAnyDress_data();
    void linesAreReadInAnyDress();
    void whatIsLeftOutIsZero();
    void bytesMayCoverNamedFields();
    void problemsNameTheirLine_data();
    void problemsNameTheirLine();
    void problemsAreAllReportedUpToTwenty();
    void recordStaysUntouchedByAFaultyText();
};

void TestSettingsText::anyRecordComesBackByteForByte()
{
    std::mt19937 random(20240607);
    auto anyByte = [&] { return static_cast<unsigned char>(random()); };
    for (int round = 0; round < 2000; ++round) {
        KvMvcSettings settings{};
        auto* bytes = reinterpret_cast<unsigned char*>(&settings);
        const unsigned rarity = round % 4 == 0 ? 1 : round % 4 == 1 ? 2 : round % 4 == 2 ? 40 : 400;
        for (std::size_t at = 0; at < sizeof settings; ++at) {
            bytes[at] = random() % rarity == 0 ? anyByte() : 0;
        }
        KvMvcSettings back = filledRecord(0x5A);
        const auto problems = kv::parseSettings(kv::formatSettings(settings), back);
        QVERIFY2(problems.empty(), problems.empty() ? "" : problems[0].reason.c_str());
        QVERIFY2(same(settings, back), qPrintable(QStringLiteral("round %1").arg(round)));
    }
}

void TestSettingsText::everyBytePositionComesBack()
{
    constexpr std::size_t step = 97; // no multiple of any field's size
    for (std::size_t first = 0; first < step; ++first) {
        KvMvcSettings settings{};
        for (std::size_t at = first; at < sizeof settings; at += step) {
            reinterpret_cast<unsigned char*>(&settings)[at] = 0x80;
        }
        KvMvcSettings back = filledRecord(0x5A);
        QVERIFY(kv::parseSettings(kv::formatSettings(settings), back).empty());
        QVERIFY2(same(settings, back), qPrintable(QStringLiteral("from byte %1").arg(first)));
    }
}

void TestSettingsText::codesThatAFieldDoesNotHaveComeBack_data()
{
    QTest::addColumn<QString>("member");
    for (const ledger::Setting& setting : ledger::viewNumbers()) {
        if (isCode(setting)) {
            QTest::newRow(setting.member) << QString::fromLatin1(setting.member);
        }
    }
}

void TestSettingsText::codesThatAFieldDoesNotHaveComeBack()
{
    QFETCH(QString, member);
    const QByteArray key = member.toLatin1();
    for (const int code : {-1, 11, 99, std::numeric_limits<int>::min()}) {
        const bool isKnown = code == 11 && member == QLatin1String("level");
        KvMvcSettings settings{};
        ledger::put(settings, ledger::setting(member), 0, code);
        const std::string text = kv::formatSettings(settings);
        QCOMPARE(text.find((key + " = ").toStdString()) < text.find("[view 1]"), isKnown);
        KvMvcSettings back{};
        QVERIFY(kv::parseSettings(text, back).empty());
        QVERIFY(same(back, settings));
        const std::string problem =
            firstProblem(inViewZero(key + " = " + QByteArray::number(code)));
        QCOMPARE(problem.empty(), isKnown);
    }
}

void TestSettingsText::numbersGoToTheirOffset_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("offset");
    for (const ledger::Setting& setting : ledger::viewNumbers()) {
        if (!isCode(setting)) {
            QTest::newRow(setting.member) << QByteArray(setting.member) << setting.offset;
        }
    }
}

void TestSettingsText::numbersGoToTheirOffset()
{
    QFETCH(QByteArray, key);
    QFETCH(int, offset);
    for (const int32_t number :
         {0, 1, -1, 77, std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::min()}) {
        KvMvcSettings expected{};
        std::memcpy(reinterpret_cast<char*>(&expected) + 256 + offset, &number, sizeof number);
        QVERIFY(same(readLine(key + " = " + QByteArray::number(number)), expected));
    }
}

void TestSettingsText::viewsAndRecordAreApart()
{
    KvMvcSettings settings{};
    QVERIFY(kv::parseSettings("[view 1]\nwidth=3\nfast_subblock=on\n[record]\nnum_views=2\n"
                              "split_views=on\n[view 0]\nwidth=4\n",
                              settings)
                .empty());
    const auto numberOf = [&settings](const char* member, int view = 0) {
        return ledger::get(settings, ledger::setting(QString::fromLatin1(member)), view);
    };
    QCOMPARE(numberOf("num_views"), 2.0);
    QCOMPARE(numberOf("split_views"), 1.0);
    QCOMPARE(numberOf("width", 0), 4.0);
    QCOMPARE(numberOf("width", 1), 3.0);
    QCOMPARE(numberOf("fast_subblock", 1), 1.0);
}

void TestSettingsText::namesStandForTheirCodes_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("shown");
    QTest::addColumn<int>("value");
    for (const ledger::Setting& setting : ledger::viewNumbers()) {
        for (const auto& value : ledger::namedValues(QString::fromLatin1(setting.member))) {
            const QByteArray name =
                value.spelling ? QByteArray(value.spelling) : QByteArray::number(value.code);
            QTest::addRow("%s = %s", setting.member, name.constData())
                << QByteArray(setting.member) << name << QByteArray(value.text) << value.code;
        }
    }
}

void TestSettingsText::namesStandForTheirCodes()
{
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, shown);
    QFETCH(int, value);
    KvMvcSettings expected{};
    ledger::put(expected, ledger::setting(QString::fromLatin1(key)), 0, value);
    QVERIFY(same(readLine(key + " = " + name), expected));
    QVERIFY(same(readLine(key + "=" + name.toUpper()), expected));
    QVERIFY(same(readLine(key + " = " + shown), expected));
    QVERIFY(same(readLine(key + " = " + QByteArray::number(value)), expected));
    const QByteArray text = QByteArray::fromStdString(kv::formatSettings(expected));
    QVERIFY(text.contains("\n" + key + " = " + name + "\n"));
}

void TestSettingsText::levels_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char* text, int code, const char* written) {
        QTest::newRow(text) << QByteArray(text) << code << QByteArray(written);
    };
    row("4", 40, "4.0");
    row("4.0", 40, "4.0");
    row("40", 40, "4.0");
    row("1", 10, "1.0");
    row("10", 10, "1.0");
    row("41", 41, "4.1");
    row("5.2", 52, "5.2");
    row("100", 100, "auto");
    row("AUTO", 100, "auto");
    for (const char* wrong :
         {"",    ".",   "4.",          ".4",      "-.4", "4.10", "4,0",  "4.0.0", "+4.0",
          "4.x", "4.-", "214748364.8", "level 4", "1b",  "0",    "6",    "9",     "14",
          "43",  "62",  "6.2",         "4.3",     "0.4", "-1",   "-0.1", "41.0",  "2147483647"}) {
        QTest::newRow(wrong) << QByteArray(wrong) << 0 << QByteArray();
    }
}

void TestSettingsText::levels()
{
    QFETCH(QByteArray, text);
    QFETCH(int, code);
    QFETCH(QByteArray, written);
    if (written.isEmpty()) {
        QCOMPARE(firstProblem(inViewZero("level = " + text)),
                 "3: bad value '" + text.toStdString() +
                     "' for 'level': expected 1.0, 1.1, 1.2, 1.3, 1.6, 2.0, 2.1, 2.2, 3.0, 3.1, "
                     "3.2, 4.0, 4.1, 4.2, 5.0, 5.1, 5.2 or auto");
        return;
    }
    const KvMvcSettings settings = readLine("level = " + text);
    QCOMPARE(settings.views[0].level, code);
    const std::string file = kv::formatSettings(settings);
    QVERIFY(QByteArray::fromStdString(file).contains("\nlevel = " + written + "\n"));
    KvMvcSettings back{};
    QVERIFY(kv::parseSettings(file, back).empty());
    QCOMPARE(back.views[0].level, code);
}

void TestSettingsText::amounts_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("bitrate");
    const auto row = [](const char* text, int bitrate) {
        QTest::newRow(text) << QByteArray(text) << bitrate;
    };
    row("20M", 20000000);
    row("20 m", 20000000);
    row("1.5M", 1500000);
    row("1.234567M", 1234567);
    row("64k", 64000);
    row("0.5 K", 500);
    row("2G", 2000000000);
    row("2.147483647G", 2147483647);
    row("-1k", -1000);
    row("0M", 0);
}

void TestSettingsText::amounts()
{
    QFETCH(QByteArray, line);
    QFETCH(int, bitrate);
    for (const char* key : {"bitrate", "max_bitrate", "bitrate_buffer", "vbv_initial", "vbv_target",
                            "frame_size_i", "frame_size_bref"}) {
        const KvMvcSettings settings = readLine(QByteArray(key) + " = " + line);
        const QString member = QString::fromLatin1(key);
        QCOMPARE(ledger::get(settings, ledger::setting(member), 0), double(bitrate));
    }
}

void TestSettingsText::frameRates_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("rate");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("0") << QByteArray("0") << 0.0 << QByteArray("0");
    QTest::newRow("negative zero") << QByteArray("-0") << -0.0 << QByteArray("-0");
    QTest::newRow("25") << QByteArray("25") << 25.0 << QByteArray("25");
    QTest::newRow("25.0") << QByteArray("25.0") << 25.0 << QByteArray("25");
    QTest::newRow("12.5") << QByteArray("12.5") << 12.5 << QByteArray("12.5");
    QTest::newRow("7.6") << QByteArray("7.6") << 7.6 << QByteArray("7.6");
    QTest::newRow("23.976") << QByteArray("23.976") << 23.976 << QByteArray("23.976");
    QTest::newRow("24000/1001") << QByteArray("24000/1001") << 24000 / 1001.0
                                << QByteArray("24000/1001");
    QTest::newRow("its decimal") << QByteArray("23.976023976023978") << 24000 / 1001.0
                                 << QByteArray("24000/1001");
    QTest::newRow("30000/1001") << QByteArray("30000/1001") << 30000 / 1001.0
                                << QByteArray("30000/1001");
    QTest::newRow("60000/1001") << QByteArray("60000/1001") << 60000 / 1001.0
                                << QByteArray("60000/1001");
    QTest::newRow("50/2") << QByteArray("50/2") << 25.0 << QByteArray("25");
    QTest::newRow("blanks around the stroke")
        << QByteArray("24000 /\t1001") << 24000 / 1001.0 << QByteArray("24000/1001");
    // As the dialog shows them, and what is those decimals to the digit.
    QTest::newRow("23.98") << QByteArray("23.98") << 24000 / 1001.0 << QByteArray("24000/1001");
    QTest::newRow("29.97") << QByteArray("29.97") << 30000 / 1001.0 << QByteArray("30000/1001");
    QTest::newRow("59.94") << QByteArray("59.94") << 60000 / 1001.0 << QByteArray("60000/1001");
    QTest::newRow("7.60") << QByteArray("7.60") << 7.6 << QByteArray("7.6");
    QTest::newRow("2398/100") << QByteArray("2398/100") << 23.98 << QByteArray("2398/100");
    QTest::newRow("29.970") << QByteArray("29.970") << 29.97 << QByteArray("2997/100");
    QTest::newRow("5994/100") << QByteArray("5994/100") << 59.94 << QByteArray("5994/100");
    QTest::newRow("exponent") << QByteArray("1e-3") << 0.001 << QByteArray("0.001");
    QTest::newRow("largest") << QByteArray("1.7976931348623157e+308")
                             << std::numeric_limits<double>::max()
                             << QByteArray("1.7976931348623157e+308");
    QTest::newRow("smallest") << QByteArray("5e-324") << std::numeric_limits<double>::denorm_min()
                              << QByteArray("5e-324");
}

void TestSettingsText::frameRates()
{
    QFETCH(QByteArray, text);
    QFETCH(double, rate);
    QFETCH(QByteArray, written);
    const KvMvcSettings settings = readLine("frame_rate = " + text);
    const double stored = settings.views[0].frame_rate;
    QCOMPARE(std::memcmp(&stored, &rate, sizeof rate), 0);
    const QByteArray file = QByteArray::fromStdString(kv::formatSettings(settings));
    QVERIFY(file.contains("\nframe_rate = " + written + "\n"));
}

void TestSettingsText::frameRatesKeepTheirBits_data()
{
    QTest::addColumn<quint64>("bits");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("infinity") << Q_UINT64_C(0x7ff0000000000000) << QByteArray("0x7ff0000000000000");
    QTest::newRow("-infinity") << Q_UINT64_C(0xfff0000000000000)
                               << QByteArray("0xfff0000000000000");
    QTest::newRow("quiet") << Q_UINT64_C(0x7ff8000000000000) << QByteArray("0x7ff8000000000000");
    QTest::newRow("payload") << Q_UINT64_C(0xfff8000000abcdef) << QByteArray("0xfff8000000abcdef");
    QTest::newRow("signalling") << Q_UINT64_C(0x7ff0000000000001)
                                << QByteArray("0x7ff0000000000001");
}

void TestSettingsText::frameRatesKeepTheirBits()
{
    QFETCH(quint64, bits);
    QFETCH(QByteArray, written);
    KvMvcSettings settings{};
    std::memcpy(reinterpret_cast<char*>(&settings) + 256 + 32, &bits, sizeof bits);
    const std::string text = kv::formatSettings(settings);
    QVERIFY(QByteArray::fromStdString(text).contains("frame_rate = " + written + "\n"));
    KvMvcSettings back{};
    QVERIFY(kv::parseSettings(text, back).empty());
    QVERIFY(same(back, settings));
}

void TestSettingsText::filesAreWrittenAsThePatternFile()
{
    KvMvcSettings settings{};
    settings.num_views = 2;
    settings.split_views = 1;
    settings.reserved_8[0] = 0x11;
    settings.reserved_8[247] = 0x22;
    KvMvcViewSettings& view = settings.views[0];
    view.profile = KV_MVC_PROFILE_HIGH;
    view.level = 41;
    view.i_interval = 24;
    view.ref_distance = 3;
    view.width = 1920;
    view.height = 1080;
    view.frame_rate = 24000 / 1001.0;
    view.num_ref_frames = 4;
    view.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
    view.bitrate = 20000000;
    view.max_bitrate = 30000000;
    view.bitrate_buffer = 30000000;
    view.bitrate_units = KV_MVC_UNITS_BITS_90KHZ;
    view.vbv_initial = 45000;
    view.entropy_mode = KV_MVC_CABAC;
    view.pixel_aspect_x = view.pixel_aspect_y = -1;
    view.display_aspect_x = 16;
    view.display_aspect_y = 9;
    view.video_type = KV_MVC_STEREO_HIGH;
    view.pulldown = 3; // no such code: among the bytes
    view.chroma_format = KV_MVC_CHROMA_420;
    view.bit_depth_luma = view.bit_depth_chroma = 8;
    view.quant_max = 51;
    view.brightness = -100;
    view.reserved_16[0] = 1;
    view.reserved_260[5] = 7;
    view.reserved_5504[2811] = 0xFE;
    settings.views[1].frame_rate = 12.5;
    QFile pattern(QStringLiteral(KV_SETTINGS_DATA "/pattern.ini"));
    QVERIFY(pattern.open(QIODevice::ReadOnly));
    const QByteArray expected = pattern.readAll();
    const QByteArray written = QByteArray::fromStdString(kv::formatSettings(settings));
    QCOMPARE(written.split('\n'), expected.split('\n'));
}

void TestSettingsText::linesAreReadInAnyDress_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray plain = "[record]\nnum_views = 2\n[view 0]\nwidth = 64\n";
    QTest::newRow("plain") << plain;
    QTest::newRow("CR LF") << QByteArray(plain).replace("\n", "\r\n");
    QTest::newRow("byte-order mark") << "\xEF\xBB\xBF" + plain;
    QTest::newRow("no last line end") << plain.chopped(1);
    QTest::newRow("CR but no LF at the end") << plain.chopped(1) + "\r";
    QTest::newRow("no blanks") << QByteArray(plain).replace(" = ", "=");
    QTest::newRow("tabulators")
        << QByteArray(plain).replace(" = ", "\t=\t").replace("width", "\t width");
    QTest::newRow("blanks behind") << QByteArray(plain).replace("\n", " \t\n");
    QTest::newRow("blank lines") << QByteArray(plain).replace("\n", "\n\n \n");
    QTest::newRow("blanks in headings") << QByteArray(plain).replace("record", " record ");
    QTest::newRow("comments") << QByteArray(plain).replace("\n", " # \xC3\xA4 [x] = ;\n; y\n#\n");
    QTest::newRow("sections in another order")
        << QByteArray("[view 0]\nwidth = 64\n[record]\nnum_views = 2\n");
    QTest::newRow("as bytes") << QByteArray(
        "[record]\nbytes 0 = 02\n[view 0]\nbytes 24=40000000\n");
    QTest::newRow("as bytes with blanks, in capitals and zeros")
        << QByteArray("[record]\nbytes 0 = 02\n[view 0]\nbytes 22=00 00 40 0000 00 00\n");
}

void TestSettingsText::linesAreReadInAnyDress()
{
    QFETCH(QByteArray, text);
    QCOMPARE(firstProblem(text), std::string());
    KvMvcSettings settings = filledRecord(0x5A);
    kv::parseSettings(text.toStdString(), settings);
    KvMvcSettings expected{};
    expected.num_views = 2;
    expected.views[0].width = 64;
    QVERIFY(same(settings, expected));
}

void TestSettingsText::whatIsLeftOutIsZero()
{
    KvMvcSettings settings = filledRecord(0x5A);
    QVERIFY(kv::parseSettings("[record]\n[view 0]", settings).empty());
    QVERIFY(same(settings, filledRecord(0)));
}

void TestSettingsText::bytesMayCoverNamedFields()
{
    const KvMvcSettings settings = readLine("bytes 16 = 01020304 01000000 40000000");
    QCOMPARE(settings.views[0].reserved_16[3], uint8_t(4));
    QCOMPARE(settings.views[0].interlace_mode, 1);
    QCOMPARE(settings.views[0].width, 64);
}

void TestSettingsText::problemsNameTheirLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("problem");
    const auto row = [](const char* name, const QByteArray& lines, const char* problem) {
        QTest::newRow(name) << inViewZero(lines) << QByteArray(problem);
    };
    row("unknown key", "\nwidht = 3\n",
        "4: unknown key 'widht' in section 'view 0'; did you mean 'width'?");
    row("key of another section", "num_views = 2",
        "3: unknown key 'num_views' in section 'view 0'; it belongs in section 'record'");
    QTest::newRow("key that follows in another section")
        << QByteArray("[record]\nnum_views = 1\n[view 0]\nsplit_views = 0\n")
        << QByteArray("4: unknown key 'split_views' in section 'view 0'; it belongs in section "
                      "'record'");
    row("capitals", "Width = 2",
        "3: unknown key 'Width' in section 'view 0'; did you mean 'width'?");
    row("hyphen", "frame-rate = 25",
        "3: unknown key 'frame-rate' in section 'view 0'; did you mean 'frame_rate'?");
    row("letter missing", "bitrte = 2",
        "3: unknown key 'bitrte' in section 'view 0'; did you mean 'bitrate'?");
    row("letters swapped, and another key in it", "mxa_bitrate = 2",
        "3: unknown key 'mxa_bitrate' in section 'view 0'; did you mean 'max_bitrate'?");
    row("part of a key", "entropy = cabac",
        "3: unknown key 'entropy' in section 'view 0'; did you mean 'entropy_mode'?");
    row("key like no other", "copyright = x", "3: unknown key 'copyright' in section 'view 0'");
    row("bytes without a blank", "bytes260 = 00", "3: unknown key 'bytes260' in section 'view 0'");
    row("no key", "= 2", "3: unknown key '' in section 'view 0'");
    row("repeated key", "width = 1\n\nwidth = 1", "5: 'width' is set twice, first in line 3");
    row("bytes over a key", "width = 1\nbytes 20 = 0000000000",
        "4: 'bytes 20' is set twice, first in line 3");
    row("a key over bytes", "bytes 27 = 00\nwidth = 1", "4: 'width' is set twice, first in line 3");
    row("bytes over bytes", "bytes 260 = 0000\nbytes 261 = 00",
        "4: 'bytes 261' is set twice, first in line 3");
    row("unknown section", "[view 2]", "3: unknown section 'view 2'; did you mean 'view 1'?");
    row("section in capitals", "[Record]", "3: unknown section 'Record'; did you mean 'record'?");
    row("section without a blank", "[view1]", "3: unknown section 'view1'; did you mean 'view 1'?");
    row("section like no other", "[audio]", "3: unknown section 'audio'");
    row("repeated section", "width=1\n[view 0]\n", "4: section 'view 0' is there twice");
    row("section without an end", "[view 1", "3: ']' missing at the end of the section's name");
    row("text", "width 3", "3: neither a section nor a 'key = value' line: 'width 3'");
    row("no value", "width =", "3: bad value '' for 'width': expected a whole number of 32 bits");
    row("word", "width = big",
        "3: bad value 'big' for 'width': expected a whole number of 32 bits");
    row("fraction for a number", "width = 1.5",
        "3: bad value '1.5' for 'width': expected a whole number of 32 bits");
    row("too large", "width = 2147483648",
        "3: bad value '2147483648' for 'width': expected a whole number of 32 bits");
    row("too small", "width = -2147483649",
        "3: bad value '-2147483649' for 'width': expected a whole number of 32 bits");
    row("unit", "width = 64 px",
        "3: bad value '64 px' for 'width': expected a whole number of 32 bits");
    row("unknown name", "entropy_mode = huffman",
        "3: bad value 'huffman' for 'entropy_mode': expected cavlc or cabac");
    row("unknown code", "\npulldown = 3",
        "4: bad value '3' for 'pulldown': expected off, 2:3, 3:2, 2:3 progressive, 3:2 "
        "progressive, auto, 2:2 or 3:3");
    row("unknown code without a name", "chroma_format = 5",
        "3: bad value '5' for 'chroma_format': expected 4:0:0, 4:2:0 or 4:2:2");
    row("unknown depth", "bit_depth_luma = 9",
        "3: bad value '9' for 'bit_depth_luma': expected 8 or 10");
    row("switch", "hrd_mode = 2", "3: bad value '2' for 'hrd_mode': expected off or on");
    row("number with a name", "pixel_aspect_x = square",
        "3: bad value 'square' for 'pixel_aspect_x': expected from display or a whole number of 32 "
        "bits");
    for (const char* bad : {"20 Mbit/s", "M", "1.5", "1.2345k", "2.1.3M", "1.M", "20MM", "3G",
                            "-3G", "99999999999G", "0x10"}) {
        QTest::addRow("amount %s", bad)
            << inViewZero(QByteArray("bitrate = ") + bad)
            << QByteArray("3: bad value '") + bad +
                   "' for 'bitrate': expected a whole number of 32 bits, as it is or in k, M or G";
    }
    row("unit of a number without", "width = 2k",
        "3: bad value '2k' for 'width': expected a whole number of 32 bits");
    row("rate in words", "frame_rate = film",
        "3: bad value 'film' for 'frame_rate': expected a number, a fraction or a bit pattern");
    for (const char* bad : {"inf", "nan", "1e999", "1/0", "1/-2", "1/2/3", "0x7ff8", "25,0",
                            "0x7ff800000000000g", "0x7ff80000000000000"}) {
        QTest::addRow("rate %s", bad)
            << inViewZero(QByteArray("frame_rate = ") + bad)
            << QByteArray("3: bad value '") + bad +
                   "' for 'frame_rate': expected a number, a fraction or a bit pattern";
    }
    row("odd digits", "bytes 260 = 000", "3: bad bytes: expected pairs of hexadecimal digits");
    row("split pair", "bytes 260 = 0 0", "3: bad bytes: expected pairs of hexadecimal digits");
    row("no digits", "bytes 260 = 0g", "3: bad bytes: expected pairs of hexadecimal digits");
    row("no bytes", "bytes 260 =", "3: bad bytes: expected pairs of hexadecimal digits");
    row("no offset", "bytes x = 00", "3: bad offset 'x' of bytes");
    row("negative offset", "bytes -1 = 00", "3: bad offset '-1' of bytes");
    row("behind the end", "bytes 8316 = 00",
        "3: bytes beyond the end of section 'view 0', which has 8316 bytes");
    row("across the end", "bytes 8315 = 0000",
        "3: bytes beyond the end of section 'view 0', which has 8316 bytes");
    row("far behind the end", "bytes 18446744073709551615 = 0000",
        "3: bytes beyond the end of section 'view 0', which has 8316 bytes");
    row("Latin-1", "# \xE4", "3: not valid UTF-8 text");
    row("surrogate", "# \xED\xA0\x80", "3: not valid UTF-8 text");
    row("overlong", "# \xC0\x80", "3: not valid UTF-8 text");
    row("beyond Unicode", "# \xF4\x90\x80\x80", "3: not valid UTF-8 text");
    row("cut character", "# \xE2\x82", "3: not valid UTF-8 text");
    row("zero byte", QByteArray("width = 1\0", 10), "3: a control character");
    row("escape", "# \x1B[2J", "3: a control character");
    row("C1 control", "# \xC2\x9B", "3: a control character");
    row("CR inside", "width = 1\rheight = 1", "3: a control character");
    row("endless text", QByteArray(100, 'x'),
        "3: neither a section nor a 'key = value' line: "
        "'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...'");
    QTest::newRow("before the first section")
        << QByteArray("width = 1\n[record]")
        << QByteArray("1: key 'width' before the first section, which is [record]");
    QTest::newRow("empty")
        << QByteArray()
        << QByteArray("1: section 'record' is missing; its keys are num_views and split_views");
    QTest::newRow("no view") << QByteArray("\n[record]\n")
                             << QByteArray("2: section 'view 0' is missing");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE[\0r\0", 6)
                            << QByteArray("1: not valid UTF-8 text");
}

void TestSettingsText::problemsNameTheirLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, problem);
    QCOMPARE(QByteArray::fromStdString(firstProblem(text)), problem);
    QCOMPARE(QByteArray::fromStdString(firstProblem(QByteArray(text).replace("\n", "\r\n"))),
             problem);
}

void TestSettingsText::problemsAreAllReportedUpToTwenty()
{
    KvMvcSettings settings{};
    const auto some = kv::parseSettings("[x]\nwidth = 1\n[record]\nnum_views=x\na=1\n", settings);
    QCOMPARE(some.size(), std::size_t(3)); // a refused section's lines are not judged
    QCOMPARE(some[1].line, std::size_t(4));
    QCOMPARE(some[2].line, std::size_t(5));
    const QByteArray many = QByteArray("nonsense\n").repeated(1000);
    QCOMPARE(kv::parseSettings(many.toStdString(), settings).size(), std::size_t(20));
}

void TestSettingsText::recordStaysUntouchedByAFaultyText()
{
    KvMvcSettings settings = filledRecord(0x5A);
    const auto problems = kv::parseSettings("[record]\nnum_views=2\n[view 0]\nx=1", settings);
    QCOMPARE(problems.size(), std::size_t(1));
    QVERIFY(same(settings, filledRecord(0x5A)));
}

} // namespace

QTEST_APPLESS_MAIN(TestSettingsText)
#include "tst_settings_text.moc"
