#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"

#include <QLabel>
#include <QTest>

/// Every control as it is built: kind, range, step, first value, items, width, label.
class TestPageControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void controlIsBuiltAs_data();
    void controlIsBuiltAs();
    void labelReads_data();
    void labelReads();
    void listHasItemsInOrder_data();
    void listHasItemsInOrder();

    void everyControlIsKnown();
    void eachKeyHasOneControl();
    void eachControlHasOneKey_data();
    void eachControlHasOneKey();
};

namespace
{

using Properties = QVector<QPair<QByteArray, QVariant>>;

constexpr int unbounded = 16777215; // the toolkit's largest widget size

struct Built {
    const char* page;
    const char* name;
    const char* kind;
    Properties properties;
};

Properties width(int least, int most, int tallest = unbounded)
{
    return {{"minimumWidth", least},
            {"minimumHeight", 0},
            {"maximumWidth", most},
            {"maximumHeight", tallest}};
}

/// The range is the ledger's.
Properties steps(int step, int value)
{
    return {{"singleStep", step}, {"value", value}};
}

Properties tracking(bool on)
{
    return {{"keyboardTracking", on}};
}

const Properties upDown = {{"buttonSymbols", int(QAbstractSpinBox::UpDownArrows)}};
const Properties plusMinus = {{"buttonSymbols", int(QAbstractSpinBox::PlusMinus)}};
const Properties noButtons = {{"buttonSymbols", int(QAbstractSpinBox::NoButtons)}};

Properties aligned(Qt::AlignmentFlag horizontally)
{
    return {{"horizontalAlignment", int(horizontally)}};
}

Properties check(const char* text)
{
    return {{"text", QString::fromLatin1(text)}, {"checked", false}, {"enabled", true}};
}

Properties policy(QSizePolicy::Policy horizontally, QSizePolicy::Policy vertically)
{
    return {{"horizontalPolicy", int(horizontally)}, {"verticalPolicy", int(vertically)}};
}

const Properties fixed = policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
// The frames that the tool boxes stand in.
const Properties collection = policy(QSizePolicy::Expanding, QSizePolicy::Expanding) +
                              Properties{{"frameShape", int(QFrame::NoFrame)}};
const Properties raised = {{"frameShadow", int(QFrame::Raised)}};

const char* const spinBox = "QSpinBox";
const char* const comboBox = "QComboBox";
const char* const checkBox = "QCheckBox";
const char* const slider = "QSlider";
const char* const radio = "QRadioButton";

QVector<Built> videoFormat()
{
    const char* const page = "VideoFormatPage";
    const Properties pair = width(60, 60, 200000) + aligned(Qt::AlignRight);
    const Properties size = steps(2, 352) + tracking(false) + plusMinus + pair;
    const Properties pixels = steps(1, 1) + tracking(true) + plusMinus + pair;
    Properties height = size;
    height[1].second = 288;
    const Properties list = width(140, 140) + Properties{{"enabled", true}};
    return {
        {page, "widthSpin", spinBox, size},
        {page, "heightSpin", spinBox, height},
        {page, "framerateList", comboBox, list + Properties{{"maxCount", 240}}},
        {page, "aspectRatioList", comboBox, list},
        {page, "pixelXSpin", spinBox, pixels},
        {page, "pixelYSpin", spinBox, pixels},
        {page, "interlaceList", comboBox, list},
        {page, "fieldOrderList", comboBox, list},
        {page, "pulldownList", comboBox, list},
        {page, "chromaList", comboBox, list},
        {page, "bitdepthLList", comboBox, list},
        {page, "bitdepthCList", comboBox, list},
        {page, "aspectRatioCheck", checkBox, check("Keep aspect ratio")},
        {page, "labelX", "QLabel", {{"text", QStringLiteral("x")}, {"maximumWidth", 10}}},
        {page, "pixelLabel2", "QLabel", {{"text", QStringLiteral("x")}, {"maximumWidth", 10}}},
        {page,
         "frame_4",
         "QFrame",
         {{"minimumWidth", 32},
          {"minimumHeight", 16},
          {"maximumWidth", unbounded},
          {"maximumHeight", 16}}},
        {page,
         "frame_5",
         "QFrame",
         {{"minimumWidth", 16},
          {"minimumHeight", 16},
          {"maximumWidth", unbounded},
          {"maximumHeight", 16}}},
    };
}

QVector<Built> advancedPages()
{
    const char* const advanced = "AdvancedPage";
    const char* const gop = "GOPStructurePage";
    const char* const motion = "MotionEstimationPage";
    const char* const distortion = "RateDistortionPage";
    const char* const misc = "MiscPage";
    const auto spin = [](int value, int wide) { return steps(1, value) + width(wide, wide); };
    const Properties strength = steps(1, 0) + Properties{{"pageStep", 20},
                                                         {"tickInterval", 20},
                                                         {"tickPosition", 3}, // both sides
                                                         {"orientation", int(Qt::Horizontal)},
                                                         {"tracking", true}};
    const Properties readOut =
        Properties{{"text", QStringLiteral("TextLabel")}} + aligned(Qt::AlignRight);
    return {
        {advanced, "profileList", comboBox, width(120, 2000000, 2000000)},
        {advanced, "levelList", comboBox, width(120, 200000, 200000) + fixed},
        {advanced, "collectionFrame", "QFrame", collection + raised},

        {gop, "iFrameIntervalSpin", spinBox,
         spin(100, 140) + tracking(true) + aligned(Qt::AlignRight)},
        {gop, "iFrameForceSpin", spinBox, spin(1, 140) + tracking(true) + aligned(Qt::AlignRight)},
        {gop, "idrSpin", spinBox, spin(0, 80) + tracking(true) + aligned(Qt::AlignHCenter)},
        {gop, "bBetweenIPSpin", spinBox, spin(1, 80) + tracking(false) + aligned(Qt::AlignRight)},
        {gop, "groupBox", "QGroupBox", {{"title", QStringLiteral("I-frame settings")}}},
        {gop, "groupBox_2", "QGroupBox", {{"title", QStringLiteral("B-frame settings")}}},

        {motion, "macroSearchList", comboBox, width(140, 140)},
        {motion, "subSearchList", comboBox, width(140, 140)},
        {motion, "refFramesSpin", spinBox, spin(0, 140) + tracking(true) + aligned(Qt::AlignRight)},
        {motion, "searchRangeSpin", spinBox,
         spin(0, 140) + tracking(true) + aligned(Qt::AlignRight)},

        {distortion, "brightnessSlider", slider, strength},
        {distortion, "contrastSlider", slider, strength},
        {distortion, "complexitySlider", slider, strength},
        {distortion, "brightnessLabel", "QLabel", readOut},
        {distortion, "contrastLabel", "QLabel", readOut},
        {distortion, "complexityLabel", "QLabel", readOut},
        {distortion, "line", "QFrame", {{"minimumHeight", 16}, {"maximumHeight", 16}}},
        {distortion,
         "adaptiveGroup",
         "QGroupBox",
         {{"title", QStringLiteral("Adaptive quantization")}, {"checkable", false}}},

        {misc, "entropyList", comboBox, width(140, 140)},
        {misc, "threadsSpin", spinBox,
         spin(9, 140) + tracking(true) + aligned(Qt::AlignRight) +
             Properties{{"specialValueText", QStringLiteral("Auto")}}},
        {misc, "slicesSpin", spinBox, spin(1, 140) + tracking(true) + aligned(Qt::AlignRight)},
    };
}

QVector<Built> viewsPages()
{
    const char* const views = "ViewsPage";
    QVector<Built> all = {
        {views, "numViewsSpin", spinBox, steps(1, 0) + tracking(true) + aligned(Qt::AlignRight)},
        {"BasicPage", "deviceList", comboBox,
         width(250, 2000000, 2000000) + Properties{{"count", 0}}},
        {"BasicPage", "collectionFrame", "QFrame", collection + raised},
        {views, "collectionFrame", "QFrame", collection},
    };
    const Properties spin = tracking(false) + aligned(Qt::AlignRight) + width(140, 140);
    const Properties rate = steps(10000, 6000) + spin + noButtons;
    const Properties amount = steps(1, 0) + spin + upDown;
    const Properties quantizer = steps(1, 2) + spin + upDown;
    const Properties lastQuantizer = steps(1, 62) + spin + upDown;
    const auto unit = [](const char* text) {
        return Properties{{"text", QString::fromLatin1(text)}, {"checked", false}};
    };
    for (const char* page : {"View0Page", "View1Page", "View2Page", "View3Page"}) {
        all += {
            {page, "bitrateModeList", comboBox,
             width(140, 240) +
                 Properties{{"sizeAdjustPolicy", int(QComboBox::AdjustToContentsOnFirstShow)}}},
            {page, "targetRateSpin", spinBox, rate},
            {page, "maxRateSpin", spinBox, rate},
            {page, "groupBoxBuffers", "QGroupBox", {{"title", QStringLiteral("Buffers")}}},
            {page, "groupBox", "QGroupBox", {{"title", QStringLiteral("Units")}}},
            {page, "units1Radio", radio, unit("Bitrate buffer (bytes), VBV buffers (%)")},
            {page, "units2Radio", radio, unit("Bitrate buffer (bits), VBV buffers (bits)")},
            {page, "units3Radio", radio,
             unit("Bitrate buffer (bits), VBV buffers (90  kHz clock)")},
            {page, "bitrateBufferSpin", spinBox, amount},
            {page, "vbvInitialSpin", spinBox, amount},
            {page, "vbvTargetSpin", spinBox, amount},
            {page, "onesecCheck", checkBox, check("Force bitrate buffer length to 1 second")},
            {page, "iSizeSpin", spinBox, amount},
            {page, "pSizeSpin", spinBox, amount},
            {page, "bSizeSpin", spinBox, amount},
            {page, "brSizeSpin", spinBox, amount},
            {page, "quantISpin", spinBox, quantizer},
            {page, "quantPSpin", spinBox, quantizer},
            {page, "quantBSpin", spinBox, quantizer},
            {page, "maxQuantSpin", spinBox, lastQuantizer},
            {page, "minQuantSpin", spinBox, lastQuantizer},
            {page, "line_2", "QFrame", {{"minimumHeight", 16}}},
            {page, "line_3", "QFrame", {{"minimumHeight", 16}}},
        };
    }
    return all;
}

QVariant propertyOf(const QWidget* widget, const QByteArray& name)
{
    if (name == "horizontalAlignment") {
        return widget->property("alignment").toInt() & int(Qt::AlignHorizontal_Mask) &
               ~int(Qt::AlignAbsolute);
    }
    if (name == "horizontalPolicy") {
        return int(widget->sizePolicy().horizontalPolicy());
    }
    if (name == "verticalPolicy") {
        return int(widget->sizePolicy().verticalPolicy());
    }
    return widget->property(name.constData());
}

struct LabelRow {
    const char* page;
    const char* label;
    const char* text;
    const char* buddy;
};

// Those that belong to no setting, or to one that has another label.
const LabelRow labelRows[] = {
    {"BasicPage", "deviceLabel", "CUDA Devices:", "deviceList"},
    {"GOPStructurePage", "label_2", "I-frame as IDR.", ""},
};

/// What a setting's control is built as beyond the rows above.
Properties ofLedger(const ledger::Setting& setting)
{
    if (setting.kind == ledger::Kind::Switch) {
        return check(setting.caption);
    }
    if (setting.kind == ledger::Kind::Number) {
        return {{"minimum", setting.least}, {"maximum", setting.most}};
    }
    return {{"enabled", true}};
}

const char* kindOf(const ledger::Setting& setting)
{
    switch (setting.kind) {
    case ledger::Kind::Switch:
        return checkBox;
    case ledger::Kind::Number:
        return QByteArray(setting.control).endsWith("Slider") ? slider : spinBox;
    default:
        return comboBox;
    }
}

} // namespace

Q_DECLARE_METATYPE(Properties)

void TestPageControls::controlIsBuiltAs_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<Properties>("properties");
    const QVector<Built> all = videoFormat() + advancedPages() + viewsPages();
    for (const Built& built : all) {
        QTest::newRow(qPrintable(
            QStringLiteral("%1.%2").arg(QLatin1String(built.page), QLatin1String(built.name))))
            << QString(QLatin1String(built.page)) << QString(QLatin1String(built.name))
            << QString(QLatin1String(built.kind)) << built.properties;
    }
    for (const ledger::Setting& setting : ledger::settings()) {
        // The units are radio buttons, each with a row of its own.
        if (!setting.key || setting.is("video_type") || setting.kind == ledger::Kind::Radio) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            QTest::addRow("%s.%s by the ledger", qPrintable(setting.pageOf(view)), setting.control)
                << setting.pageOf(view) << QString(QLatin1String(setting.control))
                << QString(QLatin1String(kindOf(setting))) << ofLedger(setting);
        }
    }
}

void TestPageControls::controlIsBuiltAs()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(QString, kind);
    QFETCH(Properties, properties);
    AllPages pages;
    const QWidget* const widget = findOnPage(pages.window(), page, name);
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), kind);
    for (const auto& property : properties) {
        const QVariant value = propertyOf(widget, property.first);
        QVERIFY2(value.isValid(), property.first.constData());
        // Enumerations are compared as their numbers.
        const QString actual =
            value.canConvert<int>() && property.second.userType() == QMetaType::Int
                ? QString::number(value.toInt())
                : value.toString();
        QCOMPARE(QLatin1String(property.first) + QLatin1Char('=') + actual,
                 QLatin1String(property.first) + QLatin1Char('=') + property.second.toString());
    }
}

void TestPageControls::labelReads_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("buddy");
    const auto row = [](const QString& page, const char* label, const char* text,
                        const char* buddy) {
        QTest::newRow(qPrintable(page + QLatin1Char('.') + QLatin1String(label)))
            << page << QString(QLatin1String(label)) << QString(QLatin1String(text))
            << QString(QLatin1String(buddy));
    };
    for (const LabelRow& label : labelRows) {
        row(QLatin1String(label.page), label.label, label.text, label.buddy);
    }
    // Those of the view pages before a state has set the units.
    for (const ledger::Setting& setting : ledger::settings()) {
        for (int view = 0; setting.label && view < setting.viewCount(); ++view) {
            if (!setting.is("video_type")) {
                row(setting.pageOf(view), setting.label, setting.caption, setting.control);
            }
        }
    }
}

void TestPageControls::labelReads()
{
    QFETCH(QString, page);
    QFETCH(QString, label);
    QFETCH(QString, text);
    QFETCH(QString, buddy);
    AllPages pages;
    const auto* const widget = qobject_cast<QLabel*>(findOnPage(pages.window(), page, label));
    QVERIFY(widget);
    QCOMPARE(widget->text(), text);
    if (buddy.isEmpty()) {
        QVERIFY(!widget->buddy());
    } else {
        QVERIFY(widget->buddy());
        QCOMPARE(widget->buddy(), findOnPage(pages.window(), page, buddy));
    }
}

void TestPageControls::listHasItemsInOrder_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char* page, const char* name, const QStringList& items) {
        QTest::newRow(
            qPrintable(QStringLiteral("%1.%2").arg(QLatin1String(page), QLatin1String(name))))
            << QString(QLatin1String(page)) << QString(QLatin1String(name)) << items;
    };
    const char* const video = "VideoFormatPage";
    row(video, "aspectRatioList", lines({"Custom", "1:1", "4:3", "16:9"}));
    row(video, "framerateList",
        lines({"7.60", "9.10", "10.00", "12.50", "12.80", "15.00", "23.98", "24.00", "25.00",
               "29.97", "30.00", "50.00", "59.94", "60.00"}));
    for (const ledger::Setting& setting : ledger::settings()) {
        // Presets, profiles and levels are the dialog's names; see TestDialogEdits.
        if (setting.kind != ledger::Kind::List || setting.group == ledger::Group::Stream) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            row(qPrintable(setting.pageOf(view)), setting.control,
                ledger::listedTexts(QString::fromLatin1(setting.member)));
        }
    }
}

void TestPageControls::listHasItemsInOrder()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    AllPages pages;
    const auto* const list = qobject_cast<QComboBox*>(findOnPage(pages.window(), page, name));
    QVERIFY(list);
    QStringList items;
    for (int i = 0; i < list->count(); ++i) {
        items += list->itemText(i);
        QVERIFY(list->itemIcon(i).isNull());
        QVERIFY(!list->itemData(i).isValid());
    }
    QTEST(items, "items");
}

void TestPageControls::everyControlIsKnown()
{
    // Walks what was built, so that no control escapes the tables of these tests.
    QStringList known = lines({"BasicPage.deviceList", "VideoFormatPage.aspectRatioCheck"});
    for (const Control& control : controls()) {
        if (control.name != QLatin1String("units")) {
            known += fullName(control);
        }
    }
    for (int view = 0; view < 4; ++view) {
        for (const char* name : {"units1Radio", "units2Radio", "units3Radio", "onesecCheck"}) {
            known += QStringLiteral("View%1Page.%2").arg(view).arg(QLatin1String(name));
        }
    }
    known.sort();

    AllPages pages;
    QStringList found;
    for (const QWidget* widget : pages.window()->findChildren<QWidget*>()) {
        const bool isControl =
            widget->inherits("QComboBox") || widget->inherits("QAbstractSpinBox") ||
            widget->inherits("QSlider") || widget->inherits("QCheckBox") ||
            widget->inherits("QRadioButton") || widget->inherits("QPushButton") ||
            (widget->inherits("QLineEdit") && !widget->focusProxy());
        if (isControl && pageOf(widget)) {
            found += QLatin1String(pageOf(widget)->metaObject()->className()) + QLatin1Char('.') +
                     widget->objectName();
        }
    }
    found.sort();
    QCOMPARE(found, known);
}

void TestPageControls::eachKeyHasOneControl()
{
    QStringList keys;
    QStringList names;
    for (const Control& control : controls()) {
        keys += control.key;
        names += fullName(control);
        QVERIFY2(control.a != control.b, qPrintable(control.key));
    }
    QCOMPARE(keys.removeDuplicates(), 0);
    QCOMPARE(names.removeDuplicates(), 0);
}

void TestPageControls::eachControlHasOneKey_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < controls().size(); ++i) {
        QTest::newRow(qPrintable(controls()[i].key)) << i;
    }
}

void TestPageControls::eachControlHasOneKey()
{
    QFETCH(int, index);
    const Control& changed = controls()[index];
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    pages.receive(state);
    state.insert(changed.key, changed.b);
    pages.receive(state);
    QStringList moved;
    for (const Control& control : controls()) {
        if (shown(pages.window(), control) != control.a) {
            moved += fullName(control);
        }
    }
    QCOMPARE(moved, QStringList(fullName(changed)));
    QCOMPARE(shown(pages.window(), changed), changed.b);
}

QTEST_MAIN(TestPageControls)
#include "tst_page_controls.moc"
