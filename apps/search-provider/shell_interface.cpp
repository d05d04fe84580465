// SPDX-License-Identifier: MIT
#include "shell_interface.h"

#include "character_text.h"
#include "glyphorium/services/application/application.h"
#include "glyphorium/text/text_pieces.h"
#include "opened_search.h"

namespace provider {
namespace {

// The maximum number of results. GNOME Shell itself shows only five.
constexpr std::size_t resultLimit = 20;

// The maximum numbers of identifiers and terms that are read from one call. The desktop sends fewer. More
// than these are ignored, because they would delay the answers to other callers.
constexpr std::size_t mostIdentifiers = 200;
constexpr std::size_t mostTerms = 100;

std::string readQuery(sd_bus_message* call) {
  return glyph::joined(readTexts(call, mostTerms), " ");
}

std::vector<std::string> identifiers(const std::vector<Found>& found) {
  std::vector<std::string> result;
  for (const Found& one : found) {
    if (isBusText(one.identifier)) result.push_back(one.identifier);
  }
  return result;
}

void sendIdentifiers(sd_bus_message* call, const std::vector<std::string>& result) {
  const Message reply = newReply(call);
  append(reply.get(), result);
  send(reply);
}

}  // namespace

#define METHOD(name, in, inNames, out, outNames, method)     \
  SD_BUS_METHOD_WITH_NAMES(name, in, inNames, out, outNames, \
                           (&handle<ShellInterface, &ShellInterface::method>), SD_BUS_VTABLE_UNPRIVILEGED)

const sd_bus_vtable ShellInterface::vtable[] = {
    SD_BUS_VTABLE_START(0),
    METHOD("GetInitialResultSet", "as", SD_BUS_PARAM(terms), "as", SD_BUS_PARAM(results),
           getInitialResultSet),
    METHOD("GetSubsearchResultSet", "asas", SD_BUS_PARAM(previous_results) SD_BUS_PARAM(terms), "as",
           SD_BUS_PARAM(results), getSubsearchResultSet),
    METHOD("GetResultMetas", "as", SD_BUS_PARAM(identifiers), "aa{sv}", SD_BUS_PARAM(metas), getResultMetas),
    METHOD("ActivateResult", "sasu", SD_BUS_PARAM(identifier) SD_BUS_PARAM(terms) SD_BUS_PARAM(timestamp), "",
           "", activateResult),
    METHOD("LaunchSearch", "asu", SD_BUS_PARAM(terms) SD_BUS_PARAM(timestamp), "", "", launchSearch),
    SD_BUS_VTABLE_END};

#undef METHOD

void ShellInterface::addTo(sd_bus* bus) {
  check(sd_bus_add_object_vtable(bus, nullptr, objectPath().c_str(), "org.gnome.Shell.SearchProvider2",
                                 vtable, this));
}

void ShellInterface::getInitialResultSet(sd_bus_message* call) {
  service_.noteCall();
  sendIdentifiers(call, identifiers(service_.characters().find(readQuery(call), resultLimit)));
}

// Ignores the previous results and searches again. The first letters of a code, a mistyped word or a foreign
// word often do not find the character that the complete text finds.
void ShellInterface::getSubsearchResultSet(sd_bus_message* call) {
  service_.noteCall();
  skipTexts(call);
  sendIdentifiers(call, identifiers(service_.characters().find(readQuery(call), resultLimit)));
}

void ShellInterface::getResultMetas(sd_bus_message* call) {
  service_.noteCall();
  const Message reply = newReply(call);
  check(sd_bus_message_open_container(reply.get(), 'a', "a{sv}"));
  for (const std::string& identifier : readTexts(call, mostIdentifiers)) {
    const auto entity = service_.characters().entity(identifier);
    if (!entity) continue;
    check(sd_bus_message_open_container(reply.get(), 'a', "{sv}"));
    appendEntry(reply.get(), "id", identifier);
    appendEntry(reply.get(), "name", busText(label(*entity)));
    appendEntry(reply.get(), "description", busText(description(*entity)));
    appendEntry(reply.get(), "gicon", glyph::applicationIdentifier());
    // The shell copies this text itself. If sd-bus does not accept the text, only activateResult() can copy
    // it.
    const std::string text = character(*entity);
    if (isBusText(text)) appendEntry(reply.get(), "clipboardText", text);
    check(sd_bus_message_close_container(reply.get()));
  }
  check(sd_bus_message_close_container(reply.get()));
  send(reply);
}

void ShellInterface::activateResult(sd_bus_message* call) {
  service_.noteCall();
  service_.copy(readText(call), character);
  send(newReply(call));
}

void ShellInterface::launchSearch(sd_bus_message* call) {
  service_.noteCall();
  openSearch(readQuery(call));
  send(newReply(call));
}

}  // namespace provider
