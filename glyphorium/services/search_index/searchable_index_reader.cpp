// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/searchable_index_reader.h"

#include <exception>
#include <string>
#include <utility>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/index_store.h"
#include "glyphorium/services/search_index/index_tokens.h"

namespace glyph {
namespace {

#define ITEM_COLUMNS "uid, domain, content_type, title, comment, genre, keywords"

SearchableItem itemOf(const Statement& row) {
  SearchableItem item;
  item.uniqueIdentifier = row.text(0);
  item.domainIdentifier = row.text(1);
  item.contentType = row.text(2);
  item.title = row.text(3);
  if (!row.isNull(4)) item.comment = row.text(4);
  item.genre = row.text(5);
  item.keywords = unpackTexts(row.text(6));
  return item;
}

}  // namespace

class SearchableIndexReader::File {
 public:
  explicit File(std::optional<std::filesystem::path> path) : path_(std::move(path)) {}

  // What `question` answers about the open file, else the empty answer.
  template <class Answer, class Question>
  Answer ask(Question question) noexcept try {
    if (!ready()) return {};
    Answer answer = question(*database_);
    reported_ = false;
    return answer;
  } catch (const std::exception& error) {
    database_.reset();
    if (!std::exchange(reported_, true)) {
      printDiagnostic("Search index not readable (" + std::string(error.what()) + "): " + path_->string());
    }
    return {};
  }

 private:
  bool ready() {
    const auto identity = path_ ? fileIdentity(*path_) : std::nullopt;
    if (!identity || identity != identity_) database_.reset();
    if (!identity) return false;
    if (database_) return true;
    identity_ = identity;
    database_.emplace(*path_, SQLITE_OPEN_READONLY);
    // People wait for the answer as they type; writers never lock readers out for longer than a moment.
    sqlite3_busy_timeout(database_->handle(), 500);
    sqlite3_db_config(database_->handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    Statement version(*database_, "PRAGMA user_version");
    version.step();
    const auto found = version.integer(0);
    if (found == indexVersion) return true;
    if (found != 0) throw SqliteError(SQLITE_NOTADB, "version " + std::to_string(found));
    database_.reset();  // its writer has just created it
    return false;
  }

  std::optional<std::filesystem::path> path_;
  std::optional<FileIdentity> identity_;
  std::optional<Database> database_;
  bool reported_ = false;
};

SearchableIndexReader::SearchableIndexReader() : file_(std::make_unique<File>(defaultIndexFile())) {}
SearchableIndexReader::SearchableIndexReader(std::filesystem::path file)
    : file_(std::make_unique<File>(std::move(file))) {}
SearchableIndexReader::~SearchableIndexReader() = default;
SearchableIndexReader::SearchableIndexReader(SearchableIndexReader&&) noexcept = default;
SearchableIndexReader& SearchableIndexReader::operator=(SearchableIndexReader&&) noexcept = default;

std::size_t SearchableIndexReader::count() {
  return file_->ask<std::size_t>([](const Database& database) {
    Statement count(database, "SELECT count(*) FROM item");
    count.step();
    return static_cast<std::size_t>(count.integer(0));
  });
}

std::optional<SearchableItem> SearchableIndexReader::item(std::string_view uniqueIdentifier) {
  return file_->ask<std::optional<SearchableItem>>([&](const Database& database) {
    Statement find(database, "SELECT " ITEM_COLUMNS " FROM item WHERE uid = ?1");
    return find.bind(uniqueIdentifier).step() ? std::optional(itemOf(find)) : std::nullopt;
  });
}

std::vector<SearchableItem> SearchableIndexReader::search(std::string_view query, int limit) {
  return file_->ask<std::vector<SearchableItem>>([&](const Database& database) {
    std::vector<SearchableItem> found;
    const IndexQuery wanted = indexQuery(query);
    if (wanted.match.empty() || limit <= 0) return found;
    Statement search(database, "SELECT " ITEM_COLUMNS
                               " FROM token JOIN item ON item.id = token.rowid WHERE token MATCH ?1"
                               " ORDER BY CASE WHEN symbol = ?2 THEN 0 WHEN uid IN (?2, ?3) THEN 1"
                               " WHEN name = ?3 THEN 2 ELSE 3 END, length(name), length(uid), uid LIMIT ?4");
    search.bind(wanted.match, wanted.exact, wanted.lowered, std::int64_t{limit});
    while (search.step()) found.push_back(itemOf(search));
    return found;
  });
}

}  // namespace glyph
