#include "HostSystem.h"

#include <dlfcn.h>
#include <malloc.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

namespace
{

long entriesOf(const char* folder)
{
    return std::distance(std::filesystem::directory_iterator(folder),
                         std::filesystem::directory_iterator());
}

long windowsBelow(xcb_connection_t* server, xcb_window_t window)
{
    xcb_query_tree_reply_t* const tree =
        xcb_query_tree_reply(server, xcb_query_tree(server, window), nullptr);
    long count = 1;
    for (int i = 0; tree && i < xcb_query_tree_children_length(tree); ++i) {
        count += windowsBelow(server, xcb_query_tree_children(tree)[i]);
    }
    std::free(tree);
    return count;
}

/// A window manager takes its time to clear up behind a window.
long windowsOfTheDisplay()
{
    xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
    long count = 0;
    if (!xcb_connection_has_error(server)) {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
        for (long before = -1; count != before; count = windowsBelow(server, root)) {
            before = count;
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
        }
    }
    xcb_disconnect(server);
    return count;
}

} // namespace

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

std::string usage()
{
    long size = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return "resident=" + std::to_string(resident * sysconf(_SC_PAGESIZE) / 1024) +
           " allocated=" + std::to_string(mallinfo2().uordblks) +
           " descriptors=" + std::to_string(entriesOf("/proc/self/fd")) +
           " threads=" + std::to_string(entriesOf("/proc/self/task")) +
           " windows=" + std::to_string(windowsOfTheDisplay());
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
