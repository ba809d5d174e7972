// The file that a save writes before it takes the place of the former one.
#pragma once

#include <filesystem>
#include <string>

namespace kv
{

/// What the names of temporary files of a file begin and end with. They lie beside it; a save that
/// was killed leaves one, which the next save of the same file finds by its name.
std::string temporaryBeginning(const std::filesystem::path& file);
inline constexpr char temporaryEnd[] = ".tmp";

#if !defined(_WIN32)

/// A file of a name of its own beside another one. It is removed unless it becomes that file.
class TemporaryFile
{
public:
    /// Creates it; the umask and the folder's default rules apply. The system's error stands in
    /// errno where that fails.
    explicit TemporaryFile(const std::filesystem::path& file);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    /// Takes the other file's place. @return Whether it did; else the system's error is in errno.
    bool replace(const std::filesystem::path& file);

private:
    std::string m_name;
    int m_descriptor = -1;
};

/// Removes what killed saves of the file have left beside it; not what another save is writing.
void removeAbandoned(const std::filesystem::path& file);

#endif

} // namespace kv
