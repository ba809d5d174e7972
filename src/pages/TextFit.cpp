#include "TextFit.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QStyleOption>
#include <QStylePainter>
#include <QTabBar>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace
{

/// As narrow as a button's text may become.
constexpr int narrowest = 80;
/// Smaller letters than these help nobody, in points.
constexpr double smallestFont = 6;
constexpr double fontStep = 0.5;

QStyleOptionButton optionOf(const QAbstractButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.state |= button->isChecked() ? QStyle::State_On : QStyle::State_Off;
    option.state.setFlag(QStyle::State_Sunken, button->isDown());
    return option;
}

bool isRadio(const QAbstractButton* button)
{
    return qobject_cast<const QRadioButton*>(button);
}

int roomForText(const QAbstractButton* button)
{
    const QStyleOptionButton option = optionOf(button);
    const auto contents =
        isRadio(button) ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents;
    return button->style()->subElementRect(contents, &option, button).width();
}

class Wrapping : public QObject
{
public:
    explicit Wrapping(QAbstractButton* button) : QObject(button), m_button(button)
    {
        button->setMinimumWidth(narrowest);
        button->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Resize:
            breakLines();
            break;
        case QEvent::FontChange:
        case QEvent::StyleChange:
            // When the button itself has taken note of it.
            QMetaObject::invokeMethod(
                this, [this] { breakLines(); }, Qt::QueuedConnection);
            break;
        case QEvent::Paint:
            if (m_lines.size() > 1) {
                paint();
                return true;
            }
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void breakLines()
    {
        m_lines = text_fit::lines(m_button->text(), m_button->font(), roomForText(m_button));
        const int further = int(m_lines.size()) - 1;
        m_button->setMinimumHeight(further > 0 ? m_button->sizeHint().height() +
                                                     further * m_button->fontMetrics().lineSpacing()
                                               : 0);
    }

    void paint()
    {
        QStyleOptionButton option = optionOf(m_button);
        option.text = m_lines.join(QLatin1Char('\n'));
        QStylePainter painter(m_button);
        painter.drawControl(isRadio(m_button) ? QStyle::CE_RadioButton : QStyle::CE_CheckBox,
                            option);
    }

    QAbstractButton* const m_button;
    QStringList m_lines;
};

/// Keeps a widget's font as large as that of what it stands in, or as its text has room for.
class Shrinking : public QObject
{
public:
    explicit Shrinking(QWidget* widget) : QObject(widget), m_widget(widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Resize:
        case QEvent::Show:
            fit();
            break;
        case QEvent::FontChange:
        case QEvent::StyleChange:
            fitLater();
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

    void fit();

protected:
    virtual bool hasRoomIn(const QFont& font) const = 0;

private:
    /// When the widget itself has taken note of what the event is about.
    void fitLater()
    {
        if (std::exchange(m_isQueued, true)) {
            return;
        }
        const auto go = [this] {
            m_isQueued = false;
            fit();
        };
        QMetaObject::invokeMethod(this, go, Qt::QueuedConnection);
    }

    QWidget* const m_widget;
    bool m_isFitting = false;
    bool m_isQueued = false;
    /// The size that the widget was given, in points; 0 while it has the usual one.
    double m_asked = 0;
};

void Shrinking::fit()
{
    if (m_isFitting || !m_widget->isVisible()) {
        return;
    }
    const QScopedValueRollback<bool> fitting(m_isFitting, true);
    QFont font = m_widget->font();
    // A font may be given in pixels. What QFontInfo says is rounded to whole ones.
    const QFont& around = m_widget->parentWidget()->font();
    const double usual =
        around.pointSizeF() > 0 ? around.pointSizeF() : QFontInfo(around).pointSizeF();
    font.setPointSizeF(usual);
    while (font.pointSizeF() > smallestFont && !hasRoomIn(font)) {
        font.setPointSizeF(font.pointSizeF() - fontStep);
    }
    // Once for each size: a host's style sheet may have the last word.
    if (font.pointSizeF() == m_asked || (m_asked == 0 && font.pointSizeF() == usual)) {
        return;
    }
    m_asked = font.pointSizeF();
    // Smaller letters shall not take room away, too; a bar of tabs takes what it needs.
    if (!qobject_cast<QTabBar*>(m_widget)) {
        m_widget->setMinimumWidth(std::max(m_widget->minimumWidth(), m_widget->width()));
    }
    m_widget->setFont(font);
    // Under a style sheet it is not handed on by itself.
    if (auto* const text = m_widget->findChild<QLineEdit*>()) {
        text->setFont(font);
    }
}

class ShrinkingField : public Shrinking
{
public:
    explicit ShrinkingField(QSpinBox* field) : Shrinking(field), m_field(field) {}

protected:
    bool hasRoomIn(const QFont& font) const override
    {
        QStyleOptionSpinBox option;
        option.initFrom(m_field);
        option.buttonSymbols = m_field->buttonSymbols();
        option.frame = m_field->hasFrame();
        option.subControls = QStyle::SC_SpinBoxEditField | QStyle::SC_SpinBoxFrame;
        if (m_field->buttonSymbols() != QAbstractSpinBox::NoButtons) {
            option.subControls |= QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
        }
        // What the text field keeps free on either side, and the cursor.
        constexpr int margins = 5;
        const int room =
            m_field->style()
                ->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, m_field)
                .width() -
            margins;
        const QFontMetrics metrics(font);
        const int needed = std::max(metrics.horizontalAdvance(QString::number(m_field->minimum())),
                                    metrics.horizontalAdvance(QString::number(m_field->maximum())));
        return needed <= room;
    }

private:
    const QSpinBox* const m_field;
};

class ShrinkingList : public Shrinking
{
public:
    explicit ShrinkingList(QComboBox* list) : Shrinking(list), m_list(list)
    {
        connect(list, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { fit(); });
    }

protected:
    bool hasRoomIn(const QFont& font) const override
    {
        QStyleOptionComboBox option;
        option.initFrom(m_list);
        option.frame = m_list->hasFrame();
        // What styles keep free on either side.
        constexpr int margins = 4;
        const QRect room = m_list->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                           QStyle::SC_ComboBoxEditField, m_list);
        const QFontMetrics metrics(font);
        // The chosen item alone: a long one shall not make the others small.
        return metrics.height() <= room.height() &&
               metrics.horizontalAdvance(m_list->currentText()) <= room.width() - margins;
    }

private:
    const QComboBox* const m_list;
};

class ShrinkingTabs : public Shrinking
{
public:
    explicit ShrinkingTabs(QTabBar* bar) : Shrinking(bar), m_bar(bar)
    {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        // A sheet may make the tab in front narrower; the bar stays as it was with the one before,
        // and scrolls, unless it is measured anew.
        connect(bar, &QTabBar::currentChanged, bar, [bar] { bar->setElideMode(bar->elideMode()); });
#endif
    }

protected:
    bool hasRoomIn(const QFont& font) const override
    {
        // The bar itself knows what a style adds to the titles, with the font that it has.
        const int added = m_bar->sizeHint().width() - widthOfTitles(m_bar->font());
        // What a style keeps free beside the bar.
        constexpr int margins = 16;
        return widthOfTitles(font) + added <= m_bar->parentWidget()->width() - margins;
    }

private:
    int widthOfTitles(const QFont& font) const
    {
        const QFontMetrics metrics(font);
        int width = 0;
        for (int i = 0; i < m_bar->count(); ++i) {
            width += metrics.size(Qt::TextShowMnemonic, m_bar->tabText(i)).width();
        }
        return width;
    }

    const QTabBar* const m_bar;
};

class ShrinkingLabel : public Shrinking
{
public:
    ShrinkingLabel(QLabel* label, int narrowest) : Shrinking(label), m_label(label)
    {
        // What expands gives way before the text.
        label->setMinimumWidth(
            std::min({label->sizeHint().width(), narrowest, label->maximumWidth()}));
    }

protected:
    bool hasRoomIn(const QFont& font) const override
    {
        const QRect room = m_label->contentsRect();
        const QFontMetrics metrics(font);
        if (!m_label->wordWrap()) {
            return metrics.horizontalAdvance(m_label->text()) <= room.width();
        }
        // Its longest word.
        const QRect lines(0, 0, room.width(), QWIDGETSIZE_MAX);
        return metrics.boundingRect(lines, Qt::TextWordWrap, m_label->text()).width() <=
               room.width();
    }

private:
    const QLabel* const m_label;
};

} // namespace

QStringList text_fit::lines(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines += text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

void text_fit::wrap(QAbstractButton* button)
{
    new Wrapping(button);
}

void text_fit::shrink(QSpinBox* field)
{
    new ShrinkingField(field);
}

void text_fit::shrink(QComboBox* list)
{
    new ShrinkingList(list);
}

void text_fit::refit(QComboBox* list)
{
    const QObjectList& children = list->children();
    for (QObject* child : children) {
        if (auto* const shrinking = dynamic_cast<ShrinkingList*>(child)) {
            shrinking->fit();
        }
    }
}

void text_fit::shrink(QTabBar* bar)
{
    new ShrinkingTabs(bar);
}

void text_fit::shrink(QLabel* label, int narrowest)
{
    new ShrinkingLabel(label, narrowest);
}
