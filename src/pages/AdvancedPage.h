#pragma once

#include "ContainerPage.h"

#include "ui_AdvancedPage.h"

/// The "Advanced Settings" tab: profile and level, and four pages of coding tools.
class AdvancedPage : public ContainerPage
{
    Q_OBJECT

public:
    explicit AdvancedPage(QWidget* parent = nullptr);

    /// Fills the lists with the names of the maps, in the maps' order; the codes are not used.
    void setProfileLevelLists(const QMap<QString, qint32>& profiles,
                              const QMap<QString, qint32>& levels);

public Q_SLOTS:
    void slotChangeProfile(const QString& text) { reportEdit(text); }
    void slotChangeLevel(const QString& text) { reportEdit(text); }

private:
    Ui::IAdvancedPage ui;
};
