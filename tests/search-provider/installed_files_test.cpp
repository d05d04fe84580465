// SPDX-License-Identifier: MIT
#include "session.h"

namespace glyph {
namespace {

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

}  // namespace
}  // namespace glyph
