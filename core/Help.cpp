#include "core/Help.h"

#include "core/HelpTexts.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// In one paint mode a control's tool tip is a line from an old film, with the usual tip (if any)
// after it in parentheses; in every other mode the usual tip comes back at the next pass.
struct Joke {
  int mode;
  const char* line;
};

void tipFor(Session& s, VisualControl& c, Joke joke, const QString& usual = {}) {
  if (s.m.PaintMode == joke.mode)
    c.ToolTipText = usual.isEmpty() ? QString(joke.line) : QString(joke.line) + " (" + usual + ")";
  else
    c.ToolTipText = usual;
}

using MouseHandler = std::function<void(int, int, Single, Single)>;
MouseHandler onPass(Session& s, std::function<void()> fn) {
  return [&s, fn = std::move(fn)](int, int, Single, Single) { trap(fn); };
}

void wireJokes(Session& s) {
  frmCanvas& f = s.f;
  f.ckHide.MouseMove = onPass(s, [&s] { tipFor(s, s.f.ckHide, {8, "Trolls...  NOT TROLLS...!  I HATE TROLLS!"}); });
  f.ckHoriz.MouseMove = onPass(s, [&s] {
    tipFor(s, s.f.ckHoriz,
           {5, "What kind of a place is this?!   Flowers that crumble like dust in your hands! Fish with no "
               "eyes!  Nature's sure got a funny sense of humor..."});
  });
  f.ckVal2.MouseMove =
      onPass(s, [&s] { tipFor(s, s.f.ckVal2, {9, "That's no moon!  IT'S A SPACESTATION!"}); });
  f.fPencil.MouseMove = onPass(s, [&s] {
    tipFor(s, s.f.fPencil,
           {1, "That terminator is out there! It can't feel pain, or pity or remorse...  And it absolutely "
               "WILL NOT STOP...  Until you are..."});
  });
  f.lBg.MouseMove = onPass(s, [&s] {
    tipFor(s, s.f.lBg,
           {6, "Man is a beast...   Shun him...  Do not let him breed in great numbers...   For he will make a "
               "desert of his own lands...  And of yours!"});
  });
  f.lPenVal.MouseMove = onPass(s, [&s] {
    tipFor(s, s.f.lPenVal,
           {10, "She claims it was a machine... Sent from the future... Sent back through time to destroy her"},
           s.f.lPenVal.Caption.get());
  });
  for (int i = 0; i <= 1; ++i) {
    f.opVert(i).MouseMove = onPass(s, [&s, i] {
      tipFor(s, s.f.opVert(i), {24, "I think we'd better get back inside!  They mostly come out at night...   Mostly"});
    });
  }
  f.lVal1.MouseMove = onPass(s, [&s] {
    // The row's label keeps its own tip (the row's text) outside this mode.
    if (s.m.PaintMode == 24) s.f.lVal1.ToolTipText = "Diamond";
  });
}

}  // namespace

void ShowModeHelp(Session& s) {
  frmCanvas& f = s.f;
  const int mode = s.m.PaintMode;
  const int state = mode == 2 ? f.vVal3.Value.get() : f.ckVal.Value.get();
  if (const char* text = modeHelpText(mode, state)) f.lHelp.Caption = text;
}

void ShowKeyList(Session& s) {
  s.rt.msgbox.MsgBox(keyList().join("\r\n"), vbOKOnly, "Keyboard Shortcuts");
}

void mHelp_Click(Session& s) {
  frmCanvas& f = s.f;
  f.txHelp.Text = userGuide();
  f.fHelp.Move(f.fX.Left, f.fX.Top);
  f.fHelp.Visible = true;
}

void PopupToolz(Session& s) { s.f.PopupMenu(s.f.mToolz); }

void wireHelp(Session& s) {
  frmCanvas& f = s.f;
  f.mKeys.Click = [&s] { ShowKeyList(s); };
  f.mHelp.Click = [&s] { mHelp_Click(s); };
  f.cXhelp.Click = [&f] { f.fHelp.Visible = false; };
  f.MouseMove = onPass(s, [&s] { ShowModeHelp(s); });
  f.lHelpb.MouseMove = onPass(s, [&s] {
    frmCanvas& f = s.f;
    f.lHelp.Caption =
        "Instant Help... Read me for instructions - Read my tooltips for suggestions (Click arrow buttons to "
        "set focus, and use keyboard ARROW KEYS to make fast adjustments";
    if (const char* tip = suggestionFor(s.m.PaintMode)) f.lHelpb.ToolTipText = tip;
  });
  f.lHelp.MouseMove = f.lHelpb.MouseMove;  // the line lies over its shadow: the pointer meets both
  f.fVal.MouseMove = onPass(s, [&s] {
    s.f.lHelp.Caption =
        "Controls in this section are active when highlighted in blue - Move pointer next to active controls "
        "for instructions - Right-click for Toolz menu";
  });
  auto rightPopsToolz = [&s](int button, int, Single, Single) {
    if (button == vbRightButton) PopupToolz(s);
  };
  f.fVal.MouseUp = rightPopsToolz;
  f.fColors.MouseUp = rightPopsToolz;
  wireJokes(s);
  wireHoverHelp(s);  // after the jokes: a control with a joke tip speaks as well
}

}  // namespace qp
