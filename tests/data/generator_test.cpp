// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <filesystem>

#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

namespace fs = std::filesystem;

// Runs the generator on a copy of the sources, in the same way as the build does.
struct Generation {
  const TemporaryDirectory folder;
  const fs::path sources = folder / "sources";
  const fs::path output = folder / "out";

  Generation() { fs::copy(SOURCES, sources, fs::copy_options::recursive); }
  ProgramResult run() const {
    return runProgram(std::string(GENERATOR) + " " + sources.string() + " " + output.string() + " 2>&1");
  }
};

TEST(Generator, StopsTheBuildAtAFaultySourceWithFileAndLine) {
  const Generation generation;
  const fs::path& sources = generation.sources;
  ASSERT_EQ(generation.run().exitCode, 0);

  const struct {
    std::string file, what, with, message;
  } cases[] = {
      {"unicode-13.0-names.tsv", "0042\t", "0040\t", "names.tsv:69: error: is out of order"},
      {"unicode-13.0-names.tsv", "0042\t", "42\t", "names.tsv:69: error: '42' must be written '0042'"},
      {"unicode-13.0-names.tsv", "LATIN CAPITAL LETTER B\n", "LATIN \"B\"\n", "names.tsv:69: error: name"},
      {"unicode-13.0-names.tsv", "0042\tLATIN CAPITAL LETTER B\n", "", "groups.tsv:"},
      {"sf-symbols-1.tsv", "100203\t", "100202\t", "sf-symbols-1.tsv:4: error: repeats a key"},
      {"groups.tsv", "\tarrows\t2190\t21ff\t112\t", "\tarrows\t2190\t21ff\t111\t",
       "has a table of 112 rows, expected 111"},
      {"selections/emojisJson.txt", "1f300..1f321", "1f300..1f3", "emojisJson.txt:2: error:"},
      {"selections/digitalTypographyLatinJson.txt", "f8ff\n", "f8fe\nf8ff\n",
       "has a table of 255 rows, expected 254"},
      {"selections/digitalTypographyLatinJson.txt", "2e2e\n", "2e5f\n", "member 2e5f has no name"},
      {"enrichment/search-terms.tsv", "0021\tbang", "001f\tbang",
       "search-terms.tsv:5: error: is out of order"},
      {"enrichment/search-terms.tsv", "bang\t", "bang\tbang\t", "contains the same term twice"},
      {"enrichment/attributes.tsv", "needsSerifs\ttrue", "needsSerif\ttrue", "is not an attribute"},
      {"enrichment/advice/fr.md", "## 0027 Apostrophe", "## 0027 Apostroph", "fr.md:7: error: must read"},
      {"enrichment/advice/fr.md", "\n\n## 0027", "\n## 0027",
       "fr.md:6: error: needs an empty line before it"},
      {"enrichment/advice/fr.md", "## 0027 A", "##0027 A", "fr.md:7: error: is not a heading"},
      {"enrichment/advice/it.md", "\n\nIn HTML", "\nIn HTML",
       "it.md:4: error: follows text without an empty line"},
      {"enrichment/advice/it.md", "\n\nIn HTML", "\n\n\nIn HTML", "it.md:5: error: is the second empty line"},
      {"enrichment/advice/it.md", "tipografia:\n", "tipografia.\n", "it.md:10: error: begins a list"},
      {"enrichment/advice/it.md", "«et»", "\"et\"", "it.md:3: error: contains a straight quotation mark"},
      {"enrichment/advice/it.md", "l’a capo", "l'a capo",
       "it.md:16: error: contains a straight quotation mark"},
      {"enrichment/advice/it.md", "altrove si", "altrove  si",
       "it.md:3: error: contains two spaces in a row"},
      {"enrichment/advice/it.md", "scrive «e».", "scrive «e». ",
       "it.md:3: error: begins or ends with a space"},
      {"enrichment/advice/fr.md", "HTML\u00A0:", "HTML :", "fr.md:5: error: needs a no-break space in ' :'"},
      {"enrichment/advice/fr.md", "«\u00A0et", "« et", "fr.md:3: error: needs a no-break space in '« '"},
      {"notes/en.md", "≈ (2248)", "≈ (2249)", "gives ≈ the code 2249, expected 2248"},
      {"notes/en.md", "\\ (005c)", "\\ (005d)", "contains a straight quotation mark or a reverse solidus"},
      {"notes/facts.tsv", "0022\t", "0020\t", "facts.tsv:22: error: is out of order"},
      {"notes/en.md", "## 2200 For All", "## 2201 Complement",
       "en.md: error: 2201 has no facts in facts.tsv"},
      {"enrichment/advice/en.md", "## 0026 Ampersand", "## 0025 Percent Sign",
       "en.md: error: 0025 has a note in enrichment/advice"},
      {"enrichment/html-references.tsv", "&amp;", "&gt;",
       "htmlNamed beside another character: 10, expected 9"},
      {"figures.tsv", "search terms\t611", "search terms\t610", "search terms: 611, expected 610"},
      {"control-names.tsv", "\n", "\r\n", "carriage return"},
      {"control-names.tsv", "Unit Separator", "Unit Sep\xC3",
       "control-names.tsv:34: error: is not well-formed UTF-8"},
      {"groups.tsv", "\tprivate-use\n", "\tprivate\n", "'private' is not a kind of group"},
      {"languages.tsv", "en\t10226", "en\t10225",
       "languages.tsv:7: error: annotations.en.tsv contains 10226 texts"},
      {"languages.tsv", "es\t", "pt\t", "es.md: error: 'es' is not a language of languages.tsv"},
      {"search/grammar.de.tsv", "spelling\tae\ta", "spelling\tä\ta",
       "'ä' is not a word of digits and lower-case letters"},
      {"search/grammar.de.tsv", "spelling\tae\ta", "speling\tae\ta", "'speling' is not a kind of rule"},
      {"search/grammar.de.tsv", "spelling\tae\ta", "spelling\tae", "too few or too many columns"},
  };
  for (const auto& [file, what, with, message] : cases) {
    const std::string original = fileContent(sources / file);
    const std::size_t place = original.find(what);
    ASSERT_NE(place, std::string::npos) << file << ": " << what;
    writeFile(sources / file, std::string(original).replace(place, what.size(), with));
    const ProgramResult result = generation.run();
    EXPECT_EQ(result.exitCode, 1) << file << ": " << with;
    EXPECT_THAT(result.output, testing::HasSubstr(message));
    writeFile(sources / file, original);
  }
}

TEST(Generator, NeedsOneLineAndDataFilesForANewLanguage) {
  const Generation generation;
  const fs::path& sources = generation.sources;
  writeFile(sources / "languages.tsv", fileContent(sources / "languages.tsv") + "pt\t3\tgrowing\n");
  writeFile(sources / "enrichment/advice/pt.md", "## 0040 Commercial At\n\nSepara nome e domínio.\n");
  writeFile(sources / "notes/pt.md", "## 00d7 Multiplication Sign\n\nSinal de multiplicação.\n");
  writeFile(sources / "search/annotations.pt.tsv", "2192\tseta para a direita\tdireita\tseta\n");
  writeFile(sources / "search/everyday-names.pt.tsv", "0040\tarroba\n");
  writeFile(sources / "search/synonyms.pt.tsv", "seta\tarrow\n");
  writeFile(sources / "search/grammar.pt.tsv",
            "stop-word\tsinal\nfunction-word\tpara\nplural\toes\tao\nspelling\tcao\tcao\nhead\tfirst\n");
  const ProgramResult result = generation.run();
  ASSERT_EQ(result.exitCode, 0) << result.output;

  const std::string image = fileContent(generation.output / "embedded.bin");
  for (const char* const text :
       {"\"lang\": \"pt\",\n        \"text\": \"Separa nome e domínio.\"", "Sinal de multiplicação.",
        "arroba", "seta\tarrow\n", "signs\nsimbolo\nsinal\nsymbol\n", "para\n", "oes\tao\n"})
    EXPECT_THAT(image, testing::HasSubstr(text));
  const std::string code = fileContent(generation.output / "embedded_image.cpp");
  for (const char* const text :
       {"{\"pt\", {CodePointIndex", "{SearchFactKind::everydayName, \"pt\", ", "{\"pt\", true, "})
    EXPECT_THAT(code, testing::HasSubstr(text));
}

}  // namespace
}  // namespace glyph
