// SPDX-License-Identifier: MIT
#include "glyphorium/text/preferred_languages.h"

#include <unicode/uloc.h>

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <string_view>
#include <utility>

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

// Returns the text before the first separator, and removes that text and the separator from `text`.
std::string_view takePart(std::string_view& text, std::string_view separators) {
  const std::size_t end = std::min(text.find_first_of(separators), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

std::string_view scriptOfModifier(std::string_view modifier) {
  constexpr std::pair<std::string_view, std::string_view> scripts[] = {
      {"latin", "Latn"},      {"iqtelif", "Latn"}, {"cyrillic", "Cyrl"},
      {"devanagari", "Deva"}, {"arabic", "Arab"},  {"shaw", "Shaw"}};
  for (const auto& [name, script] : scripts) {
    if (name == modifier) return script;
  }
  return {};  // other modifiers, such as "euro" and "valencia", do not name a script
}

// Returns the language of a locale name "language[_Script][_REGION][.codeset][@modifier]", with its script if
// the name has one. Empty if the name is malformed or does not name a language, such as "C".
std::string languageOf(std::string_view locale) {
  // Ignore words of more than three letters. ICU would accept up to eight letters, but language codes have
  // two or three. On some systems a longer word, such as "german", is an alias for a locale.
  const std::string name(locale.substr(0, locale.find_first_of(".@")));
  UErrorCode status = U_ZERO_ERROR;
  char tag[ULOC_FULLNAME_CAPACITY];
  uloc_toLanguageTag(name.c_str(), tag, sizeof tag, true, &status);
  if (U_FAILURE(status) || status == U_STRING_NOT_TERMINATED_WARNING) return {};
  std::string_view rest = tag;
  std::string language(takePart(rest, "-"));
  if (language.size() < 2 || language.size() > 3 || language == "und") return {};

  if (language == "no") language = "nb";  // locales with the language "no" (Norwegian) use Bokmål

  std::string_view script = rest.substr(0, rest.find('-'));
  if (script.size() != 4) script = {};
  if (const std::size_t at = locale.find('@'); script.empty() && at != std::string_view::npos) {
    const std::string_view modifier = locale.substr(at + 1);
    script = scriptOfModifier(modifier.substr(0, modifier.find('.')));
  }
  if (!script.empty()) (language += '-') += script;
  return language;
}

std::vector<std::string> environmentLanguages() {
  std::string_view locale;
  for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    locale = environment(variable);
    if (!locale.empty()) break;
  }
  std::vector<std::string> languages;
  // LANGUAGE is ignored only if the locale is exactly "C" or "POSIX". With "C.UTF-8" it is used.
  if (!locale.empty() && locale != "C" && locale != "POSIX") {
    std::string_view list = environment("LANGUAGE");
    if (list.empty()) list = locale;
    while (!list.empty()) {
      const std::string_view name = takePart(list, ":");
      if (name == "C" || name == "POSIX") break;  // the user wants untranslated texts from here on
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
