#pragma once
// Which window is active. The shown windows stand in the order they were last shown or clicked;
// the first still visible one is active and takes the keys. A window that hides drops out, so the
// keys go back to the window that was active before it, as on the desktop.
#include <algorithm>
#include <vector>

namespace qp {

class Form;

class WindowOrder {
 public:
  void activate(Form* f) {
    remove(f);
    order_.insert(order_.begin(), f);
  }
  void remove(Form* f) { order_.erase(std::remove(order_.begin(), order_.end(), f), order_.end()); }
  // The active window, or null when none is shown. Defined in Form.cpp: it reads Visible.
  Form* active() const;
  // The modal window now open, or null: while one is, the other windows take no input.
  Form* modal() const;
  // The windows whose modal Show is waiting for them to hide: a second modal Show of one of them
  // does not wait again.
  bool waiting(const Form* f) const { return std::find(waiting_.begin(), waiting_.end(), f) != waiting_.end(); }
  void beginWait(Form* f) { waiting_.push_back(f); }
  void endWait(Form* f) { waiting_.erase(std::find(waiting_.begin(), waiting_.end(), f)); }

 private:
  std::vector<Form*> order_;
  std::vector<Form*> waiting_;
};

}  // namespace qp
