#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"

#include "pages/ToolBox.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

#include <cstring>
#include <iterator>

/// Where the controls stand: cells of the grids, order in the rows, and the pages' titles.
class TestPageLayouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void pageHasTitle_data();
    void pageHasTitle();
    void widgetStandsInCell_data();
    void widgetStandsInCell();
    void spacerHasSize_data();
    void spacerHasSize();
    void layoutHoldsInOrder_data();
    void layoutHoldsInOrder();
    void sectionsFillTheirFrame_data();
    void sectionsFillTheirFrame();
    void groupBoxWithoutTitle_data();
    void groupBoxWithoutTitle();
    void labelIsBold_data();
    void labelIsBold();
    void viewPageEndsWithASpacerInRow16();
    void pageEndsWithItsLastRow_data();
    void pageEndsWithItsLastRow();
    void fieldsOfThePictureFormatEndAtOneEdge();
};

namespace
{

QLayout* findLayout(const QWidget* window, const QString& pageClass, const QString& name)
{
    QLayout* found = nullptr;
    for (QLayout* layout : window->findChildren<QLayout*>(name)) {
        const QWidget* const parent = layout->parentWidget();
        const auto* page = qobject_cast<const SettingsPage*>(parent);
        if (!page) {
            page = pageOf(parent);
        }
        if (!page || pageClass != QLatin1String(page->metaObject()->className())) {
            continue;
        }
        if (found) {
            return nullptr;
        }
        found = layout;
    }
    return found;
}

/// An item of a layout by its name; spacers have none.
QString nameOf(QLayoutItem* item)
{
    if (item->widget()) {
        return item->widget()->objectName();
    }
    if (item->layout()) {
        return item->layout()->objectName();
    }
    return item->expandingDirections() & Qt::Vertical ? QStringLiteral("(vertical spacer)")
                                                      : QStringLiteral("(horizontal spacer)");
}

QStringList itemsOf(const QLayout* layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i) {
        names += nameOf(layout->itemAt(i));
    }
    return names;
}

struct Cell {
    const char* page;
    const char* grid;
    const char* widget;
    int row;
    int column;
    int columns = 1;
};

const char* const video = "VideoFormatPage";
const char* const motion = "MotionEstimationPage";
const char* const gop = "GOPStructurePage";
const char* const misc = "MiscPage";
const char* const views = "ViewsPage";

const Cell cells[] = {
    {"BasicPage", "gridLayout", "deviceGroup", 0, 0},
    {"BasicPage", "gridLayout", "collectionFrame", 1, 0},

    {video, "gridLayout", "resolutionLabel", 0, 0},
    {video, "gridLayout", "widthSpin", 0, 1},
    {video, "gridLayout", "labelX", 0, 2},
    {video, "gridLayout", "heightSpin", 0, 3},
    {video, "gridLayout", "aspectRatioCheck", 1, 0},
    {video, "gridLayout", "aspectRatioList", 1, 1, 3},
    {video, "gridLayout", "fpsLabel", 2, 0},
    {video, "gridLayout", "framerateList", 2, 1, 3},
    {video, "gridLayout", "pixelLabel", 3, 0},
    {video, "gridLayout", "pixelXSpin", 3, 1},
    {video, "gridLayout", "pixelLabel2", 3, 2},
    {video, "gridLayout", "pixelYSpin", 3, 3},
    {video, "gridLayout", "frame_4", 4, 0, 4},
    {video, "gridLayout", "interlaceLabel", 5, 0},
    {video, "gridLayout", "interlaceList", 5, 1, 3},
    {video, "gridLayout", "fieldOrderLabel", 6, 0},
    {video, "gridLayout", "fieldOrderList", 6, 1, 3},
    {video, "gridLayout", "pulldownLabel", 7, 0},
    {video, "gridLayout", "pulldownList", 7, 1, 3},
    {video, "gridLayout", "frame_5", 8, 0, 4},
    {video, "gridLayout", "label", 9, 0},
    {video, "gridLayout", "chromaList", 9, 1, 3},
    {video, "gridLayout", "label_2", 10, 0},
    {video, "gridLayout", "bitdepthLList", 10, 1, 3},
    {video, "gridLayout", "label_3", 11, 0},
    {video, "gridLayout", "bitdepthCList", 11, 1, 3},

    {motion, "gridLayout", "macroSearchLabel", 0, 0},
    {motion, "gridLayout", "macroSearchList", 0, 1},
    {motion, "gridLayout", "label_2", 1, 0},
    {motion, "gridLayout", "subSearchList", 1, 1},
    {motion, "gridLayout", "label_3", 2, 0},
    {motion, "gridLayout", "refFramesSpin", 2, 1},
    {motion, "gridLayout", "searchRangeLabel", 3, 0},
    {motion, "gridLayout", "searchRangeSpin", 3, 1},
    {motion, "gridLayout", "weightedPCheck", 4, 0, 2},
    {motion, "gridLayout", "fastRefCheck", 5, 0, 2},
    {motion, "gridLayout", "fastSubCheck", 6, 0, 2},

    {gop, "gridLayout", "sceneDetectCheck", 0, 0},
    {gop, "gridLayout", "groupBox", 1, 0},
    {gop, "gridLayout", "groupBox_2", 2, 0},
    {gop, "gridLayout1", "pDistanceLabel", 0, 0},
    {gop, "gridLayout1", "iFrameIntervalSpin", 0, 1},
    {gop, "gridLayout1", "pDistanceLabel_2", 1, 0},
    {gop, "gridLayout1", "iFrameForceSpin", 1, 1},
    {gop, "gridLayout1", "hboxLayout", 2, 0, 2},
    {gop, "gridLayout1", "fixedICheck", 3, 0, 2},
    {gop, "gridLayout2", "adaptiveBCheck", 0, 0, 2},
    {gop, "gridLayout2", "piramydBCheck", 1, 0, 2},
    {gop, "gridLayout2", "pDistanceLabel_3", 2, 0},
    {gop, "gridLayout2", "bBetweenIPSpin", 2, 1},
    {gop, "gridLayout2", "bAsReferenceCheck", 3, 0, 2},

    {misc, "gridLayout", "deblockingCheck", 0, 0, 2},
    {misc, "gridLayout", "label", 1, 0},
    {misc, "gridLayout", "entropyList", 1, 1},
    {misc, "gridLayout", "label_2", 2, 0},
    {misc, "gridLayout", "threadsSpin", 2, 1},
    {misc, "gridLayout", "label_3", 3, 0},
    {misc, "gridLayout", "slicesSpin", 3, 1},

    {views, "gridLayout_2", "groupBox", 0, 0},
    {views, "gridLayout_2", "collectionFrame", 1, 0},
    {views, "gridLayout", "profileLabel", 0, 0, 2},
    {views, "gridLayout", "numViewsSpin", 0, 4},
    {views, "gridLayout", "splitCheck", 1, 0, 2},
};

// On each of the four view pages.
const Cell viewCells[] = {
    {"", "gridLayout_2", "brModeLabel", 0, 0},
    {"", "gridLayout_2", "bitrateModeList", 0, 1, 2},
    {"", "gridLayout_2", "targetRateLabel", 1, 0, 2},
    {"", "gridLayout_2", "targetRateSpin", 1, 2},
    {"", "gridLayout_2", "maxRateLabel", 2, 0, 2},
    {"", "gridLayout_2", "maxRateSpin", 2, 2},
    {"", "gridLayout_2", "groupBoxBuffers", 3, 0, 3},
    {"", "gridLayout_2", "hrdCheck", 4, 0, 3},
    {"", "gridLayout_2", "line_2", 5, 0, 3},
    {"", "gridLayout_2", "iSizeLabel", 6, 0, 2},
    {"", "gridLayout_2", "iSizeSpin", 6, 2},
    {"", "gridLayout_2", "pSizeLabel", 7, 0, 2},
    {"", "gridLayout_2", "pSizeSpin", 7, 2},
    {"", "gridLayout_2", "bSizeLabel", 8, 0, 2},
    {"", "gridLayout_2", "bSizeSpin", 8, 2},
    {"", "gridLayout_2", "brSizeLabel", 9, 0, 2},
    {"", "gridLayout_2", "brSizeSpin", 9, 2},
    {"", "gridLayout_2", "line_3", 10, 0, 3},
    {"", "gridLayout_2", "quantILabel", 11, 0, 2},
    {"", "gridLayout_2", "quantISpin", 11, 2},
    {"", "gridLayout_2", "quantPLabel", 12, 0, 2},
    {"", "gridLayout_2", "quantPSpin", 12, 2},
    {"", "gridLayout_2", "quantBLabel", 13, 0, 2},
    {"", "gridLayout_2", "quantBSpin", 13, 2},
    {"", "gridLayout_2", "maxQuantLabel", 14, 0, 2},
    {"", "gridLayout_2", "maxQuantSpin", 14, 2},
    {"", "gridLayout_2", "minQuantLabel", 15, 0, 2},
    {"", "gridLayout_2", "minQuantSpin", 15, 2},
    {"", "gridLayout_2", "(vertical spacer)", 16, 1},

    {"", "gridLayout", "groupBox", 0, 0, 2},
    {"", "gridLayout", "bitrateBufferLabel", 1, 0},
    {"", "gridLayout", "bitrateBufferSpin", 1, 1},
    {"", "gridLayout", "vbvInitialLabel", 2, 0},
    {"", "gridLayout", "vbvInitialSpin", 2, 1},
    {"", "gridLayout", "vbvTargetLabel", 3, 0},
    {"", "gridLayout", "vbvTargetSpin", 3, 1},
    {"", "gridLayout", "onesecCheck", 4, 0, 2},
};

const char* const viewPages[] = {"View0Page", "View1Page", "View2Page", "View3Page"};

QVector<Cell> allCells()
{
    QVector<Cell> all(std::begin(cells), std::end(cells));
    for (const char* page : viewPages) {
        for (Cell cell : viewCells) {
            cell.page = page;
            all.append(cell);
        }
    }
    return all;
}

/// A spacer in a cell of a grid, or at the end of a row or column of items.
struct Spacer {
    const char* page;
    const char* layout;
    int row;
    int column;
    Qt::Orientation direction;
    int width;
    int height;
};

constexpr int end = -1;

const Spacer spacers[] = {
    {gop, "vboxLayout", end, end, Qt::Vertical, 20, 40},
    {gop, "hboxLayout", end, end, Qt::Horizontal, 40, 20},
    {"RateDistortionPage", "vboxLayout", end, end, Qt::Vertical, 20, 40},
    {misc, "vboxLayout", end, end, Qt::Vertical, 20, 40},
    {views, "gridLayout", 0, 2, Qt::Horizontal, 153, 20},
    {views, "gridLayout", 1, 2, Qt::Horizontal, 40, 20},
};

QLayoutItem* itemAt(QLayout* layout, int row, int column)
{
    if (auto* const grid = qobject_cast<QGridLayout*>(layout)) {
        return grid->itemAtPosition(row, column);
    }
    return layout->itemAt(layout->count() - 1);
}

} // namespace

Q_DECLARE_METATYPE(Cell)
Q_DECLARE_METATYPE(Spacer)

void TestPageLayouts::pageHasTitle_data()
{
    QTest::addColumn<QString>("title");
    const auto row = [](const char* page, const char* title) {
        QTest::newRow(page) << QString(QLatin1String(title));
    };
    row("BasicPage", "Basic Page");
    row("VideoFormatPage", "Video Format Page");
    row("AdvancedPage", "Advanced Page");
    row("GOPStructurePage", "GOP Structure Page");
    row("MotionEstimationPage", "Motion Estimation Page");
    row("RateDistortionPage", "Rate Distortion Page");
    row("MiscPage", "Miscallaneous Page");
    row("ViewsPage", "Views Page");
    row("View0Page", "View1 Page");
    row("View1Page", "View1 Page");
    row("View2Page", "View2 Page");
    row("View3Page", "View3 Page");
}

void TestPageLayouts::pageHasTitle()
{
    AllPages pages;
    int found = 0;
    for (const QFrame* page : pages.window()->findChildren<QFrame*>()) {
        if (!page->inherits(QTest::currentDataTag())) {
            continue;
        }
        ++found;
        const QString title = page->windowTitle();
        QTEST(title, "title");
    }
    QCOMPARE(found, 1);
}

void TestPageLayouts::widgetStandsInCell_data()
{
    QTest::addColumn<Cell>("cell");
    const QVector<Cell> all = allCells();
    for (const Cell& cell : all) {
        QTest::newRow(qPrintable(
            QStringLiteral("%1.%2").arg(QLatin1String(cell.page), QLatin1String(cell.widget))))
            << cell;
    }
}

void TestPageLayouts::widgetStandsInCell()
{
    QFETCH(Cell, cell);
    AllPages pages;
    const auto* const grid = qobject_cast<QGridLayout*>(
        findLayout(pages.window(), QLatin1String(cell.page), QLatin1String(cell.grid)));
    QVERIFY(grid);
    const int place = int(itemsOf(grid).indexOf(QLatin1String(cell.widget)));
    QVERIFY(place >= 0);
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(place, &row, &column, &rows, &columns);
    QCOMPARE(row, cell.row);
    QCOMPARE(column, cell.column);
    QCOMPARE(rows, 1);
    QCOMPARE(columns, cell.columns);
}

void TestPageLayouts::spacerHasSize_data()
{
    QTest::addColumn<Spacer>("spacer");
    for (const Spacer& spacer : spacers) {
        QTest::addRow("%s.%s %dx%d", spacer.page, spacer.layout, spacer.width, spacer.height)
            << spacer;
    }
}

void TestPageLayouts::spacerHasSize()
{
    QFETCH(Spacer, spacer);
    AllPages pages;
    QLayout* const layout =
        findLayout(pages.window(), QLatin1String(spacer.page), QLatin1String(spacer.layout));
    QVERIFY(layout);
    QLayoutItem* const item = itemAt(layout, spacer.row, spacer.column);
    QVERIFY(item && item->spacerItem());
    QCOMPARE(item->sizeHint(), QSize(spacer.width, spacer.height));
    QCOMPARE(item->expandingDirections(), Qt::Orientations(spacer.direction));
}

void TestPageLayouts::layoutHoldsInOrder_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char* page, const char* layout, const QStringList& items) {
        QTest::newRow(
            qPrintable(QStringLiteral("%1.%2").arg(QLatin1String(page), QLatin1String(layout))))
            << QString(QLatin1String(page)) << QString(QLatin1String(layout)) << items;
    };
    const char* const below = "(vertical spacer)";
    const char* const between = "(horizontal spacer)";
    row("BasicPage", "hboxLayout", lines({"hboxLayout1"}));
    row("BasicPage", "hboxLayout1", lines({"deviceLabel", "deviceList"}));
    row(video, "vboxLayout", lines({"gridLayout", below}));
    row("AdvancedPage", "vboxLayout", lines({"groupBox", "collectionFrame"}));
    row("AdvancedPage", "vboxLayout1", lines({"hboxLayout", "hboxLayout1"}));
    row("AdvancedPage", "hboxLayout", lines({"profileLabel", between, "profileList"}));
    row("AdvancedPage", "hboxLayout1", lines({"levelLabel", between, "levelList"}));
    row(motion, "vboxLayout", lines({"gridLayout", below}));
    row(gop, "vboxLayout", lines({"gridLayout", below}));
    row(gop, "hboxLayout", lines({"label", "idrSpin", "label_2", between}));
    row(misc, "vboxLayout", lines({"gridLayout", below}));

    const char* const distortion = "RateDistortionPage";
    QStringList switches;
    for (const ledger::Setting& setting : ledger::settingsOn(distortion)) {
        if (setting.kind == ledger::Kind::Switch) {
            switches += QString::fromLatin1(setting.control);
        }
    }
    row(distortion, "vboxLayout", switches + lines({"line", "adaptiveGroup", below}));
    row(distortion, "vboxLayout1", lines({"vboxLayout2", "vboxLayout4", "vboxLayout6"}));
    row(distortion, "vboxLayout2", lines({"label", "hboxLayout"}));
    row(distortion, "hboxLayout", lines({"vboxLayout3", "hboxLayout1"}));
    row(distortion, "vboxLayout3", lines({"brightnessSlider"}));
    row(distortion, "hboxLayout1", lines({"brightnessLabel"}));
    row(distortion, "vboxLayout4", lines({"label_2", "hboxLayout2"}));
    row(distortion, "hboxLayout2", lines({"vboxLayout5", "hboxLayout3"}));
    row(distortion, "vboxLayout5", lines({"contrastSlider"}));
    row(distortion, "hboxLayout3", lines({"contrastLabel"}));
    row(distortion, "vboxLayout6", lines({"label_3", "hboxLayout4"}));
    row(distortion, "hboxLayout4", lines({"vboxLayout7", "hboxLayout5"}));
    row(distortion, "vboxLayout7", lines({"complexitySlider"}));
    row(distortion, "hboxLayout5", lines({"complexityLabel"}));

    for (const char* view : viewPages) {
        for (const char* grid : {"gridLayout_2", "gridLayout"}) {
            QStringList items;
            for (const Cell& cell : viewCells) {
                if (std::strcmp(cell.grid, grid) == 0) {
                    items += QString::fromLatin1(cell.widget);
                }
            }
            row(view, grid, items);
        }
        row(view, "vboxLayout", lines({"units1Radio", "units2Radio", "units3Radio"}));
    }
}

void TestPageLayouts::layoutHoldsInOrder()
{
    QFETCH(QString, page);
    QFETCH(QString, layout);
    AllPages pages;
    const QLayout* const found = findLayout(pages.window(), page, layout);
    QVERIFY(found);
    const QStringList items = itemsOf(found);
    QTEST(items, "items");
}

void TestPageLayouts::sectionsFillTheirFrame_data()
{
    QTest::addColumn<QString>("page");
    for (const char* page : {"BasicPage", "AdvancedPage", "ViewsPage"}) {
        QTest::newRow(page) << QString::fromLatin1(page);
    }
}

void TestPageLayouts::sectionsFillTheirFrame()
{
    QFETCH(QString, page);
    AllPages pages;
    const QWidget* const frame =
        findOnPage(pages.window(), page, QStringLiteral("collectionFrame"));
    QVERIFY(frame);
    const auto* const layout = qobject_cast<QVBoxLayout*>(frame->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 1);
    QVERIFY(qobject_cast<ToolBox*>(layout->itemAt(0)->widget()));
    QCOMPARE(layout->stretch(0), 0);
}

void TestPageLayouts::groupBoxWithoutTitle_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("BasicPage") << QStringLiteral("deviceGroup");
    QTest::newRow("AdvancedPage") << QStringLiteral("groupBox");
    QTest::newRow("ViewsPage") << QStringLiteral("groupBox");
}

void TestPageLayouts::groupBoxWithoutTitle()
{
    QFETCH(QString, name);
    AllPages pages;
    const auto* const box = qobject_cast<QGroupBox*>(
        findOnPage(pages.window(), QLatin1String(QTest::currentDataTag()), name));
    QVERIFY(box);
    QCOMPARE(box->title(), QString());
}

void TestPageLayouts::labelIsBold_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* page, const char* name) {
        QTest::newRow(name) << QString(QLatin1String(page)) << QString(QLatin1String(name));
    };
    row("BasicPage", "deviceLabel");
    row("AdvancedPage", "profileLabel");
    row("AdvancedPage", "levelLabel");
}

void TestPageLayouts::labelIsBold()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    AllPages pages;
    const auto* const label = qobject_cast<QLabel*>(findOnPage(pages.window(), page, name));
    QVERIFY(label);
    QVERIFY(label->font().weight() == QFont::Bold);
    QCOMPARE(label->frameShape(), QFrame::NoFrame);
    QCOMPARE(label->frameShadow(), QFrame::Plain);
    QVERIFY(!label->wordWrap());
}

void TestPageLayouts::viewPageEndsWithASpacerInRow16()
{
    AllPages pages;
    for (int view = 0; view < 4; ++view) {
        const auto* const grid = qobject_cast<QGridLayout*>(
            findLayout(pages.window(), QStringLiteral("View%1Page").arg(view),
                       QStringLiteral("gridLayout_2")));
        QVERIFY(grid);
        int lastRow = -1;
        for (int i = 0; i < grid->count(); ++i) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            QVERIFY2(row >= lastRow, qPrintable(nameOf(grid->itemAt(i))));
            lastRow = row;
        }
        QCOMPARE(lastRow, 16);
        QCOMPARE(grid->rowCount(), 17);
    }
}

// Those without a spacer of a size that is to be seen.
void TestPageLayouts::pageEndsWithItsLastRow_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("mode");
    const auto row = [](const char* page, int tab, const char* mode = "") {
        QTest::addRow("%s%s%s", page, *mode ? ", " : "", mode)
            << tab << QString(QLatin1String(mode));
    };
    row("VideoFormatPage", 0);
    row("MotionEstimationPage", 1);
    for (const char* mode :
         {"Constant Bitrate", "Variable Bitrate", "Const. Quality - Constant Quantizer",
          "Const. Quality - Average Quantizer"}) {
        row("View0Page", 2, mode);
    }
}

void TestPageLayouts::pageEndsWithItsLastRow()
{
    QFETCH(int, tab);
    QFETCH(QString, mode);
    AllPages pages;
    pages.window()->setCurrentIndex(tab);
    QVERIFY(pages.show());
    ConfigState state = stateOf(&Control::a);
    state.insert(QStringLiteral("Bitrate Mode V0"), mode);
    pages.receive(state);
    const QString page =
        QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(','), 0, 0);
    const auto* const found = pages.window()->findChild<QWidget*>(QLatin1Char('I') + page);
    QVERIFY(found && found->isVisible());
    const auto roomBelow = [found] {
        int bottom = 0;
        for (const QWidget* widget :
             found->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (widget->isVisible()) {
                bottom = qMax(bottom, widget->geometry().bottom() + 1);
            }
        }
        return found->height() - bottom;
    };
    QTRY_COMPARE(roomBelow(), 4);
}

void TestPageLayouts::fieldsOfThePictureFormatEndAtOneEdge()
{
    AllPages pages;
    QVERIFY(pages.show());
    const auto right = [&pages](const char* name) {
        return findOnPage(pages.window(), QLatin1String(video), QLatin1String(name))
            ->geometry()
            .right();
    };
    for (const char* name : {"heightSpin", "pixelYSpin", "aspectRatioList", "interlaceList"}) {
        QCOMPARE(right(name), right("framerateList"));
    }
}

QTEST_MAIN(TestPageLayouts)
#include "tst_page_layouts.moc"
