#include "dialog/AVCVideoEncoderDlg.h"
#include "dialog/Companions.h"
#include "model/KeyNames.h"
#include "model/SettingsToState.h"

#include <QTest>

namespace
{

int32_t acceptAll(KvMvcLookup, KvMvcSettings*, int32_t, int32_t)
{
    return 0;
}

KvMvcSettings twoViews()
{
    KvMvcSettings settings = {};
    settings.num_views = 2;
    for (KvMvcViewSettings& view : settings.views) {
        view.width = 1920;
        view.height = 1080;
        view.frame_rate = 24000.0 / 1001;
        view.hrd_mode = 1;
    }
    return settings;
}

KvMvcHosting allTabs()
{
    KvMvcHosting hosting = {};
    hosting.flags = KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                    KV_MVC_GUI_LOG_COLOURS;
    return hosting;
}

} // namespace

class BenchDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { companionFunctions().check = acceptAll; }

    /// Building the dialog: what passes between the host's call and the first picture.
    void construct()
    {
        KvMvcSettings settings = twoViews();
        const KvMvcHosting hosting = allTabs();
        QBENCHMARK
        {
            AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
        }
    }

    /// Describing the record, without a page to tell.
    void describe()
    {
        const Vocabulary vocabulary;
        WorkingRecord record;
        record.settings = twoViews();
        QBENCHMARK
        {
            describeBasic(vocabulary, 0, record.view(0));
            describeAdvanced(vocabulary, 0, record.view(0));
            describeViews(vocabulary, 0, record);
        }
    }

    /// One edit from the page's signal to the rewritten log, in a dialog that is shown.
    void edit()
    {
        KvMvcSettings settings = twoViews();
        const KvMvcHosting hosting = allTabs();
        AVCVideoEncoderDlg dialog(&settings, &hosting, nullptr);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        ConfigState state;
        int width = 352;
        QBENCHMARK
        {
            state.insert(keys::horizontalSize, width ^= 16);
            dialog.slotReceiveState(state);
        }
    }
};

QTEST_MAIN(BenchDialog)
#include "bench_dialog.moc"
