// What the colour block says when the pointer passes: a help line for each control, and in one
// paint mode each a line from an old film in place of the usual tool tip (the usual tip follows it
// in parentheses), gone again at the next pass in any other mode.
#include "color/ColourEngine.h"
#include "color/ColourPickers.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

QString tipFor(Session& s, int jokeMode, const char* joke, const QString& usual) {
  if (s.m.PaintMode != jokeMode) return usual;
  return usual.isEmpty() ? QString(joke) : QString(joke) + " (" + usual + ")";
}

}  // namespace

void lColor_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lColor.ToolTipText = tipFor(
        s, 4, "It's the cold! It can't stand the cold!  THAT'S why it didn't come into the freezer!", "");
    f.lHelp.Caption =
        "Color Option box - Left-click to set draw color - Right-click to set second color - "
        "Double-click to set canvas color";
  });
}

void lColMode_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lColMode.ToolTipText =
        tipFor(s, 12, "It's big...  And terrible...   More frightening than anything I've ever seen!",
               f.lColMode.Caption.get());
    f.lHelp.Caption = "Click arrows to set Color Mode    Current " + f.lColMode.Caption.get();
  });
}

void lColorVal_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    const QString usual = "Color : " + ColourOptionName(s.m.ColorOption);
    f.lColorVal.ToolTipText = tipFor(s, 20, "No way, man!  I DON'T DO NANOWALLS!", usual);
    f.lHelp.Caption = "Click arrows to set Color Option    Current " + usual;
  });
}

void cSwap_MouseMove(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.cSwap.ToolTipText = tipFor(s, 4,
                                 "It's just a jump to the left... And then step the the right...  "
                                 "LET'S DO THE TIME WARP AGAIN!",
                                 "");
    f.lHelp.Caption = "Click to swap draw color and second color";
  });
}

}  // namespace qp
