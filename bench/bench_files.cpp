// Settings files read and written, each beside a floor: the bytes and lines by themselves.

#include "Counting.h"

#include <kv_config_gui_mvc/companion_library.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace
{

struct Files {
    KvMvcReadSettings read;
    KvMvcWriteSettings write;
    std::filesystem::path folder;

    [[nodiscard]] std::string path(const std::string& name) const
    {
        return (folder / name).string();
    }
};

[[noreturn]] void fail(const char* reason)
{
    std::fprintf(stderr, "bench_files: %s\n", reason);
    std::exit(1);
}

std::string contentOf(const std::string& file)
{
    std::string content(std::filesystem::file_size(file), '\0');
    std::ifstream stream(file, std::ios::binary);
    if (!stream.read(content.data(), std::ssize(content))) {
        fail("cannot read a file");
    }
    return content;
}

void setContent(const std::string& file, std::string_view content)
{
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    stream.close();
    if (!stream) {
        fail("cannot write a file");
    }
}

/// Puts lines behind those of the last section: of comments, and every fourth of a byte.
std::string grownTo(std::string text, int lines)
{
    constexpr int firstFreeByte = 5504;
    for (auto at = int(std::count(text.begin(), text.end(), '\n')), byte = firstFreeByte;
         at < lines; ++at) {
        text +=
            at % 4 == 0 ? "bytes " + std::to_string(byte++) + " = 01\n" : "# a line of a comment\n";
    }
    return text;
}

/// The floor of reading: the file's bytes, and where its lines begin.
void readLines(const std::string& file)
{
    [[maybe_unused]] static volatile std::size_t count;
    const std::string text = contentOf(file);
    std::vector<std::string_view> lines;
    for (std::string_view rest = text; !rest.empty();) {
        const auto end = rest.find('\n');
        lines.push_back(rest.substr(0, end));
        rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
    }
    count = lines.size();
}

/// The floor of writing: a file's lines put together, and saved so that a crash leaves the old
/// file.
void writeLines(const std::vector<std::string>& lines, const std::string& file)
{
    std::string text;
    for (const std::string& line : lines) {
        text.append(line).append("\n");
    }
    const std::string temporary = file + ".new";
    const int descriptor =
        ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    const bool isWritten = ::write(descriptor, text.data(), text.size()) == ssize_t(text.size()) &&
                           ::fsync(descriptor) == 0;
    ::close(descriptor);
    if (!isWritten || std::rename(temporary.c_str(), file.c_str()) != 0) {
        fail("cannot write a file");
    }
}

std::vector<std::string> linesOf(const std::string& file)
{
    std::ifstream stream(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

void check(int32_t result)
{
    if (result != 0) {
        fail("the library refuses a file");
    }
}

std::vector<CountedRow> rowsOf(const Files& files, KvMvcSettings& settings)
{
    const std::string written = files.path("written.cfg");
    const std::string floor = files.path("floor.cfg");
    check(files.write(&settings, written.c_str()));
    std::vector<CountedRow> rows;
    const auto addReading = [&](const char* name, const std::string& content) {
        const std::string file = files.path(std::string(name) + ".cfg");
        setContent(file, content);
        const auto read = [&files, &settings, file] { check(files.read(&settings, file.c_str())); };
        rows.push_back({name, read, [file] { readLines(file); }, 10});
    };
    const std::string usual = contentOf(written);
    addReading("read a file of 2 lines", "[record]\n[view 0]\n");
    addReading("read a file as it is written", usual);
    addReading("read a file of 1,000 lines", grownTo(usual, 1000));
    addReading("read a file of 10,000 lines", grownTo(usual, 10'000));
    const auto write = [&files, copy = settings, written]() mutable {
        check(files.write(&copy, written.c_str()));
    };
    const auto writeFloor = [lines = linesOf(written), floor] { writeLines(lines, floor); };
    rows.push_back({"write a file", write, writeFloor, 10});
    return rows;
}

template <typename Function>
Function functionOf(const KvMvcLibrary& library, const char* name)
{
    const KvMvcFunction function = kvMvcFindFunction(&library, name);
    if (function == nullptr) {
        fail(name);
    }
    return reinterpret_cast<Function>(function);
}

KvMvcLibrary open(const char* folder, const char* name)
{
    const char* const names[] = {name, nullptr};
    KvMvcLibrary library;
    if (!kvMvcOpenLibrary(&library, folder, names, 0)) {
        fail(library.reason);
    }
    return library;
}

} // namespace

/// bench_files LIBRARIES: the folder of what is built.
int main(int argc, char* argv[])
{
    const char* const libraries = argc > 1 ? argv[1] : ".";
    KvMvcLibrary encoder = open(libraries, "kv_mvcenc");
    KvMvcLibrary settingsIo = open(libraries, KV_MVC_SETTINGS_IO_LIBRARY);
    const auto getApi = functionOf<KvMvcSettingsIoGetApi>(settingsIo, KV_MVC_SETTINGS_IO_GET_API);
    std::string folder = (std::filesystem::temp_directory_path() / "bench_files-XXXXXX").string();
    if (::mkdtemp(folder.data()) == nullptr) {
        fail("no temporary folder");
    }
    const Files files = {reinterpret_cast<KvMvcReadSettings>(getApi(KV_MVC_SETTINGS_IO_READER)),
                         reinterpret_cast<KvMvcWriteSettings>(getApi(KV_MVC_SETTINGS_IO_WRITER)),
                         folder};
    KvMvcSettings settings = {};
    functionOf<KvMvcDefaults>(encoder, KV_MVC_ENCODER_DEFAULTS)(&settings, 0, KV_MVC_STEREO_HIGH,
                                                                0);
    measure(rowsOf(files, settings));
    std::filesystem::remove_all(files.folder);
    kvMvcCloseLibrary(&settingsIo);
    kvMvcCloseLibrary(&encoder);
}
