#include "DialogPlacement.h"

#include <algorithm>

namespace
{

int clamped(int position, int hostStart, int hostLength, int length)
{
    const int start = qMax(position, hostStart);
    return start >= hostLength - length ? hostLength - length : start;
}

} // namespace

WindowEdges toToolkitPixels(const WindowEdges& window, const QVector<ScaledScreen>& screens)
{
    if (screens.isEmpty()) {
        return window;
    }
    const QPoint middle((window.left + window.right) / 2, (window.top + window.bottom) / 2);
    const auto holdsMiddle = [middle](const ScaledScreen& screen) {
        const QRect& rect = screen.geometry;
        return QRect(rect.topLeft(), rect.size() * screen.scale).contains(middle);
    };
    const auto found = std::find_if(screens.begin(), screens.end(), holdsMiddle);
    const ScaledScreen& screen = found == screens.end() ? screens.first() : *found;
    const auto scaled = [&screen](int position, int origin) {
        return origin + int((position - origin) / screen.scale);
    };
    const QPoint origin = screen.geometry.topLeft();
    return {scaled(window.left, origin.x()), scaled(window.top, origin.y()),
            scaled(window.right, origin.x()), scaled(window.bottom, origin.y())};
}

QPoint centredOver(const WindowEdges& parent, QSize dialog, const QRect& host)
{
    // The halves are taken apart, each truncated.
    const int x = (parent.left + parent.right) / 2 - dialog.width() / 2;
    const int y = (parent.top + parent.bottom) / 2 - dialog.height() / 2;
    return {clamped(x, host.x(), host.width(), dialog.width()),
            clamped(y, host.y(), host.height(), dialog.height())};
}
