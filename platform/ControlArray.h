#pragma once
// A control array: controls of one kind sharing a name, told apart by Index (`Shadow(5)`).
#include <map>
#include <memory>

#include "platform/Errors.h"

namespace qp {

template <class C>
class ControlArray {
 public:
  ControlArray() = default;
  template <class... Args>
  C& add(int index, Args&&... args) {
    auto& slot = items_[index];
    slot = std::make_unique<C>(std::forward<Args>(args)..., index);
    return *slot;
  }
  C& operator()(int index) const {
    auto it = items_.find(index);
    if (it == items_.end()) raiseError(RuntimeError::SubscriptOutOfRange, "Control array element does not exist");
    return *it->second;
  }
  bool has(int index) const { return items_.count(index) != 0; }
  int LBound() const { return items_.empty() ? 0 : items_.begin()->first; }
  int UBound() const { return items_.empty() ? -1 : items_.rbegin()->first; }
  template <class F>
  void forEach(F&& f) const { for (auto& [i, c] : items_) f(*c); }

 private:
  std::map<int, std::unique_ptr<C>> items_;
};

}  // namespace qp
