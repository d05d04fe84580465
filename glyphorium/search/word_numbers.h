// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace glyph::search {

/// Gives each distinct word a number, in the order in which the words first appear. This is a hash table with
/// open addressing that stores all words in one block of bytes. With std::unordered_map, which allocates
/// memory for each of about 20,000 words, building an index takes 20 percent longer.
class WordNumbers {
 public:
  WordNumbers() : slots_(1u << 10, empty) { offsets_.push_back(0); }

  std::uint32_t number(std::string_view word) {
    const std::uint64_t hash = hashOf(word);
    for (std::size_t slot = hash & (slots_.size() - 1);; slot = (slot + 1) & (slots_.size() - 1)) {
      const std::uint32_t known = slots_[slot];
      if (known == empty) return add(word, hash, slot);
      if (hashes_[known] == static_cast<std::uint32_t>(hash >> 32) && this->word(known) == word) return known;
    }
  }

  std::uint32_t size() const { return static_cast<std::uint32_t>(hashes_.size()); }
  std::size_t blobSize() const { return blob_.size(); }
  std::string_view word(std::uint32_t number) const {
    return {blob_.data() + offsets_[number], offsets_[number + 1] - offsets_[number]};
  }

 private:
  static constexpr std::uint32_t empty = 0xFFFFFFFF;

  static std::uint64_t hashOf(std::string_view word) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : word) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return hash ^ hash >> 29;
  }

  std::uint32_t add(std::string_view word, std::uint64_t hash, std::size_t slot) {
    const std::uint32_t number = size();
    hashes_.push_back(static_cast<std::uint32_t>(hash >> 32));
    blob_ += word;
    offsets_.push_back(static_cast<std::uint32_t>(blob_.size()));
    slots_[slot] = number;
    if (hashes_.size() * 2 > slots_.size()) grow();
    return number;
  }

  void grow() {
    slots_.assign(slots_.size() * 2, empty);
    for (std::uint32_t number = 0; number < size(); ++number) {
      std::size_t slot = hashOf(word(number)) & (slots_.size() - 1);
      while (slots_[slot] != empty) slot = (slot + 1) & (slots_.size() - 1);
      slots_[slot] = number;
    }
  }

  std::vector<std::uint32_t> slots_;
  std::vector<std::uint32_t> hashes_;
  std::vector<std::uint32_t> offsets_;
  std::string blob_;
};

}  // namespace glyph::search
