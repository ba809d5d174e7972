// Where a dialog goes over a host's window.

#include "entry/DialogPlacement.h"

#include <QTest>

Q_DECLARE_METATYPE(WindowEdges)
Q_DECLARE_METATYPE(QVector<ScaledScreen>)

class TestEntryPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void centred_data();
    void centred();
    void scaled_data();
    void scaled();
};

void TestEntryPlacement::centred_data()
{
    QTest::addColumn<WindowEdges>("parent");
    QTest::addColumn<QSize>("dialog");
    QTest::addColumn<QRect>("desktop");
    QTest::addColumn<QPoint>("place");

    const QRect desktop(0, 0, 1920, 1080);
    const QSize dialog(400, 600);
    QTest::newRow("in the middle")
        << WindowEdges{500, 100, 1500, 900} << dialog << desktop << QPoint(800, 200);
    QTest::newRow("halves are truncated one by one")
        << WindowEdges{100, 100, 901, 901} << QSize(401, 601) << desktop << QPoint(300, 200);
    QTest::newRow("half of a negative sum is truncated towards zero")
        << WindowEdges{-801, -601, 2000, 2000} << dialog << desktop << QPoint(399, 399);
    QTest::newRow("beyond the left and upper edge")
        << WindowEdges{-900, -900, 100, 100} << dialog << desktop << QPoint(0, 0);
    QTest::newRow("beyond the right and lower edge")
        << WindowEdges{1800, 1000, 2800, 2000} << dialog << desktop << QPoint(1520, 480);
    QTest::newRow("just at the right and lower edge")
        << WindowEdges{1620, 680, 1820, 880} << dialog << desktop << QPoint(1520, 480);
    QTest::newRow("one before the right and lower edge")
        << WindowEdges{1618, 678, 1820, 880} << dialog << desktop << QPoint(1519, 479);
    QTest::newRow("one beyond the left and upper edge")
        << WindowEdges{99, 199, 299, 399} << dialog << desktop << QPoint(0, 0);
    QTest::newRow("minimized out of the way")
        << WindowEdges{-32000, -32000, -31840, -31972} << dialog << desktop << QPoint(0, 0);
    QTest::newRow("dialog as large as the desktop")
        << WindowEdges{0, 0, 1920, 1080} << QSize(1920, 1080) << desktop << QPoint(0, 0);
    // The upper bound is a size, not an edge, and wins.
    QTest::newRow("dialog larger than the desktop")
        << WindowEdges{0, 0, 1920, 1080} << QSize(2000, 1100) << desktop << QPoint(-80, -20);
    QTest::newRow("desktop that starts left of zero")
        << WindowEdges{-1800, 0, -1000, 600} << dialog << QRect(-1920, 0, 3840, 1080)
        << QPoint(-1600, 0);
    QTest::newRow("far left on such a desktop")
        << WindowEdges{-2600, 100, -1900, 900} << dialog << QRect(-1920, 0, 3840, 1080)
        << QPoint(-1920, 200);
    QTest::newRow("desktop that starts right of zero")
        << WindowEdges{1900, 200, 2900, 1000} << dialog << QRect(1000, 0, 1920, 1080)
        << QPoint(1520, 300);
}

void TestEntryPlacement::centred()
{
    QFETCH(WindowEdges, parent);
    QFETCH(QSize, dialog);
    QFETCH(QRect, desktop);
    QFETCH(QPoint, place);
    QCOMPARE(centredOver(parent, dialog, desktop), place);
}

void TestEntryPlacement::scaled_data()
{
    QTest::addColumn<WindowEdges>("window");
    QTest::addColumn<QVector<ScaledScreen>>("screens");
    QTest::addColumn<WindowEdges>("inToolkitPixels");

    const WindowEdges window{1000, 400, 1800, 1000};
    const ScaledScreen plain{QRect(0, 0, 1920, 1080), 1};
    const ScaledScreen dense{QRect(0, 0, 1920, 1080), 2};
    // Right of a plain screen: its corner stays in the window system's pixels.
    const ScaledScreen denseBeside{QRect(1920, 0, 1920, 1080), 2};
    QTest::newRow("no screens") << window << QVector<ScaledScreen>() << window;
    QTest::newRow("plain") << window << QVector<ScaledScreen>{plain} << window;
    QTest::newRow("twice as dense")
        << window << QVector<ScaledScreen>{dense} << WindowEdges{500, 200, 900, 500};
    QTest::newRow("half as dense again")
        << window << QVector<ScaledScreen>{{QRect(0, 0, 1280, 720), 1.5}}
        << WindowEdges{666, 266, 1200, 666};
    QTest::newRow("on the plain one of two")
        << window << QVector<ScaledScreen>{plain, denseBeside} << window;
    QTest::newRow("on the dense one of two")
        << WindowEdges{2120, 400, 2920, 1000} << QVector<ScaledScreen>{plain, denseBeside}
        << WindowEdges{2020, 200, 2420, 500};
    QTest::newRow("the middle decides")
        << WindowEdges{1800, 0, 2200, 200} << QVector<ScaledScreen>{plain, denseBeside}
        << WindowEdges{1860, 0, 2060, 100};
    QTest::newRow("on none: the first")
        << WindowEdges{-800, -800, -400, -400} << QVector<ScaledScreen>{dense, denseBeside}
        << WindowEdges{-400, -400, -200, -200};
}

void TestEntryPlacement::scaled()
{
    QFETCH(WindowEdges, window);
    QFETCH(QVector<ScaledScreen>, screens);
    QFETCH(WindowEdges, inToolkitPixels);
    const WindowEdges edges = toToolkitPixels(window, screens);
    QCOMPARE(edges.left, inToolkitPixels.left);
    QCOMPARE(edges.top, inToolkitPixels.top);
    QCOMPARE(edges.right, inToolkitPixels.right);
    QCOMPARE(edges.bottom, inToolkitPixels.bottom);
}

QTEST_APPLESS_MAIN(TestEntryPlacement)
#include "tst_entry_placement.moc"
