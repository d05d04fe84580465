// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <mutex>
#include <nlohmann/json.hpp>

#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/services/search_index/searchable_index_reader.h"
#include "glyphorium/services/settings/settings_store.h"
#include "glyphorium/state/settings.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace cli {
namespace {

using glyph::Entity;

// Provides completions for index requests, and keeps the first error that one of them receives. The
// completions run on the index's own thread.
class Errors {
 public:
  glyph::SearchableIndex::Completion completion() {
    return [this](std::optional<std::string> error) {
      const std::lock_guard lock(mutex_);
      if (error && first_.empty()) first_ = *error;
    };
  }
  std::string first() {
    const std::lock_guard lock(mutex_);
    return first_;
  }

 private:
  std::mutex mutex_;
  std::string first_;
};

// A progress bar on standard error. It is shown only if standard error is a terminal and there are more than
// 500 elements.
class ProgressBar {
 public:
  explicit ProgressBar(std::size_t total) : total_(total), shown_(isatty(STDERR_FILENO) && total > 500) {}
  ~ProgressBar() {
    if (shown_) std::fputs("\r\x1b[K", stderr);
  }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void show(std::size_t left) const {
    if (!shown_) return;
    constexpr std::size_t width = 40;
    const std::size_t done = total_ - std::min(left, total_);
    std::string bar;
    for (std::size_t i = 0; i < width; ++i) bar += i * total_ < done * width ? "█" : "░";
    std::fprintf(stderr, "\r%s %zu of %zu", bar.c_str(), done, total_);
  }

 private:
  std::size_t total_;
  bool shown_;
};

// Sends the elements to the index with several calls of `request`, each with a portion of the elements, so
// that the progress bar moves. Waits until the index has finished. Returns the exit code.
template <class Element, class Request>
int carryOut(const std::vector<Element>& elements, Request request) {
  constexpr std::size_t portion = 1000;
  static Errors errors;  // static, because completions may run after a timeout
  for (std::size_t begin = 0; begin < elements.size(); begin += portion) {
    const std::size_t end = std::min(begin + portion, elements.size());
    request(std::vector<Element>(elements.begin() + static_cast<std::ptrdiff_t>(begin),
                                 elements.begin() + static_cast<std::ptrdiff_t>(end)),
            errors.completion());
  }
  const ProgressBar bar(elements.size());
  const bool done = glyph::searchableIndex()->waitUntilIdle(std::chrono::minutes(5),
                                                            [&](auto left) { bar.show(left.items); });
  const std::string error = done ? errors.first() : "it takes too long";
  if (error.empty()) return found;
  complain("the search index could not be changed: " + error);
  return notWritten;
}

// If the index could not be read, prints the reason and returns true.
bool complainOfReading(const glyph::SearchableIndexReader& reader) {
  if (reader.error().empty()) return false;
  complain("the search index cannot be read: " + reader.error());
  return true;
}

// Appends the entities of the groups and characters in `arguments` to `entities`, each code point once. If
// `all` is true, appends the whole catalog. Returns false, after an error message, if an argument is neither
// a group nor a character.
bool collect(const std::vector<std::string>& arguments, bool all, std::vector<Entity>& entities) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  std::map<std::string, bool> seen;
  const auto append = [&](const Entity& entity) {
    if (std::exchange(seen[entity.computed.hex], true)) return;
    entities.push_back(entity);
  };
  const auto appendGroup = [&](const std::string* group) {
    for (const auto* list : {&catalog.allCustomEntities.get(), &catalog.buildInEntities()}) {
      for (const Entity& entity : *list) {
        if (!group || entity.computed.group == *group) append(entity);
      }
    }
  };
  if (all) appendGroup(nullptr);
  for (const std::string& argument : arguments) {
    if (const auto group = groupNamed(argument)) {
      appendGroup(&*group);
      continue;
    }
    const std::vector<Character> characters = glyph::resolve(argument).characters;
    if (characters.empty()) {
      complain("'" + argument + "' is no character, and " + unknownGroup(argument));
      return false;
    }
    for (const Character& character : characters) {
      for (const Entity& entity : character) append(entity);
    }
  }
  return true;
}

}  // namespace

int showIndexStatus(Output& output, bool json) {
  const bool enabled = glyph::EntityUserData::useSpotlightExtension();
  glyph::SearchableIndexReader reader;
  const std::size_t count = reader.count();
  if (complainOfReading(reader)) return notWritten;
  if (json) {
    output.printLine(nlohmann::ordered_json{{"enabled", enabled}, {"items", count}}.dump());
  } else {
    output.printTable({{"Added characters are indexed", enabled ? "yes" : "no"},
                       {"Characters in the index", std::to_string(count)}});
  }
  return found;
}

int addToIndex(Output& output, const std::vector<std::string>& arguments, bool all) {
  std::vector<Entity> entities;
  if (!collect(arguments, all, entities)) return wrongUse;
  std::vector<glyph::SearchableItem> items;
  items.reserve(entities.size());
  for (const Entity& entity : entities) items.push_back(glyph::toolKit().searchableItem(entity));
  const int exitCode = carryOut(items, [](auto portion, auto completion) {
    glyph::searchableIndex()->indexItems(std::move(portion), std::move(completion));
  });
  if (exitCode == found) output.printLine("Indexed " + std::to_string(items.size()) + " characters");
  return exitCode;
}

int removeFromIndex(Output& output, const std::vector<std::string>& arguments, bool all) {
  glyph::SearchableIndexReader reader;
  const std::size_t before = reader.count();
  int exitCode = found;
  if (all) {
    exitCode = carryOut(std::vector<int>(1), [](auto, auto completion) {
      glyph::searchableIndex()->deleteAllItems(std::move(completion));
    });
  } else {
    std::vector<Entity> entities;
    if (!collect(arguments, false, entities)) return wrongUse;
    std::vector<std::string> identifiers;
    for (const Entity& entity : entities) identifiers.push_back(entity.computed.hex);
    exitCode = carryOut(identifiers, [](auto portion, auto completion) {
      glyph::searchableIndex()->deleteItems(std::move(portion), std::move(completion));
    });
  }
  if (exitCode != found) return exitCode;
  const std::size_t after = std::min(before, reader.count());  // another program may have added items
  output.printLine("Removed " + std::to_string(before - after) + " characters from the index");
  return found;
}

int searchIndex(Output& output, const std::vector<std::string>& words, int limit, bool json) {
  glyph::SearchableIndexReader reader;
  const auto items = reader.search(joined(words, " "), limit);
  if (complainOfReading(reader)) return notWritten;
  std::vector<std::string> objects;
  std::vector<std::vector<std::string>> rows;
  for (const glyph::SearchableItem& item : items) {
    // A host may have indexed bytes that are not UTF-8. They are replaced, because dump() would throw.
    objects.push_back(nlohmann::ordered_json{
        {"hex", item.uniqueIdentifier}, {"name", item.name()}, {"symbol", item.symbol}, {"group", item.genre}}
                          .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
    rows.push_back({output.accent(visibleSymbol(item.symbol)), output.faint(item.uniqueIdentifier),
                    item.name(), output.faint(item.genre)});
  }
  json ? printJsonArray(output, objects) : output.printTable(rows);
  if (items.empty() && reader.count() == 0) {
    complain("the index is empty; 'glyphorium index add --all' puts the whole catalog into it");
  }
  return items.empty() ? nothingFound : found;
}

int enableIndex(Output& output, bool enable) {
  glyph::EntityUserData::setUseSpotlightExtension(enable);
  if (!glyph::settingsStore()->synchronize()) {
    complainOfFailure("the choice could not be saved");
    return notWritten;
  }
  output.printLine(enable ? "Characters that you add are indexed from now on"
                          : "Characters that you add are not indexed any more; those in the index stay");
  return found;
}

}  // namespace cli
