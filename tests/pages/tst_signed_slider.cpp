// The groove of a signed slider is filled from 0 to the handle, and not at 0.

#include "ToolkitWarnings.h"

#include "pages/SignedSlider.h"

#include <QStyleFactory>
#include <QTest>

class TestSignedSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); }
    void init() { failOnToolkitWarnings(); }

    void grooveIsFilledFromZero_data();
    void grooveIsFilledFromZero();
    void disabledGrooveIsEmpty();
    void ticksStandAtTheirValues();
};

namespace
{

/// A slider of 200 steps on 215 pixels, of which the handle takes 15.
class Stage : public SignedSlider
{
public:
    Stage() : SignedSlider(Qt::Horizontal)
    {
        setRange(-100, 100);
        setTickPosition(QSlider::TicksBothSides);
        setTickInterval(20);
        QPalette colours(QColor(240, 240, 240));
        colours.setColor(QPalette::Highlight, Qt::red);
        setPalette(colours);
        resize(215, 40);
    }

    /// Whether the groove is filled at a fraction of its length.
    bool isFilledAt(double place)
    {
        const QImage picture = grab().toImage();
        return picture.pixelColor(qRound(place * width()), groove(picture)) == QColor(Qt::red);
    }

private:
    static int groove(const QImage& picture) { return picture.height() / 2; }
};

} // namespace

void TestSignedSlider::grooveIsFilledFromZero_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<bool>>("filled");
    // At 10, 40, 60 and 90 % of the length.
    QTest::newRow("0") << 0 << QList<bool>{false, false, false, false};
    QTest::newRow("50") << 50 << QList<bool>{false, false, true, false};
    QTest::newRow("-50") << -50 << QList<bool>{false, true, false, false};
    QTest::newRow("100") << 100 << QList<bool>{false, false, true, true};
    QTest::newRow("-100") << -100 << QList<bool>{true, true, false, false};
}

void TestSignedSlider::grooveIsFilledFromZero()
{
    QFETCH(int, value);
    Stage slider;
    slider.setValue(value);
    const QList<bool> filled = {slider.isFilledAt(0.1), slider.isFilledAt(0.4),
                                slider.isFilledAt(0.6), slider.isFilledAt(0.9)};
    QTEST(filled, "filled");
}

void TestSignedSlider::disabledGrooveIsEmpty()
{
    Stage slider;
    slider.setValue(100);
    slider.setEnabled(false);
    QVERIFY(!slider.isFilledAt(0.6));
}

void TestSignedSlider::ticksStandAtTheirValues()
{
    Stage slider;
    const QImage picture = slider.grab().toImage();
    // A row above the handle, which is as high as the middle half.
    int ticks = 0;
    int middle = 0;
    for (int y = 0; y < picture.height() / 2 && ticks == 0; ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int ink = qGray(picture.pixel(0, 0)) - qGray(picture.pixel(x, y));
            ticks += ink > 50;
            middle = ink > 150 ? x : middle;
        }
    }
    QCOMPARE(ticks, 11);
    // The one at 0 is the darkest.
    QVERIFY2(qAbs(middle - slider.width() / 2) <= 2, qPrintable(QString::number(middle)));
}

QTEST_MAIN(TestSignedSlider)
#include "tst_signed_slider.moc"
