#include "core/PaintModes.h"

namespace qp {

const std::vector<PaintModeInfo>& paintModes() {
  static const std::vector<PaintModeInfo> kModes = {
      {0, "mPencil", "Pencil", "Freehand Pencil"},
      {1, "mSingle", "Single Line", "Draw Line"},
      {2, "mSngBox", "Simple Shapes", "Draw Shapes"},
      {3, "mAir", "AirBrush", "AirBrush"},
      {4, "mShadow", "Shadow", "Shadow Draw"},
      {5, "mMirLine", "Mirror Lines", "Mirror Line"},
      {6, "mEr", "Eraser", "Eraser"},
      {7, "mBrushes", "Shapes N Figures", "Brushes"},
      {8, "mBallz", "Gradient Spheres", "Gradient Spheres"},
      {9, "mBubble", "Boxes N Bubblez", "Boxes N Bubblez"},
      {10, "mCrazyLn", "Crazy Linez", "Crazy Linez"},
      {11, "mCircFx", "Circle FX", "Circle FX"},
      {12, "mSpir2", "GeoSpiralz", "GeoSpiralz"},
      {14, "mPwp", "Collage Mode", "Paint w/Pix"},
      {15, "mFF", "FloodFill", "FloodFill"},
      {16, "mSpr3", "Freehand Spiralz", "Freehand Spiralz"},
      {17, "mMini", "Gradient Shapes", "Mini Gradients"},
      {18, "mSelClr", "Select and Clear", nullptr},
      {19, "mSelCpy", "Select and Copy", nullptr},
      {20, "mTxBrush", "Text Brush", "Text Brush"},
      {21, "mText", "3D Text", "3D Text"},
      {22, "", "", nullptr},
      {23, "mCrzyPen", "Crazy Pencil", "kRAzY peNCiL"},
      {24, "mGpen", "Mirrors N More", "Mirror Draw"},
      {25, "mtCvShapes", "Canvas Gradients", "Canvas Gradients"},
      {26, "mBluScrn", "Transparent Mode", "Paint w/TransPix"},
      {28, "", "", "Freehand Spiralz"},
      {29, "mShadTx", "Shadow Text", "Shadow Text"},
      {30, "mSaw", "SawTooth", "Polygons Plus"},
  };
  return kModes;
}

const PaintModeInfo* paintMode(int number) {
  for (const auto& m : paintModes())
    if (m.number == number) return &m;
  return nullptr;
}

}  // namespace qp
