#include "MotionEstimationPage.h"

#include "model/KeyNames.h"

MotionEstimationPage::MotionEstimationPage(QWidget* parent) : SettingsPage(parent)
{
    using Page = MotionEstimationPage;
    ui.setupUi(this);
    bind(ui.macroSearchList, keys::macroblockSearch, &Page::slotChangeMacroblockSearch);
    bind(ui.subSearchList, keys::subpixelSearch, &Page::slotChangeSubpixelSearch);
    bind(ui.refFramesSpin, keys::numReference, &Page::slotChangeNumReference);
    bind(ui.searchRangeSpin, keys::motionSearch, &Page::slotChangeMotionSearch);
    bind(ui.weightedPCheck, keys::weightedP, &Page::slotChangeWeightedP);
    bind(ui.fastRefCheck, keys::fastReference, &Page::slotChangeFastReference);
    bind(ui.fastSubCheck, keys::fastSubblock, &Page::slotChangeFastSubblock);
}

void MotionEstimationPage::fillSearchLists()
{
    ui.macroSearchList->clear();
    ui.subSearchList->clear();
    ui.macroSearchList->addItems({tr("16 x 16"), tr("8 x 8")});
    ui.subSearchList->addItems({tr("Full"), tr("Half"), tr("Quarter")});
}
