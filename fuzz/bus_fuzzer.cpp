// SPDX-License-Identifier: MIT
// Writes texts as arguments into D-Bus messages, and reads them back. It must be possible to write every
// text, and to read it back unchanged. The messages are never sent. Each line of the input is a text.
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
    // A message needs a connection. Nothing is ever sent on this connection.
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

// Completes the message, so that it can be read as the receiver would read it.
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
    require(provider::isBusText(texts.back()), "busText() makes a text that the bus accepts");
    require(!provider::isBusText(text) || texts.back() == text,
            "busText() does not change a text that the bus accepts");
    begin = end + 1;
  }
  try {
    const provider::Message list = newMessage();
    provider::append(list.get(), texts);
    require(provider::readTexts(sent(list), texts.size()) == texts, "a list of texts is read back unchanged");

    const provider::Message single = newMessage();
    provider::check(sd_bus_message_append(single.get(), "s", texts.front().c_str()));
    require(provider::readText(sent(single)) == texts.front(), "a single text is read back unchanged");
  } catch (const std::system_error&) {
    require(false, "the bus accepts every text from busText()");
  }
  try {
    const provider::Message number = newMessage();
    provider::check(sd_bus_message_append(number.get(), "u", 1U));
    provider::readTexts(sent(number), 1);
    require(false, "reading a number as a list of texts fails");
  } catch (const std::system_error&) {
  }
  return 0;
}
