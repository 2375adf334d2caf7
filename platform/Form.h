#pragma once
// A window: its controls are members of the derived form, each registered here under its name.
#include <QHash>
#include <QString>
#include <vector>

#include "platform/Control.h"
#include "platform/Runtime.h"

namespace qp {

class Menu;

class Form : public VisualControl {
 public:
  Form(Runtime& rt, QString name);
  ~Form() override;
  ControlKind kind() const override { return ControlKind::Form; }
  Runtime& runtime() const { return rt_; }

  Prop<QString> Caption{this};
  Prop<int> WindowState{this, 0};
  Prop<bool> KeyPreview{this, false};
  Prop<int> BorderStyle{this, 2};
  // Raised when Width or Height change, and by Show.
  std::function<void()> Load;
  std::function<void()> Resize;
  std::function<void()> Unload;
  std::function<void()> Terminate;
  std::function<void()> Activate;

  // Show and Hide as the runtime has them; the first Show raises Load.
  void Show(bool modal = false);
  void Hide();
  bool loaded() const { return loaded_; }
  // The window is closed for good: hidden, and the next Show loads it afresh (raises Load).
  void markUnloaded() {
    Hide();
    loaded_ = false;
  }
  bool isModal() const { return modal_; }

  // Registry of the controls by name.
  void add(Control* c);
  void remove(Control* c);
  Control* find(const QString& key) const;
  const std::vector<Control*>& controls() const { return order_; }

  // The control that has the keyboard focus.
  VisualControl* ActiveControl() const { return focus_; }
  void setFocusTo(VisualControl* c);

  // Pops a menu up at the pointer (the runtime's PopupMenu). A view on screen shows it; without one
  // the request is only remembered, for scripts and tests to see.
  void PopupMenu(Menu& m);
  std::function<void(Menu&)> PopupHandler;
  Menu* lastPopup() const { return lastPopup_; }

  // Any property of any control of the form changed since the view last looked.
  std::uint64_t formRevision() const { return formRevision_; }
  void noteChange() { ++formRevision_; }

 private:
  Runtime& rt_;
  QHash<QString, Control*> byKey_;
  std::vector<Control*> order_;
  VisualControl* focus_ = nullptr;
  Menu* lastPopup_ = nullptr;
  bool loaded_ = false;
  bool modal_ = false;
  std::uint64_t formRevision_ = 1;
};

}  // namespace qp
