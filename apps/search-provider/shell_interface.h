// SPDX-License-Identifier: MIT
#pragma once

#include "service.h"

namespace provider {

/// The interface org.gnome.Shell.SearchProvider2. GNOME Shell calls this interface to get the identifiers
/// of the results while the user types, to get the texts of the results that it shows, and to activate the
/// result that the user chooses.
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
