#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What the host program asks of the system that the toolkit has not got, or would do otherwise.
namespace host_system
{

/// Loads a library as a host does that knows its path. @param error The system's word for why not.
void* openLibrary(const std::filesystem::path& file, std::string& error);
/// Null when the library does not have it.
void* findFunction(void* library, const char* name);
void closeLibrary(void* library);

/// Whether the system's loader finds a library by a name without a folder, "kv_mvcenc.dll".
bool findsLibrary(const std::string& name);
/// Windows: SetDllDirectoryW(). Elsewhere nothing.
void setLibraryFolder(const std::string& folder);

/// The names, without folders, of the files that are mapped into this process as programs,
/// libraries or data; each as often as the system lists it.
std::vector<std::string> mappedFiles();

/// What window managers know a window of X11 by: instance and class. Empty for other windows.
std::string classOf(unsigned long window);

/// What the process has of the system: "resident=KIB allocated=BYTES descriptors=N threads=N
/// windows=N", windows being those of the whole display, or 0. Free memory is not given back
/// before: a small block that stays would then count as a page. Empty where nothing tells.
std::string usage();

/// Shows a window of the window system's own, without the toolkit, and gives it the focus. It stays
/// until the process ends. @return Its handle; null where a host makes none in its own process.
void* openForeignWindow();
/// Which of "enabled", "active" and "focused" it is.
std::string stateOf(void* foreignWindow);

} // namespace host_system
