#include "LimitBars.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFrame>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QScreen>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace
{

/// The reference encoder's; others are shown as they are.
constexpr const char* knownUnits[] = {
    QT_TRANSLATE_NOOP("LimitBars", "macroblocks"),
    QT_TRANSLATE_NOOP("LimitBars", "macroblocks/s"),
    QT_TRANSLATE_NOOP("LimitBars", "frames"),
    QT_TRANSLATE_NOOP("LimitBars", "bit"),
};

QString translated(const char* text)
{
    return QCoreApplication::translate("LimitBars", text);
}

QString unitOf(const LimitUse& use)
{
    for (const char* known : knownUnits) {
        if (use.unit == QLatin1String(known)) {
            return translated(known);
        }
    }
    return use.unit;
}

/// Bits are many: they are counted in millions where there are.
bool isInMillions(const LimitUse& use)
{
    constexpr double million = 1e6;
    return use.unit.startsWith(QLatin1String("bit")) && use.limit >= million;
}

/// With as many decimals as it takes, where they tell anything.
QString numberOf(double amount, const LimitUse& use)
{
    constexpr double million = 1e6;
    constexpr double whole = 1000;
    const QLocale locale;
    const double shown = isInMillions(use) ? amount / million : amount;
    QString number = locale.toString(shown, 'f', std::abs(shown) < whole ? 3 : 0);
    if (number.contains(locale.decimalPoint())) {
        while (number.endsWith(locale.zeroDigit())) {
            number.chop(1);
        }
        if (number.endsWith(locale.decimalPoint())) {
            number.chop(1);
        }
    }
    return number;
}

/// Never 100 % below the limit, nor at 100 % above it.
int percentOf(const LimitUse& use)
{
    constexpr double most = 9999;
    const double percent = use.limit > 0 ? use.used / use.limit * 100 : 100;
    return int(std::clamp(percent > 100 ? std::ceil(percent) : std::floor(percent), 0.0, most));
}

QString nameOf(const LimitUse& use)
{
    QString name = use.name.toHtmlEscaped();
    if (use.view < 0) {
        return name;
    }
    const QString view = use.view == 0
                             ? QCoreApplication::translate("ViewsPage", "Base View")
                             : translated(QT_TRANSLATE_NOOP("LimitBars", "View %1")).arg(use.view);
    return name + QLatin1String(", ") + view;
}

QString barOf(int percent, const QPalette& palette)
{
    constexpr int width = 120;
    constexpr int middle = 128;
    const bool isDark = palette.color(QPalette::ToolTipText).lightness() > middle;
    const QColor over = isDark ? QColor(255, 130, 130) : QColor(180, 0, 0);
    const QColor used = isDark ? QColor(120, 190, 255) : QColor(0, 95, 175);
    const QColor left = isDark ? QColor(90, 90, 95) : QColor(205, 205, 210);
    const int filled = std::clamp(percent * width / 100, 1, width);
    const auto cell = [](int wide, const QColor& colour) {
        return wide > 0 ? QStringLiteral("<td width=\"%1\" bgcolor=\"%2\"></td>")
                              .arg(wide)
                              .arg(colour.name())
                        : QString();
    };
    return QStringLiteral("<table cellspacing=\"0\" cellpadding=\"0\" width=\"%1\"><tr>")
               .arg(width) +
           cell(filled, percent > 100 ? over : used) + cell(width - filled, left) +
           QStringLiteral("</tr></table>");
}

QString rowOf(const LimitUse& use, const QPalette& palette)
{
    const int percent = percentOf(use);
    const double rest = use.limit - use.used;
    const QString unit = (isInMillions(use) ? QLatin1String("M") : QLatin1String()) + unitOf(use);
    //: What is used of a limit, with the unit: "4 of 6 frames".
    const QString used = translated(QT_TRANSLATE_NOOP("LimitBars", "%1 of %2 %3"))
                             .arg(numberOf(use.used, use), numberOf(use.limit, use), unit);
    const QString left = (rest < 0 ? translated(QT_TRANSLATE_NOOP("LimitBars", "%1 too much"))
                                   : translated(QT_TRANSLATE_NOOP("LimitBars", "%1 left")))
                             .arg(numberOf(std::abs(rest), use));
    const QString cells = QStringLiteral("<td%1>%2&nbsp;</td><td>%3</td>"
                                         "<td%1 align=\"right\">&nbsp;%4\u00a0%&nbsp;</td>"
                                         "<td%1>%5;&nbsp;%6</td>");
    return QLatin1String("<tr>") +
           cells.arg(QLatin1String(" style=\"white-space: nowrap\""), nameOf(use),
                     barOf(percent, palette), QString::number(percent), used.toHtmlEscaped(),
                     left.toHtmlEscaped()) +
           QLatin1String("</tr>");
}

QString headingOf(const QString& level)
{
    return level.isEmpty()
               ? translated(QT_TRANSLATE_NOOP("LimitBars", "Other limits"))
               : translated(QT_TRANSLATE_NOOP("LimitBars", "Limits of level %1")).arg(level);
}

/// A window that goes with the next key.
class Sheet : public QFrame
{
public:
    explicit Sheet(QWidget* parent) : QFrame(parent, Qt::Popup)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameShape(QFrame::StyledPanel);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        event->accept();
        close();
    }
};

/// In the middle of the window, and on its screen.
void placeOver(QWidget* sheet, const QWidget* window)
{
    QRect place(QPoint(), sheet->size());
    place.moveCenter(window->frameGeometry().center());
    if (const QScreen* screen = window->screen()) {
        const QRect room = screen->availableGeometry();
        place.moveRight(std::min(place.right(), room.right()));
        place.moveBottom(std::min(place.bottom(), room.bottom()));
        place.moveLeft(std::max(place.left(), room.left()));
        place.moveTop(std::max(place.top(), room.top()));
    }
    sheet->move(place.topLeft());
}

} // namespace

QString limit_bars::table(const QVector<LimitUse>& limits, const QPalette& palette)
{
    QStringList levels;
    for (const LimitUse& use : limits) {
        if (!levels.contains(use.level)) {
            levels += use.level;
        }
    }
    QString html;
    for (const QString& level : levels) {
        html += QStringLiteral("<p><b>%1</b></p><table cellspacing=\"2\">")
                    .arg(headingOf(level).toHtmlEscaped());
        for (const LimitUse& use : limits) {
            if (use.level == level) {
                html += rowOf(use, palette);
            }
        }
        html += QLatin1String("</table>");
    }
    return html;
}

void limit_bars::showOver(QWidget* window, const QVector<LimitUse>& limits)
{
    auto* const sheet = new Sheet(window);
    // As a tip looks, whose ground the bars are made for.
    sheet->setPalette(QToolTip::palette());
    sheet->setBackgroundRole(QPalette::ToolTipBase);
    sheet->setForegroundRole(QPalette::ToolTipText);
    const QString html = table(limits, QToolTip::palette());
    const QString none = translated(
        QT_TRANSLATE_NOOP("LimitBars", "The encoder tells no limits of these settings."));
    auto* const label = new QLabel(html.isEmpty() ? none : html, sheet);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setObjectName(QStringLiteral("limits"));
    auto* const layout = new QVBoxLayout(sheet);
    layout->addWidget(label);
    sheet->setWindowTitle(translated(QT_TRANSLATE_NOOP("LimitBars", "Limits")));
    sheet->setAccessibleName(sheet->windowTitle());
    sheet->adjustSize();
    placeOver(sheet, window);
    sheet->show();
    // With its frame it may be larger.
    placeOver(sheet, window);
}
