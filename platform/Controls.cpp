// The runtime's rules for the plain controls: when events fire and which values are refused.
#include "platform/Controls.h"

#include <algorithm>
#include <utility>

#include "platform/Form.h"

namespace qp {

namespace {
void refuseValue() { raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value"); }

// Scroll bar limits and steps are 16-bit in the runtime; anything wider overflows there.
void check16(int v) {
  if (v < -32768 || v > 32767) raiseError(RuntimeError::Overflow, "Overflow");
}
}  // namespace

Label::Label(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {
  // Every write counts, even of the same text: hidden labels serve as one-shot triggers.
  Caption.setSetter([this](const QString& v) {
    Caption.setRaw(v);
    if (Change) Change();
  });
}

Frame::Frame(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {}

Shape::Shape(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {}

Line::Line(Form* form, Control* parent, QString name, int index)
    : Control(form, parent, std::move(name), index) {}

// ---------------------------------------------------------------------------------------------
// Scroll bars

ScrollBar::ScrollBar(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {
  Value.setSetter([this](const int& v) {
    const int lo = std::min<int>(Min, Max), hi = std::max<int>(Min, Max);
    if (v < lo || v > hi) refuseValue();
    if (v == Value.get()) return;
    Value.setRaw(v);
    if (Change) Change();
  });
  // A new range pulls the value inside it, and that move is a real change of the value.
  auto limitSetter = [this](Prop<int>& limit) {
    return [this, &limit](const int& v) {
      check16(v);
      limit.setRaw(v);
      const int lo = std::min<int>(Min, Max), hi = std::max<int>(Min, Max);
      const int inside = std::clamp<int>(Value, lo, hi);
      if (inside != Value.get()) {
        Value.setRaw(inside);
        if (Change) Change();
      }
    };
  };
  Min.setSetter(limitSetter(Min));
  Max.setSetter(limitSetter(Max));
  auto stepSetter = [](Prop<int>& step) {
    return [&step](const int& v) {
      check16(v);
      if (v < 0) refuseValue();
      step.setRaw(v);
    };
  };
  SmallChange.setSetter(stepSetter(SmallChange));
  LargeChange.setSetter(stepSetter(LargeChange));
}

void ScrollBar::stepBy(int towardsMin) {
  // Positive steps go toward Min, whichever way round Min and Max stand.
  const int min = Min, max = Max;
  const int dir = min <= max ? -1 : 1;  // the sign that moves a value toward Min
  const long long target = static_cast<long long>(Value.get()) + static_cast<long long>(dir) * towardsMin;
  const int lo = std::min(min, max), hi = std::max(min, max);
  Value = static_cast<int>(std::clamp<long long>(target, lo, hi));
}

void ScrollBar::arrowUp() { stepBy(SmallChange); }
void ScrollBar::arrowDown() { stepBy(-SmallChange.get()); }
void ScrollBar::pageUp() { stepBy(LargeChange); }
void ScrollBar::pageDown() { stepBy(-LargeChange.get()); }

bool ScrollBar::takeKey(int keyCode) {
  enum { kPageUp = 33, kPageDown = 34, kEnd = 35, kHome = 36, kLeft = 37, kUp = 38, kRight = 39, kDown = 40 };
  switch (keyCode) {
    case kUp: case kLeft: arrowUp(); return true;
    case kDown: case kRight: arrowDown(); return true;
    case kPageUp: pageUp(); return true;
    case kPageDown: pageDown(); return true;
    case kHome: Value = Min.get(); return true;
    case kEnd: Value = Max.get(); return true;
    default: return false;
  }
}

void ScrollBar::dragTo(int value) {
  const int lo = std::min<int>(Min, Max), hi = std::max<int>(Min, Max);
  const int v = std::clamp(value, lo, hi);
  // The thumb moves the value while dragging (Scroll reads it), and the drop reports the change.
  const bool changed = v != Value.get();
  Value.setRaw(v);
  if (Scroll) Scroll();
  if (changed && Change) Change();
}

// ---------------------------------------------------------------------------------------------
// Buttons

CheckBox::CheckBox(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {
  Value.setSetter([this](const int& v) {
    if (v < 0 || v > 2) refuseValue();
    if (v == Value.get()) return;
    Value.setRaw(v);
    VisualControl::raiseClick();
  });
}

void CheckBox::raiseClick() {
  // A user click checks an unchecked or grey box and unchecks a checked one; the write raises Click.
  Value = Value == 1 ? 0 : 1;
}

OptionButton::OptionButton(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {
  Value.setSetter([this](const bool& v) {
    if (!v) {
      Value.setRaw(false);
      return;
    }
    if (Value.get()) return;
    // Only one button of a container is on: the others of the same container go off quietly.
    if (Form* f = this->form()) {
      for (Control* c : f->controls()) {
        if (c != this && c->kind() == ControlKind::OptionButton && c->parent() == this->parent())
          static_cast<OptionButton*>(c)->Value.setRaw(false);
      }
    }
    Value.setRaw(true);
    VisualControl::raiseClick();
  });
}

void OptionButton::raiseClick() {
  if (Value.get()) VisualControl::raiseClick();  // a click on the chosen button still reports
  else Value = true;
}

CommandButton::CommandButton(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {}

TextBox::TextBox(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {
  Text.setSetter([this](const QString& v) {
    const qsizetype keeping = std::exchange(keeping_, 0);
    const QString& old = Text.get();
    if (v == old) return;
    // A typed key says what it kept; any other change kept what both texts begin with.
    kept_ = keeping > 0 ? keeping : std::mismatch(old.begin(), old.end(), v.begin(), v.end()).first - old.begin();
    Text.setRaw(v);
    ++edits_;
    if (Change) Change();
  });
}

// The text is taken out of the property for the edit, so that the string has a single owner and
// grows or shrinks in place instead of being copied whole for every key.
void TextBox::typeChar(QChar c) { typeText(QString(c)); }

void TextBox::typeText(const QString& typed) {
  QString text = Text.get();
  Text.setRaw(QString());
  keeping_ = text.size();
  text += typed;
  Text = std::move(text);
}

void TextBox::typeBackspace() {
  if (Text.get().isEmpty()) return;
  const qsizetype drop = Text.get().endsWith("\r\n") ? 2 : 1;  // a line break goes as one
  // The last character goes as any change does: taken out, the text would look unchanged.
  if (Text.get().size() == drop) {
    Text = QString();
    return;
  }
  QString text = Text.get();
  Text.setRaw(QString());
  text.chop(drop);
  keeping_ = text.size();
  Text = std::move(text);
}

// ---------------------------------------------------------------------------------------------
// Lists

ListBox::ListBox(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {
  ListIndex.setSetter([this](const int& v) {
    if (v < -1 || v >= ListCount()) refuseValue();
    if (v == ListIndex.get()) return;
    ListIndex.setRaw(v);
    VisualControl::raiseClick();
  });
}

void ListBox::AddItem(const QString& item) {
  items_.append(item);
  touch();
}

void ListBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) raiseError(RuntimeError::InvalidCall, "Invalid procedure call");
  items_.removeAt(index);
  // The chosen entry keeps its place in the list, or nothing is chosen when it went away.
  const int sel = ListIndex;
  if (sel == index) ListIndex.setRaw(-1);
  else if (sel > index) ListIndex.setRaw(sel - 1);
  touch();
}

void ListBox::Clear() {
  items_.clear();
  ListIndex.setRaw(-1);
  touch();
}

QString ListBox::List(int index) const {
  if (index < 0 || index >= ListCount()) return QString();
  return items_.at(index);
}

QString ListBox::Text() const { return List(ListIndex); }

Image::Image(Form* form, Control* parent, QString name, int index)
    : VisualControl(form, parent, std::move(name), index) {}

// ---------------------------------------------------------------------------------------------
// Menus

Menu::Menu(Form* form, Control* parent, QString name, QString caption, int index)
    : Control(form, parent, std::move(name), index) {
  Caption.setRaw(std::move(caption));
  if (parent && parent->kind() == ControlKind::Menu) static_cast<Menu*>(parent)->items_.push_back(this);
}

Menu::~Menu() {
  // Items left behind by their menu must not point at it any more.
  for (Menu* item : items_) item->setParent(nullptr);
  if (parent() && parent()->kind() == ControlKind::Menu) {
    auto& siblings = static_cast<Menu*>(parent())->items_;
    siblings.erase(std::remove(siblings.begin(), siblings.end(), this), siblings.end());
  }
}

}  // namespace qp
