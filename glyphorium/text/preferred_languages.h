// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// The user's languages, most preferred first, as BCP 47 identifiers without a region: "de", "pt", "sr-Latn".
///
/// Every call reads the environment, by the rules of gettext:
/// - The locale is the first non-empty variable of LC_ALL, LC_MESSAGES and LANG. If all are empty, or it is
///   "C" or "POSIX", the result is ["en"].
/// - Otherwise LANGUAGE counts instead of the locale if it is not empty: a list of locales with ":" between
///   them, which ends at "C" or "POSIX".
/// - Malformed names and names of no language are skipped. The result is ["en"] if nothing else is left, so
///   it is never empty.
/// Regions are dropped because texts are stored by language: LANG=de_AT.UTF-8 gives "de".
///
/// If the host has set a list with setPreferredLanguages(), that list is returned unchanged. Any thread may
/// call it.
GLYPHORIUM_EXPORT std::vector<std::string> preferredLanguages();

/// Sets the list that preferredLanguages() returns from now on. It is not checked and may be empty. nullopt
/// goes back to the environment. Any thread may call it.
GLYPHORIUM_EXPORT void setPreferredLanguages(std::optional<std::vector<std::string>> languages);

}  // namespace glyph
