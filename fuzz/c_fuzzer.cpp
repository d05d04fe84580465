// SPDX-License-Identifier: MIT
// Passes two texts of arbitrary bytes to the functions of the C interface. The first byte of the input is the
// length of the first text. Every result is read to its end and freed, so that the sanitizers detect wrong
// lifetimes and lengths.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fuzz/require.h"
#include "glyphorium/c/glyphorium.h"

namespace {

using fuzzing::require;
volatile unsigned char sink;

void read(glyphorium_text text) {
  for (std::size_t i = 0; i < text.size; ++i) sink = static_cast<unsigned char>(text.data[i]);
  require(!text.data || text.data[text.size] == '\0', "a NUL follows each text");
}

void release(char* text, std::size_t size) {
  if (text) read({text, size});
  glyphorium_free(text);
}

void read(const glyphorium_entity* entity) {
  read(glyphorium_entity_hex(entity));
  read(glyphorium_entity_symbol(entity));
  read(glyphorium_entity_name(entity));
  read(glyphorium_entity_group(entity));
  read(glyphorium_entity_html_named(entity));
  for (std::size_t i = 0; i < glyphorium_entity_search_term_count(entity); ++i) {
    read(glyphorium_entity_search_term(entity, i));
  }
  for (std::size_t i = 0; i < glyphorium_entity_note_count(entity); ++i)
    read(glyphorium_entity_note(entity, i));
  std::size_t size = 0;
  for (std::size_t i = 0; i < glyphorium_form_count(); ++i) {
    size = 0;
    char* const form = glyphorium_entity_form(entity, glyphorium_form_identifier(i).data, &size);
    release(form, size);
  }
  char* const words = glyphorium_entity_search_string(entity, &size);
  release(words, size);
}

void read(glyphorium_entities* entities) {
  for (std::size_t i = 0; i < std::min<std::size_t>(glyphorium_entities_count(entities), 20); ++i) {
    read(glyphorium_entities_at(entities, i));
  }
  glyphorium_entities_free(entities);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool ready = [] {
    glyphorium_set_diagnostics([](void*, const char*, std::size_t) {}, nullptr, nullptr);
    return glyphorium_use_memory_settings() && glyphorium_use_memory_index() && glyphorium_configure();
  }();
  require(ready, "the catalog is configured");
  if (size == 0) return 0;
  const std::size_t split = std::min<std::size_t>(data[0], size - 1);
  const std::string first(reinterpret_cast<const char*>(data) + 1, split);
  const std::string second(reinterpret_cast<const char*>(data) + 1 + split, size - 1 - split);
  const char* const a = first.c_str();
  const char* const b = second.c_str();

  std::size_t length = 0;
  char* text = glyphorium_visible_symbol(a, first.size(), &length);
  release(text, length);
  text = glyphorium_symbol_of_references(a, first.size(), &length);
  release(text, length);
  text = glyphorium_symbol_of_hex(b, &length);
  release(text, length);
  glyphorium_free(glyphorium_html_hex_of_hex(b));
  std::int64_t decimals[4];
  const std::size_t count = glyphorium_decimals_of_hex(b, decimals, 4);
  glyphorium_free(glyphorium_html_decimal_of_decimals(decimals, std::min<std::size_t>(count, 4)));

  glyphorium_codes* const codes = glyphorium_codes_parse(a);
  for (std::size_t i = 0; i < glyphorium_codes_count(codes); ++i) read(glyphorium_codes_html_name(codes, i));
  glyphorium_codes_free(codes);

  glyphorium_entity* const entity = glyphorium_entity_from_hex(b);
  read(entity);
  glyphorium_entity_free(entity);
  bool alternatives = false;
  // Resolving a name and searching for words are slow, because they read the whole catalog, so only some
  // inputs do this. The search has its own fuzzer.
  const bool isSlowRound = size % 16 == 0;
  if (isSlowRound || first.size() < 5) read(glyphorium_resolve(a, first.size(), &alternatives));
  glyphorium_entities* const decoded = glyphorium_entities_decode(a, first.size(), b, second.size());
  if (decoded) {
    glyphorium_search* const own = glyphorium_search_over(decoded);
    glyphorium_results_free(glyphorium_search_query(own, b, nullptr));
    glyphorium_search_free(own);
    read(decoded);
  }

  if (glyphorium_set_setting(a, b)) {
    char* const stored = glyphorium_setting(a, &length);
    require(stored != nullptr, "a stored value can be read");
    release(stored, length);
  }
  if (!isSlowRound) return 0;
  static glyphorium_search* const all = glyphorium_search_all();
  const char* const groups[] = {b};
  const glyphorium_search_options options{sizeof options, 3, groups, 1, groups, second.size() % 2};
  glyphorium_results* const results = glyphorium_search_query(all, a, &options);
  for (std::size_t i = 0; i < glyphorium_results_count(results); ++i)
    read(glyphorium_results_entity(results, i));
  glyphorium_results_free(results);

  return 0;
}
