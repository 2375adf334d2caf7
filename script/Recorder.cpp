// Recording the user's input as script lines.
#include "script/Recorder.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QUrl>
#include <cstdio>
#include <memory>

#include "platform/Controls.h"
#include "platform/EventLoop.h"
#include "platform/qt/FormView.h"
#include "platform/qt/Keys.h"
#include "platform/qt/QtRuntime.h"
#include "platform/qt/Widgets.h"
#include "script/CommandLine.h"
#include "script/Command.h"
#include "surface/PictureBox.h"
#include "app/Program.h"

namespace qp::script {

namespace {

QString buttonWord(Qt::MouseButtons b) {
  if (b & Qt::LeftButton) return "left";
  if (b & Qt::RightButton) return "right";
  if (b & Qt::MiddleButton) return "middle";
  return "none";
}

QString modWords(Qt::KeyboardModifiers m) {
  QString s;
  if (m & Qt::ControlModifier) s += " ctrl";
  if (m & Qt::ShiftModifier) s += " shift";
  return s;
}

QString number(double v) { return QString::number(v, 'g', 10); }

}  // namespace

Recorder::Recorder(FormView& view, EventLoop& clock, std::uint32_t seed, QIODevice& out)
    : view_(view), views_{&view}, clock_(clock), out_(&out) {
  out_ << "# recorded by Quillora Pro on " << QDateTime::currentDateTime().toString(Qt::ISODate) << '\n';
  out_ << "seed " << seed << Qt::endl;
  last_ = clock_.now();
  refresh();  // the view has made its widgets; follow their signals from the start
  qApp->installEventFilter(this);
}

Recorder::~Recorder() { qApp->removeEventFilter(this); }

void Recorder::watch(FormView& side) {
  views_.push_back(&side);
  refresh();
}

void Recorder::write(const QString& line) {
  const std::int64_t now = clock_.now();
  if (now > last_) out_ << "wait " << (now - last_) << '\n';
  last_ = now;
  out_ << line << Qt::endl;  // endl flushes: the file holds every input up to a crash
}

QString Recorder::nameOf(const Control& c) const {
  const Form* f = c.form();
  if (!f || f == &view_.form()) return f ? c.key() : c.Name();
  return f->Name() + "." + c.key();
}

void Recorder::refresh() {
  byWidget_.clear();
  for (FormView* view : views_) {
    Form& form = view->form();
    // The window's own area stands for the form: keys with no focused control, clicks beside them.
    if (QWidget* w = view->window().centralWidget()) byWidget_[w] = &form;
    for (Control* c : form.controls()) {
      auto* v = dynamic_cast<VisualControl*>(c);
      QWidget* w = v ? view->widgetFor(c) : nullptr;
      if (w) byWidget_[w] = v;
    }
  }
  watchWidgets();
}

VisualControl* Recorder::controlOf(QObject* widget) {
  auto it = byWidget_.find(widget);
  if (it != byWidget_.end()) return it->second;
  // The view makes widgets as controls appear; a widget we do not know may be a new one.
  if (!widget->isWidgetType()) return nullptr;
  refresh();
  it = byWidget_.find(widget);
  return it == byWidget_.end() ? nullptr : it->second;
}

// Changes the user makes with the toolkit's own widgets arrive as signals, not as input events.
void Recorder::watchWidgets() {
  for (auto& [w, c] : byWidget_) {
    if (watched_.count(w) && watched_[w]) continue;
    auto* obj = const_cast<QObject*>(w);
    watched_[w] = obj;
    VisualControl* ctl = c;
    if (auto* bar = qobject_cast<QScrollBar*>(obj)) {
      // After the view has moved the control, its value is where the user put it.
      connect(bar, &QAbstractSlider::actionTriggered, this, [this, ctl](int action) {
        if (action == QAbstractSlider::SliderMove || action == QAbstractSlider::SliderNoAction) return;
        write(QString("set %1.Value %2").arg(nameOf(*ctl)).arg(static_cast<ScrollBar*>(ctl)->Value.get()));
      });
      connect(bar, &QAbstractSlider::sliderReleased, this, [this, ctl] {
        write(QString("set %1.Value %2").arg(nameOf(*ctl)).arg(static_cast<ScrollBar*>(ctl)->Value.get()));
      });
    } else if (auto* button = qobject_cast<QAbstractButton*>(obj)) {
      connect(button, &QAbstractButton::clicked, this, [this, ctl] { write("click " + nameOf(*ctl)); });
    } else if (auto* edit = qobject_cast<QLineEdit*>(obj)) {
      connect(edit, &QLineEdit::textEdited, this, [this, ctl](const QString& text) {
        write(QString("set %1.Text %2").arg(nameOf(*ctl), quoted(text)));
      });
    }
  }
}

void Recorder::recordMenu(QObject* watched, QEvent* e) {
  auto* menu = qobject_cast<QMenu*>(watched);
  if (!menu) return;
  QAction* action = nullptr;
  if (e->type() == QEvent::MouseButtonRelease)
    action = menu->actionAt(static_cast<QMouseEvent*>(e)->position().toPoint());
  else if (e->type() == QEvent::KeyPress) {
    const int k = static_cast<QKeyEvent*>(e)->key();
    if (k == Qt::Key_Return || k == Qt::Key_Enter) action = menu->activeAction();
  }
  if (!action || action->menu() || action->isSeparator() || !action->isEnabled()) return;
  for (FormView* view : views_)
    for (Control* c : view->form().controls()) {
      auto* m = dynamic_cast<Menu*>(c);
      if (m && view->actionFor(m) == action) {
        write("menu " + nameOf(*m));
        return;
      }
    }
}

bool Recorder::eventFilter(QObject* watched, QEvent* e) {
  const QEvent::Type t = e->type();
  const bool mouse = t == QEvent::MouseButtonPress || t == QEvent::MouseButtonRelease ||
                     t == QEvent::MouseMove || t == QEvent::MouseButtonDblClick;
  const bool key = t == QEvent::KeyPress || t == QEvent::KeyRelease;
  if (t == QEvent::Resize) {
    // The user sizing a window: the form hears of it in twips, as the view tells it.
    for (FormView* view : views_)
      if (watched == &view->window()) {
        const QSize size = view->window().size();
        write(QString("set %1.Width %2").arg(view->form().Name()).arg(size.width() * 15));
        write(QString("set %1.Height %2").arg(view->form().Name()).arg(size.height() * 15));
      }
    return false;
  }
  if (!mouse && !key && t != QEvent::Drop && t != QEvent::FocusIn) return false;
  if (mouse || key) recordMenu(watched, e);
  VisualControl* c = controlOf(watched);
  if (!c) return false;
  const QString name = nameOf(*c);
  auto* w = static_cast<QWidget*>(watched);
  if (mouse) {
    auto* me = static_cast<QMouseEvent*>(e);
    QPointF at = me->position();
    if (c->kind() == ControlKind::PictureBox) {
      // Pixels of the picture, which may sit inside a border in the widget.
      at -= static_cast<PictureWidget*>(w)->bitmapOrigin();
    }
    const QString point = number(at.x()) + " " + number(at.y());
    const QString mods = modWords(me->modifiers());
    switch (t) {
      case QEvent::MouseButtonPress: write("press " + name + " " + point + " " + buttonWord(me->button()) + mods); break;
      case QEvent::MouseButtonRelease: write("release " + name + " " + point + " " + buttonWord(me->button()) + mods); break;
      case QEvent::MouseMove: write("move " + name + " " + point + " " + buttonWord(me->buttons()) + mods); break;
      default: write("dblclick " + name + " " + point + " " + buttonWord(me->button()) + mods); break;
    }
    return false;
  }
  if (key) {
    // Only the delivery the window acts on counts: to the focused widget, or to the window itself
    // when no control has the focus. Qt hands an ignored key to each parent too.
    QWidget* focus = QApplication::focusWidget();
    bool toWindow = false;
    for (FormView* view : views_) toWindow = toWindow || watched == view->window().centralWidget();
    toWindow = toWindow && !(focus && controlOf(focus));
    if (watched != focus && !toWindow) return false;
    if (c->kind() == ControlKind::TextBox) return false;  // its text is recorded as it changes
    auto* ke = static_cast<QKeyEvent*>(e);
    const int code = keyCodeFor(ke->key(), ke->modifiers());
    if (code == 0) return false;
    // A held key is repeated downs and one up, as the window hands it to the program.
    if (t == QEvent::KeyRelease && ke->isAutoRepeat()) return false;
    write(QString("key %1 %2%3").arg(keyNameForCode(code), t == QEvent::KeyPress ? "down" : "up",
                                     modWords(ke->modifiers() & ~Qt::KeypadModifier)));
    return false;
  }
  if (t == QEvent::FocusIn) {
    if (c->kind() != ControlKind::Form) write("focus " + name);
    return false;
  }
  // A drop: one line for each file, as each would be dropped alone.
  const auto* de = static_cast<QDropEvent*>(e);
  if (de->mimeData() && de->mimeData()->hasUrls() && c->OLEDropEnabled) {
    for (const QUrl& u : de->mimeData()->urls())
      if (u.isLocalFile()) write("drop " + name + " " + quoted(u.toLocalFile()));
  }
  return false;
}

int runRecording(const QString& file) {
  QFile out(file);
  if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
    std::fprintf(stderr, "cannot write the recording %s: %s\n", qPrintable(file), qPrintable(out.errorString()));
    return 2;
  }
  // A seed of the moment, written first, so that the replay draws the same random numbers.
  const auto seed = static_cast<std::uint32_t>(QDateTime::currentMSecsSinceEpoch() % 2147483647);
  QtRuntime runtime(seed);
  Program program(runtime.rt(), [] { QApplication::exit(0); });
  FormView view(program.f);
  Recorder recorder(view, runtime.loop, seed, out);
  // The other windows are shown as the program opens them, and what the user does there is
  // recorded as well.
  std::vector<std::unique_ptr<FormView>> sides;
  for (Form* side : std::initializer_list<Form*>{&program.w.file, &program.w.lo, &program.w.tile, &program.w.blend,
                                                 &program.w.stretch, &program.w.full, &program.w.blue}) {
    sides.push_back(std::make_unique<FormView>(*side));
    recorder.watch(*sides.back());
  }
  program.start();
  view.sync();
  view.window().show();
  if (program.quitRequested()) return 0;
  return QApplication::exec();
}

}  // namespace qp::script
