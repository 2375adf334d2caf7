#include "core/HelpTexts.h"

#include <map>
#include <utility>

namespace qp {

namespace {

// A mode whose help depends on a control has one entry per value; -1 stands for any value.
const std::map<std::pair<int, int>, const char*>& modeHelp() {
  static const std::map<std::pair<int, int>, const char*> kHelp = {
      {{0, 0}, "Hold left mouse button to draw - Select colors below - Set Color Mode below (Different settings dramatically effect image) Set draw width below (OR on-the-fly with keyboard ARROW keys, when AutoDraw is not engaged) - Checkbox enables/disables AutoDraw using keyboard ARROW keys (Right-click paint area to Undo last paint action) Press CapsLock key to view/hide Coordinate Lines"},
      {{0, 1}, "Click paint area to set starting point - Press keyboard ARROW keys to draw - Press SpaceBar before changing directions or Undo will revert to starting point - After changing settings, press TAB key to set focus on paint area (Mode indicator will flash) or you will have to click again to set start point - DO NOT CHANGE SETTINGS WHILE PRESSING ARROW KEYS!"},
      {{1, -1}, "Hold left mouse button and drag to draw line - Select colors below - Set draw width with large arrows - Top checkbox enables shadow line, lower checkbox enables third line - Set third color using RGB color boxes or by moving pointer over swatches - Arrows control Offset (Right-click paint area to Undo last paint action)"},
      {{2, 0}, "Hold left mouse button and drag to set size of rectangle - Select colors below - Set draw width below - Top arrows set Offset - Middle arrows set fill style - Bottom  arrows set shape - Set fill color by right-clicking swatches or Color Option box - Set third color with RGB color boxes - Right-click paint area to UNDO last paint action - Press CapsLock key to view/hide Coordinate Lines"},
      {{2, 1}, "Hold left mouse button and drag to set size of gradient - Set gradient direction with option buttons - Select colors below - Set draw width below - Press Swap Colors button to reverse colors - Right-click paint area to UNDO last paint action - Press CapsLock key to view/hide Coordinate Lines"},
      {{2, 2}, "Hold left mouse button and drag to set size of circle - Select colors below - Set draw width below - Top arrows set Offset - Middle arrows set fill style - Bottom  arrows set shape - Set fill color by right-clicking swatches or Color Option box - Set third color with RGB color boxes or by moving pointer over swatches - Right-click paint area to UNDO last paint action - Press CapsLock key to view/hide Coordinate Lines"},
      {{3, -1}, "Hold left mouse button to draw with airbrush - Set spread using top arrows - Select colors below  - Set Color Mode below - Set Interval below - Set draw width with large arrows OR keyboard ARROW keys (Upper checkbox engages Spread control while using ARROW keys to draw) Right-click paint area to UNDO last paint action"},
      {{4, -1}, "Hold left mouse button to draw - Set offset using top arrows - Top checkbox enables third color - Select first and second colors below (Set third color by using RGB color boxes or by moving pointer over swatches) Set Color Mode below - Lower checkbox does something... Ummm... I forget - Set draw width with large arrows OR use keyboard ARROW keys (Right-click paint area to Undo last paint action)"},
      {{5, -1}, "Hold left mouse button and drag to draw lines - Select mirror setting w/option buttons - Checkbox enables connecting lines - Set draw width with large arrows"},
      {{6, -1}, "Hold left mouse button to erase - Set size using arrows at top - Select colors below OR hold Ctrl key and right-click paint area for custom eraser color - Right-click paint area to UNDO last paint action"},
      {{7, -1}, "Select brush with top arrows - Set size with lower arrows - Checkbox toggles click or draw - Set draw interval below - Select colors below - Set Color Mode below - Set draw width below OR use keyboard ARROW keys - Right-click paint area to UNDO last paint action"},
      {{8, -1}, "Set parameters using arrows - Click paint area to draw sphere - Select colors using right arrows - Top checkbox enables color mixing, using lowest arrows and RGB color boxes or by moving pointer over swatches - Middle checkbox enables drawing with spheres - Right-click paint area to UNDO last paint action"},
      {{9, 0}, "Set Box size with Top arrows - Select colors below - Set Color Mode below  - Set interval below - Checkbox enables Bubble Brush - Right-click paint area to UNDO last paint action"},
      {{9, 1}, "Set Spread with top arrows - Set size with middle arrows - Set Aspect Ratio with lowest arrows - Select colors below - Set Color Mode below  - Set interval below - Checkbox enables Box Brush - Right-click paint area to UNDO last paint action"},
      {{10, -1}, " Select equation with top arrows - Hold left mouse button to draw (Sweeping motions create different effects) - Select colors below - Set Color Mode below- Set draw width below OR use keyboard ARROW keys to change draw width on-the-fly - Right-click paint area to UNDO last paint action"},
      {{11, -1}, "Set parameters using arrows - Top to bottom : Step, Radius, Intensity, Depth, Aspect Ratio - Click paint area to draw - Select colors using Color Option arrows and RGB color boxes below - Upper checkbox enables drawing with circles - Set interval below - Right-click paint area to UNDO"},
      {{12, 0}, "Click button to draw full spiral - Top to bottom : Equation, Symmetry, Density, Style, Offset - Select colors below - Checkbox toggles MiniSpiralz and Fullscreen"},
      {{12, 1}, "Top to bottom : Equation, Symmetry, Density, Style, Offset - Select colors below or with right arrows for gradient colors - Checkbox toggles MiniSpiralz and Fullscreen - Click and drag to set size - Wait until it draws, then click the spiral to set it or right-click it to cancel"},
      {{14, -1}, "Select image with Explorer - Hold left mouse button and drag to draw picture in paint area - Click button to load new image - Right-click paint area to Undo"},
      {{17, -1}, "Click and drag to draw gradient - Select style with top arrows - Set Squares Intensity with middle arrows - Set circle aspect with lower arrows - Select colors with lowermost arrows - Click image to set it - Right-click image to cancel"},
      {{18, -1}, "After setting selection, click and drag above or beside selection to move to new position - Click selection to set (Right-click selection to cancel) Selection will be available as Transparency for Paint W/Pix - Perform Invert/Mirror opertions before Tiling - After Tiling, right-click image to cancel"},
      {{19, -1}, "After setting selection, click and drag above or beside selection to move to new position - Click selection to set (Right-click selection to cancel) Selection will be available as Transparency for Paint W/Pix - Perform Invert/Mirror opertions before Tiling - After Tiling, right-click image to cancel (If selecting for Transparency, select enough to prepare selection in prep window)"},
      {{20, -1}, "Set colors and Color Mode below - Set interval below - Select font from list - Enter text into textbox - Set font size with arrows OR use keyboard ARROW keys to change font size on-the-fly - Right-click paint area to Undo"},
      {{22, -1}, "Click and drag above or beside image to move to new position - Double-click image to set (Right-click image to cancel)"},
      {{23, -1}, "riGhT-CLiCk tO uNdO ^ MiDdlE chEkbOX N abLeZ raNdUm cOlorS ~ tOp cHEkboKs n ABlEs arRowZ + aRroWz kONtrOl dRaW MoDe % usE kEeYBoArD aRrOw kEYs tO kONtrOL dRaW wIdTh [] hAVe U seEn mY keYS?! wHaT Wuz i saYiNg... iS tHAt a clOuD oR a...?"},
      {{24, -1}, " Set mirror options with option buttons - Lower checkbox enables/disables lines - Upper checkbox enables/disables AutoDraw (Set AutoDraw speed with top arrows - Set AutoDraw interval below) Set draw width below OR with keyboard ARROW keys when Autodraw is not engaged - Set Colors and Color Mode below (Right-click paint area to Undo)"},
      {{25, -1}, "Click button to draw gradient - Select style with top arrows - Set Square intensity using middle arrows - Set Circle Aspect Ratio with bottom arrows - Select colors arrows below - Click image to set - Right-click paint area to Undo"},
      {{29, -1}, "Set Shadow Text with control panel - Checkbox enables/disables drawing with text - Right-click paint area to Undo"},
      {{30, -1}, "Click and drag to draw SawTooth - Arrows set Offset - Select colors below - Set draw width with large arrows - Right-click paint area to Undo"},
  };
  return kHelp;
}

}  // namespace

const char* modeHelpText(int mode, int state) {
  const auto& help = modeHelp();
  if (auto it = help.find({mode, -1}); it != help.end()) return it->second;
  if (auto it = help.find({mode, state}); it != help.end()) return it->second;
  return nullptr;
}

const char* suggestionFor(int mode) {
  // Canvas Gradients has five suggestions written one after the other; the last one stands.
  static const std::map<int, const char*> kTips = {
      {1, "You can switch Color Option on-the-fly by pressing the 1 - 7 keys on your keyboard (NumLock and Numeric keys do the same"},
      {2, "Press the End and Home keys after setting focus on a control to instantly set their Maximum or Minimum value"},
      {3, "Switching colors with the 1 - 7 number keys produces a rainbow effect while in Glow or Gradient Color Modes"},
      {4, "Try different settings with the checkboxes to see the different color layering it can produce"},
      {5, "After drawing a set of lines, switch colors and draw another just a few pixels away from the first set"},
      {6, "By pressing the ARROW keys in different Color Modes, you can create a square 3D snake with the eraser!"},
      {7, "Set Brush to 1, interval to 120, Color Mode to Glow and scribble for a great effect"},
      {8, "Set Limit to 160 and Step to 3 for a giant sphere (Limit AND Step together control overall diameter of spheres)"},
      {9, "The Random Size checkbox simply exaggerates the size variation of boxes and bubblez"},
      {10, "Try switching colors, lowering Draw Width and begin drawing exactly where you stopped before"},
      {11, "Set Color to Blue, Depth to 5, Step to 2, Intensity to 7, then click paint area to see the effect"},
      {12, "To isolate the shadow spiral beneath the top spiral, set Style to 0 and redraw the spiral"},
      {14, "The Zombies were cool but the Animals REALLY ROCKED! (Just makin' sure you were paying attention :)"},
      {15, "Click inside a closed outline to fill it with the fore colour; the fill stops at any other colour"},
      {16, "Press ARROW keys while drawing slowly in Radial Mode to create 3D effects"},
      {18, " Klatu... Nicto, birada...    KLATU! NICTO! BIRADA!"},
      {19, "To make a Transparency selection, just right-click selection and the Transparency selection can be copied from the Transparency window"},
      {20, "Try scribbling your text in a White gradient and then painting wavey lines in random colors with the same text"},
      {22, "Stop before changing direction, press the SpaceBar, change colors and begin again"},
      {25, "Clicking the screen while holding ARROW keys will reset the Start point and drawing begins from that point"},
  };
  auto it = kTips.find(mode);
  return it == kTips.end() ? nullptr : it->second;
}

QStringList keyList() {
  return {"Copy : SpaceBar", "Paste:  Insert Key", "End: Escape Key", "Toolz:  Z Key", "Clear:  Delete Key",
          "Undo:  Backspace Key", "Undo2:  Backspace Ctrl", "Help:  F2 Key", "Coordinates:  CapsLock Key",
          "Coord Colors: C Key", "Max Drw Wdth : Enter key", "Min Drw Wdth : Shift key",
          "Key Interval Dwn : F7 key", "Key Interval Up : F8 key", "White : 1  key (Num 0)",
          "Red : 2 key (Num 1)", "Green : 3 key (Num 2)", "Blue : 4 key (Num 3)", "Yellow : 5 key (Num 4)",
          "Teal : 6 key (Num 5)", "Magenta : 7 key (Num 6)", "(If Text panels are visible",
          "shortcuts are disabled)"};
}

QString userGuide() {
  return QStringLiteral(
      "QUILLORA PRO - A SHORT GUIDE\r\n\r\n"
      "Choose a paint mode from the Toolz menu (press Z, or right-click the control panel). The panel on "
      "the left changes with the mode: its value rows are live when their frame is highlighted in blue, "
      "and the help line below them tells what each control does as the pointer passes.\r\n\r\n"
      "Drawing: hold the left mouse button on the paint area. A right click undoes the last stroke; "
      "Backspace does the same, and Ctrl with Backspace goes back one step further. Ctrl with a right "
      "click picks the colour under the pointer.\r\n\r\n"
      "Colours: click the swatch for the draw colour, right-click it for the second colour. Moving over "
      "the swatch or the red, green and blue strips sets the colour in waiting, the Color Option box; "
      "click that box to use it. Keys 1 to 8 choose colours directly.\r\n\r\n"
      "Color Mode: Standard draws in one colour, Rainbow and Glow change the colour at every step of a "
      "stroke (Variance sets how much), Gradient runs a colour ramp while you draw.\r\n\r\n"
      "Width: the large arrows set the draw width; while drawing, the keyboard ARROW keys change it on "
      "the fly between the two limits beside it. Enter jumps to the upper limit, Shift to the lower.\r\n\r\n"
      "Canvas: Delete clears it (undo brings it back), the Spacebar copies it to the clipboard, Insert "
      "pastes a picture to float over it until you click to set it down. The Canvas menu sets the size "
      "and can lock it. Caps Lock shows coordinate lines, C colours them.\r\n\r\n"
      "Files: Open loads a .bmp or .jpg through the Explorer panel, or drop a file on the paint area; "
      "Save writes a .bmp.\r\n\r\n"
      "Press K for the list of keys, Esc to leave.");
}

}  // namespace qp
