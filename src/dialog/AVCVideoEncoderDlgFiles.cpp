// Settings files and the event filter: what reaches the dialog from outside its pages.

#include "AVCVideoEncoderDlg.h"

#include "RecentFiles.h"
#include "SettingsFiles.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QUrl>

namespace
{

QString firstLocalFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

/// The file that the user chooses; empty when none.
QString chooseFile(QFileDialog& dialog)
{
    // It has no parent, and a hidden one has the settings dialog: closing it is not the end.
    dialog.setAttribute(Qt::WA_QuitOnClose, false);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return dialog.selectedFiles().value(0);
}

bool mayOverwrite()
{
    QMessageBox question(
        QMessageBox::Question,
        QCoreApplication::translate("AVCVideoEncoderDlg", "Korvane MVC Video Encoder"),
        QCoreApplication::translate("AVCVideoEncoderDlg",
                                    "File already exists.\nDo you want to overwrite it?"),
        QMessageBox::Yes | QMessageBox::No);
    // Typing a name and pressing Enter once too often shall not cost a file.
    question.setDefaultButton(QMessageBox::No);
    question.setAttribute(Qt::WA_QuitOnClose, false);
    return question.exec() == QMessageBox::Yes;
}

QString absoluteDirectory(const QString& file)
{
    return QFileInfo(file).absolutePath();
}

} // namespace

bool AVCVideoEncoderDlg::loadFromFile(const QString& path)
{
    const QPointer<AVCVideoEncoderDlg> self(this);
    const auto settings = m_caller ? settings_files::read(path) : std::nullopt;
    if (!settings || !self) {
        return false;
    }
    const QString name = tr("File %1").arg(QFileInfo(path).fileName());
    takeStep(name, {}, [&] {
        takeSettings(*settings);
        startHere(name);
        check();
        if (self) {
            settingsToState();
        }
    });
    return true;
}

bool AVCVideoEncoderDlg::saveToFile(const QString& path)
{
    const QPointer<AVCVideoEncoderDlg> self(this);
    check();
    return self && m_caller && settings_files::write(m_record.settings, path);
}

// The host may delete its window, and this dialog with it, while the user chooses a file.

void AVCVideoEncoderDlg::slotLoadSettings()
{
    const QPointer<AVCVideoEncoderDlg> self(this);
    QFileDialog dialog(
        nullptr, tr("Load Config File..."), m_lastLoadDirectory,
        tr("Config Files (*.cfg *.ini);;MPEG Files (*.m2p *.m2t *.m2p*.m4p *.mp2 *.mp4 *.mpeg "
           "*.mpg *.mpv *.mxf *.trp *.ts *.vob *.ifo)"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    const QString name = chooseFile(dialog);
    if (name.isEmpty() || !self) {
        return;
    }
    if (loadFromFile(settings_files::asPassedOn(name))) {
        recent_files::add(name);
    }
    if (self) {
        m_lastLoadDirectory = absoluteDirectory(name);
    }
}

void AVCVideoEncoderDlg::slotSaveSettings()
{
    const QPointer<AVCVideoEncoderDlg> self(this);
    QFileDialog dialog(nullptr, tr("Save Config File..."), m_lastSaveDirectory,
                       tr("Config Files (*.cfg *.ini)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QString chosen = chooseFile(dialog);
    if (chosen.isEmpty() || !self) {
        return;
    }
    const QString name = settings_files::withSuffix(chosen);
    if ((QFile::exists(name) && !mayOverwrite()) || !self) {
        return;
    }
    // A library that takes the name as it comes may have written another file.
    if (saveToFile(settings_files::asPassedOn(name)) && QFile::exists(name)) {
        recent_files::add(name);
    }
    if (self) {
        m_lastSaveDirectory = absoluteDirectory(name);
    }
}

bool AVCVideoEncoderDlg::eventFilter(QObject* watched, QEvent* event)
{
    const QPointer<AVCVideoEncoderDlg> self(this);
    // Every event goes on to its target.
    if (watched == this && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_F5) {
            applySkin(QStringLiteral("default"));
        } else if (key == Qt::Key_F6) {
            applySkin(QStringLiteral("metal"));
        }
    } else if (watched == ui.tabWidget && event->type() == QEvent::DragEnter) {
        takeDrag(static_cast<QDragEnterEvent*>(event));
    } else if (watched == ui.tabWidget && event->type() == QEvent::Drop) {
        takeDrop(static_cast<QDropEvent*>(event));
    }
    // What was dropped was checked; the host may have deleted this dialog while it showed a
    // message.
    return !self || QDialog::eventFilter(watched, event);
}

void AVCVideoEncoderDlg::takeDrag(QDragEnterEvent* event)
{
    if (settings_files::isDroppable(firstLocalFile(event->mimeData()))) {
        event->acceptProposedAction();
    }
}

void AVCVideoEncoderDlg::takeDrop(QDropEvent* event)
{
    if (!event->mimeData()->hasUrls()) {
        return;
    }
    const QString path = firstLocalFile(event->mimeData());
    if (loadFromFile(path)) {
        recent_files::add(path);
    }
    event->acceptProposedAction();
}

void AVCVideoEncoderDlg::dragEnterEvent(QDragEnterEvent* event)
{
    takeDrag(event);
}

void AVCVideoEncoderDlg::dropEvent(QDropEvent* event)
{
    takeDrop(event);
}
