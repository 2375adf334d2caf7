#include "core/Startup.h"

#include "color/ColourPickers.h"
#include "core/ApplyPaintMode.h"
#include "core/Layout.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

void Form_Load(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  trap([&] {
    Screen& screen = s.rt.screen;
    if (f.Width > screen.Width()) {
      s.rt.msgbox.MsgBox("1024x768 Screen Resolution is recommended", vbOKOnly, "Optimize Display...");
      m64x48_Click(s);
    }
    m.TransparencyDone = 0;
    m.ForeClr = f.lForclr.BackColor.get();
    m.BackClr = f.lBkclr.BackColor.get();
    ApplyColors(s);
    f.GradStepSize = 2;
    m.ColorOption = f.vColors.Value.get();
    f.AutoDrawX = 500;
    f.AutoDrawY = 500;
    f.AutoDrawSpeed = 4;
    m.SpiralStep = 12;
    f.AirSpread = 5;
    m.StepSize = 40;
    f.fText.Move(60, 960);
    f.fX.Move(2400, 1020);
    f.fHelp.Move(f.fX.Left, f.fX.Top);
    f.fCust.Move(1920, 480);
    // Every screen font but the first, on purpose.
    const QStringList fonts = screen.Fonts();
    for (int i = 1; i < fonts.size(); ++i) {
      f.lstFont.AddItem(fonts[i]);
      f.lstShad.AddItem(fonts[i]);
    }
    f.CanvasLocked = 0;
    f.File1.Pattern = "*.bmp";
    m.DrawWidth = f.vPencil.Value.get();
    ApplyColors(s);
    f.Text1.SelStart = 0;
    f.Text1.SelLength = static_cast<int>(f.Text1.Text.get().size());
    f.PicPaint.FontName = "Arial";
    f.pPix.FontName = "Arial";
    f.fBow.BorderStyle = 0;
    f.fInt.BorderStyle = 0;
    f.fPencil.BorderStyle = 0;
    f.shErSize.BorderColor = m.ForeClr;
    f.shErSize.FillColor = m.ForeClr;
    m.CurrentFile = "";
    f.Width = 13760;
    f.Height = 10545;
    Form_Resize(s);  // also when the size was already so
    m.PaintMode = 16;
    ApplyPaintMode(s);
    f.vHigh.Visible = false;
    f.vWidth.Visible = false;
    f.fHide.Top = f.Height + 10000;
    f.pT1.Top = f.Height + 10000;
  });
}

void mnuExit_Click(Session&, const std::function<void()>& quit) { quit(); }

void Form_Terminate(Session& s) {
  trap([&] {
    TakeUndoSnapshot(s);
    s.rt.clipboard.Clear();
    s.rt.clipboard.SetData(s.f.PicPaint.Picture);
  });
}

void Form_Unload(Session& s, const std::function<void()>& quit) {
  Form_Terminate(s);
  quit();
}

void SetCanvasSize(Session& s, int windowWidth, int windowHeight, int frameWidth, int frameHeight) {
  frmCanvas& f = s.f;
  trap([&] {
    f.mLock.Checked = false;
    f.mLock.Caption = "Lock Canvas";
    f.CanvasLocked = 0;
    f.Width = windowWidth;
    f.Height = windowHeight;
    f.fMax.Width = frameWidth;
    f.fMax.Height = frameHeight;
    f.PicPaint.Width = f.fMax.Width;
    f.PicPaint.Height = f.fMax.Height;
    f.vHigh.Visible = false;
    f.vWidth.Visible = false;
    const Screen& screen = s.rt.screen;
    f.Move((screen.Width() - f.Width) / 2, (screen.Height() - f.Height) / 2);
    s.m.CurrentFile = "";
    Form_Resize(s);
  });
}

void m64x48_Click(Session& s) { SetCanvasSize(s, 11360, 8985, 9600, 7200); }

}  // namespace qp
