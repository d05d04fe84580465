// SPDX-License-Identifier: MIT
#include "glyphorium/state/observed.h"

#include <gtest/gtest.h>

#include <map>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "glyphorium/entity/boxed_optional.h"

namespace {

using List = std::vector<std::string>;
using Counts = std::map<std::string, int>;

static_assert(!std::is_copy_constructible_v<glyph::Observed<List>>, "'auto' must not copy the field");
static_assert(!std::is_move_constructible_v<glyph::Observed<List>>, "a move would empty the field");

int changes = 0;

TEST(Observed, CanBeReadLikeAList) {
  glyph::Observed<List> field([](const List&) { ++changes; });
  changes = 0;
  field = {"a", "b"};
  List read;
  for (const std::string& one : field) read.push_back(one);
  EXPECT_EQ(read, (List{"a", "b"}));
  EXPECT_EQ(field, (List{"a", "b"}));
  EXPECT_EQ(field[1], "b");
  EXPECT_EQ(std::span<const std::string>(field).size(), field.size());
  const List moved = std::move(field);
  EXPECT_EQ(moved, field);
  EXPECT_EQ(changes, 1);
  field = field;
  EXPECT_EQ(changes, 2);
  field = {};
  EXPECT_TRUE(field.empty());
  EXPECT_EQ(changes, 3);
}

TEST(Observed, ReturnsZeroForAMissingKeyOfAMap) {
  glyph::Observed<Counts> counts([](const Counts&) {});
  counts = {{"arrows", 112}};
  EXPECT_EQ(counts["arrows"], 112);
  EXPECT_EQ(counts["custom"], 0);
  EXPECT_EQ(counts.size(), 1u);
}

TEST(BoxedOptional, BehavesLikeAnOptional) {
  glyph::BoxedOptional<std::string> box;
  EXPECT_EQ(box, std::nullopt);
  EXPECT_EQ(box.value_or("none"), "none");
  EXPECT_THROW(box.value(), std::bad_optional_access);
  box = std::string("text");
  glyph::BoxedOptional<std::string> other = box;
  EXPECT_EQ(other, box);
  other.edit() += "s";
  EXPECT_EQ(other, "texts");
  EXPECT_NE(other, box);
  EXPECT_EQ(box.value_or("none"), "text");
  box = std::optional<std::string>();
  EXPECT_FALSE(box.has_value());
  EXPECT_THROW(box.edit(), std::bad_optional_access);

  // Copies share a constant. A copy gets its own value only when edit() is called for it.
  const std::string constant = "constant";
  box = glyph::BoxedOptional<std::string>::ofConstant(constant);
  other = box;
  EXPECT_EQ(&*other, &constant);
  other.edit() += "s";
  EXPECT_EQ(other, "constants");
  EXPECT_EQ(&*box, &constant);
  other.emplace(*other);
  EXPECT_EQ(other, "constants");
  box = std::move(other);
  EXPECT_EQ(box, "constants");
  EXPECT_EQ(other, std::nullopt);
  box = box.value_or("none") + "!";
  EXPECT_EQ(box, "constants!");
}

}  // namespace
