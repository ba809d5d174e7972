#include "AllPages.h"

#include <QTest>

AllPages::AllPages()
    : basic(new BasicPage(&m_window)),
      advanced(new AdvancedPage(&m_window)),
      views(new ViewsPage(&m_window))
{
    advanced->setProfileLevelLists(
        {{QStringLiteral("Baseline"), 0},
         {QStringLiteral("Main"), 1},
         {QStringLiteral("High"), 3},
         {QStringLiteral("High 10"), 4}},
        {{QStringLiteral("4.0"), 40}, {QStringLiteral("4.1"), 41}, {QStringLiteral("Auto"), 100}});
    for (SettingsPage* page : containers()) {
        m_window.addTab(page, page->windowTitle());
        spy.listenTo(page);
    }
}

void AllPages::receive(const ConfigState& state)
{
    for (SettingsPage* page : containers()) {
        page->receiveState(state);
    }
}

bool AllPages::show()
{
    m_window.resize(440, 640);
    return showAlone(&m_window);
}

bool showAlone(QWidget* page)
{
    page->show();
    page->activateWindow();
    return QTest::qWaitForWindowActive(page);
}
