#include "BasicPage.h"

#include "VideoFormatPage.h"

BasicPage::BasicPage(QWidget* parent) : ContainerPage(parent)
{
    ui.setupUi(this);
    for (QWidget* widget :
         {static_cast<QWidget*>(ui.deviceList), static_cast<QWidget*>(ui.deviceLabel),
          static_cast<QWidget*>(ui.deviceGroup)})
        widget->setVisible(false);

    m_videoFormat = new VideoFormatPage(this);
    m_videoFormat->fillLists();
    makeToolBox(ui.collectionFrame);
    addPage(m_videoFormat, tr("Video Format"));
}

void BasicPage::addFramerateItem(const QString& text)
{
    m_videoFormat->addFramerateItem(text);
}
