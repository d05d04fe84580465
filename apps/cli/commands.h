// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "output.h"

/// The commands, each a function of its arguments that prints to `output` and returns the exit code.
namespace cli {

// Browsing the catalog.
int listGroups(Output& output, bool json);
int listEntities(Output& output, const std::vector<std::string>& groups, bool all, bool json);
int showCharacters(Output& output, const std::vector<std::string>& arguments, bool json);

// The embedded data as it stands.
int listNames(Output& output, const std::vector<std::string>& hexCodes, bool json);
int printTable(Output& output, const std::string& constant, bool json);

}  // namespace cli
