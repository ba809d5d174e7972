#include "ToolkitWarnings.h"

#include "pages/StickingTitle.h"
#include "pages/ToolBox.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

/// The scrollable column of collapsible sections.
class TestToolBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void boxIsBuiltOfItsParts();
    void windowFlagsArePassedOn();
    void sectionsStandInPairsOfRows();
    void sectionStartsExpanded();
    void clickCollapsesAndExpandsItsSectionAlone();
    void anyNumberOfSectionsMayBeOpen();
    void arrowShowsTheState();
    void iconFilesAreTheCallers();
    void sectionPointsDownWhenOpenAndRightWhenClosed();
    void titleIsBoldWhilePagesLabelsAreNormal();
    void gridClosesUpOverACollapsedPage();
    void areaScrollsWhenSectionsAreTallerThanTheBox();
    void buttonIsNamedAfterItsSection();
    void focusedControlStaysWhereItIs_data();
    void focusedControlStaysWhereItIs();
    void focusedControlStaysInSightAtTheEnds();
    void columnStaysWithoutAFocusedControl();
    void sectionsStayTogetherInAHighBox();
    void backgroundIsThatOfTheWindowBehind();
    void gapsBetweenSectionsAreEqual();
    void clickOnATitleFoldsItsSectionAlone();
    void otherClicksOnATitleDoNot_data();
    void otherClicksOnATitleDoNot();
    void titleOfTheSectionInSightSticks_data();
    void titleOfTheSectionInSightSticks();
    void stickingTitleGivesWayToTheNext();
    void stickingTitleIsDrawn();
    void clickOnTheStickingTitleFoldsItsSection();
};

namespace
{

const QString down = QStringLiteral(":/res_mvc/icons/down.png");
const QString rightArrow = QStringLiteral(":/res_mvc/icons/right.png");

/// A box of three sections, each page with a label of 100 pixels height.
class ThreeSections
{
public:
    ThreeSections()
    {
        for (int i = 0; i < 3; ++i) {
            auto* const page = new QFrame;
            auto* const label = new QLabel(QStringLiteral("label %1").arg(i));
            label->setMinimumHeight(100);
            auto* const layout = new QVBoxLayout(page);
            layout->addWidget(label);
            box.addSection(page, QStringLiteral("Section %1").arg(i), down, rightArrow);
            pages += page;
            labels += label;
        }
        for (auto* const button : box.findChildren<QToolButton*>()) {
            buttons += button;
        }
        area = box.findChild<QScrollArea*>();
    }

    bool show(int height)
    {
        box.resize(300, height);
        box.show();
        return QTest::qWaitForWindowExposed(&box);
    }

    QLabel* title(int section) const
    {
        for (auto* const label : box.findChildren<QLabel*>()) {
            if (label->text() == QStringLiteral("Section %1").arg(section)) {
                return label;
            }
        }
        return nullptr;
    }

    QList<bool> visible() const { return {isVisible(0), isVisible(1), isVisible(2)}; }

    ToolBox box;
    QVector<QFrame*> pages;
    QVector<QLabel*> labels;
    QVector<QToolButton*> buttons;
    QScrollArea* area = nullptr;

private:
    bool isVisible(int section) const { return pages[section]->isVisible(); }
};

/// Three sections of 300 pixels in a box of 250, scrolled down to the second.
class Scrolled : public ThreeSections
{
public:
    Scrolled()
    {
        for (QLabel* label : labels) {
            label->setFixedHeight(300);
            label->setFocusPolicy(Qt::StrongFocus);
        }
        ready = show(250);
        bar()->setValue(350);
    }

    QScrollBar* bar() const { return area->verticalScrollBar(); }
    StickingTitle* stickingTitle() const
    {
        return static_cast<StickingTitle*>(box.findChild<QFrame*>(QStringLiteral("stickingTitle")));
    }
    int placeOf(const QWidget* widget) const
    {
        return widget->mapTo(area->viewport(), QPoint()).y();
    }

    bool ready = false;
};

void click(QToolButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

QImage comparable(const QPixmap& pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage picture(const QString& path)
{
    return comparable(QPixmap(path));
}

/// What the button's icon shows in the button's state.
QImage arrow(const QToolButton* button)
{
    return comparable(button->icon().pixmap(QPixmap(down).size(), QIcon::Normal,
                                            button->isChecked() ? QIcon::On : QIcon::Off));
}

} // namespace

void TestToolBox::boxIsBuiltOfItsParts()
{
    ToolBox box;
    QVERIFY(box.inherits("QFrame"));
    auto* const outer = qobject_cast<QVBoxLayout*>(box.layout());
    QVERIFY(outer);
    QCOMPARE(outer->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(outer->count(), 1);
    auto* const area = qobject_cast<QScrollArea*>(outer->itemAt(0)->widget());
    QVERIFY(area);
    QCOMPARE(outer->stretch(0), 0);
    QCOMPARE(int(outer->itemAt(0)->alignment()), 0);
    QCOMPARE(area->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(area->sizePolicy().verticalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(area->sizePolicy().hasHeightForWidth(),
             QScrollArea().sizePolicy().hasHeightForWidth());
    QVERIFY(area->widgetResizable());
    auto* const content = qobject_cast<QFrame*>(area->widget());
    QVERIFY(content);
    auto* const grid = qobject_cast<QGridLayout*>(content->layout());
    QVERIFY(grid);
    QCOMPARE(int(grid->alignment()), int(Qt::AlignTop));
}

void TestToolBox::windowFlagsArePassedOn()
{
    QWidget parent;
    const ToolBox box(&parent, Qt::Tool);
    QCOMPARE(box.parentWidget(), &parent);
    QCOMPARE(box.windowType(), Qt::Tool);
}

void TestToolBox::sectionsStandInPairsOfRows()
{
    ThreeSections sections;
    QCOMPARE(sections.buttons.size(), 3);
    auto* const grid = qobject_cast<QGridLayout*>(sections.area->widget()->layout());
    QCOMPARE(grid->columnCount(), 2);
    QCOMPARE(grid->count(), 9);
    // An empty grid counts one row, so the first section stands in row 1.
    for (int i = 0; i < 3; ++i) {
        const QVector<QWidget*> widgets = {sections.buttons[i], sections.title(i),
                                           sections.pages[i]};
        const int places[3][4] = {{1 + 2 * i, 0, 1, 1}, {1 + 2 * i, 1, 1, 1}, {2 + 2 * i, 0, 1, 2}};
        for (int j = 0; j < 3; ++j) {
            QCOMPARE(widgets[j]->parentWidget(), sections.area->widget());
            int place[4] = {};
            grid->getItemPosition(grid->indexOf(widgets[j]), &place[0], &place[1], &place[2],
                                  &place[3]);
            for (int k = 0; k < 4; ++k) {
                QCOMPARE(place[k], places[j][k]);
            }
        }
    }
}

void TestToolBox::sectionStartsExpanded()
{
    ThreeSections sections;
    QVERIFY(sections.show(600));
    for (const QToolButton* button : sections.buttons) {
        QVERIFY(button->isCheckable());
        QVERIFY(button->isChecked());
    }
    QCOMPARE(sections.visible(), (QList<bool>{true, true, true}));
}

void TestToolBox::clickCollapsesAndExpandsItsSectionAlone()
{
    ThreeSections sections;
    QVERIFY(sections.show(600));
    click(sections.buttons[1]);
    QCOMPARE(sections.visible(), (QList<bool>{true, false, true}));
    QVERIFY(sections.buttons[0]->isChecked());
    QVERIFY(!sections.buttons[1]->isChecked());
    QVERIFY(sections.buttons[2]->isChecked());
    QVERIFY(sections.title(1)->isVisible());
    click(sections.buttons[1]);
    QCOMPARE(sections.visible(), (QList<bool>{true, true, true}));
}

void TestToolBox::anyNumberOfSectionsMayBeOpen()
{
    ThreeSections sections;
    QVERIFY(sections.show(600));
    for (QToolButton* button : sections.buttons) {
        click(button);
    }
    QCOMPARE(sections.visible(), (QList<bool>{false, false, false}));
    click(sections.buttons[2]);
    QCOMPARE(sections.visible(), (QList<bool>{false, false, true}));
    click(sections.buttons[0]);
    QCOMPARE(sections.visible(), (QList<bool>{true, false, true}));
}

void TestToolBox::arrowShowsTheState()
{
    ThreeSections sections;
    QVERIFY(!picture(down).isNull());
    QVERIFY(picture(down) != picture(rightArrow));
    QVERIFY(sections.show(600));
    QCOMPARE(arrow(sections.buttons[0]), picture(down));
    click(sections.buttons[0]);
    QCOMPARE(arrow(sections.buttons[0]), picture(rightArrow));
    QCOMPARE(arrow(sections.buttons[1]), picture(down));
}

void TestToolBox::iconFilesAreTheCallers()
{
    ToolBox box;
    box.addSection(new QFrame, QStringLiteral("Swapped"), rightArrow, down);
    QCOMPARE(arrow(box.findChild<QToolButton*>()), picture(rightArrow));
}

void TestToolBox::sectionPointsDownWhenOpenAndRightWhenClosed()
{
    ToolBox box;
    auto* const page = new QFrame;
    box.addSection(page, QStringLiteral("With the dialog's arrows"));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    auto* const button = box.findChild<QToolButton*>();
    QVERIFY(page->isVisible());
    QCOMPARE(arrow(button), picture(down));
    click(button);
    QVERIFY(!page->isVisible());
    QCOMPARE(arrow(button), picture(rightArrow));
}

void TestToolBox::titleIsBoldWhilePagesLabelsAreNormal()
{
    ThreeSections sections;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(sections.title(i)->font().weight() == QFont::Bold);
        QVERIFY(sections.labels[i]->font().weight() == QFont::Normal);
    }
}

void TestToolBox::gridClosesUpOverACollapsedPage()
{
    ThreeSections sections;
    QVERIFY(sections.show(600));
    const int before = sections.title(1)->y();
    QVERIFY(before > 100);
    click(sections.buttons[0]);
    QTRY_VERIFY(sections.title(1)->y() < 100);
    click(sections.buttons[0]);
    QTRY_COMPARE(sections.title(1)->y(), before);
}

void TestToolBox::areaScrollsWhenSectionsAreTallerThanTheBox()
{
    ThreeSections sections;
    QVERIFY(sections.show(200));
    const QScrollBar* const bar = sections.area->verticalScrollBar();
    QVERIFY(bar->isVisible());
    QVERIFY(bar->maximum() > 100);
    for (QToolButton* button : sections.buttons) {
        click(button);
    }
    QTRY_VERIFY(!bar->isVisible());
}

void TestToolBox::buttonIsNamedAfterItsSection()
{
    ThreeSections sections;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(sections.buttons[i]->accessibleName(), QStringLiteral("Section %1").arg(i));
        QVERIFY(!sections.buttons[i]->toolTip().isEmpty());
        QCOMPARE(sections.title(i)->buddy(), sections.buttons[i]);
    }
}

void TestToolBox::focusedControlStaysWhereItIs_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("rows above go") << 300 << 150;
    QTest::newRow("rows above come") << 300 << 450;
    QTest::newRow("nothing changes") << 300 << 300;
}

void TestToolBox::focusedControlStaysWhereItIs()
{
    QFETCH(int, before);
    QFETCH(int, after);
    Scrolled sections;
    QVERIFY(sections.ready);
    sections.labels[1]->setFocus();
    QCOMPARE(sections.labels[0]->height(), before);
    const int place = sections.placeOf(sections.labels[1]);
    QVERIFY(place > -250 && place < 250);
    sections.box.keepFocusInPlace([&] { sections.labels[0]->setFixedHeight(after); });
    // At once, so that nothing else is ever painted.
    QCOMPARE(sections.placeOf(sections.labels[1]), place);
    QCOMPARE(sections.labels[0]->height(), after);
    QCoreApplication::processEvents();
    QCOMPARE(sections.placeOf(sections.labels[1]), place);
}

void TestToolBox::focusedControlStaysInSightAtTheEnds()
{
    Scrolled sections;
    QVERIFY(sections.ready);
    auto* const button = sections.buttons[2];
    button->setFocus();
    sections.area->ensureWidgetVisible(button);
    // So little is left that the column cannot be scrolled that far.
    sections.box.keepFocusInPlace([&] {
        sections.labels[0]->setFixedHeight(10);
        sections.labels[2]->hide();
    });
    QCOMPARE(sections.bar()->value(), sections.bar()->maximum());
    const QRect shown(QPoint(0, sections.placeOf(button)), button->size());
    QVERIFY(sections.area->viewport()->rect().contains(shown));
}

void TestToolBox::columnStaysWithoutAFocusedControl()
{
    Scrolled sections;
    QVERIFY(sections.ready);
    sections.box.setFocus();
    sections.box.keepFocusInPlace([&] { sections.labels[0]->setFixedHeight(400); });
    QCoreApplication::processEvents();
    QCOMPARE(sections.bar()->value(), 350);
}

void TestToolBox::sectionsStayTogetherInAHighBox()
{
    ThreeSections sections;
    // As the pages of the dialog end.
    for (QFrame* page : sections.pages) {
        static_cast<QVBoxLayout*>(page->layout())->addStretch();
    }
    QVERIFY(sections.show(900));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(sections.pages[i]->height() < 150);
    }
    QVERIFY(sections.title(2)->geometry().bottom() < 400);
}

void TestToolBox::backgroundIsThatOfTheWindowBehind()
{
    QWidget window;
    QPalette palette = window.palette();
    palette.setColor(QPalette::Window, Qt::cyan);
    window.setPalette(palette);
    ThreeSections sections;
    sections.box.setParent(&window);
    // The sections' own palette is another.
    sections.box.setPalette(QPalette(Qt::gray));
    sections.box.resize(300, 600);
    window.resize(300, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QColor below = window.grab().toImage().pixelColor(150, 590);
    QCOMPARE(below, QColor(Qt::cyan));
    const QRect title = sections.title(0)->geometry();
    QCOMPARE(window.grab().toImage().pixelColor(title.right() - 2, title.center().y()),
             QColor(Qt::cyan));
}

// Pages end with spacers of different heights.
void TestToolBox::gapsBetweenSectionsAreEqual()
{
    ThreeSections sections;
    auto* const first = static_cast<QVBoxLayout*>(sections.pages[0]->layout());
    first->addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding));
    static_cast<QVBoxLayout*>(sections.pages[1]->layout())->addStretch();
    QVERIFY(sections.show(900));
    const auto gapBelow = [&](int section) {
        const QLabel* const label = sections.labels[section];
        const int end = label->mapTo(sections.area->widget(), QPoint(0, label->height())).y();
        return sections.buttons[section + 1]->y() - end;
    };
    QCOMPARE(gapBelow(0), gapBelow(1));
    QVERIFY2(gapBelow(0) < 30, qPrintable(QString::number(gapBelow(0))));
    // The spacer itself is as it was.
    QCOMPARE(first->itemAt(1)->sizeHint(), QSize(20, 40));
}

void TestToolBox::clickOnATitleFoldsItsSectionAlone()
{
    ThreeSections sections;
    QVERIFY(sections.show(600));
    QCOMPARE(sections.title(1)->cursor().shape(), Qt::PointingHandCursor);
    // Far from the text, too: the title takes the rest of its line.
    const QPoint end(sections.title(1)->width() - 3, 3);
    QTest::mouseClick(sections.title(1), Qt::LeftButton, {}, end);
    QCOMPARE(sections.visible(), (QList<bool>{true, false, true}));
    QVERIFY(!sections.buttons[1]->isChecked());
    QVERIFY(sections.buttons[1]->hasFocus());
    QTest::mouseClick(sections.title(1), Qt::LeftButton);
    QCOMPARE(sections.visible(), (QList<bool>{true, true, true}));
}

void TestToolBox::otherClicksOnATitleDoNot_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("released");
    QTest::newRow("right button") << int(Qt::RightButton) << QPoint(5, 5);
    QTest::newRow("released elsewhere") << int(Qt::LeftButton) << QPoint(5, 200);
}

void TestToolBox::otherClicksOnATitleDoNot()
{
    QFETCH(int, button);
    QFETCH(QPoint, released);
    ThreeSections sections;
    QVERIFY(sections.show(600));
    QTest::mousePress(sections.title(0), Qt::MouseButton(button), {}, QPoint(5, 5));
    QTest::mouseRelease(sections.title(0), Qt::MouseButton(button), {}, released);
    QCOMPARE(sections.visible(), (QList<bool>{true, true, true}));
}

void TestToolBox::titleOfTheSectionInSightSticks_data()
{
    QTest::addColumn<int>("scrolled");
    QTest::addColumn<QString>("text");
    QTest::newRow("at the beginning") << 0 << QString();
    QTest::newRow("in the first") << 100 << QStringLiteral("Section 0");
    QTest::newRow("in the second") << 450 << QStringLiteral("Section 1");
    QTest::newRow("at the end") << 2000 << QStringLiteral("Section 2");
}

void TestToolBox::titleOfTheSectionInSightSticks()
{
    QFETCH(int, scrolled);
    QFETCH(QString, text);
    Scrolled sections;
    QVERIFY(sections.ready);
    sections.bar()->setValue(scrolled);
    const auto* const title = sections.stickingTitle();
    QVERIFY(title);
    QCOMPARE(title->isVisible(), !text.isEmpty());
    if (!text.isEmpty()) {
        QCOMPARE(title->text(), text);
        QCOMPARE(title->geometry().topLeft(), QPoint(0, 0));
        QCOMPARE(title->width(), sections.area->viewport()->width());
        // In front of the page.
        QCOMPARE(sections.area->viewport()->childAt(5, 5), title);
    }
}

void TestToolBox::stickingTitleGivesWayToTheNext()
{
    Scrolled sections;
    QVERIFY(sections.ready);
    const StickingTitle* const title = sections.stickingTitle();
    for (int scrolled = 1; scrolled < sections.bar()->maximum(); ++scrolled) {
        sections.bar()->setValue(scrolled);
        for (const QToolButton* button : sections.buttons) {
            const QRect own(0, sections.placeOf(button), button->width(), button->height());
            QVERIFY(own.top() < 0 || !title->isVisible() || !own.intersects(title->geometry()));
        }
    }
    // A closed section has nothing to tell apart.
    sections.bar()->setValue(100);
    QVERIFY(title->isVisible());
    QCOMPARE(title->text(), QStringLiteral("Section 0"));
    sections.buttons[0]->click();
    QTRY_COMPARE(title->text(), QStringLiteral("Section 1"));
}

void TestToolBox::stickingTitleIsDrawn()
{
    Scrolled sections;
    QVERIFY(sections.ready);
    const auto picture = [&sections](int scrolled) {
        sections.bar()->setValue(scrolled);
        auto* const title = sections.stickingTitle();
        return title->grab().toImage();
    };
    QVERIFY(picture(100) != picture(450));
    QCOMPARE(picture(100), picture(101));
}

void TestToolBox::clickOnTheStickingTitleFoldsItsSection()
{
    Scrolled sections;
    QVERIFY(sections.ready);
    auto* const title = sections.stickingTitle();
    sections.bar()->setValue(450);
    QTest::mouseClick(title, Qt::LeftButton);
    QCOMPARE(sections.visible(), (QList<bool>{true, false, true}));
    // The title itself comes to where the click was.
    QTRY_VERIFY(!title->isVisible());
    const int place = sections.placeOf(sections.buttons[1]);
    QVERIFY2(place >= 0 && place < 10, qPrintable(QString::number(place)));
}

QTEST_MAIN(TestToolBox)
#include "tst_tool_box.moc"
