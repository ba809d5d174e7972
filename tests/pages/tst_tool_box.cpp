#include "ToolkitWarnings.h"

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
};

namespace
{

const QString down = QStringLiteral(":/res_mvc/icons/down.png");
const QString right = QStringLiteral(":/res_mvc/icons/right.png");

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
            box.addSection(page, QStringLiteral("Section %1").arg(i), down, right);
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
    QVERIFY(picture(down) != picture(right));
    QVERIFY(sections.show(600));
    QCOMPARE(arrow(sections.buttons[0]), picture(down));
    click(sections.buttons[0]);
    QCOMPARE(arrow(sections.buttons[0]), picture(right));
    QCOMPARE(arrow(sections.buttons[1]), picture(down));
}

void TestToolBox::iconFilesAreTheCallers()
{
    ToolBox box;
    box.addSection(new QFrame, QStringLiteral("Swapped"), right, down);
    QCOMPARE(arrow(box.findChild<QToolButton*>()), picture(right));
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
    QCOMPARE(arrow(button), picture(right));
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

QTEST_MAIN(TestToolBox)
#include "tst_tool_box.moc"
