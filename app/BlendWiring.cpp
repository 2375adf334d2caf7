// The Image Blender's events, each to its routine.
#include "app/Wiring.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "workshops/ImageBlender.h"
#include "workshops/WorkshopCommon.h"

namespace qp {

void wireImageBlender(Session& s) {
  s.f.mBlend.Click = [&s] { mBlendWindow_Click(s); };
  frmBlend* w = blendWindow(s);
  if (!w) return;
  frmBlend& b = *w;
  b.Load = [&s] { frmBlend_Load(s); };
  b.Unload = [&s, &b] {
    frmBlend_Unload(s);
    b.markUnloaded();
  };
  trackCtrlKey(b, b.CtrlDown);
  b.mBlend.Click = [&s] { Blend_mBlend_Click(s); };
  b.mBlue.Click = [&s] { Blend_mBlue_Click(s); };
  b.mNew.Click = [&s] { Blend_mNew_Click(s); };
  b.vVal.Change = [&s] { Blend_vVal_Change(s); };
  b.mLd1.Click = [&s] { Blend_mLoad_Click(s, 1); };
  b.mLd2.Click = [&s] { Blend_mLoad_Click(s, 2); };
  wireWorkshopExplorer(b.explorer, s.f.PicPaint.BackColor);
  b.explorer.cKay.Click = [&s] { Blend_cKay_Click(s); };
  b.explorer.cCancel.Click = [&b] { b.fX.Visible = false; };
  b.mPaste.Click = [&s] { Blend_mPaste_Click(s); };
  b.mQuillora.Click = [&s] { Blend_mQuillora_Click(s); };
  b.m64.Click = [&s] { SetBlendCanvas(s, 9600, 7200); };
  b.m8x6.Click = [&s] { SetBlendCanvas(s, 12000, 9000); };
  b.m768.Click = [&s] { SetBlendCanvas(s, 11520, 7200); };
  b.mIns.Click = [&b] { b.fStruct.Visible = true; };
  b.Label1.Click = [&b] { b.fStruct.Visible = false; };
  b.cGo.Click = [&s] { cGo_Click(s); };
  b.tGo.Timer_ = [&s] { Blend_tGo_Timer(s); };
  b.lBlk.Click = [&s] { SetTransparentColour(s, 0x000000, "Black"); };
  b.lWht.Click = [&s] { SetTransparentColour(s, 0xFFFFFF, "White"); };
  b.lBlu.Click = [&s] { SetTransparentColour(s, 0xFF0000, "Blue"); };
  b.pT2.MouseDown = [&s](int bt, int sh, Single x, Single y) { pT2_MouseDown(s, bt, sh, x, y); };
  b.pT2.MouseMove = [&s](int bt, int sh, Single x, Single y) { pT2_MouseMove(s, bt, sh, x, y); };
  b.pT2.MouseUp = [&s](int bt, int sh, Single x, Single y) { pT2_MouseUp(s, bt, sh, x, y); };
  b.mSave.Click = [&s] { Blend_mSave_Click(s); };
  b.mCopyClip.Click = [&s] { Blend_mCopyClip_Click(s); };

  tellOnHover(b.explorer.cKay, b.lHelp, "Click to load selected image");
  tellOnHover(b.ckHide, b.lHelp, "Checkbox enables/disables Hide Eraser shape on mousedown");
  tellOnHover(b.explorer.cPatt, b.lHelp, "Click to toggle image file filter (*.bmp or *.jpg files)");
  tellOnHover(b.explorer.Dir1, b.lHelp, "Double-click to open folder");
  tellOnHover(b.explorer.File1, b.lHelp, "Click to preview image file");
  tellOnHover(b.lBlk, b.lHelp, "Click to select Black as eraser/transparency color");
  tellOnHover(b.lBlu, b.lHelp, "Click to select Blue as eraser/transparency color");
  tellOnHover(b.lWht, b.lHelp, "Click to select White as eraser/transparency color");
  tellOnHover(b.lColor, b.lHelp,
              "Custom color - Hold Ctrl key and click paint area to set custom eraser (Transparent) color");
  b.lValB.MouseMove = [&b](int, int, Single, Single) {
    b.lHelp.Caption = b.BlueMode == 0 ? "Click arrows to change Blending percentage" : "Click arrows to set eraser size";
  };
  tellOnHover(b.opEr(0), b.lHelp, "Click to use Square Eraser");
  tellOnHover(b.opEr(1), b.lHelp, "Click to use Round Eraser");
  tellOnHover(b.pTemp, b.lHelp, "Click Save menu item to save blended image");
  tellOnHover(b.pMain, b.lHelp,
              "Select either Blend Pix or BlueScreen Mode, then load images to perform Blend or BlueScreen overlay "
              "operations");
}

}  // namespace qp
