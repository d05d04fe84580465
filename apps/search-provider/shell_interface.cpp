// SPDX-License-Identifier: MIT
#include "shell_interface.h"

#include <limits>
#include <unordered_set>

#include "character_text.h"
#include "glyphorium/services/application/application.h"

namespace provider {
namespace {

// The shell shows five. The others serve the search for more words within these results.
constexpr std::size_t resultLimit = 100;

std::string joined(const std::vector<std::string>& terms) {
  std::string query;
  for (const std::string& term : terms) query += (query.empty() ? "" : " ") + term;
  return query;
}

std::vector<std::string> identifiers(const std::vector<Found>& found) {
  std::vector<std::string> result;
  for (const Found& one : found) {
    if (isBusText(one.item.uniqueIdentifier)) result.push_back(one.item.uniqueIdentifier);
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
  sendIdentifiers(call, identifiers(service_.characters().find(joined(readTexts(call)), resultLimit)));
}

void ShellInterface::getSubsearchResultSet(sd_bus_message* call) {
  service_.noteCall();
  const std::vector<std::string> previous = readTexts(call);
  const std::string query = joined(readTexts(call));
  // Previous results that were cut short may lack the very ones that people narrow the search down to.
  if (previous.size() >= resultLimit) {
    return sendIdentifiers(call, identifiers(service_.characters().find(query, resultLimit)));
  }
  const std::unordered_set<std::string> within(previous.begin(), previous.end());
  std::vector<Found> found;
  if (!within.empty()) found = service_.characters().find(query, std::numeric_limits<int>::max());
  std::erase_if(found, [&](const Found& one) { return !within.contains(one.item.uniqueIdentifier); });
  sendIdentifiers(call, identifiers(found));
}

void ShellInterface::getResultMetas(sd_bus_message* call) {
  service_.noteCall();
  const Message reply = newReply(call);
  check(sd_bus_message_open_container(reply.get(), 'a', "a{sv}"));
  for (const std::string& identifier : readTexts(call)) {
    const auto item = service_.characters().item(identifier);
    if (!item) continue;
    check(sd_bus_message_open_container(reply.get(), 'a', "{sv}"));
    appendEntry(reply.get(), "id", identifier);
    appendEntry(reply.get(), "name", busText(label(*item)));
    appendEntry(reply.get(), "description", busText(description(*item)));
    appendEntry(reply.get(), "gicon", glyph::applicationIdentifier());
    // The shell copies this one itself. What it could not copy as it is, only activateResult() does.
    const std::string text = character(*item);
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
  service_.openSearch(call, joined(readTexts(call)));
}

}  // namespace provider
