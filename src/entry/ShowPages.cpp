// The module's one exported function.

#include "ApplicationSetup.h"
#include "Bindings.h"
#include "DialogPlacement.h"
#include "NativeWindow.h"
#include "QWinWidget.h"
#include "dialog/AVCVideoEncoderDlg.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>

#include <kv_config_gui_mvc/config_gui.h>

#include <memory>

namespace
{

/// Runs the dialog modally and deletes it. @return Whether the user accepted.
bool runModally(AVCVideoEncoderDlg* shown, QApplication& application)
{
    // By names: a connection to a function would leave a piece of this module in the host's object,
    // and the module may be unloaded before the host's object goes.
    QObject::connect(&application, SIGNAL(lastWindowClosed()), &application, SLOT(quit()),
                     Qt::UniqueConnection);
    // The host may delete its window, and the dialog with it, while the dialog is open.
    const QPointer<AVCVideoEncoderDlg> dialog(shown);
    const int result = dialog->exec();
    delete dialog;
    return result == QDialog::Accepted;
}

bool runInHostApplication(KvMvcSettings* settings, const KvMvcHosting& hosting)
{
    auto& application = *static_cast<QApplication*>(hosting.parent);
    setUpApplication(application);
    QWidget* const active = QApplication::activeWindow();
    auto* const dialog = new AVCVideoEncoderDlg(settings, &hosting, active);
    if (!active)
        QApplication::setActiveWindow(dialog);
    return runModally(dialog, application);
}

/// Places the dialog over the host's window; on the desktop's middle where that cannot be found.
void placeOverNativeParent(QWidget* dialog, const QWinWidget& host)
{
    const QRect desktop = host.geometry();
    const WindowEdges edges =
        native_window::outerRectangle(host.parentWindow())
            .value_or(WindowEdges{desktop.left(), desktop.top(), desktop.left() + desktop.width(),
                                  desktop.top() + desktop.height()});
    dialog->move(centredOver(edges, dialog->geometry().size(), desktop));
    native_window::setTransientFor(dialog, host.parentWindow());
}

bool runInOwnApplication(KvMvcSettings* settings, const KvMvcHosting& hosting)
{
    // Both outlive the application object, which keeps references to them.
    static int argumentCount = 0;
    static char* arguments[] = {nullptr};
    constexpr int versionCode = 0x40702;
    QApplication application(argumentCount, arguments, versionCode);
    setUpApplication(application);

    std::unique_ptr<QWinWidget> host;
    if (hosting.parent) {
        host = std::make_unique<QWinWidget>(hosting.parent);
        if (const QScreen* screen = QGuiApplication::primaryScreen())
            host->setGeometry(screen->virtualGeometry());
    }
    auto* const dialog = new AVCVideoEncoderDlg(settings, &hosting, host.get());
    if (host)
        placeOverNativeParent(dialog, *host);
    QApplication::setActiveWindow(dialog);
    return runModally(dialog, application);
}

int32_t showPages(KvMvcSettings* settings, int32_t flags, void* ext)
{
    if (!bindings::loadSettingsIo() || !bindings::loadEncoder())
        return KV_MVC_GUI_ERROR;

    KvMvcHosting ownRecord = {};
    ownRecord.parent = ext;
    KvMvcHosting* const hosting =
        flags & KV_MVC_GUI_HOSTING_RECORD ? static_cast<KvMvcHosting*>(ext) : &ownRecord;
    if (!hosting)
        return KV_MVC_GUI_ERROR;
    hosting->flags = flags;

    const bool inHost = flags & KV_MVC_GUI_HOST_APPLICATION;
    // A process has one application object at most.
    if (inHost ? !hosting->parent : QCoreApplication::instance() != nullptr)
        return KV_MVC_GUI_ERROR;
    const bool accepted =
        inHost ? runInHostApplication(settings, *hosting) : runInOwnApplication(settings, *hosting);
    bindings::releaseLocalization();
    bindings::releaseCompanions();
    return accepted ? KV_MVC_GUI_ACCEPTED : KV_MVC_GUI_REJECTED;
}

} // namespace

int32_t showMVCEncoderPages(KvMvcSettings* settings, int32_t flags, void* ext)
{
    if (!settings)
        return KV_MVC_GUI_ERROR;
    try {
        return showPages(settings, flags, ext);
    } catch (...) {
        bindings::releaseLocalization();
        bindings::releaseCompanions();
        return KV_MVC_GUI_ERROR;
    }
}
