#include "Commands.h"
#include "Encoder.h"
#include "Failure.h"
#include "FatalMessages.h"
#include "FileState.h"
#include "Library.h"
#include "ModuleTrace.h"
#include "SettingsFiles.h"
#include "SettingsTable.h"
#include "WindowPart.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <kv_config_gui_mvc/config_gui.h>

#include <memory>

namespace
{

/// What the dialog has unless an option says otherwise.
constexpr int32_t usualFlags = KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB |
                               KV_MVC_GUI_FILE_BUTTONS | KV_MVC_GUI_LOG_COLOURS;

/// A switch that changes a flag: one of the usual is taken away, another is added.
struct FlagOption {
    const char* name;
    int32_t flag;
    const char* description;
};

constexpr FlagOption flagOptions[] = {
    {"no-basic", KV_MVC_GUI_BASIC_TAB, "Hides the tab \"Basic Settings\"."},
    {"no-advanced", KV_MVC_GUI_ADVANCED_TAB, "Hides the tab \"Advanced Settings\"."},
    {"no-file-buttons", KV_MVC_GUI_FILE_BUTTONS,
     "Hides the load and save buttons; there is no check when the dialog opens then."},
    {"no-initial-check", KV_MVC_GUI_NO_INITIAL_CHECK, "Runs no check when the dialog opens."},
    {"plain-log", KV_MVC_GUI_LOG_COLOURS, "Shows all messages in one colour."},
    {"no-banner", KV_MVC_GUI_NO_BANNER, "Hides the banner."},
};

/// What --lock takes.
struct Lock {
    const char* name;
    int32_t flag;
};

constexpr Lock locks[] = {
    {"video-type", KV_MVC_GUI_LOCK_VIDEO_TYPE}, {"size", KV_MVC_GUI_LOCK_SIZE},
    {"frame-rate", KV_MVC_GUI_LOCK_FRAME_RATE}, {"pixel-ratio", KV_MVC_GUI_LOCK_PIXEL_RATIO},
    {"profile", KV_MVC_GUI_LOCK_PROFILE},       {"level", KV_MVC_GUI_LOCK_LEVEL},
    {"views", KV_MVC_GUI_LOCK_VIEWS},
};

enum class Hosting { Own, Host, Native };

struct HostingName {
    const char* name;
    Hosting hosting;
};

constexpr HostingName hostingNames[] = {
    {"own", Hosting::Own}, {"host", Hosting::Host}, {"native", Hosting::Native}};

/// "a, b, c" of a table's names.
template <class Row, std::size_t size>
QString nameList(const Row (&rows)[size])
{
    QStringList names;
    for (const Row& row : rows) {
        names << QLatin1String(row.name);
    }
    return names.join(QStringLiteral(", "));
}

/// @throws Failure when the table has no such name.
template <class Row, std::size_t size>
const Row& findName(const Row (&rows)[size], const char* option, const QString& name)
{
    for (const Row& row : rows) {
        if (name == QLatin1String(row.name)) {
            return row;
        }
    }
    throw Failure(QStringLiteral("--%1 does not know '%2': %3")
                      .arg(QLatin1String(option), name, nameList(rows)));
}

int32_t flagsOf(const Invocation& call)
{
    int32_t flags = usualFlags;
    for (const FlagOption& option : flagOptions) {
        if (call.has(option.name)) {
            flags ^= option.flag;
        }
    }
    for (const QString& list : call.options.value(QStringLiteral("lock"))) {
        for (const QString& name : list.split(QLatin1Char(','))) {
            flags |= findName(locks, "lock", name).flag;
        }
    }
    return flags;
}

/// The parent window's identifier; null when no window is given.
/// @throws Failure when it is no number, or does not go with the hosting mode.
void* parentWindow(const Invocation& call, Hosting hosting)
{
    if (!call.has("parent")) {
        if (hosting == Hosting::Native) {
            throw Failure(QStringLiteral("--hosting native needs --parent"));
        }
        return nullptr;
    }
    if (hosting != Hosting::Native) {
        throw Failure(QStringLiteral("--parent needs --hosting native"));
    }
    bool number = false;
    // Base 0: decimal, or hexadecimal after 0x.
    const qulonglong window = call.value("parent").toULongLong(&number, 0);
    if (!number || window == 0) {
        throw Failure(
            QStringLiteral("--parent: '%1' is no window identifier").arg(call.value("parent")));
    }
    return reinterpret_cast<void*>(static_cast<quintptr>(window));
}

/// How to call the dialog, with the texts that the call refers to.
struct DialogCall {
    int32_t flags;
    Hosting hosting;
    void* parent;
    /// Of the libraries.
    QString directory;
    bool hasTitle;
    bool hasBanner;
    QByteArray title;
    QByteArray banner;
};

DialogCall dialogCall(const Invocation& call)
{
    const Hosting hosting = call.has("hosting")
                                ? findName(hostingNames, "hosting", call.value("hosting")).hosting
                                : Hosting::Own;
    if (call.has("banner")) {
        requireReadable(call.value("banner"));
    }
    return {flagsOf(call),
            hosting,
            parentWindow(call, hosting),
            call.directory,
            call.has("title"),
            call.has("banner"),
            call.value("title").toUtf8(),
            call.value("banner").toUtf8()};
}

/// @return KvMvcGuiResult.
int32_t showDialog(const Library& module, const DialogCall& call, KvMvcSettings& settings)
{
    const auto show = module.function<KvShowMvcEncoderPages>(KV_MVC_GUI_SHOW_PAGES);
    // However the dialog is hosted: the module shall not take the widgets along when it goes.
    const auto makeApplication =
        windowPart(call.directory).function<KvMakeApplication>(makeApplicationName);
    int32_t flags = call.flags;
    KvMvcHosting hosting = {};
    hosting.parent = call.parent;

    static char name[] = "kv-mvc-settings";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    std::unique_ptr<QCoreApplication> application;
    if (call.hosting == Hosting::Host) {
        application.reset(makeApplication(&count, arguments));
        addLibraryFolder(call.directory);
        flags |= KV_MVC_GUI_HOST_APPLICATION;
        hosting.parent = application.get();
    }
    if (!call.hasTitle && !call.hasBanner) {
        return show(&settings, flags, hosting.parent);
    }
    hosting.title = call.hasTitle ? call.title.constData() : nullptr;
    hosting.banner = call.hasBanner ? call.banner.constData() : nullptr;
    return show(&settings, flags | KV_MVC_GUI_HOSTING_RECORD, &hosting);
}

/// Where the settings come from and where they go.
struct Plan {
    /// Empty: the preset's defaults.
    QString source;
    /// Empty: nowhere.
    QString target;
    qint32 preset;
};

Plan planOf(const Invocation& call)
{
    Plan plan = {call.files.value(0), call.value("output"), KV_MVC_VIDEO_TYPE_NONE};
    if (call.has("preset")) {
        plan.preset = requirePreset(call.value("preset"));
    }
    const bool saveElsewhere = call.has("output");
    if (!saveElsewhere) {
        plan.target = plan.source;
        if (!plan.source.isEmpty() && fileState(plan.source).kind == FileState::Missing) {
            plan.source.clear();
        }
    }
    if (saveElsewhere || !plan.target.isEmpty()) {
        requireWritable(plan.target, Target::File);
    }
    if (call.has("preset") && !plan.source.isEmpty()) {
        throw Failure(
            QStringLiteral("--preset is for new settings, and '%1' exists").arg(plan.source));
    }
    return plan;
}

/// An empty file for what would be lost, closed again, since Windows replaces no open file. Empty
/// where none can be made.
QString newRescueFile()
{
    QTemporaryFile file(QDir::temp().filePath(QStringLiteral("kv-mvc-settings-XXXXXX.ini")));
    file.setAutoRemove(false);
    return file.open() ? file.fileName() : QString();
}

/// Saves what was edited. What cannot be saved is not lost: it goes to a temporary file.
void save(const SettingsFiles& files, const KvMvcSettings& settings, const QString& target)
{
    try {
        files.write(settings, target);
    } catch (const Failure& failure) {
        const QString rescue = newRescueFile();
        if (rescue.isEmpty()) {
            throw;
        }
        try {
            files.write(settings, rescue);
        } catch (const Failure&) {
            QFile::remove(rescue);
            throw;
        }
        throw failure.adding(QStringLiteral("the edited settings are in '%1'").arg(rescue));
    }
}

} // namespace

QList<QCommandLineOption> editOptions()
{
    QList<QCommandLineOption> options = {
        outputOption(QStringLiteral("Saves FILE, and leaves the file that was read as it is; "
                                    "it is replaced when it exists.")),
        {QStringLiteral("preset"),
         QStringLiteral("The preset that new settings start from; 0 when it is not given."),
         QStringLiteral("PRESET")},
        {QStringLiteral("hosting"),
         QStringLiteral("How the dialog is hosted: %1. With its own application object (the "
                        "default), inside one of this program, or over the window of another "
                        "program.")
             .arg(nameList(hostingNames)),
         QStringLiteral("MODE")},
        {QStringLiteral("parent"),
         QStringLiteral("The other program's window, for native hosting."),
         QStringLiteral("WINDOW-ID")},
        {QStringLiteral("title"), QStringLiteral("The title of the dialog."),
         QStringLiteral("TEXT")},
        {QStringLiteral("banner"), QStringLiteral("An image for the banner."),
         QStringLiteral("IMAGE")},
        {QStringLiteral("lock"),
         QStringLiteral("Locks settings, separated by commas: %1.").arg(nameList(locks)),
         QStringLiteral("SETTINGS")},
    };
    for (const FlagOption& option : flagOptions) {
        options << QCommandLineOption(QLatin1String(option.name),
                                      QLatin1String(option.description));
    }
    return options;
}

Outcome runEdit(const Invocation& call)
{
    const DialogCall dialog = dialogCall(call);
    const Plan plan = planOf(call);
    const SettingsFiles files(call.directory);
    const KvMvcSettings before = plan.source.isEmpty()
                                     ? Encoder(call.directory).defaults(plan.preset)
                                     : files.read(plan.source);
    KvMvcSettings after = before;
    int32_t result = 0;
    QString reason;
    {
        const FatalMessages noDisplay;
        const ModuleTrace trace;
        const Library module(call.directory, {KV_MVC_GUI_LIBRARY});
        result = showDialog(module, dialog, after);
        reason = ModuleTrace::reason();
    }
    if (result == KV_MVC_GUI_REJECTED) {
        return {ExitNo, {}};
    }
    if (result != KV_MVC_GUI_ACCEPTED) {
        throw Failure(QStringLiteral("the dialog could not be opened (result %1)").arg(result) +
                      (reason.isEmpty() ? QString() : QStringLiteral(": ") + reason));
    }
    if (!plan.target.isEmpty()) {
        save(files, after, plan.target);
    }
    return {ExitYes, differencesText(before, after).toUtf8()};
}
