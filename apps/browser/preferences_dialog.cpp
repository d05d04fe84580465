// SPDX-License-Identifier: MIT
#include "preferences_dialog.h"

#include <glyphorium/glyphorium.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "appearance.h"
#include "catalog.h"
#include "character_menus.h"
#include "character_texts.h"
#include "global_shortcut.h"
#include "glyph_renderer.h"
#include "preferences.h"
#include "typing.h"

namespace browser {
namespace {

QLabel* newText(const QString& text) {
  auto* const label = new QLabel(text);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

// Returns a text that explains, for each desktop, how to start the picker with a key. Each command has a line
// of its own, so that it is not wrapped.
QString keyBindings() {
  struct Desktop {
    QString name, how, command;
  };
  const QString command = QStringLiteral("glyphorium-browser --pick");
  const Desktop desktops[] = {
      {QStringLiteral("GNOME"),
       PreferencesDialog::tr(
           "Settings › Keyboard › View and Customise Shortcuts › Custom Shortcuts, with the "
           "command"),
       command},
      {QStringLiteral("KDE"), PreferencesDialog::tr("System Settings › Shortcuts › Add Command"), command},
      {QStringLiteral("Sway, i3"), PreferencesDialog::tr("a line in the configuration"),
       QStringLiteral("bindsym $mod+period exec ") + command},
  };
  QString text;
  for (const Desktop& desktop : desktops) {
    text += QStringLiteral("<p><b>%1</b>: %2<br><code>%3</code></p>")
                .arg(desktop.name, desktop.how, desktop.command);
  }
  return text;
}

}  // namespace

PreferencesDialog::PreferencesDialog(Catalog& catalog, Appearance& appearance, GlobalShortcut& shortcut,
                                     QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(tr("Preferences"));
  auto* const column = new QVBoxLayout(this);
  auto* const pages = new QTabWidget;
  pages->setDocumentMode(true);
  pages->tabBar()->setDrawBase(false);
  pages->addTab(makeGeneralPage(catalog, appearance), tr("General"));
  pages->addTab(makePickerPage(shortcut), tr("Picker"));
  pages->addTab(makeSearchPage(), tr("Desktop search"));
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  column->addWidget(pages);
  column->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  resize(520, 400);
}

QWidget* PreferencesDialog::makeGeneralPage(Catalog& catalog, Appearance& appearance) {
  auto* const page = new QWidget;
  auto* const form = new QFormLayout(page);
  form->setContentsMargins(12, 16, 12, 12);
  form->setVerticalSpacing(12);

  auto* const theme = new QComboBox;
  theme->addItems({tr("Like the desktop"), tr("Light"), tr("Dark")});
  theme->setCurrentIndex(static_cast<int>(Appearance::chosen()));
  connect(theme, &QComboBox::activated, this, [&appearance](int index) {
    const auto chosen = static_cast<Appearance::Theme>(index);
    Appearance::choose(chosen);
    appearance.setTheme(chosen);
  });
  form->addRow(tr("&Theme:"), theme);

  auto* const font = new QComboBox;
  font->addItem(tr("Chosen for each character"));
  font->addItems(QFontDatabase::families());
  font->setCurrentIndex(std::max(0, font->findText(preferences::glyphFamily(), Qt::MatchExactly)));
  font->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(font, &QComboBox::activated, this, [font](int index) {
    const QString family = index == 0 ? QString() : font->itemText(index);
    preferences::setGlyphFamily(family);
    GlyphRenderer::shared().setFamily(family);
  });
  form->addRow(tr("&Font of the characters:"), font);

  auto* const tone = new QComboBox;
  for (const glyph::SkinTone one : glyph::allSkinTones) {
    tone->addItem(skinToneTitle("👋", one));
  }
  tone->setCurrentIndex(static_cast<int>(catalog.skinTone()));
  connect(tone, &QComboBox::activated, this, [&catalog](int index) {
    catalog.setSkinTone(glyph::allSkinTones[static_cast<std::size_t>(index)]);
  });
  form->addRow(tr("&Skin tone of emoji:"), tone);

  auto* const other = new QComboBox;
  for (const glyph::CopyForm& one : glyph::copyForms()) {
    if (one.identifier != "character") other->addItem(formTitle(one), fromUtf8(one.identifier));
  }
  other->setCurrentIndex(other->findData(QString::fromStdString(preferences::otherForm())));
  connect(other, &QComboBox::activated, this,
          [other] { preferences::setOtherForm(other->currentData().toString().toStdString()); });
  form->addRow(tr("&Alt+Enter copies:"), other);
  return page;
}

QWidget* PreferencesDialog::makePickerPage(GlobalShortcut& shortcut) {
  auto* const page = new QWidget;
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(12, 16, 12, 12);
  column->setSpacing(10);
  auto* const types = new QCheckBox(tr("&Type the character into the window that had the focus"));
  types->setChecked(preferences::pickerTypes());
  connect(types, &QCheckBox::toggled, this, &preferences::setPickerTypes);
  column->addWidget(types);
  if (typingTool().program.isEmpty()) {
    column->addWidget(
        newText(tr("For this, install the package xdotool (X11) or wtype (Sway and other wlroots desktops). "
                   "Without it, Ctrl+V pastes the character.")));
  }
  auto* const starts = new QCheckBox(tr("&Start with the desktop, so that the picker opens at once"));
  starts->setChecked(preferences::startsWithDesktop());
  connect(starts, &QCheckBox::toggled, this, [starts](bool on) {
    if (!preferences::setStartsWithDesktop(on)) starts->setChecked(preferences::startsWithDesktop());
  });
  column->addWidget(starts);
  auto* const hasKey = new QCheckBox(tr("&Let the desktop open the picker with a key"));
  QLabel* const key = newText({});
  QLabel* const bindings = newText(keyBindings());
  for (QWidget* const widget :
       {static_cast<QWidget*>(hasKey), static_cast<QWidget*>(key), static_cast<QWidget*>(bindings)}) {
    column->addWidget(widget);
  }
  column->addStretch();
  const auto refresh = [&shortcut, hasKey, key, bindings] {
    const GlobalShortcut::State state = shortcut.state();
    const bool isBound = state == GlobalShortcut::State::bound;
    hasKey->setVisible(state != GlobalShortcut::State::unavailable);
    const QSignalBlocker blocker(hasKey);
    hasKey->setChecked(isBound || state == GlobalShortcut::State::asking);
    bindings->setVisible(!isBound);
    if (isBound && shortcut.keyText().isEmpty()) {
      key->setText(tr("The desktop’s settings show the key. It works while Glyphorium runs."));
    } else if (isBound) {
      key->setText(tr("The key is “%1”. It works while Glyphorium runs.").arg(shortcut.keyText()));
    } else if (state == GlobalShortcut::State::unavailable) {
      key->setText(
          tr("This desktop does not let programs ask for a key. Its own settings can open the picker "
             "with a key over every window:"));
    } else {
      key->setText(tr("The desktop’s own settings can also open the picker with a key over every window:"));
    }
  };
  connect(hasKey, &QCheckBox::toggled, this,
          [&shortcut](bool on) { on ? shortcut.bind() : shortcut.release(); });
  connect(&shortcut, &GlobalShortcut::stateChanged, page, refresh);
  refresh();
  shortcut.findPortal();
  return page;
}

QWidget* PreferencesDialog::makeSearchPage() {
  auto* const page = new QWidget;
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(12, 16, 12, 12);
  column->setSpacing(10);
  column->addWidget(
      newText(tr("GNOME Shell and KRunner find characters when glyphorium-search-provider is installed.")));
  auto* const whole = new QCheckBox(tr("The desktop’s search finds &all characters, not only your own"));
  whole->setChecked(glyph::desktopSearchesCatalog());
  connect(whole, &QCheckBox::toggled, this, [](bool on) { glyph::setDesktopSearchesCatalog(on); });
  auto* const index = new QCheckBox(tr("The desktop’s search finds the characters that you &add"));
  index->setChecked(glyph::EntityUserData::useSpotlightExtension());
  connect(index, &QCheckBox::toggled, this, [](bool on) {
    glyph::EntityUserData::setUseSpotlightExtension(on);
    const std::vector<glyph::Entity>& added = glyph::glyphorium().allCustomEntities;
    on ? glyph::toolKit().addToSpotlight(added) : glyph::toolKit().removeFromSpotlight(added);
  });
  column->addWidget(whole);
  column->addWidget(index);
  column->addStretch();
  return page;
}

}  // namespace browser
