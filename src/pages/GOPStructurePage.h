#pragma once

#include "SettingsPage.h"

#include "ui_GOPStructurePage.h"

/// Distances of I-frames and IDR pictures, and the structure of B-frames.
class GOPStructurePage : public SettingsPage
{
    Q_OBJECT

public:
    explicit GOPStructurePage(QWidget* parent = nullptr);

public Q_SLOTS:
    void slotChangeSceneDetect(bool on) { reportEdit(on); }
    void slotChangeIInterval(int frames) { reportEdit(frames); }
    void slotChangeIForce(int frames) { reportEdit(frames); }
    void slotChangeIDR(int count) { reportEdit(count); }
    void slotChangeFixedIPos(bool on) { reportEdit(on); }
    void slotChangeAdaptiveB(bool on) { reportEdit(on); }
    void slotChangePiramydB(bool on) { reportEdit(on); }
    void slotChangeBBetween(int count) { reportEdit(count); }
    void slotChangeReferenceB(bool on) { reportEdit(on); }

private:
    Ui::IGOPStructurePage ui;
};
