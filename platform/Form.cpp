// A form: the registry of its controls by name, its focus, and the Load/Resize/Activate order.
#include "platform/Form.h"

#include <algorithm>

namespace qp {

Form::Form(Runtime& rt, QString name) : VisualControl(nullptr, nullptr, std::move(name)), rt_(rt) {
  // A form starts hidden until Show; the controls on it default to visible.
  Visible.setRaw(false);
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
  // The controls are members of the derived form and are gone by now; forget any stragglers.
  focus_ = nullptr;
  order_.clear();
  byKey_.clear();
}

void Form::Show(bool modal) {
  modal_ = modal;
  if (!loaded_) {
    loaded_ = true;
    if (Load) Load();
    Visible = true;
    if (Resize) Resize();
    if (Activate) Activate();
    return;
  }
  if (!Visible) {
    Visible = true;
    if (Activate) Activate();
  }
}

void Form::Hide() {
  modal_ = false;
  Visible = false;
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
