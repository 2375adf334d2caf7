// Print, TextWidth and TextHeight. The font size is in points; with 20 twips to a point and 15
// twips to a pixel a point is 4/3 of a pixel. Text is drawn without antialiasing so that every
// pixel of a glyph has exactly the ForeColor, as the fill and colour-picking tools expect.
//
// Print writes each line of the text with its top-left corner at CurrentX, CurrentY; afterwards
// CurrentY stands at the top of the next line and CurrentX back at the column where Print began.
#include <QFont>
#include <QFontMetrics>
#include <algorithm>
#include <cmath>

#include "surface/PictureBox.h"
#include "surface/Raster.h"
#include "surface/TextFont.h"

namespace qp {

QFont fontOf(const PictureBox& box) {
  QFont f(box.FontName.get());
  const double px = std::isfinite(box.FontSize.get()) ? box.FontSize * 20.0 / 15.0 : 1.0;
  f.setPixelSize(static_cast<int>(std::clamp(std::round(px), 1.0, 2048.0)));
  f.setBold(box.FontBold);
  f.setItalic(box.FontItalic);
  f.setUnderline(box.FontUnderline);
  f.setStrikeOut(box.FontStrikethru);
  f.setStyleStrategy(QFont::NoAntialias);
  return f;
}

namespace {

QStringList linesOf(const QString& text) {
  QString t = text;
  t.remove(QLatin1Char('\r'));
  return t.split(QLatin1Char('\n'));
}

}  // namespace

void PictureBox::Print(const QString& text) { printLines(text, false); }

void PictureBox::PrintOnLine(const QString& text) { printLines(text, true); }

void PictureBox::printLines(const QString& text, bool staysOnLine) {
  QImage& img = editBitmap();
  const QFont font = fontOf(*this);
  const QFontMetrics fm(font);
  const Single startX = CurrentX;
  const int x = pixelX(startX);
  int y = pixelY(CurrentY);
  QPainter p(&img);
  p.setFont(font);
  p.setPen(QColor::fromRgb(raster::toPixel(ForeColor)));
  const QStringList lines = linesOf(text);
  int lastAdvance = 0;
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QString& line = lines[i];
    lastAdvance = fm.horizontalAdvance(line);
    const QRect cell(x, y, lastAdvance, fm.height());
    if (!FontTransparent) p.fillRect(cell, QColor::fromRgb(raster::toPixel(BackColor)));
    if (!line.isEmpty()) p.drawText(QPoint(x, y + fm.ascent()), line);
    charactersDrawn_ += static_cast<std::uint64_t>(line.size());
    markDirty(inkOf(cell, fm));
    if (!staysOnLine || i + 1 < lines.size()) y += fm.lineSpacing();
  }
  p.end();
  if (staysOnLine) {
    // Behind the last line's text, from the exact start so that runs of prints do not drift.
    CurrentX = static_cast<Single>(startX + lastAdvance / pixelsPerUnitX());
    CurrentY = static_cast<Single>(y / pixelsPerUnitY() + ScaleTop);
    return;
  }
  CurrentX = startX;
  CurrentY = static_cast<Single>(y / pixelsPerUnitY() + ScaleTop);
}

Single PictureBox::TextWidth(const QString& text) const {
  const QFontMetrics fm(fontOf(*this));
  int widest = 0;
  for (const QString& line : linesOf(text)) widest = std::max(widest, fm.horizontalAdvance(line));
  return static_cast<Single>(widest / pixelsPerUnitX());
}

Single PictureBox::TextHeight(const QString& text) const {
  const QFontMetrics fm(fontOf(*this));
  const auto n = linesOf(text).size();
  return static_cast<Single>((fm.height() + (n - 1) * fm.lineSpacing()) / pixelsPerUnitY());
}

}  // namespace qp
