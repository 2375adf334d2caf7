#pragma once
// The code of the runtime error a call raises, 0 when it raises none.
#include "platform/Errors.h"

namespace qp::test {

inline int errorCode(auto&& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.code();
  }
  return 0;
}

}  // namespace qp::test
