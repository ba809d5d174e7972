#include "AdvancedPage.h"

#include "GOPStructurePage.h"
#include "MiscPage.h"
#include "MotionEstimationPage.h"
#include "RateDistortionPage.h"
#include "model/KeyNames.h"

AdvancedPage::AdvancedPage(QWidget* parent) : ContainerPage(parent)
{
    ui.setupUi(this);
    bind(ui.profileList, keys::profile, &AdvancedPage::slotChangeProfile);
    bind(ui.levelList, keys::level, &AdvancedPage::slotChangeLevel);

    makeToolBox(ui.collectionFrame);
    auto* gopStructure = new GOPStructurePage(sections());
    auto* motionEstimation = new MotionEstimationPage(sections());
    motionEstimation->fillSearchLists();
    auto* rateDistortion = new RateDistortionPage(sections());
    auto* misc = new MiscPage(sections());
    misc->fillEntropyList();

    addPage(gopStructure, tr("GOP Structure"));
    addPage(motionEstimation, tr("Motion Estimation"));
    addPage(rateDistortion, tr("Rate Distortion"));
    addPage(misc, tr("Miscellaneous"));
}

void AdvancedPage::setProfileLevelLists(const QMap<QString, qint32>& profiles,
                                        const QMap<QString, qint32>& levels)
{
    ui.profileList->clear();
    ui.profileList->addItems(profiles.keys());
    ui.levelList->clear();
    ui.levelList->addItems(levels.keys());
}
