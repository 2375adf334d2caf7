// The picture box itself: its persistent bitmap, the Picture laid under it, Cls and BackColor, the
// size rules, and what the view reads back (dirty rectangle, refresh requests).
#include "surface/PictureBox.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "surface/Raster.h"

namespace qp {

namespace {

// Copies the pixels of `r` from one 32-bit bitmap into the same place of another, row by row.
void copyPixels(QImage& dst, const QImage& src, const QRect& r) {
  const size_t rowBytes = static_cast<size_t>(r.width()) * 4;
  for (int y = r.top(); y <= r.bottom(); ++y)
    std::memcpy(dst.scanLine(y) + r.left() * 4, src.constScanLine(y) + r.left() * 4, rowBytes);
}

}  // namespace

// ---- Image and Picture ----

QImage ImageHandle::get() const { return owner_->image_; }
ImageHandle::operator QImage() const { return get(); }

PictureProp& PictureProp::operator=(const QImage& pic) {
  owner_->checkAutoSize(pic);
  QImage next = pic;  // pic may be this very picture
  QImage old = std::move(pic_);
  pic_ = std::move(next);  // shared, not copied: the surface that draws next detaches its own bitmap
  owner_->recycle(std::move(old));
  owner_->pictureAssigned();
  return *this;
}

PictureProp& PictureProp::operator=(const PictureProp& other) {
  return *this = other.pic_;
}

// ---- construction and property rules ----

PictureBox::PictureBox(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {
  installRules();
  applyScaleMode();
}

namespace {
void requireRange(int v, int lo, int hi) {
  if (v < lo || v > hi) raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value");
}
void requireFinite(Single v) {
  if (!std::isfinite(v)) raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value");
}
}  // namespace

void PictureBox::installRules() {
  Width.setSetter([this](const Single& w) { setOuterSize(w, Height); });
  Height.setSetter([this](const Single& h) { setOuterSize(Width, h); });
  // A new background colour clears the bitmap, the Picture staying laid on it. The box keeps its
  // size: only assigning a Picture resizes an AutoSize box, so a size given after the picture holds.
  BackColor.setSetter([this](const Colour& c) {
    BackColor.setRaw(c);
    clearTo(c);
  });

  ScaleMode.setSetter([this](const int& m) {
    requireRange(m, 0, 7);
    ScaleMode.setRaw(m);
    applyScaleMode();
  });
  // Any write to the scale itself makes it a user scale.
  auto userScale = [this](Prop<Single>& prop, bool isSize) {
    prop.setSetter([this, &prop, isSize](const Single& v) {
      requireFinite(v);
      if (isSize && v == 0) raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value");
      prop.setRaw(v);
      ScaleMode.setRaw(0);
    });
  };
  userScale(ScaleWidth, true);
  userScale(ScaleHeight, true);
  userScale(ScaleLeft, false);
  userScale(ScaleTop, false);

  DrawWidth.setSetter([this](const int& w) {
    requireRange(w, 1, 32767);
    DrawWidth.setRaw(w);
  });
  DrawMode.setSetter([this](const int& m) {
    requireRange(m, 1, 16);
    DrawMode.setRaw(m);
  });
  DrawStyle.setSetter([this](const int& s) {
    requireRange(s, 0, 6);
    DrawStyle.setRaw(s);
  });
  FillStyle.setSetter([this](const int& s) {
    requireRange(s, 0, 7);
    FillStyle.setRaw(s);
  });
  // A font the system lacks is taken and falls back to a near one when text is drawn; a name that
  // no font can have (empty, or with control characters) is refused.
  FontName.setSetter([this](const QString& name) {
    const bool control = std::any_of(name.begin(), name.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
    if (name.trimmed().isEmpty() || control) raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value");
    FontName.setRaw(name);
  });
  // Sizes in points, up to the largest the runtime's fonts take.
  FontSize.setSetter([this](const Single& size) {
    requireFinite(size);
    if (size <= 0 || size > 2160) raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value");
    FontSize.setRaw(size);
  });
}

// ---- size ----

bool PictureBox::parentInPixels() const {
  const Control* p = parent();
  return p && p->kind() == ControlKind::PictureBox &&
         static_cast<const PictureBox*>(p)->ScaleMode == 3;
}

double PictureBox::outerTwips(Single size) const {
  return parentInPixels() ? static_cast<double>(size) * 15.0 : static_cast<double>(size);
}

void PictureBox::setOuterSize(Single width, Single height) {
  requireFinite(width);
  requireFinite(height);
  if (width < 0 || height < 0)
    raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value");
  const double pw = std::nearbyint(outerTwips(width) / 15.0);
  const double ph = std::nearbyint(outerTwips(height) / 15.0);
  if (pw > raster::kMaxSide || ph > raster::kMaxSide || pw * ph > double(raster::kMaxPixels))
    raiseError(RuntimeError::OutOfMemory, "Out of memory");
  const bool twipsScale = userScaleIsOwnTwips();
  Width.setRaw(width);
  Height.setRaw(height);
  resizeBitmap();
  applyScaleMode();
  if (twipsScale) keepUserScaleInTwips();
}

// A user scale set to the box's own size in twips (as StopAllTools sets the canvas's) means twips,
// and goes on meaning twips when the box takes a new size; any other user scale stays as set.
bool PictureBox::userScaleIsOwnTwips() const {
  return ScaleMode == 0 && ScaleLeft == 0 && ScaleTop == 0 &&
         static_cast<double>(ScaleWidth) == outerTwips(Width) &&
         static_cast<double>(ScaleHeight) == outerTwips(Height);
}

void PictureBox::keepUserScaleInTwips() {
  ScaleWidth.setRaw(static_cast<Single>(outerTwips(Width)));
  ScaleHeight.setRaw(static_cast<Single>(outerTwips(Height)));
}

// Growing keeps what is there and shows the back colour in the new part; shrinking drops the cut
// part for good.
void PictureBox::resizeBitmap() {
  const int pw = static_cast<int>(std::nearbyint(outerTwips(Width) / 15.0));
  const int ph = static_cast<int>(std::nearbyint(outerTwips(Height) / 15.0));
  if (pw == image_.width() && ph == image_.height()) return;
  if (pw <= 0 || ph <= 0) {
    image_ = QImage();
    copiedFrom_ = 0;
    dirty_ = QRect();
    return;
  }
  QImage next(pw, ph, QImage::Format_RGB32);
  if (next.isNull()) raiseError(RuntimeError::OutOfMemory, "Out of memory");
  next.fill(raster::toPixel(BackColor));
  if (!image_.isNull()) copyPixels(next, image_, next.rect() & image_.rect());
  image_ = std::move(next);
  spare_ = QImage();
  copiedFrom_ = 0;
  dirty_ = image_.rect();
}

int PictureBox::pixelWidth() const { return image_.width(); }
int PictureBox::pixelHeight() const { return image_.height(); }

// ---- Picture, Cls, BackColor ----

void PictureBox::clearTo(Colour c) {
  if (image_.isNull()) return;
  const QImage& pic = Picture.pic_;
  // A picture that covers the whole bitmap needs no background: share it instead of copying, so
  // that `X.Picture = X.Image` and Cls after it cost nothing until the next drawing call.
  if (!pic.isNull() && pic.size() == image_.size() && pic.format() == QImage::Format_RGB32) {
    if (image_.isDetached() && copiedFrom_ == pic.cacheKey()) {
      // The bitmap is the picture plus what was drawn since: putting back only that part keeps a
      // Cls at every key or step (a live sample, typed text) from costing a whole copy.
      const QRect r = drawnSinceCopy_ & image_.rect();
      copyPixels(image_, pic, r);
      drawnSinceCopy_ = QRect();
      dirty_ |= r;
      return;
    }
    // The bitmap's own pixels are kept for the next drawing call to copy the picture into: a
    // Cls at every step (a live sample) then reuses one buffer instead of taking fresh memory.
    QImage own = std::move(image_);
    image_ = pic;
    recycle(std::move(own));
    copiedFrom_ = pic.cacheKey();
    drawnSinceCopy_ = QRect();
  } else {
    copiedFrom_ = 0;
    if (image_.isDetached()) {
      image_.fill(raster::toPixel(c));
    } else if (spare_.size() == image_.size()) {
      image_ = std::move(spare_);
      image_.fill(raster::toPixel(c));
    } else {
      // Still shared with a picture: a fresh bitmap is cheaper than a detach copy to overwrite.
      QImage fresh(image_.size(), QImage::Format_RGB32);
      if (fresh.isNull()) raiseError(RuntimeError::OutOfMemory, "Out of memory");
      fresh.fill(raster::toPixel(c));
      image_ = std::move(fresh);
    }
    if (!pic.isNull()) {
      QPainter p(&image_);
      p.drawImage(0, 0, pic);
    }
  }
  dirty_ = image_.rect();
}

void PictureBox::pictureAssigned() {
  if (AutoSize && !Picture.pic_.isNull()) adoptPictureSize();
  clearTo(BackColor);
}

void PictureBox::checkAutoSize(const QImage& pic) const {
  if (!AutoSize || pic.isNull()) return;
  if (pic.width() > raster::kMaxSide || pic.height() > raster::kMaxSide ||
      static_cast<long long>(pic.width()) * pic.height() > raster::kMaxPixels)
    raiseError(RuntimeError::OutOfMemory, "Out of memory");
}

void PictureBox::adoptPictureSize() {
  const QImage& pic = Picture.pic_;
  const Single unit = parentInPixels() ? 1.0f : 15.0f;
  const Single w = static_cast<Single>(pic.width()) * unit, h = static_cast<Single>(pic.height()) * unit;
  if (w == Width.get() && h == Height.get()) return;
  const bool twipsScale = userScaleIsOwnTwips();
  Width.setRaw(w);
  Height.setRaw(h);
  // The bitmap is about to show the picture whole: share it rather than keep the old drawing.
  if (pic.format() == QImage::Format_RGB32) {
    image_ = pic;
    spare_ = QImage();
    copiedFrom_ = 0;
  } else {
    image_ = QImage();
    resizeBitmap();
  }
  applyScaleMode();
  if (twipsScale) keepUserScaleInTwips();
}

void PictureBox::Cls() {
  clearTo(BackColor);
  CurrentX = 0;
  CurrentY = 0;
}

// ---- what the view and the device calls see ----

QImage& PictureBox::mutableBitmap() {
  if (!image_.isNull()) {
    editBitmap();
    image_.bits();
    dirty_ = image_.rect();
    drawnSinceCopy_ = image_.rect();
  }
  return image_;
}

QImage& PictureBox::editBitmap() {
  if (image_.isNull()) raiseError(RuntimeError::InvalidCall, "Invalid procedure call");
  // The one copy after `Picture = Image`: into the recycled buffer when there is one.
  if (!image_.isDetached() && spare_.size() == image_.size()) {
    copyPixels(spare_, image_, image_.rect());
    image_ = std::move(spare_);
    spare_ = QImage();
  }
  return image_;
}

void PictureBox::recycle(QImage&& old) {
  if (old.isDetached() && old.format() == QImage::Format_RGB32 && old.size() == image_.size() &&
      old.constBits() != image_.constBits())
    spare_ = std::move(old);
}

void PictureBox::markDirty(const QRect& pixels) {
  const QRect r = pixels & image_.rect();
  dirty_ |= r;
  drawnSinceCopy_ |= r;
}

QRect PictureBox::takeDirty() {
  const QRect r = dirty_;
  dirty_ = QRect();
  return r;
}

void PictureBox::Refresh() { refreshRequested_ = true; }

bool PictureBox::takeRefreshRequest() {
  const bool r = refreshRequested_;
  refreshRequested_ = false;
  return r;
}

}  // namespace qp
