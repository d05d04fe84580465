// SPDX-License-Identifier: MIT
#include "typing.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

namespace browser {
namespace {

// A tool that has not finished by then waits for something that will not come.
constexpr int longestMilliseconds = 5'000;

}  // namespace

TypingTool typingTool() {
  const QString platform = QGuiApplication::platformName();
  TypingTool tool;
  if (platform == "xcb")
    tool = {QStringLiteral("xdotool"), {"type", "--clearmodifiers", "--delay", "12", "--"}};
  if (platform.startsWith("wayland")) tool = {QStringLiteral("wtype"), {"--"}};
  if (!tool.program.isEmpty()) tool.program = QStandardPaths::findExecutable(tool.program);
  return tool;
}

void typeText(const QString& text, std::function<void(bool)> done) {
  const TypingTool tool = typingTool();
  if (tool.program.isEmpty()) return done(false);
  auto* const process = new QProcess(qApp);
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->setStandardInputFile(QProcess::nullDevice());
  QObject::connect(process, &QProcess::finished, process, [=](int exitCode, QProcess::ExitStatus status) {
    done(status == QProcess::NormalExit && exitCode == 0);
    process->deleteLater();
  });
  QTimer::singleShot(longestMilliseconds, process, &QProcess::kill);
  process->start(tool.program, tool.arguments + QStringList{text});
}

}  // namespace browser
