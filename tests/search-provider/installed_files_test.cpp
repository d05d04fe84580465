// SPDX-License-Identifier: MIT
#include "session.h"

namespace glyph {
namespace {

// By the tools of those who read the files.
void judge(const std::string& tool, const std::string& options, const std::string& files) {
  if (!isInstalled(tool)) GTEST_SKIP() << tool << " is not installed";
  const ProgramResult result =
      runProgram("cd " INSTALLED_SHARE " && " + tool + " " + options + " " + files + " 2>&1");
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_THAT(result.output, testing::Not(testing::HasSubstr("warning")));
}

TEST(InstalledFiles, AreDesktopEntries) {
  judge("desktop-file-validate", "", "applications/*.desktop krunner/dbusplugins/*.desktop");
}
TEST(InstalledFiles, DescribeTheApplication) {
  judge("appstreamcli", "validate --no-net", "metainfo/*.xml");
}
TEST(InstalledFiles, AreWellFormed) {
  judge("xmllint", "--noout", "metainfo/*.xml icons/hicolor/*/apps/*.svg");
}

}  // namespace
}  // namespace glyph
