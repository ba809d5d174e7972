// The floor of a command of the host program: a core application that opens the two companions.

#include <QCoreApplication>

#include <kv_config_gui_mvc/companion_library.h>

/// core_floor LIBRARIES
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const char* const settingsIoNames[] = {KV_MVC_SETTINGS_IO_LIBRARY, nullptr};
    const char* const encoderNames[] = {KV_MVC_ENCODER_LIBRARIES, nullptr};
    KvMvcLibrary settingsIo;
    KvMvcLibrary encoder;
    const char* const folder = argc > 1 ? argv[1] : ".";
    const bool isOpen = kvMvcOpenLibrary(&settingsIo, folder, settingsIoNames, 0) != 0 &&
                        kvMvcOpenLibrary(&encoder, folder, encoderNames, 0) != 0;
    kvMvcCloseLibrary(&encoder);
    kvMvcCloseLibrary(&settingsIo);
    return isOpen ? 0 : 1;
}
