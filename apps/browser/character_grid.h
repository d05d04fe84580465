// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <QAbstractScrollArea>
#include <QIcon>
#include <QTimer>
#include <functional>
#include <vector>

#include "glyph_renderer.h"
#include "grid_layout.h"

namespace browser {

/// A scrolling grid of characters with headings and a ruler of codes. It paints only the visible cells, with
/// pictures that GlyphRenderer draws in the background. One cell is the current one, unless the grid is
/// empty.
class CharacterGrid : public QAbstractScrollArea {
  Q_OBJECT

 public:
  static constexpr int smallestCell = 36, commonCell = 56, largestCell = 160;

  explicit CharacterGrid(QWidget* parent = nullptr);

  /// Shows the characters. The list must live until the next call. If `keepCurrent` is true, the current
  /// character stays current; otherwise the first cell becomes current. `sections` may be empty.
  void setCharacters(const std::vector<glyph::Entity>& characters, std::vector<GridSection> sections,
                     bool keepCurrent);
  int count() const { return layout_.count(); }
  const glyph::Entity& character(int index) const { return (*characters_)[static_cast<std::size_t>(index)]; }

  /// Returns the index of the current cell, or -1 if the grid is empty.
  int current() const { return current_; }
  void setCurrent(int index);
  const glyph::Entity* currentCharacter() const { return current_ < 0 ? nullptr : &character(current_); }

  int cellSize() const { return cellSize_; }
  /// Sets the size of the cells. A size outside the allowed range is set to the nearest limit.
  void setCellSize(int size);
  void setRulerShown(bool shown);

  /// Sets the function that decides whether a character gets the favourite mark.
  void setFavouriteTest(std::function<bool(const glyph::Entity&)> isFavourite) {
    isFavourite_ = std::move(isFavourite);
  }

  /// Sets the text and the icon that an empty grid shows in the middle.
  void setEmptyText(const QString& text, const QIcon& icon);

  /// The rectangle of a cell in the viewport.
  QRect visibleRect(int index) const;
  int indexAt(QPoint inViewport) const;
  const GridLayout& layoutOfCells() const { return layout_; }

 Q_SIGNALS:
  void currentChanged(int index);
  /// Emitted when the user has pressed Enter or double-clicked the cell.
  void activated(int index, Qt::KeyboardModifiers modifiers);
  void clicked(int index);
  /// Emitted when the user has held the mouse button down on a cell.
  void held(int index, QPoint globalPosition);
  void collected(int index);
  void menuRequested(int index, QPoint globalPosition);
  void cellSizeChanged(int size);
  /// Emitted when the user has typed a text while the grid has the focus. The text should go to the search
  /// field.
  void typed(const QString& text);
  void backspacePressed();

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void layOut();
  void ensureVisible(int index);
  void paintCell(QPainter& painter, int index, const QRect& area);
  void paintEmpty(QPainter& painter);
  void paintHeading(QPainter& painter, const GridLayout::Line& line, int y);
  void setHovered(int index);
  void startDrag();
  void showHelp(QPoint inViewport, QPoint globalPosition);
  int rulerWidth() const;
  int headingHeight() const;

  const std::vector<glyph::Entity>* characters_ = nullptr;
  GridLayout layout_;
  std::function<bool(const glyph::Entity&)> isFavourite_;
  QString emptyText_;
  QIcon emptyIcon_;
  int cellSize_ = commonCell;
  int current_ = -1;
  std::string currentHex_;  // hex code of the current character
  int hovered_ = -1;
  bool hasRuler_ = true;
  int wheelRest_ = 0;
  QPoint pressed_;
  QTimer holdTimer_;
};

/// Returns the request to the renderer for the character in a cell of this size.
GlyphRequest cellRequest(const glyph::Entity& entity, int cellSize, double ratio);

/// Whether the character is shown as a box because fonts have no glyph for it: an invisible character, for
/// example.
bool isShownAsBox(const glyph::Entity& entity);

/// Whether the code point is for private use, so that only special fonts have a glyph for it.
bool isPrivateUse(char32_t point);

/// Paints the character into the area: its picture, or a box if the character has no glyph, or nothing while
/// the picture is still being drawn on the other thread.
void paintCharacter(QPainter& painter, const QRect& area, const glyph::Entity& entity,
                    const GlyphRequest& request, const QColor& colour);

}  // namespace browser
