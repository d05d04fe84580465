// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// Returns the user's languages as BCP 47 identifiers without a region: "de", "pt", "sr-Latn". The most
/// preferred language comes first. The list from the environment is never empty.
///
/// Every call reads the environment, by the rules of gettext:
/// - The locale is the first non-empty variable of LC_ALL, LC_MESSAGES and LANG. If all three are empty, or
///   if the locale is "C" or "POSIX", the result is ["en"].
/// - Otherwise, if LANGUAGE is not empty, it replaces the locale. LANGUAGE is a list of locales, separated by
///   ":". The list ends at "C" or "POSIX".
/// - Malformed names and names without a language are skipped. If no language is left, the result is ["en"].
/// Regions are dropped because texts are stored by language: LANG=de_AT.UTF-8 gives "de".
///
/// If the host has set a list with setPreferredLanguages(), the function returns that list unchanged. Any
/// thread may call this function.
GLYPHORIUM_EXPORT std::vector<std::string> preferredLanguages();

/// Sets the list that preferredLanguages() returns from now on. The list is not checked and may be empty.
/// With nullopt, preferredLanguages() uses the environment again. Any thread may call this function.
GLYPHORIUM_EXPORT void setPreferredLanguages(std::optional<std::vector<std::string>> languages);

}  // namespace glyph
