// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/index_repair.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/index_store.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

namespace fs = std::filesystem;

// The suffixes of the files that belong to a database, in the order in which they are renamed. The database
// itself comes last: if a process is killed between two renamings, the damaged database is still in place,
// and the next process finds the damage again.
constexpr const char* suffixes[] = {"-journal", "-wal", "-shm", ""};

fs::path withSuffix(fs::path file, std::string_view suffix) {
  return file += suffix;
}

[[noreturn]] void failBySystem(const fs::path& file) {
  throw SqliteError(SQLITE_IOERR, file.string() + ": " + std::generic_category().message(errno));
}

// Throws if the path is a symbolic link, because the link's target may belong to another program.
void refuseLink(const fs::path& file, std::string_view why) {
  if (!fs::is_symlink(fs::symlink_status(file))) return;
  throw SqliteError(SQLITE_CANTOPEN, std::string(why) + "; it was not changed, because " + file.string() +
                                         " is a symbolic link");
}

// Returns a description of the damage, or an empty text if the file is intact. Leaves a transaction open,
// unless the damage prevents this. The transaction keeps other processes from writing until the file has
// been renamed. When they begin their own transactions, they notice that the file was renamed.
std::string damageOf(Database& database) try {
  database.execute("BEGIN IMMEDIATE");
  if (!isIndex(database)) return {};
  Statement check(database, "PRAGMA integrity_check(1)");
  check.step();
  if (check.text(0) != "ok") return check.text(0);
  Statement lost(database, "SELECT 1 FROM item LEFT JOIN token ON token.rowid = item.id WHERE tok IS NULL");
  return lost.step() ? "items lack their tokens" : std::string();
} catch (const SqliteError& error) {
  if (!mayBeDamage(error)) throw;
  return error.what();
}

// Returns the items that can be read: forwards from the first item to the damage, and backwards from the last
// item to the damage.
std::vector<SearchableItem> readableItems(const Database& database) {
  std::map<std::int64_t, std::optional<SearchableItem>> rows;
  for (const char* const select :
       {"SELECT " GLYPHORIUM_ITEM_COLUMNS ", name, id FROM item ORDER BY id",
        "SELECT " GLYPHORIUM_ITEM_COLUMNS ", name, id FROM item ORDER BY id DESC"}) {
    try {
      Statement row(database, select);
      while (row.step()) {
        const auto [place, isNew] = rows.try_emplace(row.integer(9));
        if (!isNew) break;  // damaged pages may form an endless loop
        SearchableItem item = itemOf(row);
        const bool intact = packTexts(item.keywords) == row.text(6) && lowercased(item.name()) == row.text(8);
        if (intact) place->second = std::move(item);
      }
    } catch (const SqliteError&) {  // the next row is damaged, or the table is missing
    }
  }
  std::vector<SearchableItem> items;
  for (auto& [id, item] : rows) {
    if (item) items.push_back(*std::move(item));
  }
  return items;
}

fs::path putAside(const fs::path& file) {
  auto aside = withSuffix(file, ".damaged");
  for (int number = 2; fs::exists(fs::symlink_status(aside)); ++number) {
    aside = withSuffix(file, ".damaged" + std::to_string(number));
  }
  for (const char* const suffix : suffixes) {
    const auto from = withSuffix(file, suffix), to = withSuffix(aside, suffix);
    if (rename(from.c_str(), to.c_str()) != 0 && errno != ENOENT) failBySystem(from);
  }
  return aside;
}

std::string repaired(const fs::path& file, LockWait& wait) {
  const DirectoryLock lock(file, wait);
  if (!regularFile(file)) return {};
  std::string line;
  std::vector<SearchableItem> kept;
  {
    Database database = openIndexFile(file, SQLITE_OPEN_READWRITE);
    sqlite3_busy_handler(database.handle(), LockWait::whileBusy, &wait);
    sqlite3_db_config(database.handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    const std::string damage = damageOf(database);
    if (damage.empty()) return {};
    refuseLink(file, damage);
    kept = readableItems(database);
    line = "Search index put aside as " + putAside(file).string() + " (" + damage + "); ";
  }
  try {
    IndexStore store(file, wait, lock);
    store.begin(kept.size());
    store.add(kept);
    store.commit();
    return line + std::to_string(kept.size()) + " characters recovered";
  } catch (const SqliteError& error) {
    return line + "no characters recovered: " + error.what();
  }
}

}  // namespace

bool mayBeDamage(const SqliteError& error) {
  return error.damage() || error.code() == SQLITE_ERROR || error.code() == SQLITE_CONSTRAINT ||
         error.code() == SQLITE_MISMATCH;
}

void repairIndex(const fs::path& file, LockWait& wait) {
  // The line is printed after the lock is released, because the diagnostics sink is the host's code.
  if (const std::string line = repaired(file, wait); !line.empty()) printProblem(line);
}

void deleteIndex(const fs::path& file, LockWait& wait) {
  const DirectoryLock lock(file, wait);
  if (!regularFile(file)) return;
  refuseLink(file, "the disk is full");
  if (!beginsAsIndex(file)) throw SqliteError(SQLITE_NOTADB, file.string() + " is not a search index");
  for (const char* const suffix : suffixes) {
    const auto each = withSuffix(file, suffix);
    if (unlink(each.c_str()) != 0 && errno != ENOENT) failBySystem(each);
  }
}

}  // namespace glyph
