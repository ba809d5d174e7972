#include "HostSystem.h"

#include <dlfcn.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>

#include <fstream>

namespace host_system
{

void* openLibrary(const std::filesystem::path& file, std::string& error)
{
    void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        error = dlerror();
    }
    return library;
}

void* findFunction(void* library, const char* name)
{
    return dlsym(library, name);
}

void closeLibrary(void* library)
{
    dlclose(library);
}

bool findsLibrary(const std::string& name)
{
    void* const library = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
    return library && dlclose(library) == 0;
}

void setLibraryFolder(const std::string&) {}

std::vector<std::string> mappedFiles()
{
    std::vector<std::string> names;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        const auto slash = line.rfind('/');
        if (slash != std::string::npos) {
            names.push_back(line.substr(slash + 1));
        }
    }
    return names;
}

std::string classOf(unsigned long window)
{
    xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
    const auto cookie = xcb_get_property(server, 0, static_cast<xcb_window_t>(window),
                                         XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 64);
    xcb_get_property_reply_t* const reply = xcb_get_property_reply(server, cookie, nullptr);
    std::string text;
    if (reply) {
        text.assign(static_cast<const char*>(xcb_get_property_value(reply)),
                    static_cast<std::size_t>(xcb_get_property_value_length(reply)));
        std::free(reply);
    }
    xcb_disconnect(server);
    // Each of the two ends with a zero.
    while (!text.empty() && text.back() == '\0') {
        text.pop_back();
    }
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
}

// A test opens one itself: the ids of windows are the display's, not the process's.
void* openForeignWindow()
{
    return nullptr;
}

std::string stateOf(void*)
{
    return {};
}

} // namespace host_system
