// In every language each code of the record shows its item, and each item stores its code: what the
// pages fill their lists with and what travels in states are the same texts.

#include "DialogTest.h"
#include "Language.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>

namespace
{

using Field = qint32 KvMvcViewSettings::*;

/// A list whose items have a fixed order.
struct OrderedList {
    const char* page;
    const char* control;
    Field field;
    /// By item.
    QVector<qint32> codes;
};

const QVector<OrderedList> orderedLists = {
    {"VideoFormatPage", "interlaceList", &KvMvcViewSettings::interlace_mode, {0, 1, 2}},
    {"VideoFormatPage", "pulldownList", &KvMvcViewSettings::pulldown, {0, 1, 2, 4, 5, 6, 7, 8}},
    {"VideoFormatPage", "chromaList", &KvMvcViewSettings::chroma_format, {1, 2, 3}},
    {"VideoFormatPage", "bitdepthLList", &KvMvcViewSettings::bit_depth_luma, {8, 10}},
    {"VideoFormatPage", "bitdepthCList", &KvMvcViewSettings::bit_depth_chroma, {8, 10}},
    {"MotionEstimationPage", "macroSearchList", &KvMvcViewSettings::min_partition, {0, 1}},
    {"MotionEstimationPage", "subSearchList", &KvMvcViewSettings::subpixel_mode, {0, 1, 2}},
    {"MiscPage", "entropyList", &KvMvcViewSettings::entropy_mode, {0, 1}},
};

const QVector<double> frameRates = {
    7.6, 9.1, 10, 12.5, 12.8, 15, 24000.0 / 1001, 24, 25, 30000.0 / 1001, 30, 50, 60000.0 / 1001,
    60};

const QVector<QPair<qint32, qint32>> aspectRatios = {{-1, -1}, {1, 1}, {4, 3}, {16, 9}};

/// By item: constant and variable bit rate, constant and average quantizer.
const QVector<qint32> bitrateModes = {0, 2, 1, 3};

/// Lists in the order of their texts: every code has an item of its own.
const QVector<qint32> profiles = {0, 1, 3, 4};
const QVector<qint32> levels = {10, 11, 12, 13, 16, 20, 21, 22, 30,
                                31, 32, 40, 41, 42, 50, 51, 52, 100};
const QVector<qint32> videoTypes = {1, 2, 3};

} // namespace

class TestListItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void orderedItems_data() { Language::addRows(); }
    void orderedItems();
    void fieldOrders_data() { Language::addRows(); }
    void fieldOrders();
    void frameRateItems_data() { Language::addRows(); }
    void frameRateItems();
    void aspectRatioItems_data() { Language::addRows(); }
    void aspectRatioItems();
    void bitrateModeItems_data() { Language::addRows(); }
    void bitrateModeItems();
    void namedItems_data() { Language::addRows(); }
    void namedItems();

private:
    /// Sets the field in every view, as a check does that corrects it.
    static void put(const OpenDialog& dialog, Field field, qint32 code);
};

void TestListItems::put(const OpenDialog& dialog, Field field, qint32 code)
{
    for (KvMvcViewSettings& view : dialog.probe().record().settings.views)
        view.*field = code;
    dialog.probe().settingsToState();
}

void TestListItems::orderedItems()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    const WorkingRecord& record = dialog.probe().record();

    for (const OrderedList& row : orderedLists) {
        auto* list = findControl<QComboBox>(dialog.get(), row.page, row.control);
        QVERIFY2(list, row.control);
        QCOMPARE(list->count(), int(row.codes.size()));
        for (int item = 0; item < list->count(); ++item) {
            put(dialog, row.field, row.codes[item]);
            QVERIFY2(list->currentIndex() == item, row.control);
            QVERIFY2(!list->currentText().isEmpty(), row.control);
        }
        for (int item = 0; item < list->count(); ++item) {
            QVERIFY2(user::choose(list, list->itemText(item)), row.control);
            QCOMPARE(record.settings.views[0].*row.field, row.codes[item]);
            QCOMPARE(list->currentIndex(), item);
        }
    }
}

void TestListItems::fieldOrders()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "fieldOrderList");
    QCOMPARE(list->count(), 2);
    // The list is empty for a bottom field first in progressive pictures, and locked otherwise.
    put(dialog, &KvMvcViewSettings::interlace_mode, KV_MVC_INTERLACED);
    for (const qint32 order : {0, 1}) {
        put(dialog, &KvMvcViewSettings::field_order, order);
        QCOMPARE(list->currentIndex(), order);
        QVERIFY(!list->currentText().isEmpty());
    }
    for (const qint32 order : {0, 1}) {
        QVERIFY(user::choose(list, list->itemText(order)));
        QCOMPARE(dialog.probe().record().settings.views[0].field_order, order);
    }
}

void TestListItems::frameRateItems()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    WorkingRecord& record = dialog.probe().record();
    auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "framerateList");
    QCOMPARE(list->count(), int(frameRates.size()));
    for (int item = 0; item < list->count(); ++item) {
        for (KvMvcViewSettings& view : record.settings.views)
            view.frame_rate = frameRates[item];
        dialog.probe().settingsToState();
        QCOMPARE(list->currentIndex(), item);
    }
    for (int item = 0; item < list->count(); ++item) {
        QVERIFY(user::choose(list, list->itemText(item)));
        const double rate = record.settings.views[0].frame_rate;
        QCOMPARE(rate, frameRates[item]);
    }
    QCOMPARE(list->count(), int(frameRates.size()));
}

void TestListItems::aspectRatioItems()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    WorkingRecord& record = dialog.probe().record();
    auto* list = findControl<QComboBox>(dialog.get(), "VideoFormatPage", "aspectRatioList");
    auto* keep = findControl<QCheckBox>(dialog.get(), "VideoFormatPage", "aspectRatioCheck");
    auto* height = findControl<QSpinBox>(dialog.get(), "VideoFormatPage", "heightSpin");
    QCOMPARE(list->count(), int(aspectRatios.size()));
    for (int item = 0; item < list->count(); ++item) {
        put(dialog, &KvMvcViewSettings::display_aspect_x, aspectRatios[item].first);
        put(dialog, &KvMvcViewSettings::display_aspect_y, aspectRatios[item].second);
        QCOMPARE(list->currentIndex(), item);
    }
    for (int item = 0; item < list->count(); ++item) {
        QVERIFY(user::choose(list, list->itemText(item)));
        QCOMPARE(record.settings.views[0].display_aspect_x, aspectRatios[item].first);
        QCOMPARE(record.settings.views[0].display_aspect_y, aspectRatios[item].second);
    }
    // The page knows its own items again: the width follows the height.
    user::click(keep);
    const QVector<qint32> widths = {-1, 720, 960, 1280};
    for (int item = 1; item < list->count(); ++item) {
        QVERIFY(user::choose(list, list->itemText(item)));
        height->setValue(720);
        QCOMPARE(record.settings.views[0].width, widths[item]);
    }
}

void TestListItems::bitrateModeItems()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    dialog.probe().record().settings.num_views = KV_MVC_MAX_VIEWS;
    dialog.probe().settingsToState();

    for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
        const QByteArray page = "View" + QByteArray::number(view) + "Page";
        auto* list = findControl<QComboBox>(dialog.get(), page.constData(), "bitrateModeList");
        auto* quantizer = findControl<QSpinBox>(dialog.get(), page.constData(), "quantISpin");
        auto* rate = findControl<QSpinBox>(dialog.get(), page.constData(), "targetRateSpin");
        QCOMPARE(list->count(), 4);
        for (int item = 0; item < 4; ++item) {
            dialog.probe().record().view(view).bitrate_mode = bitrateModes[item];
            dialog.probe().settingsToState();
            QCOMPARE(list->currentIndex(), item);
            QVERIFY(!list->currentText().isEmpty());
            // The page tells the modes by texts of its own.
            QCOMPARE(rate->isVisibleTo(dialog.get()->findChild<QWidget*>(
                         QStringLiteral("IView%1Page").arg(view))),
                     item < 2);
            QCOMPARE(quantizer->isHidden(), item < 2);
        }
        for (int item = 0; item < 4; ++item) {
            QVERIFY(user::choose(list, list->itemText(item)));
            QCOMPARE(dialog.probe().record().view(view).bitrate_mode, bitrateModes[item]);
        }
    }
}

void TestListItems::namedItems()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    const struct {
        QComboBox* list;
        Field field;
        const QVector<qint32>& codes;
    } rows[] = {
        {findControl<QComboBox>(dialog.get(), "AdvancedPage", "profileList"),
         &KvMvcViewSettings::profile, profiles},
        {findControl<QComboBox>(dialog.get(), "AdvancedPage", "levelList"),
         &KvMvcViewSettings::level, levels},
        {dialog.presetList(), &KvMvcViewSettings::video_type, videoTypes},
    };
    for (const auto& row : rows) {
        QVERIFY(row.list);
        QCOMPARE(row.list->count(), int(row.codes.size()));
        QSet<QString> shown;
        for (const qint32 code : row.codes) {
            put(dialog, row.field, code);
            QVERIFY(row.list->currentIndex() >= 0);
            QVERIFY(!row.list->currentText().isEmpty());
            shown += row.list->currentText();
        }
        QCOMPARE(shown.size(), row.codes.size());
        for (const qint32 code : row.codes) {
            put(dialog, row.field, code);
            const QString text = row.list->currentText();
            put(dialog, row.field,
                row.codes.first() == code ? row.codes.last() : row.codes.first());
            QVERIFY(user::choose(row.list, text));
            QCOMPARE(dialog.probe().record().settings.views[0].*row.field, code);
        }
    }
}

QTEST_MAIN(TestListItems)
#include "tst_list_items.moc"
