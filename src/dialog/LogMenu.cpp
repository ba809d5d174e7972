#include "LogMenu.h"

#include "MessageLog.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>

namespace
{

void show(QTextEdit* log, const QPoint& place)
{
    QMenu* const menu = log->createStandardContextMenu(place);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    menu->addActions(log->actions());
    menu->popup(log->viewport()->mapToGlobal(place));
}

} // namespace

void log_menu::attach(QTextEdit* log)
{
    log->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(log, &QWidget::customContextMenuRequested, log,
                     [log](const QPoint& place) { show(log, place); });

    //: In the context menu of the message log: all messages, whole.
    auto* const copyAll =
        new QAction(QCoreApplication::translate("AVCVideoEncoderDlg", "Copy all"), log);
    QObject::connect(copyAll, &QAction::triggered, log,
                     [] { QGuiApplication::clipboard()->setText(messageLog().allMessages()); });
    log->addAction(copyAll);
}
