// The inputs of a script, delivered as the window delivers a user's: pointer events in the
// control's own unit, clicks after the release, keys to the focused control with the window's
// key preview first, values changed the way the user changes them.
#include <QFileInfo>

#include "platform/Controls.h"
#include "platform/Errors.h"
#include "platform/Form.h"
#include "script/Runner.h"
#include "surface/PictureBox.h"
#include "app/Program.h"

namespace qp::script {

namespace {

constexpr double kTwipsPerPixel = 15.0;

// A press on these gives them the keyboard focus, as the window's widgets take it on a click.
bool takesFocusOnPress(ControlKind k) {
  switch (k) {
    case ControlKind::PictureBox: case ControlKind::CheckBox: case ControlKind::OptionButton:
    case ControlKind::CommandButton: case ControlKind::TextBox: case ControlKind::ListBox:
    case ControlKind::ComboBox:
      return true;
    default:
      return false;
  }
}

// Size of the control in screen pixels: a picture box's bitmap, else its outer size in twips.
QSizeF pixelSize(const VisualControl& c) {
  if (auto* pb = dynamic_cast<const PictureBox*>(&c)) return QSizeF(pb->pixelWidth(), pb->pixelHeight());
  return QSizeF(c.Width / kTwipsPerPixel, c.Height / kTwipsPerPixel);
}

// A pixel inside the control in the unit its events carry: a picture box's present scale
// (twips on the canvas, pixels on pPix), twips for everything else.
QPointF toUnits(const VisualControl& c, double px, double py) {
  if (auto* pb = dynamic_cast<const PictureBox*>(&c)) {
    const double ux = pb->pixelsPerUnitX(), uy = pb->pixelsPerUnitY();
    return QPointF(pb->ScaleLeft + (ux != 0 ? px / ux : 0.0), pb->ScaleTop + (uy != 0 ? py / uy : 0.0));
  }
  return QPointF(px * kTwipsPerPixel, py * kTwipsPerPixel);
}

float f(double v) { return static_cast<float>(v); }

}  // namespace

Runner::Outcome Runner::pointer(const Command& c) {
  Outcome o;
  VisualControl* v = visual(c, o);
  if (!v) return o;
  const QPointF at = toUnits(*v, c.x, c.y);
  if (c.op == Op::Press) {
    activate(*v);
    if (takesFocusOnPress(v->kind()) && v->form()) trap([&] { v->form()->setFocusTo(v); });
    trap([&] { v->raiseMouseDown(c.button, c.shift, f(at.x()), f(at.y())); });
  } else if (c.op == Op::Move) {
    trap([&] { v->raiseMouseMove(c.button, c.shift, f(at.x()), f(at.y())); });
  } else {
    // Whether it was a click is decided before MouseUp, which may hide or move the control.
    const QSizeF size = pixelSize(*v);
    const bool inside = c.x >= 0 && c.y >= 0 && c.x < size.width() && c.y < size.height();
    trap([&] { v->raiseMouseUp(c.button, c.shift, f(at.x()), f(at.y())); });
    if (inside && drawnByWindow(v->kind()) && c.button == vbLeftButton) trap([&] { v->raiseClick(); });
  }
  host_.afterInput();
  return Outcome::Done;
}

Runner::Outcome Runner::click(const Command& c) {
  if (c.op == Op::Click && dynamic_cast<Menu*>(resolve(c.name))) return menu(c);
  Outcome o;
  VisualControl* v = visual(c, o);
  if (!v) return o;
  Command step = c;
  if (c.op == Op::DblClick && c.hasPoint) {
    // The second press of a recorded double click: the window reports it as DblClick alone.
    trap([&] { v->raiseDblClick(); });
    host_.afterInput();
    return Outcome::Done;
  }
  const QSizeF size = pixelSize(*v);
  step.x = size.width() / 2;
  step.y = size.height() / 2;
  const int times = c.op == Op::DblClick ? 2 : 1;
  for (int i = 0; i < times; ++i) {
    step.op = Op::Press;
    if (i == 1) {
      trap([&] { v->raiseDblClick(); });
      host_.afterInput();
    } else {
      pointer(step);
    }
    step.op = Op::Release;
    pointer(step);
    // Buttons and boxes hear of the click from their own widget, after the release.
    if (!drawnByWindow(v->kind()) && c.button == vbLeftButton && reachable(*v)) {
      trap([&] { v->raiseClick(); });
      host_.afterInput();
    }
  }
  return Outcome::Done;
}

Runner::Outcome Runner::menu(const Command& c) {
  auto* m = dynamic_cast<Menu*>(resolve(c.name));
  if (!m) return error(c, QString("no menu item named '%1'").arg(c.name));
  // Opening each menu on the way is its Click, as the window raises it when the menu drops down.
  std::vector<Menu*> path;
  for (Control* x = m; x && x->kind() == ControlKind::Menu; x = x->parent()) path.insert(path.begin(), static_cast<Menu*>(x));
  for (Menu* step : path) {
    if (!step->Visible || !step->Enabled || (step->form() && !step->form()->Visible) || behindModal(step->form())) {
      if (!quietUnreachable_)
        err_ << "line " << c.line << ": note: " << step->key()
             << (behindModal(step->form()) ? " is behind a modal window" : " is hidden or disabled")
             << "; nothing is chosen" << Qt::endl;
      return Outcome::Done;
    }
    trap([&] { step->raiseClick(); });
    host_.afterInput();
    if (host_.quitRequested()) break;
  }
  return Outcome::Done;
}

void Runner::keyDown(int code, int shift) {
  Form& form = keyForm();
  VisualControl* target = form.ActiveControl() ? form.ActiveControl() : &form;
  const bool preview = form.KeyPreview && target != &form;
  trap([&] {
    if (preview && form.KeyDown) form.KeyDown(code, shift);
    if (code != 0 && target->KeyDown) target->KeyDown(code, shift);
    // What the handlers left of the key reaches the bar, as in the window.
    if (auto* bar = dynamic_cast<ScrollBar*>(target); bar && code != 0) bar->takeKey(code);
  });
}

void Runner::keyUp(int code, int shift) {
  Form& form = keyForm();
  VisualControl* target = form.ActiveControl() ? form.ActiveControl() : &form;
  const bool preview = form.KeyPreview && target != &form;
  trap([&] {
    if (preview && form.KeyUp) form.KeyUp(code, shift);
    if (code != 0 && target->KeyUp) target->KeyUp(code, shift);
  });
}

void Runner::keyPress(int ascii) {
  Form& form = keyForm();
  VisualControl* target = form.ActiveControl() ? form.ActiveControl() : &form;
  const bool preview = form.KeyPreview && target != &form;
  trap([&] {
    if (preview && form.KeyPress) form.KeyPress(ascii);
    if (ascii != 0 && target->KeyPress) target->KeyPress(ascii);
    // A character that no handler took away edits a text box, as its widget would.
    if (auto* t = dynamic_cast<TextBox*>(target); t && ascii != 0) {
      if (ascii == 8) t->typeBackspace();
      else if (ascii >= 32) t->typeChar(QChar(ascii));
      else if (ascii == 13 && t->MultiLine) t->typeText("\r\n");  // Enter starts a new line
    }
  });
}

Runner::Outcome Runner::key(const Command& c) {
  if (c.keyAction != KeyAction::Up) {
    keyDown(c.key, c.shift);
    if (!host_.quitRequested()) {
      const int ascii = keyAsciiForCode(c.key, c.shift);
      if (ascii != 0) keyPress(ascii);
    }
    host_.afterInput();
  }
  if (c.keyAction != KeyAction::Down && !host_.quitRequested()) {
    keyUp(c.key, c.shift);
    host_.afterInput();
  }
  return Outcome::Done;
}

Runner::Outcome Runner::type(const Command& c) {
  Outcome o;
  VisualControl* v = visual(c, o);
  if (!v) return o;
  if (v->form()) {
    activate(*v);
    trap([&] { v->form()->setFocusTo(v); });
  }
  for (QChar ch : c.text) {
    if (host_.quitRequested()) break;
    const char16_t u = ch.unicode();
    int code = 0, shift = 0;
    if (u >= 'a' && u <= 'z') code = u - 32;
    else if (u >= 'A' && u <= 'Z') { code = u; shift = 1; }
    else if (u >= '0' && u <= '9') code = u;
    else if (u == ' ') code = 32;
    if (code) keyDown(code, shift);
    if (u < 256 && !host_.quitRequested()) keyPress(u);
    if (code && !host_.quitRequested()) keyUp(code, shift);
    host_.afterInput();
  }
  return Outcome::Done;
}

Runner::Outcome Runner::set(const Command& c) {
  Control* ctl = resolve(c.name);
  if (!ctl) return error(c, QString("no control named '%1'").arg(c.name));
  const QString& prop = c.property;
  bool isNumber = false;
  const int n = c.text.trimmed().toInt(&isNumber, 0);
  auto needNumber = [&] { return error(c, QString("'%1' is not a whole number").arg(c.text)); };
  // A value the control refuses is an error of the script, hidden control or not; only a value
  // the control would take goes nowhere when the user cannot reach the control.
  std::function<void()> apply;
  if (auto* bar = dynamic_cast<ScrollBar*>(ctl); bar && prop == "Value") {
    if (!isNumber) return needNumber();
    if (n < std::min<int>(bar->Min, bar->Max) || n > std::max<int>(bar->Min, bar->Max))
      return error(c, QString("%1 runs from %2 to %3").arg(c.name).arg(bar->Min.get()).arg(bar->Max.get()));
    apply = [bar, n] { bar->dragTo(n); };  // the thumb dragged there: Scroll, then Change
  } else if (auto* box = dynamic_cast<CheckBox*>(ctl); box && prop == "Value") {
    if (!isNumber || n < 0 || n > 2) return error(c, "a check box's Value is 0, 1 or 2");
    apply = [box, n] { box->Value = n; };
  } else if (auto* opt = dynamic_cast<OptionButton*>(ctl); opt && prop == "Value") {
    if (!isNumber) return needNumber();
    apply = [opt, n] { opt->Value = n != 0; };
  } else if (auto* text = dynamic_cast<TextBox*>(ctl); text && prop == "Text") {
    apply = [text, &c] { text->Text = c.text; };
  } else if (auto* list = dynamic_cast<ListBox*>(ctl); list && prop == "ListIndex") {
    if (!isNumber || n < -1 || n >= list->ListCount())
      return error(c, QString("%1 has entries 0 to %2").arg(c.name).arg(list->ListCount() - 1));
    apply = [list, n] { list->ListIndex = n; };
  } else if (auto* form = dynamic_cast<Form*>(ctl); form && (prop == "Width" || prop == "Height")) {
    if (!isNumber || n < 0) return needNumber();
    // The user dragging the window's edge: the form hears of its new size in twips.
    apply = [form, &prop, n] {
      if (prop == "Width") form->Width = static_cast<float>(n);
      else form->Height = static_cast<float>(n);
    };
  } else {
    return error(c, QString("a user cannot set %1.%2").arg(c.name, prop));
  }
  if (auto* v = dynamic_cast<VisualControl*>(ctl); v && !dynamic_cast<Form*>(ctl) && !reachable(*v)) {
    if (!quietUnreachable_) err_ << "line " << c.line << ": note: " << c.name << " is hidden or disabled; nothing changes" << Qt::endl;
    return Outcome::Done;
  }
  trap(apply);
  host_.afterInput();
  return Outcome::Done;
}

}  // namespace qp::script
