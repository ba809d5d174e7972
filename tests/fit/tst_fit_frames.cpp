// Frames have all of their edges at every scale, in both skins.

#include "DialogTest.h"
#include "ToolkitWarnings.h"

#include <QStyleFactory>
#include <QTest>
#include <QtMath>

#include <algorithm>

class TestFitFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); }
    void init() { failOnToolkitWarnings(); }

    void frameHasAllEdges_data();
    void frameHasAllEdges();
};

namespace
{

/// How much darker than what is on both sides of it the darkest of these pixels is.
int depthOfLine(const QImage& picture, QPoint edge, QPoint inwards)
{
    const int room = qCeil(3 * picture.devicePixelRatio());
    QVector<int> tones;
    for (int i = -room; i <= room; ++i) {
        tones += qGray(picture.pixel(edge + i * inwards));
    }
    const int ground = qMin(tones.first(), tones.last());
    return ground - *std::min_element(tones.cbegin(), tones.cend());
}

} // namespace

void TestFitFrames::frameHasAllEdges_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("skinKey");
    for (const char* name : {"presetFrame", "infoFrame", "errorLog", "buttonFrame"}) {
        QTest::addRow("%s, default", name) << QString::fromLatin1(name) << int(Qt::Key_F5);
        QTest::addRow("%s, metal", name) << QString::fromLatin1(name) << int(Qt::Key_F6);
    }
    QTest::newRow("tabWidget, default") << QStringLiteral("tabWidget") << int(Qt::Key_F5);
}

void TestFitFrames::frameHasAllEdges()
{
    QFETCH(QString, name);
    QFETCH(int, skinKey);
    OpenDialog dialog;
    QTest::keyClick(dialog.get(), Qt::Key(skinKey));
    QCoreApplication::processEvents();
    const auto* const frame = dialog->findChild<QWidget*>(name);
    const QPoint corner = frame->mapTo(dialog.get(), QPoint());
    const QImage picture = dialog->grab().toImage();
    const double scale = picture.devicePixelRatio();
    const auto device = [scale](int length) { return qRound(length * scale); };
    const QRect place(
        QPoint(device(corner.x()), device(corner.y())),
        QPoint(device(corner.x() + frame->width()) - 1, device(corner.y() + frame->height()) - 1));
    // Off corners, and off what stands in a frame.
    const int down = place.bottom() - device(14);
    const int across = place.left() + device(14);
    const struct {
        const char* edge;
        QPoint place;
        QPoint inwards;
    } edges[] = {{"left", {place.left(), down}, {1, 0}},
                 {"right", {place.right(), down}, {-1, 0}},
                 {"bottom", {across, place.bottom()}, {0, -1}},
                 {"top", {across, place.top()}, {0, 1}}};
    for (const auto& edge : edges) {
        // Tabs stand on the pane's.
        if (name == QLatin1String("tabWidget") && edge.inwards.y() > 0) {
            continue;
        }
        const int depth = depthOfLine(picture, edge.place, edge.inwards);
        QVERIFY2(depth >= 15,
                 qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(edge.edge)).arg(depth)));
    }
}

QTEST_MAIN(TestFitFrames)
#include "tst_fit_frames.moc"
