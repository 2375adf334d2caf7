#pragma once
// The font a picture box prints with. Internal to the surface library.
#include <QFont>
#include <QFontMetrics>
#include <QRect>

namespace qp {

class PictureBox;

QFont fontOf(const PictureBox& box);

// Every pixel a line of text may touch, around its cell (advance by height): italic overhang,
// accents above the ascent and underline below the descent reach a little past the cell. A clear
// puts back only what was marked, so the margin errs on the wide side.
inline QRect inkOf(const QRect& cell, const QFontMetrics& fm) {
  const int m = fm.height() / 4 + 2;
  return cell.adjusted(-m, -m, fm.maxWidth() + m, m);
}

}  // namespace qp
