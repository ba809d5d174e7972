// What a user of the dialog waits for, each beside its floor; ./dev bench prints the table.

#include "BareDialog.h"
#include "Counting.h"

#include "dialog/AVCVideoEncoderDlg.h"
#include "dialog/Companions.h"
#include "model/KeyNames.h"
#include "model/SettingsToState.h"
#include "model/StateToSettings.h"

#include <QApplication>
#include <QLibrary>
#include <QTabWidget>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include <cstdio>
#include <fstream>
#include <string>

// Outside any namespace, as the macro demands.
static void registerResources()
{
    Q_INIT_RESOURCE(res_mvc);
}

namespace
{

/// What the check prints.
int messages = 3;
bool sameMessages = true;

int32_t checkOfMessages(KvMvcLookup lookUp, KvMvcSettings* settings, int32_t, int32_t)
{
    const char* const sinks[] = {KV_MVC_WARNING_SINK, KV_MVC_ERROR_SINK, KV_MVC_NOTE_SINK};
    for (int i = 0; i < messages; ++i) {
        const auto print = reinterpret_cast<KvMvcPrintf>(lookUp(sinks[messages > 3 ? 0 : i % 3]));
        print("Level 4.1 allows at most %d macroblocks/s (now %d): lower the frame rate.", i,
              sameMessages ? 0 : settings->views[0].width);
    }
    return 0;
}

KvMvcSettings someSettings(int views = 1)
{
    KvMvcSettings settings = {};
    settings.num_views = views;
    for (KvMvcViewSettings& view : settings.views) {
        view.width = 1920;
        view.height = 1080;
        view.frame_rate = 24000.0 / 1001;
        view.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
        view.bitrate = 20'000'000;
        view.max_bitrate = 40'000'000;
        view.hrd_mode = 1;
        view.ref_distance = 3;
        view.chroma_format = KV_MVC_CHROMA_420;
        view.bit_depth_luma = 8;
        view.bit_depth_chroma = 8;
        view.display_aspect_x = 16;
        view.display_aspect_y = 9;
    }
    return settings;
}

constexpr KvMvcHosting allTabs = {KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB |
                                      KV_MVC_GUI_FILE_BUTTONS | KV_MVC_GUI_LOG_COLOURS,
                                  nullptr, nullptr, nullptr};

/// Until the window has been painted.
void showFirstFrame(QWidget& window)
{
    window.show();
    QApplication::processEvents();
}

/// The dialog, and the bare one beside it, both on the screen.
struct Dialogs {
    KvMvcSettings settings;
    AVCVideoEncoderDlg ours;
    BareDialog bare;
    ConfigState state;

    explicit Dialogs(const KvMvcSettings& shown)
        : settings(shown), ours(&settings, &allTabs, nullptr), bare(ours)
    {
        for (QDialog* dialog : std::initializer_list<QDialog*>{&bare, &ours}) {
            showFirstFrame(*dialog);
            // Where the user is who edits.
            dialog->activateWindow();
            dialog->findChild<QWidget*>(QStringLiteral("widthSpin"))->setFocus();
            QApplication::processEvents();
        }
    }

    static int nextWidth()
    {
        static int width = 1920;
        return width ^= 16;
    }
    void edit()
    {
        state.insert(keys::horizontalSize, nextWidth());
        ours.slotReceiveState(state);
    }
    void editBare()
    {
        bare.width = nextWidth();
        // As it is described after an edit, and after the check.
        bare.setAll();
        bare.setAll();
    }
    void setTab(int index)
    {
        ours.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(index);
        bare.tabs()->setCurrentIndex(index);
    }
};

std::vector<CountedRow> rowsOfOpening(Dialogs& dialogs)
{
    static KvMvcSettings settings = someSettings();
    const auto open = [] {
        AVCVideoEncoderDlg dialog(&settings, &allTabs, nullptr);
        showFirstFrame(dialog);
    };
    const auto openBare = [&dialogs] {
        BareDialog dialog(dialogs.ours);
        showFirstFrame(dialog);
    };
    return {{"open to first frame, and close", open, openBare}};
}

/// One edit of a document that is shown.
void replaceText(QTextEdit* log, int lines)
{
    static int number = 0;
    ++number;
    QString text;
    for (int i = 0; i < lines; ++i) {
        text +=
            QStringLiteral("Level 4.1 allows at most %1 macroblocks/s (now %2): lower the frame "
                           "rate.\n")
                .arg(i)
                .arg(number % 1000);
    }
    QTextCursor cursor(log->document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    cursor.endEditBlock();
    // To the end, without which the scroll bar does not know its range.
    log->moveCursor(QTextCursor::End);
}

std::vector<CountedRow> rowsOfEdits(Dialogs& dialogs)
{
    const auto edit = [&] { dialogs.edit(); };
    const auto editBare = [&] { dialogs.editBare(); };
    const auto repaint = [&] {
        dialogs.edit();
        QApplication::processEvents();
    };
    const auto repaintBare = [&] {
        dialogs.editBare();
        QApplication::processEvents();
    };
    const auto with = [](const std::function<void()>& before, const std::function<void()>& what) {
        return [before, what] {
            before();
            what();
        };
    };
    const auto same = [] { sameMessages = true; };
    const auto other = [] { sameMessages = false; };
    const auto views = [&] { dialogs.setTab(2); };
    const auto many = [&] {
        dialogs.setTab(0);
        sameMessages = false;
        messages = 10'000;
    };
    constexpr int times = 10;
    return {
        {"edit, three messages, the same", with(same, edit), editBare, times},
        {"edit, three messages, other ones", with(other, edit), editBare, times},
        {"edit and repaint, the same messages", with(same, repaint), repaintBare, times},
        {"edit and repaint, other messages", with(other, repaint), repaintBare, times},
        {"edit and repaint, \"Views\" in front", with(views, with(same, repaint)),
         with(views, repaintBare), times},
        {"edit, 10,000 messages", with(many, edit),
         with(many, [&] { replaceText(dialogs.bare.log(), messages); })},
    };
}

/// A record described, and read from its description.
void goThroughStates()
{
    static const Vocabulary vocabulary;
    static WorkingRecord record;
    record.settings = someSettings(2);
    const CustomFrameRate rate;
    const auto basic = describeBasic(vocabulary, 0, record.view(0));
    const auto advanced = describeAdvanced(vocabulary, 0, record.view(0));
    const auto views = describeViews(vocabulary, 0, record);
    applyToView({vocabulary, rate, basic.state}, record.view(0));
    applyToView({vocabulary, rate, advanced}, record.view(0));
    applyViews({vocabulary, rate, views}, record);
}

/// The same entries put into maps and looked up.
void goThroughMaps()
{
    static const std::vector<ConfigState> states = [] {
        const Vocabulary vocabulary;
        WorkingRecord record;
        record.settings = someSettings(2);
        return std::vector<ConfigState>{describeBasic(vocabulary, 0, record.view(0)).state,
                                        describeAdvanced(vocabulary, 0, record.view(0)),
                                        describeViews(vocabulary, 0, record)};
    }();
    for (const ConfigState& state : states) {
        ConfigState copy;
        const auto& entries = state.entries();
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            copy.insert(entry.key(), entry->value, entry->enabled);
        }
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            static QVariant read;
            read = copy.value(entry.key());
        }
    }
}

/// What the process has written for itself, in KiB; 0 where the system does not tell. What it has
/// only read counts as private or shared by whoever else runs.
long privateMemory()
{
    std::ifstream file("/proc/self/smaps_rollup");
    long sum = 0;
    for (std::string line; std::getline(file, line);) {
        long amount = 0;
        if (std::sscanf(line.c_str(), "Private_Dirty: %ld", &amount) == 1) {
            sum += amount;
        }
    }
    return sum;
}

void printMemory(QDialog& dialog)
{
    showFirstFrame(dialog);
    std::printf("%ld\n", privateMemory());
}

/// What grows with the views that are coded.
void measureGrowth()
{
    Dialogs one(someSettings(1));
    Dialogs four(someSettings(4));
    measure({{"edit, four views, beside one", [&] { four.edit(); }, [&] { one.edit(); }, 10}});
}

} // namespace

/// bench_dialog memory ours|bare: prints the private memory of a process with that dialog open.
///
/// bench_dialog ENCODER: the path of an encoder library, for the row of its check.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    companionFunctions().check = checkOfMessages;
    if (argc > 2 && argv[2] == std::string("ours")) {
        KvMvcSettings settings = someSettings();
        AVCVideoEncoderDlg dialog(&settings, &allTabs, nullptr);
        printMemory(dialog);
        return 0;
    }
    if (argc > 2) {
        registerResources();
        const QDialog nothing;
        BareDialog dialog(nothing);
        printMemory(dialog);
        return 0;
    }
    {
        Dialogs dialogs(someSettings());
        measure(rowsOfOpening(dialogs));
    }
    // The log is the one of the last dialog that was made.
    {
        Dialogs dialogs(someSettings());
        measure(rowsOfEdits(dialogs));
        messages = 3;
    }
    measureGrowth();
    QLibrary encoder(QString::fromLocal8Bit(argc > 1 ? argv[1] : "kv_mvcenc"));
    const auto check = reinterpret_cast<KvMvcCheck>(encoder.resolve(KV_MVC_ENCODER_CHECK));
    const auto defaults = reinterpret_cast<KvMvcDefaults>(encoder.resolve(KV_MVC_ENCODER_DEFAULTS));
    if (!check || !defaults) {
        qFatal("no encoder: %s", qPrintable(encoder.errorString()));
    }
    {
        companionFunctions().check = check;
        KvMvcSettings settings = {};
        defaults(&settings, 0, KV_MVC_STEREO_HIGH, 0);
        Dialogs dialogs(settings);
        measure(
            {{"edit, reference check", [&] { dialogs.edit(); }, [&] { dialogs.editBare(); }, 10}});
    }
    measure({{"record to states to record", goThroughStates, goThroughMaps, 100}});
    companionFunctions() = {};
}
