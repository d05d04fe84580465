// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {

/// The version that the index file carries as its user_version; 0 is a file without tables yet.
inline constexpr std::int64_t indexVersion = 1;

/// The index file in the application's data directory; nullopt where no home directory is known.
std::optional<std::filesystem::path> defaultIndexFile();

/// A list of texts as one text and back. Texts may hold any byte, so each stands behind its length.
std::string packTexts(const std::vector<std::string>& texts);
std::vector<std::string> unpackTexts(std::string_view packed);

/// Which file a path names, to notice that it was deleted or replaced while it is open.
struct FileIdentity {
  std::uint64_t device, inode;
  bool operator==(const FileIdentity&) const = default;
};
std::optional<FileIdentity> fileIdentity(const std::filesystem::path& file);

/// The index file, open for writing. Throws SqliteError. Destroyed inside a transaction, it takes that back.
class IndexStore {
 public:
  /// Opens the file, or creates it, private to the user. A damaged file, or one of another version, is
  /// emptied: it holds copies only. Once `abandoned` is true, operations end with an error instead of
  /// waiting.
  IndexStore(const std::filesystem::path& file, const std::atomic<bool>& abandoned);

  void begin();
  void commit();
  void add(const std::vector<SearchableItem>& items);
  void remove(const std::vector<std::string>& identifiers);
  void clear();

  /// Whether the path still names the open file.
  bool inPlace() const { return fileIdentity(file_) == identity_; }
  /// To be called when it does not: leaves alone what now stands at the path.
  void forsake();
  /// Whether the error shows that the file is damaged: those about its content do, for the statements are
  /// known to be right. The general error does where the tables are not as they are created.
  static bool damaged(const std::filesystem::path& file, const SqliteError& error);
  /// Empties a damaged file, so that it can be opened again.
  static void empty(const std::filesystem::path& file, std::string_view reason);

 private:
  static int waitWhileBusy(void* store, int attempt);
  void prepareFile();
  void prepareSchema();
  void continueUnlessAbandoned() const;

  std::filesystem::path file_;
  const std::atomic<bool>& abandoned_;
  std::optional<Database> database_;
  std::optional<FileIdentity> identity_;
};

}  // namespace glyph
