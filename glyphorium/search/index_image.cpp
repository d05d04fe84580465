// SPDX-License-Identifier: MIT
#include "glyphorium/search/index_image.h"

#include <cstring>
#include <type_traits>

extern "C" {
extern const std::byte glyphoriumSearchIndex[];
extern const std::byte glyphoriumSearchIndexEnd[];
extern const std::byte glyphoriumSupplementIndex[];
extern const std::byte glyphoriumSupplementIndexEnd[];
}

namespace glyph::search {
namespace {

constexpr std::size_t alignment = 8;

std::size_t aligned(std::size_t size) {
  return (size + alignment - 1) / alignment * alignment;
}

// Visits the parts of an index in the order in which they are stored in an image. An image begins with the
// number of elements of each part, as 64-bit integers. The parts follow, each at an aligned offset.
template <class SomeIndex, class Visit>
void forEachPart(SomeIndex& index, Visit visit) {
  const auto visitTexts = [&](auto& texts) {
    visit(texts.bytes);
    visit(texts.begins);
  };
  visit(index.docEntity);
  visit(index.docCodePoint);
  visit(index.docPrior);
  visitTexts(index.names);
  visit(index.byCodePoint);
  visit(index.shapes);
  visit(index.phrases);
  visit(index.phraseStart);
  visitTexts(index.words);
  visit(index.postingStart);
  visit(index.postings);
  visitTexts(index.signs);
  visit(index.signPostings);
  visitTexts(index.htmlNames);
  visit(index.htmlDocs);
  visitTexts(index.groupNames);
  visitTexts(index.groupWords);
  visit(index.groupDocStart);
  visit(index.groupDocs);
  visitTexts(index.languages);
}

std::size_t partCount() {
  std::size_t count = 0;
  const Index none;
  forEachPart(none, [&](const auto&) { ++count; });
  return count;
}

}  // namespace

IndexImage packed(const Index& index) {
  std::size_t size = partCount() * sizeof(std::uint64_t);
  forEachPart(index, [&](const auto& part) { size += aligned(part.size_bytes()); });
  IndexImage image(size);
  std::byte* count = image.data();
  std::byte* place = count + partCount() * sizeof(std::uint64_t);
  forEachPart(index, [&](const auto& part) {
    const std::uint64_t elements = part.size();
    std::memcpy(count, &elements, sizeof elements);
    count += sizeof elements;
    if (!part.empty()) std::memcpy(place, part.data(), part.size_bytes());
    place += aligned(part.size_bytes());
  });
  return image;
}

Index openIndex(std::span<const std::byte> image) {
  Index index;
  const std::byte* count = image.data();
  const std::byte* place = count + partCount() * sizeof(std::uint64_t);
  forEachPart(index, [&](auto& part) {
    using Element = typename std::remove_reference_t<decltype(part)>::element_type;
    static_assert(std::is_trivially_copyable_v<Element> && alignof(Element) <= alignment);
    std::uint64_t elements = 0;
    std::memcpy(&elements, count, sizeof elements);
    count += sizeof elements;
    part = {reinterpret_cast<Element*>(place), elements};
    place += aligned(part.size_bytes());
  });
  if (index.docEntity.empty()) index.docEntity = index.docCodePoint;
  return index;
}

std::span<const std::byte> catalogIndexImage() {
  return {glyphoriumSearchIndex, glyphoriumSearchIndexEnd};
}

std::span<const std::byte> supplementIndexImage() {
  return {glyphoriumSupplementIndex, glyphoriumSupplementIndexEnd};
}

}  // namespace glyph::search
