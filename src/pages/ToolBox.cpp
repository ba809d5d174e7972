#include "ToolBox.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVector>

#include <utility>

namespace
{

/// What takes the keyboard focus inside the page, in the order of the Tab key.
QVector<QWidget*> focusChain(const QWidget* page)
{
    QVector<QWidget*> chain;
    for (QWidget* widget = page->nextInFocusChain(); widget != page;
         widget = widget->nextInFocusChain())
        if (page->isAncestorOf(widget) && widget->focusPolicy() != Qt::NoFocus &&
            !widget->focusProxy())
            chain.append(widget);
    return chain;
}

} // namespace

ToolBox::ToolBox(QWidget* parent, Qt::WindowFlags flags) : QFrame(parent, flags)
{
    auto* outer = new QVBoxLayout(this);
    m_scrollArea = new QScrollArea(this);
    QSizePolicy policy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    policy.setHeightForWidth(m_scrollArea->sizePolicy().hasHeightForWidth());
    m_scrollArea->setSizePolicy(policy);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    // Focused controls are scrolled into view anyway; a stop of its own would be invisible.
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    m_content = new QFrame(this);
    m_grid = new QGridLayout(m_content);
    m_grid->setAlignment(Qt::AlignTop);
    m_grid->setContentsMargins(2, 2, 2, 2);
    m_grid->setColumnStretch(1, 1);
    m_scrollArea->setWidget(m_content);
    outer->addWidget(m_scrollArea);
    outer->setContentsMargins(0, 0, 0, 0);
}

void ToolBox::addSection(QWidget* page, const QString& title, const QString& expandedIcon,
                         const QString& collapsedIcon)
{
    const int row = m_grid->rowCount();

    auto* button = new QToolButton(m_content);
    button->setObjectName(QLatin1String("toggle") + page->objectName());
    button->setCheckable(true);
    button->setChecked(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    QIcon icon;
    icon.addFile(expandedIcon, QSize(), QIcon::Normal, QIcon::On);
    icon.addFile(collapsedIcon, QSize(), QIcon::Normal, QIcon::Off);
    button->setIcon(icon);
    button->setAccessibleName(title);
    button->setToolTip(tr("Shows or hides this section."));

    auto* label = new QLabel(title, m_content);
    QFont bold = label->font();
    bold.setWeight(QFont::Bold);
    label->setFont(bold);
    label->setBuddy(button);

    m_grid->addWidget(button, row, 0);
    m_grid->addWidget(label, row, 1);
    m_grid->addWidget(page, row + 1, 0, 1, 2);
    connect(button, &QToolButton::toggled, page, &QWidget::setVisible);

    // The pages are older than the buttons, but the Tab key shall go from top to bottom.
    QVector<QWidget*> chain = focusChain(page);
    chain.prepend(button);
    for (QWidget* widget : std::as_const(chain)) {
        if (m_lastInChain)
            setTabOrder(m_lastInChain, widget);
        m_lastInChain = widget;
    }
}

void ToolBox::addSection(QWidget* page, const QString& title)
{
    addSection(page, title, QStringLiteral(":/res_mvc/icons/down.png"),
               QStringLiteral(":/res_mvc/icons/right.png"));
}
