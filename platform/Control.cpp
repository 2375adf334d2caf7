// Control registry and the revision counter that lets a view follow property changes.
#include "platform/Control.h"

#include "platform/Form.h"

namespace qp {

void markChanged(Control* owner) {
  if (owner) owner->touch();
}

Control::Control(Form* form, Control* parent, QString name, int index)
    : form_(form), parent_(parent), name_(std::move(name)), index_(index) {
  if (form_) form_->add(this);
}

Control::~Control() {
  if (form_) form_->remove(this);
}

QString Control::key() const {
  if (index_ < 0) return name_;
  return QStringLiteral("%1(%2)").arg(name_).arg(index_);
}

void Control::setParent(Control* p) {
  if (p == this) return;  // a control cannot hold itself; keep the old container
  parent_ = p;
  touch();
}

void Control::touch() {
  ++revision_;
  if (form_) {
    form_->noteChange();
  } else if (auto* self = dynamic_cast<Form*>(this)) {
    // A form is registered nowhere, but its own properties (Caption, size) must reach the view too.
    self->noteChange();
  }
}

void VisualControl::Move(Single left, Single top) {
  Left = left;
  Top = top;
}

void VisualControl::Move(Single left, Single top, Single width, Single height) {
  Left = left;
  Top = top;
  Width = width;
  Height = height;
}

void VisualControl::SetFocus() {
  // The runtime refuses the focus to a control that cannot take it; the caller's trap ends the
  // handler there.
  if (!Enabled || !Visible) raiseError(RuntimeError::InvalidCall, "Invalid procedure call");
  if (form()) form()->setFocusTo(this);
}

bool VisualControl::hasFocus() const {
  return form() && form()->ActiveControl() == this;
}

Single VisualControl::absLeft() const {
  Single x = Left;
  for (Control* p = parent(); p; p = p->parent()) {
    if (auto* v = dynamic_cast<VisualControl*>(p); v && p->kind() != ControlKind::Form) x += v->Left;
  }
  return x;
}

Single VisualControl::absTop() const {
  Single y = Top;
  for (Control* p = parent(); p; p = p->parent()) {
    if (auto* v = dynamic_cast<VisualControl*>(p); v && p->kind() != ControlKind::Form) y += v->Top;
  }
  return y;
}

}  // namespace qp
