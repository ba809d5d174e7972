// A page that clamps what it is told, in whatever way it is told: the record holds what the control
// shows, and the encoder is asked no more often for it.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTest>

#include <functional>
#include <iterator>
#include <memory>

class TestDialogClamps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void clampInsideADescriptionIsReportedLikeAnEdit();
    void fullnessAbove100PercentIsClampedInTheRecord_data();
    void fullnessAbove100PercentIsClampedInTheRecord();
    void recordHoldsWhatTheControlShows();
    void insistingCheckNeitherRecursesNorHangs_data();
    void insistingCheckNeitherRecursesNorHangs();
};

/// Opens a dialog and does what shall be looked at.
using Open = std::function<std::unique_ptr<OpenDialog>()>;
Q_DECLARE_METATYPE(Open)

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

void TestDialogClamps::clampInsideADescriptionIsReportedLikeAnEdit()
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

void TestDialogClamps::fullnessAbove100PercentIsClampedInTheRecord_data()
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

void TestDialogClamps::fullnessAbove100PercentIsClampedInTheRecord()
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

void TestDialogClamps::recordHoldsWhatTheControlShows()
{
    OpenDialog dialog;
    QRandomGenerator random(20);
    const int fullnesses[] = {0, 50, 100, 101, 150, 90000, 2147483647};
    const auto any = [&] {
        Cells cells;
        for (const int view : {0, 1}) {
            cells += {view, 132, random.bounded(3)};
            cells += {view, 124, fullnesses[random.bounded(int(std::size(fullnesses)))]};
        }
        return cells;
    };
    dialog.companions.onCheck = [&](KvMvcLookup, KvMvcSettings& settings) {
        if (random.bounded(2) == 0) {
            put(settings, any());
        }
        return 0;
    };
    for (int step = 0; step < 300; ++step) {
        const int way = random.bounded(4);
        if (way == 0) {
            KvMvcSettings settings = exampleSettings();
            put(settings, any());
            dialog.dropSettings(settings);
        } else if (way == 1) {
            const char* const buttons[] = {"units1Radio", "units2Radio", "units3Radio"};
            on<QRadioButton>(dialog, "View1Page", buttons[random.bounded(3)])->click();
        } else if (way == 2) {
            on<QCheckBox>(dialog, "MiscPage", "deblockingCheck")->click();
        } else {
            dialog.probe().check();
        }
        for (const int view : {0, 1}) {
            const auto& held = dialog.probe().record().settings.views[view];
            const int shown =
                on<QSpinBox>(dialog, view == 0 ? "View0Page" : "View1Page", "vbvInitialSpin")
                    ->value();
            QCOMPARE(shown, int(held.vbv_initial));
            QVERIFY(held.bitrate_units != 0 || shown <= 100);
        }
    }
}

void TestDialogClamps::insistingCheckNeitherRecursesNorHangs_data()
{
    QTest::addColumn<bool>("changesUnits");
    QTest::newRow("out of range in percent units") << false;
    QTest::newRow("and other units each time") << true;
}

void TestDialogClamps::insistingCheckNeitherRecursesNorHangs()
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

QTEST_MAIN(TestDialogClamps)
#include "tst_dialog_clamps.moc"
