#include "EnglishTips.h"

#include <QWidget>

#include <algorithm>
#include <iterator>

namespace
{

constexpr struct {
    const char* page;
    const char* control;
    const char* tip;
} tips[] = {
#include "english_tips.inc"
};

} // namespace

QString englishTip(const QWidget* page, const QWidget* control)
{
    QString name = page->objectName();
    if (name.startsWith(QLatin1String("IView")) && name.endsWith(QLatin1String("Page")) &&
        name != QLatin1String("IViewsPage")) {
        name = QStringLiteral("IView0Page");
    }
    const auto found = std::find_if(std::begin(tips), std::end(tips), [&](const auto& row) {
        return name == QLatin1String(row.page) &&
               control->objectName() == QLatin1String(row.control);
    });
    return found == std::end(tips) ? QString() : QString::fromUtf8(found->tip);
}
