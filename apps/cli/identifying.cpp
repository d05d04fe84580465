// SPDX-License-Identifier: MIT
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <nlohmann/json.hpp>
#include <system_error>
#include <unordered_map>

#include "card.h"
#include "commands.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/search/resolving.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace cli {
namespace {

// The table is printed in portions of this many rows. On a terminal, columns are aligned within a portion.
constexpr std::size_t rowsAtOnce = 2000;

// Size of one read, and size of the collected output at which it is written.
constexpr std::size_t bytesAtOnce = 1 << 16;

// In bytes. No real grapheme cluster is longer. A longer sequence is shown in several parts.
constexpr std::size_t longestCluster = 4096;

// Returns the name of the code point. If there is no name, returns the entry of the name table: a label such
// as "<control>" says more than an empty text.
std::string nameOf(char32_t codePoint) {
  std::string name = glyph::entityOf(codePoint).name();
  if (!name.empty()) return name;
  const auto entry = glyph::findName(glyph::toolKit().getHex(codePoint));
  return std::string(entry ? entry->name : "(not in the Unicode 13.0 name table)");
}

// Returns how many bytes at the end of the text belong to a code point that is not complete yet.
std::size_t unfinishedBytes(std::string_view text) {
  for (std::size_t length = 1; length <= std::min<std::size_t>(3, text.size()); ++length) {
    const auto byte = static_cast<unsigned char>(text[text.size() - length]);
    if ((byte & 0xC0) == 0x80) continue;  // not the first byte of a code point
    const std::size_t needed = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
    return needed > length ? length : 0;
  }
  return 0;
}

// Names the characters of a text that arrives in pieces. A piece may end anywhere, even within a code point.
class Identification {
 public:
  Identification(Output& output, bool json) : output_(output), array_(output), json_(json) {}

  // Returns false if the text is not UTF-8 (after an error message) or if the output cannot be written.
  bool add(std::string_view piece) {
    pending_ += piece;
    const std::size_t whole = pending_.size() - unfinishedBytes(pending_);
    return identify(std::string_view(pending_).substr(0, whole), false);
  }

  bool end() {
    if (!identify(pending_, true)) return false;
    if (json_) array_.end();
    output_.printTable(rows_);
    return true;
  }

  bool foundAny() const { return any_; }

 private:
  bool identify(std::string_view text, bool isEnd) {
    if (!glyph::isWellFormedUtf8(text)) {
      complain("the text is not UTF-8; 'iconv' converts other encodings");
      return false;
    }
    std::vector<std::string_view> clusters = glyph::graphemeClusters(text);
    // The next piece may continue the last grapheme cluster.
    const bool keepsLast = !isEnd && !clusters.empty() && clusters.back().size() < longestCluster;
    if (keepsLast) clusters.pop_back();
    std::size_t size = 0;
    for (const std::string_view cluster : clusters) {
      identifyCluster(cluster);
      size += cluster.size();
      if (rows_.size() >= rowsAtOnce) {
        output_.printTable(rows_);
        rows_.clear();
      }
      if (output_.size() >= bytesAtOnce && (!output_.flush() || output_.closed())) return false;
    }
    pending_.erase(0, size);
    return true;
  }

  void identifyCluster(std::string_view cluster) {
    any_ = true;
    const std::u32string points = glyph::codePoints(cluster);
    // A character of several code points has its own row. Indented rows with its code points follow.
    const bool several = points.size() > 1 && cluster != "\r\n";
    if (several && !json_) {
      rows_.push_back(
          {output_.accent(cluster), output_.faint(std::to_string(points.size()) + " code points"), ""});
    }
    for (const char32_t point : points) {
      const auto [known, isNew] = names_.try_emplace(point);
      if (isNew) known->second = nameOf(point);
      const std::string hex = glyph::toolKit().getHex(point);
      const std::string symbol = glyph::utf8(point);
      if (json_) {
        array_.add(nlohmann::ordered_json{
            {"hex", hex}, {"symbol", symbol}, {"name", known->second}, {"cluster", std::string(cluster)}}
                       .dump());
      } else {
        rows_.push_back({(several ? "  " : "") + output_.accent(visibleSymbol(symbol)), output_.faint(hex),
                         known->second});
      }
    }
  }

  Output& output_;
  JsonArray array_;
  const bool json_;
  bool any_ = false;
  std::string pending_;  // text at the end that the next piece may continue
  std::vector<std::vector<std::string>> rows_;
  std::unordered_map<char32_t, std::string> names_;  // names of the code points seen so far
};

enum class Reading { done, stopped, failed };

Reading readStandardInput(Identification& identification) {
  std::string buffer(bytesAtOnce, '\0');
  for (;;) {
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count == 0) return Reading::done;
    if (count > 0) {
      if (!identification.add({buffer.data(), static_cast<std::size_t>(count)})) return Reading::stopped;
    } else if (errno == EAGAIN) {
      pollfd ready{STDIN_FILENO, POLLIN, 0};
      poll(&ready, 1, -1);
    } else if (errno != EINTR) {
      complain("standard input could not be read: " + std::generic_category().message(errno));
      return Reading::failed;
    }
  }
}

}  // namespace

int identifyText(Output& output, const std::vector<std::string>& texts, bool json) {
  Identification identification(output, json);
  Reading reading = Reading::done;
  for (const std::string& text : texts) {
    if (reading != Reading::done) break;
    if (&text != &texts.front() && !identification.add(" ")) reading = Reading::stopped;
    if (text == "-")
      reading = readStandardInput(identification);
    else if (!identification.add(text))
      reading = Reading::stopped;
  }
  if (reading == Reading::failed) return notRead;
  if (reading == Reading::done && !identification.end()) reading = Reading::stopped;
  if (reading == Reading::stopped) return output.closed() ? found : wrongUse;
  return identification.foundAny() ? found : nothingFound;
}

}  // namespace cli
