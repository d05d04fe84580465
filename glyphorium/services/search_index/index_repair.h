// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "glyphorium/services/search_index/lock_wait.h"
#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {

/// Whether a damaged file may be the cause of the error. The statements are known to be right, so errors
/// about the content may show damage, also the general one ("no such table").
bool mayBeDamage(const SqliteError& error);

/// Examines the index file under the locks. Where it is damaged, or no index at all, it gets another name
/// ("index.sqlite.damaged"), and a new index takes its place with the items that can still be read, which a
/// diagnostic line says. A whole file stays as it is: another process has repaired it meanwhile. Throws
/// SqliteError for a damaged file behind a symbolic link, which may be somebody else's, and leaves it alone.
void repairIndex(const std::filesystem::path& file, LockWait& wait);

/// Deletes the index file, where nothing can be written any more because the disk is full. Throws SqliteError
/// for a file that is no index.
void deleteIndex(const std::filesystem::path& file, LockWait& wait);

}  // namespace glyph
