// Names that are not UTF-8 and files that are not files, in the file lists and the load paths: every
// plain file whose name fits is listed and opens by its real bytes; pipes and devices never do,
// and no load waits on a pipe.
#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "FilesFixture.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "platform/FileNames.h"

namespace qp::test {
namespace {

class FileNamesTest : public FilesTest {
 protected:
  void SetUp() override {
    FilesTest::SetUp();
    const QByteArray folderBytes = QFile::encodeName(folder.path()) + "/";
    const QByteArray bmp = encode(patternPicture(6, 4), "BMP");
    for (const QByteArray name : {QByteArray("plain.bmp"), QByteArray("caf\xe9.bmp"), QByteArray("\xff\xfe.BMP")}) {
      const int fd = ::open((folderBytes + name).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      ASSERT_GE(fd, 0);
      ASSERT_EQ(::write(fd, bmp.constData(), static_cast<size_t>(bmp.size())), bmp.size());
      ::close(fd);
    }
    ASSERT_EQ(::mkfifo((folderBytes + "pipe.bmp").constData(), 0600), 0);
    ASSERT_EQ(::symlink("/dev/zero", (folderBytes + "zero.bmp").constData()), 0);
  }
  QStringList expected() {
    return {nameFromBytes("caf\xe9.bmp"), "plain.bmp", nameFromBytes("\xff\xfe.BMP")};
  }
};

TEST_F(FileNamesTest, EveryPlainFileIsListedAndOpensByItsBytes) {
  choose(f().mnuOpen);
  f().Dir1.Path = folder.path();
  f().File1.Pattern = "*.bmp";
  EXPECT_EQ(f().File1.items(), expected());
  EXPECT_EQ(readableName(f().File1.items().front()), QString::fromLatin1("caf\xe9.bmp"));
  for (const QString& name : expected()) {
    SCOPED_TRACE(readableName(name).toStdString());
    f().imPre.Picture = QImage();
    pressInExplorer(name);
    EXPECT_EQ(QImage(f().imPre.Picture).size(), QSize(6, 4));
  }
  ShowFileDialog(s(), FileMode::OpenImage);
  dialog().Dir1.Path = folder.path();
  EXPECT_EQ(dialog().File1.items(), expected());
}

TEST_F(FileNamesTest, APipeOrADeviceIsRefusedAtOnceOnEveryPath) {
  for (const char* name : {"pipe.bmp", "zero.bmp"}) {
    SCOPED_TRACE(name);
    const QImage before = canvas();
    f().PicPaint.OLEDragDrop({at(name)}, vbLeftButton, 0, 0, 0);
    EXPECT_EQ(canvas(), before);
    EXPECT_NE(m().CurrentFile, at(name));
    EXPECT_FALSE(trap([&] { LoadPicture(at(name)); }));
    EXPECT_FALSE(trap([&] { LoadAnyPicture(at(name)); }));
  }
}

}  // namespace
}  // namespace qp::test
