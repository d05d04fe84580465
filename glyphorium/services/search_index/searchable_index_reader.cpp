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
    database_ = openIndexFile(*path_, SQLITE_OPEN_READONLY);
    // The timeout is short, because users wait for the answer while they type. A writer locks out readers
    // only briefly.
    sqlite3_busy_timeout(database_->handle(), 500);
    sqlite3_db_config(database_->handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (isIndex(*database_)) return true;
    database_.reset();  // another process has created the file, but not its tables yet
    return false;
  }

  std::optional<std::filesystem::path> path_;
  std::optional<FileIdentity> identity_;
  std::optional<Database> database_;
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
  return file_->ask<std::vector<SearchableItem>>([&](const Database& database) {
    std::vector<SearchableItem> found;
    const IndexQuery wanted = indexQuery(query);
    if (wanted.match.empty() || limit <= 0) return found;
    Statement search(database, "SELECT " GLYPHORIUM_ITEM_COLUMNS
                               " FROM token JOIN item ON item.id = token.rowid WHERE token MATCH ?1"
                               " ORDER BY CASE WHEN symbol = ?2 THEN 0 WHEN uid IN (?2, ?3) THEN 1"
                               " WHEN name = ?3 THEN 2 ELSE 3 END, length(name), length(uid), uid LIMIT ?4");
    search.bind(wanted.match, wanted.exact, wanted.lowered, std::int64_t{limit});
    while (search.step()) found.push_back(itemOf(search));
    return found;
  });
}

}  // namespace glyph
