// SPDX-License-Identifier: MIT
// Calls each function of the C interface with every combination of good and bad arguments. No call may crash.
// With the sanitizers, the test also detects leaks and invalid reads.
#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <limits>
#include <tuple>
#include <type_traits>

#include "glyphorium/c/glyphorium.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

// Good and bad arguments of each parameter type. Each handle is created only once.
struct Arguments {
  Arguments() {
    const char* const codes[] = {"2192", "0041"};
    glyphorium_set_custom_codes(codes, 2);
    glyphorium_configure();
    entities = glyphorium_displayed_entities();
    search = glyphorium_search_all();
    results = glyphorium_search_query(search, "arrow", nullptr);
    parsed = glyphorium_codes_parse("U+2192 &rarr;");
    texts = glyphorium_groups();
    glyphorium_use_memory_index();
  }
  ~Arguments() {
    glyphorium_entities_free(entities);
    glyphorium_search_free(search);
    glyphorium_results_free(results);
    glyphorium_codes_free(parsed);
    glyphorium_texts_free(texts);
  }

  template <class T>
  auto valuesOf() {
    if constexpr (std::is_same_v<T, const char*>) {
      return std::array<const char*, 5>{nullptr, "", "\xC3\x28\xFF", "arrows", "2192,030a"};
    } else if constexpr (std::is_same_v<T, const char* const*>) {
      // NULL follows the elements. A function that reads beyond the end gets it and crashes.
      static const char* const list[] = {"arrows", "\xED\xA0\x80", nullptr};
      return std::array<const char* const*, 2>{nullptr, list};
    } else if constexpr (std::is_same_v<T, std::size_t>) {
      return std::array<std::size_t, 3>{0, 1, GLYPHORIUM_TERMINATED};
    } else if constexpr (std::is_same_v<T, std::uint32_t>) {
      return std::array<std::uint32_t, 4>{0, 0xD800, 0x2192, 0xFFFFFFFF};
    } else if constexpr (std::is_same_v<T, std::int64_t>) {
      return std::array<std::int64_t, 4>{0, std::numeric_limits<std::int64_t>::min(), 0x2192,
                                         std::numeric_limits<std::int64_t>::max()};
    } else if constexpr (std::is_same_v<T, bool>) {
      return std::array<bool, 2>{false, true};
    } else if constexpr (std::is_same_v<T, std::size_t*>) {
      return std::array<std::size_t*, 2>{nullptr, &size};
    } else if constexpr (std::is_same_v<T, bool*>) {
      return std::array<bool*, 2>{nullptr, &flag};
    } else if constexpr (std::is_same_v<T, std::int64_t*> || std::is_same_v<T, const std::int64_t*>) {
      return std::array<T, 2>{nullptr, numbers.data()};
    } else if constexpr (std::is_same_v<T, const glyphorium_entity*>) {
      return std::array<T, 2>{nullptr, glyphorium_entities_at(entities, 0)};
    } else if constexpr (std::is_same_v<T, const glyphorium_entities*>) {
      return std::array<T, 2>{nullptr, entities};
    } else if constexpr (std::is_same_v<T, const glyphorium_search*>) {
      return std::array<T, 2>{nullptr, search};
    } else if constexpr (std::is_same_v<T, const glyphorium_search_options*>) {
      static const char* const groups[] = {"arrows", nullptr};
      static const glyphorium_search_options good{sizeof good, 5, groups, 1, groups, 1};
      static const glyphorium_search_options tooShort{1, 5, groups, 1, groups, 1};
      static const glyphorium_search_options noList{sizeof good, 5, nullptr, 3, nullptr, 3};
      static const glyphorium_search_options tooMany{
          sizeof good, GLYPHORIUM_TERMINATED, groups, 9, groups, 9};
      return std::array<T, 5>{nullptr, &good, &tooShort, &noList, &tooMany};
    } else if constexpr (std::is_same_v<T, const glyphorium_results*>) {
      return std::array<T, 2>{nullptr, results};
    } else if constexpr (std::is_same_v<T, const glyphorium_codes*>) {
      return std::array<T, 2>{nullptr, parsed};
    } else if constexpr (std::is_same_v<T, const glyphorium_texts*>) {
      return std::array<T, 2>{nullptr, texts};
    } else if constexpr (std::is_same_v<T, const glyphorium_pasteboard*> ||
                         std::is_same_v<T, const glyphorium_settings_store*> ||
                         std::is_same_v<T, const glyphorium_index*>) {
      static const std::remove_pointer_t<T> empty{};
      static const auto noFunctions = [] {
        std::remove_const_t<std::remove_pointer_t<T>> structure{};
        structure.struct_size = sizeof structure;
        return structure;
      }();
      return std::array<T, 3>{&empty, &noFunctions,
                              nullptr};  // NULL comes last, because it restores the default
    } else {
      // All other parameters get only NULL or 0: callbacks, `user` pointers, and types of handles that this
      // test does not create.
      return std::array<T, 1>{};
    }
  }

  // Frees the results that belong to the caller.
  static void release(char* text) { glyphorium_free(text); }
  static void release(glyphorium_texts* handle) { glyphorium_texts_free(handle); }
  static void release(glyphorium_entity* handle) { glyphorium_entity_free(handle); }
  static void release(glyphorium_entities* handle) { glyphorium_entities_free(handle); }
  static void release(glyphorium_codes* handle) { glyphorium_codes_free(handle); }
  static void release(glyphorium_search* handle) { glyphorium_search_free(handle); }
  static void release(glyphorium_results* handle) { glyphorium_results_free(handle); }
  static void release(glyphorium_items* handle) { glyphorium_items_free(handle); }
  static void release(glyphorium_observation* handle) { glyphorium_observation_free(handle); }
  // Results of all other types are values or borrowed objects, which must not be freed. A borrowed text must
  // be null-terminated.
  static void release(glyphorium_text text) {
    if (text.data) {
      EXPECT_EQ(text.data[text.size], '\0');
    }
  }
  template <class T>
  static void release(const T&) {}

  template <class Result, class... Parameters>
  void call(Result (*function)(Parameters...)) {
    combine<Result, Parameters...>(function, std::tuple<>());
  }

  template <class Result, class... Parameters, class... Chosen>
  void combine(Result (*function)(Parameters...), std::tuple<Chosen...> chosen) {
    if constexpr (sizeof...(Chosen) == sizeof...(Parameters)) {
      ++calls;
      if constexpr (std::is_void_v<Result>) {
        std::apply(function, chosen);
      } else {
        release(std::apply(function, chosen));
      }
    } else {
      using Next = std::tuple_element_t<sizeof...(Chosen), std::tuple<Parameters...>>;
      for (const Next& value : valuesOf<Next>()) {
        combine(function, std::tuple_cat(chosen, std::tuple<Next>(value)));
      }
    }
  }

  glyphorium_entities* entities;
  glyphorium_search* search;
  glyphorium_results* results;
  glyphorium_codes* parsed;
  glyphorium_texts* texts;
  std::size_t size = 0;
  bool flag = false;
  std::array<std::int64_t, 16> numbers{};
  int calls = 0;
};

TEST(CBadArguments, NeverCauseACrash) {
  const TemporaryDirectory home;
  const ScopedVariable config("XDG_CONFIG_HOME", home.path().string());
  const ScopedVariable data("XDG_DATA_HOME", home.path().string());
  const ScopedVariable x11("DISPLAY", std::nullopt);
  const ScopedVariable wayland("WAYLAND_DISPLAY", std::nullopt);
  glyphorium_set_diagnostics([](void*, const char*, std::size_t) {}, nullptr, nullptr);
  glyphorium_use_memory_settings();
  {
    Arguments arguments;
    const auto callAll = [&](auto... functions) { (arguments.call(functions), ...); };
    callAll(glyphorium_last_status, glyphorium_version, glyphorium_texts_count, glyphorium_texts_at);
    callAll(glyphorium_decimal_of_hex, glyphorium_hex_of_decimal, glyphorium_html_hex_of_hex,
            glyphorium_html_decimal_of_decimal, glyphorium_symbol_of_references, glyphorium_symbol_of_hex,
            glyphorium_decimals_of_hex, glyphorium_html_decimal_of_decimals, glyphorium_swiftui_of_sf_symbol,
            glyphorium_uikit_of_sf_symbol, glyphorium_codes_parse, glyphorium_codes_count,
            glyphorium_codes_code_point, glyphorium_codes_html_name, glyphorium_name_of_hex,
            glyphorium_code_point_named);
    callAll(glyphorium_entities_count, glyphorium_entities_at, glyphorium_entities_decode,
            glyphorium_entity_of, glyphorium_entity_from_hex, glyphorium_entity_copy, glyphorium_entity_hex,
            glyphorium_entity_decimal, glyphorium_entity_html_hex, glyphorium_entity_html_decimal,
            glyphorium_entity_symbol, glyphorium_entity_name, glyphorium_entity_table_name,
            glyphorium_entity_group, glyphorium_entity_is_sf_symbol, glyphorium_entity_is_enriched,
            glyphorium_entity_html_named, glyphorium_entity_better_name, glyphorium_entity_image_name,
            glyphorium_entity_needs_serifs, glyphorium_entity_search_term_count,
            glyphorium_entity_search_term, glyphorium_entity_note_count, glyphorium_entity_note_language,
            glyphorium_entity_note, glyphorium_entity_localized_note, glyphorium_entity_search_string,
            glyphorium_entity_form, glyphorium_form_count, glyphorium_form_identifier,
            glyphorium_form_separator, glyphorium_visible_symbol, glyphorium_runs_right_to_left);
    callAll(glyphorium_search_over, glyphorium_search_is_current, glyphorium_search_query,
            glyphorium_results_count, glyphorium_results_total, glyphorium_results_approximate,
            glyphorium_results_entity, glyphorium_results_position, glyphorium_results_field,
            glyphorium_results_exact, glyphorium_results_cost, glyphorium_results_range_count,
            glyphorium_results_range, glyphorium_nearest_texts);
    callAll(glyphorium_all_entities, glyphorium_custom_entities, glyphorium_resolve, glyphorium_groups,
            glyphorium_group_count, glyphorium_group_named, glyphorium_displayed_groups,
            glyphorium_set_displayed_groups, glyphorium_add_displayed_group,
            glyphorium_remove_displayed_group, glyphorium_displayed_groups_changed,
            glyphorium_set_displayed_groups_changed, glyphorium_rebuild_displayed, glyphorium_forbidden_codes,
            glyphorium_set_forbidden_codes, glyphorium_custom_codes, glyphorium_set_custom_codes,
            glyphorium_add_custom_codes, glyphorium_remove_custom_codes, glyphorium_choices_failure,
            glyphorium_indexes_custom, glyphorium_set_indexes_custom, glyphorium_desktop_searches_catalog,
            glyphorium_set_desktop_searches_catalog, glyphorium_languages, glyphorium_set_languages,
            glyphorium_embedded_text_count, glyphorium_embedded_text_name, glyphorium_embedded_text);
    callAll(glyphorium_observe, glyphorium_post, glyphorium_copy, glyphorium_set_pasteboard,
            glyphorium_reply_text, glyphorium_set_settings_store, glyphorium_use_memory_settings,
            glyphorium_setting, glyphorium_set_setting, glyphorium_synchronize_settings,
            glyphorium_setting_failure, glyphorium_items_count, glyphorium_items_identifier,
            glyphorium_items_keyword_count, glyphorium_items_keyword, glyphorium_items_comment,
            glyphorium_index_add, glyphorium_index_remove, glyphorium_index_reset, glyphorium_index_wait,
            glyphorium_index_search, glyphorium_index_count, glyphorium_request_done, glyphorium_set_index,
            glyphorium_set_lock_wait, glyphorium_application_identifier);
    callAll(glyphorium_texts_free, glyphorium_entity_free, glyphorium_entities_free, glyphorium_codes_free,
            glyphorium_search_free, glyphorium_results_free, glyphorium_items_free,
            glyphorium_observation_free, glyphorium_free);
    EXPECT_GT(arguments.calls, 1'000);
  }
  // After all these calls, the interface must still work.
  EXPECT_TRUE(glyphorium_set_languages(nullptr, 0));
  char* const symbol = glyphorium_symbol_of_hex("2192", nullptr);
  EXPECT_STREQ(symbol, "→");
  glyphorium_free(symbol);
  glyphorium_set_forbidden_codes(nullptr, 0);
  glyphorium_set_settings_store(nullptr, nullptr, nullptr);
  glyphorium_set_diagnostics(nullptr, nullptr, nullptr);
}

}  // namespace
}  // namespace glyph
