// SPDX-License-Identifier: MIT
#pragma once

#include "service.h"

namespace provider {

/// org.gnome.Shell.SearchProvider2, as GNOME Shell's overview asks it: for results as identifiers while
/// people type, for what to show of the few that fit, and for what to do with the one chosen.
class ShellInterface {
 public:
  explicit ShellInterface(Service& service) : service_(service) {}
  void addTo(sd_bus* bus);

 private:
  static const sd_bus_vtable vtable[];

  void getInitialResultSet(sd_bus_message* call);
  void getSubsearchResultSet(sd_bus_message* call);
  void getResultMetas(sd_bus_message* call);
  void activateResult(sd_bus_message* call);
  void launchSearch(sd_bus_message* call);

  Service& service_;
};

}  // namespace provider
