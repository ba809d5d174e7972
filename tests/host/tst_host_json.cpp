// Settings as JSON: what show writes fits the schema, and is read wherever settings are.

#include "ExampleSettings.h"
#include "HostProgram.h"
#include "JsonSchema.h"
#include "SettingsLedger.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <limits>
#include <random>

class TestHostJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shownSettingsComeBack_data();
    void shownSettingsComeBack();
    void everyCommandReadsIt_data();
    void everyCommandReadsIt();
    void unknownCodesAreMarked();
    void reservedBytesAreTold();
    void schemaRefuses_data();
    void schemaRefuses();
    void schemaTakesShortForms();
    void errorsNameTheirLine();
};

namespace
{

const QString a = QStringLiteral("a.ini");
const QString json = QStringLiteral("a.json");

const JsonSchema& schema()
{
    static const JsonSchema settings(QStringLiteral(KV_SOURCE_DIR "/docs/settings.schema.json"));
    return settings;
}

QByteArray shown(const HostProgram& program, const QString& file)
{
    return program.run({QStringLiteral("show"), QStringLiteral("--json"), file}).output.toUtf8();
}

/// @param unusual How many of a thousand bytes are any.
KvMvcSettings anySettings(unsigned seed, unsigned unusual)
{
    std::mt19937 random(seed);
    KvMvcSettings settings = exampleSettings();
    auto* bytes = reinterpret_cast<unsigned char*>(&settings);
    for (std::size_t at = 0; at < sizeof settings; ++at) {
        if (random() % 1000 < unusual) {
            bytes[at] = static_cast<unsigned char>(random());
        }
    }
    return settings;
}

KvMvcSettings withRate(double rate)
{
    KvMvcSettings settings = exampleSettings();
    settings.views[1].frame_rate = rate;
    return settings;
}

bool isSame(const KvMvcSettings& left, const KvMvcSettings& right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

} // namespace

void TestHostJson::shownSettingsComeBack_data()
{
    QTest::addColumn<QByteArray>("record");
    const auto row = [](const char* name, const KvMvcSettings& settings) {
        QTest::newRow(name) << QByteArray(reinterpret_cast<const char*>(&settings),
                                          sizeof settings);
    };
    using Limits = std::numeric_limits<double>;
    row("zeros", {});
    row("example", exampleSettings());
    row("few unusual bytes", anySettings(1, 5));
    row("many unusual bytes", anySettings(2, 200));
    row("any bytes", anySettings(3, 1000));
    row("rate -0", withRate(-0.0));
    row("rate infinite", withRate(Limits::infinity()));
    row("rate no number", withRate(-Limits::quiet_NaN()));
    row("rate smallest", withRate(Limits::denorm_min()));
    row("rate largest", withRate(Limits::max()));
    row("rate 29.97", withRate(29.97));
}

void TestHostJson::shownSettingsComeBack()
{
    QFETCH(QByteArray, record);
    KvMvcSettings settings{};
    std::memcpy(&settings, record.constData(), sizeof settings);
    const HostProgram program;
    program.writeSettings(a, settings);
    const QByteArray text = shown(program, a);
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    QCOMPARE(object[QStringLiteral("format_version")].toInt(), 1);
    QCOMPARE(schema().problemOf(object), QString());
    program.setContent(json, text);
    QVERIFY(isSame(program.readSettings(json), settings));
    QCOMPARE(shown(program, json), text);
}

void TestHostJson::everyCommandReadsIt_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("exitCode");
    const auto row = [](const char* line, int exitCode) {
        QTest::newRow(line) << QString::fromLatin1(line) << exitCode;
    };
    row("show a.json", 0);
    row("show -", 0);
    row("check a.json", 0);
    row("check - -o b.ini", 0);
    row("diff a.ini a.json", 0);
    row("diff - a.ini", 0);
    row("import a.json -o b.ini", 0);
    row("set a.json num_views=1 -o b.ini", 0);
    row("set - num_views=1", 0);
    row("edit a.json -o b.ini", 0);
}

void TestHostJson::everyCommandReadsIt()
{
    QFETCH(QString, line);
    QFETCH(int, exitCode);
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    program.addStub(QStringLiteral("stub_module"), QStringLiteral("kv_config_gui_mvc"));
    program.writeSettings(a, exampleSettings());
    const QByteArray text = shown(program, a);
    program.setContent(json, text);
    const HostProgram::Result result = program.run(line.split(QLatin1Char(' ')), {}, text);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, exitCode);
}

void TestHostJson::unknownCodesAreMarked()
{
    KvMvcSettings settings = exampleSettings();
    settings.views[0].pulldown = 3;
    settings.views[0].bit_depth_luma = 9;
    const HostProgram program;
    program.writeSettings(a, settings);
    const QJsonObject view = QJsonDocument::fromJson(shown(program, a))[QStringLiteral("views")]
                                 .toArray()
                                 .at(0)
                                 .toObject();
    const auto setting = [&](const char* key) { return view[QLatin1String(key)].toObject(); };
    const QString value = QStringLiteral("value");
    const QString text = QStringLiteral("text");
    const QString unknown = QStringLiteral("unknown");
    QCOMPARE(setting("pulldown"),
             QJsonObject({{value, 3}, {text, QStringLiteral("3 (unknown)")}, {unknown, true}}));
    QCOMPARE(setting("bit_depth_luma"),
             QJsonObject({{value, 9}, {text, QStringLiteral("9 bits")}, {unknown, true}}));
    QCOMPARE(setting("profile"), QJsonObject({{value, 3}, {text, QStringLiteral("High")}}));
}

void TestHostJson::reservedBytesAreTold()
{
    KvMvcSettings settings = exampleSettings();
    settings.reserved_8[1] = 0xAB;
    settings.views[1].reserved_260[0] = 0x01;
    settings.views[1].reserved_260[30] = 0x02;
    const HostProgram program;
    program.writeSettings(a, settings);
    const QJsonDocument document = QJsonDocument::fromJson(shown(program, a));
    const QString bytes = QStringLiteral("bytes");
    QCOMPARE(document[bytes].toObject(),
             QJsonObject({{QStringLiteral("8"),
                           QStringLiteral("00ab00000000000000000000000000000000000000000000")}}));
    const QJsonArray views = document[QStringLiteral("views")].toArray();
    QVERIFY(!views.at(0).toObject().contains(bytes));
    QCOMPARE(
        views.at(1)[bytes].toObject(),
        QJsonObject({{QStringLiteral("260"),
                      QStringLiteral("01000000000000000000000000000000000000000000000000000000")},
                     {QStringLiteral("288"),
                      QStringLiteral(
                          "0000020000000000000000000000000000000000000000000000000000000000")}}));
}

void TestHostJson::schemaRefuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* text, const char* problem) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(problem);
    };
    row(R"({})", "/views: missing");
    row(R"({"views": []})", "/views: too few or too many");
    row(R"({"views": [{}, {}, {}]})", "/views: too few or too many");
    row(R"({"views": [{}], "format_version": 2})", "/format_version: another value");
    row(R"({"views": [{}], "width": 1})", "/width: not known");
    row(R"({"views": [{"num_views": 1}]})", "/views/0/num_views: not known");
    row(R"({"views": [{"width": 1.5}]})", "/views/0/width: none of the forms");
    row(R"({"views": [{"width": {"text": "1"}}]})", "/views/0/width: none of the forms");
    row(R"({"views": [{"width": {"value": 1, "other": 1}}]})", "/views/0/width: none of the forms");
    row(R"({"views": [{"pulldown": 3}]})", "/views/0/pulldown: none of the forms");
    row(R"({"views": [{"pulldown": "3:4"}]})", "/views/0/pulldown: none of the forms");
    row(R"({"views": [{}, {"pulldown": {"value": 3}}]})", "/views/1/pulldown: none of the forms");
    row(R"({"views": [{"bit_depth_luma": 9}]})", "/views/0/bit_depth_luma: none of the forms");
    row(R"({"views": [{"frame_rate": {"value": null}}]})",
        "/views/0/frame_rate: none of the forms");
    row(R"({"views": [{"bytes": {"260": "0"}}]})", "/views/0/bytes/260: another pattern");
    row(R"({"views": [{"bytes": {"x": "00"}}]})", "/views/0/bytes/x: not known");
}

void TestHostJson::schemaRefuses()
{
    QFETCH(QString, text);
    QFETCH(QString, problem);
    QCOMPARE(schema().problemOf(QJsonDocument::fromJson(text.toUtf8()).object()), problem);
    // And so does the program, in its own words.
    const HostProgram program;
    program.setContent(json, text.toUtf8());
    QCOMPARE(program.run({QStringLiteral("show"), json}).exitCode, 2);
}

void TestHostJson::schemaTakesShortForms()
{
    const QByteArray text = R"({"views": [{
        "width": 1920, "frame_rate": "24000/1001", "profile": "High 10", "entropy_mode": "cabac",
        "deblocking": true, "bitrate": "20M", "pulldown": 4, "bytes": {"260": "00 01"}}]})";
    QCOMPARE(schema().problemOf(QJsonDocument::fromJson(text).object()), QString());
    const HostProgram program;
    program.setContent(json, text);
    const KvMvcSettings settings = program.readSettings(json);
    QCOMPARE(settings.views[0].width, 1920);
    QCOMPARE(settings.views[0].bitrate, 20000000);
    QCOMPARE(settings.views[0].deblocking, 1);
    QCOMPARE(settings.views[0].reserved_260[1], quint8(1));
}

void TestHostJson::errorsNameTheirLine()
{
    const HostProgram program;
    program.setContent(json, "{\"views\": [{\n\"widht\": 1,\n\"profile\": \"tall\"}]}");
    const HostProgram::Result result = program.run({QStringLiteral("check"), json});
    QCOMPARE(result.error,
             QStringLiteral("a.json:2: unknown key 'widht' in section 'view 0'; did you mean "
                            "'width'?\n"
                            "a.json:3: bad value 'tall' for 'profile': expected baseline, main, "
                            "high, high 10 or high 4:2:2\n"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

QTEST_GUILESS_MAIN(TestHostJson)
#include "tst_host_json.moc"
