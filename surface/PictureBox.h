#pragma once
// A picture box: a control with a persistent bitmap (`Image`), a stored background (`Picture`), a
// coordinate scale and the drawing vocabulary the tools use. Drawing goes straight to the bitmap of
// the surface; a view on screen repaints only the rectangle that changed (takeDirty).
//
// Pictures are QImages, shared until one side is drawn on, so `Y.Picture = X.Image` costs nothing
// until the next drawing call on X or Y copies the bitmap once.
#include <QImage>
#include <QRect>
#include <QString>
#include <cstdint>
#include <optional>

#include "platform/Control.h"

namespace qp {

class PictureBox;
class TextRun;

// The `Image` of a picture box: a read-only handle that converts to the present bitmap by value.
class ImageHandle {
 public:
  explicit ImageHandle(const PictureBox* owner) : owner_(owner) {}
  operator QImage() const;  // NOLINT: `Y.Picture = X.Image` reads as the program means it
  QImage get() const;
  const PictureBox* owner() const { return owner_; }

 private:
  const PictureBox* owner_;
};

// The `Picture` of a picture box. Assigning lays the picture on the surface as Cls would show it.
class PictureProp {
 public:
  explicit PictureProp(PictureBox* owner) : owner_(owner) {}
  PictureProp(const PictureProp&) = delete;
  PictureProp& operator=(const QImage& pic);
  PictureProp& operator=(const ImageHandle& img) { return *this = img.get(); }
  PictureProp& operator=(const PictureProp& other);
  operator const QImage&() const { return pic_; }  // NOLINT
  const QImage& get() const { return pic_; }
  bool isNull() const { return pic_.isNull(); }

 private:
  friend class PictureBox;
  PictureBox* owner_;
  QImage pic_;
};

// Box forms of Line: B the outline, BF the rectangle filled with the line colour.
enum class LineBox { None, B, BF };

class PictureBox : public VisualControl {
 public:
  PictureBox(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::PictureBox; }

  Prop<bool> AutoRedraw{this, true};
  // With AutoSize a picture assigned to the box gives the box its size; an empty picture leaves
  // the size as it is.
  Prop<bool> AutoSize{this, false};
  PictureProp Picture{this};
  ImageHandle Image{this};

  // 1 twips, 3 pixels, 0 user scale. Writing ScaleWidth/ScaleHeight/ScaleLeft/ScaleTop switches
  // to the user scale; writing ScaleMode 1 or 3 brings back that unit's own scale.
  Prop<int> ScaleMode{this, 1};
  Prop<Single> ScaleWidth{this, 0};
  Prop<Single> ScaleHeight{this, 0};
  Prop<Single> ScaleLeft{this, 0};
  Prop<Single> ScaleTop{this, 0};

  Prop<Colour> FillColor{this, 0x000000};
  Prop<int> FillStyle{this, 1};  // 0 solid, 1 transparent (2..7 hatches)
  Prop<int> DrawWidth{this, 1};
  Prop<int> DrawMode{this, 13};
  Prop<int> DrawStyle{this, 0};
  Prop<Single> CurrentX{this, 0};
  Prop<Single> CurrentY{this, 0};
  Prop<QString> FontName{this, "Arial"};
  Prop<Single> FontSize{this, 8.25f};
  Prop<bool> FontBold{this, false};
  Prop<bool> FontItalic{this, false};
  Prop<bool> FontUnderline{this, false};
  Prop<bool> FontStrikethru{this, false};
  Prop<bool> FontTransparent{this, true};
  Prop<int> BorderStyle{this, 0};
  QImage MouseIcon;  // the pointer image for MousePointer 99

  // The drawing vocabulary. Coordinates are in the present scale; pen sizes in pixels.
  void Line(Single x1, Single y1, Single x2, Single y2, std::optional<Colour> colour = {},
            LineBox box = LineBox::None);
  // `Line -(x, y)`: from CurrentX, CurrentY.
  void LineTo(Single x2, Single y2, std::optional<Colour> colour = {}, LineBox box = LineBox::None);
  void Circle(Single x, Single y, Single radius, std::optional<Colour> colour = {},
              std::optional<double> start = {}, std::optional<double> end = {},
              std::optional<double> aspect = {});
  void PSet(Single x, Single y, std::optional<Colour> colour = {});
  Colour Point(Single x, Single y) const;  // -1 outside the bitmap
  void PaintPicture(const QImage& picture, Single x1, Single y1,
                    std::optional<Single> width1 = {}, std::optional<Single> height1 = {},
                    std::optional<Single> x2 = {}, std::optional<Single> y2 = {},
                    std::optional<Single> width2 = {}, std::optional<Single> height2 = {});
  // The same, from another surface's Picture or Image: x2, y2, width2, height2 are then in that
  // surface's own unit. From a bare QImage they are in pixels.
  void PaintPicture(const PictureProp& picture, Single x1, Single y1,
                    std::optional<Single> width1 = {}, std::optional<Single> height1 = {},
                    std::optional<Single> x2 = {}, std::optional<Single> y2 = {},
                    std::optional<Single> width2 = {}, std::optional<Single> height2 = {});
  void PaintPicture(const ImageHandle& image, Single x1, Single y1,
                    std::optional<Single> width1 = {}, std::optional<Single> height1 = {},
                    std::optional<Single> x2 = {}, std::optional<Single> y2 = {},
                    std::optional<Single> width2 = {}, std::optional<Single> height2 = {});
  void Cls();
  void Refresh();
  void Print(const QString& text);
  // Print with the position left behind the printed text on its last line (`Print text;`), so the
  // next Print goes on where this one stopped.
  void PrintOnLine(const QString& text);
  Single TextWidth(const QString& text) const;
  Single TextHeight(const QString& text) const;
  // The same for a line that `run` follows (TextRun.h): the same pixels and figures, at a cost
  // that does not grow with the line, since only the characters that can land inside are drawn.
  void PrintRun(const QString& text, const TextRun& run);
  Single TextWidth(const QString& text, const TextRun& run) const;
  Single TextHeight(const QString& text, const TextRun& run) const;
  // The characters handed to the text painter so far: what printing costs, counted.
  std::uint64_t charactersDrawn() const { return charactersDrawn_; }

  // Unit conversions between the present scale and the bitmap's pixels.
  double toPixelX(double x) const;
  double toPixelY(double y) const;
  double pixelsPerUnitX() const;
  double pixelsPerUnitY() const;
  // Size of the interior in pixels.
  int pixelWidth() const;
  int pixelHeight() const;

  // The persistent bitmap, for the device calls and the view. bitmap() never detaches.
  const QImage& bitmap() const { return image_; }
  QImage& mutableBitmap();  // detaches once and marks the whole surface changed
  // Write access for the device calls: detaches once, marks nothing; the caller marks what it
  // changed with markDirty. Raises InvalidCall on a zero-size surface.
  QImage& editBitmap();
  void markDirty(const QRect& pixels);
  // The rectangle (in pixels) drawn on since the view last looked; empty when nothing changed.
  QRect takeDirty();
  // Refresh() was called since the view last looked (a tool wants its steps seen now).
  bool takeRefreshRequest();

 private:
  friend class PictureProp;
  friend class ImageHandle;
  void pictureAssigned();
  // AutoSize: refuses a picture too large for a surface before anything changes, then takes its size.
  void checkAutoSize(const QImage& pic) const;
  void adoptPictureSize();
  void resizeBitmap();
  void applyScaleMode();
  bool userScaleIsOwnTwips() const;
  void keepUserScaleInTwips();
  void clearTo(Colour c);
  void setOuterSize(Single width, Single height);
  void installRules();
  bool parentInPixels() const;
  double outerTwips(Single size) const;
  void paintPictureFrom(const QImage& picture, double sourcePerUnitX, double sourcePerUnitY,
                        double sourceLeft, double sourceTop, Single x1, Single y1,
                        std::optional<Single> width1, std::optional<Single> height1,
                        std::optional<Single> x2, std::optional<Single> y2,
                        std::optional<Single> width2, std::optional<Single> height2);
  // Integer pixel of a coordinate in the present scale (rounded, clamped, NaN raises).
  int pixelX(Single x) const;
  int pixelY(Single y) const;
  void printLines(const QString& text, bool staysOnLine);
  // Keeps a picture's pixels that nobody else holds, so the next detach copies into memory that is
  // already mapped instead of a fresh allocation.
  void recycle(QImage&& old);

  QImage image_;
  QImage spare_;
  QRect dirty_;
  // The picture the bitmap was last cleared to (its cache key, 0 for none) and what was drawn
  // over it since, so that the next clear puts back only that part.
  qint64 copiedFrom_ = 0;
  QRect drawnSinceCopy_;
  bool refreshRequested_ = false;
  std::uint64_t charactersDrawn_ = 0;
};

}  // namespace qp
