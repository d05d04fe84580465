// SPDX-License-Identifier: MIT
// The command line's grammar. What a command does stands in the file that commands.h names for it.
#include <CLI/CLI.hpp>
#include <functional>

#include "commands.h"
#include "glyphorium/platform/diagnostics.h"
#include "glyphorium/platform/unicode_text.h"
#include "glyphorium/version.h"
#include "lookup.h"

namespace {

struct Options {
  cli::Style style = cli::Style::automatic;
  bool verbose = false;
  bool json = false;
  bool all = false;
  std::vector<std::string> words;
  std::string word;
};

using Run = std::function<int(cli::Output&)>;

void addJson(CLI::App& command, Options& options) {
  command.add_flag("--json", options.json, "Print a JSON array of objects");
}

void addBrowsing(CLI::App& app, Options& options, Run& run) {
  CLI::App* const groups = app.add_subcommand("groups", "The groups of the catalog with their counts");
  addJson(*groups, options);
  groups->callback([&] { run = [&](cli::Output& output) { return cli::listGroups(output, options.json); }; });

  CLI::App* const list = app.add_subcommand("list", "The characters of groups");
  list->add_option("GROUP", options.words, "Names of groups, in any letter case");
  list->add_flag("--all", options.all, "The whole catalog");
  addJson(*list, options);
  list->callback([&] {
    if (options.all == !options.words.empty()) {
      throw CLI::ValidationError("list", "needs names of groups, or --all");
    }
    run = [&](cli::Output& output) {
      return cli::listEntities(output, options.words, options.all, options.json);
    };
  });

  CLI::App* const show = app.add_subcommand("show", "Everything about characters");
  show->add_option("CHARACTER", options.words, "→, U+2192, 2192, '&rarr;', 'rightwards arrow' ...")
      ->required();
  addJson(*show, options);
  show->callback([&] {
    run = [&](cli::Output& output) { return cli::showCharacters(output, options.words, options.json); };
  });
}

void addEmbeddedData(CLI::App& app, Options& options, Run& run) {
  CLI::App* const names = app.add_subcommand("names", "The Unicode name table, or its entries of hex codes");
  names->add_option("HEX", options.words, "Hexadecimal codes of four digits or more");
  addJson(*names, options);
  names->callback([&] {
    run = [&](cli::Output& output) { return cli::listNames(output, options.words, options.json); };
  });

  CLI::App* const table = app.add_subcommand("table", "The embedded texts, or one of them byte for byte");
  table->add_option("NAME", options.word, "Name of a constant, such as latinBasicJson");
  addJson(*table, options);
  table->callback([&] {
    run = [&](cli::Output& output) { return cli::printTable(output, options.word, options.json); };
  });
}

// CLI11 says only that a command is missing, also where a misspelt one stands.
std::string explanation(const CLI::App& app, const CLI::ParseError& error) {
  const std::vector<std::string> rest = app.remaining();
  if (error.get_name() != "RequiredError" || !app.get_subcommands().empty() || rest.empty())
    return error.what();
  std::vector<std::string> commands;
  for (const CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; })) {
    commands.push_back(command->get_name());
  }
  const std::vector<std::string> names = cli::nearest(rest.front(), commands);
  return "there is no command '" + rest.front() + "'" +
         (names.empty() ? "" : "; did you mean '" + names.front() + "'?");
}

// The library's own lines are for its developers: dropped, or on standard error where they are asked for.
void directDiagnostics(bool verbose) {
  glyph::setDiagnosticsSink([verbose](std::string_view line) {
    if (verbose) cli::complain(line);
  });
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (glyph::isWellFormedUtf8(argv[i])) continue;
    cli::complain("argument " + std::to_string(i) +
                  " is not UTF-8 text; is the terminal set to another encoding?");
    return cli::wrongUse;
  }

  CLI::App app{"The character catalog: Unicode characters, HTML character entities and SF Symbols.",
               "glyphorium"};
  Options options;
  Run run;
  app.set_version_flag("--version", std::string("glyphorium ") + GlyphoriumVersionString);
  app.add_flag("--verbose", options.verbose, "Print the library's diagnostic lines on standard error");
  app.add_option("--color", options.style, "When to colour and align: auto, always or never")
      ->transform(CLI::CheckedTransformer(std::map<std::string, cli::Style>{{"auto", cli::Style::automatic},
                                                                            {"always", cli::Style::terminal},
                                                                            {"never", cli::Style::plain}},
                                          CLI::ignore_case))
      ->type_name("WHEN");
  app.require_subcommand(1);
  app.fallthrough();
  addBrowsing(app, options, run);
  addEmbeddedData(app, options, run);

  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& request) {  // --help, --version
    return app.exit(request);
  } catch (const CLI::ParseError& error) {
    cli::complain(explanation(app, error) + "\nSee 'glyphorium --help', or --help behind a command.");
    return cli::wrongUse;
  }

  directDiagnostics(options.verbose);
  cli::Output output(options.style);
  const int exitCode = run(output);
  if (!output.flush()) {
    cli::complain("the output could not be written");
    return cli::notWritten;
  }
  return exitCode;
}
