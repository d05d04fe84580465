// SPDX-License-Identifier: MIT
#pragma once

#include "bus.h"

namespace provider {

class Service;

/// org.freedesktop.Application (desktop entries of freedesktop.org, D-Bus activation), under the application
/// identifier: opens the search in a window, because the application has no process of its own on the bus.
class ApplicationInterface {
 public:
  explicit ApplicationInterface(Service& service) : service_(service) {}
  void addTo(sd_bus* bus);

 private:
  static const sd_bus_vtable vtable[];

  void activate(sd_bus_message* call);
  void open(sd_bus_message* call);
  void activateAction(sd_bus_message* call);

  Service& service_;
};

}  // namespace provider
