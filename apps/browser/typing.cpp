// SPDX-License-Identifier: MIT
#include "typing.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <cstdlib>
#include <memory>

#ifdef BROWSER_HAS_XCB
#include <xcb/xcb.h>
#endif

namespace browser {
namespace {

// The time that a tool may take in addition to the time for the keys. A tool that takes longer is killed.
constexpr int longestMilliseconds = 5'000;

// The delay between two keys. For a character that no key has, the tool maps a spare key to the character for
// a moment. On a busy machine, programs learn of the new mapping late. With a shorter delay, some characters
// would be lost.
constexpr int keyMilliseconds = 150;

#ifdef BROWSER_HAS_XCB
template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
  return {reply, &std::free};
}
#endif

}  // namespace

TypingTool typingTool() {
  const QString platform = QGuiApplication::platformName();
  TypingTool tool;
  if (platform == "xcb")
    tool = {QStringLiteral("xdotool"),
            {"type", "--clearmodifiers", "--delay", QString::number(keyMilliseconds), "--"}};
  if (platform.startsWith("wayland")) tool = {QStringLiteral("wtype"), {"--"}};
  if (!tool.program.isEmpty()) tool.program = QStandardPaths::findExecutable(tool.program);
  return tool;
}

QString focusedWindow() {
#ifdef BROWSER_HAS_XCB
  const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (!x11) return {};
  xcb_connection_t* const connection = x11->connection();
  constexpr std::string_view name = "_NET_ACTIVE_WINDOW";
  const auto atom = owned(
      xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, name.size(), name.data()), nullptr));
  if (!atom || atom->atom == XCB_ATOM_NONE) return {};
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const auto property = owned(xcb_get_property_reply(
      connection, xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr));
  if (!property || xcb_get_property_value_length(property.get()) != sizeof(xcb_window_t)) return {};
  const auto window = *static_cast<const xcb_window_t*>(xcb_get_property_value(property.get()));
  return window == XCB_WINDOW_NONE ? QString() : QString::number(window);
#else
  return {};
#endif
}

void typeText(const QString& text, const QString& window, std::function<void(bool)> done) {
  TypingTool tool = typingTool();
  if (!window.isEmpty()) tool.arguments = QStringList{"windowactivate", "--sync", window} + tool.arguments;
  if (tool.program.isEmpty()) return done(false);
  auto* const process = new QProcess(qApp);
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->setStandardInputFile(QProcess::nullDevice());
  QObject::connect(process, &QProcess::finished, process, [=](int exitCode, QProcess::ExitStatus status) {
    done(status == QProcess::NormalExit && exitCode == 0);
    process->deleteLater();
  });
  const int typing = static_cast<int>(text.size()) * 2 * keyMilliseconds;
  QTimer::singleShot(longestMilliseconds + typing, process, &QProcess::kill);
  process->start(tool.program, tool.arguments + QStringList{text});
}

}  // namespace browser
