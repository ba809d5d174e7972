#pragma once

#include "SettingsPage.h"

#include "ui_RateDistortionPage.h"

/// Shortcuts of the mode decision, and the strengths of adaptive quantization.
class RateDistortionPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit RateDistortionPage(QWidget* parent = nullptr);

    /// Also refreshes the read-outs beside the sliders, which show what the sliders hold.
    void receiveState(const ConfigState& state) override;

public Q_SLOTS:
    void slotChangeIntra(bool on) { reportEdit(on); }
    void slotChangeInter(bool on) { reportEdit(on); }
    void slotChangeRD(bool on) { reportEdit(on); }
    void slotChangeHadamard(bool on) { reportEdit(on); }
    void slotChangeBrightness(int strength) { reportEdit(strength); }
    void slotChangeContrast(int strength) { reportEdit(strength); }
    void slotChangeComplexity(int strength) { reportEdit(strength); }

private:
    void showReadOut(QLabel* readOut, const QSlider* slider);

    Ui::IRateDistortionPage ui;
};
