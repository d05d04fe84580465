// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The identifier of this project's own programs, a reverse-DNS name. It is used if the host does not set
/// an identifier.
inline constexpr std::string_view defaultApplicationIdentifier = "org.glyphorium.Glyphorium";

/// Returns the reverse-DNS identifier of the host application. The directories of the application's settings
/// and search index have this name. It is also the domain of the application's items in the search index. May
/// be called from any thread.
GLYPHORIUM_EXPORT std::string applicationIdentifier();

/// Sets the identifier. Call this before the first use of settings, clipboard or index. The text must be
/// usable as a file name: if it is empty, "." or "..", or contains "/" or NUL, it is ignored, and a
/// diagnostic line is printed. May be called from any thread.
GLYPHORIUM_EXPORT void setApplicationIdentifier(std::string_view identifier);

/// Return the application's own directories below $XDG_CONFIG_HOME (by default ~/.config) and below
/// $XDG_DATA_HOME (by default ~/.local/share). They follow the XDG base directory rules of freedesktop.org: a
/// relative path in these variables is ignored. If HOME is not set to an absolute path, the home directory is
/// read from the user database. Return nullopt if no home directory is known. Do not create the directories.
GLYPHORIUM_EXPORT std::optional<std::filesystem::path> applicationConfigDirectory();
GLYPHORIUM_EXPORT std::optional<std::filesystem::path> applicationDataDirectory();

}  // namespace glyph
