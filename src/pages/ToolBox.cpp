#include "ToolBox.h"

#include "PaletteIcon.h"
#include "Separator.h"
#include "StickingTitle.h"
#include "TextFit.h"
#include "WheelGuard.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWidgetItem>

#include <utility>

namespace
{

/// A grid that is as high as its rows need. Pages end with spacers, which would share the room that
/// is left and so tear the sections apart; the grid's alignment counts only without such.
class Column : public QGridLayout
{
public:
    Column(QWidget* parent, std::function<void()> laidOut)
        : QGridLayout(parent), m_laidOut(std::move(laidOut))
    {
    }

    void setGeometry(const QRect& rect) override
    {
        const int needed = hasHeightForWidth() ? heightForWidth(rect.width()) : sizeHint().height();
        QGridLayout::setGeometry(
            {rect.topLeft(), QSize(rect.width(), qMin(rect.height(), needed))});
        m_laidOut();
    }

    void addPage(QWidget* page, int row)
    {
        addChildWidget(page);
        addItem(new PageItem(page), row, 0, 1, 2);
    }

private:
    /// A page without the spacer that it ends with: pages have spacers of different heights, which
    /// would be the gaps between the sections.
    class PageItem : public QWidgetItem
    {
    public:
        using QWidgetItem::QWidgetItem;

        QSize sizeHint() const override
        {
            return isEmpty() ? QSize(0, 0) : QWidgetItem::sizeHint() - QSize(0, heightOfSpacer());
        }
        int heightForWidth(int width) const override
        {
            return isEmpty() ? -1 : QWidgetItem::heightForWidth(width) - heightOfSpacer();
        }

    private:
        int heightOfSpacer() const
        {
            const QLayout* const layout = wid->layout();
            QLayoutItem* const last =
                layout && layout->count() > 0 ? layout->itemAt(layout->count() - 1) : nullptr;
            return last && last->spacerItem() ? last->sizeHint().height() : 0;
        }
    };

    std::function<void()> m_laidOut;
};

/// Lays out what is below the widget and then the widget itself, in which changes take effect from
/// the inside outwards.
void layOutNow(QWidget* widget)
{
    // By number: laying out may make widgets.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (int i = 0; i < int(widget->children().size()); ++i) {
        if (QObject* const child = widget->children().at(i); child->isWidgetType()) {
            layOutNow(static_cast<QWidget*>(child));
        }
    }
    QCoreApplication::sendPostedEvents(widget, QEvent::LayoutRequest);
}

/// What takes the keyboard focus inside the page, in the order of the Tab key.
QVector<QWidget*> focusChain(const QWidget* page)
{
    QVector<QWidget*> chain;
    for (QWidget* widget = page->nextInFocusChain(); widget != page;
         widget = widget->nextInFocusChain()) {
        if (page->isAncestorOf(widget) && widget->focusPolicy() != Qt::NoFocus &&
            !widget->focusProxy()) {
            chain.append(widget);
        }
    }
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
    // On a low screen it gives way, not what stands above it, which does not scroll.
    constexpr int lowest = 40;
    m_scrollArea->setMinimumHeight(lowest);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    // Focused controls are scrolled into view anyway; a stop of its own would be invisible.
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    m_stickingTitle = new StickingTitle(m_scrollArea->viewport());
    m_stickingTitle->installEventFilter(this);
    m_content = new QFrame(m_scrollArea->viewport());
    m_grid = new Column(m_content, [this] { placeStickingTitle(); });
    m_grid->setAlignment(Qt::AlignTop);
    m_grid->setContentsMargins(2, 2, 2, 2);
    m_grid->setColumnStretch(1, 1);
    m_scrollArea->setWidget(m_content);
    // What is behind shows through: a box of another tone would end at no visible edge.
    m_scrollArea->viewport()->setAutoFillBackground(false);
    m_content->setAutoFillBackground(false);
    connect(m_scrollArea->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &ToolBox::placeStickingTitle);
    WheelGuard::watch(m_scrollArea->viewport());
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* former, QWidget* focus) {
        // The scroll area sees to it for its own Tab key only. A window that becomes the active one
        // again stays as it was scrolled; and what the mouse presses stays where it is, or it would
        // be released elsewhere.
        if (former && focus && m_content->isAncestorOf(focus) &&
            QGuiApplication::mouseButtons() == Qt::NoButton) {
            scrollTo(focus);
        }
    });
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
    // Of even sides, on which icons are sharp.
    constexpr int side = 24;
    button->setFixedSize(side, side);
    button->setFocusPolicy(Qt::StrongFocus);
    PaletteIcon::set(button, expandedIcon, collapsedIcon);
    button->setAccessibleName(title);
    button->setToolTip(tr("Shows or hides this section."));

    auto* label = new QLabel(title, m_content);
    QFont bold = label->font();
    bold.setWeight(QFont::Bold);
    label->setFont(bold);
    label->setBuddy(button);
    label->setToolTip(button->toolTip());
    label->setCursor(Qt::PointingHandCursor);
    label->installEventFilter(this);

    const auto buttons = page->findChildren<QAbstractButton*>();
    for (QAbstractButton* inside : buttons) {
        if (qobject_cast<QRadioButton*>(inside) || qobject_cast<QCheckBox*>(inside)) {
            text_fit::wrap(inside);
        }
    }

    m_grid->addWidget(button, row, 0);
    m_grid->addWidget(label, row, 1);
    Separator::takeLinesOf(page);
    static_cast<Column*>(m_grid)->addPage(page, row + 1);
    m_sections.append({button, label, page});
    connect(button, &QToolButton::toggled, page, &QWidget::setVisible);

    // The pages are older than the buttons, but the Tab key shall go from top to bottom.
    QVector<QWidget*> chain = focusChain(page);
    chain.prepend(button);
    for (QWidget* widget : std::as_const(chain)) {
        if (m_lastInChain) {
            setTabOrder(m_lastInChain, widget);
        }
        m_lastInChain = widget;
    }
}

void ToolBox::addSection(QWidget* page, const QString& title)
{
    addSection(page, title, QStringLiteral(":/res_mvc/icons/down.png"),
               QStringLiteral(":/res_mvc/icons/right.png"));
}

QWidget* ToolBox::content() const
{
    return m_content;
}

bool ToolBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* const mouse = static_cast<QMouseEvent*>(event);
        auto* const title = static_cast<QWidget*>(watched);
        if (mouse->button() == Qt::LeftButton && title->rect().contains(mouse->pos())) {
            // A number that is being typed is checked then, and the dialog may go.
            const QPointer<ToolBox> self(this);
            clickToggleOf(title);
            if (!self) {
                return true;
            }
        }
    }
    return QFrame::eventFilter(watched, event);
}

void ToolBox::clickToggleOf(const QWidget* title)
{
    const bool sticks = title == m_stickingTitle;
    QToolButton* const toggle =
        sticks ? m_stickingTitle->toggle()
               : qobject_cast<QToolButton*>(static_cast<const QLabel*>(title)->buddy());
    if (!toggle) {
        return;
    }
    const QPointer<ToolBox> self(this);
    toggle->setFocus(Qt::MouseFocusReason);
    if (!self) {
        return;
    }
    toggle->click();
    if (sticks) {
        // The section's own comes to where that was.
        layOutNow(m_scrollArea->viewport());
        m_scrollArea->verticalScrollBar()->setValue(toggle->y());
    }
}

void ToolBox::placeStickingTitle()
{
    const Section* shown = nullptr;
    for (const Section& section : m_sections) {
        if (placeOf(section.title) < 0 && section.toggle->isChecked()) {
            shown = &section;
        }
    }
    const int bottom = shown ? placeOf(shown->page) + shown->page->height() : 0;
    if (bottom > 0) {
        m_stickingTitle->showFor(shown->toggle, shown->title, bottom);
    } else {
        m_stickingTitle->hide();
    }
}

void ToolBox::keepFocusInPlace(const std::function<void()>& change)
{
    const QPointer<QWidget> control = window()->focusWidget();
    if (!isVisible() || !m_content->isAncestorOf(control)) {
        change();
        return;
    }
    const int before = placeOf(control);
    change();
    // Now, not when the event loop comes to it, which would show the control elsewhere first.
    layOutNow(m_scrollArea->viewport());
    QWidget* const focus = window()->focusWidget();
    if (!control || !control->isVisible() || control != focus) {
        // Disabled or hidden, it has passed the focus on.
        if (m_content->isAncestorOf(focus)) {
            scrollTo(focus);
        }
        return;
    }
    QScrollBar* const bar = m_scrollArea->verticalScrollBar();
    bar->setValue(bar->value() + placeOf(control) - before);
}

void ToolBox::reveal(QWidget* widget)
{
    for (int row = 0; row < m_grid->rowCount(); ++row) {
        QLayoutItem* const page = m_grid->itemAtPosition(row, 1);
        if (row == 0 || !page || !page->widget()->isAncestorOf(widget)) {
            continue;
        }
        auto* const button =
            qobject_cast<QToolButton*>(m_grid->itemAtPosition(row - 1, 0)->widget());
        button->setChecked(true);
    }
    layOutNow(m_scrollArea->viewport());
    scrollTo(widget);
}

void ToolBox::scrollTo(QWidget* widget)
{
    m_scrollArea->ensureWidgetVisible(widget);
    const int covered = m_stickingTitle->isVisible() ? m_stickingTitle->height() : 0;
    const int hidden = covered - placeOf(widget);
    if (hidden > 0) {
        QScrollBar* const bar = m_scrollArea->verticalScrollBar();
        bar->setValue(bar->value() - hidden);
    }
}

int ToolBox::placeOf(const QWidget* widget) const
{
    return widget->mapTo(m_scrollArea->viewport(), QPoint()).y();
}

int ToolBox::missingHeight(int width) const
{
    const int needed =
        m_grid->hasHeightForWidth() ? m_grid->heightForWidth(width) : m_grid->sizeHint().height();
    return qMax(0, needed - m_scrollArea->sizeHint().height());
}
