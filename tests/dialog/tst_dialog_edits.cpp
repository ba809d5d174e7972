// Every setting, turned by its real control: exactly these bytes of the record change, in exactly
// these views.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

using ledger::Kind;
using ledger::Setting;

namespace
{

/// How a control is turned: `Choose` an item, `Type` a number, `Press` a switch or radio button,
/// `Page` a slider upwards.
enum class Turn { Choose, Type, Press, Page };

/// A turn of a control from a code of the record to another.
struct Edit {
    Turn how;
    QString what;
    double given;
    double code;
};

/// Every item of a list, both ways of a switch, a slider's page, both ends of a number.
QVector<Edit> editsOf(const Setting& setting)
{
    QVector<Edit> edits;
    if (setting.kind == Kind::Switch) {
        edits = {{Turn::Press, QStringLiteral("on"), 0, 1},
                 {Turn::Press, QStringLiteral("off"), 1, 0}};
    } else if (setting.kind == Kind::List) {
        // Given is a code that the list does not have, so that every item is a change.
        for (const auto& item : ledger::listedValues(QString::fromLatin1(setting.member))) {
            edits += {Turn::Choose, QString::fromLatin1(item.text), 97, double(item.code)};
        }
    } else if (QByteArray(setting.control).endsWith("Slider")) {
        edits = {{Turn::Page, QStringLiteral("20"), 0, 20}};
    } else {
        // The number of slices decides of another field, which has rows of its own.
        const int least = setting.is("num_slices") ? 2 : setting.least;
        // In percent.
        const int most = setting.is("vbv_initial") ? 100 : setting.most;
        for (const int number : {least, most}) {
            const auto& given =
                setting.first.state.toInt() == number ? setting.second : setting.first;
            edits +=
                {Turn::Type, QString::number(number), given.code, double(number) + setting.added()};
        }
    }
    return edits;
}

} // namespace

Q_DECLARE_METATYPE(Turn)

class TestDialogEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void control_data();
    void control();
    void rateControl_data();
    void rateControl();
    void everyKeyHasARow();
    void customFrameRateIsStored();
    void onlyOneCustomFrameRateIsListed();
    void listedCustomFrameRateIsTheBaseViews();
    void rateNearAStandardOneIsAnItemOfItsOwn();
    void customFrameRateIsKnownWithoutItsTab();
    void settingsReachTheViewsThatWereCounted();
    void viewsBeyondTheRecordStayOutOfIt();
    void viewsBeyondTheRecordAreLikeTheSecond();

private:
    static void turn(const QWidget* dialog, const QString& page, const QString& name, Turn how,
                     const QString& what);
};

void TestDialogEdits::control_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Turn>("how");
    QTest::addColumn<QString>("what");
    QTest::addColumn<Cells>("changes");
    QTest::addColumn<Cells>("given");

    struct Place {
        const char* page;
        const char* name;
    };
    const auto row = [](const char* key, Place place, Turn how, const char* what,
                        const Cells& changes, const Cells& given = {}) {
        QTest::addRow("%s: %s", key, what)
            << QString::fromLatin1(place.page) << QString::fromLatin1(place.name) << how
            << QString::fromLatin1(what) << changes << given;
    };
    const auto inBoth = [](const Cells& ofView0) {
        Cells cells = ofView0;
        for (Cell cell : ofView0) {
            cell.view = 1;
            cells += cell;
        }
        return cells;
    };

    const Place aspect = {"VideoFormatPage", "aspectRatioList"};
    row("Picture Aspect Ratio", aspect, Turn::Choose, "Custom",
        inBoth({{0, 2888, -1}, {0, 2892, -1}}), inBoth({{0, 2888, 5}, {0, 2892, 4}}));
    row("Picture Aspect Ratio", aspect, Turn::Choose, "1:1",
        inBoth({{0, 2888, 1}, {0, 2892, 1}, {0, 100, -1}, {0, 104, -1}}));
    row("Picture Aspect Ratio", aspect, Turn::Choose, "4:3",
        inBoth({{0, 2888, 4}, {0, 2892, 3}, {0, 100, -1}, {0, 104, -1}}));
    row("Picture Aspect Ratio", aspect, Turn::Choose, "16:9",
        inBoth({{0, 2888, 16}, {0, 2892, 9}, {0, 100, -1}, {0, 104, -1}}));

    const Place frameRate = {"VideoFormatPage", "framerateList"};
    const struct {
        const char* text;
        double rate;
    } rates[] = {{"7.60", 7.6},
                 {"9.10", 9.1},
                 {"10.00", 10.0},
                 {"12.50", 12.5},
                 {"12.80", 12.8},
                 {"15.00", 15.0},
                 {"23.98", 24000.0 / 1001.0},
                 {"24.00", 24.0},
                 {"25.00", 25.0},
                 {"29.97", 30000.0 / 1001.0},
                 {"30.00", 30.0},
                 {"50.00", 50.0},
                 {"59.94", 60000.0 / 1001.0},
                 {"60.00", 60.0}};
    for (const auto& rate : rates) {
        row("Frame Rate", frameRate, Turn::Choose, rate.text, inBoth({{0, 32, rate.rate}}),
            inBoth({{0, 32, 0.0}}));
    }

    for (const Setting& setting : ledger::settings()) {
        // Each has rows of its own.
        if (!setting.key || setting.kind == Kind::FrameRate || setting.kind == Kind::Aspect ||
            setting.is("video_type") || setting.isOfEachView()) {
            continue;
        }
        const Place place = {setting.page, setting.control};
        const auto in = [&](double code) {
            const Cell cell(0, setting, code);
            return setting.isOfRecord() ? Cells{cell} : inBoth({cell});
        };
        for (const Edit& edit : editsOf(setting)) {
            row(setting.key, place, edit.how, qPrintable(edit.what), in(edit.code), in(edit.given));
        }
    }
    row("Slices", {"MiscPage", "slicesSpin"}, Turn::Type, "1",
        inBoth({{0, 2848, 1}, {0, 2844, 0}}));
    row("Slices", {"MiscPage", "slicesSpin"}, Turn::Type, "99999", inBoth({{0, 2848, 99999}}));
    const Place presetList = {"AVCVideoEncoderDlg", "presetList"};
    row("Video Type", presetList, Turn::Choose, "Blu-ray 3D", inBoth({{0, 1804, 3}}));
    row("Video Type", presetList, Turn::Choose, "Stereo High", inBoth({{0, 1804, 2}}));
    row("Video Type", presetList, Turn::Choose, "Multivew High", inBoth({{0, 1804, 1}}),
        inBoth({{0, 1804, 0}}));
    row("Restore Preset", {"AVCVideoEncoderDlg", "presetButton"}, Turn::Press, "on", {{1, 1804, 1}},
        {{1, 1804, 2}});
}

void TestDialogEdits::control()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(Turn, how);
    QFETCH(QString, what);
    QFETCH(Cells, changes);
    QFETCH(Cells, given);
    OpenDialog dialog;
    dialog.put(given);
    const QByteArray before = dialog.bytes();
    turn(dialog.get(), page, name, how, what);
    if (QTest::currentTestFailed()) {
        return;
    }
    QCOMPARE(differences(before, dialog.bytes()), expectedDifferences(before, changes));
    // The caller's not yet.
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogEdits::rateControl_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Turn>("how");
    QTest::addColumn<QString>("what");
    QTest::addColumn<Cells>("given");
    QTest::addColumn<Cells>("changes");

    for (int view = 0; view < 4; ++view) {
        const auto row = [view](const char* key, const char* name, Turn how, const char* what,
                                const Cells& changes, const Cells& given = {}) {
            QTest::addRow("%s V%d: %s", key, view, what)
                << view << QString::fromLatin1(name) << how << QString::fromLatin1(what) << given
                << changes;
        };
        // The mode "Variable Bitrate" with HRD shows every control but the quantizers.
        const Cells quantizerMode = {{view, 72, 1}};

        row("Bitrate Mode", "bitrateModeList", Turn::Choose, "Constant Bitrate",
            {{view, 72, 0}, {view, 176, 1}}, {{view, 176, 0}});
        row("Target Bitrate", "targetRateSpin", Turn::Type, "5000000", {{view, 80, 5000000}});
        row("Target Bitrate", "targetRateSpin", Turn::Type, "7000000",
            {{view, 80, 7000000}, {view, 84, 7000000}});
        row("Max Bitrate", "maxRateSpin", Turn::Type, "2147483647", {{view, 84, 2147483647}});
        row("Max Bitrate", "maxRateSpin", Turn::Type, "3000000",
            {{view, 84, 3000000}, {view, 80, 3000000}});
        row("Units", "units1Radio", Turn::Press, "0", {{view, 132, 0}}, {{view, 132, 2}});
        row("Units", "units2Radio", Turn::Press, "1", {{view, 132, 1}});
        row("Units", "units3Radio", Turn::Press, "2", {{view, 132, 2}});
        row("VBV Target", "vbvTargetSpin", Turn::Type, "55", {});

        for (const Setting& setting : ledger::settings()) {
            // The target fullness is not reported; the rates pull each other.
            if (!setting.isOfEachView() || setting.kind == Kind::Radio ||
                setting.is("vbv_target") || setting.is("bitrate") || setting.is("max_bitrate")) {
                continue;
            }
            const Cells mode =
                QByteArray(setting.control).contains("uant") ? quantizerMode : Cells();
            for (const Edit& edit : editsOf(setting)) {
                // It switches HRD on; see above.
                if (edit.what != QLatin1String("Constant Bitrate")) {
                    row(setting.key, setting.control, edit.how, qPrintable(edit.what),
                        {Cell(view, setting, edit.code)},
                        mode + Cells{Cell(view, setting, edit.given)});
                }
            }
        }
    }
}

void TestDialogEdits::rateControl()
{
    QFETCH(int, view);
    QFETCH(QString, name);
    QFETCH(Turn, how);
    QFETCH(QString, what);
    QFETCH(Cells, given);
    QFETCH(Cells, changes);

    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    dialog.put(given);
    const QByteArray before = dialog.bytesOfAllViews();

    turn(dialog.get(), QStringLiteral("View%1Page").arg(view), name, how, what);
    if (QTest::currentTestFailed()) {
        return;
    }
    QCOMPARE(differences(before, dialog.bytesOfAllViews()), expectedDifferences(before, changes));
}

void TestDialogEdits::turn(const QWidget* dialog, const QString& page, const QString& name,
                           Turn how, const QString& what)
{
    const QByteArray pageClass = page.toLatin1();
    const QByteArray object = name.toLatin1();
    auto* const widget = findControl<QWidget>(dialog, pageClass.constData(), object.constData());
    QVERIFY(widget);
    user::reveal(widget);
    QVERIFY(widget->isVisible());
    QVERIFY(widget->isEnabled());
    if (how == Turn::Choose) {
        QVERIFY(user::choose(qobject_cast<QComboBox*>(widget), what));
    } else if (how == Turn::Type) {
        user::type(qobject_cast<QSpinBox*>(widget), what);
    } else if (how == Turn::Press) {
        user::click(qobject_cast<QAbstractButton*>(widget));
    } else {
        user::pageUp(qobject_cast<QSlider*>(widget));
    }
}

void TestDialogEdits::everyKeyHasARow()
{
    // What the ledger lacks has no rows above.
    OpenDialog dialog;
    QStringList wanted = {QStringLiteral("deviceList"), QStringLiteral("aspectRatioCheck")};
    for (const Setting& setting : ledger::settings()) {
        if (!setting.key || setting.is("video_type")) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            if (setting.kind != Kind::Radio) {
                wanted += QString::fromLatin1(setting.control);
                continue;
            }
            for (const char* name : {"units1Radio", "units2Radio", "units3Radio", "onesecCheck"}) {
                wanted += QString::fromLatin1(name);
            }
        }
    }
    QStringList found;
    const auto widgets = dialog.tabs()->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool editable =
            qobject_cast<const QComboBox*>(widget) || qobject_cast<const QSpinBox*>(widget) ||
            qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QSlider*>(widget) ||
            qobject_cast<const QRadioButton*>(widget);
        if (editable && !widget->objectName().isEmpty()) {
            found += widget->objectName();
        }
    }
    wanted.sort();
    found.sort();
    QCOMPARE(found, wanted);
}

void TestDialogEdits::customFrameRateIsStored()
{
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 32, 47.952}, {1, 32, 47.952}});
    OpenDialog dialog(usualFlags, settings);
    auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "framerateList");
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->currentText(), QStringLiteral("47.952"));
    const QByteArray before = dialog.bytes();
    QVERIFY(user::choose(list, QStringLiteral("25.00")));
    QCOMPARE(differences(before, dialog.bytes()),
             expectedDifferences(before, {{0, 32, 25.0}, {1, 32, 25.0}}));
    QVERIFY(user::choose(list, QStringLiteral("47.952")));
    QVERIFY(dialog.bytes() == before);
}

void TestDialogEdits::onlyOneCustomFrameRateIsListed()
{
    OpenDialog dialog;
    auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "framerateList");
    QCOMPARE(list->count(), 14);
    dialog.put({{0, 32, 48.0}});
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->itemText(14), QStringLiteral("48"));
    QCOMPARE(list->currentIndex(), 14);
    dialog.put({{0, 32, 47.0}});
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->currentIndex(), -1);
    // 23.976 is 24000/1001 near enough.
    dialog.put({{0, 32, 23.976}});
    QCOMPARE(list->currentText(), QStringLiteral("23.98"));
    QCOMPARE(list->currentIndex(), 6);
}

void TestDialogEdits::listedCustomFrameRateIsTheBaseViews()
{
    // Each view is described, in order, and the list takes the first rate that it lacks.
    OpenDialog dialog;
    auto* const list = on<QComboBox>(dialog, "VideoFormatPage", "framerateList");
    QCOMPARE(list->count(), 14);
    dialog.companions.onDefaults = [](KvMvcSettings& settings, int) {
        put(settings, {{0, 32, 47.0}, {1, 32, 48.0}});
    };
    QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->itemText(14), QStringLiteral("47"));
    // Shown is the last view's. Chosen, the item is known by the time of the second view.
    QCOMPARE(list->currentIndex(), -1);
    const QByteArray before = dialog.bytes();
    QVERIFY(user::choose(list, QStringLiteral("47")));
    QCOMPARE(differences(before, dialog.bytes()), expectedDifferences(before, {{1, 32, 47.0}}));
}

void TestDialogEdits::rateNearAStandardOneIsAnItemOfItsOwn()
{
    // 24000/1001 is further from it than rounding explains.
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 32, 23.98}, {1, 32, 23.98}});
    OpenDialog dialog(usualFlags, settings);
    const auto* list = on<QComboBox>(dialog, "VideoFormatPage", "framerateList");
    QCOMPARE(list->count(), 15);
    QCOMPARE(list->itemText(14), QStringLiteral("23.98"));
    QCOMPARE(list->currentText(), QStringLiteral("23.98"));
    user::click(dialog.button("buttonOk"));
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogEdits::customFrameRateIsKnownWithoutItsTab()
{
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 32, 48.0}, {1, 32, 48.0}});
    OpenDialog dialog(usualFlags & ~KV_MVC_GUI_BASIC_TAB, settings);
    const QByteArray before = dialog.bytes();
    const auto receive = [&dialog](const char* rate) {
        ConfigState state;
        state.insert(QStringLiteral("Frame Rate"), QString::fromLatin1(rate));
        dialog->slotReceiveState(state);
    };
    receive("25.00");
    QCOMPARE(differences(before, dialog.bytes()),
             expectedDifferences(before, {{0, 32, 25.0}, {1, 32, 25.0}}));
    receive("48");
    QVERIFY(dialog.bytes() == before);
}

void TestDialogEdits::settingsReachTheViewsThatWereCounted()
{
    // The number of views comes after what is set in each of them.
    OpenDialog dialog;
    const QByteArray before = dialog.bytes();
    ConfigState state;
    state.insert(QStringLiteral("Number of views"), 0);
    state.insert(QStringLiteral("Interlace"), QStringLiteral("MBAFF"));
    dialog->slotReceiveState(state);
    QCOMPARE(
        differences(before, dialog.bytes()),
        QStringList({QStringLiteral("record +0: 01000000"), QStringLiteral("view 0 +20: 02000000"),
                     QStringLiteral("view 1 +20: 02000000")}));
    QCOMPARE(dialog.probe().currentView(), 1);
}

void TestDialogEdits::viewsBeyondTheRecordStayOutOfIt()
{
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    user::type(findControl<QSpinBox>(dialog.get(), "View3Page", "iSizeSpin"), QStringLiteral("77"));
    QCOMPARE(int(dialog.probe().record().view(3).frame_size_i), 77);
    QCOMPARE(int(dialog.probe().record().view(2).frame_size_i), 90000);
    user::click(dialog.button("buttonOk"));
    QVERIFY(bytesOf(dialog.caller) == dialog.given);
}

void TestDialogEdits::viewsBeyondTheRecordAreLikeTheSecond()
{
    OpenDialog dialog;
    const auto rateOf = [&dialog](int view) {
        const QByteArray page = QByteArray("View") + QByteArray::number(view) + "Page";
        return findControl<QSpinBox>(dialog.get(), page.constData(), "targetRateSpin");
    };
    KvMvcSettings settings = exampleSettings();
    put(settings, {{Cell::Record, 0, 4}, {0, 80, 1000}, {1, 80, 2000}});
    dialog.dropSettings(settings);
    for (const int view : {2, 3}) {
        QCOMPARE(rateOf(view)->value(), 2000);
    }
    // Their rate control is their own, until other settings come from outside.
    user::type(rateOf(3), QStringLiteral("3000"));
    user::type(rateOf(1), QStringLiteral("2500"));
    QCOMPARE(rateOf(2)->value(), 2000);
    QCOMPARE(rateOf(3)->value(), 3000);
    dialog.companions.onDefaults = [](KvMvcSettings& defaults, int) {
        defaults = exampleSettings();
    };
    QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
    for (const int view : {0, 1, 2, 3}) {
        QCOMPARE(rateOf(view)->value(), 4000000);
    }
}

QTEST_MAIN(TestDialogEdits)
#include "tst_dialog_edits.moc"
