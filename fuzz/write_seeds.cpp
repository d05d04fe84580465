// SPDX-License-Identifier: MIT
// Writes the fuzzers' seeds into a folder for each: pieces of the embedded tables, and forms of their codes.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"

namespace {

class Folder {
 public:
  explicit Folder(std::filesystem::path path) : path_(std::move(path)) {
    std::filesystem::create_directories(path_);
  }
  void add(std::string_view seed) {
    std::ofstream file(path_ / std::to_string(count_++), std::ios::binary);
    file << seed;
    if (!file.flush()) {
      std::cerr << "cannot write to " << path_ << '\n';
      std::exit(1);
    }
  }

 private:
  std::filesystem::path path_;
  int count_ = 0;
};

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

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: write_fuzzer_seeds FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  Folder tables(folder / "table");
  Folder texts(folder / "text");
  Folder settings(folder / "setting");
  Folder names(folder / "name");

  for (const glyph::EmbeddedText& text : glyph::embeddedTexts()) {
    // The rows of U+0022 and U+005C, which need repair, are the third and the 61st of their table.
    if (text.configured) tables.add(firstRows(text.text, text.constant == "latinBasicJson" ? 62 : 2));
  }
  tables.add(firstRows(glyph::additionalJson, 8));

  const glyph::Glyphorium catalog;
  std::string groups = "[";
  std::string lines;
  for (const glyph::EmbeddedText& text : glyph::embeddedTexts()) {
    if (!text.configured) continue;
    const auto records = catalog.getComputedEntitiesFrom(text.text);
    if (!records || records->empty()) continue;
    const glyph::ComputedEntity& record = records->at(records->size() / 2);
    texts.add(record.symbol + record.htmlHex + record.htmlDecimal);
    texts.add(record.hex + "," + records->front().hex);
    names.add(record.hex + " " + record.fallbackName);
    lines += "u+" + record.hex + "\n" + record.htmlDecimal + "\n";
    groups += "\"" + std::string(text.group) + "\",";
  }
  for (const char* const text :
       {"&amp;&lt;&gt;&quot;&apos;&amp;amp;&#xd800;", "ΟΔΟΣ İ ß", "e\u0301\r\n",
        "👩‍👩‍👧‍👦🏳️‍🌈🇩🇪", "\xFF\xC3(\xED\xA0\x80"}) {
    texts.add(text);
  }
  groups.back() = ']';
  for (const char* const value : {"true", "false", "1", "-1", "1.5e3", "\"text\"", "[\"2190\",\"1f600\"]",
                                  "null", "{\"a\":[1,{}]}", "18446744073709551615", "\"\\ud83d\\ude00\""}) {
    settings.add(value);
  }
  settings.add(groups);
  names.add(lines);
  for (const char* const typed :
       {"é", "e\u0301", "Leftwards Arrow", "grinning face", "&rarr;", "2190", "arows"}) {
    names.add(typed);
  }
  names.add("\\u{1f600}\n0041\n100000\n10FFFF\n");
}
