// SPDX-License-Identifier: MIT
#include "runner_interface.h"

#include <algorithm>

#include "character_text.h"
#include "glyphorium/services/application/application.h"

namespace provider {
namespace {

// The maximum number of matches. It is small, because the desktop shows the matches among the results of
// other programs.
constexpr std::size_t matchLimit = 12;

struct Action {
  const char* identifier;
  const char* text;
  const char* icon;  // a freedesktop.org icon name
  std::string (*copied)(const glyph::Entity&);
};

// The first action is the default.
constexpr Action allActions[] = {
    {"character", "Copy Character", "edit-copy", character},
    {"html", "Copy HTML Reference", "text-html", htmlReference},
    {"code-point", "Copy Code Point", "accessories-character-map", codePoint},
};

// Returns the category relevance of a match. The numbers have the same meaning for KRunner 5 and 6.
int categoryRelevance(Exactness exactness, bool scoped) {
  if (exactness == Exactness::code) return 100;
  return exactness == Exactness::name || scoped ? 70 : 30;
}

void appendMatch(sd_bus_message* reply, const Found& found, double relevance, bool scoped) {
  check(sd_bus_message_open_container(reply, 'r', "sssida{sv}"));
  check(sd_bus_message_append(reply, "sssid", found.identifier.c_str(), busText(label(found.entity)).c_str(),
                              glyph::applicationIdentifier().c_str(),
                              categoryRelevance(found.exactness, scoped), relevance));
  check(sd_bus_message_open_container(reply, 'a', "{sv}"));
  appendEntry(reply, "category", "Characters");
  appendEntry(reply, "subtext", busText(description(found.entity)));
  check(sd_bus_message_open_container(reply, 'e', "sv"));
  check(sd_bus_message_append(reply, "s", "actions"));
  check(sd_bus_message_open_container(reply, 'v', "as"));
  std::vector<std::string> names;
  for (const Action& action : allActions) names.emplace_back(action.identifier);
  append(reply, names);
  for (int open = 4; open > 0; --open) check(sd_bus_message_close_container(reply));
}

}  // namespace

#define METHOD(name, in, inNames, out, outNames, method)     \
  SD_BUS_METHOD_WITH_NAMES(name, in, inNames, out, outNames, \
                           (&handle<RunnerInterface, &RunnerInterface::method>), SD_BUS_VTABLE_UNPRIVILEGED)

const sd_bus_vtable RunnerInterface::vtable[] = {
    SD_BUS_VTABLE_START(0),
    METHOD("Match", "s", SD_BUS_PARAM(query), "a(sssida{sv})", SD_BUS_PARAM(matches), match),
    METHOD("Actions", "", "", "a(sss)", SD_BUS_PARAM(actions), actions),
    METHOD("Run", "ss", SD_BUS_PARAM(matchId) SD_BUS_PARAM(actionId), "", "", run),
    METHOD("Teardown", "", "", "", "", teardown),
    SD_BUS_VTABLE_END};

#undef METHOD

void RunnerInterface::addTo(sd_bus* bus) {
  check(sd_bus_add_object_vtable(bus, nullptr, "/runner", "org.kde.krunner1", vtable, this));
}

void RunnerInterface::match(sd_bus_message* call) {
  service_.noteCall();
  const std::string query = readText(call);
  std::vector<Found> found = service_.characters().findMeant(query, matchLimit);
  std::erase_if(found, [](const Found& one) { return !isBusText(one.identifier); });

  const Message reply = newReply(call);
  check(sd_bus_message_open_container(reply.get(), 'a', "(sssida{sv})"));
  double relevance = 1;
  for (const Found& one : found) {
    appendMatch(reply.get(), one, relevance, isScoped(query));
    relevance -= 0.5 / matchLimit;  // lower for each match, so that the desktop keeps this order
  }
  check(sd_bus_message_close_container(reply.get()));
  send(reply);
}

void RunnerInterface::actions(sd_bus_message* call) {
  service_.noteCall();
  const Message reply = newReply(call);
  check(sd_bus_message_open_container(reply.get(), 'a', "(sss)"));
  for (const Action& action : allActions) {
    check(sd_bus_message_append(reply.get(), "(sss)", action.identifier, action.text, action.icon));
  }
  check(sd_bus_message_close_container(reply.get()));
  send(reply);
}

void RunnerInterface::run(sd_bus_message* call) {
  service_.noteCall();
  const std::string identifier = readText(call), wanted = readText(call);
  const auto action = std::find_if(std::begin(allActions), std::end(allActions), [&](const Action& one) {
    return wanted.empty() || wanted == one.identifier;
  });
  if (action == std::end(allActions)) {
    throw CallError{SD_BUS_ERROR_INVALID_ARGS, "There is no action '" + wanted + "'"};
  }
  service_.copy(identifier, action->copied);
  send(newReply(call));
}

// The desktop calls this D-Bus method at the end of a search. There is nothing to clean up.
void RunnerInterface::teardown(sd_bus_message* call) {
  service_.noteCall();
  send(newReply(call));
}

}  // namespace provider
