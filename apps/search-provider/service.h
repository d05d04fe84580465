// SPDX-License-Identifier: MIT
#pragma once

#include <systemd/sd-event.h>

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "bus.h"
#include "character_search.h"

namespace provider {

/// Return the bus name and the object path of the search provider. Both are derived from the application
/// identifier.
std::string busName();
std::string objectPath();

/// Returns the object path of the application itself. Its bus name is the application identifier.
std::string applicationPath();

using EventLoop = std::unique_ptr<sd_event, Releaser<sd_event, sd_event_unref>>;
using EventSource =
    std::unique_ptr<sd_event_source, Releaser<sd_event_source, sd_event_source_disable_unref>>;

/// The program on the session bus. It acquires its bus names and answers calls. It exits if there has been
/// no call for a while, if it receives SIGTERM, SIGINT or SIGHUP, or if the connection to the bus is lost.
/// The bus starts it again for the next call.
class Service {
 public:
  /// The program exits if there is no call for `idleLimit`. Zero means that it does not exit when idle.
  explicit Service(std::chrono::microseconds idleLimit) : idleLimit_(idleLimit) {}

  /// Runs until the program should exit. Throws CallError if another process owns the bus name, and
  /// std::system_error for other failures.
  void run();

  CharacterSearch& characters() { return characters_; }

  /// Restarts the idle timer. Every D-Bus method calls this function first.
  void noteCall();

  /// Copies a form of the character to the clipboard. Throws CallError if there is no such character or if
  /// the clipboard does not accept the text.
  void copy(const std::string& identifier, std::string (*form)(const glyph::Entity&));

 private:
  static int onQuiet(sd_event_source*, std::uint64_t, void* service) noexcept;
  static int onSignal(sd_event_source*, const signalfd_siginfo*, void* service) noexcept;
  int leave(std::chrono::microseconds limit) noexcept;

  const std::chrono::microseconds idleLimit_;
  CharacterSearch characters_;
  EventLoop loop_;
  Bus bus_;
  EventSource quiet_;  // fires if there has been no call for `quietLimit_`
  // The program exits if there has been no call for this time. Zero means never to exit, or to exit at once
  // if the names are already released.
  std::chrono::microseconds quietLimit_{};
  bool leaving_ = false;  // true after the names are released
};

}  // namespace provider
