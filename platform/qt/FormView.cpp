// Building the widgets of a form and keeping them in step with the controls.
#include "platform/qt/FormView.h"

#include <QPalette>

#include <QApplication>
#include <QScreen>

#include <QAbstractSlider>
#include <QCheckBox>
#include <QCursor>
#include <QMenu>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <unordered_set>

#include "platform/Controls.h"
#include "platform/EventLoop.h"
#include "platform/FileNames.h"
#include "platform/qt/Widgets.h"
#include "surface/PictureBox.h"

namespace qp {

namespace {
constexpr double kTwipsPerPixel = 15.0;
constexpr int kPollMs = 16;
constexpr const char* kViewProperty = "quillora.view";

// Positions come from program arithmetic; a wild value must not become undefined int conversion.
int toPixels(double v) {
  if (!std::isfinite(v)) return 0;
  return static_cast<int>(std::lround(std::clamp(v, -1.0e6, 1.0e6)));
}

bool isGraphical(ControlKind k) {
  return k == ControlKind::Label || k == ControlKind::Shape || k == ControlKind::Line || k == ControlKind::Image;
}

// dpr: the screen's pixels to a logical pixel, for a pointer drawn by the program.
QCursor cursorFor(const VisualControl& c, qreal dpr) {
  switch (c.MousePointer.get()) {
    case 2: return Qt::CrossCursor;
    case 3: return Qt::IBeamCursor;
    case 5: case 15: return Qt::SizeAllCursor;
    case 6: return Qt::SizeBDiagCursor;
    case 7: return Qt::SizeVerCursor;
    case 8: return Qt::SizeFDiagCursor;
    case 9: return Qt::SizeHorCursor;
    case 10: return Qt::UpArrowCursor;
    case 11: return Qt::WaitCursor;
    case 12: return Qt::ForbiddenCursor;
    case 13: return Qt::BusyCursor;
    case 99:
      if (c.kind() == ControlKind::PictureBox) {
        const QImage& icon = static_cast<const PictureBox&>(c).MouseIcon;
        if (!icon.isNull()) {
          // The icon is in logical pixels like the picture under it: on a scaled screen it grows
          // with it, each pixel a crisp block, and the hot spot stays at its centre.
          const QSize device = (QSizeF(icon.size()) * dpr).toSize();
          QPixmap shown = QPixmap::fromImage(icon.scaled(device, Qt::IgnoreAspectRatio, Qt::FastTransformation));
          shown.setDevicePixelRatio(dpr);
          return QCursor(shown);
        }
      }
      return Qt::ArrowCursor;
    default: return Qt::ArrowCursor;
  }
}
}  // namespace

FormView::FormView(Form& form)
    : form_(form), style_(std::make_unique<DesignStyle>()), window_(std::make_unique<QMainWindow>()) {
  window_->setFont(formFont());  // every widget of the window inherits it
  central_ = new QWidget(window_.get());
  window_->setCentralWidget(central_);
  window_->installEventFilter(this);
  central_->installEventFilter(this);
  central_->setMouseTracking(true);
  central_->setFocusPolicy(Qt::ClickFocus);
  byWidget_[central_] = &form_;
  // Another view finds this one through its window, to hand it the keys when a window hides.
  window_->setProperty(kViewProperty, QVariant::fromValue(static_cast<void*>(this)));
  sync();
  // A menu popped up by the program is the menu bar's own, shown at the pointer.
  form_.PopupHandler = [this](Menu& m) {
    sync();
    if (QAction* a = actionFor(&m); a && a->menu()) a->menu()->popup(QCursor::pos());
  };
  // Timers and long drawings change controls between input events; the poll shows that.
  poll_.setInterval(kPollMs);
  connect(&poll_, &QTimer::timeout, this, [this] { sync(); });
  poll_.start();
}

FormView::~FormView() {
  form_.PopupHandler = nullptr;
  poll_.stop();
  window_->removeEventFilter(this);
  for (auto& [c, e] : entries_)
    if (e.widget) e.widget->removeEventFilter(this);
}

QWidget* FormView::widgetFor(const Control* c) const {
  auto it = entries_.find(c);
  return it == entries_.end() ? nullptr : it->second.widget.data();
}

QAction* FormView::actionFor(const Menu* m) const {
  auto it = actions_.find(m);
  return it == actions_.end() ? nullptr : it->second.data();
}

VisualControl* FormView::controlOf(QObject* w) const {
  auto it = byWidget_.find(w);
  return it == byWidget_.end() ? nullptr : it->second;
}

void FormView::dispatch(const std::function<void()>& fn) {
  trap(fn);
  sync();
}

void FormView::sync() {
  if (syncing_) return;
  syncing_ = true;
  trap([this] {
    syncStructure();
    if (formShown_ != form_.revision()) applyForm();
    for (auto& [c, e] : entries_) {
      if (e.kind == ControlKind::Menu) {
        if (e.shown != c->revision()) {
          applyMenu(*static_cast<Menu*>(e.control));
          e.shown = c->revision();
        }
        continue;
      }
      if (!e.widget) continue;
      if (e.shown != c->revision()) apply(e);
      // Drawing on a picture changes no property; the picture tells what it drew on instead.
      if (e.kind == ControlKind::PictureBox) {
        auto& pic = static_cast<PictureBox&>(*e.control);
        auto* w = static_cast<PictureWidget*>(e.widget.data());
        const QRect dirty = pic.takeDirty();
        const bool refresh = pic.takeRefreshRequest();
        if (w->shownSize != pic.bitmap().size() || refresh) w->update();
        else if (!dirty.isEmpty()) w->update(dirty.translated(w->bitmapOrigin()));
      } else if (e.kind == ControlKind::Image) {
        auto* w = static_cast<ImageWidget*>(e.widget.data());
        if (w->shownKey != static_cast<Image&>(*e.control).Picture.cacheKey()) w->update();
      }
    }
  });
  syncing_ = false;
}

void FormView::syncStructure() {
  const auto& controls = form_.controls();
  bool changed = controls.size() != knownCount_;
  if (!changed) {
    for (Control* c : controls) {
      auto it = entries_.find(c);
      if (it == entries_.end() || it->second.kind != c->kind() ||
          (it->second.kind != ControlKind::Menu && it->second.kind != ControlKind::Timer && !it->second.widget)) {
        changed = true;
        break;
      }
    }
  }
  if (!changed) return;
  knownCount_ = controls.size();
  // Forget controls that have gone, without touching them: their memory is no longer theirs.
  const std::unordered_set<const Control*> present(controls.begin(), controls.end());
  bool menusChanged = false;
  for (auto it = entries_.begin(); it != entries_.end();) {
    const bool gone = !present.count(it->first) || it->second.kind != it->second.control->kind();
    if (!gone) { ++it; continue; }
    if (it->second.kind == ControlKind::Menu) menusChanged = true;
    if (QWidget* w = it->second.widget) {
      byWidget_.erase(w);
      w->hide();
      w->deleteLater();
    }
    it = entries_.erase(it);
  }
  for (Control* c : controls) {
    if (c->kind() == ControlKind::Menu && !entries_.count(c)) menusChanged = true;
    createWidget(c);
  }
  if (menusChanged) rebuildMenus();
  // The runtime keeps its drawn controls (labels, shapes, lines, images) beneath the others.
  for (auto it = controls.rbegin(); it != controls.rend(); ++it)
    if (isGraphical((*it)->kind()))
      if (QWidget* w = widgetFor(*it)) w->lower();
}

QWidget* FormView::containerFor(Control* c) {
  Control* p = c->parent();
  if (!p || p == &form_ || p->kind() == ControlKind::Menu) return central_;
  if (QWidget* w = createWidget(p)) return w;
  return central_;
}

QWidget* FormView::createWidget(Control* c) {
  if (auto it = entries_.find(c); it != entries_.end() && (it->second.widget || it->second.kind == ControlKind::Menu ||
                                                           it->second.kind == ControlKind::Timer))
    return it->second.widget;
  Entry e{c, c->kind(), nullptr, 0};
  if (e.kind == ControlKind::Menu || e.kind == ControlKind::Timer || e.kind == ControlKind::Form) {
    entries_[c] = e;
    return nullptr;
  }
  entries_.erase(c);  // a widget lost with its container is made again
  QWidget* parent = containerFor(c);
  QWidget* w = nullptr;
  switch (e.kind) {
    case ControlKind::PictureBox: w = new PictureWidget(static_cast<PictureBox&>(*c), parent); break;
    case ControlKind::Label: w = new LabelWidget(static_cast<Label&>(*c), parent); break;
    case ControlKind::Frame: w = new QGroupBox(parent); break;
    case ControlKind::Shape: w = new ShapeWidget(static_cast<Shape&>(*c), parent); break;
    case ControlKind::Line: w = new LineWidget(static_cast<Line&>(*c), parent); break;
    case ControlKind::VScrollBar: w = new QScrollBar(Qt::Vertical, parent); break;
    case ControlKind::HScrollBar: w = new QScrollBar(Qt::Horizontal, parent); break;
    case ControlKind::CheckBox:
      w = new QCheckBox(parent);
      w->setStyle(style_.get());
      break;
    case ControlKind::OptionButton: {
      auto* r = new QRadioButton(parent);
      r->setStyle(style_.get());
      r->setAutoExclusive(false);  // the controls decide which button is on
      w = r;
      break;
    }
    case ControlKind::CommandButton: w = new QPushButton(parent); break;
    case ControlKind::TextBox:
      // MultiLine is fixed when the window is made, as the runtime has it.
      if (static_cast<TextBox&>(*c).MultiLine) w = new QPlainTextEdit(parent);
      else w = new QLineEdit(parent);
      break;
    case ControlKind::ListBox: case ControlKind::FileListBox: case ControlKind::DirListBox:
      w = new QListWidget(parent);
      break;
    case ControlKind::ComboBox: case ControlKind::DriveListBox: w = new QComboBox(parent); break;
    case ControlKind::Image: w = new ImageWidget(static_cast<Image&>(*c), parent); break;
    default: w = new QWidget(parent); break;
  }
  e.widget = w;
  entries_[c] = e;
  if (auto* v = dynamic_cast<VisualControl*>(c)) {
    byWidget_[w] = v;
    w->installEventFilter(this);
    w->setMouseTracking(true);
    if (e.kind == ControlKind::PictureBox) w->setFocusPolicy(Qt::ClickFocus);
  }
  connectSignals(c, w);
  Entry& stored = entries_[c];
  apply(stored);
  return w;
}

QRect FormView::geometryOf(const VisualControl& c) const {
  // Inside a picture box a control is placed in the box's own scale; elsewhere in twips.
  if (const Control* p = c.parent(); p && p->kind() == ControlKind::PictureBox) {
    const auto& pic = static_cast<const PictureBox&>(*p);
    QPoint origin;
    if (auto* pw = dynamic_cast<PictureWidget*>(widgetFor(p))) origin = pw->bitmapOrigin();
    const double ux = pic.pixelsPerUnitX(), uy = pic.pixelsPerUnitY();
    return QRect(origin.x() + toPixels((c.Left - pic.ScaleLeft) * ux), origin.y() + toPixels((c.Top - pic.ScaleTop) * uy),
                 std::max(0, toPixels(c.Width * ux)), std::max(0, toPixels(c.Height * uy)));
  }
  return QRect(toPixels(c.Left / kTwipsPerPixel), toPixels(c.Top / kTwipsPerPixel),
               std::max(0, toPixels(c.Width / kTwipsPerPixel)), std::max(0, toPixels(c.Height / kTwipsPerPixel)));
}

void FormView::apply(Entry& e) {
  QWidget* w = e.widget;
  Control& c = *e.control;
  e.shown = c.revision();
  if (e.kind == ControlKind::Line) {
    auto* lw = static_cast<LineWidget*>(w);
    lw->setGeometry(lw->box());
    lw->setVisible(c.Visible);
    lw->update();
    return;
  }
  auto* v = dynamic_cast<VisualControl*>(&c);
  if (!v) return;
  const QRect g = geometryOf(*v);
  if (w->geometry() != g) w->setGeometry(g);
  w->setEnabled(v->Enabled);
  w->setToolTip(v->ToolTipText);
  if (v->MousePointer == 0) w->unsetCursor();
  else w->setCursor(cursorFor(*v, w->devicePixelRatioF()));
  w->setAcceptDrops(v->OLEDropEnabled);
  const QSignalBlocker quiet(w);  // showing a value is not the user changing it
  if (e.kind == ControlKind::Frame || e.kind == ControlKind::CheckBox || e.kind == ControlKind::OptionButton) {
    // Panels and their boxes show the form's colours, as designed, not the desktop theme's.
    QPalette pal = w->palette();
    // Buttons fill with the Button role, frames with Window: give both the control's colours.
    pal.setColor(QPalette::Window, toQColor(v->BackColor));
    pal.setColor(QPalette::Button, toQColor(v->BackColor));
    pal.setColor(QPalette::WindowText, toQColor(v->ForeColor));
    pal.setColor(QPalette::ButtonText, toQColor(v->ForeColor));
    if (pal != w->palette()) w->setPalette(pal);
    w->setAutoFillBackground(true);
  }
  switch (e.kind) {
    case ControlKind::Label: {
      auto& l = static_cast<Label&>(c);
      const QFont font = layoutFont(l.FontName, l.FontSize > 0 ? l.FontSize.get() : 8, l.FontBold);
      if (w->font() != font) w->setFont(font);
      break;
    }
    case ControlKind::Frame: static_cast<QGroupBox*>(w)->setTitle(static_cast<Frame&>(c).Caption); break;
    case ControlKind::VScrollBar: case ControlKind::HScrollBar: {
      auto& s = static_cast<ScrollBar&>(c);
      auto* bar = static_cast<QScrollBar*>(w);
      // Qt wants its minimum below its maximum; a bar counting upward shows inverted instead.
      bar->setRange(std::min<int>(s.Min, s.Max), std::max<int>(s.Min, s.Max));
      bar->setInvertedAppearance(s.Min > s.Max);
      bar->setInvertedControls(s.Min > s.Max);
      bar->setSingleStep(std::max(1, s.SmallChange.get()));
      bar->setPageStep(std::max(1, s.LargeChange.get()));
      bar->setValue(s.Value);
      bar->setSliderPosition(s.Value);
      break;
    }
    case ControlKind::CheckBox: {
      auto& ck = static_cast<CheckBox&>(c);
      auto* box = static_cast<QCheckBox*>(w);
      box->setText(ck.Caption);
      box->setTristate(ck.Value == 2);
      box->setCheckState(ck.Value == 1 ? Qt::Checked : ck.Value == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
      break;
    }
    case ControlKind::OptionButton: {
      auto& op = static_cast<OptionButton&>(c);
      static_cast<QRadioButton*>(w)->setText(op.Caption);
      static_cast<QRadioButton*>(w)->setChecked(op.Value);
      break;
    }
    case ControlKind::CommandButton: static_cast<QPushButton*>(w)->setText(static_cast<CommandButton&>(c).Caption); break;
    case ControlKind::TextBox: {
      const QString& text = static_cast<TextBox&>(c).Text;
      if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        if (edit->text() != text) edit->setText(text);
      } else if (auto* lines = qobject_cast<QPlainTextEdit*>(w)) {
        const QString shown = fromLineBreaks(text);
        if (lines->toPlainText() != shown) lines->setPlainText(shown);
      }
      break;
    }
    case ControlKind::ListBox: case ControlKind::FileListBox: case ControlKind::DirListBox: {
      auto& l = static_cast<ListBox&>(c);
      auto* list = static_cast<QListWidget*>(w);
      QStringList shown, wanted;
      for (int i = 0; i < list->count(); ++i) shown << list->item(i)->text();
      // A file name that is not UTF-8 is shown with its odd bytes as letters.
      for (const QString& item : l.items()) wanted << readableName(item);
      if (shown != wanted) {
        list->clear();
        list->addItems(wanted);
      }
      list->setCurrentRow(l.ListIndex);
      break;
    }
    case ControlKind::ComboBox: case ControlKind::DriveListBox: {
      auto& l = static_cast<ListBox&>(c);
      auto* combo = static_cast<QComboBox*>(w);
      QStringList shown;
      for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
      if (shown != l.items()) {
        combo->clear();
        combo->addItems(l.items());
      }
      combo->setCurrentIndex(l.ListIndex);
      break;
    }
    default: break;
  }
  w->setVisible(v->Visible);
  w->update();
}

void FormView::applyForm() {
  formShown_ = form_.revision();
  window_->setWindowTitle(form_.Caption);
  const QSize size(toPixels(form_.Width / kTwipsPerPixel), toPixels(form_.Height / kTwipsPerPixel));
  if (size.width() > 0 && size.height() > 0 && size != appliedSize_) {
    appliedSize_ = size;
    window_->resize(size);
  }
  if (form_.MousePointer == 0) central_->unsetCursor();
  else central_->setCursor(cursorFor(form_, central_->devicePixelRatioF()));
  central_->setAcceptDrops(form_.OLEDropEnabled);
  if (window_->isVisible() == form_.Visible.get()) return;
  if (form_.Visible) {
    // A modal window keeps the input from the others while the program waits for it to close.
    window_->setWindowModality(form_.isModal() ? Qt::ApplicationModal : Qt::NonModal);
    if (form_.BorderStyle == 0 && form_.WindowState == 2) {
      // A borderless maximized window covers the whole screen the program's window is on.
      const QWidget* active = QApplication::activeWindow();
      if (QScreen* screen = active ? active->screen() : QGuiApplication::primaryScreen())
        window_->setGeometry(screen->geometry());
      window_->showFullScreen();
    } else {
      window_->setVisible(true);
    }
    if (form_.runtime().loop.windows().active() == &form_) activate();
  } else {
    window_->setVisible(false);
    // The keys go to the window that is active now, not to nowhere or to the hidden one.
    if (Form* now = form_.runtime().loop.windows().active())
      for (QWidget* top : QApplication::topLevelWidgets())
        if (FormView* other = viewOf(top); other && &other->form() == now && top->isVisible()) other->activate();
  }
}

FormView* FormView::viewOf(QWidget* window) {
  return window ? static_cast<FormView*>(window->property(kViewProperty).value<void*>()) : nullptr;
}

void FormView::activate() {
  if (QGuiApplication::platformName() != "offscreen") window_->raise();  // nothing to raise there
  window_->activateWindow();
  QApplication::setActiveWindow(window_.get());
  // The control that had the focus in this window takes it again.
  QWidget* w = widgetFor(form_.ActiveControl());
  (w && w->isVisible() && w->focusPolicy() != Qt::NoFocus ? w : central_)->setFocus(Qt::ActiveWindowFocusReason);
}

QString fromLineBreaks(const QString& text) {
  QString s = text;
  return s.replace("\r\n", "\n");
}

QString toLineBreaks(const QString& text) {
  QString s = text;
  s.replace("\r\n", "\n");
  return s.replace("\n", "\r\n");
}

}  // namespace qp
