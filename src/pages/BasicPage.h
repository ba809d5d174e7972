#pragma once

#include "ContainerPage.h"

#include "ui_BasicPage.h"

class VideoFormatPage;

/// The "Basic Settings" tab: the video format, and a device selector that stays hidden.
class BasicPage : public ContainerPage
{
    Q_OBJECT

public:
    explicit BasicPage(QWidget* parent = nullptr);

    /// See VideoFormatPage::addFramerateItem().
    void addFramerateItem(const QString& text);

private:
    Ui::IBasicPage ui;
    VideoFormatPage* m_videoFormat;
};
