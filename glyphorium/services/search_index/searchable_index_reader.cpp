// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/searchable_index_reader.h"

#include <exception>
#include <string>
#include <utility>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/index_store.h"
#include "glyphorium/services/search_index/index_tokens.h"

namespace glyph {

class SearchableIndexReader::File {
 public:
  explicit File(std::optional<std::filesystem::path> path) : path_(std::move(path)) {}

  // Calls `question` with the open database and returns the answer. Returns an empty result if the file is
  // missing or cannot be read.
  template <class Answer, class Question>
  Answer ask(Question question) noexcept {
    try {
      error_.clear();
      if (!ready()) return {};
      Answer answer = question(*database_);
      reported_ = false;
      return answer;
    } catch (const std::exception& error) {
      database_.reset();
      report(error);
    }
    return {};
  }

  const std::string& error() const { return error_; }

  // Returns the tokens of all items. Reads them again if another connection has changed the file. There must
  // be a transaction, so that they fit what else it reads.
  const TokenTexts& tokens() {
    Statement version(*database_, "PRAGMA data_version");
    version.step();
    if (std::exchange(tokensVersion_, version.integer(0)) == version.integer(0)) return tokens_;
    tokens_.clear(std::filesystem::file_size(*path_));
    Statement token(*database_, "SELECT rowid, tok FROM token");
    while (token.step()) tokens_.add(token.integer(0), token.view(1));
    return tokens_;
  }

 private:
  void report(const std::exception& reason) noexcept {
    try {
      error_ = "no memory";  // this short text needs no allocation
      error_ = reason.what();
      if (std::exchange(reported_, true)) return;
      printProblem("Search index not readable (" + error_ + "): " + path_->string());
    } catch (const std::exception&) {  // without memory, the line is not printed
    }
  }

  bool ready() {
    const auto identity = path_ ? regularFile(*path_) : std::nullopt;
    if (!identity || identity != identity_) database_.reset();
    if (!identity) return false;
    if (database_) return true;
    identity_ = identity;
    tokensVersion_.reset();
    database_ = openIndexFile(*path_, SQLITE_OPEN_READONLY);
    // The timeout is short, because users wait for the answer while they type. A writer locks out readers
    // only briefly.
    sqlite3_busy_timeout(database_->handle(), 500);
    sqlite3_db_config(database_->handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // Pages are rarely read twice, because the tokens are kept. In a new process, memory for them costs time.
    database_->execute("PRAGMA cache_size=-256");
    if (isIndex(*database_)) return true;
    database_.reset();  // another process has created the file, but not its tables yet
    return false;
  }

  std::optional<std::filesystem::path> path_;
  std::optional<FileIdentity> identity_;
  std::optional<Database> database_;
  TokenTexts tokens_;
  std::optional<std::int64_t> tokensVersion_;  // PRAGMA data_version when tokens_ was read
  std::string error_;
  bool reported_ = false;
};

SearchableIndexReader::SearchableIndexReader() : file_(std::make_unique<File>(defaultIndexFile())) {}
SearchableIndexReader::SearchableIndexReader(std::filesystem::path file)
    : file_(std::make_unique<File>(std::move(file))) {}
SearchableIndexReader::~SearchableIndexReader() = default;
SearchableIndexReader::SearchableIndexReader(SearchableIndexReader&&) noexcept = default;
SearchableIndexReader& SearchableIndexReader::operator=(SearchableIndexReader&&) noexcept = default;

const std::string& SearchableIndexReader::error() const {
  return file_->error();
}

std::size_t SearchableIndexReader::count() {
  return file_->ask<std::size_t>([](const Database& database) {
    Statement count(database, "SELECT count(*) FROM item");
    count.step();
    return static_cast<std::size_t>(count.integer(0));
  });
}

std::optional<SearchableItem> SearchableIndexReader::item(std::string_view uniqueIdentifier) {
  return file_->ask<std::optional<SearchableItem>>([&](const Database& database) {
    Statement find(database, "SELECT " GLYPHORIUM_ITEM_COLUMNS " FROM item WHERE uid = ?1");
    return find.bind(uniqueIdentifier).step() ? std::optional(itemOf(find)) : std::nullopt;
  });
}

std::vector<SearchableItem> SearchableIndexReader::search(std::string_view query, int limit) {
  return file_->ask<std::vector<SearchableItem>>([&](Database& database) {
    std::vector<SearchableItem> found;
    const IndexQuery wanted = indexQuery(query);
    if (wanted.terms.empty() || limit <= 0) return found;
    database.execute("BEGIN");
    std::string ids;  // as a JSON array
    for (const std::int64_t id : file_->tokens().find(wanted.terms))
      ids.append(ids.empty() ? "[" : ",").append(std::to_string(id));
    ids += ids.empty() ? "[]" : "]";
    Statement search(database, "SELECT " GLYPHORIUM_ITEM_COLUMNS
                               " FROM json_each(?1) CROSS JOIN item ON item.id = json_each.value"
                               " ORDER BY CASE WHEN symbol = ?2 THEN 0 WHEN uid IN (?2, ?3) THEN 1"
                               " WHEN name = ?3 THEN 2 ELSE 3 END, length(name), length(uid), uid LIMIT ?4");
    search.bind(ids, wanted.exact, wanted.lowered, std::int64_t{limit});
    while (search.step()) found.push_back(itemOf(search));
    database.execute("END");
    return found;
  });
}

}  // namespace glyph
