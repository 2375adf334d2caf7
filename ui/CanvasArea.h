#pragma once
// The canvas of the main window: the frame that holds it, the paint surfaces, the undo and stash
// holders, and the marks the window draws over the picture (rubber bands, guides, the eraser).
#include "platform/Controls.h"
#include "platform/Form.h"
#include "surface/PictureBox.h"

namespace qp {

struct CanvasArea {
  explicit CanvasArea(Form& f);

  Frame fMax;        // holds the canvas, scrolled inside it when larger
  Frame fHide;       // parked out of view: holders that are never shown
  PictureBox PicPaint;  // the paint area, in twips
  PictureBox pPix;      // the pixel twin of the canvas for the modes that work in pixels
  PictureBox pPX;       // small overlay of the freehand spiral
  PictureBox PicUndo;   // first undo level
  PictureBox pUn2;      // second undo level
  PictureBox pStash;    // the stash
  PictureBox pTemp;     // a pasted picture floating under the pointer
  PictureBox pSpire;    // a finished block floating over the canvas
  PictureBox pT1;       // scratch picture in pixels
  VScrollBar vHigh;
  HScrollBar vWidth;

  Line lnDraw;       // rubber band of lines
  Shape DrawShape;   // rubber rectangle or circle
  Shape shErase;     // eraser outline following the pointer
  Shape Dshp;        // marker on pPix
  Line lnX, lnY;     // guide lines on the canvas
  Label lLnX, lLnY;
  Line lnPX, lnPY;   // the same guides on pPix
  Label lLnPX, lLnPY;
  Image iPnt;        // the small pointer image shown while a stroke lasts with ckHide
};

}  // namespace qp
