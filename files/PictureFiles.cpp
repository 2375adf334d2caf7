// Pictures from and to files through Qt's image readers, within the program's limits.
#include "files/PictureFiles.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <filesystem>
#include <system_error>

#include "platform/Errors.h"

namespace qp {

namespace {

constexpr int kPathFileAccessError = 75;
// No picture within the pixel limit takes more room on disk than this, in any format we read.
constexpr qint64 kMaxPictureFileBytes = static_cast<qint64>(kMaxPicturePixels) * 4 + 64 * 1024 * 1024;

[[noreturn]] void invalidPicture() { raiseError(RuntimeError::InvalidPicture, "Invalid picture"); }

// A pipe or a device named like a picture would block the reader or never end; only plain files
// are opened.
void requirePlainFile(const QString& path) {
  std::error_code ec;
  const std::filesystem::path p(QFile::encodeName(path).toStdString());
  const auto st = std::filesystem::status(p, ec);
  if (ec || st.type() == std::filesystem::file_type::not_found)
    raiseError(RuntimeError::FileNotFound, "File not found");
  if (st.type() != std::filesystem::file_type::regular) invalidPicture();
}

// Qt's own ceiling on what one decode may allocate, as a second guard behind the header check for
// files whose header tells no size. Room for the largest picture at 4 bytes a pixel, and a margin.
void limitDecoderMemory() {
  static const bool once = [] {
    QImageReader::setAllocationLimit(static_cast<int>(kMaxPicturePixels * 4 / (1024 * 1024)) + 64);
    return true;
  }();
  (void)once;
}

}  // namespace

namespace {
bool withinLimits(QSize size) {
  return size.width() > 0 && size.height() > 0 && size.width() <= kMaxPictureSide &&
         size.height() <= kMaxPictureSide &&
         static_cast<long long>(size.width()) * size.height() <= kMaxPicturePixels;
}
}  // namespace

QImage LoadPicture(const QString& path) {
  if (path.isEmpty()) return QImage();
  requirePlainFile(path);
  limitDecoderMemory();
  // The whole file in one read: the decoders then take their many small reads from memory, where
  // reading them one by one from the file cost a third as much again as the decoding.
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) raiseError(RuntimeError::FileNotFound, "File not found");
  if (file.size() > kMaxPictureFileBytes) invalidPicture();
  QByteArray data = file.readAll();
  file.close();
  QBuffer buffer(&data);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  // The content decides, not the name: a .jpg that is really a bitmap still opens, and nothing
  // but these two formats is ever decoded.
  reader.setDecideFormatFromContent(true);
  const QByteArray format = reader.format();
  if (format != "bmp" && format != "jpeg") invalidPicture();
  const QSize claimed = reader.size();
  if (claimed.isValid() && !withinLimits(claimed)) invalidPicture();
  QImage picture;
  if (!reader.read(&picture) || picture.isNull()) invalidPicture();
  if (!withinLimits(picture.size())) invalidPicture();
  if (picture.format() != QImage::Format_RGB32) {
    picture = picture.convertToFormat(QImage::Format_RGB32);
    if (picture.isNull()) raiseError(RuntimeError::OutOfMemory, "Out of memory");
  }
  return picture;
}

void SavePicture(const QImage& picture, const QString& path) {
  if (picture.isNull()) raiseError(RuntimeError::InvalidPicture, "Invalid picture");
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) raiseError(kPathFileAccessError, "Path/File access error");
  QImageWriter writer(&file, "bmp");
  if (!writer.write(picture)) {
    file.cancelWriting();
    raiseError(kPathFileAccessError, "Path/File access error");
  }
  if (!file.commit()) raiseError(kPathFileAccessError, "Path/File access error");
}

}  // namespace qp
