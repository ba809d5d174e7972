#pragma once

#include "SettingsPage.h"

class ToolBox;

/// A page that shows other pages as collapsible sections, forwards what they report, and hands them
/// every state that it receives.
class ContainerPage : public SettingsPage
{
    Q_OBJECT

public:
    /// Sets the page's own controls, then its children in the order of their sections.
    void receiveState(const ConfigState& state) override;

protected:
    explicit ContainerPage(QWidget* parent);

    /// Makes the tool box in the frame that shall hold it.
    void makeToolBox(QFrame* collectionFrame);
    /// What the child pages are built below.
    QWidget* sections() const;
    /// Appends a section that shows the child page.
    void addPage(SettingsPage* page, const QString& title);
    /// Hands a received state to one of the pages.
    virtual void tellPage(SettingsPage* page, const ConfigState& state);

private:
    ToolBox* m_toolBox = nullptr;
    QVector<SettingsPage*> m_pages;
};
