#pragma once
// No lost work after a crash. While the program runs in its window, a copy of the canvas is kept in
// the user's state folder, written a few seconds after the last change (never while a button is
// down on the canvas), through the same safe save as Save. A clean exit removes it; the next start
// after a crash finds it and offers, once, to bring the picture back.
//
// Only one running program keeps the copy: a second one started meanwhile neither offers nor
// writes, so that it never offers the live copy of the first.
#include <QString>
#include <functional>
#include <memory>

#include "core/Session.h"
#include "platform/Form.h"
#include "platform/Timer.h"

class QLockFile;

namespace qp {

// $XDG_STATE_HOME/quillora, else ~/.local/state/quillora; "" when neither can be told.
QString recoveryFolder();
// The quiet time after the last change before the copy is written: 3000 ms, unless
// QUILLORA_RECOVERY_DELAY_MS holds a number from 1 to 60000 (tests wait no longer than they must).
int recoveryDelayMs();

class RecoveryKeeper {
 public:
  RecoveryKeeper(Session& s, const QString& folder, int delayMs);
  // A clean exit: the copy goes, with the claim on the folder.
  ~RecoveryKeeper();
  RecoveryKeeper(const RecoveryKeeper&) = delete;
  RecoveryKeeper& operator=(const RecoveryKeeper&) = delete;

  // This program keeps the copy (the folder could be made and no other running program keeps one).
  bool armed() const { return armed_; }
  QString copyPath() const;
  // The copy a previous run left, if any, renamed aside so that it is offered only once.
  QString previousPath() const;
  // At start: when a previous run left a copy, asks whether to bring it back. Either way the copy
  // is then renamed to previousPath(), so the question is not asked again for it.
  void offer();
  // Told after each copy written (a driven window reports it, so that a test knows when to kill).
  std::function<void()> written;

 private:
  void look();   // the canvas changed since the last look: the count starts again
  void write();  // the quiet time passed
  void restartCount();

  Session& s_;
  QString folder_;
  std::unique_ptr<QLockFile> lock_;
  bool armed_ = false;
  Form form_;
  Timer tLook_, tWrite_;
  qint64 seen_ = 0, written_ = 0;  // the canvas bitmap's identity when looked at, when written
  bool buttonDown_ = false, waiting_ = false;
  std::function<void(int, int, Single, Single)> down_, up_;
};

}  // namespace qp
