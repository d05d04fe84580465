// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/index_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <system_error>
#include <thread>
#include <unordered_map>

#include "glyphorium/services/application/application.h"
#include "glyphorium/services/application/private_directory.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/index_tokens.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Only white space separates tokens: by default the tokenizer drops symbols, and characters newer than its
// tables. What else is to be a token of its own, indexTokens() splits off.
constexpr const char* tokenTable =
    "CREATE VIRTUAL TABLE token USING fts5(tok, detail=none, prefix='1 2 3',"
    " tokenize=\"unicode61 remove_diacritics 0 categories 'L* M* N* P* S* Co Cf Cn'\")";

// symbol and name are the title's parts, name in lower case, by which answers are ordered. An identifier is
// unique by itself, since items are replaced and deleted by it alone.
constexpr const char* itemTable =
    "CREATE TABLE item(id INTEGER PRIMARY KEY, uid TEXT NOT NULL UNIQUE, domain TEXT NOT NULL,"
    " content_type TEXT NOT NULL, title TEXT NOT NULL, comment TEXT, genre TEXT NOT NULL,"
    " keywords TEXT NOT NULL, symbol TEXT, name TEXT NOT NULL)";

constexpr auto busyLimit = std::chrono::seconds(5);
constexpr auto busyPause = std::chrono::milliseconds(5);

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
    if (error != std::errc() || packed.size() <= length) break;  // not as packed: a damaged file
    texts.emplace_back(packed.substr(1, length));
    packed.remove_prefix(1 + length);
  }
  return texts;
}

std::optional<FileIdentity> fileIdentity(const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return std::nullopt;
  return FileIdentity{status.st_dev, status.st_ino};
}

IndexStore::IndexStore(const std::filesystem::path& file, const std::atomic<bool>& abandoned)
    : file_(file), abandoned_(abandoned) {
  prepareFile();
  identity_ = fileIdentity(file);  // before opening it: a replacement in between shows in inPlace()
  database_.emplace(file, SQLITE_OPEN_READWRITE);
  sqlite3_busy_handler(database_->handle(), waitWhileBusy, this);
  // Two processes that both create the file: SQLite does not call the busy handler for this switch.
  for (int attempt = 0;; ++attempt) {
    try {
      database_->execute("PRAGMA journal_mode=WAL");
      break;
    } catch (const SqliteError& error) {
      if (error.code() != SQLITE_BUSY || !waitWhileBusy(this, attempt)) throw;
    }
  }
  // Of the last moments before a power failure an index may lose a part: its file stays whole even so.
  database_->execute("PRAGMA synchronous=NORMAL");
  prepareSchema();
}

void IndexStore::prepareFile() {
  const auto directory = file_.parent_path();
  if (!directory.empty() && !createPrivateDirectory(directory)) {
    throw SqliteError(SQLITE_CANTOPEN, directory.string() + ": " + std::generic_category().message(errno));
  }
  // SQLite would create it readable for others. Never opened when it exists: closing any descriptor of it
  // would drop the locks that other connections of this process hold.
  const int created = open(file_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (created >= 0) close(created);
}

void IndexStore::prepareSchema() {
  begin();
  Statement version(*database_, "PRAGMA user_version");
  version.step();
  const auto found = version.integer(0);
  version.bind();
  if (found == indexVersion) {
    database_->execute("ROLLBACK");
    return;
  }
  if (found != 0) throw SqliteError(SQLITE_NOTADB, "version " + std::to_string(found));
  database_->execute(itemTable);
  database_->execute(tokenTable);
  database_->execute(("PRAGMA user_version=" + std::to_string(indexVersion)).c_str());
  commit();
}

int IndexStore::waitWhileBusy(void* store, int attempt) {
  if (attempt * busyPause >= busyLimit || static_cast<IndexStore*>(store)->abandoned_) return 0;
  std::this_thread::sleep_for(busyPause);
  return 1;
}

void IndexStore::continueUnlessAbandoned() const {
  if (abandoned_) throw SqliteError(SQLITE_INTERRUPT, "the program ends");
}

void IndexStore::begin() {
  continueUnlessAbandoned();
  database_->execute("BEGIN IMMEDIATE");
}

void IndexStore::commit() {
  database_->execute("COMMIT");
}

void IndexStore::add(const std::vector<SearchableItem>& items) {
  std::unordered_map<std::string_view, const SearchableItem*> last;
  std::vector<std::string> identifiers;
  for (const auto& item : items) {
    if (last.insert_or_assign(item.uniqueIdentifier, &item).second) {
      identifiers.push_back(item.uniqueIdentifier);
    }
  }
  // All deletions before all insertions: the token table writes itself out whenever row numbers step back.
  remove(identifiers);

  Statement addItem(
      *database_,
      "INSERT INTO item(uid, domain, content_type, title, comment, genre, keywords, symbol, name)"
      " VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)");
  Statement addTokens(*database_, "INSERT INTO token(rowid, tok) VALUES(?1, ?2)");
  for (const auto& identifier : identifiers) {
    continueUnlessAbandoned();
    const SearchableItem& item = *last.at(identifier);
    const auto tab = item.title.find('\t');
    const auto symbol = tab == std::string::npos ? std::nullopt : std::optional(item.title.substr(0, tab));
    const auto name = lowercased(symbol ? item.title.substr(tab + 1) : item.title);
    const auto keywords = packTexts(item.keywords);
    addItem.run(identifier, item.domainIdentifier, item.contentType, item.title, item.comment, item.genre,
                keywords, symbol, name);
    const auto tokens = indexTokens(item);
    addTokens.run(std::int64_t{sqlite3_last_insert_rowid(database_->handle())}, tokens);
  }
}

void IndexStore::remove(const std::vector<std::string>& identifiers) {
  Statement find(*database_, "SELECT id FROM item WHERE uid = ?1");
  std::vector<std::int64_t> rows;
  for (const auto& identifier : identifiers) {
    if (find.bind(identifier).step()) rows.push_back(find.integer(0));
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  Statement removeTokens(*database_, "DELETE FROM token WHERE rowid = ?1");
  Statement removeItem(*database_, "DELETE FROM item WHERE id = ?1");
  for (const auto row : rows) {
    continueUnlessAbandoned();
    removeTokens.run(row);
    removeItem.run(row);
  }
}

void IndexStore::clear() {
  database_->execute("DELETE FROM item");
  // Quicker than deleting its rows one by one, and leaves nothing of them behind.
  database_->execute("DROP TABLE token");
  database_->execute(tokenTable);
}

void IndexStore::forsake() {
  // On closing, SQLite would delete the write-ahead log by its name, which may be that of another file's now.
  sqlite3_db_config(database_->handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

bool IndexStore::damaged(const std::filesystem::path& file, const SqliteError& error) {
  if (error.code() != SQLITE_ERROR) {
    return error.damage() || error.code() == SQLITE_CONSTRAINT || error.code() == SQLITE_MISMATCH;
  }
  try {
    Database database(file, SQLITE_OPEN_READWRITE);
    Statement item(database, "SELECT sql FROM sqlite_schema WHERE name = 'item'");
    if (!item.step() || item.text(0) != itemTable) return true;
    database.execute("INSERT INTO token(token) VALUES('integrity-check')");
    return false;
  } catch (const SqliteError& again) {
    return again.damage() || again.code() == SQLITE_ERROR;
  }
}

void IndexStore::empty(const std::filesystem::path& file, std::string_view reason) {
  printDiagnostic("Search index emptied, its file cannot be used (" + std::string(reason) +
                  "): " + file.string());
  // In place and by SQLite itself, under its locks: other processes may have the file open.
  Database database(file, SQLITE_OPEN_READWRITE);
  sqlite3_busy_timeout(database.handle(), std::chrono::milliseconds(busyLimit).count());
  // Makes SQLite notice the write-ahead log, whatever else it finds: else the reset would try to leave that
  // mode, which it cannot while others have the file open.
  sqlite3_table_column_metadata(database.handle(), nullptr, "sqlite_schema", nullptr, nullptr, nullptr,
                                nullptr, nullptr, nullptr);
  sqlite3_db_config(database.handle(), SQLITE_DBCONFIG_RESET_DATABASE, 1, nullptr);
  database.execute("VACUUM");
}

}  // namespace glyph
