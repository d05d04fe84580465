// SPDX-License-Identifier: MIT
#include "application_interface.h"

#include "opened_search.h"
#include "service.h"

namespace provider {

#define METHOD(name, in, inNames, method)                                                  \
  SD_BUS_METHOD_WITH_NAMES(name, in, inNames, "", "",                                      \
                           (&handle<ApplicationInterface, &ApplicationInterface::method>), \
                           SD_BUS_VTABLE_UNPRIVILEGED)

const sd_bus_vtable ApplicationInterface::vtable[] = {
    SD_BUS_VTABLE_START(0), METHOD("Activate", "a{sv}", SD_BUS_PARAM(platform_data), activate),
    METHOD("Open", "asa{sv}", SD_BUS_PARAM(uris) SD_BUS_PARAM(platform_data), open),
    METHOD("ActivateAction", "sava{sv}",
           SD_BUS_PARAM(action_name) SD_BUS_PARAM(parameter) SD_BUS_PARAM(platform_data), activateAction),
    SD_BUS_VTABLE_END};

#undef METHOD

void ApplicationInterface::addTo(sd_bus* bus) {
  check(sd_bus_add_object_vtable(bus, nullptr, applicationPath().c_str(), "org.freedesktop.Application",
                                 vtable, this));
}

void ApplicationInterface::activate(sd_bus_message* call) {
  service_.noteCall();
  openSearch("");
  send(newReply(call));
}

void ApplicationInterface::open(sd_bus_message*) {
  service_.noteCall();
  throw CallError{SD_BUS_ERROR_NOT_SUPPORTED, "Glyphorium cannot open files"};
}

// The only action is "search". Its parameter is the text to search for. If the parameter is missing, the
// action shows the whole catalog.
void ApplicationInterface::activateAction(sd_bus_message* call) {
  service_.noteCall();
  const std::string action = readText(call);
  if (action != "search") throw CallError{SD_BUS_ERROR_INVALID_ARGS, "There is no action '" + action + "'"};
  std::string query;
  check(sd_bus_message_enter_container(call, 'a', "v"));
  const char* contents = nullptr;
  if (check(sd_bus_message_peek_type(call, nullptr, &contents)) > 0 && std::string_view(contents) == "s") {
    const char* text = nullptr;
    check(sd_bus_message_read(call, "v", "s", &text));
    query = text;
  }
  openSearch(query);
  send(newReply(call));
}

}  // namespace provider
