#include "DialogPlacement.h"

namespace
{

int clamped(int position, int hostStart, int hostLength, int length)
{
    const int start = qMax(position, hostStart);
    return start >= hostLength - length ? hostLength - length : start;
}

} // namespace

QPoint centredOver(const WindowEdges& parent, QSize dialog, const QRect& host)
{
    // The halves are taken apart, each truncated.
    const int x = (parent.left + parent.right) / 2 - dialog.width() / 2;
    const int y = (parent.top + parent.bottom) / 2 - dialog.height() / 2;
    return {clamped(x, host.x(), host.width(), dialog.width()),
            clamped(y, host.y(), host.height(), dialog.height())};
}
