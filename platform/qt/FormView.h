#pragma once
// Shows a form on the desktop: one Qt widget per control, kept in step with the controls'
// properties, and real pointer, key and drop events turned into the controls' events.
//
// The view only follows its form: the form and its controls stay the truth, and every change
// the program makes reaches the screen at the next sync (after each event, and every 16 ms for
// what timers and long drawings do). The view must not outlive its form.
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <unordered_map>

#include "platform/Form.h"

class QAction;
class QMenu;
class QStyle;

namespace qp {

class Menu;

// A multi-line text box's widget shows plain line breaks; its Text holds them as "\r\n", as the
// runtime's text boxes give them to the program.
QString fromLineBreaks(const QString& text);
QString toLineBreaks(const QString& text);

class FormView : public QObject {
 public:
  explicit FormView(Form& form);
  ~FormView() override;
  FormView(const FormView&) = delete;
  FormView& operator=(const FormView&) = delete;

  Form& form() const { return form_; }
  QMainWindow& window() { return *window_; }
  // The widget that shows a control, or null (timers, menus, controls not yet seen).
  QWidget* widgetFor(const Control* c) const;
  // The menu bar entry of a menu item.
  QAction* actionFor(const Menu* m) const;
  // Brings the widgets in step with the controls now.
  void sync();
  // Makes this window the active one, its focused control taking the keys.
  void activate();
  // The view whose window this is, or null.
  static FormView* viewOf(QWidget* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* e) override;

 private:
  struct Entry {
    Control* control;
    ControlKind kind;
    QPointer<QWidget> widget;
    std::uint64_t shown = 0;  // the control's revision last shown
  };

  // Runs a control's event under the error trap, then shows what it changed.
  void dispatch(const std::function<void()>& fn);
  void syncStructure();
  QWidget* createWidget(Control* c);
  QWidget* containerFor(Control* c);
  void apply(Entry& e);
  void applyForm();
  void applyMenu(Menu& m);
  void rebuildMenus();
  void addMenuItems(QMenu* into, Menu& m);
  void connectSignals(Control* c, QWidget* w);
  QRect geometryOf(const VisualControl& c) const;

  // Input, in FormInput.cpp.
  bool mouseEvent(VisualControl& c, QWidget* w, QEvent* e);
  bool keyEvent(QObject* watched, QEvent* e);
  bool dropEvent(VisualControl& c, QWidget* w, QEvent* e);
  bool windowEvent(QEvent* e);
  VisualControl* controlOf(QObject* widget) const;

  Form& form_;
  std::unique_ptr<QStyle> style_;  // the check boxes' look; it outlives the widgets that use it
  std::unique_ptr<QMainWindow> window_;
  QWidget* central_;
  QTimer poll_;
  std::unordered_map<const Control*, Entry> entries_;
  std::unordered_map<const QObject*, VisualControl*> byWidget_;
  std::unordered_map<const Menu*, QPointer<QAction>> actions_;
  std::uint64_t formShown_ = 0;
  std::size_t knownCount_ = 0;
  QSize appliedSize_;
  bool syncing_ = false;
};

}  // namespace qp
