// Pictures from and to files through Qt's image readers, within the program's limits.
#include "files/PictureFiles.h"

#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "platform/Errors.h"
#include "platform/FileNames.h"
#include "platform/PictureDecode.h"
#include "surface/Raster.h"

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
  const std::filesystem::path p(bytesOfName(path).toStdString());
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
// Reads the whole file in one go: the decoders then take their many small reads from memory, where
// reading them one by one from the file cost a third as much again as the decoding.
QImage loadAccepted(const QString& path, const QList<QByteArray>& accepted, Colour backdrop) {
  if (path.isEmpty()) return QImage();
  requirePlainFile(path);
  limitDecoderMemory();
  // Opened without blocking and checked again once open: a pipe put in the file's place after the
  // look above would otherwise hold the program until someone writes to it.
  const int fd = ::open(bytesOfName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (fd < 0) raiseError(RuntimeError::FileNotFound, "File not found");
  struct stat st {};
  if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
    ::close(fd);
    invalidPicture();
  }
  QFile file;
  if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    ::close(fd);
    raiseError(RuntimeError::FileNotFound, "File not found");
  }
  if (file.size() > kMaxPictureFileBytes) invalidPicture();
  const QByteArray data = file.readAll();
  file.close();
  const QImage picture = DecodePicture(data, accepted, {kMaxPicturePixels, kMaxPictureSide}, raster::toPixel(backdrop));
  if (picture.isNull()) invalidPicture();
  return picture;
}
}  // namespace

QImage LoadPicture(const QString& path, Colour backdrop) {
  // Nothing but these formats is ever decoded, whatever the name says.
  return loadAccepted(path, {"bmp", "jpeg", "png"}, backdrop);
}

QImage LoadAnyPicture(const QString& path, Colour backdrop) { return loadAccepted(path, {}, backdrop); }

void SavePicture(const QImage& picture, const QString& path) { SavePicture(picture, path, "bmp"); }

void SavePicture(const QImage& picture, const QString& path, const char* format) {
  if (picture.isNull()) raiseError(RuntimeError::InvalidPicture, "Invalid picture");
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) raiseError(kPathFileAccessError, "Path/File access error");
  QImageWriter writer(&file, format);
  if (!writer.write(picture)) {
    file.cancelWriting();
    raiseError(kPathFileAccessError, "Path/File access error");
  }
  if (!file.commit()) raiseError(kPathFileAccessError, "Path/File access error");
}

}  // namespace qp
