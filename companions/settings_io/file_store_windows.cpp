#include "file_store.h"

#include <algorithm>
#include <random>
#include <system_error>
#include <utility>
#include <vector>

#include <windows.h>

namespace kv
{
namespace
{

class Handle
{
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() { close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE get() const { return m_handle; }
    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    bool close()
    {
        const HANDLE handle = std::exchange(m_handle, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || CloseHandle(handle);
    }

private:
    HANDLE m_handle;
};

std::string systemReason()
{
    return std::system_category().message(static_cast<int>(GetLastError()));
}

Handle openExisting(const std::filesystem::path& file, DWORD access)
{
    return Handle(CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

/** The file behind symbolic links; the name itself where there is none. */
std::filesystem::path linkTarget(const std::filesystem::path& file)
{
    const Handle handle = openExisting(file, 0);
    std::vector<wchar_t> name(32 * 1024);
    const DWORD length = handle.isOpen()
                             ? GetFinalPathNameByHandleW(handle.get(), name.data(),
                                                         static_cast<DWORD>(name.size()), 0)
                             : 0;
    return length > 0 && length < name.size() ? std::filesystem::path(name.data()) : file;
}

bool writeAll(HANDLE handle, std::string_view content)
{
    DWORD written = 0;
    return WriteFile(handle, content.data(), static_cast<DWORD>(content.size()), &written,
                     nullptr) &&
           written == content.size();
}

std::string renameOver(const std::filesystem::path& from, const std::filesystem::path& to)
{
    const bool exists = GetFileAttributesW(to.c_str()) != INVALID_FILE_ATTRIBUTES;
    // The replacement keeps attributes and access lists of the former file.
    const BOOL done = exists ? ReplaceFileW(to.c_str(), from.c_str(), nullptr, 0, nullptr, nullptr)
                             : MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH);
    return done ? "" : systemReason();
}

} // namespace

std::string readFile(const std::filesystem::path& file, std::size_t largest, std::string& content)
{
    const Handle handle = openExisting(file, GENERIC_READ);
    if (!handle.isOpen())
        return systemReason();
    if (GetFileType(handle.get()) != FILE_TYPE_DISK)
        return "not a regular file";
    content.clear();
    std::vector<char> block(64 * 1024);
    while (content.size() <= largest) {
        DWORD count = 0;
        if (!ReadFile(handle.get(), block.data(), static_cast<DWORD>(block.size()), &count,
                      nullptr))
            return systemReason();
        if (count == 0)
            return {};
        content.append(block.data(), count);
    }
    return "too large";
}

std::string replaceFile(const std::filesystem::path& file, std::string_view content)
{
    const std::filesystem::path target = linkTarget(file);
    const std::filesystem::path temporary =
        target.parent_path() / (".settings-" + std::to_string(std::random_device()()) + ".tmp");
    Handle handle(CreateFileW(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle.isOpen())
        return "no file can be made in its folder: " + systemReason();
    std::string reason;
    if (!writeAll(handle.get(), content) || !FlushFileBuffers(handle.get()) || !handle.close())
        reason = systemReason();
    handle.close();
    if (reason.empty())
        reason = renameOver(temporary, target);
    if (!reason.empty())
        DeleteFileW(temporary.c_str());
    return reason;
}

} // namespace kv
