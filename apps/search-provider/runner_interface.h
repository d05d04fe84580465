// SPDX-License-Identifier: MIT
#pragma once

#include "service.h"

namespace provider {

/// org.kde.krunner1, as KRunner and what is built on its library ask it: for matches with all that is shown
/// of them, and to run one, by default or by one of its actions.
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
