#pragma once
// A property of a control. Reads like a plain field (`vVal1.Value = 4;`, `if (lnX.Visible)`), but a
// write goes through the control's own rule when it has one (a scroll bar raises Change only when the
// value really changes, a label raises Change on every caption write) and marks the control as
// changed so that a view on screen can follow it.
#include <functional>
#include <utility>

namespace qp {

class Control;
void markChanged(Control* owner);

template <class T>
class Prop {
 public:
  using Setter = std::function<void(const T&)>;

  explicit Prop(Control* owner, T init = T{}) : owner_(owner), v_(std::move(init)) {}
  Prop(const Prop&) = delete;

  Prop& operator=(const Prop& other) {
    set(other.v_);
    return *this;
  }
  template <class U>
  Prop& operator=(U&& nv) {
    set(static_cast<T>(std::forward<U>(nv)));
    return *this;
  }

  operator const T&() const { return v_; }  // NOLINT: reads as the value
  const T& get() const { return v_; }

  void set(const T& nv) {
    if (setter_) setter_(nv);
    else setRaw(nv);
  }
  // Stores without the control's rule; used by that rule itself.
  void setRaw(const T& nv) {
    if (!(v_ == nv)) {
      v_ = nv;
      markChanged(owner_);
    }
  }
  void setSetter(Setter s) { setter_ = std::move(s); }

  template <class U>
  Prop& operator+=(const U& d) { return *this = v_ + d; }
  template <class U>
  Prop& operator-=(const U& d) { return *this = v_ - d; }

 private:
  Control* owner_;
  T v_;
  Setter setter_;
};

template <class T, class U>
bool operator==(const Prop<T>& a, const U& b) { return a.get() == b; }
template <class T, class U>
bool operator!=(const Prop<T>& a, const U& b) { return !(a.get() == b); }
template <class T, class U>
bool operator==(const Prop<T>& a, const Prop<U>& b) { return a.get() == b.get(); }
template <class T, class U>
bool operator!=(const Prop<T>& a, const Prop<U>& b) { return !(a.get() == b.get()); }

}  // namespace qp
