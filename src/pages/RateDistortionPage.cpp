#include "RateDistortionPage.h"

#include "ControlLabel.h"
#include "model/KeyNames.h"

RateDistortionPage::RateDistortionPage(QWidget* parent) : SettingsPage(parent)
{
    using Page = RateDistortionPage;
    ui.setupUi(this);
    bind(ui.fastIntraCheck, keys::fastIntra, &Page::slotChangeIntra);
    bind(ui.fastInterCheck, keys::fastInter, &Page::slotChangeInter);
    bind(ui.simpleRDCheck, keys::simpleRd, &Page::slotChangeRD);
    bind(ui.hadamardCheck, keys::hadamard, &Page::slotChangeHadamard);
    bind(ui.brightnessSlider, keys::brightness, &Page::slotChangeBrightness);
    bind(ui.contrastSlider, keys::contrast, &Page::slotChangeContrast);
    bind(ui.complexitySlider, keys::complexity, &Page::slotChangeComplexity);
    ControlLabel::attach(ui.brightnessLabel, ui.brightnessSlider);
    ControlLabel::attach(ui.contrastLabel, ui.contrastSlider);
    ControlLabel::attach(ui.complexityLabel, ui.complexitySlider);
}

void RateDistortionPage::receiveState(const ConfigState& state)
{
    SettingsPage::receiveState(state);
    showReadOut(ui.brightnessLabel, ui.brightnessSlider);
    showReadOut(ui.contrastLabel, ui.contrastSlider);
    showReadOut(ui.complexityLabel, ui.complexitySlider);
}

void RateDistortionPage::showReadOut(QLabel* readOut, const QSlider* slider)
{
    readOut->setText(slider->value() == 0 ? tr("0 (not used)") : QString::number(slider->value()));
}
