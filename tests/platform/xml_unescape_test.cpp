// SPDX-License-Identifier: MIT
#include "glyphorium/platform/xml_unescape.h"

#include <gtest/gtest.h>

namespace glyph {
namespace {

TEST(XmlUnescape, ReplacesReferencesOnceAndLeavesTheRest) {
  const struct {
    std::string_view text, plain;
  } cases[] = {{"", ""},
               {"no reference; here", "no reference; here"},
               {"&#x20;", " "},
               {"&#32;", " "},
               {"a&#x1f600;b&#128512;c", "a😀b😀c"},
               {"&lt;&gt;&quot;&apos;&amp;", "<>\"'&"},
               {"&amp;amp;", "&amp;"},
               {"&&amp;&", "&&&"},
               {"&#xd800;&#1114112;&#99999999999;", "&#xd800;&#1114112;&#99999999999;"},
               {"&#;&#x;&;&#xzz;&#-5;&#+5;", "&#;&#x;&;&#xzz;&#-5;&#+5;"},
               {"&rarr; &#32", "&rarr; &#32"}};
  for (const auto& [text, plain] : cases) EXPECT_EQ(xmlUnescaped(text), plain) << text;
  EXPECT_EQ(xmlUnescaped(std::string(1 << 20, '&')).size(), std::size_t{1} << 20);
}

}  // namespace
}  // namespace glyph
