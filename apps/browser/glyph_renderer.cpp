// SPDX-License-Identifier: MIT
#include "glyph_renderer.h"

#include <malloc.h>
#include <QFont>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QLocale>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QThread>

#include <cmath>
#include <utility>

namespace browser {
namespace {

// The limit for the memory of all kept pictures. It is enough for about 4,000 cells of common size.
constexpr qsizetype keptBytesLimit = 16 << 20;

// The maximum number of waiting requests. If there are more, the oldest are dropped, because the user has
// already scrolled past their characters.
constexpr std::size_t mostWaiting = 3'000;

// The thread passes this many finished pictures to the GUI thread together.
constexpr std::size_t batch = 40;

// Fonts that a thread opens with Qt stay open until the thread ends. Drawing all characters would open
// several hundred fonts. So the thread ends after mostPicturesOfThread pictures, or after longestIdling
// without a request. The next request starts a new thread.
constexpr int mostPicturesOfThread = 2'000;
constexpr std::chrono::seconds longestIdling{3};

struct Line {
  QTextLayout layout;
  QRectF ink;
  bool isComplete = true;  // whether the font has all glyphs
};

void layOut(Line& line, const QString& text, const QString& family, double pixels) {
  QFont font;
  font.setFamilies({family});
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
  // With NoFontMerging, Qt uses the glyphs of this font only.
  font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::NoFontMerging | QFont::PreferAntialias));
  font.setHintingPreference(QFont::PreferNoHinting);
  line.layout.setFont(font);
  line.layout.setText(text);
  line.layout.setCacheEnabled(true);
  line.layout.beginLayout();
  line.layout.createLine();
  line.layout.endLayout();
  line.ink = {};
  line.isComplete = true;
  for (const QGlyphRun& run : line.layout.glyphRuns()) {
    const QRawFont raw = run.rawFont();
    const auto glyphs = run.glyphIndexes();
    const auto positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
      if (glyphs[i] == 0) line.isComplete = false;
      line.ink |= raw.boundingRect(glyphs[i]).translated(positions[i]);
    }
  }
}

GlyphPicture draw(const GlyphRequest& request, const QString& family, const QColor& colour) {
  const double box = request.box * request.ratio;
  double pixels = request.size * request.ratio;
  Line line;
  layOut(line, request.text, family, pixels);
  if (!line.isComplete || line.ink.isEmpty()) return {};
  const double widest = std::max(line.ink.width(), line.ink.height());
  if (widest > box) {
    pixels *= box / widest;
    layOut(line, request.text, family, pixels);
  }
  // Centre the visible part of the glyph horizontally. Vertically, put it on a common baseline if it then
  // fits into the box.
  const QRectF ink = line.ink;
  const double baseline = line.layout.lineAt(0).ascent();
  const double wanted = box / 2 + 0.36 * pixels - baseline;
  const double lowest = box - ink.bottom();
  const double highest = -ink.top();
  const double shiftY =
      highest > lowest ? (box - ink.height()) / 2 - ink.top() : std::clamp(wanted, highest, lowest);
  const double shiftX = (box - ink.width()) / 2 - ink.left();

  const QRect area = ink.translated(shiftX, shiftY).adjusted(-1, -1, 1, 1).toAlignedRect();
  QImage canvas(area.size(), QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  QPainter painter(&canvas);
  painter.setPen(colour);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  line.layout.draw(&painter, QPointF(shiftX, shiftY) - area.topLeft());
  painter.end();
  GlyphPicture picture;
  picture.image = canvas.copy();  // the copy lacks the paint engine, which needs over a kilobyte
  picture.image.setDevicePixelRatio(request.ratio);
  picture.corner = QPointF(area.topLeft()) / request.ratio;
  picture.family = family;
  return picture;
}

}  // namespace

size_t qHash(const GlyphRequest& request, size_t seed) {
  return qHashMulti(seed, request.text, static_cast<int>(request.fontClass), request.size, request.box,
                    request.ratio);
}

GlyphRenderer& GlyphRenderer::shared() {
  static GlyphRenderer* renderer = nullptr;
  if (!renderer) {
    renderer = new GlyphRenderer;
    // The thread must end before the application releases its fonts.
    qAddPostRoutine([] {
      delete renderer;
      renderer = nullptr;
    });
  }
  return *renderer;
}

GlyphRenderer::GlyphRenderer() : pictures_(keptBytesLimit) {
  qRegisterMetaType<Drawn>();
}

void GlyphRenderer::startThread() {
  if (thread_) thread_->wait();  // the old thread is ending, so this does not take long
  thread_.reset(QThread::create([this] { work(); }));
  thread_->setObjectName("glyphs");
  connect(thread_.get(), &QThread::finished, this, [this, ended = thread_.get()] {
    if (ended != thread_.get()) return;
    ended->wait();
#ifdef __GLIBC__
    malloc_trim(0);  // returns the memory of its fonts to the system
#endif
  });
  thread_->start(QThread::LowPriority);
}

// Starts a thread if requests are waiting and no thread is working.
void GlyphRenderer::wakeThread() {
  {
    const std::lock_guard lock(mutex_);
    if (waiting_.empty()) return;
    if (std::exchange(isWorking_, true)) return wake_.notify_one();
  }
  startThread();
}

GlyphRenderer::~GlyphRenderer() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  if (thread_) thread_->wait();
}

const GlyphPicture* GlyphRenderer::picture(const GlyphRequest& request) {
  if (const GlyphPicture* const kept = pictures_.object(request)) return kept;
  {
    const std::lock_guard lock(mutex_);
    if (!known_.insert(request).second) return nullptr;
    waiting_.push_back(request);
    if (waiting_.size() > mostWaiting) {
      known_.erase(waiting_.front());
      waiting_.pop_front();
    }
  }
  wakeThread();
  return nullptr;
}

void GlyphRenderer::setColour(const QColor& colour) {
  if (colour == colour_) return;
  colour_ = colour;
  startAnew();
}

void GlyphRenderer::setFamily(const QString& family) {
  if (family == family_) return;
  family_ = family;
  startAnew();
}

void GlyphRenderer::startAnew() {
  pictures_.clear();
  {
    const std::lock_guard lock(mutex_);
    wantedColour_ = colour_;
    wantedFamily_ = family_;
    ++generation_;
    waiting_.clear();
    known_.clear();
  }
  Q_EMIT picturesReady();  // the views then call picture() again
}

void GlyphRenderer::work() {
  Drawn drawn;
  int drawnGeneration = 0, count = 0;
  const auto handOver = [&] {
    if (drawn.empty()) return;
    QMetaObject::invokeMethod(
        this,
        [this, drawnGeneration, batchDrawn = std::move(drawn)]() mutable {
          take(drawnGeneration, std::move(batchDrawn));
        },
        Qt::QueuedConnection);
    drawn = {};
  };
  for (;;) {
    GlyphRequest request;
    QColor colour;
    QString family;
    {
      std::unique_lock lock(mutex_);
      if (waiting_.empty()) {
        lock.unlock();
        handOver();
        lock.lock();
      }
      const bool isNeeded =
          wake_.wait_for(lock, longestIdling, [&] { return stopping_ || !waiting_.empty(); });
      if (stopping_) return;
      if (!isNeeded || ++count > mostPicturesOfThread) {
        isWorking_ = false;
        lock.unlock();
        handOver();
        // If requests are waiting, this starts another thread.
        QMetaObject::invokeMethod(this, &GlyphRenderer::wakeThread, Qt::QueuedConnection);
        return;
      }
      if (generation_ != drawnGeneration) drawn.clear();
      drawnGeneration = generation_;
      request = waiting_.back();
      waiting_.pop_back();
      colour = wantedColour_;
      family = wantedFamily_;
    }
    if (!coverage_ || family != coveredFamily_) {
      coveredFamily_ = family;
      coverage_.emplace(family.isEmpty() ? QGuiApplication::font().family() : family,
                        QLocale().uiLanguages());
    }
    GlyphPicture picture;
    const auto points = request.text.toUcs4();
    const std::u32string codePoints(points.begin(), points.end());
    for (const QString& candidate : coverage_->families(codePoints, request.fontClass)) {
      picture = draw(request, candidate, colour);
      if (!picture.image.isNull()) break;
    }
    drawn.emplace_back(std::move(request), std::move(picture));
    if (drawn.size() >= batch) handOver();
  }
}

void GlyphRenderer::take(int generation, Drawn drawn) {
  const std::lock_guard lock(mutex_);
  if (generation != generation_) return;
  for (auto& [request, picture] : drawn) {
    known_.erase(request);
    const qsizetype cost = picture.image.sizeInBytes() + 200;
    pictures_.insert(request, new GlyphPicture(std::move(picture)), cost);
  }
  QMetaObject::invokeMethod(this, &GlyphRenderer::picturesReady, Qt::QueuedConnection);
}

}  // namespace browser
