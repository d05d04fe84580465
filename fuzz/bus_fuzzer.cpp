// SPDX-License-Identifier: MIT
// Texts as arguments of calls on the desktop's bus, in messages that no bus carries: every text can be sent,
// and what is read is what was sent. Each line of the input is a text.
#include <sys/socket.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "apps/search-provider/bus.h"
#include "fuzz/require.h"
#include "glyphorium/text/unicode_text.h"

namespace {

using fuzzing::require;

provider::Message newMessage() {
  static const provider::Bus bus = [] {
    sd_bus* made = nullptr;
    provider::check(sd_bus_new(&made));
    // Messages are made for a connection; nothing is ever sent on this one.
    int ends[2];
    provider::check(socketpair(AF_UNIX, SOCK_STREAM, 0, ends));
    provider::check(sd_bus_set_fd(made, ends[0], ends[0]));
    provider::check(sd_bus_start(made));
    return provider::Bus(made);
  }();
  sd_bus_message* message = nullptr;
  provider::check(sd_bus_message_new(bus.get(), &message, SD_BUS_MESSAGE_METHOD_CALL));
  return provider::Message(message);
}

// As the bus has it once the message is complete.
sd_bus_message* sent(const provider::Message& message) {
  provider::check(sd_bus_message_seal(message.get(), 1, 0));
  return message.get();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> texts;
  for (std::size_t begin = 0; begin <= all.size();) {
    const std::size_t end = std::min(all.find('\n', begin), all.size());
    const std::string_view text = all.substr(begin, end - begin);
    texts.push_back(provider::busText(text));
    require(provider::isBusText(texts.back()), "every text can be made one for the bus");
    require(!provider::isBusText(text) || texts.back() == text, "a text for the bus stays as it is");
    begin = end + 1;
  }
  try {
    const provider::Message list = newMessage();
    provider::append(list.get(), texts);
    require(provider::readTexts(sent(list), texts.size()) == texts, "texts are read as they were sent");

    const provider::Message single = newMessage();
    provider::check(sd_bus_message_append(single.get(), "s", texts.front().c_str()));
    require(provider::readText(sent(single)) == texts.front(), "so is one text");
  } catch (const std::system_error&) {
    require(false, "the bus takes every such text");
  }
  try {
    const provider::Message number = newMessage();
    provider::check(sd_bus_message_append(number.get(), "u", 1U));
    provider::readTexts(sent(number), 1);
    require(false, "a number is no list of texts");
  } catch (const std::system_error&) {
  }
  return 0;
}
