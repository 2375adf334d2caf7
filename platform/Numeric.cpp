#include "platform/Numeric.h"

namespace qp {

Colour QBColor(int n) {
  // The sixteen colours of the old text-mode palette, as BGR values.
  static constexpr Colour kColours[16] = {
      0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
      0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
  };
  if (n < 0 || n > 15) raiseError(RuntimeError::InvalidCall, "Invalid procedure call");
  return kColours[n];
}

}  // namespace qp
