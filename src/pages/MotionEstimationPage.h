#pragma once

#include "SettingsPage.h"

#include "ui_MotionEstimationPage.h"

/// How motion is searched.
class MotionEstimationPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit MotionEstimationPage(QWidget* parent = nullptr);

    /// Fills the lists; once, after construction.
    void fillSearchLists();

public Q_SLOTS:
    void slotChangeMacroblockSearch(const QString& mode) { reportEdit(mode); }
    void slotChangeSubpixelSearch(const QString& text) { reportEdit(text); }
    void slotChangeNumReference(int frames) { reportEdit(frames); }
    void slotChangeMotionSearch(int samples) { reportEdit(samples); }
    void slotChangeWeightedP(bool on) { reportEdit(on); }
    void slotChangeFastReference(bool on) { reportEdit(on); }
    void slotChangeFastSubblock(bool on) { reportEdit(on); }

private:
    Ui::IMotionEstimationPage ui;
};
