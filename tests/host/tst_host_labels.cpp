// Settings are called what the dialog calls them: its layouts and lists are read from the sources.

#include "HostProgram.h"
#include "RecordFields.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <initializer_list>

class HostLabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreTheDialogs_data();
    void namesAreTheDialogs();
    void everySettingHasARow();
    void valuesAreTheDialogs_data();
    void valuesAreTheDialogs();

private:
    /// @return The name of each setting, by its key.
    static QHash<QString, QString> namesOfSettings();
};

namespace
{

const QString sources = QStringLiteral(KV_SOURCE_DIR "/src/");

/// @return A property of a widget in a layout; the colon of a label is no part of the text.
QString uiText(const QString& layout, const QString& widget, const QString& property)
{
    QFile file(sources + layout);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("no layout ") + layout;
    }
    QXmlStreamReader xml(&file);
    bool inWidget = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        const QString name = xml.attributes().value(QLatin1String("name")).toString();
        if (xml.name() == QLatin1String("widget")) {
            inWidget = name == widget;
        } else if (inWidget && xml.name() == QLatin1String("property") && name == property) {
            xml.readNextStartElement();
            QString text = xml.readElementText().trimmed();
            return text.endsWith(QLatin1Char(':')) ? text.chopped(1) : text;
        }
    }
    return QStringLiteral("no %1 of %2 in %3").arg(property, widget, layout);
}

/// Where the dialog has a setting's name.
struct Label {
    const char* setting;
    const char* layout;
    const char* widget;
    const char* property = "text";
};

constexpr char gop[] = "pages/GOPStructurePage.ui";
constexpr char motion[] = "pages/MotionEstimationPage.ui";
constexpr char distortion[] = "pages/RateDistortionPage.ui";
constexpr char format[] = "pages/VideoFormatPage.ui";
constexpr char misc[] = "pages/MiscPage.ui";
constexpr char advanced[] = "pages/AdvancedPage.ui";
constexpr char views[] = "pages/ViewsPage.ui";
constexpr char view[] = "pages/ViewNPage.ui.in";
constexpr char spoken[] = "accessibleName";

constexpr Label labels[] = {
    {"num_views", views, "profileLabel"},
    {"split_views", views, "splitCheck"},
    {"video_type", "dialog/AVCVideoEncoderDlg.ui", "presetLabel"},
    {"profile", advanced, "profileLabel"},
    {"level", advanced, "levelLabel"},
    // One label for two controls says less than the controls' own names.
    {"width", format, "widthSpin", spoken},
    {"height", format, "heightSpin", spoken},
    {"frame_rate", format, "fpsLabel"},
    {"pixel_aspect_x", format, "pixelXSpin", spoken},
    {"pixel_aspect_y", format, "pixelYSpin", spoken},
    {"interlace_mode", format, "interlaceLabel"},
    {"field_order", format, "fieldOrderLabel"},
    {"pulldown", format, "pulldownLabel"},
    {"chroma_format", format, "label"},
    {"bit_depth_luma", format, "label_2"},
    {"bit_depth_chroma", format, "label_3"},
    {"bitrate_mode", view, "brModeLabel"},
    {"bitrate", view, "targetRateLabel"},
    {"max_bitrate", view, "maxRateLabel"},
    {"hrd_mode", view, "hrdCheck"},
    {"bitrate_units", view, "groupBox", "title"},
    {"bitrate_buffer", view, "bitrateBufferLabel"},
    {"vbv_initial", view, "vbvInitialLabel"},
    {"vbv_target", view, "vbvTargetLabel"},
    {"frame_size_i", view, "iSizeLabel"},
    {"frame_size_p", view, "pSizeLabel"},
    {"frame_size_b", view, "bSizeLabel"},
    {"frame_size_bref", view, "brSizeLabel"},
    {"quant_i", view, "quantILabel"},
    {"quant_p", view, "quantPLabel"},
    {"quant_b", view, "quantBLabel"},
    {"quant_min", view, "minQuantLabel"},
    {"quant_max", view, "maxQuantLabel"},
    {"scene_detection", gop, "sceneDetectCheck"},
    {"i_interval", gop, "pDistanceLabel"},
    {"force_i", gop, "pDistanceLabel_2"},
    {"idr_marker", gop, "idrSpin", spoken},
    {"fixed_i_position", gop, "fixedICheck"},
    {"ref_distance", gop, "pDistanceLabel_3"},
    {"adaptive_b", gop, "adaptiveBCheck"},
    {"pyramid_b", gop, "piramydBCheck"},
    {"reference_b", gop, "bAsReferenceCheck"},
    {"min_partition", motion, "macroSearchLabel"},
    {"subpixel_mode", motion, "label_2"},
    {"num_ref_frames", motion, "label_3"},
    {"motion_search", motion, "searchRangeLabel"},
    {"weighted_p", motion, "weightedPCheck"},
    {"fast_reference", motion, "fastRefCheck"},
    {"fast_subblock", motion, "fastSubCheck"},
    {"fast_intra", distortion, "fastIntraCheck"},
    {"fast_inter", distortion, "fastInterCheck"},
    {"simple_rd", distortion, "simpleRDCheck"},
    {"hadamard", distortion, "hadamardCheck"},
    {"deblocking", misc, "deblockingCheck"},
    {"entropy_mode", misc, "label"},
    {"num_slices", misc, "label_3"},
    {"num_threads", misc, "label_2"},
};

/// What the dialog has in one control for two fields, in a group, or not at all.
const QHash<QString, QString> composedNames = {
    {QStringLiteral("display_aspect_x"), QStringLiteral("Picture aspect ratio, horizontal part")},
    {QStringLiteral("display_aspect_y"), QStringLiteral("Picture aspect ratio, vertical part")},
    {QStringLiteral("brightness"), QStringLiteral("Adaptive quantization, brightness based")},
    {QStringLiteral("contrast"), QStringLiteral("Adaptive quantization, contrast based")},
    {QStringLiteral("complexity"), QStringLiteral("Adaptive quantization, complexity based")},
    {QStringLiteral("multi_slice"), QStringLiteral("Several slices")},
};

} // namespace

QHash<QString, QString> HostLabelsTest::namesOfSettings()
{
    KvMvcSettings other = {};
    other.num_views = 1;
    other.split_views = 1;
    for (const RecordField& field : viewFields) {
        setField(other, 0, field.offset, 1);
    }
    other.views[0].frame_rate = 1;
    const HostProgram program;
    program.writeSettings(QStringLiteral("a.ini"), {});
    program.writeSettings(QStringLiteral("b.ini"), other);
    const HostProgram::Result result =
        program.run({QStringLiteral("diff"), QStringLiteral("--json"), QStringLiteral("a.ini"),
                     QStringLiteral("b.ini")});
    QHash<QString, QString> names;
    const QJsonObject object = QJsonDocument::fromJson(result.output.toUtf8()).object();
    for (const QJsonValue& difference : object[QStringLiteral("differences")].toArray()) {
        names[difference.toObject()[QStringLiteral("setting")].toString()] =
            difference.toObject()[QStringLiteral("name")].toString();
    }
    return names;
}

void HostLabelsTest::namesAreTheDialogs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    const QHash<QString, QString> names = namesOfSettings();
    for (const Label& label : labels) {
        QTest::newRow(label.setting)
            << names[QString::fromLatin1(label.setting)]
            << uiText(QString::fromLatin1(label.layout), QString::fromLatin1(label.widget),
                      QString::fromLatin1(label.property));
    }
    for (auto row = composedNames.begin(); row != composedNames.end(); ++row) {
        QTest::newRow(qPrintable(row.key())) << names[row.key()] << row.value();
    }
}

void HostLabelsTest::namesAreTheDialogs()
{
    QFETCH(QString, name);
    QFETCH(QString, label);
    QCOMPARE(name, label);
}

void HostLabelsTest::everySettingHasARow()
{
    QSet<QString> rows;
    for (const Label& label : labels) {
        rows.insert(QString::fromLatin1(label.setting));
    }
    for (auto row = composedNames.begin(); row != composedNames.end(); ++row) {
        rows.insert(row.key());
    }
    const QList<QString> keys = namesOfSettings().keys();
    QCOMPARE(QSet<QString>(keys.begin(), keys.end()), rows);
}

void HostLabelsTest::valuesAreTheDialogs_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QList<int>>("codes");
    const auto row = [](const char* setting, std::initializer_list<int> codes) {
        QTest::newRow(setting) << QString::fromLatin1(setting) << QList<int>(codes);
    };
    // Without preset 0 and chroma format 4, which the dialog has no text for.
    row("video_type", {1, 2, 3});
    row("profile", {0, 1, 3, 4, 5});
    row("level", {10, 11, 12, 13, 16, 20, 21, 22, 30, 31, 32, 40, 41, 42, 50, 51, 52, 100});
    row("interlace_mode", {0, 1, 2});
    row("field_order", {0, 1});
    row("pulldown", {0, 1, 2, 4, 5, 6, 7, 8});
    row("chroma_format", {1, 2, 3});
    row("bit_depth_luma", {8, 10});
    row("bit_depth_chroma", {8, 10});
    row("bitrate_mode", {0, 1, 2, 3});
    row("min_partition", {0, 1});
    row("subpixel_mode", {0, 1, 2});
    row("entropy_mode", {0, 1});
    row("display_aspect_x", {-1});
}

void HostLabelsTest::valuesAreTheDialogs()
{
    QFETCH(QString, setting);
    QFETCH(QList<int>, codes);
    QFile lists(sources + QStringLiteral("model/ValueLists.cpp"));
    QVERIFY(lists.open(QIODevice::ReadOnly | QIODevice::Text));
    const QString texts = QString::fromUtf8(lists.readAll());
    const HostProgram program;
    for (const int code : std::as_const(codes)) {
        KvMvcSettings settings = {};
        setField(settings, 0, fieldOffset(setting), code);
        program.writeSettings(QStringLiteral("a.ini"), settings);
        const HostProgram::Result result = program.run(
            {QStringLiteral("show"), QStringLiteral("--json"), QStringLiteral("a.ini")});
        const QString text = QJsonDocument::fromJson(result.output.toUtf8())
                                 .object()[QStringLiteral("views")]
                                 .toArray()
                                 .at(0)
                                 .toObject()[setting]
                                 .toObject()[QStringLiteral("text")]
                                 .toString();
        QVERIFY2(!text.isEmpty() && texts.contains(QStringLiteral(", \"%1\")").arg(text)),
                 qPrintable(QStringLiteral("%1: '%2'").arg(QString::number(code), text)));
    }
}

QTEST_GUILESS_MAIN(HostLabelsTest)
#include "tst_host_labels.moc"
