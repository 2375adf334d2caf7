#pragma once
// The font a picture box prints with. Internal to the surface library.
#include <QFont>

namespace qp {

class PictureBox;

QFont fontOf(const PictureBox& box);

}  // namespace qp
