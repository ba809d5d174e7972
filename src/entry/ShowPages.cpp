// The module's one exported function.

#include "ApplicationSetup.h"
#include "Bindings.h"
#include "DialogPlacement.h"
#include "NativeWindow.h"
#include "PlatformPlugins.h"
#include "ProcessLocale.h"
#include "QWinWidget.h"
#include "dialog/AVCVideoEncoderDlg.h"
#include "dialog/Trace.h"

#include <QApplication>
#include <QPointer>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScreen>
#include <QVector>

#include <kv_config_gui_mvc/companions.h>
#include <kv_config_gui_mvc/config_gui.h>
#include <kv_config_gui_mvc/version.h>

#include <memory>

namespace
{

/// Owns the dialog, which the host may delete first, with the window that is its parent.
class OwnedDialog
{
public:
    OwnedDialog(KvMvcSettings* settings, const KvMvcHosting& hosting, QWidget* parent)
        : m_dialog(new AVCVideoEncoderDlg(settings, &hosting, parent))
    {
    }
    OwnedDialog(const OwnedDialog&) = delete;
    OwnedDialog& operator=(const OwnedDialog&) = delete;
    ~OwnedDialog() { delete m_dialog; }

    AVCVideoEncoderDlg* get() const { return m_dialog; }

    /// @return Whether the user accepted.
    bool runModally(QApplication& application)
    {
        // By names: a connection to a function would leave a piece of this module in the host's
        // object, and the module may be unloaded before the host's object goes.
        QObject::connect(&application, SIGNAL(lastWindowClosed()), &application, SLOT(quit()),
                         Qt::UniqueConnection);
        // The record is written by then, even if the host deletes the dialog before the loop ends.
        bool accepted = false;
        QObject::connect(m_dialog, &QDialog::accepted, m_dialog, [&accepted] { accepted = true; });
        m_dialog->exec();
        return accepted;
    }

private:
    const QPointer<AVCVideoEncoderDlg> m_dialog;
};

/// A name that window managers and screen readers can tell, as there are no arguments to take it
/// from: that of an application object which the host had before, or ours. The toolkit would keep
/// ours beyond the application object, for one that the host makes later.
class ApplicationName
{
public:
    ApplicationName() : m_isOurs(QCoreApplication::applicationName().isEmpty())
    {
        // Also one that is there: unless it was set, the next object takes its own from nothing.
        QCoreApplication::setApplicationName(m_isOurs ? QStringLiteral(KV_MVC_GUI_LIBRARY)
                                                      : QCoreApplication::applicationName());
    }
    ApplicationName(const ApplicationName&) = delete;
    ApplicationName& operator=(const ApplicationName&) = delete;
    ~ApplicationName()
    {
        if (m_isOurs) {
            QCoreApplication::setApplicationName(QString());
        }
    }

private:
    const bool m_isOurs;
};

/// Dense screens as Qt 6 has them by itself: all of it in their scale, icons in their density. Qt 5
/// would keep this beyond the application object, for one that the host makes later.
class DenseScreens
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
public:
    DenseScreens() { set(true, true); }
    DenseScreens(const DenseScreens&) = delete;
    DenseScreens& operator=(const DenseScreens&) = delete;
    ~DenseScreens() { set(m_scaled, m_icons); }

private:
    static void set(bool scaled, bool icons)
    {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, scaled);
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, icons);
    }

    const bool m_scaled = QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling);
    const bool m_icons = QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
};

bool runInHostApplication(KvMvcSettings* settings, const KvMvcHosting& hosting,
                          QApplication& application)
{
    const auto restore = qScopeGuard([&application] { restoreApplication(application); });
    setUpApplication(application);
    QWidget* const active = QApplication::activeWindow();
    OwnedDialog dialog(settings, hosting, active);
    if (!active) {
        QApplication::setActiveWindow(dialog.get());
    }
    return dialog.runModally(application);
}

/// Places the dialog over the host's window; on the desktop's middle where that cannot be found.
void placeOverNativeParent(QWidget* dialog, const QWinWidget& host)
{
    const QRect desktop = host.geometry();
    WindowEdges edges{desktop.left(), desktop.top(), desktop.left() + desktop.width(),
                      desktop.top() + desktop.height()};
    if (const auto found = native_window::outerRectangle(host.parentWindow())) {
        QVector<ScaledScreen> screens;
        const auto all = QGuiApplication::screens();
        for (const QScreen* screen : all) {
            screens.append({screen->geometry(), screen->devicePixelRatio()});
        }
        edges = toToolkitPixels(*found, screens);
    }
    dialog->move(centredOver(edges, dialog->geometry().size(), desktop));
    native_window::setTransientFor(dialog, host.parentWindow());
}

/// @param display Kept until the application has a connection of its own.
bool runInOwnApplication(KvMvcSettings* settings, const KvMvcHosting& hosting,
                         DisplayConnection& display)
{
    // Both outlive the application object, which keeps references to them.
    static int argumentCount = 0;
    static char* arguments[] = {nullptr};
    // The version that the application says it was compiled for, 4.7.2: the interface fixes it.
    constexpr int versionCode = 0x40702;
    const ProcessLocale hostLocale;
    const ApplicationName name;
    [[maybe_unused]] const DenseScreens dense;
    QApplication application(argumentCount, arguments, versionCode);
    display.reset();
    ProcessLocale::useCNumbers();
    addOwnFolder(application);
    native_window::nameWindows(application, KV_MVC_GUI_LIBRARY);
    const auto restore = qScopeGuard([&application] { restoreApplication(application); });
    setUpApplication(application);

    std::unique_ptr<QWinWidget> host;
    if (hosting.parent) {
        host = std::make_unique<QWinWidget>(hosting.parent);
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            host->setGeometry(screen->virtualGeometry());
        }
    }
    OwnedDialog dialog(settings, hosting, host.get());
    if (host) {
        placeOverNativeParent(dialog.get(), *host);
    }
    QApplication::setActiveWindow(dialog.get());
    return dialog.runModally(application);
}

/// The one word that a host hears of a failure; the trace hears the reason.
int32_t failed(const char* reason)
{
    trace::say([reason] {
        return QStringLiteral("result %1: %2").arg(KV_MVC_GUI_ERROR).arg(QLatin1String(reason));
    });
    return KV_MVC_GUI_ERROR;
}

int32_t showPages(KvMvcSettings* settings, int32_t flags, void* ext)
{
    if (!bindings::loadSettingsIo()) {
        return failed("no " KV_MVC_SETTINGS_IO_LIBRARY " with its function");
    }
    if (!bindings::loadEncoder()) {
        return failed("no encoder library with both its functions");
    }

    KvMvcHosting ownRecord = {};
    ownRecord.parent = ext;
    KvMvcHosting* const hosting =
        flags & KV_MVC_GUI_HOSTING_RECORD ? static_cast<KvMvcHosting*>(ext) : &ownRecord;
    if (!hosting) {
        return failed("KV_MVC_GUI_HOSTING_RECORD without a record");
    }
    hosting->flags = flags;

    bool accepted = false;
    if (flags & KV_MVC_GUI_HOST_APPLICATION) {
        auto* const application = qobject_cast<QApplication*>(QCoreApplication::instance());
        if (!hosting->parent) {
            return failed("KV_MVC_GUI_HOST_APPLICATION without the application object");
        }
        if (!application) {
            return failed("KV_MVC_GUI_HOST_APPLICATION, but no QApplication of this version of Qt "
                          "is in the process");
        }
        accepted = runInHostApplication(settings, *hosting, *application);
    } else {
        // A process has one application object at most.
        if (QCoreApplication::instance()) {
            return failed("the process has an application object, and KV_MVC_GUI_HOST_APPLICATION "
                          "is not given");
        }
        DisplayConnection display;
        if (!canMakeApplication(display)) {
            return failed("no platform plug-in with a display that answers");
        }
        accepted = runInOwnApplication(settings, *hosting, display);
    }
    bindings::releaseLocalization();
    bindings::releaseCompanions();
    const int32_t result = accepted ? KV_MVC_GUI_ACCEPTED : KV_MVC_GUI_REJECTED;
    trace::say([result] { return QStringLiteral("result %1").arg(result); });
    return result;
}

/// What the call is, and what it is made by.
QString describeCall(int32_t flags, const void* ext)
{
    return QStringLiteral("version " KV_MVC_VERSION ", Qt %1 (built with %2), flags 0x%3, ext %4")
        .arg(QLatin1String(qVersion()), QLatin1String(QT_VERSION_STR))
        .arg(uint32_t(flags), 8, 16, QLatin1Char('0'))
        .arg(ext ? QStringLiteral("given") : QStringLiteral("null"));
}

} // namespace

int32_t showMVCEncoderPages(KvMvcSettings* settings, int32_t flags, void* ext)
{
    // The slots are the process's: a call out of an open dialog's event loop would empty them.
    static bool isOpen = false;
    trace::say([&] { return describeCall(flags, ext); });
    if (!settings) {
        return failed("no settings");
    }
    if (isOpen) {
        return failed("a dialog is open already");
    }
    const QScopedValueRollback<bool> open(isOpen, true);
    try {
        return showPages(settings, flags, ext);
    } catch (...) {
        // The exception may be of a companion's own code, which must outlast it.
    }
    bindings::releaseLocalization();
    bindings::releaseCompanions();
    return failed("an exception kept the dialog from opening");
}
