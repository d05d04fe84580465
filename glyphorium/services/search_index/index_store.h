// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/services/search_index/lock_wait.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {

/// The index file in the application's data directory; nullopt where no home directory is known.
std::optional<std::filesystem::path> defaultIndexFile();

/// A list of texts as one text and back. Texts may hold any byte, so each stands behind its length.
std::string packTexts(const std::vector<std::string>& texts);
std::vector<std::string> unpackTexts(std::string_view packed);

/// The columns of the item table that itemOf() reads, in its order.
#define GLYPHORIUM_ITEM_COLUMNS "uid, domain, content_type, title, comment, genre, keywords, symbol"
SearchableItem itemOf(const Statement& row);

/// Tells files apart that had the same path one after the other.
struct FileIdentity {
  std::uint64_t device, inode;
  bool operator==(const FileIdentity&) const = default;
};
/// The file that the path leads to; nullopt where there is none. Throws SqliteError for a FIFO, a device or a
/// directory: SQLite would wait for ever until somebody writes into a FIFO. Opens nothing: to close any
/// descriptor of a file takes all locks that the process holds on it.
std::optional<FileIdentity> regularFile(const std::filesystem::path& file);

/// Opens the file. Throws SqliteError, also where SQLite's own files beside it (the log) are no regular
/// files.
Database openIndexFile(const std::filesystem::path& file, int flags);

/// Whether the open file is an index. False where it is empty, as a new one. Throws SqliteError for an index
/// that a later version of this library has written, and with SQLITE_NOTADB for a database of others.
bool isIndex(const Database& database);
/// Whether the file's first page is that of an index. Unlike isIndex() this needs no room on the disk and no
/// whole file. It takes all locks that the process holds on the file.
bool beginsAsIndex(const std::filesystem::path& file);

/// The index file, open for writing. Throws SqliteError. Not moved: it stays where it was made.
class IndexStore {
 public:
  /// Opens the file, or creates it with its directory, private to the user. The LockWait must outlive it.
  IndexStore(std::filesystem::path file, LockWait& wait);
  /// The same for a caller that holds the directory's lock.
  IndexStore(std::filesystem::path file, LockWait& wait, const DirectoryLock& lock);
  /// Inside a transaction, takes it back.
  ~IndexStore();
  IndexStore(const IndexStore&) = delete;
  IndexStore& operator=(const IndexStore&) = delete;

  /// Begins the transaction that the other operations need. `items` is about how many it will change.
  void begin(std::size_t items);
  void commit();
  void add(const std::vector<SearchableItem>& items);
  void remove(const std::vector<std::string>& identifiers);
  void clear();

  /// Whether the path still leads to the open file: another process may have deleted it or put it aside.
  bool inPlace() const { return regularFile(file_) == identity_; }

 private:
  void open(const DirectoryLock& lock);
  void createTables();
  void continueUnlessAbandoned() const;

  const std::filesystem::path file_;
  LockWait& wait_;
  std::optional<FileIdentity> identity_;
  std::optional<Database> database_;
  bool unfinished_ = false;  // a transaction was begun and not committed
};

}  // namespace glyph
