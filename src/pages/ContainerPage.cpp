#include "ContainerPage.h"

#include "ToolBox.h"

#include <QVBoxLayout>

#include <utility>

namespace
{

void setWeight(QWidget* widget, QFont::Weight weight)
{
    QFont font = widget->font();
    font.setWeight(weight);
    widget->setFont(font);
}

} // namespace

ContainerPage::ContainerPage(QWidget* parent) : SettingsPage(parent) {}

void ContainerPage::receiveState(const ConfigState& state)
{
    SettingsPage::receiveState(state);
    m_toolBox->keepFocusInPlace([&] {
        for (SettingsPage* page : std::as_const(m_pages)) {
            tellPage(page, state);
        }
    });
}

void ContainerPage::tellPage(SettingsPage* page, const ConfigState& state)
{
    page->receiveState(state);
}

void ContainerPage::makeToolBox(QFrame* collectionFrame)
{
    m_toolBox = new ToolBox(collectionFrame);
    auto* layout = new QVBoxLayout(collectionFrame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_toolBox);
    setWeight(m_toolBox, QFont::Bold);
}

QWidget* ContainerPage::sections() const
{
    return m_toolBox->content();
}

void ContainerPage::addPage(SettingsPage* page, const QString& title)
{
    m_toolBox->addSection(page, title);
    setWeight(page, QFont::Normal);
    connect(page, &SettingsPage::stateChanged, this, &SettingsPage::stateChanged);
    m_pages.append(page);
}
