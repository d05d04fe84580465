// SPDX-License-Identifier: MIT
#include "character_card.h"

#include <QDrag>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyleHints>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "catalog.h"
#include "character_grid.h"
#include "character_texts.h"
#include "elided_label.h"
#include "flow_layout.h"
#include "group_titles.h"
#include "icons.h"

namespace browser {
namespace {

constexpr std::size_t mostRelated = 24;

const QRegularExpression& codeInNote() {
  static const QRegularExpression expression(QStringLiteral("\\(([0-9a-f]{4,6})\\)"));
  return expression;
}

QLabel* newHeading(const QString& title) {
  auto* const heading = new QLabel(title);
  QFont font = heading->font();
  font.setWeight(QFont::DemiBold);
  heading->setFont(font);
  return heading;
}

// The tables have titles of the same width, so that their values are aligned with each other.
int titleWidth() {
  const QFontMetrics metrics(QGuiApplication::font());
  int width = 0;
  for (const glyph::CopyForm& form : glyph::copyForms()) {
    width = std::max(width, metrics.horizontalAdvance(formTitle(form)));
  }
  return width;
}

// A text with links. Tab moves to its first link.
class LinkLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QLabel::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason) focusNextPrevChild(true);
    if (event->reason() == Qt::BacktabFocusReason) focusNextPrevChild(false);
  }
};

QLabel* newLinks(Qt::TextInteractionFlags flags) {
  auto* const label = new LinkLabel;
  label->setWordWrap(true);
  label->setTextFormat(Qt::RichText);
  label->setTextInteractionFlags(flags);
  return label;
}

}  // namespace

// A button that shows a character.
class CharacterButton : public QToolButton {
 public:
  CharacterButton() {
    setAutoRaise(true);
    setFixedSize(38, 38);
    connect(&GlyphRenderer::shared(), &GlyphRenderer::picturesReady, this, qOverload<>(&QWidget::update));
  }

  void setCharacter(const glyph::Entity& entity) {
    entity_ = entity;
    const QString name = nameText(entity);
    setToolTip(name + QLatin1Char('\n') + codeText(entity));
    setAccessibleName(name);
    update();
  }
  QString hex() const { return fromUtf8(entity_.computed.hex); }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QToolButton::paintEvent(event);
    QPainter painter(this);
    paintCharacter(painter, rect(), entity_, cellRequest(entity_, 38, devicePixelRatioF()),
                   palette().color(QPalette::Text));
  }

 private:
  glyph::Entity entity_;
};

std::vector<std::string> codesInNote(const QString& note) {
  std::vector<std::string> codes;
  for (auto match = codeInNote().globalMatch(note); match.hasNext();) {
    const std::string code = match.next().captured(1).toStdString();
    if (std::find(codes.begin(), codes.end(), code) == codes.end()) codes.push_back(code);
  }
  return codes;
}

LargeGlyph::LargeGlyph(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setCursor(Qt::OpenHandCursor);
  setToolTip(tr("Drag the character into another window"));
  connect(&GlyphRenderer::shared(), &GlyphRenderer::picturesReady, this, qOverload<>(&QWidget::update));
}

void LargeGlyph::setCharacter(const glyph::Entity& entity) {
  entity_ = entity;
  setAccessibleName(nameText(entity));
  update();
}

void LargeGlyph::clear() {
  entity_.reset();
  setAccessibleName({});
  update();
}

void LargeGlyph::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->position().toPoint();
}

void LargeGlyph::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor line = palette().color(QPalette::Text);
  line.setAlphaF(0.1F);
  painter.setPen(line);
  painter.setBrush(palette().base());
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 12, 12);
  if (!entity_) return;
  const int side = std::min(width(), height()) - 12;
  const QRect area((width() - side) / 2, (height() - side) / 2, side, side);
  GlyphRequest request = cellRequest(*entity_, side, devicePixelRatioF());
  request.size = side * 11 / 20;
  paintCharacter(painter, area, *entity_, request, palette().color(QPalette::Text));
  const GlyphPicture* const picture =
      isShownAsBox(*entity_) ? nullptr : GlyphRenderer::shared().picture(request);
  if (picture) Q_EMIT fontKnown(picture->family);
}

void LargeGlyph::mouseMoveEvent(QMouseEvent* event) {
  const int moved = (event->position().toPoint() - pressed_).manhattanLength();
  const bool isDrag = moved >= QGuiApplication::styleHints()->startDragDistance();
  if (!entity_ || !isDrag || !(event->buttons() & Qt::LeftButton)) return;
  auto* const mime = new QMimeData;
  mime->setText(fromUtf8(entity_->computed.symbol));
  auto* const drag = new QDrag(this);
  drag->setMimeData(mime);
  drag->exec(Qt::CopyAction);
}

CharacterCard::CharacterCard(Catalog& catalog, QWidget* parent)
    : QScrollArea(parent), catalog_(catalog), content_(new QWidget), layout_(new QVBoxLayout(content_)) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAccessibleName(tr("Character"));
  setMinimumWidth(240);
  layout_->setContentsMargins(14, 12, 14, 14);
  layout_->setSpacing(4);
  makeHead();
  note_ = newLinks(Qt::TextBrowserInteraction);
  noteSection_ = addSection(tr("Usage"), note_);
  connect(note_, &QLabel::linkActivated, this, &CharacterCard::characterChosen);
  variants_ = addCharacterRow(tr("Skin tones"));
  related_ = addCharacterRow(tr("See also"));
  makeForms();
  lookAlikes_ = addCharacterRow(tr("Easily mistaken for"));
  typing_ = newTable();
  typingSection_ = addSection(tr("How to type it"), typing_->parentWidget());
  terms_ = newText(true);
  termSection_ = addSection(tr("Also found by"), terms_);
  facts_ = newTable();
  factSection_ = addSection(tr("Unicode"), facts_->parentWidget());
  groups_ = newLinks(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  groupSection_ = addSection(tr("Groups"), groups_);
  connect(groups_, &QLabel::linkActivated, this, &CharacterCard::groupChosen);
  layout_->addStretch();
  setWidget(content_);
  setCharacter(nullptr);
}

QLabel* CharacterCard::newText(bool isSelectable) {
  auto* const label = new QLabel;
  label->setWordWrap(true);
  label->setTextFormat(Qt::PlainText);
  // Tab does not stop at a text without links.
  if (isSelectable) label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

void CharacterCard::makeHead() {
  head_ = new QBoxLayout(QBoxLayout::TopToBottom);
  head_->setSpacing(12);
  glyph_ = new LargeGlyph;
  head_->addWidget(glyph_);
  connect(glyph_, &LargeGlyph::fontKnown, this, &CharacterCard::showFont);
  auto* const texts = new QVBoxLayout;
  texts->setSpacing(3);
  name_ = newText(true);
  QFont font = name_->font();
  font.setPointSizeF(font.pointSizeF() * 1.25);
  font.setWeight(QFont::DemiBold);
  name_->setFont(font);
  texts->addWidget(name_);
  localName_ = newText(true);
  texts->addWidget(localName_);
  code_ = newText(true);
  unicodeName_ = newText(true);
  font_ = newText(true);
  for (QLabel* const label : {code_, unicodeName_, font_}) {
    label->setForegroundRole(QPalette::PlaceholderText);
    texts->addWidget(label);
  }
  texts->addSpacing(6);
  texts->addLayout(makeButtons());
  texts->addStretch();
  head_->addLayout(texts, 1);
  layout_->addLayout(head_);
}

QBoxLayout* CharacterCard::makeButtons() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(4);
  copy_ = new QPushButton(tr("Copy"));
  copy_->setDefault(true);
  favourite_ = newIconButton(Symbol::star, tr("Favourite"));
  add_ = newIconButton(Symbol::add, QString());
  collect_ = newIconButton(Symbol::collect, tr("Collect"));
  collect_->setToolTip(tr("Collect, to copy it together with others"));
  row->addWidget(copy_, 1);
  for (QToolButton* const button : {favourite_, add_, collect_}) row->addWidget(button);
  row->addStretch();
  connect(copy_, &QPushButton::clicked, this,
          [this] { Q_EMIT copyRequested(*glyph::copyForm("character")); });
  connect(favourite_, &QToolButton::clicked, this, &CharacterCard::favouriteRequested);
  connect(add_, &QToolButton::clicked, this, &CharacterCard::addOrRemoveRequested);
  connect(collect_, &QToolButton::clicked, this, &CharacterCard::collectRequested);
  return row;
}

void CharacterCard::setCompact(bool compact) {
  head_->setDirection(compact ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  glyph_->setSizePolicy(compact ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
  glyph_->setFixedHeight(compact ? 120 : 168);
  glyph_->setMinimumWidth(120);
  glyph_->setMaximumWidth(compact ? 120 : QWIDGETSIZE_MAX);
  copy_->setMaximumWidth(compact ? 260 : QWIDGETSIZE_MAX);
  head_->setAlignment(glyph_, compact ? Qt::AlignTop : Qt::Alignment());
}

CharacterCard::Section CharacterCard::addSection(const QString& title, QWidget* content) {
  QLabel* const heading = newHeading(title);
  heading->setContentsMargins(0, 14, 0, 2);
  layout_->addWidget(heading);
  layout_->addWidget(content);
  return {heading, content};
}

void CharacterCard::showSection(const Section& section, bool shown) {
  section.heading->setVisible(shown);
  section.content->setVisible(shown);
}

void CharacterCard::makeForms() {
  QGridLayout* const grid = newTable();
  grid->setVerticalSpacing(0);
  const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  int row = 0;
  for (const glyph::CopyForm& form : glyph::copyForms()) {
    if (form.identifier == "character") continue;
    auto* const title = new QLabel(formTitle(form));
    title->setForegroundRole(QPalette::PlaceholderText);
    auto* const value = new ElidedLabel;
    value->setFont(fixed);
    value->setTextFormat(Qt::PlainText);
    value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QToolButton* const button = newIconButton(Symbol::copy, tr("Copy %1").arg(formTitle(form)));
    button->setIconSize({14, 14});
    button->setFixedHeight(24);
    grid->addWidget(title, row, 0);
    grid->addWidget(value, row, 1);
    grid->addWidget(button, row, 2);
    ++row;
    connect(button, &QToolButton::clicked, this, [this, &form] { Q_EMIT copyRequested(form); });
    forms_.push_back({&form, title, value, button});
  }
  addSection(tr("Codes"), grid->parentWidget());
}

void CharacterCard::setCharacter(const glyph::Entity* entity) {
  content_->setVisible(entity);
  setVerticalScrollBarPolicy(entity ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  if (!entity) return entity_.reset();
  entity_ = *entity;
  name_->setText(nameText(*entity));
  localName_->setText(localNameText(*entity));
  localName_->setVisible(!localName_->text().isEmpty());
  code_->setText(codeText(*entity));
  const QString unicodeName = fromUtf8(entity->computed.fallbackName);
  unicodeName_->setText(tr("Unicode name: %1").arg(unicodeName));
  unicodeName_->setVisible(!unicodeName.isEmpty() && unicodeName != name_->text());
  // Show a space until the font is known, so that the line already has its height.
  font_->setText(QStringLiteral(" "));
  font_->setVisible(!isShownAsBox(*entity));
  glyph_->setCharacter(*entity);
  showForms();
  showNote();
  showRelated();
  showTyping();
  showFacts();
  QString terms;
  if (entity->additional && entity->additional->searchTerms) {
    for (const auto& term : *entity->additional->searchTerms) {
      terms += (terms.isEmpty() ? QString() : QStringLiteral(", ")) + fromUtf8(term);
    }
  }
  terms_->setText(terms);
  showSection(termSection_, !terms.isEmpty());
  refresh();
  verticalScrollBar()->setValue(0);
}

void CharacterCard::refresh() {
  if (!entity_) return;
  const std::string hex = entity_->computed.hex;
  const bool isFavourite = catalog_.isFavourite(hex);
  favourite_->setIcon(symbolIcon(isFavourite ? Symbol::starFilled : Symbol::star));
  favourite_->setToolTip(isFavourite ? tr("Remove from the favourites (Ctrl+D)")
                                     : tr("Add to the favourites (Ctrl+D)"));
  const bool isAdded = catalog_.isAdded(hex);
  add_->setIcon(symbolIcon(isAdded ? Symbol::remove : Symbol::add));
  const QString title = isAdded ? tr("Remove from your own characters") : tr("Add to your own characters");
  add_->setToolTip(title);
  add_->setAccessibleName(title);
  showGroups();
}

void CharacterCard::showForms() {
  for (const FormRow& row : forms_) {
    const auto text = row.form->text(*entity_);
    const bool hasForm = text.has_value();
    for (QWidget* const widget : {static_cast<QWidget*>(row.title), static_cast<QWidget*>(row.value),
                                  static_cast<QWidget*>(row.button)}) {
      widget->setVisible(hasForm);
    }
    if (!hasForm) continue;
    row.value->setText(fromUtf8(*text));
    row.value->setToolTip(fromUtf8(*text));
  }
}

void CharacterCard::showNote() {
  const auto advice = entity_->additional ? entity_->additional->localizedAdvice() : std::nullopt;
  const QString note = advice ? fromUtf8(*advice) : QString();
  // Make each code in parentheses a link to its character.
  QString html = note.toHtmlEscaped();
  html.replace(codeInNote(), QStringLiteral("(<a href=\"\\1\">\\1</a>)"));
  html.replace(QLatin1Char('\n'), QLatin1String("<br>"));
  note_->setText(html);
  note_->setFocusPolicy(html.contains(QLatin1String("<a ")) ? Qt::StrongFocus : Qt::ClickFocus);
  showSection(noteSection_, !note.isEmpty());
}

void CharacterCard::showGroups() {
  QStringList links;
  for (const std::string& group : catalog_.groupsOf(entity_->computed.hex)) {
    links << QStringLiteral("<a href=\"%1\">%2</a>")
                 .arg(fromUtf8(group).toHtmlEscaped(), groupTitle(group).toHtmlEscaped());
  }
  groups_->setText(links.join(QStringLiteral("<br>")));
  showSection(groupSection_, !links.isEmpty());
}

CharacterCard::CharacterRow CharacterCard::addCharacterRow(const QString& title) {
  auto* const flow = new FlowLayout(2);
  flow->setContentsMargins(0, 0, 0, 0);
  auto* const content = new QWidget;
  content->setLayout(flow);
  flow->addWidget(newCharacterButton());  // the others follow it in the order of Tab
  return {addSection(title, content), flow};
}

CharacterButton* CharacterCard::newCharacterButton() {
  auto* const button = new CharacterButton;
  connect(button, &QToolButton::clicked, this, [this, button] { Q_EMIT characterChosen(button->hex()); });
  return button;
}

// Shows these characters in the row. Reuses existing buttons, because creating buttons would take most of the
// time that the card needs.
void CharacterCard::fill(const CharacterRow& row, const std::vector<std::string>& texts) {
  const int count = static_cast<int>(std::min(texts.size(), mostRelated));
  for (int i = 0; i < std::max(count, row.flow->count()); ++i) {
    const QLayoutItem* const item = row.flow->itemAt(i);
    auto* button = item ? static_cast<CharacterButton*>(item->widget()) : nullptr;
    if (!button) {
      button = newCharacterButton();
      row.flow->addWidget(button);
      // Tab must not reach the button after all widgets that were made before it.
      setTabOrder(row.flow->itemAt(i - 1)->widget(), button);
    }
    if (i < count) button->setCharacter(catalog_.characterOf(texts[static_cast<std::size_t>(i)]));
    button->setVisible(i < count);
  }
  showSection(row.section, count > 0);
}

void CharacterCard::showRelated() {
  const std::string symbol = entity_->computed.symbol;
  std::vector<std::string> variants, related, lookAlikes;
  if (const auto place = glyph::emojiPlace(symbol)) {
    for (const std::size_t variant : glyph::emojiVariants(*place))
      variants.emplace_back(glyph::emojiAt(variant).text);
  }
  const auto add = [&](const std::string& text) {
    if (text != symbol && std::find(related.begin(), related.end(), text) == related.end())
      related.push_back(text);
  };
  const auto advice = entity_->additional ? entity_->additional->localizedAdvice() : std::nullopt;
  for (const std::string& code : codesInNote(advice ? fromUtf8(*advice) : QString())) {
    add(glyph::toolKit().getAdvancedSymbol(code));
  }
  const std::u32string points = glyph::codePoints(symbol);
  if (points.size() == 1) {
    for (const auto& [relation, characters] : glyph::relatedCharacters(points.front())) {
      for (const char32_t character : characters) add(glyph::utf8(character));
    }
    for (const char32_t character : glyph::lookAlikes(points.front()).characters) {
      lookAlikes.push_back(glyph::utf8(character));
    }
  } else {
    for (const char32_t point : points) add(glyph::utf8(point));  // the parts of a sequence
  }
  fill(variants_, variants);
  fill(related_, related);
  fill(lookAlikes_, lookAlikes);
}

QGridLayout* CharacterCard::newTable() {
  auto* const table = new QWidget;
  auto* const grid = new QGridLayout(table);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(5);
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(0, titleWidth());
  return grid;
}

// Fills the table with these rows of a label and a value. Reuses existing QLabel objects.
void CharacterCard::fill(QGridLayout* table, const std::vector<std::pair<QString, QString>>& rows) {
  for (int row = 0; row < std::max(table->rowCount(), static_cast<int>(rows.size())); ++row) {
    const bool isUsed = row < static_cast<int>(rows.size());
    for (const int column : {0, 1}) {
      QLayoutItem* const item = table->itemAtPosition(row, column);
      auto* label = item ? static_cast<QLabel*>(item->widget()) : nullptr;
      if (!label && isUsed) {
        label = newText(column == 1);
        label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
        if (column == 0) {
          label->setForegroundRole(QPalette::PlaceholderText);
          label->setWordWrap(false);
        }
        table->addWidget(label, row, column);
      }
      if (!label) continue;
      label->setVisible(isUsed);
      if (!isUsed) continue;
      const auto& [title, value] = rows[static_cast<std::size_t>(row)];
      label->setText(column == 0 ? title : value);
    }
  }
}

// Shows how to type the character. For each method, shows only the most usual way.
void CharacterCard::showTyping() {
  std::vector<std::pair<QString, QString>> rows;
  std::string_view last;
  for (const glyph::WayToType& way : glyph::waysToType(entity_->computed.symbol)) {
    if (way.method == last) continue;
    last = way.method;
    rows.emplace_back(typingTitle(way), QString::fromStdString(way.text));
  }
  fill(typing_, rows);
  showSection(typingSection_, !rows.empty());
}

void CharacterCard::showFacts() {
  const std::u32string points = glyph::codePoints(entity_->computed.symbol.view());
  std::vector<std::pair<QString, QString>> rows;
  const auto add = [&](const QString& title, const QString& value) {
    if (!value.isEmpty()) rows.emplace_back(title, value);
  };
  if (points.size() == 1) {
    const glyph::CharacterFacts facts = glyph::characterFacts(points.front());
    std::string aliases;
    for (const auto* const list : {&facts.formalAliases, &facts.otherNames}) {
      for (const std::string_view alias : *list) aliases.append(aliases.empty() ? "" : ", ").append(alias);
    }
    add(tr("Also called"), fromUtf8(aliases));
    add(tr("Meaning"), fromUtf8(facts.hanDefinition));
    if (!facts.block.empty()) add(tr("Block"), blockTitle(std::string(facts.block)));
    add(tr("Script"), fromUtf8(facts.script));
    add(tr("Category"), categoryTitle(facts.category));
    add(tr("Since version"), fromUtf8(facts.version));
  }
  fill(facts_, rows);
  showSection(factSection_, !rows.empty());
}

void CharacterCard::showFont(const QString& family) {
  if (!entity_) return;
  QString text;
  if (!family.isEmpty()) {
    text = tr("Font: %1").arg(family);
  } else {
    const auto codePoint = static_cast<char32_t>(entity_->computed.decimal);
    const QString package = fontPackage(codePoint);
    text = isPrivateUse(codePoint) ? tr("A private-use character. No installed font draws it.")
           : package.isEmpty()
               ? tr("No installed font draws this character.")
               : tr("No installed font draws this character. The package %1 has one.").arg(package);
  }
  if (font_->text() != text) font_->setText(text);
}

}  // namespace browser
