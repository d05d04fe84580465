// SPDX-License-Identifier: MIT
#include "service.h"

#include <signal.h>

#include <algorithm>
#include <cerrno>

#include "application_interface.h"
#include "character_text.h"
#include "glyphorium/services/application/application.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "runner_interface.h"
#include "shell_interface.h"

namespace provider {
namespace {

using namespace std::chrono_literals;

// How long this program stays connected to the bus after it has released its names. For a moment, clients do
// not know about the release and still send calls to this connection. If it were closed at once, these calls
// would be lost.
constexpr std::chrono::microseconds timeForLastCalls = 1s;

// Blocks SIGTERM, SIGINT and SIGHUP. The event loop handles them, so that they do not interrupt a call.
void catchSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int one : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&signals, one);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

}  // namespace

std::string busName() {
  return glyph::applicationIdentifier() + ".SearchProvider";
}

std::string applicationPath() {
  std::string path = "/" + glyph::applicationIdentifier();
  std::replace(path.begin(), path.end(), '.', '/');
  return path;
}

std::string objectPath() {
  return applicationPath() + "/SearchProvider";
}

void Service::run() {
  catchSignals();
  sd_event* loop = nullptr;
  check(sd_event_new(&loop));
  loop_.reset(loop);
  for (const int one : {SIGTERM, SIGINT, SIGHUP}) {
    check(sd_event_add_signal(loop, nullptr, one, &Service::onSignal, this));
  }
  sd_event_source* quiet = nullptr;
  check(sd_event_add_time_relative(loop, &quiet, CLOCK_MONOTONIC, 0, 1000, &Service::onQuiet, this));
  quiet_.reset(quiet);
  // Give the timer a lower priority than messages from the bus, so that waiting messages are handled before
  // the program exits.
  check(sd_event_source_set_priority(quiet, SD_EVENT_PRIORITY_IDLE));
  check(sd_event_source_set_enabled(quiet, SD_EVENT_OFF));

  sd_bus* bus = nullptr;
  check(sd_bus_open_user(&bus));
  bus_.reset(bus);
  check(sd_bus_set_exit_on_disconnect(bus, true));
  ShellInterface shell(*this);
  RunnerInterface runner(*this);
  shell.addTo(bus);
  runner.addTo(bus);
  ApplicationInterface application(*this);
  application.addTo(bus);
  // Request the name only after everything else is ready: as soon as this program owns the name, the bus
  // delivers the call that started the program.
  const int taken = sd_bus_request_name(bus, busName().c_str(), 0);
  if (taken == -EEXIST) throw CallError{SD_BUS_ERROR_FAILED, busName() + " is already running"};
  check(taken);
  // While a window of the application is open, the program of that window owns the name of the application,
  // and this program waits in the queue for the name.
  sd_bus_request_name(bus, glyph::applicationIdentifier().c_str(),
                      SD_BUS_NAME_ALLOW_REPLACEMENT | SD_BUS_NAME_QUEUE);
  check(sd_bus_attach_event(bus, loop, SD_EVENT_PRIORITY_NORMAL));
  quietLimit_ = idleLimit_;
  noteCall();
  check(sd_event_loop(loop));  // the result is only the exit code of the loop
  quiet_.reset();
  bus_.reset();
}

void Service::noteCall() {
  if (!leaving_ && quietLimit_ == 0s) return;
  check(sd_event_source_set_time_relative(quiet_.get(), static_cast<std::uint64_t>(quietLimit_.count())));
  check(sd_event_source_set_enabled(quiet_.get(), SD_EVENT_ONESHOT));
}

// Releases the names first, and ends the program a little later. In between, calls that the bus has already
// sent to this process still get an answer. For new calls, the bus starts the program again.
int Service::leave(std::chrono::microseconds limit) noexcept try {
  if (!leaving_) {
    check(sd_bus_release_name(bus_.get(), busName().c_str()));
    sd_bus_release_name(bus_.get(), glyph::applicationIdentifier().c_str());
  }
  leaving_ = true;
  quietLimit_ = limit;
  noteCall();
  return 0;
} catch (...) {  // the connection to the bus is lost
  return sd_event_exit(loop_.get(), 0);
}

int Service::onQuiet(sd_event_source*, std::uint64_t, void* self) noexcept {
  Service& service = *static_cast<Service*>(self);
  return service.leaving_ ? sd_event_exit(service.loop_.get(), 0) : service.leave(timeForLastCalls);
}

int Service::onSignal(sd_event_source*, const signalfd_siginfo*, void* self) noexcept {
  return static_cast<Service*>(self)->leave(0s);
}

void Service::copy(const std::string& identifier, std::string (*form)(const glyph::Entity&)) {
  const auto entity = characters_.entity(identifier);
  if (!entity)
    throw CallError{SD_BUS_ERROR_INVALID_ARGS,
                    "There is no character with the identifier '" + identifier + "'"};
  if (!glyph::toolKit().writeToPasteboard(form(*entity), character(*entity))) {
    throw CallError{SD_BUS_ERROR_FAILED, "The clipboard did not accept the text"};
  }
}

}  // namespace provider
