// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/services/search_index/index_locks.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {

/// Returns the path of the index file in the application's data directory, or nullopt if no home directory is
/// known.
std::optional<std::filesystem::path> defaultIndexFile();

/// packTexts() encodes a list of texts as a single text, and unpackTexts() decodes it. Each text is preceded
/// by its length in bytes, because it may contain any byte. If the packed text is damaged, unpackTexts()
/// returns the texts before the damage.
std::string packTexts(const std::vector<std::string>& texts);
std::vector<std::string> unpackTexts(std::string_view packed);

/// The columns of the item table, in the order in which itemOf() reads them.
#define GLYPHORIUM_ITEM_COLUMNS "uid, domain, content_type, title, comment, genre, keywords, symbol"
SearchableItem itemOf(const Statement& row);

/// Identifies a file independently of its path. Two files that had the same path at different times have
/// different identities.
struct FileIdentity {
  std::uint64_t device, inode;
  bool operator==(const FileIdentity&) const = default;
};
/// Returns the identity of the file at the path, or nullopt if there is no such file. Throws SqliteError for
/// a FIFO, a device or a directory: SQLite would wait for a FIFO without a time limit. Does not open the
/// file, because closing any descriptor of a file releases all locks that the process has on this file.
std::optional<FileIdentity> regularFile(const std::filesystem::path& file);

/// Opens the file. Throws SqliteError if this fails, or if one of the files that SQLite keeps next to it,
/// such as the write-ahead log, exists and is not a regular file. `flags` are those of sqlite3_open_v2().
Database openIndexFile(const std::filesystem::path& file, int flags);

/// Returns true if the open file is an index, and false if it is empty, as a new file is. Throws SqliteError
/// for an index that a later version of this library has written. Throws SqliteError with the code
/// SQLITE_NOTADB for the database of another program.
bool isIndex(const Database& database);
/// Whether the first page of the file says that the file is an index. Unlike isIndex(), this also works if
/// the disk is full or the rest of the file is damaged. Calling this function releases all locks that the
/// process has on the file.
bool beginsAsIndex(const std::filesystem::path& file);

/// The index file, open for writing. Its constructors and operations throw SqliteError.
class IndexStore {
 public:
  /// Opens the file. Creates the file and its directory if they are missing; only the user can read them.
  /// `wait` must outlive this object.
  IndexStore(std::filesystem::path file, LockWait& wait);
  /// Opens the file for a caller that has already locked its directory. The directory must exist.
  IndexStore(std::filesystem::path file, LockWait& wait, const DirectoryLock& lock);
  /// Rolls back a transaction that was not committed.
  ~IndexStore();
  IndexStore(const IndexStore&) = delete;
  IndexStore& operator=(const IndexStore&) = delete;

  /// Begins a transaction. add(), remove() and clear() need one. `items` is the approximate number of items
  /// that the transaction will change.
  void begin(std::size_t items);
  void commit();
  void add(const std::vector<SearchableItem>& items);
  void remove(const std::vector<std::string>& identifiers);
  void clear();

  /// Whether the path still leads to the open file. If not, another process has deleted or renamed the file.
  bool inPlace() const { return regularFile(file_) == identity_; }

 private:
  void open(const DirectoryLock& lock);
  void createTables();
  void replaceFullTextTable();
  void continueUnlessAbandoned() const;

  const std::filesystem::path file_;
  LockWait& wait_;
  std::optional<FileIdentity> identity_;
  std::optional<Database> database_;
  bool unfinished_ = false;  // whether a transaction was begun and not committed
};

}  // namespace glyph
