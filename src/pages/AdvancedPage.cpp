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

    auto* gopStructure = new GOPStructurePage(this);
    auto* motionEstimation = new MotionEstimationPage(this);
    motionEstimation->fillSearchLists();
    auto* rateDistortion = new RateDistortionPage(this);
    auto* misc = new MiscPage(this);
    misc->fillEntropyList();

    makeToolBox(ui.collectionFrame);
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
