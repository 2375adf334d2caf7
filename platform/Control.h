#pragma once
// The base of every control: a plain object with the properties and events the program reads and
// raises, registered in its form under its own name ("vVal1", "Shadow(5)") so that tests, scripts
// and the on-screen view can find it.
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>

#include "platform/Numeric.h"
#include "platform/Prop.h"

namespace qp {

class Form;

enum class ControlKind {
  Form, PictureBox, Label, Frame, Shape, Line, Timer, VScrollBar, HScrollBar, CheckBox,
  OptionButton, CommandButton, TextBox, ListBox, ComboBox, Image, Menu,
  DriveListBox, DirListBox, FileListBox,
};

// Mouse buttons and shift states as the events carry them.
enum MouseButton { vbLeftButton = 1, vbRightButton = 2, vbMiddleButton = 4 };
enum ShiftState { vbShiftMask = 1, vbCtrlMask = 2, vbAltMask = 4 };

// Controls that the window draws itself (pictures, labels, frames, images, the form) raise Click
// and DblClick from the pointer's press and release; buttons, bars and lists report their own.
inline bool drawnByWindow(ControlKind k) {
  switch (k) {
    case ControlKind::Form: case ControlKind::PictureBox: case ControlKind::Label: case ControlKind::Frame:
    case ControlKind::Image:
      return true;
    default:
      return false;
  }
}

class Control {
 public:
  // parent may be null for a control that sits directly on its form.
  Control(Form* form, Control* parent, QString name, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind kind() const = 0;

  const QString& Name() const { return name_; }
  int Index() const { return index_; }
  // The name a script or test uses: "vVal1", or "Shadow(5)" for a member of a control array.
  QString key() const;
  Form* form() const { return form_; }
  Control* parent() const { return parent_; }
  void setParent(Control* p);

  Prop<bool> Visible{this, true};
  Prop<bool> Enabled{this, true};
  Prop<QString> Tag{this};

  // Grows on every change of a property: a view compares it with the revision it last showed.
  std::uint64_t revision() const { return revision_; }
  void touch();

 private:
  Form* form_;
  Control* parent_;
  QString name_;
  int index_;
  std::uint64_t revision_ = 1;
};

// A control that takes space on its form and gets pointer and key events.
class VisualControl : public Control {
 public:
  using Control::Control;

  // Position and outer size in the parent's unit (twips on the forms).
  Prop<Single> Left{this, 0};
  Prop<Single> Top{this, 0};
  Prop<Single> Width{this, 0};
  Prop<Single> Height{this, 0};
  Prop<QString> ToolTipText{this};
  Prop<Colour> BackColor{this, 0xFFFFFF};
  Prop<Colour> ForeColor{this, 0x000000};
  Prop<int> MousePointer{this, 0};
  Prop<bool> TabStop{this, true};
  Prop<bool> OLEDropEnabled{this, false};  // takes files dropped from other programs

  void Move(Single left, Single top);
  void Move(Single left, Single top, Single width, Single height);
  void SetFocus();
  bool hasFocus() const;

  // Events. X and Y are in the control's own unit (its scale for a picture box, else twips).
  std::function<void(int Button, int Shift, Single X, Single Y)> MouseDown;
  std::function<void(int Button, int Shift, Single X, Single Y)> MouseMove;
  std::function<void(int Button, int Shift, Single X, Single Y)> MouseUp;
  std::function<void()> Click;
  std::function<void()> DblClick;
  std::function<void(int& KeyCode, int Shift)> KeyDown;
  std::function<void(int& KeyCode, int Shift)> KeyUp;
  std::function<void(int& KeyAscii)> KeyPress;
  std::function<void(const QStringList& Files, int Button, int Shift, Single X, Single Y)> OLEDragDrop;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;

  // Raise an event if someone listens; used by the views, the script runner and the tests.
  void raiseMouseDown(int button, int shift, Single x, Single y) { if (MouseDown) MouseDown(button, shift, x, y); }
  void raiseMouseMove(int button, int shift, Single x, Single y) { if (MouseMove) MouseMove(button, shift, x, y); }
  void raiseMouseUp(int button, int shift, Single x, Single y) { if (MouseUp) MouseUp(button, shift, x, y); }
  virtual void raiseClick() { if (Click) Click(); }
  void raiseDblClick() { if (DblClick) DblClick(); }

  // The outer rectangle in twips of the form, following the parents' positions.
  Single absLeft() const;
  Single absTop() const;
};

}  // namespace qp
