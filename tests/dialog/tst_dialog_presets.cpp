// The preset row: the encoder's defaults replace the working copy.

#include "DialogTest.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

class TestDialogPresets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void listInTheOrderOfNames();
    void labelShowsTheTipOfTheList();
    void choosingCallsTheDefaultsOnce_data();
    void choosingCallsTheDefaultsOnce();
    void choosingTheSameAgainRestoresIt();
    void buttonRestoresTheShownPresetAfterEdits();
    void buttonWithoutAShownPresetAsksForNumber0();
    void defaultsReplaceEveryEdit();
    void everyViewOfTheDefaultsGetsTheType();
    void defaultsAreNotNeeded();
    void stateOfTheList();
    void stateOfTheButton();
    void bothKeysCountAsRestore();
    void presetKeysHideAllOthers_data();
    void presetKeysHideAllOthers();
    void unknownNameIsNumber0();
};

void TestDialogPresets::listInTheOrderOfNames()
{
    OpenDialog dialog;
    const QComboBox* const list = dialog.presetList();
    QCOMPARE(list->count(), 3);
    const char* const names[] = {"Blu-ray 3D", "Multivew High", "Stereo High"};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(list->itemText(i), QString::fromLatin1(names[i]));
        QVERIFY(list->itemIcon(i).isNull());
        QVERIFY(!list->itemData(i).isValid());
    }
}

void TestDialogPresets::labelShowsTheTipOfTheList()
{
    OpenDialog dialog;
    const auto* const label = dialog->findChild<QLabel*>(QStringLiteral("presetLabel"));
    QVERIFY(!label->toolTip().isEmpty());
    QCOMPARE(label->toolTip(), dialog.presetList()->toolTip());
}

void TestDialogPresets::choosingCallsTheDefaultsOnce_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("Multivew High") << 1;
    QTest::newRow("Stereo High") << 2;
    QTest::newRow("Blu-ray 3D") << 3;
}

void TestDialogPresets::choosingCallsTheDefaultsOnce()
{
    QFETCH(int, number);
    OpenDialog dialog;
    QVERIFY(user::choose(dialog.presetList(), QString::fromLatin1(QTest::currentDataTag())));
    QCOMPARE(dialog.companions.calls, QStringList({QStringLiteral("defaults 0 %1 0").arg(number),
                                                   QStringLiteral("check 3 0")}));
    QCOMPARE(dialog.presetList()->currentText(), QString::fromLatin1(QTest::currentDataTag()));
}

void TestDialogPresets::choosingTheSameAgainRestoresIt()
{
    OpenDialog dialog;
    for (int i = 0; i < 2; ++i) {
        QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
    }
    QCOMPARE(dialog.companions.count(QStringLiteral("defaults 0 2 0")), 2);
    QCOMPARE(dialog.companions.count(QStringLiteral("check")), 2);
}

void TestDialogPresets::buttonRestoresTheShownPresetAfterEdits()
{
    OpenDialog dialog;
    QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Blu-ray 3D")));
    user::type(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin"),
               QStringLiteral("640"));
    dialog.companions.calls.clear();
    user::click(dialog.button("presetButton"));
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("defaults 0 3 0"), QStringLiteral("check 3 0")}));
}

void TestDialogPresets::buttonWithoutAShownPresetAsksForNumber0()
{
    OpenDialog dialog;
    dialog.put({{0, 1804, 0}});
    QCOMPARE(dialog.presetList()->currentIndex(), -1);
    user::click(dialog.button("presetButton"));
    QCOMPARE(dialog.companions.calls.value(0), QStringLiteral("defaults 0 0 0"));
    QCOMPARE(int(dialog.probe().record().settings.views[0].video_type), 0);
}

void TestDialogPresets::defaultsReplaceEveryEdit()
{
    OpenDialog dialog;
    user::type(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin"),
               QStringLiteral("640"));
    KvMvcSettings preset = exampleSettings();
    put(preset, {{Cell::Record, 100, 5}, {0, 1804, 2}, {1, 1804, 2}, {1, 24, 1920}, {0, 24, 1920}});
    dialog.companions.onDefaults = [&preset](KvMvcSettings& settings, int) { settings = preset; };
    QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
    QVERIFY(dialog.bytes() == bytesOf(preset));
    QCOMPARE(findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "widthSpin")->value(), 1920);
}

void TestDialogPresets::everyViewOfTheDefaultsGetsTheType()
{
    // As many as the defaults have, not as there were.
    for (const int views : {1, 2}) {
        OpenDialog dialog;
        dialog.companions.onDefaults = [views](KvMvcSettings& settings, int) {
            settings = {};
            settings.num_views = views;
        };
        QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
        const KvMvcSettings& settings = dialog.probe().record().settings;
        QCOMPARE(int(settings.views[0].video_type), 2);
        QCOMPARE(int(settings.views[1].video_type), views == 2 ? 2 : 0);
        // The rest of an edit does not follow: slices stay as the defaults have them.
        QCOMPARE(int(settings.views[0].num_slices), 0);
    }
}

void TestDialogPresets::defaultsAreNotNeeded()
{
    OpenDialog dialog;
    companionFunctions().defaults = nullptr;
    QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
    QCOMPARE(dialog.companions.calls, QStringList(QStringLiteral("check 3 0")));
}

void TestDialogPresets::stateOfTheList()
{
    OpenDialog dialog;
    QList<ConfigState> states;
    connect(dialog.get(), &AVCVideoEncoderDlg::stateChanged, dialog.get(),
            [&states](const ConfigState& state) { states += state; });
    QVERIFY(user::choose(dialog.presetList(), QStringLiteral("Stereo High")));
    ConfigState expected;
    expected.insert(QStringLiteral("Video Type"), QStringLiteral("Stereo High"));
    QCOMPARE(states.size(), 1);
    QVERIFY(states[0] == expected);
}

void TestDialogPresets::stateOfTheButton()
{
    OpenDialog dialog;
    QList<ConfigState> states;
    connect(dialog.get(), &AVCVideoEncoderDlg::stateChanged, dialog.get(),
            [&states](const ConfigState& state) { states += state; });
    user::click(dialog.button("presetButton"));
    ConfigState expected;
    expected.insert(QStringLiteral("Restore Preset"), QStringLiteral("Multivew High"));
    QCOMPARE(states.size(), 1);
    QVERIFY(states[0] == expected);
}

void TestDialogPresets::bothKeysCountAsRestore()
{
    OpenDialog dialog;
    ConfigState state;
    state.insert(QStringLiteral("Video Type"), QStringLiteral("Stereo High"));
    state.insert(QStringLiteral("Restore Preset"), QStringLiteral("Blu-ray 3D"));
    dialog->slotReceiveState(state);
    QCOMPARE(dialog.companions.calls,
             QStringList({QStringLiteral("defaults 0 3 0"), QStringLiteral("check 3 0")}));
    for (const auto& view : dialog.probe().record().settings.views) {
        QCOMPARE(int(view.video_type), 3);
    }
}

void TestDialogPresets::presetKeysHideAllOthers_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("restored") << QStringLiteral("Restore Preset");
    QTest::newRow("chosen") << QStringLiteral("Video Type");
}

void TestDialogPresets::presetKeysHideAllOthers()
{
    QFETCH(QString, key);
    OpenDialog dialog;
    const QByteArray before = dialog.bytes();
    ConfigState state;
    state.insert(key, QStringLiteral("Stereo High"));
    state.insert(QStringLiteral("Horizontal Size"), 640);
    state.insert(QStringLiteral("Threads"), 5);
    // Views and rate control are no part of what is hidden.
    state.insert(QStringLiteral("Target Bitrate V1"), 99);
    dialog->slotReceiveState(state);
    QCOMPARE(differences(before, dialog.bytes()),
             expectedDifferences(before, {{0, 1804, 2}, {1, 1804, 2}, {1, 80, 99}}));
}

void TestDialogPresets::unknownNameIsNumber0()
{
    OpenDialog dialog;
    ConfigState state;
    state.insert(QStringLiteral("Video Type"), QStringLiteral("stereo high"));
    dialog->slotReceiveState(state);
    QCOMPARE(dialog.companions.calls.value(0), QStringLiteral("defaults 0 0 0"));
    QCOMPARE(int(dialog.probe().record().settings.views[1].video_type), 0);
    QCOMPARE(dialog.presetList()->currentIndex(), -1);
}

QTEST_MAIN(TestDialogPresets)
#include "tst_dialog_presets.moc"
