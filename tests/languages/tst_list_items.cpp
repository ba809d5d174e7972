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

using ledger::Setting;

/// The codes of a list, by item.
QVector<qint32> codesOf(const Setting& setting)
{
    QVector<qint32> codes;
    for (const auto& value : ledger::listedValues(QString::fromLatin1(setting.member))) {
        codes += value.code;
    }
    return codes;
}

/// Lists of the general settings; those with names are in the order of their translations.
QVector<Setting> lists(bool named)
{
    QVector<Setting> found;
    for (const Setting& setting : ledger::settings()) {
        if (setting.kind == ledger::Kind::List && !setting.isOfEachView() &&
            !setting.is("field_order") && (setting.group == ledger::Group::Stream) == named) {
            found += setting;
        }
    }
    return found;
}

const Setting& named(const char* member)
{
    return ledger::setting(QString::fromLatin1(member));
}

QComboBox* listOf(const OpenDialog& dialog, const Setting& setting, int view = 0)
{
    return findControl<QComboBox>(dialog.get(), setting.pageOf(view).toLatin1().constData(),
                                  setting.control);
}

const QVector<double> frameRates = {
    7.6, 9.1, 10, 12.5, 12.8, 15, 24000.0 / 1001, 24, 25, 30000.0 / 1001, 30, 50, 60000.0 / 1001,
    60};

const QVector<QPair<qint32, qint32>> aspectRatios = {{-1, -1}, {1, 1}, {4, 3}, {16, 9}};

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
    static void put(const OpenDialog& dialog, const Setting& setting, qint32 code);
    static qint32 stored(const OpenDialog& dialog, const Setting& setting, int view = 0);
};

void TestListItems::put(const OpenDialog& dialog, const Setting& setting, qint32 code)
{
    for (const int view : {0, 1}) {
        ledger::put(dialog.probe().record().settings, setting, view, code);
    }
    dialog.probe().settingsToState();
}

qint32 TestListItems::stored(const OpenDialog& dialog, const Setting& setting, int view)
{
    return qint32(ledger::get(dialog.probe().record().settings, setting, view));
}

void TestListItems::orderedItems()
{
    QFETCH(QString, language);
    const Language installed(language);
    QVERIFY(installed.isReady());
    OpenDialog dialog;
    for (const Setting& setting : lists(false)) {
        const QVector<qint32> codes = codesOf(setting);
        auto* list = listOf(dialog, setting);
        QVERIFY2(list, setting.control);
        QCOMPARE(list->count(), int(codes.size()));
        for (int item = 0; item < list->count(); ++item) {
            put(dialog, setting, codes[item]);
            QVERIFY2(list->currentIndex() == item, setting.control);
            QVERIFY2(!list->currentText().isEmpty(), setting.control);
        }
        for (int item = 0; item < list->count(); ++item) {
            QVERIFY2(user::choose(list, list->itemText(item)), setting.control);
            QCOMPARE(stored(dialog, setting), codes[item]);
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
    put(dialog, named("interlace_mode"), KV_MVC_INTERLACED);
    for (const qint32 order : {0, 1}) {
        put(dialog, named("field_order"), order);
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
        for (KvMvcViewSettings& view : record.settings.views) {
            view.frame_rate = frameRates[item];
        }
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
        put(dialog, named("display_aspect_x"), aspectRatios[item].first);
        put(dialog, named("display_aspect_y"), aspectRatios[item].second);
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

    // Constant and variable bit rate, constant and average quantizer.
    const QVector<qint32> bitrateModes = codesOf(named("bitrate_mode"));
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
    for (const Setting& setting : lists(true)) {
        const QVector<qint32> codes = codesOf(setting);
        auto* list = listOf(dialog, setting);
        QVERIFY(list);
        QCOMPARE(list->count(), int(codes.size()));
        QSet<QString> shown;
        for (const qint32 code : codes) {
            put(dialog, setting, code);
            QVERIFY(list->currentIndex() >= 0);
            QVERIFY(!list->currentText().isEmpty());
            shown += list->currentText();
        }
        QCOMPARE(shown.size(), codes.size());
        for (const qint32 code : codes) {
            put(dialog, setting, code);
            const QString text = list->currentText();
            put(dialog, setting, codes.first() == code ? codes.last() : codes.first());
            QVERIFY(user::choose(list, text));
            QCOMPARE(stored(dialog, setting), code);
        }
    }
}

QTEST_MAIN(TestListItems)
#include "tst_list_items.moc"
