// The recovery copy: a lock that says which running program keeps it, two timers (a frequent
// cheap look at whether the canvas changed, and the single-shot count of quiet time before the
// write), and the question at the next start.
#include "files/Recovery.h"

#include <QDir>
#include <QFile>
#include <QLockFile>

#include "core/Layout.h"
#include "core/Undo.h"
#include "files/PictureFiles.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {
constexpr int kDefaultDelayMs = 3000;
constexpr int kMaxDelayMs = 60000;
constexpr int kLongestLookMs = 500;
const char* const kCopyName = "recovery.bmp";
const char* const kPreviousName = "recovery-previous.bmp";

const char* const kOfferText =
    "Quillora Pro did not close normally last time.\r\nDo you want to bring back the picture it was showing?";
const char* const kOfferTitle = "Recover picture";
}  // namespace

QString recoveryFolder() {
  QString base = qEnvironmentVariable("XDG_STATE_HOME");
  // A relative value is to be ignored, as if unset.
  if (base.isEmpty() || QDir::isRelativePath(base)) {
    const QString home = qEnvironmentVariable("HOME");
    if (home.isEmpty()) return QString();
    base = home + "/.local/state";
  }
  return base + "/quillora";
}

int recoveryDelayMs() {
  bool ok = false;
  const int ms = qEnvironmentVariableIntValue("QUILLORA_RECOVERY_DELAY_MS", &ok);
  return ok && ms >= 1 && ms <= kMaxDelayMs ? ms : kDefaultDelayMs;
}

RecoveryKeeper::RecoveryKeeper(Session& s, const QString& folder, int delayMs)
    : s_(s),
      folder_(folder),
      form_(s.rt, "frmRecovery"),
      tLook_(&form_, "tLook", std::min(delayMs, kLongestLookMs)),
      tWrite_(&form_, "tWrite", delayMs) {
  if (folder_.isEmpty() || !QDir().mkpath(folder_)) return;
  lock_ = std::make_unique<QLockFile>(folder_ + "/recovery.lock");
  // Only a dead owner makes a claim stale, never its age: a program may run for days.
  lock_->setStaleLockTime(0);
  if (!lock_->tryLock(0)) return;
  armed_ = true;
  // A write cut short leaves its temporary file beside the copy, which is still whole.
  QDir dir(folder_);
  for (const QString& stray : dir.entryList({QString(kCopyName) + ".*"}, QDir::Files | QDir::Hidden))
    dir.remove(stray);
  seen_ = written_ = s_.f.PicPaint.bitmap().cacheKey();
  tLook_.Timer_ = [this] { look(); };
  tWrite_.Timer_ = [this] { write(); };
  // A stroke is written once it is finished: the button's press and release are watched, which
  // leaves the moves between them as they were.
  PictureBox& canvas = s_.f.PicPaint;
  down_ = canvas.MouseDown;
  up_ = canvas.MouseUp;
  canvas.MouseDown = [this](int button, int shift, Single x, Single y) {
    buttonDown_ = true;
    if (down_) down_(button, shift, x, y);
  };
  canvas.MouseUp = [this](int button, int shift, Single x, Single y) {
    if (up_) up_(button, shift, x, y);
    buttonDown_ = false;
    if (waiting_) {
      waiting_ = false;
      restartCount();
    }
  };
  tLook_.Enabled = true;
}

RecoveryKeeper::~RecoveryKeeper() {
  if (!armed_) return;
  tLook_.Enabled = false;
  tWrite_.Enabled = false;
  s_.f.PicPaint.MouseDown = down_;
  s_.f.PicPaint.MouseUp = up_;
  QFile::remove(copyPath());
  lock_->unlock();
}

QString RecoveryKeeper::copyPath() const { return folder_ + "/" + kCopyName; }
QString RecoveryKeeper::previousPath() const { return folder_ + "/" + kPreviousName; }

void RecoveryKeeper::offer() {
  if (!armed_ || !QFile::exists(copyPath())) return;
  // Renamed before the question: a picture that brought the program down must not be offered at
  // every start. The old copy stays there for the user to open by hand after a No.
  QFile::remove(previousPath());
  if (!QFile::rename(copyPath(), previousPath())) QFile::remove(copyPath());
  if (s_.rt.msgbox.MsgBox(kOfferText, vbYesNo + vbQuestion, kOfferTitle) != vbYes) return;
  frmCanvas& f = s_.f;
  trap([&] {
    const QImage picture = LoadPicture(previousPath(), f.PicPaint.BackColor);
    TakeUndoSnapshot(s_);
    // Named as a canvas drawn on without a file is, so that it keeps the picture's size.
    s_.m.CurrentFile = "Untitled.bmp";
    f.PicPaint.Picture = picture;
    f.pPix.Picture = f.PicPaint.Image;
    Form_Resize(s_);  // sets the title too
  });
}

void RecoveryKeeper::look() {
  const qint64 key = s_.f.PicPaint.bitmap().cacheKey();
  if (key == seen_) return;
  seen_ = key;
  restartCount();
}

void RecoveryKeeper::restartCount() {
  tWrite_.Enabled = false;
  tWrite_.Enabled = true;
}

void RecoveryKeeper::write() {
  tWrite_.Enabled = false;
  if (buttonDown_) {
    waiting_ = true;  // the release starts the count again
    return;
  }
  const QImage canvas = s_.f.PicPaint.Image;
  const qint64 key = s_.f.PicPaint.bitmap().cacheKey();
  if (key == written_ || canvas.isNull()) return;
  // A failed write (a full disk) keeps the last whole copy; the next change tries again.
  if (!trap([&] { SavePicture(canvas, copyPath()); })) return;
  written_ = key;
  if (written) written();
}

}  // namespace qp
