// TextRun and the printing and measuring that use it.
//
// The shaper sets a line in pieces of 4096 characters and kerns only within a piece, so a
// character's advance depends on the few characters before it in its own piece and on nothing
// else; a pair's kerning is counted with the second character here. The advance of the first i
// characters on their own is then exact, and the pen of character i in the whole line is that
// advance of the first i + 1 characters less the advance of character i alone.
#include "surface/TextRun.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "surface/PictureBox.h"
#include "surface/Raster.h"
#include "surface/TextFont.h"

namespace qp {

namespace {

constexpr qsizetype kContext = 8;  // characters before a new one that may change its advance

// Printable Latin-1 only: no line breaks or controls, nothing that changes direction or script,
// no soft hyphen that vanishes or shows by its place in the line.
bool plainCharacter(QChar c) {
  const char16_t u = c.unicode();
  return (u >= 0x20 && u < 0x7F) || (u >= 0xA0 && u <= 0xFF && u != 0xAD);
}

}  // namespace

TextRun::TextRun() = default;

void TextRun::follow(const PictureBox& box, const QString& text, qsizetype kept) {
  const QFont font = fontOf(box);
  if (!measured_ || !(font == font_)) {
    font_ = font;
    measured_ = true;
    kept = 0;
  }
  kept = std::clamp<qsizetype>(kept, 0, std::min(size(), text.size()));
  pen_.resize(static_cast<size_t>(kept) + 1);
  if (inexactFrom_ >= kept) inexactFrom_ = -1;
  const QFontMetricsF fm(font_);
  for (qsizetype i = kept; i < text.size(); ++i) append(fm, text, i);
}

void TextRun::append(const QFontMetricsF& fm, const QString& text, qsizetype i) {
  const QChar c = text[i];
  const qsizetype from = std::max(i - i % TextRun::kShaperPiece, i - kContext);
  const QString before = text.mid(from, i - from);
  const double step = fm.horizontalAdvance(before + c) - fm.horizontalAdvance(before);
  if (inexactFrom_ < 0 && (!plainCharacter(c) || step < 0)) inexactFrom_ = i;
  pen_.push_back(pen_.back() + step);
}

int TextRun::pixelWidth() const {
  // A line longer than any surface is held to a width that still adds to a position safely.
  return static_cast<int>(std::min(std::floor(pen_.back() + 0.5), static_cast<double>(1 << 30)));
}

TextRun::Window TextRun::window(double left, double right) const {
  Window w;
  const auto begin = pen_.begin(), end = pen_.end() - 1;  // the pens of the characters
  w.first = std::max<qsizetype>(0, (std::upper_bound(begin, end, left) - begin) - 1);
  w.last = std::lower_bound(begin, end, right) - begin;
  return w;
}

double TextRun::origin(const QString& text, qsizetype i) const {
  if (i <= 0) return 0;
  return pen_[static_cast<size_t>(i) + 1] - QFontMetricsF(font_).horizontalAdvance(QString(text[i]));
}

void PictureBox::PrintRun(const QString& text, const TextRun& run) {
  if (!run.exact() || run.size() != text.size()) {
    Print(text);
    return;
  }
  QImage& img = editBitmap();
  const QFontMetrics fm(run.font());
  const int x = pixelX(CurrentX);
  const int y = pixelY(CurrentY);
  const QRect cell(x, y, run.pixelWidth(), fm.height());
  QPainter p(&img);
  p.setFont(run.font());
  p.setPen(QColor::fromRgb(raster::toPixel(ForeColor)));
  if (!FontTransparent) p.fillRect(cell, QColor::fromRgb(raster::toPixel(BackColor)));
  // Wide enough for an italic overhang and for the kerning counted with the next character.
  const double margin = fm.maxWidth() + fm.height() + 4;
  const TextRun::Window w = run.window(-x - margin, img.width() - x + margin);
  // A very wide surface may show more than a piece of the shaper: each piece goes on its own.
  for (qsizetype from = w.first; from < w.last;) {
    const qsizetype to = std::min(w.last, from - from % TextRun::kShaperPiece + TextRun::kShaperPiece);
    const QString shown = text.mid(from, to - from);
    charactersDrawn_ += static_cast<std::uint64_t>(shown.size());
    p.drawText(QPointF(x + run.origin(text, from), y + fm.ascent()), shown);
    from = to;
  }
  p.end();
  markDirty(inkOf(cell, fm));
  CurrentY = static_cast<Single>((y + fm.lineSpacing()) / pixelsPerUnitY() + ScaleTop);
}

Single PictureBox::TextWidth(const QString& text, const TextRun& run) const {
  if (!run.exact() || run.size() != text.size()) return TextWidth(text);
  return static_cast<Single>(run.pixelWidth() / pixelsPerUnitX());
}

Single PictureBox::TextHeight(const QString& text, const TextRun& run) const {
  if (!run.exact() || run.size() != text.size()) return TextHeight(text);
  return static_cast<Single>(QFontMetrics(run.font()).height() / pixelsPerUnitY());
}

}  // namespace qp
