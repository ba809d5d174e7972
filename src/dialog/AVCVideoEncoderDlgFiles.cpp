// Settings files and the event filter: what reaches the dialog from outside its pages.

#include "AVCVideoEncoderDlg.h"

#include "SettingsFiles.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>

namespace
{

QString firstLocalFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

QString absoluteDirectory(const QString& file)
{
    return QFileInfo(file).absolutePath();
}

} // namespace

void AVCVideoEncoderDlg::loadFromFile(const QString& path)
{
    const auto settings = settings_files::read(path);
    if (!settings)
        return;
    takeSettings(*settings);
    check();
    settingsToState();
}

void AVCVideoEncoderDlg::saveToFile(const QString& path)
{
    check();
    settings_files::write(m_record.settings, path);
}

void AVCVideoEncoderDlg::slotLoadSettings()
{
    const QString name = QFileDialog::getOpenFileName(
        nullptr, tr("Load Config File..."), m_lastLoadDirectory,
        tr("Config Files (*.cfg *.ini);;MPEG Files (*.m2p *.m2t *.m2p*.m4p *.mp2 *.mp4 *.mpeg "
           "*.mpg *.mpv *.mxf *.trp *.ts *.vob *.ifo)"));
    if (name.isEmpty())
        return;
    loadFromFile(settings_files::asPassedOn(name));
    m_lastLoadDirectory = absoluteDirectory(name);
}

void AVCVideoEncoderDlg::slotSaveSettings()
{
    QString name = QFileDialog::getSaveFileName(
        nullptr, tr("Save Config File..."), m_lastSaveDirectory, tr("Config Files (*.cfg *.ini)"),
        nullptr, QFileDialog::DontConfirmOverwrite);
    if (name.isEmpty())
        return;
    name = settings_files::withSuffix(name);
    if (QFile::exists(name) &&
        QMessageBox::question(nullptr, tr("Korvane MVC Video Encoder"),
                              tr("File already exists.\nDo you want to overwrite it?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return;
    saveToFile(settings_files::asPassedOn(name));
    m_lastSaveDirectory = absoluteDirectory(name);
}

bool AVCVideoEncoderDlg::eventFilter(QObject* watched, QEvent* event)
{
    // Every event goes on to its target.
    if (watched == this && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_F5)
            applySkin(QStringLiteral("default"));
        else if (key == Qt::Key_F6)
            applySkin(QStringLiteral("metal"));
    } else if (watched == ui.tabWidget && event->type() == QEvent::DragEnter) {
        dragEntersTabs(static_cast<QDragEnterEvent*>(event));
    } else if (watched == ui.tabWidget && event->type() == QEvent::Drop) {
        dropOnTabs(static_cast<QDropEvent*>(event));
    }
    return QDialog::eventFilter(watched, event);
}

void AVCVideoEncoderDlg::dragEntersTabs(QDragEnterEvent* event)
{
    if (settings_files::isDroppable(firstLocalFile(event->mimeData())))
        event->acceptProposedAction();
}

void AVCVideoEncoderDlg::dropOnTabs(QDropEvent* event)
{
    if (!event->mimeData()->hasUrls())
        return;
    loadFromFile(firstLocalFile(event->mimeData()));
    event->acceptProposedAction();
}
