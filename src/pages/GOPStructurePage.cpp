#include "GOPStructurePage.h"

#include "ControlLabel.h"
#include "TextFit.h"
#include "model/KeyNames.h"

GOPStructurePage::GOPStructurePage(QWidget* parent) : SettingsPage(parent)
{
    using Page = GOPStructurePage;
    ui.setupUi(this);
    bind(ui.sceneDetectCheck, keys::sceneDetection, &Page::slotChangeSceneDetect);
    bind(ui.iFrameIntervalSpin, keys::intervalI, &Page::slotChangeIInterval);
    bind(ui.iFrameForceSpin, keys::forceI, &Page::slotChangeIForce);
    bind(ui.idrSpin, keys::idrMarker, &Page::slotChangeIDR);
    bind(ui.fixedICheck, keys::fixedIPosition, &Page::slotChangeFixedIPos);
    bind(ui.adaptiveBCheck, keys::adaptiveB, &Page::slotChangeAdaptiveB);
    bind(ui.piramydBCheck, keys::piramydB, &Page::slotChangePiramydB);
    bind(ui.bBetweenIPSpin, keys::bBetween, &Page::slotChangeBBetween);
    bind(ui.bAsReferenceCheck, keys::referenceB, &Page::slotChangeReferenceB);
    // The end of its sentence.
    ControlLabel::attach(ui.label_2, ui.idrSpin);
    constexpr int narrowest = 70;
    text_fit::shrink(ui.label, narrowest);
    text_fit::shrink(ui.label_2, narrowest);
}
