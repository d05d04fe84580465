// SPDX-License-Identifier: MIT
#include <getopt.h>

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <optional>
#include <system_error>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/sqlite/lock_wait.h"
#include "glyphorium/version.h"
#include "service.h"

namespace {

using std::chrono::microseconds;

constexpr int failed = 1, wrongUse = 2;

void complain(std::string_view text) {
  std::fprintf(stderr, "glyphorium-search-provider: %.*s\n", static_cast<int>(text.size()), text.data());
}

// Parses a decimal number of seconds between 0 and one year. Returns nullopt for other texts.
std::optional<microseconds> duration(const char* text) {
  double seconds = 0;
  const char* const end = text + std::strlen(text);
  const auto [rest, error] = std::from_chars(text, end, seconds);
  if (error != std::errc() || rest != end || !(seconds >= 0 && seconds <= 31'536'000)) return std::nullopt;
  return std::chrono::duration_cast<microseconds>(std::chrono::duration<double>(seconds));
}

int printHelp() {
  std::printf(
      "Usage: glyphorium-search-provider [OPTION]\n"
      "Answers the desktop's own search with characters: those of Glyphorium's catalog, those that the user\n"
      "added and those in the indexes of hosts. 'glyphorium index scope mine' leaves the catalog out. The\n"
      "session bus starts the program when the desktop asks, as %s:\n"
      "  %s  org.gnome.Shell.SearchProvider2\n"
      "  /runner  org.kde.krunner1\n\n"
      "      --idle-seconds=SECONDS  exit so many seconds after the last call; 0 means never (default 30)\n"
      "  -h, --help                  print this help\n"
      "      --version               print the version\n",
      provider::busName().c_str(), provider::objectPath().c_str());
  return 0;
}

int serve(microseconds idleLimit) try {
  provider::Service(idleLimit).run();
  return 0;
} catch (const provider::CallError& error) {
  complain(error.text);
  return failed;
} catch (const std::exception& error) {
  complain(std::string("the session bus cannot be used: ") + error.what());
  return failed;
}

}  // namespace

int main(int argc, char** argv) {
  enum { help = 'h', version = 256, idleSeconds };
  const option options[] = {{"help", no_argument, nullptr, help},
                            {"version", no_argument, nullptr, version},
                            {"idle-seconds", required_argument, nullptr, idleSeconds},
                            {}};
  microseconds idleLimit = std::chrono::seconds(30);
  for (int found; (found = getopt_long(argc, argv, "h", options, nullptr)) != -1;) {
    if (found == help) return printHelp();
    if (found == version) return std::printf("glyphorium-search-provider %s\n", GlyphoriumVersionString) < 0;
    if (found != idleSeconds) return wrongUse;  // getopt_long() has printed the reason
    const auto wanted = duration(optarg);
    if (!wanted) {
      complain(std::string("--idle-seconds takes a number of seconds, not '") + optarg + "'");
      return wrongUse;
    }
    idleLimit = *wanted;
  }
  if (optind < argc) {
    complain(std::string("unexpected argument '") + argv[optind] + "'");
    return wrongUse;
  }

  // Diagnostics go to standard error, because the system journal records the standard error of programs
  // that the bus starts.
  glyph::setDiagnosticsSink(complain);
  // Desktops wait for the answer after every key press. If another program has locked the settings, they
  // are read again at a later call.
  glyph::setLockWaitPolicy(
      [](std::chrono::milliseconds waited) { return waited < std::chrono::milliseconds(300); });
  std::signal(SIGPIPE, SIG_IGN);
  return serve(idleLimit);
}
