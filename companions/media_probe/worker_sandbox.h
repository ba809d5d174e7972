// What the worker process gives up before it meets the file.
#pragma once

namespace kv
{

/// Leaves the process nothing but to read and write what it has open, standard input and output, to
/// use memory, and to end: no other file, no network, no other process or program. Calls of the
/// system beyond that fail. For good.
/// @return 0, or the error number of a system that refuses; that of a build without the library
/// for it is ENOSYS.
int enterSandbox();

} // namespace kv
