// A form: the registry of its controls by name, its focus, and the Load/Resize/Activate order.
#include "platform/Form.h"

#include <algorithm>

#include "platform/EventLoop.h"

namespace qp {

Form::Form(Runtime& rt, QString name) : VisualControl(nullptr, nullptr, std::move(name)), rt_(rt) {
  // A form starts hidden until Show; the controls on it default to visible.
  Visible.setRaw(false);
  // Showing a window makes it the active one; hiding it gives the keys back to the one before and
  // ends a modal Show that waits for it, however the program hides it (Hide or Visible = False).
  Visible.setSetter([this](const bool& v) {
    if (v == Visible.get()) return;
    Visible.setRaw(v);
    if (v) {
      rt_.loop.windows().activate(this);
      return;
    }
    modal_ = false;
    rt_.loop.windows().remove(this);
    rt_.loop.windowHidden();
  });
  // The program lays its controls out in Resize, so it must hear of every real change of size.
  Width.setSetter([this](const Single& v) {
    if (v == Width.get()) return;
    Width.setRaw(v);
    if (Resize) Resize();
  });
  Height.setSetter([this](const Single& v) {
    if (v == Height.get()) return;
    Height.setRaw(v);
    if (Resize) Resize();
  });
}

Form::~Form() {
  rt_.loop.windows().remove(this);
  // The controls are members of the derived form and are gone by now; forget any stragglers.
  focus_ = nullptr;
  order_.clear();
  byKey_.clear();
}

void Form::Show(bool modal) {
  if (!loaded_) {
    loaded_ = true;
    if (Load) Load();
    Visible = true;
    if (Resize) Resize();
    if (Activate) Activate();
  } else if (!Visible) {
    Visible = true;
    if (Activate) Activate();
  } else {
    rt_.loop.windows().activate(this);
  }
  WindowOrder& windows = rt_.loop.windows();
  if (!modal || !Visible || windows.waiting(this)) return;
  // A modal Show returns only when the window hides: the caller waits here while the loop
  // delivers the input that closes it (the user's, or a script's next lines), and meanwhile the
  // other windows take no input.
  modal_ = true;
  windows.beginWait(this);
  rt_.loop.runModal([this] { return !Visible.get(); });
  windows.endWait(this);
}

void Form::Hide() {
  Visible = false;
}

Form* WindowOrder::active() const {
  for (Form* f : order_)
    if (f->Visible) return f;
  return nullptr;
}

Form* WindowOrder::modal() const {
  for (Form* f : order_)
    if (f->Visible && f->isModal()) return f;
  return nullptr;
}

void Form::add(Control* c) {
  if (!c) return;
  byKey_.insert(c->key(), c);
  order_.push_back(c);
  noteChange();
}

void Form::remove(Control* c) {
  order_.erase(std::remove(order_.begin(), order_.end(), c), order_.end());
  auto it = byKey_.find(c->key());
  if (it != byKey_.end() && it.value() == c) byKey_.erase(it);
  if (focus_ == c) focus_ = nullptr;
  noteChange();
}

Control* Form::find(const QString& key) const {
  return byKey_.value(key, nullptr);
}

void Form::setFocusTo(VisualControl* c) {
  if (c == focus_) return;
  VisualControl* old = focus_;
  focus_ = c;
  noteChange();
  if (old && old->LostFocus) old->LostFocus();
  // A LostFocus handler may have moved the focus elsewhere; then that choice stands.
  if (c && focus_ == c && c->GotFocus) c->GotFocus();
}

void Form::PopupMenu(Menu& m) {
  lastPopup_ = &m;
  if (PopupHandler) PopupHandler(m);
}

}  // namespace qp
