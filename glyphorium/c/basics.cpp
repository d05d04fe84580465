// SPDX-License-Identifier: MIT
#include "glyphorium/c/basics.h"

#include <cstdlib>

#include "glyphorium/c/handles.h"
#include "glyphorium/version.h"

namespace glyph::c {
namespace {

thread_local glyphorium_status lastStatus = GLYPHORIUM_OK;

}  // namespace

void setStatus(glyphorium_status status) noexcept {
  lastStatus = status;
}

char* owned(std::string_view text, std::size_t* size) {
  char* const copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (!copy) throw std::bad_alloc();
  if (!text.empty()) std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = '\0';
  if (size) *size = text.size();
  return copy;
}

std::optional<std::vector<std::string>> textsOf(const char* const* texts, std::size_t count) {
  if (!texts && count > 0) return std::nullopt;
  std::vector<std::string> result;
  for (std::size_t i = 0; i < count; ++i) {
    if (!texts[i]) return std::nullopt;
    result.emplace_back(texts[i]);
  }
  return result;
}

}  // namespace glyph::c

using namespace glyph::c;

glyphorium_status glyphorium_last_status(void) {
  return lastStatus;
}

const char* glyphorium_version(void) {
  return GlyphoriumVersionString;
}

void glyphorium_free(char* text) {
  std::free(text);
}

size_t glyphorium_texts_count(const glyphorium_texts* texts) {
  if (!texts) return InvalidArgument();
  return texts->list.size();
}

glyphorium_text glyphorium_texts_at(const glyphorium_texts* texts, size_t index) {
  if (!texts || index >= texts->list.size()) return InvalidArgument();
  return borrowed(texts->list[index]);
}

void glyphorium_texts_free(glyphorium_texts* texts) {
  delete texts;
}
