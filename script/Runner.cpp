// The script runner: finding controls by name, reading values out, files and the clipboard.
#include "script/Runner.h"

#include <QFileInfo>
#include <QImage>

#include "files/PictureFiles.h"
#include "platform/Controls.h"
#include "platform/Errors.h"
#include "platform/EventLoop.h"
#include "platform/Runtime.h"
#include "script/Value.h"
#include "surface/PictureBox.h"
#include "app/Program.h"

namespace qp::script {

Runner::Runner(Program& program, Runtime& rt, Host& host, QTextStream& out, QTextStream& err)
    : p_(program), rt_(rt), host_(host), out_(out), err_(err) {}

std::vector<Form*> Runner::forms() const {
  // Every window of the program that a script may name; new windows join this list.
  return {&p_.f, &p_.w.file, &p_.w.lo,
          &p_.w.tile, &p_.w.blend, &p_.w.stretch, &p_.w.blue, &p_.w.full};
}

Control* Runner::resolve(const QString& path) const {
  const int dot = path.indexOf('.');
  if (dot < 0) {
    if (Control* c = p_.f.find(path)) return c;  // the main window's controls need no prefix
    for (Form* f : forms())
      if (f->Name() == path) return f;
    return nullptr;
  }
  const QString formName = path.left(dot);
  for (Form* f : forms())
    if (f->Name() == formName) return f->find(path.mid(dot + 1));
  return nullptr;
}

bool Runner::reachable(const Control& c) const {
  // A user reaches only what is shown and enabled, all the way up to the window.
  for (const Control* x = &c; x; x = x->parent())
    if (!x->Visible || !x->Enabled) return false;
  const Form* f = c.form() ? c.form() : dynamic_cast<const Form*>(&c);
  return !(f && !f->Visible) && !behindModal(f);
}

bool Runner::behindModal(const Form* f) const {
  // While a modal window is open, the others take no input.
  const Form* modal = rt_.loop.windows().modal();
  return modal && f && f != modal;
}

Form& Runner::keyForm() const {
  Form* f = rt_.loop.windows().active();
  return f ? *f : p_.f;
}

void Runner::activate(VisualControl& v) {
  if (Form* f = v.form()) rt_.loop.windows().activate(f);
  else if (auto* f = dynamic_cast<Form*>(&v)) rt_.loop.windows().activate(f);
}

Runner::Outcome Runner::error(const Command& c, const QString& message) {
  err_ << "line " << c.line << ": " << message << Qt::endl;
  return Outcome::Error;
}

VisualControl* Runner::visual(const Command& c, Outcome& o) {
  Control* ctl = resolve(c.name);
  if (!ctl) {
    o = error(c, QString("no control named '%1'").arg(c.name));
    return nullptr;
  }
  auto* v = dynamic_cast<VisualControl*>(ctl);
  if (!v) {
    o = error(c, QString("'%1' takes no pointer or key input").arg(c.name));
    return nullptr;
  }
  o = Outcome::Done;
  if (!reachable(*v)) {
    if (!quietUnreachable_)
      err_ << "line " << c.line << ": note: " << c.name
           << (behindModal(v->form()) ? " is behind a modal window" : " is hidden or disabled")
           << "; the input goes nowhere" << Qt::endl;
    return nullptr;
  }
  return v;
}

int Runner::runAll(const std::vector<Command>& commands) {
  const std::vector<Command>* outer = script_;
  script_ = &commands;
  next_ = 0;
  failed_ = false;
  stopStatus_ = -1;
  rt_.loop.setInputSource([this] { return step(); });
  while (step()) {
  }
  rt_.loop.setInputSource({});
  script_ = outer;
  out_.flush();
  return stopStatus_ >= 0 ? stopStatus_ : failed_ ? 1 : 0;
}

bool Runner::step() {
  if (!script_ || stopStatus_ >= 0 || next_ >= script_->size()) return false;
  const Command& c = (*script_)[next_++];
  switch (run(c)) {
    case Outcome::Done: break;
    case Outcome::ExpectFailed: failed_ = true; break;
    case Outcome::Error: stopStatus_ = 2; return false;
    case Outcome::Quit:
      err_ << "line " << c.line << ": the program ended; the rest of the script does not run" << Qt::endl;
      stopStatus_ = failed_ ? 1 : 0;
      return false;
  }
  return true;
}

Runner::Outcome Runner::run(const Command& c) {
  Outcome o = Outcome::Done;
  switch (c.op) {
    case Op::Seed: rt_.rnd.Randomize(static_cast<std::uint32_t>(c.number)); break;
    case Op::Menu: o = menu(c); break;
    case Op::Click: case Op::DblClick: o = click(c); break;
    case Op::Press: case Op::Move: case Op::Release: o = pointer(c); break;
    case Op::Key: o = key(c); break;
    case Op::Focus: {
      VisualControl* v = visual(c, o);
      if (v && v->form()) {
        activate(*v);
        trap([&] { v->form()->setFocusTo(v); });
        host_.afterInput();
      }
      break;
    }
    case Op::Type: o = type(c); break;
    case Op::Set: o = set(c); break;
    case Op::Wait: host_.wait(c.number); break;
    case Op::Drop: o = drop(c); break;
    case Op::ClipboardLoad: case Op::ClipboardSave: case Op::ClipboardClear: o = clipboard(c); break;
    case Op::Save: o = save(c); break;
    case Op::Print: case Op::Expect: o = readOut(c); break;
    case Op::Screenshot: {
      QString why;
      if (!host_.screenshot(c.text, why)) o = error(c, QString("cannot write %1: %2").arg(c.text, why));
      break;
    }
  }
  if (o != Outcome::Error && host_.quitRequested()) return Outcome::Quit;
  return o;
}

Runner::Outcome Runner::readOut(const Command& c) {
  std::optional<Value> v;
  QString what = c.name;
  if (c.pixel) {
    what = QString("pixel %1 %2 %3").arg(c.name).arg(c.x).arg(c.y);
    auto* pb = dynamic_cast<PictureBox*>(resolve(c.name));
    if (!pb) return error(c, QString("'%1' is not a picture box").arg(c.name));
    const QImage& bmp = pb->bitmap();
    const int x = static_cast<int>(c.x), y = static_cast<int>(c.y);
    if (bmp.valid(x, y)) {
      const QRgb px = bmp.pixel(x, y);
      v = Value::colour(static_cast<long long>(qRed(px) | (qGreen(px) << 8) | (qBlue(px) << 16)));
    } else {
      v = Value::colour(-1);  // outside the picture, as Point answers
    }
  } else if (c.name == "msgbox") {
    v = Value::string(host_.lastMessageBox());
  } else if (const int dot = c.name.lastIndexOf('.'); dot > 0) {
    Control* ctl = resolve(c.name.left(dot));
    if (!ctl) return error(c, QString("no control named '%1'").arg(c.name.left(dot)));
    v = readProperty(*ctl, c.name.mid(dot + 1));
    if (!v) return error(c, QString("%1 has no property '%2'").arg(c.name.left(dot), c.name.mid(dot + 1)));
  } else {
    v = readSessionVariable(p_.m, p_.f, c.name);
    if (!v) return error(c, QString("no session variable named '%1'").arg(c.name));
  }
  const QString shown = v->format();
  out_ << what << " = " << shown << '\n';
  if (c.op == Op::Expect && !v->matches(c.text)) {
    err_ << "line " << c.line << ": expected " << what << " = " << c.text << ", but it is " << shown << Qt::endl;
    return Outcome::ExpectFailed;
  }
  return Outcome::Done;
}

QString Runner::inputFile(const QString& name) const {
  // A script and the pictures it uses travel together: its own folder is looked in first.
  if (!inputFolder_.isEmpty() && QFileInfo(name).isRelative()) {
    const QString beside = inputFolder_ + "/" + name;
    if (QFileInfo::exists(beside)) return beside;
  }
  return name;
}

Runner::Outcome Runner::drop(const Command& c) {
  Outcome o;
  VisualControl* v = visual(c, o);
  if (!v) return o;
  // The window turns a drop away from a control that does not take files.
  if (!v->OLEDropEnabled) {
    if (!quietUnreachable_) err_ << "line " << c.line << ": note: " << c.name << " takes no dropped files" << Qt::endl;
    return Outcome::Done;
  }
  const QStringList files{QFileInfo(inputFile(c.text)).absoluteFilePath()};
  trap([&] { if (v->OLEDragDrop) v->OLEDragDrop(files, vbLeftButton, 0, 0, 0); });
  host_.afterInput();
  return Outcome::Done;
}

Runner::Outcome Runner::clipboard(const Command& c) {
  if (c.op == Op::ClipboardClear) {
    rt_.clipboard.Clear();
    return Outcome::Done;
  }
  if (c.op == Op::ClipboardLoad) {
    // Through the program's own loading: a pipe or a device is refused, not waited on, and a short
    // file's missing pixels are black.
    QImage picture;
    trap([&] { picture = LoadAnyPicture(inputFile(c.text), p_.f.PicPaint.BackColor); });
    if (picture.isNull()) return error(c, QString("cannot read a picture from %1").arg(c.text));
    rt_.clipboard.SetData(picture);
    return Outcome::Done;
  }
  const QImage picture = rt_.clipboard.GetData();
  if (picture.isNull()) return error(c, "the clipboard holds no picture");
  if (!picture.save(c.text) && !picture.save(c.text, "PNG")) return error(c, QString("cannot write %1").arg(c.text));
  return Outcome::Done;
}

Runner::Outcome Runner::save(const Command& c) {
  auto* pb = dynamic_cast<PictureBox*>(resolve(c.name));
  if (!pb) return error(c, QString("'%1' is not a picture box").arg(c.name));
  const QImage image = pb->Image.get();
  // The program's own safe save: a full disk or a kill at any moment leaves the old file whole.
  bool saved = false;
  if (!image.isNull()) trap([&] {
      SavePicture(image, c.text);
      saved = true;
    });
  if (!saved) return error(c, QString("cannot write %1").arg(c.text));
  return Outcome::Done;
}

}  // namespace qp::script
