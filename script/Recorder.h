#pragma once
// Writes what the user does in the window as a script: the same lines that replay it. It watches
// the real input before the window turns it into the controls' events, so it records exactly what
// those events are made from, and never what the program does on its own.
#include <QFile>
#include <QObject>
#include <QPointer>
#include <QTextStream>
#include <unordered_map>
#include <vector>

namespace qp {
class Control;
class EventLoop;
class FormView;
class VisualControl;
}  // namespace qp

namespace qp::script {

class Recorder : public QObject {
 public:
  // Writes `seed` first; every later line is flushed at once, so a crash loses nothing before it.
  Recorder(FormView& view, EventLoop& clock, std::uint32_t seed, QIODevice& out);
  ~Recorder() override;

  // Records the input of another window of the same program too (a workshop window); its
  // controls are written as `frmTile.cTile`. The view must outlive the recorder.
  void watch(FormView& side);

  // One line of the script, after the wait since the line before.
  void write(const QString& line);

 protected:
  bool eventFilter(QObject* watched, QEvent* e) override;

 private:
  VisualControl* controlOf(QObject* widget);
  void refresh();
  QString nameOf(const Control& c) const;
  void recordMenu(QObject* watched, QEvent* e);
  void watchWidgets();

  FormView& view_;               // the main window: its controls go by their bare names
  std::vector<FormView*> views_;  // every window watched, the main one first
  EventLoop& clock_;
  QTextStream out_;
  std::int64_t last_ = 0;
  std::unordered_map<const QObject*, VisualControl*> byWidget_;
  std::unordered_map<const QObject*, QPointer<QObject>> watched_;  // widgets whose signals we follow
};

}  // namespace qp::script
