#include "tools/Tools.h"

#include "core/ToolTable.h"
#include "tools/PaintWithPix.h"
#include "tools/Freehand.h"
#include "tools/Lines.h"
#include "tools/Mirrors.h"
#include "tools/FreehandSpiral.h"
#include "tools/FullScreen.h"
#include "tools/GeoSpiralz.h"
#include "tools/Pencil.h"
#include "tools/Selection.h"
#include "tools/ShadowDraw.h"
#include "tools/Shapes.h"
#include "tools/CanvasGradients.h"
#include "tools/Spheres.h"
#include "tools/BoxesBubblez.h"
#include "tools/FigureBrush.h"
#include "tools/ShadowDraw.h"
#include "tools/TextTools.h"

namespace qp {

void registerTools(ToolTable& table) {
  table.set(0, pencilHooks());
  table.set(4, shadowDrawHooks());
  table.set(14, collageHooks());
  table.set(18, selectAndClearHooks());
  table.set(19, selectAndCopyHooks());
  table.set(22, floatingPasteHooks());
  table.set(26, transparentModeHooks());
  table.set(1, singleLineHooks());
  table.set(2, simpleShapesHooks());
  table.set(3, airBrushHooks());
  table.set(5, mirrorLinesHooks());
  table.set(6, eraserHooks());
  table.set(10, crazyLinezHooks());
  table.set(15, floodFillHooks());
  table.set(23, crazyPencilHooks());
  table.set(24, mirrorDrawHooks());
  table.set(30, sawToothHooks());
  table.set(12, geoSpiralzHooks());
  ToolHooks freehand = freehandSpiralzHooks();
  freehand.fullScreenKey = OpenFullScreen;  // F9
  table.set(16, freehand);
  table.set(28, miniSpiralsHooks());
  table.set(8, sphereHooks());
  table.set(11, circleFxHooks());
  table.set(17, gradientShapeHooks());
  table.set(25, canvasGradientHooks());
  table.set(7, figureBrushHooks());
  table.set(9, boxesBubblezHooks());
  table.set(20, textBrushHooks());
  table.set(21, text3DHooks());
  table.set(29, shadowTextHooks());
}

}  // namespace qp
