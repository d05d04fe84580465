// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/index_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <fstream>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "glyphorium/services/application/application.h"
#include "glyphorium/services/application/private_directory.h"
#include "glyphorium/services/search_index/index_tokens.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// `symbol` and `name` (in lower case) are the two parts of the title. Search results are ordered by these
// two columns. `uid` alone must be unique, because items are replaced and deleted by their identifier
// alone.
constexpr const char* itemTable =
    "CREATE TABLE item(id INTEGER PRIMARY KEY, uid TEXT NOT NULL UNIQUE, domain TEXT NOT NULL,"
    " content_type TEXT NOT NULL, title TEXT NOT NULL, comment TEXT, genre TEXT NOT NULL,"
    " keywords TEXT NOT NULL, symbol TEXT, name TEXT NOT NULL)";

// For each item its indexTokens().
constexpr const char* tokenTable = "CREATE TABLE token(id INTEGER PRIMARY KEY, tok TEXT NOT NULL)";

constexpr const char* setVersion = "PRAGMA user_version=2";
constexpr std::int64_t indexVersion = 2;
// In this format, `token` was a full-text table. Its rows read alike, so that readers need not know.
constexpr std::int64_t fullTextVersion = 1;

// From this number of items on, a transaction may be so large that it fills the disk.
constexpr std::size_t manyItems = 500;

std::int64_t formatOf(const Database& database) {
  Statement version(database, "PRAGMA user_version");
  version.step();
  return version.integer(0);
}

void prepareDirectory(const std::filesystem::path& file) {
  const auto directory = file.parent_path();
  if (directory.empty() || createPrivateDirectory(directory)) return;
  throw SqliteError(SQLITE_CANTOPEN, directory.string() + ": " + std::generic_category().message(errno));
}

}  // namespace

std::optional<std::filesystem::path> defaultIndexFile() {
  auto file = applicationDataDirectory();
  if (file) *file /= "index.sqlite";
  return file;
}

std::string packTexts(const std::vector<std::string>& texts) {
  std::string packed;
  for (const std::string& text : texts) packed += std::to_string(text.size()) + ':' + text;
  return packed;
}

std::vector<std::string> unpackTexts(std::string_view packed) {
  std::vector<std::string> texts;
  while (!packed.empty()) {
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(packed.data(), packed.data() + packed.size(), length);
    packed.remove_prefix(static_cast<std::size_t>(end - packed.data()));
    if (error != std::errc() || packed.size() <= length) break;  // the file is damaged
    texts.emplace_back(packed.substr(1, length));
    packed.remove_prefix(1 + length);
  }
  return texts;
}

SearchableItem itemOf(const Statement& row) {
  SearchableItem item;
  item.uniqueIdentifier = row.text(0);
  item.domainIdentifier = row.text(1);
  item.contentType = row.text(2);
  item.title = row.text(3);
  if (!row.isNull(4)) item.comment = row.text(4);
  item.genre = row.text(5);
  item.keywords = unpackTexts(row.text(6));
  item.symbol = row.text(7);
  return item;
}

std::optional<FileIdentity> regularFile(const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode)) throw SqliteError(SQLITE_CANTOPEN, file.string() + " is not a regular file");
  return FileIdentity{status.st_dev, status.st_ino};
}

Database openIndexFile(const std::filesystem::path& file, int flags) {
  for (const char* const suffix : {"-journal", "-wal", "-shm"}) regularFile(file.string() + suffix);
  return Database(file, flags);
}

bool isIndex(const Database& database) {
  // Another process may be creating the tables at this moment. A single statement sees either all of the
  // tables or none.
  Statement look(
      database,
      "SELECT (SELECT user_version FROM pragma_user_version), (SELECT count(*) FROM sqlite_schema),"
      " (SELECT sql FROM sqlite_schema WHERE name = 'item')");
  look.step();
  const auto version = look.integer(0);
  if ((version == indexVersion || version == fullTextVersion) && look.text(2) == itemTable) return true;
  if (version == 0 && look.integer(1) == 0) return false;
  if (version > indexVersion && look.integer(1) > 0) {
    throw SqliteError(SQLITE_CANTOPEN, "it has format " + std::to_string(version) +
                                           " of a later version; this version supports only formats up to " +
                                           std::to_string(indexVersion));
  }
  throw SqliteError(SQLITE_NOTADB, "it is not a search index");
}

bool beginsAsIndex(const std::filesystem::path& file) {
  std::string page(4096, '\0');
  std::ifstream(file, std::ios::binary).read(page.data(), static_cast<std::streamsize>(page.size()));
  return page.starts_with("SQLite format 3") && page.find(itemTable) != std::string::npos;
}

IndexStore::IndexStore(std::filesystem::path file, LockWait& wait) : file_(std::move(file)), wait_(wait) {
  prepareDirectory(file_);
  open(DirectoryLock(file_, wait_));
}

IndexStore::IndexStore(std::filesystem::path file, LockWait& wait, const DirectoryLock& lock)
    : file_(std::move(file)), wait_(wait) {
  open(lock);
}

void IndexStore::open(const DirectoryLock&) {
  identity_ = regularFile(file_);
  if (!identity_) {
    // The file is created here, because other users could read a file that SQLite creates.
    const int created = ::open(file_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (created >= 0) close(created);
    identity_ = regularFile(file_);
  }
  database_ = openIndexFile(file_, SQLITE_OPEN_READWRITE);
  sqlite3_busy_handler(database_->handle(), LockWait::whileBusy, &wait_);
  const bool isNew = !isIndex(*database_);  // throws if another program owns the file
  for (;;) {
    try {
      database_->execute("PRAGMA journal_mode=WAL");
      break;
    } catch (const SqliteError& error) {
      // While SQLite switches the journal mode, it does not call the busy handler. So wait here.
      if (error.code() != SQLITE_BUSY || !wait_.pause()) throw;
    }
  }
  // With this setting, a power failure may undo the latest transactions, but it does not damage the file.
  // This is acceptable for an index.
  database_->execute("PRAGMA synchronous=NORMAL");
  if (isNew) return createTables();
  if (formatOf(*database_) == fullTextVersion) replaceFullTextTable();
}

void IndexStore::createTables() {
  begin(0);
  database_->execute(itemTable);
  database_->execute(tokenTable);
  database_->execute(setVersion);
  commit();
  // Copies the tables from the log into the file. After that, the file is an index even without the log.
  sqlite3_wal_checkpoint_v2(database_->handle(), nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
}

void IndexStore::replaceFullTextTable() {
  begin(manyItems);
  database_->execute("ALTER TABLE token RENAME TO earlier");
  database_->execute(tokenTable);
  database_->execute("INSERT INTO token SELECT rowid, tok FROM earlier");
  database_->execute("DROP TABLE earlier");
  database_->execute(setVersion);
  commit();
}

IndexStore::~IndexStore() {
  if (!unfinished_) return;
  // The pages of a failed transaction stay in the log. If the disk is full, they occupy all the space that
  // was left. After the rollback, the checkpoint truncates the log if no other process uses it.
  sqlite3_busy_handler(database_->handle(), nullptr, nullptr);
  sqlite3_exec(database_->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_wal_checkpoint_v2(database_->handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
}

void IndexStore::continueUnlessAbandoned() const {
  if (wait_.abandoned()) throw SqliteError(SQLITE_INTERRUPT, "the program is ending");
}

void IndexStore::begin(std::size_t items) {
  continueUnlessAbandoned();
  if (items >= manyItems) {
    // Copies the content of the log into the file while there is still space on the disk. Otherwise the log
    // could not be truncated after a failure.
    sqlite3_wal_checkpoint_v2(database_->handle(), nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
  }
  database_->execute("BEGIN IMMEDIATE");
  unfinished_ = true;
}

void IndexStore::commit() {
  database_->execute("COMMIT");
  unfinished_ = false;
}

void IndexStore::add(const std::vector<SearchableItem>& items) {
  std::unordered_map<std::string_view, const SearchableItem*> last;
  std::vector<std::string> identifiers;
  last.reserve(items.size());
  identifiers.reserve(items.size());
  for (const auto& item : items) {
    if (last.insert_or_assign(item.uniqueIdentifier, &item).second) {
      identifiers.push_back(item.uniqueIdentifier);
    }
  }
  remove(identifiers);

  Statement addItem(
      *database_,
      "INSERT INTO item(uid, domain, content_type, title, comment, genre, keywords, symbol, name)"
      " VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)");
  Statement addTokens(*database_, "INSERT INTO token(id, tok) VALUES(?1, ?2)");
  for (const auto& identifier : identifiers) {
    continueUnlessAbandoned();
    const SearchableItem& item = *last.at(identifier);
    const auto name = lowercased(item.name());
    const auto keywords = packTexts(item.keywords);
    addItem.run(identifier, item.domainIdentifier, item.contentType, item.title, item.comment, item.genre,
                keywords, item.symbol, name);
    const auto tokens = indexTokens(item);
    addTokens.run(std::int64_t{sqlite3_last_insert_rowid(database_->handle())}, tokens);
  }
}

void IndexStore::remove(const std::vector<std::string>& identifiers) {
  std::int64_t all = -1;  // the number of items, if it matters
  if (identifiers.size() >= manyItems) {
    Statement count(*database_, "SELECT count(*) FROM item");
    count.step();
    all = count.integer(0);
    if (all == 0) return;
  }
  std::vector<std::int64_t> rows;
  {
    Statement find(*database_, "SELECT id FROM item WHERE uid = ?1");
    for (const auto& identifier : identifiers) {
      if (find.bind(identifier).step()) rows.push_back(find.integer(0));
    }
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  // Hosts often replace all their items. To clear the tables is then faster than to delete the rows one by one.
  if (std::cmp_equal(all, rows.size())) return clear();
  Statement removeTokens(*database_, "DELETE FROM token WHERE id = ?1");
  Statement removeItem(*database_, "DELETE FROM item WHERE id = ?1");
  for (const auto row : rows) {
    continueUnlessAbandoned();
    removeTokens.run(row);
    removeItem.run(row);
  }
}

void IndexStore::clear() {
  database_->execute("DELETE FROM item");
  database_->execute("DELETE FROM token");
}

}  // namespace glyph
