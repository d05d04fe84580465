// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// The user's languages, most preferred first, as BCP 47 identifiers without a region: "de", "pt", "sr-Latn".
/// Read from the environment on every call, by the rules of gettext: the locale is the first non-empty one of
/// LC_ALL, LC_MESSAGES and LANG; where it is "C", "POSIX" or nothing at all, messages are untranslated
/// English; otherwise LANGUAGE, a ":" list that "C" ends, stands in the locale's place unless it is empty.
/// Names that are malformed or name no language are left out; "en" where none is left, so the list is never
/// empty. The region is left out because texts are stored by language: a user with LANG=de_AT.UTF-8 reads
/// "de" ones. A list that the host has put in place with setPreferredLanguages is returned as it is.
GLYPHORIUM_EXPORT std::vector<std::string> preferredLanguages();

/// Puts the host's own list in the place of the environment's, as given (also an empty one); nullopt goes
/// back to the environment.
GLYPHORIUM_EXPORT void setPreferredLanguages(std::optional<std::vector<std::string>> languages);

}  // namespace glyph
