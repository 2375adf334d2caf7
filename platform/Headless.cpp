#include "platform/Headless.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <algorithm>

namespace qp {

int HeadlessMessageBoxes::firstButton(int buttons) {
  switch (buttons & 7) {
    case vbOKCancel: return vbOK;
    case 2: return vbAbort;  // Abort, Retry, Ignore
    case vbYesNoCancel:
    case vbYesNo: return vbYes;
    case 5: return vbRetry;  // Retry, Cancel
    default: return vbOK;
  }
}

int HeadlessMessageBoxes::MsgBox(const QString& prompt, int buttons, const QString& title) {
  int answer = defaultAnswer_ ? defaultAnswer_ : firstButton(buttons);
  if (!queued_.empty()) {
    answer = queued_.front();
    queued_.pop_front();
  }
  shown_.push_back({title, prompt, buttons, answer});
  return answer;
}

namespace {
QStringList systemFonts() {
  // The font database needs a GUI application; without one there are no fonts to list.
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return {};
  QStringList fonts = QFontDatabase::families();
  // Sorted, so that a list of fonts reads the same on every machine that has the same fonts.
  std::sort(fonts.begin(), fonts.end(), [](const QString& a, const QString& b) {
    return QString::compare(a, b, Qt::CaseInsensitive) < 0;
  });
  return fonts;
}
}  // namespace

FixedScreen::FixedScreen(int widthPx, int heightPx)
    : widthPx_(widthPx), heightPx_(heightPx), fontsKnown_(false) {}

FixedScreen::FixedScreen(int widthPx, int heightPx, QStringList fonts)
    : widthPx_(widthPx), heightPx_(heightPx), fonts_(std::move(fonts)), fontsKnown_(true) {}

QStringList FixedScreen::Fonts() const {
  if (!fontsKnown_) {
    fonts_ = systemFonts();
    fontsKnown_ = !fonts_.isEmpty();
  }
  return fonts_;
}

}  // namespace qp
