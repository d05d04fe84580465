// SPDX-License-Identifier: MIT
#include "bus.h"

#include <algorithm>
#include <system_error>

#include "glyphorium/text/unicode_text.h"

namespace provider {

int check(int result) {
  if (result < 0) throw std::system_error(-result, std::generic_category());
  return result;
}

namespace {

bool isRefused(char32_t c) {
  return c == 0 || (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFE) == 0xFFFE;
}

}  // namespace

bool isBusText(std::string_view text) {
  const std::u32string points = glyph::codePoints(text);
  return glyph::isWellFormedUtf8(text) && std::none_of(points.begin(), points.end(), isRefused);
}

std::string busText(std::string_view text) {
  std::string result;
  for (const char32_t c : glyph::codePoints(text)) result += glyph::utf8(isRefused(c) ? 0xFFFD : c);
  return result;
}

std::string readText(sd_bus_message* message) {
  const char* text = nullptr;
  check(sd_bus_message_read(message, "s", &text));
  return text;
}

std::vector<std::string> readTexts(sd_bus_message* message, std::size_t most) {
  std::vector<std::string> texts;
  check(sd_bus_message_enter_container(message, 'a', "s"));
  const char* text = nullptr;
  while (texts.size() < most && check(sd_bus_message_read_basic(message, 's', &text)) > 0)
    texts.emplace_back(text);
  if (texts.size() < most) check(sd_bus_message_exit_container(message));
  return texts;
}

void skipTexts(sd_bus_message* message) {
  check(sd_bus_message_skip(message, "as"));
}

void append(sd_bus_message* message, const std::vector<std::string>& texts) {
  check(sd_bus_message_open_container(message, 'a', "s"));
  for (const std::string& text : texts) check(sd_bus_message_append(message, "s", text.c_str()));
  check(sd_bus_message_close_container(message));
}

void appendEntry(sd_bus_message* message, const char* key, const std::string& text) {
  check(sd_bus_message_append(message, "{sv}", key, "s", text.c_str()));
}

Message newReply(sd_bus_message* call) {
  sd_bus_message* reply = nullptr;
  check(sd_bus_message_new_method_return(call, &reply));
  return Message(reply);
}

void send(const Message& reply) {
  check(sd_bus_send(nullptr, reply.get(), nullptr));
}

int reportFailure(sd_bus_error* error) noexcept try { throw; } catch (const CallError& refused) {
  return sd_bus_error_set(error, refused.name, refused.text.c_str());
} catch (const std::system_error& failed) {
  return sd_bus_error_set_errno(error, failed.code().value());
} catch (const std::exception& failed) {
  return sd_bus_error_set(error, SD_BUS_ERROR_FAILED, failed.what());
}

}  // namespace provider
