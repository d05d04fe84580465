// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <filesystem>

#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

namespace fs = std::filesystem;

TEST(Generator, StopsTheBuildAtAFaultySourceWithFileAndLine) {
  const TemporaryDirectory folder;
  const fs::path sources = folder / "sources";
  fs::copy(SOURCES, sources, fs::copy_options::recursive);
  const std::string command =
      std::string(GENERATOR) + " " + sources.string() + " " + (folder / "out").string() + " 2>&1";
  ASSERT_EQ(runProgram(command).exitCode, 0);

  const struct {
    std::string file, what, with, message;
  } cases[] = {
      {"unicode-13.0-names.tsv", "0042\t", "0040\t", "names.tsv:69: error: is out of order"},
      {"unicode-13.0-names.tsv", "0042\t", "42\t", "names.tsv:69: error: '42' must be written '0042'"},
      {"unicode-13.0-names.tsv", "LATIN CAPITAL LETTER B\n", "LATIN \"B\"\n", "names.tsv:69: error: name"},
      {"unicode-13.0-names.tsv", "0042\tLATIN CAPITAL LETTER B\n", "", "groups.tsv:"},
      {"sf-symbols-1.tsv", "100203\t", "100202\t", "sf-symbols-1.tsv:4: error: stands twice"},
      {"groups.tsv", "\tarrows\t2190\t21ff\t112\t", "\tarrows\t2190\t21ff\t111\t", "comes to 112 rows"},
      {"selections/emojisJson.txt", "1f300..1f321", "1f300..1f3", "emojisJson.txt:2: error:"},
      {"selections/digitalTypographyLatinJson.txt", "f8ff\n", "f8fe\nf8ff\n", "comes to 255 rows"},
      {"selections/digitalTypographyLatinJson.txt", "2e2e\n", "2e5f\n", "member 2e5f has no name"},
      {"enrichment/search-terms.tsv", "0021\tbang", "001f\tbang",
       "search-terms.tsv:5: error: is out of order"},
      {"enrichment/search-terms.tsv", "bang\t", "bang\tbang\t", "holds a term twice"},
      {"enrichment/attributes.tsv", "needsSerifs\ttrue", "needsSerif\ttrue", "is no attribute"},
      {"enrichment/advice/fr.md", "## 0027 Apostrophe", "## 0027 Apostroph", "fr.md:6: error: must read"},
      {"enrichment/advice/it.md", "«et»", "\"et\"", "straight quotation mark"},
      {"enrichment/html-references.tsv", "&amp;", "&gt;", "htmlNamed beside another character: 10, wanted 9"},
      {"figures.tsv", "search terms\t611", "search terms\t610", "search terms: 611, wanted 610"},
      {"control-names.tsv", "\n", "\r\n", "carriage return"},
  };
  for (const auto& [file, what, with, message] : cases) {
    const std::string original = fileContent(sources / file);
    const std::size_t place = original.find(what);
    ASSERT_NE(place, std::string::npos) << file << ": " << what;
    writeFile(sources / file, std::string(original).replace(place, what.size(), with));
    const ProgramResult result = runProgram(command);
    EXPECT_EQ(result.exitCode, 1) << file << ": " << with;
    EXPECT_THAT(result.output, testing::HasSubstr(message));
    writeFile(sources / file, original);
  }
}

}  // namespace
}  // namespace glyph
