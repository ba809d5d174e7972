// A host program for the module, driven by its arguments: each is a step, and what comes of it is
// written to standard output, a line each. What happens in an open dialog is done by a timer.
//
//   module_host MODULE STEP...
//
// | step            | does                                                                |
// |-----------------|---------------------------------------------------------------------|
// | flags=NUMBER    | the flags of the next calls                                          |
// | ext=KIND        | null, application, window=ID, foreign; with "record:" before it, in a |
// |                 | record of the host (bit 29); "record" is a null record               |
// | title=, banner= | of the record                                                        |
// | press=WHAT      | ok, cancel, close: what is done in the dialog; "again": the module    |
// |                 | is called once more, while the dialog is open, which is then left     |
// | call            | calls the module: "result", "changed", "record flags"                |
// | env=NAME=VALUE  | sets a variable of the environment                                    |
// | quiet           | from now on dialogs are not described, and left at once               |
// | repeat=NUMBER   | calls the module so often; what is said is the last result            |
// | reload=NUMBER   | calls it so often, unloaded and loaded before each call               |
// | bare=NUMBER     | opens so many dialogs that have one button, in the place of calls     |
// | usage           | says what the process has of the system                               |
// | call-null       | calls it without settings                                            |
// | library-folder=F| Windows: has libraries searched in that folder, no longer in the       |
// |                 | current one                                                           |
// | find=LIBRARY    | says whether the system's loader finds a library by its name          |
// | mapped          | names what of the module, companions and stubs is mapped, without the |
// |                 | platform's extension                                                 |
// | application     | makes an application object; "delete" deletes it                     |
// | instance        | says whether there is an application object                          |
// | window, unwindow| shows a window of the host's application; closes it                  |
// | foreign         | opens a window of the window system's own, without the toolkit       |
// | foreign-state   | says whether it is enabled, active and focused                       |
// | run             | runs the application's event loop until the last window is closed    |
// | stay            | has the application outlive its last window, if nothing else ends it   |
// | locale          | says which the process has                                           |
// | icon            | says in how many pixels the application has an icon of 16            |
// | translate       | says what "Views" is called in the application                        |
// | resources       | says whether the module's are there                                  |
// | unload          | unloads the module                                                   |
// | remove=LIBRARY  | takes away a library, mapped or not, that lies beside the module     |
// | replace=LIBRARY | puts "replacement" in the place of one that is not mapped            |

#include "HostSystem.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>

#include <kv_config_gui_mvc/config_gui.h>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <set>
#include <string>

namespace
{

void say(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

QString what = QStringLiteral("cancel");
bool quiet = false;
KvShowMvcEncoderPages showAgain = nullptr;
void* foreignWindow = nullptr;

QString yesNo(bool yes)
{
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

void describeForeignWindow()
{
    say(QStringLiteral("foreign ") +
        QString::fromStdString(host_system::stateOf(foreignWindow)).trimmed());
}

int pixelsOf(const QIcon& icon)
{
    return icon.pixmap(QSize(16, 16)).width();
}

void describe(QDialog* dialog)
{
    say(QStringLiteral("title ") + dialog->windowTitle());
    say(QStringLiteral("place %1,%2 %3x%4")
            .arg(dialog->pos().x())
            .arg(dialog->pos().y())
            .arg(dialog->width())
            .arg(dialog->height()));
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        say(QStringLiteral("class ") +
            QString::fromStdString(host_system::classOf(dialog->winId())));
    }
    const QWidget* const parent = dialog->parentWidget();
    say(QStringLiteral("parent ") +
        (parent ? QString::fromLatin1(parent->metaObject()->className()) : QStringLiteral("none")));
    say(QStringLiteral("active ") + yesNo(QApplication::activeWindow() == dialog));
    const QWidget* const focus = QApplication::focusWidget();
    say(QStringLiteral("focus ") + (focus ? focus->objectName() : QStringLiteral("none")));
    if (const auto* tabs = dialog->findChild<QTabWidget*>(QStringLiteral("tabWidget"))) {
        say(QStringLiteral("last tab ") + tabs->tabText(tabs->count() - 1));
    }
    if (const auto* log = dialog->findChild<QTextEdit*>(QStringLiteral("errorLog"))) {
        say(QStringLiteral("log ") + log->toPlainText().simplified());
    }
    if (const auto* banner = dialog->findChild<QLabel*>(QStringLiteral("bannerFrame"))) {
        say(QStringLiteral("banner %1").arg(banner->pixmap(Qt::ReturnByValue).width()));
    }
    if (const auto* ok = dialog->findChild<QPushButton*>(QStringLiteral("buttonOk"))) {
        say(QStringLiteral("icon %1").arg(pixelsOf(ok->icon())));
    }
    if (foreignWindow) {
        describeForeignWindow();
    }
}

void press(QDialog* dialog)
{
    const char* const button = what == QLatin1String("ok") ? "buttonOk" : "buttonCancel";
    if (what == QLatin1String("again")) {
        KvMvcSettings other = {};
        say(QStringLiteral("result again %1")
                .arg(showAgain(&other, KV_MVC_GUI_HOST_APPLICATION, QCoreApplication::instance())));
    }
    if (what == QLatin1String("close")) {
        dialog->close();
    } else {
        dialog->findChild<QPushButton*>(QLatin1String(button))->click();
    }
    if (dialog->isVisible()) {
        say(QStringLiteral("still open"));
        if (const auto* log = dialog->findChild<QTextEdit*>(QStringLiteral("errorLog"))) {
            say(QStringLiteral("answer ") + log->toPlainText().simplified());
        }
        dialog->reject();
    }
}

/// Runs in every application object's constructor, also in that of the module's own.
void watchDialogs()
{
    auto* const timer = new QTimer(QCoreApplication::instance());
    auto last = std::make_shared<QPointer<QWidget>>();
    QObject::connect(timer, &QTimer::timeout, timer, [last] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || *last == dialog) {
            return;
        }
        *last = dialog;
        if (!quiet) {
            describe(dialog);
        }
        press(dialog);
    });
    timer->start(quiet ? 1 : 50);
}

struct Host {
    std::filesystem::path modulePath;
    void* module = nullptr;
    KvShowMvcEncoderPages show = nullptr;

    std::unique_ptr<QApplication> application;
    std::unique_ptr<QWidget> window;

    KvMvcSettings settings = {};
    int32_t flags = 0;
    KvMvcHosting record = {-1, nullptr, nullptr, nullptr};
    bool ownRecord = false;
    bool nullRecord = false;
    void* parent = nullptr;
    std::string title;
    std::string banner;

    bool load();
    void setExt(std::string kind);
    void call(KvMvcSettings* edited);
    void repeat(int count, bool reloads);
    static void bareDialogs(int count);
    void mapped() const;
    std::filesystem::path libraryBeside(const std::string& name) const;
    bool step(const std::string& text);
};

bool Host::load()
{
    std::string error;
    module = host_system::openLibrary(modulePath, error);
    if (!module) {
        say(QString::fromStdString(error));
        return false;
    }
    show = reinterpret_cast<KvShowMvcEncoderPages>(
        host_system::findFunction(module, "showMVCEncoderPages"));
    showAgain = show;
    return show != nullptr;
}

void Host::setExt(std::string kind)
{
    const std::string prefix = "record:";
    nullRecord = kind == "record";
    ownRecord = kind.compare(0, prefix.size(), prefix) == 0;
    if (ownRecord) {
        kind.erase(0, prefix.size());
    }
    parent = nullptr;
    if (kind == "application") {
        parent = application.get();
    } else if (kind == "foreign") {
        parent = foreignWindow;
    } else if (kind.compare(0, 7, "window=") == 0) {
        parent = reinterpret_cast<void*>(uintptr_t(std::stoull(kind.substr(7), nullptr, 0)));
    }
}

void Host::call(KvMvcSettings* edited)
{
    settings = {};
    settings.num_views = 2;
    const KvMvcSettings before = settings;
    record = {-1, parent, title.empty() ? nullptr : title.c_str(),
              banner.empty() ? nullptr : banner.c_str()};
    const int32_t result = show(edited, flags, ownRecord ? &record : nullRecord ? nullptr : parent);
    say(QStringLiteral("result %1").arg(result));
    say(QStringLiteral("changed ") + yesNo(std::memcmp(&before, &settings, sizeof before) != 0));
    if (ownRecord) {
        say(QStringLiteral("record flags %1").arg(unsigned(record.flags), 8, 16, QLatin1Char('0')));
    }
}

void Host::repeat(int count, bool reloads)
{
    int32_t result = 0;
    for (int i = 0; i < count; ++i) {
        if (reloads) {
            host_system::closeLibrary(module);
            if (!load()) {
                return;
            }
        }
        result = show(&settings, flags, ownRecord ? static_cast<void*>(&record) : parent);
    }
    say(QStringLiteral("result %1").arg(result));
}

void Host::bareDialogs(int count)
{
    for (int i = 0; i < count; ++i) {
        QDialog dialog;
        QPushButton button(&dialog);
        button.setObjectName(QStringLiteral("buttonCancel"));
        QObject::connect(&button, &QPushButton::clicked, &dialog, &QDialog::reject);
        dialog.exec();
    }
}

void Host::mapped() const
{
    std::set<std::string> names;
    const std::string suffix = KV_LIBRARY_SUFFIX;
    for (std::string file : host_system::mappedFiles()) {
        if (file.compare(0, 3, "kv_") != 0 && file.compare(0, 4, "mvc_") != 0) {
            continue;
        }
        if (file.size() > suffix.size() &&
            file.compare(file.size() - suffix.size(), suffix.size(), suffix) == 0) {
            file.resize(file.size() - suffix.size());
        }
        names.insert(file);
    }
    std::string all = "mapped";
    for (const std::string& name : names) {
        all += ' ' + name;
    }
    say(QString::fromStdString(all));
}

std::filesystem::path Host::libraryBeside(const std::string& name) const
{
    return modulePath.parent_path() / (name + KV_LIBRARY_SUFFIX);
}

bool Host::step(const std::string& text)
{
    const auto equals = text.find('=');
    const std::string name = text.substr(0, equals);
    const std::string value = equals == std::string::npos ? "" : text.substr(equals + 1);
    static int argumentCount = 1;
    static char programName[] = "module_host";
    static char* arguments[] = {programName, nullptr};

    if (name == "flags") {
        flags = int32_t(std::stoul(value, nullptr, 0));
    } else if (name == "ext") {
        setExt(value);
    } else if (name == "title") {
        title = value;
    } else if (name == "banner") {
        banner = value;
    } else if (name == "press") {
        what = QString::fromStdString(value);
    } else if (name == "call") {
        call(&settings);
    } else if (name == "env") {
        const auto at = value.find('=');
        qputenv(value.substr(0, at).c_str(), QByteArray::fromStdString(value.substr(at + 1)));
    } else if (name == "quiet") {
        quiet = true;
    } else if (name == "repeat" || name == "reload") {
        repeat(std::stoi(value), name == "reload");
    } else if (name == "bare") {
        bareDialogs(std::stoi(value));
    } else if (name == "usage") {
        say(QStringLiteral("usage ") + QString::fromStdString(host_system::usage()));
    } else if (name == "call-null") {
        call(nullptr);
    } else if (name == "library-folder") {
        host_system::setLibraryFolder(value);
    } else if (name == "find") {
        say(QStringLiteral("finds ") + yesNo(host_system::findsLibrary(value + KV_LIBRARY_SUFFIX)));
    } else if (name == "mapped") {
        mapped();
    } else if (name == "application") {
        application = std::make_unique<QApplication>(argumentCount, arguments);
    } else if (name == "delete") {
        application.reset();
    } else if (name == "instance") {
        say(QStringLiteral("instance ") + yesNo(QCoreApplication::instance()));
    } else if (name == "window") {
        window = std::make_unique<QLabel>(QStringLiteral("host"));
        window->show();
        window->activateWindow();
        QCoreApplication::processEvents();
    } else if (name == "unwindow") {
        window->close();
        QCoreApplication::processEvents();
        window.reset();
    } else if (name == "foreign") {
        foreignWindow = host_system::openForeignWindow();
        return foreignWindow != nullptr;
    } else if (name == "foreign-state") {
        describeForeignWindow();
    } else if (name == "run") {
        const QPointer<QWidget> closed = window.get();
        QTimer::singleShot(0, closed, [closed] {
            closed->close();
            // Well after what the end of the last window sets off.
            QTimer::singleShot(500, qApp, [] { QCoreApplication::exit(7); });
        });
        say(QStringLiteral("loop %1").arg(QApplication::exec()));
    } else if (name == "stay") {
        QApplication::setQuitOnLastWindowClosed(false);
    } else if (name == "locale") {
        say(QStringLiteral("locale ") + QString::fromLatin1(std::setlocale(LC_ALL, nullptr)));
    } else if (name == "icon") {
        QPixmap large(64, 64);
        large.fill(Qt::red);
        say(QStringLiteral("icon %1").arg(pixelsOf(QIcon(large))));
    } else if (name == "translate") {
        say(QStringLiteral("translated ") +
            QCoreApplication::translate("AVCVideoEncoderDlg", "Views"));
    } else if (name == "resources") {
        say(QStringLiteral("resources ") +
            yesNo(QFile::exists(QStringLiteral(":/res_mvc/banners/banner.png"))));
    } else if (name == "remove") {
        // Windows keeps a file that is mapped, but lets it have another name.
        std::filesystem::rename(libraryBeside(value), libraryBeside(value + ".removed"));
    } else if (name == "unload") {
        host_system::closeLibrary(module);
        module = nullptr;
        show = nullptr;
    } else if (name == "replace") {
        std::filesystem::rename(libraryBeside("replacement"), libraryBeside(value));
    } else {
        return false;
    }
    return true;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchDialogs)

int main(int argc, char** argv)
{
    Host host;
    host.modulePath = argc > 1 ? argv[1] : "";
    if (!host.load()) {
        return 2;
    }
    for (int i = 2; i < argc; ++i) {
        if (!host.step(argv[i])) {
            say(QStringLiteral("no such step: ") + QString::fromLocal8Bit(argv[i]));
            return 2;
        }
    }
    say(QStringLiteral("end"));
    return 0;
}
