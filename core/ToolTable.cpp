#include "core/ToolTable.h"

#include "platform/Errors.h"

namespace qp {

void ToolTable::set(int mode, ToolHooks hooks) {
  if (mode < 0 || mode >= kModes) raiseError(RuntimeError::SubscriptOutOfRange, "no such paint mode");
  hooks_[static_cast<size_t>(mode)] = std::move(hooks);
}

const ToolHooks& ToolTable::at(int mode) const {
  if (mode < 0 || mode >= kModes) return none_;
  return hooks_[static_cast<size_t>(mode)];
}

}  // namespace qp
