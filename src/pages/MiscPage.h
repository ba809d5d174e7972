#pragma once

#include "SettingsPage.h"

#include "ui_MiscPage.h"

/// Deblocking, entropy coding, slices and threads.
class MiscPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit MiscPage(QWidget* parent = nullptr);

    /// Appends the items of the entropy coder list; once, after construction.
    void fillEntropyList();

public Q_SLOTS:
    void slotChangeDeblocking(bool on) { reportEdit(on); }
    void slotChangeEntropy(const QString& text) { reportEdit(text); }
    void slotChangeSlices(int count) { reportEdit(count); }
    void slotChangeThreads(int count) { reportEdit(count); }

private:
    Ui::IMiscPage ui;
};
