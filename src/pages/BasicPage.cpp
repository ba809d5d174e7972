#include "BasicPage.h"

#include "VideoFormatPage.h"

BasicPage::BasicPage(QWidget* parent) : ContainerPage(parent)
{
    ui.setupUi(this);
    QWidget* const inert[] = {ui.deviceList, ui.deviceLabel, ui.deviceGroup};
    for (QWidget* widget : inert) {
        widget->setVisible(false);
    }

    makeToolBox(ui.collectionFrame);
    m_videoFormat = new VideoFormatPage(sections());
    m_videoFormat->fillLists();
    addPage(m_videoFormat, tr("Video Format"));
}

void BasicPage::addFramerateItem(const QString& text)
{
    m_videoFormat->addFramerateItem(text);
}
