// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The names of the notifications on NotificationCenter::defaultCenter(). The text of each name equals the
/// name of its constant. The library posts entityCopied and contentHasChanged. The others are for hosts and
/// their plug-ins: the library declares them so that both use the same names.
namespace glyph::notificationName {

inline constexpr std::string_view appAppearanceChanged = "appAppearanceChanged";
/// A text was copied. The object is the displayed text where one was given, else the copied text.
inline constexpr std::string_view entityCopied = "entityCopied";
/// The list of selected entities was assigned. There is no object.
inline constexpr std::string_view contentHasChanged = "contentHasChanged";
inline constexpr std::string_view filteredContentHasChanged = "filteredContentHasChanged";
inline constexpr std::string_view preferencesGlyphGridChanged = "preferencesGlyphGridChanged";
inline constexpr std::string_view selectedGroupsHasChanged = "selectedGroupsHasChanged";
inline constexpr std::string_view escapeKeyDown = "escapeKeyDown";
inline constexpr std::string_view cardViewBecomeFirstResponder = "cardViewBecomeFirstResponder";
inline constexpr std::string_view cardViewResignFirstResponder = "cardViewResignFirstResponder";
inline constexpr std::string_view listViewBecomeFirstResponder = "listViewBecomeFirstResponder";
inline constexpr std::string_view listViewResignFirstResponder = "listViewResignFirstResponder";
inline constexpr std::string_view frequentlyUsedEntitiesChanged = "frequentlyUsedEntitiesChanged";

}  // namespace glyph::notificationName
