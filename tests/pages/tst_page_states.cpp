#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"

#include <QComboBox>
#include <QEvent>
#include <QHash>
#include <QPointer>
#include <QTest>

#include <climits>
#include <memory>

/// A state that comes to the pages sets every control, switches off what is off, and is not echoed.
class TestPageStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void secondStateReplacesTheFirst_data();
    void secondStateReplacesTheFirst();
    void absentKeyReadsAsEmptyValue_data();
    void absentKeyReadsAsEmptyValue();
    void disabledEntryDisablesItsControlAlone_data();
    void disabledEntryDisablesItsControlAlone();
    void disabledEntryShowsItsValueAndReportsNothing();
    void enabledEntryEnablesAgain();
    void unknownTextLeavesNoItem_data();
    void unknownTextLeavesNoItem();
    void textIsMatchedWithItsLetterCase();
    void numberOutOfRangeIsShownAsTheNearest_data();
    void numberOutOfRangeIsShownAsTheNearest();
    void valueOfAnotherKindIsConverted_data();
    void valueOfAnotherKindIsConverted();
    void signalsAreUnblockedAfterwards();
    void pagesAreToldInOrder();
    void childrenGoWithTheirContainer();
};

namespace
{

QStringList shownValues(AllPages& pages)
{
    QStringList values;
    for (const Control& control : controls()) {
        values += fullName(control) + QLatin1Char('=') + shown(pages.window(), control).toString();
    }
    return values;
}

QStringList values(QVariant Control::*value)
{
    QStringList texts;
    for (const Control& control : controls()) {
        texts += fullName(control) + QLatin1Char('=') + (control.*value).toString();
    }
    return texts;
}

QStringList disabledControls(AllPages& pages)
{
    QStringList names;
    for (const Control& control : controls()) {
        if (!isEnabledOnPage(pages.window(), control)) {
            names += fullName(control);
        }
    }
    return names;
}

void addControls()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < controls().size(); ++i) {
        QTest::newRow(qPrintable(controls()[i].key)) << i;
    }
}

} // namespace

void TestPageStates::secondStateReplacesTheFirst_data()
{
    QTest::addColumn<bool>("reversed");
    QTest::newRow("first, then second") << false;
    QTest::newRow("second, then first") << true;
}

void TestPageStates::secondStateReplacesTheFirst()
{
    QFETCH(bool, reversed);
    const auto one = reversed ? &Control::b : &Control::a;
    const auto other = reversed ? &Control::a : &Control::b;
    AllPages pages;
    pages.receive(stateOf(one));
    QCOMPARE(shownValues(pages), values(one));
    pages.receive(stateOf(other));
    QCOMPARE(shownValues(pages), values(other));
    pages.receive(stateOf(one));
    QCOMPARE(shownValues(pages), values(one));
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestPageStates::absentKeyReadsAsEmptyValue_data()
{
    addControls();
}

void TestPageStates::absentKeyReadsAsEmptyValue()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    for (const auto value : {&Control::a, &Control::b}) {
        AllPages pages;
        pages.receive(stateOf(value));
        ConfigState state;
        for (const Control& other : controls()) {
            if (other.key != control.key) {
                state.insert(other.key, other.*value);
            }
        }
        pages.receive(state);
        QCOMPARE(shown(pages.window(), control), control.absent);
        QVERIFY(isEnabledOnPage(pages.window(), control));
        QCOMPARE(pages.spy.take(), QStringList());
    }
}

void TestPageStates::disabledEntryDisablesItsControlAlone_data()
{
    addControls();
}

void TestPageStates::disabledEntryDisablesItsControlAlone()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    state.insert(control.key, control.a, false);
    pages.receive(state);

    QStringList expected(fullName(control));
    // The aspect ratio goes with the sizes, and the buffer with the one-second box only.
    if (control.name == QLatin1String("widthSpin") || control.name == QLatin1String("heightSpin")) {
        expected += QStringLiteral("VideoFormatPage.aspectRatioList");
    }
    if (control.name == QLatin1String("aspectRatioList") ||
        control.name == QLatin1String("bitrateBufferSpin")) {
        expected.clear();
    }
    QCOMPARE(disabledControls(pages), expected);
}

void TestPageStates::disabledEntryShowsItsValueAndReportsNothing()
{
    AllPages pages;
    ConfigState state;
    for (const Control& control : controls()) {
        state.insert(control.key, control.b, false);
    }
    pages.receive(state);
    QCOMPARE(shownValues(pages), values(&Control::b));
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestPageStates::enabledEntryEnablesAgain()
{
    AllPages pages;
    ConfigState locked;
    for (const Control& control : controls()) {
        locked.insert(control.key, control.a, false);
    }
    pages.receive(locked);
    QVERIFY(disabledControls(pages).size() > 100);
    pages.receive(stateOf(&Control::a));
    QCOMPARE(disabledControls(pages), QStringList());
}

void TestPageStates::unknownTextLeavesNoItem_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < controls().size(); ++i) {
        if (controls()[i].a.userType() == QMetaType::QString) {
            QTest::newRow(qPrintable(controls()[i].key)) << i;
        }
    }
}

void TestPageStates::unknownTextLeavesNoItem()
{
    QFETCH(int, index);
    const Control& control = controls()[index];
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    pages.receive(state);
    const auto* const list =
        qobject_cast<QComboBox*>(findOnPage(pages.window(), control.page, control.name));
    QVERIFY(list);
    state.insert(control.key, QStringLiteral("no such item"));
    pages.receive(state);
    QCOMPARE(list->currentIndex(), -1);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestPageStates::textIsMatchedWithItsLetterCase()
{
    AllPages pages;
    ConfigState state;
    state.insert(QStringLiteral("Interlace"), QStringLiteral("mbaff"));
    pages.receive(state);
    const auto* const list = qobject_cast<QComboBox*>(findOnPage(
        pages.window(), QStringLiteral("VideoFormatPage"), QStringLiteral("interlaceList")));
    QCOMPARE(list->currentIndex(), -1);
}

void TestPageStates::numberOutOfRangeIsShownAsTheNearest_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("shownNumber");
    const auto row = [](const QString& key, int number, int shownNumber) {
        QTest::newRow(qPrintable(QStringLiteral("%1 = %2").arg(key).arg(number)))
            << key << number << shownNumber;
    };
    for (const ledger::Setting& setting : ledger::settings()) {
        if (setting.kind != ledger::Kind::Number) {
            continue;
        }
        for (int view = 0; view < setting.viewCount(); ++view) {
            row(setting.keyOf(view), setting.least - 1, setting.least);
            row(setting.keyOf(view), INT_MIN, setting.least);
            if (setting.most < INT_MAX) {
                row(setting.keyOf(view), setting.most + 1, setting.most);
                row(setting.keyOf(view), INT_MAX, setting.most);
            }
        }
    }
}

void TestPageStates::numberOutOfRangeIsShownAsTheNearest()
{
    QFETCH(QString, key);
    QFETCH(int, number);
    QFETCH(int, shownNumber);
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    state.insert(key, number);
    pages.receive(state);
    int found = 0;
    for (const Control& control : controls()) {
        if (control.key != key) {
            continue;
        }
        ++found;
        QCOMPARE(shown(pages.window(), control), QVariant(shownNumber));
    }
    QCOMPARE(found, 1);
    QCOMPARE(pages.spy.take(), QStringList());
}

void TestPageStates::valueOfAnotherKindIsConverted_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("shownValue");
    const auto row = [](const char* name, const char* key, const QVariant& value,
                        const QVariant& shownValue) {
        QTest::newRow(name) << QString(QLatin1String(key)) << value << shownValue;
    };
    row("switch by 1", "Weighted P", 1, true);
    row("switch by 0", "Weighted P", 0, false);
    row("switch by any other number", "Weighted P", -7, true);
    row("number by text", "Interval I", QStringLiteral("42"), 42);
    row("number by a text that is none", "Interval I", QStringLiteral("many"), 0);
    row("number by a switch", "Interval I", true, 1);
    row("text by a number", "Interlace", 2, QStringLiteral(""));
}

void TestPageStates::valueOfAnotherKindIsConverted()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    state.insert(key, value);
    pages.receive(state);
    for (const Control& control : controls()) {
        if (control.key != key) {
            continue;
        }
        const QVariant shownValue = shown(pages.window(), control);
        QTEST(shownValue, "shownValue");
    }
}

void TestPageStates::signalsAreUnblockedAfterwards()
{
    AllPages pages;
    pages.receive(stateOf(&Control::a));
    for (const QObject* object : pages.window()->findChildren<QObject*>()) {
        QVERIFY2(!object->signalsBlocked(), qPrintable(object->objectName()));
    }
}

namespace
{

/// Writes down the pages of the settings' controls that become enabled or disabled, in order.
class PageSpy : public QObject
{
public:
    explicit PageSpy(AllPages& pages)
    {
        for (const Control& control : controls()) {
            if (QWidget* widget = findOnPage(pages.window(), control.page, control.name)) {
                m_pages.insert(widget, control.page);
                widget->installEventFilter(this);
            }
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QString page = m_pages.value(watched);
        if (event->type() == QEvent::EnabledChange && order.value(order.size() - 1) != page) {
            order += page;
        }
        return false;
    }

    QStringList order;

private:
    QHash<QObject*, QString> m_pages;
};

} // namespace

void TestPageStates::pagesAreToldInOrder()
{
    // A container's own controls come before its children.
    AllPages pages;
    ConfigState state = stateOf(&Control::a);
    state.insert(QStringLiteral("Number of views"), 3);
    pages.receive(state);
    PageSpy spy(pages);
    for (const Control& control : controls()) {
        state.insert(control.key, state.value(control.key), false);
    }
    pages.receive(state);
    QCOMPARE(spy.order, lines({"VideoFormatPage", "AdvancedPage", "GOPStructurePage",
                               "MotionEstimationPage", "RateDistortionPage", "MiscPage",
                               "ViewsPage", "View0Page", "View1Page", "View2Page", "View3Page"}));
}

void TestPageStates::childrenGoWithTheirContainer()
{
    QVector<QPointer<SettingsPage>> children;
    auto pages = std::make_unique<AllPages>();
    for (const SettingsPage* container : pages->containers()) {
        for (SettingsPage* child : container->findChildren<SettingsPage*>()) {
            children += child;
        }
    }
    QCOMPARE(children.size(), 9);
    for (SettingsPage* container : pages->containers()) {
        delete container;
    }
    for (const auto& child : std::as_const(children)) {
        QVERIFY(!child);
    }
}

QTEST_MAIN(TestPageStates)
#include "tst_page_states.moc"
