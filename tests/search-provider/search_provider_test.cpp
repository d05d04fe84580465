// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <sqlite3.h>

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
  const std::pair<std::string, std::string> searches[] = {
      {"'→'", "['2192']"},
      {"'rightwards', 'ARROW'", "['2192', '21d2', '27f9']"},
      {"'\\\\\\\\u{2192}'", "['2192']"},
      {"'U+110000000000000'", "@as []"},
      {"'a'", "['0061', '0041,030a', '2192', '05d0', '0301', '21d2', '27f9']"},
      {"'rihgtwards', 'arrow'", "['2192', '21d2', '27f9']"},
      {"'❤\uFE0F'", "['2764']"},
      {"'', ' '", "@as []"},
      {"'arrow OR sign', 'NEAR(', '*', '\\\"'", "@as []"},
      {"'$(head -c 100000 /dev/zero | tr '\\0' a)'", "@as []"}};
  for (const auto& [terms, found] : searches) {
    EXPECT_EQ(session.shell("GetInitialResultSet \"[" + terms + "]\""), "(" + found + ",)\n") << terms;
  }
  std::string manyResults = "['2192'";
  for (int i = 0; i < 99; ++i) manyResults += ", 'gone" + std::to_string(i) + "'";
  manyResults += "]";
  const struct {
    std::string call;
    testing::Matcher<std::string> answer;
  } cases[] = {
      {"GetInitialResultSet \"@as []\"", "(@as [],)\n"},
      {"GetInitialResultSet \"['a']\" \"['b']\"", HasSubstr("InvalidArgs")},
      {"GetSubsearchResultSet \"['2192', '27f9']\" \"['arrow', 'double']\"", "(['27f9'],)\n"},
      // Results that may have been cut short do not bound what people narrow them down to.
      {"GetSubsearchResultSet \"" + manyResults + "\" \"['long']\"", "(['27f9'],)\n"},
      {"GetResultMetas \"['2192', 'zzzz', '', '0041,030a']\"",
       "([{'id': <'2192'>, 'name': <'→ Rightwards Arrow'>, 'description': <'arrows · U+2192'>, "
       "'gicon': <'org.glyphorium.Glyphorium'>, 'clipboardText': <'→'>}, "
       "{'id': <'0041,030a'>, 'name': <'A\u030A A With Ring'>, 'description': <'custom · U+0041 U+030A'>, "
       "'gicon': <'org.glyphorium.Glyphorium'>, 'clipboardText': <'A\u030A'>}],)\n"},
      {"GetResultMetas \"['0301']\"", HasSubstr("'name': <'◌\u0301 Combining Acute Accent'>")},
      {"GetResultMetas \"['05d0']\"", HasSubstr("'name': <'\\u200eא Hebrew Letter Alef'>")},
      {"GetResultMetas \"['2028']\"", HasSubstr("'name': <'Line Separator'>")},
      {"ActivateResult 2192 \"['arrow']\" 0", "()\n"},
      {"ActivateResult zzzz \"['arrow']\" 0", HasSubstr("InvalidArgs")},
      // No application with a window is installed.
      {"LaunchSearch \"['arrow']\" 0", HasSubstr("ServiceUnknown")},
  };
  for (const auto& [call, answer] : cases) EXPECT_THAT(session.shell(call), answer) << call;
  EXPECT_EQ(fileContent(session / "clipboard"), "→");
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, AnswersTheRunner) {
  Session session;
  session.index();
  const std::string actions = "'actions': <['character', 'html', 'code-point']>}";
  const std::string noMatch = "(@a(sssida{sv}) [],)\n", icon = "', 'org.glyphorium.Glyphorium', ";
  const struct {
    std::string call, answer;  // as it starts: a match up to its category relevance
  } cases[] = {
      {"Match →", "([('2192', '→ Rightwards Arrow" + icon +
                      "100, 1.0, {'category': <'Characters'>, 'subtext': <'arrows · U+2192'>, " + actions +
                      ")],)\n"},
      {"Match ''", noMatch},
      {"Match l", noMatch},  // one letter finds only itself
      {"Match a", "([('0061', 'a Latin Small Letter A" + icon + "100"},
      {"Match 'less-than sign'", "([('003c', '< Less-Than Sign" + icon + "70"},
      {"Match double", "([('21d2', '⇒ Rightwards Double Arrow" + icon + "30"},
      {"Match 'QV: double'", "([('21d2', '⇒ Rightwards Double Arrow" + icon + "70"},
      {"Actions",
       "([('character', 'Copy Character', 'edit-copy'), ('html', 'Copy HTML Reference', 'text-html'), "
       "('code-point', 'Copy Code Point', 'accessories-character-map')],)\n"},
      {"Teardown", "()\n"},
  };
  for (const auto& [call, answer] : cases) EXPECT_THAT(session.runner(call), StartsWith(answer)) << call;

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

TEST_F(SearchProvider, AnswersWhateverBecomesOfTheIndex) {
  Session session;
  const std::string none = "(@as [],)\n", found = "(['2192'],)\n";
  const auto search = [&] { return session.shell("GetInitialResultSet \"['→']\""); };
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
    EXPECT_THAT(session.runner("Run 2192 ''"), HasSubstr("InvalidArgs"));
  }
  EXPECT_TRUE(eventually([&] { return search() == found; }));
  writeFile(session.indexFile(), std::string(10'000, '?'));
  EXPECT_EQ(search(), none);
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, AnswersManyAtOnceWhileOthersVanish) {
  Session session;
  session.index();
  const std::string search = session.shellCommand("GetInitialResultSet \"['double']\"");
  const std::string result = runProgram("for i in $(seq 50); do " + search + " & " + search +
                                        " >/dev/null 2>&1 & kill -9 $!; done 2>/dev/null; wait")
                                 .output;
  EXPECT_THAT(result, testing::MatchesRegex("(\\(\\['21d2', '27f9'\\],\\)\n){50}"));
  EXPECT_EQ(session.starts(), 1u) << session.log();
}

TEST_F(SearchProvider, LeavesWhenIdleWithoutLosingACall) {
  Session session("0.02");
  session.index();
  // Pauses around the idle time, so that many calls meet the program on its way out.
  const std::string result = runProgram("for client in 1 2; do for pause in $(seq 10 35); do " +
                                        session.shellCommand("GetInitialResultSet \"['→']\"") +
                                        " 2>&1; sleep 0.0$pause; done & done; wait")
                                 .output;
  EXPECT_THAT(result, testing::MatchesRegex("(\\(\\['2192'\\],\\)\n){52}"));
  EXPECT_GT(session.starts(), 2u);
  EXPECT_TRUE(eventually([&] { return session.ends() == session.starts(); })) << session.log();
  EXPECT_THAT(fileContent(session / "ends"), Not(testing::ContainsRegex("[^0\n]"))) << session.log();
}

TEST_F(SearchProvider, EndsWhenToldTo) {
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

// By the tools of those who read the files.
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

TEST(SearchProviderProgram, ExplainsItself) {
  const struct {
    std::string arguments;
    int exitCode;
    std::string output;
  } cases[] = {{"--help", 0, "--idle-seconds"},          {"--version", 0, "glyphorium-search-provider 1."},
               {"--idle-seconds=soon", 2, "not 'soon'"}, {"--idle-seconds=-1", 2, "not '-1'"},
               {"--idle-seconds=nan", 2, "not 'nan'"},   {"--frobnicate", 2, "frobnicate"},
               {"now", 2, "unexpected argument 'now'"},  {"", 1, "no service on the session bus"}};
  for (const auto& [arguments, exitCode, output] : cases) {
    const ProgramResult result = runProgram(
        "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent " SEARCH_PROVIDER " " + arguments + " 2>&1");
    EXPECT_EQ(result.exitCode, exitCode) << arguments;
    EXPECT_THAT(result.output, HasSubstr(output)) << arguments;
  }
}

}  // namespace
}  // namespace glyph
