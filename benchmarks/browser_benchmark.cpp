// SPDX-License-Identifier: MIT
// Measures how long the user of the window waits for the result of a key press in the search field, and for a
// page of the grid. The counter "worst_ms" is the time of the longest single step, because users notice long
// steps. "pages" measures how long the main thread is busy while another thread draws the glyphs.
#include <benchmark/benchmark.h>
#include <glyphorium/glyphorium.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <fstream>

#include "appearance.h"
#include "catalog.h"
#include "character_card.h"
#include "character_grid.h"
#include "global_shortcut.h"
#include "main_window.h"

namespace {

using namespace browser;
using Clock = std::chrono::steady_clock;

double processorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// The longest step so far, in wall-clock time and in CPU time of this thread. In the rest of the wall-clock
// time, the thread waited for another thread or, on a busy machine, for other programs.
struct Longest {
  double wall = 0, processor = 0;
  QString what;

  // Returns the wall-clock time of the step.
  double measure(const QString& name, const auto& step) {
    const auto begin = Clock::now();
    const double beginProcessor = processorMilliseconds();
    step();
    const double waited = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
    wall = std::max(wall, waited);
    const double used = processorMilliseconds() - beginProcessor;
    if (used > processor) what = name;
    processor = std::max(processor, used);
    return waited;
  }
  void report(benchmark::State& state) const {
    state.counters["worst_ms"] = wall;
    state.counters["worst_cpu_ms"] = processor;
    state.SetLabel("longest: " + what.toStdString());
  }
};

struct Window {
  Catalog catalog;
  Appearance appearance{Appearance::Theme::light};
  GlobalShortcut shortcut;
  MainWindow window{catalog, appearance, shortcut};
  QLineEdit& field = *window.findChild<QLineEdit*>();
  CharacterGrid& grid = *window.findChild<CharacterGrid*>();

  Window() {
    window.resize(1'200, 800);
    window.show();
    // Do not measure the first card, which is a part of the start.
    const auto begin = Clock::now();
    while (Clock::now() - begin < std::chrono::milliseconds(300)) QApplication::processEvents();
  }
};

std::vector<QString> queries() {
  std::vector<QString> result;
  std::ifstream list(SEARCH_QUERY_LIST);
  for (std::string line; std::getline(list, line);) {
    if (!line.starts_with("# ")) result.push_back(QString::fromStdString(line.substr(0, line.find('\t'))));
  }
  return result;
}

// Each query is typed letter by letter; every letter includes painting the grid. "key_ms" is the median time
// of a letter. "card_ms" and "card_cpu_ms" are the longest time that the card takes for a character, which it
// shows when the user pauses.
void keyStrokes(benchmark::State& state) {
  Window shown;
  CharacterCard& card = *shown.window.findChild<CharacterCard*>();
  Longest longest, longestCard;
  std::vector<double> times;
  for (auto _ : state) {
    for (const QString& query : queries()) {
      for (qsizetype length = 1; length <= query.size(); ++length) {
        times.push_back(longest.measure(query.left(length), [&] {
          shown.field.setText(query.left(length));
          shown.grid.viewport()->repaint();
        }));
      }
      longestCard.measure(query, [&] {
        card.setCharacter(shown.grid.currentCharacter());
        card.viewport()->repaint();
      });
    }
  }
  longest.report(state);
  state.counters["card_ms"] = longestCard.wall;
  state.counters["card_cpu_ms"] = longestCard.processor;
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
  state.counters["key_ms"] = times[times.size() / 2];
  state.counters["keys"] = static_cast<double>(times.size());
}
BENCHMARK(keyStrokes)->Unit(benchmark::kMillisecond)->Iterations(1);

// Scrolls through the grid page by page. In the first iteration the glyphs are being drawn, in the second
// they are cached.
void pages(benchmark::State& state) {
  Window shown;
  QScrollBar& bar = *shown.grid.verticalScrollBar();
  Longest longest;
  for (auto _ : state) {
    for (int y = 0; y < bar.maximum(); y += bar.pageStep()) {
      longest.measure(QString::number(y), [&] {
        bar.setValue(y);
        shown.grid.viewport()->repaint();
        QApplication::processEvents();
      });
    }
  }
  longest.report(state);
  state.counters["pages"] = static_cast<double>(bar.maximum()) / bar.pageStep();
}
BENCHMARK(pages)->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString&) {});  // see apps/browser/main.cpp
  const QApplication application(argc, argv);
  glyph::setDiagnosticsSink([](std::string_view) {});
  glyph::setSettingsStore(std::make_shared<glyph::MemorySettingsStore>());
  glyph::setSearchableIndex(std::make_shared<glyph::MemorySearchableIndex>());
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
