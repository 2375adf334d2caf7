// What the user does with Qt's own widgets and the menus, turned into the controls' events.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "platform/Controls.h"
#include "platform/qt/FormView.h"
#include "platform/qt/Keys.h"

namespace qp {

namespace {
bool isTopMenu(const Menu& m) { return !m.parent() || m.parent()->kind() != ControlKind::Menu; }

// A list's entries take the pointer in its viewport; a button let go there is the list's MouseUp
// (a right click on a list is how some lists offer their options).
class ReleaseWatch : public QObject {
 public:
  ReleaseWatch(QObject* parent, std::function<void(int button, int shift)> onRelease)
      : QObject(parent), onRelease_(std::move(onRelease)) {}
  bool eventFilter(QObject*, QEvent* e) override {
    if (e->type() != QEvent::MouseButtonRelease) return false;
    auto* me = static_cast<QMouseEvent*>(e);
    int b = 0;
    if (me->button() == Qt::LeftButton) b = vbLeftButton;
    if (me->button() == Qt::RightButton) b = vbRightButton;
    if (me->button() == Qt::MiddleButton) b = vbMiddleButton;
    onRelease_(b, shiftStateFor(me->modifiers()));
    return false;
  }

 private:
  std::function<void(int, int)> onRelease_;
};
}  // namespace

void FormView::rebuildMenus() {
  QMenuBar* bar = window_->menuBar();
  bar->clear();
  actions_.clear();
  bool any = false;
  for (Control* c : form_.controls()) {
    if (c->kind() != ControlKind::Menu) continue;
    auto& m = static_cast<Menu&>(*c);
    if (!isTopMenu(m)) continue;
    any = true;
    if (m.items().empty()) {
      QAction* a = bar->addAction(m.Caption.get());
      connect(a, &QAction::triggered, this, [this, &m] { dispatch([&m] { m.raiseClick(); }); });
      actions_[&m] = a;
    } else {
      QMenu* sub = bar->addMenu(m.Caption.get());
      // Opening a menu is its Click: the program updates its items there.
      connect(sub, &QMenu::aboutToShow, this, [this, &m] { dispatch([&m] { m.raiseClick(); }); });
      actions_[&m] = sub->menuAction();
      addMenuItems(sub, m);
    }
    applyMenu(m);
  }
  bar->setVisible(any);
}

void FormView::addMenuItems(QMenu* into, Menu& parent) {
  for (Menu* item : parent.items()) {
    Menu& m = *item;
    if (!m.items().empty()) {
      QMenu* sub = into->addMenu(m.Caption.get());
      connect(sub, &QMenu::aboutToShow, this, [this, &m] { dispatch([&m] { m.raiseClick(); }); });
      actions_[&m] = sub->menuAction();
      addMenuItems(sub, m);
    } else if (m.Caption.get() == "-") {
      actions_[&m] = into->addSeparator();
    } else {
      QAction* a = into->addAction(m.Caption.get());
      connect(a, &QAction::triggered, this, [this, &m] { dispatch([&m] { m.raiseClick(); }); });
      actions_[&m] = a;
    }
    applyMenu(m);
  }
}

void FormView::applyMenu(Menu& m) {
  QAction* a = actionFor(&m);
  if (!a) return;
  if (!a->isSeparator()) a->setText(m.Caption);
  a->setEnabled(m.Enabled);
  a->setVisible(m.Visible);
  a->setCheckable(m.Checked);
  a->setChecked(m.Checked);
}

void FormView::connectSignals(Control* c, QWidget* w) {
  switch (c->kind()) {
    case ControlKind::VScrollBar: case ControlKind::HScrollBar: {
      auto* s = static_cast<ScrollBar*>(c);
      auto* bar = static_cast<QScrollBar*>(w);
      // Qt has already moved its slider; the control decides where it really goes.
      connect(bar, &QAbstractSlider::actionTriggered, this, [this, s, bar](int action) {
        const int proposed = bar->sliderPosition();
        const int min = s->Min, max = s->Max;
        const bool towardMin = min <= max ? proposed < s->Value : proposed > s->Value;
        switch (action) {
          case QAbstractSlider::SliderSingleStepAdd: case QAbstractSlider::SliderSingleStepSub:
            dispatch([s, towardMin] { towardMin ? s->arrowUp() : s->arrowDown(); });
            break;
          case QAbstractSlider::SliderPageStepAdd: case QAbstractSlider::SliderPageStepSub:
            dispatch([s, towardMin] { towardMin ? s->pageUp() : s->pageDown(); });
            break;
          case QAbstractSlider::SliderToMinimum: case QAbstractSlider::SliderToMaximum:
            dispatch([s, proposed] { s->Value = proposed; });
            break;
          default: return;  // the thumb's drag comes through sliderMoved
        }
        bar->setSliderPosition(s->Value);
      });
      // While the thumb is dragged the value follows it with Scroll; Change comes at the drop.
      auto dragStart = std::make_shared<int>(0);
      connect(bar, &QAbstractSlider::sliderPressed, this, [s, dragStart] { *dragStart = s->Value; });
      connect(bar, &QAbstractSlider::sliderMoved, this, [this, s](int pos) {
        dispatch([s, pos] {
          s->Value.setRaw(pos);
          if (s->Scroll) s->Scroll();
        });
      });
      connect(bar, &QAbstractSlider::sliderReleased, this, [this, s, dragStart] {
        dispatch([s, dragStart] {
          if (s->Value != *dragStart && s->Change) s->Change();
        });
      });
      break;
    }
    case ControlKind::CheckBox: case ControlKind::OptionButton: case ControlKind::CommandButton: {
      auto* v = static_cast<VisualControl*>(c);
      connect(static_cast<QAbstractButton*>(w), &QAbstractButton::clicked, this, [this, v] {
        dispatch([v] { v->raiseClick(); });
      });
      break;
    }
    case ControlKind::TextBox: {
      auto* t = static_cast<TextBox*>(c);
      if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        connect(edit, &QLineEdit::textEdited, this, [this, t](const QString& text) {
          dispatch([t, text] { t->Text = text; });
        });
      } else if (auto* lines = qobject_cast<QPlainTextEdit*>(w)) {
        // Showing the program's text is done with the signals blocked, so this is the user typing.
        connect(lines, &QPlainTextEdit::textChanged, this, [this, t, lines] {
          dispatch([t, text = toLineBreaks(lines->toPlainText())] { t->Text = text; });
        });
      }
      break;
    }
    case ControlKind::ListBox: case ControlKind::FileListBox: case ControlKind::DirListBox: {
      auto* l = static_cast<ListBox*>(c);
      connect(static_cast<QListWidget*>(w), &QListWidget::currentRowChanged, this, [this, l](int row) {
        dispatch([l, row] { l->ListIndex = row; });
      });
      connect(static_cast<QListWidget*>(w), &QListWidget::itemDoubleClicked, this, [this, l] {
        dispatch([l] { l->raiseDblClick(); });
      });
      // The list's own area takes the pointer; its press reaches the control once the entry under
      // it is chosen, so a handler reads the entry pressed. Hovering an entry is a move.
      auto* list = static_cast<QListWidget*>(w);
      list->setMouseTracking(true);
      connect(list, &QAbstractItemView::pressed, this, [this, l] {
        int b = 0;
        const Qt::MouseButtons held = QApplication::mouseButtons();
        if (held & Qt::LeftButton) b |= vbLeftButton;
        if (held & Qt::RightButton) b |= vbRightButton;
        if (held & Qt::MiddleButton) b |= vbMiddleButton;
        const int shift = shiftStateFor(QApplication::keyboardModifiers());
        dispatch([l, b, shift] { l->raiseMouseDown(b, shift, 0, 0); });
      });
      list->viewport()->installEventFilter(new ReleaseWatch(list, [this, l](int b, int shift) {
        dispatch([l, b, shift] { l->raiseMouseUp(b, shift, 0, 0); });
      }));
      connect(list, &QAbstractItemView::entered, this, [this, l] {
        dispatch([l] { l->raiseMouseMove(0, 0, 0, 0); });
      });
      break;
    }
    case ControlKind::ComboBox: case ControlKind::DriveListBox: {
      auto* l = static_cast<ListBox*>(c);
      connect(static_cast<QComboBox*>(w), &QComboBox::activated, this, [this, l](int row) {
        dispatch([l, row] { l->ListIndex = row; });
      });
      break;
    }
    default: break;
  }
}

}  // namespace qp
