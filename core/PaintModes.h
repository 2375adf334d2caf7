#pragma once
// The paint modes: number, the Toolz menu item that selects it, its caption, and the text the mode
// display shows (null where the display keeps the text of the mode before).
#include <vector>

namespace qp {

struct PaintModeInfo {
  int number;
  const char* menu;     // "" for modes that no menu item selects
  const char* caption;  // the menu item's caption
  const char* display;  // lMode text, or nullptr: unchanged
};

const std::vector<PaintModeInfo>& paintModes();
// The entry of a mode number, or nullptr for a number that is no mode (13, 27, above 30).
const PaintModeInfo* paintMode(int number);

}  // namespace qp
