// SPDX-License-Identifier: MIT
#include "glyphorium/state/skin_tone.h"

#include <string>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {
namespace {

constexpr std::string_view names[] = {"none", "light", "medium-light", "medium", "medium-dark", "dark"};

}  // namespace

std::string_view skinToneName(SkinTone tone) noexcept {
  return names[static_cast<std::size_t>(tone)];
}

std::optional<SkinTone> skinToneNamed(std::string_view name) noexcept {
  for (const SkinTone tone : allSkinTones) {
    if (skinToneName(tone) == name) return tone;
  }
  return std::nullopt;
}

SkinTone preferredSkinTone() {
  const auto stored = settingsStore()->object(preferredSkinToneKey);
  const std::string* const name = stored ? std::get_if<std::string>(&*stored) : nullptr;
  return name ? skinToneNamed(*name).value_or(SkinTone::none) : SkinTone::none;
}

bool setPreferredSkinTone(SkinTone tone) {
  const auto store = settingsStore();
  store->set(preferredSkinToneKey, std::string(skinToneName(tone)));
  return store->synchronize();
}

}  // namespace glyph
