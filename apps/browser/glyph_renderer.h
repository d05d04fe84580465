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

/// A request for a picture: the text to draw, its font and its size.
struct GlyphRequest {
  QString text;
  FontClass fontClass = FontClass::sans;
  int size = 32;       ///< font size in logical pixels
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
  QPointF corner;  ///< position of the image relative to the upper left corner of the box, in logical pixels
  QString family;  ///< family of the font that was used
};

/// Draws glyphs, and keeps the pictures. Uses a separate thread, because opening a font and shaping a text
/// may take longer than the window has for one frame.
class GlyphRenderer : public QObject {
  Q_OBJECT

 public:
  /// Returns the renderer that all windows share.
  static GlyphRenderer& shared();

  GlyphRenderer();
  ~GlyphRenderer() override;

  /// Returns the picture for a request. If there is no picture yet, returns null, draws the picture in the
  /// background and then emits picturesReady(). The newest request is drawn first. The pointer is valid until
  /// control returns to the event loop.
  const GlyphPicture* picture(const GlyphRequest& request);

  /// Returns the size of the pictures that are kept, in bytes.
  qsizetype keptBytes() const { return pictures_.totalCost(); }

  /// Sets the colour of all glyphs except coloured ones, and draws all pictures again.
  void setColour(const QColor& colour);

  /// Sets the font family that is tried first. An empty text means the family of the application's font.
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
  // The following members are shared with the thread and protected by mutex_.
  std::deque<GlyphRequest> waiting_;
  std::set<GlyphRequest> known_;  // the requests that wait or are being drawn
  QColor wantedColour_;
  QString wantedFamily_;
  // The number of changes of colour or family. A picture from before the last change is dropped.
  int generation_ = 0;
  bool stopping_ = false;
  bool isWorking_ = false;  // whether the thread will look for requests once more
  // The following members belong to the thread while it works.
  std::optional<FontCoverage> coverage_;
  QString coveredFamily_;
  std::unique_ptr<QThread> thread_;
};

}  // namespace browser
