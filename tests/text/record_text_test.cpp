// SPDX-License-Identifier: MIT
#include "glyphorium/text/record_text.h"

#include <gmock/gmock.h>

#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>
#include <unordered_set>
#include <vector>

namespace glyph {
namespace {

using namespace std::literals;
using testing::ElementsAre;

constexpr std::string_view constant = "Latin Capital Letter A";

TEST(RecordText, RefersToConstantsAndOwnsEverythingElse) {
  std::string bytes(constant);
  const RecordText view = RecordText::ofConstant(constant);
  const RecordText owned(bytes);
  EXPECT_EQ(view.data(), constant.data());
  EXPECT_NE(owned.data(), bytes.data());
  bytes.assign(bytes.size(), '?');
  for (const RecordText& text : {view, owned}) {
    RecordText copy = text;
    EXPECT_EQ(copy, constant);
    EXPECT_EQ(copy.data() == text.data(), text.data() == constant.data()) << "only a constant is shared";
    RecordText other = "before";
    other = std::move(copy);
    EXPECT_EQ(other, constant);
    copy = other;
    copy = *&copy;
    EXPECT_EQ(copy, other);
    copy = copy.c_str() + 6;  // assigns a part of the text to the text itself
    EXPECT_EQ(copy, "Capital Letter A");
    copy += copy.view().substr(7);
    copy += '.';
    EXPECT_EQ(copy, "Capital Letter A Letter A.");
    EXPECT_EQ(std::strlen(copy.c_str()), copy.size());
    copy.clear();
    EXPECT_TRUE(copy.empty());
    EXPECT_STREQ(copy.c_str(), "");
    EXPECT_EQ(text, constant) << "copies are independent";
  }
  std::vector<RecordText> list{view, owned};
  for (int i = 0; i < 5; ++i) list.insert(list.begin(), list.back());  // moves the other elements
  EXPECT_THAT(list, testing::Each(constant));
  EXPECT_EQ(RecordText("\0a"sv).size(), 2u);
  EXPECT_EQ(RecordText(std::string_view()), "");
}

// Statements that a host may use with fields of type std::string must also compile for RecordText.
TEST(RecordText, CanBeUsedLikeAString) {
  const RecordText text = "0041";
  std::string copy = text;
  const std::string& reference = text;
  const std::string_view view = text;
  copy += text;
  copy.append(text);
  EXPECT_EQ(copy, "004100410041");
  EXPECT_EQ(reference, view);
  copy = text;
  EXPECT_TRUE(copy == text && text == copy && text == view && view == text && text == "0041" &&
              "0041" == text);
  EXPECT_TRUE(text < "0042" && "0040"s < text && text != RecordText("0041,030a") &&
              text > "0041"sv.substr(1, 0));
  const std::string prefix = "U+";
  EXPECT_THAT((std::vector<std::string>{prefix + text, "U+" + text, text + prefix, text + "!", text + text,
                                        '<' + text + '>', std::string("U+") + text + prefix}),
              ElementsAre("U+0041", "U+0041", "0041U+", "0041!", "00410041", "<0041>", "U+0041U+"));
  EXPECT_EQ(text.substr(2) + text.substr(0, 1), "410");
  EXPECT_TRUE(text.find('4') == 2 && text.find("x") == std::string::npos && text.starts_with("00") &&
              text.find_first_not_of('0') == 2 && text.compare(copy) == 0 && text.back() == '1' &&
              text[2] == '4');
  std::ostringstream stream;
  stream << text << std::string(text.begin(), text.end());
  EXPECT_EQ(stream.str(), "00410041");
  EXPECT_EQ(nlohmann::json({{"hex", text}}).dump(), R"({"hex":"0041"})");
  EXPECT_EQ(std::stoi(text, nullptr, 16), 0x41);

  std::unordered_set<std::string_view> views{text};
  std::unordered_set<RecordText> texts{text, RecordText::ofConstant("0041")};
  std::map<std::string, int> counts;
  std::vector<std::string> strings;
  ++counts[text];
  strings.push_back(text);
  strings.emplace_back(text);
  EXPECT_TRUE(views.contains(text) && texts.size() == 1 && counts.contains(text) &&
              counts.find(text)->second == 1);
  EXPECT_THAT(strings, ElementsAre(text, text));
  const std::optional<RecordText> present = text, absent;
  EXPECT_TRUE(present == "0041" && present == copy && present.value_or("") == text &&
              absent.value_or("") == "");
  EXPECT_EQ(strings.empty() ? "" : text, "0041");
}

}  // namespace
}  // namespace glyph
