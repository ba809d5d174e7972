// Settings as JSON: both forms of a setting, what is left out, and where an error is.
#include "SettingsLedger.h"
#include "SettingsLibrary.h"

#include <settings_text.h>

#include <QTest>

#include <limits>

using kvtest::filledRecord;
using kvtest::same;

namespace
{

std::vector<kv::Problem> parse(const QByteArray& text, KvMvcSettings& settings)
{
    return kv::parseSettings(text.toStdString(), settings);
}

/// One member of the first view.
QByteArray inViewZero(const QByteArray& member)
{
    return "{\"views\": [{" + member + "}]}";
}

class TestSettingsJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsGoToTheirPlace();
    void whatIsLeftOutIsZero();
    void valuesAreTaken_data();
    void valuesAreTaken();
    void ratesKeepTheirBits();
    void textsAreJson_data();
    void textsAreJson();
    void problemsNameTheirLine_data();
    void problemsNameTheirLine();
    void atMostTwentyProblems();
    void filesOfAnyNameAreRead();
};

void TestSettingsJson::settingsGoToTheirPlace()
{
    KvMvcSettings settings = filledRecord(0x5A);
    const auto problems = parse(R"({
        "format_version": 1,
        "num_views": {"text": "1", "value": 2},
        "bytes": {"8": "11", "224": "00 000000 22"},
        "views": [{"width": {"value": 1920}, "bytes": {"16": "01020304"}},
                  {"width": 1280, "frame_rate": 12.5}]
    })",
                                settings);
    QVERIFY2(problems.empty(), problems.empty() ? "" : problems[0].reason.c_str());
    KvMvcSettings expected{};
    expected.num_views = 2;
    expected.reserved_8[0] = 0x11;
    expected.reserved_8[220] = 0x22;
    expected.views[0].width = 1920;
    expected.views[0].reserved_16[0] = 1;
    expected.views[0].reserved_16[1] = 2;
    expected.views[0].reserved_16[2] = 3;
    expected.views[0].reserved_16[3] = 4;
    expected.views[1].width = 1280;
    expected.views[1].frame_rate = 12.5;
    QVERIFY(same(settings, expected));
}

void TestSettingsJson::whatIsLeftOutIsZero()
{
    for (const char* text : {R"({"views": [{}]})", R"({"views": [{}, {}]})",
                             "\xEF\xBB\xBF \t\r\n{\"views\":[{}]}\n"}) {
        KvMvcSettings settings = filledRecord(0x5A);
        QVERIFY2(parse(text, settings).empty(), text);
        QVERIFY(same(settings, filledRecord(0)));
    }
}

void TestSettingsJson::valuesAreTaken_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<double>("value");
    const auto row = [](const char* member, const char* setting, double value) {
        QTest::newRow(member) << QByteArray(member) << QString::fromLatin1(setting) << value;
    };
    row(R"("width": 1920)", "width", 1920);
    row(R"("width": "1920")", "width", 1920);
    row(R"("width": {"value": "1920"})", "width", 1920);
    row(R"("width": 1.92e3)", "width", 1920);
    row(R"("width": 1920.0)", "width", 1920);
    row(R"("brightness": {"value": -100})", "brightness", -100);
    row(R"("bitrate": "20M")", "bitrate", 20000000);
    row(R"("bitrate": 2147483647)", "bitrate", 2147483647);
    row(R"("profile": "High 10")", "profile", 4);
    row(R"("profile": {"value": 5, "text": "Baseline"})", "profile", 5);
    row(R"("level": 40)", "level", 40);
    row(R"("level": "4")", "level", 40);
    row(R"("hrd_mode": true)", "hrd_mode", 1);
    row(R"("hrd_mode": false)", "hrd_mode", 0);
    row(R"("hrd_mode": {"value": 1, "text": "on"})", "hrd_mode", 1);
    row(R"("pulldown": {"value": 3, "text": "3", "unknown": true})", "pulldown", 3);
    row(R"("pulldown": {"value": 4, "unknown": false})", "pulldown", 4);
    // A number is the rate itself; a text is read as in a settings file.
    row(R"("frame_rate": 23.98)", "frame_rate", 23.98);
    row(R"("frame_rate": "23.98")", "frame_rate", 24000 / 1001.0);
    row(R"("frame_rate": "24000/1001")", "frame_rate", 24000 / 1001.0);
    row(R"("frame_rate": {"bits": "0x4028000000000000"})", "frame_rate", 12);
    row(R"("frame_rate": {"value": 23.976023976023978})", "frame_rate", 24000 / 1001.0);
    row(R"("\u0077idth": "\u0038")", "width", 8);
}

void TestSettingsJson::valuesAreTaken()
{
    QFETCH(QByteArray, member);
    QFETCH(QString, setting);
    QFETCH(double, value);
    KvMvcSettings settings{};
    const auto problems = parse(inViewZero(member), settings);
    QVERIFY2(problems.empty(), problems.empty() ? "" : problems[0].reason.c_str());
    KvMvcSettings expected{};
    ledger::put(expected, ledger::setting(setting), 0, value);
    QVERIFY(same(settings, expected));
}

void TestSettingsJson::ratesKeepTheirBits()
{
    KvMvcSettings settings{};
    QVERIFY(parse(inViewZero(R"("frame_rate": {"value": null, "bits": "0x7ff0000000000001"})"),
                  settings)
                .empty());
    const double rate = settings.views[0].frame_rate;
    quint64 bits = 0;
    std::memcpy(&bits, &rate, sizeof bits);
    QCOMPARE(bits, Q_UINT64_C(0x7ff0000000000001));
}

void TestSettingsJson::textsAreJson_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("problem");
    const auto row = [](const char* text, const char* problem) {
        QTest::newRow(text) << QByteArray(text) << QByteArray(problem);
    };
    row("{", "1: no JSON: expected a member's name in quotes");
    row("{\n\"views\": [{}]", "2: no JSON: expected ',' or '}'");
    row("{\"views\": [{}}", "1: no JSON: expected ',' or ']'");
    row("{\"views\": [{}],\n}", "2: no JSON: expected a member's name in quotes");
    row("{\"views\" [{}]}", "1: no JSON: expected ':'");
    row("{\"views\": }", "1: no JSON: expected a value");
    row("{\"views\": nul}", "1: no JSON: expected a value");
    row("{\"views\": [{}]} x", "1: no JSON: expected the end");
    row("{\"a\": 01}", "1: no JSON: expected ',' or '}'");
    row("{\"a\": -}", "1: no JSON: expected a digit");
    row("{\"a\": 1.}", "1: no JSON: expected a digit");
    row("{\"a\": 1e+}", "1: no JSON: expected a digit");
    row("{\"a\": \"\n\"}", "1: no JSON: expected '\"' at the end of a string");
    row("{\"a\": \"", "1: no JSON: expected '\"' at the end of a string");
    row("{\"a\": \"\\x\"}", "1: no JSON: expected a character after '\\'");
    row("{\"a\": \"\\u12\"}", "1: no JSON: expected a character after '\\'");
    row("{\"a\": \"\\ud800\"}", "1: no JSON: expected a character after '\\'");
    row("{\"a\": \"\\udc00\"}", "1: no JSON: expected a character after '\\'");
    row("{\"\xE4\": 1}", "1: not valid UTF-8 text");
    QTest::newRow("deep") << "{\"a\": " + QByteArray(100000, '[')
                          << QByteArray("1: no JSON: expected fewer levels of brackets");
}

void TestSettingsJson::textsAreJson()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, problem);
    KvMvcSettings settings = filledRecord(0x5A);
    const auto problems = parse(text, settings);
    QCOMPARE(problems.size(), std::size_t(1));
    QCOMPARE(QByteArray::number(int(problems[0].line)) + ": " + problems[0].reason.c_str(),
             problem);
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingsJson::problemsNameTheirLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("problem");
    const auto row = [](const char* name, const QByteArray& text, const char* problem) {
        QTest::newRow(name) << text << QByteArray(problem);
    };
    const auto view = [&](const char* member, const char* problem) {
        row(member, inViewZero(QByteArray("\n") + member), problem);
    };
    row("no view", "{}", "1: section 'view 0' is missing");
    row("empty list", R"({"views": []})", "1: section 'view 0' is missing");
    row("three views", R"({"views": [{}, {}, {}]})",
        "1: bad member 'views': expected an array of one or two objects");
    row("no list", R"({"views": {}})",
        "1: bad member 'views': expected an array of one or two objects");
    row("no objects", R"({"views": [1]})",
        "1: bad member 'views': expected an array of one or two objects");
    row("views twice", R"({"views": [{}], "views": [{}]})", "1: section 'view 0' is there twice");
    row("other version", "{\n\"format_version\": 2, \"views\": [{}]}",
        "2: bad member 'format_version': expected version 1");
    row("version as a text", R"({"format_version": [], "views": [{}]})",
        "1: bad member 'format_version': expected version 1");
    row("unknown key like no other", R"({"a": 2, "views": [{}]})",
        "1: unknown key 'a' in section 'record'; its keys are num_views and split_views");
    row("unknown key of the record", R"({"nam_views": 2, "views": [{}]})",
        "1: unknown key 'nam_views' in section 'record'; did you mean 'num_views'?");
    view(R"("widht": 3)", "2: unknown key 'widht' in section 'view 0'; did you mean 'width'?");
    view(R"("\u00e4\ud83d\ude00": 3)",
         "2: unknown key '\xC3\xA4\xF0\x9F\x98\x80' in section 'view 0'");
    view(R"("\u001b[2J": 3)", "2: unknown key '\\u001b[2J' in section 'view 0'");
    view(R"("num_views": 3)",
         "2: unknown key 'num_views' in section 'view 0'; it belongs in section 'record'");
    view("\"width\": 1,\n\"width\": 2", "3: 'width' is set twice, first in line 2");
    view("\"width\": 1,\n\"bytes\": {\"24\": \"00\"}",
         "3: 'bytes 24' is set twice, first in line 2");
    view(R"("width": null)", "2: bad value for 'width': expected a number or a text");
    view(R"("width": [1])", "2: bad value for 'width': expected a number or a text");
    view(R"("width": {"text": "1"})", "2: bad member 'width': expected a member 'value'");
    view(R"("width": {"value": 1, "texts": "1"})", "2: unknown member 'texts' of 'width'");
    view(R"("width": {"value": 1, "bits": 1.5})",
         "2: bad value '1.5' for 'width': expected a whole number of 32 bits");
    view(R"("frame_rate": {"value": null})",
         "2: bad value for 'frame_rate': expected a number or a text");
    view(R"("width": true)", "2: bad value 'on' for 'width': expected a whole number of 32 bits");
    view(R"("width": 1.5)", "2: bad value '1.5' for 'width': expected a whole number of 32 bits");
    view(R"("width": 2147483648)",
         "2: bad value '2147483648' for 'width': expected a whole number of 32 bits");
    view(R"("width": {"value": 1e99, "unknown": true})",
         "2: bad value '1e99' for 'width': expected a whole number of 32 bits");
    view(R"("entropy_mode": {"value": 2})",
         "2: bad value '2' for 'entropy_mode': expected cavlc or cabac");
    view(R"("entropy_mode": {"value": 2, "unknown": 1})",
         "2: bad value '2' for 'entropy_mode': expected cavlc or cabac");
    view(R"("entropy_mode": "huffman")",
         "2: bad value 'huffman' for 'entropy_mode': expected cavlc or cabac");
    view(R"("frame_rate": 1e999)",
         "2: bad value '1e999' for 'frame_rate': expected a number, a fraction or a bit pattern");
    view(R"("bytes": "00")", "2: bad member 'bytes': expected an object");
    view(R"("bytes": {"x": "00"})", "2: bad offset 'x' of bytes");
    view(R"("bytes": {"260": 0})", "2: bad bytes: expected pairs of hexadecimal digits");
    view(R"("bytes": {"8316": "00"})",
         "2: bytes beyond the end of section 'view 0', which has 8316 bytes");
}

void TestSettingsJson::problemsNameTheirLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, problem);
    KvMvcSettings settings = filledRecord(0x5A);
    const auto problems = parse(text, settings);
    QCOMPARE(problems.size(), std::size_t(1));
    QCOMPARE(QByteArray::number(int(problems[0].line)) + ": " + problems[0].reason.c_str(),
             problem);
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingsJson::atMostTwentyProblems()
{
    KvMvcSettings settings{};
    const QByteArray members = QByteArray("\"nonsense\": 1,").repeated(100) + "\"nonsense\": 1";
    QCOMPARE(parse(inViewZero(members), settings).size(), std::size_t(20));
}

void TestSettingsJson::filesOfAnyNameAreRead()
{
    kvtest::SettingsLibrary library;
    const QTemporaryDir folder;
    for (const char* name : {"a.json", "a.cfg", "a.INI", "a"}) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\n {\"views\": [{\"width\": 1920}]}\n");
        file.close();
        KvMvcSettings settings{};
        QCOMPARE(library.read(settings, path.toUtf8()), 0);
        QCOMPARE(library.messages, QByteArray());
        QCOMPARE(settings.views[0].width, 1920);
    }
}

} // namespace

QTEST_APPLESS_MAIN(TestSettingsJson)
#include "tst_settings_json.moc"
