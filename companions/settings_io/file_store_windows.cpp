#include "file_store.h"
#include "system_windows.h"
#include "temporary_file.h"

#include <algorithm>
#include <array>
#include <random>
#include <utility>
#include <vector>

namespace kv
{
namespace
{

constexpr char notRegular[] = "not a regular file";
constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD keptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                 FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

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

/// Removes the temporary file unless it has become the file.
class TemporaryName
{
public:
    explicit TemporaryName(std::wstring name) : m_name(std::move(name)) {}
    ~TemporaryName()
    {
        if (!m_name.empty()) {
            DeleteFileW(m_name.c_str());
        }
    }
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;

    const wchar_t* get() const { return m_name.c_str(); }
    void release() { m_name.clear(); }

private:
    std::wstring m_name;
};

bool isDevice(const std::wstring& name)
{
    return name.starts_with(devicePrefix);
}

bool hasAttributes(DWORD attributes, DWORD wanted)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & wanted) == wanted;
}

/// Pipes and consoles have another type; a whole volume has none of this information.
bool isRegular(HANDLE handle)
{
    BY_HANDLE_FILE_INFORMATION status = {};
    return GetFileType(handle) == FILE_TYPE_DISK && GetFileInformationByHandle(handle, &status) &&
           !hasAttributes(status.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY);
}

/// Other reparse points, as of files that are kept elsewhere, are the file itself.
bool isLink(const std::wstring& name)
{
    if (!hasAttributes(GetFileAttributesW(name.c_str()), FILE_ATTRIBUTE_REPARSE_POINT)) {
        return false;
    }
    const Handle handle(
        CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING,
                    FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    FILE_ATTRIBUTE_TAG_INFO info = {};
    return handle.isOpen() &&
           GetFileInformationByHandleEx(handle.get(), FileAttributeTagInfo, &info, sizeof info) &&
           info.ReparseTag == IO_REPARSE_TAG_SYMLINK;
}

/// @return What the chain of links ends in; empty, with the system's error, where it ends in none.
std::wstring linkTarget(const std::wstring& link)
{
    const Handle handle(CreateFileW(link.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    std::wstring name(32 * 1024, L'\0');
    const DWORD length = handle.isOpen()
                             ? GetFinalPathNameByHandleW(handle.get(), name.data(),
                                                         static_cast<DWORD>(name.size()), 0)
                             : 0;
    name.resize(length < name.size() ? length : 0);
    return name;
}

std::wstring folderOf(const std::wstring& file)
{
    return file.substr(0, file.find_last_of(L'\\') + 1);
}

/// What the temporary files of a file are called, with the folder, up to their number.
std::wstring temporaryStart(const std::wstring& file)
{
    const std::string beginning = temporaryBeginning(file);
    return folderOf(file).append(beginning.begin(), beginning.end());
}

std::wstring temporarySuffix()
{
    return {std::begin(temporaryEnd), std::end(temporaryEnd) - 1};
}

/// Removes what killed saves of the file have left beside it; what another save is writing cannot
/// be removed.
void removeAbandoned(const std::wstring& file)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search =
        FindFirstFileW((temporaryStart(file) + L'*' + temporarySuffix()).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        if (!hasAttributes(found.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY)) {
            DeleteFileW((folderOf(file) + found.cFileName).c_str());
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

/// Creates a file of a name of its own.
HANDLE createBeside(const std::wstring& file, DWORD attributes, std::wstring& name)
{
    constexpr int attempts = 100;
    std::random_device random;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        name = temporaryStart(file) + std::to_wstring(random()) + temporarySuffix();
        const HANDLE handle =
            CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, attributes, nullptr);
        if (handle != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) {
            return handle;
        }
    }
    return INVALID_HANDLE_VALUE;
}

bool writeAll(HANDLE handle, std::string_view content)
{
    DWORD written = 0;
    return WriteFile(handle, content.data(), static_cast<DWORD>(content.size()), &written,
                     nullptr) &&
           written == content.size();
}

/// What somebody else who has the file open causes.
bool isInUse(DWORD error)
{
    constexpr std::array<DWORD, 3> errors = {ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION,
                                             ERROR_UNABLE_TO_REMOVE_REPLACED};
    return std::ranges::find(errors, error) != errors.end();
}

/// Tries again for half a second: scanners and indexers open every new file for a moment.
template <typename Rename>
DWORD renamePatiently(Rename rename)
{
    constexpr int attempts = 10;
    constexpr DWORD pause = 50; // milliseconds
    for (int attempt = 1;; ++attempt) {
        if (rename()) {
            return ERROR_SUCCESS;
        }
        const DWORD error = GetLastError();
        if (!isInUse(error) || attempt == attempts) {
            return error;
        }
        Sleep(pause);
    }
}

DWORD move(const wchar_t* from, const wchar_t* to)
{
    constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return renamePatiently([=] { return MoveFileExW(from, to, flags); });
}

/// Somebody who has it open may not allow that; ReplaceFileW would say so in riddles.
bool mayBeReplaced(const wchar_t* file)
{
    return Handle(CreateFileW(file, GENERIC_READ | DELETE, shareAll, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr))
        .isOpen();
}

/// Access list, creation time and named streams of the former file stay, as far as they may.
DWORD replace(const wchar_t* from, const wchar_t* to)
{
    const DWORD error = renamePatiently([=] {
        return mayBeReplaced(to) &&
               ReplaceFileW(to, from, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr);
    });
    // Not every file system can do this, and it may stop with the former file's name gone.
    return error == ERROR_SUCCESS || isInUse(error) ? error : move(from, to);
}

/// @param former The attributes of the file to be replaced; 0 for a new one.
std::string replaceRegular(const std::wstring& file, DWORD former, std::string_view content)
{
    std::wstring name;
    Handle handle(createBeside(file, former & keptAttributes, name));
    if (!handle.isOpen()) {
        return "no file can be made in its folder: " + systemReason();
    }
    TemporaryName temporary(name);
    const bool isWritten = writeAll(handle.get(), content) && FlushFileBuffers(handle.get());
    const DWORD writeError = isWritten ? ERROR_SUCCESS : GetLastError();
    const bool isClosed = handle.close(); // an open file could not be removed
    if (!isWritten || !isClosed) {
        return systemReason(isWritten ? GetLastError() : writeError);
    }
    const DWORD error =
        former != 0 ? replace(temporary.get(), file.c_str()) : move(temporary.get(), file.c_str());
    if (error == ERROR_SUCCESS) {
        temporary.release();
        removeAbandoned(file);
        return {};
    }
    if (former == 0 || GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return systemReason(error);
    }
    temporary.release(); // all that there is now
    return systemReason(error) + "; the settings are in " + displayName(name);
}

} // namespace

bool isThere(const std::filesystem::path& file)
{
    return GetFileAttributesW(fullName(file).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool isFolder(const std::filesystem::path& file)
{
    return hasAttributes(GetFileAttributesW(fullName(file).c_str()), FILE_ATTRIBUTE_DIRECTORY);
}

std::string readFile(const std::filesystem::path& file, std::size_t largest, std::string& content)
{
    const std::wstring name = fullName(file);
    if (isDevice(name)) {
        return notRegular;
    }
    const Handle handle(CreateFileW(name.c_str(), GENERIC_READ, shareAll, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle.isOpen()) {
        const DWORD error = GetLastError();
        return isFolder(file) ? notRegular : systemReason(error);
    }
    if (!isRegular(handle.get())) {
        return notRegular;
    }
    content.clear();
    std::vector<char> block(64 * 1024);
    while (content.size() <= largest) {
        DWORD count = 0;
        if (!ReadFile(handle.get(), block.data(), static_cast<DWORD>(block.size()), &count,
                      nullptr)) {
            return systemReason();
        }
        if (count == 0) {
            return {};
        }
        content.append(block.data(), count);
    }
    return "too large";
}

std::string replaceFile(const std::filesystem::path& file, std::string_view content)
{
    std::wstring name = fullName(file);
    // In some versions "C:\x\nul.cfg" is one: what is saved there would be lost without a word.
    if (isDevice(name)) {
        return "the name is that of a device";
    }
    if (isLink(name)) {
        name = linkTarget(name);
        if (name.empty()) {
            return "the link leads to no file: " + systemReason();
        }
    }
    const DWORD former = GetFileAttributesW(name.c_str());
    const DWORD error = former == INVALID_FILE_ATTRIBUTES ? GetLastError() : ERROR_SUCCESS;
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) {
        return replaceRegular(name, 0, content);
    }
    if (error != ERROR_SUCCESS) {
        return systemReason(error);
    }
    if (hasAttributes(former, FILE_ATTRIBUTE_DIRECTORY)) {
        return "a folder has this name";
    }
    if (hasAttributes(former, FILE_ATTRIBUTE_READONLY)) {
        return systemReason(ERROR_ACCESS_DENIED);
    }
    return replaceRegular(name, former, content);
}

} // namespace kv
