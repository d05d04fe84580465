// SPDX-License-Identifier: MIT
// Writes the fuzzers' seeds into a folder for each: pieces of the embedded tables, and forms of their codes.
#include <filesystem>
#include <fstream>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"

namespace {

// The first rows of an array of objects, as stored: cut where one row ends and the next begins.
std::string firstRows(std::string_view table, int rows) {
  std::size_t end = 0;
  for (; rows > 0; --rows) {
    const std::size_t next = table.find("},", end + 1);
    if (next == std::string_view::npos) return std::string(table);
    end = next;
  }
  return std::string(table.substr(0, end)) + "}]";
}

}  // namespace

int main(int, char** argv) {
  const std::filesystem::path folder = argv[1];
  bool written = true;
  auto add = [&, count = 0](const char* fuzzer, std::string_view seed) mutable {
    std::filesystem::create_directories(folder / fuzzer);
    std::ofstream file(folder / fuzzer / std::to_string(count++), std::ios::binary);
    written &= (file << seed).flush().good();
  };

  const glyph::Glyphorium catalog;
  for (const glyph::EmbeddedText& text : glyph::embeddedTexts()) {
    if (!text.configured) continue;
    // The rows of U+0022 and U+005C, which need repair, are the third and the 61st of their table.
    add("table", firstRows(text.text, text.constant == "latinBasicJson" ? 62 : 2));
    const auto records = catalog.getComputedEntitiesFrom(text.text);
    if (!records || records->empty()) continue;
    const glyph::ComputedEntity& record = records->at(records->size() / 2);
    add("text", record.symbol + record.htmlHex + record.htmlDecimal);
    add("text", record.hex + "," + records->front().hex);
  }
  add("table", firstRows(glyph::additionalJson, 8));
  for (const char* const text :
       {"&amp;&lt;&gt;&quot;&apos;&amp;amp;&#xd800;", "ΟΔΟΣ İ ß", "e\u0301\r\n",
        "👩‍👩‍👧‍👦🏳️‍🌈🇩🇪", "\xFF\xC3(\xED\xA0\x80"}) {
    add("text", text);
  }
  for (const char* const value : {"true", "false", "1", "-1", "1.5e3", "\"text\"", "[\"2190\",\"1f600\"]",
                                  "null", "{\"a\":[1,{}]}", "18446744073709551615", "\"\\ud83d\\ude00\""}) {
    add("setting", value);
  }
  return written ? 0 : 1;
}
