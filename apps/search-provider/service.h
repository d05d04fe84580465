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

/// Bus name and object path of the application's search provider, made of the application identifier.
std::string busName();
std::string objectPath();

/// Object path of the application itself, whose bus name is the application identifier.
std::string applicationPath();

using EventLoop = std::unique_ptr<sd_event, Releaser<sd_event, sd_event_unref>>;
using EventSource =
    std::unique_ptr<sd_event_source, Releaser<sd_event_source, sd_event_source_disable_unref>>;

/// The program's place on the session bus: it takes the name there, answers, and leaves when nobody has
/// called for a while, when it is told to, or when the bus ends. The bus starts it again at the next call.
class Service {
 public:
  /// Zero: it stays until it is told to leave.
  explicit Service(std::chrono::microseconds idleLimit) : idleLimit_(idleLimit) {}

  /// Returns when the program is to end. Throws std::system_error, or CallError where the name is taken.
  void run();

  CharacterSearch& characters() { return characters_; }

  /// Every method calls it first: the program stays for some time after the last.
  void noteCall();

  /// Copies a form of the character to the clipboard. Throws CallError where there is no such character, and
  /// where the clipboard does not take the text.
  void copy(const std::string& identifier, std::string (*form)(const glyph::Entity&));

 private:
  static int onQuiet(sd_event_source*, std::uint64_t, void* service) noexcept;
  static int onSignal(sd_event_source*, const signalfd_siginfo*, void* service) noexcept;
  int leave(std::chrono::microseconds patience) noexcept;

  const std::chrono::microseconds idleLimit_;
  CharacterSearch characters_;
  EventLoop loop_;
  Bus bus_;
  EventSource quiet_;                     // fires when nobody has called for `patience_`
  std::chrono::microseconds patience_{};  // zero: for ever while it serves, not at all while it is leaving
  bool leaving_ = false;
};

}  // namespace provider
