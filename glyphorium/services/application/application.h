// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The application identifier of this project's own hosts, a reverse-DNS name.
inline constexpr std::string_view defaultApplicationIdentifier = "org.glyphorium.Glyphorium";

/// The reverse-DNS identifier of the host application. It names the directories of its settings and its
/// search index and is the domain of its items in that index.
GLYPHORIUM_EXPORT std::string applicationIdentifier();

/// Sets the identifier; call it before first use of settings, clipboard or index. A text that is no file name
/// (empty, ".", "..", or holding "/" or NUL) is ignored and reported as a diagnostic.
GLYPHORIUM_EXPORT void setApplicationIdentifier(std::string_view identifier);

/// The application's own directory below $XDG_CONFIG_HOME (else ~/.config) and $XDG_DATA_HOME (else
/// ~/.local/share), by the XDG base directory rules of freedesktop.org: a relative path in those
/// variables is ignored. With HOME unset the home directory is that of the user database. Nothing is created;
/// nullopt where no home directory is known.
GLYPHORIUM_EXPORT std::optional<std::filesystem::path> applicationConfigDirectory();
GLYPHORIUM_EXPORT std::optional<std::filesystem::path> applicationDataDirectory();

}  // namespace glyph
