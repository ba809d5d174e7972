// Stands in for the fuzzer's own program: runs a target over its corpus, over every beginning of
// each file, and over changed copies of it, the same ones each time.
//
// Usage: TARGET FOLDER
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size);

namespace
{

constexpr std::size_t mostBeginnings = 500;
constexpr int changedCopies = 500;
constexpr int mostChanges = 8;

using Input = std::vector<uint8_t>;

void run(const Input& input, std::size_t size)
{
    const Input exact(input.begin(), input.begin() + static_cast<std::ptrdiff_t>(size));
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

void replay(const Input& input, std::mt19937& random)
{
    run(input, input.size());
    for (std::size_t size = 0; size < std::min(input.size(), mostBeginnings); ++size) {
        run(input, size);
    }
    for (int copy = 0; copy < changedCopies && !input.empty(); ++copy) {
        Input changed = input;
        for (int change = 0; change <= copy % mostChanges; ++change) {
            changed[random() % changed.size()] = static_cast<uint8_t>(random());
        }
        run(changed, changed.size());
    }
}

} // namespace

int main(int count, char** arguments)
{
    std::mt19937 random(1);
    int files = 0;
    std::error_code error;
    for (const auto& entry :
         std::filesystem::directory_iterator(count == 2 ? arguments[1] : "", error)) {
        std::ifstream file(entry.path(), std::ios::binary);
        replay(Input(std::istreambuf_iterator<char>(file), {}), random);
        ++files;
    }
    std::printf("%d files\n", files);
    return files > 0 ? 0 : 1;
}
