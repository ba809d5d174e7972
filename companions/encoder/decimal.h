// Numbers with decimals as messages print them.
//
// Where the decimal sign stands in a format, a translation can replace it, and the locale of the
// process has no say. So such a number is printed by "%d.%0*d".
#pragma once

#include <cstdint>

namespace kv::encoder
{

/// The three arguments of "%d.%0*d", in this order.
struct Decimal {
    int whole;
    int digits; ///< decimals that are printed
    int fraction;
    double number = 0; ///< what is printed, in its own unit: bits, not millions of them
};

/// Bits, or bits per second, as millions of them: exact, with two decimals or more.
Decimal millions(std::int64_t number);

/// Frames per second as the dialog's list spells them, 23.98 for 24000/1001; others with two
/// decimals, or with three where they differ: 48.00, 23.981, and 23.980 for what is not 24000/1001.
Decimal frameRateText(double rate);

/// Seconds, likewise: 0.50, 0.003.
Decimal seconds(double time);

/// How many times as much, likewise: 1.25.
Decimal factor(double times);

} // namespace kv::encoder
