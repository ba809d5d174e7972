#include "RecentFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>
#include <QWidget>

namespace
{

constexpr int mostFiles = 8;

/// A file of the module's own, whatever the host calls itself and keeps.
QSettings userSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Korvane"),
                     QStringLiteral("MVC Video Encoder"));
}

QString key()
{
    return QStringLiteral("recentFiles");
}

void keep(const QStringList& files)
{
    QSettings settings = userSettings();
    if (files.isEmpty()) {
        settings.remove(key());
    } else {
        settings.setValue(key(), files);
    }
}

/// The name first, which is what the user looks for.
QString itemText(int number, const QString& path)
{
    const QFileInfo file(path);
    QString text = QStringLiteral("%1  %2  (%3)")
                       .arg(number)
                       .arg(file.fileName(), QDir::toNativeSeparators(file.path()));
    text.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return QLatin1Char('&') + text;
}

class Menu : public QMenu
{
    Q_DECLARE_TR_FUNCTIONS(AVCVideoEncoderDlg)

public:
    Menu(QWidget* parent, const std::function<void(const QString&)>& load) : QMenu(parent)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        int number = 0;
        const QStringList files = recent_files::list();
        for (const QString& path : files) {
            // Not out of the menu: loading checks, and the dialog may go meanwhile.
            connect(
                addAction(itemText(++number, path)), &QAction::triggered, parent,
                [load, path] { load(path); }, Qt::QueuedConnection);
        }
        if (files.isEmpty()) {
            //: In the menu of the files that were loaded last, while there are none.
            addAction(tr("No files yet"))->setEnabled(false);
            return;
        }
        addSeparator();
        //: In the menu of the files that were loaded last.
        addAction(tr("Clear list"), parent, [] { keep({}); });
    }
};

} // namespace

QStringList recent_files::list()
{
    return userSettings().value(key()).toStringList().mid(0, mostFiles);
}

void recent_files::add(const QString& path)
{
    if (path.isEmpty()) {
        return;
    }
    const QString file = QFileInfo(path).absoluteFilePath();
    QStringList files = list();
    files.removeAll(file);
    files.prepend(file);
    keep(files.mid(0, mostFiles));
}

void recent_files::remove(const QString& path)
{
    QStringList files = list();
    files.removeAll(path);
    keep(files);
}

void recent_files::attachMenu(QWidget* widget, const std::function<void(const QString&)>& load)
{
    widget->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(widget, &QWidget::customContextMenuRequested, widget,
                     [widget, load](const QPoint& place) {
                         (new Menu(widget, load))->popup(widget->mapToGlobal(place));
                     });
}

void recent_files::showMenu(QWidget* widget)
{
    Q_EMIT widget->customContextMenuRequested(widget->rect().bottomLeft());
}
