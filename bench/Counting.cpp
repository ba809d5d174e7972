#include "Counting.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define RUNNING_ON_VALGRIND 0
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS_AT(name) static_cast<void>(name)
#endif

namespace
{

/// Microseconds of one time.
double timeOf(const std::function<void()>& what, int times)
{
    const auto before = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i) {
        what();
    }
    const std::chrono::duration<double, std::micro> taken =
        std::chrono::steady_clock::now() - before;
    return taken.count() / times;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void count(const std::string& name, const std::function<void()>& what, int times)
{
    what();
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < times; ++i) {
        what();
    }
    const std::string trigger = name + '|' + std::to_string(times);
    CALLGRIND_DUMP_STATS_AT(trigger.c_str());
}

void printTimes(const CountedRow& row)
{
    constexpr int pairs = 15;
    std::vector<double> ours;
    std::vector<double> floor;
    std::vector<double> ratios;
    row.ours();
    row.floor();
    for (int i = 0; i < pairs; ++i) {
        ours.push_back(timeOf(row.ours, row.times));
        floor.push_back(timeOf(row.floor, row.times));
        ratios.push_back(ours.back() / floor.back());
    }
    std::printf("%-44s %11.0f us %11.0f us %7.2f\n", row.name, median(ours), median(floor),
                median(ratios));
    std::fflush(stdout);
}

/// All, or those that the file names of which the environment tells.
bool isWanted(const std::string& name)
{
    const char* const path = std::getenv("KV_BENCH_ROWS");
    if (!path) {
        return true;
    }
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line == name) {
            return true;
        }
    }
    return false;
}

} // namespace

void measure(const std::vector<CountedRow>& rows)
{
    for (const CountedRow& row : rows) {
        if (!isWanted(row.name)) {
            continue;
        }
        if (RUNNING_ON_VALGRIND == 0) {
            printTimes(row);
        } else {
            count(row.name + std::string("|ours"), row.ours, row.times);
            count(row.name + std::string("|floor"), row.floor, row.times);
        }
    }
}
