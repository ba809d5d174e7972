#pragma once

#include "ContainerPage.h"

#include "ui_ViewsPage.h"

/// The "Views" tab: how many views are coded, and the rate control of each.
class ViewsPage : public ContainerPage
{
    Q_OBJECT

public:
    explicit ViewsPage(QWidget* parent = nullptr);

    /// Also greys out the pages of views that are not coded; the base view's never is.
    void receiveState(const ConfigState& state) override;

public Q_SLOTS:
    void slotChangeNumLayers(int additionalViews) { reportEdit(additionalViews); }
    void slotChangeSplit(bool on) { reportEdit(on); }

private:
    Ui::IViewsPage ui;
    QVector<QWidget*> m_additionalViews;
};
