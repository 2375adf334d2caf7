#pragma once
// The menus of the main window. Each item is a Menu control under its parent, so that a click on
// it, by the user, a script or a test, raises its Click.
#include "platform/Controls.h"
#include "platform/Form.h"

namespace qp {

struct CanvasMenus {
  explicit CanvasMenus(Form& f);

  Menu mnuFile, mnuNew, mnuOpen, mnuSave, mExportPng, mFileSep, mnuExit;
  Menu mnuEdit, mnuUndo, mCopy, mnuPaste, mClear, mSendStash, mGet;
  Menu mToolz;
  Menu mFreehand, mPencil, mShadow, mGpen, mAir, mEr, mSaw, mCrzyPen;
  Menu mLinez, mSingle, mMirLine, mCrazyLn;
  Menu mShapez, mSngBox, mFF, mBrushes, mBubble;
  Menu mSpiralz, mSpir2, mSpr3;
  Menu mGradz, mtCvShapes, mMini, mBallz, mCircFx;
  Menu mTextz, mTxBrush, mText, mShadTx;
  Menu mPicz, mPwp, mBluScrn;
  Menu mSel, mSelRect, mSelCpy, mSelClr, mTrans, mSaveSel, mIvSel, mMirSel, mTile, m22, m44, m66, m88,
      mCpySel;
  Menu mItoolz, mTileSet, mBlend, mStretch, mLo;
  Menu mCanvas, mSize, m8x6, m768, m64x48, mFull, mCustm, mLock, mCvReset, mCoords, mPointer, mCross,
      mArrow;
  Menu mHelpMenu, mHelp, mKeys;
};

}  // namespace qp
