#include "AllPages.h"
#include "ToolkitWarnings.h"

#include "pages/ToolBox.h"

#include <QMetaMethod>
#include <QTest>

/// The pages as their meta-objects show them: class names, the one signal, slots in order.
class TestPageSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void classIsThere_data();
    void classIsThere();
    void theOneSignalIsStateChanged_data();
    void theOneSignalIsStateChanged();
    void slotsComeInOrder_data();
    void slotsComeInOrder();
    void toolBoxHasNeither();
};

namespace
{

const char* const classes[] = {"BasicPage",
                               "VideoFormatPage",
                               "AdvancedPage",
                               "GOPStructurePage",
                               "MotionEstimationPage",
                               "RateDistortionPage",
                               "MiscPage",
                               "ViewsPage",
                               "View0Page",
                               "View1Page",
                               "View2Page",
                               "View3Page"};

void addClasses()
{
    QTest::addColumn<QString>("className");
    for (const char* name : classes) {
        QTest::newRow(name) << QString(QLatin1String(name));
    }
}

const QFrame* findPage(QWidget* window, const QString& className)
{
    for (const QFrame* frame : window->findChildren<QFrame*>()) {
        if (className == QLatin1String(frame->metaObject()->className())) {
            return frame;
        }
    }
    return nullptr;
}

/// The class's methods beyond those of the toolkit's frame, its own bases' first.
QStringList methods(const QMetaObject* meta, QMetaMethod::MethodType type)
{
    QStringList signatures;
    for (int i = QFrame::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == type) {
            signatures += QLatin1String(meta->method(i).methodSignature());
        }
    }
    return signatures;
}

} // namespace

void TestPageSlots::classIsThere_data()
{
    addClasses();
}

void TestPageSlots::classIsThere()
{
    QFETCH(QString, className);
    AllPages pages;
    int count = 0;
    for (const QFrame* frame : pages.window()->findChildren<QFrame*>()) {
        if (className == QLatin1String(frame->metaObject()->className())) {
            ++count;
        }
    }
    QCOMPARE(count, 1);
}

void TestPageSlots::theOneSignalIsStateChanged_data()
{
    addClasses();
}

void TestPageSlots::theOneSignalIsStateChanged()
{
    QFETCH(QString, className);
    AllPages pages;
    const QFrame* const page = findPage(pages.window(), className);
    QVERIFY(page);
    QCOMPARE(methods(page->metaObject(), QMetaMethod::Signal),
             lines({"stateChanged(ConfigState)"}));
}

void TestPageSlots::slotsComeInOrder_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QStringList>("slotNames");
    const auto row = [](const char* name, const QStringList& slotNames) {
        QTest::newRow(name) << QString(QLatin1String(name)) << slotNames;
    };
    row("BasicPage", {});
    row("VideoFormatPage",
        lines({"slotChangeWidth(int)", "slotChangeHeight(int)", "slotChangeAspectRatio(QString)",
               "slotChangeFramerate(QString)", "slotChangePixelX(int)", "slotChangePixelY(int)",
               "slotChangeInterlace(QString)", "slotChangeFieldOrder(QString)",
               "slotChangePulldown(QString)", "slotChangeChroma(QString)",
               "slotChangeBitdepthChroma(QString)", "slotChangeBitdepthLuma(QString)",
               "slotChangeAspectRatioCheck(bool)"}));
    row("AdvancedPage", lines({"slotChangeProfile(QString)", "slotChangeLevel(QString)"}));
    row("GOPStructurePage",
        lines({"slotChangeSceneDetect(bool)", "slotChangeIInterval(int)", "slotChangeIForce(int)",
               "slotChangeIDR(int)", "slotChangeFixedIPos(bool)", "slotChangeAdaptiveB(bool)",
               "slotChangePiramydB(bool)", "slotChangeBBetween(int)",
               "slotChangeReferenceB(bool)"}));
    row("MotionEstimationPage",
        lines({"slotChangeMacroblockSearch(QString)", "slotChangeSubpixelSearch(QString)",
               "slotChangeNumReference(int)", "slotChangeMotionSearch(int)",
               "slotChangeWeightedP(bool)", "slotChangeFastReference(bool)",
               "slotChangeFastSubblock(bool)"}));
    row("RateDistortionPage",
        lines({"slotChangeIntra(bool)", "slotChangeInter(bool)", "slotChangeRD(bool)",
               "slotChangeHadamard(bool)", "slotChangeBrightness(int)", "slotChangeContrast(int)",
               "slotChangeComplexity(int)"}));
    row("MiscPage", lines({"slotChangeDeblocking(bool)", "slotChangeEntropy(QString)",
                           "slotChangeSlices(int)", "slotChangeThreads(int)"}));
    row("ViewsPage", lines({"slotChangeNumLayers(int)", "slotChangeSplit(bool)"}));
    for (const char* view : {"View0Page", "View1Page", "View2Page", "View3Page"}) {
        row(view,
            lines({"slotChangeBitrateMode(QString)", "slotChangeTargetRate(int)",
                   "slotChangeMaxRate(int)", "slotChangeBuffer(int)", "slotChangeISize(int)",
                   "slotChangePSize(int)", "slotChangeBSize(int)", "slotChangeBrSize(int)",
                   "slotChangeQuantI(int)", "slotChangeQuantP(int)", "slotChangeQuantB(int)",
                   "slotChangeQuantMax(int)", "slotChangeQuantMin(int)", "slotChangeHRD(bool)",
                   "slotChangeVBVInitial(int)", "slotChangeVBVTarget(int)",
                   "slotChangeUnits(QAbstractButton*)", "slotChangeOneSec(bool)"}));
    }
}

void TestPageSlots::slotsComeInOrder()
{
    QFETCH(QString, className);
    AllPages pages;
    const QFrame* const page = findPage(pages.window(), className);
    QVERIFY(page);
    const QStringList slotNames = methods(page->metaObject(), QMetaMethod::Slot);
    QTEST(slotNames, "slotNames");
}

void TestPageSlots::toolBoxHasNeither()
{
    QCOMPARE(ToolBox::staticMetaObject.superClass()->className(), "QFrame");
    QCOMPARE(methods(&ToolBox::staticMetaObject, QMetaMethod::Signal), QStringList());
    QCOMPARE(methods(&ToolBox::staticMetaObject, QMetaMethod::Slot), QStringList());
}

QTEST_MAIN(TestPageSlots)
#include "tst_page_slots.moc"
