// SPDX-License-Identifier: MIT
#include "glyphorium/text/preferred_languages.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <mutex>
#include <string_view>
#include <utility>

#include "glyphorium/text/ascii.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

struct Override {
  std::mutex mutex;
  std::optional<std::vector<std::string>> languages;
};

Override& hostOverride() {
  static NeverDestroyed<Override> instance;
  return *instance;
}

std::string_view environment(const char* variable) {
  const char* const value = std::getenv(variable);
  return value ? value : "";
}

// Removes and returns the text before the first of the separators, and that separator.
std::string_view takePart(std::string_view& text, std::string_view separators) {
  const std::size_t end = std::min(text.find_first_of(separators), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

bool allOf(std::string_view text, bool (*predicate)(char)) {
  return std::all_of(text.begin(), text.end(), predicate);
}

std::string_view scriptOfModifier(std::string_view modifier) {
  constexpr std::pair<std::string_view, std::string_view> scripts[] = {
      {"latin", "Latn"},      {"iqtelif", "Latn"}, {"cyrillic", "Cyrl"},
      {"devanagari", "Deva"}, {"arabic", "Arab"},  {"shaw", "Shaw"}};
  for (const auto& [name, script] : scripts) {
    if (name == modifier) return script;
  }
  return {};  // "euro", "valencia" and others say nothing about the script
}

// The language (with its script, if one is named) of a locale name "language[_Script][_REGION][.codeset]
// [@modifier]"; empty where the name is malformed or names no language, as "C" does.
std::string languageOf(std::string_view locale) {
  std::string_view codes = locale.substr(0, locale.find_first_of(".@"));
  std::string language(takePart(codes, "_-"));
  if (language.size() < 2 || language.size() > 3 || !allOf(language, ascii::isLetter)) return {};
  std::transform(language.begin(), language.end(), language.begin(), ascii::lowered);
  constexpr std::pair<std::string_view, std::string_view> renamed[] = {
      {"iw", "he"}, {"in", "id"}, {"ji", "yi"}, {"no", "nb"}};
  for (const auto& [old, current] : renamed) {
    if (language == old) language = current;
  }

  std::string script;
  while (!codes.empty()) {
    const std::string_view part = takePart(codes, "_-");
    if (part.size() == 4 && allOf(part, ascii::isLetter) && script.empty()) {
      std::transform(part.begin(), part.end(), std::back_inserter(script), ascii::lowered);
      script[0] = ascii::raised(script[0]);
    } else if (const bool region = (part.size() == 2 && allOf(part, ascii::isLetter)) ||
                                   (part.size() == 3 && allOf(part, ascii::isDigit));
               !region) {
      return {};
    }
  }
  if (const std::size_t at = locale.find('@'); script.empty() && at != std::string_view::npos) {
    const std::string_view modifier = locale.substr(at + 1);
    script = scriptOfModifier(modifier.substr(0, modifier.find('.')));
  }
  return script.empty() ? language : language + '-' + script;
}

std::vector<std::string> environmentLanguages() {
  std::string_view locale;
  for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    locale = environment(variable);
    if (!locale.empty()) break;
  }
  std::vector<std::string> languages;
  // Only the bare names switch LANGUAGE off: in "C.UTF-8" it counts.
  if (!locale.empty() && locale != "C" && locale != "POSIX") {
    std::string_view list = environment("LANGUAGE");
    if (list.empty()) list = locale;
    while (!list.empty()) {
      const std::string_view name = takePart(list, ":");
      if (name == "C" || name == "POSIX") break;  // from here on untranslated texts
      const std::string language = languageOf(name);
      if (!language.empty() && std::find(languages.begin(), languages.end(), language) == languages.end()) {
        languages.push_back(language);
      }
    }
  }
  if (languages.empty()) languages.emplace_back("en");
  return languages;
}

}  // namespace

std::vector<std::string> preferredLanguages() {
  {
    const std::lock_guard lock(hostOverride().mutex);
    if (hostOverride().languages) return *hostOverride().languages;
  }
  return environmentLanguages();
}

void setPreferredLanguages(std::optional<std::vector<std::string>> languages) {
  const std::lock_guard lock(hostOverride().mutex);
  hostOverride().languages = std::move(languages);
}

}  // namespace glyph
