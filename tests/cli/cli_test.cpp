// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/services/search_index/sqlite_searchable_index.h"
#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "tests/support/catalog_figures.h"
#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using testing::HasSubstr;

// Runs the program in a plain environment without a home directory. `environment` is a list of assignments,
// such as "HOME=/home/user".
ProgramResult run(const std::string& arguments, const std::string& environment = "") {
  return runProgram("export HOME=/nonexistent XDG_CONFIG_HOME= XDG_DATA_HOME= LC_ALL=C NO_COLOR=; " +
                    environment + " " PROGRAM " " + arguments);
}

TEST(CommandLine, PrintsEmbeddedTextsByteForByte) {
  for (const EmbeddedText& text : embeddedTexts()) {
    const ProgramResult result = run("table " + std::string(text.constant));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output == text.text) << text.constant;
  }
}

TEST(CommandLine, ReturnsExitCodesAndHelpfulMessages) {
  const struct {
    std::string arguments;
    int exitCode;
    std::string output;  // must occur in standard output or standard error
  } cases[] = {
      {"show U+2192", 0, "&rarr;"},
      {"show '→'", 0, "Rightwards Arrow"},
      {"show '\\u{1F600}'", 0, "Grinning Face"},
      {"show '&#8594;' '&rarr;' 'rightwards arrow'", 0, "arrows, digital typography (latin)"},
      {"show square.and.arrow.up", 0, "Image(systemName: \"square.and.arrow.up\")"},
      {"show 200b", 0, "⬚"},
      {"show 0301", 0, "◌\u0301"},
      {"show U+4E01", 0, "Cjk Unified Ideograph-4E01"},
      {"show 'U+2192 &foo;'", 1, "no character is 'U+2192 &foo;'"},  // one of the two codes is unknown
      {"show U+D800", 0, "<surrogate-D800>"},
      {"show U+0378 U+FFFF", 0, "<noncharacter-FFFF>"},
      {"show nbsp", 0, "U+00A0"},
      {"show 0o20622 0b10000110010010 --format '%(hex)'", 0, "2192\n2192\n"},
      {"show '\\342\\206\\222\\303\\251' '\\002190' '\\342' --format '%(hex)'", 0,
       "2192\n00e9\n2190\n0342\n"},
      {"show 0o29", 1, "no character is '0o29'"},
      {"search '->' --limit 1", 0, "→\t2192\tRightwards Arrow\tarrows\n"},
      {"search snowman --limit 0", 0, "☃\t2603\tSnowman\tmisc symbols\n"},
      {"search snowman --limit -1", 2, "--limit"},
      {"list emoji --regex '^waving hand' --tone dark", 0,
       "👋🏿\t1f44b,1f3ff\tWaving Hand: Dark Skin Tone\t\n"},
      {"list greek --regex '\\p{Greek}'", 2, "there is no group"},
      {"list 'greek & coptic' --regex '^greek (small|capital) letter alpha$'", 0,
       "Greek Capital Letter Alpha"},
      {"list arrows --regex '(' ", 2, "'(' is no regular expression"},
      {"pick", 2, "pick needs a terminal"},
      {"show nbbsp", 1, "no character is 'nbbsp'; did you mean 00a0 (Non-Breaking Space)?"},
      {"show 水", 0, "water, liquid"},
      {"show '\U0001F1E9\U0001F1EA'", 0, "Flag: Germany  U+1F1E9 U+1F1EA"},
      {"show 1f1e9-1f1ea", 0, "Flag: Germany"},
      {"show '1f1e9 1f1ea' :+1: 'rainbow flag' 'melting face'", 0, "Melting Face"},
      {"show 'é→'", 0, "Rightwards Arrow"},
      {"show U+2190..2193 --json", 0, "Downwards Arrow"},
      {"list script:thai", 0, "Thai Digit Nine"},
      {"list block:arows", 1, "did you mean 'block:Arrows'"},
      {"list emoji:flag", 0, "Flag: Germany"},
      {"list Block:ARROWS --format '%(hex)'", 0, "2190\n2191\n"},
      {"list property:white_space --format '%(hex)'", 0, "0020\n0085\n00a0\n"},
      {"list property:dach", 1, "did you mean 'property:Dash'"},
      {"show U+2190-U+2191 --format '%(hex)'", 0, "2190\n2191\n"},
      {"help index add", 0, "Usage: glyphorium index add "},
      {"values field", 0, "\nalt-code\n"},
      {"list emoji --regex 'germany|magic wand|^grinning face$'", 0,
       "😀\t1f600\tGrinning Face\t\n🪄\t1fa84\tMagic Wand\t\n🇩🇪\t1f1e9,1f1ea\tFlag: Germany\t\n"},
      {"list 2193..2190", 2, "there is no group"},
      {"show 'qqqq qqqq'", 1, "no character is 'qqqq qqqq'\n"},
      {"show", 2, "required"},
      {"list ARROWS", 0, "2192\tRightwards Arrow\t&rarr;"},
      {"list arows", 2, "did you mean 'arrows'"},
      {"list custom", 1, ""},
      {"list", 1, "display add GROUP"},
      {"list --all arrows", 2, "--all"},
      {"names 0041 1f600", 0, "GRINNING FACE"},
      {"show → 🇩🇪 --format '%(char) %(hex r:6)|%(name l:20)|%(utf-8)%%\\t%(block)'", 0,
       "→   2192|Rightwards Arrow    |E2 86 92%\tArrows\n🇩🇪 1f1e9 1f1ea|Flag: Germany "},
      {"search arrow --limit 1 --format '%(rust)%(c)%(css)%(url)'", 0, "\\u{2192}\\u2192\\002192%E2%86%92\n"},
      {"list arrows --format '%(nam)'", 2, "there is no field '%(nam)'"},
      {"list arrows --format '%name'", 2, "%% is a percent sign"},
      {"list block:arrows --regex '^right.*arrow$' --tsv", 0,
       "char\thex\tname\thtml\tgroup\tblock\tcategory\tscript\tversion\n→\t2192\tRightwards "
       "Arrow\t&rarr;\tarrows\t"},
      {"list arrows --regex '('", 2, "no regular expression"},
      {"identify '🇩🇪' --format '%(name)'", 0, "Flag: Germany\n"},
      {"identify 'a🇩🇪'", 0, "🇩🇪\t2 code points\tFlag: Germany\n"},
      {"ascii", 0, "27\t1b\tESC\t59\t3b\t;\t91\t5b\t[\t123\t7b\t{\n"},
      {"values block", 0, "Arrows\t112\n"},
      {"help list", 0, "--regex"},
      {"help lst", 2, "there is no command 'lst'"},
      {"names 41", 1, "four digits"},
      {"names 1fae0 → U+0009", 0, "<control-0009>"},
      {"names 1F1E9,1F1EA", 0, "Flag: Germany"},
      {"table latinBasic", 2, "latinBasicJson"},
      {"table", 0, "sfSymbolsJson\tSF Symbols\t1083\t187853"},
      {"groups", 0, "custom\t0\ndigital typography (latin)\t254\n"},
      {"search arrow --limit 1", 0, "→\t2192\tRightwards Arrow\tarrows\n"},
      {"search '&rarr;' --json", 0, "\"name\":\"Rightwards Arrow\""},
      {"search 'replacement character' --limit 1", 0, "fffd\tReplacement Character\t\n"},
      {"search magic wand --limit 1", 0, "🪄\t1fa84\tMagic Wand\t\n"},
      {"search flag germany --limit 1 --format '%(char) %(hex) %(name)'", 0,
       "🇩🇪 1f1e9 1f1ea Flag: Germany\n"},
      {"show chevron.right 'REPLACEMENT character' 'null CHARACTER (control)'", 0, "U+10018A"},
      {"search → --group emoji", 1, "nothing found for '→'\n"},  // the character is in another group
      {"search U+FFFD --group arrows", 1, "no group contains fffd (Replacement Character)"},
      {"search LETTER --group 'LATIN basic' --limit 1", 0, "latin basic\n"},
      {"search letter --group latn", 2, "did you mean"},
      {"search arow --limit 1", 0, "\tapproximate\n"},
      {"search arow --limit 1 --json", 0, ",\"approximate\":true}"},
      {"search qqqqqq", 1, "nothing found for 'qqqqqq'"},
      {"search qqqqqq --json 2>/dev/null", 1, "[]\n"},
      {"search arrow --displayed", 1, "nothing found"},
      {"search", 2, "WORDS"},
      {"identify 'é e\u0301'", 0,
       "é\t00e9\tLatin Small Letter E With Acute\n␣\t0020\tSpace\ne\u0301\t2 code points"},
      {"identify - </dev/null", 1, ""},
      {"identify '\U0001F44D\U0001F3FD' --json", 0, "\"cluster\":\"\U0001F44D\U0001F3FD\""},
      {"identify \"$(printf 'a\\377b')\" --from latin1 --format '%(name l:0)|'", 0,
       "Y With Diaeresis|\nLatin Small Letter B|"},
      {"identify --from shift_jis \"$(printf '\\202\\240\\201 a')\"", 2,
       "あ\t3042\tHiragana Letter A\n\uFFFD\t81\t(bytes that are not shift_jis)\n␣\t"},
      {"identify ab --tsv | wc -l", 0, "3\n"},
      {"identify --from utf-8 \"$(printf 'x\\377y\\342\\206')\" --format '%(char)%(hex)%(name)%(category)'",
       2, "Ll\n(bytes FF that are not utf-8)\ny"},
      {"identify --from nonsense a", 2, "'glyphorium values encoding' lists them"},
      {"identify --from /etc/passwd a", 2, "there is no encoding"},
      {"show --from cp1252 80 '0x99 0x85' --format '%(char)'", 0, "€\n™\n…\n"},
      {"show --from euc-jp 'B4 C1' b4 --format '%(hex)'", 1, "the bytes B4 are no text in euc-jp\n6f22\n"},
      {"show --from cp1252 euro", 2, "'euro' is no list of bytes"},
      {"show € → 😀 --format '%(bytes:cp1252)|%(bytes:utf-16be)|%(octal)|%(octal-escape)'", 0,
       "80|20 AC|20254|\\342\\202\\254\n|21 92|20622|\\342\\206\\222\n|D8 3D DE 00|"},
      {"show é 漢 --format '%(binary) %(plane) %(width) %(bidi) %(compose),%(digraph),%(keysym)'", 0,
       "11101001 0 1 L ' e,e',eacute\n110111100100010 0 2 L ,,"},
      {"show € --format '%(bytes:nonsense)'", 2, "there is no field '%(bytes:nonsense)'"},
      {"values encoding", 0, "\nwindows-1252\n"},
      {"frobnicate", 2, "there is no command 'frobnicate'; 'glyphorium search' finds characters"},
      {"", 2, "--help"},
      {"--version", 0, "glyphorium 1."},
      {"show \"$(printf 'a\\377')\"", 2, "not UTF-8"},
      {"groups >/dev/full", 3, "could not be written"},
      {"--help >/dev/full", 3, "could not be written"},
      {"--version >/dev/full", 3, "could not be written"},
      {"identify - </", 3, "could not be read"},
      {"show \"$(printf 'x\\033]0;y\\a\\302\\233')\"", 1, "no character is 'x␛]0;y␇⬚'"},
  };
  for (const auto& [arguments, exitCode, output] : cases) {
    const ProgramResult result = run("2>&1 " + arguments);
    EXPECT_EQ(result.exitCode, exitCode) << arguments << "\n" << result.output;
    EXPECT_THAT(result.output, HasSubstr(output)) << arguments;
    EXPECT_THAT(result.output, testing::Not(HasSubstr("didSet"))) << arguments;
    EXPECT_THAT(result.output, testing::Not(HasSubstr("\x1b"))) << arguments;
  }
  EXPECT_THAT(run("groups --verbose 2>&1 >/dev/null").output,
              HasSubstr("didSet ↘ allBuildInEntities '" + std::to_string(figures::entities) + "'"));
  EXPECT_THAT(run("--color always show 2192").output, HasSubstr("\x1b["));
  EXPECT_THAT(run("--color always show 2192", "NO_COLOR=1").output, testing::Not(HasSubstr("\x1b")));
  EXPECT_EQ(run("names 2>&1 | head -1").output,
            "0000\tNull character (Control)\n");  // a closed pipe is no error
}

TEST(CommandLine, IdentifiesTextOfAnyLengthInPiecesOfAnySize) {
  const std::string text = "e\u0301👨\u200D👩\u200D👧🇩🇪🇫🇷\r\n→";
  const TemporaryDirectory directory;
  const std::string file = (directory / "text").string(), pieces = (directory / "pieces").string();
  writeFile(file, text);
  const std::string whole = run("identify - <" + file).output;
  EXPECT_THAT(whole, HasSubstr("👨\u200D👩\u200D👧\t5 code points"));
  for (std::size_t at = 1; at < text.size(); ++at) {
    const std::string cut = std::to_string(at);
    const std::string piecewise = "(head -c " + cut + " " + file + "; sleep 0.01; tail -c +" +
                                  std::to_string(at + 1) + " " + file + ") | " PROGRAM " identify -";
    EXPECT_EQ(runProgram(piecewise).output, whole) << cut;
  }
  // The address space of the program is limited, so that the test fails if the program keeps the whole text
  // in memory.
  EXPECT_EQ(runProgram("(" MEMORY_LIMIT " yes '" + std::string("a → e\u0301") +
                       "' | head -c 4000000 | " PROGRAM " identify - | tail -n 1)")
                .output,
            "␊\t000a\tLine Feed (Control)\n");
}

TEST(CommandLine, WaitsForAFullPipeAndReportsAFullFile) {
  int pipe[2];
  ASSERT_EQ(pipe2(pipe, O_NONBLOCK), 0);
  const pid_t child = fork();
  if (child == 0) {
    dup2(pipe[1], STDOUT_FILENO);
    close(pipe[1]);
    execl(PROGRAM, PROGRAM, "list", "--all", nullptr);
    _exit(127);
  }
  close(pipe[1]);
  std::size_t size = 0;
  char buffer[4096];
  for (ssize_t count; (count = read(pipe[0], buffer, sizeof buffer)) != 0;) {
    if (count > 0) size += static_cast<std::size_t>(count);
    usleep(100);
  }
  close(pipe[0]);
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(size, run("list --all").output.size());

  const TemporaryDirectory directory;
  const ProgramResult limited =
      runProgram("(ulimit -f 1; " PROGRAM " list --all 2>&1 >" + (directory / "file").string() + ")");
  EXPECT_EQ(limited.exitCode, 3);
  EXPECT_THAT(limited.output, HasSubstr("could not be written"));
}

TEST(CommandLine, SendsNoControlCharactersOfTextsToATerminal) {
  const TemporaryDirectory home;
  SqliteSettingsStore(home / ".config/org.glyphorium.Glyphorium/settings.sqlite")
      .set("displayedGroups", std::vector<std::string>{"\x1b]0;x\a\u009B", "\x1b[2mfaint"});
  const std::string own = "HOME=" + home.path().string();
  const auto shown = run("--color always display", own).output;
  EXPECT_THAT(shown, HasSubstr("␛]0;x␇⬚"));
  EXPECT_THAT(shown, testing::Not(HasSubstr("\x1b]")));
  // An escape sequence in a stored text is made visible, even if the program itself uses the same sequence
  // for colours.
  EXPECT_THAT(shown, testing::AllOf(HasSubstr("␛[2mfaint"), HasSubstr("\x1b[2m0\x1b[0m")));
  const auto json = run("--color always identify --json \"$(printf '\\302\\233\\342\\200\\256')\"").output;
  EXPECT_THAT(json, testing::AllOf(HasSubstr("\\u009b"), HasSubstr("\\u202e"),
                                   testing::Not(HasSubstr("\u009B")), testing::Not(HasSubstr("\u202E"))));
  EXPECT_EQ(nlohmann::json::parse(json)[0].value("symbol", ""), "\u009B");
}

TEST(CommandLine, PrintsTheFieldsOfRecordsAsJson) {
  const struct {
    std::string arguments;
    std::size_t count;
    std::string key, value;
  } cases[] = {{"groups --json", figures::groups + 1, "name", "custom"},
               {"list --all --json", figures::entities, "name", "Space"},
               {"list arrows --json", figures::arrows, "htmlHex", "&#x2190;"},
               {"show 0027 --json", 1, "name", "False Apostrophe"},
               {"show 2603 --json", 1, "fallbackName", "Snowman"},
               {"names --json", figures::names, "hex", "0000"},
               {"table --json", 122, "name", "latinBasicJson"},
               {"list custom --json", 0, "", ""}};
  for (const auto& [arguments, count, key, value] : cases) {
    const auto json = nlohmann::json::parse(run(arguments).output, nullptr, false);
    ASSERT_TRUE(json.is_array()) << arguments;
    ASSERT_EQ(json.size(), count) << arguments;
    if (count == 0) continue;
    EXPECT_EQ(json[0].value(key, ""), value) << arguments;
  }
}

TEST(CommandLine, ShowsAnyIndexedItemAndReportsAnUnreadableIndex) {
  const TemporaryDirectory home;
  const std::string own = "HOME=" + home.path().string();
  const auto file = home / ".local/share/org.glyphorium.Glyphorium/index.sqlite";
  SqliteSearchableIndex index(file);
  index.indexItems({{"0009", "", "", "\t\tTabulation", {}, "g", {}, "\t"},
                    {"x", "", "", "\xFF\tIll-formed\xC3", {}, "g", {}, "\xFF"}},
                   {});
  ASSERT_TRUE(index.waitUntilIdle(std::chrono::minutes(1)));
  EXPECT_EQ(run("index search tabulation", own).output, "␉\t0009\tTabulation\tg\n");
  EXPECT_EQ(run("index search --json x", own).output,
            "[{\"hex\":\"x\",\"name\":\"Ill-formed\uFFFD\",\"symbol\":\"\uFFFD\",\"group\":\"g\"}]\n");
  std::filesystem::remove(file);
  mkfifo(file.c_str(), 0600);
  for (const char* const command : {"status", "search x", "add 2192", "reset"}) {
    const ProgramResult result = run("2>&1 index " + std::string(command), own);
    EXPECT_EQ(result.exitCode, 3) << command;
    EXPECT_THAT(result.output, HasSubstr("not a regular file")) << command;
  }
}

TEST(CommandLine, KeepsTheUsersChoices) {
  const TemporaryDirectory home;
  const std::string own = "HOME=" + home.path().string() + " DISPLAY= WAYLAND_DISPLAY=";
  const struct {
    std::string arguments;
    int exitCode;
    std::string output;  // the whole standard output; if the command fails, this is only a part of the output
  } steps[] = {
      {"list", 1, "display add GROUP"},
      {"added", 1, ""},
      {"display", 0, "custom\t0\n"},
      {"display add Arrows 'sf symbols'", 0, "custom\t0\narrows\t112\nSF Symbols\t1083\n"},
      {"display add arows", 2, "did you mean 'arrows'"},
      {"display remove armenian", 1, "is not displayed"},
      {"display remove 'SF SYMBOLS'", 0, "custom\t0\narrows\t112\n"},
      {"display --json", 0, "[{\"name\":\"custom\",\"count\":0},\n {\"name\":\"arrows\",\"count\":112}]\n"},
      {"add 0378", 2, "is no character but <reserved-0378>"},
      {"add 21d0 U+110000", 2, "is not the code of a character"},
      {"added", 1, ""},  // the failed commands have added no code
      {"add 21D0 é", 0,
       "⇐\t21d0\tLeftwards Double Arrow\t&lArr;\né\t00e9\tLatin Small Letter E With Acute\t&eacute;\n"},
      {"index status --json", 0, "{\"enabled\":true,\"items\":2}\n"},
      {"index search 'double arrow'", 0, "⇐\t21d0\tLeftwards Double Arrow\tcustom\n"},
      {"remove 21d1", 1, "did you mean '21d0'"},
      {"remove U+21D0", 0, "é\t00e9\tLatin Small Letter E With Acute\t&eacute;\n"},
      {"index disable", 0, "Characters that you add are not indexed any more; those in the index stay\n"},
      {"add 2192", 0,
       "é\t00e9\tLatin Small Letter E With Acute\t&eacute;\n→\t2192\tRightwards Arrow\t&rarr;\n"},
      {"index status --json", 0, "{\"enabled\":false,\"items\":1}\n"},
      {"index add arrows 'smile nothing'", 2, "is no character"},
      {"index add arrows 2603", 0, "Indexed 113 characters\n"},
      {"index remove arrows", 0, "Removed 112 characters from the index\n"},
      {"add 1fae0 🇩🇪", 0,
       "é\t00e9\tLatin Small Letter E With Acute\t&eacute;\n→\t2192\tRightwards Arrow\t&rarr;\n"
       "🫠\t1fae0\tMelting Face\t\n🇩🇪\t1f1e9,1f1ea\tFlag: Germany\t\n"},
      {"list custom --regex 'face|germany'", 0,
       "🫠\t1fae0\tMelting Face\t\n🇩🇪\t1f1e9,1f1ea\tFlag: Germany\t\n"},
      {"list --all --regex '^melting'", 0, "🫠\t1fae0\tMelting Face\t\n"},
      {"remove 🇩🇪 1FAE0", 0,
       "é\t00e9\tLatin Small Letter E With Acute\t&eacute;\n→\t2192\tRightwards Arrow\t&rarr;\n"},
      {"tone", 0, "none\t👋\n"},
      {"tone medium-dark", 0, "medium-dark\t👋🏾\n"},
      {"tone green", 2, "green"},
      {"index scope", 0, "all: the desktop's search shows characters of the whole catalog\n"},
      {"index scope mine", 0, "mine: the desktop's search shows what you added and what is in an index\n"},
      {"index scope yours", 2, "mine"},
      {"index reset", 0, "Removed 2 characters from the index\n"},
      {"index add", 2, "needs groups, codes or --all"},
      {"copy 2192", 3, "no display"},
      {"copy A --as html", 1, "has no HTML name"},
      {"copy A --as swiftui", 1, "only SF Symbols"},
      {"copy A --as morse", 2, "character"},
  };
  for (const auto& [arguments, exitCode, output] : steps) {
    const ProgramResult result = run((exitCode == 0 ? "" : "2>&1 ") + arguments, own);
    EXPECT_EQ(result.exitCode, exitCode) << arguments << "\n" << result.output;
    if (exitCode == 0) {
      EXPECT_EQ(result.output, output) << arguments;
    } else {
      EXPECT_THAT(result.output, HasSubstr(output)) << arguments;
    }
  }
  // If the stored choices cannot be read, the commands fail and do not show empty lists.
  writeFile(home / ".config/org.glyphorium.Glyphorium/settings.sqlite", std::string(10'000, '?'));
  for (const char* const command :
       {"list", "list --all", "list custom", "search --displayed arrow", "added"}) {
    const ProgramResult unread = run("2>&1 " + std::string(command), own);
    EXPECT_EQ(unread.exitCode, 3) << command;
    EXPECT_THAT(unread.output, HasSubstr("damaged")) << command;
  }
  EXPECT_EQ(run("list arrows", own).exitCode, 0);
  // This choice cannot be saved, because /dev/null is not a directory. The program must report the failure.
  const ProgramResult unsaved = run("2>&1 display add emoji", own + " XDG_CONFIG_HOME=/dev/null");
  EXPECT_EQ(unsaved.exitCode, 3);
  EXPECT_THAT(unsaved.output, HasSubstr("cannot be saved"));
}

// The manual page and the completions for each shell contain every command. The completions of group and
// table names come from the catalog.
TEST(CommandLine, HasDocumentationAndCompletionForEveryCommand) {
  const std::string folder = CLI_SOURCES;
  const std::string manual = fileContent(folder + "/glyphorium.1");
  std::string help = run("--help").output;
  help.erase(0, help.find("Subcommands:"));
  std::istringstream lines(help);
  std::size_t commands = 0;
  for (std::string line; std::getline(lines, line);) {
    if (line.size() < 3 || line.substr(0, 2) != "  " || line[2] == ' ') continue;
    const std::string command = line.substr(2, line.find(' ', 2) - 2);
    ++commands;
    EXPECT_THAT(manual, HasSubstr(command));
    for (const char* const completion : {"glyphorium.bash", "_glyphorium", "glyphorium.fish"}) {
      EXPECT_THAT(fileContent(folder + "/completions/" + completion), HasSubstr(command)) << completion;
    }
  }
  EXPECT_EQ(commands, 18u);

  const auto completed = [&](const std::string& words) {
    return runProgram("bash -c 'glyphorium() { " PROGRAM " \"$@\"; }; . " + folder +
                      "/completions/glyphorium.bash; " + "COMP_WORDS=(glyphorium " + words +
                      "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _glyphorium; " +
                      "printf \"%s\\n\" \"${COMPREPLY[@]}\"'")
        .output;
  };
  EXPECT_EQ(completed("sea"), "search\n");
  EXPECT_EQ(completed("list ARR"), "arrows\n");
  EXPECT_EQ(completed("list digital"), "digital\\ typography\\ \\(latin\\)\n");
  EXPECT_EQ(completed("show block:ArRo"), "block:Arrows\n");
  EXPECT_EQ(completed("list block : letterl"), "Letterlike\\ Symbols\n");
  EXPECT_EQ(completed("--color never tone me"), "medium-light\nmedium\nmedium-dark\n");
  EXPECT_EQ(completed("display a"), "add\n");
  EXPECT_EQ(completed("display add emo"), "emoji\n");
  EXPECT_EQ(completed("table latinB"), "latinBasicJson\n");
  EXPECT_EQ(completed("copy a --as html-h"), "html-hex\n");
  EXPECT_EQ(completed("index st"), "status\n");
  EXPECT_EQ(completed("list --tone da"), "dark\n");
  EXPECT_EQ(completed("show --from koi8-r"), "KOI8-R\n");

  const auto completedByFish = [&](const std::string& line) {
    return runProgram("HOME=/nonexistent fish --no-config -c 'function glyphorium; " PROGRAM
                      " $argv; end; source " +
                      folder + "/completions/glyphorium.fish; complete -C \"glyphorium " + line +
                      "\"' 2>/dev/null | cut -f1")
        .output;
  };
  EXPECT_EQ(completedByFish("pi"), "pick\n");
  EXPECT_EQ(completedByFish("list block:arro"), "block:Arrows\n");
  EXPECT_EQ(completedByFish("--color never tone medium-"), "medium-dark\nmedium-light\n");
  EXPECT_EQ(completedByFish("pick --as html-h"), "html-hex\n");
  EXPECT_EQ(completedByFish("identify --from koi8-r"), "KOI8-R\n");

  const auto completedByZsh = [&](const std::string& line) {
    return runProgram("PATH=" + std::string(PROGRAM).substr(0, std::string(PROGRAM).rfind('/')) +
                      ":$PATH zsh -f " CLI_TESTS "/complete.zsh " + folder + "/completions 'glyphorium " +
                      line + "'")
        .output;
  };
  EXPECT_EQ(completedByZsh("pi"), "pick\n");
  EXPECT_EQ(completedByZsh("list ARR"), "arrows\n");
  EXPECT_EQ(completedByZsh("list block:arro"), "Arrows\n");
  EXPECT_EQ(completedByZsh("--color never tone me"), "medium\nmedium-dark\nmedium-light\n");
  EXPECT_EQ(completedByZsh("pick --as html-h"), "html-hex\n");
  EXPECT_EQ(completedByZsh("show --from koi8"), "KOI8-R\nKOI8-U\n");
  EXPECT_EQ(completedByZsh("display add emo"), "emoji\n");
}

TEST(CommandLine, CopiesEveryCharacterOfItsArgument) {
  const auto copied = [](const std::string& arguments) {
    return runProgram("script -qec \"" PROGRAM " copy " + arguments + " --terminal\" /dev/null").output;
  };
  EXPECT_THAT(copied("'U+2192, &leftarrow;'"), HasSubstr("\033]52;c;4oaS4oaQ\a"));          // →←
  EXPECT_THAT(copied("e\u0301 --as html-hex"), HasSubstr("]52;c;JiN4NjU7JiN4MzAxOw==\a"));  // &#x65;&#x301;
  EXPECT_THAT(copied("→ U+2190"), HasSubstr("\033]52;c;4oaS4oaQ\a"));
  EXPECT_THAT(copied("21,22"), HasSubstr("no character is"));
}

TEST(CommandLine, ShowsUsageNotesInTheUsersLanguage) {
  EXPECT_THAT(run("show 201e", "LC_ALL=de_AT.UTF-8").output, HasSubstr("Anführung"));
  EXPECT_THAT(run("show 2019", "LC_ALL=en_GB.UTF-8 LANGUAGE=fr:en").output, HasSubstr("apostrophe"));
  EXPECT_THAT(run("show 00d7", "LC_ALL=en_GB.UTF-8").output, HasSubstr("\n    The multiplication sign"));
  EXPECT_THAT(run("show --json 00d7", "LC_ALL=en_GB.UTF-8").output,
              HasSubstr("\"note\":\"The multiplication sign"));
}

}  // namespace
}  // namespace glyph
