#pragma once
// What the runtime gives every form: the loop and clock, Rnd, message boxes, the clipboard, the
// screen. One Runtime serves a session; tests make one with the virtual clock and fakes.
#include <QImage>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace qp {

class EventLoop;

// Rnd: a Single from 0 up to but not including 1, from one seedable generator.
class Random {
 public:
  explicit Random(std::uint32_t seed = 1) { Randomize(seed); }
  void Randomize(std::uint32_t seed);
  float Rnd();
  std::uint32_t state() const { return state_; }

 private:
  std::uint32_t state_ = 0;
};

enum MsgBoxResult { vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7 };
enum MsgBoxStyle { vbOKOnly = 0, vbOKCancel = 1, vbYesNoCancel = 3, vbYesNo = 4, vbQuestion = 32,
                   vbExclamation = 48, vbInformation = 64 };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows the box and returns the button chosen.
  virtual int MsgBox(const QString& prompt, int buttons, const QString& title) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  virtual void SetData(const QImage& picture) = 0;
  virtual QImage GetData() const = 0;  // a null image when there is no picture
  virtual bool hasPicture() const { return !GetData().isNull(); }
};

class Screen {
 public:
  virtual ~Screen() = default;
  virtual int Width() const = 0;   // twips
  virtual int Height() const = 0;  // twips
  virtual QStringList Fonts() const = 0;
  int FontCount() const { return static_cast<int>(Fonts().size()); }
  static constexpr int TwipsPerPixelX = 15;
  static constexpr int TwipsPerPixelY = 15;
};

struct Runtime {
  EventLoop& loop;
  Random& rnd;
  MessageBoxes& msgbox;
  Clipboard& clipboard;
  Screen& screen;
};

}  // namespace qp
