// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "glyphorium/services/search_index/index_locks.h"
#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {

/// Whether a damaged file may be the cause of the error. The library's SQL statements are known to be
/// correct. So even SQLite's general error, such as "no such table", may be a sign of damage.
bool mayBeDamage(const SqliteError& error);

/// Locks and checks the index file. If the file is damaged or is not an index, renames it (for example to
/// "index.sqlite.damaged"), creates a new index with the items that can still be read, and prints a
/// diagnostic line. Does nothing if the file is intact, because another process may have repaired it
/// already. Throws SqliteError, without changing the file, if a later version of the library has written
/// it, or if it is damaged and its path is a symbolic link: such a file may belong to another program.
void repairIndex(const std::filesystem::path& file, LockWait& wait);

/// Deletes the index file. This is needed when the disk is too full for a transaction that deletes the
/// items. Throws SqliteError, without deleting the file, if it is not an index or if its path is a symbolic
/// link.
void deleteIndex(const std::filesystem::path& file, LockWait& wait);

}  // namespace glyph
