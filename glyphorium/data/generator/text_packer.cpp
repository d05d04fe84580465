// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/text_packer.h"

#include <algorithm>
#include <map>
#include <utility>

#include "glyphorium/data/packed_texts.h"

namespace glyph::generator {
namespace {

constexpr std::size_t mostPieces = PackedTexts::literal - 1;
constexpr int rounds = 8;
constexpr std::size_t sampleSize = 200'000;  // in bytes; a larger sample hardly improves the pieces

}  // namespace

// Each round splits the lines into the current pieces. The pieces for the next round are chosen from these
// pieces and from all pairs of adjacent pieces: those that cover the most bytes. So the pieces grow from
// single bytes to frequent words.
TextPacker::TextPacker(const std::vector<std::string>& lines) {
  std::size_t size = 0;
  for (const std::string& line : lines) size += line.size();
  const std::size_t step = size / sampleSize + 1;
  for (int round = 0; round < rounds; ++round) {
    std::map<std::string, std::size_t> bytes;  // the number of bytes that a piece covers in all lines
    const std::size_t none = pieces_.size();
    std::map<std::pair<std::size_t, std::size_t>, std::size_t> pairs;
    for (std::size_t i = 0; i < lines.size(); i += step) {
      std::size_t before = none + 256;
      for (std::string_view rest = lines[i]; !rest.empty();) {
        std::size_t number = longestAt(rest);
        if (number == none) number += static_cast<unsigned char>(rest.front());
        const std::size_t piece = number < none ? pieces_[number].size() : 1;
        bytes[std::string(rest.substr(0, piece))] += piece;
        if (before < none + 256) ++pairs[{before, number}];
        before = number;
        rest.remove_prefix(piece);
      }
    }
    const auto text = [&](std::size_t number) {
      return number < none ? pieces_[number] : std::string(1, static_cast<char>(number - none));
    };
    for (const auto& [pair, count] : pairs) {
      const std::string both = text(pair.first) + text(pair.second);
      if (both.size() <= PackedTexts::longestPiece) bytes[both] += count * both.size();
    }
    std::vector<std::pair<std::size_t, std::string>> order;
    for (const auto& [piece, count] : bytes) order.emplace_back(count, piece);
    std::sort(order.rbegin(), order.rend());
    std::vector<std::string> best;
    for (std::size_t i = 0; i < std::min(order.size(), mostPieces); ++i) best.push_back(order[i].second);
    choose(std::move(best));
  }
}

void TextPacker::choose(std::vector<std::string> pieces) {
  pieces_ = std::move(pieces);
  for (auto& numbers : byFirst_) numbers.clear();
  for (std::size_t i = 0; i < pieces_.size(); ++i)
    byFirst_[static_cast<unsigned char>(pieces_[i].front())].push_back(i);
  for (auto& numbers : byFirst_) {
    std::sort(numbers.begin(), numbers.end(),
              [&](std::size_t a, std::size_t b) { return pieces_[a].size() > pieces_[b].size(); });
  }
}

std::size_t TextPacker::longestAt(std::string_view text) const {
  for (const std::size_t number : byFirst_[static_cast<unsigned char>(text.front())]) {
    if (text.starts_with(pieces_[number])) return number;
  }
  return pieces_.size();
}

std::string TextPacker::pieces() const {
  std::string bytes;
  for (const std::string& piece : pieces_) {
    bytes += static_cast<char>(piece.size());
    bytes += piece;
    bytes.append(PackedTexts::longestPiece - piece.size(), '\0');
  }
  return bytes;
}

std::string TextPacker::packed(std::string_view line) const {
  std::string bytes;
  while (!line.empty()) {
    const std::size_t number = longestAt(line);
    if (number == pieces_.size()) {
      bytes += static_cast<char>(PackedTexts::literal);
      bytes += line.front();
      line.remove_prefix(1);
      continue;
    }
    bytes += static_cast<char>(number + 1);
    line.remove_prefix(pieces_[number].size());
  }
  return bytes += static_cast<char>(PackedTexts::endOfLine);
}

}  // namespace glyph::generator
