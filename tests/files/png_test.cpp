// PNG files on every path a picture comes in by, and Export as PNG.
#include <QDir>
#include <functional>
#include <utility>

#include "FilesFixture.h"
#include "files/ExportPng.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "files/SavePath.h"
#include "surface/Raster.h"
#include "ui/Windows.h"

namespace qp::test {
namespace {

constexpr Colour kCanvasColour = 0x3060C0;  // red C0, green 60, blue 30

class PngTest : public FilesTest {
 protected:
  QImage inDialog(const QString& caption, const QString& name) {
    ShowFileDialog(s(), caption);
    chooseInDialog(name);
    dialog().cmdOK.raiseClick();
    return caption == FileMode::OpenImage ? canvas() : program->w.stretch.pTemp.Picture.get();
  }
  QImage inList(WorkshopExplorer& x, const QString& name) {
    chooseIn(x.Dir1, x.File1, name);
    x.File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
    return x.preview.Picture;
  }
};

// Listed beside the bitmaps, laid on the canvas's colour where see-through; a truncated file is
// refused and leaves the picture that was there.
TEST_F(PngTest, EveryLoadPathTakesPngsOnTheCanvasColourAndRefusesATruncatedOne) {
  f().PicPaint.BackColor = kCanvasColour;
  // See-through, opaque green, half-see-through red; then a row of opaque blue.
  QImage alpha(3, 2, QImage::Format_ARGB32);
  alpha.fill(qRgba(0, 0, 255, 255));
  alpha.setPixel(0, 0, qRgba(255, 255, 255, 0));
  alpha.setPixel(1, 0, qRgba(0, 255, 0, 255));
  alpha.setPixel(2, 0, qRgba(255, 0, 0, 128));
  writePicture("alpha.png", alpha, "PNG");
  // A PNG cut in the middle of its pixel data.
  const QByteArray whole = encode(patternPicture(64, 64), "PNG");
  writeFile(at("cut.png"), whole.left(whole.size() / 2));
  Windows& w = program->w;
  const std::pair<const char*, std::function<QImage(const QString&)>> kLoadPaths[] = {
      {"dropped on the canvas", [&](const QString& file) { return f().PicPaint.OLEDragDrop({at(file)}, vbLeftButton, 0, 0, 0), canvas(); }},
      {"the Explorer panel", [&](const QString& file) { return openThroughExplorer(file), canvas(); }},
      {"the file window's Open", [&](const QString& file) { return inDialog(FileMode::OpenImage, file); }},
      {"the file window's Image Stretcher load", [&](const QString& file) { return inDialog(FileMode::LoadStretch, file); }},
      {"dropped on the Image Stretcher",
       [&](const QString& file) { return w.stretch.pLO.OLEDragDrop({at(file)}, vbLeftButton, 0, 0, 0), w.stretch.pTemp.Picture.get(); }},
      {"the TileSetter's list", [&](const QString& file) { return inList(w.tile.explorer, file); }},
      {"the Image Blender's list", [&](const QString& file) { return inList(w.blend.explorer, file); }},
      {"the Transparency Tool's list", [&](const QString& file) { return inList(w.blue.explorer, file); }},
  };
  const QRgb backdrop = raster::toPixel(kCanvasColour);
  const int halfRed = (255 * 128 + 0xC0 * 127) / 255;
  for (const auto& [name, load] : kLoadPaths) {
    SCOPED_TRACE(name);
    const QImage loaded = load("alpha.png");
    ASSERT_EQ(loaded.size(), QSize(3, 2));
    EXPECT_EQ(loaded.pixel(0, 0), backdrop);
    EXPECT_EQ(loaded.pixel(1, 0), qRgb(0, 255, 0));
    EXPECT_NEAR(qRed(loaded.pixel(2, 0)), halfRed, 2);
    EXPECT_NEAR(qGreen(loaded.pixel(2, 0)), 0x60 * 127 / 255, 2);
    EXPECT_EQ(loaded.pixel(2, 1), qRgb(0, 0, 255));
    EXPECT_EQ(load("cut.png"), loaded);
  }
}

// A place that cannot be written is told and the user may choose another; the export reloads as
// the canvas and leaves Save's file name alone.
TEST_F(PngTest, AnExportThatCannotBeWrittenIsToldThenReloadsAsTheCanvasElsewhere) {
  choose(f().mPencil);
  press(150, 150);
  move(900, 600);
  release(900, 600);
  m().CurrentFile = "drawing.bmp";
  const QImage before = canvas();
  QDir(folder.path()).mkdir("copy.png");  // a folder stands where the file would go
  choose(f().mExportPng);
  dialog().Dir1.Path = folder.path();
  dialog().TxtFile.Text = "copy.png";
  headless.msgbox.clear();
  dialog().cmdOK.raiseClick();
  EXPECT_TRUE(dialog().Visible);
  ASSERT_EQ(headless.msgbox.shown().size(), 1u);
  EXPECT_EQ(headless.msgbox.shown()[0].prompt, "Could not write " + at("copy.png"));
  EXPECT_EQ(canvas(), before);
  EXPECT_EQ(QDir(folder.path()).entryList({"copy*"}, QDir::Files | QDir::Hidden), QStringList());

  dialog().TxtFile.Text = "copy2";
  dialog().cmdOK.raiseClick();
  EXPECT_FALSE(dialog().Visible);
  EXPECT_EQ(LoadPicture(at("copy2.png")), before);
  EXPECT_EQ(QImage(at("copy2.png")).format(), QImage::Format_RGB32);  // PNG, whatever the name said
  EXPECT_EQ(m().CurrentFile, QString("drawing.bmp"));
  EXPECT_EQ(ComposePngPath("/a", "b.PNG"), QString("/a/b.PNG"));
  EXPECT_EQ(ComposePngPath("/", ""), QString("/Untitled.png"));
  EXPECT_EQ(ComposeSavePath("/pics/", "a").path, "/pics/a.bmp");  // no second separator
}

}  // namespace
}  // namespace qp::test
