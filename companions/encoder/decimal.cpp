#include "decimal.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kv::encoder
{

namespace
{

/// A number of thousandths, millionths, ...; zeros at the end are left out down to two decimals.
Decimal decimal(std::int64_t units, int digits, double number)
{
    std::int64_t one = 1;
    for (int i = 0; i < digits; ++i) {
        one *= 10;
    }
    std::int64_t fraction = units % one;
    for (; digits > 2 && fraction % 10 == 0; --digits) {
        fraction /= 10;
    }
    const std::int64_t whole = std::min<std::int64_t>(units / one, std::numeric_limits<int>::max());
    return {static_cast<int>(whole), digits, static_cast<int>(fraction), number};
}

/// Beyond what a message can print, the highest number that it can.
Decimal rounded(double number, int digits)
{
    const double highest = std::numeric_limits<int>::max();
    return decimal(std::llround(std::clamp(number, 0.0, highest) * std::pow(10, digits)), digits,
                   number);
}

} // namespace

Decimal millions(std::int64_t number)
{
    return decimal(std::max<std::int64_t>(number, 0), 6, static_cast<double>(number));
}

Decimal frameRateText(double rate)
{
    // As near to it as the list takes a rate for it.
    constexpr double film = 24000.0 / 1001;
    constexpr double tolerance = 0.0001;
    if (std::fabs(rate - film) < tolerance) {
        return {23, 2, 98, rate};
    }
    const Decimal text = rounded(rate, 3);
    const bool isMistakable = text.whole == 23 && text.digits == 2 && text.fraction == 98;
    return isMistakable ? Decimal{23, 3, 980, rate} : text;
}

Decimal seconds(double time)
{
    return rounded(time, 3);
}

Decimal factor(double times)
{
    return rounded(times, 3);
}

} // namespace kv::encoder
