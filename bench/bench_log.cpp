// What the log of a check takes, from the first message to the last line laid out, beside what it
// takes for 10 messages.

#include "dialog/AVCVideoEncoderDlg.h"
#include "dialog/Companions.h"
#include "model/KeyNames.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

struct Amount {
    const char* name;
    int messages;
    /// Letters of a message, without a blank; 0: a sentence.
    int letters;
};

constexpr Amount amounts[] = {{"10 messages", 10, 0},
                              {"100 messages", 100, 0},
                              {"1,000 messages", 1000, 0},
                              {"10,000 messages", 10'000, 0},
                              {"100,000 messages", 100'000, 0},
                              {"a word of 64 KiB", 1, 64 * 1024},
                              {"a word of 10 MiB", 1, 10 * 1024 * 1024}};

Amount printed;
std::string word;
int32_t width = 0;

int32_t check(KvMvcLookup lookUp, KvMvcSettings* settings, int32_t, int32_t)
{
    const auto warn = reinterpret_cast<KvMvcPrintf>(lookUp(KV_MVC_WARNING_SINK));
    for (int i = 0; i < printed.messages; ++i) {
        if (printed.letters) {
            warn("%d %s", settings->views[0].width, word.c_str());
        } else {
            warn("Level 4.1 allows at most %d macroblocks/s (now %d): lower the frame rate.", i,
                 settings->views[0].width);
        }
    }
    return 0;
}

/// Milliseconds of an edit whose check prints the messages; other ones than before, unless `same`.
double edit(AVCVideoEncoderDlg& dialog, bool same)
{
    width = same ? width : width % 1000 + 1;
    ConfigState state;
    state.insert(keys::horizontalSize, width);
    QElapsedTimer timer;
    timer.start();
    dialog.slotReceiveState(state);
    return double(timer.nsecsElapsed()) / 1e6;
}

double median(AVCVideoEncoderDlg& dialog, bool same)
{
    std::vector<double> times(9);
    edit(dialog, false);
    std::generate(times.begin(), times.end(), [&] { return edit(dialog, same); });
    std::nth_element(times.begin(), times.begin() + 4, times.end());
    return times[4];
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    KvMvcSettings settings = {};
    settings.num_views = 1;
    companionFunctions().check = check;
    KvMvcHosting hosting = {};
    hosting.flags = KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_LOG_COLOURS;
    AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
    dialog.show();
    QApplication::processEvents();

    std::printf("%-20s %12s %8s %12s %8s\n", "an edit with", "other texts", "ratio", "the same",
                "ratio");
    double other = 0;
    double same = 0;
    for (const Amount& amount : amounts) {
        printed = amount;
        word.assign(std::size_t(amount.letters), 'x');
        const double otherTime = median(dialog, false);
        const double sameTime = median(dialog, true);
        other = other > 0 ? other : otherTime;
        same = same > 0 ? same : sameTime;
        std::printf("%-20s %9.2f ms %8.2f %9.2f ms %8.2f\n", amount.name, otherTime,
                    otherTime / other, sameTime, sameTime / same);
    }
    companionFunctions() = {};
}
