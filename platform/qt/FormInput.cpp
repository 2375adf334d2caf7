// Real pointer, key and drop events turned into the controls' events.
#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

#include "platform/Controls.h"
#include "platform/EventLoop.h"
#include "platform/qt/FormView.h"
#include "platform/qt/Keys.h"
#include "platform/qt/Widgets.h"
#include "surface/PictureBox.h"

namespace qp {

namespace {
constexpr double kTwipsPerPixel = 15.0;

int buttonsFor(Qt::MouseButtons b) {
  int r = 0;
  if (b & Qt::LeftButton) r |= vbLeftButton;
  if (b & Qt::RightButton) r |= vbRightButton;
  if (b & Qt::MiddleButton) r |= vbMiddleButton;
  return r;
}

// A point of the widget in the control's unit: its scale for a picture box, else twips.
QPointF toUnits(VisualControl& c, QWidget* w, QPointF pos) {
  if (c.kind() == ControlKind::PictureBox) return static_cast<PictureWidget*>(w)->toScale(pos);
  return pos * kTwipsPerPixel;
}

QStringList localFiles(const QMimeData* data) {
  QStringList files;
  if (!data || !data->hasUrls()) return files;
  for (const QUrl& u : data->urls())
    if (u.isLocalFile()) files << u.toLocalFile();
  return files;
}
}  // namespace

bool FormView::eventFilter(QObject* watched, QEvent* e) {
  if (watched == window_.get()) return windowEvent(e);
  VisualControl* c = controlOf(watched);
  if (!c) return false;
  auto* w = static_cast<QWidget*>(watched);
  switch (e->type()) {
    case QEvent::MouseButtonPress: case QEvent::MouseButtonRelease: case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      return mouseEvent(*c, w, e);
    case QEvent::Wheel:
      return true;  // the controls have no wheel; a bar must not move without its events
    case QEvent::KeyPress: case QEvent::KeyRelease:
      return keyEvent(watched, e);
    case QEvent::FocusIn:
      if (c != &form_) dispatch([this, c] { form_.setFocusTo(c); });
      return false;
    case QEvent::DragEnter: case QEvent::DragMove: case QEvent::Drop:
      return dropEvent(*c, w, e);
    default:
      return false;
  }
}

bool FormView::mouseEvent(VisualControl& c, QWidget* w, QEvent* e) {
  auto* me = static_cast<QMouseEvent*>(e);
  const QPointF at = toUnits(c, w, me->position());
  const int shift = shiftStateFor(me->modifiers());
  const float x = static_cast<float>(at.x()), y = static_cast<float>(at.y());
  switch (e->type()) {
    case QEvent::MouseButtonPress: {
      const int b = buttonsFor(me->button());
      if (c.kind() == ControlKind::PictureBox && w->focusPolicy() != Qt::NoFocus) w->setFocus(Qt::MouseFocusReason);
      dispatch([&] { c.raiseMouseDown(b, shift, x, y); });
      break;
    }
    case QEvent::MouseMove: {
      const int b = buttonsFor(me->buttons());
      dispatch([&] { c.raiseMouseMove(b, shift, x, y); });
      break;
    }
    case QEvent::MouseButtonRelease: {
      const int b = buttonsFor(me->button());
      const bool inside = w->rect().contains(me->position().toPoint());
      // MouseUp may hide or move the control; whether it was a click is decided before that.
      dispatch([&] { c.raiseMouseUp(b, shift, x, y); });
      if (inside && drawnByWindow(c.kind()) && b == vbLeftButton) dispatch([&] { c.raiseClick(); });
      break;
    }
    case QEvent::MouseButtonDblClick:
      // A text box reports its double click too (a text tool's box clears on it), and goes on
      // to select as usual.
      if (drawnByWindow(c.kind()) || c.kind() == ControlKind::TextBox) dispatch([&] { c.raiseDblClick(); });
      break;
    default: break;
  }
  // A control drawn by the window takes the whole event, so it does not go on to its container.
  return drawnByWindow(c.kind());
}

bool FormView::keyEvent(QObject* watched, QEvent* e) {
  // A key goes to the focused control only once, though Qt hands an ignored key to each parent.
  QWidget* focus = QApplication::focusWidget();
  VisualControl* focused = controlOf(focus);
  if (watched != focus && !(watched == central_ && !focused)) return false;
  VisualControl* target = focused ? focused : &form_;
  auto* ke = static_cast<QKeyEvent*>(e);
  const int shift = shiftStateFor(ke->modifiers());
  const bool preview = form_.KeyPreview && target != &form_;
  int code = keyCodeFor(ke->key(), ke->modifiers());
  if (e->type() == QEvent::KeyRelease) {
    if (code == 0) return false;
    // Qt marks each auto-repeat with a release before its press; the runtime knows only repeated
    // key downs and one key up when the key really comes up, and a timer stopped at every repeat
    // would never run while the key is held.
    if (ke->isAutoRepeat()) return drawnByWindow(target->kind());
    dispatch([&] {
      if (preview && form_.KeyUp) form_.KeyUp(code, shift);
      if (code != 0 && target->KeyUp) target->KeyUp(code, shift);
    });
    return drawnByWindow(target->kind());
  }
  if (code != 0) {
    dispatch([&] {
      if (preview && form_.KeyDown) form_.KeyDown(code, shift);
      if (code != 0 && target->KeyDown) target->KeyDown(code, shift);
    });
  }
  // A scroll bar moves by the runtime's rule, shared with the script runner, not by Qt's own.
  if (auto* bar = dynamic_cast<ScrollBar*>(target); bar && keyCodeFor(ke->key(), ke->modifiers()) != 0) {
    bool took = false;
    if (code != 0) dispatch([&] { took = bar->takeKey(code); });
    if (took || code == 0) return true;
  }
  int ascii = keyAsciiFor(*ke);
  const int typed = ascii;
  if (ascii != 0) {
    dispatch([&] {
      if (preview && form_.KeyPress) form_.KeyPress(ascii);
      if (ascii != 0 && target->KeyPress) target->KeyPress(ascii);
    });
  }
  // A handler that clears the character keeps it from the widget, as the runtime does.
  return drawnByWindow(target->kind()) || (typed != 0 && ascii == 0);
}

bool FormView::dropEvent(VisualControl& c, QWidget* w, QEvent* e) {
  if (!c.OLEDropEnabled) return false;
  auto* de = static_cast<QDropEvent*>(e);
  const QStringList files = localFiles(de->mimeData());
  if (files.isEmpty()) return false;
  de->acceptProposedAction();
  if (e->type() != QEvent::Drop) return true;
  const QPointF at = toUnits(c, w, de->position());
  const int b = buttonsFor(de->buttons());
  const int shift = shiftStateFor(de->modifiers());
  dispatch([&] {
    if (c.OLEDragDrop) c.OLEDragDrop(files, b, shift, static_cast<float>(at.x()), static_cast<float>(at.y()));
  });
  return true;
}

bool FormView::windowEvent(QEvent* e) {
  switch (e->type()) {
    case QEvent::Resize: {
      // The user resized the window: the form hears of its new size, which lays it out.
      const QSize size = window_->size();
      if (size != appliedSize_ && form_.Visible) {
        appliedSize_ = size;
        dispatch([&] {
          form_.Width = static_cast<float>(size.width() * kTwipsPerPixel);
          form_.Height = static_cast<float>(size.height() * kTwipsPerPixel);
        });
      }
      return false;
    }
    case QEvent::WindowActivate:
      // The user brought this window forward: keys go here until another is, or this one hides.
      if (form_.Visible) form_.runtime().loop.windows().activate(&form_);
      return false;
    case QEvent::Close:
      dispatch([this] {
        if (form_.Unload) form_.Unload();
        form_.Hide();
      });
      return false;
    default:
      return false;
  }
}

}  // namespace qp
