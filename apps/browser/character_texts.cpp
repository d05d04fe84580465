// SPDX-License-Identifier: MIT
#include "character_texts.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <span>

#include "catalog.h"

namespace browser {
namespace {

// Returns the translation of the text if it is one of the titles. Returns any other text unchanged.
QString translated(const char* context, std::span<const char* const> titles, std::string_view text) {
  const auto title = std::find(titles.begin(), titles.end(), text);
  return title == titles.end() ? fromUtf8(text) : QCoreApplication::translate(context, *title);
}

}  // namespace

QString codeText(const glyph::Entity& entity) {
  return fromUtf8(glyph::copyForm("code-point")->text(entity).value_or(entity.computed.hex));
}

QString nameText(const glyph::Entity& entity) {
  const std::string name = entity.name();
  if (!name.empty()) return fromUtf8(name);
  return QCoreApplication::translate("CharacterTexts", "Character without a name");
}

bool hasName(const glyph::Entity& entity) {
  const std::string name = entity.name();
  return !name.empty() && !name.starts_with('<');
}

QString localNameText(const glyph::Entity& entity) {
  const std::vector<std::string> languages = glyph::preferredLanguages();
  if (languages.empty()) return {};
  const QString name = fromUtf8(glyph::annotationOf(entity.computed.symbol, languages.front()).name);
  return name.compare(nameText(entity), Qt::CaseInsensitive) == 0 ? QString() : name;
}

QString shownText(const glyph::Entity& entity) {
  return fromUtf8(glyph::visibleSymbol(entity.computed.symbol));
}

QString shownTexts(const Catalog& catalog, const std::vector<std::string>& hexes) {
  constexpr std::size_t most = 8;
  QString texts;
  for (std::size_t i = 0; i < hexes.size() && i < most; ++i) texts += shownText(catalog.entity(hexes[i]));
  return hexes.size() > most ? texts + QStringLiteral("…") : texts;
}

QString emojiGroupTitle(std::string_view group) {
  static constexpr const char* titles[] = {
      QT_TRANSLATE_NOOP("EmojiGroup", "Smileys & Emotion"),
      QT_TRANSLATE_NOOP("EmojiGroup", "People & Body"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Component"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Animals & Nature"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Food & Drink"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Travel & Places"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Activities"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Objects"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Symbols"),
      QT_TRANSLATE_NOOP("EmojiGroup", "Flags"),
  };
  return translated("EmojiGroup", titles, group);
}

QString categoryTitle(std::string_view category) {
  // The names that categoryName() returns.
  static constexpr const char* titles[] = {
      QT_TRANSLATE_NOOP("Category", "uppercase letter"),
      QT_TRANSLATE_NOOP("Category", "lowercase letter"),
      QT_TRANSLATE_NOOP("Category", "titlecase letter"),
      QT_TRANSLATE_NOOP("Category", "modifier letter"),
      QT_TRANSLATE_NOOP("Category", "other letter"),
      QT_TRANSLATE_NOOP("Category", "nonspacing mark"),
      QT_TRANSLATE_NOOP("Category", "spacing mark"),
      QT_TRANSLATE_NOOP("Category", "enclosing mark"),
      QT_TRANSLATE_NOOP("Category", "decimal number"),
      QT_TRANSLATE_NOOP("Category", "letter number"),
      QT_TRANSLATE_NOOP("Category", "other number"),
      QT_TRANSLATE_NOOP("Category", "connector punctuation"),
      QT_TRANSLATE_NOOP("Category", "dash punctuation"),
      QT_TRANSLATE_NOOP("Category", "open punctuation"),
      QT_TRANSLATE_NOOP("Category", "close punctuation"),
      QT_TRANSLATE_NOOP("Category", "initial punctuation"),
      QT_TRANSLATE_NOOP("Category", "final punctuation"),
      QT_TRANSLATE_NOOP("Category", "other punctuation"),
      QT_TRANSLATE_NOOP("Category", "math symbol"),
      QT_TRANSLATE_NOOP("Category", "currency symbol"),
      QT_TRANSLATE_NOOP("Category", "modifier symbol"),
      QT_TRANSLATE_NOOP("Category", "other symbol"),
      QT_TRANSLATE_NOOP("Category", "space separator"),
      QT_TRANSLATE_NOOP("Category", "line separator"),
      QT_TRANSLATE_NOOP("Category", "paragraph separator"),
      QT_TRANSLATE_NOOP("Category", "control"),
      QT_TRANSLATE_NOOP("Category", "format"),
      QT_TRANSLATE_NOOP("Category", "surrogate"),
      QT_TRANSLATE_NOOP("Category", "private use"),
      QT_TRANSLATE_NOOP("Category", "unassigned"),
  };
  const std::string_view name = glyph::categoryName(category);
  return translated("Category", titles, name);
}

QString typingTitle(const glyph::WayToType& way) {
  struct Title {
    std::string_view method;
    const char* text;
  };
  static constexpr Title titles[] = {
      {"compose", QT_TRANSLATE_NOOP("WayToType", "Compose key")},
      {"latex", QT_TRANSLATE_NOOP("WayToType", "LaTeX")},
      {"digraph", QT_TRANSLATE_NOOP("WayToType", "Digraph, Ctrl+K")},
      {"shortcode", QT_TRANSLATE_NOOP("WayToType", "Shortcode")},
      {"alt-code", QT_TRANSLATE_NOOP("WayToType", "Alt on Windows")},
      {"ctrl-shift-u", QT_TRANSLATE_NOOP("WayToType", "Ctrl+Shift+U")},
      {"keysym", QT_TRANSLATE_NOOP("WayToType", "Keysym")},
  };
  for (const Title& title : titles) {
    if (title.method == way.method) return QCoreApplication::translate("WayToType", title.text);
  }
  return fromUtf8(way.method);
}

QString formTitle(const glyph::CopyForm& form) {
  struct Title {
    std::string_view identifier;
    const char* text;
  };
  static constexpr Title titles[] = {
      {"character", QT_TRANSLATE_NOOP("CopyForm", "Character")},
      {"hex", QT_TRANSLATE_NOOP("CopyForm", "Hexadecimal")},
      {"decimal", QT_TRANSLATE_NOOP("CopyForm", "Decimal")},
      {"code-point", QT_TRANSLATE_NOOP("CopyForm", "Code point")},
      {"html", QT_TRANSLATE_NOOP("CopyForm", "HTML name")},
      {"html-hex", QT_TRANSLATE_NOOP("CopyForm", "HTML hexadecimal")},
      {"html-decimal", QT_TRANSLATE_NOOP("CopyForm", "HTML decimal")},
      {"swift", QT_TRANSLATE_NOOP("CopyForm", "Swift")},
      {"octal-escape", QT_TRANSLATE_NOOP("CopyForm", "Octal escape")},
      {"swiftui", QT_TRANSLATE_NOOP("CopyForm", "SwiftUI")},
      {"uikit", QT_TRANSLATE_NOOP("CopyForm", "UIKit")},
      // Names of programming languages and encodings are not translated.
      {"utf-8", "UTF-8"},
      {"utf-16", "UTF-16"},
      {"utf-32", "UTF-32"},
      {"c", "C"},
      {"javascript", "JavaScript"},
      {"json", "JSON"},
      {"java", "Java"},
      {"python", "Python"},
      {"rust", "Rust"},
      {"css", "CSS"},
      {"url", "URL"},
  };
  for (const Title& title : titles) {
    if (title.identifier == form.identifier) return QCoreApplication::translate("CopyForm", title.text);
  }
  return fromUtf8(form.identifier);
}

}  // namespace browser
