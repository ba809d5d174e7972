#include "ViewsPage.h"

#include "TextFit.h"
#include "View0Page.h"
#include "View1Page.h"
#include "View2Page.h"
#include "View3Page.h"
#include "model/KeyNames.h"

#include <iterator>

ViewsPage::ViewsPage(QWidget* parent) : ContainerPage(parent)
{
    ui.setupUi(this);
    constexpr int besideTheNumber = 260;
    text_fit::shrink(ui.profileLabel, besideTheNumber);
    bind(ui.numViewsSpin, keys::numberOfViews, &ViewsPage::slotChangeNumLayers);
    bind(ui.splitCheck, keys::split, &ViewsPage::slotChangeSplit);

    makeToolBox(ui.collectionFrame);
    ViewPage* const views[] = {new View0Page(sections()), new View1Page(sections()),
                               new View2Page(sections()), new View3Page(sections())};
    const QString titles[] = {tr("Base View"), tr("View 1"), tr("View 2"), tr("View 3")};
    for (ViewPage* view : views) {
        view->fillBitrateModes();
    }
    for (std::size_t i = 0; i < std::size(views); ++i) {
        addPage(views[i], titles[i]);
        views[i]->nameForAccess(titles[i]);
    }
    m_additionalViews = {views[1], views[2], views[3]};
}

void ViewsPage::tellPage(SettingsPage* page, const ConfigState& state)
{
    ContainerPage::tellPage(page, state);
    const auto additional = m_additionalViews.indexOf(page);
    if (additional >= 0) {
        // Unsigned: a count out of range enables all.
        const auto count = quint32(state.value(keys::numberOfViews).toInt());
        const bool isCoded = count > quint32(additional);
        const QWidget* const focus = window()->focusWidget();
        if (!isCoded && focus && page->isAncestorOf(focus)) {
            // Disabled with the focus in it, the page would leave it nowhere.
            findChild<QWidget*>(QLatin1String("toggle") + page->objectName())->setFocus();
        }
        page->setEnabled(isCoded);
    }
}
