// SPDX-License-Identifier: MIT
// Tests a host that uses the C interface, with its own settings store, clipboard, index and observers.
#include <gmock/gmock.h>

#include <map>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "glyphorium/c/glyphorium.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/search/catalog_search.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using namespace std::string_view_literals;

std::string_view view(glyphorium_text text) {
  return text.data ? std::string_view(text.data, text.size) : std::string_view("(none)");
}
std::string taken(char* text) {
  std::string result = text ? text : "(none)";
  glyphorium_free(text);
  return result;
}
std::vector<std::string> taken(glyphorium_texts* texts) {
  std::vector<std::string> result;
  for (std::size_t i = 0; i < glyphorium_texts_count(texts); ++i) {
    result.emplace_back(view(glyphorium_texts_at(texts, i)));
  }
  glyphorium_texts_free(texts);
  return result;
}

class CHost : public testing::Test {
 protected:
  CHost() {
    glyphorium_set_diagnostics([](void* user, const char*, std::size_t) { ++self(user).lines; }, this, ended);
    const glyphorium_settings_store store{
        .struct_size = sizeof store,
        .read =
            [](void* user, const char* key, glyphorium_reply* reply) {
              const auto found = self(user).values.find(key);
              if (found == self(user).values.end()) return;
              glyphorium_reply_text(reply, found->second.data(), found->second.size());
            },
        .write = [](void* user, const char* key, const char* json,
                    std::size_t size) { self(user).values[key] = std::string(json, size); },
        .synchronize = [](void* user) { return !self(user).full; },
        .lock = [](void* user) { ++self(user).locks; },
        .unlock = [](void* user) { ++self(user).unlocks; },
        .read_failure =
            [](void* user, const char*, glyphorium_reply* reply) {
              if (self(user).full) glyphorium_reply_text(reply, "it is full", GLYPHORIUM_TERMINATED);
            },
    };
    EXPECT_TRUE(glyphorium_set_settings_store(&store, this, ended));
    const glyphorium_pasteboard clipboard{.struct_size = sizeof clipboard,
                                          .set_text = [](void* user, const char* text, std::size_t size) {
                                            self(user).copied.assign(text, size);
                                            return !self(user).full;
                                          }};
    EXPECT_TRUE(glyphorium_set_pasteboard(&clipboard, this, ended));
    const glyphorium_index index{
        .struct_size = sizeof index,
        .add =
            [](void* user, const glyphorium_items* items, glyphorium_request* request) {
              for (std::size_t i = 0; i < glyphorium_items_count(items); ++i) {
                self(user).indexed.emplace_back(view(glyphorium_items_title(items, i)));
              }
              // Report the end of the request on another thread, which the index of a host may do.
              std::thread([=] { glyphorium_request_done(request, nullptr); }).join();
            },
        .remove =
            [](void* user, const char* const* identifiers, std::size_t count, glyphorium_request* request) {
              for (std::size_t i = 0; i < count; ++i) self(user).removed.emplace_back(identifiers[i]);
              glyphorium_request_done(request, "not now");
            },
        .remove_all = [](void*, glyphorium_request* request) { glyphorium_request_done(request, nullptr); },
        .wait = nullptr,
    };
    EXPECT_TRUE(glyphorium_set_index(&index, this, ended));
  }
  ~CHost() override {
    glyphorium_set_settings_store(nullptr, nullptr, nullptr);
    glyphorium_set_pasteboard(nullptr, nullptr, nullptr);
    glyphorium_set_index(nullptr, nullptr, nullptr);
    glyphorium_set_diagnostics(nullptr, nullptr, nullptr);
    EXPECT_EQ(ends, 4) << "each `user` is freed once, when its service is replaced";
  }

  static CHost& self(void* user) { return *static_cast<CHost*>(user); }
  static void ended(void* user) { ++self(user).ends; }

  std::map<std::string, std::string> values;
  std::string copied;
  std::vector<std::string> indexed, removed;
  int lines = 0, locks = 0, unlocks = 0, ends = 0;
  bool full = false;
};

TEST_F(CHost, KeepsTheUsersChoicesInItsOwnStore) {
  values["displayedGroups"] = R"(["arrows"])";
  ASSERT_TRUE(glyphorium_configure());
  EXPECT_GT(lines, 0);
  EXPECT_EQ(glyphorium_group_count("arrows"), 112);
  EXPECT_EQ(taken(glyphorium_group_named("ARROWS")), "arrows");

  const char* const codes[] = {"2192", "1f600"};
  ASSERT_TRUE(glyphorium_add_custom_codes(codes, 2));
  EXPECT_EQ(values["customAddedEntities"], R"(["2192","1f600"])");
  EXPECT_THAT(taken(glyphorium_displayed_groups()), ElementsAre("custom", "arrows"));
  EXPECT_THAT(indexed, ElementsAre("→\tRightwards Arrow", "😀\tGrinning Face"));
  EXPECT_GT(locks, 0);
  EXPECT_EQ(locks, unlocks);
  ASSERT_TRUE(glyphorium_remove_custom_codes(codes, 1));
  EXPECT_THAT(taken(glyphorium_custom_codes()), ElementsAre("1f600"));
  EXPECT_THAT(removed, testing::Contains("2192"));

  EXPECT_EQ(taken(glyphorium_choices_failure()), "(none)");
  full = true;
  EXPECT_FALSE(glyphorium_add_custom_codes(codes, 1));
  EXPECT_EQ(glyphorium_last_status(), static_cast<glyphorium_status>(GLYPHORIUM_FAILED));
  EXPECT_EQ(taken(glyphorium_choices_failure()), "it is full");
}

TEST_F(CHost, ReadsTheCatalog) {
  ASSERT_TRUE(glyphorium_configure());
  glyphorium_entities* const all = glyphorium_all_entities();
  EXPECT_EQ(glyphorium_entities_count(all), glyphorium().buildInEntities().size());
  glyphorium_entities_free(all);

  bool alternatives = true;
  glyphorium_entities* const found = glyphorium_resolve("&", 1, &alternatives);
  ASSERT_EQ(glyphorium_entities_count(found), 1u);
  EXPECT_FALSE(alternatives);
  const glyphorium_entity* const ampersand = glyphorium_entities_at(found, 0);
  EXPECT_EQ(view(glyphorium_entity_name(ampersand)), "Ampersand");
  EXPECT_EQ(view(glyphorium_entity_html_named(ampersand)), "&amp;");
  EXPECT_EQ(taken(glyphorium_entity_form(ampersand, "html-decimal", nullptr)), "&#38;");
  EXPECT_EQ(taken(glyphorium_entity_form(ampersand, "swiftui", nullptr)), "(none)");
  EXPECT_EQ(glyphorium_last_status(), static_cast<glyphorium_status>(GLYPHORIUM_OK));
  glyphorium_entities_free(found);

  glyphorium_entity* const null = glyphorium_entity_of(0);
  EXPECT_EQ(glyphorium_entity_symbol(null).size, 1u) << "U+0000 is one byte";
  EXPECT_EQ(view(glyphorium_entity_html_named(null)), "(none)");
  glyphorium_entity_free(null);
}

TEST_F(CHost, GetsTheSameResultsAsTheCppSearch) {
  glyphorium_search* const search = glyphorium_search_all();
  const CatalogSearch same;
  for (const char* const query :
       {"arrow left", "arow", "pfeil", "zzzz", "U+2192", "magic wand", "flag germany"}) {
    const SearchResults expected = same.query(query);
    glyphorium_results* const results = glyphorium_search_query(search, query, nullptr);
    EXPECT_EQ(glyphorium_results_total(results), expected.total);
    EXPECT_EQ(glyphorium_results_approximate(results), expected.approximate);
    ASSERT_EQ(glyphorium_results_count(results), expected.results.size());
    for (std::size_t i = 0; i < expected.results.size(); ++i) {
      EXPECT_EQ(view(glyphorium_entity_hex(glyphorium_results_entity(results, i))),
                same.entity(expected.results[i]).computed.hex);
      EXPECT_EQ(glyphorium_results_field(results, i), static_cast<std::uint32_t>(expected.results[i].field));
      std::vector<SearchRange> ranges(glyphorium_results_range_count(results, i));
      for (std::size_t k = 0; k < ranges.size(); ++k) {
        EXPECT_TRUE(glyphorium_results_range(results, i, k, &ranges[k].begin, &ranges[k].end));
      }
      EXPECT_EQ(ranges, expected.results[i].nameRanges);
    }
    glyphorium_results_free(results);
  }
  glyphorium_search_free(search);
}

TEST_F(CHost, CopiesAndIsNotified) {
  std::string notified;
  const auto observer = [](void* user, const char* name, glyphorium_text object) {
    *static_cast<std::string*>(user) += std::string(name) + " " + std::string(view(object)) + ";";
  };
  glyphorium_observation* const observation =
      glyphorium_observe("entityCopied", observer, &notified, nullptr);
  EXPECT_TRUE(glyphorium_copy("a\0b", 3, nullptr));
  EXPECT_EQ(copied, std::string("a\0b", 3));
  EXPECT_TRUE(glyphorium_copy("→", GLYPHORIUM_TERMINATED, "Arrow"));
  glyphorium_observation_free(observation);
  EXPECT_TRUE(glyphorium_copy("x", 1, nullptr));
  EXPECT_EQ(notified, "entityCopied a\0b;entityCopied Arrow;"sv);
  full = true;
  EXPECT_FALSE(glyphorium_copy("x", 1, nullptr));
}

TEST_F(CHost, ReadsTheErrorOfARequest) {
  ASSERT_TRUE(glyphorium_configure());
  glyphorium_entities* const entities = glyphorium_custom_entities();
  std::string error;
  const auto done = [](void* user, glyphorium_text text) { *static_cast<std::string*>(user) = view(text); };
  EXPECT_TRUE(glyphorium_index_add(entities, done, &error));
  EXPECT_EQ(error, "(none)");
  EXPECT_TRUE(glyphorium_index_remove(entities, done, &error));
  EXPECT_EQ(error, "not now");
  EXPECT_TRUE(glyphorium_index_wait(1'000));
  glyphorium_entities_free(entities);
}

}  // namespace
}  // namespace glyph
