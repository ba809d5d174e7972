// When the encoder's check runs: once an edit, whatever the edit sets off; and what the pages are
// told before and after it.

#include "DialogTest.h"
#include "ModalWatch.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include "pages/AdvancedPage.h"
#include "pages/BasicPage.h"
#include "pages/ViewsPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QRadioButton>
#include <QScopedValueRollback>
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
    void pagesAreToldOnceBeforeTheCheckAndOnceAfterIt();
    void frameRateOfEachViewIsOffered();
    void pushingTellsNothingBack();
    void checkSeesTheEdit();
    void correctionsReachEveryPage();
    void correctionsReachViewsBeyondTheRecord();
    void checkWhilePagesAreToldReturnsFalse();
    void editWhilePagesAreToldIsAppliedButNotChecked();
    void hostDeletesTheDialogWhileAMessageIsShown();
};

using Edit = std::function<void(OpenDialog&)>;
Q_DECLARE_METATYPE(Edit)

namespace
{

/// A page in the place of one of the dialog's, which adds the value of one key of every state that
/// it is told to the companions' calls: "NAME VALUE".
template <class Page>
class ListeningPage : public Page
{
public:
    ListeningPage(const QString& name, const QString& key, Page*& page, QStringList& calls)
        : m_name(name), m_key(key), m_calls(calls), m_place(page, this)
    {
    }

    void receiveState(const ConfigState& state) override
    {
        m_calls += m_name + QLatin1Char(' ') + state.value(m_key).toString();
        Page::receiveState(state);
    }

private:
    const QString m_name;
    const QString m_key;
    QStringList& m_calls;
    const QScopedValueRollback<Page*> m_place;
};

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
        for (int i = 0; i < 2; ++i) {
            user::choose(on<QComboBox>(d, "VideoFormatPage", "interlaceList"),
                         QStringLiteral("MBAFF"));
        }
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

void TestDialogChecks::pagesAreToldOnceBeforeTheCheckAndOnceAfterIt()
{
    KvMvcSettings settings = exampleSettings();
    put(settings, {{0, 24, 640}, {1, 24, 1024}, {0, 8, 11}, {1, 8, 22}});
    OpenDialog dialog(usualFlags, settings);
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& checked) {
        put(checked, {{1, 24, 1280}, {1, 8, 33}, {Cell::Record, 0, 1}});
        return 0;
    };
    QStringList& calls = dialog.companions.calls;
    const DialogProbe probe = dialog.probe();
    const ListeningPage<BasicPage> basic(QStringLiteral("width"), QStringLiteral("Horizontal Size"),
                                         probe.basicPage(), calls);
    const ListeningPage<AdvancedPage> advanced(
        QStringLiteral("interval"), QStringLiteral("Interval I"), probe.advancedPage(), calls);
    const ListeningPage<ViewsPage> views(QStringLiteral("views"), QStringLiteral("Number of views"),
                                         probe.viewsPage(), calls);

    ConfigState edit;
    edit.insert(QStringLiteral("Deblocking"), 1);
    dialog->slotReceiveState(edit);
    QCOMPARE(calls.join(QLatin1String(", ")),
             QStringLiteral("width 1024, interval 22, views 1, "
                            "check 3 0, width 1280, interval 33, views 0"));

    // A file's settings are told once more than a check tells them.
    calls.clear();
    dialog.dropSettings(settings);
    QCOMPARE(calls.join(QLatin1String(", ")),
             QStringLiteral("api 8193, read /settings.cfg, "
                            "check 3 0, width 1280, interval 33, views 0, "
                            "width 1280, interval 33, views 0"));
}

void TestDialogChecks::frameRateOfEachViewIsOffered()
{
    KvMvcSettings settings = exampleSettings();
    for (KvMvcViewSettings& view : settings.views) {
        view.frame_rate = 25;
    }
    OpenDialog dialog(usualFlags, settings);
    ConfigState edit;
    edit.insert(QStringLiteral("Deblocking"), 1);
    dialog->slotReceiveState(edit);
    QCOMPARE(dialog.probe().currentView(), 1);
    const auto* const list = on<QComboBox>(dialog, "VideoFormatPage", "framerateList");
    QCOMPARE(list->findText(QStringLiteral("48")), -1);
    dialog.probe().record().view(0).frame_rate = 48;
    dialog->slotReceiveState(edit);
    QVERIFY(list->findText(QStringLiteral("48")) >= 0);
    QCOMPARE(list->currentText(), QStringLiteral("25.00"));
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

void TestDialogChecks::correctionsReachViewsBeyondTheRecord()
{
    // The pages show the last view, which the record has no place for.
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 4;
    OpenDialog dialog(usualFlags, settings);
    dialog.companions.onCheck = [](KvMvcLookup, KvMvcSettings& checked) {
        checked.views[0].width = 1920;
        checked.views[1].width = 1920;
        return 0;
    };
    auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
    user::type(width, QStringLiteral("640"));
    QCOMPARE(width->value(), 1920);
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
