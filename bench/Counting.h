#pragma once

#include <functional>
#include <vector>

/// One row of the table: what is measured, beside a floor that is made of the same classes.
struct CountedRow {
    const char* name;
    std::function<void()> ours;
    std::function<void()> floor;
    /// How often each is done for one figure, after a first time that is not counted.
    int times = 1;
};

/// Measures each row in this process. Under callgrind each half of a row is a profile of its own,
/// by the name of the row and "ours" or "floor"; otherwise the table is printed, of times: medians
/// of interleaved pairs. KV_BENCH_ROWS names a file of the names of the rows that are wanted.
void measure(const std::vector<CountedRow>& rows);
