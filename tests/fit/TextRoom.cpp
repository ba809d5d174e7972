#include "TextRoom.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>

namespace
{

QString nameOf(const QWidget* widget)
{
    const QWidget* page = widget;
    while (page && !page->objectName().startsWith(QLatin1Char('I'))) {
        page = page->parentWidget();
    }
    const QString place = page ? page->objectName() + QLatin1Char('/') : QString();
    return place + (widget->objectName().isEmpty()
                        ? QString::fromLatin1(widget->metaObject()->className())
                        : widget->objectName());
}

/// The text as it is drawn: without the marks of its mnemonic.
QString drawn(QString text)
{
    return text.remove(QLatin1Char('&'));
}

class Measure
{
public:
    void need(const QWidget* widget, const QString& text, const QSize& room)
    {
        const QFontMetrics metrics = widget->fontMetrics();
        compare(widget, text, room, {metrics.horizontalAdvance(drawn(text)), metrics.height()});
    }
    void needWrapped(const QWidget* widget, const QString& text, const QSize& room)
    {
        const QSize size =
            widget->fontMetrics()
                .boundingRect(QRect(0, 0, room.width(), 10000), Qt::TextWordWrap, drawn(text))
                .size();
        compare(widget, text, room, size);
    }
    void compare(const QWidget* widget, const QString& text, const QSize& room, const QSize& size)
    {
        if (text.isEmpty() || (size.width() <= room.width() && size.height() <= room.height())) {
            return;
        }
        faults += QStringLiteral("%1 \"%2\": %3x%4 for %5x%6")
                      .arg(nameOf(widget), text)
                      .arg(room.width())
                      .arg(room.height())
                      .arg(size.width())
                      .arg(size.height());
    }

    QStringList faults;
};

void measureLabel(const QLabel* label, Measure& measure)
{
    const int margin = 2 * label->margin();
    const QSize room = label->contentsRect().size() - QSize(margin, margin);
    if (label->wordWrap()) {
        measure.needWrapped(label, label->text(), room);
    } else {
        measure.need(label, label->text(), room);
    }
}

template <class Button>
void measureButton(const Button* button, QStyle::SubElement contents, Measure& measure)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    const QRect room = button->style()->subElementRect(contents, &option, button);
    // On several lines where one is too narrow.
    measure.needWrapped(button, button->text(), room.intersected(button->rect()).size());
}

void measureGroup(const QGroupBox* group, Measure& measure)
{
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.textAlignment = group->alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const QRect room = group->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                      QStyle::SC_GroupBoxLabel, group);
    // Some styles measure the letters themselves, which may be smaller than the font says.
    const QFontMetrics metrics = group->fontMetrics();
    const QString title = drawn(group->title());
    const int width =
        qMin(metrics.horizontalAdvance(title), metrics.boundingRect(title).right() + 1);
    measure.compare(group, title, room.intersected(group->rect()).size(),
                    {width, metrics.tightBoundingRect(title).height()});
}

QStyleOptionTab::TabPosition positionOf(int tab, int tabs)
{
    if (tabs == 1) {
        return QStyleOptionTab::OnlyOneTab;
    }
    if (tab == 0) {
        return QStyleOptionTab::Beginning;
    }
    return tab == tabs - 1 ? QStyleOptionTab::End : QStyleOptionTab::Middle;
}

void measureTabs(const QTabBar* bar, Measure& measure)
{
    for (int i = 0; i < bar->count(); ++i) {
        QStyleOptionTab option;
        option.initFrom(bar);
        option.rect = bar->tabRect(i);
        option.text = bar->tabText(i);
        option.shape = bar->shape();
        option.position = positionOf(i, bar->count());
        option.state.setFlag(QStyle::State_Selected, i == bar->currentIndex());
        const QRect room = bar->style()->subElementRect(QStyle::SE_TabBarTabText, &option, bar);
        measure.need(bar, bar->tabText(i), room.intersected(bar->rect()).size());
    }
    // What does not fit is scrolled.
    for (const QToolButton* scroll : bar->findChildren<QToolButton*>()) {
        if (scroll->isVisible()) {
            measure.faults += nameOf(bar) + QLatin1String(": the tabs are scrolled");
        }
    }
}

void measureList(const QComboBox* list, Measure& measure)
{
    QStyleOptionComboBox option;
    option.initFrom(list);
    option.editable = list->isEditable();
    const QRect room = list->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField, list);
    // Styles draw the text a pixel off either edge.
    measure.need(list, list->currentText(), room.size() - QSize(2, 0));
}

void measureField(const QSpinBox* field, Measure& measure)
{
    constexpr int lineEditMargin = 2;
    const auto* edit = field->findChild<QLineEdit*>();
    const QSize room = edit->contentsRect().size() - QSize(2 * lineEditMargin, 0);
    for (const int number : {field->minimum(), field->maximum(), field->value()}) {
        measure.need(edit, field->prefix() + QString::number(number) + field->suffix(), room);
    }
    measure.need(edit, field->specialValueText(), room);
}

QList<const QWidget*> visibleLeaves(const QWidget* window)
{
    QList<const QWidget*> leaves;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        const bool leaf =
            qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
            qobject_cast<const QAbstractSpinBox*>(widget) ||
            qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSlider*>(widget);
        if (leaf && widget->isVisible() && !qobject_cast<const QScrollBar*>(widget) &&
            !qobject_cast<const QTabBar*>(widget->parentWidget())) {
            leaves += widget;
        }
    }
    return leaves;
}

} // namespace

QStringList cutTexts(const QWidget* window)
{
    Measure measure;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible()) {
            continue;
        }
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            measureLabel(label, measure);
        } else if (const auto* box = qobject_cast<const QCheckBox*>(widget)) {
            measureButton(box, QStyle::SE_CheckBoxContents, measure);
        } else if (const auto* radio = qobject_cast<const QRadioButton*>(widget)) {
            measureButton(radio, QStyle::SE_RadioButtonContents, measure);
        } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
            measureGroup(group, measure);
        } else if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
            measureTabs(bar, measure);
        } else if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
            measureList(list, measure);
        } else if (const auto* field = qobject_cast<const QSpinBox*>(widget)) {
            measureField(field, measure);
        }
    }
    return measure.faults;
}

QStringList collisions(const QWidget* window)
{
    QStringList faults;
    const QList<const QWidget*> leaves = visibleLeaves(window);
    const auto placeOf = [](const QWidget* widget) {
        return QRect(widget->mapToGlobal(QPoint()), widget->size());
    };
    for (int i = 0; i < leaves.size(); ++i) {
        const QWidget* leaf = leaves[i];
        if (!leaf->parentWidget()->rect().contains(leaf->geometry())) {
            faults +=
                nameOf(leaf) + QLatin1String(" sticks out of ") + nameOf(leaf->parentWidget());
        }
        for (int k = i + 1; k < leaves.size(); ++k) {
            if (leaves[k]->parentWidget() == leaf->parentWidget() &&
                placeOf(leaf).intersects(placeOf(leaves[k]))) {
                faults += nameOf(leaf) + QLatin1String(" overlaps ") + nameOf(leaves[k]);
            }
        }
    }
    for (const QScrollArea* area : window->findChildren<QScrollArea*>()) {
        if (area->isVisible() && area->horizontalScrollBar()->maximum() > 0) {
            faults += nameOf(area) + QStringLiteral(" scrolls sideways by %1")
                                         .arg(area->horizontalScrollBar()->maximum());
        }
    }
    return faults;
}
