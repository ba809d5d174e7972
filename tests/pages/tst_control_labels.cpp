#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"

#include <QGraphicsEffect>
#include <QLabel>
#include <QTest>

/// Labels are one with the control that they stand beside.
class TestControlLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void labelShowsTheControlsTip_data() { rows(); }
    void labelShowsTheControlsTip();
    void labelFollowsAnotherTip();
    void labelIsGreyWhileTheControlIsDisabled_data() { rows(); }
    void labelIsGreyWhileTheControlIsDisabled();
    void labelOfADisabledPageIsGreyOnce();
    void everyBuddyIsFollowed();

private:
    static void rows();
};

namespace
{

QLabel* labelOn(AllPages& pages, const QString& page, const QString& name)
{
    return qobject_cast<QLabel*>(findOnPage(pages.window(), page, name));
}

bool isGrey(const QLabel* label)
{
    return label->graphicsEffect() && label->graphicsEffect()->isEnabled();
}

bool isSlider(const ledger::Setting& setting)
{
    return QByteArray(setting.control).endsWith("Slider");
}

/// The setting that the key stands for in any view.
const ledger::Setting& settingOf(const QString& key)
{
    for (const ledger::Setting& setting : ledger::settings()) {
        for (int view = 0; setting.key && view < setting.viewCount(); ++view) {
            if (setting.keyOf(view) == key) {
                return setting;
            }
        }
    }
    qFatal("no setting has the key %s", qPrintable(key));
}

/// The state of all controls, with these keys disabled.
ConfigState without(const QStringList& keys)
{
    ConfigState state = stateOf(&Control::a);
    for (const QString& key : keys) {
        state.insert(key, state.value(key), false);
    }
    return state;
}

} // namespace

void TestControlLabels::rows()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("key");
    const auto row = [](const ledger::Setting& setting, int view, const char* label) {
        QTest::addRow("%s.%s", qPrintable(setting.pageOf(view)), label)
            << setting.pageOf(view) << QString::fromLatin1(label)
            << QString::fromLatin1(setting.control) << setting.keyOf(view);
    };
    for (const ledger::Setting& setting : ledger::settings()) {
        if (!setting.label || setting.is("video_type")) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            row(setting, view, setting.label);
        }
        // Two labels make the sentence of the IDR marker, two stand beside a slider.
        if (setting.is("idr_marker")) {
            row(setting, 0, "label_2");
        }
        if (isSlider(setting)) {
            row(setting, 0, qPrintable(QLatin1String(setting.member) + QLatin1String("Label")));
        }
    }
}

void TestControlLabels::labelShowsTheControlsTip()
{
    QFETCH(QString, page);
    QFETCH(QString, label);
    QFETCH(QString, control);
    AllPages pages;
    const QString tip = findOnPage(pages.window(), page, control)->toolTip();
    QVERIFY(!tip.isEmpty());
    QCOMPARE(labelOn(pages, page, label)->toolTip(), tip);
}

void TestControlLabels::labelFollowsAnotherTip()
{
    AllPages pages;
    const QString page = QStringLiteral("MiscPage");
    findOnPage(pages.window(), page, QStringLiteral("slicesSpin"))
        ->setToolTip(QStringLiteral("another"));
    QCOMPARE(labelOn(pages, page, QStringLiteral("label_3"))->toolTip(), QStringLiteral("another"));
}

void TestControlLabels::labelIsGreyWhileTheControlIsDisabled()
{
    QFETCH(QString, page);
    QFETCH(QString, label);
    QFETCH(QString, key);
    AllPages pages;
    const QLabel* const shown = labelOn(pages, page, label);
    pages.receive(without({}));
    QVERIFY(!isGrey(shown));
    pages.receive(without({key}));
    const ledger::Setting& setting = settingOf(key);
    // The box for one second alone says whether the buffer can be edited.
    if (setting.is("bitrate_buffer")) {
        QVERIFY(!isGrey(shown));
        return;
    }
    QVERIFY(isGrey(shown));
    // To look at only: a page disables controls, and nothing else.
    QVERIFY(shown->isEnabledTo(shown->parentWidget()));
    int grey = 0;
    for (const QLabel* other : pages.window()->findChildren<QLabel*>()) {
        grey += isGrey(other);
    }
    const bool twice = setting.is("idr_marker") || isSlider(setting);
    QCOMPARE(grey, twice ? 2 : 1);
    pages.receive(without({}));
    QVERIFY(!isGrey(shown));
}

void TestControlLabels::labelOfADisabledPageIsGreyOnce()
{
    AllPages pages;
    ConfigState state = without({});
    state.insert(QStringLiteral("Number of views"), 0);
    pages.receive(state);
    const QLabel* const label =
        labelOn(pages, QStringLiteral("View1Page"), QStringLiteral("brModeLabel"));
    QVERIFY(!label->isEnabled());
    QVERIFY(!isGrey(label));
}

void TestControlLabels::everyBuddyIsFollowed()
{
    AllPages pages;
    int labels = 0;
    for (QLabel* label : pages.window()->findChildren<QLabel*>()) {
        QWidget* const control = label->buddy();
        // The sections' buttons are not named by a label that stands for a setting.
        if (!control || control->inherits("QToolButton") ||
            control->objectName() == QLatin1String("deviceList") ||
            label->objectName() == QLatin1String("aspectRatioLabel")) {
            continue;
        }
        ++labels;
        control->setEnabled(false);
        QVERIFY2(isGrey(label), qPrintable(label->text()));
    }
    int wanted = 0;
    for (const ledger::Setting& setting : ledger::settings()) {
        if (setting.label && !setting.is("video_type")) {
            wanted += setting.viewCount();
        }
    }
    QCOMPARE(labels, wanted);
}

QTEST_MAIN(TestControlLabels)
#include "tst_control_labels.moc"
