// report: which levels the settings fit, and how much of the limits they use.

#include "ExampleSettings.h"
#include "HostProgram.h"
#include "JsonSchema.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class TestHostReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levelsAndHeadroom();
    void levelsThatFit_data();
    void levelsThatFit();
    void json();
    void limitsNameTheirView();
    void limitsAreNamedInTheLanguage();
    void autoTakesALevel();
    void onlyAutoTakesALevel();
    void risksAreReported();
    void refusedSettingsAreReported();
    void encoderThatTellsNothing();
};

namespace
{

const JsonSchema& messagesSchema()
{
    static const JsonSchema schema(QStringLiteral(KV_SOURCE_DIR "/docs/messages.schema.json"));
    return schema;
}

const QString a = QStringLiteral("a.ini");

/// The program beside the real encoder, and a preset's settings with some changed.
void prepare(HostProgram& program, const QString& preset, const QStringList& assignments = {})
{
    program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
    QStringList arguments = {QStringLiteral("defaults"), preset, QStringLiteral("-o"), a};
    for (const QString& assignment : assignments) {
        arguments << QStringLiteral("--set") << assignment;
    }
    const HostProgram::Result result = program.run(arguments);
    if (result.exitCode != 0) {
        qFatal("%s", qPrintable(result.error));
    }
}

QJsonObject jsonReport(const HostProgram& program)
{
    const HostProgram::Result result =
        program.run({QStringLiteral("report"), QStringLiteral("--json"), a});
    return QJsonDocument::fromJson(result.output.toUtf8()).object();
}

QString levelsThatFitOf(const QJsonObject& report)
{
    QStringList levels;
    for (const QJsonValue& level : report[QStringLiteral("levels")].toArray()) {
        if (level[QStringLiteral("fits")].toBool()) {
            levels << level[QStringLiteral("level")].toString();
        }
    }
    return levels.join(QLatin1Char(' '));
}

} // namespace

void TestHostReport::levelsAndHeadroom()
{
    HostProgram program;
    prepare(program, QStringLiteral("2"));
    const HostProgram::Result result = program.run({QStringLiteral("report"), a});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    const QStringList parts = result.output.split(QStringLiteral("\n\n"));
    QCOMPARE(parts.size(), 2);
    // Two views of 1920 x 1080 at 23.976, 30 and 15 Mbit/s at most, 3 references each: Tables A-1
    // and A-2 with H.10.2.1, worked out by hand.
    const QStringList levels = parts[0].split(QLatin1Char('\n'));
    QCOMPARE(levels[0], QStringLiteral("Levels"));
    QCOMPARE(levels.size(), 18);
    QVERIFY2(levels.contains(QStringLiteral("  4.1   fits, set")), qPrintable(parts[0]));
    QVERIFY2(levels.contains(QStringLiteral("  5.2   fits")), qPrintable(parts[0]));
    QVERIFY2(levels.contains(QStringLiteral("  4.0   no: Bitrate; Buffer")), qPrintable(parts[0]));
    QVERIFY2(
        levels.contains(QStringLiteral("  3.0   no: Picture size; Picture width; Macroblock rate; "
                                       "Decoded pictures; Bitrate; Buffer")),
        qPrintable(parts[0]));
    QCOMPARE(parts[1], QStringLiteral(
                           R"(Level 4.1
  Picture size                    ###################.   99 %  8160 of 8192 macroblocks
  Picture width                   #########...........   46 %  120 of 256 macroblocks
  Picture height                  #####...............   26 %  68 of 256 macroblocks
  Macroblock rate                 ###############.....   79 %  391288.7 of 491520 macroblocks/s
  Decoded pictures                #################...   87 %  7 of 8 frames
  Bitrate, base view              ########............   40 %  30 of 75 Mbit/s
  Bitrate of pictures, base view  #########...........   48 %  30 of 62.5 Mbit/s
  Bitrate                         ############........   60 %  45 of 75 Mbit/s
  Bitrate of pictures             ##############......   72 %  45 of 62.5 Mbit/s
  Buffer, base view               ######..............   32 %  30 of 93.75 Mbit
  Buffer of pictures, base view   #######.............   38 %  30 of 78.125 Mbit
  Buffer                          #########...........   48 %  45 of 93.75 Mbit
  Buffer of pictures              ###########.........   57 %  45 of 78.125 Mbit
)"));
}

void TestHostReport::levelsThatFit_data()
{
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QStringList>("assignments");
    QTest::addColumn<QString>("levels");
    const auto row = [](const char* name, const char* preset, const char* assignments,
                        const char* levels) {
        QTest::newRow(name)
            << QString::fromLatin1(preset)
            << QString::fromLatin1(assignments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
            << QString::fromLatin1(levels);
    };
    row("two views of 1920 x 1080", "2", "", "4.1 4.2 5.0 5.1 5.2");
    // MaxMBPS 216000 at level 3.2, 108000 at 3.1: 3600 macroblocks 50 times a second are 180000.
    row("1280 x 720 at 50", "0",
        "width=1280 height=720 frame_rate=50 bitrate=10M max_bitrate=12M bitrate_buffer=1500000",
        "3.2 4.0 4.1 4.2 5.0 5.1 5.2");
    // Table A-4: field pictures from level 2.1 to 4.1 only; MaxFS 1620 from 2.2 on.
    row("720 x 576, interlaced", "0",
        "width=720 height=576 frame_rate=25 interlace_mode=interlaced bitrate=4M max_bitrate=4M "
        "bitrate_buffer=500000 num_slices=2",
        "3.0 3.1 3.2 4.0 4.1");
    // Whatever would do otherwise: the disc's level.
    row("a disc", "3", "", "4.1");
}

void TestHostReport::levelsThatFit()
{
    QFETCH(QString, preset);
    QFETCH(QStringList, assignments);
    QFETCH(QString, levels);
    HostProgram program;
    prepare(program, preset, assignments);
    QCOMPARE(levelsThatFitOf(jsonReport(program)), levels);
    QCOMPARE(messagesSchema().problemOf(jsonReport(program)), QString());
    const QString text = program.run({QStringLiteral("report"), a}).output;
    QCOMPARE(text.count(QStringLiteral("   fits")), levels.split(QLatin1Char(' ')).size());
}

void TestHostReport::json()
{
    HostProgram program;
    prepare(program, QStringLiteral("0"), {QStringLiteral("level=3.2")});
    const QJsonObject report = jsonReport(program);
    QCOMPARE(report[QStringLiteral("format_version")], QJsonValue(1));
    QCOMPARE(messagesSchema().problemOf(report), QString());
    QCOMPARE(report[QStringLiteral("accepted")], QJsonValue(false));
    QCOMPARE(report[QStringLiteral("level")], QJsonValue(QStringLiteral("3.2")));
    QCOMPARE(report[QStringLiteral("auto")], QJsonValue(false));
    const QJsonArray limits = report[QStringLiteral("limits")].toArray();
    QCOMPARE(limits.size(), 9);
    // Table A-1: MaxFS 5120, MaxBR 20000 times 1500.
    QCOMPARE(limits[0].toObject(), QJsonDocument::fromJson(R"json({
        "name": "Picture size", "view": null, "used": 8160, "limit": 5120, "unit": "macroblocks",
        "rule": "level.picture", "level": "3.2"})json")
                                       .object());
    QCOMPARE(limits[5].toObject(), QJsonDocument::fromJson(R"json({
        "name": "Bitrate", "view": null, "used": 30000000, "limit": 30000000, "unit": "bit/s",
        "rule": "level.bitrate", "level": "3.2"})json")
                                       .object());
    for (const QJsonValue& level : report[QStringLiteral("levels")].toArray()) {
        if (level[QStringLiteral("level")].toString() != QStringLiteral("3.2")) {
            continue;
        }
        QCOMPARE(level[QStringLiteral("fits")], QJsonValue(false));
        QCOMPARE(level[QStringLiteral("exceeded")].toArray().first().toObject(),
                 limits[0].toObject());
        const QJsonObject message = level[QStringLiteral("messages")].toArray().first().toObject();
        QCOMPARE(message[QStringLiteral("kind")], QJsonValue(QStringLiteral("error")));
        QCOMPARE(message[QStringLiteral("rule")], QJsonValue(QStringLiteral("level.picture")));
        QCOMPARE(message[QStringLiteral("value")], QJsonValue(8160));
        QCOMPARE(message[QStringLiteral("limit")], QJsonValue(5120));
        return;
    }
    QFAIL("no level 3.2");
}

void TestHostReport::limitsNameTheirView()
{
    HostProgram program;
    prepare(program, QStringLiteral("2"));
    const QJsonArray limits = jsonReport(program)[QStringLiteral("limits")].toArray();
    QCOMPARE(limits[5][QStringLiteral("name")], QJsonValue(QStringLiteral("Bitrate")));
    QCOMPARE(limits[5][QStringLiteral("view")], QJsonValue(0));
    QCOMPARE(limits[7][QStringLiteral("name")], QJsonValue(QStringLiteral("Bitrate")));
    QCOMPARE(limits[7][QStringLiteral("view")], QJsonValue(QJsonValue::Null));
}

void TestHostReport::limitsAreNamedInTheLanguage()
{
    HostProgram program;
    program.addTexts();
    prepare(program, QStringLiteral("2"), {QStringLiteral("level=3.1")});
    const auto reportIn = [&](const char* language) {
        return program
            .run({QStringLiteral("report"), QStringLiteral("--language"),
                  QString::fromLatin1(language), a})
            .output;
    };
    const QString german = reportIn("de");
    for (const char* text : {": Bildgröße; ", "\n  Makroblockrate                    #",
                             "\n  Bitrate der Bilder, Basisansicht  #"}) {
        QVERIFY2(german.contains(QString::fromUtf8(text)), qPrintable(german));
    }
    // A letter takes two columns.
    const QString japanese = reportIn("ja");
    for (const char* text :
         {": ピクチャのサイズ; ", "\n  マクロブロックレート                     #",
          "\n  ビットレート (映像データ), ベースビュー  #",
          "\n  ピクチャの幅                             #"}) {
        QVERIFY2(japanese.contains(QString::fromUtf8(text)), qPrintable(japanese));
    }
    QVERIFY(reportIn("en").contains(QStringLiteral("\n  Bitrate of pictures, base view  #")));
}

void TestHostReport::autoTakesALevel()
{
    HostProgram program;
    prepare(program, QStringLiteral("2"), {QStringLiteral("level=auto")});
    const QString text = program.run({QStringLiteral("report"), a}).output;
    QVERIFY2(text.contains(QStringLiteral("\n  4.1   fits, taken\n")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("\n\nLevel 4.1, which Auto comes to\n")),
             qPrintable(text));
    QCOMPARE(jsonReport(program)[QStringLiteral("auto")], QJsonValue(true));
}

/// A disc has its level, whatever is set.
void TestHostReport::onlyAutoTakesALevel()
{
    HostProgram program;
    prepare(program, QStringLiteral("3"), {QStringLiteral("level=3.2")});
    const QString text = program.run({QStringLiteral("report"), a}).output;
    QVERIFY2(text.contains(QStringLiteral("\n  3.2   no, set: ")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("\n  4.1   fits\n")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("\n\nLevel 4.1\n")), qPrintable(text));
}

void TestHostReport::risksAreReported()
{
    // 27 Mbit/s at level 4: 25 for picture data, 30 in all (Table A-1, MaxBR 20000 times 1250,
    // 1500).
    HostProgram program;
    prepare(program, QStringLiteral("0"),
            {QStringLiteral("max_bitrate=27M"), QStringLiteral("level=4.0")});
    const QString text = program.run({QStringLiteral("report"), a}).output;
    QVERIFY2(
        text.contains(QStringLiteral("\n  4.0   fits, set, with a risk: Bitrate of pictures\n")),
        qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("####################  108 %  27 of 25 Mbit/s\n")),
             qPrintable(text));
    for (const QJsonValue& level : jsonReport(program)[QStringLiteral("levels")].toArray()) {
        if (level[QStringLiteral("level")].toString() == QStringLiteral("4.0")) {
            QCOMPARE(level[QStringLiteral("fits")], QJsonValue(true));
            const QJsonValue risk = level[QStringLiteral("messages")].toArray().first();
            QCOMPARE(risk[QStringLiteral("kind")], QJsonValue(QStringLiteral("risk")));
            QCOMPARE(risk[QStringLiteral("rule")], QJsonValue(QStringLiteral("level.bitrate-vcl")));
            QCOMPARE(risk[QStringLiteral("value")], QJsonValue(27000000));
            QCOMPARE(risk[QStringLiteral("limit")], QJsonValue(25000000));
            return;
        }
    }
    QFAIL("no level 4.0");
}

void TestHostReport::refusedSettingsAreReported()
{
    // What is no amount is told in words, and what no level takes has no headroom.
    HostProgram program;
    prepare(program, QStringLiteral("0"),
            {QStringLiteral("level=auto"), QStringLiteral("interlace_mode=interlaced"),
             QStringLiteral("num_ref_frames=5")});
    const HostProgram::Result result = program.run({QStringLiteral("report"), a});
    QCOMPARE(result.error, QString());
    QVERIFY2(result.output.contains(QStringLiteral("\n  4.1   no: Decoded pictures\n")),
             qPrintable(result.output));
    QVERIFY2(result.output.contains(QStringLiteral("\n  5.2   no: ")) &&
                 result.output.contains(QStringLiteral("progressive pictures only")),
             qPrintable(result.output));
    QVERIFY2(!result.output.contains(QLatin1Char('#')), qPrintable(result.output));
    QCOMPARE(result.exitCode, 1);
}

void TestHostReport::encoderThatTellsNothing()
{
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 1;
    program.writeSettings(a, settings);
    HostProgram::Result result = program.run({QStringLiteral("report"), a});
    QVERIFY2(!result.output.contains(QStringLiteral("fits")), qPrintable(result.output));
    QVERIFY2(result.output.contains(QStringLiteral("\n  4.1   no, set\n")),
             qPrintable(result.output));
    QCOMPARE(result.exitCode, 1);
    settings.views[0].width = 1920;
    program.writeSettings(a, settings);
    QCOMPARE(messagesSchema().problemOf(jsonReport(program)), QString());
    result = program.run({QStringLiteral("report"), a});
    QVERIFY2(result.output.contains(QStringLiteral("\n  4.1   fits, set\n")),
             qPrintable(result.output));
    QCOMPARE(result.output.count(QStringLiteral("fits")), 17);
    QCOMPARE(result.exitCode, 0);
}

QTEST_GUILESS_MAIN(TestHostReport)
#include "tst_host_report.moc"
