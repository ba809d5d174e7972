#include "DialogTest.h"

#include "dialog/MessageLog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace
{

/// The tester's own files stay as they are.
void keepUserSettingsInTestFolder()
{
    static const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
}

} // namespace

OpenDialog::OpenDialog(qint32 flags) : OpenDialog(flags, exampleSettings()) {}

OpenDialog::OpenDialog(qint32 flags, const KvMvcSettings& settings,
                       const std::function<void(RecordingCompanions&)>& prepare)
    : caller(settings), given(bytesOf(settings))
{
    keepUserSettingsInTestFolder();
    if (prepare) {
        prepare(companions);
    }
    const KvMvcHosting hosting = {flags, nullptr, nullptr, nullptr};
    m_dialog = std::make_unique<AVCVideoEncoderDlg>(&caller, &hosting, nullptr);
    m_dialog->show();
    m_dialog->activateWindow();
    // A window system takes its time; the offscreen platform has done it.
    (void)QTest::qWaitForWindowActive(m_dialog.get());
    QCoreApplication::processEvents();
}

OpenDialog::~OpenDialog()
{
    m_dialog.reset();
    messageLog() = MessageLog();
}

QPushButton* OpenDialog::button(const char* name) const
{
    return m_dialog->findChild<QPushButton*>(QLatin1String(name));
}

QComboBox* OpenDialog::presetList() const
{
    return m_dialog->findChild<QComboBox*>(QStringLiteral("presetList"));
}

QTextEdit* OpenDialog::log() const
{
    return m_dialog->findChild<QTextEdit*>(QStringLiteral("errorLog"));
}

QTabWidget* OpenDialog::tabs() const
{
    return m_dialog->findChild<QTabWidget*>(QStringLiteral("tabWidget"));
}

void OpenDialog::put(const Cells& cells)
{
    ::put(probe().record(), cells);
    probe().settingsToState();
}

bool OpenDialog::drop(const QMimeData& data) const
{
    // The toolkit gives a drop to the widget that took the drag.
    QDragEnterEvent drag(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drag.ignore();
    QCoreApplication::sendEvent(tabs(), &drag);
    if (!drag.isAccepted()) {
        return false;
    }
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(tabs(), &event);
    return event.isAccepted();
}

void OpenDialog::dropSettings(const KvMvcSettings& settings)
{
    companions.onRead = [settings](KvMvcSettings& into) {
        into = settings;
        return 0;
    };
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/settings.cfg"))});
    drop(data);
}
