// SPDX-License-Identifier: MIT
#include "sidebar.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <unordered_set>

#include "catalog.h"
#include "group_titles.h"
#include "icons.h"

namespace browser {
namespace {

using Kind = Scope::Kind;

constexpr int checkSize = 16;

// Paints the rows of the list. Reacts to a click on a check mark.
class ScopeDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool isHeading = index.data(ScopeModel::headingRole).toBool();
    return {160, option.fontMetrics.height() + (isHeading ? 22 : 14)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (index.data(ScopeModel::headingRole).toBool()) {
      paintHeading(*painter, option, index);
    } else {
      paintRow(*painter, option, index);
    }
    painter->restore();
  }

  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
    if (!(index.flags() & Qt::ItemIsUserCheckable)) return false;
    const auto flip = [&] {
      const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
      return model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    };
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space)
      return flip();
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if (!isPress && event->type() != QEvent::MouseButtonRelease) return false;
    const QPoint point = static_cast<QMouseEvent*>(event)->position().toPoint();
    // The area around the check mark also reacts to clicks. Such a click does not select the row.
    if (!checkArea(option).adjusted(-9, -9, 6, 9).contains(point)) return false;
    return isPress || flip();
  }

 private:
  static QRect checkArea(const QStyleOptionViewItem& option) {
    const QRect area(option.rect.left() + 14, option.rect.center().y() - checkSize / 2 + 1, checkSize,
                     checkSize);
    return QStyle::visualRect(option.direction, option.rect, area);
  }

  static void paintHeading(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    QFont font = option.font;
    font.setWeight(QFont::DemiBold);
    font.setPointSizeF(font.pointSizeF() * 0.88);
    painter.setFont(font);
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    painter.drawText(option.rect.adjusted(14, 0, -14, -5), Qt::AlignLeft | Qt::AlignBottom,
                     index.data().toString());
  }

  static void paintRow(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const bool isCurrent = option.state & QStyle::State_Selected;
    const bool isFocused =
        isCurrent && (option.state & QStyle::State_Active) && (option.state & QStyle::State_HasFocus);
    const QColor accent = option.palette.color(QPalette::Highlight);
    const QColor text = option.palette.color(QPalette::WindowText);
    QColor ground = isCurrent ? accent : text;
    ground.setAlphaF(isCurrent ? 0.2F : (option.state & QStyle::State_MouseOver) ? 0.06F : 0.0F);
    painter.setBrush(ground);
    painter.setPen(isFocused ? QPen(accent, 1.5) : QPen(Qt::NoPen));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(6.5, 1.5, -6.5, -1.5), 7, 7);

    const QRect mark = checkArea(option);
    const QVariant check = index.data(Qt::CheckStateRole);
    if (check.isValid()) {
      paintCheck(painter, mark, check.toInt() == Qt::Checked, option.palette);
    } else {
      index.data(Qt::DecorationRole).value<QIcon>().paint(&painter, mark);
    }
    QFont small = option.font;
    small.setPointSizeF(small.pointSizeF() * 0.88);
    painter.setFont(small);
    // The faint colour has too little contrast with the background of the current row.
    painter.setPen(isCurrent ? text : option.palette.color(QPalette::PlaceholderText));
    const QString count = QLocale().toString(index.data(ScopeModel::countRole).toLongLong());
    const int countWidth = QFontMetrics(small).horizontalAdvance(count);
    const auto mirrored = [&](const QRect& area) {
      return QStyle::visualRect(option.direction, option.rect, area);
    };
    const bool hasMark = check.isValid() || !index.data(Qt::DecorationRole).isNull();
    const QRect row = option.rect.adjusted(hasMark ? 38 : 16, 0, -16, 0);
    painter.drawText(mirrored(QRect(row.right() - countWidth, row.top(), countWidth + 1, row.height())),
                     Qt::AlignVCenter, count);
    painter.setFont(option.font);
    painter.setPen(text);
    const QRect place = row.adjusted(0, 0, -countWidth - 8, 0);
    // Shorten a long title in the middle, because many titles differ only in their last word.
    const QString title =
        QFontMetrics(option.font).elidedText(index.data().toString(), Qt::ElideMiddle, place.width());
    painter.drawText(mirrored(place), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading), title);
  }

  static void paintCheck(QPainter& painter, const QRect& area, bool isChecked, const QPalette& palette) {
    const QRectF box = QRectF(area).adjusted(1, 1, -1, -1);
    QColor frame = palette.color(QPalette::WindowText);
    frame.setAlphaF(0.55F);
    painter.setBrush(isChecked ? palette.highlight() : QBrush(Qt::NoBrush));
    painter.setPen(isChecked ? QPen(Qt::NoPen) : QPen(frame, 1.2));
    painter.drawRoundedRect(box, 4, 4);
    if (!isChecked) return;
    painter.setPen(
        QPen(palette.color(QPalette::HighlightedText), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF corner = box.topLeft();
    painter.drawPolyline(
        QPolygonF({corner + QPointF(3.3, 7.2), corner + QPointF(6, 9.9), corner + QPointF(10.8, 4.6)}));
  }
};

}  // namespace

ScopeModel::ScopeModel(Catalog& catalog) : catalog_(catalog) {
  for (const Kind kind : {Kind::all, Kind::displayed, Kind::favourites, Kind::recentlyCopied}) {
    rows_.push_back({nullptr, {kind}});
  }
  const auto addHeading = [this](const char* title) { rows_.push_back({title, {}}); };
  addHeading(QT_TR_NOOP("Groups"));
  for (const std::string& group : glyph::allBuildInEntityGroups())
    rows_.push_back({nullptr, {Kind::group, group}});
  addHeading(QT_TR_NOOP("Emoji"));
  for (std::size_t place = 0; place < glyph::emojiCount(); ++place) {
    const std::string group(glyph::emojiAt(place).group);
    if (rows_.back().scope.group != group) rows_.push_back({nullptr, {Kind::emoji, group}});
  }
  addHeading(QT_TR_NOOP("Blocks of Unicode"));
  for (const std::string_view block : glyph::valuesOf(glyph::CharacterProperty::block)) {
    rows_.push_back({nullptr, {Kind::block, std::string(block)}});
  }
  const auto refresh = [this] { Q_EMIT dataChanged(index(0), index(rowCount() - 1)); };
  connect(&catalog, &Catalog::groupsChanged, this, refresh);
  connect(&catalog, &Catalog::contentChanged, this, refresh);
  connect(&catalog, &Catalog::favouritesChanged, this, refresh);
  connect(&catalog, &Catalog::recentlyCopiedChanged, this, refresh);
  std::unordered_set<std::string_view> codes;
  for (const glyph::Entity& entity : glyph::glyphorium().buildInEntities()) codes.insert(entity.computed.hex);
  totalCount_ = codes.size();
}

int ScopeModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

qlonglong ScopeModel::characterCount(const Scope& scope) const {
  switch (scope.kind) {
    case Kind::all:
      return static_cast<qlonglong>(totalCount_);
    case Kind::displayed:
      return static_cast<qlonglong>(glyph::selectedEntities().size());
    case Kind::favourites:
      return static_cast<qlonglong>(catalog_.favourites().size());
    case Kind::recentlyCopied:
      return static_cast<qlonglong>(catalog_.recentlyCopied().size());
    case Kind::emoji:
    case Kind::block:
      return countOutsideCatalog(scope);
    case Kind::group:
    case Kind::text:
    case Kind::picker:
      break;
  }
  if (scope.group == glyph::customGroup)
    return static_cast<qlonglong>(glyph::glyphorium().allCustomEntities.size());
  return glyph::glyphorium().allEntityGroupNamesWithCount[scope.group];
}

// Returns the number of characters of a scope outside the catalog. Counting takes time, so the number is
// computed when the row becomes visible, and then kept.
qlonglong ScopeModel::countOutsideCatalog(const Scope& scope) const {
  const auto [known, isNew] = counts_.try_emplace(scope.text());
  if (!isNew) return known->second;
  if (scope.kind == Kind::block) {
    for (const auto& range : glyph::charactersWith(glyph::CharacterProperty::block, scope.group)) {
      known->second += range.last - range.first + 1;
    }
  } else {
    for (std::size_t place = 0; place < glyph::emojiCount(); ++place) {
      if (glyph::emojiAt(place).group == scope.group && glyph::emojiBase(place) == place) ++known->second;
    }
  }
  return known->second;
}

QVariant ScopeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  if (row.heading) {
    if (role == headingRole) return true;
    return role == Qt::DisplayRole ? tr(row.heading) : QVariant();
  }
  const bool isGroup = row.scope.kind == Kind::group;
  switch (role) {
    case Qt::DisplayRole:
      return row.scope.title();
    case countRole:
      return characterCount(row.scope);
    case Qt::AccessibleDescriptionRole:
      return tr("%Ln characters", nullptr, static_cast<int>(characterCount(row.scope)));
    case Qt::CheckStateRole:
      if (!isGroup) return {};
      return catalog_.isDisplayed(row.scope.group) ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole:
      switch (row.scope.kind) {
        case Kind::all:
          return symbolIcon(Symbol::grid);
        case Kind::displayed:
          return symbolIcon(Symbol::check);
        case Kind::favourites:
          return symbolIcon(Symbol::star);
        case Kind::recentlyCopied:
          return symbolIcon(Symbol::recent);
        case Kind::emoji:
        case Kind::block:
        case Kind::group:
        case Kind::text:
        case Kind::picker:
          return {};
      }
      return {};
    case Qt::ToolTipRole:
      if (row.scope.kind == Kind::displayed) return tr("The characters of all groups with a check mark");
      return row.scope.title();
    default:
      return {};
  }
}

bool ScopeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const Scope* const changed = scope(index);
  if (role != Qt::CheckStateRole || !changed || changed->kind != Kind::group) return false;
  catalog_.setDisplayed(changed->group, value.toInt() == Qt::Checked);
  return true;
}

Qt::ItemFlags ScopeModel::flags(const QModelIndex& index) const {
  const Scope* const shown = scope(index);
  if (!shown) return Qt::ItemNeverHasChildren;
  const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return shown->kind == Kind::group ? common | Qt::ItemIsUserCheckable : common;
}

const Scope* ScopeModel::scope(const QModelIndex& index) const {
  if (!index.isValid() || rows_[static_cast<std::size_t>(index.row())].heading) return nullptr;
  return &rows_[static_cast<std::size_t>(index.row())].scope;
}

QModelIndex ScopeModel::indexOf(const Scope& scope) const {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (!rows_[i].heading && rows_[i].scope == scope) return index(static_cast<int>(i));
  }
  return {};
}

Sidebar::Sidebar(Catalog& catalog, QWidget* parent) : QListView(parent), model_(catalog) {
  setModel(&model_);
  setItemDelegate(new ScopeDelegate(this));
  setMouseTracking(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  setEditTriggers(NoEditTriggers);
  setAccessibleName(tr("Groups"));
  setMinimumWidth(180);
  setViewportMargins(0, 8, 0, 0);
  updatePalette();
}

// Gives the list the background colour of the window.
void Sidebar::updatePalette() {
  QPalette colours;
  colours.setColor(QPalette::Base, QGuiApplication::palette().color(QPalette::Window));
  if (colours.color(QPalette::Base) != palette().color(QPalette::Base)) setPalette(colours);
}

void Sidebar::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) updatePalette();
}

void Sidebar::setScope(const Scope& scope) {
  isTelling_ = false;
  setCurrentIndex(model_.indexOf(scope));
  isTelling_ = true;
}

void Sidebar::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  scrollTo(current);
  const Scope* const scope = model_.scope(current);
  if (scope && isTelling_) Q_EMIT scopeChosen(*scope);
}

}  // namespace browser
