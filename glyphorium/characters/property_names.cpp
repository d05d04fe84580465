// SPDX-License-Identifier: MIT
#include "glyphorium/characters/property_names.h"

#include <span>
#include <utility>

namespace glyph {
namespace {

using ShortAndLong = std::pair<std::string_view, std::string_view>;

constexpr ShortAndLong categories[] = {
    {"Lu", "uppercase letter"},    {"Ll", "lowercase letter"},  {"Lt", "titlecase letter"},
    {"Lm", "modifier letter"},     {"Lo", "other letter"},      {"Mn", "nonspacing mark"},
    {"Mc", "spacing mark"},        {"Me", "enclosing mark"},    {"Nd", "decimal number"},
    {"Nl", "letter number"},       {"No", "other number"},      {"Pc", "connector punctuation"},
    {"Pd", "dash punctuation"},    {"Ps", "open punctuation"},  {"Pe", "close punctuation"},
    {"Pi", "initial punctuation"}, {"Pf", "final punctuation"}, {"Po", "other punctuation"},
    {"Sm", "math symbol"},         {"Sc", "currency symbol"},   {"Sk", "modifier symbol"},
    {"So", "other symbol"},        {"Zs", "space separator"},   {"Zl", "line separator"},
    {"Zp", "paragraph separator"}, {"Cc", "control"},           {"Cf", "format"},
    {"Cs", "surrogate"},           {"Co", "private use"},       {"Cn", "unassigned"}};

constexpr ShortAndLong bidirectionalClasses[] = {{"L", "left-to-right"},
                                                 {"R", "right-to-left"},
                                                 {"AL", "Arabic letter"},
                                                 {"EN", "European number"},
                                                 {"ES", "European separator"},
                                                 {"ET", "European terminator"},
                                                 {"AN", "Arabic number"},
                                                 {"CS", "common separator"},
                                                 {"NSM", "nonspacing mark"},
                                                 {"BN", "boundary neutral"},
                                                 {"B", "paragraph separator"},
                                                 {"S", "segment separator"},
                                                 {"WS", "white space"},
                                                 {"ON", "other neutral"},
                                                 {"LRE", "left-to-right embedding"},
                                                 {"LRO", "left-to-right override"},
                                                 {"RLE", "right-to-left embedding"},
                                                 {"RLO", "right-to-left override"},
                                                 {"PDF", "pop directional format"},
                                                 {"LRI", "left-to-right isolate"},
                                                 {"RLI", "right-to-left isolate"},
                                                 {"FSI", "first strong isolate"},
                                                 {"PDI", "pop directional isolate"}};

constexpr ShortAndLong widths[] = {{"N", "neutral"},   {"Na", "narrow"},   {"W", "wide"},
                                   {"F", "fullwidth"}, {"H", "halfwidth"}, {"A", "ambiguous"}};

std::string_view longName(std::span<const ShortAndLong> list, std::string_view value) noexcept {
  for (const auto& [brief, name] : list) {
    if (brief == value) return name;
  }
  return {};
}

}  // namespace

std::string_view categoryName(std::string_view category) noexcept {
  return longName(categories, category);
}

std::string_view bidirectionalClassName(std::string_view value) noexcept {
  return longName(bidirectionalClasses, value);
}

std::string_view eastAsianWidthName(std::string_view value) noexcept {
  return longName(widths, value);
}

}  // namespace glyph
