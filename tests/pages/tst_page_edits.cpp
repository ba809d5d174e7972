#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"
#include "UserInput.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QTest>

/// What the user does with a control comes out as states of one entry under the control's key.
class TestPageEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void chosenItemIsReported_data();
    void chosenItemIsReported();
    void sameItemChosenAgainIsReportedAgain_data();
    void sameItemChosenAgainIsReportedAgain();
    void itemChosenByMouseIsReported();
    void clickedCheckBoxIsReported_data();
    void clickedCheckBoxIsReported();
    void typedNumberIsReported_data();
    void typedNumberIsReported();
    void numberIsCommittedByReturnWhereTypingIsNotReported();
    void numberIsCommittedByFocusLossWhereTypingIsNotReported();
    void arrowKeyIsReported_data();
    void arrowKeyIsReported();
    void arrowButtonIsReported();
    void sliderKeyIsReported_data();
    void sliderKeyIsReported();
    void clickedUnitIsReported_data();
    void clickedUnitIsReported();
    void arrowKeyAmongTheUnitsIsReported();
    void programmaticChoiceIsNotReported();
};

namespace
{

template <class Widget>
Widget* find(AllPages& pages, const QString& page, const QString& name)
{
    return qobject_cast<Widget*>(findOnPage(pages.window(), page, name));
}

/// All pages, with their window open, in which every control is shown and enabled.
class OpenPages : public AllPages
{
public:
    /// Shows everything of the view pages but what only constant quality has.
    explicit OpenPages(const char* mode = "Variable Bitrate")
    {
        ConfigState state = stateOf(&Control::a);
        for (int view = 0; view < 4; ++view) {
            state.insert(QStringLiteral("Bitrate Mode V%1").arg(view),
                         QString(QLatin1String(mode)));
        }
        receive(state);
    }
};

bool isQuantizer(const QString& name)
{
    return name.contains(QLatin1String("quant"), Qt::CaseInsensitive);
}

/// Whether a number is reported while it is typed.
bool isTracked(const ledger::Setting& setting)
{
    return !setting.isOfEachView() && !setting.is("width") && !setting.is("height") &&
           !setting.is("ref_distance");
}

/// Rows of all controls whose two values are of this type.
void addControls(int type)
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < controls().size(); ++i) {
        if (controls()[i].a.userType() == type && controls()[i].name != QLatin1String("units")) {
            QTest::newRow(qPrintable(fullName(controls()[i]))) << i;
        }
    }
}

QString entry(const QString& key, const QVariant& value)
{
    const bool isText = value.userType() == QMetaType::QString;
    return key + (isText ? QStringLiteral("='%1'") : QStringLiteral("=%1")).arg(value.toString());
}

} // namespace

void TestPageEdits::chosenItemIsReported_data()
{
    addControls(QMetaType::QString);
}

void TestPageEdits::chosenItemIsReported()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const list = find<QComboBox>(pages, control.page, control.name);
    QVERIFY(list);
    QVERIFY(user::choose(list, control.b.toString()));
    QCOMPARE(pages.spy.take(), QStringList(entry(control.key, control.b)));
    QVERIFY(user::choose(list, control.a.toString()));
    QCOMPARE(pages.spy.take(), QStringList(entry(control.key, control.a)));
}

void TestPageEdits::sameItemChosenAgainIsReportedAgain_data()
{
    addControls(QMetaType::QString);
}

void TestPageEdits::sameItemChosenAgainIsReportedAgain()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const list = find<QComboBox>(pages, control.page, control.name);
    QVERIFY(list);
    const QString shownItem = list->currentText();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(user::choose(list, shownItem));
        QCOMPARE(pages.spy.take(), QStringList(entry(control.key, shownItem)));
    }
}

void TestPageEdits::itemChosenByMouseIsReported()
{
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const list =
        find<QComboBox>(pages, QStringLiteral("VideoFormatPage"), QStringLiteral("pulldownList"));
    QVERIFY(list);
    user::reveal(list);
    QTest::mouseClick(list, Qt::LeftButton);
    QTRY_VERIFY(list->view()->isVisible());
    // The list takes no release soon after the press that opened it: then one clicks once more.
    const QRect item = list->view()->visualRect(list->model()->index(5, 0));
    QVERIFY(QTest::qWaitFor([list, item] {
        if (list->view()->isVisible()) {
            QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {}, item.center());
        }
        return !list->view()->isVisible();
    }));
    QCOMPARE(pages.spy.take(), lines({"Pulldown='Auto'"}));
}

void TestPageEdits::clickedCheckBoxIsReported_data()
{
    addControls(QMetaType::Bool);
}

void TestPageEdits::clickedCheckBoxIsReported()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const box = find<QAbstractButton>(pages, control.page, control.name);
    QVERIFY(box);
    user::click(box);
    QCOMPARE(pages.spy.take(), QStringList(entry(control.key, control.b)));
    user::click(box);
    QCOMPARE(pages.spy.take(), QStringList(entry(control.key, control.a)));
}

void TestPageEdits::typedNumberIsReported_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("states");
    const auto row = [](const QString& page, const char* name, const QString& typed,
                        const QStringList& states) {
        QTest::addRow("%s.%s = %s", qPrintable(page), name, qPrintable(typed))
            << page << QString(QLatin1String(name)) << typed << states;
    };
    for (const ledger::Setting& setting : ledger::settings()) {
        if (setting.kind != ledger::Kind::Number || !QByteArray(setting.control).endsWith("Spin")) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            const QString typed = setting.second.state.toString();
            const QString key = setting.keyOf(view);
            QStringList states;
            // With every key, or once, when editing ends.
            for (int length = isTracked(setting) ? 1 : int(typed.size()); length <= typed.size();
                 ++length) {
                if (typed.left(length) != QLatin1String("-")) {
                    states += key + QLatin1Char('=') + typed.left(length);
                }
            }
            // Both slots of the fullness hang on the initial one, none on the target.
            if (setting.is("vbv_initial")) {
                states += states;
            }
            if (setting.is("vbv_target")) {
                states.clear();
            }
            row(setting.pageOf(view), setting.control, typed, states);
        }
    }
    const QString video = QStringLiteral("VideoFormatPage");
    row(video, "pixelXSpin", QStringLiteral("345"),
        lines({"Pixel X=3", "Pixel X=34", "Pixel X=345"}));
    row(video, "pixelYSpin", QStringLiteral("33"), lines({"Pixel Y=3", "Pixel Y=33"}));
}

void TestPageEdits::typedNumberIsReported()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(QString, typed);
    OpenPages pages(isQuantizer(name) ? "Const. Quality - Average Quantizer" : "Variable Bitrate");
    QVERIFY(pages.show());
    auto* const field = find<QSpinBox>(pages, page, name);
    QVERIFY(field);
    user::type(field, typed);
    QVERIFY(field->isVisible());
    const QStringList states = pages.spy.take();
    QTEST(states, "states");
    QCOMPARE(field->value(), typed.toInt());
}

void TestPageEdits::numberIsCommittedByReturnWhereTypingIsNotReported()
{
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const field =
        find<QSpinBox>(pages, QStringLiteral("VideoFormatPage"), QStringLiteral("widthSpin"));
    user::reveal(field);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("1024"));
    QCOMPARE(pages.spy.take(), QStringList());
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(pages.spy.take(), lines({"Horizontal Size=1024"}));
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Tab);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestPageEdits::numberIsCommittedByFocusLossWhereTypingIsNotReported()
{
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const field =
        find<QSpinBox>(pages, QStringLiteral("GOPStructurePage"), QStringLiteral("bBetweenIPSpin"));
    user::reveal(field);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("3"));
    QCOMPARE(pages.spy.take(), QStringList());
    find<QWidget>(pages, QStringLiteral("GOPStructurePage"), QStringLiteral("idrSpin"))->setFocus();
    QCOMPARE(pages.spy.take(), lines({"B Between=3"}));
}

void TestPageEdits::arrowKeyIsReported_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("states");
    const auto row = [](const char* page, const char* name, const QStringList& states) {
        QTest::newRow(name) << QString(QLatin1String(page)) << QString(QLatin1String(name))
                            << states;
    };
    // Up, then down; from the first values of the controls.
    row("VideoFormatPage", "widthSpin", lines({"Horizontal Size=722", "Horizontal Size=720"}));
    row("VideoFormatPage", "heightSpin", lines({"Vertical Size=578", "Vertical Size=576"}));
    row("VideoFormatPage", "pixelXSpin", lines({"Pixel X=13", "Pixel X=12"}));
    row("GOPStructurePage", "bBetweenIPSpin", lines({"B Between=3", "B Between=2"}));
    row("MiscPage", "slicesSpin", lines({"Slices=9", "Slices=8"}));
    row("ViewsPage", "numViewsSpin", lines({"Number of views=2"}));
    row("View0Page", "targetRateSpin",
        lines({"Target Bitrate V0=4010000", "Target Bitrate V0=4000000"}));
    // Bits: the step of the buffer and of the fullness.
    row("View3Page", "bitrateBufferSpin",
        lines({"Bitrate Buffer V3=508192", "Bitrate Buffer V3=500000"}));
    row("View1Page", "vbvInitialSpin",
        lines({"VBV Initial V1=8262", "VBV Initial V1=8262", "VBV Initial V1=70",
               "VBV Initial V1=70"}));
}

void TestPageEdits::arrowKeyIsReported()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const field = find<QSpinBox>(pages, page, name);
    QVERIFY(field);
    user::reveal(field);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Up);
    QTest::keyClick(field, Qt::Key_Down);
    const QStringList states = pages.spy.take();
    QTEST(states, "states");
}

void TestPageEdits::arrowButtonIsReported()
{
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const field =
        find<QSpinBox>(pages, QStringLiteral("VideoFormatPage"), QStringLiteral("widthSpin"));
    user::reveal(field);
    QStyleOptionSpinBox option;
    option.initFrom(field);
    option.buttonSymbols = field->buttonSymbols();
    option.subControls = QStyle::SC_All;
    const QRect plus =
        field->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, field);
    QVERIFY(!plus.isEmpty());
    QTest::mouseClick(field, Qt::LeftButton, {}, plus.center());
    QCOMPARE(pages.spy.take(), lines({"Horizontal Size=722"}));
}

void TestPageEdits::sliderKeyIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("states");
    // Right by one, a page up, to the ends; from -40, 100 and 7.
    QTest::newRow("brightness") << QStringLiteral("brightnessSlider")
                                << lines({"Brightness=-39", "Brightness=-19", "Brightness=-100",
                                          "Brightness=100"});
    QTest::newRow("contrast") << QStringLiteral("contrastSlider")
                              << lines({"Contrast=-100", "Contrast=100"});
    QTest::newRow("complexity") << QStringLiteral("complexitySlider")
                                << lines({"Complexity=8", "Complexity=28", "Complexity=-100",
                                          "Complexity=100"});
}

void TestPageEdits::sliderKeyIsReported()
{
    QFETCH(QString, name);
    OpenPages pages;
    QVERIFY(pages.show());
    auto* const slider = find<QAbstractSlider>(pages, QStringLiteral("RateDistortionPage"), name);
    QVERIFY(slider);
    user::reveal(slider);
    slider->setFocus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End}) {
        QTest::keyClick(slider, key);
    }
    const QStringList states = pages.spy.take();
    QTEST(states, "states");
}

void TestPageEdits::clickedUnitIsReported_data()
{
    QTest::addColumn<int>("view");
    for (int view = 0; view < 4; ++view) {
        QTest::newRow(qPrintable(QStringLiteral("view %1").arg(view))) << view;
    }
}

void TestPageEdits::clickedUnitIsReported()
{
    QFETCH(int, view);
    OpenPages pages;
    QVERIFY(pages.show());
    const QString page = QStringLiteral("View%1Page").arg(view);
    const struct {
        const char* radio;
        int id;
    } rows[] = {{"units1Radio", 0}, {"units3Radio", 2}, {"units3Radio", 2}, {"units2Radio", 1}};
    for (const auto& row : rows) {
        user::click(find<QAbstractButton>(pages, page, QLatin1String(row.radio)));
        QCOMPARE(pages.spy.take(),
                 QStringList(QStringLiteral("Units V%1=%2").arg(view).arg(row.id)));
    }
}

void TestPageEdits::arrowKeyAmongTheUnitsIsReported()
{
    OpenPages pages;
    QVERIFY(pages.show());
    const QString page = QStringLiteral("View0Page");
    auto* const bits = find<QAbstractButton>(pages, page, QStringLiteral("units2Radio"));
    user::reveal(bits);
    bits->setFocus();
    QTest::keyClick(bits, Qt::Key_Down);
    QVERIFY(find<QAbstractButton>(pages, page, QStringLiteral("units3Radio"))->hasFocus());
    QCOMPARE(pages.spy.take(), lines({"Units V0=2"}));
}

void TestPageEdits::programmaticChoiceIsNotReported()
{
    OpenPages pages;
    for (auto* const list : pages.window()->findChildren<QComboBox*>()) {
        for (int i = 0; i < list->count(); ++i) {
            list->setCurrentIndex(i);
        }
    }
    QCOMPARE(pages.spy.take(), QStringList());
}

QTEST_MAIN(TestPageEdits)
#include "tst_page_edits.moc"
