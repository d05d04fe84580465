// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/services/sqlite/sqlite.h"
#include "session.h"

namespace glyph {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class SearchProvider : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* tool : {"dbus-run-session", "gdbus"}) {
      if (!isInstalled(tool)) GTEST_SKIP() << tool << " is not installed";
    }
  }
};

TEST_F(SearchProvider, AnswersTheShell) {
  Session session;
  session.index();
  const std::string none = "(@as [],)\n";
  const struct {
    std::string call;
    testing::Matcher<std::string> answer;
  } cases[] = {
      {"GetInitialResultSet \"['→']\"", "(['2192'],)\n"},
      {"GetInitialResultSet \"['rightwards', 'ARROW']\"", StartsWith("(['2192', ")},
      {"GetInitialResultSet \"['a', 'with', 'ring']\"", HasSubstr("'0041,030a'")},  // found only in the index
      {"GetInitialResultSet \"['refused by the bus']\"", StartsWith("(['ffff'")},
      {"GetInitialResultSet \"['❤\uFE0F']\"", "(['2764'],)\n"},
      {"GetInitialResultSet \"['', ' ']\"", none},
      {"GetInitialResultSet \"['$(head -c 100000 /dev/zero | tr '\\0' a)']\"", none},
      {"GetInitialResultSet \"@as []\"", none},
      {"GetInitialResultSet \"['a']\" \"['b']\"", HasSubstr("InvalidArgs")},
      {"GetResultMetas \"['2192', 'zzzz', '', '0041,030a']\"",
       "([{'id': <'2192'>, 'name': <'→ Rightwards Arrow'>, 'description': <'arrows · U+2192'>, "
       "'gicon': <'org.glyphorium.Glyphorium'>, 'clipboardText': <'→'>}, "
       "{'id': <'0041,030a'>, 'name': <'A\u030A A With Ring'>, 'description': <'custom · U+0041 U+030A'>, "
       "'gicon': <'org.glyphorium.Glyphorium'>, 'clipboardText': <'A\u030A'>}],)\n"},
      {"GetResultMetas \"['0301']\"", HasSubstr("'name': <'◌\u0301 Combining Acute Accent'>")},
      {"GetResultMetas \"['05d0']\"", HasSubstr("'name': <'\\u200eא Hebrew Letter Alef'>")},
      {"GetResultMetas \"['2028']\"", HasSubstr("'name': <'⬚ Line Separator'>")},
      // The text of U+FFFF would be rejected by sd-bus. The other result must still be returned.
      {"GetResultMetas \"['ffff', '2192']\"",
       testing::AllOf(HasSubstr("{'id': <'ffff'>"), HasSubstr("{'id': <'2192'>"))},
      {"ActivateResult 2192 \"['arrow']\" 0", "()\n"},
      {"ActivateResult zzzz \"['arrow']\" 0", HasSubstr("InvalidArgs")},
  };
  for (const auto& [call, answer] : cases) EXPECT_THAT(session.shell(call), answer) << call;
  EXPECT_EQ(fileContent(session / "clipboard"), "→");
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

// GNOME Shell sends a query after every letter, together with the results of the previous query. The search
// must not be limited to these results, because the longer query may find other characters.
TEST_F(SearchProvider, FindsTheSameTypedLetterByLetterOrAtOnce) {
  Session session;
  for (const std::string query : {"U+2192", "\\\\u2192", "arow", "pfeil", "&rarr;"}) {
    const std::string atOnce = session.shell("GetInitialResultSet \"['" + query + "']\"");
    EXPECT_THAT(atOnce, HasSubstr("'2192'")) << query;
    EXPECT_EQ(session.shell("GetSubsearchResultSet \"['0041', 'gone']\" \"['" + query + "']\""), atOnce);
    EXPECT_EQ(session.shell("GetSubsearchResultSet \"@as []\" \"['" + query + "']\""), atOnce);
  }
  // No character matches both words.
  EXPECT_EQ(session.shell("GetInitialResultSet \"['snowman', 'invoice']\""), "(@as [],)\n");
}

TEST_F(SearchProvider, FindsCharactersOfTheUserAndOfAllHosts) {
  Session session;
  const auto identifiers = [&](const std::string& words) {
    return session.shell("GetInitialResultSet \"['" + words + "']\"");
  };
  EXPECT_THAT(identifiers("snowman"), StartsWith("(['2603'"));
  session.index(session / "data/com.example.Host/index.sqlite");
  symlink((session / "data/com.example.Host").c_str(), (session / "data/com.example.Link").c_str());
  std::filesystem::create_directory(session / "data/com.example.Fifo");
  mkfifo((session / "data/com.example.Fifo/index.sqlite").c_str(), 0600);
  EXPECT_TRUE(
      eventually([&] { return identifiers("a with ring").find("'0041,030a'") != std::string::npos; }));
  SqliteSettingsStore settings(session / "config/org.glyphorium.Glyphorium/settings.sqlite");
  settings.set("customAddedEntities", std::vector<std::string>{"fffd"});
  EXPECT_EQ(identifiers("replacement character"), "(['fffd'],)\n");
  EXPECT_THAT(session.shell("GetResultMetas \"['fffd']\""), HasSubstr("custom · U+FFFD"));
  // The user excludes the catalog from the search.
  settings.set("desktopSearchesCatalog", false);
  EXPECT_EQ(identifiers("snowman"), "(@as [],)\n");
  EXPECT_EQ(identifiers("rightwards arrow"), "(['2192', '21d2', '27f9'],)\n");
  EXPECT_EQ(identifiers("U+FFFD"), "(['fffd'],)\n");
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, KeepsTheUsersChoicesWhileTheyCannotBeRead) {
  Session session;
  const auto file = session / "config/org.glyphorium.Glyphorium/settings.sqlite";
  const auto choose = [&](const std::string& hex) {
    SqliteSettingsStore settings(file);
    settings.set("customAddedEntities", std::vector<std::string>{hex});
    settings.set("desktopSearchesCatalog", false);
  };
  // Replaces the settings by a file that is not a database.
  const auto damage = [&] {
    for (const char* const suffix : {"-wal", "-shm"}) std::filesystem::remove(file.string() + suffix);
    writeFile(session / "garbage", std::string(10'000, '?'));
    std::filesystem::rename(session / "garbage", file);
  };
  const auto search = [&](const std::string& word) {
    return session.shell("GetInitialResultSet \"['" + word + "']\"");
  };
  const std::string none = "(@as [],)\n", snowman = "(['2603'],)\n", comet = "(['2604'],)\n";
  // The settings are damaged when the program starts, so it uses the defaults until it can read the settings.
  std::filesystem::create_directories(file.parent_path());
  damage();
  EXPECT_THAT(search("snowman"), StartsWith("(['2603', "));
  std::filesystem::remove(file);
  choose("2603");
  EXPECT_EQ(search("snowman"), snowman);
  EXPECT_EQ(search("comet"), none);
  damage();
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(search("snowman"), snowman);
    EXPECT_EQ(search("comet"), none);
  }
  std::filesystem::remove(file);
  choose("2604");
  EXPECT_EQ(search("snowman"), none);
  EXPECT_EQ(search("comet"), comet);
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, OpensTheSearchInATerminal) {
  Session session;
  const std::string application =
      "gdbus call --session -d org.glyphorium.Glyphorium -o /org/glyphorium/Glyphorium -m "
      "org.freedesktop.Application.";
  const auto opened = [&] {
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(session / "terminal"); }));
    return fileContent(session / "terminal");
  };
  EXPECT_EQ(session.shell("LaunchSearch \"['double', '-arrow']\" 0"), "()\n");
  EXPECT_THAT(opened(),
              testing::MatchesRegex("-e\nsh\n-c\n[^\n]*glyphorium[^\n]*\nglyphorium\ndouble -arrow\n"));
  std::filesystem::remove(session / "terminal");
  EXPECT_EQ(runProgram(application + "ActivateAction search \"[<'→'>]\" '@a{sv} {}'").output, "()\n");
  EXPECT_THAT(opened(), testing::EndsWith("\n→\n"));
  std::filesystem::remove(session / "terminal");
  EXPECT_EQ(runProgram(application + "Activate '@a{sv} {}'").output, "()\n");
  EXPECT_THAT(opened(), testing::EndsWith("\n\n"));
  std::filesystem::remove(session / "terminal");
  writeProgram(session / "bin/glyphorium-browser", "exec \"$TERMINAL\" browser \"$@\"\n");
  EXPECT_EQ(session.shell("LaunchSearch \"['arrow']\" 0"), "()\n");
  EXPECT_EQ(opened(), "browser\n--search\narrow\n");
  std::filesystem::remove(session / "bin/glyphorium-browser");
  std::filesystem::remove(session / "bin/glyphorium");
  EXPECT_THAT(session.shell("LaunchSearch \"['arrow']\" 0"), HasSubstr("not installed"));
}

TEST_F(SearchProvider, LimitsLargeRequestsThatWouldDelayOthers) {
  Session session;
  const std::string many = "\"[$(seq -f \"'%.0f'\" -s, 2000 5000)]\"";
  const auto count = [&](const std::string& call) {
    const std::string answer = session.shell(call);
    std::size_t found = 0;
    for (std::size_t at = 0; (at = answer.find("'id'", at)) != std::string::npos; ++at) ++found;
    return found;
  };
  EXPECT_EQ(count("GetResultMetas \"['2192', '21d2']\""), 2u);
  EXPECT_LE(count("GetResultMetas " + many), 200u);
  EXPECT_THAT(session.shell("GetSubsearchResultSet " + many + " \"['→']\""), "(['2192'],)\n");
}

TEST_F(SearchProvider, AnswersTheRunner) {
  Session session;
  session.index();
  const std::string actions = "'actions': <['character', 'html', 'code-point']>}";
  const std::string noMatch = "(@a(sssida{sv}) [],)\n", icon = "', 'org.glyphorium.Glyphorium', ";
  const struct {
    std::string call, answer;  // the answer begins with this text
  } cases[] = {
      {"Match →", "([('2192', '→ Rightwards Arrow" + icon +
                      "100, 1.0, {'category': <'Characters'>, 'subtext': <'arrows · U+2192'>, " + actions +
                      ")],)\n"},
      {"Match ''", noMatch},
      {"Match U+21D2", "([('21d2', '⇒ Rightwards Double Arrow" + icon + "100"},
      {"Match '&rarr;'", "([('2192', '→ Rightwards Arrow" + icon + "100"},
      {"Match 'less-than sign'", "([('003c', '< Less-Than Sign" + icon + "70"},
      {"Match 'a with ring'", "([('0041,030a', 'A\u030A A With Ring" + icon + "70"},
      {"Match heart", "([('2764', '❤ Heavy Black Heart" + icon + "30"},
      {"Match 'QV: double arr'", "([('21d2', '⇒ Rightwards Double Arrow" + icon + "70"},
      {"Actions",
       "([('character', 'Copy Character', 'edit-copy'), ('html', 'Copy HTML Reference', 'text-html'), "
       "('code-point', 'Copy Code Point', 'accessories-character-map')],)\n"},
      {"Teardown", "()\n"},
  };
  for (const auto& [call, answer] : cases) EXPECT_THAT(session.runner(call), StartsWith(answer)) << call;
  // KRunner sends all that users type. The following queries must have no results, because they are probably
  // not meant as characters.
  for (const std::string other : {"l", "5", "5+5", "2192", "0x2192", "konsole", "https://example.org/arrow",
                                  "arrow.txt", "/home", "rarr", "int", "less-than sig", "a <", "?", "arow"}) {
    EXPECT_EQ(session.runner("Match '" + other + "'"), noMatch) << other;
  }

  const struct {
    std::string arguments, answer, copied;
  } runs[] = {{"2192 ''", "()\n", "→"},
              {"2192 html", "()\n", "&rarr;"},
              {"0041,030a html", "()\n", "&#x41;&#x30a;"},
              {"0041,030a code-point", "()\n", "U+0041 U+030A"},
              {"05d0 character", "()\n", "א"},
              {"2192 shout", "InvalidArgs", "א"},
              {"zzzz html", "InvalidArgs", "א"}};
  for (const auto& [arguments, answer, copied] : runs) {
    EXPECT_THAT(session.runner("Run " + arguments), HasSubstr(answer)) << arguments;
    EXPECT_EQ(fileContent(session / "clipboard"), copied) << arguments;
  }

  if (isInstalled("busctl")) {
    const std::string call =
        "busctl --address=\"$DBUS_SESSION_BUS_ADDRESS\" call org.glyphorium.Glyphorium.SearchProvider "
        "/runner org.kde.krunner1 Match ";
    EXPECT_THAT(runProgram(call + "s → 2>&1").output, StartsWith("a(sssida{sv}) 1 \"2192\""));
    EXPECT_THAT(runProgram(call + "u 5 2>&1").output, HasSubstr("Invalid arguments"));
  }
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, AnswersEvenIfTheIndexIsMissingLockedOrDamaged) {
  Session session;
  SqliteSettingsStore(session / "config/org.glyphorium.Glyphorium/settings.sqlite")
      .set("desktopSearchesCatalog", false);
  const std::string none = "(@as [],)\n", found = "(['0041,030a'],)\n";
  const auto search = [&] { return session.shell("GetInitialResultSet \"['a with ring']\""); };
  EXPECT_EQ(search(), none);
  session.index();
  EXPECT_EQ(search(), found);
  std::filesystem::remove_all(session.indexFile().parent_path());
  EXPECT_EQ(search(), none);
  session.index();
  {
    Database all(session.indexFile(), SQLITE_OPEN_READWRITE);
    all.execute("PRAGMA busy_timeout = 10000; PRAGMA locking_mode = EXCLUSIVE");
    all.execute("BEGIN EXCLUSIVE; DELETE FROM item");
    EXPECT_EQ(search(), none);
    EXPECT_THAT(session.runner("Run 0041,030a ''"), HasSubstr("InvalidArgs"));
  }
  EXPECT_TRUE(eventually([&] { return search() == found; }));
  writeFile(session.indexFile(), std::string(10'000, '?'));
  EXPECT_EQ(search(), none);
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, AnswersManyCallersWhileOthersAreKilled) {
  Session session;
  session.index();
  const std::string search = session.shellCommand("GetInitialResultSet \"['rightwards double arrow']\"");
  const std::string result = runProgram("for i in $(seq 50); do " + search + " & " + search +
                                        " >/dev/null 2>&1 & kill -9 $!; done 2>/dev/null; wait")
                                 .output;
  EXPECT_THAT(result, testing::MatchesRegex("(\\(\\['21d2', [^\n]*\\],\\)\n){50}"));
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, ExitsWhenIdleWithoutLosingACall) {
  Session session("0.02");
  session.index();
  // The pauses between calls are about as long as the idle time, so that many calls arrive just when the
  // program is about to exit.
  const std::string result = runProgram("for client in 1 2; do for pause in $(seq 10 35); do " +
                                        session.shellCommand("GetInitialResultSet \"['→']\"") +
                                        " 2>&1; sleep 0.0$pause; done & done; wait")
                                 .output;
  EXPECT_THAT(result, testing::MatchesRegex("(\\(\\['2192'\\],\\)\n){52}"));
  EXPECT_GT(session.starts(), 2u);
  EXPECT_TRUE(eventually([&] { return session.ends() == session.starts(); })) << session.log();
  EXPECT_THAT(fileContent(session / "ends"), Not(testing::ContainsRegex("[^0\n]"))) << session.log();
}

TEST_F(SearchProvider, ExitsOnSignalsAndWhenTheBusEnds) {
  Session session("0");
  session.index();
  for (const std::string signal : {"TERM", "INT", "HUP"}) {
    EXPECT_THAT(session.shell("GetInitialResultSet \"['→']\""), HasSubstr("2192"));
    const std::size_t before = session.ends();
    runProgram(
        "gdbus call --session -d org.freedesktop.DBus -o / -m "
        "org.freedesktop.DBus.GetConnectionUnixProcessID org.glyphorium.Glyphorium.SearchProvider | "
        "tr -dc '0-9 ' | { read type process; kill -" +
        signal + " $process; }");
    EXPECT_TRUE(eventually([&] { return session.ends() > before; })) << signal;
  }
  EXPECT_THAT(session.shell("GetInitialResultSet \"['→']\""), HasSubstr("2192"));
  session.endBus();
  EXPECT_TRUE(eventually([&] { return session.ends() == 4; }));
  EXPECT_EQ(fileContent(session / "ends"), "0\n0\n0\n0\n") << session.log();
}

// Checks the installed files with the official validators of their formats.
TEST(InstalledFiles, AreValid) {
  const std::pair<std::string, std::string> tools[] = {
      {"desktop-file-validate", "applications/*.desktop krunner/dbusplugins/*.desktop"},
      {"appstreamcli", "validate --no-net metainfo/*.xml"},
      {"xmllint", "--noout metainfo/*.xml icons/hicolor/*/apps/*.svg"}};
  std::string missing;
  for (const auto& [tool, arguments] : tools) {
    if (!isInstalled(tool)) {
      missing += " " + tool;
      continue;
    }
    const auto result = runProgram("cd " INSTALLED_SHARE " && " + tool + " " + arguments + " 2>&1");
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_THAT(result.output, testing::Not(testing::HasSubstr("warning")));
  }
  if (!missing.empty()) GTEST_SKIP() << "not installed:" << missing;
}

TEST(SearchProviderProgram, ReportsHelpVersionAndWrongArguments) {
  const struct {
    std::string arguments;
    int exitCode;
    std::string output;
  } cases[] = {{"--help", 0, "--idle-seconds"},          {"--version", 0, "glyphorium-search-provider 1."},
               {"--idle-seconds=soon", 2, "not 'soon'"}, {"--idle-seconds=-1", 2, "not '-1'"},
               {"--idle-seconds=nan", 2, "not 'nan'"},   {"--frobnicate", 2, "frobnicate"},
               {"now", 2, "unexpected argument 'now'"},  {"", 1, "the session bus cannot be used"}};
  for (const auto& [arguments, exitCode, output] : cases) {
    const ProgramResult result = runProgram(
        "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent " SEARCH_PROVIDER " " + arguments + " 2>&1");
    EXPECT_EQ(result.exitCode, exitCode) << arguments;
    EXPECT_THAT(result.output, HasSubstr(output)) << arguments;
  }
}

}  // namespace
}  // namespace glyph
