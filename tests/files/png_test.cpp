// PNG files on every path a picture comes in by, and Export as PNG.
#include <QFile>
#include <QFileDevice>
#include <functional>
#include <utility>

#include "FilesFixture.h"
#include "files/ExportPng.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "surface/Raster.h"
#include "ui/Windows.h"

namespace qp::test {
namespace {

constexpr Colour kCanvasColour = 0x3060C0;  // red C0, green 60, blue 30

class PngTest : public FilesTest {
 protected:
  void SetUp() override {
    FilesTest::SetUp();
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
  }
  QImage inDialog(const QString& caption, const QString& name) {
    ShowFileDialog(s(), caption);
    chooseInDialog(name);
    dialog().cmdOK.raiseClick();
    return caption == FileMode::OpenImage ? canvas() : program->w.stretch.pTemp.Picture.get();
  }
  QImage inList(FileListBox& list, const Image& preview, const QString& name) {
    list.Path = folder.path();
    list.ListIndex = static_cast<int>(list.items().indexOf(name));
    list.raiseMouseDown(vbLeftButton, 0, 0, 0);
    return preview.Picture;
  }
};

// Listed beside the bitmaps, laid on the canvas's colour where see-through; a truncated file is
// refused and leaves the picture that was there.
TEST_F(PngTest, EveryLoadPathTakesPngsOnTheCanvasColourAndRefusesATruncatedOne) {
  Windows& w = program->w;
  const std::pair<const char*, std::function<QImage(const QString&)>> kLoadPaths[] = {
      {"dropped on the canvas", [&](const QString& file) { return f().PicPaint.OLEDragDrop({at(file)}, vbLeftButton, 0, 0, 0), canvas(); }},
      {"the Explorer panel", [&](const QString& file) { return openThroughExplorer(file), canvas(); }},
      {"the file window's Open", [&](const QString& file) { return inDialog(FileMode::OpenImage, file); }},
      {"the file window's Image Stretcher load", [&](const QString& file) { return inDialog(FileMode::LoadStretch, file); }},
      {"dropped on the Image Stretcher",
       [&](const QString& file) { return w.stretch.pLO.OLEDragDrop({at(file)}, vbLeftButton, 0, 0, 0), w.stretch.pTemp.Picture.get(); }},
      {"the TileSetter's list", [&](const QString& file) { return inList(w.tile.explorer.File1, w.tile.explorer.preview, file); }},
      {"the Image Blender's list", [&](const QString& file) { return inList(w.blend.explorer.File1, w.blend.explorer.preview, file); }},
      {"the Transparency Tool's list", [&](const QString& file) { return inList(w.blue.explorer.File1, w.blue.explorer.preview, file); }},
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

// A folder that cannot be written is told and the user may choose another; the export reloads as
// the canvas and leaves Save's file name alone.
TEST_F(PngTest, AnExportFailsInAReadOnlyFolderThenReloadsAsTheCanvasElsewhere) {
  choose(f().mPencil);
  press(150, 150);
  move(900, 600);
  release(900, 600);
  m().CurrentFile = "drawing.bmp";
  const QImage before = canvas();
  // A folder taken away from writing; the superuser writes anywhere but in /proc.
  QDir(folder.path()).mkdir("locked");
  QString locked = at("locked");
  QFile::setPermissions(locked, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
  if (QFile probe(locked + "/probe"); probe.open(QIODevice::WriteOnly)) locked = "/proc";
  choose(program->f.mExportPng);
  dialog().Dir1.Path = locked;
  dialog().TxtFile.Text = "copy.png";
  headless.msgbox.clear();
  dialog().cmdOK.raiseClick();
  EXPECT_TRUE(dialog().Visible);
  ASSERT_EQ(headless.msgbox.shown().size(), 1u);
  EXPECT_EQ(headless.msgbox.shown()[0].prompt, "Could not write " + locked + "/copy.png");
  EXPECT_EQ(canvas(), before);
  EXPECT_TRUE(QDir(locked).entryList({"copy.png*"}, QDir::Files | QDir::Hidden).isEmpty());
  QFile::setPermissions(at("locked"), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);

  dialog().Dir1.Path = folder.path();
  dialog().TxtFile.Text = "copy";
  dialog().cmdOK.raiseClick();
  EXPECT_FALSE(dialog().Visible);
  EXPECT_EQ(LoadPicture(at("copy.png")), before);
  EXPECT_EQ(QImage(at("copy.png")).format(), QImage::Format_RGB32);  // PNG, whatever the name said
  EXPECT_EQ(m().CurrentFile, QString("drawing.bmp"));
  EXPECT_EQ(ComposePngPath("/a", "b.PNG"), QString("/a/b.PNG"));
  EXPECT_EQ(ComposePngPath("/", ""), QString("/Untitled.png"));
}

}  // namespace
}  // namespace qp::test
