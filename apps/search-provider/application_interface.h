// SPDX-License-Identifier: MIT
#pragma once

#include "bus.h"

namespace provider {

class Service;

/// The interface org.freedesktop.Application (desktop entries of freedesktop.org, D-Bus activation). Its
/// bus name is the application identifier. Its methods open the search in a window. This program implements
/// the interface because no other program of the application is always reachable on the bus.
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
