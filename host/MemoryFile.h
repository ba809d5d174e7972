#pragma once

/// @return A new file that only this process has and no folder lists, open for reading and writing
///         and gone when it is closed; -1 where the system has none.
int openMemoryFile();
