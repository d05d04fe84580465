// SPDX-License-Identifier: MIT
// Measures the desktop search provider on a private bus, with the whole catalog indexed: a call that starts
// the provider, and calls while it runs. For comparison, it also measures a call to the bus itself.
#include <benchmark/benchmark.h>
#include <signal.h>
#include <sys/wait.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace {

using Clock = std::chrono::steady_clock;

// A search provider on the bus.
struct Provider {
  const char* service;
  const char* path;
};
constexpr Provider ours{"org.glyphorium.Glyphorium.SearchProvider",
                        "/org/glyphorium/Glyphorium/SearchProvider"};
constexpr Provider gnomeCharacters{"org.gnome.Characters", "/org/gnome/Characters/SearchProvider"};
constexpr const char* busItself = "org.freedesktop.DBus";

sd_bus* bus() {
  static sd_bus* const connection = [] {
    sd_bus* opened = nullptr;
    sd_bus_open_user(&opened);
    return opened;
  }();
  return connection;
}

// Returns the number of results. Callers check that it is not 0, because an empty answer would be
// misleadingly fast.
std::size_t search(const Provider& provider, const char* word) {
  sd_bus_message* reply = nullptr;
  std::size_t results = 0;
  if (sd_bus_call_method(bus(), provider.service, provider.path, "org.gnome.Shell.SearchProvider2",
                         "GetInitialResultSet", nullptr, &reply, "as", 1, word) >= 0) {
    sd_bus_message_enter_container(reply, 'a', "s");
    while (sd_bus_message_skip(reply, "s") > 0) ++results;
  }
  sd_bus_message_unref(reply);
  return results;
}

pid_t process(const Provider& provider) {
  sd_bus_creds* credentials = nullptr;
  pid_t found = 0;
  if (sd_bus_get_name_creds(bus(), provider.service, SD_BUS_CREDS_PID, &credentials) >= 0) {
    sd_bus_creds_get_pid(credentials, &found);
  }
  sd_bus_creds_unref(credentials);
  return found;
}

void callBus(benchmark::State& state) {
  for (auto _ : state) {
    sd_bus_call_method(bus(), busItself, "/org/freedesktop/DBus", busItself, "GetId", nullptr, nullptr, "");
  }
}
BENCHMARK(callBus)->UseRealTime();

void callProvider(benchmark::State& state, const Provider& provider, const char* word) {
  std::size_t results = search(provider, word);
  for (auto _ : state) results = search(provider, word);
  if (results == 0) state.SkipWithError("no results");
  std::ifstream status("/proc/" + std::to_string(process(provider)) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) state.counters["resident_kB"] = std::atof(line.c_str() + 6);
    if (line.starts_with("RssAnon:")) state.counters["own_kB"] = std::atof(line.c_str() + 8);
  }
  state.counters["results"] = static_cast<double>(results);
}
BENCHMARK_CAPTURE(callProvider, symbol, ours, "→")->UseRealTime();
BENCHMARK_CAPTURE(callProvider, word, ours, "arrow")->UseRealTime();
BENCHMARK_CAPTURE(callProvider, name, ours, "rightwards arrow")->UseRealTime();
BENCHMARK_CAPTURE(callProvider, everyItem, ours, "qv:")->UseRealTime();
// Needs a display.
BENCHMARK_CAPTURE(callProvider, wordOfGnomeCharacters, gnomeCharacters, "arrow")->UseRealTime();

// Measures the time from the call that starts the provider to its answer.
void startProvider(benchmark::State& state) {
  for (auto _ : state) {
    if (const pid_t running = process(ours)) {
      kill(running, SIGTERM);
      while (process(ours) != 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    const auto begin = Clock::now();
    if (search(ours, "→") == 0) return state.SkipWithError("no results");
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
  }
}
BENCHMARK(startProvider)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond);

// Indexes the catalog and runs this program again in a separate bus session, in which the provider finds this
// index.
int runInSession(char** arguments) {
  std::string folder = std::filesystem::temp_directory_path() / "glyphorium-XXXXXX";
  if (!mkdtemp(folder.data())) return 1;
  setenv("XDG_DATA_HOME", (folder + "/data").c_str(), 1);
  setenv("XDG_DATA_DIRS", (folder + "/share:/usr/share").c_str(), 1);
  std::filesystem::create_directories(folder + "/share/dbus-1/services");
  std::ofstream(folder + "/share/dbus-1/services/provider.service")
      << "[D-BUS Service]\nName=" << ours.service << "\nExec=" SEARCH_PROVIDER "\n";

  glyph::setDiagnosticsSink([](std::string_view) {});
  glyph::setSettingsStore(std::make_shared<glyph::MemorySettingsStore>());
  glyph::glyphorium().configure();
  glyph::toolKit().addToSpotlight(glyph::glyphorium().buildInEntities());
  glyph::searchableIndex()->waitUntilIdle(std::chrono::minutes(1));

  const pid_t child = fork();
  if (child == 0) {
    setenv("GLYPHORIUM_BENCHMARK_SESSION", "1", 1);
    if (!freopen("/dev/null", "w", stderr)) _exit(1);  // the bus prints two lines for each start
    std::string session = "dbus-run-session", end = "--";
    std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::vector<char*> command{session.data(), end.data(), program.data()};
    while (*arguments) command.push_back(*++arguments);
    execvp(command[0], command.data());
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  std::filesystem::remove_all(folder);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (!std::getenv("GLYPHORIUM_BENCHMARK_SESSION")) return runInSession(argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
