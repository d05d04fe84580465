// SPDX-License-Identifier: MIT
// The grammar of the command line. commands.h declares the functions that carry out the commands.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <functional>
#include <sstream>
#include <system_error>

#include "commands.h"
#include "encoding.h"
#include "glyphorium/state/skin_tone.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/copy_forms.h"
#include "glyphorium/version.h"
#include "lookup.h"
#include "waiting.h"

namespace {

struct Options {
  cli::Style style = cli::Style::automatic;
  bool verbose = false;
  bool json = false;
  cli::Listing listing;
  cli::ListRequest list;
  bool all = false;
  bool terminal = false;
  std::vector<std::string> words;
  std::string word;
  cli::SearchRequest search;
  cli::PickRequest pick;
  std::string form = "character";
  std::string encoding;  // empty means UTF-8
  int limit = 20;
};

constexpr int maxLimit = 1'000'000;

using Run = std::function<int(cli::Output&)>;

void addJson(CLI::App& command, Options& options) {
  command.add_flag("--json", options.json, "Print a JSON array of objects");
}

void addListing(CLI::App& command, Options& options) {
  CLI::Option* const json = command.add_flag("--json", options.listing.json, "Print a JSON array of objects");
  CLI::Option* const tsv =
      command.add_flag("--tsv", options.listing.tsv, "Print a table with tabs and a heading");
  command
      .add_option("--format", options.listing.format, "Print a line of fields: '%(char) %(hex l:8) %(name)'")
      ->type_name("TEMPLATE")
      ->excludes(json)
      ->excludes(tsv)
      ->check([](const std::string& format) { return cli::faultOfFormat(format).value_or(""); });
  tsv->excludes(json);
}

void addEncoding(CLI::App& command, Options& options, const char* description) {
  command.add_option("--from", options.encoding, description)
      ->type_name("ENCODING")
      ->check([](const std::string& name) {
        return cli::isEncoding(name)
                   ? std::string()
                   : "there is no encoding '" + name + "'; 'glyphorium values encoding' lists them";
      });
}

std::vector<std::string> namesOfTones() {
  std::vector<std::string> names;
  for (const glyph::SkinTone tone : glyph::allSkinTones) names.emplace_back(glyph::skinToneName(tone));
  return names;
}

std::vector<std::string> namesOfForms() {
  std::vector<std::string> names;
  for (const glyph::CopyForm& form : glyph::copyForms()) names.emplace_back(form.identifier);
  return names;
}

void addBrowsing(CLI::App& app, Options& options, Run& run) {
  CLI::App* const groups = app.add_subcommand("groups", "The groups of the catalog with their counts");
  addJson(*groups, options);
  groups->callback([&] { run = [&](cli::Output& output) { return cli::listGroups(output, options.json); }; });

  CLI::App* const list = app.add_subcommand("list", "The characters of groups, or of the displayed groups");
  list->add_option(
      "GROUP", options.list.groups,
      "Groups in any letter case; U+2190..2193, block:arrows, script:Greek, category:Sc, age:15, "
      "property:Dash, emoji");
  list->add_flag("--all", options.list.all, "The whole catalog");
  list->add_option("--regex", options.list.regex, "Only names that this regular expression matches");
  list->add_option("--tone", options.list.tone, "Show emoji with this skin tone")
      ->check(CLI::IsMember(namesOfTones()))
      ->type_name("TONE");
  addListing(*list, options);
  list->callback([&] {
    if (options.list.all && !options.list.groups.empty()) {
      throw CLI::ValidationError("list", "takes names of groups or --all, not both");
    }
    run = [&](cli::Output& output) { return cli::listEntities(output, options.list, options.listing); };
  });

  CLI::App* const show = app.add_subcommand("show", "Everything about characters");
  show->add_option("CHARACTER", options.words, "→, U+2192, 2192, '&rarr;', 'rightwards arrow' ...")
      ->required();
  addEncoding(*show, options, "The arguments are bytes in this encoding: 80, 'a4 a2'");
  addListing(*show, options);
  show->callback([&] {
    run = [&](cli::Output& output) {
      return cli::showCharacters(output, options.words, options.encoding, options.listing);
    };
  });

  CLI::App* const ascii = app.add_subcommand("ascii", "The table of ASCII");
  addJson(*ascii, options);
  ascii->callback([&] { run = [&](cli::Output& output) { return cli::printAscii(output, options.json); }; });
}

void addSearching(CLI::App& app, Options& options, Run& run) {
  CLI::App* const search =
      app.add_subcommand("search", "Find characters by name, meaning, code, HTML name ...");
  search
      ->add_option("WORDS", options.search.words,
                   "Words in any order, a code, an HTML reference, a character")
      ->required();
  search->add_flag("--displayed", options.search.displayed, "Only in the displayed groups");
  search->add_option("--limit", options.search.limit, "At most so many; 0 means all")
      ->capture_default_str()
      ->check(CLI::Range(0, maxLimit));
  search->add_option("--group", options.search.groups, "Only in this group; may be repeated")
      ->type_name("GROUP")
      ->expected(1)
      ->take_all();
  search->add_flag("--copy", options.search.copy, "Copy the first one to the clipboard");
  addListing(*search, options);
  search->callback([&] {
    run = [&](cli::Output& output) { return cli::searchCatalog(output, options.search, options.listing); };
  });

  CLI::App* const pick = app.add_subcommand("pick", "Find characters interactively in the terminal");
  pick->add_option("WORDS", options.pick.words, "What to search for first");
  pick->add_flag("--multi", options.pick.multi, "Mark several characters with the Tab key");
  pick->add_flag("--copy", options.pick.copy, "Copy what you choose instead of printing it");
  pick->add_option("--as", options.pick.form, "The form to print or to copy")
      ->capture_default_str()
      ->check(CLI::IsMember(namesOfForms()))
      ->type_name("FORM");
  pick->callback(
      [&] { run = [&](cli::Output& output) { return cli::pickCharacters(output, options.pick); }; });

  CLI::App* const identify = app.add_subcommand("identify", "Name each character of a text");
  identify->add_option("TEXT", options.words, "The text, or - for standard input")->required();
  addEncoding(*identify, options, "The text is in this encoding, not in UTF-8");
  addListing(*identify, options);
  identify->callback([&] {
    run = [&](cli::Output& output) {
      return cli::identifyText(output, options.words, options.encoding, options.listing);
    };
  });
}

void addChoices(CLI::App& app, Options& options, Run& run) {
  CLI::App* const display = app.add_subcommand("display", "The displayed groups, and changes of them");
  addJson(*display, options);
  const auto choose = [&](cli::Choice choice) {
    run = [&, choice](cli::Output& output) {
      return cli::displayGroups(output, choice, options.words, options.json);
    };
  };
  display->require_subcommand(0, 1);
  display->callback([choose, display] {
    if (display->get_subcommands().empty()) choose(cli::Choice::show);
  });
  const struct {
    const char* name;
    const char* description;
    cli::Choice choice;
  } changes[] = {{"add", "Display more groups", cli::Choice::add},
                 {"remove", "Stop displaying these groups", cli::Choice::remove},
                 {"set", "Display these groups and no others", cli::Choice::set}};
  for (const auto& change : changes) {
    CLI::App* const command = display->add_subcommand(change.name, change.description);
    command->add_option("GROUP", options.words, "Names of groups, in any letter case")->required();
    command->callback([choose, choice = change.choice] { choose(choice); });
  }

  CLI::App* const add = app.add_subcommand("add", "Add characters of your own to the group custom");
  add->add_option("CODE", options.words, "21d0, U+21D0 or the character itself")->required();
  add->callback(
      [&] { run = [&](cli::Output& output) { return cli::addCharacters(output, options.words); }; });

  CLI::App* const remove = app.add_subcommand("remove", "Remove added characters");
  remove->add_option("CODE", options.words, "21d0, U+21D0 or the character itself")->required();
  remove->callback(
      [&] { run = [&](cli::Output& output) { return cli::removeCharacters(output, options.words); }; });

  CLI::App* const added = app.add_subcommand("added", "The characters that you added");
  addListing(*added, options);
  added->callback(
      [&] { run = [&](cli::Output& output) { return cli::listAdded(output, options.listing); }; });

  CLI::App* const tone = app.add_subcommand("tone", "The skin tone that you prefer for emoji");
  tone->add_option("TONE", options.word, "Store this one")->check(CLI::IsMember(namesOfTones()));
  tone->callback([&] { run = [&](cli::Output& output) { return cli::skinTone(output, options.word); }; });
}

void addCopying(CLI::App& app, Options& options, Run& run) {
  CLI::App* const copy =
      app.add_subcommand("copy", "Copy a character, or one of its code forms, to the clipboard");
  copy->add_option("CHARACTER", options.words, "→, U+2192, 2192, '&rarr;', 'rightwards arrow' ...")
      ->required();
  copy->add_option("--as", options.form, "The form to copy")
      ->capture_default_str()
      ->check(CLI::IsMember(namesOfForms()))
      ->type_name("FORM");
  copy->add_flag("--terminal", options.terminal,
                 "Copy through the terminal (OSC 52), as in a remote session");
  copy->callback([&] {
    run = [&](cli::Output& output) {
      return cli::copyCharacters(output, options.words, options.form, options.terminal);
    };
  });
}

void addIndexing(CLI::App& app, Options& options, Run& run) {
  CLI::App* const index = app.add_subcommand("index", "What the desktop's search finds");
  index->require_subcommand(1);

  CLI::App* const status = index->add_subcommand("status", "How much is indexed");
  addJson(*status, options);
  status->callback(
      [&] { run = [&](cli::Output& output) { return cli::showIndexStatus(output, options.json); }; });

  CLI::App* const add = index->add_subcommand("add", "Let the desktop's search find characters");
  add->add_option("WHAT", options.words, "Names of groups, codes or characters");
  add->add_flag("--all", options.all, "The whole catalog");
  add->callback([&] {
    if (options.all == !options.words.empty())
      throw CLI::ValidationError("index add", "needs groups, codes or --all");
    run = [&](cli::Output& output) { return cli::addToIndex(output, options.words, options.all); };
  });

  CLI::App* const remove = index->add_subcommand("remove", "Take characters out of the index");
  remove->add_option("WHAT", options.words, "Names of groups, codes or characters")->required();
  remove->callback(
      [&] { run = [&](cli::Output& output) { return cli::removeFromIndex(output, options.words, false); }; });

  CLI::App* const reset = index->add_subcommand("reset", "Take everything out of the index");
  reset->callback([&] { run = [&](cli::Output& output) { return cli::removeFromIndex(output, {}, true); }; });

  CLI::App* const search = index->add_subcommand("search", "Search among the indexed characters alone");
  search->add_option("WORDS", options.words, "Words, a code or a character")->required();
  search->add_option("--limit", options.limit, "At most so many")
      ->capture_default_str()
      ->check(CLI::Range(1, maxLimit));
  addJson(*search, options);
  search->callback([&] {
    run = [&](cli::Output& output) {
      return cli::searchIndex(output, options.words, options.limit, options.json);
    };
  });

  CLI::App* const scope =
      index->add_subcommand("scope", "What the desktop's search shows: all characters or only yours");
  scope->add_option("SCOPE", options.word, "all, or mine: what you added and what is in an index")
      ->check(CLI::IsMember({"all", "mine"}));
  scope->callback(
      [&] { run = [&](cli::Output& output) { return cli::desktopSearchScope(output, options.word); }; });

  CLI::App* const enable = index->add_subcommand("enable", "Index the characters that you add");
  enable->callback([&] { run = [&](cli::Output& output) { return cli::enableIndex(output, true); }; });
  CLI::App* const disable = index->add_subcommand("disable", "Do not index the characters that you add");
  disable->callback([&] { run = [&](cli::Output& output) { return cli::enableIndex(output, false); }; });
}

void addEmbeddedData(CLI::App& app, Options& options, Run& run) {
  CLI::App* const names = app.add_subcommand("names", "The Unicode name table, or its entries of hex codes");
  names->add_option("HEX", options.words, "Codes and characters of all of Unicode");
  addJson(*names, options);
  names->callback([&] {
    run = [&](cli::Output& output) { return cli::listNames(output, options.words, options.json); };
  });

  CLI::App* const values =
      app.add_subcommand("values", "The values of a property, or the forms, fields and encodings");
  values->add_option("PROPERTY", options.word, "What to list")
      ->required()
      ->check(CLI::IsMember({"block", "script", "category", "age", "property", "form", "field", "encoding"}));
  addJson(*values, options);
  values->callback([&] {
    run = [&](cli::Output& output) { return cli::listValues(output, options.word, options.json); };
  });

  CLI::App* const table = app.add_subcommand("table", "The embedded texts, or one of them byte for byte");
  table->add_option("NAME", options.word, "Name of a constant, such as latinBasicJson");
  addJson(*table, options);
  table->callback([&] {
    run = [&](cli::Output& output) { return cli::printTable(output, options.word, options.json); };
  });
}

// Returns the message for a parse error. CLI11's message for a misspelt command says only that a command is
// missing, so this function makes a better one.
std::string explanation(const CLI::App& app, const CLI::ParseError& error) {
  const std::vector<std::string> rest = app.remaining();
  if (error.get_name() != "RequiredError" || !app.get_subcommands().empty() || rest.empty())
    return error.what();
  std::vector<std::string> commands;
  for (const CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; })) {
    commands.push_back(command->get_name());
  }
  const std::vector<std::string> names = cli::nearestTexts(rest.front(), commands);
  return "there is no command '" + rest.front() + "'" +
         (names.empty() ? "; 'glyphorium search' finds characters"
                        : "; did you mean '" + names.front() + "'?");
}

// Is put before an argument that begins with a hyphen but is not an option, such as "->", so that the parser
// does not take the argument for an option.
constexpr char noOption = '\x1f';

// Returns the arguments in reverse order, which the parser of CLI11 expects.
std::vector<std::string> argumentsOf(int argc, char** argv) {
  std::vector<std::string> arguments;
  for (int i = argc - 1; i > 0; --i) {
    std::string argument = argv[i];
    const std::size_t name = argument.find_first_not_of('-');
    const bool hasName =
        name != std::string::npos && std::isalnum(static_cast<unsigned char>(argument[name])) != 0;
    const bool isOption = argument == "--" || (hasName && name <= 2);
    if (argument.size() > 1 && argument.front() == '-' && !isOption) argument.insert(0, 1, noOption);
    arguments.push_back(std::move(argument));
  }
  return arguments;
}

void unmark(std::vector<std::string>& words) {
  for (std::string& word : words) {
    if (word.starts_with(noOption)) word.erase(0, 1);
  }
}

// Writes the collected output. Returns `exitCode`, or notWritten if writing failed.
int written(cli::Output& output, int exitCode) {
  if (output.flush()) return exitCode;
  cli::complain("the output could not be written: " + std::generic_category().message(errno));
  return cli::notWritten;
}

}  // namespace

int main(int argc, char** argv) {
  // Ignore SIGXFSZ: a write beyond the file size limit then fails with an error message, instead of killing
  // the program.
  std::signal(SIGXFSZ, SIG_IGN);
  const bool isEncoded = std::any_of(
      argv, argv + argc, [](std::string_view argument) { return argument.starts_with("--from"); });
  for (int i = 1; i < argc && !isEncoded; ++i) {
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
  app.add_option_function<std::string>(
         "--color",
         [&options](const std::string& when) {
           options.style = when == "always"  ? cli::Style::terminal
                           : when == "never" ? cli::Style::plain
                                             : cli::Style::automatic;
         },
         "When to colour and align")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->type_name("WHEN");
  app.require_subcommand(1);
  app.fallthrough();
  addBrowsing(app, options, run);
  addSearching(app, options, run);
  addChoices(app, options, run);
  addCopying(app, options, run);
  addIndexing(app, options, run);
  addEmbeddedData(app, options, run);

  CLI::App* const helpCommand = app.add_subcommand("help", "Print the help of a command");
  helpCommand->add_option("COMMAND", options.words, "A command, or a command and a part of it");
  helpCommand->callback([&] {
    const CLI::App* command = &app;
    std::string before;  // the names of the program and of the commands above the command
    for (const std::string& word : options.words) {
      const auto parts =
          command->get_subcommands([&](const CLI::App* one) { return one->get_name() == word; });
      if (parts.empty()) throw CLI::ValidationError("help", "there is no command '" + word + "'");
      before += command->get_name() + " ";
      command = parts.front();
    }
    if (!before.empty()) before.pop_back();
    run = [text = command->help(before)](cli::Output& output) {
      output.print(text);
      return cli::found;
    };
  });

  try {
    app.parse(argumentsOf(argc, argv));
    for (auto* const words :
         {&options.words, &options.search.words, &options.pick.words, &options.list.groups})
      unmark(*words);
  } catch (const CLI::Success& request) {  // --help, --version
    std::ostringstream text;
    app.exit(request, text, text);
    cli::Output help(cli::Style::plain);
    help.print(text.str());
    return written(help, cli::found);
  } catch (const CLI::ParseError& error) {
    cli::complain(explanation(app, error) + "\nSee 'glyphorium --help', or add --help to a command.");
    return cli::wrongUse;
  }

  cli::keepDiagnostics(options.verbose);
  cli::limitLockWaits();
  cli::Output output(options.style);
  return written(output, run(output));
}
