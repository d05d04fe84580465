// SPDX-License-Identifier: MIT
// Measures the time from the start of the program until its first window shows something. For comparison,
// also measures the character maps of desktops that are installed. All programs share one display (Xvfb) and
// one session bus. "resident_kB" is the resident memory some time later, "private_kB" the part that is not
// shared with other processes. The picker is measured in the way in which a keyboard shortcut opens it: a
// second start of the program, which finds the first one running.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

std::optional<pid_t> spawned(std::vector<std::string> command) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&files, 2, "/dev/null", O_WRONLY, 0);
  pid_t process = 0;
  const int failure = posix_spawnp(&process, arguments.front(), &files, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&files);
  return failure == 0 ? std::optional(process) : std::nullopt;
}

// A process that the destructor ends.
class Process {
 public:
  explicit Process(std::vector<std::string> command) : process_(spawned(std::move(command))) {}
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process() {
    if (!process_) return;
    kill(*process_, SIGKILL);
    waitpid(*process_, nullptr, 0);
  }
  bool isRunning() const { return process_ && kill(*process_, 0) == 0; }

  // Returns the sum of all lines with this name in the file smaps_rollup of the process, in kilobytes.
  double memory(const std::string& name) const {
    std::ifstream rollup("/proc/" + std::to_string(process_.value_or(0)) + "/smaps_rollup");
    double kilobytes = 0;
    for (std::string line; std::getline(rollup, line);) {
      if (line.starts_with(name)) kilobytes += std::atof(line.c_str() + line.find(':') + 1);
    }
    return kilobytes;
  }

 private:
  std::optional<pid_t> process_;
};

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
  return {reply, &std::free};
}

// A virtual display, a session bus, and a home directory without settings.
class Desktop {
 public:
  Desktop() {
    home_ = std::filesystem::temp_directory_path() / ("glyphorium-desktop-" + std::to_string(getpid()));
    std::filesystem::create_directories(home_ / "run");
    for (const auto& [name, folder] : {std::pair{"HOME", "."},
                                       {"XDG_CONFIG_HOME", "config"},
                                       {"XDG_DATA_HOME", "data"},
                                       {"XDG_CACHE_HOME", "cache"},
                                       {"XDG_RUNTIME_DIR", "run"}}) {
      setenv(name, (home_ / folder).c_str(), 1);
    }
    std::filesystem::permissions(home_ / "run", std::filesystem::perms::owner_all);
    const std::string address = "unix:path=" + (home_ / "run" / "bus").string();
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
    setenv("NO_AT_BRIDGE", "1", 1);
    setenv("GTK_A11Y", "none", 1);
    bus_.emplace(std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--address=" + address});
    for (int number = 90; number < 200 && !connection_; ++number) {
      if (std::filesystem::exists("/tmp/.X11-unix/X" + std::to_string(number))) continue;
      start(":" + std::to_string(number));
    }
  }
  ~Desktop() {
    if (connection_) xcb_disconnect(connection_);
    server_.reset();
    bus_.reset();
    std::error_code ignored;
    std::filesystem::remove_all(home_, ignored);
  }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  bool isUsable() const { return connection_; }

  std::set<xcb_window_t> windows() const {
    std::set<xcb_window_t> found;
    const auto tree = owned(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr));
    if (!tree) return found;
    const xcb_window_t* const children = xcb_query_tree_children(tree.get());
    found.insert(children, children + xcb_query_tree_children_length(tree.get()));
    return found;
  }

  // Whether there is a visible window that is not among `known`, has at least the size of a program's main
  // window, and shows more than its background.
  bool showsNewWindow(const std::set<xcb_window_t>& known) const {
    for (const xcb_window_t window : windows()) {
      if (!known.contains(window) && hasContent(window)) return true;
    }
    return false;
  }

 private:
  void start(const std::string& display) {
    server_.emplace(
        std::vector<std::string>{"Xvfb", display, "-screen", "0", "1600x1000x24", "-nolisten", "tcp"});
    for (int i = 0; i < 200 && server_->isRunning(); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(25));
      xcb_connection_t* const connection = xcb_connect(display.c_str(), nullptr);
      if (!xcb_connection_has_error(connection)) {
        connection_ = connection;
        root_ = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        setenv("DISPLAY", display.c_str(), 1);
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        setenv("GDK_BACKEND", "x11", 1);
        unsetenv("WAYLAND_DISPLAY");
        return;
      }
      xcb_disconnect(connection);
    }
  }

  bool hasContent(xcb_window_t window) const {
    const auto attributes = owned(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window), nullptr));
    const auto geometry =
        owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
    if (!attributes || !geometry || attributes->map_state != XCB_MAP_STATE_VIEWABLE) return false;
    if (geometry->width < 200 || geometry->height < 200) return false;
    // Look at a strip across the upper part of the window, where each of these programs shows something.
    const auto strip = owned(xcb_get_image_reply(
        connection_,
        xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, geometry->width, 150, ~0U),
        nullptr));
    if (!strip) return false;
    const std::uint8_t* const bytes = xcb_get_image_data(strip.get());
    std::set<std::uint32_t> colours;
    for (int i = 0; i + 4 <= xcb_get_image_data_length(strip.get()) && colours.size() < 12; i += 4) {
      std::uint32_t colour = 0;
      std::memcpy(&colour, bytes + i, sizeof colour);
      colours.insert(colour & 0xFFFFFF);
    }
    return colours.size() >= 12;  // smoothed letters have many colours
  }

  std::filesystem::path home_;
  std::optional<Process> bus_, server_;
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
};

bool waitForWindow(const Desktop& desktop, const std::set<xcb_window_t>& known) {
  const auto end = Clock::now() + std::chrono::seconds(20);
  while (Clock::now() < end) {
    if (desktop.showsNewWindow(known)) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return false;
}

void waitForNone(const Desktop& desktop, const std::set<xcb_window_t>& known) {
  for (int i = 0; i < 500 && desktop.windows() != known; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

void firstWindow(benchmark::State& state, const std::vector<std::string>& command) {
  const Desktop desktop;
  if (!desktop.isUsable()) return state.SkipWithError("Xvfb is not installed");
  const std::set<xcb_window_t> known = desktop.windows();
  double resident = 0, own = 0;
  {
    // Start the program once without measuring: the first start reads files from the disk and writes caches.
    const Process warming(command);
    if (!waitForWindow(desktop, known)) return state.SkipWithError("no window, or not installed");
  }
  for (auto _ : state) {
    waitForNone(desktop, known);
    const auto begin = Clock::now();
    const Process program(command);
    if (!waitForWindow(desktop, known)) return state.SkipWithError("no window, or not installed");
    state.SetIterationTime(Seconds(Clock::now() - begin).count());
    std::this_thread::sleep_for(std::chrono::milliseconds(1'500));
    resident = program.memory("Rss:");
    own = program.memory("Private_Dirty:") + program.memory("Private_Clean:");
  }
  state.counters["resident_kB"] = resident;
  state.counters["private_kB"] = own;
}
void startedOnce(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);
}
BENCHMARK_CAPTURE(firstWindow, glyphorium, {BROWSER})->Apply(startedOnce);
BENCHMARK_CAPTURE(firstWindow, kcharselect, {"kcharselect"})->Apply(startedOnce);
BENCHMARK_CAPTURE(firstWindow, gucharmap, {"gucharmap"})->Apply(startedOnce);
BENCHMARK_CAPTURE(firstWindow, gnomeCharacters, {"gnome-characters"})->Apply(startedOnce);

void picker(benchmark::State& state) {
  const Desktop desktop;
  if (!desktop.isUsable()) return state.SkipWithError("Xvfb is not installed");
  const std::set<xcb_window_t> known = desktop.windows();
  for (auto _ : state) {
    const Process running({BROWSER, "--background"});
    std::this_thread::sleep_for(std::chrono::seconds(1));
    const auto begin = Clock::now();
    const Process start({BROWSER, "--pick"});
    if (!waitForWindow(desktop, known)) return state.SkipWithError("no picker");
    state.SetIterationTime(Seconds(Clock::now() - begin).count());
  }
}
BENCHMARK(picker)->Apply(startedOnce);

}  // namespace
