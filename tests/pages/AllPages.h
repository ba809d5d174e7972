#pragma once

#include "StateSpy.h"

#include "pages/AdvancedPage.h"
#include "pages/BasicPage.h"
#include "pages/ViewsPage.h"

#include <QTabWidget>

/// The three container pages as the dialog holds them: in tabs, with the profile and level names.
class AllPages
{
public:
    AllPages();
    AllPages(const AllPages&) = delete;
    AllPages& operator=(const AllPages&) = delete;

    /// Hands a state to each of them.
    void receive(const ConfigState& state);

    /// Opens the window, large enough for a few sections, and waits until it takes keys.
    bool show();

    QTabWidget* window() { return &m_window; }
    QVector<SettingsPage*> containers() const { return {basic, advanced, views}; }

private:
    QTabWidget m_window;

public:
    BasicPage* const basic;
    AdvancedPage* const advanced;
    ViewsPage* const views;
    /// What any of them reports.
    StateSpy spy;
};

/// Opens a page that has no container as a window, and waits until it takes keys.
bool showAlone(QWidget* page);
