// SPDX-License-Identifier: MIT
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <nlohmann/json.hpp>
#include <optional>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "card.h"
#include "commands.h"
#include "encoding.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace cli {
namespace {

using glyph::Entity;

// The table is printed in portions of this many rows. On a terminal, the columns of each portion are aligned
// separately.
constexpr std::size_t rowsAtOnce = 2000;

// The number of bytes that are read at once. Output is written whenever at least this many bytes of it have
// been collected.
constexpr std::size_t bytesAtOnce = 1 << 16;

// The maximum size of a grapheme cluster in bytes. Real clusters are shorter. A longer cluster is shown in
// several parts.
constexpr std::size_t longestCluster = 4096;

std::string nameOf(char32_t codePoint) {
  return entityOfCodePoint(codePoint).name();
}

// Returns the name of an emoji. Empty for any other grapheme cluster.
std::string nameOfSequence(std::string_view cluster) {
  const auto place = glyph::emojiPlace(cluster);
  return place ? glyph::shownCharacterName(cluster) : std::string();
}

// Returns the number of bytes at the end of the text that begin an incomplete UTF-8 sequence.
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
  // The encoding is only named in messages. The text arrives in UTF-8.
  Identification(Output& output, const Listing& listing, std::string encoding)
      : output_(output),
        array_(output),
        json_(listing.json),
        listing_(listing),
        encoding_(std::move(encoding)) {
    printHeading(output, listing);
  }

  // Returns false if the output cannot be written.
  bool add(std::string_view piece) {
    pending_ += piece;
    const std::size_t whole = pending_.size() - unfinishedBytes(pending_);
    return identify(std::string_view(pending_).substr(0, whole), false);
  }

  // Bytes that are no text in the encoding also get a row, which shows where the text is damaged.
  bool addBadBytes(std::string_view bytes) {
    if (!identify(pending_, true)) return false;
    identifyBytes(bytes);
    return printPortion();
  }

  bool end() {
    if (!identify(pending_, true)) return false;
    if (json_) array_.end();
    output_.printTable(rows_);
    return true;
  }

  bool foundAny() const { return any_; }
  bool hasBadBytes() const { return hasBadBytes_; }

 private:
  bool identify(std::string_view text, bool isEnd) {
    std::vector<std::string_view> clusters = glyph::graphemeClusters(text);
    // Keep the last grapheme cluster until more text has arrived, because the next piece may continue it.
    const bool keepsLast = !isEnd && !clusters.empty() && clusters.back().size() < longestCluster;
    if (keepsLast) clusters.pop_back();
    std::size_t size = 0;
    for (const std::string_view cluster : clusters) {
      identifyCluster(cluster);
      size += cluster.size();
      if (!printPortion()) return false;
    }
    pending_.erase(0, size);
    return true;
  }

  // Prints what has been collected, if it is much. Returns false if the output cannot be written.
  bool printPortion() {
    if (rows_.size() >= rowsAtOnce) {
      output_.printTable(rows_);
      rows_.clear();
    }
    return output_.size() < bytesAtOnce || (output_.flush() && !output_.closed());
  }

  void identifyBytes(std::string_view bytes) {
    any_ = hasBadBytes_ = true;
    const std::string hex = hexOfBytes(bytes);
    if (json_) {
      array_.add(nlohmann::ordered_json{{"bytes", hex}, {"name", "not " + encoding_}}.dump());
    } else if (!listing_.isTable()) {
      Entity noCharacter;  // has a name only
      noCharacter.computed.decimal = 0x110000;
      noCharacter.computed.fallbackName = "(bytes " + hex + " that are not " + encoding_ + ")";
      printRow(output_, noCharacter, listing_);
    } else {
      rows_.push_back(
          {output_.accent("\uFFFD"), output_.faint(hex), "(bytes that are not " + encoding_ + ")"});
    }
  }

  void identifyCluster(std::string_view cluster) {
    any_ = true;
    if (!glyph::isWellFormedUtf8(cluster)) {
      identifyBytes(cluster);
      return;
    }
    const std::u32string points = glyph::codePoints(cluster);
    // A character of several code points gets a row, and below it an indented row for each of its code
    // points.
    const bool several = points.size() > 1 && cluster != "\r\n";
    if (!json_ && !listing_.isTable()) {
      const Entity entity = glyph::emojiPlace(cluster) ? glyph::supplementEntity(cluster) : Entity();
      if (several && !entity.name().empty()) {
        printRow(output_, entity, listing_);
        return;
      }
      for (const char32_t point : points) {
        printRow(output_, entityOfCodePoint(point), listing_);
      }
      return;
    }
    const std::string sequence = several ? nameOfSequence(cluster) : std::string();
    if (several && !json_) {
      rows_.push_back(
          {output_.accent(cluster), output_.faint(std::to_string(points.size()) + " code points"), sequence});
    }
    for (const char32_t point : points) {
      const auto [known, isNew] = names_.try_emplace(point);
      if (isNew) known->second = nameOf(point);
      const std::string hex = glyph::toolKit().getHex(point);
      const std::string symbol = glyph::utf8(point);
      if (json_) {
        nlohmann::ordered_json object{
            {"hex", hex}, {"symbol", symbol}, {"name", known->second}, {"cluster", std::string(cluster)}};
        if (!sequence.empty()) object["clusterName"] = sequence;
        array_.add(object.dump());
      } else {
        rows_.push_back({(several ? "  " : "") + output_.accent(visibleSymbol(symbol)), output_.faint(hex),
                         known->second});
      }
    }
  }

  Output& output_;
  JsonArray array_;
  const bool json_;
  const Listing listing_;
  const std::string encoding_;
  bool any_ = false;
  bool hasBadBytes_ = false;
  std::string pending_;  // the end of the text so far, which the next piece may continue
  std::vector<std::vector<std::string>> rows_;
  std::unordered_map<char32_t, std::string> names_;  // names of the code points seen so far
};

// Gives the text to the identification, converted from the encoding if it is not empty.
class Source {
 public:
  Source(Identification& identification, const std::string& encoding) : identification_(identification) {
    if (encoding.empty()) return;
    decoder_.emplace(
        encoding, [this](std::string_view text) { goesOn_ = goesOn_ && identification_.add(text); },
        [this](std::string_view bytes) { goesOn_ = goesOn_ && identification_.addBadBytes(bytes); });
  }

  // Returns false if the output cannot be written.
  bool add(std::string_view bytes) {
    if (!decoder_) return identification_.add(bytes);
    decoder_->add(bytes);
    return goesOn_;
  }

  bool end() {
    if (decoder_) decoder_->end();
    return goesOn_ && identification_.end();
  }

 private:
  Identification& identification_;
  std::optional<Decoder> decoder_;
  bool goesOn_ = true;
};

enum class Reading { done, stopped, failed };

Reading readStandardInput(Source& source) {
  std::string buffer(bytesAtOnce, '\0');
  for (;;) {
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count == 0) return Reading::done;
    if (count > 0) {
      if (!source.add({buffer.data(), static_cast<std::size_t>(count)})) return Reading::stopped;
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

int identifyText(Output& output, const std::vector<std::string>& texts, const std::string& encoding,
                 const Listing& listing) {
  Identification identification(output, listing, encoding.empty() ? "UTF-8" : encoding);
  Source source(identification, encoding);
  Reading reading = Reading::done;
  for (const std::string& text : texts) {
    if (reading != Reading::done) break;
    if (&text != &texts.front() && !source.add(" ")) reading = Reading::stopped;
    if (text == "-")
      reading = readStandardInput(source);
    else if (!source.add(text))
      reading = Reading::stopped;
  }
  if (reading == Reading::failed) return notRead;
  if (reading == Reading::done && !source.end()) reading = Reading::stopped;
  if (reading == Reading::stopped) return output.closed() ? found : wrongUse;
  if (identification.hasBadBytes()) {
    complain(encoding.empty() ? "some bytes are not UTF-8; --from reads other encodings"
                              : "some bytes are not " + encoding);
    return wrongUse;
  }
  return identification.foundAny() ? found : nothingFound;
}

}  // namespace cli
