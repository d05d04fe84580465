// SPDX-License-Identifier: MIT
// sd-bus as this program uses it: owned pointers, and failures as exceptions that end at the method called.
#pragma once

#include <systemd/sd-bus.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace provider {

template <class T, T* (*release)(T*)>
struct Releaser {
  void operator()(T* pointer) const { release(pointer); }
};
using Bus = std::unique_ptr<sd_bus, Releaser<sd_bus, sd_bus_flush_close_unref>>;
using Message = std::unique_ptr<sd_bus_message, Releaser<sd_bus_message, sd_bus_message_unref>>;

/// Throws std::system_error for the negative error numbers of libsystemd.
int check(int result);

/// What a caller gets in place of an answer.
struct CallError {
  const char* name;  ///< a D-Bus error name
  std::string text;
};

/// A text as sd-bus takes it into a message: NUL, noncharacters and what is not UTF-8 become U+FFFD. One text
/// that it does not take would spoil the whole message.
std::string busText(std::string_view text);
bool isBusText(std::string_view text);

std::string readText(sd_bus_message* message);

/// The first `most` texts of the array that is read next. Behind them nothing more of the message can be
/// read, unless the array held fewer.
std::vector<std::string> readTexts(sd_bus_message* message, std::size_t most);
void skipTexts(sd_bus_message* message);
void append(sd_bus_message* message, const std::vector<std::string>& texts);

/// One entry of an open a{sv}.
void appendEntry(sd_bus_message* message, const char* key, const std::string& text);

Message newReply(sd_bus_message* call);
void send(const Message& reply);

/// Makes a C++ method of `Object` the handler of a D-Bus method: `method(call)` sends the reply itself.
int reportFailure(sd_bus_error* error) noexcept;
template <class Object, void (Object::*method)(sd_bus_message*)>
int handle(sd_bus_message* call, void* object, sd_bus_error* error) noexcept try {
  (static_cast<Object*>(object)->*method)(call);
  return 1;
} catch (...) {
  return reportFailure(error);
}

}  // namespace provider
