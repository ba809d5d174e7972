#pragma once

#include "ContainerPage.h"

#include "ui_ViewsPage.h"

/// The "Views" tab: how many views are coded, and the rate control of each.
class ViewsPage : public ContainerPage
{
    Q_OBJECT

public:
    explicit ViewsPage(QWidget* parent = nullptr);

public Q_SLOTS:
    void slotChangeNumLayers(int additionalViews) { reportEdit(additionalViews); }
    void slotChangeSplit(bool on) { reportEdit(on); }

protected:
    /// Also greys out the page of a view that is not coded; the base view's never is.
    void tellPage(SettingsPage* page, const ConfigState& state) override;

private:
    Ui::IViewsPage ui;
    QVector<SettingsPage*> m_additionalViews;
};
