// What entering a mode switches on or off besides the value rows.
#include "core/Panel.h"
#include "support/ProgramFixture.h"

namespace qp::test {

using ModeEntry = ProgramTest;

namespace {
Menu& item(frmCanvas& f, const char* name) { return *dynamic_cast<Menu*>(f.find(name)); }
}  // namespace

TEST_F(ModeEntry, CheckBoxesShowWithTheirStartValues) {
  struct Expect { const char* menu; int ckVal; int ckVal2; };  // -1: the box is not shown
  const Expect all[] = {{"mPencil", 0, -1}, {"mAir", -1, 0}, {"mEr", -1, -1}, {"mBrushes", 1, 0}, {"mBubble", 0, 1}};
  for (const Expect& e : all) {
    SCOPED_TRACE(e.menu);
    f().ckVal.Value.setRaw(1);  // left ticked by the mode before: a new mode clears it
    choose(item(f(), e.menu));
    EXPECT_EQ(f().ckVal.Visible.get(), e.ckVal >= 0);
    EXPECT_EQ(f().Shadow(24).Visible.get(), e.ckVal >= 0);
    EXPECT_EQ(f().ckVal.Value.get(), e.ckVal >= 0 ? e.ckVal : 0);
    EXPECT_EQ(f().ckVal2.Visible.get(), e.ckVal2 >= 0);
    EXPECT_EQ(f().Shadow(34).Visible.get(), e.ckVal2 >= 0);
    if (e.ckVal2 >= 0) {
      EXPECT_EQ(f().ckVal2.Value.get(), e.ckVal2);
    }
  }
}

TEST_F(ModeEntry, PixelModesPaintOnACopyOfTheCanvas) {
  struct Expect { const char* menu; bool canvasHidden; bool openOn; bool pasteOn; };
  const Expect all[] = {
      {"mFF", false, false, false}, {"mSpr3", true, true, false}, {"mText", true, true, false},
      {"mBluScrn", false, false, true},
  };
  for (const Expect& e : all) {
    SCOPED_TRACE(e.menu);
    choose(f().mPencil);
    f().PicPaint.Line(300, 300, 1500, 900, 0x0000FF);
    choose(item(f(), e.menu));
    EXPECT_TRUE(f().pPix.Visible.get());
    EXPECT_EQ(f().PicPaint.Visible.get(), !e.canvasHidden);
    EXPECT_EQ(f().pPix.Picture.get(), f().PicPaint.Image.get());
    EXPECT_EQ(f().mnuOpen.Enabled.get(), e.openOn);
    EXPECT_EQ(f().mnuPaste.Enabled.get(), e.pasteOn);
  }
  choose(f().mPencil);  // any other mode gives the menu items back
  EXPECT_TRUE(f().mnuOpen.Enabled.get());
  EXPECT_TRUE(f().mnuPaste.Enabled.get());
}

TEST_F(ModeEntry, GroupsOfTheModesThatUseThem) {
  choose(f().mCrzyPen);  // Crazy Pencil: a wide pen, and a single warning
  EXPECT_EQ(std::pair(f().vPencil.Value.get(), int(m().DrawWidth)), std::pair(60, 60));
  EXPECT_EQ(headless.msgbox.shown().size(), 1u);

  choose(f().mSpir2);  // GeoSpiralz: the full-canvas button instead of the pointer box
  EXPECT_TRUE(f().cCan.Visible.get());
  EXPECT_FALSE(f().ckHide.Visible.get());

  choose(f().mtCvShapes);  // Canvas Gradients: direction buttons, no stepping colours
  EXPECT_TRUE(f().opVert(0).Visible.get());
  EXPECT_TRUE(f().opVert(0).Value.get());
  EXPECT_FALSE(f().vColmode.Visible.get());

  choose(f().mText);  // 3D Text: the text frame without its cover
  EXPECT_TRUE(f().fText.Visible.get());
  EXPECT_FALSE(f().fTcover.Visible.get());

  choose(f().mEr);  // the eraser's preview has the bar's size and the draw colour
  EXPECT_TRUE(f().shErSize.Visible.get());
  EXPECT_EQ(f().shErSize.Height.get(), 120);
  EXPECT_EQ(f().shErSize.FillColor.get(), Colour(m().ForeClr.value()));

  choose(f().mAir);  // AirBrush sprays at the fastest interval
  EXPECT_EQ(f().vInt.Value.get(), 1);
  EXPECT_EQ(f().tAir.Interval.get(), 1);

  choose(f().mGpen);  // Mirrors N More: both axes on
  EXPECT_EQ(f().ckVert.Value.get(), 1);
  EXPECT_EQ(f().ckHoriz.Value.get(), 1);

  choose(f().mPwp);  // Collage Mode: the picture button waits for a picture
  EXPECT_TRUE(f().cCan.Visible.get());
  EXPECT_FALSE(f().cCan.Enabled.get());
  choose(f().mSpir2);
  EXPECT_TRUE(f().cCan.Enabled.get());
}

}  // namespace qp::test
