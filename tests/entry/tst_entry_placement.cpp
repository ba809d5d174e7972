// Where a dialog goes over a host's window.

#include "entry/DialogPlacement.h"

#include <QTest>

#include <climits>

Q_DECLARE_METATYPE(WindowEdges)

class TestEntryPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void centred_data();
    void centred();
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

QTEST_APPLESS_MAIN(TestEntryPlacement)
#include "tst_entry_placement.moc"
