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
    add(log, QCoreApplication::translate("AVCVideoEncoderDlg", "Copy all"),
        [] { QGuiApplication::clipboard()->setText(messageLog().allMessages()); });
}

void log_menu::add(QTextEdit* log, const QString& text, const std::function<void()>& act)
{
    auto* const action = new QAction(text, log);
    QObject::connect(action, &QAction::triggered, log, act);
    log->addAction(action);
}
