// When the encoder's check runs: once an edit, whatever the edit sets off.

#include "DialogTest.h"
#include "ModalWatch.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <functional>

class TestDialogChecks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void perEdit_data();
    void perEdit();
    void pushingTellsNothingBack();
    void checkSeesTheEdit();
    void correctionsReachEveryPage();
    void checkWhilePagesAreToldReturnsFalse();
    void editWhilePagesAreToldIsAppliedButNotChecked();
    void clampInsideADescriptionIsReportedLikeAnEdit();
    void fullnessAbove100PercentIsClampedInTheRecord_data();
    void fullnessAbove100PercentIsClampedInTheRecord();
    void insistingCheckNeitherRecursesNorHangs_data();
    void insistingCheckNeitherRecursesNorHangs();
    void hostDeletesTheDialogWhileAMessageIsShown();
};

using Edit = std::function<void(OpenDialog&)>;
Q_DECLARE_METATYPE(Edit)
/// Opens a dialog and does what shall be looked at.
using Open = std::function<std::unique_ptr<OpenDialog>()>;
Q_DECLARE_METATYPE(Open)

namespace
{

template <class Control>
Control* on(const OpenDialog& dialog, const char* page, const char* name)
{
    return findControl<Control>(dialog.get(), page, name);
}

} // namespace

void TestDialogChecks::perEdit_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<int>("views");
    QTest::addColumn<int>("checks");
    const auto row = [](const char* name, int views, int checks, Edit edit) {
        QTest::newRow(name) << edit << views << checks;
    };

    row("number typed", 2, 1, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "VideoFormatPage", "widthSpin"), QStringLiteral("1280"));
    });
    row("number typed, four views", 4, 1, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "VideoFormatPage", "widthSpin"), QStringLiteral("1280"));
    });
    row("each key of a field that reports each", 2, 3, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "GOPStructurePage", "iFrameIntervalSpin"),
                   QStringLiteral("250"));
    });
    row("item chosen", 2, 1, [](OpenDialog& d) {
        user::choose(on<QComboBox>(d, "VideoFormatPage", "interlaceList"), QStringLiteral("MBAFF"));
    });
    row("the same item chosen again", 2, 2, [](OpenDialog& d) {
        for (int i = 0; i < 2; ++i)
            user::choose(on<QComboBox>(d, "VideoFormatPage", "interlaceList"),
                         QStringLiteral("MBAFF"));
    });
    row("switch", 2, 1,
        [](OpenDialog& d) { user::click(on<QCheckBox>(d, "MiscPage", "deblockingCheck")); });
    row("slider", 2, 1, [](OpenDialog& d) {
        user::pageUp(on<QSlider>(d, "RateDistortionPage", "contrastSlider"));
    });
    row("number of views", 2, 1, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "ViewsPage", "numViewsSpin"), QStringLiteral("3"));
    });
    row("rate control", 2, 1, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "View1Page", "targetRateSpin"), QStringLiteral("5000000"));
    });
    row("rate that drags the other", 2, 1, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "View1Page", "targetRateSpin"), QStringLiteral("9000000"));
    });
    row("units", 2, 1,
        [](OpenDialog& d) { user::click(on<QRadioButton>(d, "View0Page", "units2Radio")); });
    row("initial fullness, which is reported twice", 2, 2, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "View0Page", "vbvInitialSpin"), QStringLiteral("60"));
    });
    row("target fullness, which is not reported", 2, 0, [](OpenDialog& d) {
        user::type(on<QSpinBox>(d, "View0Page", "vbvTargetSpin"), QStringLiteral("60"));
    });
    row("preset", 2, 1,
        [](OpenDialog& d) { user::choose(d.presetList(), QStringLiteral("Stereo High")); });
    row("preset restored", 2, 1, [](OpenDialog& d) { user::click(d.button("presetButton")); });
    row("file loaded", 2, 1, [](OpenDialog& d) { d.dropSettings(exampleSettings()); });
    row("OK", 2, 1, [](OpenDialog& d) { user::click(d.button("buttonOk")); });
    row("OK that is refused", 2, 1, [](OpenDialog& d) {
        d.companions.onCheck = [](KvMvcLookup, KvMvcSettings&) { return 1; };
        user::click(d.button("buttonOk"));
    });
    row("cancel", 2, 0, [](OpenDialog& d) { user::click(d.button("buttonCancel")); });
    row("tab and section", 2, 0, [](OpenDialog& d) {
        d.tabs()->setCurrentIndex(2);
        d.tabs()->setCurrentIndex(0);
    });
    row("edit with a clamp inside its description", 2, 1, [](OpenDialog& d) {
        d.put({{0, 132, 1}, {0, 124, 5000}, {1, 132, 1}, {1, 124, 7000}});
        d.companions.calls.clear();
        user::click(on<QRadioButton>(d, "View0Page", "units1Radio"));
    });
    row("file loaded with a clamp inside its description", 2, 1, [](OpenDialog& d) {
        d.put({{0, 132, 1}, {1, 132, 1}});
        KvMvcSettings settings = exampleSettings();
        put(settings, {{0, 124, 5000}, {1, 124, 7000}});
        d.dropSettings(settings);
    });
}

void TestDialogChecks::perEdit()
{
    QFETCH(Edit, edit);
    QFETCH(int, views);
    QFETCH(int, checks);
    KvMvcSettings settings = exampleSettings();
    settings.num_views = views;
    OpenDialog dialog(usualFlags, settings);
    QCOMPARE(dialog.companions.calls.size(), 0);
    edit(dialog);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), checks);
    QCOMPARE(dialog.companions.count(QStringLiteral("check 3 0")), checks);
}

void TestDialogChecks::pushingTellsNothingBack()
{
    OpenDialog dialog;
    dialog.put({{0, 24, 1280}, {0, 20, 2}, {0, 80, 1000}, {1, 132, 2}, {0, 5496, -40}});
    const QByteArray before = dialog.bytes();
    dialog.probe().settingsToState();
    QVERIFY(dialog.bytes() == before);
    QVERIFY(dialog.companions.calls.isEmpty());
}

void TestDialogChecks::checkSeesTheEdit()
{
    OpenDialog dialog;
    int width = 0;
    dialog.companions.onCheck = [&width](KvMvcLookup, KvMvcSettings& settings) {
        width = settings.views[1].width;
        return 0;
    };
    user::type(on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin"), QStringLiteral("640"));
    QCOMPARE(width, 640);
}

void TestDialogChecks::correctionsReachEveryPage()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& settings) {
        // The description is of the view that the edit visited last.
        put(settings, {{Cell::Record, 4, 1},
                       {1, 24, 1024},
                       {1, 4, 31},
                       {1, 8, 7},
                       {0, 80, 1234},
                       {1, 1804, 3}});
        return 1;
    };
    user::choose(on<QComboBox>(dialog, "VideoFormatPage", "interlaceList"),
                 QStringLiteral("MBAFF"));
    QCOMPARE(on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin")->value(), 1024);
    QCOMPARE(on<QComboBox>(dialog, "AdvancedPage", "levelList")->currentText(),
             QStringLiteral("3.1"));
    QCOMPARE(on<QSpinBox>(dialog, "GOPStructurePage", "iFrameIntervalSpin")->value(), 7);
    QCOMPARE(on<QSpinBox>(dialog, "View0Page", "targetRateSpin")->value(), 1234);
    QVERIFY(on<QCheckBox>(dialog, "ViewsPage", "splitCheck")->isChecked());
    QCOMPARE(dialog.presetList()->currentText(), QStringLiteral("Blu-ray 3D"));
}

void TestDialogChecks::checkWhilePagesAreToldReturnsFalse()
{
    OpenDialog dialog;
    dialog.companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings&) {
        print(lookUp, "err_printf", "first");
        return 0;
    };
    QVERIFY(dialog.probe().check());
    const QString logged = dialog.log()->toPlainText();
    const QByteArray before = dialog.bytes();
    dialog.companions.calls.clear();

    dialog.probe().updating() = true;
    QVERIFY(!dialog.probe().check());
    QVERIFY(dialog.companions.calls.isEmpty());
    QCOMPARE(dialog.log()->toPlainText(), logged);
    QVERIFY(dialog.bytes() == before);

    dialog.probe().updating() = false;
    QVERIFY(dialog.probe().check());
}

void TestDialogChecks::editWhilePagesAreToldIsAppliedButNotChecked()
{
    OpenDialog dialog;
    ConfigState state;
    state.insert(QStringLiteral("Target Bitrate V1"), 777);
    dialog.probe().updating() = true;
    dialog->slotReceiveState(state);
    QVERIFY(dialog.probe().updating());
    QCOMPARE(int(dialog.probe().record().settings.views[1].bitrate), 777);
    QCOMPARE(on<QSpinBox>(dialog, "View1Page", "targetRateSpin")->value(), 777);
    QVERIFY(dialog.companions.calls.isEmpty());
}

void TestDialogChecks::clampInsideADescriptionIsReportedLikeAnEdit()
{
    OpenDialog dialog;
    dialog.put({{0, 132, 1}, {0, 124, 5000}, {0, 128, 6000}});
    const QByteArray before = dialog.bytes();
    user::click(on<QRadioButton>(dialog, "View0Page", "units1Radio"));
    // The target fullness is clamped on the page alone.
    QCOMPARE(differences(before, dialog.bytes()),
             expectedDifferences(before, {{0, 132, 0}, {0, 124, 100}}));
    QCOMPARE(on<QSpinBox>(dialog, "View0Page", "vbvInitialSpin")->value(), 100);
    QCOMPARE(on<QSpinBox>(dialog, "View0Page", "vbvTargetSpin")->value(), 100);
}

namespace
{

/// Percent units and this initial fullness, in the two views of the record.
void putPercent(KvMvcSettings& settings, int fullness)
{
    put(settings, {{0, 132, 0}, {0, 124, fullness}, {1, 132, 0}, {1, 124, fullness}});
}

std::function<int(KvMvcLookup, KvMvcSettings&)> checkThatSetsPercent(int fullness)
{
    return [fullness](KvMvcLookup, KvMvcSettings& settings) {
        putPercent(settings, fullness);
        return 0;
    };
}

} // namespace

void TestDialogChecks::fullnessAbove100PercentIsClampedInTheRecord_data()
{
    QTest::addColumn<Open>("open");
    QTest::addColumn<int>("checks");
    const auto row = [](const char* name, int checks, Open open) {
        QTest::newRow(name) << open << checks;
    };
    const auto opened = [](qint32 flags) {
        KvMvcSettings settings = exampleSettings();
        putPercent(settings, 150);
        return std::make_unique<OpenDialog>(flags, settings);
    };
    const auto example = [] { return std::make_unique<OpenDialog>(); };

    row("host's record", 0, [=] { return opened(usualFlags); });
    row("host's record, checked at once", 1,
        [=] { return opened(usualFlags & ~KV_MVC_GUI_NO_INITIAL_CHECK); });
    row("host's record, rate control alone", 0, [=] { return opened(0); });
    row("left by the first check", 1, [] {
        return std::make_unique<OpenDialog>(usualFlags & ~KV_MVC_GUI_NO_INITIAL_CHECK,
                                            exampleSettings(), [](RecordingCompanions& companions) {
                                                companions.onCheck = checkThatSetsPercent(150);
                                            });
    });
    row("file, after percent", 1, [=] {
        auto dialog = example();
        KvMvcSettings settings = exampleSettings();
        putPercent(settings, 150);
        dialog->dropSettings(settings);
        return dialog;
    });
    row("file, after bits", 1, [=] {
        auto dialog = example();
        dialog->put({{0, 132, 1}, {1, 132, 1}});
        KvMvcSettings settings = exampleSettings();
        putPercent(settings, 150);
        dialog->dropSettings(settings);
        return dialog;
    });
    row("preset", 1, [=] {
        auto dialog = example();
        dialog->companions.onDefaults = [](KvMvcSettings& settings, int) {
            putPercent(settings, 150);
        };
        user::click(dialog->button("presetButton"));
        return dialog;
    });
    row("left by the check of an edit", 1, [=] {
        auto dialog = example();
        dialog->companions.onCheck = checkThatSetsPercent(150);
        user::click(on<QCheckBox>(*dialog, "MiscPage", "deblockingCheck"));
        return dialog;
    });
}

void TestDialogChecks::fullnessAbove100PercentIsClampedInTheRecord()
{
    QFETCH(Open, open);
    QFETCH(int, checks);
    const std::unique_ptr<OpenDialog> dialog = open();
    QCOMPARE(dialog->companions.count(QStringLiteral("check")), checks);
    QVERIFY(!dialog->probe().updating());
    for (const char* page : {"View0Page", "View1Page"}) {
        QCOMPARE(on<QSpinBox>(*dialog, page, "vbvInitialSpin")->value(), 100);
    }
    for (const auto& view : dialog->probe().record().settings.views) {
        QCOMPARE(int(view.vbv_initial), 100);
    }
    QVERIFY(bytesOf(dialog->caller) == dialog->given);

    user::click(dialog->button("buttonOk"));
    QVERIFY(!(*dialog)->isVisible());
    for (const auto& view : dialog->caller.views) {
        QCOMPARE(int(view.vbv_initial), 100);
    }
    QVERIFY(bytesOf(dialog->caller) == dialog->bytes());
}

void TestDialogChecks::insistingCheckNeitherRecursesNorHangs_data()
{
    QTest::addColumn<bool>("changesUnits");
    QTest::newRow("out of range in percent units") << false;
    QTest::newRow("and other units each time") << true;
}

void TestDialogChecks::insistingCheckNeitherRecursesNorHangs()
{
    QFETCH(bool, changesUnits);
    OpenDialog dialog;
    int units = 0;
    dialog.companions.onCheck = [&](KvMvcLookup, KvMvcSettings& settings) {
        if (changesUnits) {
            units = 1 - units;
        }
        for (int view = 0; view < 2; ++view) {
            put(settings, {{view, 132, units}, {view, 124, 5000}, {view, 128, -3}});
        }
        return 0;
    };

    for (int edit = 1; edit <= 6; ++edit) {
        user::click(on<QCheckBox>(dialog, "MiscPage", "deblockingCheck"));
        QCOMPARE(dialog.companions.count(QStringLiteral("check")), edit);
        const int fullness = units == 0 ? 100 : 5000;
        for (const auto& view : dialog.probe().record().settings.views) {
            QCOMPARE(int(view.vbv_initial), fullness);
            // The page shows 0 and reports nothing: the target is never reported.
            QCOMPARE(int(view.vbv_target), -3);
            QCOMPARE(int(view.bitrate_units), units);
        }
        for (const char* page : {"View0Page", "View1Page"}) {
            QCOMPARE(on<QSpinBox>(dialog, page, "vbvInitialSpin")->value(), fullness);
        }
    }
    // Still of use: other settings may be edited, and OK gives what the controls show.
    user::type(on<QSpinBox>(dialog, "VideoFormatPage", "heightSpin"), QStringLiteral("480"));
    user::click(dialog.button("buttonOk"));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(int(dialog.caller.views[0].height), 480);
    QCOMPARE(int(dialog.caller.views[0].bitrate_units), 0);
    QCOMPARE(int(dialog.caller.views[0].vbv_initial), 100);
}

void TestDialogChecks::hostDeletesTheDialogWhileAMessageIsShown()
{
    RecordingCompanions companions;
    KvMvcSettings settings = exampleSettings();
    QPointer<AVCVideoEncoderDlg> dialog = new AVCVideoEncoderDlg(&settings, nullptr, nullptr);
    dialog->show();
    dialog->findChild<QTextEdit*>(QStringLiteral("errorLog"))->hide();
    companions.onCheck = [](KvMvcLookup lookUp, KvMvcSettings& checked) {
        print(lookUp, "err_printf", "too wide");
        checked.views[0].width = 16;
        return 0;
    };
    ModalWatch watch([&dialog](QWidget*) { delete dialog; });
    dialog->slotAccept();
    QCOMPARE(watch.seen(), 1);
    QVERIFY(!dialog);
    QCOMPARE(int(settings.views[0].width), 720);
}

QTEST_MAIN(TestDialogChecks)
#include "tst_dialog_checks.moc"
