// SPDX-License-Identifier: MIT
#include "user_lists.h"

#include <glyphorium/glyphorium.h>

#include <algorithm>

namespace browser {
namespace {

using Codes = std::vector<std::string>;

Codes codesOf(const std::optional<glyph::SettingValue>& value) {
  const auto* const codes = value ? std::get_if<Codes>(&*value) : nullptr;
  return codes ? *codes : Codes();
}

}  // namespace

Codes UserList::codes() const {
  return codesOf(glyph::settingsStore()->object(key_));
}

void UserList::putFirst(const std::string& code) const {
  glyph::settingsStore()->update(key_, [&](const auto& value) {
    Codes codes = codesOf(value);
    std::erase(codes, code);
    codes.insert(codes.begin(), code);
    if (codes.size() > limit_) codes.resize(limit_);
    return std::optional<glyph::SettingValue>(codes);
  });
}

void UserList::toggle(const std::string& code) const {
  glyph::settingsStore()->update(key_, [&](const auto& value) {
    Codes codes = codesOf(value);
    if (std::erase(codes, code) == 0) codes.insert(codes.begin(), code);
    if (codes.size() > limit_) codes.resize(limit_);
    return std::optional<glyph::SettingValue>(codes);
  });
}

void UserList::clear() const {
  glyph::settingsStore()->set(key_, Codes());
}

}  // namespace browser
