// SPDX-License-Identifier: MIT
// A window that filters the displayed characters while the user types. Enter copies the selected character.
#include <glyphorium/glyphorium.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  glyph::setApplicationIdentifier("org.example.QtHost");
  glyph::setDiagnosticsSink([](std::string_view) {});
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  if (glyph::selectedEntities().empty()) {
    catalog.addSelectedGroup("arrows");
    catalog.setSelectedEntities();
  }

  QWidget window;
  auto* const field = new QLineEdit;
  auto* const list = new QListWidget;
  auto* const copied = new QLabel;
  auto* const layout = new QVBoxLayout(&window);
  layout->addWidget(field);
  layout->addWidget(list);
  layout->addWidget(copied);
  field->setPlaceholderText("Search in the displayed groups");

  const auto text = [](std::string_view utf8) { return QString::fromUtf8(utf8.data(), qsizetype(utf8.size())); };
  const auto addRow = [&](const glyph::Entity& entity) {
    auto* const row = new QListWidgetItem(text(glyph::visibleSymbol(entity.computed.symbol)) + "  " + text(entity.name()));
    row->setData(Qt::UserRole, text(entity.computed.symbol));
    list->addItem(row);
  };
  const glyph::Search search(glyph::selectedEntities());  // build it again after "contentHasChanged"
  const auto fill = [&] {
    list->clear();
    const std::string typed = field->text().toStdString();
    if (typed.empty()) {
      for (const glyph::Entity& entity : glyph::selectedEntities()) addRow(entity);
    } else {
      for (const auto& result : search.query(typed).results) addRow(glyph::selectedEntities()[result.index]);
    }
    list->setCurrentRow(0);
  };
  QObject::connect(field, &QLineEdit::textChanged, fill);
  QObject::connect(field, &QLineEdit::returnPressed, [&] {
    if (const auto* const row = list->currentItem()) {
      glyph::toolKit().writeToPasteboard(row->data(Qt::UserRole).toString().toStdString());
    }
  });
  const auto token = glyph::NotificationCenter::defaultCenter().addObserver(
      glyph::notificationName::entityCopied,
      [&](const glyph::Notification& notification) { copied->setText("Copied " + text(*notification.object)); });
  fill();
  window.show();
  return application.exec();
}
