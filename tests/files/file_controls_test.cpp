// The disk lists as the program relies on them: what File1 keeps chosen, how Dir1 moves, when they tell.
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/FileControls.h"
#include "platform/Form.h"
#include "platform/Headless.h"

namespace qp::test {
namespace {

struct Lists : ::testing::Test {
  Lists() {
    const QDir d(dir.path());
    for (const char* name : {"b.bmp", "c.jpg", "endsjpg", "notes.txt"}) QFile(d.filePath(name)).open(QIODevice::WriteOnly);
    d.mkdir("Zeta");
  }
  HeadlessRuntime h;
  Form form{h.rt(), "form"};
  QTemporaryDir dir;
};

TEST_F(Lists, AChosenFileStaysChosenWhenListedAgainButNotInAnotherFolder) {
  FileListBox files(&form, nullptr, "File1");
  files.Pattern = "*.*";
  files.Path = dir.path();
  int clicks = 0;
  files.Click = [&] { ++clicks; };
  files.ListIndex = static_cast<int>(files.items().indexOf("c.jpg"));
  EXPECT_EQ(clicks, 1);
  files.Pattern = "*jpg";  // the file window's JPEG filter, with no dot
  EXPECT_EQ(files.items(), QStringList({"c.jpg", "endsjpg"}));
  EXPECT_EQ(files.FileName(), "c.jpg");
  EXPECT_EQ(clicks, 1);  // listing again is not a click
  files.Path = dir.filePath("Zeta");
  EXPECT_EQ(files.FileName(), "");
}

TEST_F(Lists, FoldersOpenWithOneChoiceTellOnlyRealMovesAndRefuseWhatIsNotThere) {
  DirListBox folders(&form, nullptr, "Dir1");
  int changes = 0;
  folders.Change = [&] { ++changes; };
  folders.Path = dir.path();
  EXPECT_EQ(changes, 1);
  folders.Path = dir.path() + "/";  // the same folder, written another way
  EXPECT_EQ(changes, 1);
  const int zeta = static_cast<int>(folders.items().indexOf(QRegularExpression("\\s*Zeta")));
  ASSERT_GE(zeta, 0);
  folders.ListIndex = zeta;
  EXPECT_EQ(folders.Path.get(), QDir(dir.path()).filePath("Zeta"));
  EXPECT_EQ(changes, 2);
  // The way back up is in the list: the entry before the current one is its parent.
  folders.ListIndex = folders.ListIndex - 1;
  EXPECT_EQ(folders.Path.get(), QDir::cleanPath(dir.path()));
  folders.ListIndex = 0;
  EXPECT_EQ(folders.Path.get(), "/");
  // A place that is not there is refused and nothing moves.
  EXPECT_THROW(folders.Path = dir.filePath("gone"), RuntimeError);
  EXPECT_EQ(folders.Path.get(), "/");
  EXPECT_EQ(changes, 4);
  FileListBox files(&form, nullptr, "File1");
  EXPECT_THROW(files.Path = dir.filePath("notes.txt"), RuntimeError);
  DriveListBox drives(&form, nullptr, "Drive1");
  EXPECT_THROW(drives.Drive = dir.filePath("gone"), RuntimeError);
}

}  // namespace
}  // namespace qp::test
