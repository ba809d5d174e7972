// What the dialog tells at its controls: in tips and What's This, by marks, and while one types.

#include "CheckWords.h"
#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QTest>
#include <QToolTip>

#include <utility>

namespace
{

QSpinBox* rateOf(const OpenDialog& dialog, int view)
{
    return on<QSpinBox>(dialog, qPrintable(QStringLiteral("View%1Page").arg(view)),
                        "targetRateSpin");
}

QStringList linesOf(const QWidget* control)
{
    return control->toolTip().split(QLatin1Char('\n'));
}

/// What is painted right beside a control, on its left or right, as it now stands.
QColor colourBeside(const QWidget* control, int distance)
{
    QWidget* const ground = control->parentWidget();
    const QRect place = control->geometry();
    const int x = distance < 0 ? place.left() + distance : place.right() + distance;
    return ground->grab().toImage().pixelColor(x, place.center().y());
}

const QWidget* labelOf(const OpenDialog& dialog, const char* page, const char* name)
{
    return findControl<QLabel>(dialog.get(), page, name);
}

/// Whether the bar of a changed setting stands before the label.
bool hasBar(const QWidget* label)
{
    const QColor bar = colourBeside(label, -3);
    return bar.green() > bar.red() + 40 && bar.green() > bar.blue() + 20;
}

/// The share of the frame above a control that is painted in its colour, in percent.
int shareOfFrame(const QWidget* control, bool isError)
{
    QWidget* const ground = control->parentWidget();
    const QImage picture = ground->grab().toImage();
    const QRect place = control->geometry();
    int painted = 0;
    for (int x = place.left(); x <= place.right(); ++x) {
        const QColor colour = picture.pixelColor(x, place.top() - 1);
        const int strong = isError ? colour.red() : colour.blue();
        const int weak = isError ? colour.blue() : colour.red();
        painted += strong > weak + 60 ? 1 : 0;
    }
    return painted * 100 / place.width();
}

/// Chooses the preset, and goes on in the dialog's window.
void choosePreset(const OpenDialog& dialog, const char* name)
{
    user::choose(dialog.presetList(), QString::fromLatin1(name));
    dialog->activateWindow();
    QCoreApplication::processEvents();
}

void dark()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(40, 40, 44));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::Button, QColor(60, 60, 64));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
    }
    QApplication::setPalette(palette);
}

} // namespace

class TestDialogHelp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }
    void cleanup()
    {
        QToolTip::hideText();
        QApplication::setPalette(QPalette());
    }

    void tipTellsRangeAndStart_data();
    void tipTellsRangeAndStart();
    void whatsThisIsTheSame();
    void tipTellsWhyItIsGreyed_data();
    void tipTellsWhyItIsGreyed();
    void changedSettingIsMarked_data();
    void changedSettingIsMarked();
    void presetAndFileAreNewStarts();
    void preparationOfAFailedPresetIsNoStart();
    void undoGoesBackToTheFormerStart();
    void shownViewIsComparedWithItsOwnStart();
    void messagesAreAtTheirControls_data();
    void messagesAreAtTheirControls();
    void worstMessageDecidesTheMark();
    void notesAndUnknownFactsMarkNothing();
    void messageIsNoMarkup();
    void marksChangeNoSizes();
    void rateIsReadWhileItIsTyped_data();
    void rateIsReadWhileItIsTyped();
    void viewsBeyondTheSettingsSaySo();
    void targetFullnessSaysThatItIsOnlyShown();
};

void TestDialogHelp::tipTellsRangeAndStart_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* page, const char* control,
                        std::initializer_list<const char*> texts) {
        QStringList lines;
        for (const char* text : texts) {
            lines += QString::fromUtf8(text);
        }
        QTest::newRow(control) << QByteArray(page) << QByteArray(control) << lines;
    };
    row("VideoFormatPage", "widthSpin",
        {"Width of the coded picture in luma samples.", "Range: 16 to 4096.",
         "Starting value: 720 (as opened)."});
    // What the control takes and the encoder does not is no range.
    row("MotionEstimationPage", "refFramesSpin",
        {"Number of reference frames per view.", "Range: 0 to 16.",
         "The range rests on: 7.4.2.1.1: max_num_ref_frames.", "Starting value: 4 (as opened)."});
    row("View0Page", "quantISpin",
        {"Quantizer of I-frames; larger values save bits at the cost of quality.",
         "Range: 2 to 51.", "The range rests on: 7.4.2.2.", "Starting value: 20 (as opened)."});
    row("View1Page", "iSizeSpin",
        {"Largest coded I-frame in bytes; 0 sets no limit.", "Range: 0 to 2147483647 bytes.",
         "Starting value: 200000 (as opened)."});
    row("View0Page", "vbvInitialSpin",
        {"Fullness of the coded picture buffer (VBV) when decoding starts.", "Range: 0 to 100.",
         "Starting value: 50 (as opened)."});
    row("RateDistortionPage", "contrastSlider",
        {"Strength of adaptive quantization by contrast; 0 switches it off.", "Range: -100 to 100.",
         "Starting value: 0 (as opened)."});
    row("MiscPage", "threadsSpin",
        {"Number of threads that the encoder works with; \"Auto\" leaves it to the encoder.",
         "Range: 0 to 16.", "Starting value: Auto (as opened)."});
    row("MiscPage", "deblockingCheck",
        {"Smooths block edges inside the coding loop, so that references are smoothed, too.",
         "Starting value: on (as opened)."});
    row("MiscPage", "entropyList",
        {"Entropy coder of the stream; CABAC needs fewer bits than CAVLC, and more time.",
         "Starting value: CABAC (as opened)."});
    row("View0Page", "units2Radio",
        {"Buffer size and buffer fullness in bits. Switching does not convert the numbers.",
         "Starting value: Bitrate buffer (bytes), VBV buffers (%) (as opened)."});
}

void TestDialogHelp::tipTellsRangeAndStart()
{
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, control);
    KvMvcSettings settings = exampleSettings();
    for (KvMvcViewSettings& view : settings.views) {
        view.num_ref_frames = 4;
        view.quant_i = 20;
        view.frame_size_i = 200000;
        view.vbv_initial = 50;
        view.bitrate_units = KV_MVC_UNITS_BYTES_PERCENT;
        view.contrast = 0;
        view.num_threads = 0;
        view.deblocking = 1;
        view.entropy_mode = KV_MVC_CABAC;
    }
    OpenDialog dialog(usualFlags, settings);
    QTEST(linesOf(on<QWidget>(dialog, page.constData(), control.constData())), "lines");
}

void TestDialogHelp::whatsThisIsTheSame()
{
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    QCOMPARE(linesOf(width).value(2),
             QStringLiteral("Changed; the starting value is 720 (as opened)."));
    QCOMPARE(width->whatsThis(), width->toolTip());
    const QWidget* const label = labelOf(dialog, "VideoFormatPage", "resolutionLabel");
    QCOMPARE(label->toolTip(), width->toolTip());
    QCOMPARE(label->whatsThis(), width->toolTip());
}

void TestDialogHelp::tipTellsWhyItIsGreyed_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<int>("locks");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* page, const char* control, int locks, const char* reason) {
        QTest::newRow(control) << QByteArray(page) << QByteArray(control) << locks
                               << QString::fromLatin1(reason);
    };
    const char* const locked = "Greyed because the program that opened the dialog has set it.";
    row("VideoFormatPage", "heightSpin", KV_MVC_GUI_LOCK_SIZE, locked);
    row("VideoFormatPage", "aspectRatioList", KV_MVC_GUI_LOCK_SIZE, locked);
    row("VideoFormatPage", "framerateList", KV_MVC_GUI_LOCK_FRAME_RATE, locked);
    row("AdvancedPage", "profileList", KV_MVC_GUI_LOCK_PROFILE, locked);
    row("ViewsPage", "numViewsSpin", KV_MVC_GUI_LOCK_VIEWS, locked);
    row("AVCVideoEncoderDlg", "presetList", KV_MVC_GUI_LOCK_VIDEO_TYPE, locked);
    row("VideoFormatPage", "pixelXSpin", 0,
        "Greyed because the picture aspect ratio sets it, unless that is \"Custom\".");
    row("VideoFormatPage", "fieldOrderList", 0,
        "Greyed because progressive pictures have no fields.");
    row("View2Page", "targetRateSpin", 0,
        "Greyed because this view is not coded; see \"Number of additional views\".");
    row("View3Page", "units3Radio", 0,
        "Greyed because this view is not coded; see \"Number of additional views\".");
}

void TestDialogHelp::tipTellsWhyItIsGreyed()
{
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, control);
    QFETCH(int, locks);
    QFETCH(QString, reason);
    KvMvcSettings settings = exampleSettings();
    for (KvMvcViewSettings& view : settings.views) {
        view.display_aspect_x = locks ? KV_MVC_ASPECT_UNSET : 16;
        view.display_aspect_y = locks ? KV_MVC_ASPECT_UNSET : 9;
        view.frame_rate = 25;
        view.interlace_mode = KV_MVC_PROGRESSIVE;
        view.field_order = KV_MVC_TOP_FIELD_FIRST;
    }
    OpenDialog dialog(usualFlags | locks, settings);
    const auto* const widget = on<QWidget>(dialog, page.constData(), control.constData());
    QVERIFY(!widget->isEnabled());
    QCOMPARE(linesOf(widget).last(), reason);
    // Of what may be changed nothing of the kind is said.
    QVERIFY(!rateOf(dialog, 0)->toolTip().contains(QLatin1String("Greyed")));

    if (page == "VideoFormatPage" && control == "fieldOrderList") {
        user::choose(on<QComboBox>(dialog, "VideoFormatPage", "interlaceList"),
                     QStringLiteral("Interlaced"));
        QVERIFY(widget->isEnabled());
        QVERIFY(!widget->toolTip().contains(QLatin1String("Greyed")));
    }
}

void TestDialogHelp::changedSettingIsMarked_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<int>("skin");
    QTest::newRow("light") << false << int(Qt::Key_F5);
    QTest::newRow("dark") << true << int(Qt::Key_F5);
    QTest::newRow("metal") << false << int(Qt::Key_F6);
}

void TestDialogHelp::changedSettingIsMarked()
{
    QFETCH(bool, isDark);
    QFETCH(int, skin);
    if (isDark) {
        dark();
    }
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(skin));
    const QWidget* const label = labelOf(dialog, "VideoFormatPage", "resolutionLabel");
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    QVERIFY(!hasBar(label));
    user::type(width, QStringLiteral("640"));
    QVERIFY(hasBar(label));
    QVERIFY(!hasBar(labelOf(dialog, "VideoFormatPage", "fpsLabel")));
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 1);
    // Back to what it was, by hand.
    user::type(width, QStringLiteral("720"));
    QVERIFY(!hasBar(label));

    // A box has no label but its own.
    auto* const deblocking = on<QCheckBox>(dialog, "MiscPage", "deblockingCheck");
    user::reveal(deblocking);
    QVERIFY(!hasBar(deblocking));
    user::click(deblocking);
    QVERIFY(hasBar(deblocking));
    QVERIFY(linesOf(deblocking).last().startsWith(QLatin1String("Changed; ")));
}

void TestDialogHelp::presetAndFileAreNewStarts()
{
    OpenDialog dialog;
    dialog.companions.onDefaults = [](KvMvcSettings& settings, int) {
        settings.views[0].width = settings.views[1].width = 1920;
    };
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    choosePreset(dialog, "Stereo High");
    const QWidget* const label = labelOf(dialog, "VideoFormatPage", "resolutionLabel");
    QVERIFY(!hasBar(label));
    QCOMPARE(linesOf(width).last(), QStringLiteral("Starting value: 1920 (Preset Stereo High)."));
    user::type(width, QStringLiteral("640"));
    QVERIFY(hasBar(label));

    KvMvcSettings file = exampleSettings();
    file.views[0].width = file.views[1].width = 352;
    dialog.dropSettings(file);
    QVERIFY(!hasBar(label));
    QCOMPARE(linesOf(width).last(), QStringLiteral("Starting value: 352 (File settings.cfg)."));
    // What the check makes of a file is a change of it.
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        settings.views[0].width = settings.views[1].width = 368;
        return 0;
    };
    dialog.dropSettings(file);
    QCOMPARE(linesOf(width).last(),
             QStringLiteral("Changed; the starting value is 352 (File settings.cfg)."));
}

void TestDialogHelp::preparationOfAFailedPresetIsNoStart()
{
    OpenDialog dialog;
    dialog.companions.onDefaults = [](KvMvcSettings&, int) { throw 1; };
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    choosePreset(dialog, "Stereo High");
    QCOMPARE(linesOf(width).last(),
             QStringLiteral("Changed; the starting value is 720 (as opened)."));
}

void TestDialogHelp::undoGoesBackToTheFormerStart()
{
    OpenDialog dialog;
    dialog.companions.onDefaults = [](KvMvcSettings& settings, int) {
        settings.views[0].width = settings.views[1].width = 1920;
    };
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    choosePreset(dialog, "Stereo High");
    user::type(width, QStringLiteral("800"));
    const auto start = [&] { return linesOf(width).last(); };
    const QString ofPreset = QStringLiteral("1920 (Preset Stereo High).");
    const QString ofOpening = QStringLiteral("720 (as opened).");
    const std::pair<Qt::KeyboardModifiers, QString> turns[] = {
        {Qt::ControlModifier, QStringLiteral("Starting value: ") + ofPreset},
        {Qt::ControlModifier, QStringLiteral("Changed; the starting value is ") + ofOpening},
        {Qt::ControlModifier, QStringLiteral("Starting value: ") + ofOpening},
        {Qt::ControlModifier | Qt::ShiftModifier,
         QStringLiteral("Changed; the starting value is ") + ofOpening},
        {Qt::ControlModifier | Qt::ShiftModifier, QStringLiteral("Starting value: ") + ofPreset}};
    for (const auto& [modifiers, expected] : turns) {
        QTest::keyClick(dialog.get(), Qt::Key_Z, modifiers);
        QCOMPARE(start(), expected);
    }
}

void TestDialogHelp::shownViewIsComparedWithItsOwnStart()
{
    // Views may differ in these; at opening the first one shows, after an edit the last one.
    KvMvcSettings settings = exampleSettings();
    settings.views[0].num_ref_frames = 4;
    settings.views[1].num_ref_frames = 2;
    OpenDialog dialog(usualFlags, settings);
    auto* const references = on<QSpinBox>(dialog, "MotionEstimationPage", "refFramesSpin");
    QCOMPARE(linesOf(references).last(), QStringLiteral("Starting value: 4 (as opened)."));
    user::type(rateOf(dialog, 0), QStringLiteral("5000000"));
    QCOMPARE(references->value(), 2);
    QCOMPARE(linesOf(references).last(), QStringLiteral("Starting value: 2 (as opened)."));
}

void TestDialogHelp::messagesAreAtTheirControls_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestDialogHelp::messagesAreAtTheirControls()
{
    QFETCH(bool, isDark);
    if (isDark) {
        dark();
    }
    OpenDialog dialog;
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    auto* const rate = on<QComboBox>(dialog, "VideoFormatPage", "framerateList");
    const QString description = width->accessibleDescription();
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", "width", -1, "It is too wide.");
        printAbout(lookUp, "wrn_printf", "frame_rate", -1, "It is fast.");
        return 1;
    };
    dialog.probe().check();
    QCOMPARE(linesOf(width).last(), QStringLiteral("Error: It is too wide."));
    QCOMPARE(linesOf(rate).last(), QStringLiteral("Warning: It is fast."));
    QVERIFY(width->accessibleDescription().startsWith(QLatin1String("Error: It is too wide.")));
    QVERIFY(rate->accessibleDescription().startsWith(QLatin1String("Warning: It is fast.")));
    QVERIFY(shareOfFrame(width, true) > 90);
    // Dashed: what tells them apart is not the colour alone.
    QVERIFY(shareOfFrame(rate, false) > 30);
    QVERIFY(shareOfFrame(rate, false) < 80);
    QCOMPARE(shareOfFrame(on<QSpinBox>(dialog, "VideoFormatPage", "heightSpin"), true), 0);

    // Until the next check.
    dialog.companions.onCheck = {};
    dialog.probe().check();
    QVERIFY(!width->toolTip().contains(QLatin1String("Error")));
    QCOMPARE(width->accessibleDescription(), description);
    QCOMPARE(shareOfFrame(width, true), 0);
    QCOMPARE(shareOfFrame(rate, false), 0);
}

void TestDialogHelp::worstMessageDecidesTheMark()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", "bitrate", 1, "It is too high.");
        printAbout(lookUp, "wrn_printf", "bitrate", 1, "It is odd.");
        return 1;
    };
    dialog.probe().check();
    user::reveal(rateOf(dialog, 1));
    QCOMPARE(linesOf(rateOf(dialog, 1)).mid(3),
             QStringList({QStringLiteral("Error: It is too high."),
                          QStringLiteral("Warning: It is odd.")}));
    QVERIFY(shareOfFrame(rateOf(dialog, 1), true) > 90);
    QCOMPARE(shareOfFrame(rateOf(dialog, 0), true), 0);
}

void TestDialogHelp::notesAndUnknownFactsMarkNothing()
{
    OpenDialog dialog;
    const QString tip = rateOf(dialog, 0)->toolTip();
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "inf_printf", "bitrate", 0, "a note");
        printAbout(lookUp, "err_printf", "bitrate", 7, "an error of no view");
        print(lookUp, "err_printf", "an error about nothing");
        return 1;
    };
    dialog.probe().check();
    user::reveal(rateOf(dialog, 0));
    QCOMPARE(rateOf(dialog, 0)->toolTip(), tip);
    QCOMPARE(shareOfFrame(rateOf(dialog, 0), true), 0);
}

void TestDialogHelp::messageIsNoMarkup()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        printAbout(lookUp, "err_printf", "width", -1, "<b>wide</b> & more");
        return 1;
    };
    dialog.probe().check();
    const QString tip = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin")->toolTip();
    QVERIFY2(tip.endsWith(QLatin1String("Error: <b>wide</b> & more")), qPrintable(tip));
    QVERIFY(!Qt::mightBeRichText(tip));
}

void TestDialogHelp::marksChangeNoSizes()
{
    OpenDialog dialog;
    const auto places = [&] {
        QStringList all;
        for (const auto* widget : dialog->findChildren<QWidget*>()) {
            const QRect place = widget->geometry();
            all += QStringLiteral("%1 %2 %3 %4 %5")
                       .arg(widget->objectName())
                       .arg(place.x())
                       .arg(place.y())
                       .arg(place.width())
                       .arg(place.height());
        }
        return all;
    };
    for (int tab = 0; tab < 3; ++tab) {
        dialog.tabs()->setCurrentIndex(tab);
        QCoreApplication::processEvents();
    }
    dialog.tabs()->setCurrentIndex(0);
    user::type(on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin"), QStringLiteral("722"));
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings&) { return 1; };
    dialog.probe().check();
    const QStringList before = places();
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        for (const char* setting : {"width", "frame_rate", "level", "num_slices", "bitrate"}) {
            tellAbout(lookUp, setting);
            print(lookUp, "err_printf", "%s", "");
        }
        return 1;
    };
    dialog.probe().check();
    dialog->grab();
    QCOMPARE(places().filter(QLatin1String("Spin")), before.filter(QLatin1String("Spin")));
    QCOMPARE(places().filter(QLatin1String("List")), before.filter(QLatin1String("List")));
    QCOMPARE(places().filter(QLatin1String("abel")), before.filter(QLatin1String("abel")));
}

void TestDialogHelp::rateIsReadWhileItIsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("reading");
    const auto row = [](const char* typed, const char* reading) {
        QTest::newRow(typed) << QString::fromLatin1(typed) << QString::fromUtf8(reading);
    };
    row("22000000", "= 22\u00a0Mbit/s");
    row("1500000", "= 1.5\u00a0Mbit/s");
    row("1234567", "= 1.234567\u00a0Mbit/s");
    row("64000", "= 64\u00a0kbit/s");
    row("999", "= 0.999\u00a0kbit/s");
    row("0", "= 0\u00a0kbit/s");
    row("2147483647", "= 2147.483647\u00a0Mbit/s");
}

void TestDialogHelp::rateIsReadWhileItIsTyped()
{
    QFETCH(QString, typed);
    OpenDialog dialog;
    QSpinBox* const rate = rateOf(dialog, 1);
    user::reveal(rate);
    rate->setFocus();
    rate->selectAll();
    QTest::keyClicks(rate, typed);
    QTEST(QToolTip::text(), "reading");
    QCOMPARE(dialog.companions.calls, QStringList());
}

void TestDialogHelp::viewsBeyondTheSettingsSaySo()
{
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    const QString words =
        QStringLiteral("The settings hold two views: what is set for this one goes no further.");
    for (int view = 0; view < 4; ++view) {
        auto* const size =
            on<QSpinBox>(dialog, qPrintable(QStringLiteral("View%1Page").arg(view)), "iSizeSpin");
        QCOMPARE(linesOf(size).contains(words), view > 1);
        user::reveal(size);
        size->setFocus();
        size->selectAll();
        QTest::keyClicks(size, QStringLiteral("12"));
        QCOMPARE(QToolTip::text(), view > 1 ? words : QString());
        QToolTip::hideText();
    }
    rateOf(dialog, 3)->setFocus();
    rateOf(dialog, 3)->selectAll();
    QTest::keyClicks(rateOf(dialog, 3), QStringLiteral("64000"));
    QCOMPARE(QToolTip::text(), QStringLiteral("= 64\u00a0kbit/s\n") + words);
}

void TestDialogHelp::targetFullnessSaysThatItIsOnlyShown()
{
    OpenDialog dialog;
    const QByteArray before = dialog.bytesOfAllViews();
    auto* const target = on<QSpinBox>(dialog, "View0Page", "vbvTargetSpin");
    user::reveal(target);
    const QString shown = target->text();
    target->setFocus();
    target->selectAll();
    QTest::keyClicks(target, QStringLiteral("61"));
    QCOMPARE(QToolTip::text(), QStringLiteral("Only shown here: a preset or file sets it."));
    QTest::keyClick(target, Qt::Key_Tab);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.companions.calls, QStringList());
    QCOMPARE(dialog.bytesOfAllViews(), before);
    // With the next edit it shows what the settings have again.
    QCOMPARE(target->text(), QStringLiteral("61"));
    user::click(on<QCheckBox>(dialog, "View0Page", "hrdCheck"));
    QCOMPARE(target->text(), shown);
}

QTEST_MAIN(TestDialogHelp)
#include "tst_dialog_help.moc"
