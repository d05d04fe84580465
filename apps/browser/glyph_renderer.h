// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QColor>
#include <QImage>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

#include "font_coverage.h"

class QThread;

namespace browser {

/// What to draw.
struct GlyphRequest {
  QString text;
  FontClass fontClass = FontClass::sans;
  int size = 32;       ///< of the font, in logical pixels
  int box = 48;        ///< the glyph is scaled down until it fits into a square of this many logical pixels
  double ratio = 1.0;  ///< device pixels per logical pixel

  auto key() const { return std::tie(text, fontClass, size, box, ratio); }
  bool operator==(const GlyphRequest& other) const { return key() == other.key(); }
  bool operator<(const GlyphRequest& other) const { return key() < other.key(); }
};

size_t qHash(const GlyphRequest& request, size_t seed = 0);

/// A drawn glyph.
struct GlyphPicture {
  QImage image;    ///< null if no installed font draws the text
  QPointF corner;  ///< upper left corner of the image relative to that of the box, in logical pixels
  QString family;  ///< of the font that was used
};

/// Draws glyphs on a thread of its own and keeps the pictures: shaping and opening a font may take longer
/// than a frame.
class GlyphRenderer : public QObject {
  Q_OBJECT

 public:
  /// Returns the renderer that all windows share.
  static GlyphRenderer& shared();

  GlyphRenderer();
  ~GlyphRenderer() override;

  /// Returns the picture, or null if it is not drawn yet. Then it is drawn, and picturesReady() follows. The
  /// newest request is served first. The pointer is valid until control returns to the event loop.
  const GlyphPicture* picture(const GlyphRequest& request);

  /// Returns the size of the pictures that are kept, in bytes.
  qsizetype keptBytes() const { return pictures_.totalCost(); }

  /// Sets the colour of all glyphs but coloured ones, and draws anew.
  void setColour(const QColor& colour);

  /// Sets the family that is tried first. An empty text means that of the application.
  void setFamily(const QString& family);
  const QString& family() const { return family_; }

 Q_SIGNALS:
  void picturesReady();

 private:
  using Drawn = std::vector<std::pair<GlyphRequest, GlyphPicture>>;

  void startThread();
  void wakeThread();
  void work();
  void take(int generation, Drawn drawn);
  void startAnew();

  QCache<GlyphRequest, GlyphPicture> pictures_;
  QColor colour_;
  QString family_;

  std::mutex mutex_;
  std::condition_variable wake_;
  // What follows is shared with the thread.
  std::deque<GlyphRequest> waiting_;
  std::set<GlyphRequest> known_;  // those that wait or are being drawn
  QColor wantedColour_;
  QString wantedFamily_;
  int generation_ = 0;  // counts the changes of colour and family, so that older pictures are dropped
  bool stopping_ = false;
  bool isWorking_ = false;  // whether the thread will look for requests once more
  // What follows belongs to the thread while it works.
  std::optional<FontCoverage> coverage_;
  QString coveredFamily_;
  std::unique_ptr<QThread> thread_;
};

}  // namespace browser
