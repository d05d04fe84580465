// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <cstdio>
#include <string>

#include "glyphorium/services/application/application.h"
#include "glyphorium/services/search_index/sqlite_searchable_index.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace glyph {

/// A separate desktop session for a test. It has a bus that starts the program from its service file, empty
/// data and config directories, a clipboard program that writes the text to a file, and a terminal that
/// writes its arguments to a file. The bus name and the object path of the program are read from the files
/// that the desktops read.
class Session {
 public:
  explicit Session(const std::string& idleSeconds = "30") {
    std::filesystem::create_directories(directory_ / "share/dbus-1/services");
    std::filesystem::create_directories(directory_ / "bin");
    // This script runs the program. It records each start and each exit code, so that tests can check them.
    writeProgram(directory_ / "program", "echo started >>" + path("starts") +
                                             "\n" SEARCH_PROVIDER " --idle-seconds=" + idleSeconds +
                                             "\necho $? >>" + path("ends") + "\n");
    writeProgram(directory_ / "bin/terminal", "printf '%s\\n' \"$@\" >" + path("terminal.new") + "; mv " +
                                                  path("terminal.new") + " " + path("terminal") + "\n");
    writeProgram(directory_ / "bin/glyphorium", "");
    writeProgram(directory_ / "bin/xclip", "exec cat >" + path("clipboard") + "\n");
    for (const std::string name : {"org.glyphorium.Glyphorium", "org.glyphorium.Glyphorium.SearchProvider"}) {
      const std::string file = "dbus-1/services/" + name + ".service";
      std::string service = fileContent(INSTALLED_SHARE "/" + file);
      service.replace(service.find("Exec="), std::string::npos, "Exec=" + path("program") + "\n");
      writeFile(directory_ / "share" / file, service);
    }

    // The bus runs until this process closes the pipe.
    bus_ = popen(("exec dbus-run-session -- sh -c 'echo $DBUS_SESSION_BUS_ADDRESS >" + path("new") + "; mv " +
                  path("new") + " " + path("address") + "; exec cat' >" + path("log") + " 2>&1")
                     .c_str(),
                 "w");
    if (!eventually([&] { return std::filesystem::exists(directory_ / "address"); })) return;
    std::string address = fileContent(directory_ / "address");
    address.pop_back();
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);

    shell_ = call("gnome-shell/search-providers/org.glyphorium.Glyphorium.search-provider.ini", "BusName",
                  "ObjectPath", "org.gnome.Shell.SearchProvider2");
    runner_ = call("krunner/dbusplugins/org.glyphorium.Glyphorium.desktop", "X-Plasma-DBusRunner-Service",
                   "X-Plasma-DBusRunner-Path", "org.kde.krunner1");
  }
  ~Session() { endBus(); }

  void endBus() {
    if (FILE* const bus = std::exchange(bus_, nullptr)) pclose(bus);
  }

  std::string shellCommand(const std::string& call) const { return shell_ + call; }
  std::string shell(const std::string& call) const { return answer(shell_ + call); }
  std::string runner(const std::string& call) const { return answer(runner_ + call); }

  std::filesystem::path operator/(const std::string& name) const { return directory_ / name; }
  std::filesystem::path indexFile() const {
    return directory_ / ("data/" + std::string(defaultApplicationIdentifier) + "/index.sqlite");
  }
  std::size_t starts() const { return lines("starts"); }
  std::size_t ends() const { return lines("ends"); }
  std::string log() const { return fileContent(directory_ / "log"); }

  /// Puts a few characters into the index in `file`, as a host does. If `file` is empty, uses the
  /// application's own index.
  void index(const std::filesystem::path& file = {}) {
    const struct {
      std::string hex, name, group, html;
    } characters[] = {{"2192", "Rightwards Arrow", "arrows", "&rarr;"},
                      {"21d2", "Rightwards Double Arrow", "arrows", "&rArr;"},
                      {"27f9", "Long Rightwards Double Arrow", "arrows", ""},
                      {"003c", "Less-Than Sign", "latin basic", "&lt;"},
                      {"0061", "Latin Small Letter A", "latin basic", ""},
                      {"0301", "Combining Acute Accent", "accents", ""},
                      {"05d0", "Hebrew Letter Alef", "hebrew", ""},
                      {"2028", "Line Separator", "spaces", ""},
                      {"0041,030a", "A With Ring", "custom", ""},
                      {"ffff", "Refused By The Bus", "custom", ""},
                      {"2764", "Heavy Black Heart", "dingbats", ""}};
    std::vector<Entity> entities;
    for (const auto& [hex, name, group, html] : characters) {
      Entity& entity = entities.emplace_back(Unicode(hex).computedEntity().generateEntity());
      entity.computed.fallbackName = name;
      entity.computed.group = group;
      if (!html.empty()) {
        AdditionalData& enrichment = entity.additional.emplace();
        enrichment.hex = hex;
        enrichment.htmlNamed = html;
      }
    }
    setSearchableIndex(std::make_shared<SqliteSearchableIndex>(file.empty() ? indexFile() : file));
    toolKit().addToSpotlight(entities);
    EXPECT_TRUE(searchableIndex()->waitUntilIdle(std::chrono::seconds(60)));
    setSearchableIndex(nullptr);
  }

 private:
  // Returns the beginning of a shell command that calls a D-Bus method. Like a desktop, reads the bus name
  // and the object path from `file`, which consists of "key=value" lines.
  static std::string call(const std::string& file, const std::string& busName, const std::string& objectPath,
                          const std::string& interface) {
    const std::string content = fileContent(INSTALLED_SHARE "/" + file);
    const auto value = [&](const std::string& key) {
      const auto from = content.find("\n" + key + "=") + key.size() + 2;
      return content.substr(from, content.find('\n', from) - from);
    };
    return "gdbus call --session -d " + value(busName) + " -o " + value(objectPath) + " -m " + interface +
           ".";
  }
  std::string path(const std::string& name) const { return "'" + (directory_ / name).string() + "'"; }
  static std::string answer(const std::string& command) { return runProgram(command + " 2>&1").output; }
  std::size_t lines(const std::string& name) const {
    const std::string content = fileContent(directory_ / name);
    return static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n'));
  }

  TemporaryDirectory directory_;
  ScopedVariable dataHome_{"XDG_DATA_HOME", (directory_ / "data").string()};
  ScopedVariable configHome_{"XDG_CONFIG_HOME", (directory_ / "config").string()};
  ScopedVariable language_{"LC_ALL", "C.UTF-8"},
      terminal_{"TERMINAL", (directory_ / "bin/terminal").string()};
  ScopedVariable dataDirectories_{"XDG_DATA_DIRS", (directory_ / "share").string()};
  ScopedVariable programs_{"PATH", (directory_ / "bin").string() + ":" + getenv("PATH")};
  ScopedVariable x11_{"DISPLAY", ":none"}, wayland_{"WAYLAND_DISPLAY", std::nullopt};
  ScopedVariable address_{"DBUS_SESSION_BUS_ADDRESS", std::nullopt};
  FILE* bus_ = nullptr;
  std::string shell_, runner_;
};

}  // namespace glyph
