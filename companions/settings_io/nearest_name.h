// The name that somebody has probably meant.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kv
{

/// Case does not matter, nor whether words are joined by '-', '_' or a blank.
/// @return The nearest of the names; empty when none is near.
std::string_view nearestName(std::string_view text, std::span<const std::string_view> names);

/// "; did you mean 'NAME'?", or nothing when there is no name.
std::string didYouMean(std::string_view name);

} // namespace kv
