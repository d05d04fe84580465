// SPDX-License-Identifier: MIT
// Helpers for sd-bus: smart pointers for its objects, and exceptions for its errors. If a D-Bus method throws
// an exception, the caller gets an error reply.
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

/// Throws std::system_error if the result of a libsystemd function is a negative error number. Otherwise
/// returns the result.
int check(int result);

/// An exception with a D-Bus error. If a D-Bus method throws it, its caller gets this error.
struct CallError {
  const char* name;  ///< a D-Bus error name
  std::string text;
};

/// Returns the text in a form that sd-bus accepts: NUL, noncharacters and bytes that are not UTF-8 become
/// U+FFFD. A single text that sd-bus rejects would make the whole message invalid.
std::string busText(std::string_view text);

/// Whether sd-bus accepts the text unchanged.
bool isBusText(std::string_view text);

std::string readText(sd_bus_message* message);

/// Reads the next argument of the message, an array of texts, and returns its first `most` texts. If the
/// array has `most` or more texts, the arguments after it can no longer be read.
std::vector<std::string> readTexts(sd_bus_message* message, std::size_t most);
void skipTexts(sd_bus_message* message);
void append(sd_bus_message* message, const std::vector<std::string>& texts);

/// Appends one entry to the dictionary (a{sv}) that is open in the message.
void appendEntry(sd_bus_message* message, const char* key, const std::string& text);

Message newReply(sd_bus_message* call);
void send(const Message& reply);

/// Stores the exception that is being handled in `error`. Call it only in a catch block.
int reportFailure(sd_bus_error* error) noexcept;

/// A handler for sd-bus that answers a call of a D-Bus method with a C++ method of `Object`. The C++ method
/// sends the reply itself. If it throws an exception, the caller gets an error reply.
template <class Object, void (Object::*method)(sd_bus_message*)>
int handle(sd_bus_message* call, void* object, sd_bus_error* error) noexcept try {
  (static_cast<Object*>(object)->*method)(call);
  return 1;
} catch (...) {
  return reportFailure(error);
}

}  // namespace provider
