// SPDX-License-Identifier: MIT
#pragma once

#include "service.h"

namespace provider {

/// The interface org.kde.krunner1. KRunner, and other programs with the same library, call this interface
/// to get matches with the texts and icons to show, and to run one of the actions of a match.
class RunnerInterface {
 public:
  explicit RunnerInterface(Service& service) : service_(service) {}
  void addTo(sd_bus* bus);

 private:
  static const sd_bus_vtable vtable[];

  void match(sd_bus_message* call);
  void actions(sd_bus_message* call);
  void run(sd_bus_message* call);
  void teardown(sd_bus_message* call);

  Service& service_;
};

}  // namespace provider
