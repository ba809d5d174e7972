// The index files of DVD titles, which hold no pictures themselves.
#pragma once

#include <string>

namespace kv
{

/// The first video file of the title that an index file describes, which lies beside it; any other
/// file's path as it is.
std::string videoOfDvdTitle(const std::string& path);

} // namespace kv
