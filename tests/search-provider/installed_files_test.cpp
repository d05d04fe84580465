// SPDX-License-Identifier: MIT
#include "session.h"

namespace glyph {
namespace {

using test::isInstalled;

// The tools of those who read the files.
class InstalledFiles : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(InstalledFiles, SatisfyTheirReaders) {
  const std::string tool = GetParam()[0], options = GetParam()[1], files = GetParam()[2];
  if (!isInstalled(tool)) GTEST_SKIP() << tool << " is not installed";
  const ProgramResult result = runProgram(tool + " " + options + " " INSTALLED_SHARE "/" + files + " 2>&1");
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_THAT(result.output, testing::Not(testing::HasSubstr("warning")));
}

INSTANTIATE_TEST_SUITE_P(
    Tools, InstalledFiles,
    testing::Values(std::vector<std::string>{"desktop-file-validate", "", "applications/*.desktop"},
                    std::vector<std::string>{"desktop-file-validate", "", "krunner/dbusplugins/*.desktop"},
                    std::vector<std::string>{"appstreamcli", "validate --no-net", "metainfo/*.xml"},
                    std::vector<std::string>{"xmllint", "--noout", "metainfo/*.xml"},
                    std::vector<std::string>{"xmllint", "--noout", "icons/hicolor/*/apps/*.svg"}));

}  // namespace
}  // namespace glyph
