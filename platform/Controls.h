#pragma once
// The plain controls of the forms, with the runtime's rules where the program relies on them.
#include <QImage>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

#include "platform/Control.h"

namespace qp {

// A label: writing Caption raises Change on every write, even with the same text, since the program
// uses hidden labels as one-shot triggers.
class Label : public VisualControl {
 public:
  Label(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::Label; }
  Prop<QString> Caption{this};
  Prop<int> Alignment{this, 0};
  Prop<int> BackStyle{this, 1};  // 0 transparent, 1 opaque
  Prop<QString> FontName{this, "Arial"};
  Prop<Single> FontSize{this, 8};
  Prop<bool> FontBold{this, false};
  std::function<void()> Change;
};

class Frame : public VisualControl {
 public:
  Frame(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::Frame; }
  Prop<QString> Caption{this};
  Prop<int> BorderStyle{this, 1};
};

// Shape: 0 rectangle, 1 square, 2 oval, 3 circle, 4 rounded rectangle, 5 rounded square.
class Shape : public VisualControl {
 public:
  Shape(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::Shape; }
  Prop<int> Shape_{this, 0};  // the runtime's Shape property; named apart from the class
  Prop<Colour> BorderColor{this, 0x000000};
  Prop<int> BorderStyle{this, 1};  // 0 transparent, 1 solid, 2 dash, 3 dot, ...
  Prop<int> BorderWidth{this, 1};
  Prop<Colour> FillColor{this, 0x000000};
  Prop<int> FillStyle{this, 1};  // 0 solid, 1 transparent
  Prop<int> BackStyle{this, 0};  // 0 transparent, 1 opaque
};

// A line mark drawn by the window, never into a picture. X1..Y2 in the parent's unit.
class Line : public Control {
 public:
  Line(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::Line; }
  Prop<Single> X1{this, 0};
  Prop<Single> Y1{this, 0};
  Prop<Single> X2{this, 0};
  Prop<Single> Y2{this, 0};
  Prop<Colour> BorderColor{this, 0x000000};
  Prop<int> BorderWidth{this, 1};
  Prop<int> BorderStyle{this, 1};
};

// Scroll bars may have Min above Max: then the value grows as the thumb goes up (or left).
// Value is kept within the range of Min and Max; a write outside it is an invalid property value.
// Change is raised only when the value really changes; Scroll while the thumb is dragged.
class ScrollBar : public VisualControl {
 public:
  ScrollBar(Form* form, Control* parent, QString name, int index = -1);
  Prop<int> Min{this, 0};
  Prop<int> Max{this, 32767};
  Prop<int> Value{this, 0};
  Prop<int> SmallChange{this, 1};
  Prop<int> LargeChange{this, 1};
  std::function<void()> Change;
  std::function<void()> Scroll;

  // The user's actions: the arrow at the top (or left) end, the other arrow, a drag to a value.
  void arrowUp();
  void arrowDown();
  void pageUp();
  void pageDown();
  void dragTo(int value);  // raises Scroll for the drag, then Change at the drop
  // A key to the focused bar, after its KeyDown: the arrows Up and Left press the top (left)
  // arrow, Down and Right the other; Page Up and Page Down page; Home goes to Min and End to Max.
  // Returns false for a key the bar does not take.
  bool takeKey(int keyCode);

 private:
  void stepBy(int towardsMin);
};
class VScrollBar : public ScrollBar {
 public:
  using ScrollBar::ScrollBar;
  ControlKind kind() const override { return ControlKind::VScrollBar; }
};
class HScrollBar : public ScrollBar {
 public:
  using ScrollBar::ScrollBar;
  ControlKind kind() const override { return ControlKind::HScrollBar; }
};

// Value 0 unchecked, 1 checked, 2 grayed. Writing a new Value raises Click, as a click does.
class CheckBox : public VisualControl {
 public:
  CheckBox(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::CheckBox; }
  Prop<int> Value{this, 0};
  Prop<QString> Caption{this};
  void raiseClick() override;  // a user click toggles the value
};

// Setting Value True clears the other buttons of the same container and raises Click.
class OptionButton : public VisualControl {
 public:
  OptionButton(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::OptionButton; }
  Prop<bool> Value{this, false};
  Prop<QString> Caption{this};
  void raiseClick() override;
};

class CommandButton : public VisualControl {
 public:
  CommandButton(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::CommandButton; }
  Prop<QString> Caption{this};
};

// Text raises Change on a real change.
class TextBox : public VisualControl {
 public:
  TextBox(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::TextBox; }
  Prop<QString> Text{this};
  Prop<int> SelStart{this, 0};
  Prop<int> SelLength{this, 0};
  Prop<bool> MultiLine{this, false};
  std::function<void()> Change;
  // A key typed at the end of the text, with Change. Each costs the same however long the text
  // is already, so that typing a long text takes time in proportion to its length.
  void typeChar(QChar c);
  void typeText(const QString& typed);
  void typeBackspace();
  // How the text came to be what it is, for a reader that follows it from its end instead of
  // reading it whole at every key: the count of changes so far, and how many leading characters
  // the last change kept (a typed key all the old text, a backspace all but what it took, any
  // other change the stretch the old and the new text begin with).
  std::uint64_t edits() const { return edits_; }
  qsizetype keptByLastEdit() const { return kept_; }

 private:
  std::uint64_t edits_ = 0;
  qsizetype kept_ = 0;
  qsizetype keeping_ = 0;  // what the change under way keeps; the setter takes it
};

// A list: ListIndex -1 means nothing chosen; setting it raises Click; Text is the chosen entry.
class ListBox : public VisualControl {
 public:
  ListBox(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::ListBox; }
  Prop<int> ListIndex{this, -1};
  void AddItem(const QString& item);
  void RemoveItem(int index);
  void Clear();
  int ListCount() const { return static_cast<int>(items_.size()); }
  QString List(int index) const;  // "" outside the list, as the runtime gives
  QString Text() const;
  const QStringList& items() const { return items_; }

 private:
  QStringList items_;
};

class ComboBox : public ListBox {
 public:
  using ListBox::ListBox;
  ControlKind kind() const override { return ControlKind::ComboBox; }
};

// An image control: shows a picture, nothing else.
class Image : public VisualControl {
 public:
  Image(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::Image; }
  QImage Picture;
  Prop<bool> Stretch{this, false};
};

// A menu item. Items with children are submenus; Caption "-" is a separator.
class Menu : public Control {
 public:
  Menu(Form* form, Control* parent, QString name, QString caption, int index = -1);
  ~Menu() override;
  ControlKind kind() const override { return ControlKind::Menu; }
  Prop<QString> Caption{this};
  Prop<bool> Checked{this, false};
  std::function<void()> Click;
  void raiseClick() { if (Enabled && Visible && Click) Click(); }
  const std::vector<Menu*>& items() const { return items_; }

 private:
  std::vector<Menu*> items_;
};

}  // namespace qp
