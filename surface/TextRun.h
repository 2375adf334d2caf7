#pragma once
// The pen positions of one line of text in a picture box's font, kept up to date as the line is
// edited at its end: a typed key measures the new character against the few before it, a
// backspace forgets the last positions. With them a long line is measured and printed at a cost
// that does not grow with its length (PictureBox::PrintRun prints only what can land inside).
#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <vector>

#include "platform/Numeric.h"

namespace qp {

class PictureBox;

class TextRun {
 public:
  TextRun();
  // Brings the run to `text` in `box`'s present font. The first `kept` characters are known to be
  // unchanged since the last call; the rest is measured afresh. A change of font measures all.
  void follow(const PictureBox& box, const QString& text, qsizetype kept);
  // True while the positions describe the line exactly: a single line of printable Latin-1
  // characters whose pens never step back. Anything else is printed and measured whole.
  bool exact() const { return inexactFrom_ < 0; }
  qsizetype size() const { return static_cast<qsizetype>(pen_.size()) - 1; }
  const QFont& font() const { return font_; }
  // The width of the whole line in pixels, as Print's cell and TextWidth have it.
  int pixelWidth() const;
  // The characters [first, last) whose glyphs can reach into [left, right) (pixels from the
  // line's start), and the pen position where `first` stands in the whole line.
  struct Window {
    qsizetype first = 0, last = 0;
  };
  Window window(double left, double right) const;
  // The pen position where character i stands in the whole line (i < size()).
  double origin(const QString& text, qsizetype i) const;
  // The shaper's pieces: a stretch of the line drawn on its own must not cross one's start.
  static constexpr qsizetype kShaperPiece = 4096;

 private:
  void append(const QFontMetricsF& fm, const QString& text, qsizetype i);

  QFont font_;
  bool measured_ = false;
  // pen_[i]: the advance of the first i characters on their own; the last is the line's width.
  std::vector<double> pen_{0.0};
  qsizetype inexactFrom_ = -1;  // the first character that makes the run inexact, or -1
};

}  // namespace qp
